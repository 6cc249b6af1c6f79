// WDS, the wireless data service: packet data calls, data profiles, runtime
// settings and call facts.
#include <cstddef>

#include "testutil.h"

using namespace t;

// Record layouts: packed, pointers native (4 bytes on the 32-bit target).
static_assert(sizeof(WDSChannelRate) == 16, "channel rate");
static_assert(sizeof(WDSProfileListEntry) == 3 + sizeof(void*), "profile list entry");
static_assert(offsetof(WDSProfileListEntry, profileIndex) == 1, "profile list entry");
static_assert(offsetof(WDSProfileListEntry, nameLength) == 2, "profile list entry");
static_assert(offsetof(WDSProfileListEntry, name) == 3, "profile list entry");
static_assert(sizeof(WDSUMTSQoS) == 33, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, maxUplinkBitrate) == 1, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, deliveryOrder) == 17, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, maxSDUSize) == 18, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, sduErrorRatio) == 22, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, deliveryErroneousSDUs) == 24, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, transferDelay) == 25, "UMTS QoS");
static_assert(offsetof(WDSUMTSQoS, trafficHandlingPriority) == 29, "UMTS QoS");
static_assert(sizeof(WDSGPRSQoS) == 20, "GPRS QoS");
static_assert(offsetof(WDSGPRSQoS, meanThroughputClass) == 16, "GPRS QoS");
static_assert(sizeof(WDSTFTFilter) == 39, "TFT filter");
static_assert(offsetof(WDSTFTFilter, destinationPortStart) == 21, "TFT filter");
static_assert(offsetof(WDSTFTFilter, sourcePortRange) == 27, "TFT filter");
static_assert(offsetof(WDSTFTFilter, securityParameterIndex) == 29, "TFT filter");
static_assert(offsetof(WDSTFTFilter, typeOfServiceMask) == 33, "TFT filter");
static_assert(offsetof(WDSTFTFilter, flowLabel) == 35, "TFT filter");
static_assert(sizeof(WDSLTEQoS) == 17, "LTE QoS");
static_assert(offsetof(WDSLTEQoS, guaranteedUplinkBitrate) == 1, "LTE QoS");
static_assert(offsetof(WDSLTEQoS, maxDownlinkBitrate) == 13, "LTE QoS");
static_assert(sizeof(WDSNameListEntry) == 2 + sizeof(void*), "name list entry");
static_assert(offsetof(WDSNameListEntry, name) == 2, "name list entry");

namespace {

int L(const Bytes& b) { return int(b.size()); }

// n bytes 0x11, 0x22, ... (wrapping), and the native value they spell little-endian.
Bytes pattern(size_t n) {
    Bytes b(n);
    for (size_t i = 0; i < n; ++i) b[i] = uint8_t(0x11 * (i + 1));
    return b;
}
template <class T>
T patternValue() {
    Bytes b = pattern(sizeof(T));
    uint64_t v = 0;
    for (size_t i = sizeof(T); i-- > 0;) v = v << 8 | b[i];
    return T(v);
}

// A message whose last item is cut short by the end of the buffer: the item
// claims `claimed` value bytes but only `present` follow.
Bytes cutShort(uint16_t id, uint8_t type, uint16_t claimed, size_t present, bool withResult = true) {
    Bytes item = cat({{type}, le16(claimed), pattern(present)});
    Bytes area = withResult ? cat({result(), item}) : item;
    return cat({{0x02}, le16(0x1234), le16(id), le16(uint16_t(area.size())), area});
}

// ------------------------------------------------------ fixed requests --

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    uint16_t id;
    Bytes item;  // the mandatory item 0x01, empty for a header-only request
};

