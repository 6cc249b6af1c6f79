/*
 * zovqmi.h - the public interface of libzovqmi.
 *
 * libzovqmi talks to a cellular modem over QMI: it opens the modem's QMI
 * control device, frames and unframes messages, and builds and parses the
 * messages of the CTL, WDS, DMS, NAS, QOS, WMS, PDS and PBM services.
 *
 * Conventions shared by every function:
 *  - Builders write into a caller-owned buffer (`buf`, capacity `bufsize`)
 *    and return the message length; parsers read a received message (`msg`,
 *    length `len`) and fill the caller's outputs.  The library keeps no state
 *    besides one 16-bit transaction counter.
 *  - Failures are negative return values, see ZOVQMI_ERR_*.
 *  - Packed records that mirror the wire keep their integer fields in
 *    little-endian byte order on every host; values delivered through plain
 *    `uint16_t*`, `uint32_t*` and `uint64_t*` outputs are native values.
 *    Pointer fields inside records are native pointers set by the caller.
 *
 * This header compiles as C99 and as C++.
 */
#ifndef ZOVQMI_H
#define ZOVQMI_H

#include <stdint.h>

#if defined(_WIN32)
#define ZOVQMI_API
#elif defined(__GNUC__)
#define ZOVQMI_API __attribute__((visibility("default")))
#else
#define ZOVQMI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------- codes -- */

/* Return codes.  Success values are zero or positive. */
enum {
    /* A null buffer or required output, a request buffer that is too small,
     * a non-zero length with null data, or an argument outside its set. */
    ZOVQMI_ERR_ARG = -1,
    /* Builders: the item does not fit the buffer.  Parsers: no message with
     * the expected id.  Device write: message too short or null. */
    ZOVQMI_ERR_NO_MESSAGE = -2,
    ZOVQMI_ERR_NO_ROOM = -2,
    /* Parsers: the requested item (or the result item) is missing.
     * Device write: the frame could not be allocated. */
    ZOVQMI_ERR_NO_TLV = -3,
    /* Response parsers: the mandatory item 0x01 is missing (the result
     * record has been filled already). */
    ZOVQMI_ERR_NO_MANDATORY = -4,
    /* Malformed input: a received message whose fields would lie beyond its
     * end, a frame shorter than its header or larger than the buffer given
     * for it, a value longer than the 1024 bytes of a QmiTlvRecord, or a
     * count that would write past the end of a fixed-size caller record. */
    ZOVQMI_ERR_MALFORMED = -5
};

/* QMI service types, as used with zovQMIDeviceWrite. */
enum {
    ZOVQMI_SERVICE_CTL = 0,
    ZOVQMI_SERVICE_WDS = 1,
    ZOVQMI_SERVICE_DMS = 2,
    ZOVQMI_SERVICE_NAS = 3,
    ZOVQMI_SERVICE_QOS = 4,
    ZOVQMI_SERVICE_WMS = 5,
    ZOVQMI_SERVICE_PDS = 6,
    ZOVQMI_SERVICE_PBM = 12
};

/* ------------------------------------------------------------- records -- */

#pragma pack(push, 1)

/* One TLV item: type, value length, value (at most 1024 bytes). 1027 bytes. */
typedef struct QmiTlvRecord {
    uint8_t type;
    uint16_t length;
    uint8_t value[1024];
} QmiTlvRecord;

/* The 6-byte QMUX header in front of every frame on the device. */
typedef struct QmiQmuxHeader {
    uint8_t interfaceType;
    uint16_t length;
    uint8_t controlFlags;
    uint8_t serviceType;
    uint8_t clientId;
} QmiQmuxHeader;

/* One message of a received buffer: id, TLV-area length and a caller-owned
 * buffer that receives the TLV area (may be null).  8 bytes on 32-bit hosts. */
typedef struct QmiMessageEntry {
    uint16_t messageId;
    uint16_t length;
    uint8_t* value;
} QmiMessageEntry;

/* Header fields of a received message and its messages. */
typedef struct QmiMessageInfo {
    uint8_t controlFlags;
    uint16_t transactionId;
    uint16_t messageCount;
    QmiMessageEntry* entries;
} QmiMessageInfo;

