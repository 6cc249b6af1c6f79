// WMS, the wireless messaging service: routes, service centre address,
// retry settings, broadcast configuration and message waiting.
#include <cstddef>

#include "testutil.h"

using namespace t;

// A broadcast configuration entry is 9 bytes: two word pairs and the selection byte.
static_assert(sizeof(WMSBroadcastConfigEntry) == 9, "broadcast entry");
static_assert(offsetof(WMSBroadcastConfigEntry, first3GPP) == 0, "3GPP first word");
static_assert(offsetof(WMSBroadcastConfigEntry, second3GPP) == 2, "3GPP second word");
static_assert(offsetof(WMSBroadcastConfigEntry, first3GPP2) == 4, "3GPP2 first word");
static_assert(offsetof(WMSBroadcastConfigEntry, second3GPP2) == 6, "3GPP2 second word");
static_assert(offsetof(WMSBroadcastConfigEntry, selection) == 8, "selection byte");

namespace {

// ------------------------------------------------------------- requests --

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    Bytes expected;  // after the header
    uint16_t id;
};

TEST(WmsConfigRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"GetRoutes", [](uint8_t* b, int n) { return zovQMIWMSGetRoutesReq(b, n); }, {}, 0x0033},
        {"GetSMSCAddress", [](uint8_t* b, int n) { return zovQMIWMSGetSMSCAddressReq(b, n); }, {}, 0x0034},
        {"GetStoreMaxSize", [](uint8_t* b, int n) { return zovQMIWMSGetStoreMaxSizeReq(b, n, 0x01); },
         tlv(0x01, {0x01}), 0x0036},
        {"SetRetryPeriod", [](uint8_t* b, int n) { return zovQMIWMSSetRetryPeriodReq(b, n, 0x01020304); },
         tlv(0x01, le32(0x01020304)), 0x0038},
        {"SetRetryInterval", [](uint8_t* b, int n) { return zovQMIWMSSetRetryIntervalReq(b, n, 0x05060708); },
         tlv(0x01, le32(0x05060708)), 0x0039},
        {"SetDCDisconnectTimer", [](uint8_t* b, int n) { return zovQMIWMSSetDCDisconnectTimerReq(b, n, 0x0A0B0C0D); },
         tlv(0x01, le32(0x0A0B0C0D)), 0x003A},
        {"SetMemoryStatus", [](uint8_t* b, int n) { return zovQMIWMSSetMemoryStatusReq(b, n, 0x02); },
         tlv(0x01, {0x02}), 0x003B},
        {"SetBroadcastActivation", [](uint8_t* b, int n) { return zovQMIWMSSetBroadcastActivationReq(b, n, 0x03, 0x04); },
         tlv(0x01, {0x03, 0x04}), 0x003C},
        {"SetBroadcastConfig", [](uint8_t* b, int n) { return zovQMIWMSSetBroadcastConfigReq(b, n, 0x05); },
         tlv(0x01, {0x05}), 0x003D},
        {"GetBroadcastConfig", [](uint8_t* b, int n) { return zovQMIWMSGetBroadcastConfigReq(b, n, 0x06); },
         tlv(0x01, {0x06}), 0x003E},
        {"GetDomainPref", [](uint8_t* b, int n) { return zovQMIWMSGetDomainPrefReq(b, n); }, {}, 0x0040},
        {"SetDomainPref", [](uint8_t* b, int n) { return zovQMIWMSSetDomainPrefReq(b, n, 0x07); }, tlv(0x01, {0x07}),
         0x0041},
        {"GetMessageWaiting", [](uint8_t* b, int n) { return zovQMIWMSGetMessageWaitingReq(b, n); }, {}, 0x0043},
        {"SetPrimaryClient", [](uint8_t* b, int n) { return zovQMIWMSSetPrimaryClientReq(b, n, 0x08); },
         tlv(0x01, {0x08}), 0x0045},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int size = 7 + int(r.expected.size());
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), size - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, size), -1);
        EXPECT_EQ(r.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({reqHeader(r.id, uint16_t(r.expected.size())), r.expected, {0xEE}}));
    }
}

TEST(WmsConfigRequests, FixedSizesMatchTheirMessages) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSGetRoutesReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWMSSetRetryPeriodReq(buf.data(), 32, 0), 14);
    EXPECT_EQ(zovQMIWMSSetBroadcastActivationReq(buf.data(), 32, 0, 0), 12);
    EXPECT_EQ(zovQMIWMSSetPrimaryClientReq(buf.data(), 32, 0), 11);
}

