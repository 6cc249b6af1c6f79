// PDS, the position determination service.
#include <cstddef>
#include <functional>

#include "testutil.h"

using namespace t;

// Record layouts: pointer fields are 4 bytes on the 32-bit target.
constexpr size_t P = sizeof(void*);
static_assert(sizeof(LengthPrefixedEntry) == 2 + P, "");
static_assert(offsetof(LengthPrefixedEntry, data) == 2, "");
static_assert(sizeof(SatelliteInformationEntry) == 18, "");
static_assert(offsetof(SatelliteInformationEntry, elevation) == 10, "");
static_assert(offsetof(SatelliteInformationEntry, azimuth) == 14, "");
static_assert(offsetof(SatelliteInformationEntry, signalStrength) == 16, "");
static_assert(sizeof(ParsedPositionData) == 105, "");
static_assert(offsetof(ParsedPositionData, milliseconds) == 12, "");
static_assert(offsetof(ParsedPositionData, leapSeconds) == 14, "");
static_assert(offsetof(ParsedPositionData, utcTimestamp) == 15, "");
static_assert(offsetof(ParsedPositionData, timeUncertainty) == 23, "");
static_assert(offsetof(ParsedPositionData, latitude) == 27, "");
static_assert(offsetof(ParsedPositionData, longitude) == 35, "");
static_assert(offsetof(ParsedPositionData, altitudeFromEllipsoid) == 43, "");
static_assert(offsetof(ParsedPositionData, horizontalConfidence) == 91, "");
static_assert(offsetof(ParsedPositionData, positionDOP) == 92, "");
static_assert(offsetof(ParsedPositionData, positionSource) == 104, "");
static_assert(sizeof(GPSStateInformation) == 98, "");
static_assert(offsetof(GPSStateInformation, validMask) == 1, "");
static_assert(offsetof(GPSStateInformation, latitude) == 5, "");
static_assert(offsetof(GPSStateInformation, longitude) == 13, "");
static_assert(offsetof(GPSStateInformation, horizontalUncertainty) == 21, "");
static_assert(offsetof(GPSStateInformation, gpsWeek) == 37, "");
static_assert(offsetof(GPSStateInformation, timeUncertainty) == 39, "");
static_assert(offsetof(GPSStateInformation, ionosphereValid) == 43, "");
static_assert(offsetof(GPSStateInformation, gpsEphemerisMask) == 44, "");
static_assert(offsetof(GPSStateInformation, xtraStartWeek) == 92, "");
static_assert(offsetof(GPSStateInformation, xtraValidHours) == 96, "");
static_assert(sizeof(NetworkInitiatedPromptVX) == 17 + P, "");
static_assert(offsetof(NetworkInitiatedPromptVX, sessionId) == 6, "");
static_assert(offsetof(NetworkInitiatedPromptVX, timeout) == 10, "");
static_assert(offsetof(NetworkInitiatedPromptVX, dataLength) == 16, "");
static_assert(offsetof(NetworkInitiatedPromptVX, data) == 17, "");
static_assert(sizeof(NetworkInitiatedPromptSUPL) == 311 + 2 * P, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, sessionId) == 5, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, serverAddressType) == 13, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, serverIPv4Address) == 14, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, serverIPv6) == 30, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, length1) == 46, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, block1) == 47, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, hash) == 302, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, length2) == 304, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, block2) == 305, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, clientNameEncoding) == 305 + P, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, length3) == 306 + P, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, block3) == 307 + P, "");
static_assert(offsetof(NetworkInitiatedPromptSUPL, qosHorizontalAccuracy) == 307 + 2 * P, "");
static_assert(sizeof(NetworkInitiatedPromptUMTSCP) == 270 + 3 * P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, length1) == 7, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, block1) == 8, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, length2) == 8 + P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, block2) == 9 + P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, locationType) == 264 + P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, length3) == 266 + P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, block3) == 267 + P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, requesterIdEncoding) == 267 + 2 * P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, length4) == 268 + 2 * P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, block4) == 269 + 2 * P, "");
static_assert(offsetof(NetworkInitiatedPromptUMTSCP, codewordEncoding) == 269 + 3 * P, "");
static_assert(sizeof(WiFiAccessPointEntry) == 13, "");
static_assert(offsetof(WiFiAccessPointEntry, rssi) == 6, "");
static_assert(offsetof(WiFiAccessPointEntry, channel) == 10, "");
static_assert(offsetof(WiFiAccessPointEntry, flags) == 12, "");
static_assert(sizeof(EFSFileRecord) == 8 + 2 * P, "");
static_assert(offsetof(EFSFileRecord, name) == 1, "");
static_assert(offsetof(EFSFileRecord, fileOperation) == 1 + P, "");
static_assert(offsetof(EFSFileRecord, dataLength) == 2 + P, "");
static_assert(offsetof(EFSFileRecord, partNumber) == 6 + P, "");
static_assert(offsetof(EFSFileRecord, data) == 8 + P, "");

namespace {

int L(const Bytes& b) { return int(b.size()); }
// An indication as the modem sends it (flags 0x04).
Bytes indMessage(uint16_t id, std::initializer_list<Bytes> items) { return svcMessage(id, items, 0, 0x04); }
template <class T>
Bytes bytesOf(const T& r) {
    const uint8_t* b = reinterpret_cast<const uint8_t*>(&r);
    return Bytes(b, b + sizeof r);
}
template <class T>
T guarded() {
    T r;
    std::memset(&r, 0xEE, sizeof r);
    return r;
}
// Little-endian stores into packed record fields, whatever the host.
void wr16(void* p, uint16_t v) { std::memcpy(p, le16(v).data(), 2); }
void wr32(void* p, uint32_t v) { std::memcpy(p, le32(v).data(), 4); }
void wr64(void* p, uint64_t v) { std::memcpy(p, le64(v).data(), 8); }
uint64_t rd64(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint64_t(rd32(b)) | uint64_t(rd32(b + 4)) << 32;
}
Bytes seq(size_t n, uint8_t first) {
    Bytes b(n);
    for (size_t i = 0; i < n; ++i) b[i] = uint8_t(first + i);
    return b;
}

using Build = int (*)(uint8_t*, int);

// ------------------------------------------------------------- requests --

TEST(PdsRequests, EveryHeaderOnlyRequestWritesSevenBytesAndRefusesSix) {
    struct Case {
        const char* name;
        Build build;
        uint16_t id;
    } cases[] = {
        {"Reset", zovQMIPDSResetReq, 0x00},
        {"SetEventReport", zovQMIPDSSetEventReportReq, 0x01},
        {"GetGPSServiceState", zovQMIPDSGetGPSServiceStateReq, 0x20},
        {"GetNMEAConfig", zovQMIPDSGetNMEAConfigReq, 0x26},
        {"GetDefaultTrackingSession", zovQMIPDSGetDefaultTrackingSessionReq, 0x29},
        {"GetXTRAParameters", zovQMIPDSGetXTRAParametersReq, 0x2B},
        {"SetXTRAParameters", zovQMIPDSSetXTRAParametersReq, 0x2C},
        {"ForceXTRADownload", zovQMIPDSForceXTRADownloadReq, 0x2D},
        {"GetAGPSConfig", zovQMIPDSGetAGPSConfigReq, 0x2E},
        {"SetAGPSConfig", zovQMIPDSSetAGPSConfigReq, 0x2F},
        {"GetAutoTrackingState", zovQMIPDSGetAutoTrackingStateReq, 0x30},
        {"GetCOMPortConfig", zovQMIPDSGetCOMPortConfigReq, 0x32},
        {"ResetGPSServiceData", zovQMIPDSResetGPSServiceDataReq, 0x34},
        {"DetermineSinglePosition", zovQMIPDSDetermineSinglePositionReq, 0x35},
        {"GetGPSServiceVersion", zovQMIPDSGetGPSServiceVersionReq, 0x36},
        {"InjectPositionData", zovQMIPDSInjectPositionDataReq, 0x38},
        {"InjectWiFiPositionData", zovQMIPDSInjectWiFiPositionDataReq, 0x39},
        {"GetSBASConfig", zovQMIPDSGetSBASConfigReq, 0x3A},
        {"SetSBASConfig", zovQMIPDSSetSBASConfigReq, 0x3B},
        {"InjectAbsTimeRef", zovQMIPDSInjectAbsTimeRefReq, 0x3D},
        {"GetDPOConfig", zovQMIPDSGetDPOConfigReq, 0x3F},
        {"SetDPOConfig", zovQMIPDSSetDPOConfigReq, 0x40},
        {"GetODPConfig", zovQMIPDSGetODPConfigReq, 0x41},
        {"SetODPConfig", zovQMIPDSSetODPConfigReq, 0x42},
        {"CancelSinglePosition", zovQMIPDSCancelSinglePositionReq, 0x43},
        {"GetGPSStateInfo", zovQMIPDSGetGPSStateInfoReq, 0x44},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes buf = buffer(16);
        int before = zovQMIMSMGetCurrentTransactionID();
        EXPECT_EQ(c.build(buf.data(), 6), -1);
        EXPECT_EQ(c.build(nullptr, 16), -1);
        EXPECT_EQ(buf, buffer(16));
        EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), before);
        EXPECT_EQ(c.build(buf.data(), 7), 7);
        EXPECT_EQ(head(buf, 8), cat({reqHeader(c.id, 0), {0xEE}}));
    }
}