/* The result item 0x02 of every response: result code and error code. */
typedef struct QmiResult {
    uint16_t result;
    uint16_t error;
} QmiResult;

/* CTL: one entry of the service version lists (5 bytes). */
typedef struct CTLVersionEntry {
    uint8_t serviceType;
    uint16_t majorVersion;
    uint16_t minorVersion;
} CTLVersionEntry;

#pragma pack(pop)

/* --------------------------------------------------- device and dump -- */

ZOVQMI_API int zovQMIDeviceOpen(const char* path);
ZOVQMI_API int zovQMIDeviceClose(int fd);
ZOVQMI_API int zovQMIDeviceWrite(int fd, uint8_t service, uint8_t clientId, const uint8_t* msg, int len);
ZOVQMI_API int zovQMIDeviceRead(int fd, uint8_t* msg, int msgSize, uint8_t* service, uint8_t* clientId);
ZOVQMI_API int zovQMIDeviceGetVIDPID(int fd, uint32_t* vid, uint32_t* pid);
ZOVQMI_API int zovQMIDeviceGetVersion(int fd, void* out);
ZOVQMI_API int zovQMIDeviceSetDebugMode(int fd, unsigned long mode);
ZOVQMI_API int zovPrintHex(int ignored, const char* label, const uint8_t* data, int len);

/* ------------------------------------------------- framing and TLVs -- */

ZOVQMI_API int zovQMIMSMGetCurrentTransactionID(void);
ZOVQMI_API int zovQMIMSMGetNextTransactionID(void);
ZOVQMI_API int zovQMIMSMQMUXHeaderParse(const uint8_t* buf, int len, QmiQmuxHeader* out);
ZOVQMI_API int zovQMIMSMControlAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv);
ZOVQMI_API int zovQMIMSMMessageAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv);
ZOVQMI_API int zovQMIMSMControlParse(const uint8_t* msg, int len, QmiMessageInfo* out);
ZOVQMI_API int zovQMIMSMMessageParse(const uint8_t* msg, int len, QmiMessageInfo* out);
ZOVQMI_API const uint8_t* zovQMIMSMGetMessage(const uint8_t* msg, int len, uint16_t msgid, uint16_t* tlvlen);
ZOVQMI_API const uint8_t* zovQMIMSMGetTLV(const uint8_t* area, int len, uint8_t type, uint16_t* vallen);
ZOVQMI_API int zovQMIMSMGetTLVList(const uint8_t* area, int len, QmiTlvRecord* list);

/* ---------------------------------------------------------------- CTL -- */

ZOVQMI_API int zovQMICTLSetInstanceIDReq(uint8_t* buf, int bufsize, uint8_t instanceId);
ZOVQMI_API int zovQMICTLSetInstanceIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* assignedId);
ZOVQMI_API int zovQMICTLGetVersionInfoReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMICTLGetVersionInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           CTLVersionEntry* list);
ZOVQMI_API int zovQMICTLGetVersionInfoRespGetAddendumVersionList(const uint8_t* msg, int len, uint8_t* labelLength,
                                                                 uint8_t* label, uint8_t* count,
                                                                 CTLVersionEntry* list);
ZOVQMI_API int zovQMICTLGetClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType);
ZOVQMI_API int zovQMICTLGetClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                        uint8_t* clientId);
ZOVQMI_API int zovQMICTLReleaseClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType, uint8_t clientId);
ZOVQMI_API int zovQMICTLReleaseClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                            uint8_t* clientId);
ZOVQMI_API int zovQMICTLRevokeClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId);
ZOVQMI_API int zovQMICTLInvalidClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId);
ZOVQMI_API int zovQMICTLSetDataFormatReq(uint8_t* buf, int bufsize, uint8_t dataFormat);
ZOVQMI_API int zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(uint8_t* buf, int bufsize, uint16_t protocol);
ZOVQMI_API int zovQMICTLSetDataFormatResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(const uint8_t* msg, int len,
                                                                        uint16_t* protocol);
