// NAS, the network access service.
#include <cstddef>
#include <functional>

#include "testutil.h"

using namespace t;

// Record layouts: packed, pointer fields native-sized.
static_assert(sizeof(NASServingSystem) == 5 + sizeof(void*), "serving system: 5 bytes and a pointer");
static_assert(offsetof(NASServingSystem, listCount) == 4, "list count after the four state bytes");
static_assert(offsetof(NASServingSystem, list) == 5, "list pointer at byte 5");
static_assert(sizeof(NASNetworkRecord) == 8 + sizeof(void*), "network record: 8 bytes and a pointer");
static_assert(offsetof(NASNetworkRecord, firstCode) == 0, "first code");
static_assert(offsetof(NASNetworkRecord, secondCode) == 2, "second code");
static_assert(offsetof(NASNetworkRecord, thirdCode) == 4, "third code");
static_assert(offsetof(NASNetworkRecord, status) == 6, "status");
static_assert(offsetof(NASNetworkRecord, descriptionLength) == 7, "description length");
static_assert(offsetof(NASNetworkRecord, description) == 8, "description pointer");
static_assert(sizeof(NASRFBandRecord) == 5, "RF band entries are 5 bytes");
static_assert(offsetof(NASRFBandRecord, second) == 1 && offsetof(NASRFBandRecord, third) == 3, "RF band fields");
static_assert(sizeof(NASManualNetworkRegister) == 5, "manual registration is 5 bytes");
static_assert(offsetof(NASManualNetworkRegister, secondCode) == 2 && offsetof(NASManualNetworkRegister, third) == 4,
              "manual registration fields");

namespace {

// Stores v little-endian into a record field, whatever the host's order.
void wr16(void* p, uint16_t v) {
    uint8_t* b = static_cast<uint8_t*>(p);
    b[0] = uint8_t(v);
    b[1] = uint8_t(v >> 8);
}

// The bytes of a caller record or array, to compare whole outputs.
template <class T>
Bytes bytesOf(const T* p, size_t n = 1) {
    const uint8_t* b = reinterpret_cast<const uint8_t*>(p);
    return Bytes(b, b + sizeof(T) * n);
}

// A network record filled with 0xEE (pointer included: callers set it).
NASNetworkRecord untouchedNetwork(uint8_t* description = nullptr) {
    NASNetworkRecord r;
    std::memset(&r, 0xEE, sizeof r);
    r.description = description;
    return r;
}

// ------------------------------------------------------------- requests --

struct FixedRequest {
    const char* name;
    std::function<int(uint8_t*, int)> build;
    uint16_t id;
    Bytes area;  // the TLV area written after the header
};

TEST(NasRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const uint8_t code[6] = {0x30, 0x31, 0x32, 0x33, 0x34, 0x35};
    const FixedRequest requests[] = {
        {"Reset", zovQMINASResetReq, 0x0000, {}},
        {"Abort", [](uint8_t* b, int n) { return zovQMINASAbortReq(b, n, 0x0A0B); }, 0x0001, tlv(0x01, le16(0x0A0B))},
        {"SetEventReport", zovQMINASSetEventReportReq, 0x0002, {}},
        {"IndicationRegister", zovQMINASIndicationRegisterReq, 0x0003, {}},
        {"GetSignalStrength", zovQMINASGetSignalStrengthReq, 0x0020, {}},
        {"PerformNetworkScan", zovQMINASPerformNetworkScanReq, 0x0021, {}},
        {"InitiateNetworkRegister", [](uint8_t* b, int n) { return zovQMINASInitiateNetworkRegisterReq(b, n, 0x02); },
         0x0022, tlv(0x01, {0x02})},
        {"InitiateAttach", zovQMINASInitiateAttachReq, 0x0023, {}},
        {"GetServingSystem", zovQMINASGetServingSystemReq, 0x0024, {}},
        {"GetHomeNetwork", zovQMINASGetHomeNetworkReq, 0x0025, {}},
        {"GetPreferredNetworks", zovQMINASGetPreferredNetworksReq, 0x0026, {}},
        {"SetPreferredNetworks", zovQMINASSetPreferredNetworksReq, 0x0027, {}},
        {"GetForbiddenNetworks", zovQMINASGetForbiddenNetworksReq, 0x0028, {}},
        {"SetForbiddenNetworks", zovQMINASSetForbiddenNetworksReq, 0x0029, {}},
        {"GetACCOLC", zovQMINASGetACCOLCReq, 0x002C, {}},
        {"SetACCOLC", [&](uint8_t* b, int n) { return zovQMINASSetACCOLCReq(b, n, code, 0x07); }, 0x002D,
         tlv(0x01, {0x30, 0x31, 0x32, 0x33, 0x34, 0x35, 0x07})},
        {"GetDeviceConfig", zovQMINASGetDeviceConfigReq, 0x002F, {}},
        {"SetDeviceConfig", zovQMINASSetDeviceConfigReq, 0x0030, {}},
        {"GetRFBandInfo", zovQMINASGetRFBandInfoReq, 0x0031, {}},
        {"GetANAAAStatus", zovQMINASGetANAAAStatusReq, 0x0032, {}},
        {"SetSystemSelectionPreference", zovQMINASSetSystemSelectionPreferenceReq, 0x0033, {}},
        {"GetSystemSelectionPreference", zovQMINASGetSystemSelectionPreferenceReq, 0x0034, {}},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int size = 7 + int(r.area.size());
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), size - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, size), -1);
        ASSERT_EQ(r.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({reqHeader(r.id, uint16_t(r.area.size())), r.area, {0xEE}}));
    }
}

TEST(NasRequests, AbortNeedsTwelveBytesAndWritesTheTransactionIdLowByteFirst) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMINASAbortReq(buf.data(), 11, 0x1234), -1);
    EXPECT_EQ(buf, buffer(16));
    ASSERT_EQ(zovQMINASAbortReq(buf.data(), 12, 0x1234), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0001, 5), {0x01, 0x02, 0x00, 0x34, 0x12, 0xEE}}));
}

TEST(NasRequests, SetACCOLCWithNullCodeIsRefused) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMINASSetACCOLCReq(buf.data(), 32, nullptr, 1), -1);
    EXPECT_EQ(buf, buffer(32));
    const uint8_t code[6] = {};
    EXPECT_EQ(zovQMINASSetACCOLCReq(buf.data(), 16, code, 1), -1);
    EXPECT_EQ(zovQMINASSetACCOLCReq(buf.data(), 17, code, 1), 17);
}

struct OptionalItem {
    const char* name;
    int (*start)(uint8_t*, int);
    std::function<int(uint8_t*, int)> add;
    uint16_t id;
    Bytes item;  // the whole item appended
};