TEST(WmsConfigRequests, SetRoutesWritesCountAndRoutes) {
    Bytes routes = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 19, 2, routes.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 20, 2, routes.data()), 20);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0032, 13), tlv(0x01, cat({le16(2), routes})), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetRoutesReq(nullptr, 32, 2, routes.data()), -1);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 32, 1, nullptr), -1);
}

TEST(WmsConfigRequests, SetRoutesWithCountZeroAndNullRoutesIsTwelveBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 12, 0, nullptr), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0032, 5), tlv(0x01, {0x00, 0x00}), {0xEE}}));
}

TEST(WmsConfigRequests, SetSMSCAddressWritesTheAddressBytesAlone) {
    Bytes address = str("+1234");
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 14, 5, address.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 15, 5, address.data()), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0035, 8), tlv(0x01, address), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(nullptr, 32, 5, address.data()), -1);
}

TEST(WmsConfigRequests, SetSMSCAddressWithLengthZeroIsTenBytesWithAnEmptyItem) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 10, 0, nullptr), 10);
    EXPECT_EQ(head(buf, 11), cat({reqHeader(0x0035, 3), tlv(0x01, {}), {0xEE}}));
}

TEST(WmsConfigRequests, SetSMSCAddressWithANullAddressAndNonZeroLengthIsRefused) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 32, 4, nullptr), -1);
    EXPECT_EQ(buf, buffer(32));
}

TEST(WmsConfigRequests, SMSCAddressTypeIsAppendedAsItsBytes) {
    Bytes buf = buffer(32);
    Bytes type = {0x31, 0x34, 0x35};
    ASSERT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 32, 1, "9"), 11);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 16, 3, type.data()), -2);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 17, 3, type.data()), 17);
    EXPECT_EQ(head(buf, 18), cat({reqHeader(0x0035, 10), tlv(0x01, str("9")), tlv(0x10, type), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 32, 2, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(nullptr, 32, 3, type.data()), -1);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 32, 0, nullptr), 20);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0035, 13), tlv(0x01, str("9")), tlv(0x10, type), tlv(0x10, {}), {0xEE}}));
}

TEST(WmsConfigRequests, ScalarOptionalItemsAreAppended) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 32, 0, nullptr), 12);
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(buf.data(), 15, 0x01), -2);
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(buf.data(), 16, 0x01), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x0032, 9), tlv(0x01, {0, 0}), tlv(0x10, {0x01}), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(nullptr, 32, 0x01), -1);

    buf = buffer(32);
    ASSERT_EQ(zovQMIWMSGetStoreMaxSizeReq(buf.data(), 32, 0x02), 11);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(buf.data(), 14, 0x01), -2);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(buf.data(), 15, 0x01), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0036, 8), tlv(0x01, {0x02}), tlv(0x10, {0x01}), {0xEE}}));
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(nullptr, 32, 0x01), -1);
}

// Two caller entries with every byte distinct.
std::vector<WMSBroadcastConfigEntry> twoEntries() {
    std::vector<WMSBroadcastConfigEntry> e(2);
    uint8_t* b = reinterpret_cast<uint8_t*>(e.data());
    for (size_t i = 0; i < 18; ++i) b[i] = uint8_t(0x10 + i);
    return e;
}