ZOVQMI_API int zovQMICTLSyncReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMICTLSyncResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMICTLSyncIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMICTLRegPwrSaveModeReq(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMICTLRegPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMICTLPwrSaveModeIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(const uint8_t* msg, int len, uint32_t* first,
                                                              uint32_t* second);
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsReq(uint8_t* buf, int bufsize, uint32_t powerSaveState,
                                                 uint8_t serviceType);
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(uint8_t* buf, int bufsize, uint16_t length,
                                                                          const uint8_t* data);
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMICTLSetPwrSaveModeReq(uint8_t* buf, int bufsize, uint32_t powerSaveMode);
ZOVQMI_API int zovQMICTLSetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMICTLGetPwrSaveModeReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMICTLGetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* powerSaveMode);

/* ---------------------------------------------------------------- WDS -- */
/* (WDS declarations) */
/* ------------------------------------------------------------ end WDS -- */


/* ---------------------------------------------------------------- DMS -- */
/* (DMS declarations) */
/* ------------------------------------------------------------ end DMS -- */


/* ---------------------------------------------------------------- NAS -- */
/* (NAS declarations) */
/* ------------------------------------------------------------ end NAS -- */


/* ---------------------------------------------------------------- WMS -- */
/* (WMS declarations) */
/* ------------------------------------------------------------ end WMS -- */


/* ---------------------------------------------------------------- PDS -- */

#pragma pack(push, 1)

/* One entry of the assistance-data request lists: its length byte (high
 * byte always 0) and a caller buffer for the bytes (null: not copied).
 * 6 bytes on 32-bit hosts. */
typedef struct LengthPrefixedEntry {
    uint16_t length;
    uint8_t* data;
} LengthPrefixedEntry;

/* One satellite of the event report, as on the wire (18 bytes). */
typedef struct SatelliteInformationEntry {
    uint32_t validMask;
    uint8_t system;
    uint8_t prn;
    uint8_t health;
    uint8_t processStatus;
    uint8_t ephemerisState;
    uint8_t almanacState;
    uint32_t elevation;
    uint16_t azimuth;
    uint16_t signalStrength;
} SatelliteInformationEntry;

/* A parsed position fix, as on the wire (105 bytes).  The 64-bit fields hold
 * raw bits (latitude and longitude are IEEE doubles at the modem). */
typedef struct ParsedPositionData {
    uint32_t validMask;
    uint16_t year;
    uint8_t month;
    uint8_t dayOfWeek;
    uint8_t dayOfMonth;
    uint8_t hour;
    uint8_t minute;
    uint8_t second;
    uint16_t milliseconds;
    uint8_t leapSeconds;
    uint64_t utcTimestamp;
    uint32_t timeUncertainty;
    uint64_t latitude;
    uint64_t longitude;
    uint32_t altitudeFromEllipsoid;
    uint32_t altitudeFromSeaLevel;
    uint32_t horizontalSpeed;
    uint32_t verticalSpeed;
    uint32_t heading;
    uint32_t horizontalUncertaintyCircular;
    uint32_t horizontalUncertaintyMajor;
    uint32_t horizontalUncertaintyMinor;
    uint32_t horizontalUncertaintyAngle;
    uint32_t verticalUncertainty;
    uint32_t horizontalVelocityUncertainty;
    uint32_t verticalVelocityUncertainty;
    uint8_t horizontalConfidence;
    uint32_t positionDOP;
    uint32_t horizontalDOP;
    uint32_t verticalDOP;
    uint8_t positionSource;
} ParsedPositionData;

/* The GPS engine's state, as on the wire (98 bytes; 64-bit fields raw bits). */
typedef struct GPSStateInformation {
    uint8_t engineState;
    uint32_t validMask;
    uint64_t latitude;
    uint64_t longitude;
    uint32_t horizontalUncertainty;
    uint32_t altitude;
    uint32_t verticalUncertainty;
    uint32_t timeOfWeek;
    uint16_t gpsWeek;
    uint32_t timeUncertainty;
    uint8_t ionosphereValid;
    uint32_t gpsEphemerisMask;
    uint32_t gpsAlmanacMask;
    uint32_t gpsHealthMask;
    uint32_t gpsVisibleMask;
    uint32_t glonassEphemerisMask;
    uint32_t glonassAlmanacMask;
    uint32_t glonassHealthMask;
    uint32_t glonassVisibleMask;
    uint32_t sbasEphemerisMask;
    uint32_t sbasAlmanacMask;
    uint32_t sbasHealthMask;
    uint32_t sbasVisibleMask;
    uint16_t xtraStartWeek;
    uint16_t xtraStartMinutes;
    uint16_t xtraValidHours;
} GPSStateInformation;

