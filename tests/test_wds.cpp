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
        {"StartNetworkInterface", [](uint8_t* b, int n) { return zovQMIWDSStartNetworkInterfaceReq(b, n); }, 0x0020,
         {}},
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
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddPrimaryDNSAddressPreference(b, n, 0x08080808);
         },
         tlv(0x10, le32(0x08080808))},
        {"SecondaryDNSAddressPreference",
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddSecondaryDNSAddressPreference(b, n, 0x01020304);
         },
         tlv(0x11, le32(0x01020304))},
        {"PrimaryNBNSAddressPreference",
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddPrimaryNBNSAddressPreference(b, n, 0xA0B0);
         },
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
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAdd3GPP2ConfiguredProfileIdentifier(b, n, 9);
         },
         tlv(0x32, {9})},
        {"ExtendedTechnologyPreference",
         [](uint8_t* b, int n) {
             return zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(b, n, 0x8004);
         },
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

// ----------------------------------------------------------- responses --

// A response that carries only the result item.
struct ResultOnly {
    const char* name;
    int (*parse)(const uint8_t*, int, QmiResult*);
    uint16_t id;
};

TEST(WdsResponses, EveryResultOnlyResponseStoresTheResultAndReturnsTheAreaLength) {
    const ResultOnly parsers[] = {
        {"Reset", zovQMIWDSResetResp, 0x0000},
        {"SetEventReport", zovQMIWDSSetEventReportResp, 0x0001},
        {"Abort", zovQMIWDSAbortResp, 0x0002},
        {"StopNetworkInterface", zovQMIWDSStopNetworkInterfaceResp, 0x0021},
        {"GetPktStatistics", zovQMIWDSGetPktStatisticsResp, 0x0024},
        {"GoDormant", zovQMIWDSGoDormantResp, 0x0025},
        {"GoActive", zovQMIWDSGoActiveResp, 0x0026},
        {"ModifyProfileSettings", zovQMIWDSModifyProfileSettingsResp, 0x0028},
        {"DeleteProfile", zovQMIWDSDeleteProfileResp, 0x0029},
        {"GetProfileSettings", zovQMIWDSGetProfileSettingsResp, 0x002B},
        {"GetDefaultSettings", zovQMIWDSGetDefaultSettingsResp, 0x002C},
        {"GetRuntimeSettings", zovQMIWDSGetRuntimeSettingsResp, 0x002D},
        {"SetMIPMode", zovQMIWDSSetMIPModeResp, 0x002E},
        {"SetDefaultProfileNum", zovQMIWDSSetDefaultProfileNumResp, 0x004A},
        {"SetClientIPFamilyPref", zovQMIWDSSetClientIPFamilyPrefResp, 0x004D},
    };
    for (const ResultOnly& p : parsers) {
        SCOPED_TRACE(p.name);
        Bytes msg = svcMessage(p.id, {result(1, 0x1A), tlv(0x10, {0x01, 0x02})});
        QmiResult r = untouchedResult();
        EXPECT_EQ(p.parse(msg.data(), L(msg), &r), 12);
        EXPECT_EQ(res(r), (Res{1, 0x1A}));
        EXPECT_EQ(p.parse(nullptr, L(msg), &r), -1);
        EXPECT_EQ(p.parse(msg.data(), L(msg), nullptr), -1);
        QmiResult untouched = untouchedResult();
        Bytes other = svcMessage(uint16_t(p.id + 0x0100), {result()});
        EXPECT_EQ(p.parse(other.data(), L(other), &untouched), -2);
        Bytes noResult = svcMessage(p.id, {tlv(0x10, {0x01})});
        EXPECT_EQ(p.parse(noResult.data(), L(noResult), &untouched), -3);
        EXPECT_EQ(res(untouched), res(untouchedResult()));
        Bytes cut = cutShort(p.id, 0x02, 4, 2, false);
        EXPECT_EQ(p.parse(cut.data(), L(cut), &untouched), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(res(untouched), res(untouchedResult()));
    }
}

// The message walk visits nothing in a buffer of 7 bytes or less, and an
// unvisited walk counts as finding id 0: Reset then finds no result item.
TEST(WdsResponses, ResetTakesAShortBufferForItsOwnMessageAndReportsNoResult) {
    QmiResult r = untouchedResult();
    Bytes seven = {0x02, 0x34, 0x12, 0x00, 0x00, 0x00, 0x00};
    EXPECT_EQ(zovQMIWDSResetResp(seven.data(), 7, &r), -3);
    EXPECT_EQ(zovQMIWDSResetResp(seven.data(), 3, &r), -3);
    Bytes other = svcMessage(0x0001, {result()});
    EXPECT_EQ(zovQMIWDSResetResp(other.data(), L(other), &r), -2);
    EXPECT_EQ(res(r), res(untouchedResult()));
    // Any other response on the same short buffer is absent.
    EXPECT_EQ(zovQMIWDSGoActiveResp(seven.data(), 7, &r), -2);
}

// Responses with a mandatory item 0x01, called with dummy outputs.
struct WithMandatory {
    const char* name;
    int (*parse)(const uint8_t*, int, QmiResult*);
    uint16_t id;
};

TEST(WdsResponses, EveryResponseWithAMandatoryItemReturnsMinusFourAfterStoringTheResult) {
    const WithMandatory parsers[] = {
        {"StartNetworkInterface",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint32_t v;
             return zovQMIWDSStartNetworkInterfaceResp(m, n, r, &v);
         },
         0x0020},
        {"GetPktSrvcStatus",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t v;
             return zovQMIWDSGetPktSrvcStatusResp(m, n, r, &v);
         },
         0x0022},
        {"GetCurrentChannelRate",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t v[16];
             return zovQMIWDSGetCurrentChannelRateResp(m, n, r, v);
         },
         0x0023},
        {"CreateProfile",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t a, b;
             return zovQMIWDSCreateProfileResp(m, n, r, &a, &b);
         },
         0x0027},
        {"GetProfileList",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t c;
             return zovQMIWDSGetProfileListResp(m, n, r, &c, nullptr);
         },
         0x002A},
        {"GetMIPMode",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t v;
             return zovQMIWDSGetMIPModeResp(m, n, r, &v);
         },
         0x002F},
        {"GetDormancyStatus",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t v;
             return zovQMIWDSGetDormancyStatusResp(m, n, r, &v);
         },
         0x0030},
        {"GetCallDuration",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint64_t v;
             return zovQMIWDSGetCallDurationResp(m, n, r, &v);
         },
         0x0035},
        {"GetCurrentDataBearerTechnology",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t a;
             uint32_t b, c;
             return zovQMIWDSGetCurrentDataBearerTechnologyResp(m, n, r, &a, &b, &c);
         },
         0x0044},
        {"GetDefaultProfileNum",
         [](const uint8_t* m, int n, QmiResult* r) {
             uint8_t v;
             return zovQMIWDSGetDefaultProfileNumResp(m, n, r, &v);
         },
         0x0049},
    };
    for (const WithMandatory& p : parsers) {
        SCOPED_TRACE(p.name);
        QmiResult r = untouchedResult();
        Bytes noItem = svcMessage(p.id, {result(1, 0x0E)});
        EXPECT_EQ(p.parse(noItem.data(), L(noItem), &r), -4);
        EXPECT_EQ(res(r), (Res{1, 0x0E}));
        r = untouchedResult();
        Bytes noResult = svcMessage(p.id, {tlv(0x01, fill(24, 0))});
        EXPECT_EQ(p.parse(noResult.data(), L(noResult), &r), -3);
        Bytes other = svcMessage(uint16_t(p.id + 1), {result(), tlv(0x01, fill(24, 0))});
        EXPECT_EQ(p.parse(other.data(), L(other), &r), -2);
        EXPECT_EQ(res(r), res(untouchedResult()));
        EXPECT_EQ(p.parse(nullptr, L(other), &r), -1);
        EXPECT_EQ(p.parse(other.data(), L(other), nullptr), -1);
        Bytes full = svcMessage(p.id, {result(), tlv(0x01, fill(24, 0))});
        EXPECT_EQ(p.parse(full.data(), L(full), &r), 7 + 27);
    }
}