TEST(WdsRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"Reset", [](uint8_t* b, int n) { return zovQMIWDSResetReq(b, n); }, 0x0000, {}},
        {"SetEventReport", [](uint8_t* b, int n) { return zovQMIWDSSetEventReportReq(b, n); }, 0x0001, {}},
        {"Abort", [](uint8_t* b, int n) { return zovQMIWDSAbortReq(b, n, 0x0A0B); }, 0x0002, tlv(0x01, le16(0x0A0B))},
        {"StartNetworkInterface", [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReq(b, n); }, 0x0020, {}},
        {"StopNetworkInterface", [](uint8_t* b, int n) { return zovQMIWDSStopNetworkInterfaceReq(b, n, 0xC1C2C3C4); },
         0x0021, tlv(0x01, le32(0xC1C2C3C4))},
        {"GetPktSrvcStatus", [](uint8_t* b, int n) { return zovQMIWDSGetPktSrvcStatusReq(b, n); }, 0x0022, {}},
        {"GetCurrentChannelRate", [](uint8_t* b, int n) { return zovQMIWDSGetCurrentChannelRateReq(b, n); }, 0x0023,
         {}},
        {"GetPktStatistics", [](uint8_t* b, int n) { return zovQMIWDSGetPktStatisticsReq(b, n, 0x000000FF); }, 0x0024,
         tlv(0x01, le32(0xFF))},
        {"GoDormant", [](uint8_t* b, int n) { return zovQMIWDSGoDormantReq(b, n); }, 0x0025, {}},
        {"GoActive", [](uint8_t* b, int n) { return zovQMIWDSGoActiveReq(b, n); }, 0x0026, {}},
        {"CreateProfile", [](uint8_t* b, int n) { return zovQMIWDSCreateProfileReq(b, n, 0x01); }, 0x0027,
         tlv(0x01, {0x01})},
        {"ModifyProfileSettings", [](uint8_t* b, int n) { return zovQMIWDSModifyProfileSettingsReq(b, n, 0x00, 0x03); },
         0x0028, tlv(0x01, {0x00, 0x03})},
        {"DeleteProfile", [](uint8_t* b, int n) { return zovQMIWDSDeleteProfileReq(b, n, 0x01, 0x04); }, 0x0029,
         tlv(0x01, {0x01, 0x04})},
        {"GetProfileList", [](uint8_t* b, int n) { return zovQMIWDSGetProfileListReq(b, n); }, 0x002A, {}},
        {"GetProfileSettings", [](uint8_t* b, int n) { return zovQMIWDSGetProfileSettingsReq(b, n, 0x00, 0x05); },
         0x002B, tlv(0x01, {0x00, 0x05})},
        {"GetDefaultSettings", [](uint8_t* b, int n) { return zovQMIWDSGetDefaultSettingsReq(b, n, 0x01); }, 0x002C,
         tlv(0x01, {0x01})},
        {"GetRuntimeSettings", [](uint8_t* b, int n) { return zovQMIWDSGetRuntimeSettingsReq(b, n); }, 0x002D, {}},
        {"SetMIPMode", [](uint8_t* b, int n) { return zovQMIWDSSetMIPModeReq(b, n, 0x02); }, 0x002E, tlv(0x01, {0x02})},
        {"GetMIPMode", [](uint8_t* b, int n) { return zovQMIWDSGetMIPModeReq(b, n); }, 0x002F, {}},
        {"GetDormancyStatus", [](uint8_t* b, int n) { return zovQMIWDSGetDormancyStatusReq(b, n); }, 0x0030, {}},
        {"GetCallDuration", [](uint8_t* b, int n) { return zovQMIWDSGetCallDurationReq(b, n); }, 0x0035, {}},
        {"GetCurrentDataBearerTechnology",
         [](uint8_t* b, int n) { return zovQMIWDSGetCurrentDataBearerTechnologyReq(b, n); }, 0x0044, {}},
        {"GetDefaultProfileNum", [](uint8_t* b, int n) { return zovQMIWDSGetDefaultProfileNumReq(b, n, 0x00, 0x01); },
         0x0049, tlv(0x01, {0x00, 0x01})},
        {"SetDefaultProfileNum",
         [](uint8_t* b, int n) { return zovQMIWDSSetDefaultProfileNumReq(b, n, 0x00, 0x01, 0x07); }, 0x004A,
         tlv(0x01, {0x00, 0x01, 0x07})},
        {"SetClientIPFamilyPref", [](uint8_t* b, int n) { return zovQMIWDSSetClientIPFamilyPrefReq(b, n, 0x06); },
         0x004D, tlv(0x01, {0x06})},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        const int size = 7 + L(r.item);
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), size - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, size), -1);
        ASSERT_EQ(r.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({reqHeader(r.id, uint16_t(r.item.size())), r.item, {0xEE}}));
    }
}