/* Network-initiated prompts.  On the wire every length byte is followed
 * directly by that many bytes.  Inline blocks live in the record; pointer
 * blocks are caller buffers of up to 255 bytes (null: not copied when read;
 * refused when written with a non-zero length). */

/* 21 bytes on 32-bit hosts; wire value 17 + dataLength bytes. */
typedef struct NetworkInitiatedPromptVX {
    uint32_t notificationType;
    uint8_t positionMode;
    uint8_t requesterIdEncoding;
    uint32_t sessionId;
    uint32_t timeout;
    uint8_t positionQoSIncluded;
    uint8_t positionQoS;
    uint8_t dataLength;
    uint8_t* data;
} NetworkInitiatedPromptVX;

/* 319 bytes on 32-bit hosts; wire value 56 + length1 + length2 + length3. */
typedef struct NetworkInitiatedPromptSUPL {
    uint32_t notificationType;
    uint8_t validMask;
    uint64_t sessionId;
    uint8_t serverAddressType;
    uint32_t serverIPv4Address;
    uint32_t serverIPv4Port;
    uint32_t requesterIdMask;
    uint32_t clientNameMask;
    uint8_t serverIPv6[16];
    uint8_t length1;
    uint8_t block1[255];
    uint8_t hash;
    uint8_t positionMethod;
    uint8_t length2;
    uint8_t* block2;
    uint8_t clientNameEncoding;
    uint8_t length3;
    uint8_t* block3;
    uint8_t qosHorizontalAccuracy;
    uint8_t qosVerticalAccuracy;
    uint8_t qosMaxAge;
    uint8_t qosDelay;
} NetworkInitiatedPromptSUPL;

/* 282 bytes on 32-bit hosts; wire value 15 + length1 + ... + length4. */
typedef struct NetworkInitiatedPromptUMTSCP {
    uint32_t notificationType;
    uint8_t invokeId;
    uint8_t validMask;
    uint8_t notificationTextEncoding;
    uint8_t length1;
    uint8_t* block1;
    uint8_t length2;
    uint8_t block2[255];
    uint8_t locationType;
    uint8_t externalAddressType;
    uint8_t length3;
    uint8_t* block3;
    uint8_t requesterIdEncoding;
    uint8_t length4;
    uint8_t* block4;
    uint8_t codewordEncoding;
} NetworkInitiatedPromptUMTSCP;

/* One WiFi access point for InjectWiFiPositionData, as on the wire (13 bytes). */
typedef struct WiFiAccessPointEntry {
    uint8_t macAddress[6];
    uint32_t rssi;
    uint16_t channel;
    uint8_t flags;
} WiFiAccessPointEntry;

/* A file for the modem's file system (16 bytes on 32-bit hosts). */
typedef struct EFSFileRecord {
    uint8_t nameLength;
    const uint8_t* name;
    uint8_t fileOperation;
    uint32_t dataLength;
    uint8_t partNumber;
    uint8_t totalParts;
    const uint8_t* data;
} EFSFileRecord;

#pragma pack(pop)

/* Reset 0x00 */
ZOVQMI_API int zovQMIPDSResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSResetResp(const uint8_t* msg, int len, QmiResult* result);

