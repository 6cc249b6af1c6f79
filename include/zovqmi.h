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
/* (DMS declarations) */
/* ------------------------------------------------------------ end DMS -- */


/* ---------------------------------------------------------------- NAS -- */
/* (NAS declarations) */
/* ------------------------------------------------------------ end NAS -- */


/* ---------------------------------------------------------------- WMS -- */
/* (WMS declarations) */
/* ------------------------------------------------------------ end WMS -- */


/* ---------------------------------------------------------------- PDS -- */
/* (PDS declarations) */
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
