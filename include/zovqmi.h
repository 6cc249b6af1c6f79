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