/* SetEventReport 0x01: subscriptions */
ZOVQMI_API int zovQMIPDSSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddPositionDataNMEA(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddParsedPositionData(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalXTRADataRequest(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalTimeInjectionRequest(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalWiFiPositionRequest(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddSatelliteInformation(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportReqAddPDSCommEvents(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIPDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);

/* EventReport 0x01 (indication) */
ZOVQMI_API int zovQMIPDSEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionDataNMEA(const uint8_t* msg, int len, uint16_t* length, void* data);
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionSessionStatus(const uint8_t* msg, int len, uint8_t* status);
ZOVQMI_API int zovQMIPDSEventReportINDGetParsedPositionData(const uint8_t* msg, int len, ParsedPositionData* data);
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(const uint8_t* msg, int len,
                                                                    uint16_t* maxFileSize, uint8_t* count,
                                                                    LengthPrefixedEntry* entries);
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(const uint8_t* msg, int len,
                                                                     uint32_t* delayThreshold, uint8_t* count,
                                                                     LengthPrefixedEntry* entries);
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(const uint8_t* msg, int len, uint8_t* request,
                                                                    uint16_t* interval);
ZOVQMI_API int zovQMIPDSEventReportINDGetSatelliteInformation(const uint8_t* msg, int len, uint32_t* validMask,
                                                             uint8_t* iono, uint8_t* count,
                                                             SatelliteInformationEntry* entries);
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(const uint8_t* msg, int len,
                                                                 NetworkInitiatedPromptVX* prompt);
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(const uint8_t* msg, int len,
                                                                   NetworkInitiatedPromptSUPL* prompt);
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(const uint8_t* msg, int len,
                                                                     NetworkInitiatedPromptUMTSCP* prompt);
ZOVQMI_API int zovQMIPDSEventReportINDGetPDSCommEvents(const uint8_t* msg, int len, uint8_t* type, uint8_t* state);
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionSource(const uint8_t* msg, int len, uint32_t* source);

/* GetGPSServiceState 0x20 and the GPSServiceState indication */
ZOVQMI_API int zovQMIPDSGetGPSServiceStateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* enabled,
                                              uint8_t* trackingState);
ZOVQMI_API int zovQMIPDSGPSServiceStateIND(const uint8_t* msg, int len, uint8_t* enabled, uint8_t* trackingState);

/* SetGPSServiceState 0x21 */
ZOVQMI_API int zovQMIPDSSetGPSServiceStateReq(uint8_t* buf, int bufsize, uint8_t state);
ZOVQMI_API int zovQMIPDSSetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result);

/* GetDefaultTrackingSession 0x29 */
ZOVQMI_API int zovQMIPDSGetDefaultTrackingSessionReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode,
                                                     uint8_t* timeout, uint32_t* interval, uint32_t* accuracy);

/* SetDefaultTrackingSession 0x2A */
ZOVQMI_API int zovQMIPDSSetDefaultTrackingSessionReq(uint8_t* buf, int bufsize, uint8_t mode, uint8_t timeout,
                                                    uint32_t interval, uint32_t accuracy);
ZOVQMI_API int zovQMIPDSSetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result);

/* GetAutoTrackingState 0x30 */
ZOVQMI_API int zovQMIPDSGetAutoTrackingStateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);

/* SetAutoTrackingState 0x31 */
ZOVQMI_API int zovQMIPDSSetAutoTrackingStateReq(uint8_t* buf, int bufsize, uint8_t state);
ZOVQMI_API int zovQMIPDSSetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result);

/* DetermineSinglePosition 0x35 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(uint8_t* buf, int bufsize, uint8_t timeout);
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionAccuracy(uint8_t* buf, int bufsize,
                                                                           uint32_t accuracy);
ZOVQMI_API int zovQMIPDSDetermineSinglePositionResp(const uint8_t* msg, int len, QmiResult* result);

/* SendNIResponse 0x3C */
ZOVQMI_API int zovQMIPDSSendNIResponseReq(uint8_t* buf, int bufsize, uint8_t action);
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize,
                                                                    const NetworkInitiatedPromptVX* prompt);
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize,
                                                                      const NetworkInitiatedPromptSUPL* prompt);
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize,
                                                                        const NetworkInitiatedPromptUMTSCP* prompt);
ZOVQMI_API int zovQMIPDSSendNIResponseResp(const uint8_t* msg, int len, QmiResult* result);

/* CancelSinglePosition 0x43 */
ZOVQMI_API int zovQMIPDSCancelSinglePositionReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSCancelSinglePositionResp(const uint8_t* msg, int len, QmiResult* result);

/* GetGPSStateInfo 0x44 */
ZOVQMI_API int zovQMIPDSGetGPSStateInfoReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetGPSStateInfoResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(const uint8_t* msg, int len,
                                                                 GPSStateInformation* info);

/* GetNMEAConfig 0x26 */
ZOVQMI_API int zovQMIPDSGetNMEAConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* sentenceMask,
                                         uint8_t* port, uint8_t* reporting);