TEST(NasRequests, EveryOptionalItemAppendsItsBytes) {
    const uint8_t thresholds[3] = {0xA0, 0xB0, 0xC0};
    const uint8_t spc[6] = {'1', '2', '3', '4', '5', '6'};
    NASManualNetworkRegister manual;
    wr16(&manual.firstCode, 0x0136);
    wr16(&manual.secondCode, 0x0203);
    manual.third = 0x05;
    const OptionalItem items[] = {
        {"SignalStrengthIndicator", zovQMINASSetEventReportReq,
         [&](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddSignalStrengthIndicator(b, n, 1, 3, thresholds); },
         0x0002, tlv(0x10, {0x01, 0x03, 0xA0, 0xB0, 0xC0})},
        {"RFBandInformation", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddRFBandInformation(b, n, 1); }, 0x0002,
         tlv(0x11, {0x01})},
        {"RegistrationRejectReasons", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddRegistrationRejectReasons(b, n, 1); }, 0x0002,
         tlv(0x12, {0x01})},
        {"RSSIIndicator", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddRSSIIndicator(b, n, 1, 5); }, 0x0002,
         tlv(0x13, {0x01, 0x05})},
        {"ECIOIndicator", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddECIOIndicator(b, n, 1, 6); }, 0x0002,
         tlv(0x14, {0x01, 0x06})},
        {"IOIndicator", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddIOIndicator(b, n, 1, 7); }, 0x0002,
         tlv(0x15, {0x01, 0x07})},
        {"SINRIndicator", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddSINRIndicator(b, n, 1, 8); }, 0x0002,
         tlv(0x16, {0x01, 0x08})},
        {"ErrorRateIndicator", zovQMINASSetEventReportReq,
         [](uint8_t* b, int n) { return zovQMINASSetEventReportReqAddErrorRateIndicator(b, n, 1); }, 0x0002,
         tlv(0x17, {0x01})},
        {"SystemSelectionPreferenceEvents", zovQMINASIndicationRegisterReq,
         [](uint8_t* b, int n) { return zovQMINASIndicationRegisterReqAddSystemSelectionPreference(b, n, 1); }, 0x0003,
         tlv(0x10, {0x01})},
        {"DDTMEvents", zovQMINASIndicationRegisterReq,
         [](uint8_t* b, int n) { return zovQMINASIndicationRegisterReqAddDDTMEvents(b, n, 1); }, 0x0003,
         tlv(0x12, {0x01})},
        {"ServingSystemEvents", zovQMINASIndicationRegisterReq,
         [](uint8_t* b, int n) { return zovQMINASIndicationRegisterReqAddServingSystemEvents(b, n, 0); }, 0x0003,
         tlv(0x13, {0x00})},
        {"RequestMask", zovQMINASGetSignalStrengthReq,
         [](uint8_t* b, int n) { return zovQMINASGetSignalStrengthReqAddRequestMask(b, n, 0x0102); }, 0x0020,
         tlv(0x10, le16(0x0102))},
        {"ManualNetworkRegisterInformation", nullptr,
         [&](uint8_t* b, int n) {
             return zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(b, n, &manual);
         },
         0x0022, tlv(0x10, {0x36, 0x01, 0x03, 0x02, 0x05})},
        {"PSAttachAction", zovQMINASInitiateAttachReq,
         [](uint8_t* b, int n) { return zovQMINASInitiateAttachReqAddPSAttachAction(b, n, 2); }, 0x0023,
         tlv(0x10, {0x02})},
        {"ServiceProgrammingCode", zovQMINASSetDeviceConfigReq,
         [&](uint8_t* b, int n) { return zovQMINASSetDeviceConfigReqAddServiceProgrammingCode(b, n, spc); }, 0x0030,
         tlv(0x10, str("123456"))},
        {"ForceHDRRevision", zovQMINASSetDeviceConfigReq,
         [](uint8_t* b, int n) { return zovQMINASSetDeviceConfigReqAddForceHDRRevision(b, n, 1); }, 0x0030,
         tlv(0x14, {0x01})},
        {"HDRSCPCustomConfig", zovQMINASSetDeviceConfigReq,
         [](uint8_t* b, int n) {
             return zovQMINASSetDeviceConfigReqAddHDRSCPCustomConfig(b, n, 1, 0x11223344, 0x55667788, 0x99AABBCC);
         },
         0x0030, tlv(0x15, cat({{0x01}, le32(0x11223344), le32(0x55667788), le32(0x99AABBCC)}))},
        {"RoamPreference", zovQMINASSetDeviceConfigReq,
         [](uint8_t* b, int n) { return zovQMINASSetDeviceConfigReqAddRoamPreference(b, n, 3); }, 0x0030,
         tlv(0x16, {0x03})},
        {"EmergencyMode", zovQMINASSetSystemSelectionPreferenceReq,
         [](uint8_t* b, int n) { return zovQMINASSetSystemSelectionPreferenceReqAddEmergencyMode(b, n, 1); }, 0x0033,
         tlv(0x10, {0x01})},
        {"ModePreference", zovQMINASSetSystemSelectionPreferenceReq,
         [](uint8_t* b, int n) { return zovQMINASSetSystemSelectionPreferenceReqAddModePreference(b, n, 0x0708); },
         0x0033, tlv(0x11, le16(0x0708))},
        {"BandPreference", zovQMINASSetSystemSelectionPreferenceReq,
         [](uint8_t* b, int n) {
             return zovQMINASSetSystemSelectionPreferenceReqAddBandPreference(b, n, 0x0102030405060708ull);
         },
         0x0033, tlv(0x12, {0x08, 0x07, 0x06, 0x05, 0x04, 0x03, 0x02, 0x01})},
        {"CDMAPRLPreference", zovQMINASSetSystemSelectionPreferenceReq,
         [](uint8_t* b, int n) { return zovQMINASSetSystemSelectionPreferenceReqAddCDMAPRLPreference(b, n, 0x0A0B); },
         0x0033, tlv(0x13, le16(0x0A0B))},
        {"RoamingPreference", zovQMINASSetSystemSelectionPreferenceReq,
         [](uint8_t* b, int n) { return zovQMINASSetSystemSelectionPreferenceReqAddRoamingPreference(b, n, 0x00FF); },
         0x0033, tlv(0x14, le16(0x00FF))},
    };
    for (const OptionalItem& it : items) {
        SCOPED_TRACE(it.name);
        Bytes buf = buffer(64);
        if (it.start) ASSERT_EQ(it.start(buf.data(), 64), 7);
        else ASSERT_EQ(zovQMINASInitiateNetworkRegisterReq(buf.data(), 64, 1), 11);
        Bytes front = it.start ? reqHeader(it.id, 0) : cat({reqHeader(it.id, 4), tlv(0x01, {0x01})});
        int total = int(front.size() + it.item.size());
        Bytes before = buf;
        EXPECT_EQ(it.add(buf.data(), total - 1), -2);
        EXPECT_EQ(buf, before);
        EXPECT_EQ(it.add(nullptr, 64), -1);
        ASSERT_EQ(it.add(buf.data(), total), total);
        Bytes header = it.start ? reqHeader(it.id, uint16_t(it.item.size()))
                                : cat({reqHeader(it.id, uint16_t(4 + it.item.size())), tlv(0x01, {0x01})});
        EXPECT_EQ(head(buf, size_t(total) + 1), cat({header, it.item, {0xEE}}));
    }
}

TEST(NasRequests, SignalStrengthIndicatorWithCountZeroIgnoresThePointerAndCountThreeNeedsIt) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMINASSetEventReportReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMINASSetEventReportReqAddSignalStrengthIndicator(buf.data(), 32, 1, 3, nullptr), -1);
    EXPECT_EQ(head(buf, 8), cat({reqHeader(0x0002, 0), {0xEE}}));
    EXPECT_EQ(zovQMINASSetEventReportReqAddSignalStrengthIndicator(buf.data(), 32, 1, 0, nullptr), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0002, 5), tlv(0x10, {0x01, 0x00}), {0xEE}}));
}

TEST(NasRequests, ManualRegistrationAndServiceProgrammingCodeRefuseNullRecords) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMINASInitiateNetworkRegisterReq(buf.data(), 32, 1), 11);
    EXPECT_EQ(zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(buf.data(), 32, nullptr), -1);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x0022, 4), tlv(0x01, {0x01}), {0xEE}}));
    ASSERT_EQ(zovQMINASSetDeviceConfigReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMINASSetDeviceConfigReqAddServiceProgrammingCode(buf.data(), 32, nullptr), -1);
    EXPECT_EQ(head(buf, 7), reqHeader(0x0030, 0));
}

// Network lists read each record's leading codes through its own stride.
std::vector<NASNetworkRecord> networks(size_t n) {
    std::vector<NASNetworkRecord> v(n, untouchedNetwork());
    for (size_t i = 0; i < n; ++i) {
        wr16(&v[i].firstCode, uint16_t(0x0100 + i));
        wr16(&v[i].secondCode, uint16_t(0x0200 + i));
        wr16(&v[i].thirdCode, uint16_t(0x0300 + i));
    }
    return v;
}

TEST(NasRequests, PreferredNetworksWithCountZeroAndNullArrayAppendsTheCountOnly) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMINASSetPreferredNetworksReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 32, 0, nullptr), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0027, 5), tlv(0x10, {0x00, 0x00}), {0xEE}}));
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 32, 1, nullptr), -1);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(nullptr, 32, 0, nullptr), -1);
}

