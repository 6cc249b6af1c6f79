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

#pragma pack(push, 1)

/* WDS: the current channel rate (16 bytes): four u32 as on the wire. */
typedef struct WDSChannelRate {
    uint32_t rates[4];
} WDSChannelRate;

/* WDS: one entry of the profile list: profile type, profile index, name
 * length and a caller-owned buffer that receives the name (may be null).
 * 7 bytes on 32-bit hosts. */
typedef struct WDSProfileListEntry {
    uint8_t profileType;
    uint8_t profileIndex;
    uint8_t nameLength;
    uint8_t* name;
} WDSProfileListEntry;

/* WDS: UMTS quality of service of a profile (33 bytes, wire layout). */
typedef struct WDSUMTSQoS {
    uint8_t trafficClass;
    uint32_t maxUplinkBitrate;
    uint32_t maxDownlinkBitrate;
    uint32_t guaranteedUplinkBitrate;
    uint32_t guaranteedDownlinkBitrate;
    uint8_t deliveryOrder;
    uint32_t maxSDUSize;
    uint8_t sduErrorRatio;
    uint8_t residualBitErrorRatio;
    uint8_t deliveryErroneousSDUs;
    uint32_t transferDelay;
    uint32_t trafficHandlingPriority;
} WDSUMTSQoS;

/* WDS: GPRS quality of service of a profile (20 bytes, wire layout). */
typedef struct WDSGPRSQoS {
    uint32_t precedenceClass;
    uint32_t delayClass;
    uint32_t reliabilityClass;
    uint32_t peakThroughputClass;
    uint32_t meanThroughputClass;
} WDSGPRSQoS;

/* WDS: a traffic flow template filter of a profile (39 bytes, wire layout);
 * the 21 leading bytes travel as they are. */
typedef struct WDSTFTFilter {
    uint8_t leading[21];
    uint16_t destinationPortStart;
    uint16_t destinationPortRange;
    uint16_t sourcePortStart;
    uint16_t sourcePortRange;
    uint32_t securityParameterIndex;
    uint16_t typeOfServiceMask;
    uint32_t flowLabel;
} WDSTFTFilter;

/* WDS: LTE quality of service of a profile (17 bytes, wire layout). */
typedef struct WDSLTEQoS {
    uint8_t qci;
    uint32_t guaranteedUplinkBitrate;
    uint32_t guaranteedDownlinkBitrate;
    uint32_t maxUplinkBitrate;
    uint32_t maxDownlinkBitrate;
} WDSLTEQoS;

/* WDS: one entry of a runtime name list (P-CSCF names, domain names):
 * name length and a caller-owned buffer that receives the name (may be
 * null).  6 bytes on 32-bit hosts. */
typedef struct WDSNameListEntry {
    uint16_t length;
    uint8_t* name;
} WDSNameListEntry;

#pragma pack(pop)

/* Composite profile items (UMTS, GPRS, LTE QoS, TFT filters) and IPv6
 * addresses cross as byte pointers to the records above (or to 16 bytes in
 * network order); the channel rate likewise.  Profile item parsers take the
 * id of the response they read: 0x002B, 0x002C and, for item types 0x10 to
 * 0x1E, 0x002D; any other id gives -1. */
ZOVQMI_API int zovQMIWDSResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSResetResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentChannelRateIndicator(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIWDSSetEventReportReqAddTransferStatisticsIndicator(uint8_t* buf, int bufsize, uint8_t period,
                                                                        uint32_t mask);
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicatorDeprecated(uint8_t* buf, int bufsize,
                                                                                           uint8_t report);
ZOVQMI_API int zovQMIWDSSetEventReportReqAddDormancyStatusIndicator(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicator(uint8_t* buf, int bufsize,
                                                                                 uint8_t report);
ZOVQMI_API int zovQMIWDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMIWDSEventReportINDGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetTxOverflows(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetRxOverflows(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetChannelRate(const uint8_t* msg, int len, uint32_t* first, uint32_t* second);
ZOVQMI_API int zovQMIWDSEventReportINDGetDataBearerTechnology(const uint8_t* msg, int len, uint8_t* technology);
ZOVQMI_API int zovQMIWDSEventReportINDGetDormancyStatus(const uint8_t* msg, int len, uint8_t* status);
ZOVQMI_API int zovQMIWDSEventReportINDGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count);
ZOVQMI_API int zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(const uint8_t* msg, int len,
                                                                     uint8_t* technology, uint32_t* first,
                                                                     uint32_t* second);
ZOVQMI_API int zovQMIWDSAbortReq(uint8_t* buf, int bufsize, uint16_t value);
ZOVQMI_API int zovQMIWDSAbortResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPrimaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                               uint32_t address);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddSecondaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                 uint32_t address);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPrimaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                uint32_t address);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddSecondaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                  uint32_t address);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(uint8_t* buf, int bufsize, uint16_t length,
                                                                  const uint8_t* data);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddIPAddressPreference(uint8_t* buf, int bufsize, uint32_t address);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(uint8_t* buf, int bufsize,
                                                                            uint8_t preference);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddUsername(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPassword(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(uint8_t* buf, int bufsize, uint8_t family);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddTechnologyPreference(uint8_t* buf, int bufsize,
                                                                        uint8_t preference);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                   uint8_t profileIndex);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAdd3GPP2ConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                    uint8_t profileIndex);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                uint16_t preference);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddCallTypeIdentifier(uint8_t* buf, int bufsize, uint8_t callType);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* handle);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason);
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(const uint8_t* msg, int len, uint16_t* type,
                                                                         uint16_t* reason);
ZOVQMI_API int zovQMIWDSStopNetworkInterfaceReq(uint8_t* buf, int bufsize, uint32_t handle);
ZOVQMI_API int zovQMIWDSStopNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetPktSrvcStatusReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetPktSrvcStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
ZOVQMI_API int zovQMIWDSPktSrvcStatusIND(const uint8_t* msg, int len, uint8_t* status, uint8_t* second);
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason);
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetVerboseCallEndReason(const uint8_t* msg, int len, uint16_t* type,
                                                                uint16_t* reason);
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetIPFamily(const uint8_t* msg, int len, uint8_t* family);
ZOVQMI_API int zovQMIWDSGetCurrentChannelRateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetCurrentChannelRateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* rates);
ZOVQMI_API int zovQMIWDSGetPktStatisticsReq(uint8_t* buf, int bufsize, uint32_t mask);
ZOVQMI_API int zovQMIWDSGetPktStatisticsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxOverflows(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxOverflows(const uint8_t* msg, int len, uint32_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count);
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count);
ZOVQMI_API int zovQMIWDSGoDormantReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGoDormantResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGoActiveReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGoActiveResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSCreateProfileReq(uint8_t* buf, int bufsize, uint8_t profileType);
ZOVQMI_API int zovQMIWDSCreateProfileResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* profileType,
                                          uint8_t* profileIndex);
ZOVQMI_API int zovQMIWDSModifyProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType,
                                                 uint8_t profileIndex);
ZOVQMI_API int zovQMIWDSModifyProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSDeleteProfileReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex);
ZOVQMI_API int zovQMIWDSDeleteProfileResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetProfileListReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetProfileListResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           WDSProfileListEntry* list);
ZOVQMI_API int zovQMIWDSGetProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex);
ZOVQMI_API int zovQMIWDSGetProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetDefaultSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType);
ZOVQMI_API int zovQMIWDSGetDefaultSettingsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSProfileReqAddProfileName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileRespGetProfileName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                                  uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPType(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPType(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPHeaderCompression(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPHeaderCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPDataCompression(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPDataCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                         uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddAPNName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileRespGetAPNName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                              uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileReqAddPrimaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                      uint16_t messageId, uint32_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddSecondaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                        uint16_t messageId, uint32_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddUMTSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetUMTSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddUMTSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetUMTSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                     uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddGPRSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetGPRSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddGPRSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetGPRSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                     uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddUsername(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileRespGetUsername(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileReqAddPassword(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileRespGetPassword(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data);
ZOVQMI_API int zovQMIWDSProfileReqAddAuthenticationPreference(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetAuthenticationPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetIPv4AddressPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint32_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPCSCFAddressUsingPCOFlag(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPAccessControlFlag(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPAccessControlFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPCSCFAddressUsingDHCPFlag(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPCSCFAddressUsingDHCPFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                                uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddIMCNFlag(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetIMCNFlag(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddTFTFilterID1(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetTFTFilterID1(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddTFTFilterID2(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetTFTFilterID2(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextNumber(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextNumber(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextSecondaryFlag(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextSecondaryFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextPrimaryID(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextPrimaryID(const uint8_t* msg, int len, uint16_t messageId,
                                                          uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextIPv6Address(uint8_t* buf, int bufsize, const uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextIPv6Address(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileReqAddPrimaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileReqAddSecondaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* address);
ZOVQMI_API int zovQMIWDSProfileReqAddIPv4AddressAlloc(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWDSProfileRespGetIPv4AddressAlloc(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value);
ZOVQMI_API int zovQMIWDSProfileReqAddLTERequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
ZOVQMI_API int zovQMIWDSProfileRespGetLTERequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                      uint8_t* record);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings(uint8_t* buf, int bufsize, uint32_t mask);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(const uint8_t* msg, int len, uint8_t* profileType,
                                                                   uint8_t* profileIndex);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(const uint8_t* msg, int len, uint32_t* address);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(const uint8_t* msg, int len, uint32_t* mask);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len, uint8_t* flag);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(const uint8_t* msg, int len,
                                                                            uint8_t* count, uint32_t* list);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFFQDNList(const uint8_t* msg, int len, uint8_t* count,
                                                               WDSNameListEntry* list);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(const uint8_t* msg, int len, uint8_t* address,
                                                             uint8_t* prefixLength);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress(const uint8_t* msg, int len, uint8_t* address,
                                                                    uint8_t* prefixLength);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len, uint8_t* address);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len,
                                                                         uint8_t* address);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetMTU(const uint8_t* msg, int len, uint32_t* mtu);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetDomainNameList(const uint8_t* msg, int len, uint8_t* count,
                                                                WDSNameListEntry* list);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPfamily(const uint8_t* msg, int len, uint8_t* family);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIMCNFlag(const uint8_t* msg, int len, uint8_t* flag);
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetTechnologyName(const uint8_t* msg, int len, uint16_t* name);
ZOVQMI_API int zovQMIWDSSetMIPModeReq(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWDSSetMIPModeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSGetMIPModeReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetMIPModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode);
ZOVQMI_API int zovQMIWDSGetDormancyStatusReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetDormancyStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
ZOVQMI_API int zovQMIWDSGetCallDurationReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetCallDurationResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* duration);
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetLastCallDuration(const uint8_t* msg, int len, uint64_t* duration);
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetActiveDuration(const uint8_t* msg, int len, uint64_t* duration);
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetLastCallActiveDuration(const uint8_t* msg, int len, uint64_t* duration);
ZOVQMI_API int zovQMIWDSGetCurrentDataBearerTechnologyReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWDSGetCurrentDataBearerTechnologyResp(const uint8_t* msg, int len, QmiResult* result,
                                                           uint8_t* technology, uint32_t* first, uint32_t* second);
ZOVQMI_API int zovQMIWDSGetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
ZOVQMI_API int zovQMIWDSGetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result,
                                                 uint8_t* profileNumber);
ZOVQMI_API int zovQMIWDSSetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second,
                                                uint8_t profileNumber);
ZOVQMI_API int zovQMIWDSSetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWDSSetClientIPFamilyPrefReq(uint8_t* buf, int bufsize, uint8_t ipFamily);
ZOVQMI_API int zovQMIWDSSetClientIPFamilyPrefResp(const uint8_t* msg, int len, QmiResult* result);

/* ------------------------------------------------------------ end WDS -- */


/* ---------------------------------------------------------------- DMS -- */

#pragma pack(push, 1)

/* DMS: the device capabilities of GetDeviceCap.  The parser fills the first
 * five fields (the u32 fields little-endian on every host); `list` is set by
 * the caller before the call: when non-null, `listCount` list bytes are
 * copied into it (up to 255), when null nothing more is copied.
 * 15 bytes on 32-bit hosts. */
typedef struct DMSDeviceCapabilities {
    uint32_t capability1;
    uint32_t capability2;
    uint8_t capabilityByte1;
    uint8_t capabilityByte2;
    uint8_t listCount;
    uint8_t* list;
} DMSDeviceCapabilities;

#pragma pack(pop)

/* Device identity and state. */
ZOVQMI_API int zovQMIDMSResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSResetResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSSetEventReportReqAddPowerStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(uint8_t* buf, int bufsize, uint8_t lower,
                                                                    uint8_t upper);
ZOVQMI_API int zovQMIDMSSetEventReportReqAddPINStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIDMSSetEventReportReqAddOperatingModeReporting(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIDMSSetEventReportReqAddUIMStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIDMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMIDMSEventReportINDGetPowerState(const uint8_t* msg, int len, uint8_t* powerState,
                                                   uint8_t* batteryLevel);
ZOVQMI_API int zovQMIDMSEventReportINDGetPIN1Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2);
ZOVQMI_API int zovQMIDMSEventReportINDGetPIN2Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2);
ZOVQMI_API int zovQMIDMSEventReportINDGetOperatingMode(const uint8_t* msg, int len, uint8_t* mode);
ZOVQMI_API int zovQMIDMSEventReportINDGetUIMState(const uint8_t* msg, int len, uint8_t* state);
ZOVQMI_API int zovQMIDMSGetDeviceCapReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceCapResp(const uint8_t* msg, int len, QmiResult* result,
                                         DMSDeviceCapabilities* caps);
ZOVQMI_API int zovQMIDMSGetDeviceMfrReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceMfrResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                         void* data);
ZOVQMI_API int zovQMIDMSGetDeviceModelIDReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceModelIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                             void* data);
ZOVQMI_API int zovQMIDMSGetDeviceRevIDReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceRevIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                           void* data);
ZOVQMI_API int zovQMIDMSGetMSISDNReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetMSISDNResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
ZOVQMI_API int zovQMIDMSGetMSISDNRespGetMobileID(const uint8_t* msg, int len, uint16_t* length, void* data);
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetESN(const uint8_t* msg, int len, uint16_t* length, void* data);
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetIMEI(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data);
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetMEID(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data);
ZOVQMI_API int zovQMIDMSGetPowerStateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetPowerStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* powerState,
                                          uint8_t* batteryLevel);
ZOVQMI_API int zovQMIDMSGetDeviceHardwareRevReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetDeviceHardwareRevResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                                 void* data);
ZOVQMI_API int zovQMIDMSGetOperatingModeReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode);
ZOVQMI_API int zovQMIDMSSetOperatingModeReq(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIDMSSetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSGetTimeReq(uint8_t* buf, int bufsize);
/* timeCount receives the 6 bytes of the time count exactly as they stand on the wire. */
ZOVQMI_API int zovQMIDMSGetTimeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t timeCount[6],
                                    uint16_t* timeField2);
ZOVQMI_API int zovQMIDMSGetTimeRespGetSystemTimeInMS(const uint8_t* msg, int len, uint64_t* ms);
ZOVQMI_API int zovQMIDMSGetTimeRespGetUserTimeInMS(const uint8_t* msg, int len, uint64_t* ms);
ZOVQMI_API int zovQMIDMSGetPRLVerReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetPRLVerResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* version);
ZOVQMI_API int zovQMIDMSGetBandCapabilityReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetBandCapabilityResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* bands);
ZOVQMI_API int zovQMIDMSSetTimeReq(uint8_t* buf, int bufsize, uint64_t time);
ZOVQMI_API int zovQMIDMSSetTimeReqAddTimeReferenceType(uint8_t* buf, int bufsize, uint32_t type);
ZOVQMI_API int zovQMIDMSSetTimeResp(const uint8_t* msg, int len, QmiResult* result);

/* UIM PIN and personalisation.  PINs and keys are a length byte and that many
 * bytes; a zero length never reads its pointer. */
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t protection,
                                               uint8_t pinLength, const uint8_t* pin);
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                              uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMVerifyPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t pinLength,
                                        const uint8_t* pin);
ZOVQMI_API int zovQMIDMSUIMVerifyPINResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMVerifyPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMUnblockPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t keyLength,
                                         const uint8_t* key, uint8_t newPinLength, const uint8_t* newPin);
ZOVQMI_API int zovQMIDMSUIMUnblockPINResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMUnblockPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                        uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMChangePINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t oldPinLength,
                                        const uint8_t* oldPin, uint8_t newPinLength, const uint8_t* newPin);
ZOVQMI_API int zovQMIDMSUIMChangePINResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMChangePINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMGetPINStatusReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSUIMGetPINStatusResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMGetPINStatusRespGetPIN1Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMGetPINStatusRespGetPIN2Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSGetUserLockStateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSGetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);
ZOVQMI_API int zovQMIDMSSetUserLockStateReq(uint8_t* buf, int bufsize, uint8_t state, uint32_t lockCode);
ZOVQMI_API int zovQMIDMSSetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSSetUserLockCodeReq(uint8_t* buf, int bufsize, uint32_t oldCode, uint32_t newCode);
ZOVQMI_API int zovQMIDMSSetUserLockCodeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSValidateServiceProgrammingCodeReq(uint8_t* buf, int bufsize, const uint8_t code[6]);
ZOVQMI_API int zovQMIDMSValidateServiceProgrammingCodeResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMGetICCIDReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSUIMGetICCIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
ZOVQMI_API int zovQMIDMSUIMGetCKStatusReq(uint8_t* buf, int bufsize, uint8_t facility);
ZOVQMI_API int zovQMIDMSUIMGetCKStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status,
                                           uint8_t* verifyLeft, uint8_t* unblockLeft);
ZOVQMI_API int zovQMIDMSUIMGetCKStatusRespGetOperationBlockingFacility(const uint8_t* msg, int len,
                                                                       uint8_t* blocking);
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t state,
                                              uint8_t keyLength, const uint8_t* key);
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionRespGetFacilityCKRetryStatus(const uint8_t* msg, int len,
                                                                       uint8_t* retriesLeft);
/* Deliberately returns 13 + keyLength although the message it writes is 12 + keyLength bytes. */
ZOVQMI_API int zovQMIDMSUIMUnblockCKReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t keyLength,
                                        const uint8_t* key);
ZOVQMI_API int zovQMIDMSUIMUnblockCKResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIDMSUIMUnblockCKRespGetFacilityCKRetryStatus(const uint8_t* msg, int len, uint8_t* retriesLeft);
ZOVQMI_API int zovQMIDMSUIMGetIMSIReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSUIMGetIMSIResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
ZOVQMI_API int zovQMIDMSUIMGetStateReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIDMSUIMGetStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);

/* ------------------------------------------------------------ end DMS -- */


/* ---------------------------------------------------------------- NAS -- */
#pragma pack(push, 1)

/* NAS: the serving system item 0x01 of GetServingSystem (response and
 * indication): four state bytes, then a list of listCount bytes copied into
 * the caller's buffer `list` when it is non-null. 5 + pointer bytes. */
typedef struct NASServingSystem {
    uint8_t state[4];
    uint8_t listCount;
    uint8_t* list;
} NASServingSystem;

/* NAS: one network, the element of every network list (scan results, current
 * and home network, preferred and forbidden lists).  Each parser writes only
 * its own fields and leaves the others as the caller set them:
 *   firstCode, secondCode   all of them
 *   thirdCode               preferred lists only
 *   status                  scan only
 *   descriptionLength       scan, current network, home network
 * `description` is never written: when non-null it receives the description
 * bytes.  Arrays are walked with this record's size as stride.
 * 8 + pointer bytes. */
typedef struct NASNetworkRecord {
    uint16_t firstCode;
    uint16_t secondCode;
    uint16_t thirdCode;
    uint8_t status;
    uint8_t descriptionLength;
    uint8_t* description;
} NASNetworkRecord;

/* NAS: one RF band entry, laid out as on the wire (5 bytes). */
typedef struct NASRFBandRecord {
    uint8_t first;
    uint16_t second;
    uint16_t third;
} NASRFBandRecord;

/* NAS: the manual network registration item of InitiateNetworkRegister (5 bytes). */
typedef struct NASManualNetworkRegister {
    uint16_t firstCode;
    uint16_t secondCode;
    uint8_t third;
} NASManualNetworkRegister;