TEST(WmsConfigRequests, BroadcastConfig3GPPTakesTheFirstWordPairAndTheSelectionByte) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes value = {0x02, 0x00, 0x10, 0x11, 0x12, 0x13, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x21};
    EXPECT_EQ(head(buf, 27), cat({reqHeader(0x003D, 19), tlv(0x01, {0x00}), tlv(0x10, value), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfig3GPP2TakesTheSecondWordPairAndTheSelectionByte) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x01), 11);
    EXPECT_EQ(
        zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()), 26);
    Bytes value = {0x02, 0x00, 0x14, 0x15, 0x16, 0x17, 0x18, 0x1D, 0x1E, 0x1F, 0x20, 0x21};
    EXPECT_EQ(head(buf, 27), cat({reqHeader(0x003D, 19), tlv(0x01, {0x01}), tlv(0x11, value), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfigAddChecksPointersAndRoom) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    Bytes before = buf;
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(nullptr, 64, 2, entries.data()),
              -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(nullptr, 64, 2, entries.data()),
              -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 25, 2, entries.data()),
              -2);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 25, 2, entries.data()),
              -2);
    EXPECT_EQ(buf, before);
    // No entries: the item holds only the zero count.
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 0, nullptr), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x003D, 9), tlv(0x01, {0x00}), tlv(0x10, {0x00, 0x00}), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfigRefusesMoreEntriesThanOneItemValueHolds) {
    std::vector<WMSBroadcastConfigEntry> entries(205);
    std::memset(entries.data(), 0x5A, entries.size() * sizeof(WMSBroadcastConfigEntry));
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 2048, 0x00), 11);
    Bytes before = buf;
    // 204 entries make a 1022-byte value; 205 would need 1027.
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 2048, 205,
                                                                                      entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 2048, 205,
                                                                                       entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(buf, before);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 2048, 204,
                                                                                      entries.data()),
              11 + 3 + 1022);
    EXPECT_EQ(buf[11], 0x10);
    EXPECT_EQ(rd16(&buf[12]), 1022);
    EXPECT_EQ(rd16(&buf[14]), 204);
    EXPECT_EQ(buf[11 + 3 + 1022], 0xEE);
}

// ------------------------------------------------------------ responses --

TEST(WmsConfigResponses, ResultOnlyResponsesReturnTheAreaLength) {
    using Parser = int (*)(const uint8_t*, int, QmiResult*);
    struct Case {
        uint16_t id;
        Parser parse;
    } cases[] = {{0x0032, zovQMIWMSSetRoutesResp},           {0x0035, zovQMIWMSSetSMSCAddressResp},
                 {0x0038, zovQMIWMSSetRetryPeriodResp},      {0x0039, zovQMIWMSSetRetryIntervalResp},
                 {0x003A, zovQMIWMSSetDCDisconnectTimerResp}, {0x003B, zovQMIWMSSetMemoryStatusResp},
                 {0x003C, zovQMIWMSSetBroadcastActivationResp}, {0x003D, zovQMIWMSSetBroadcastConfigResp},
                 {0x003E, zovQMIWMSGetBroadcastConfigResp},  {0x0041, zovQMIWMSSetDomainPrefResp},
                 {0x0045, zovQMIWMSSetPrimaryClientResp}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        Bytes msg = svcMessage(c.id, {result(1, 0x30)});
        QmiResult r;
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), &r), 7);
        EXPECT_EQ(res(r), (Res{1, 0x30}));
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), nullptr), -1);
        EXPECT_EQ(c.parse(nullptr, int(msg.size()), &r), -1);
        Bytes other = svcMessage(uint16_t(c.id + 0x100), {result()});
        EXPECT_EQ(c.parse(other.data(), int(other.size()), &r), -2);
        Bytes none = svcMessage(c.id, {tlv(0x10, {0x00})});
        EXPECT_EQ(c.parse(none.data(), int(none.size()), &r), -3);
    }
}

Bytes routesValue() { return cat({le16(2), {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08}}); }

TEST(WmsConfigResponses, GetRoutesCopiesCountAndRoutes) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, routesValue()), tlv(0x10, {0x01})});
    QmiResult r;
    uint16_t count = 0;
    Bytes routes = buffer(9);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, routes.data()), 24);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(routes, Bytes({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0xEE}));
    uint8_t report = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(msg.data(), int(msg.size()), &report), 1);
    EXPECT_EQ(report, 0x01);
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0033, {result(), tlv(0x01, routesValue())});
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(bare.data(), int(bare.size()), &report), -3);
}

TEST(WmsConfigResponses, GetRoutesWithANullRouteArrayStoresOnlyTheCount) {
    // The count claims more routes than there are: without an array they are not read.
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, le16(7))});
    QmiResult r;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, nullptr), 12);
    EXPECT_EQ(count, 7);
}

TEST(WmsConfigResponses, GetRoutesRequiresResultAndCount) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, routesValue())});
    QmiResult r;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), nullptr, &count, nullptr), -1);
    Bytes bare = svcMessage(0x0033, {result()});
    EXPECT_EQ(zovQMIWMSGetRoutesResp(bare.data(), int(bare.size()), &r, &count, nullptr), -4);
}

TEST(WmsConfigResponses, GetRoutesCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, cat({le16(3), {0x01, 0x02, 0x03, 0x04}}))});
    QmiResult r;
    uint16_t count = 0xEEEE;
    Bytes routes = buffer(12);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, routes.data()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(routes, buffer(12));
}