TEST(WdsResponses, StartNetworkInterfaceYieldsTheHandle) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, le32(0x87654321))});
    QmiResult r;
    uint32_t handle = 0;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, &handle), 14);
    EXPECT_EQ(handle, 0x87654321u);
    EXPECT_EQ(res(r), (Res{0, 0}));
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, nullptr), -1);
}

TEST(WdsResponses, StartNetworkInterfaceOnAStopResponseIsAbsent) {
    Bytes msg = svcMessage(0x0021, {result(), tlv(0x01, le32(1))});
    QmiResult r = untouchedResult();
    uint32_t handle = 0xEEEEEEEE;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, &handle), -2);
    EXPECT_EQ(handle, 0xEEEEEEEEu);
    EXPECT_EQ(res(r), res(untouchedResult()));
}

TEST(WdsResponses, StartNetworkInterfaceWithoutHandleIsMinusFourWithTheResultStored) {
    Bytes msg = svcMessage(0x0020, {result(1, 0x0E), tlv(0x10, le16(2))});
    QmiResult r = untouchedResult();
    uint32_t handle = 0xEEEEEEEE;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, &handle), -4);
    EXPECT_EQ(res(r), (Res{1, 0x0E}));
    EXPECT_EQ(handle, 0xEEEEEEEEu);
}

TEST(WdsResponses, FailedStartNetworkInterfaceStillReturnsItsAreaLength) {
    Bytes msg = svcMessage(0x0020, {result(1, 0x0E), tlv(0x01, le32(0)), tlv(0x10, le16(0x0B))});
    QmiResult r;
    uint32_t handle = 7;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, &handle), 19);
    EXPECT_EQ(res(r), (Res{1, 0x0E}));
    EXPECT_EQ(handle, 0u);
    uint16_t reason = 0;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(msg.data(), L(msg), &reason), 2);
    EXPECT_EQ(reason, 0x0B);
}