#pragma pack(pop)

/* Reset 0x0000, Abort 0x0001 */
ZOVQMI_API int zovQMINASResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASResetResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASAbortReq(uint8_t* buf, int bufsize, uint16_t transactionId);
ZOVQMI_API int zovQMINASAbortResp(const uint8_t* msg, int len, QmiResult* result);

/* SetEventReport 0x0002 and the EventReport indication */
ZOVQMI_API int zovQMINASSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASSetEventReportReqAddSignalStrengthIndicator(uint8_t* buf, int bufsize, uint8_t report,
                                                                    uint8_t count, const uint8_t* thresholds);
ZOVQMI_API int zovQMINASSetEventReportReqAddRFBandInformation(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASSetEventReportReqAddRegistrationRejectReasons(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASSetEventReportReqAddRSSIIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
ZOVQMI_API int zovQMINASSetEventReportReqAddECIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
ZOVQMI_API int zovQMINASSetEventReportReqAddIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
ZOVQMI_API int zovQMINASSetEventReportReqAddSINRIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
ZOVQMI_API int zovQMINASSetEventReportReqAddErrorRateIndicator(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMINASEventReportINDGetSignalStrength(const uint8_t* msg, int len, uint8_t* strength,
                                                        uint8_t* radioInterface);
ZOVQMI_API int zovQMINASEventReportINDGetRFBandInformationList(const uint8_t* msg, int len, uint8_t* count,
                                                               NASRFBandRecord* list);
ZOVQMI_API int zovQMINASEventReportINDGetRegistrationRejectReason(const uint8_t* msg, int len, uint8_t* domain,
                                                                  uint16_t* cause);
ZOVQMI_API int zovQMINASEventReportINDGetRSSI(const uint8_t* msg, int len, uint8_t* rssi, uint8_t* radioInterface);
ZOVQMI_API int zovQMINASEventReportINDGetECIO(const uint8_t* msg, int len, uint8_t* ecio, uint8_t* radioInterface);
ZOVQMI_API int zovQMINASEventReportINDGetIO(const uint8_t* msg, int len, uint32_t* io);
ZOVQMI_API int zovQMINASEventReportINDGetSINR(const uint8_t* msg, int len, uint8_t* sinr);
ZOVQMI_API int zovQMINASEventReportINDGetErrorRate(const uint8_t* msg, int len, uint16_t* errorRate,
                                                   uint8_t* radioInterface);

/* IndicationRegister 0x0003 */
ZOVQMI_API int zovQMINASIndicationRegisterReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASIndicationRegisterReqAddSystemSelectionPreference(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASIndicationRegisterReqAddDDTMEvents(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASIndicationRegisterReqAddServingSystemEvents(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMINASIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result);

/* GetSignalStrength 0x0020 */
ZOVQMI_API int zovQMINASGetSignalStrengthReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetSignalStrengthReqAddRequestMask(uint8_t* buf, int bufsize, uint16_t mask);
ZOVQMI_API int zovQMINASGetSignalStrengthResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* strength,
                                              uint8_t* radioInterface);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetSignalStrengthList(const uint8_t* msg, int len, uint16_t* count,
                                                                   uint8_t* first, uint8_t* second);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetRSSIList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetECIOList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetIO(const uint8_t* msg, int len, uint32_t* io);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetSINR(const uint8_t* msg, int len, uint8_t* sinr);
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetErrorRateList(const uint8_t* msg, int len, uint16_t* count,
                                                              uint16_t* errorRates, uint8_t* radioInterfaces);

/* PerformNetworkScan 0x0021 */
ZOVQMI_API int zovQMINASPerformNetworkScanReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASPerformNetworkScanResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(const uint8_t* msg, int len, uint16_t* count,
                                                                        NASNetworkRecord* list);

/* InitiateNetworkRegister 0x0022 */
ZOVQMI_API int zovQMINASInitiateNetworkRegisterReq(uint8_t* buf, int bufsize, uint8_t action);
ZOVQMI_API int zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(
    uint8_t* buf, int bufsize, const NASManualNetworkRegister* info);
ZOVQMI_API int zovQMINASInitiateNetworkRegisterResp(const uint8_t* msg, int len, QmiResult* result);

/* InitiateAttach 0x0023 */
ZOVQMI_API int zovQMINASInitiateAttachReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASInitiateAttachReqAddPSAttachAction(uint8_t* buf, int bufsize, uint8_t action);
ZOVQMI_API int zovQMINASInitiateAttachResp(const uint8_t* msg, int len, QmiResult* result);

/* GetServingSystem 0x0024 and the ServingSystem indication */
ZOVQMI_API int zovQMINASGetServingSystemReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetServingSystemResp(const uint8_t* msg, int len, QmiResult* result,
                                             NASServingSystem* servingSystem);
ZOVQMI_API int zovQMINASGetServingSystemRespGetRoamingIndicatorValue(const uint8_t* msg, int len, uint8_t* value);
ZOVQMI_API int zovQMINASGetServingSystemRespGetDataServiceCapabilityList(const uint8_t* msg, int len, uint8_t* count,
                                                                         uint8_t* list);
ZOVQMI_API int zovQMINASGetServingSystemRespGetCurrentPLMN(const uint8_t* msg, int len, NASNetworkRecord* network);
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMASystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                            uint16_t* networkId);
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMABaseStationInformation(const uint8_t* msg, int len,
                                                                          uint16_t* baseId, uint32_t* latitude,
                                                                          uint32_t* longitude);
ZOVQMI_API int zovQMINASGetServingSystemRespGetRoamingIndicatorList(const uint8_t* msg, int len, uint8_t* count,
                                                                    uint8_t* first, uint8_t* second);
ZOVQMI_API int zovQMINASGetServingSystemRespGetDefaultRoamingIndicator(const uint8_t* msg, int len, uint8_t* value);
ZOVQMI_API int zovQMINASGetServingSystemRespGet3GPP2TimeZone(const uint8_t* msg, int len, uint8_t* leapSeconds,
                                                             uint8_t* localOffset, uint8_t* daylightSaving);
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMAPRevInUse(const uint8_t* msg, int len, uint8_t* pRev);
ZOVQMI_API int zovQMINASGetServingSystemIND(const uint8_t* msg, int len, NASServingSystem* servingSystem);

/* GetHomeNetwork 0x0025 */
ZOVQMI_API int zovQMINASGetHomeNetworkReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetHomeNetworkResp(const uint8_t* msg, int len, QmiResult* result, NASNetworkRecord* network);
ZOVQMI_API int zovQMINASGetHomeNetworkRespGetHomeSystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                          uint16_t* networkId);

/* GetPreferredNetworks 0x0026, SetPreferredNetworks 0x0027 */
ZOVQMI_API int zovQMINASGetPreferredNetworksReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASGetPreferredNetworksRespGet3GPPPreferredNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list);
ZOVQMI_API int zovQMINASGetPreferredNetworksRespGetStatic3GPPPreferredNetworks(const uint8_t* msg, int len,
                                                                               uint16_t* count,
                                                                               NASNetworkRecord* list);
ZOVQMI_API int zovQMINASSetPreferredNetworksReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list);
ZOVQMI_API int zovQMINASSetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result);

/* GetForbiddenNetworks 0x0028, SetForbiddenNetworks 0x0029 */
ZOVQMI_API int zovQMINASGetForbiddenNetworksReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list);
ZOVQMI_API int zovQMINASSetForbiddenNetworksReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list);
ZOVQMI_API int zovQMINASSetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result);

/* GetACCOLC 0x002C, SetACCOLC 0x002D */
ZOVQMI_API int zovQMINASGetACCOLCReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetACCOLCResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* accolc);
ZOVQMI_API int zovQMINASSetACCOLCReq(uint8_t* buf, int bufsize, const uint8_t* code, uint8_t accolc);
ZOVQMI_API int zovQMINASSetACCOLCResp(const uint8_t* msg, int len, QmiResult* result);

/* GetDeviceConfig 0x002F, SetDeviceConfig 0x0030 */
ZOVQMI_API int zovQMINASGetDeviceConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetSlotCycleIndex(const uint8_t* msg, int len, uint8_t* index);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetStationClassMark(const uint8_t* msg, int len, uint8_t* mark);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetRegistrationParameters(const uint8_t* msg, int len, uint8_t* first,
                                                                     uint8_t* second, uint8_t* third);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetForceHDRRevision(const uint8_t* msg, int len, uint8_t* revision);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetHDRSCPCustomConfig(const uint8_t* msg, int len, uint8_t* active,
                                                                 uint32_t* first, uint32_t* second, uint32_t* third);
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetRoamPreference(const uint8_t* msg, int len, uint8_t* preference);
ZOVQMI_API int zovQMINASSetDeviceConfigReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddServiceProgrammingCode(uint8_t* buf, int bufsize, const uint8_t* code);
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddForceHDRRevision(uint8_t* buf, int bufsize, uint8_t revision);
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddHDRSCPCustomConfig(uint8_t* buf, int bufsize, uint8_t active,
                                                                uint32_t first, uint32_t second, uint32_t third);
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddRoamPreference(uint8_t* buf, int bufsize, uint8_t preference);
ZOVQMI_API int zovQMINASSetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result);

/* GetRFBandInfo 0x0031, GetANAAAStatus 0x0032 */
ZOVQMI_API int zovQMINASGetRFBandInfoReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetRFBandInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                          NASRFBandRecord* list);
ZOVQMI_API int zovQMINASGetANAAAStatusReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetANAAAStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);

/* SetSystemSelectionPreference 0x0033, GetSystemSelectionPreference 0x0034
 * and the SystemSelectionPreference indication */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddEmergencyMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddModePreference(uint8_t* buf, int bufsize,
                                                                         uint16_t preference);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddBandPreference(uint8_t* buf, int bufsize,
                                                                         uint64_t preference);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddCDMAPRLPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddRoamingPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference);
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetEmergencyMode(const uint8_t* msg, int len, uint8_t* mode);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetModePreference(const uint8_t* msg, int len,
                                                                          uint16_t* preference);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetBandPreference(const uint8_t* msg, int len,
                                                                          uint64_t* preference);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetCDMAPRLPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference);
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetRoamingPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference);
ZOVQMI_API int zovQMINASSystemSelectionPreferenceIND(const uint8_t* msg, int len);

/* SetDDTMPreference (request written as 0x0033, response 0x0037) and the
 * DDTM indication 0x0038 */
ZOVQMI_API int zovQMINASSetDDTMPreferenceReq(uint8_t* buf, int bufsize, uint8_t first, uint16_t second, uint8_t third,
                                             uint8_t count, const uint16_t* list);
ZOVQMI_API int zovQMINASSetDDTMPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMINASDDTMIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second, uint16_t* third,
                                uint8_t* count, uint16_t* list);
/* ------------------------------------------------------------ end NAS -- */


/* ---------------------------------------------------------------- WMS -- */
/* Records of the messaging service. */
#pragma pack(push, 1)

/* A raw short message as it crosses the interface: a 10-byte head followed by
 * the raw bytes.  Multi-byte fields are little-endian bytes on every host.
 * Each function uses only some head fields: the event report's transfer-route
 * item writes the route flag and reference, raw write reads the memory store,
 * raw read writes the tag, and format and length travel with every raw
 * message.  The caller sizes the record for `length` bytes of `data`. */
typedef struct WMSRawMessage {
    uint8_t routeFlag;
    uint32_t routeReference;
    uint8_t memoryStore;
    uint8_t messageTag;
    uint8_t messageFormat;
    uint16_t length;
    uint8_t data[];
} WMSRawMessage;

/* One broadcast configuration entry (9 bytes), shared by the 3GPP and 3GPP2
 * functions: the 3GPP ones use the first word pair and the selection byte,
 * the 3GPP2 ones the second pair and the selection byte. */
typedef struct WMSBroadcastConfigEntry {
    uint16_t first3GPP;
    uint16_t second3GPP;
    uint16_t first3GPP2;
    uint16_t second3GPP2;
    uint8_t selection;
} WMSBroadcastConfigEntry;

#pragma pack(pop)

ZOVQMI_API int zovQMIWMSResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSResetResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(uint8_t* buf, int bufsize, uint8_t indicator);
ZOVQMI_API int zovQMIWMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMIWMSEventReportINDGetMTMessage(const uint8_t* msg, int len, uint8_t* memoryStore,
                                                   uint32_t* memoryIndex);
ZOVQMI_API int zovQMIWMSEventReportINDGetTransferRouteMTMessage(const uint8_t* msg, int len, WMSRawMessage* message);
ZOVQMI_API int zovQMIWMSEventReportINDGetMessageMode(const uint8_t* msg, int len, uint8_t* mode);
ZOVQMI_API int zovQMIWMSRawSendReq(uint8_t* buf, int bufsize, const WMSRawMessage* message);
ZOVQMI_API int zovQMIWMSRawSendReqAddForceOnDC(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
ZOVQMI_API int zovQMIWMSRawSendReqAddFollowOnDC(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWMSRawSendReqAddLinkControl(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIWMSRawSendResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* messageId);
ZOVQMI_API int zovQMIWMSRawSendRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause);
ZOVQMI_API int zovQMIWMSRawSendRespGetErrorClass(const uint8_t* msg, int len, uint8_t* errorClass);
ZOVQMI_API int zovQMIWMSRawSendRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause, uint8_t* extra);
ZOVQMI_API int zovQMIWMSRawWriteReq(uint8_t* buf, int bufsize, const WMSRawMessage* message);
ZOVQMI_API int zovQMIWMSRawWriteResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* memoryIndex);
ZOVQMI_API int zovQMIWMSRawReadReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex);
ZOVQMI_API int zovQMIWMSRawReadReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSRawReadResp(const uint8_t* msg, int len, QmiResult* result, WMSRawMessage* message);
ZOVQMI_API int zovQMIWMSModifyTagReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex, uint8_t tag);
ZOVQMI_API int zovQMIWMSModifyTagReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSModifyTagResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSDeleteReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
ZOVQMI_API int zovQMIWMSDeleteReqAddMemoryIndex(uint8_t* buf, int bufsize, uint32_t memoryIndex);
ZOVQMI_API int zovQMIWMSDeleteReqAddMessageTag(uint8_t* buf, int bufsize, uint8_t tag);
ZOVQMI_API int zovQMIWMSDeleteReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSDeleteResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetMessageProtocolReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSGetMessageProtocolResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* protocol);
ZOVQMI_API int zovQMIWMSListMessagesReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
ZOVQMI_API int zovQMIWMSListMessagesReqAddRequestedTag(uint8_t* buf, int bufsize, uint8_t tag);
ZOVQMI_API int zovQMIWMSListMessagesReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/* The count is 32 bits wide; indexes and tags are optional and must hold *count entries. */
ZOVQMI_API int zovQMIWMSListMessagesResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* count,
                                         uint32_t* indexes, uint8_t* tags);
ZOVQMI_API int zovQMIWMSSendACKReq(uint8_t* buf, int bufsize, uint32_t reference, uint8_t value1, uint8_t value2);
ZOVQMI_API int zovQMIWMSSendACKReqAdd3GPP2FailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
ZOVQMI_API int zovQMIWMSSendACKReqAdd3GPPFailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
ZOVQMI_API int zovQMIWMSSendACKResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSendFromMemStoreReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex,
                                            uint8_t mode);
ZOVQMI_API int zovQMIWMSSendFromMemStoreResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetMessageID(const uint8_t* msg, int len, uint16_t* messageId);
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause);
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetErrorClass(const uint8_t* msg, int len, uint16_t* errorClass);
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause,
                                                                  uint8_t* extra);
ZOVQMI_API int zovQMIWMSSetRoutesReq(uint8_t* buf, int bufsize, uint16_t count, const uint8_t* routes);
ZOVQMI_API int zovQMIWMSSetRoutesReqAddTransferStatusReport(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIWMSSetRoutesResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetRoutesReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSGetRoutesResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* count, uint8_t* routes);
ZOVQMI_API int zovQMIWMSGetRoutesRespGetTransferStatusReport(const uint8_t* msg, int len, uint8_t* report);
ZOVQMI_API int zovQMIWMSGetSMSCAddressReq(uint8_t* buf, int bufsize);
/* type receives 3 bytes; address (optional) receives *length bytes. */
ZOVQMI_API int zovQMIWMSGetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* type,
                                           uint8_t* length, uint8_t* address);
/* A null address with a non-zero length is refused (-1). */
ZOVQMI_API int zovQMIWMSSetSMSCAddressReq(uint8_t* buf, int bufsize, uint16_t length, const void* address);
ZOVQMI_API int zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(uint8_t* buf, int bufsize, uint16_t length,
                                                            const void* type);
ZOVQMI_API int zovQMIWMSSetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* maxSize);
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(const uint8_t* msg, int len, uint32_t* available);
ZOVQMI_API int zovQMIWMSSetRetryPeriodReq(uint8_t* buf, int bufsize, uint32_t period);
ZOVQMI_API int zovQMIWMSSetRetryPeriodResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetRetryIntervalReq(uint8_t* buf, int bufsize, uint32_t interval);
ZOVQMI_API int zovQMIWMSSetRetryIntervalResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetDCDisconnectTimerReq(uint8_t* buf, int bufsize, uint32_t timer);
ZOVQMI_API int zovQMIWMSSetDCDisconnectTimerResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetMemoryStatusReq(uint8_t* buf, int bufsize, uint8_t status);
ZOVQMI_API int zovQMIWMSSetMemoryStatusResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetBroadcastActivationReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
ZOVQMI_API int zovQMIWMSSetBroadcastActivationResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(uint8_t* buf, int bufsize,
                                                                                      uint16_t count,
                                                                                      const WMSBroadcastConfigEntry* entries);
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(uint8_t* buf, int bufsize,
                                                                                       uint16_t count,
                                                                                       const WMSBroadcastConfigEntry* entries);
ZOVQMI_API int zovQMIWMSSetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode);
ZOVQMI_API int zovQMIWMSGetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(const uint8_t* msg, int len,
                                                                                       uint8_t* activation,
                                                                                       uint16_t* count,
                                                                                       WMSBroadcastConfigEntry* entries);
ZOVQMI_API int zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(const uint8_t* msg, int len,
                                                                                        uint8_t* activation,
                                                                                        uint16_t* count,
                                                                                        WMSBroadcastConfigEntry* entries);
ZOVQMI_API int zovQMIWMSMemoryFullIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second);
ZOVQMI_API int zovQMIWMSGetDomainPrefReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSGetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* preference);
ZOVQMI_API int zovQMIWMSSetDomainPrefReq(uint8_t* buf, int bufsize, uint8_t preference);
ZOVQMI_API int zovQMIWMSSetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIWMSGetMessageWaitingReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIWMSGetMessageWaitingResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                              uint8_t* first, uint8_t* second, uint8_t* third);
ZOVQMI_API int zovQMIWMSMessageWaitingIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* first, uint8_t* second,
                                          uint8_t* third);
ZOVQMI_API int zovQMIWMSSetPrimaryClientReq(uint8_t* buf, int bufsize, uint8_t primary);
ZOVQMI_API int zovQMIWMSSetPrimaryClientResp(const uint8_t* msg, int len, QmiResult* result);
/* ------------------------------------------------------------ end WMS -- */


/* ---------------------------------------------------------------- PDS -- */
/** @defgroup svc_pds PDS: position determination service (service 6)
 *  @brief The GPS engine: service state, position sessions, the event report, engine configuration and the
 *  injection of time, position, WiFi, XTRA and file data.
 */

#pragma pack(push, 1)

/**
 * One entry of an assistance-data request list of the EventReport indication (items 0x14 and 0x15).
 * 6 bytes on 32-bit hosts.  On the wire an entry is a length byte followed by that many bytes.
 * @ingroup pds_event_report
 */
typedef struct LengthPrefixedEntry {
    uint16_t length; /**< Entry length in bytes, stored as little-endian bytes; only the low byte is ever set, the
                          high byte is written 0. */
    uint8_t* data; /**< Caller buffer of at least @c length bytes that receives the entry's bytes; null: the bytes are
                        not copied. */
} LengthPrefixedEntry;

/**
 * One satellite of the EventReport item 0x17, copied as it is on the wire (18 bytes).
 * Multi-byte fields hold little-endian bytes on every host; the values are the modem's, passed through unchanged.
 * @ingroup pds_event_report
 */