/* SetNMEAConfig 0x27 */
ZOVQMI_API int zovQMIPDSSetNMEAConfigReq(uint8_t* buf, int bufsize, uint8_t sentenceMask, uint8_t port,
                                        uint8_t reporting);
ZOVQMI_API int zovQMIPDSSetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* InjectRelativeTimeRef 0x28 */
ZOVQMI_API int zovQMIPDSInjectRelativeTimeRefReq(uint8_t* buf, int bufsize, uint64_t systemTime,
                                                uint16_t discontinuities);
ZOVQMI_API int zovQMIPDSInjectRelativeTimeRefResp(const uint8_t* msg, int len, QmiResult* result);

/* GetXTRAParameters 0x2B */
ZOVQMI_API int zovQMIPDSGetXTRAParametersReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(const uint8_t* msg, int len,
                                                                        uint8_t* enabled, uint16_t* interval);
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(const uint8_t* msg, int len,
                                                                                       uint8_t* length, void* data);
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(const uint8_t* msg, int len,
                                                                                        uint8_t* network);
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(const uint8_t* msg, int len, uint16_t* startWeek,
                                                                    uint16_t* startMinutes, uint16_t* validHours);
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(const uint8_t* msg, int len,
                                                                       uint8_t* dataClient, uint8_t* timeClient);

/* SetXTRAParameters 0x2C */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseAutodownload(uint8_t* buf, int bufsize, uint8_t enabled,
                                                                       uint16_t interval);
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseDownloadConfiguration(uint8_t* buf, int bufsize,
                                                                                uint8_t length, const void* data);
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseNetworkConfiguration(uint8_t* buf, int bufsize,
                                                                               uint8_t network);
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddEmbeddedXTRAClientState(uint8_t* buf, int bufsize, uint8_t dataClient,
                                                                      uint8_t timeClient);
ZOVQMI_API int zovQMIPDSSetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result);

/* ForceXTRADownload 0x2D */
ZOVQMI_API int zovQMIPDSForceXTRADownloadReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSForceXTRADownloadResp(const uint8_t* msg, int len, QmiResult* result);

/* GetAGPSConfig 0x2E */
ZOVQMI_API int zovQMIPDSGetAGPSConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(const uint8_t* msg, int len, uint32_t* address,
                                                                  uint32_t* port);
ZOVQMI_API int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(const uint8_t* msg, int len, uint8_t* length,
                                                                 void* data);

/* SetAGPSConfig 0x2F */
ZOVQMI_API int zovQMIPDSSetAGPSConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServer(uint8_t* buf, int bufsize, uint32_t address,
                                                             uint32_t port);
ZOVQMI_API int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServerURL(uint8_t* buf, int bufsize, uint8_t length,
                                                                const void* data);
ZOVQMI_API int zovQMIPDSSetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* GetCOMPortConfig 0x32 */
ZOVQMI_API int zovQMIPDSGetCOMPortConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* port);

/* SetCOMPortConfig 0x33 */
ZOVQMI_API int zovQMIPDSSetCOMPortConfigReq(uint8_t* buf, int bufsize, uint8_t port);
ZOVQMI_API int zovQMIPDSSetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* ResetGPSServiceData 0x34 */
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReqAddGPSServiceData(uint8_t* buf, int bufsize, uint32_t mask);
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReqAddGPSServiceCellDBData(uint8_t* buf, int bufsize, uint32_t mask);
ZOVQMI_API int zovQMIPDSResetGPSServiceDataResp(const uint8_t* msg, int len, QmiResult* result);

/* GetGPSServiceVersion 0x36 */
ZOVQMI_API int zovQMIPDSGetGPSServiceVersionReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetGPSServiceVersionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* major,
                                                uint8_t* minor);

/* InjectXTRAData 0x37 */
ZOVQMI_API int zovQMIPDSInjectXTRADataReq(uint8_t* buf, int bufsize, uint8_t sequence, uint16_t totalLength,
                                         uint16_t length, const void* data);
ZOVQMI_API int zovQMIPDSInjectXTRADataResp(const uint8_t* msg, int len, QmiResult* result);