TEST(NasRequests, PreferredNetworksWritesThreeCodesPerRecord) {
    std::vector<NASNetworkRecord> list = networks(2);
    wr16(&list[0].firstCode, 0x0136);
    wr16(&list[0].secondCode, 0x0001);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMINASSetPreferredNetworksReq(buf.data(), 64), 7);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 23, 2, list.data()), -2);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 24, 2, list.data()), 24);
    Bytes value = cat({{0x02, 0x00, 0x36, 0x01, 0x01, 0x00}, le16(0x0300), le16(0x0101), le16(0x0201), le16(0x0301)});
    EXPECT_EQ(head(buf, 25), cat({reqHeader(0x0027, 17), tlv(0x10, value), {0xEE}}));
}

TEST(NasRequests, ForbiddenNetworksWritesTwoCodesPerRecord) {
    std::vector<NASNetworkRecord> list = networks(2);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMINASSetForbiddenNetworksReq(buf.data(), 64), 7);
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(buf.data(), 64, 2, list.data()), 20);
    Bytes value = cat({le16(2), le16(0x0100), le16(0x0200), le16(0x0101), le16(0x0201)});
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0029, 13), tlv(0x10, value), {0xEE}}));
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(buf.data(), 64, 3, nullptr), -1);
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(nullptr, 64, 0, nullptr), -1);
}

TEST(NasRequests, NetworkListsRefuseCountsBeyondOneItemValue) {
    // 170 preferred (2 + 1020 bytes) and 255 forbidden (2 + 1020) fit; one more does not.
    std::vector<NASNetworkRecord> list = networks(256);
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMINASSetPreferredNetworksReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 2048, 171, list.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 2048, 0x80000000u, list.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(head(buf, 8), cat({reqHeader(0x0027, 0), {0xEE}}));
    EXPECT_EQ(zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(buf.data(), 2048, 170, list.data()),
              7 + 3 + 1022);
    ASSERT_EQ(zovQMINASSetForbiddenNetworksReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(buf.data(), 2048, 256, list.data()),
              ZOVQMI_ERR_MALFORMED);
    // 0x40000001 forbidden networks would wrap a 32-bit size to 6 bytes.
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(buf.data(), 2048, 0x40000001u, list.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(buf.data(), 2048, 255, list.data()),
              7 + 3 + 1022);
}

TEST(NasRequests, SetDDTMPreferenceIsWrittenUnderTheSystemSelectionId) {
    const uint16_t list[2] = {0x0102, 0x0304};
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMINASSetDDTMPreferenceReq(buf.data(), 18, 1, 0x0A0B, 2, 2, list), -1);
    EXPECT_EQ(buf, buffer(32));
    ASSERT_EQ(zovQMINASSetDDTMPreferenceReq(buf.data(), 19, 1, 0x0A0B, 2, 2, list), 19);
    EXPECT_EQ(buf[3], 0x33);
    EXPECT_EQ(buf[4], 0x00);
    EXPECT_EQ(head(buf, 20),
              cat({reqHeader(0x0033, 12), tlv(0x01, cat({{0x01}, le16(0x0A0B), {0x02, 0x02}, le16(0x0102),
                                                         le16(0x0304)})),
                   {0xEE}}));
}

TEST(NasRequests, SetDDTMPreferenceChecksTheListBeforeTheBuffer) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMINASSetDDTMPreferenceReq(buf.data(), 32, 1, 2, 3, 1, nullptr), -1);
    EXPECT_EQ(zovQMINASSetDDTMPreferenceReq(nullptr, 32, 1, 2, 3, 0, nullptr), -1);
    EXPECT_EQ(buf, buffer(32));
    ASSERT_EQ(zovQMINASSetDDTMPreferenceReq(buf.data(), 15, 1, 2, 3, 0, nullptr), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0033, 8), tlv(0x01, {0x01, 0x02, 0x00, 0x03, 0x00}), {0xEE}}));
}

// ------------------------------------------------------------ responses --

struct ResultOnly {
    const char* name;
    int (*parse)(const uint8_t*, int, QmiResult*);
    uint16_t id;
};

TEST(NasResponses, EveryResultOnlyResponseStoresTheResultAndReturnsTheAreaLength) {
    const ResultOnly parsers[] = {
        {"Reset", zovQMINASResetResp, 0x0000},
        {"Abort", zovQMINASAbortResp, 0x0001},
        {"SetEventReport", zovQMINASSetEventReportResp, 0x0002},
        {"IndicationRegister", zovQMINASIndicationRegisterResp, 0x0003},
        {"PerformNetworkScan", zovQMINASPerformNetworkScanResp, 0x0021},
        {"InitiateNetworkRegister", zovQMINASInitiateNetworkRegisterResp, 0x0022},
        {"InitiateAttach", zovQMINASInitiateAttachResp, 0x0023},
        {"GetPreferredNetworks", zovQMINASGetPreferredNetworksResp, 0x0026},
        {"SetPreferredNetworks", zovQMINASSetPreferredNetworksResp, 0x0027},
        {"GetForbiddenNetworks", zovQMINASGetForbiddenNetworksResp, 0x0028},
        {"SetForbiddenNetworks", zovQMINASSetForbiddenNetworksResp, 0x0029},
        {"SetACCOLC", zovQMINASSetACCOLCResp, 0x002D},
        {"GetDeviceConfig", zovQMINASGetDeviceConfigResp, 0x002F},
        {"SetDeviceConfig", zovQMINASSetDeviceConfigResp, 0x0030},
        {"SetSystemSelectionPreference", zovQMINASSetSystemSelectionPreferenceResp, 0x0033},
        {"GetSystemSelectionPreference", zovQMINASGetSystemSelectionPreferenceResp, 0x0034},
        {"SetDDTMPreference", zovQMINASSetDDTMPreferenceResp, 0x0037},
    };
    for (const ResultOnly& p : parsers) {
        SCOPED_TRACE(p.name);
        // A failure result still yields the TLV-area length; no item 0x01 is wanted.
        Bytes msg = svcMessage(p.id, {result(1, 0x0E), tlv(0x10, {0x01})});
        QmiResult r = untouchedResult();
        EXPECT_EQ(p.parse(msg.data(), int(msg.size()), &r), 11);
        EXPECT_EQ(res(r), (Res{1, 0x0E}));
        EXPECT_EQ(p.parse(nullptr, int(msg.size()), &r), -1);
        EXPECT_EQ(p.parse(msg.data(), int(msg.size()), nullptr), -1);
        Bytes other = svcMessage(uint16_t(p.id + 0x40), {result()});
        r = untouchedResult();
        EXPECT_EQ(p.parse(other.data(), int(other.size()), &r), -2);
        Bytes noResult = svcMessage(p.id, {tlv(0x01, {0x01})});
        EXPECT_EQ(p.parse(noResult.data(), int(noResult.size()), &r), -3);
        EXPECT_EQ(res(r), res(untouchedResult()));
    }
}

TEST(NasResponses, SetDDTMPreferenceResponseIsLookedForUnderItsOwnId) {
    // The request goes out as 0x0033, but an answer under 0x0033 is not taken.
    Bytes msg = svcMessage(0x0033, {result()});
    QmiResult r;
    EXPECT_EQ(zovQMINASSetDDTMPreferenceResp(msg.data(), int(msg.size()), &r), -2);
}

TEST(NasIndications, EventReportAndSystemSelectionPreferenceConfirmOnlyTheId) {
    Bytes ev = svcMessage(0x0002, {tlv(0x16, {0x05})}, 0, 0x04);
    EXPECT_EQ(zovQMINASEventReportIND(ev.data(), int(ev.size())), 4);
    EXPECT_EQ(zovQMINASEventReportIND(nullptr, int(ev.size())), -1);
    EXPECT_EQ(zovQMINASSystemSelectionPreferenceIND(ev.data(), int(ev.size())), -2);
    Bytes ss = svcMessage(0x0034, {}, 0, 0x04);
    EXPECT_EQ(zovQMINASSystemSelectionPreferenceIND(ss.data(), int(ss.size())), -2);  // head ends at the buffer end
    ss = svcMessage(0x0034, {tlv(0x11, le16(0x0203))}, 0, 0x04);
    EXPECT_EQ(zovQMINASSystemSelectionPreferenceIND(ss.data(), int(ss.size())), 5);
    EXPECT_EQ(zovQMINASSystemSelectionPreferenceIND(nullptr, 0), -1);
    EXPECT_EQ(zovQMINASEventReportIND(ss.data(), int(ss.size())), -2);
    // Its items are read with the GetSystemSelectionPreference getters.
    uint16_t mode = 0;
    EXPECT_EQ(zovQMINASGetSystemSelectionPreferenceRespGetModePreference(ss.data(), int(ss.size()), &mode), 2);
    EXPECT_EQ(mode, 0x0203);
}