TEST(WdsResponses, HandleCutShortByTheBufferEndIsMalformedAndNotStored) {
    Bytes msg = cutShort(0x0020, 0x01, 4, 3);
    QmiResult r;
    uint32_t handle = 0xEEEEEEEE;
    EXPECT_EQ(zovQMIWDSStartNetworkInterfaceResp(msg.data(), L(msg), &r, &handle), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(handle, 0xEEEEEEEEu);
}

TEST(WdsResponses, GetPktSrvcStatusYieldsTheStatus) {
    Bytes msg = svcMessage(0x0022, {result(), tlv(0x01, {0x02})});
    QmiResult r;
    uint8_t status = 0;
    EXPECT_EQ(zovQMIWDSGetPktSrvcStatusResp(msg.data(), L(msg), &r, &status), 11);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(zovQMIWDSGetPktSrvcStatusResp(msg.data(), L(msg), &r, nullptr), -1);
}

TEST(WdsResponses, GetCurrentChannelRateCopiesFourLittleEndianWords) {
    Bytes rates = cat({le32(0x11223344), le32(0x55667788), le32(3100000), le32(14400000)});
    Bytes msg = svcMessage(0x0023, {result(), tlv(0x01, rates)});
    QmiResult r;
    Bytes out = buffer(17);
    EXPECT_EQ(zovQMIWDSGetCurrentChannelRateResp(msg.data(), L(msg), &r, out.data()), 26);
    EXPECT_EQ(out, cat({rates, {0xEE}}));
    WDSChannelRate rec;
    EXPECT_EQ(zovQMIWDSGetCurrentChannelRateResp(msg.data(), L(msg), &r, reinterpret_cast<uint8_t*>(&rec)), 26);
    EXPECT_EQ(rd32(&rec.rates[0]), 0x11223344u);
    EXPECT_EQ(rd32(&rec.rates[3]), 14400000u);
    EXPECT_EQ(zovQMIWDSGetCurrentChannelRateResp(msg.data(), L(msg), &r, nullptr), -1);
    Bytes cut = cutShort(0x0023, 0x01, 16, 15);
    Bytes untouched = buffer(17);
    EXPECT_EQ(zovQMIWDSGetCurrentChannelRateResp(cut.data(), L(cut), &r, untouched.data()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(untouched, buffer(17));
}

TEST(WdsResponses, CreateProfileYieldsTypeAndIndex) {
    Bytes msg = svcMessage(0x0027, {result(), tlv(0x01, {0x01, 0x09})});
    QmiResult r;
    uint8_t type = 0, index = 0;
    EXPECT_EQ(zovQMIWDSCreateProfileResp(msg.data(), L(msg), &r, &type, &index), 12);
    EXPECT_EQ(type, 1);
    EXPECT_EQ(index, 9);
    EXPECT_EQ(zovQMIWDSCreateProfileResp(msg.data(), L(msg), &r, nullptr, &index), -1);
    EXPECT_EQ(zovQMIWDSCreateProfileResp(msg.data(), L(msg), &r, &type, nullptr), -1);
}

TEST(WdsResponses, MIPModeDormancyAndDefaultProfileYieldTheirByte) {
    QmiResult r;
    uint8_t v = 0;
    Bytes mip = svcMessage(0x002F, {result(), tlv(0x01, {0x02})});
    EXPECT_EQ(zovQMIWDSGetMIPModeResp(mip.data(), L(mip), &r, &v), 11);
    EXPECT_EQ(v, 2);
    EXPECT_EQ(zovQMIWDSGetMIPModeResp(mip.data(), L(mip), &r, nullptr), -1);
    Bytes dormancy = svcMessage(0x0030, {result(), tlv(0x01, {0x01})});
    EXPECT_EQ(zovQMIWDSGetDormancyStatusResp(dormancy.data(), L(dormancy), &r, &v), 11);
    EXPECT_EQ(v, 1);
    EXPECT_EQ(zovQMIWDSGetDormancyStatusResp(dormancy.data(), L(dormancy), &r, nullptr), -1);
    Bytes profile = svcMessage(0x0049, {result(), tlv(0x01, {0x05})});
    EXPECT_EQ(zovQMIWDSGetDefaultProfileNumResp(profile.data(), L(profile), &r, &v), 11);
    EXPECT_EQ(v, 5);
    EXPECT_EQ(zovQMIWDSGetDefaultProfileNumResp(profile.data(), L(profile), &r, nullptr), -1);
}

TEST(WdsResponses, GetCallDurationReadsSixtyFourBitsLowHalfFirst) {
    Bytes msg = svcMessage(0x0035, {result(), tlv(0x01, le64(0x0000000100000002ull))});
    QmiResult r;
    uint64_t duration = 0;
    EXPECT_EQ(zovQMIWDSGetCallDurationResp(msg.data(), L(msg), &r, &duration), 18);
    EXPECT_EQ(duration, 0x0000000100000002ull);
    EXPECT_EQ(zovQMIWDSGetCallDurationResp(msg.data(), L(msg), &r, nullptr), -1);
}

TEST(WdsResponses, GetCallDurationWithoutItsDurationIsMinusFourWithTheResultStored) {
    Bytes msg = svcMessage(0x0035, {result(1, 0x0F), tlv(0x10, le64(5))});
    QmiResult r = untouchedResult();
    uint64_t duration = 0xEEEEEEEEEEEEEEEEull;
    EXPECT_EQ(zovQMIWDSGetCallDurationResp(msg.data(), L(msg), &r, &duration), -4);
    EXPECT_EQ(res(r), (Res{1, 0x0F}));
    EXPECT_EQ(duration, 0xEEEEEEEEEEEEEEEEull);
}

TEST(WdsResponses, DataBearerRecordIsAByteThenTwoWords) {
    Bytes value = cat({{0x05}, le32(0x80000000), le32(0x00000104)});
    QmiResult r;
    uint8_t tech = 0;
    uint32_t first = 0, second = 0;
    Bytes msg = svcMessage(0x0044, {result(), tlv(0x01, value)});
    EXPECT_EQ(zovQMIWDSGetCurrentDataBearerTechnologyResp(msg.data(), L(msg), &r, &tech, &first, &second), 19);
    EXPECT_EQ(tech, 5);
    EXPECT_EQ(first, 0x80000000u);
    EXPECT_EQ(second, 0x104u);
    EXPECT_EQ(zovQMIWDSGetCurrentDataBearerTechnologyResp(msg.data(), L(msg), &r, nullptr, &first, &second), -1);
    EXPECT_EQ(zovQMIWDSGetCurrentDataBearerTechnologyResp(msg.data(), L(msg), &r, &tech, nullptr, &second), -1);
    EXPECT_EQ(zovQMIWDSGetCurrentDataBearerTechnologyResp(msg.data(), L(msg), &r, &tech, &first, nullptr), -1);

    Bytes ind = svcMessage(0x0001, {tlv(0x1D, value)}, 0, 0x04);
    tech = 0;
    first = second = 0;
    EXPECT_EQ(zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(ind.data(), L(ind), &tech, &first, &second), 9);
    EXPECT_EQ(tech, 5);
    EXPECT_EQ(first, 0x80000000u);
    EXPECT_EQ(second, 0x104u);
    EXPECT_EQ(zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(ind.data(), L(ind), &tech, &first, nullptr), -1);
    Bytes absent = svcMessage(0x0001, {tlv(0x17, {1})}, 0, 0x04);
    EXPECT_EQ(zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(absent.data(), L(absent), &tech, &first, &second),
              -3);
    Bytes cut = cutShort(0x0001, 0x1D, 9, 8, false);
    tech = 0xEE;
    EXPECT_EQ(zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(cut.data(), L(cut), &tech, &first, &second),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(tech, 0xEE);
}

// ---------------------------------------------------- optional getters --

// A scalar getter: message id, item type and the width of its output.
template <class T>
struct Getter {
    const char* name;
    int (*get)(const uint8_t*, int, T*);
    uint16_t id;
    uint8_t type;
};

template <class T, size_t N>
void checkGetters(const Getter<T> (&getters)[N]) {
    const T expected = patternValue<T>();
    const T guard = T(0xEEEEEEEEEEEEEEEEull);
    for (const Getter<T>& g : getters) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(g.id, {result(), tlv(0x01, {0}), tlv(g.type, pattern(sizeof(T))), tlv(0x7F, {1})});
        T out = 0;
        EXPECT_EQ(g.get(msg.data(), L(msg), &out), int(sizeof(T)));
        EXPECT_EQ(out, expected);
        EXPECT_EQ(g.get(msg.data(), L(msg), nullptr), -1);
        EXPECT_EQ(g.get(nullptr, L(msg), &out), -1);
        out = guard;
        Bytes absent = svcMessage(g.id, {result(), tlv(0x01, {0}), tlv(uint8_t(g.type ^ 0x40), pattern(8))});
        EXPECT_EQ(g.get(absent.data(), L(absent), &out), -3);
        Bytes other = svcMessage(uint16_t(g.id + 0x0100), {tlv(g.type, pattern(sizeof(T)))});
        EXPECT_EQ(g.get(other.data(), L(other), &out), -2);
        Bytes cut = cutShort(g.id, g.type, uint16_t(sizeof(T)), sizeof(T) - 1);
        EXPECT_EQ(g.get(cut.data(), L(cut), &out), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(out, guard);
    }
}

TEST(WdsGetters, EveryByteGetterReadsItsItem) {
    const Getter<uint8_t> getters[] = {
        {"EventReport DataBearerTechnology", zovQMIWDSEventReportINDGetDataBearerTechnology, 0x0001, 0x17},
        {"EventReport DormancyStatus", zovQMIWDSEventReportINDGetDormancyStatus, 0x0001, 0x18},
        {"PktSrvcStatus IPFamily", zovQMIWDSPktSrvcStatusINDGetIPFamily, 0x0022, 0x12},
        {"Runtime PCSCFAddressUsingPCOFlag", zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag, 0x002D, 0x22},
        {"Runtime IPfamily", zovQMIWDSGetRuntimeSettingsRespGetIPfamily, 0x002D, 0x2B},
        {"Runtime IMCNFlag", zovQMIWDSGetRuntimeSettingsRespGetIMCNFlag, 0x002D, 0x2C},
    };
    checkGetters(getters);
}

TEST(WdsGetters, EveryShortGetterReadsItsItem) {
    const Getter<uint16_t> getters[] = {
        {"StartNetworkInterface CallEndReason", zovQMIWDSStartNetworkInterfaceRespGetCallEndReason, 0x0020, 0x10},
        {"PktSrvcStatus CallEndReason", zovQMIWDSPktSrvcStatusINDGetCallEndReason, 0x0022, 0x10},
        {"Runtime TechnologyName", zovQMIWDSGetRuntimeSettingsRespGetTechnologyName, 0x002D, 0x2D},
    };
    checkGetters(getters);
}

TEST(WdsGetters, EveryWordGetterReadsItsItem) {
    const Getter<uint32_t> getters[] = {
        {"EventReport TxPacketsOK", zovQMIWDSEventReportINDGetTxPacketsOK, 0x0001, 0x10},
        {"EventReport RxPacketsOK", zovQMIWDSEventReportINDGetRxPacketsOK, 0x0001, 0x11},
        {"EventReport TxPacketsErrors", zovQMIWDSEventReportINDGetTxPacketsErrors, 0x0001, 0x12},
        {"EventReport RxPacketsErrors", zovQMIWDSEventReportINDGetRxPacketsErrors, 0x0001, 0x13},
        {"EventReport TxOverflows", zovQMIWDSEventReportINDGetTxOverflows, 0x0001, 0x14},
        {"EventReport RxOverflows", zovQMIWDSEventReportINDGetRxOverflows, 0x0001, 0x15},
        {"PktStatistics TxPacketsOK", zovQMIWDSGetPktStatisticsRespGetTxPacketsOK, 0x0024, 0x10},
        {"PktStatistics RxPacketsOK", zovQMIWDSGetPktStatisticsRespGetRxPacketsOK, 0x0024, 0x11},
        {"PktStatistics TxPacketsErrors", zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors, 0x0024, 0x12},
        {"PktStatistics RxPacketsErrors", zovQMIWDSGetPktStatisticsRespGetRxPacketsErrors, 0x0024, 0x13},
        {"PktStatistics TxOverflows", zovQMIWDSGetPktStatisticsRespGetTxOverflows, 0x0024, 0x14},
        {"PktStatistics RxOverflows", zovQMIWDSGetPktStatisticsRespGetRxOverflows, 0x0024, 0x15},
        {"Runtime IPv4GatewayAddress", zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress, 0x002D, 0x20},
        {"Runtime IPv4SubnetMask", zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask, 0x002D, 0x21},
        {"Runtime MTU", zovQMIWDSGetRuntimeSettingsRespGetMTU, 0x002D, 0x29},
    };
    checkGetters(getters);
}

TEST(WdsGetters, EverySixtyFourBitGetterReadsLowHalfFirst) {
    const Getter<uint64_t> getters[] = {
        {"EventReport TxBytesOK", zovQMIWDSEventReportINDGetTxBytesOK, 0x0001, 0x19},
        {"EventReport RxBytesOK", zovQMIWDSEventReportINDGetRxBytesOK, 0x0001, 0x1A},
        {"PktStatistics TxBytesOK", zovQMIWDSGetPktStatisticsRespGetTxBytesOK, 0x0024, 0x19},
        {"PktStatistics RxBytesOK", zovQMIWDSGetPktStatisticsRespGetRxBytesOK, 0x0024, 0x1A},
        {"CallDuration LastCallDuration", zovQMIWDSGetCallDurationRespGetLastCallDuration, 0x0035, 0x10},
        {"CallDuration ActiveDuration", zovQMIWDSGetCallDurationRespGetActiveDuration, 0x0035, 0x11},
        {"CallDuration LastCallActiveDuration", zovQMIWDSGetCallDurationRespGetLastCallActiveDuration, 0x0035, 0x12},
    };
    checkGetters(getters);
    // Low 32 bits first on the wire.
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x19, cat({le32(0x00000005), le32(0x00000001)}))});
    uint64_t bytes = 0;
    EXPECT_EQ(zovQMIWDSGetPktStatisticsRespGetTxBytesOK(msg.data(), L(msg), &bytes), 8);
    EXPECT_EQ(bytes, 0x0000000100000005ull);
}

// Getters with two outputs: both are required.
struct PairGetter16 {
    const char* name;
    int (*get)(const uint8_t*, int, uint16_t*, uint16_t*);
    uint16_t id;
};

TEST(WdsGetters, VerboseCallEndReasonsYieldTypeThenReason) {
    const PairGetter16 getters[] = {
        {"StartNetworkInterface", zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason, 0x0020},
        {"PktSrvcStatus", zovQMIWDSPktSrvcStatusINDGetVerboseCallEndReason, 0x0022},
    };
    for (const PairGetter16& g : getters) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(g.id, {result(), tlv(0x11, cat({le16(0x0003), le16(0x07D1)}))});
        uint16_t type = 0, reason = 0;
        EXPECT_EQ(g.get(msg.data(), L(msg), &type, &reason), 4);
        EXPECT_EQ(type, 3);
        EXPECT_EQ(reason, 0x07D1);
        EXPECT_EQ(g.get(msg.data(), L(msg), nullptr, &reason), -1);
        EXPECT_EQ(g.get(msg.data(), L(msg), &type, nullptr), -1);
        Bytes absent = svcMessage(g.id, {result()});
        EXPECT_EQ(g.get(absent.data(), L(absent), &type, &reason), -3);
        Bytes cut = cutShort(g.id, 0x11, 4, 3);
        type = reason = 0xEEEE;
        EXPECT_EQ(g.get(cut.data(), L(cut), &type, &reason), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(type, 0xEEEE);
        EXPECT_EQ(reason, 0xEEEE);
    }
}

TEST(WdsGetters, EventReportChannelRateYieldsTwoWordsInWireOrder) {
    Bytes msg = svcMessage(0x0001, {tlv(0x16, cat({le32(236800), le32(3600000)}))}, 0, 0x04);
    uint32_t first = 0, second = 0;
    EXPECT_EQ(zovQMIWDSEventReportINDGetChannelRate(msg.data(), L(msg), &first, &second), 8);
    EXPECT_EQ(first, 236800u);
    EXPECT_EQ(second, 3600000u);
    EXPECT_EQ(zovQMIWDSEventReportINDGetChannelRate(msg.data(), L(msg), nullptr, &second), -1);
    EXPECT_EQ(zovQMIWDSEventReportINDGetChannelRate(msg.data(), L(msg), &first, nullptr), -1);
    Bytes absent = svcMessage(0x0001, {tlv(0x17, {1})}, 0, 0x04);
    EXPECT_EQ(zovQMIWDSEventReportINDGetChannelRate(absent.data(), L(absent), &first, &second), -3);
}

// -------------------------------------------------------- indications --

TEST(WdsIndications, EventReportReturnsItsAreaLengthWithoutExaminingItems) {
    // The last item claims more bytes than the buffer holds; it is not looked at.
    Bytes msg = cat({svcMessage(0x0001, {tlv(0x10, le32(1))}, 0, 0x04)});
    msg[5] = 12;  // TLV-area length: the 7-byte item and a 5-byte one cut short
    msg = cat({msg, {0x19, 0xFF, 0xFF, 0x01, 0x02}});
    EXPECT_EQ(zovQMIWDSEventReportIND(msg.data(), L(msg)), 12);
    Bytes empty = svcMessage(0x0001, {}, 0, 0x04);
    empty.push_back(0x00);  // one byte past the head so the walk visits it
    EXPECT_EQ(zovQMIWDSEventReportIND(empty.data(), L(empty)), 0);
    EXPECT_EQ(zovQMIWDSEventReportIND(nullptr, L(msg)), -1);
    Bytes other = svcMessage(0x0022, {tlv(0x01, {2, 0})}, 0, 0x04);
    EXPECT_EQ(zovQMIWDSEventReportIND(other.data(), L(other)), -2);
}

TEST(WdsIndications, PktSrvcStatusYieldsTheTwoStatusBytes) {
    Bytes msg = svcMessage(0x0022, {tlv(0x01, {0x02, 0x01}), tlv(0x12, {0x04})}, 0, 0x04);
    uint8_t status = 0, second = 0;
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(msg.data(), L(msg), &status, &second), 9);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(msg.data(), L(msg), nullptr, &second), -1);
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(msg.data(), L(msg), &status, nullptr), -1);
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(nullptr, L(msg), &status, &second), -1);
    Bytes other = svcMessage(0x0001, {tlv(0x01, {0x02, 0x01})}, 0, 0x04);
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(other.data(), L(other), &status, &second), -2);
}