TEST(PdsRequests, EveryRequestWithItsOwnItemWritesItAndRefusesOneByteLess) {
    struct Case {
        const char* name;
        Build build;
        uint16_t id;
        Bytes value;
    } cases[] = {
        {"SetGPSServiceState",
         [](uint8_t* b, int n) { return zovQMIPDSSetGPSServiceStateReq(b, n, 0x01); },
         0x21,
         {0x01}},
        {"SetDefaultTrackingSession",
         [](uint8_t* b, int n) {
             return zovQMIPDSSetDefaultTrackingSessionReq(b, n, 0x02, 0x1E, 0x11223344, 0x55667788);
         },
         0x2A, cat({{0x02, 0x1E}, le32(0x11223344), le32(0x55667788)})},
        {"SetAutoTrackingState",
         [](uint8_t* b, int n) { return zovQMIPDSSetAutoTrackingStateReq(b, n, 0x01); },
         0x31,
         {0x01}},
        {"SendNIResponse", [](uint8_t* b, int n) { return zovQMIPDSSendNIResponseReq(b, n, 0x02); }, 0x3C, {0x02}},
        {"SetNMEAConfig",
         [](uint8_t* b, int n) { return zovQMIPDSSetNMEAConfigReq(b, n, 0x1F, 0x02, 0x01); },
         0x27,
         {0x1F, 0x02, 0x01}},
        {"InjectRelativeTimeRef",
         [](uint8_t* b, int n) { return zovQMIPDSInjectRelativeTimeRefReq(b, n, 0x0102030405060708ull, 0xA0B0); }, 0x28,
         cat({le64(0x0102030405060708ull), le16(0xA0B0)})},
        {"SetCOMPortConfig", [](uint8_t* b, int n) { return zovQMIPDSSetCOMPortConfigReq(b, n, 0x03); }, 0x33, {0x03}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const int size = 10 + L(c.value);
        Bytes buf = buffer(32);
        EXPECT_EQ(c.build(buf.data(), size - 1), -1);
        EXPECT_EQ(c.build(nullptr, 32), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(c.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({reqHeader(c.id, uint16_t(size - 7)), tlv(0x01, c.value), {0xEE}}));
    }
}

TEST(PdsRequests, SetGPSServiceStateNeedsElevenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIPDSSetGPSServiceStateReq(buf.data(), 10, 1), -1);
    EXPECT_EQ(zovQMIPDSSetGPSServiceStateReq(buf.data(), 11, 1), 11);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x21, 4), {0x01, 0x01, 0x00, 0x01}, {0xEE}}));
}

struct AddCase {
    const char* name;
    Build base;
    uint16_t id;
    Build add;
    uint8_t type;
    Bytes value;
};

void checkAdds(const std::vector<AddCase>& cases) {
    for (const AddCase& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes buf = buffer(64);
        ASSERT_EQ(c.base(buf.data(), 64), 7);
        const int total = 10 + L(c.value);
        EXPECT_EQ(c.add(buf.data(), 64), total);
        EXPECT_EQ(head(buf, size_t(total) + 1),
                  cat({reqHeader(c.id, uint16_t(total - 7)), tlv(c.type, c.value), {0xEE}}));
        EXPECT_EQ(c.add(nullptr, 64), -1);
        // One byte short of a second copy: refused, message unchanged.
        Bytes before = buf;
        EXPECT_EQ(c.add(buf.data(), 2 * total - 8), -2);
        EXPECT_EQ(buf, before);
        EXPECT_EQ(c.add(buf.data(), 2 * total - 7), 2 * total - 7);
    }
}

TEST(PdsRequests, EventReportSubscriptionsUseTheirOwnNumbersSkipping0x11) {
    Build base = zovQMIPDSSetEventReportReq;
    checkAdds({
        {"PositionDataNMEA",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddPositionDataNMEA(b, n, 1); },
         0x10,
         {0x01}},
        {"ParsedPositionData",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddParsedPositionData(b, n, 1); },
         0x12,
         {0x01}},
        {"ExternalXTRADataRequest",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddExternalXTRADataRequest(b, n, 0); },
         0x13,
         {0x00}},
        {"ExternalTimeInjectionRequest",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddExternalTimeInjectionRequest(b, n, 1); },
         0x14,
         {0x01}},
        {"ExternalWiFiPositionRequest",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddExternalWiFiPositionRequest(b, n, 1); },
         0x15,
         {0x01}},
        {"SatelliteInformation",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddSatelliteInformation(b, n, 1); },
         0x16,
         {0x01}},
        {"NetworkInitiatedPromptVX",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptVX(b, n, 1); },
         0x17,
         {0x01}},
        {"NetworkInitiatedPromptSUPL",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptSUPL(b, n, 1); },
         0x18,
         {0x01}},
        {"NetworkInitiatedPromptUMTSCP",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptUMTSCP(b, n, 1); },
         0x19,
         {0x01}},
        {"PDSCommEvents",
         base,
         0x01,
         [](uint8_t* b, int n) { return zovQMIPDSSetEventReportReqAddPDSCommEvents(b, n, 1); },
         0x1A,
         {0x01}},
    });
}

TEST(PdsRequests, FixedSizeOptionalItemsWriteTheirValues) {
    checkAdds({
        {"SinglePositionMode",
         zovQMIPDSDetermineSinglePositionReq,
         0x35,
         [](uint8_t* b, int n) { return zovQMIPDSDetermineSinglePositionReqAddSinglePositionMode(b, n, 2); },
         0x10,
         {0x02}},
        {"SinglePositionTimeout",
         zovQMIPDSDetermineSinglePositionReq,
         0x35,
         [](uint8_t* b, int n) { return zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(b, n, 30); },
         0x11,
         {30}},
        {"SinglePositionAccuracy", zovQMIPDSDetermineSinglePositionReq, 0x35,
         [](uint8_t* b, int n) {
             return zovQMIPDSDetermineSinglePositionReqAddSinglePositionAccuracy(b, n, 0x01020304);
         },
         0x12, le32(0x01020304)},
        {"XTRADatabaseAutodownload",
         zovQMIPDSSetXTRAParametersReq,
         0x2C,
         [](uint8_t* b, int n) { return zovQMIPDSSetXTRAParametersReqAddXTRADatabaseAutodownload(b, n, 1, 0x0A0B); },
         0x10,
         {0x01, 0x0B, 0x0A}},
        {"XTRADatabaseNetworkConfiguration",
         zovQMIPDSSetXTRAParametersReq,
         0x2C,
         [](uint8_t* b, int n) { return zovQMIPDSSetXTRAParametersReqAddXTRADatabaseNetworkConfiguration(b, n, 3); },
         0x12,
         {0x03}},
        {"EmbeddedXTRAClientState",
         zovQMIPDSSetXTRAParametersReq,
         0x2C,
         [](uint8_t* b, int n) { return zovQMIPDSSetXTRAParametersReqAddEmbeddedXTRAClientState(b, n, 1, 2); },
         0x14,
         {0x01, 0x02}},
        {"AGPSLocationServer", zovQMIPDSSetAGPSConfigReq, 0x2F,
         [](uint8_t* b, int n) { return zovQMIPDSSetAGPSConfigReqAddAGPSLocationServer(b, n, 0xC0A80001, 7275); }, 0x10,
         cat({le32(0xC0A80001), le32(7275)})},
        {"GPSServiceData", zovQMIPDSResetGPSServiceDataReq, 0x34,
         [](uint8_t* b, int n) { return zovQMIPDSResetGPSServiceDataReqAddGPSServiceData(b, n, 0x0000FFFF); }, 0x10,
         le32(0x0000FFFF)},
        {"GPSServiceCellDBData", zovQMIPDSResetGPSServiceDataReq, 0x34,
         [](uint8_t* b, int n) { return zovQMIPDSResetGPSServiceDataReqAddGPSServiceCellDBData(b, n, 0x12345678); },
         0x11, le32(0x12345678)},
        {"Timestamp", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddTimestamp(b, n, 0x0000011122334455ull); },
         0x10, le64(0x0000011122334455ull)},
        {"Latitude", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddLatitude(b, n, 0x404A0C49BA5E353Full); }, 0x11,
         le64(0x404A0C49BA5E353Full)},
        {"Longitude", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddLongitude(b, n, 0xC05E800000000001ull); },
         0x12, le64(0xC05E800000000001ull)},
        {"AltitudeFromEllipsoid", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddAltitudeFromEllipsoid(b, n, 0x42C80000); },
         0x13, le32(0x42C80000)},
        {"AltitudeFromSeaLevel", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddAltitudeFromSeaLevel(b, n, 0x42C00000); },
         0x14, le32(0x42C00000)},
        {"HorizontalUncertaintyCircular", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) {
             return zovQMIPDSInjectPositionDataReqAddHorizontalUncertaintyCircular(b, n, 0x41200000);
         },
         0x15, le32(0x41200000)},
        {"VerticalUncertainty", zovQMIPDSInjectPositionDataReq, 0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddVerticalUncertainty(b, n, 0x41A00000); }, 0x16,
         le32(0x41A00000)},
        {"HorizontalConfidence",
         zovQMIPDSInjectPositionDataReq,
         0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddHorizontalConfidence(b, n, 68); },
         0x17,
         {68}},
        {"VerticalConfidence",
         zovQMIPDSInjectPositionDataReq,
         0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddVerticalConfidence(b, n, 95); },
         0x18,
         {95}},
        {"PositionSource",
         zovQMIPDSInjectPositionDataReq,
         0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddPositionSource(b, n, 2); },
         0x19,
         {0x02}},
        {"TimeType",
         zovQMIPDSInjectPositionDataReq,
         0x38,
         [](uint8_t* b, int n) { return zovQMIPDSInjectPositionDataReqAddTimeType(b, n, 1); },
         0x1A,
         {0x01}},
        {"WiFiPositionTime", zovQMIPDSInjectWiFiPositionDataReq, 0x39,
         [](uint8_t* b, int n) { return zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionTime(b, n, 0xCAFEBABE); },
         0x10, le32(0xCAFEBABE)},
        {"WiFiPosition", zovQMIPDSInjectWiFiPositionDataReq, 0x39,
         [](uint8_t* b, int n) {
             return zovQMIPDSInjectWiFiPositionDataReqAddWiFiPosition(b, n, 0x11121314, 0x21222324, 0x3132, 0x41, 0x51);
         },
         0x11, cat({le32(0x11121314), le32(0x21222324), le16(0x3132), {0x41, 0x51}})},
        {"SBASConfiguration",
         zovQMIPDSSetSBASConfigReq,
         0x3B,
         [](uint8_t* b, int n) { return zovQMIPDSSetSBASConfigReqAddSBASConfiguration(b, n, 1); },
         0x10,
         {0x01}},
        {"DPOConfiguration",
         zovQMIPDSSetDPOConfigReq,
         0x40,
         [](uint8_t* b, int n) { return zovQMIPDSSetDPOConfigReqAddDPOConfiguration(b, n, 2); },
         0x10,
         {0x02}},
        {"ODPConfiguration",
         zovQMIPDSSetODPConfigReq,
         0x42,
         [](uint8_t* b, int n) { return zovQMIPDSSetODPConfigReqAddODPConfiguration(b, n, 3); },
         0x10,
         {0x03}},
    });
}