// Native bytes of a value, to compare outputs of any width.
template <class T>
Bytes nat(T v) {
    Bytes b(sizeof v);
    std::memcpy(b.data(), &v, sizeof v);
    return b;
}

// A getter called with its outputs, or with its first output null; the
// outputs come back as native bytes in argument order.
using GetCall = std::function<int(const uint8_t*, int, bool, Bytes&)>;

struct Getter {
    const char* name;
    uint16_t id;
    uint8_t type;
    Bytes value;
    GetCall call;
    Bytes expected;
};

template <class A>
GetCall one(int (*f)(const uint8_t*, int, A*)) {
    return [f](const uint8_t* m, int n, bool null, Bytes& out) {
        A a{};
        int r = f(m, n, null ? nullptr : &a);
        out = nat(a);
        return r;
    };
}
template <class A, class B>
GetCall two(int (*f)(const uint8_t*, int, A*, B*)) {
    return [f](const uint8_t* m, int n, bool null, Bytes& out) {
        A a{};
        B b{};
        int r = f(m, n, null ? nullptr : &a, &b);
        out = cat({nat(a), nat(b)});
        return r;
    };
}
template <class A, class B, class C>
GetCall three(int (*f)(const uint8_t*, int, A*, B*, C*)) {
    return [f](const uint8_t* m, int n, bool null, Bytes& out) {
        A a{};
        B b{};
        C c{};
        int r = f(m, n, null ? nullptr : &a, &b, &c);
        out = cat({nat(a), nat(b), nat(c)});
        return r;
    };
}
GetCall hdrConfig() {
    return [](const uint8_t* m, int n, bool null, Bytes& out) {
        uint8_t a = 0;
        uint32_t b = 0, c = 0, d = 0;
        int r = zovQMINASGetDeviceConfigRespGetHDRSCPCustomConfig(m, n, null ? nullptr : &a, &b, &c, &d);
        out = cat({nat(a), nat(b), nat(c), nat(d)});
        return r;
    };
}

TEST(NasGetters, EveryFixedGetterDecodesItsItem) {
    const Getter getters[] = {
        {"EventReport SignalStrength", 0x0002, 0x10, {0xA5, 0x04}, two(zovQMINASEventReportINDGetSignalStrength),
         {0xA5, 0x04}},
        {"EventReport RegistrationRejectReason", 0x0002, 0x12, cat({{0x01}, le16(0x0203)}),
         two(zovQMINASEventReportINDGetRegistrationRejectReason), cat({{0x01}, nat(uint16_t(0x0203))})},
        {"EventReport RSSI", 0x0002, 0x13, {0x50, 0x05}, two(zovQMINASEventReportINDGetRSSI), {0x50, 0x05}},
        {"EventReport ECIO", 0x0002, 0x14, {0x10, 0x05}, two(zovQMINASEventReportINDGetECIO), {0x10, 0x05}},
        {"EventReport IO", 0x0002, 0x15, le32(0x01020304), one(zovQMINASEventReportINDGetIO), nat(uint32_t(0x01020304))},
        {"EventReport SINR", 0x0002, 0x16, {0x07}, one(zovQMINASEventReportINDGetSINR), {0x07}},
        {"EventReport ErrorRate", 0x0002, 0x17, cat({le16(0x0A0B), {0x08}}), two(zovQMINASEventReportINDGetErrorRate),
         cat({nat(uint16_t(0x0A0B)), {0x08}})},
        {"SignalStrength IO", 0x0020, 0x13, le32(0xA1B2C3D4), one(zovQMINASGetSignalStrengthRespGetIO),
         nat(uint32_t(0xA1B2C3D4))},
        {"SignalStrength SINR", 0x0020, 0x14, {0x03}, one(zovQMINASGetSignalStrengthRespGetSINR), {0x03}},
        {"RoamingIndicatorValue", 0x0024, 0x10, {0x01}, one(zovQMINASGetServingSystemRespGetRoamingIndicatorValue),
         {0x01}},
        {"CDMASystemID", 0x0024, 0x13, cat({le16(0x1122), le16(0x3344)}),
         two(zovQMINASGetServingSystemRespGetCDMASystemID), cat({nat(uint16_t(0x1122)), nat(uint16_t(0x3344))})},
        {"CDMABaseStationInformation", 0x0024, 0x14, cat({le16(0x0102), le32(0x03040506), le32(0x0708090A)}),
         three(zovQMINASGetServingSystemRespGetCDMABaseStationInformation),
         cat({nat(uint16_t(0x0102)), nat(uint32_t(0x03040506)), nat(uint32_t(0x0708090A))})},
        {"DefaultRoamingIndicator", 0x0024, 0x16, {0x02}, one(zovQMINASGetServingSystemRespGetDefaultRoamingIndicator),
         {0x02}},
        {"3GPP2TimeZone", 0x0024, 0x17, {0x0F, 0x10, 0x01}, three(zovQMINASGetServingSystemRespGet3GPP2TimeZone),
         {0x0F, 0x10, 0x01}},
        {"CDMAPRevInUse", 0x0024, 0x18, {0x06}, one(zovQMINASGetServingSystemRespGetCDMAPRevInUse), {0x06}},
        {"HomeSystemID", 0x0025, 0x10, cat({le16(0x5566), le16(0x7788)}),
         two(zovQMINASGetHomeNetworkRespGetHomeSystemID), cat({nat(uint16_t(0x5566)), nat(uint16_t(0x7788))})},
        {"SlotCycleIndex", 0x002F, 0x11, {0x02}, one(zovQMINASGetDeviceConfigRespGetSlotCycleIndex), {0x02}},
        {"StationClassMark", 0x002F, 0x12, {0x2A}, one(zovQMINASGetDeviceConfigRespGetStationClassMark), {0x2A}},
        {"RegistrationParameters", 0x002F, 0x13, {0x01, 0x02, 0x03},
         three(zovQMINASGetDeviceConfigRespGetRegistrationParameters), {0x01, 0x02, 0x03}},
        {"ForceHDRRevision", 0x002F, 0x14, {0x01}, one(zovQMINASGetDeviceConfigRespGetForceHDRRevision), {0x01}},
        {"HDRSCPCustomConfig", 0x002F, 0x15, cat({{0x01}, le32(0x11223344), le32(0x55667788), le32(0x99AABBCC)}),
         hdrConfig(), cat({{0x01}, nat(uint32_t(0x11223344)), nat(uint32_t(0x55667788)), nat(uint32_t(0x99AABBCC))})},
        {"RoamPreference", 0x002F, 0x16, {0x03}, one(zovQMINASGetDeviceConfigRespGetRoamPreference), {0x03}},
        {"EmergencyMode", 0x0034, 0x10, {0x01}, one(zovQMINASGetSystemSelectionPreferenceRespGetEmergencyMode), {0x01}},
        {"ModePreference", 0x0034, 0x11, le16(0x0C0D), one(zovQMINASGetSystemSelectionPreferenceRespGetModePreference),
         nat(uint16_t(0x0C0D))},
        {"BandPreference", 0x0034, 0x12, le64(0x0102030405060708ull),
         one(zovQMINASGetSystemSelectionPreferenceRespGetBandPreference), nat(uint64_t(0x0102030405060708ull))},
        {"CDMAPRLPreference", 0x0034, 0x13, le16(0x0001),
         one(zovQMINASGetSystemSelectionPreferenceRespGetCDMAPRLPreference), nat(uint16_t(0x0001))},
        {"RoamingPreference", 0x0034, 0x14, le16(0x00FF),
         one(zovQMINASGetSystemSelectionPreferenceRespGetRoamingPreference), nat(uint16_t(0x00FF))},
    };
    for (const Getter& g : getters) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(g.id, {result(), tlv(0x01, {0x00}), tlv(g.type, g.value)});
        Bytes out;
        EXPECT_EQ(g.call(msg.data(), int(msg.size()), false, out), int(g.value.size()));
        EXPECT_EQ(out, g.expected);
        EXPECT_EQ(g.call(msg.data(), int(msg.size()), true, out), -1);
        EXPECT_EQ(g.call(nullptr, int(msg.size()), false, out), -1);
        Bytes other = svcMessage(uint16_t(g.id + 1), {tlv(g.type, g.value)});
        EXPECT_EQ(g.call(other.data(), int(other.size()), false, out), -2);
        Bytes without = svcMessage(g.id, {result(), tlv(uint8_t(g.type + 0x20), g.value)});
        EXPECT_EQ(g.call(without.data(), int(without.size()), false, out), -3);
        // The item's last byte lies beyond the buffer: nothing is written.
        Bytes cut = head(msg, msg.size() - 1);
        EXPECT_EQ(g.call(cut.data(), int(cut.size()), false, out), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(out, Bytes(g.expected.size(), 0));
    }
}