// Edge cases of the request pattern, shown on StartNetworkInterface.
TEST(WdsRequests, StartNetworkInterfaceNeedsSevenBytesAndWritesTheBareHeader) {
    Bytes buf = buffer(8);
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 6), -1);
    EXPECT_EQ(buf, buffer(8));
    ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 7), 7);
    uint16_t tx = uint16_t(zovQMIMSMGetCurrentTransactionID());
    EXPECT_EQ(buf, Bytes({0x00, uint8_t(tx), uint8_t(tx >> 8), 0x20, 0x00, 0x00, 0x00, 0xEE}));
}

TEST(WdsRequests, EmptyContextAPNNameWithNullDataAppendsAnEmptyItem) {
    Bytes buf = buffer(16);
    ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 16), 7);
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(buf.data(), 16, 0, nullptr), 10);
    EXPECT_EQ(head(buf, 11), cat({reqHeader(0x0020, 3), {0x14, 0x00, 0x00, 0xEE}}));
}

TEST(WdsRequests, StringItemWithLengthButNullDataIsRefusedAndLeavesTheBufferAlone) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 32), 7);
    const Bytes before = buf;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReqAddUsername(buf.data(), 32, 3, nullptr), -1);
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(buf.data(), 32, 3, nullptr), -1);
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReqAddPassword(buf.data(), 32, 3, nullptr), -1);
    EXPECT_EQ(buf, before);
}

TEST(WdsRequests, AbortNeedsTwelveBytesAndWritesItsValueLittleEndian) {
    Bytes buf = buffer(13);
    EXPECT_EQ(zovQMIWDSAbortReq(buf.data(), 11, 0x1234), -1);
    EXPECT_EQ(buf, buffer(13));
    ASSERT_EQ(zovQMIWDSAbortReq(buf.data(), 12, 0x1234), 12);
    uint16_t tx = uint16_t(zovQMIMSMGetCurrentTransactionID());
    EXPECT_EQ(buf, Bytes({0x00, uint8_t(tx), uint8_t(tx >> 8), 0x02, 0x00, 0x05, 0x00, 0x01, 0x02, 0x00, 0x34, 0x12,
                          0xEE}));
}

TEST(WdsRequests, ExtendedTechnologyPreferenceAppendsTypeThirtyFourAndTheValue) {
    Bytes buf = buffer(16);
    ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 16), 7);
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(buf.data(), 16, 0x8001), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0020, 5), {0x34, 0x02, 0x00, 0x01, 0x80, 0xEE}}));
}

TEST(WdsRequests, SetDefaultProfileNumNeedsThirteenBytes) {
    Bytes buf = buffer(14);
    EXPECT_EQ(zovQMIWDSSetDefaultProfileNumReq(buf.data(), 12, 0x00, 0x01, 0x03), -1);
    EXPECT_EQ(buf, buffer(14));
    ASSERT_EQ(zovQMIWDSSetDefaultProfileNumReq(buf.data(), 13, 0x00, 0x01, 0x03), 13);
    EXPECT_EQ(buf, cat({reqHeader(0x004A, 6), {0x01, 0x03, 0x00, 0x00, 0x01, 0x03, 0xEE}}));
}

// ------------------------------------------------------ optional items --

// A fixed-size optional item: the builder call and the item it must append.
struct FixedAdd {
    const char* name;
    int (*add)(uint8_t*, int);
    Bytes item;
};

void checkFixedAdds(const FixedAdd* adds, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        const FixedAdd& a = adds[i];
        SCOPED_TRACE(a.name);
        Bytes buf = buffer(64);
        ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 64), 7);
        EXPECT_EQ(a.add(buf.data(), 64), 7 + L(a.item));
        EXPECT_EQ(head(buf, 8 + a.item.size()), cat({reqHeader(0x0020, uint16_t(a.item.size())), a.item, {0xEE}}));
        // Appends again behind the first.
        EXPECT_EQ(a.add(buf.data(), 64), 7 + 2 * L(a.item));
        EXPECT_EQ(a.add(nullptr, 64), -1);
        // One byte short: -2 and the message is unchanged.
        Bytes small = buffer(64);
        ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(small.data(), 64), 7);
        const Bytes before = small;
        EXPECT_EQ(a.add(small.data(), 7 + L(a.item) - 1), -2);
        EXPECT_EQ(small, before);
        EXPECT_EQ(a.add(small.data(), 7 + L(a.item)), 7 + L(a.item));
    }
}