TEST(PdsRequests, LatitudeIsMovedAsRawBitsLowHalfFirst) {
    // The bits of -0.0 and of a NaN pattern go through unchanged.
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIPDSInjectPositionDataReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMIPDSInjectPositionDataReqAddLatitude(buf.data(), 32, 0x8000000000000000ull), 18);
    EXPECT_EQ(zovQMIPDSInjectPositionDataReqAddLongitude(buf.data(), 32, 0x7FF8000000000123ull), 29);
    EXPECT_EQ(Bytes(buf.begin() + 7, buf.begin() + 29),
              cat({tlv(0x11, {0, 0, 0, 0, 0, 0, 0, 0x80}), tlv(0x12, {0x23, 0x01, 0, 0, 0, 0, 0xF8, 0x7F})}));
}

TEST(PdsRequests, AbsoluteTimeIsAddedAsItemOneAndRaisesTheAreaLength) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIPDSInjectAbsTimeRefReq(buf.data(), 32), 7);
    EXPECT_EQ(head(buf, 7), reqHeader(0x3D, 0));
    EXPECT_EQ(zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(buf.data(), 32, 0x000001234567890Aull, 0x0BB8, 1, 0),
              24);
    EXPECT_EQ(
        head(buf, 25),
        cat({reqHeader(0x3D, 17), tlv(0x01, cat({le64(0x000001234567890Aull), le32(0x0BB8), {0x01, 0x00}})), {0xEE}}));
    EXPECT_EQ(zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(buf.data(), 40, 1, 2, 3, 4), -2);
    EXPECT_EQ(zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(nullptr, 40, 1, 2, 3, 4), -1);
}

TEST(PdsRequests, LengthPrefixedAddsWriteLengthByteThenBytes) {
    using Add = int (*)(uint8_t*, int, uint8_t, const void*);
    struct Case {
        const char* name;
        Build base;
        uint16_t id;
        Add add;
    } cases[] = {
        {"XTRADatabaseDownloadConfiguration", zovQMIPDSSetXTRAParametersReq, 0x2C,
         zovQMIPDSSetXTRAParametersReqAddXTRADatabaseDownloadConfiguration},
        {"AGPSLocationServerURL", zovQMIPDSSetAGPSConfigReq, 0x2F, zovQMIPDSSetAGPSConfigReqAddAGPSLocationServerURL},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Bytes buf = buffer(64);
        ASSERT_EQ(c.base(buf.data(), 64), 7);
        // Length 0 with no data: a one-byte value holding 0.
        EXPECT_EQ(c.add(buf.data(), 64, 0, nullptr), 11);
        Bytes url = str("supl.example");
        EXPECT_EQ(c.add(buf.data(), 64, uint8_t(url.size()), url.data()), 11 + 4 + L(url));
        EXPECT_EQ(head(buf, 15 + url.size() + 1), cat({reqHeader(c.id, uint16_t(8 + url.size())),
                                                       tlv(0x11, {0x00}),
                                                       tlv(0x11, cat({{uint8_t(url.size())}, url})),
                                                       {0xEE}}));
        Bytes before = buf;
        EXPECT_EQ(c.add(buf.data(), 64, 3, nullptr), -1);
        EXPECT_EQ(c.add(nullptr, 64, 0, nullptr), -1);
        EXPECT_EQ(buf, before);
    }
}

WiFiAccessPointEntry accessPoint(uint8_t mac0, uint32_t rssi, uint16_t channel, uint8_t flags) {
    WiFiAccessPointEntry e;
    for (int i = 0; i < 6; ++i) e.macAddress[i] = uint8_t(mac0 + i);
    wr32(&e.rssi, rssi);
    wr16(&e.channel, channel);
    e.flags = flags;
    return e;
}

TEST(PdsRequests, AccessPointInformationWritesCountThenEntriesInOrder) {
    WiFiAccessPointEntry aps[2] = {accessPoint(0x10, 0xFFFFFFC4, 6, 1), accessPoint(0x20, 0xFFFFFFB0, 11, 0)};
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPDSInjectWiFiPositionDataReq(buf.data(), 64), 7);
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 64, 2, aps), 7 + 3 + 27);
    Bytes value = cat(
        {{0x02}, seq(6, 0x10), le32(0xFFFFFFC4), le16(6), {0x01}, seq(6, 0x20), le32(0xFFFFFFB0), le16(11), {0x00}});
    EXPECT_EQ(head(buf, 38), cat({reqHeader(0x39, 30), tlv(0x12, value), {0xEE}}));
    Bytes before = buf;
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(nullptr, 64, 0, aps), -1);
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 40, 2, aps), -2);
    EXPECT_EQ(buf, before);
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 64, 0, nullptr), 41);
    EXPECT_EQ(Bytes(buf.begin() + 37, buf.begin() + 42), cat({tlv(0x12, {0x00}), {0xEE}}));
}

TEST(PdsRequests, AccessPointListLargerThanAnItemValueIsRefused) {
    std::vector<WiFiAccessPointEntry> aps(79, accessPoint(1, 2, 3, 4));
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIPDSInjectWiFiPositionDataReq(buf.data(), 2048), 7);
    // 1 + 13 * 79 = 1028 bytes do not fit the 1024-byte item value.
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 2048, 79, aps.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(head(buf, 8), cat({reqHeader(0x39, 0), {0xEE}}));
    EXPECT_EQ(zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(buf.data(), 2048, 78, aps.data()),
              7 + 3 + 1015);
}

TEST(PdsRequests, InjectXTRADataWritesSequenceTotalLengthAndData) {
    Bytes data = seq(5, 0xA0);
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPDSInjectXTRADataReq(buf.data(), 19, 1, 0x1234, 5, data.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIPDSInjectXTRADataReq(buf.data(), 20, 1, 0x1234, 5, data.data()), 20);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x37, 13), tlv(0x01, cat({{0x01}, le16(0x1234), le16(5), data})), {0xEE}}));
    EXPECT_EQ(zovQMIPDSInjectXTRADataReq(buf.data(), 32, 1, 2, 5, nullptr), -1);
    EXPECT_EQ(zovQMIPDSInjectXTRADataReq(nullptr, 32, 1, 2, 0, nullptr), -1);
}

TEST(PdsRequests, InjectXTRADataWithNoDataReturnsFifteen) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPDSInjectXTRADataReq(buf.data(), 32, 3, 0x0100, 0, nullptr), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x37, 8), tlv(0x01, cat({{0x03}, le16(0x0100), le16(0)})), {0xEE}}));
}

EFSFileRecord efsFile(const Bytes& name, const Bytes& data) {
    EFSFileRecord f;
    std::memset(&f, 0, sizeof f);
    f.nameLength = uint8_t(name.size());
    const uint8_t* n = name.empty() ? nullptr : name.data();
    const uint8_t* d = data.empty() ? nullptr : data.data();
    std::memcpy(reinterpret_cast<uint8_t*>(&f) + offsetof(EFSFileRecord, name), &n, sizeof n);
    std::memcpy(reinterpret_cast<uint8_t*>(&f) + offsetof(EFSFileRecord, data), &d, sizeof d);
    f.fileOperation = 0x01;
    wr32(reinterpret_cast<uint8_t*>(&f) + offsetof(EFSFileRecord, dataLength), uint32_t(data.size()));
    f.partNumber = 0x02;
    f.totalParts = 0x03;
    return f;
}

TEST(PdsRequests, InjectEFSDataWritesNameThenDataWithTheirFields) {
    Bytes name = str("/xtra.bin"), data = seq(4, 0x40);
    EFSFileRecord f = efsFile(name, data);
    const int total = 18 + L(name) + L(data);
    Bytes buf = buffer(64);
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), total - 1, &f), -1);
    EXPECT_EQ(buf, buffer(64));
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), total, &f), total);
    Bytes value = cat({{uint8_t(name.size())}, name, {0x01}, le32(4), {0x02, 0x03}, data});
    EXPECT_EQ(head(buf, size_t(total) + 1), cat({reqHeader(0x3E, uint16_t(total - 7)), tlv(0x01, value), {0xEE}}));
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), 64, nullptr), -1);
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(nullptr, 64, &f), -1);
}

TEST(PdsRequests, InjectEFSDataWithEmptyNameAndDataReturnsEighteen) {
    EFSFileRecord f = efsFile({}, {});
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), 18, &f), 18);
    EXPECT_EQ(head(buf, 19), cat({reqHeader(0x3E, 11), tlv(0x01, {0x00, 0x01, 0, 0, 0, 0, 0x02, 0x03}), {0xEE}}));
}