TEST(WmsConfigResponses, GetSMSCAddressYieldsTypeLengthAndAddress) {
    Bytes value = cat({str("145"), {0x05}, str("+1234")});
    Bytes msg = svcMessage(0x0034, {result(), tlv(0x01, value)});
    QmiResult r;
    Bytes type = buffer(4), address = buffer(6);
    uint8_t length = 0;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, address.data()),
              int(7 + 3 + value.size()));
    EXPECT_EQ(type, cat({str("145"), {0xEE}}));
    EXPECT_EQ(length, 5);
    EXPECT_EQ(address, cat({str("+1234"), {0xEE}}));
    // The address is optional, type and length are not.
    length = 0;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, nullptr), 19);
    EXPECT_EQ(length, 5);
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, nullptr, &length, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), nullptr, nullptr), -1);
    Bytes bare = svcMessage(0x0034, {result()});
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(bare.data(), int(bare.size()), &r, type.data(), &length, nullptr), -4);
}

TEST(WmsConfigResponses, GetSMSCAddressLengthPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0034, {result(), tlv(0x01, cat({str("145"), {0x09}, str("+1234")}))});
    QmiResult r;
    Bytes type = buffer(3), address = buffer(9);
    uint8_t length = 0xEE;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, address.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(type, buffer(3));
    EXPECT_EQ(length, 0xEE);
    EXPECT_EQ(address, buffer(9));
}

TEST(WmsConfigResponses, GetStoreMaxSizeYieldsMaximumAndAvailable) {
    Bytes msg = svcMessage(0x0036, {result(), tlv(0x01, le32(0x000000FF)), tlv(0x10, le32(0x00010002))});
    QmiResult r;
    uint32_t maxSize = 0, available = 0;
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(msg.data(), int(msg.size()), &r, &maxSize), 21);
    EXPECT_EQ(maxSize, 0xFFu);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(msg.data(), int(msg.size()), &available), 4);
    EXPECT_EQ(available, 0x00010002u);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0036, {result()});
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(bare.data(), int(bare.size()), &r, &maxSize), -4);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(bare.data(), int(bare.size()), &available), -3);
}

TEST(WmsConfigResponses, GetDomainPrefYieldsThePreference) {
    Bytes msg = svcMessage(0x0040, {result(), tlv(0x01, {0x01})});
    QmiResult r;
    uint8_t preference = 0;
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(msg.data(), int(msg.size()), &r, &preference), 11);
    EXPECT_EQ(preference, 0x01);
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes bare = svcMessage(0x0040, {result()});
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(bare.data(), int(bare.size()), &r, &preference), -4);
}

// A get-broadcast-config item: u16 activation, u16 count, 5-byte entries.
Bytes broadcastValue(uint16_t activation) {
    return cat({le16(activation), le16(2), le16(0x0102), le16(0x0304), {0x05}, le16(0x0607), le16(0x0809), {0x0A}});
}

TEST(WmsConfigResponses, GetBroadcastConfig3GPPFillsTheFirstWordPairAndTheSelectionByte) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, broadcastValue(0x0001))});
    uint8_t activation = 0;
    uint16_t count = 0;
    std::vector<WMSBroadcastConfigEntry> entries(3);
    std::memset(entries.data(), 0xEE, 27);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       entries.data()),
              14);
    EXPECT_EQ(activation, 1);
    EXPECT_EQ(count, 2);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(entries.data());
    EXPECT_EQ(Bytes(b, b + 27), cat({le16(0x0102), le16(0x0304), fill(4, 0xEE), {0x05}, le16(0x0607), le16(0x0809),
                                      fill(4, 0xEE), {0x0A}, fill(9, 0xEE)}));
}

TEST(WmsConfigResponses, GetBroadcastConfig3GPP2FillsTheSecondWordPairAndTheSelectionByte) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x11, broadcastValue(0x0000))});
    uint8_t activation = 0xEE;
    uint16_t count = 0;
    std::vector<WMSBroadcastConfigEntry> entries(2);
    std::memset(entries.data(), 0xEE, 18);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                        &activation, &count,
                                                                                        entries.data()),
              14);
    EXPECT_EQ(activation, 0);
    EXPECT_EQ(count, 2);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(entries.data());
    EXPECT_EQ(Bytes(b, b + 18), cat({fill(4, 0xEE), le16(0x0102), le16(0x0304), {0x05}, fill(4, 0xEE), le16(0x0607),
                                      le16(0x0809), {0x0A}}));
    // Each getter reads its own item only.
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count, nullptr),
              -3);
}