TEST(WdsRequests, EveryScalarItemBuilderAppendsItsItem) {
    const FixedAdd adds[] = {
        {"SetEventReport CurrentChannelRateIndicator",
         [](uint8_t* b, int n) { return zovQMIWDSSetEventReportReqAddCurrentChannelRateIndicator(b, n, 1); },
         tlv(0x10, {1})},
        {"SetEventReport TransferStatisticsIndicator",
         [](uint8_t* b, int n) { return zovQMIWDSSetEventReportReqAddTransferStatisticsIndicator(b, n, 5, 0x3F); },
         tlv(0x11, cat({{5}, le32(0x3F)}))},
        {"SetEventReport CurrentDataBearerTechnologyIndicatorDeprecated",
         [](uint8_t* b, int n) {
             return zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicatorDeprecated(b, n, 1);
         },
         tlv(0x12, {1})},
        {"SetEventReport DormancyStatusIndicator",
         [](uint8_t* b, int n) { return zovQMIWDSSetEventReportReqAddDormancyStatusIndicator(b, n, 0); },
         tlv(0x13, {0})},
        {"SetEventReport CurrentDataBearerTechnologyIndicator",
         [](uint8_t* b, int n) { return zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicator(b, n, 1); },
         tlv(0x15, {1})},
        {"PrimaryDNSAddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddPrimaryDNSAddressPreference(b, n, 0x08080808); },
         tlv(0x10, le32(0x08080808))},
        {"SecondaryDNSAddressPreference",
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddSecondaryDNSAddressPreference(b, n, 0x01020304);
         },
         tlv(0x11, le32(0x01020304))},
        {"PrimaryNBNSAddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddPrimaryNBNSAddressPreference(b, n, 0xA0B0); },
         tlv(0x12, le32(0xA0B0))},
        {"SecondaryNBNSAddressPreference",
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddSecondaryNBNSAddressPreference(b, n, 0xC0A80001);
         },
         tlv(0x13, le32(0xC0A80001))},
        {"IPAddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddIPAddressPreference(b, n, 0x0A000002); },
         tlv(0x15, le32(0x0A000002))},
        {"AuthenticationPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(b, n, 3); },
         tlv(0x16, {3})},
        {"IPFamilyPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(b, n, 6); },
         tlv(0x19, {6})},
        {"TechnologyPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddTechnologyPreference(b, n, 1); },
         tlv(0x30, {1})},
        {"3GPPConfiguredProfileIdentifier",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(b, n, 2); },
         tlv(0x31, {2})},
        {"3GPP2ConfiguredProfileIdentifier",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAdd3GPP2ConfiguredProfileIdentifier(b, n, 9); },
         tlv(0x32, {9})},
        {"ExtendedTechnologyPreference",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(b, n, 0x8004); },
         tlv(0x34, le16(0x8004))},
        {"CallTypeIdentifier",
         [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReqAddCallTypeIdentifier(b, n, 1); },
         tlv(0x35, {1})},
        {"GetRuntimeSettings RequestedSettings",
         [](uint8_t* b, int n) { return zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings(b, n, 0x00021F17); },
         tlv(0x10, le32(0x00021F17))},
        {"Profile PDPType", [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPType(b, n, 0); }, tlv(0x11, {0})},
        {"Profile PDPHeaderCompression",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPHeaderCompression(b, n, 1); }, tlv(0x12, {1})},
        {"Profile PDPDataCompression",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPDataCompression(b, n, 2); }, tlv(0x13, {2})},
        {"Profile PrimaryDNSIPv4AddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPrimaryDNSIPv4AddressPreference(b, n, 0x11223344); },
         tlv(0x15, le32(0x11223344))},
        {"Profile SecondaryDNSIPv4AddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddSecondaryDNSIPv4AddressPreference(b, n, 0x55667788); },
         tlv(0x16, le32(0x55667788))},
        {"Profile AuthenticationPreference",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddAuthenticationPreference(b, n, 3); }, tlv(0x1D, {3})},
        {"Profile IPv4AddressPreference",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddIPv4AddressPreference(b, n, 0x0A0B0C0D); },
         tlv(0x1E, le32(0x0A0B0C0D))},
        {"Profile PCSCFAddressUsingPCOFlag",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPCSCFAddressUsingPCOFlag(b, n, 1); }, tlv(0x1F, {1})},
        {"Profile PDPAccessControlFlag",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPAccessControlFlag(b, n, 1); }, tlv(0x20, {1})},
        {"Profile PCSCFAddressUsingDHCPFlag",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPCSCFAddressUsingDHCPFlag(b, n, 0); }, tlv(0x21, {0})},
        {"Profile IMCNFlag", [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddIMCNFlag(b, n, 1); }, tlv(0x22, {1})},
        {"Profile PDPContextNumber",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPContextNumber(b, n, 4); }, tlv(0x25, {4})},
        {"Profile PDPContextSecondaryFlag",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPContextSecondaryFlag(b, n, 1); }, tlv(0x26, {1})},
        {"Profile PDPContextPrimaryID",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddPDPContextPrimaryID(b, n, 7); }, tlv(0x27, {7})},
        {"Profile IPv4AddressAlloc",
         [](uint8_t* b, int n) { return zovQMIWDSProfileReqAddIPv4AddressAlloc(b, n, 1); }, tlv(0x2D, {1})},
    };
    checkFixedAdds(adds, sizeof adds / sizeof adds[0]);
}