TEST(PdsRequests, InjectEFSDataRefusesMissingBlocksAndHugeLengths) {
    Bytes name = str("f"), data = seq(3, 1);
    Bytes buf = buffer(64);
    EFSFileRecord noName = efsFile(name, data);
    std::memset(reinterpret_cast<uint8_t*>(&noName) + offsetof(EFSFileRecord, name), 0, sizeof(void*));
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), 64, &noName), -1);
    EFSFileRecord noData = efsFile(name, data);
    std::memset(reinterpret_cast<uint8_t*>(&noData) + offsetof(EFSFileRecord, data), 0, sizeof(void*));
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), 64, &noData), -1);
    // A data length near 4 GiB must not wrap the total below the buffer size.
    EFSFileRecord huge = efsFile(name, data);
    wr32(reinterpret_cast<uint8_t*>(&huge) + offsetof(EFSFileRecord, dataLength), 0xFFFFFFF0u);
    EXPECT_EQ(zovQMIPDSInjectEFSDataReq(buf.data(), 64, &huge), -1);
    EXPECT_EQ(buf, buffer(64));
}

// ---------------------------------------------------- prompt answers --

void setPtr(void* field, const void* p) { std::memcpy(field, &p, sizeof p); }
// A block behind a length byte: copied into the record, or pointed at.
void inlineBlock(uint8_t& length, uint8_t* block, const Bytes& b) {
    length = uint8_t(b.size());
    if (!b.empty()) std::memcpy(block, b.data(), b.size());
}
void pointerBlock(uint8_t& length, void* field, const Bytes& b) {
    length = uint8_t(b.size());
    setPtr(field, b.empty() ? nullptr : b.data());
}

NetworkInitiatedPromptVX vxPrompt(const Bytes& data) {
    NetworkInitiatedPromptVX r = guarded<NetworkInitiatedPromptVX>();
    wr32(&r.notificationType, 0x11223344);
    r.positionMode = 1;
    r.requesterIdEncoding = 2;
    wr32(&r.sessionId, 0x55667788);
    wr32(&r.timeout, 0x99AABBCC);
    r.positionQoSIncluded = 3;
    r.positionQoS = 4;
    pointerBlock(r.dataLength, &r.data, data);
    return r;
}
Bytes vxWire(const Bytes& data) {
    return cat({le32(0x11223344), {1, 2}, le32(0x55667788), le32(0x99AABBCC), {3, 4, uint8_t(data.size())}, data});
}

TEST(PdsPrompts, VXAnswerWritesFieldsThenData) {
    Bytes data = str("requester");
    NetworkInitiatedPromptVX r = vxPrompt(data);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 64, 1), 11);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(buf.data(), 64, &r), 11 + 3 + 17 + L(data));
    EXPECT_EQ(head(buf, 41), cat({reqHeader(0x3C, 33), tlv(0x01, {0x01}), tlv(0x10, vxWire(data)), {0xEE}}));
}

TEST(PdsPrompts, VXAnswerWithoutDataIsSeventeenBytes) {
    NetworkInitiatedPromptVX r = vxPrompt({});
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 64, 1), 11);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(buf.data(), 64, &r), 31);
    EXPECT_EQ(Bytes(buf.begin() + 11, buf.begin() + 32), cat({tlv(0x10, vxWire({})), {0xEE}}));
}

TEST(PdsPrompts, VXAnswerRefusesNullRecordAndMissingData) {
    NetworkInitiatedPromptVX r = vxPrompt(str("ab"));
    setPtr(&r.data, nullptr);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 64, 1), 11);
    Bytes before = buf;
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(buf.data(), 64, &r), -1);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(buf.data(), 64, nullptr), -1);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(nullptr, 64, &r), -1);
    r = vxPrompt(str("ab"));
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(buf.data(), 30, &r), -2);
    EXPECT_EQ(buf, before);
}

struct Supl {
    NetworkInitiatedPromptSUPL r;
    Bytes b1, b2, b3;
};
void fillSupl(Supl& s) {
    NetworkInitiatedPromptSUPL& r = s.r;
    r = guarded<NetworkInitiatedPromptSUPL>();
    wr32(&r.notificationType, 0x01020304);
    r.validMask = 0x05;
    wr64(&r.sessionId, 0x0607080910111213ull);
    r.serverAddressType = 0x14;
    wr32(&r.serverIPv4Address, 0x15161718);
    wr32(&r.serverIPv4Port, 0x191A1B1C);
    wr32(&r.requesterIdMask, 0x1D1E1F20);
    wr32(&r.clientNameMask, 0x21222324);
    for (int i = 0; i < 16; ++i) r.serverIPv6[i] = uint8_t(0x30 + i);
    inlineBlock(r.length1, r.block1, s.b1);
    r.hash = 0x41;
    r.positionMethod = 0x42;
    pointerBlock(r.length2, &r.block2, s.b2);
    r.clientNameEncoding = 0x43;
    pointerBlock(r.length3, &r.block3, s.b3);
    r.qosHorizontalAccuracy = 0x44;
    r.qosVerticalAccuracy = 0x45;
    r.qosMaxAge = 0x46;
    r.qosDelay = 0x47;
}
Bytes suplWire(const Bytes& b1, const Bytes& b2, const Bytes& b3) {
    return cat({le32(0x01020304),
                {0x05},
                le64(0x0607080910111213ull),
                {0x14},
                le32(0x15161718),
                le32(0x191A1B1C),
                le32(0x1D1E1F20),
                le32(0x21222324),
                seq(16, 0x30),
                {uint8_t(b1.size())},
                b1,
                {0x41, 0x42},
                {uint8_t(b2.size())},
                b2,
                {0x43},
                {uint8_t(b3.size())},
                b3,
                {0x44, 0x45, 0x46, 0x47}});
}

TEST(PdsPrompts, SUPLAnswerWritesInlineAndPointerBlocksInRecordOrder) {
    Supl s{{}, str("h-slp.example"), str("client"), str("xy")};
    fillSupl(s);
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 128, 1), 11);
    const int value = 56 + 13 + 6 + 2;
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(buf.data(), 128, &s.r), 14 + value);
    EXPECT_EQ(
        head(buf, 14 + value + 1),
        cat({reqHeader(0x3C, uint16_t(7 + value)), tlv(0x01, {0x01}), tlv(0x11, suplWire(s.b1, s.b2, s.b3)), {0xEE}}));
}

TEST(PdsPrompts, SUPLAnswerWithEmptyBlocksIsFiftySixBytes) {
    Supl s{{}, {}, {}, {}};
    fillSupl(s);
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 128, 1), 11);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(buf.data(), 128, &s.r), 14 + 56);
    EXPECT_EQ(Bytes(buf.begin() + 11, buf.begin() + 71), cat({tlv(0x11, suplWire({}, {}, {})), {0xEE}}));
}

TEST(PdsPrompts, SUPLAnswerRefusesAnyPointerBlockWithLengthButNoPointer) {
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 128, 1), 11);
    Bytes before = buf;
    Supl s{{}, str("a"), str("bb"), str("ccc")};
    fillSupl(s);
    setPtr(&s.r.block2, nullptr);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(buf.data(), 128, &s.r), -1);
    // Block 3 is refused as well rather than read through a null pointer.
    fillSupl(s);
    setPtr(&s.r.block3, nullptr);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(buf.data(), 128, &s.r), -1);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(buf.data(), 128, nullptr), -1);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(nullptr, 128, &s.r), -1);
    EXPECT_EQ(buf, before);
}

struct Umts {
    NetworkInitiatedPromptUMTSCP r;
    Bytes b1, b2, b3, b4;
};
void fillUmts(Umts& s) {
    NetworkInitiatedPromptUMTSCP& r = s.r;
    r = guarded<NetworkInitiatedPromptUMTSCP>();
    wr32(&r.notificationType, 0xA1A2A3A4);
    r.invokeId = 0xB1;
    r.validMask = 0xB2;
    r.notificationTextEncoding = 0xB3;
    pointerBlock(r.length1, &r.block1, s.b1);
    inlineBlock(r.length2, r.block2, s.b2);
    r.locationType = 0xC1;
    r.externalAddressType = 0xC2;
    pointerBlock(r.length3, &r.block3, s.b3);
    r.requesterIdEncoding = 0xC3;
    pointerBlock(r.length4, &r.block4, s.b4);
    r.codewordEncoding = 0xC4;
}
Bytes umtsWire(const Bytes& b1, const Bytes& b2, const Bytes& b3, const Bytes& b4) {
    return cat({le32(0xA1A2A3A4),
                {0xB1, 0xB2, 0xB3},
                {uint8_t(b1.size())},
                b1,
                {uint8_t(b2.size())},
                b2,
                {0xC1, 0xC2},
                {uint8_t(b3.size())},
                b3,
                {0xC3},
                {uint8_t(b4.size())},
                b4,
                {0xC4}});
}

TEST(PdsPrompts, UMTSCPAnswerIsWrittenWithTheSUPLItemType0x11) {
    Umts s{{}, str("text"), str("inline"), str("addr"), str("code")};
    fillUmts(s);
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 128, 1), 11);
    const int value = 15 + 4 + 6 + 4 + 4;
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 128, &s.r), 14 + value);
    EXPECT_EQ(head(buf, 14 + value + 1), cat({reqHeader(0x3C, uint16_t(7 + value)),
                                              tlv(0x01, {0x01}),
                                              tlv(0x11, umtsWire(s.b1, s.b2, s.b3, s.b4)),
                                              {0xEE}}));
}