TEST(WdsIndications, PktSrvcStatusWithoutItsStatusItemIsMinusThree) {
    Bytes msg = svcMessage(0x0022, {tlv(0x10, le16(2))}, 0, 0x04);
    uint8_t status = 0xEE, second = 0xEE;
    EXPECT_EQ(zovQMIWDSPktSrvcStatusIND(msg.data(), L(msg), &status, &second), -3);
    EXPECT_EQ(status, 0xEE);
    EXPECT_EQ(second, 0xEE);
}

// ----------------------------------------------------- profile items --

// Profile parsers take the id of the response they read.  Items 0x10 to 0x1E
// are also read from runtime settings (0x2D); the others only from profile
// and default settings.
const uint16_t kProfileIds[] = {0x002B, 0x002C, 0x002D};

bool accepts(uint16_t id, bool runtime) { return id == 0x002B || id == 0x002C || (runtime && id == 0x002D); }

template <class T>
struct ProfileGetter {
    const char* name;
    int (*get)(const uint8_t*, int, uint16_t, T*);
    uint8_t type;
    bool runtime;
};

template <class T, size_t N>
void checkProfileGetters(const ProfileGetter<T> (&getters)[N]) {
    const T guard = T(0xEEEEEEEEu);
    for (const ProfileGetter<T>& g : getters) {
        SCOPED_TRACE(g.name);
        for (uint16_t id : kProfileIds) {
            SCOPED_TRACE(id);
            Bytes msg = svcMessage(id, {result(), tlv(g.type, pattern(sizeof(T)))});
            T out = guard;
            if (accepts(id, g.runtime)) {
                EXPECT_EQ(g.get(msg.data(), L(msg), id, &out), int(sizeof(T)));
                EXPECT_EQ(out, patternValue<T>());
                Bytes absent = svcMessage(id, {result(), tlv(uint8_t(g.type + 1), pattern(4))});
                EXPECT_EQ(g.get(absent.data(), L(absent), id, &out), -3);
                Bytes cut = cutShort(id, g.type, uint16_t(sizeof(T)), sizeof(T) - 1);
                out = guard;
                EXPECT_EQ(g.get(cut.data(), L(cut), id, &out), ZOVQMI_ERR_MALFORMED);
                EXPECT_EQ(out, guard);
            } else {
                EXPECT_EQ(g.get(msg.data(), L(msg), id, &out), -1);
                EXPECT_EQ(out, guard);
            }
            EXPECT_EQ(g.get(msg.data(), L(msg), id, nullptr), -1);
            EXPECT_EQ(g.get(nullptr, L(msg), id, &out), -1);
        }
        // Another accepted id than the message's: the message is absent.
        Bytes settings = svcMessage(0x002B, {result(), tlv(g.type, pattern(sizeof(T)))});
        T out = guard;
        EXPECT_EQ(g.get(settings.data(), L(settings), 0x002C, &out), -2);
        // An id outside the set is refused before the buffer is looked at,
        // even when a message of that id carries the item.
        Bytes list = svcMessage(0x002A, {result(), tlv(g.type, pattern(sizeof(T)))});
        EXPECT_EQ(g.get(list.data(), L(list), 0x002A, &out), -1);
        EXPECT_EQ(g.get(list.data(), L(list), 0x012B, &out), -1);
        EXPECT_EQ(out, guard);
    }
}