TEST(NasGetters, FixedFieldsAreReadPastAShortItemIntoTheFollowingBytes) {
    // A CDMA system id item of length 2 is read on into the next item's bytes.
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x13, le16(0x0102)), tlv(0x16, {0x09})});
    uint16_t sid = 0, nid = 0;
    EXPECT_EQ(zovQMINASGetServingSystemRespGetCDMASystemID(msg.data(), int(msg.size()), &sid, &nid), 2);
    EXPECT_EQ(sid, 0x0102);
    EXPECT_EQ(nid, 0x0116);  // type 0x16 and the low length byte 0x01
}

// ------------------------------------------------- mandatory items --

TEST(NasResponses, GetSignalStrengthNeedsBothOutputsAndItsItem) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, {0xB0, 0x05})});
    QmiResult r;
    uint8_t strength = 0, ri = 0;
    EXPECT_EQ(zovQMINASGetSignalStrengthResp(msg.data(), int(msg.size()), &r, &strength, &ri), 12);
    EXPECT_EQ(strength, 0xB0);
    EXPECT_EQ(ri, 0x05);
    EXPECT_EQ(zovQMINASGetSignalStrengthResp(msg.data(), int(msg.size()), &r, nullptr, &ri), -1);
    EXPECT_EQ(zovQMINASGetSignalStrengthResp(msg.data(), int(msg.size()), &r, &strength, nullptr), -1);
    Bytes without = svcMessage(0x0020, {result(1, 2)});
    r = untouchedResult();
    EXPECT_EQ(zovQMINASGetSignalStrengthResp(without.data(), int(without.size()), &r, &strength, &ri), -4);
    EXPECT_EQ(res(r), (Res{1, 2}));
}

TEST(NasResponses, GetACCOLCAndANAAAStatusDeliverOneByte) {
    QmiResult r;
    uint8_t v = 0;
    Bytes accolc = svcMessage(0x002C, {result(), tlv(0x01, {0x09})});
    EXPECT_EQ(zovQMINASGetACCOLCResp(accolc.data(), int(accolc.size()), &r, &v), 11);
    EXPECT_EQ(v, 0x09);
    EXPECT_EQ(zovQMINASGetACCOLCResp(accolc.data(), int(accolc.size()), &r, nullptr), -1);
    Bytes status = svcMessage(0x0032, {result(), tlv(0x01, {0x01})});
    EXPECT_EQ(zovQMINASGetANAAAStatusResp(status.data(), int(status.size()), &r, &v), 11);
    EXPECT_EQ(v, 0x01);
    EXPECT_EQ(zovQMINASGetANAAAStatusResp(status.data(), int(status.size()), nullptr, &v), -1);
    EXPECT_EQ(zovQMINASGetANAAAStatusResp(accolc.data(), int(accolc.size()), &r, &v), -2);
    Bytes without = svcMessage(0x0032, {result()});
    EXPECT_EQ(zovQMINASGetANAAAStatusResp(without.data(), int(without.size()), &r, &v), -4);
    without = svcMessage(0x002C, {result()});
    EXPECT_EQ(zovQMINASGetACCOLCResp(without.data(), int(without.size()), &r, &v), -4);
}

Bytes rfBands() { return cat({{0x02}, {0x05}, le16(0x0102), le16(0x0304), {0x08}, le16(0x0506), le16(0x0708)}); }

TEST(NasResponses, GetRFBandInfoCopiesFiveByteEntries) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, rfBands())});
    QmiResult r;
    uint8_t count = 0;
    NASRFBandRecord list[3];
    std::memset(list, 0xEE, sizeof list);
    EXPECT_EQ(zovQMINASGetRFBandInfoResp(msg.data(), int(msg.size()), &r, &count, list), int(msg.size()) - 7);
    EXPECT_EQ(count, 2);
    const Bytes wire = rfBands();
    EXPECT_EQ(bytesOf(list, 3), cat({Bytes(wire.begin() + 1, wire.end()), fill(5, 0xEE)}));
    EXPECT_EQ(rd16(&list[1].third), 0x0708);
    EXPECT_EQ(zovQMINASGetRFBandInfoResp(msg.data(), int(msg.size()), &r, nullptr, list), -1);
    Bytes without = svcMessage(0x0031, {result()});
    EXPECT_EQ(zovQMINASGetRFBandInfoResp(without.data(), int(without.size()), &r, &count, list), -4);
}

TEST(NasResponses, GetRFBandInfoWithNullArrayWritesOnlyTheCount) {
    // Three entries announced, none present: without an array they are not read.
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, {0x03})});
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMINASGetRFBandInfoResp(msg.data(), int(msg.size()), &r, &count, nullptr), 11);
    EXPECT_EQ(count, 3);
    NASRFBandRecord list[3];
    std::memset(list, 0xEE, sizeof list);
    count = 0xEE;
    EXPECT_EQ(zovQMINASGetRFBandInfoResp(msg.data(), int(msg.size()), &r, &count, list), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(bytesOf(list, 3), fill(15, 0xEE));
}

TEST(NasIndications, EventReportRFBandListIsTheSameLayout) {
    Bytes msg = svcMessage(0x0002, {tlv(0x11, rfBands())}, 0, 0x04);
    uint8_t count = 0;
    NASRFBandRecord list[2];
    EXPECT_EQ(zovQMINASEventReportINDGetRFBandInformationList(msg.data(), int(msg.size()), &count, list), 11);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(list[1].first, 0x08);
    EXPECT_EQ(rd16(&list[1].second), 0x0506);
    EXPECT_EQ(zovQMINASEventReportINDGetRFBandInformationList(msg.data(), int(msg.size()), nullptr, list), -1);
    count = 0;
    EXPECT_EQ(zovQMINASEventReportINDGetRFBandInformationList(msg.data(), int(msg.size()), &count, nullptr), 11);
    EXPECT_EQ(count, 2);
}

// ------------------------------------------------------ serving system --

NASServingSystem untouchedServing(uint8_t* list) {
    NASServingSystem s;
    std::memset(&s, 0xEE, sizeof s);
    s.list = list;
    return s;
}

TEST(NasServingSystem, ResponseFillsTheStateBytesAndTheRadioList) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x01, {0x01, 0x01, 0x02, 0x03, 0x02, 0x04, 0x05})});
    QmiResult r;
    Bytes list(3, 0xEE);
    NASServingSystem ss = untouchedServing(list.data());
    EXPECT_EQ(zovQMINASGetServingSystemResp(msg.data(), int(msg.size()), &r, &ss), 17);
    EXPECT_EQ(head(bytesOf(&ss), 5), Bytes({0x01, 0x01, 0x02, 0x03, 0x02}));
    EXPECT_EQ(+ss.list, list.data());
    EXPECT_EQ(list, Bytes({0x04, 0x05, 0xEE}));
    EXPECT_EQ(zovQMINASGetServingSystemResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes without = svcMessage(0x0024, {result()});
    EXPECT_EQ(zovQMINASGetServingSystemResp(without.data(), int(without.size()), &r, &ss), -4);
}