struct StringAdd {
    const char* name;
    int (*add)(uint8_t*, int, uint16_t, const uint8_t*);
    uint8_t type;
};

TEST(WdsRequests, EveryStringItemBuilderCopiesTheCallersBytes) {
    const StringAdd adds[] = {
        {"ContextAPNName", zovQMIWDSStartNetworkInterfaceReqAddContextAPNName, 0x14},
        {"Username", zovQMIWDSStartNetworkInterfaceReqAddUsername, 0x17},
        {"Password", zovQMIWDSStartNetworkInterfaceReqAddPassword, 0x18},
        {"Profile ProfileName", zovQMIWDSProfileReqAddProfileName, 0x10},
        {"Profile APNName", zovQMIWDSProfileReqAddAPNName, 0x14},
        {"Profile Username", zovQMIWDSProfileReqAddUsername, 0x1B},
        {"Profile Password", zovQMIWDSProfileReqAddPassword, 0x1C},
    };
    const Bytes text = str("internet");
    for (const StringAdd& a : adds) {
        SCOPED_TRACE(a.name);
        Bytes buf = buffer(64);
        ASSERT_EQ(zovQMIWDSStartNetworkInterfaceReq(buf.data(), 64), 7);
        EXPECT_EQ(a.add(buf.data(), 64, uint16_t(text.size()), text.data()), 18);
        EXPECT_EQ(a.add(buf.data(), 64, 0, nullptr), 21);
        EXPECT_EQ(head(buf, 22), cat({reqHeader(0x0020, 14), tlv(a.type, text), tlv(a.type, {}), {0xEE}}));
        const Bytes before = buf;
        EXPECT_EQ(a.add(buf.data(), 64, 4, nullptr), -1);
        EXPECT_EQ(a.add(nullptr, 64, uint16_t(text.size()), text.data()), -1);
        EXPECT_EQ(a.add(buf.data(), 21 + 10, uint16_t(text.size()), text.data()), -2);
        EXPECT_EQ(buf, before);
    }
}

// Composite items and IPv6 addresses: the caller's record in wire layout.
struct RecordAdd {
    const char* name;
    int (*add)(uint8_t*, int, const uint8_t*);
    uint8_t type;
    size_t size;
};