TEST(PdsPrompts, UMTSCPAnswerRefusesAnyPointerBlockWithLengthButNoPointer) {
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 128, 1), 11);
    Bytes before = buf;
    Umts s{{}, str("a"), str("b"), str("c"), str("d")};
    for (int which = 1; which <= 3; ++which) {
        SCOPED_TRACE(which);
        fillUmts(s);
        if (which == 1) setPtr(&s.r.block1, nullptr);
        if (which == 2) setPtr(&s.r.block3, nullptr);  // refused rather than read through null
        if (which == 3) setPtr(&s.r.block4, nullptr);
        EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 128, &s.r), -1);
    }
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 128, nullptr), -1);
    EXPECT_EQ(buf, before);
    // Empty blocks with null pointers are fine: 15 fixed bytes.
    Umts empty{{}, {}, {}, {}, {}};
    fillUmts(empty);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 128, &empty.r), 14 + 15);
    EXPECT_EQ(Bytes(buf.begin() + 11, buf.begin() + 29), tlv(0x11, umtsWire({}, {}, {}, {})));
}

TEST(PdsPrompts, UMTSCPAnswerLargerThanAnItemValueIsRefused) {
    Bytes full = fill(255, 0x5A);
    Umts s{{}, full, full, full, full};
    fillUmts(s);
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIPDSSendNIResponseReq(buf.data(), 2048, 1), 11);
    // 15 + 4 * 255 = 1035 bytes.
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 2048, &s.r), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(head(buf, 12), cat({reqHeader(0x3C, 4), tlv(0x01, {0x01}), {0xEE}}));
    s.b4 = fill(244, 0x5A);  // 1024 exactly
    fillUmts(s);
    EXPECT_EQ(zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(buf.data(), 2048, &s.r), 11 + 3 + 1024);
}

TEST(PdsPrompts, VXPromptIndicationFillsTheRecordAndCopiesThroughItsPointer) {
    Bytes data = str("who");
    Bytes msg = indMessage(0x01, {tlv(0x18, vxWire(data))});
    Bytes out(8, 0xEE);
    NetworkInitiatedPromptVX r = guarded<NetworkInitiatedPromptVX>();
    setPtr(&r.data, out.data());
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(msg.data(), L(msg), &r), 20);
    EXPECT_EQ(head(bytesOf(r), 17), head(vxWire(data), 17));
    EXPECT_EQ(out, cat({data, fill(5, 0xEE)}));
    // A null pointer: the fields and the length only.
    NetworkInitiatedPromptVX n = guarded<NetworkInitiatedPromptVX>();
    setPtr(&n.data, nullptr);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(msg.data(), L(msg), &n), 20);
    EXPECT_EQ(n.dataLength, 3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(msg.data(), L(msg), nullptr), -1);
}

TEST(PdsPrompts, SUPLPromptIndicationFillsInlineAndPointerBlocks) {
    Bytes b1 = str("server"), b2 = str("client-name"), b3 = str("req");
    Bytes msg = indMessage(0x01, {tlv(0x19, suplWire(b1, b2, b3))});
    Bytes out2(16, 0xEE);
    NetworkInitiatedPromptSUPL r = guarded<NetworkInitiatedPromptSUPL>();
    setPtr(&r.block2, out2.data());
    setPtr(&r.block3, nullptr);  // not copied, but the walk still steps over it
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(msg.data(), L(msg), &r), 56 + 6 + 11 + 3);
    const Bytes rb = bytesOf(r);
    EXPECT_EQ(head(rb, 47), head(suplWire(b1, b2, b3), 47));
    EXPECT_EQ(rd64(&r.sessionId), 0x0607080910111213ull);
    EXPECT_EQ(Bytes(rb.begin() + 47, rb.begin() + 54), cat({b1, {0xEE}}));
    EXPECT_EQ(r.hash, 0x41);
    EXPECT_EQ(r.positionMethod, 0x42);
    EXPECT_EQ(r.length2, 11);
    EXPECT_EQ(out2, cat({b2, fill(5, 0xEE)}));
    EXPECT_EQ(r.clientNameEncoding, 0x43);
    EXPECT_EQ(r.length3, 3);
    EXPECT_EQ(r.qosHorizontalAccuracy, 0x44);
    EXPECT_EQ(r.qosVerticalAccuracy, 0x45);
    EXPECT_EQ(r.qosMaxAge, 0x46);
    EXPECT_EQ(r.qosDelay, 0x47);
}

TEST(PdsPrompts, UMTSCPPromptIndicationFillsEveryBlock) {
    Bytes b1 = str("notify"), b2 = str("ext-addr"), b3 = str("requester"), b4 = str("cw");
    Bytes msg = indMessage(0x01, {tlv(0x1A, umtsWire(b1, b2, b3, b4))});
    Bytes o1(8, 0xEE), o3(12, 0xEE), o4(4, 0xEE);
    NetworkInitiatedPromptUMTSCP r = guarded<NetworkInitiatedPromptUMTSCP>();
    setPtr(&r.block1, o1.data());
    setPtr(&r.block3, o3.data());
    setPtr(&r.block4, o4.data());
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(msg.data(), L(msg), &r), 15 + 6 + 8 + 9 + 2);
    EXPECT_EQ(rd32(&r.notificationType), 0xA1A2A3A4u);
    EXPECT_EQ(r.invokeId, 0xB1);
    EXPECT_EQ(r.notificationTextEncoding, 0xB3);
    EXPECT_EQ(r.length1, 6);
    EXPECT_EQ(o1, cat({b1, {0xEE, 0xEE}}));
    EXPECT_EQ(r.length2, 8);
    EXPECT_EQ(Bytes(r.block2, r.block2 + 9), cat({b2, {0xEE}}));
    EXPECT_EQ(r.locationType, 0xC1);
    EXPECT_EQ(r.externalAddressType, 0xC2);
    EXPECT_EQ(r.length3, 9);
    EXPECT_EQ(o3, cat({b3, fill(3, 0xEE)}));
    EXPECT_EQ(r.requesterIdEncoding, 0xC3);
    EXPECT_EQ(r.length4, 2);
    EXPECT_EQ(o4, cat({b4, {0xEE, 0xEE}}));
    EXPECT_EQ(r.codewordEncoding, 0xC4);
}

TEST(PdsPrompts, PromptWhoseBlockRunsPastTheBufferIsMalformedAndWritesNothing) {
    // Block 2 claims 200 bytes; the buffer ends long before.
    Bytes value = cat({le32(1), {2, 3, 4}, {0x00}, {200}, str("short")});
    Bytes msg = indMessage(0x01, {tlv(0x1A, value)});
    NetworkInitiatedPromptUMTSCP r = guarded<NetworkInitiatedPromptUMTSCP>();
    setPtr(&r.block1, nullptr);
    setPtr(&r.block3, nullptr);
    setPtr(&r.block4, nullptr);
    const Bytes before = bytesOf(r);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(msg.data(), L(msg), &r), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(bytesOf(r), before);
}

TEST(PdsPrompts, PromptReadRunsPastItsItemIntoTheFollowingBytes) {
    // The VX item says 3 bytes, but the record is read on from the bytes that follow.
    Bytes wire = vxWire(str("ok"));
    Bytes msg = cat({indMessage(0x01, {tlv(0x18, head(wire, 3))}), Bytes(wire.begin() + 3, wire.end())});
    NetworkInitiatedPromptVX r = guarded<NetworkInitiatedPromptVX>();
    setPtr(&r.data, nullptr);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(msg.data(), L(msg), &r), 3);
    EXPECT_EQ(head(bytesOf(r), 17), head(wire, 17));
}

// ------------------------------------------------------------ responses --

TEST(PdsResponses, ResultOnlyResponsesReturnTheAreaLength) {
    using Parser = int (*)(const uint8_t*, int, QmiResult*);
    struct Case {
        uint16_t id;
        Parser parse;
    } cases[] = {
        {0x00, zovQMIPDSResetResp},
        {0x01, zovQMIPDSSetEventReportResp},
        {0x21, zovQMIPDSSetGPSServiceStateResp},
        {0x27, zovQMIPDSSetNMEAConfigResp},
        {0x28, zovQMIPDSInjectRelativeTimeRefResp},
        {0x2A, zovQMIPDSSetDefaultTrackingSessionResp},
        {0x2B, zovQMIPDSGetXTRAParametersResp},
        {0x2C, zovQMIPDSSetXTRAParametersResp},
        {0x2D, zovQMIPDSForceXTRADownloadResp},
        {0x2E, zovQMIPDSGetAGPSConfigResp},
        {0x2F, zovQMIPDSSetAGPSConfigResp},
        {0x31, zovQMIPDSSetAutoTrackingStateResp},
        {0x33, zovQMIPDSSetCOMPortConfigResp},
        {0x34, zovQMIPDSResetGPSServiceDataResp},
        {0x35, zovQMIPDSDetermineSinglePositionResp},
        {0x37, zovQMIPDSInjectXTRADataResp},
        {0x38, zovQMIPDSInjectPositionDataResp},
        {0x39, zovQMIPDSInjectWiFiPositionDataResp},
        {0x3A, zovQMIPDSGetSBASConfigResp},
        {0x3B, zovQMIPDSSetSBASConfigResp},
        {0x3C, zovQMIPDSSendNIResponseResp},
        {0x3D, zovQMIPDSInjectAbsTimeRefResp},
        {0x3E, zovQMIPDSInjectEFSDataResp},
        {0x3F, zovQMIPDSGetDPOConfigResp},
        {0x40, zovQMIPDSSetDPOConfigResp},
        {0x41, zovQMIPDSGetODPConfigResp},
        {0x42, zovQMIPDSSetODPConfigResp},
        {0x43, zovQMIPDSCancelSinglePositionResp},
        {0x44, zovQMIPDSGetGPSStateInfoResp},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        // A failure result still gives the area length.
        Bytes msg = svcMessage(c.id, {result(1, 0x1A), tlv(0x10, {0x01})});
        QmiResult r = untouchedResult();
        EXPECT_EQ(c.parse(msg.data(), L(msg), &r), 11);
        EXPECT_EQ(res(r), (Res{1, 0x1A}));
        EXPECT_EQ(c.parse(msg.data(), L(msg), nullptr), -1);
        EXPECT_EQ(c.parse(nullptr, L(msg), &r), -1);
        Bytes other = svcMessage(uint16_t(c.id + 0x100), {result()});
        EXPECT_EQ(c.parse(other.data(), L(other), &r), -2);
        Bytes none = svcMessage(c.id, {tlv(0x10, {0x01})});
        r = untouchedResult();
        EXPECT_EQ(c.parse(none.data(), L(none), &r), -3);
        EXPECT_EQ(res(r), res(untouchedResult()));
    }
}