TEST(WmsConfigResponses, ThreeGPPSetThenThreeGPP2GetIntoTheSameEntriesLeavesTheThreeGPPWordsAlone) {
    auto entries = std::vector<WMSBroadcastConfigEntry>(2);
    uint8_t* b = reinterpret_cast<uint8_t*>(entries.data());
    for (size_t i = 0; i < 18; ++i) b[i] = uint8_t(0x10 + i);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x11, broadcastValue(0x0001))});
    uint8_t activation = 0;
    uint16_t count = 0;
    ASSERT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                        &activation, &count,
                                                                                        entries.data()),
              14);
    EXPECT_EQ(Bytes(b, b + 18), Bytes({0x10, 0x11, 0x12, 0x13, 0x02, 0x01, 0x04, 0x03, 0x05, 0x19, 0x1A, 0x1B, 0x1C,
                                        0x07, 0x06, 0x09, 0x08, 0x0A}));
}

TEST(WmsConfigResponses, GetBroadcastConfigEntriesStartTwoBytesFurtherThanInTheSetItem) {
    // The set item for the same entries, with the activation word put in front, is the get item.
    auto entries = std::vector<WMSBroadcastConfigEntry>(2);
    uint8_t* b = reinterpret_cast<uint8_t*>(entries.data());
    for (size_t i = 0; i < 18; ++i) b[i] = uint8_t(0x30 + i);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes setValue(buf.begin() + 14, buf.begin() + 26);
    ASSERT_EQ(setValue.size(), 12u);
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, cat({le16(1), setValue}))});
    std::vector<WMSBroadcastConfigEntry> back(2);
    std::memset(back.data(), 0, 18);
    uint8_t activation = 0;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       back.data()),
              14);
    EXPECT_EQ(count, 2);
    const uint8_t* r = reinterpret_cast<const uint8_t*>(back.data());
    EXPECT_EQ(Bytes(r, r + 18), Bytes({0x30, 0x31, 0x32, 0x33, 0, 0, 0, 0, 0x38, 0x39, 0x3A, 0x3B, 0x3C, 0, 0, 0, 0,
                                        0x41}));
}

TEST(WmsConfigResponses, GetBroadcastConfigActivationIsTheLowByteOfTheFirstWord) {
    uint8_t activation = 0;
    uint16_t count = 0;
    Bytes one = svcMessage(0x003E, {result(), tlv(0x10, {0x01, 0x00, 0x00, 0x00})});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(one.data(), int(one.size()),
                                                                                       &activation, &count, nullptr),
              4);
    EXPECT_EQ(activation, 1);
    EXPECT_EQ(count, 0);
    Bytes high = svcMessage(0x003E, {result(), tlv(0x11, {0x00, 0x01, 0x00, 0x00})});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(high.data(), int(high.size()),
                                                                                        &activation, &count, nullptr),
              4);
    EXPECT_EQ(activation, 0);
}

TEST(WmsConfigResponses, GetBroadcastConfigOfFourBytesWithCountZeroIsAccepted) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, {0x01, 0x00, 0x00, 0x00})});
    uint8_t activation = 0;
    uint16_t count = 0xEEEE;
    WMSBroadcastConfigEntry entry;
    std::memset(&entry, 0xEE, sizeof entry);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count, &entry),
              4);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(activation, 1);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(&entry);
    EXPECT_EQ(Bytes(b, b + 9), fill(9, 0xEE));
}

TEST(WmsConfigResponses, GetBroadcastConfigRequiresActivationAndCount) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, broadcastValue(1)), tlv(0x11, broadcastValue(1))});
    uint8_t activation = 0;
    uint16_t count = 0;
    int n = int(msg.size());
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), n, nullptr, &count,
                                                                                       nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), n, &activation,
                                                                                       nullptr, nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), n, nullptr, &count,
                                                                                        nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(nullptr, n, &activation, &count,
                                                                                        nullptr),
              -1);
    // Without entries only the count is stored.
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), n, &activation,
                                                                                        &count, nullptr),
              14);
    EXPECT_EQ(count, 2);
    Bytes other = svcMessage(0x003D, {result(), tlv(0x10, broadcastValue(1))});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(
                  other.data(), int(other.size()), &activation, &count, nullptr),
              -2);
}