/* InjectPositionData 0x38 (64-bit values are raw bits) */
ZOVQMI_API int zovQMIPDSInjectPositionDataReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddTimestamp(uint8_t* buf, int bufsize, uint64_t timestamp);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddLatitude(uint8_t* buf, int bufsize, uint64_t latitude);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddLongitude(uint8_t* buf, int bufsize, uint64_t longitude);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddAltitudeFromEllipsoid(uint8_t* buf, int bufsize, uint32_t altitude);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddAltitudeFromSeaLevel(uint8_t* buf, int bufsize, uint32_t altitude);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddHorizontalUncertaintyCircular(uint8_t* buf, int bufsize,
                                                                             uint32_t uncertainty);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddVerticalUncertainty(uint8_t* buf, int bufsize, uint32_t uncertainty);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddHorizontalConfidence(uint8_t* buf, int bufsize, uint8_t confidence);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddVerticalConfidence(uint8_t* buf, int bufsize, uint8_t confidence);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddPositionSource(uint8_t* buf, int bufsize, uint8_t source);
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddTimeType(uint8_t* buf, int bufsize, uint8_t timeType);
ZOVQMI_API int zovQMIPDSInjectPositionDataResp(const uint8_t* msg, int len, QmiResult* result);

/* InjectWiFiPositionData 0x39 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionTime(uint8_t* buf, int bufsize, uint32_t time);
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPosition(uint8_t* buf, int bufsize, uint32_t latitude,
                                                                uint32_t longitude, uint16_t uncertainty,
                                                                uint8_t confidence, uint8_t reliability);
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(uint8_t* buf, int bufsize,
                                                                             uint8_t count,
                                                                             const WiFiAccessPointEntry* entries);
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataResp(const uint8_t* msg, int len, QmiResult* result);

/* GetSBASConfig 0x3A */
ZOVQMI_API int zovQMIPDSGetSBASConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetSBASConfigRespGetSBASConfiguration(const uint8_t* msg, int len, uint8_t* config);

/* SetSBASConfig 0x3B */
ZOVQMI_API int zovQMIPDSSetSBASConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetSBASConfigReqAddSBASConfiguration(uint8_t* buf, int bufsize, uint8_t config);
ZOVQMI_API int zovQMIPDSSetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* InjectAbsTimeRef 0x3D (its time item is optional yet of type 0x01) */
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(uint8_t* buf, int bufsize, uint64_t time,
                                                                   uint32_t uncertainty, uint8_t timeBase,
                                                                   uint8_t forceAccept);
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefResp(const uint8_t* msg, int len, QmiResult* result);

/* InjectEFSData 0x3E */
ZOVQMI_API int zovQMIPDSInjectEFSDataReq(uint8_t* buf, int bufsize, const EFSFileRecord* file);
ZOVQMI_API int zovQMIPDSInjectEFSDataResp(const uint8_t* msg, int len, QmiResult* result);

/* GetDPOConfig 0x3F */
ZOVQMI_API int zovQMIPDSGetDPOConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetDPOConfigRespGetDPOConfiguration(const uint8_t* msg, int len, uint8_t* config);

/* SetDPOConfig 0x40 */
ZOVQMI_API int zovQMIPDSSetDPOConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetDPOConfigReqAddDPOConfiguration(uint8_t* buf, int bufsize, uint8_t config);
ZOVQMI_API int zovQMIPDSSetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* GetODPConfig 0x41 */
ZOVQMI_API int zovQMIPDSGetODPConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSGetODPConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPDSGetODPConfigRespGetODPConfiguration(const uint8_t* msg, int len, uint8_t* config);

/* SetODPConfig 0x42 */
ZOVQMI_API int zovQMIPDSSetODPConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPDSSetODPConfigReqAddODPConfiguration(uint8_t* buf, int bufsize, uint8_t config);
ZOVQMI_API int zovQMIPDSSetODPConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* ------------------------------------------------------------ end PDS -- */


/* ---------------------------------------------------------------- PBM -- */
/* (PBM declarations) */
/* ------------------------------------------------------------ end PBM -- */


/* ---------------------------------------------------------------- QOS -- */
/* (QOS declarations) */
/* ------------------------------------------------------------ end QOS -- */

#ifdef __cplusplus
}
#endif

#endif /* ZOVQMI_H */