TEST(PdsResponses, GetGPSServiceStateYieldsBothBytes) {
    Bytes msg = svcMessage(0x20, {result(), tlv(0x01, {0x01, 0x02})});
    QmiResult r;
    uint8_t enabled = 0, tracking = 0;
    EXPECT_EQ(zovQMIPDSGetGPSServiceStateResp(msg.data(), L(msg), &r, &enabled, &tracking), 12);
    EXPECT_EQ(enabled, 1);
    EXPECT_EQ(tracking, 2);
    EXPECT_EQ(zovQMIPDSGetGPSServiceStateResp(msg.data(), L(msg), &r, nullptr, &tracking), -1);
    EXPECT_EQ(zovQMIPDSGetGPSServiceStateResp(msg.data(), L(msg), &r, &enabled, nullptr), -1);
}

TEST(PdsResponses, GetDefaultTrackingSessionYieldsFourFields) {
    Bytes msg = svcMessage(0x29, {result(), tlv(0x01, cat({{0x02, 0x3C}, le32(1000), le32(50)}))});
    QmiResult r;
    uint8_t mode = 0, timeout = 0;
    uint32_t interval = 0, accuracy = 0;
    EXPECT_EQ(zovQMIPDSGetDefaultTrackingSessionResp(msg.data(), L(msg), &r, &mode, &timeout, &interval, &accuracy),
              20);
    EXPECT_EQ(mode, 2);
    EXPECT_EQ(timeout, 0x3C);
    EXPECT_EQ(interval, 1000u);
    EXPECT_EQ(accuracy, 50u);
    EXPECT_EQ(zovQMIPDSGetDefaultTrackingSessionResp(msg.data(), L(msg), &r, &mode, &timeout, &interval, nullptr), -1);
}

TEST(PdsResponses, GetAutoTrackingStateYieldsTheState) {
    Bytes msg = svcMessage(0x30, {result(), tlv(0x01, {0x01})});
    QmiResult r;
    uint8_t state = 0;
    EXPECT_EQ(zovQMIPDSGetAutoTrackingStateResp(msg.data(), L(msg), &r, &state), 11);
    EXPECT_EQ(state, 1);
    EXPECT_EQ(zovQMIPDSGetAutoTrackingStateResp(msg.data(), L(msg), &r, nullptr), -1);
}

TEST(PdsResponses, NMEAConfigCOMPortAndVersionYieldTheirBytes) {
    QmiResult r;
    uint8_t a = 0, b = 0, c = 0;
    Bytes nmea = svcMessage(0x26, {result(), tlv(0x01, {0x3F, 0x01, 0x02})});
    EXPECT_EQ(zovQMIPDSGetNMEAConfigResp(nmea.data(), L(nmea), &r, &a, &b, &c), 13);
    EXPECT_EQ(a, 0x3F);
    EXPECT_EQ(b, 1);
    EXPECT_EQ(c, 2);
    EXPECT_EQ(zovQMIPDSGetNMEAConfigResp(nmea.data(), L(nmea), &r, &a, &b, nullptr), -1);
    Bytes port = svcMessage(0x32, {result(), tlv(0x01, {0x04})});
    EXPECT_EQ(zovQMIPDSGetCOMPortConfigResp(port.data(), L(port), &r, &a), 11);
    EXPECT_EQ(a, 4);
    EXPECT_EQ(zovQMIPDSGetCOMPortConfigResp(port.data(), L(port), &r, nullptr), -1);
    Bytes version = svcMessage(0x36, {result(), tlv(0x01, {0x01, 0x07})});
    EXPECT_EQ(zovQMIPDSGetGPSServiceVersionResp(version.data(), L(version), &r, &a, &b), 12);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 7);
    EXPECT_EQ(zovQMIPDSGetGPSServiceVersionResp(version.data(), L(version), &r, nullptr, &b), -1);
}

TEST(PdsResponses, MissingMandatoryItemIsMinusFourAfterTheResultIsFilled) {
    uint8_t a = 0xEE, b = 0xEE, c = 0xEE;
    uint32_t x = 0xEEEEEEEE, y = 0xEEEEEEEE;
    struct Case {
        uint16_t id;
        std::function<int(const uint8_t*, int, QmiResult*)> parse;
    } cases[] = {
        {0x20, [&](const uint8_t* m, int n, QmiResult* r) { return zovQMIPDSGetGPSServiceStateResp(m, n, r, &a, &b); }},
        {0x29, [&](const uint8_t* m, int n,
                   QmiResult* r) { return zovQMIPDSGetDefaultTrackingSessionResp(m, n, r, &a, &b, &x, &y); }},
        {0x30, [&](const uint8_t* m, int n, QmiResult* r) { return zovQMIPDSGetAutoTrackingStateResp(m, n, r, &a); }},
        {0x26, [&](const uint8_t* m, int n, QmiResult* r) { return zovQMIPDSGetNMEAConfigResp(m, n, r, &a, &b, &c); }},
        {0x32, [&](const uint8_t* m, int n, QmiResult* r) { return zovQMIPDSGetCOMPortConfigResp(m, n, r, &a); }},
        {0x36,
         [&](const uint8_t* m, int n, QmiResult* r) { return zovQMIPDSGetGPSServiceVersionResp(m, n, r, &a, &b); }},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.id);
        Bytes msg = svcMessage(k.id, {result(1, 3)});
        QmiResult r = untouchedResult();
        EXPECT_EQ(k.parse(msg.data(), L(msg), &r), -4);
        EXPECT_EQ(res(r), (Res{1, 3}));
        Bytes noResult = svcMessage(k.id, {tlv(0x01, fill(10, 0))});
        EXPECT_EQ(k.parse(noResult.data(), L(noResult), &r), -3);
        Bytes other = svcMessage(uint16_t(k.id + 1), {result(), tlv(0x01, fill(10, 0))});
        EXPECT_EQ(k.parse(other.data(), L(other), &r), -2);
        EXPECT_EQ(k.parse(msg.data(), L(msg), nullptr), -1);
        EXPECT_EQ(k.parse(nullptr, L(msg), &r), -1);
    }
    EXPECT_EQ(a, 0xEE);
    EXPECT_EQ(b, 0xEE);
    EXPECT_EQ(c, 0xEE);
    EXPECT_EQ(x, 0xEEEEEEEEu);
}

TEST(PdsResponses, TrackingSessionCutShortByTheBufferIsMalformed) {
    Bytes msg = svcMessage(0x29, {result(), tlv(0x01, cat({{0x02, 0x3C}, le32(1000), le32(50)}))});
    QmiResult r;
    uint8_t mode = 0xEE, timeout = 0xEE;
    uint32_t interval = 7, accuracy = 7;
    EXPECT_EQ(zovQMIPDSGetDefaultTrackingSessionResp(msg.data(), L(msg) - 1, &r, &mode, &timeout, &interval, &accuracy),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(mode, 0xEE);
    EXPECT_EQ(interval, 7u);
}

TEST(PdsResponses, GPSStateInformationIsCopiedAsOnTheWire) {
    Bytes value = cat({{0x01},
                       le32(0x0000FFFF),
                       le64(0x40490FDB00000000ull),
                       le64(0xC05E800000000000ull),
                       le32(1),
                       le32(2),
                       le32(3),
                       le32(4),
                       le16(2200),
                       le32(5),
                       {0x01},
                       seq(48, 0x80),
                       le16(2201),
                       le16(300),
                       le16(168)});
    ASSERT_EQ(value.size(), 98u);
    Bytes msg = svcMessage(0x44, {result(), tlv(0x10, value)});
    GPSStateInformation s = guarded<GPSStateInformation>();
    EXPECT_EQ(zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(msg.data(), L(msg), &s), 98);
    EXPECT_EQ(bytesOf(s), value);
    EXPECT_EQ(rd64(&s.latitude), 0x40490FDB00000000ull);
    EXPECT_EQ(rd16(&s.gpsWeek), 2200);
    EXPECT_EQ(rd16(&s.xtraValidHours), 168);
    EXPECT_EQ(zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(msg.data(), L(msg), nullptr), -1);
    Bytes bare = svcMessage(0x44, {result()});
    EXPECT_EQ(zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(bare.data(), L(bare), &s), -3);
    Bytes other = svcMessage(0x43, {result(), tlv(0x10, value)});
    EXPECT_EQ(zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(other.data(), L(other), &s), -2);
    // Cut short by the buffer: nothing written.
    GPSStateInformation g = guarded<GPSStateInformation>();
    EXPECT_EQ(zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(msg.data(), L(msg) - 1, &g), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(bytesOf(g), bytesOf(guarded<GPSStateInformation>()));
}

TEST(PdsResponses, XTRAParameterItemsYieldTheirFields) {
    Bytes medium = str("http");
    Bytes msg = svcMessage(
        0x2B, {result(), tlv(0x10, cat({{0x01}, le16(48)})), tlv(0x11, cat({{uint8_t(medium.size())}, medium})),
               tlv(0x12, {0x02}), tlv(0x13, cat({le16(2200), le16(1440), le16(168)})), tlv(0x14, {0x01, 0x00})});
    const uint8_t* m = msg.data();
    const int n = L(msg);
    uint8_t a = 0, b = 0;
    uint16_t w1 = 0, w2 = 0, w3 = 0;
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(m, n, &a, &w1), 3);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(w1, 48);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(m, n, &a, nullptr), -1);
    Bytes out(6, 0xEE);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(m, n, &a, out.data()), 5);
    EXPECT_EQ(a, 4);
    EXPECT_EQ(out, cat({medium, {0xEE, 0xEE}}));
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(m, n, &a, nullptr), 5);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(m, n, nullptr, out.data()), -1);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(m, n, &b), 1);
    EXPECT_EQ(b, 2);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(m, n, nullptr), -1);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(m, n, &w1, &w2, &w3), 6);
    EXPECT_EQ(w1, 2200);
    EXPECT_EQ(w2, 1440);
    EXPECT_EQ(w3, 168);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(m, n, &w1, nullptr, &w3), -1);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(m, n, &a, &b), 2);
    EXPECT_EQ(a, 1);
    EXPECT_EQ(b, 0);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(m, n, &a, nullptr), -1);
    Bytes bare = svcMessage(0x2B, {result()});
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(bare.data(), L(bare), &a, &w1), -3);
    EXPECT_EQ(
        zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(bare.data(), L(bare), &a, nullptr),
        -3);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(bare.data(), L(bare), &b), -3);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(bare.data(), L(bare), &w1, &w2, &w3), -3);
    EXPECT_EQ(zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(bare.data(), L(bare), &a, &b), -3);
}