TEST(NasServingSystem, NullListPointerFillsTheFirstFiveBytesAndCopiesNothing) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x01, {0x01, 0x02, 0x03, 0x04, 0x02, 0x08, 0x09})});
    QmiResult r;
    NASServingSystem ss = untouchedServing(nullptr);
    EXPECT_EQ(zovQMINASGetServingSystemResp(msg.data(), int(msg.size()), &r, &ss), 17);
    EXPECT_EQ(head(bytesOf(&ss), 5), Bytes({0x01, 0x02, 0x03, 0x04, 0x02}));
    EXPECT_EQ(+ss.list, nullptr);
}

TEST(NasServingSystem, ListRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x01, {0x01, 0x02, 0x03, 0x04, 0x05, 0x08})});
    QmiResult r;
    Bytes list(5, 0xEE);
    NASServingSystem ss = untouchedServing(list.data());
    EXPECT_EQ(zovQMINASGetServingSystemResp(msg.data(), int(msg.size()), &r, &ss), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(head(bytesOf(&ss), 5), fill(5, 0xEE));
    EXPECT_EQ(list, fill(5, 0xEE));
}

TEST(NasServingSystem, IndicationWithoutItemOneIsMinusThree) {
    Bytes msg = svcMessage(0x0024, {tlv(0x10, {0x01})}, 0, 0x04);
    NASServingSystem ss = untouchedServing(nullptr);
    EXPECT_EQ(zovQMINASGetServingSystemIND(msg.data(), int(msg.size()), &ss), -3);
    EXPECT_EQ(head(bytesOf(&ss), 5), fill(5, 0xEE));
    Bytes good = svcMessage(0x0024, {tlv(0x01, {0x01, 0x02, 0x03, 0x04, 0x01, 0x07})}, 0, 0x04);
    uint8_t radio = 0;
    ss = untouchedServing(&radio);
    EXPECT_EQ(zovQMINASGetServingSystemIND(good.data(), int(good.size()), &ss), 9);
    EXPECT_EQ(head(bytesOf(&ss), 5), Bytes({0x01, 0x02, 0x03, 0x04, 0x01}));
    EXPECT_EQ(radio, 0x07);
    EXPECT_EQ(zovQMINASGetServingSystemIND(good.data(), int(good.size()), nullptr), -1);
    EXPECT_EQ(zovQMINASGetServingSystemIND(nullptr, 0, &ss), -1);
    Bytes other = svcMessage(0x0025, {tlv(0x01, {0x01})});
    EXPECT_EQ(zovQMINASGetServingSystemIND(other.data(), int(other.size()), &ss), -2);
}

TEST(NasServingSystem, DataServiceCapabilityListCopiesCountBytes) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x11, {0x03, 0x01, 0x02, 0x05})});
    uint8_t count = 0;
    Bytes list(4, 0xEE);
    EXPECT_EQ(zovQMINASGetServingSystemRespGetDataServiceCapabilityList(msg.data(), int(msg.size()), &count,
                                                                        list.data()),
              4);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(list, Bytes({0x01, 0x02, 0x05, 0xEE}));
    EXPECT_EQ(zovQMINASGetServingSystemRespGetDataServiceCapabilityList(msg.data(), int(msg.size()), nullptr,
                                                                        list.data()),
              -1);
    count = 0;
    EXPECT_EQ(zovQMINASGetServingSystemRespGetDataServiceCapabilityList(msg.data(), int(msg.size()), &count, nullptr),
              4);
    EXPECT_EQ(count, 3);
}

TEST(NasServingSystem, RoamingIndicatorListSplitsPairsAndCountZeroWritesOnlyTheCount) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x15, {0x02, 0x01, 0x11, 0x02, 0x22})});
    uint8_t count = 0;
    Bytes first(3, 0xEE), second(3, 0xEE);
    EXPECT_EQ(zovQMINASGetServingSystemRespGetRoamingIndicatorList(msg.data(), int(msg.size()), &count, first.data(),
                                                                   second.data()),
              5);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(first, Bytes({0x01, 0x02, 0xEE}));
    EXPECT_EQ(second, Bytes({0x11, 0x22, 0xEE}));
    EXPECT_EQ(zovQMINASGetServingSystemRespGetRoamingIndicatorList(msg.data(), int(msg.size()), nullptr, nullptr,
                                                                   nullptr),
              -1);
    Bytes empty = svcMessage(0x0024, {result(), tlv(0x15, {0x00})});
    first = fill(3, 0xEE);
    second = fill(3, 0xEE);
    count = 0xEE;
    EXPECT_EQ(zovQMINASGetServingSystemRespGetRoamingIndicatorList(empty.data(), int(empty.size()), &count,
                                                                   first.data(), second.data()),
              1);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(first, fill(3, 0xEE));
    EXPECT_EQ(second, fill(3, 0xEE));
}

TEST(NasServingSystem, CurrentPLMNFillsCodesAndDescriptionLengthOnly) {
    Bytes msg = svcMessage(0x0024, {result(), tlv(0x12, cat({le16(0x0136), le16(0x0001), {0x03}, str("ABC")}))});
    Bytes desc(4, 0xEE);
    NASNetworkRecord net = untouchedNetwork(desc.data());
    EXPECT_EQ(zovQMINASGetServingSystemRespGetCurrentPLMN(msg.data(), int(msg.size()), &net), 8);
    EXPECT_EQ(rd16(&net.firstCode), 0x0136);
    EXPECT_EQ(rd16(&net.secondCode), 0x0001);
    EXPECT_EQ(rd16(&net.thirdCode), 0xEEEE);
    EXPECT_EQ(net.status, 0xEE);
    EXPECT_EQ(net.descriptionLength, 3);
    EXPECT_EQ(net.description, desc.data());
    EXPECT_EQ(desc, cat({str("ABC"), {0xEE}}));
    EXPECT_EQ(zovQMINASGetServingSystemRespGetCurrentPLMN(msg.data(), int(msg.size()), nullptr), -1);
    net = untouchedNetwork();
    EXPECT_EQ(zovQMINASGetServingSystemRespGetCurrentPLMN(msg.data(), int(msg.size()), &net), 8);
    EXPECT_EQ(net.descriptionLength, 3);
}