TEST(WdsRequests, EveryRecordItemBuilderCopiesTheRecordInWireLayout) {
    const RecordAdd adds[] = {
        {"UMTSRequestedQoS", zovQMIWDSProfileReqAddUMTSRequestedQoS, 0x17, 33},
        {"UMTSMinimumQoS", zovQMIWDSProfileReqAddUMTSMinimumQoS, 0x18, 33},
        {"GPRSRequestedQoS", zovQMIWDSProfileReqAddGPRSRequestedQoS, 0x19, 20},
        {"GPRSMinimumQoS", zovQMIWDSProfileReqAddGPRSMinimumQoS, 0x1A, 20},
        {"TFTFilterID1", zovQMIWDSProfileReqAddTFTFilterID1, 0x23, 39},
        {"TFTFilterID2", zovQMIWDSProfileReqAddTFTFilterID2, 0x24, 39},
        {"PDPContextIPv6Address", zovQMIWDSProfileReqAddPDPContextIPv6Address, 0x28, 16},
        {"PrimaryIPv6DNSAddress", zovQMIWDSProfileReqAddPrimaryIPv6DNSAddress, 0x2B, 16},
        {"SecondaryIPv6DNSAddress", zovQMIWDSProfileReqAddSecondaryIPv6DNSAddress, 0x2C, 16},
        {"LTERequestedQoS", zovQMIWDSProfileReqAddLTERequestedQoS, 0x2E, 17},
    };
    for (const RecordAdd& a : adds) {
        SCOPED_TRACE(a.name);
        const Bytes record = pattern(a.size);
        Bytes buf = buffer(64);
        ASSERT_EQ(zovQMIWDSModifyProfileSettingsReq(buf.data(), 64, 0, 1), 12);
        EXPECT_EQ(a.add(buf.data(), 64, record.data()), 12 + 3 + int(a.size));
        EXPECT_EQ(head(buf, 16 + a.size),
                  cat({reqHeader(0x0028, uint16_t(8 + a.size)), tlv(0x01, {0, 1}), tlv(a.type, record), {0xEE}}));
        const Bytes before = buf;
        EXPECT_EQ(a.add(buf.data(), 64, nullptr), -1);
        EXPECT_EQ(a.add(nullptr, 64, record.data()), -1);
        EXPECT_EQ(a.add(buf.data(), 15 + int(a.size) + 2 + int(a.size), record.data()), -2);
        EXPECT_EQ(buf, before);
    }
}

TEST(WdsRequests, UMTSRequestedQoSAppendsThirtySixBytes) {
    WDSUMTSQoS qos;
    std::memset(&qos, 0, sizeof qos);
    qos.trafficClass = 2;
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWDSCreateProfileReq(buf.data(), 64, 0), 11);
    EXPECT_EQ(zovQMIWDSProfileReqAddUMTSRequestedQoS(buf.data(), 64, reinterpret_cast<const uint8_t*>(&qos)), 11 + 36);
    EXPECT_EQ(head(buf, 48), cat({reqHeader(0x0027, 40), tlv(0x01, {0}), {0x17, 33, 0, 2}, fill(32, 0), {0xEE}}));
}

TEST(WdsRequests, ProfilePasswordWithLengthButNullDataIsRefused) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIWDSCreateProfileReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWDSProfileReqAddPassword(buf.data(), 32, 4, nullptr), -1);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x0027, 4), tlv(0x01, {0}), {0xEE}}));
}

// The profile APN name builder has no null-data check of its own; a length
// with null data is refused like on its siblings, an empty name is appended.
TEST(WdsRequests, ProfileAPNNameRefusesLengthWithNullDataButAppendsAnEmptyName) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIWDSCreateProfileReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWDSProfileReqAddAPNName(buf.data(), 32, 5, nullptr), -1);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x0027, 4), tlv(0x01, {0}), {0xEE}}));
    EXPECT_EQ(zovQMIWDSProfileReqAddAPNName(buf.data(), 32, 0, nullptr), 14);
    EXPECT_EQ(head(buf, 15), cat({reqHeader(0x0027, 7), tlv(0x01, {0}), tlv(0x14, {}), {0xEE}}));
}

}  // namespace