TEST(PdsResponses, AGPSServerAddressAndURL) {
    Bytes url = str("supl.example.net");
    Bytes msg = svcMessage(
        0x2E, {result(), tlv(0x10, cat({le32(0x0A000001), le32(7275)})), tlv(0x11, cat({{uint8_t(url.size())}, url}))});
    uint32_t address = 0, port = 0;
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(msg.data(), L(msg), &address, &port), 8);
    EXPECT_EQ(address, 0x0A000001u);
    EXPECT_EQ(port, 7275u);
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(msg.data(), L(msg), nullptr, &port), -1);
    uint8_t length = 0;
    Bytes out(20, 0xEE);
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(msg.data(), L(msg), &length, out.data()), 17);
    EXPECT_EQ(length, 16);
    EXPECT_EQ(out, cat({url, fill(4, 0xEE)}));
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(msg.data(), L(msg), nullptr, out.data()), -1);
    Bytes bare = svcMessage(0x2E, {result()});
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(bare.data(), L(bare), &address, &port), -3);
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(bare.data(), L(bare), &length, nullptr), -3);
    // A URL length byte claiming more than the buffer holds: nothing written.
    Bytes cut = svcMessage(0x2E, {result(), tlv(0x11, {0x30, 'a', 'b'})});
    length = 0xEE;
    Bytes o2(4, 0xEE);
    EXPECT_EQ(zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(cut.data(), L(cut), &length, o2.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(length, 0xEE);
    EXPECT_EQ(o2, fill(4, 0xEE));
}

TEST(PdsResponses, SBASDPOAndODPConfigurationsYieldTheirByte) {
    using Get = int (*)(const uint8_t*, int, uint8_t*);
    struct Case {
        uint16_t id;
        Get get;
    } cases[] = {{0x3A, zovQMIPDSGetSBASConfigRespGetSBASConfiguration},
                 {0x3F, zovQMIPDSGetDPOConfigRespGetDPOConfiguration},
                 {0x41, zovQMIPDSGetODPConfigRespGetODPConfiguration}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        Bytes msg = svcMessage(c.id, {result(), tlv(0x10, {0x05})});
        uint8_t v = 0;
        EXPECT_EQ(c.get(msg.data(), L(msg), &v), 1);
        EXPECT_EQ(v, 5);
        EXPECT_EQ(c.get(msg.data(), L(msg), nullptr), -1);
        Bytes bare = svcMessage(c.id, {result()});
        EXPECT_EQ(c.get(bare.data(), L(bare), &v), -3);
        Bytes other = svcMessage(uint16_t(c.id + 1), {result(), tlv(0x10, {0x05})});
        EXPECT_EQ(c.get(other.data(), L(other), &v), -2);
    }
}

// ----------------------------------------------------------- indications --

TEST(PdsIndications, GPSServiceStateIndicationYieldsBothBytes) {
    Bytes msg = indMessage(0x20, {tlv(0x01, {0x01, 0x00})});
    uint8_t enabled = 0, tracking = 9;
    EXPECT_EQ(zovQMIPDSGPSServiceStateIND(msg.data(), L(msg), &enabled, &tracking), 5);
    EXPECT_EQ(enabled, 1);
    EXPECT_EQ(tracking, 0);
    EXPECT_EQ(zovQMIPDSGPSServiceStateIND(msg.data(), L(msg), &enabled, nullptr), -1);
    EXPECT_EQ(zovQMIPDSGPSServiceStateIND(nullptr, L(msg), &enabled, &tracking), -1);
    Bytes other = indMessage(0x21, {tlv(0x01, {0x01, 0x00})});
    EXPECT_EQ(zovQMIPDSGPSServiceStateIND(other.data(), L(other), &enabled, &tracking), -2);
    Bytes empty = indMessage(0x20, {tlv(0x10, {0x01})});
    EXPECT_EQ(zovQMIPDSGPSServiceStateIND(empty.data(), L(empty), &enabled, &tracking), -3);
}

TEST(PdsIndications, EventReportIndicationConfirmsTheIdOnly) {
    Bytes msg = indMessage(0x01, {tlv(0x12, {0x00})});
    EXPECT_EQ(zovQMIPDSEventReportIND(msg.data(), L(msg)), 4);
    // A message without items ends with its head and is not seen at all.
    Bytes empty = indMessage(0x01, {});
    EXPECT_EQ(zovQMIPDSEventReportIND(empty.data(), L(empty)), -2);
    Bytes other = indMessage(0x20, {});
    EXPECT_EQ(zovQMIPDSEventReportIND(other.data(), L(other)), -2);
    EXPECT_EQ(zovQMIPDSEventReportIND(nullptr, 7), -1);
}

TEST(PdsIndications, IndicationNumbersAreOneAboveTheirSubscriptions) {
    // 0x12 is the session status in the indication, 0x13 the parsed position
    // (whose subscription is 0x12).
    Bytes fix = seq(105, 0x10);
    Bytes msg = indMessage(0x01, {tlv(0x12, {0x03}), tlv(0x13, fix), tlv(0x1B, {0x01, 0x02}), tlv(0x1C, le32(4))});
    uint8_t status = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSessionStatus(msg.data(), L(msg), &status), 1);
    EXPECT_EQ(status, 3);
    ParsedPositionData p = guarded<ParsedPositionData>();
    EXPECT_EQ(zovQMIPDSEventReportINDGetParsedPositionData(msg.data(), L(msg), &p), 105);
    EXPECT_EQ(bytesOf(p), fix);
    uint8_t type = 0, state = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetPDSCommEvents(msg.data(), L(msg), &type, &state), 2);
    EXPECT_EQ(type, 1);
    EXPECT_EQ(state, 2);
    uint32_t source = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSource(msg.data(), L(msg), &source), 4);
    EXPECT_EQ(source, 4u);
    Bytes buf = buffer(16);
    ASSERT_EQ(zovQMIPDSSetEventReportReq(buf.data(), 16), 7);
    EXPECT_EQ(zovQMIPDSSetEventReportReqAddParsedPositionData(buf.data(), 16, 1), 11);
    EXPECT_EQ(buf[7], 0x12);
}