TEST(WdsProfileItems, EveryByteItemParserReadsItsItemFromTheAcceptedMessages) {
    const ProfileGetter<uint8_t> getters[] = {
        {"PDPType", zovQMIWDSProfileRespGetPDPType, 0x11, true},
        {"PDPHeaderCompression", zovQMIWDSProfileRespGetPDPHeaderCompression, 0x12, true},
        {"PDPDataCompression", zovQMIWDSProfileRespGetPDPDataCompression, 0x13, true},
        {"AuthenticationPreference", zovQMIWDSProfileRespGetAuthenticationPreference, 0x1D, true},
        {"PCSCFAddressUsingPCOFlag", zovQMIWDSProfileRespGetPCSCFAddressUsingPCOFlag, 0x1F, false},
        {"PDPAccessControlFlag", zovQMIWDSProfileRespGetPDPAccessControlFlag, 0x20, false},
        {"PCSCFAddressUsingDHCPFlag", zovQMIWDSProfileRespGetPCSCFAddressUsingDHCPFlag, 0x21, false},
        {"IMCNFlag", zovQMIWDSProfileRespGetIMCNFlag, 0x22, false},
        {"PDPContextNumber", zovQMIWDSProfileRespGetPDPContextNumber, 0x25, false},
        {"PDPContextSecondaryFlag", zovQMIWDSProfileRespGetPDPContextSecondaryFlag, 0x26, false},
        {"PDPContextPrimaryID", zovQMIWDSProfileRespGetPDPContextPrimaryID, 0x27, false},
        {"IPv4AddressAlloc", zovQMIWDSProfileRespGetIPv4AddressAlloc, 0x2D, false},
    };
    checkProfileGetters(getters);
}

TEST(WdsProfileItems, EveryWordItemParserReadsItsItemFromTheAcceptedMessages) {
    const ProfileGetter<uint32_t> getters[] = {
        {"PrimaryDNSIPv4AddressPreference", zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference, 0x15, true},
        {"SecondaryDNSIPv4AddressPreference", zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference, 0x16, true},
        {"IPv4AddressPreference", zovQMIWDSProfileRespGetIPv4AddressPreference, 0x1E, true},
    };
    checkProfileGetters(getters);
}

struct ProfileStringGetter {
    const char* name;
    int (*get)(const uint8_t*, int, uint16_t, uint16_t*, uint8_t*);
    uint8_t type;
};