TEST(NasHomeNetwork, ResponseFillsTheNetworkRecordFromItemOne) {
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x01, cat({le16(0x00F1), le16(0x0010), {0x02}, str("XY")}))});
    QmiResult r;
    Bytes desc(2, 0xEE);
    NASNetworkRecord net = untouchedNetwork(desc.data());
    EXPECT_EQ(zovQMINASGetHomeNetworkResp(msg.data(), int(msg.size()), &r, &net), 17);
    EXPECT_EQ(rd16(&net.firstCode), 0x00F1);
    EXPECT_EQ(rd16(&net.secondCode), 0x0010);
    EXPECT_EQ(rd16(&net.thirdCode), 0xEEEE);
    EXPECT_EQ(net.status, 0xEE);
    EXPECT_EQ(net.descriptionLength, 2);
    EXPECT_EQ(desc, str("XY"));
    EXPECT_EQ(zovQMINASGetHomeNetworkResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes without = svcMessage(0x0025, {result()});
    EXPECT_EQ(zovQMINASGetHomeNetworkResp(without.data(), int(without.size()), &r, &net), -4);
    // A description running past the buffer: nothing at all is written.
    Bytes cut = head(msg, msg.size() - 1);
    net = untouchedNetwork(desc.data());
    desc = fill(2, 0xEE);
    net.description = desc.data();
    EXPECT_EQ(zovQMINASGetHomeNetworkResp(cut.data(), int(cut.size()), &r, &net), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(head(bytesOf(&net), 8), fill(8, 0xEE));
    EXPECT_EQ(desc, fill(2, 0xEE));
}

// --------------------------------------------------------------- lists --

using PairListGetter = int (*)(const uint8_t*, int, uint16_t*, uint8_t*, uint8_t*);

TEST(NasSignalStrength, EveryPairListHasAU16CountAndSplitsItsPairs) {
    const struct {
        const char* name;
        PairListGetter get;
        uint8_t type;
    } lists[] = {
        {"SignalStrengthList", zovQMINASGetSignalStrengthRespGetSignalStrengthList, 0x10},
        {"RSSIList", zovQMINASGetSignalStrengthRespGetRSSIList, 0x11},
        {"ECIOList", zovQMINASGetSignalStrengthRespGetECIOList, 0x12},
    };
    for (const auto& l : lists) {
        SCOPED_TRACE(l.name);
        Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, {0, 0}), tlv(l.type, {0x02, 0x00, 0xA1, 0x01, 0xA2, 0x02})});
        int len = int(msg.size());
        uint16_t count = 0;
        Bytes first(3, 0xEE), second(3, 0xEE);
        EXPECT_EQ(l.get(msg.data(), len, &count, first.data(), second.data()), 6);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(first, Bytes({0xA1, 0xA2, 0xEE}));
        EXPECT_EQ(second, Bytes({0x01, 0x02, 0xEE}));
        // Each array is optional on its own.
        first = fill(3, 0xEE);
        EXPECT_EQ(l.get(msg.data(), len, &count, nullptr, second.data()), 6);
        EXPECT_EQ(l.get(msg.data(), len, &count, first.data(), nullptr), 6);
        EXPECT_EQ(first, Bytes({0xA1, 0xA2, 0xEE}));
        EXPECT_EQ(l.get(msg.data(), len, nullptr, first.data(), second.data()), -1);
        EXPECT_EQ(l.get(nullptr, len, &count, first.data(), second.data()), -1);
        Bytes noItem = svcMessage(0x0020, {result()});
        EXPECT_EQ(l.get(noItem.data(), int(noItem.size()), &count, nullptr, nullptr), -3);
        EXPECT_EQ(l.get(noItem.data(), int(noItem.size()) - 1, &count, nullptr, nullptr), -3);
    }
}

TEST(NasSignalStrength, ListCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x10, {0x03, 0x00, 0xA1, 0x01, 0xA2, 0x02})});
    uint16_t count = 0xEEEE;
    Bytes first(3, 0xEE), second(3, 0xEE);
    EXPECT_EQ(zovQMINASGetSignalStrengthRespGetSignalStrengthList(msg.data(), int(msg.size()), &count, first.data(),
                                                                  second.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(first, fill(3, 0xEE));
    EXPECT_EQ(second, fill(3, 0xEE));
    // Without arrays only the count is read.
    EXPECT_EQ(zovQMINASGetSignalStrengthRespGetSignalStrengthList(msg.data(), int(msg.size()), &count, nullptr,
                                                                  nullptr),
              6);
    EXPECT_EQ(count, 3);
}

TEST(NasSignalStrength, ErrorRateListDeliversNativeU16AndU8Arrays) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x15, cat({le16(2), le16(0x0102), {0x05}, le16(0x0304), {0x06}}))});
    uint16_t count = 0;
    uint16_t rates[3] = {0xEEEE, 0xEEEE, 0xEEEE};
    Bytes ri(3, 0xEE);
    EXPECT_EQ(zovQMINASGetSignalStrengthRespGetErrorRateList(msg.data(), int(msg.size()), &count, rates, ri.data()), 8);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(rates[0], 0x0102);
    EXPECT_EQ(rates[1], 0x0304);
    EXPECT_EQ(rates[2], 0xEEEE);
    EXPECT_EQ(ri, Bytes({0x05, 0x06, 0xEE}));
    EXPECT_EQ(zovQMINASGetSignalStrengthRespGetErrorRateList(msg.data(), int(msg.size()), nullptr, rates, ri.data()),
              -1);
    count = 0;
    EXPECT_EQ(zovQMINASGetSignalStrengthRespGetErrorRateList(msg.data(), int(msg.size()), &count, nullptr, nullptr), 8);
    EXPECT_EQ(count, 2);
}

// One scan element: codes, status, description.
Bytes scanned(uint16_t a, uint16_t b, uint8_t status, const std::string& desc) {
    return cat({le16(a), le16(b), {status, uint8_t(desc.size())}, str(desc)});
}

TEST(NasNetworkScan, ElementsAreWalkedByTheirOwnLengthAndRecordsByTheirSize) {
    Bytes value = cat({le16(2), scanned(0x0136, 0x0001, 0x0A, "ABCD"), scanned(0x0208, 0x0002, 0x0B, "XY")});
    // The second element starts at value byte 2 + 6 + 4 = 12.
    ASSERT_EQ(value[12], 0x08);
    Bytes msg = svcMessage(0x0021, {result(), tlv(0x10, value)});
    uint16_t count = 0;
    Bytes d0(5, 0xEE), d1(3, 0xEE);
    NASNetworkRecord list[3] = {untouchedNetwork(d0.data()), untouchedNetwork(d1.data()), untouchedNetwork()};
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(msg.data(), int(msg.size()), &count, list),
              int(value.size()));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(rd16(&list[0].firstCode), 0x0136);
    EXPECT_EQ(rd16(&list[0].secondCode), 0x0001);
    EXPECT_EQ(rd16(&list[0].thirdCode), 0xEEEE);
    EXPECT_EQ(list[0].status, 0x0A);
    EXPECT_EQ(list[0].descriptionLength, 4);
    EXPECT_EQ(d0, cat({str("ABCD"), {0xEE}}));
    EXPECT_EQ(rd16(&list[1].firstCode), 0x0208);
    EXPECT_EQ(rd16(&list[1].secondCode), 0x0002);
    EXPECT_EQ(rd16(&list[1].thirdCode), 0xEEEE);
    EXPECT_EQ(list[1].status, 0x0B);
    EXPECT_EQ(list[1].descriptionLength, 2);
    EXPECT_EQ(list[1].description, d1.data());
    EXPECT_EQ(d1, cat({str("XY"), {0xEE}}));
    EXPECT_EQ(head(bytesOf(&list[2]), 8), fill(8, 0xEE));
}

TEST(NasNetworkScan, NullArrayReturnsOnlyTheCount) {
    // The elements are absent altogether: with no array they are never read.
    Bytes msg = svcMessage(0x0021, {result(), tlv(0x10, le16(2))});
    uint16_t count = 0;
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(msg.data(), int(msg.size()), &count, nullptr), 2);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(msg.data(), int(msg.size()), nullptr, nullptr),
              -1);
    Bytes noItem = svcMessage(0x0021, {result()});
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(noItem.data(), int(noItem.size()), &count,
                                                                       nullptr),
              -3);
}

TEST(NasNetworkScan, NullDescriptionPointersStillAdvanceTheWalk) {
    Bytes value = cat({le16(2), scanned(1, 2, 3, "LONG NAME"), scanned(4, 5, 6, "")});
    Bytes msg = svcMessage(0x0021, {result(), tlv(0x10, value)});
    uint16_t count = 0;
    NASNetworkRecord list[2] = {untouchedNetwork(), untouchedNetwork()};
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(msg.data(), int(msg.size()), &count, list),
              int(value.size()));
    EXPECT_EQ(list[0].descriptionLength, 9);
    EXPECT_EQ(rd16(&list[1].firstCode), 4);
    EXPECT_EQ(list[1].status, 6);
    EXPECT_EQ(list[1].descriptionLength, 0);
}