TEST(PdsIndications, SmallEventReportItemsRequireTheirOutputsAndPresence) {
    Bytes msg = indMessage(0x01, {tlv(0x16, cat({{0x01}, le16(600)}))});
    uint8_t request = 0, v = 0;
    uint16_t interval = 0;
    uint32_t w = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(msg.data(), L(msg), &request, &interval), 3);
    EXPECT_EQ(request, 1);
    EXPECT_EQ(interval, 600);
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(msg.data(), L(msg), &request, nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSessionStatus(msg.data(), L(msg), nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPDSCommEvents(msg.data(), L(msg), &v, nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSource(msg.data(), L(msg), nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetParsedPositionData(msg.data(), L(msg), nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSessionStatus(msg.data(), L(msg), &v), -3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPDSCommEvents(msg.data(), L(msg), &v, &v), -3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionSource(msg.data(), L(msg), &w), -3);
    ParsedPositionData p;
    EXPECT_EQ(zovQMIPDSEventReportINDGetParsedPositionData(msg.data(), L(msg), &p), -3);
    Bytes other = indMessage(0x20, {tlv(0x16, cat({{0x01}, le16(600)}))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(other.data(), L(other), &request, &interval), -2);
}

TEST(PdsIndications, ParsedPositionKeepsRawBitsOfItsSixtyFourBitFields) {
    Bytes value = cat({le32(0xFFFFFFFF),
                       le16(2024),
                       {5, 3, 14, 12, 30, 45},
                       le16(500),
                       {18},
                       le64(0x000001234567890Aull),
                       le32(9),
                       le64(0x404A0C49BA5E353Full),
                       le64(0xC05E8CCCCCCCCCCDull),
                       seq(48, 0x60),
                       {68},
                       le32(1),
                       le32(2),
                       le32(3),
                       {0x01}});
    ASSERT_EQ(value.size(), 105u);
    Bytes msg = indMessage(0x01, {tlv(0x13, value)});
    ParsedPositionData p = guarded<ParsedPositionData>();
    EXPECT_EQ(zovQMIPDSEventReportINDGetParsedPositionData(msg.data(), L(msg), &p), 105);
    EXPECT_EQ(rd16(&p.year), 2024);
    EXPECT_EQ(p.second, 45);
    EXPECT_EQ(rd64(&p.utcTimestamp), 0x000001234567890Aull);
    EXPECT_EQ(rd64(&p.latitude), 0x404A0C49BA5E353Full);
    EXPECT_EQ(rd64(&p.longitude), 0xC05E8CCCCCCCCCCDull);
    EXPECT_EQ(p.horizontalConfidence, 68);
    EXPECT_EQ(rd32(&p.verticalDOP), 3u);
    EXPECT_EQ(p.positionSource, 1);
}

TEST(PdsIndications, NMEASentenceIsCopiedWhole) {
    Bytes nmea = str("$GPGGA,123519,4807.038,N*47");
    Bytes msg = indMessage(0x01, {tlv(0x10, nmea)});
    uint16_t length = 0;
    Bytes out(40, 0xEE);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionDataNMEA(msg.data(), L(msg), &length, out.data()), L(nmea));
    EXPECT_EQ(length, nmea.size());
    EXPECT_EQ(out, cat({nmea, fill(40 - nmea.size(), 0xEE)}));
    length = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionDataNMEA(msg.data(), L(msg), &length, nullptr), L(nmea));
    EXPECT_EQ(length, nmea.size());
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionDataNMEA(msg.data(), L(msg), nullptr, out.data()), -1);
    Bytes none = indMessage(0x01, {tlv(0x1C, le32(0))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionDataNMEA(none.data(), L(none), &length, nullptr), -3);
}

TEST(PdsIndications, EmptyNMEAItemReturnsZeroAndLeavesDataAlone) {
    Bytes msg = indMessage(0x01, {tlv(0x10, {})});
    uint16_t length = 0xEEEE;
    Bytes out(4, 0xEE);
    EXPECT_EQ(zovQMIPDSEventReportINDGetPositionDataNMEA(msg.data(), L(msg), &length, out.data()), 0);
    EXPECT_EQ(length, 0);
    EXPECT_EQ(out, fill(4, 0xEE));
}

void setEntry(LengthPrefixedEntry& e, void* data) {
    std::memset(&e.length, 0xEE, 2);
    setPtr(&e.data, data);
}

TEST(PdsIndications, XTRADatabaseRequestListsServerEntries) {
    Bytes value = cat({le16(0x4000), {0x02}, {0x04}, str("srv1"), {0x06}, str("server")});
    Bytes msg = indMessage(0x01, {tlv(0x14, value)});
    Bytes o1(6, 0xEE);
    LengthPrefixedEntry e[3];
    setEntry(e[0], o1.data());
    setEntry(e[1], nullptr);  // length only
    setEntry(e[2], nullptr);
    const Bytes third = bytesOf(e[2]);
    uint16_t maxSize = 0;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), &maxSize, &count, e), L(value));
    EXPECT_EQ(maxSize, 0x4000);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(head(bytesOf(e[0]), 2), Bytes({0x04, 0x00}));
    EXPECT_EQ(o1, cat({str("srv1"), {0xEE, 0xEE}}));
    EXPECT_EQ(head(bytesOf(e[1]), 2), Bytes({0x06, 0x00}));
    EXPECT_EQ(bytesOf(e[2]), third);
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), &maxSize, &count, nullptr),
              L(value));
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), nullptr, &count, e), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), &maxSize, nullptr, e), -1);
    Bytes none = indMessage(0x01, {tlv(0x1C, le32(0))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(none.data(), L(none), &maxSize, &count, e), -3);
}

TEST(PdsIndications, TimeInjectionRequestListsServerEntries) {
    Bytes value = cat({le32(0x00010000), {0x01}, {0x03}, str("ntp")});
    Bytes msg = indMessage(0x01, {tlv(0x15, value)});
    Bytes o(4, 0xEE);
    LengthPrefixedEntry e[1];
    setEntry(e[0], o.data());
    uint32_t delay = 0;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(msg.data(), L(msg), &delay, &count, e), 9);
    EXPECT_EQ(delay, 0x00010000u);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(rd16(&e[0].length), 3);
    EXPECT_EQ(o, cat({str("ntp"), {0xEE}}));
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(msg.data(), L(msg), &delay, nullptr, e), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(msg.data(), L(msg), nullptr, &count, e), -1);
    Bytes none = indMessage(0x01, {tlv(0x1C, le32(0))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(none.data(), L(none), &delay, &count, e), -3);
}

TEST(PdsIndications, ListsWithCountZeroLeaveTheArraysUntouched) {
    Bytes msg = indMessage(0x01, {tlv(0x14, cat({le16(1), {0x00}})), tlv(0x15, cat({le32(2), {0x00}})),
                                  tlv(0x17, cat({le32(3), {0x01}, {0x00}}))});
    LengthPrefixedEntry e[1];
    setEntry(e[0], nullptr);
    const Bytes before = bytesOf(e[0]);
    uint16_t w16 = 0;
    uint32_t w32 = 0;
    uint8_t count = 0xEE, iono = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), &w16, &count, e), 3);
    EXPECT_EQ(count, 0);
    count = 0xEE;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(msg.data(), L(msg), &w32, &count, e), 5);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(bytesOf(e[0]), before);
    SatelliteInformationEntry s[1];
    std::memset(s, 0xEE, sizeof s);
    count = 0xEE;
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &w32, &iono, &count, s), 6);
    EXPECT_EQ(w32, 3u);
    EXPECT_EQ(iono, 1);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(bytesOf(s[0]), fill(18, 0xEE));
}

TEST(PdsIndications, EntryListRunningPastTheBufferIsMalformedAndWritesNothing) {
    // Two entries announced; the second one's bytes are missing.
    Bytes msg = indMessage(0x01, {tlv(0x14, cat({le16(7), {0x02}, {0x02}, str("ab"), {0x09}, str("x")}))});
    Bytes o1(4, 0xEE), o2(12, 0xEE);
    LengthPrefixedEntry e[2];
    setEntry(e[0], o1.data());
    setEntry(e[1], o2.data());
    uint16_t maxSize = 0xEEEE;
    uint8_t count = 0xEE;
    EXPECT_EQ(zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(msg.data(), L(msg), &maxSize, &count, e),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(maxSize, 0xEEEE);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(rd16(&e[0].length), 0xEEEE);
    EXPECT_EQ(o1, fill(4, 0xEE));
}

Bytes satellite(uint8_t prn) {
    return cat({le32(0x000000FF), {1, prn, 1, 2, 3, 4}, le32(0x42340000), le16(270), le16(42)});
}

TEST(PdsIndications, SatelliteInformationCopiesEighteenByteEntries) {
    Bytes value = cat({le32(0x3), {0x01}, {0x02}, satellite(5), satellite(12)});
    Bytes msg = indMessage(0x01, {tlv(0x17, value)});
    SatelliteInformationEntry s[3];
    std::memset(s, 0xEE, sizeof s);
    uint32_t mask = 0;
    uint8_t iono = 0, count = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, &iono, &count, s), 42);
    EXPECT_EQ(mask, 3u);
    EXPECT_EQ(iono, 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(bytesOf(s[0]), satellite(5));
    EXPECT_EQ(bytesOf(s[1]), satellite(12));
    EXPECT_EQ(s[1].prn, 12);
    EXPECT_EQ(rd16(&s[1].azimuth), 270);
    EXPECT_EQ(bytesOf(s[2]), fill(18, 0xEE));
    count = 0;
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, &iono, &count, nullptr), 42);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, nullptr, &count, s), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, &iono, nullptr, s), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), nullptr, &iono, &count, s), -1);
    Bytes none = indMessage(0x01, {tlv(0x1C, le32(0))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(none.data(), L(none), &mask, &iono, &count, s), -3);
}

TEST(PdsIndications, SatelliteCountBeyondTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = indMessage(0x01, {tlv(0x17, cat({le32(3), {0x01}, {0x03}, satellite(5)}))});
    SatelliteInformationEntry s[3];
    std::memset(s, 0xEE, sizeof s);
    uint32_t mask = 7;
    uint8_t iono = 0xEE, count = 0xEE;
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, &iono, &count, s),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(mask, 7u);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(bytesOf(s[0]), fill(18, 0xEE));
    // Without an array only the leading fields are read, and they are there.
    EXPECT_EQ(zovQMIPDSEventReportINDGetSatelliteInformation(msg.data(), L(msg), &mask, &iono, &count, nullptr), 24);
    EXPECT_EQ(count, 3);
}

TEST(PdsIndications, PromptReadersNeedTheRecordAndTheItem) {
    Bytes none = indMessage(0x01, {tlv(0x1C, le32(0))});
    NetworkInitiatedPromptVX vx;
    NetworkInitiatedPromptSUPL supl;
    NetworkInitiatedPromptUMTSCP umts;
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(none.data(), L(none), &vx), -3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(none.data(), L(none), &supl), -3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(none.data(), L(none), &umts), -3);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(none.data(), L(none), nullptr), -1);
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(none.data(), L(none), nullptr), -1);
    Bytes other = indMessage(0x20, {tlv(0x18, vxWire({}))});
    EXPECT_EQ(zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(other.data(), L(other), &vx), -2);
}

}  // namespace