TEST(WdsProfileItems, EveryStringItemParserStoresTheLengthAndCopiesWhenAsked) {
    const ProfileStringGetter getters[] = {
        {"ProfileName", zovQMIWDSProfileRespGetProfileName, 0x10},
        {"APNName", zovQMIWDSProfileRespGetAPNName, 0x14},
        {"Username", zovQMIWDSProfileRespGetUsername, 0x1B},
        {"Password", zovQMIWDSProfileRespGetPassword, 0x1C},
    };
    const Bytes text = str("web.example");
    for (const ProfileStringGetter& g : getters) {
        SCOPED_TRACE(g.name);
        for (uint16_t id : kProfileIds) {
            Bytes msg = svcMessage(id, {result(), tlv(g.type, text)});
            uint16_t length = 0;
            Bytes out = buffer(16);
            EXPECT_EQ(g.get(msg.data(), L(msg), id, &length, out.data()), L(text));
            EXPECT_EQ(length, text.size());
            EXPECT_EQ(out, cat({text, fill(5, 0xEE)}));
            length = 0;
            EXPECT_EQ(g.get(msg.data(), L(msg), id, &length, nullptr), L(text));
            EXPECT_EQ(length, text.size());
            EXPECT_EQ(g.get(msg.data(), L(msg), id, nullptr, out.data()), -1);
            EXPECT_EQ(g.get(msg.data(), L(msg), 0x002A, &length, out.data()), -1);
        }
        Bytes cut = cutShort(0x002B, g.type, 12, 11);
        uint16_t length = 0xEEEE;
        Bytes out = buffer(16);
        EXPECT_EQ(g.get(cut.data(), L(cut), 0x002B, &length, out.data()), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(length, 0xEEEE);
        EXPECT_EQ(out, buffer(16));
    }
}

TEST(WdsProfileItems, PresentEmptyStringItemReturnsZeroAndStoresLengthZero) {
    Bytes msg = svcMessage(0x002B, {result(), tlv(0x10, {})});
    uint16_t length = 0xEEEE;
    Bytes out = buffer(4);
    EXPECT_EQ(zovQMIWDSProfileRespGetProfileName(msg.data(), L(msg), 0x002B, &length, out.data()), 0);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(out, buffer(4));
}

struct ProfileRecordGetter {
    const char* name;
    int (*get)(const uint8_t*, int, uint16_t, uint8_t*);
    uint8_t type;
    size_t size;
    bool runtime;
};

TEST(WdsProfileItems, EveryRecordItemParserCopiesTheRecordInWireLayout) {
    const ProfileRecordGetter getters[] = {
        {"UMTSRequestedQoS", zovQMIWDSProfileRespGetUMTSRequestedQoS, 0x17, 33, true},
        {"UMTSMinimumQoS", zovQMIWDSProfileRespGetUMTSMinimumQoS, 0x18, 33, true},
        {"GPRSRequestedQoS", zovQMIWDSProfileRespGetGPRSRequestedQoS, 0x19, 20, true},
        {"GPRSMinimumQoS", zovQMIWDSProfileRespGetGPRSMinimumQoS, 0x1A, 20, true},
        {"TFTFilterID1", zovQMIWDSProfileRespGetTFTFilterID1, 0x23, 39, false},
        {"TFTFilterID2", zovQMIWDSProfileRespGetTFTFilterID2, 0x24, 39, false},
        {"PDPContextIPv6Address", zovQMIWDSProfileRespGetPDPContextIPv6Address, 0x28, 16, false},
        {"PrimaryIPv6DNSAddress", zovQMIWDSProfileRespGetPrimaryIPv6DNSAddress, 0x2B, 16, false},
        {"SecondaryIPv6DNSAddress", zovQMIWDSProfileRespGetSecondaryIPv6DNSAddress, 0x2C, 16, false},
        {"LTERequestedQoS", zovQMIWDSProfileRespGetLTERequestedQoS, 0x2E, 17, false},
    };
    for (const ProfileRecordGetter& g : getters) {
        SCOPED_TRACE(g.name);
        const Bytes record = pattern(g.size);
        for (uint16_t id : kProfileIds) {
            SCOPED_TRACE(id);
            Bytes msg = svcMessage(id, {result(), tlv(g.type, record)});
            Bytes out = buffer(g.size + 1);
            if (accepts(id, g.runtime)) {
                EXPECT_EQ(g.get(msg.data(), L(msg), id, out.data()), int(g.size));
                EXPECT_EQ(out, cat({record, {0xEE}}));
            } else {
                EXPECT_EQ(g.get(msg.data(), L(msg), id, out.data()), -1);
                EXPECT_EQ(out, buffer(g.size + 1));
            }
            EXPECT_EQ(g.get(msg.data(), L(msg), id, nullptr), -1);
            EXPECT_EQ(g.get(msg.data(), L(msg), 0x002A, out.data()), -1);
        }
        Bytes cut = cutShort(0x002C, g.type, uint16_t(g.size), g.size - 1);
        Bytes out = buffer(g.size);
        EXPECT_EQ(g.get(cut.data(), L(cut), 0x002C, out.data()), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(out, buffer(g.size));
        Bytes absent = svcMessage(0x002C, {result()});
        EXPECT_EQ(g.get(absent.data(), L(absent), 0x002C, out.data()), -3);
    }
}

TEST(WdsProfileItems, UMTSQoSFieldsAreLittleEndianInTheRecord) {
    Bytes value = cat({{0x03}, le32(64000), le32(384000), le32(0), le32(0), {0x01}, le32(1500), {0x04, 0x05, 0x06},
                       le32(100), le32(2)});
    Bytes msg = svcMessage(0x002B, {result(), tlv(0x17, value)});
    WDSUMTSQoS qos;
    EXPECT_EQ(zovQMIWDSProfileRespGetUMTSRequestedQoS(msg.data(), L(msg), 0x002B, reinterpret_cast<uint8_t*>(&qos)),
              33);
    EXPECT_EQ(qos.trafficClass, 3);
    EXPECT_EQ(rd32(&qos.maxDownlinkBitrate), 384000u);
    EXPECT_EQ(rd32(&qos.maxSDUSize), 1500u);
    EXPECT_EQ(qos.deliveryErroneousSDUs, 6);
    EXPECT_EQ(rd32(&qos.trafficHandlingPriority), 2u);
}

TEST(WdsProfileItems, IMCNFlagRefusesTheRuntimeIdEvenWhenTheItemIsThere) {
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x22, {0x01})});
    uint8_t flag = 0xEE;
    EXPECT_EQ(zovQMIWDSProfileRespGetIMCNFlag(msg.data(), L(msg), 0x002D, &flag), -1);
    EXPECT_EQ(flag, 0xEE);
    // The runtime settings parser of the same type reads it.
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag(msg.data(), L(msg), &flag), 1);
    EXPECT_EQ(flag, 0x01);
}