TEST(NasNetworkScan, DescriptionCutShortByTheBufferIsMalformedAndWritesNothing) {
    Bytes value = cat({le16(2), scanned(1, 2, 3, "AB"), scanned(4, 5, 6, "CDEF")});
    Bytes msg = head(svcMessage(0x0021, {result(), tlv(0x10, value)}), 7 + 7 + 3 + value.size() - 1);
    uint16_t count = 0xEEEE;
    Bytes d0(2, 0xEE), d1(4, 0xEE);
    NASNetworkRecord list[2] = {untouchedNetwork(d0.data()), untouchedNetwork(d1.data())};
    EXPECT_EQ(zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(msg.data(), int(msg.size()), &count, list),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(head(bytesOf(&list[0]), 8), fill(8, 0xEE));
    EXPECT_EQ(head(bytesOf(&list[1]), 8), fill(8, 0xEE));
    EXPECT_EQ(d0, fill(2, 0xEE));
    EXPECT_EQ(d1, fill(4, 0xEE));
}

using NetworkListGetter = int (*)(const uint8_t*, int, uint16_t*, NASNetworkRecord*);

TEST(NasNetworkLists, PreferredListsFillThreeCodesAndLeaveTheRest) {
    const struct {
        const char* name;
        NetworkListGetter get;
        uint8_t type;
    } lists[] = {
        {"3GPPPreferredNetworks", zovQMINASGetPreferredNetworksRespGet3GPPPreferredNetworks, 0x10},
        {"Static3GPPPreferredNetworks", zovQMINASGetPreferredNetworksRespGetStatic3GPPPreferredNetworks, 0x11},
    };
    for (const auto& l : lists) {
        SCOPED_TRACE(l.name);
        Bytes value = cat({le16(2), le16(0x0136), le16(0x0001), le16(0x4000), le16(0x0208), le16(0x0002), le16(0x8000)});
        Bytes msg = svcMessage(0x0026, {result(), tlv(l.type, value)});
        uint16_t count = 0;
        uint8_t desc = 0xEE;
        NASNetworkRecord list[3] = {untouchedNetwork(&desc), untouchedNetwork(), untouchedNetwork()};
        EXPECT_EQ(l.get(msg.data(), int(msg.size()), &count, list), 14);
        EXPECT_EQ(count, 2);
        EXPECT_EQ(rd16(&list[0].firstCode), 0x0136);
        EXPECT_EQ(rd16(&list[0].secondCode), 0x0001);
        EXPECT_EQ(rd16(&list[0].thirdCode), 0x4000);
        EXPECT_EQ(list[0].status, 0xEE);
        EXPECT_EQ(list[0].descriptionLength, 0xEE);
        EXPECT_EQ(list[0].description, &desc);
        EXPECT_EQ(rd16(&list[1].firstCode), 0x0208);
        EXPECT_EQ(rd16(&list[1].thirdCode), 0x8000);
        EXPECT_EQ(head(bytesOf(&list[2]), 8), fill(8, 0xEE));
        EXPECT_EQ(l.get(msg.data(), int(msg.size()), nullptr, list), -1);
        count = 0;
        EXPECT_EQ(l.get(msg.data(), int(msg.size()), &count, nullptr), 14);
        EXPECT_EQ(count, 2);
        Bytes other = svcMessage(0x0026, {result(), tlv(uint8_t(l.type ^ 0x01), value)});
        EXPECT_EQ(l.get(other.data(), int(other.size()), &count, list), -3);  // each list reads only its own item
        Bytes none = svcMessage(0x0026, {result()});
        EXPECT_EQ(l.get(none.data(), int(none.size()), &count, list), -3);
    }
}

TEST(NasNetworkLists, ForbiddenListFillsTwoCodesAndLeavesTheThird) {
    Bytes value = cat({le16(2), le16(0x0136), le16(0x0001), le16(0x0208), le16(0x0002)});
    Bytes msg = svcMessage(0x0028, {result(), tlv(0x10, value)});
    uint16_t count = 0;
    NASNetworkRecord list[2] = {untouchedNetwork(), untouchedNetwork()};
    EXPECT_EQ(zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(msg.data(), int(msg.size()), &count, list), 10);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(rd16(&list[0].firstCode), 0x0136);
    EXPECT_EQ(rd16(&list[0].secondCode), 0x0001);
    EXPECT_EQ(rd16(&list[0].thirdCode), 0xEEEE);
    EXPECT_EQ(rd16(&list[1].firstCode), 0x0208);
    EXPECT_EQ(rd16(&list[1].secondCode), 0x0002);
    EXPECT_EQ(rd16(&list[1].thirdCode), 0xEEEE);
    EXPECT_EQ(list[1].status, 0xEE);
    EXPECT_EQ(zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(msg.data(), int(msg.size()), nullptr, list),
              -1);
    Bytes wrong = svcMessage(0x0026, {result(), tlv(0x10, value)});
    EXPECT_EQ(zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(wrong.data(), int(wrong.size()), &count, list),
              -2);
    // A count beyond the buffer: nothing written.
    Bytes over = svcMessage(0x0028, {result(), tlv(0x10, cat({le16(3), le16(1), le16(2)}))});
    NASNetworkRecord fresh = untouchedNetwork();
    count = 0xEEEE;
    EXPECT_EQ(zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(over.data(), int(over.size()), &count, &fresh),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(head(bytesOf(&fresh), 8), fill(8, 0xEE));
}

// ------------------------------------------------------------------ DDTM --

Bytes ddtm(uint8_t count) {
    Bytes v = {0x01, 0x02};
    v = cat({v, le16(0x0A0B), {count}});
    for (uint8_t i = 0; i < count; ++i) v = cat({v, le16(uint16_t(0x1100 + i))});
    return svcMessage(0x0038, {tlv(0x01, v)}, 0, 0x04);
}

TEST(NasDDTM, IndicationReturnsZeroNotTheAreaLength) {
    Bytes msg = ddtm(2);
    uint8_t a = 0, b = 0, count = 0;
    uint16_t c = 0, list[3] = {0xEEEE, 0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, &c, &count, list), 0);
    EXPECT_EQ(a, 0x01);
    EXPECT_EQ(b, 0x02);
    EXPECT_EQ(c, 0x0A0B);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(list[0], 0x1100);
    EXPECT_EQ(list[1], 0x1101);
    EXPECT_EQ(list[2], 0xEEEE);
}

TEST(NasDDTM, CountZeroWithNullListSucceeds) {
    Bytes msg = ddtm(0);
    uint8_t a = 0, b = 0, count = 0xEE;
    uint16_t c = 0;
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, &c, &count, nullptr), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(c, 0x0A0B);
}

TEST(NasDDTM, NonZeroCountWithNullListIsRefusedAndWritesNothing) {
    Bytes msg = ddtm(2);
    uint8_t a = 0xEE, b = 0xEE, count = 0xEE;
    uint16_t c = 0xEEEE;
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, &c, &count, nullptr), -1);
    EXPECT_EQ(a, 0xEE);
    EXPECT_EQ(b, 0xEE);
    EXPECT_EQ(c, 0xEEEE);
    EXPECT_EQ(count, 0xEE);
}

TEST(NasDDTM, ReturnCodesForMissingOutputsMessageAndItem) {
    Bytes msg = ddtm(1);
    uint8_t a = 0, b = 0, count = 0;
    uint16_t c = 0, list[1];
    EXPECT_EQ(zovQMINASDDTMIND(nullptr, int(msg.size()), &a, &b, &c, &count, list), -1);
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), nullptr, &b, &c, &count, list), -1);
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, nullptr, &c, &count, list), -1);
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, nullptr, &count, list), -1);
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, &c, nullptr, list), -1);
    Bytes other = svcMessage(0x0037, {tlv(0x01, {1, 2, 3, 4, 0})});
    EXPECT_EQ(zovQMINASDDTMIND(other.data(), int(other.size()), &a, &b, &c, &count, list), -2);
    Bytes noItem = svcMessage(0x0038, {result()}, 0, 0x04);
    EXPECT_EQ(zovQMINASDDTMIND(noItem.data(), int(noItem.size()), &a, &b, &c, &count, list), -3);
}

TEST(NasDDTM, ListRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = head(ddtm(2), ddtm(2).size() - 1);
    uint8_t a = 0xEE, b = 0xEE, count = 0xEE;
    uint16_t c = 0xEEEE, list[2] = {0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMINASDDTMIND(msg.data(), int(msg.size()), &a, &b, &c, &count, list), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(a, 0xEE);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(list[0], 0xEEEE);
}

}  // namespace