TEST(WmsConfigResponses, GetBroadcastConfigCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, cat({le16(1), le16(3), le16(1), le16(2), {0x03}}))});
    uint8_t activation = 0xEE;
    uint16_t count = 0xEEEE;
    std::vector<WMSBroadcastConfigEntry> entries(3);
    std::memset(entries.data(), 0xEE, 27);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(activation, 0xEE);
    EXPECT_EQ(count, 0xEEEE);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(entries.data());
    EXPECT_EQ(Bytes(b, b + 27), fill(27, 0xEE));
}

// Message waiting: count, then 3-byte entries spread over three arrays.
Bytes waitingValue() { return {0x02, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06}; }

TEST(WmsConfigResponses, GetMessageWaitingSpreadsEntriesOverThreeArrays) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, waitingValue())});
    QmiResult r;
    uint8_t count = 0;
    Bytes first = buffer(3), second = buffer(3), third = buffer(3);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, first.data(), second.data(),
                                             third.data()),
              17);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(first, Bytes({0x01, 0x04, 0xEE}));
    EXPECT_EQ(second, Bytes({0x02, 0x05, 0xEE}));
    EXPECT_EQ(third, Bytes({0x03, 0x06, 0xEE}));
}

TEST(WmsConfigResponses, GetMessageWaitingSkipsNullArraysEntryByEntry) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, waitingValue())});
    QmiResult r;
    uint8_t count = 0;
    Bytes second = buffer(2);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, nullptr, second.data(), nullptr),
              17);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(second, Bytes({0x02, 0x05}));
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, nullptr, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), nullptr, &count, nullptr, nullptr, nullptr),
              -1);
    Bytes bare = svcMessage(0x0043, {result()});
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(bare.data(), int(bare.size()), &r, &count, nullptr, nullptr, nullptr), -4);
}

TEST(WmsConfigResponses, GetMessageWaitingCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, {0x03, 0x01, 0x02, 0x03, 0x04})});
    QmiResult r;
    uint8_t count = 0xEE;
    Bytes first = buffer(3);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, first.data(), nullptr, nullptr),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(first, buffer(3));
}

// ----------------------------------------------------------- indications --

TEST(WmsConfigIndications, MessageWaitingSpreadsEntriesAndNeedsOnlyTheCount) {
    Bytes msg = svcMessage(0x0044, {tlv(0x01, waitingValue())}, 0, 0x04);
    uint8_t count = 0;
    Bytes first = buffer(2), second = buffer(2), third = buffer(2);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), &count, first.data(), second.data(),
                                         third.data()),
              10);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(first, Bytes({0x01, 0x04}));
    EXPECT_EQ(second, Bytes({0x02, 0x05}));
    EXPECT_EQ(third, Bytes({0x03, 0x06}));
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), &count, nullptr, nullptr, nullptr), 10);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), nullptr, nullptr, nullptr, nullptr), -1);
    Bytes noList = svcMessage(0x0044, {tlv(0x10, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(noList.data(), int(noList.size()), &count, nullptr, nullptr, nullptr), -3);
    Bytes other = svcMessage(0x0043, {tlv(0x01, waitingValue())}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(other.data(), int(other.size()), &count, nullptr, nullptr, nullptr), -2);
}

TEST(WmsConfigIndications, MemoryFullYieldsBothBytesInOrder) {
    Bytes msg = svcMessage(0x003F, {tlv(0x01, {0x01, 0x02})}, 0, 0x04);
    uint8_t first = 0, second = 0;
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), &first, &second), 5);
    EXPECT_EQ(first, 0x01);
    EXPECT_EQ(second, 0x02);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), nullptr, &second), -1);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), &first, nullptr), -1);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(nullptr, int(msg.size()), &first, &second), -1);
    Bytes noItem = svcMessage(0x003F, {tlv(0x10, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(noItem.data(), int(noItem.size()), &first, &second), -3);
    Bytes other = svcMessage(0x0040, {tlv(0x01, {0x01, 0x02})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(other.data(), int(other.size()), &first, &second), -2);
    // Cut short by the buffer end: nothing is written.
    first = second = 0xEE;
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()) - 1, &first, &second), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(first, 0xEE);
    EXPECT_EQ(second, 0xEE);
}

}  // namespace