typedef struct SatelliteInformationEntry {
    uint32_t validMask; /**< Which of the following fields are valid (u32). */
    uint8_t system; /**< Satellite system. */
    uint8_t prn; /**< Satellite PRN number. */
    uint8_t health; /**< Health status. */
    uint8_t processStatus; /**< Processing status. */
    uint8_t ephemerisState; /**< Ephemeris state. */
    uint8_t almanacState; /**< Almanac state. */
    uint32_t elevation; /**< Elevation (u32). */
    uint16_t azimuth; /**< Azimuth (u16). */
    uint16_t signalStrength; /**< Signal strength (u16). */
} SatelliteInformationEntry;

/**
 * A parsed position fix, the value of EventReport item 0x13, copied as it is on the wire (105 bytes).
 * Multi-byte fields hold little-endian bytes on every host.  The 64-bit fields are raw bits (two 32-bit halves, low
 * half first); latitude and longitude are IEEE doubles at the modem.  The values are the modem's, passed through
 * unchanged.
 * @ingroup pds_event_report
 */
typedef struct ParsedPositionData {
    uint32_t validMask; /**< Which of the following fields are valid (u32). */
    uint16_t year; /**< UTC year (u16). */
    uint8_t month; /**< UTC month. */
    uint8_t dayOfWeek; /**< Day of the week. */
    uint8_t dayOfMonth; /**< Day of the month. */
    uint8_t hour; /**< UTC hour. */
    uint8_t minute; /**< UTC minute. */
    uint8_t second; /**< UTC second. */
    uint16_t milliseconds; /**< Milliseconds (u16). */
    uint8_t leapSeconds; /**< Leap seconds. */
    uint64_t utcTimestamp; /**< UTC time stamp (64-bit raw bits). */
    uint32_t timeUncertainty; /**< Time uncertainty (u32). */
    uint64_t latitude; /**< Latitude (64-bit raw bits of a double). */
    uint64_t longitude; /**< Longitude (64-bit raw bits of a double). */
    uint32_t altitudeFromEllipsoid; /**< Altitude above the ellipsoid (u32). */
    uint32_t altitudeFromSeaLevel; /**< Altitude above sea level (u32). */
    uint32_t horizontalSpeed; /**< Horizontal speed (u32). */
    uint32_t verticalSpeed; /**< Vertical speed (u32). */
    uint32_t heading; /**< Heading (u32). */
    uint32_t horizontalUncertaintyCircular; /**< Circular horizontal uncertainty (u32). */
    uint32_t horizontalUncertaintyMajor; /**< Horizontal uncertainty, major axis (u32). */
    uint32_t horizontalUncertaintyMinor; /**< Horizontal uncertainty, minor axis (u32). */
    uint32_t horizontalUncertaintyAngle; /**< Angle of the horizontal uncertainty ellipse (u32). */
    uint32_t verticalUncertainty; /**< Vertical uncertainty (u32). */
    uint32_t horizontalVelocityUncertainty; /**< Horizontal velocity uncertainty (u32). */
    uint32_t verticalVelocityUncertainty; /**< Vertical velocity uncertainty (u32). */
    uint8_t horizontalConfidence; /**< Horizontal confidence. */
    uint32_t positionDOP; /**< Position dilution of precision (u32). */
    uint32_t horizontalDOP; /**< Horizontal dilution of precision (u32). */
    uint32_t verticalDOP; /**< Vertical dilution of precision (u32). */
    uint8_t positionSource; /**< Source of the position. */
} ParsedPositionData;

/**
 * The GPS engine's state, the value of GetGPSStateInfo item 0x10, copied as it is on the wire (98 bytes).
 * Multi-byte fields hold little-endian bytes on every host; the 64-bit fields are raw bits (two 32-bit halves, low
 * half first).  The values are the modem's, passed through unchanged.
 * @ingroup pds_get_gps_state_info
 */
typedef struct GPSStateInformation {
    uint8_t engineState; /**< Engine state. */
    uint32_t validMask; /**< Which of the following fields are valid (u32). */
    uint64_t latitude; /**< Latitude (64-bit raw bits). */
    uint64_t longitude; /**< Longitude (64-bit raw bits). */
    uint32_t horizontalUncertainty; /**< Horizontal uncertainty (u32). */
    uint32_t altitude; /**< Altitude (u32). */
    uint32_t verticalUncertainty; /**< Vertical uncertainty (u32). */
    uint32_t timeOfWeek; /**< GPS time of week (u32). */
    uint16_t gpsWeek; /**< GPS week (u16). */
    uint32_t timeUncertainty; /**< Time uncertainty (u32). */
    uint8_t ionosphereValid; /**< Nonzero when the ionosphere model is valid. */
    uint32_t gpsEphemerisMask; /**< GPS satellites with ephemeris (bit mask, u32). */
    uint32_t gpsAlmanacMask; /**< GPS satellites with almanac (bit mask, u32). */
    uint32_t gpsHealthMask; /**< GPS satellite health (bit mask, u32). */
    uint32_t gpsVisibleMask; /**< GPS satellites in view (bit mask, u32). */
    uint32_t glonassEphemerisMask; /**< GLONASS satellites with ephemeris (bit mask, u32). */
    uint32_t glonassAlmanacMask; /**< GLONASS satellites with almanac (bit mask, u32). */
    uint32_t glonassHealthMask; /**< GLONASS satellite health (bit mask, u32). */
    uint32_t glonassVisibleMask; /**< GLONASS satellites in view (bit mask, u32). */
    uint32_t sbasEphemerisMask; /**< SBAS satellites with ephemeris (bit mask, u32). */
    uint32_t sbasAlmanacMask; /**< SBAS satellites with almanac (bit mask, u32). */
    uint32_t sbasHealthMask; /**< SBAS satellite health (bit mask, u32). */
    uint32_t sbasVisibleMask; /**< SBAS satellites in view (bit mask, u32). */
    uint16_t xtraStartWeek; /**< GPS week at which the XTRA data starts (u16). */
    uint16_t xtraStartMinutes; /**< Minutes into that week at which the XTRA data starts (u16). */
    uint16_t xtraValidHours; /**< Hours for which the XTRA data is valid (u16). */
} GPSStateInformation;

/**
 * A network-initiated VX prompt (EventReport item 0x18) or its answer (SendNIResponse item 0x10).
 * 21 bytes on 32-bit hosts.  On the wire the fields up to @c dataLength follow in order, then @c dataLength data
 * bytes: 17 + @c dataLength bytes.  Multi-byte fields hold little-endian bytes on every host.
 * @ingroup svc_pds
 */
typedef struct NetworkInitiatedPromptVX {
    uint32_t notificationType; /**< Notification type (u32). */
    uint8_t positionMode; /**< Position mode. */
    uint8_t requesterIdEncoding; /**< Encoding of the requester id in @c data. */
    uint32_t sessionId; /**< Session id (u32). */
    uint32_t timeout; /**< Time-out (u32). */
    uint8_t positionQoSIncluded; /**< Nonzero when @c positionQoS is valid. */
    uint8_t positionQoS; /**< Position quality of service. */
    uint8_t dataLength; /**< Number of bytes in @c data (0-255). */
    uint8_t* data; /**< Caller buffer of up to 255 bytes.  Read: receives the bytes when non-null (null: not copied).
                        Written: must be set when @c dataLength is nonzero. */
} NetworkInitiatedPromptVX;

/**
 * A network-initiated SUPL prompt (EventReport item 0x19) or its answer (SendNIResponse item 0x11).
 * 319 bytes on 32-bit hosts.  On the wire the fields follow in order and each length byte is followed directly by
 * that many bytes: 56 + @c length1 + @c length2 + @c length3 bytes.  Multi-byte fields hold little-endian bytes on
 * every host; @c sessionId is raw 64-bit.
 * @ingroup svc_pds
 */
typedef struct NetworkInitiatedPromptSUPL {
    uint32_t notificationType; /**< Notification type (u32). */
    uint8_t validMask; /**< Which of the optional fields are valid. */
    uint64_t sessionId; /**< SUPL session id (64-bit raw bits). */
    uint8_t serverAddressType; /**< Type of the SUPL server address. */
    uint32_t serverIPv4Address; /**< Server IPv4 address (u32). */
    uint32_t serverIPv4Port; /**< Server IPv4 port (u32). */
    uint32_t requesterIdMask; /**< Requester id mask (u32). */
    uint32_t clientNameMask; /**< Client name mask (u32). */
    uint8_t serverIPv6[16]; /**< Server IPv6 address, 16 bytes as they are. */
    uint8_t length1; /**< Number of bytes in @c block1 (0-255). */
    uint8_t block1[255]; /**< Block 1, held in the record (up to 255 bytes). */
    uint8_t hash; /**< Hash byte. */
    uint8_t positionMethod; /**< Position method. */
    uint8_t length2; /**< Number of bytes in @c block2 (0-255). */
    uint8_t* block2; /**< Caller buffer for block 2 (up to 255 bytes); null when read: not copied; must be set when
                          written with a nonzero @c length2. */
    uint8_t clientNameEncoding; /**< Encoding of the client name in @c block3. */
    uint8_t length3; /**< Number of bytes in @c block3 (0-255). */
    uint8_t* block3; /**< Caller buffer for block 3 (up to 255 bytes); null when read: not copied; must be set when
                          written with a nonzero @c length3. */
    uint8_t qosHorizontalAccuracy; /**< Requested horizontal accuracy. */
    uint8_t qosVerticalAccuracy; /**< Requested vertical accuracy. */
    uint8_t qosMaxAge; /**< Requested maximum age of the fix. */
    uint8_t qosDelay; /**< Requested delay. */
} NetworkInitiatedPromptSUPL;

/**
 * A network-initiated UMTS control-plane prompt (EventReport item 0x1A) or its answer (SendNIResponse, item 0x11).
 * 282 bytes on 32-bit hosts.  On the wire the fields follow in order and each length byte is followed directly by
 * that many bytes: 15 + @c length1 + @c length2 + @c length3 + @c length4 bytes.  @c notificationType holds
 * little-endian bytes on every host.
 * @ingroup svc_pds
 */
typedef struct NetworkInitiatedPromptUMTSCP {
    uint32_t notificationType; /**< Notification type (u32). */
    uint8_t invokeId; /**< Invoke id. */
    uint8_t validMask; /**< Which of the optional fields are valid. */
    uint8_t notificationTextEncoding; /**< Encoding of the notification text in @c block1. */
    uint8_t length1; /**< Number of bytes in @c block1 (0-255). */
    uint8_t* block1; /**< Caller buffer for block 1 (up to 255 bytes); null when read: not copied; must be set when
                          written with a nonzero @c length1. */
    uint8_t length2; /**< Number of bytes in @c block2 (0-255). */
    uint8_t block2[255]; /**< Block 2, held in the record (up to 255 bytes). */
    uint8_t locationType; /**< Location type. */
    uint8_t externalAddressType; /**< Type of the external client address in @c block2. */
    uint8_t length3; /**< Number of bytes in @c block3 (0-255). */
    uint8_t* block3; /**< Caller buffer for block 3 (up to 255 bytes); null when read: not copied; must be set when
                          written with a nonzero @c length3. */
    uint8_t requesterIdEncoding; /**< Encoding of the requester id in @c block4. */
    uint8_t length4; /**< Number of bytes in @c block4 (0-255). */
    uint8_t* block4; /**< Caller buffer for block 4 (up to 255 bytes); null when read: not copied; must be set when
                          written with a nonzero @c length4. */
    uint8_t codewordEncoding; /**< Encoding of the code word. */
} NetworkInitiatedPromptUMTSCP;

/**
 * One WiFi access point for InjectWiFiPositionData item 0x12, written as it is (13 bytes).
 * Multi-byte fields hold little-endian bytes on every host.
 * @ingroup pds_inject_wifi_position_data
 */
typedef struct WiFiAccessPointEntry {
    uint8_t macAddress[6]; /**< MAC address, 6 bytes as they are. */
    uint32_t rssi; /**< Received signal strength (u32). */
    uint16_t channel; /**< WiFi channel (u16). */
    uint8_t flags; /**< Flags. */
} WiFiAccessPointEntry;

/**
 * A file for the modem's file system, the source of InjectEFSData item 0x01 (16 bytes on 32-bit hosts).
 * The pointers are native; @c dataLength holds little-endian bytes on every host.
 * @ingroup pds_inject_efs_data
 */
typedef struct EFSFileRecord {
    uint8_t nameLength; /**< Length of the file name in bytes. */
    const uint8_t* name; /**< File name bytes (no terminator); may be null only when @c nameLength is 0. */
    uint8_t fileOperation; /**< File operation code. */
    uint32_t dataLength; /**< Length of the file data in bytes (u32). */
    uint8_t partNumber; /**< Number of this part. */
    uint8_t totalParts; /**< Total number of parts. */
    const uint8_t* data; /**< File data bytes; may be null only when @c dataLength is 0. */
} EFSFileRecord;

#pragma pack(pop)

/** @defgroup pds_reset Reset (0x0000)
 *  @ingroup svc_pds
 *  @brief Resets the PDS state of this client.
 *  @{
 */
/**
 * Builds the Reset (0x0000) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSResetReq(uint8_t* buf, int bufsize);
/**
 * Parses the Reset (0x0000) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0000; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_set_event_report SetEventReport (0x0001)
 *  @ingroup svc_pds
 *  @brief Chooses which reports the EventReport indication delivers.
 *
 *  Each subscription item is numbered one lower than the indication item it enables, and 0x11 is skipped.
 *  @{
 */
/**
 * Builds the SetEventReport (0x0001) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSSetEventReportReqAdd functions. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 * @note Deliberate: the subscription items skip 0x11 and are numbered one lower than the EventReport items they
 *   enable (subscription 0x12 enables indication item 0x13, ..., 0x1A enables 0x1B); only the NMEA item is 0x10 in
 *   both.
 */