TEST(WdsProfileItems, PDPTypeReadsItemSeventeenFromARuntimeSettingsResponse) {
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x11, {0x02}), tlv(0x1F, {0x00, 0x01})});
    uint8_t type = 0;
    EXPECT_EQ(zovQMIWDSProfileRespGetPDPType(msg.data(), L(msg), 0x002D, &type), 1);
    EXPECT_EQ(type, 2);
}

TEST(WdsProfileItems, ProfileListIdIsRefusedBeforeTheBufferIsLookedAt) {
    // A buffer whose message walk would run off its end: never walked.
    Bytes msg = {0x02, 0x34, 0x12, 0x2A, 0x00, 0xFF, 0xFF, 0x11};
    uint8_t v = 0xEE;
    uint32_t w = 0xEEEEEEEE;
    uint16_t length = 0xEEEE;
    uint8_t rec[40];
    EXPECT_EQ(zovQMIWDSProfileRespGetPDPType(msg.data(), L(msg), 0x002A, &v), -1);
    EXPECT_EQ(zovQMIWDSProfileRespGetIPv4AddressPreference(msg.data(), L(msg), 0x002A, &w), -1);
    EXPECT_EQ(zovQMIWDSProfileRespGetUsername(msg.data(), L(msg), 0x002A, &length, nullptr), -1);
    EXPECT_EQ(zovQMIWDSProfileRespGetTFTFilterID1(msg.data(), L(msg), 0x002A, rec), -1);
    EXPECT_EQ(v, 0xEE);
    EXPECT_EQ(w, 0xEEEEEEEEu);
    EXPECT_EQ(length, 0xEEEE);
}

// ------------------------------------------------------- profile list --

Bytes profileList() {
    return cat({{0x02}, {0x00, 0x01, 0x03}, str("one"), {0x01, 0x02, 0x05}, str("three")});
}

TEST(WdsProfileList, EntriesAndNamesGoIntoTheCallersRecords) {
    Bytes msg = svcMessage(0x002A, {result(), tlv(0x01, profileList())});
    QmiResult r;
    uint8_t count = 0;
    Bytes name1 = buffer(4), name2 = buffer(6);
    WDSProfileListEntry list[3];
    std::memset(list, 0xEE, sizeof list);
    list[0].name = name1.data();
    list[1].name = name2.data();
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, &count, list), 7 + 3 + L(profileList()));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(list[0].profileType, 0x00);
    EXPECT_EQ(list[0].profileIndex, 0x01);
    EXPECT_EQ(list[0].nameLength, 3);
    EXPECT_EQ(list[1].profileType, 0x01);
    EXPECT_EQ(list[1].profileIndex, 0x02);
    EXPECT_EQ(list[1].nameLength, 5);
    EXPECT_EQ(name1, cat({str("one"), {0xEE}}));
    EXPECT_EQ(name2, cat({str("three"), {0xEE}}));
    EXPECT_EQ(list[2].profileType, 0xEE);
}

TEST(WdsProfileList, NullListStoresOnlyTheCount) {
    Bytes msg = svcMessage(0x002A, {result(), tlv(0x01, profileList())});
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, &count, nullptr), 7 + 3 + L(profileList()));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, nullptr, nullptr), -1);
}

TEST(WdsProfileList, NullNamePointersGetTypeIndexAndLengthButNoName) {
    Bytes msg = svcMessage(0x002A, {result(), tlv(0x01, profileList())});
    QmiResult r;
    uint8_t count = 0;
    WDSProfileListEntry list[2];
    std::memset(list, 0xEE, sizeof list);
    list[0].name = nullptr;
    list[1].name = nullptr;
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, &count, list), 7 + 3 + L(profileList()));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(list[0].nameLength, 3);
    EXPECT_EQ(list[1].profileType, 0x01);
    EXPECT_EQ(list[1].profileIndex, 0x02);
    EXPECT_EQ(list[1].nameLength, 5);
    EXPECT_EQ(+list[0].name, nullptr);
    EXPECT_EQ(+list[1].name, nullptr);
}

TEST(WdsProfileList, NameRunningPastTheBufferIsMalformedAndNothingIsWritten) {
    // The second name claims 9 bytes; only 5 remain.
    Bytes value = cat({{0x02}, {0x00, 0x01, 0x03}, str("one"), {0x01, 0x02, 0x09}, str("three")});
    Bytes msg = svcMessage(0x002A, {result(), tlv(0x01, value)});
    QmiResult r;
    uint8_t count = 0xEE;
    Bytes name1 = buffer(4), name2 = buffer(10);
    WDSProfileListEntry list[2];
    std::memset(list, 0xEE, sizeof list);
    list[0].name = name1.data();
    list[1].name = name2.data();
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, &count, list), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(list[0].profileType, 0xEE);
    EXPECT_EQ(list[0].nameLength, 0xEE);
    EXPECT_EQ(name1, buffer(4));
    EXPECT_EQ(name2, buffer(10));
}

TEST(WdsProfileList, CountRunningPastTheBufferIsMalformed) {
    Bytes msg = svcMessage(0x002A, {result(), tlv(0x01, {0x03, 0x00, 0x01, 0x00})});
    QmiResult r;
    uint8_t count = 0xEE;
    WDSProfileListEntry list[3];
    std::memset(list, 0xEE, sizeof list);
    EXPECT_EQ(zovQMIWDSGetProfileListResp(msg.data(), L(msg), &r, &count, list), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(list[0].profileType, 0xEE);
}

// --------------------------------------------------- runtime settings --

TEST(WdsRuntime, ProfileIdentifierYieldsTypeAndIndex) {
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x1F, {0x01, 0x04})});
    uint8_t type = 0, index = 0;
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(msg.data(), L(msg), &type, &index), 2);
    EXPECT_EQ(type, 1);
    EXPECT_EQ(index, 4);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(msg.data(), L(msg), nullptr, &index), -1);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(msg.data(), L(msg), &type, nullptr), -1);
    Bytes other = svcMessage(0x002B, {result(), tlv(0x1F, {0x01, 0x04})});
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(other.data(), L(other), &type, &index), -2);
}

struct AddressWithPrefix {
    const char* name;
    int (*get)(const uint8_t*, int, uint8_t*, uint8_t*);
    uint8_t type;
};

TEST(WdsRuntime, IPv6AddressesWithPrefixNeedBothOutputs) {
    const AddressWithPrefix getters[] = {
        {"IPv6Address", zovQMIWDSGetRuntimeSettingsRespGetIPv6Address, 0x25},
        {"IPv6GatewayAddress", zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress, 0x26},
    };
    const Bytes address = pattern(16);
    for (const AddressWithPrefix& g : getters) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(0x002D, {result(), tlv(g.type, cat({address, {64}}))});
        Bytes out = buffer(17);
        uint8_t prefix = 0;
        EXPECT_EQ(g.get(msg.data(), L(msg), out.data(), &prefix), 17);
        EXPECT_EQ(out, cat({address, {0xEE}}));
        EXPECT_EQ(prefix, 64);
        EXPECT_EQ(g.get(msg.data(), L(msg), out.data(), nullptr), -1);
        EXPECT_EQ(g.get(msg.data(), L(msg), nullptr, &prefix), -1);
        Bytes absent = svcMessage(0x002D, {result()});
        EXPECT_EQ(g.get(absent.data(), L(absent), out.data(), &prefix), -3);
        Bytes cut = cutShort(0x002D, g.type, 17, 16);
        Bytes untouched = buffer(16);
        prefix = 0xEE;
        EXPECT_EQ(g.get(cut.data(), L(cut), untouched.data(), &prefix), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(untouched, buffer(16));
        EXPECT_EQ(prefix, 0xEE);
    }
}

