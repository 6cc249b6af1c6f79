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