ZOVQMI_API int zovQMIPDSSetEventReportReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), the subscription to NMEA sentences (indication item 0x10), to a SetEventReport
 * (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddPositionDataNMEA(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x12 (1 byte), the subscription to parsed position data (indication item 0x13), to a SetEventReport
 * (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddParsedPositionData(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x13 (1 byte), the subscription to XTRA data requests (indication item 0x14), to a SetEventReport
 * (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalXTRADataRequest(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x14 (1 byte), the subscription to time injection requests (indication item 0x15), to a
 * SetEventReport (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalTimeInjectionRequest(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x15 (1 byte), the subscription to WiFi position requests (indication item 0x16), to a
 * SetEventReport (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddExternalWiFiPositionRequest(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x16 (1 byte), the subscription to satellite information (indication item 0x17), to a SetEventReport
 * (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddSatelliteInformation(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x17 (1 byte), the subscription to VX prompts (indication item 0x18), to a SetEventReport (0x0001)
 * request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x18 (1 byte), the subscription to SUPL prompts (indication item 0x19), to a SetEventReport (0x0001)
 * request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x19 (1 byte), the subscription to UMTS control-plane prompts (indication item 0x1A), to a
 * SetEventReport (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x1A (1 byte), the subscription to communication events (indication item 0x1B), to a SetEventReport
 * (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report, 0: do not report.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetEventReportReqAddPDSCommEvents(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Parses the SetEventReport (0x0001) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_event_report EventReport (0x0001, indication)
 *  @ingroup svc_pds
 *  @brief Delivers NMEA sentences, position fixes, satellite data, assistance-data requests and network-initiated
 *    prompts.
 *
 *  Every item is optional; fetch each with its getter.
 *  @{
 */
/**
 * Checks that a buffer holds the EventReport (0x0001) indication; reads no item.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg; ZOVQMI_ERR_NO_MESSAGE when @p msg
 *   holds no message 0x0001.
 */
ZOVQMI_API int zovQMIPDSEventReportIND(const uint8_t* msg, int len);
/**
 * Reads item 0x10 of the EventReport (0x0001) indication: the NMEA sentence(s), the whole value as it is.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param length Receives the value length in bytes (native); required.
 * @param data Caller buffer of at least the item's length that receives the bytes (no terminator added); may be
 *   null, then only @p length is delivered.  Nothing is copied for an empty item.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionDataNMEA(const uint8_t* msg, int len, uint16_t* length, void* data);
/**
 * Reads item 0x12 of the EventReport (0x0001) indication: the position session status (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param status Receives the session status code as the modem sends it; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionSessionStatus(const uint8_t* msg, int len, uint8_t* status);
/**
 * Reads item 0x13 of the EventReport (0x0001) indication: a parsed position fix.
 * Copies 105 bytes as they are into @p data, whatever the item's length says.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param data Receives the fix, laid out as on the wire; required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: all 105 bytes are read whatever the item's length says, so a short item is read on into the
 *   bytes that follow it in @p msg.
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetParsedPositionData(const uint8_t* msg, int len, ParsedPositionData* data);
/**
 * Reads item 0x14 of the EventReport (0x0001) indication: the modem asks for XTRA data.
 * Value: u16 maximum file size, a count, then count entries of a length byte and that many bytes (the servers to
 * fetch from). The walk is bounded by the end of @p msg, not by the item's length.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param maxFileSize Receives the maximum file size in bytes (native); required.
 * @param count Receives the number of entries; required.
 * @param entries Caller array of @p count entries, each with its @c data pointer set beforehand (or null to skip
 *   that entry's bytes); may be null, then only @p maxFileSize and @p count are delivered.  The array's size is not
 *   checked: it must hold the count the modem sends (up to 255).
 * @return The value length of item 0x14; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x14 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalXTRADatabaseRequest(const uint8_t* msg, int len,
                                                                    uint16_t* maxFileSize, uint8_t* count,
                                                                    LengthPrefixedEntry* entries);
/**
 * Reads item 0x15 of the EventReport (0x0001) indication: the modem asks for a time injection.
 * Value: u32 delay threshold, a count, then count entries of a length byte and that many bytes (the time servers).
 * The walk is bounded by the end of @p msg, not by the item's length.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param delayThreshold Receives the delay threshold (native); required.
 * @param count Receives the number of entries; required.
 * @param entries Caller array of @p count entries, each with its @c data pointer set beforehand (or null to skip
 *   that entry's bytes); may be null, then only @p delayThreshold and @p count are delivered.  The array's size is
 *   not checked.
 * @return The value length of item 0x15; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x15 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalTimeInjectionRequest(const uint8_t* msg, int len,
                                                                     uint32_t* delayThreshold, uint8_t* count,
                                                                     LengthPrefixedEntry* entries);
/**
 * Reads item 0x16 of the EventReport (0x0001) indication: the modem asks for WiFi positions.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param request Receives the request byte (start or stop, as the modem sends it); required.
 * @param interval Receives the requested interval (u16, native); required.
 * @return The value length of item 0x16; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x16 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetExternalWiFiPositionRequest(const uint8_t* msg, int len, uint8_t* request,
                                                                    uint16_t* interval);
/**
 * Reads item 0x17 of the EventReport (0x0001) indication: the satellites in view.
 * Value: u32 valid mask, ionosphere byte, a count, then count 18-byte entries copied as they are. The walk is
 * bounded by the end of @p msg, not by the item's length.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param validMask Receives the valid mask (native); required.
 * @param iono Receives the ionosphere byte; required.
 * @param count Receives the number of satellites; required.
 * @param entries Caller array of @p count entries; may be null, then only the leading fields and @p count are
 *   delivered.  Its size is not checked.
 * @return The value length of item 0x17; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x17 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetSatelliteInformation(const uint8_t* msg, int len, uint32_t* validMask,
                                                             uint8_t* iono, uint8_t* count,
                                                             SatelliteInformationEntry* entries);
/**
 * Reads item 0x18 of the EventReport (0x0001) indication: a network-initiated VX prompt.
 * The fields are read in record order; @c data receives the bytes when the pointer in @p prompt is set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param prompt Receives the prompt; its @c data pointer is set by the caller beforehand (null: the bytes are not
 *   copied); required.
 * @return The value length of item 0x18; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x18 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the record is read at its own layout whatever the item's length says, so a short item is read
 *   on into the bytes that follow it in @p msg.
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptVX(const uint8_t* msg, int len,
                                                                 NetworkInitiatedPromptVX* prompt);
/**
 * Reads item 0x19 of the EventReport (0x0001) indication: a network-initiated SUPL prompt.
 * The fields are read in record order; block 1 goes into the record, blocks 2 and 3 through its pointers when set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param prompt Receives the prompt; its @c block2 and @c block3 pointers are set by the caller beforehand (null:
 *   not copied); required.
 * @return The value length of item 0x19; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x19 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the record is read at its own layout whatever the item's length says, so a short item is read
 *   on into the bytes that follow it in @p msg.
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptSUPL(const uint8_t* msg, int len,
                                                                   NetworkInitiatedPromptSUPL* prompt);
/**
 * Reads item 0x1A of the EventReport (0x0001) indication: a network-initiated UMTS control-plane prompt.
 * The fields are read in record order; block 2 goes into the record, blocks 1, 3 and 4 through its pointers when
 * set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param prompt Receives the prompt; its @c block1, @c block3 and @c block4 pointers are set by the caller
 *   beforehand (null: not copied); required.
 * @return The value length of item 0x1A; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x1A is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the record is read at its own layout whatever the item's length says, so a short item is read
 *   on into the bytes that follow it in @p msg.
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetNetworkInitiatedPromptUMTSCP(const uint8_t* msg, int len,
                                                                     NetworkInitiatedPromptUMTSCP* prompt);
/**
 * Reads item 0x1B of the EventReport (0x0001) indication: a communication event (2 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param type Receives the event type; required.
 * @param state Receives the event state; required.
 * @return The value length of item 0x1B; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x1B is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetPDSCommEvents(const uint8_t* msg, int len, uint8_t* type, uint8_t* state);
/**
 * Reads item 0x1C of the EventReport (0x0001) indication: the source of the position (u32).
 * This item has no subscription item of its own.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param source Receives the position source (native); required.
 * @return The value length of item 0x1C; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x1C is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSEventReportINDGetPositionSource(const uint8_t* msg, int len, uint32_t* source);
/** @} */

/** @defgroup pds_get_gps_service_state GetGPSServiceState (0x0020) and GPSServiceState (0x0020, indication)
 *  @ingroup svc_pds
 *  @brief Reads whether the GPS service is on and its tracking state; the indication reports changes.
 *  @{
 */
/**
 * Builds the GetGPSServiceState (0x0020) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetGPSServiceStateReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetGPSServiceState (0x0020) response: result item 0x02 and item 0x01 (2 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param enabled Receives the service state: 0 disabled, 1 enabled; required.
 * @param trackingState Receives the tracking state as the modem sends it; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000020; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* enabled,
                                              uint8_t* trackingState);
/**
 * Parses the GPSServiceState (0x0020) indication: item 0x01 (2 bytes), as in the response.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param enabled Receives the service state: 0 disabled, 1 enabled; required.
 * @param trackingState Receives the tracking state as the modem sends it; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000020; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGPSServiceStateIND(const uint8_t* msg, int len, uint8_t* enabled, uint8_t* trackingState);
/** @} */

/** @defgroup pds_set_gps_service_state SetGPSServiceState (0x0021)
 *  @ingroup svc_pds
 *  @brief Switches the GPS service on or off.
 *  @{
 */
/**
 * Builds the SetGPSServiceState (0x0021) request with its item 0x01 (1 byte): 11 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 11.
 * @param state 1: enable the GPS service, 0: disable it.
 * @return 11, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 11 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSetGPSServiceStateReq(uint8_t* buf, int bufsize, uint8_t state);
/**
 * Parses the SetGPSServiceState (0x0021) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0021; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetGPSServiceStateResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_default_tracking_session GetDefaultTrackingSession (0x0029)
 *  @ingroup svc_pds
 *  @brief Reads the default parameters of tracking sessions.
 *  @{
 */
/**
 * Builds the GetDefaultTrackingSession (0x0029) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetDefaultTrackingSessionReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetDefaultTrackingSession (0x0029) response: result item 0x02 and item 0x01 (u8, u8, u32, u32: 10
 * bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param mode Receives the session operating mode; required.
 * @param timeout Receives the time the engine may spend on one fix, in seconds; required.
 * @param interval Receives the interval between fixes, in milliseconds (native); required.
 * @param accuracy Receives the accuracy threshold, in metres (native); required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000029; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode,
                                                     uint8_t* timeout, uint32_t* interval, uint32_t* accuracy);
/** @} */

/** @defgroup pds_set_default_tracking_session SetDefaultTrackingSession (0x002A)
 *  @ingroup svc_pds
 *  @brief Sets the default parameters of tracking sessions.
 *  @{
 */
/**
 * Builds the SetDefaultTrackingSession (0x002A) request with its item 0x01 (u8, u8, u32, u32: 10 bytes): 20 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 20.
 * @param mode Session operating mode.
 * @param timeout Time the engine may spend on one fix, in seconds.
 * @param interval Interval between fixes, in milliseconds (written little-endian).
 * @param accuracy Accuracy threshold, in metres (written little-endian).
 * @return 20, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 20 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSetDefaultTrackingSessionReq(uint8_t* buf, int bufsize, uint8_t mode, uint8_t timeout,
                                                    uint32_t interval, uint32_t accuracy);
/**
 * Parses the SetDefaultTrackingSession (0x002A) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002A; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetDefaultTrackingSessionResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_auto_tracking_state GetAutoTrackingState (0x0030)
 *  @ingroup svc_pds
 *  @brief Reads whether automatic tracking is on.
 *  @{
 */
/**
 * Builds the GetAutoTrackingState (0x0030) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetAutoTrackingStateReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetAutoTrackingState (0x0030) response: result item 0x02 and item 0x01 (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param state Receives the automatic tracking state: 0 off, 1 on; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000030; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);
/** @} */

/** @defgroup pds_set_auto_tracking_state SetAutoTrackingState (0x0031)
 *  @ingroup svc_pds
 *  @brief Switches automatic tracking on or off.
 *  @{
 */
/**
 * Builds the SetAutoTrackingState (0x0031) request with its item 0x01 (1 byte): 11 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 11.
 * @param state 1: automatic tracking on, 0: off.
 * @return 11, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 11 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSetAutoTrackingStateReq(uint8_t* buf, int bufsize, uint8_t state);
/**
 * Parses the SetAutoTrackingState (0x0031) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0031; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetAutoTrackingStateResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_determine_single_position DetermineSinglePosition (0x0035)
 *  @ingroup svc_pds
 *  @brief Starts one position fix; the fix arrives in the EventReport indication.
 *  @{
 */
/**
 * Builds the DetermineSinglePosition (0x0035) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSDetermineSinglePositionReqAdd functions. Writes 7 bytes: control flags
 * 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), the session mode, to a DetermineSinglePosition (0x0035) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param mode Session operating mode.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionMode(uint8_t* buf, int bufsize, uint8_t mode);
/**
 * Appends item 0x11 (1 byte), the time-out, to a DetermineSinglePosition (0x0035) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param timeout Time the engine may spend on the fix, in seconds.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(uint8_t* buf, int bufsize, uint8_t timeout);
/**
 * Appends item 0x12 (u32), the accuracy threshold, to a DetermineSinglePosition (0x0035) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param accuracy Accuracy threshold, in metres (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionReqAddSinglePositionAccuracy(uint8_t* buf, int bufsize,
                                                                           uint32_t accuracy);
/**
 * Parses the DetermineSinglePosition (0x0035) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0035; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSDetermineSinglePositionResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_send_ni_response SendNIResponse (0x003C)
 *  @ingroup svc_pds
 *  @brief Answers a network-initiated prompt.
 *  @{
 */
/**
 * Builds the SendNIResponse (0x003C) request with its item 0x01 (1 byte), the user's answer: 11 bytes.
 * The prompt answered is appended with one of the SendNIResponseReqAdd... functions.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 11.
 * @param action The answer (accept, deny, ...) as the modem defines it.
 * @return 11, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 11 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSendNIResponseReq(uint8_t* buf, int bufsize, uint8_t action);
/**
 * Appends item 0x10, the VX prompt answered, to a SendNIResponse (0x003C) request.
 * The value is the record's fields in order, then @c dataLength data bytes: 17 + @c dataLength bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param prompt The prompt to send back; required.  Its @c data must be set when @c dataLength is nonzero.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p prompt, or a nonzero @c dataLength with a
 *   null @c data; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptVX(uint8_t* buf, int bufsize,
                                                                    const NetworkInitiatedPromptVX* prompt);
/**
 * Appends item 0x11, the SUPL prompt answered, to a SendNIResponse (0x003C) request.
 * The value is the record's fields in order, each length byte followed by its block: 56 + @c length1 + @c length2 +
 * @c length3 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param prompt The prompt to send back; required.  @c block2 and @c block3 must be set when their length is
 *   nonzero.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p prompt, or a nonzero block length with a
 *   null block pointer; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it
 *   was).
 */
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptSUPL(uint8_t* buf, int bufsize,
                                                                      const NetworkInitiatedPromptSUPL* prompt);
/**
 * Appends item 0x11, the UMTS control-plane prompt answered, to a SendNIResponse (0x003C) request.
 * The value is the record's fields in order, each length byte followed by its block: 15 + @c length1 + ... + @c
 * length4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param prompt The prompt to send back; required.  @c block1, @c block3 and @c block4 must be set when their
 *   length is nonzero.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p prompt, or a nonzero block length with a
 *   null block pointer; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the
 *   value would exceed 1024 bytes (the message is left as it was in both cases).
 * @note Deliberate: the item type is 0x11, the same as the SUPL answer's.
 */
ZOVQMI_API int zovQMIPDSSendNIResponseReqAddNetworkInitiatedPromptUMTSCP(uint8_t* buf, int bufsize,
                                                                        const NetworkInitiatedPromptUMTSCP* prompt);
/**
 * Parses the SendNIResponse (0x003C) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003C; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSendNIResponseResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_cancel_single_position CancelSinglePosition (0x0043)
 *  @ingroup svc_pds
 *  @brief Cancels a running single position fix.
 *  @{
 */
/**
 * Builds the CancelSinglePosition (0x0043) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSCancelSinglePositionReq(uint8_t* buf, int bufsize);
/**
 * Parses the CancelSinglePosition (0x0043) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0043; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSCancelSinglePositionResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_gps_state_info GetGPSStateInfo (0x0044)
 *  @ingroup svc_pds
 *  @brief Reads the engine's state: last position, time and the satellite masks.
 *  @{
 */
/**
 * Builds the GetGPSStateInfo (0x0044) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetGPSStateInfoReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetGPSStateInfo (0x0044) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0044; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetGPSStateInfoResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetGPSStateInfo (0x0044) response: the engine state.
 * Copies 98 bytes as they are into @p info, whatever the item's length says.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param info Receives the state, laid out as on the wire; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0044; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: all 98 bytes are read whatever the item's length says, so a short item is read on into the
 *   bytes that follow it in @p msg.
 */
ZOVQMI_API int zovQMIPDSGetGPSStateInfoRespGetGPSStateInformation(const uint8_t* msg, int len,
                                                                 GPSStateInformation* info);
/** @} */

/** @defgroup pds_get_nmea_config GetNMEAConfig (0x0026)
 *  @ingroup svc_pds
 *  @brief Reads which NMEA sentences the modem emits and where.
 *  @{
 */
/**
 * Builds the GetNMEAConfig (0x0026) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetNMEAConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetNMEAConfig (0x0026) response: result item 0x02 and item 0x01 (3 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param sentenceMask Receives the bit mask of NMEA sentences emitted; required.
 * @param port Receives the output port; required.
 * @param reporting Receives the reporting rate setting; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000026; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* sentenceMask,
                                         uint8_t* port, uint8_t* reporting);
/** @} */

/** @defgroup pds_set_nmea_config SetNMEAConfig (0x0027)
 *  @ingroup svc_pds
 *  @brief Sets which NMEA sentences the modem emits and where.
 *  @{
 */
/**
 * Builds the SetNMEAConfig (0x0027) request with its item 0x01 (3 bytes): 13 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 13.
 * @param sentenceMask Bit mask of NMEA sentences to emit.
 * @param port Output port.
 * @param reporting Reporting rate setting.
 * @return 13, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 13 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSetNMEAConfigReq(uint8_t* buf, int bufsize, uint8_t sentenceMask, uint8_t port,
                                        uint8_t reporting);
/**
 * Parses the SetNMEAConfig (0x0027) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0027; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetNMEAConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_inject_relative_time_ref InjectRelativeTimeRef (0x0028)
 *  @ingroup svc_pds
 *  @brief Injects a relative time reference.
 *  @{
 */
/**
 * Builds the InjectRelativeTimeRef (0x0028) request with its item 0x01 (64-bit time, u16: 10 bytes): 20 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 20.
 * @param systemTime System time, written as raw 64-bit bits, two little-endian 32-bit halves, low half first.
 * @param discontinuities Number of time discontinuities (written little-endian).
 * @return 20, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 20 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSInjectRelativeTimeRefReq(uint8_t* buf, int bufsize, uint64_t systemTime,
                                                uint16_t discontinuities);
/**
 * Parses the InjectRelativeTimeRef (0x0028) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0028; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectRelativeTimeRefResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_xtra_parameters GetXTRAParameters (0x002B)
 *  @ingroup svc_pds
 *  @brief Reads the XTRA assistance-data settings.
 *  @{
 */
/**
 * Builds the GetXTRAParameters (0x002B) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetXTRAParameters (0x002B) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetXTRAParameters (0x002B) response: automatic download (u8, u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param enabled Receives 1 when automatic download is on, 0 when off; required.
 * @param interval Receives the download interval, in hours (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseAutodownload(const uint8_t* msg, int len,
                                                                        uint8_t* enabled, uint16_t* interval);
/**
 * Reads item 0x11 of the GetXTRAParameters (0x002B) response: the download medium configuration, a length byte then
 * that many bytes.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param length Receives the length byte; required.
 * @param data Caller buffer of up to 255 bytes that receives the bytes; may be null, then only @p length is
 *   delivered.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadMediumConfiguration(const uint8_t* msg, int len,
                                                                                       uint8_t* length, void* data);
/**
 * Reads item 0x12 of the GetXTRAParameters (0x002B) response: the network used for downloads (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param network Receives the network setting; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseDownloadNetworkConfiguration(const uint8_t* msg, int len,
                                                                                        uint8_t* network);
/**
 * Reads item 0x13 of the GetXTRAParameters (0x002B) response: the validity of the XTRA data (three u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param startWeek Receives the GPS week at which the data starts (native); required.
 * @param startMinutes Receives the minutes into that week (native); required.
 * @param validHours Receives the number of hours the data is valid (native); required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetXTRADatabaseValidity(const uint8_t* msg, int len, uint16_t* startWeek,
                                                                    uint16_t* startMinutes, uint16_t* validHours);
/**
 * Reads item 0x14 of the GetXTRAParameters (0x002B) response: the embedded XTRA clients (2 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param dataClient Receives 1 when the embedded data client is on, 0 when off; required.
 * @param timeClient Receives 1 when the embedded time client is on, 0 when off; required.
 * @return The value length of item 0x14; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002B; ZOVQMI_ERR_NO_TLV when item 0x14 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetXTRAParametersRespGetEmbeddedXTRAClientState(const uint8_t* msg, int len,
                                                                       uint8_t* dataClient, uint8_t* timeClient);
/** @} */

/** @defgroup pds_set_xtra_parameters SetXTRAParameters (0x002C)
 *  @ingroup svc_pds
 *  @brief Sets the XTRA assistance-data settings.
 *  @{
 */
/**
 * Builds the SetXTRAParameters (0x002C) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSSetXTRAParametersReqAdd functions. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (u8, u16), automatic download, to a SetXTRAParameters (0x002C) request.
 * Appends 6 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param enabled 1: automatic download on, 0: off.
 * @param interval Download interval, in hours (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseAutodownload(uint8_t* buf, int bufsize, uint8_t enabled,
                                                                       uint16_t interval);
/**
 * Appends item 0x11, the download medium configuration, to a SetXTRAParameters (0x002C) request.
 * The value is the length byte then @p length bytes; appends 4 + @p length bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param length Number of bytes in @p data (0-255).
 * @param data The configuration bytes; may be null only when @p length is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p length with a null @p data;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseDownloadConfiguration(uint8_t* buf, int bufsize,
                                                                                uint8_t length, const void* data);
/**
 * Appends item 0x12 (1 byte), the network used for downloads, to a SetXTRAParameters (0x002C) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param network Network setting.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddXTRADatabaseNetworkConfiguration(uint8_t* buf, int bufsize,
                                                                               uint8_t network);
/**
 * Appends item 0x14 (2 bytes), the embedded XTRA clients, to a SetXTRAParameters (0x002C) request.
 * Appends 5 bytes.  There is no item 0x13 in this request.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param dataClient 1: embedded data client on, 0: off.
 * @param timeClient 1: embedded time client on, 0: off.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersReqAddEmbeddedXTRAClientState(uint8_t* buf, int bufsize, uint8_t dataClient,
                                                                      uint8_t timeClient);
/**
 * Parses the SetXTRAParameters (0x002C) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002C; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetXTRAParametersResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_force_xtra_download ForceXTRADownload (0x002D)
 *  @ingroup svc_pds
 *  @brief Makes the modem download XTRA data now.
 *  @{
 */
/**
 * Builds the ForceXTRADownload (0x002D) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSForceXTRADownloadReq(uint8_t* buf, int bufsize);
/**
 * Parses the ForceXTRADownload (0x002D) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002D; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSForceXTRADownloadResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_agps_config GetAGPSConfig (0x002E)
 *  @ingroup svc_pds
 *  @brief Reads the assisted-GPS location server.
 *  @{
 */
/**
 * Builds the GetAGPSConfig (0x002E) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetAGPSConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetAGPSConfig (0x002E) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002E; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetAGPSConfig (0x002E) response: the location server's IPv4 address and port (two u32).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param address Receives the IPv4 address (native); required.
 * @param port Receives the port (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002E; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerIPv4(const uint8_t* msg, int len, uint32_t* address,
                                                                  uint32_t* port);
/**
 * Reads item 0x11 of the GetAGPSConfig (0x002E) response: the location server's URL, a length byte then that many
 * bytes.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param length Receives the URL length in bytes; required.
 * @param data Caller buffer of up to 255 bytes that receives the URL (no terminator added); may be null, then only
 *   @p length is delivered.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002E; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetAGPSConfigRespGetAGPSLocationServerURL(const uint8_t* msg, int len, uint8_t* length,
                                                                 void* data);
/** @} */

/** @defgroup pds_set_agps_config SetAGPSConfig (0x002F)
 *  @ingroup svc_pds
 *  @brief Sets the assisted-GPS location server.
 *  @{
 */
/**
 * Builds the SetAGPSConfig (0x002F) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSSetAGPSConfigReqAdd functions. Writes 7 bytes: control flags 0, the next
 * transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSSetAGPSConfigReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (two u32), the location server's IPv4 address and port, to a SetAGPSConfig (0x002F) request.
 * Appends 11 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param address IPv4 address (written little-endian).
 * @param port Port (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServer(uint8_t* buf, int bufsize, uint32_t address,
                                                             uint32_t port);
/**
 * Appends item 0x11, the location server's URL, to a SetAGPSConfig (0x002F) request.
 * The value is the length byte then @p length bytes (no terminator); appends 4 + @p length bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param length Number of bytes in @p data (0-255).
 * @param data The URL bytes; may be null only when @p length is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p length with a null @p data;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetAGPSConfigReqAddAGPSLocationServerURL(uint8_t* buf, int bufsize, uint8_t length,
                                                                const void* data);
/**
 * Parses the SetAGPSConfig (0x002F) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x002F; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetAGPSConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_com_port_config GetCOMPortConfig (0x0032)
 *  @ingroup svc_pds
 *  @brief Reads the COM port setting.
 *  @{
 */
/**
 * Builds the GetCOMPortConfig (0x0032) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetCOMPortConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetCOMPortConfig (0x0032) response: result item 0x02 and item 0x01 (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param port Receives the COM port setting; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000032; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* port);
/** @} */

/** @defgroup pds_set_com_port_config SetCOMPortConfig (0x0033)
 *  @ingroup svc_pds
 *  @brief Sets the COM port.
 *  @{
 */
/**
 * Builds the SetCOMPortConfig (0x0033) request with its item 0x01 (1 byte): 11 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 11.
 * @param port COM port setting.
 * @return 11, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 11 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPDSSetCOMPortConfigReq(uint8_t* buf, int bufsize, uint8_t port);
/**
 * Parses the SetCOMPortConfig (0x0033) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0033; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetCOMPortConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_reset_gps_service_data ResetGPSServiceData (0x0034)
 *  @ingroup svc_pds
 *  @brief Deletes stored GPS data (ephemeris, almanac, cell database, ...).
 *  @{
 */
/**
 * Builds the ResetGPSServiceData (0x0034) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSResetGPSServiceDataReqAdd functions. Writes 7 bytes: control flags 0,
 * the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (u32), the GPS data to delete, to a ResetGPSServiceData (0x0034) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param mask Bit mask of the GPS data to delete (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReqAddGPSServiceData(uint8_t* buf, int bufsize, uint32_t mask);
/**
 * Appends item 0x11 (u32), the cell database data to delete, to a ResetGPSServiceData (0x0034) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param mask Bit mask of the cell database data to delete (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSResetGPSServiceDataReqAddGPSServiceCellDBData(uint8_t* buf, int bufsize, uint32_t mask);
/**
 * Parses the ResetGPSServiceData (0x0034) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0034; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSResetGPSServiceDataResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_gps_service_version GetGPSServiceVersion (0x0036)
 *  @ingroup svc_pds
 *  @brief Reads the version of the GPS service.
 *  @{
 */
/**
 * Builds the GetGPSServiceVersion (0x0036) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetGPSServiceVersionReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetGPSServiceVersion (0x0036) response: result item 0x02 and item 0x01 (2 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param major Receives the major version; required.
 * @param minor Receives the minor version; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000036; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIPDSGetGPSServiceVersionResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* major,
                                                uint8_t* minor);
/** @} */

/** @defgroup pds_inject_xtra_data InjectXTRAData (0x0037)
 *  @ingroup svc_pds
 *  @brief Injects one block of XTRA data.
 *  @{
 */
/**
 * Builds the InjectXTRAData (0x0037) request with its item 0x01: 15 + @p length bytes.
 * The value is the sequence byte, the total length (u16), @p length (u16) and the data bytes: 5 + @p length bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 15 + @p length.
 * @param sequence Sequence number of this block.
 * @param totalLength Total length of the XTRA data in bytes (written little-endian).
 * @param length Number of bytes in @p data (written little-endian).
 * @param data The block's bytes; may be null only when @p length is 0.
 * @return 15 + @p length, the request length; ZOVQMI_ERR_ARG when @p buf is null, @p bufsize is below 15 + @p
 *   length, or @p length is nonzero with a null @p data (nothing is written).
 */
ZOVQMI_API int zovQMIPDSInjectXTRADataReq(uint8_t* buf, int bufsize, uint8_t sequence, uint16_t totalLength,
                                         uint16_t length, const void* data);
/**
 * Parses the InjectXTRAData (0x0037) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0037; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectXTRADataResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_inject_position_data InjectPositionData (0x0038)
 *  @ingroup svc_pds
 *  @brief Injects a position fix obtained elsewhere.
 *  @{
 */
/**
 * Builds the InjectPositionData (0x0038) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSInjectPositionDataReqAdd functions. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (64-bit), the time stamp of the fix, to an InjectPositionData (0x0038) request.
 * Appends 11 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param timestamp Time stamp, written as raw 64-bit bits, two little-endian 32-bit halves, low half first.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddTimestamp(uint8_t* buf, int bufsize, uint64_t timestamp);
/**
 * Appends item 0x11 (64-bit), the latitude, to an InjectPositionData (0x0038) request.
 * Appends 11 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param latitude Latitude: the raw bits of an IEEE double (degrees), two little-endian 32-bit halves, low half
 *   first.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddLatitude(uint8_t* buf, int bufsize, uint64_t latitude);
/**
 * Appends item 0x12 (64-bit), the longitude, to an InjectPositionData (0x0038) request.
 * Appends 11 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param longitude Longitude: the raw bits of an IEEE double (degrees), two little-endian 32-bit halves, low half
 *   first.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddLongitude(uint8_t* buf, int bufsize, uint64_t longitude);
/**
 * Appends item 0x13 (u32), the altitude above the ellipsoid, to an InjectPositionData (0x0038) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param altitude Altitude above the ellipsoid (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddAltitudeFromEllipsoid(uint8_t* buf, int bufsize, uint32_t altitude);
/**
 * Appends item 0x14 (u32), the altitude above sea level, to an InjectPositionData (0x0038) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param altitude Altitude above sea level (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddAltitudeFromSeaLevel(uint8_t* buf, int bufsize, uint32_t altitude);
/**
 * Appends item 0x15 (u32), the circular horizontal uncertainty, to an InjectPositionData (0x0038) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param uncertainty Circular horizontal uncertainty (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddHorizontalUncertaintyCircular(uint8_t* buf, int bufsize,
                                                                             uint32_t uncertainty);
/**
 * Appends item 0x16 (u32), the vertical uncertainty, to an InjectPositionData (0x0038) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param uncertainty Vertical uncertainty (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddVerticalUncertainty(uint8_t* buf, int bufsize, uint32_t uncertainty);
/**
 * Appends item 0x17 (1 byte), the horizontal confidence, to an InjectPositionData (0x0038) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param confidence Horizontal confidence.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddHorizontalConfidence(uint8_t* buf, int bufsize, uint8_t confidence);
/**
 * Appends item 0x18 (1 byte), the vertical confidence, to an InjectPositionData (0x0038) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param confidence Vertical confidence.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddVerticalConfidence(uint8_t* buf, int bufsize, uint8_t confidence);
/**
 * Appends item 0x19 (1 byte), the source of the position, to an InjectPositionData (0x0038) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param source Position source.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddPositionSource(uint8_t* buf, int bufsize, uint8_t source);
/**
 * Appends item 0x1A (1 byte), the type of the time stamp, to an InjectPositionData (0x0038) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param timeType Time stamp type.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataReqAddTimeType(uint8_t* buf, int bufsize, uint8_t timeType);
/**
 * Parses the InjectPositionData (0x0038) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0038; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectPositionDataResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_inject_wifi_position_data InjectWiFiPositionData (0x0039)
 *  @ingroup svc_pds
 *  @brief Injects a WiFi position and the access points seen.
 *  @{
 */
/**
 * Builds the InjectWiFiPositionData (0x0039) request header, which optional items may follow.
 * The items are appended with the zovQMIPDSInjectWiFiPositionDataReqAdd functions. Writes 7 bytes: control flags 0,
 * the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (u32), the time of the WiFi position, to an InjectWiFiPositionData (0x0039) request.
 * Appends 7 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param time Time of the position (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionTime(uint8_t* buf, int bufsize, uint32_t time);
/**
 * Appends item 0x11 (u32, u32, u16, u8, u8: 12 bytes), the WiFi position, to an InjectWiFiPositionData (0x0039)
 * request.
 * Appends 15 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param latitude Latitude (written little-endian).
 * @param longitude Longitude (written little-endian).
 * @param uncertainty Horizontal uncertainty (written little-endian).
 * @param confidence Confidence.
 * @param reliability Reliability.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPosition(uint8_t* buf, int bufsize, uint32_t latitude,
                                                                uint32_t longitude, uint16_t uncertainty,
                                                                uint8_t confidence, uint8_t reliability);
/**
 * Appends item 0x12, the access points seen, to an InjectWiFiPositionData (0x0039) request.
 * The value is @p count, then the @p count 13-byte entries as they are: appends 4 + 13 per entry bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param count Number of entries.
 * @param entries Array of @p count access points; may be null only when @p count is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p count with a null @p entries;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the value would exceed
 *   1024 bytes (more than 78 entries); the message is left as it was on failure.
 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataReqAddWiFiPositionAPInformation(uint8_t* buf, int bufsize,
                                                                             uint8_t count,
                                                                             const WiFiAccessPointEntry* entries);
/**
 * Parses the InjectWiFiPositionData (0x0039) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0039; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectWiFiPositionDataResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_sbas_config GetSBASConfig (0x003A)
 *  @ingroup svc_pds
 *  @brief Reads the SBAS setting.
 *  @{
 */
/**
 * Builds the GetSBASConfig (0x003A) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetSBASConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetSBASConfig (0x003A) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003A; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetSBASConfig (0x003A) response: the SBAS setting (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param config Receives the SBAS setting: 1 enabled, 0 disabled; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003A; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetSBASConfigRespGetSBASConfiguration(const uint8_t* msg, int len, uint8_t* config);
/** @} */

/** @defgroup pds_set_sbas_config SetSBASConfig (0x003B)
 *  @ingroup svc_pds
 *  @brief Sets the SBAS setting.
 *  @{
 */
/**
 * Builds the SetSBASConfig (0x003B) request header, which optional items may follow.
 * The items are appended with zovQMIPDSSetSBASConfigReqAddSBASConfiguration. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSSetSBASConfigReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), the SBAS setting, to a SetSBASConfig (0x003B) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param config 1: SBAS enabled, 0: disabled.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetSBASConfigReqAddSBASConfiguration(uint8_t* buf, int bufsize, uint8_t config);
/**
 * Parses the SetSBASConfig (0x003B) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003B; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetSBASConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_inject_abs_time_ref InjectAbsTimeRef (0x003D)
 *  @ingroup svc_pds
 *  @brief Injects an absolute time reference.
 *  @{
 */
/**
 * Builds the InjectAbsTimeRef (0x003D) request header, which optional items may follow.
 * The items are appended with zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection. Writes 7 bytes: control flags
 * 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x01 (64-bit, u32, u8, u8: 14 bytes), the absolute time, to an InjectAbsTimeRef (0x003D) request.
 * Appends 17 bytes and raises the header's TLV-area length.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param time The time, written as raw 64-bit bits, two little-endian 32-bit halves, low half first.
 * @param uncertainty Time uncertainty (written little-endian).
 * @param timeBase Time base of @p time.
 * @param forceAccept Nonzero: the modem is to accept the time whatever its own.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 * @note Deliberate: an optional-item builder that appends item type 0x01; InjectAbsTimeRefReq writes a header with
 *   no items.
 */
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefReqAddAbsoluteTimeInjection(uint8_t* buf, int bufsize, uint64_t time,
                                                                   uint32_t uncertainty, uint8_t timeBase,
                                                                   uint8_t forceAccept);
/**
 * Parses the InjectAbsTimeRef (0x003D) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003D; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectAbsTimeRefResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_inject_efs_data InjectEFSData (0x003E)
 *  @ingroup svc_pds
 *  @brief Writes a file into the modem's file system.
 *  @{
 */
/**
 * Builds the InjectEFSData (0x003E) request with its item 0x01: 18 + @c nameLength + @c dataLength bytes.
 * The value is the name length, the name, the operation byte, the data length (u32), the part number, the total
 * number of parts and the data.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 18 + @c nameLength + @c dataLength.
 * @param file The file to write; required.
 * @return 18 + @c nameLength + @c dataLength, the request length; ZOVQMI_ERR_ARG when @p buf or @p file is null, @p
 *   bufsize is too small, or a nonzero length comes with a null pointer (nothing is written).
 */
ZOVQMI_API int zovQMIPDSInjectEFSDataReq(uint8_t* buf, int bufsize, const EFSFileRecord* file);
/**
 * Parses the InjectEFSData (0x003E) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003E; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSInjectEFSDataResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_dpo_config GetDPOConfig (0x003F)
 *  @ingroup svc_pds
 *  @brief Reads the DPO (dynamic power optimisation) setting.
 *  @{
 */
/**
 * Builds the GetDPOConfig (0x003F) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetDPOConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetDPOConfig (0x003F) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003F; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetDPOConfig (0x003F) response: the DPO setting (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param config Receives the DPO setting; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x003F; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetDPOConfigRespGetDPOConfiguration(const uint8_t* msg, int len, uint8_t* config);
/** @} */

/** @defgroup pds_set_dpo_config SetDPOConfig (0x0040)
 *  @ingroup svc_pds
 *  @brief Sets the DPO (dynamic power optimisation) setting.
 *  @{
 */
/**
 * Builds the SetDPOConfig (0x0040) request header, which optional items may follow.
 * The items are appended with zovQMIPDSSetDPOConfigReqAddDPOConfiguration. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSSetDPOConfigReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), the DPO setting, to a SetDPOConfig (0x0040) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param config DPO setting.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetDPOConfigReqAddDPOConfiguration(uint8_t* buf, int bufsize, uint8_t config);
/**
 * Parses the SetDPOConfig (0x0040) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0040; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetDPOConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pds_get_odp_config GetODPConfig (0x0041)
 *  @ingroup svc_pds
 *  @brief Reads the ODP (on-demand positioning) setting.
 *  @{
 */
/**
 * Builds the GetODPConfig (0x0041) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSGetODPConfigReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetODPConfig (0x0041) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0041; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSGetODPConfigResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetODPConfig (0x0041) response: the ODP setting (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param config Receives the ODP setting; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0041; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPDSGetODPConfigRespGetODPConfiguration(const uint8_t* msg, int len, uint8_t* config);
/** @} */

/** @defgroup pds_set_odp_config SetODPConfig (0x0042)
 *  @ingroup svc_pds
 *  @brief Sets the ODP (on-demand positioning) setting.
 *  @{
 */
/**
 * Builds the SetODPConfig (0x0042) request header, which optional items may follow.
 * The items are appended with zovQMIPDSSetODPConfigReqAddODPConfiguration. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPDSSetODPConfigReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), the ODP setting, to a SetODPConfig (0x0042) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param config ODP setting.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPDSSetODPConfigReqAddODPConfiguration(uint8_t* buf, int bufsize, uint8_t config);
/**
 * Parses the SetODPConfig (0x0042) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0042; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPDSSetODPConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/* ------------------------------------------------------------ end PDS -- */


/* ---------------------------------------------------------------- PBM -- */
/** @defgroup svc_pbm PBM: phonebook manager service (service 12)
 *  @brief The phonebooks on the card and in the modem: capabilities, records, groups, emergency numbers and
 *  phonebook state.
 */

#pragma pack(push, 1)

/**
 * A text slot: a length byte, then up to 242 bytes of text, verbatim (no terminator, no conversion).  243 bytes.
 * @ingroup svc_pbm
 */
typedef struct PBMTextSlot {
    uint8_t length; /**< Number of text bytes. */
    uint8_t text[242]; /**< The text bytes. */
} PBMTextSlot;

/**
 * A number slot: two attribute bytes, a length byte, up to 40 number bytes and a trailing attribute.  44 bytes.
 * The bytes are carried verbatim.
 * @ingroup svc_pbm
 */
typedef struct PBMNumberSlot {
    uint8_t attribute1; /**< First number attribute. */
    uint8_t attribute2; /**< Second number attribute. */
    uint8_t length; /**< Number of bytes in @c number. */
    uint8_t number[40]; /**< The number bytes. */
    uint8_t trailingAttribute; /**< Trailing attribute, carried only for additional numbers (item 0x11). */
} PBMNumberSlot;

/**
 * Up to 10 phonebook records, as delivered by the RecordRead indication and its optional arrays; record 0 is also
 * the source of the WriteRecord request.  9216 bytes, caller-owned. Record i is the i-th record of the indication.
 * Several parsers fill the same set: each writes its own arrays and all of them share the count and record-id
 * slots.  Two-byte fields are little-endian bytes on every host.  Counts and lengths from the wire are used as they
 * stand, so a long text or a large count is written on into the following slots, up to the set's last byte.
 * @ingroup svc_pbm
 */
typedef struct PBMRecordSet {
    uint8_t leadingWord[2]; /**< Offset 0: leading word of item 0x01 (little-endian bytes). */
    uint8_t selectorByte; /**< Offset 2: selector byte of the phonebook. */
    uint8_t selectorWord[2]; /**< Offset 3: selector word of the phonebook (little-endian bytes). */
    uint8_t recordCount; /**< Offset 5: record count of the last item parsed into the set. */
    uint8_t recordId[10][2]; /**< Offset 6: record id of record i (little-endian bytes). */
    uint8_t numberCount[10]; /**< Offset 26: number count of record i (1 after the indication, the additional-number
                                  count after item 0x11). */
    PBMNumberSlot numbers[10][4]; /**< Offset 36: number slots of record i; slot 0 is the primary number. */
    PBMTextSlot name[10]; /**< Offset 1796: name of record i (also the target of the second-name array). */
    uint8_t groupIdCount[10]; /**< Offset 4226: number of group ids of record i. */
    uint8_t groupIds[10][10]; /**< Offset 4236: group ids of record i. */
    uint8_t emailCount[10]; /**< Offset 4336: number of e-mail addresses of record i. */
    PBMTextSlot emails[10][2]; /**< Offset 4346: e-mail text slots of record i. */
    uint8_t hidden[10]; /**< Offset 9206: hidden flag of record i. */
} PBMRecordSet;

/**
 * The capabilities of up to 6 phonebooks, as read by the GetAllPBCapabilities getters.  451 bytes, caller-owned.
 * Entry i is the i-th phonebook of the item read.  Each array getter rewrites @c count and @c key with its own
 * values.  Basic-capability entries are 8 bytes: three u16 as little-endian bytes, then two single bytes.
 * @ingroup pbm_get_all_pb_capabilities
 */
typedef struct PBMAllCapabilities {
    uint8_t count; /**< Offset 0: entry count of the last array parsed. */
    uint8_t key[6]; /**< Offset 1: key byte of phonebook i. */
    uint8_t basicCount[6]; /**< Offset 7: number of basic-capability entries of phonebook i. */
    uint8_t basic[6][8][8]; /**< Offset 13: basic-capability entry j of phonebook i (8 bytes each). */
    uint8_t group[6][2]; /**< Offset 397: group capability of phonebook i (2 bytes). */
    uint8_t additionalNumber[6][3]; /**< Offset 409: additional-number capability of phonebook i (3 bytes). */
    uint8_t email[6][2]; /**< Offset 427: e-mail capability of phonebook i (2 bytes). */
    uint8_t secondName[6]; /**< Offset 439: second-name capability of phonebook i. */
    uint8_t hiddenRecords[6]; /**< Offset 445: hidden-records capability of phonebook i. */
} PBMAllCapabilities;

/**
 * One emergency number: attribute, length and up to 6 number bytes.  8 bytes.
 * @ingroup svc_pbm
 */
typedef struct PBMEmergencyNumber {
    uint8_t attribute; /**< Attribute byte; written only by the emergency-number set parsers, left alone by the flat
                            lists. */
    uint8_t length; /**< Number of bytes in @c number. */
    uint8_t number[6]; /**< The number bytes, verbatim. */
} PBMEmergencyNumber;

/**
 * Up to 6 sets of up to 256 emergency numbers (the card or network lists).  12745 bytes, caller-owned.
 * Set i is the i-th set of the item read; number j of set i lies at offset 457 + 2048 i + 8 j.
 * @ingroup svc_pbm
 */
typedef struct PBMEmergencyNumberSets {
    uint8_t count; /**< Offset 0: number of sets. */
    uint8_t key[6]; /**< Offset 1: key byte of set i. */
    uint8_t reserved[444]; /**< Offset 7: left untouched by the parsers (as long as the item holds at most 6 sets). */
    uint8_t numberCount[6]; /**< Offset 451: number of emergency numbers in set i. */
    PBMEmergencyNumber numbers[6][256]; /**< Offset 457: the emergency numbers of set i. */
} PBMEmergencyNumberSets;

/**
 * Up to 6 sets of up to 40 phonebook groups, as read by GetAllGroups.  58573 bytes, caller-owned.
 * Set i is the i-th set of the item read.
 * @ingroup pbm_get_all_groups
 */
typedef struct PBMGroupsData {
    uint8_t count; /**< Offset 0: number of sets. */
    uint8_t key[6]; /**< Offset 1: key byte of set i. */
    uint8_t groupCount[6]; /**< Offset 7: number of groups in set i. */
    uint8_t groupId[6][40]; /**< Offset 13: group id j of set i. */
    PBMTextSlot name[6][40]; /**< Offset 253: name text slot of group j of set i. */
} PBMGroupsData;

#pragma pack(pop)

/** @defgroup pbm_indication_register IndicationRegister (0x0001)
 *  @ingroup svc_pbm
 *  @brief Chooses which phonebook indications this client receives.
 *  @{
 */
/**
 * Builds the IndicationRegister (0x0001) request with its item 0x01 (u32 mask): 14 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 14.
 * @param mask Event registration mask: one bit per indication family (written little-endian).
 * @return 14, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 14 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMIndicationRegisterReq(uint8_t* buf, int bufsize, uint32_t mask);
/**
 * Parses the IndicationRegister (0x0001) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the IndicationRegister (0x0001) response: the registration mask in force (u32).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param mask Receives the mask (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(const uint8_t* msg, int len, uint32_t* mask);
/** @} */

/** @defgroup pbm_get_pb_capabilities GetPBCapabilities (0x0002)
 *  @ingroup svc_pbm
 *  @brief Reads the capabilities of one phonebook.
 *  @{
 */
/**
 * Builds the GetPBCapabilities (0x0002) request with its item 0x01 (the phonebook selector, 3 bytes): 13 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 13.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @return 13, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 13 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
/**
 * Parses the GetPBCapabilities (0x0002) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetPBCapabilities (0x0002) response: the basic information (9 bytes).
 * @p first gets value byte 0; @p basic gets the next 8 bytes as they are: three u16 (little-endian), then two
 *   bytes.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param basic Caller buffer of 8 bytes; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(const uint8_t* msg, int len,
                                                                          uint8_t* first, uint8_t* basic);
/**
 * Reads item 0x11 of the GetPBCapabilities (0x0002) response: the group capability (2 bytes, copied as they are).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param capability Caller buffer of 2 bytes; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(const uint8_t* msg, int len, uint8_t* capability);
/**
 * Reads item 0x12 of the GetPBCapabilities (0x0002) response: the additional-number capability (3 bytes, copied as
 * they are).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param capability Caller buffer of 3 bytes; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability(const uint8_t* msg, int len,
                                                                          uint8_t* capability);
/**
 * Reads item 0x13 of the GetPBCapabilities (0x0002) response: the e-mail capability (2 bytes, copied as they are).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param capability Caller buffer of 2 bytes; required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetEmailCapability(const uint8_t* msg, int len, uint8_t* capability);
/**
 * Reads item 0x14 of the GetPBCapabilities (0x0002) response: the second-name capability (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param capability Receives the byte; required.
 * @return The value length of item 0x14; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x14 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetSecondNameCapability(const uint8_t* msg, int len,
                                                                    uint8_t* capability);
/**
 * Reads item 0x15 of the GetPBCapabilities (0x0002) response: the hidden-records capability (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param capability Receives the byte; required.
 * @return The value length of item 0x15; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0002; ZOVQMI_ERR_NO_TLV when item 0x15 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(const uint8_t* msg, int len,
                                                                       uint8_t* capability);
/** @} */

/** @defgroup pbm_get_all_pb_capabilities GetAllPBCapabilities (0x0003)
 *  @ingroup svc_pbm
 *  @brief Reads the capabilities of every phonebook at once.
 *
 *  Each getter reads one array item into the same PBMAllCapabilities record.
 *  @{
 */
/**
 * Builds the GetAllPBCapabilities (0x0003) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetAllPBCapabilities (0x0003) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetAllPBCapabilities (0x0003) response: the basic information of every phonebook.
 * Value: a count n, then per phonebook a key byte, an entry count m and m 8-byte entries, stored at @c key,
 * @c basicCount and @c basic.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the entries; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: counts are used as they stand: more than 6 phonebooks or 8 entries run on into the following
 *   fields of @p caps; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps);
/**
 * Reads item 0x11 of the GetAllPBCapabilities (0x0003) response: the group capability of every phonebook.
 * Value: a count n, then n entries of a key byte and 2 capability bytes, stored at @c key and @c group.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the capabilities; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: the count is used as it stands: more than 6 entries run on into the following fields of @p
 *   caps; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps);
/**
 * Reads item 0x12 of the GetAllPBCapabilities (0x0003) response: the additional-number capability of every
 * phonebook.
 * Value: a count n, then n entries of a key byte and 3 capability bytes, stored at @c key and @c additionalNumber.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the capabilities; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: the count is used as it stands: more than 6 entries run on into the following fields of @p
 *   caps; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetAdditionalNumberCapabilityArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps);
/**
 * Reads item 0x13 of the GetAllPBCapabilities (0x0003) response: the e-mail capability of every phonebook.
 * Value: a count n, then n entries of a key byte and 2 capability bytes, stored at @c key and @c email.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the capabilities; required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: the count is used as it stands: more than 6 entries run on into the following fields of @p
 *   caps; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetEmailCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps);
/**
 * Reads item 0x14 of the GetAllPBCapabilities (0x0003) response: the second-name capability of every phonebook.
 * Value: a count n, then n entries of a key byte and 1 capability byte, stored at @c key and @c secondName.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the capabilities; required.
 * @return The value length of item 0x14; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x14 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: the count is used as it stands: more than 6 entries run on into the following fields of @p
 *   caps; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetSecondNameCapabilityArray(const uint8_t* msg, int len,
                                                                            PBMAllCapabilities* caps);
/**
 * Reads item 0x15 of the GetAllPBCapabilities (0x0003) response: the hidden-records capability of every phonebook.
 * Value: a count n, then n entries of a key byte and 1 capability byte, stored at @c key and @c hiddenRecords.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param caps Receives the count, the keys and the capabilities; required.
 * @return The value length of item 0x15; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0003; ZOVQMI_ERR_NO_TLV when item 0x15 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the getter rewrites @c count and @c key, which every array getter of this message shares.
 * @note Deliberate: the count is used as it stands: more than 6 entries write past @p caps; such a write is refused
 *   with ZOVQMI_ERR_MALFORMED and nothing is written.
 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetHiddenRecordsCapabilityArray(const uint8_t* msg, int len,
                                                                               PBMAllCapabilities* caps);
/** @} */

/** @defgroup pbm_read_records ReadRecords (0x0004)
 *  @ingroup svc_pbm
 *  @brief Asks for a range of records; they arrive in RecordRead indications.
 *  @{
 */
/**
 * Builds the ReadRecords (0x0004) request with its item 0x01 (selector, first and last record id: 7 bytes): 17
 * bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 17.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @param startId First record id to read (written little-endian).
 * @param endId Last record id to read (written little-endian).
 * @return 17, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 17 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMReadRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                       uint16_t startId, uint16_t endId);
/**
 * Parses the ReadRecords (0x0004) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMReadRecordsResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the ReadRecords (0x0004) response: the number of records that will be delivered (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives the number of records (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMReadRecordsRespGetNumberOfRecords(const uint8_t* msg, int len, uint16_t* count);
/** @} */
/** @defgroup pbm_record_read RecordRead (0x0004, indication)
 *  @ingroup svc_pbm
 *  @brief Delivers records asked for by ReadRecords, up to 10 at a time.
 *
 *  Item 0x01 carries the id, primary number and name of each record; the optional arrays add second names,
 *  additional numbers, group ids, e-mail addresses and hidden flags.  All of them are read into one PBMRecordSet.
 *  @{
 */
/**
 * Parses the RecordRead (0x0004) indication: item 0x01, the records.
 * Value: leading word, selector byte, selector word, record count n, then per record its id, two number attributes,
 * number length and bytes, name length and bytes.  Set bytes 0-5 receive the leading fields and n; each record's
 * id, primary number (number slot 0, number count 1) and name follow.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the records; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: lengths and the record count are used as they stand: a number longer than 40 bytes, a name
 *   longer than 242 bytes or more than 10 records are written on into the following slots of @p set; a write past
 *   its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadIND(const uint8_t* msg, int len, PBMRecordSet* set);
/**
 * Reads item 0x10 of the RecordRead (0x0004) indication: the second name of each record.
 * Value: a count n, then per record its id, a length byte and the text; set byte 5 gets n, record i's id and its
 * name slot the entry.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the ids and the names; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the second names are stored in the name slots, replacing the names of item 0x01, and the count
 *   and record ids are shared with item 0x01 and the other arrays.
 * @note Deliberate: a text longer than 242 bytes or more than 10 records are written on into the following slots of
 *   @p set; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(const uint8_t* msg, int len, PBMRecordSet* set);
/**
 * Reads item 0x11 of the RecordRead (0x0004) indication: the additional numbers of each record.
 * Value: a count n, then per record its id, a number count m and m numbers (two attributes, length, bytes, trailing
 * attribute); record i's number count gets m and its number slots 0 to m-1 the numbers.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the ids and the numbers; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the numbers are stored from number slot 0 on, replacing the primary number of item 0x01 and its
 *   number count, and the count and record ids are shared with item 0x01 and the other arrays.
 * @note Deliberate: more than 4 numbers, a number longer than 40 bytes or more than 10 records are written on into
 *   the following slots of @p set; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation(const uint8_t* msg, int len,
                                                                          PBMRecordSet* set);
/**
 * Reads item 0x12 of the RecordRead (0x0004) indication: the group ids of each record.
 * Value: a count n, then per record its id, a count m and m id bytes, stored at @c groupIdCount and @c groupIds.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the record ids and the group ids; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the count and record ids are shared with item 0x01 and the other arrays.
 * @note Deliberate: more than 10 group ids or more than 10 records are written on into the following slots of @p
 *   set; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofGroupIDInformation(const uint8_t* msg, int len, PBMRecordSet* set);
/**
 * Reads item 0x13 of the RecordRead (0x0004) indication: the e-mail addresses of each record.
 * Value: a count n, then per record its id, a count m and m texts (length byte and bytes), stored at @c emailCount
 * and
 * @c emails.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the record ids and the addresses; required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the count and record ids are shared with item 0x01 and the other arrays.
 * @note Deliberate: more than 2 addresses, a text longer than 242 bytes or more than 10 records are written on into
 *   the following slots of @p set; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofEmailInformation(const uint8_t* msg, int len, PBMRecordSet* set);
/**
 * Reads item 0x14 of the RecordRead (0x0004) indication: the hidden flag of each record.
 * Value: a count n, then per record its id and one flag byte, stored at @c hidden.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param set Receives the record ids and the flags; required.
 * @return The value length of item 0x14; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0004; ZOVQMI_ERR_NO_TLV when item 0x14 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the count and record ids are shared with item 0x01 and the other arrays.
 * @note Deliberate: the ids of records beyond the tenth are written on into the following fields of @p set; the
 *   flag of an eleventh record would pass its end and gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofHiddenInformation(const uint8_t* msg, int len, PBMRecordSet* set);
/** @} */

/** @defgroup pbm_write_record WriteRecord (0x0005)
 *  @ingroup svc_pbm
 *  @brief Adds or replaces one record.
 *  @{
 */
/**
 * Builds the WriteRecord (0x0005) request with its item 0x01, taken from record 0 of @p set: 19 + L + K bytes.
 * The value (9 + L + K bytes) is the selector byte, the selector word, the record id of record 0, the two
 * attributes and length L of its primary number and the L number bytes, then its name length K and the K name
 * bytes.  Other fields of the set are not read.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 19 + L + K.
 * @param set The record to write (record 0); required.
 * @return 19 + L + K, the request length; ZOVQMI_ERR_ARG when @p buf or @p set is null or @p bufsize is too small
 *   (nothing is written).
 * @note Deliberate: a number length above 40 is used as it stands and reads on past the number slot into the
 *   following bytes of @p set.
 */
ZOVQMI_API int zovQMIPBMWriteRecordReq(uint8_t* buf, int bufsize, const PBMRecordSet* set);
/**
 * Appends item 0x10, the second name, to a WriteRecord (0x0005) request.
 * The value is the slot's length byte and text: appends 4 + length bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param textSlot A 243-byte text slot (PBMTextSlot layout); required.  A length byte above 242 reads on past the
 *   slot.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p textSlot; ZOVQMI_ERR_NO_ROOM when the item
 *   does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPBMWriteRecordReqAddSecondNameInformation(uint8_t* buf, int bufsize, const uint8_t* textSlot);
/**
 * Appends item 0x11, the additional numbers, to a WriteRecord (0x0005) request.
 * The value is @p count, then per slot its two attributes, length L, the L number bytes and the trailing attribute:
 * 1 + the sum of (L + 4) bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param count Number of number slots.
 * @param numberSlots @p count consecutive 44-byte number slots (PBMNumberSlot layout); may be null only when @p
 *   count is 0.  A length byte above 40 reads on past the number bytes of its slot.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p count with a null @p
 *   numberSlots; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the value
 *   would exceed 1024 bytes; the message is left as it was on failure.
 */
ZOVQMI_API int zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                                    const uint8_t* numberSlots);
/**
 * Appends item 0x12, the group ids, to a WriteRecord (0x0005) request.
 * The value is @p count, then the @p count id bytes: appends 4 + @p count bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param count Number of group ids.
 * @param ids The group ids; may be null only when @p count is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p count with a null @p ids;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPBMWriteRecordReqAddGroupIDInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                           const uint8_t* ids);
/**
 * Appends item 0x13, the e-mail addresses, to a WriteRecord (0x0005) request.
 * The value is @p count, then per slot its length byte and text: 1 + the sum of (length + 1) bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param count Number of addresses.
 * @param textSlots @p count consecutive 243-byte text slots (PBMTextSlot layout); may be null only when @p count is
 *   0.  A length byte above 242 reads on past its slot.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p count with a null @p textSlots;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the value would exceed
 *   1024 bytes; the message is left as it was on failure.
 */
ZOVQMI_API int zovQMIPBMWriteRecordReqAddEmailInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                         const uint8_t* textSlots);
/**
 * Appends item 0x14 (1 byte), the hidden flag, to a WriteRecord (0x0005) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param hidden 1: the record is hidden, 0: it is not.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPBMWriteRecordReqAddHiddenInformation(uint8_t* buf, int bufsize, uint8_t hidden);
/**
 * Parses the WriteRecord (0x0005) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0005; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMWriteRecordResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the WriteRecord (0x0005) response: the record information (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param recordInfo Receives the record information (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0005; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMWriteRecordRespGetRecordInfo(const uint8_t* msg, int len, uint16_t* recordInfo);
/** @} */

/** @defgroup pbm_delete_record DeleteRecord (0x0006)
 *  @ingroup svc_pbm
 *  @brief Deletes one record.
 *  @{
 */
/**
 * Builds the DeleteRecord (0x0006) request with its item 0x01 (selector and record id: 5 bytes): 15 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 15.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @param recordId Id of the record to delete (written little-endian).
 * @return 15, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 15 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMDeleteRecordReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                        uint16_t recordId);
/**
 * Parses the DeleteRecord (0x0006) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0006; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMDeleteRecordResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the DeleteRecord (0x0006) response: the id of the record deleted (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param recordId Receives the record id (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0006; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMDeleteRecordRespGetRecordID(const uint8_t* msg, int len, uint16_t* recordId);
/** @} */

/** @defgroup pbm_delete_all_pb_records DeleteAllPBRecords (0x0007)
 *  @ingroup svc_pbm
 *  @brief Deletes every record of one phonebook.
 *  @{
 */
/**
 * Builds the DeleteAllPBRecords (0x0007) request with its item 0x01 (the phonebook selector, 3 bytes): 13 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 13.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @return 13, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 13 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMDeleteAllPBRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte,
                                              uint16_t selectorWord);
/**
 * Parses the DeleteAllPBRecords (0x0007) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0007; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMDeleteAllPBRecordsResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup pbm_search_records SearchRecords (0x0008)
 *  @ingroup svc_pbm
 *  @brief Finds the records that match a number or a name.
 *  @{
 */
/**
 * Builds the SearchRecords (0x0008) request with its item 0x01 (the phonebook selector, 3 bytes): 13 bytes.
 * What to search for is appended with zovQMIPBMSearchRecordsReqAddNumberInformation or
 * zovQMIPBMSearchRecordsReqAddNameInformation.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 13.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @return 13, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 13 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMSearchRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
/**
 * Appends item 0x10, the number to search for, to a SearchRecords (0x0008) request.
 * The value is the length byte then @p length bytes: appends 4 + @p length bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param length Number of bytes in @p bytes.
 * @param bytes The number bytes; may be null only when @p length is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p length with a null @p bytes;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPBMSearchRecordsReqAddNumberInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                            const void* bytes);
/**
 * Appends item 0x11, the name to search for, to a SearchRecords (0x0008) request.
 * The value is the length byte then @p length bytes: appends 4 + @p length bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param length Number of bytes in @p bytes.
 * @param bytes The name bytes; may be null only when @p length is 0.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf, or a nonzero @p length with a null @p bytes;
 *   ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIPBMSearchRecordsReqAddNameInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                          const void* bytes);
/**
 * Parses the SearchRecords (0x0008) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0008; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMSearchRecordsResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the SearchRecords (0x0008) response: the ids of the matching records.
 * Value: a u16 count, then that many u16 record ids.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives the number of ids (native); required.
 * @param ids Caller array of @p count words that receives the ids (native); may be null, then only @p count is
 *   delivered.  Its size is not checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0008; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMSearchRecordsRespGetRecordIDsList(const uint8_t* msg, int len, uint16_t* count,
                                                         uint16_t* ids);
/** @} */

/** @defgroup pbm_record_update RecordUpdate (0x0009, indication)
 *  @ingroup svc_pbm
 *  @brief Reports that a record was added, changed or deleted.
 *  @{
 */
/**
 * Parses the RecordUpdate (0x0009) indication: item 0x01 (u8, u16, u8, u16: 6 bytes), carried verbatim.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param second Receives the first word (native); required.
 * @param third Receives the second byte; required.
 * @param fourth Receives the second word (native); required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0009; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMRecordUpdateIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second,
                                        uint8_t* third, uint16_t* fourth);
/** @} */

/** @defgroup pbm_refresh Refresh (0x000A, indication)
 *  @ingroup svc_pbm
 *  @brief Reports a refresh of a phonebook.
 *  @{
 */
/**
 * Parses the Refresh (0x000A) indication: item 0x01 (u8, u16, u8: 4 bytes), carried verbatim.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param second Receives the word (native); required.
 * @param third Receives the last byte; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000A; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMRefreshIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second, uint8_t* third);
/** @} */

/** @defgroup pbm_pb_ready PBReady (0x000B, indication)
 *  @ingroup svc_pbm
 *  @brief Reports that a phonebook is ready.
 *  @{
 */
/**
 * Parses the PBReady (0x000B) indication: item 0x01, the phonebook selector (u8, u16: 3 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param selectorByte Receives the selector byte; required.
 * @param selectorWord Receives the selector word (native); required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000B; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMPBReadyIND(const uint8_t* msg, int len, uint8_t* selectorByte, uint16_t* selectorWord);
/** @} */

/** @defgroup pbm_emergency_list EmergencyList (0x000C, indication)
 *  @ingroup svc_pbm
 *  @brief Reports the emergency numbers.
 *  @{
 */
/**
 * Parses the EmergencyList (0x000C) indication: item 0x01, a flat list of emergency numbers.
 * Value: a count n, then per number a length byte L and L bytes; element i gets L at byte 1 and the number from
 * byte 2, its attribute byte is left alone.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives n; required.
 * @param numbers Caller array of n elements; may be null, then only @p count is delivered.  Its size is not
 *   checked.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000C; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the walk keeps its offset in 8 bits, so a list longer than 255 bytes wraps back to its start.
 * @note Deliberate: a number longer than 6 bytes is written on into the following element.
 */
ZOVQMI_API int zovQMIPBMEmergencyListIND(const uint8_t* msg, int len, uint8_t* count, PBMEmergencyNumber* numbers);
/**
 * Reads item 0x10 of the EmergencyList (0x000C) indication: the numbers stored in the modem, a flat list.
 * Value and storage as for item 0x01 (zovQMIPBMEmergencyListIND).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives the number count; required.
 * @param numbers Caller array of @p count elements; may be null, then only @p count is delivered.  Its size is not
 *   checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000C; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the walk keeps its offset in 8 bits, so a list longer than 255 bytes wraps back to its start.
 * @note Deliberate: a number longer than 6 bytes is written on into the following element.
 */
ZOVQMI_API int zovQMIPBMEmergencyListINDGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                             PBMEmergencyNumber* numbers);
/**
 * Reads item 0x11 of the EmergencyList (0x000C) indication: the card's emergency numbers, in sets.
 * Value: a set count n; per set a key byte, a number count m and m numbers (attribute, length L, L bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param sets Receives the sets; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000C; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: counts and lengths are used as they stand: a number longer than 6 bytes or more than 6 sets are
 *   written on into the following bytes of @p sets; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMEmergencyListINDGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                               PBMEmergencyNumberSets* sets);
/**
 * Reads item 0x12 of the EmergencyList (0x000C) indication: the network's emergency numbers, in sets.
 * Value and storage as for item 0x11 (zovQMIPBMEmergencyListINDGetCardEmergencyNumbers).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param sets Receives the sets; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000C; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: counts and lengths are used as they stand: a number longer than 6 bytes or more than 6 sets are
 *   written on into the following bytes of @p sets; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMEmergencyListINDGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                  PBMEmergencyNumberSets* sets);
/** @} */

/** @defgroup pbm_all_pb_init_done AllPBInitDone (0x000D, indication)
 *  @ingroup svc_pbm
 *  @brief Reports that every phonebook is initialised.
 *  @{
 */
/**
 * Parses the AllPBInitDone (0x000D) indication: item 0x01, a count n and n entries of a key byte and a u16.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives n; required.
 * @param keys Caller array of n bytes that receives the key bytes; may be null.
 * @param words Caller array of n words that receives the words (native); may be null.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000D; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMAllPBInitDoneIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* keys,
                                         uint16_t* words);
/** @} */

/** @defgroup pbm_get_emergency_list GetEmergencyList (0x000E)
 *  @ingroup svc_pbm
 *  @brief Reads the emergency numbers.
 *  @{
 */
/**
 * Builds the GetEmergencyList (0x000E) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetEmergencyList (0x000E) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000E; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetEmergencyList (0x000E) response: the hard-coded numbers, a flat list.
 * Value: a count n, then per number a length byte L and L bytes; element i gets L at byte 1 and the number from
 * byte 2, its attribute byte is left alone.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives n; required.
 * @param numbers Caller array of n elements; may be null, then only @p count is delivered.  Its size is not
 *   checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000E; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the walk keeps its offset in 8 bits, so a list longer than 255 bytes wraps back to its start.
 * @note Deliberate: a number longer than 6 bytes is written on into the following element.
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetHardCodedEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                        PBMEmergencyNumber* numbers);
/**
 * Reads item 0x11 of the GetEmergencyList (0x000E) response: the numbers stored in the modem, a flat list.
 * Value and storage as for item 0x10 (zovQMIPBMGetEmergencyListRespGetHardCodedEmergencyNumbers).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives the number count; required.
 * @param numbers Caller array of @p count elements; may be null, then only @p count is delivered.  Its size is not
 *   checked.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000E; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: the walk keeps its offset in 8 bits, so a list longer than 255 bytes wraps back to its start.
 * @note Deliberate: a number longer than 6 bytes is written on into the following element.
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                 PBMEmergencyNumber* numbers);
/**
 * Reads item 0x12 of the GetEmergencyList (0x000E) response: the card's emergency numbers, in sets.
 * Value: a set count n; per set a key byte, a number count m and m numbers (attribute, length L, L bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param sets Receives the sets; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000E; ZOVQMI_ERR_NO_TLV when item 0x12 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: counts and lengths are used as they stand: a number longer than 6 bytes or more than 6 sets are
 *   written on into the following bytes of @p sets; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                                   PBMEmergencyNumberSets* sets);
/**
 * Reads item 0x13 of the GetEmergencyList (0x000E) response: the network's emergency numbers, in sets.
 * Value and storage as for item 0x12 (zovQMIPBMGetEmergencyListRespGetCardEmergencyNumbers).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param sets Receives the sets; required.
 * @return The value length of item 0x13; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000E; ZOVQMI_ERR_NO_TLV when item 0x13 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: counts and lengths are used as they stand: a number longer than 6 bytes or more than 6 sets are
 *   written on into the following bytes of @p sets; a write past its end gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                      PBMEmergencyNumberSets* sets);
/** @} */

/** @defgroup pbm_get_all_groups GetAllGroups (0x000F)
 *  @ingroup svc_pbm
 *  @brief Reads the groups of every phonebook.
 *  @{
 */
/**
 * Builds the GetAllGroups (0x000F) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIPBMGetAllGroupsReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetAllGroups (0x000F) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000F; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMGetAllGroupsResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetAllGroups (0x000F) response: the groups.
 * Value: a set count n; per set a key byte, a group count m and m groups (id byte, name length L, L name bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param groups Receives the sets; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x000F; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: counts and lengths are used as they stand: a name longer than 242 bytes, more than 40 groups or
 *   more than 6 sets are written on into the following bytes of @p groups; a write past its end gives
 *   ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIPBMGetAllGroupsRespGetGroupsData(const uint8_t* msg, int len, PBMGroupsData* groups);
/** @} */

/** @defgroup pbm_set_group_info SetGroupInfo (0x0010)
 *  @ingroup svc_pbm
 *  @brief Adds, renames or deletes a group.
 *  @{
 */
/**
 * Builds the SetGroupInfo (0x0010) request with its item 0x01: 14 + length bytes.
 * The value is @p first, @p second, @p third, then the slot's length byte and text: 4 + length bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 14 + the text length.
 * @param first First byte, carried verbatim.
 * @param second Second byte, carried verbatim.
 * @param third Third byte, carried verbatim.
 * @param textSlot A 243-byte text slot (PBMTextSlot layout) with the group name; required.  A length byte above 242
 *   reads on past the slot.
 * @return 14 + the text length, the request length; ZOVQMI_ERR_ARG when @p buf or @p textSlot is null or @p bufsize
 *   is too small (nothing is written).
 */
ZOVQMI_API int zovQMIPBMSetGroupInfoReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second, uint8_t third,
                                        const uint8_t* textSlot);
/**
 * Parses the SetGroupInfo (0x0010) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0010; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMSetGroupInfoResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the SetGroupInfo (0x0010) response: the group identifier (2 bytes).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param second Receives the second byte; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0010; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMSetGroupInfoRespGetGroupIdentifier(const uint8_t* msg, int len, uint8_t* first,
                                                          uint8_t* second);
/** @} */

/** @defgroup pbm_get_pb_state GetPBState (0x0011)
 *  @ingroup svc_pbm
 *  @brief Reads the state of one phonebook.
 *  @{
 */
/**
 * Builds the GetPBState (0x0011) request with its item 0x01 (the phonebook selector, 3 bytes): 13 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 13.
 * @param selectorByte Selector byte of the phonebook.
 * @param selectorWord Selector word of the phonebook (written little-endian).
 * @return 13, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 13 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMGetPBStateReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
/**
 * Parses the GetPBState (0x0011) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0011; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMGetPBStateResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the GetPBState (0x0011) response: the phonebook state (u8, u16, u8), carried verbatim.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param second Receives the word (native); required.
 * @param third Receives the last byte; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0011; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMGetPBStateRespGetPhonebookState(const uint8_t* msg, int len, uint8_t* first,
                                                       uint16_t* second, uint8_t* third);
/** @} */

/** @defgroup pbm_read_all_hidden_records ReadAllHiddenRecords (0x0012)
 *  @ingroup svc_pbm
 *  @brief Asks for every hidden record.
 *  @{
 */
/**
 * Builds the ReadAllHiddenRecords (0x0012) request with its item 0x01 (1 byte): 11 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 11.
 * @param value The byte of item 0x01, carried verbatim.
 * @return 11, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 11 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsReq(uint8_t* buf, int bufsize, uint8_t value);
/**
 * Parses the ReadAllHiddenRecords (0x0012) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0012; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the ReadAllHiddenRecords (0x0012) response: the number of records (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param count Receives the number of records (native); required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0012; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsRespGetNumberofRecords(const uint8_t* msg, int len, uint16_t* count);
/** @} */

/** @defgroup pbm_hidden_record_status HiddenRecordStatus (0x0013, indication)
 *  @ingroup svc_pbm
 *  @brief Reports the status of the hidden records.
 *  @{
 */
/**
 * Parses the HiddenRecordStatus (0x0013) indication: item 0x01 (2 bytes), carried verbatim.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param first Receives the first byte; required.
 * @param second Receives the second byte; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0013; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIPBMHiddenRecordStatusIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second);
/** @} */

/* ------------------------------------------------------------ end PBM -- */


/* ---------------------------------------------------------------- QOS -- */
/** @defgroup svc_qos QOS: quality of service (service 4)
 *  @brief QoS reservations on a data call: request, modify, release, suspend and resume them, read what was granted,
 *  follow their status, and learn which QoS profiles the network supports.
 */

/**
 * One traffic flow of a QoS spec: the parameter items the flow carries.  84 bytes, natural alignment; arrays of it
 * are stepped by its size. Fields are native values (not little-endian bytes).  Each parameter item has a presence
 * byte (nonzero: present) and its value fields, named after the item's type; the builder writes present items only,
 * in the order 0x10, 0x1B, 0x11 to 0x18, 0x19, 0x1A, 0x1C, 0x1D, 0x1E.  The parsers set the presence byte of each
 * item they read to 1 and leave the others as they were.
 * @ingroup qos_codec
 */
typedef struct FlowSpecification {
    uint8_t type; /**< Type of the item that wraps the flow in its container: 0x11 or 0x12.  The builder writes it as
                       the wrapper's type; the flow parser leaves it alone; the container parsers set it. */
    uint8_t index; /**< Set only when reading a QoS error list (its sub-item 0x10); not read by the builder. */
    uint8_t present10; /**< Nonzero: item 0x10 present. */
    uint8_t value10; /**< Item 0x10 (1 byte). */
    uint8_t present1B; /**< Nonzero: item 0x1B present. */
    uint16_t value1B; /**< Item 0x1B (u16). */
    uint8_t present11; /**< Nonzero: item 0x11 present. */
    uint8_t value11; /**< Item 0x11 (1 byte). */
    uint8_t present12; /**< Nonzero: item 0x12 present. */
    uint32_t value12First; /**< Item 0x12, first u32. */
    uint32_t value12Second; /**< Item 0x12, second u32. */
    uint8_t present13; /**< Nonzero: item 0x13 present. */
    uint32_t value13First; /**< Item 0x13, first u32. */
    uint32_t value13Second; /**< Item 0x13, second u32. */
    uint32_t value13Third; /**< Item 0x13, third u32. */
    uint8_t present14; /**< Nonzero: item 0x14 present. */
    uint32_t value14; /**< Item 0x14 (u32). */
    uint8_t present15; /**< Nonzero: item 0x15 present. */
    uint32_t value15; /**< Item 0x15 (u32). */
    uint8_t present16; /**< Nonzero: item 0x16 present. */
    uint16_t value16First; /**< Item 0x16, first u16. */
    uint16_t value16Second; /**< Item 0x16, second u16. */
    uint8_t present17; /**< Nonzero: item 0x17 present. */
    uint32_t value17; /**< Item 0x17 (u32). */
    uint8_t present18; /**< Nonzero: item 0x18 present. */
    uint32_t value18; /**< Item 0x18 (u32). */
    uint8_t present19; /**< Nonzero: item 0x19 present. */
    uint8_t value19; /**< Item 0x19 (1 byte). */
    uint8_t present1A; /**< Nonzero: item 0x1A present. */
    uint8_t value1A; /**< Item 0x1A (1 byte). */
    uint8_t present1C; /**< Nonzero: item 0x1C present. */
    uint8_t value1C; /**< Item 0x1C (1 byte). */
    uint8_t present1D; /**< Nonzero: item 0x1D present. */
    uint8_t value1D; /**< Item 0x1D (1 byte). */
    uint8_t present1E; /**< Nonzero: item 0x1E present. */
    uint8_t value1E; /**< Item 0x1E (1 byte). */
} FlowSpecification;

/**
 * One packet filter of a QoS spec: the parameter items the filter carries.  112 bytes, natural alignment, as for
 * flows. Fields are native values; the 16-byte blocks are copied as they are.  A filter has no item 0x18, 0x1F or
 * 0x20; the builder writes present items in type order.  The parsers set the presence byte of each item they read
 * to 1 and leave the others as they were.
 * @ingroup qos_codec
 */
typedef struct FilterSpecification {
    uint8_t type; /**< Type of the item that wraps the filter in its container: 0x13 or 0x14, as for flows. */
    uint8_t index; /**< Set only when reading a QoS error list; not read by the builder. */
    uint8_t present10; /**< Nonzero: item 0x10 present. */
    uint8_t value10; /**< Item 0x10 (1 byte). */
    uint8_t present11; /**< Nonzero: item 0x11 present. */
    uint8_t value11; /**< Item 0x11 (1 byte). */
    uint8_t present12; /**< Nonzero: item 0x12 present. */
    uint32_t value12First; /**< Item 0x12, first u32. */
    uint32_t value12Second; /**< Item 0x12, second u32. */
    uint8_t present13; /**< Nonzero: item 0x13 present. */
    uint32_t value13First; /**< Item 0x13, first u32. */
    uint32_t value13Second; /**< Item 0x13, second u32. */
    uint8_t present14; /**< Nonzero: item 0x14 present. */
    uint8_t value14; /**< Item 0x14 (1 byte). */
    uint8_t present15; /**< Nonzero: item 0x15 present. */
    uint8_t value15Byte0; /**< Item 0x15, byte 0. */
    uint8_t value15Byte1; /**< Item 0x15, byte 1. */
    uint8_t present16; /**< Nonzero: item 0x16 present. */
    uint8_t value16[16]; /**< Item 0x16, its first 16 bytes as they are. */
    uint8_t value16Last; /**< Item 0x16, its 17th byte. */
    uint8_t present17; /**< Nonzero: item 0x17 present. */
    uint8_t value17[16]; /**< Item 0x17, its first 16 bytes as they are. */
    uint8_t value17Last; /**< Item 0x17, its 17th byte. */
    uint8_t present19; /**< Nonzero: item 0x19 present. */
    uint8_t value19Byte0; /**< Item 0x19, byte 0. */
    uint8_t value19Byte1; /**< Item 0x19, byte 1. */
    uint8_t present1A; /**< Nonzero: item 0x1A present. */
    uint32_t value1A; /**< Item 0x1A (u32). */
    uint8_t present1B; /**< Nonzero: item 0x1B present. */
    uint16_t value1BFirst; /**< Item 0x1B, first u16. */
    uint16_t value1BSecond; /**< Item 0x1B, second u16. */
    uint8_t present1C; /**< Nonzero: item 0x1C present. */
    uint16_t value1CFirst; /**< Item 0x1C, first u16. */
    uint16_t value1CSecond; /**< Item 0x1C, second u16. */
    uint8_t present1D; /**< Nonzero: item 0x1D present. */
    uint16_t value1DFirst; /**< Item 0x1D, first u16. */
    uint16_t value1DSecond; /**< Item 0x1D, second u16. */
    uint8_t present1E; /**< Nonzero: item 0x1E present. */
    uint16_t value1EFirst; /**< Item 0x1E, first u16. */
    uint16_t value1ESecond; /**< Item 0x1E, second u16. */
    uint8_t present21; /**< Nonzero: item 0x21 present. */
    uint32_t value21; /**< Item 0x21 (u32). */
} FilterSpecification;

#pragma pack(push, 1)

/**
 * A set of flows and filters held in caller-owned arrays (10 bytes on 32-bit hosts, packed: the pointers lie
 * unaligned). Builders read the counts and the arrays; parsers read the array pointers and write the counts.
 * @ingroup svc_qos
 */
typedef struct QoSSpec {
    uint8_t flowCount; /**< Number of elements in @c flows. */
    uint8_t filterCount; /**< Number of elements in @c filters. */
    FlowSpecification* flows; /**< Caller array of flows; may be null when @c flowCount is 0 (builders) or when the
                                   flows are not wanted (parsers: they are then only counted). */
    FilterSpecification* filters; /**< Caller array of filters; may be null when @c filterCount is 0 (builders) or
                                       when the filters are not wanted (parsers: they are then only counted). */
} QoSSpec;

/**
 * The state of one QoS flow: item 0x10 of the flow-information list of the event report (6 bytes, packed).
 * @ingroup qos_set_event_report
 */
typedef struct QoSFlowState {
    uint32_t identifier; /**< QoS identifier, stored as little-endian bytes. */
    uint8_t status; /**< Flow status. */
    uint8_t event; /**< Event that changed it. */
} QoSFlowState;

/**
 * One list of network-supported QoS profiles (7 bytes on 32-bit hosts, packed).
 * On the wire: the technology (u16), a count byte and count u16 profile values, 3 + 2 per profile bytes.
 * @ingroup svc_qos
 */
typedef struct QoSProfileList {
    uint16_t technology; /**< Technology the profiles apply to, stored as little-endian bytes. */
    uint8_t profileCount; /**< Number of profile values. */
    uint16_t* profiles; /**< Caller array of @c profileCount words that receives the values (native); may be null,
                             then only the count is delivered. */
} QoSProfileList;

#pragma pack(pop)

/** @defgroup qos_codec Flow and filter codec
 *  @ingroup svc_qos
 *  @brief Nests one flow or filter into a QoS spec item and reads one back.
 *
 *  On the wire a flow or filter is a wrapper item (0x11 or 0x12 for a flow, 0x13 or 0x14 for a filter) whose value
 *  is one item 0x10 whose value is the list of parameter items.
 *  @{
 */
/**
 * Appends one flow to the value of a QoS spec item record of type 0x10.
 * Writes the wrapper item (type @c flow->type), the item 0x10 and the flow's present parameter items at the end of
 * the record's value and raises its length.
 * @param tlv The record under construction; its type must be 0x10; required.
 * @param flow The flow; required.  Its @c index is not read.
 * @return The number of bytes appended (6 + the parameter items, at most 100); ZOVQMI_ERR_ARG for a null @p tlv or
 *   @p flow; -2 (the value of ZOVQMI_ERR_NO_ROOM) when the record's type is not 0x10; ZOVQMI_ERR_MALFORMED when the
 *   value would pass the record's 1024 bytes (the record is left as it was).
 * @note Deliberate: item 0x1B is written right after item 0x10, ahead of 0x11, as the record orders its fields.
 */
ZOVQMI_API int fnRequestAddFlowSpecification(QmiTlvRecord* tlv, const FlowSpecification* flow);
/**
 * Appends one filter to the value of a QoS spec item record of type 0x10.
 * Writes the wrapper item (type @c filter->type), the item 0x10 and the filter's present parameter items at the end
 * of the record's value and raises its length.
 * @param tlv The record under construction; its type must be 0x10; required.
 * @param filter The filter; required.  Its @c index is not read.
 * @return The number of bytes appended (6 + the parameter items, at most 132); ZOVQMI_ERR_ARG for a null @p tlv or
 *   @p filter; -2 (the value of ZOVQMI_ERR_NO_ROOM) when the record's type is not 0x10; ZOVQMI_ERR_MALFORMED when
 *   the value would pass the record's 1024 bytes (the record is left as it was).
 */
ZOVQMI_API int fnRequestAddFilterSpecification(QmiTlvRecord* tlv, const FilterSpecification* filter);
/**
 * Reads one flow item back: an item whose value is the list of flow parameter items.
 * Reads only inside [@p item, @p item + @p length).  The item's own type byte is not examined; unknown parameter
 * types are skipped.
 * @param item Points at the item's type byte; required.
 * @param length The item's total size, its 3-byte header included; taken as 16 bits.
 * @param flow Receives the parameters present; required.  @c type and @c index are left alone.
 * @return @p length (as 16 bits); ZOVQMI_ERR_ARG for a null @p item or @p flow or a @p length below 3; -2 (the
 *   value of ZOVQMI_ERR_NO_MESSAGE) when the item's length field is not @p length - 3; ZOVQMI_ERR_MALFORMED when a
 *   parameter runs past @p length or a step would wrap past 16 bits.  Nothing is written on failure.
 * @note Deliberate: each parameter is copied at the fixed width of its type whatever its length field says, so a
 *   short parameter is read on into the bytes that follow it.
 * @note Deliberate: the record is not cleared first: fields of absent items keep what the caller had in them.
 */
ZOVQMI_API int fnResponseParseFlowSpecification(const uint8_t* item, int length, FlowSpecification* flow);
/**
 * Reads one filter item back: an item whose value is the list of filter parameter items.
 * Reads only inside [@p item, @p item + @p length).  The item's own type byte is not examined; unknown parameter
 * types (0x18, 0x1F, 0x20 among them) are skipped.
 * @param item Points at the item's type byte; required.
 * @param length The item's total size, its 3-byte header included; taken as 16 bits.
 * @param filter Receives the parameters present; required.  @c type and @c index are left alone.
 * @return @p length (as 16 bits); ZOVQMI_ERR_ARG for a null @p item or @p filter or a @p length below 3; -2 (the
 *   value of ZOVQMI_ERR_NO_MESSAGE) when the item's length field is not @p length - 3; ZOVQMI_ERR_MALFORMED when a
 *   parameter runs past @p length or a step would wrap past 16 bits.  Nothing is written on failure.
 * @note Deliberate: each parameter is copied at the fixed width of its type whatever its length field says, so a
 *   short parameter is read on into the bytes that follow it.
 * @note Deliberate: the record is not cleared first: fields of absent items keep what the caller had in them.
 */
ZOVQMI_API int fnResponseParseFilterSpecification(const uint8_t* item, int length, FilterSpecification* filter);
/** @} */

/** @defgroup qos_reset Reset (0x0000)
 *  @ingroup svc_qos
 *  @brief Resets the QOS state of this client.
 *  @{
 */
/**
 * Builds the Reset (0x0000) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSResetReq(uint8_t* buf, int bufsize);
/**
 * Parses the Reset (0x0000) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0000; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup qos_set_event_report SetEventReport (0x0001) and the event report (0x0001, indication)
 *  @ingroup svc_qos
 *  @brief Subscribes to flow and profile reports, which the event report indication then delivers.
 *  @{
 */
/**
 * Builds the SetEventReport (0x0001) request header, which optional items may follow.
 * The items are appended with the zovQMIQOSSetEventReportReqAdd functions. Writes 7 bytes: control flags 0, the
 * next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSSetEventReportReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (1 byte), global flow reporting, to a SetEventReport (0x0001) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report flow changes, 0: do not.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSSetEventReportReqAddGlobalFlowInfoReporting(uint8_t* buf, int bufsize, uint8_t report);
/**
 * Appends item 0x11 (u8, u16), reporting of changes to the network-supported profiles, to a SetEventReport (0x0001)
 * request.
 * Appends 6 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param report 1: report changes, 0: do not.
 * @param technology Technology whose profiles are watched (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSSetEventReportReqAddNetworkSupportedQoSProfileChange(uint8_t* buf, int bufsize, uint8_t report,
                                                                            uint16_t technology);
/**
 * Parses the SetEventReport (0x0001) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Checks that a buffer holds the event report (0x0001) indication; reads no item.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg; ZOVQMI_ERR_NO_MESSAGE when @p msg
 *   holds no message 0x0001.
 */
ZOVQMI_API int zovQMIQOSSetEventReportIND(const uint8_t* msg, int len);
/**
 * Reads item 0x10 of the event report (0x0001) indication: the state of a flow and the flows and filters it lists.
 * Walks the value item by item: item 0x10 (u32, u8, u8) fills @p state; each item 0x11 or 0x12 is the next flow and
 * each 0x13 or 0x14 the next filter, read by the flow or filter parser with @c type set to the item's type.  Both
 * counts are set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param state Receives the flow state; required.
 * @param qosSpec Its @c flows and @c filters arrays (set beforehand, or null) receive the elements, its counts the
 *   numbers found; required.  The arrays' size is not checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: every flow and filter item is counted, even when its array is null or the element cannot be
 *   parsed; the counts are single bytes and wrap after 255.
 */
ZOVQMI_API int zovQMIQOSSetEventReportINDGetQoSFlowInfo(const uint8_t* msg, int len, QoSFlowState* state,
                                                       QoSSpec* qosSpec);
/**
 * Reads item 0x11 of the event report (0x0001) indication: one list of network-supported profiles.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param list Receives the technology and the count; its @c profiles pointer is set beforehand (or null) and
 *   receives the values; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0001; ZOVQMI_ERR_NO_TLV when item 0x11 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(const uint8_t* msg, int len,
                                                                       QoSProfileList* list);
/** @} */

/** @defgroup qos_request_qos RequestQoS (0x0020)
 *  @ingroup svc_qos
 *  @brief Asks for a QoS reservation described by a QoS spec.
 *  @{
 */
/**
 * Builds the RequestQoS (0x0020) request header, which optional items may follow.
 * The items are appended with the zovQMIQOSRequestQoSReqAdd functions. Writes 7 bytes: control flags 0, the next
 * transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSRequestQoSReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10, a QoS spec, to a RequestQoS (0x0020) request.
 * The value is the index item 0x10 (1 byte), then every flow of @p qosSpec, then every filter, each nested by the
 * flow or filter codec under its own @c type.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param index Index of this QoS spec in the request.
 * @param qosSpec The flows and filters; required.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p qosSpec, or a nonzero count with a null
 *   array; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the value would
 *   exceed 1024 bytes; the message is left as it was on failure.
 */
ZOVQMI_API int zovQMIQOSRequestQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint8_t index, const QoSSpec* qosSpec);
/**
 * Appends item 0x11 (1 byte), the request opcode, to a RequestQoS (0x0020) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param opcode Request opcode.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSRequestQoSReqAddQoSRequestOpcode(uint8_t* buf, int bufsize, uint8_t opcode);
/**
 * Parses the RequestQoS (0x0020) response: result item 0x02 and item 0x01, the QoS identifiers granted.
 * Item 0x01 is a count, then count u32 identifiers.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param count Receives the number of identifiers; required.
 * @param identifiers Caller array of @p count words that receives the identifiers (native); may be null, then only
 *   @p count is delivered.  Its size is not checked.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0020; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIQOSRequestQoSResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                       uint32_t* identifiers);
/**
 * Reads item 0x10 of the RequestQoS (0x0020) response: the QoS spec errors.
 * Walks the value item by item: item 0x10 gives @p index; an item 0x11 or 0x12 whose value begins with a non-empty
 * item 0x10 is the next flow, one 0x13 or 0x14 the next filter, with @c type set to the item's type, @c index from
 * its sub-item 0x10 and the parameters from its sub-item 0x11.  Both counts are set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param index Receives the index of the QoS spec in error; required.
 * @param qosSpec Its @c flows and @c filters arrays (set beforehand, or null) receive the elements in error, its
 *   counts the numbers found; required.  The arrays' size is not checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0020; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: only flow and filter items whose nested item 0x10 is non-empty are counted, but those are
 *   counted even when their array is null; the counts are single bytes and wrap after 255.
 */
ZOVQMI_API int zovQMIQOSRequestQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec);
/** @} */

/** @defgroup qos_release_qos ReleaseQoS (0x0021)
 *  @ingroup svc_qos
 *  @brief Releases QoS reservations.
 *  @{
 */
/**
 * Builds the ReleaseQoS (0x0021) request: the header, then item 0x01 with the count and the identifiers (1 + 4 per
 * identifier bytes).
 * Returns 11 + 4 * @p count on success.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7 for the header.
 * @param count Number of identifiers.
 * @param identifiers The QoS identifiers (written little-endian); may be null only when @p count is 0.
 * @return The request length; ZOVQMI_ERR_ARG when @p buf is null, @p bufsize is below 7, or a nonzero @p count
 *   comes with a null @p identifiers (nothing is written); ZOVQMI_ERR_NO_ROOM when item 0x01 does not fit.
 * @note Deliberate: item 0x01 is appended behind a header written with no items, so when it does not fit the buffer
 *   is left holding that header.
 */
ZOVQMI_API int zovQMIQOSReleaseQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
/**
 * Parses the ReleaseQoS (0x0021) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0021; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSReleaseQoSResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup qos_suspend_qos SuspendQoS (0x0022)
 *  @ingroup svc_qos
 *  @brief Suspends QoS reservations.
 *  @{
 */
/**
 * Builds the SuspendQoS (0x0022) request: the header, then item 0x01 with the count and the identifiers (1 + 4 per
 * identifier bytes).
 * Returns 11 + 4 * @p count on success.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7 for the header.
 * @param count Number of identifiers.
 * @param identifiers The QoS identifiers (written little-endian); may be null only when @p count is 0.
 * @return The request length; ZOVQMI_ERR_ARG when @p buf is null, @p bufsize is below 7, or a nonzero @p count
 *   comes with a null @p identifiers (nothing is written); ZOVQMI_ERR_NO_ROOM when item 0x01 does not fit.
 * @note Deliberate: item 0x01 is appended behind a header written with no items, so when it does not fit the buffer
 *   is left holding that header.
 */
ZOVQMI_API int zovQMIQOSSuspendQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
/**
 * Parses the SuspendQoS (0x0022) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0022; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSSuspendQoSResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup qos_resume_qos ResumeQoS (0x0023)
 *  @ingroup svc_qos
 *  @brief Resumes suspended QoS reservations.
 *  @{
 */
/**
 * Builds the ResumeQoS (0x0023) request: the header, then item 0x01 with the count and the identifiers (1 + 4 per
 * identifier bytes).
 * Returns 11 + 4 * @p count on success.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7 for the header.
 * @param count Number of identifiers.
 * @param identifiers The QoS identifiers (written little-endian); may be null only when @p count is 0.
 * @return The request length; ZOVQMI_ERR_ARG when @p buf is null, @p bufsize is below 7, or a nonzero @p count
 *   comes with a null @p identifiers (nothing is written); ZOVQMI_ERR_NO_ROOM when item 0x01 does not fit.
 * @note Deliberate: item 0x01 is appended behind a header written with no items, so when it does not fit the buffer
 *   is left holding that header.
 */
ZOVQMI_API int zovQMIQOSResumeQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
/**
 * Parses the ResumeQoS (0x0023) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0023; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSResumeQoSResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

/** @defgroup qos_modify_qos ModifyQoS (0x0024)
 *  @ingroup svc_qos
 *  @brief Changes a QoS reservation.
 *  @{
 */
/**
 * Builds the ModifyQoS (0x0024) request header, which optional items may follow.
 * The items are appended with the zovQMIQOSModifyQoSReqAdd functions. Writes 7 bytes: control flags 0, the next
 * transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSModifyQoSReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10, a QoS spec, to a ModifyQoS (0x0024) request.
 * The value is the identifier item 0x01 (u32), the index item 0x10 (1 byte), then every flow of @p qosSpec, then
 * every filter, each nested by the flow or filter codec under its own @c type.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param identifier QoS identifier of the reservation to change (written little-endian).
 * @param index Index of this QoS spec in the request.
 * @param qosSpec The flows and filters; required.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf or @p qosSpec, or a nonzero count with a null
 *   array; ZOVQMI_ERR_NO_ROOM when the item does not fit in @p bufsize; ZOVQMI_ERR_MALFORMED when the value would
 *   exceed 1024 bytes; the message is left as it was on failure.
 */
ZOVQMI_API int zovQMIQOSModifyQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint32_t identifier, uint8_t index,
                                               const QoSSpec* qosSpec);
/**
 * Appends item 0x11 (1 byte), a request to modify the primary flow, to a ModifyQoS (0x0024) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param primary 1: modify the primary flow, 0: not.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSModifyQoSReqAddPrimaryQoSModifyRequest(uint8_t* buf, int bufsize, uint8_t primary);
/**
 * Parses the ModifyQoS (0x0024) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0024; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSModifyQoSResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x10 of the ModifyQoS (0x0024) response: the QoS spec errors, read exactly as for RequestQoS.
 * See zovQMIQOSRequestQoSRespGetQoSSpecError.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param index Receives the index of the QoS spec in error; required.
 * @param qosSpec Its @c flows and @c filters arrays (set beforehand, or null) receive the elements in error, its
 *   counts the numbers found; required.  The arrays' size is not checked.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0024; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 * @note Deliberate: only flow and filter items whose nested item 0x10 is non-empty are counted, but those are
 *   counted even when their array is null; the counts are single bytes and wrap after 255.
 */
ZOVQMI_API int zovQMIQOSModifyQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec);
/** @} */

/** @defgroup qos_get_granted_qos GetGrantedQoS (0x0025)
 *  @ingroup svc_qos
 *  @brief Reads the QoS the network granted.
 *  @{
 */
/**
 * Builds the GetGrantedQoS (0x0025) request with its item 0x01 (u32 identifier): 14 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 14.
 * @param identifier QoS identifier (written little-endian).
 * @return 14, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 14 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSReq(uint8_t* buf, int bufsize, uint32_t identifier);
/**
 * Appends item 0x10 (1 byte), a request for the primary flow's granted QoS, to a GetGrantedQoS (0x0025) request.
 * Appends 4 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param primary 1: ask for the primary flow, 0: not.
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSReqAddPrimaryGrantedQoSRequest(uint8_t* buf, int bufsize, uint8_t primary);
/**
 * Parses the GetGrantedQoS (0x0025) response: copies its result item 0x02.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg or
 *   @p result; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0025; ZOVQMI_ERR_NO_TLV when the result item is
 *   missing; ZOVQMI_ERR_MALFORMED when an item header or the result codes lie beyond the end of @p msg.
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSResp(const uint8_t* msg, int len, QmiResult* result);
/**
 * Reads item 0x11 of the GetGrantedQoS (0x0025) response: the transmit flow granted.
 * The item's value is one flow item 0x10, read by fnResponseParseFlowSpecification.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param flow Receives the flow's parameters; required.
 * @return The value length of item 0x11; ZOVQMI_ERR_ARG for a null @p msg or @p flow, or a value shorter than 3
 *   bytes; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0025, or when the flow item's length field
 *   disagrees with the value length; ZOVQMI_ERR_NO_TLV when item 0x11 is absent; ZOVQMI_ERR_MALFORMED when a field
 *   lies beyond the end of @p msg (nothing is written then).
 * @note Deliberate: the flow parser's own codes come through: -1 for a value shorter than 3 bytes, -2 for a flow
 *   item whose length disagrees.
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow);
/**
 * Reads item 0x12 of the GetGrantedQoS (0x0025) response: the receive flow granted.
 * The item's value is one flow item 0x10, read by fnResponseParseFlowSpecification.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param flow Receives the flow's parameters; required.
 * @return The value length of item 0x12; ZOVQMI_ERR_ARG for a null @p msg or @p flow, or a value shorter than 3
 *   bytes; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0025, or when the flow item's length field
 *   disagrees with the value length; ZOVQMI_ERR_NO_TLV when item 0x12 is absent; ZOVQMI_ERR_MALFORMED when a field
 *   lies beyond the end of @p msg (nothing is written then).
 * @note Deliberate: the flow parser's own codes come through: -1 for a value shorter than 3 bytes, -2 for a flow
 *   item whose length disagrees.
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow);
/**
 * Reads item 0xE0 of the GetGrantedQoS (0x0025) response: the extended error code (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param error Receives the extended error code (native); required.
 * @return The value length of item 0xE0; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0025; ZOVQMI_ERR_NO_TLV when item 0xE0 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(const uint8_t* msg, int len, uint16_t* error);
/** @} */

/** @defgroup qos_get_qos_status GetQoSStatus (0x0026) and the QoS status (0x0026, indication)
 *  @ingroup svc_qos
 *  @brief Reads the status of a QoS reservation; the indication reports changes.
 *  @{
 */
/**
 * Builds the GetQoSStatus (0x0026) request with its item 0x01 (u32 identifier): 14 bytes.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 14.
 * @param identifier QoS identifier (written little-endian).
 * @return 14, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 14 (nothing is
 *   written).
 */
ZOVQMI_API int zovQMIQOSGetQoSStatusReq(uint8_t* buf, int bufsize, uint32_t identifier);
/**
 * Parses the GetQoSStatus (0x0026) response: result item 0x02 and item 0x01, the status (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param status Receives the status of the reservation as the modem sends it; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0026; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIQOSGetQoSStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
/**
 * Parses the QoS status (0x0026) indication: item 0x01 (u32, u8, u8).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param identifier Receives the QoS identifier (native); required.
 * @param status Receives the new status; required.
 * @param event Receives the event that changed it; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0026; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSStatusIND(const uint8_t* msg, int len, uint32_t* identifier, uint8_t* status,
                                  uint8_t* event);
/**
 * Reads item 0x10 of the QoS status (0x0026) indication: the reason code (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param reason Receives the reason code; required.
 * @return The value length of item 0x10; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0026; ZOVQMI_ERR_NO_TLV when item 0x10 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSStatusINDGetReasonCode(const uint8_t* msg, int len, uint8_t* reason);
/** @} */

/** @defgroup qos_get_qos_network_status GetQoSNetworkStatus (0x0027) and the network status (0x0027, indication)
 *  @ingroup svc_qos
 *  @brief Reads whether the current network supports QoS; the indication reports changes.
 *  @{
 */
/**
 * Builds the GetQoSNetworkStatus (0x0027) request header, which carries no items.
 * Writes 7 bytes: control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSGetQoSNetworkStatusReq(uint8_t* buf, int bufsize);
/**
 * Parses the GetQoSNetworkStatus (0x0027) response: result item 0x02 and item 0x01, the network's QoS support (1
 * byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param status Receives the network's QoS support as the modem sends it; required.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0027; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIQOSGetQoSNetworkStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
/**
 * Parses the network status (0x0027) indication: item 0x01, the network's QoS support (1 byte).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param status Receives the network's QoS support as the modem sends it; required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0027; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSNetworkStatusIND(const uint8_t* msg, int len, uint8_t* status);
/** @} */

/** @defgroup qos_get_nw_supported_qos_profiles GetNWSupportedQoSProfiles (0x0028)
 *  @ingroup svc_qos
 *  @brief Reads the QoS profiles the network supports.
 *  @{
 */
/**
 * Builds the GetNWSupportedQoSProfiles (0x0028) request header, which optional items may follow.
 * The items are appended with zovQMIQOSGetNWSupportedQoSProfilesReqAddExtendedTechnologyPreference. Writes 7 bytes:
 * control flags 0, the next transaction id, the message id and a TLV-area length of 0.
 * @param buf Buffer that receives the request; required.
 * @param bufsize Capacity of @p buf in bytes; at least 7.
 * @return 7, the request length; ZOVQMI_ERR_ARG when @p buf is null or @p bufsize is below 7 (nothing is written).
 */
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesReq(uint8_t* buf, int bufsize);
/**
 * Appends item 0x10 (u16), the technology preference, to a GetNWSupportedQoSProfiles (0x0028) request.
 * Appends 5 bytes.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param preference Extended technology preference (written little-endian).
 * @return The new message length; ZOVQMI_ERR_ARG for a null @p buf; ZOVQMI_ERR_NO_ROOM when the item does not fit
 *   in @p bufsize (the message is left as it was).
 */
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                   uint16_t preference);
/**
 * Parses the GetNWSupportedQoSProfiles (0x0028) response: result item 0x02 and item 0x01, the profile lists.
 * Item 0x01 is a count, then count lists back to back, each 3 + 2 per profile bytes.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code, as little-endian
 *   bytes; required.
 * @param count Receives the number of lists; required.
 * @param lists Caller array of @p count records, each with its @c profiles pointer set beforehand (or null); may be
 *   null, then only @p count is delivered.  Its size is not checked.
 * @return The length of the message's TLV area, whatever the result code says; ZOVQMI_ERR_ARG for a null @p msg, @p
 *   result or required output; ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0028; ZOVQMI_ERR_NO_TLV when
 *   the result item is missing; ZOVQMI_ERR_NO_MANDATORY when item 0x01 is missing (@p result is filled already);
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (the outputs of item
 *   0x01 are not written then).
 */
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                                      QoSProfileList* lists);
/**
 * Reads item 0xE0 of the GetNWSupportedQoSProfiles (0x0028) response: the extended error code (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param error Receives the extended error code (native); required.
 * @return The value length of item 0xE0; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0028; ZOVQMI_ERR_NO_TLV when item 0xE0 is absent;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(const uint8_t* msg, int len,
                                                                         uint16_t* error);
/** @} */

/** @defgroup qos_primary_qos_event PrimaryQoSEvent (0x0029, indication)
 *  @ingroup svc_qos
 *  @brief Reports an event of the primary flow's QoS.
 *  @{
 */
/**
 * Parses the primary QoS event (0x0029) indication: item 0x01, the event (u16).
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param event Receives the event code (native); required.
 * @return The length of the message's TLV area; ZOVQMI_ERR_ARG for a null @p msg or a null required output;
 *   ZOVQMI_ERR_NO_MESSAGE when @p msg holds no message 0x0029; ZOVQMI_ERR_NO_TLV when item 0x01 is missing;
 *   ZOVQMI_ERR_MALFORMED when an item header or a field read lies beyond the end of @p msg (nothing is written
 *   then).
 */
ZOVQMI_API int zovQMIQOSPrimaryQoSEventIND(const uint8_t* msg, int len, uint16_t* event);
/** @} */

/* ------------------------------------------------------------ end QOS -- */

#ifdef __cplusplus
}
#endif

#endif /* ZOVQMI_H */