TEST(WdsRuntime, PrefixLengthIsTheByteAfterTheAddressEvenBeyondAShortItem) {
    // An item of 16 bytes: the prefix is read from the next item's type byte.
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x25, pattern(16)), tlv(0x29, le32(1500))});
    Bytes out(16);
    uint8_t prefix = 0;
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(msg.data(), L(msg), out.data(), &prefix), 16);
    EXPECT_EQ(prefix, 0x29);
}

TEST(WdsRuntime, IPv6DNSAddressesHaveOnlyTheAddressOutput) {
    const Bytes address = pattern(16);
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x27, address), tlv(0x28, cat({address, {0x01}}))});
    Bytes out = buffer(17);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(msg.data(), L(msg), out.data()), 16);
    EXPECT_EQ(out, cat({address, {0xEE}}));
    out = buffer(17);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(msg.data(), L(msg), out.data()), 17);
    EXPECT_EQ(out, cat({address, {0xEE}}));
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(msg.data(), L(msg), nullptr), -1);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(msg.data(), L(msg), nullptr), -1);
    Bytes absent = svcMessage(0x002D, {result()});
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(absent.data(), L(absent), out.data()), -3);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(absent.data(), L(absent), out.data()), -3);
}

TEST(WdsRuntime, PCSCFAddressListYieldsNativeAddresses) {
    Bytes value = cat({{0x02}, le32(0x0A000001), le32(0xC0A80101)});
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x23, value)});
    uint8_t count = 0;
    uint32_t list[3] = {0xEEEEEEEE, 0xEEEEEEEE, 0xEEEEEEEE};
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(msg.data(), L(msg), &count, list), 9);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(list[0], 0x0A000001u);
    EXPECT_EQ(list[1], 0xC0A80101u);
    EXPECT_EQ(list[2], 0xEEEEEEEEu);
    count = 0;
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(msg.data(), L(msg), &count, nullptr), 9);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(msg.data(), L(msg), nullptr, list), -1);
    Bytes absent = svcMessage(0x002D, {result()});
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(absent.data(), L(absent), &count, list),
              -3);
}

TEST(WdsRuntime, AddressCountRunningPastTheBufferIsMalformedAndNothingIsWritten) {
    Bytes msg = svcMessage(0x002D, {result(), tlv(0x23, cat({{0x03}, le32(1), le32(2)}))});
    uint8_t count = 0xEE;
    uint32_t list[3] = {0xEEEEEEEE, 0xEEEEEEEE, 0xEEEEEEEE};
    EXPECT_EQ(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(msg.data(), L(msg), &count, list),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(list[0], 0xEEEEEEEEu);
}

struct NameList {
    const char* name;
    int (*get)(const uint8_t*, int, uint8_t*, WDSNameListEntry*);
    uint8_t type;
};
const NameList kNameLists[] = {
    {"PCSCFFQDNList", zovQMIWDSGetRuntimeSettingsRespGetPCSCFFQDNList, 0x24},
    {"DomainNameList", zovQMIWDSGetRuntimeSettingsRespGetDomainNameList, 0x2A},
};

Bytes names() { return cat({{0x02}, le16(4), str("a.io"), le16(7), str("lan.net")}); }

TEST(WdsRuntime, NameListsFillLengthsAndCopyIntoTheCallersBuffers) {
    for (const NameList& g : kNameLists) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(0x002D, {result(), tlv(g.type, names())});
        uint8_t count = 0;
        Bytes name1 = buffer(5), name2 = buffer(8);
        WDSNameListEntry list[3];
        std::memset(list, 0xEE, sizeof list);
        list[0].name = name1.data();
        list[1].name = name2.data();
        EXPECT_EQ(g.get(msg.data(), L(msg), &count, list), L(names()));
        EXPECT_EQ(count, 2);
        EXPECT_EQ(rd16(&list[0].length), 4);
        EXPECT_EQ(rd16(&list[1].length), 7);
        EXPECT_EQ(name1, cat({str("a.io"), {0xEE}}));
        EXPECT_EQ(name2, cat({str("lan.net"), {0xEE}}));
        EXPECT_EQ(rd16(&list[2].length), 0xEEEE);
        // Null name buffers: lengths only.
        list[0].name = nullptr;
        list[1].name = nullptr;
        std::memset(&list[1].length, 0, 2);
        EXPECT_EQ(g.get(msg.data(), L(msg), &count, list), L(names()));
        EXPECT_EQ(rd16(&list[1].length), 7);
        EXPECT_EQ(+list[1].name, nullptr);
        // Null list: the count only.
        count = 0;
        EXPECT_EQ(g.get(msg.data(), L(msg), &count, nullptr), L(names()));
        EXPECT_EQ(count, 2);
        EXPECT_EQ(g.get(msg.data(), L(msg), nullptr, list), -1);
        Bytes absent = svcMessage(0x002D, {result()});
        EXPECT_EQ(g.get(absent.data(), L(absent), &count, list), -3);
    }
}

TEST(WdsRuntime, EmptyNameListStoresZeroAndReturnsOne) {
    for (const NameList& g : kNameLists) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(0x002D, {result(), tlv(g.type, {0x00})});
        uint8_t count = 0xEE;
        WDSNameListEntry list[1];
        std::memset(list, 0xEE, sizeof list);
        EXPECT_EQ(g.get(msg.data(), L(msg), &count, list), 1);
        EXPECT_EQ(count, 0);
        EXPECT_EQ(rd16(&list[0].length), 0xEEEE);
    }
}

TEST(WdsRuntime, NameRunningPastTheBufferIsMalformedAndNothingIsWritten) {
    for (const NameList& g : kNameLists) {
        SCOPED_TRACE(g.name);
        Bytes value = cat({{0x02}, le16(4), str("a.io"), le16(9), str("lan.net")});
        Bytes msg = svcMessage(0x002D, {result(), tlv(g.type, value)});
        uint8_t count = 0xEE;
        Bytes name1 = buffer(5), name2 = buffer(10);
        WDSNameListEntry list[2];
        std::memset(list, 0xEE, sizeof list);
        list[0].name = name1.data();
        list[1].name = name2.data();
        EXPECT_EQ(g.get(msg.data(), L(msg), &count, list), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(count, 0xEE);
        EXPECT_EQ(rd16(&list[0].length), 0xEEEE);
        EXPECT_EQ(name1, buffer(5));
        EXPECT_EQ(name2, buffer(10));
    }
}

}  // namespace
