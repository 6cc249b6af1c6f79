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
/* (PDS declarations) */
/* ------------------------------------------------------------ end PDS -- */


/* ---------------------------------------------------------------- PBM -- */

#pragma pack(push, 1)

/* PBM: a text slot: length, then up to 242 bytes of text.  243 bytes. */
typedef struct PBMTextSlot {
    uint8_t length;
    uint8_t text[242];
} PBMTextSlot;

/* PBM: a number slot: two attributes, length, up to 40 number bytes and a
 * trailing attribute (carried only for additional numbers).  44 bytes. */
typedef struct PBMNumberSlot {
    uint8_t attribute1;
    uint8_t attribute2;
    uint8_t length;
    uint8_t number[40];
    uint8_t trailingAttribute;
} PBMNumberSlot;

/* Up to 10 phonebook records as delivered by the record-read indication and
 * its optional arrays, and as read by the write-record request.  Record i is
 * the i-th record of the indication.  Several parsers fill the same set: each
 * writes its own arrays and shares the count and record-id slots.  Two-byte
 * fields are little-endian bytes.  9216 bytes. */
typedef struct PBMRecordSet {
    uint8_t leadingWord[2];           /*    0 */
    uint8_t selectorByte;             /*    2 */
    uint8_t selectorWord[2];          /*    3 */
    uint8_t recordCount;              /*    5 */
    uint8_t recordId[10][2];          /*    6 */
    uint8_t numberCount[10];          /*   26 */
    PBMNumberSlot numbers[10][4];     /*   36; slot 0 is the primary number */
    PBMTextSlot name[10];             /* 1796 */
    uint8_t groupIdCount[10];         /* 4226 */
    uint8_t groupIds[10][10];         /* 4236 */
    uint8_t emailCount[10];           /* 4336 */
    PBMTextSlot emails[10][2];        /* 4346 */
    uint8_t hidden[10];               /* 9206 */
} PBMRecordSet;

/* The capabilities of up to 6 phonebooks (get all PB capabilities).  Each
 * array getter rewrites the count and the key bytes with its own values.
 * Basic-capability entries: u16, u16, u16 (little-endian bytes), u8, u8.
 * 451 bytes. */
typedef struct PBMAllCapabilities {
    uint8_t count;                    /*   0 */
    uint8_t key[6];                   /*   1 */
    uint8_t basicCount[6];            /*   7 */
    uint8_t basic[6][8][8];           /*  13 */
    uint8_t group[6][2];              /* 397 */
    uint8_t additionalNumber[6][3];   /* 409 */
    uint8_t email[6][2];              /* 427 */
    uint8_t secondName[6];            /* 439 */
    uint8_t hiddenRecords[6];         /* 445 */
} PBMAllCapabilities;

/* One emergency number: attribute (set lists only), length, up to 6 bytes. */
typedef struct PBMEmergencyNumber {
    uint8_t attribute;
    uint8_t length;
    uint8_t number[6];
} PBMEmergencyNumber;

/* Up to 6 sets of up to 256 emergency numbers (card or network lists).
 * The reserved bytes are never written.  12745 bytes. */
typedef struct PBMEmergencyNumberSets {
    uint8_t count;                            /*   0 */
    uint8_t key[6];                           /*   1 */
    uint8_t reserved[444];                    /*   7 */
    uint8_t numberCount[6];                   /* 451 */
    PBMEmergencyNumber numbers[6][256];       /* 457 */
} PBMEmergencyNumberSets;

/* Up to 6 sets of up to 40 phonebook groups.  58573 bytes. */
typedef struct PBMGroupsData {
    uint8_t count;                    /*   0 */
    uint8_t key[6];                   /*   1 */
    uint8_t groupCount[6];            /*   7 */
    uint8_t groupId[6][40];           /*  13 */
    PBMTextSlot name[6][40];          /* 253 */
} PBMGroupsData;

#pragma pack(pop)

/* Indication register 0x0001 */
ZOVQMI_API int zovQMIPBMIndicationRegisterReq(uint8_t* buf, int bufsize, uint32_t mask);
ZOVQMI_API int zovQMIPBMIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(const uint8_t* msg, int len, uint32_t* mask);

/* Get PB capabilities 0x0002 */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result);
/* basic: 8 bytes, three u16 and two u8 as little-endian bytes. */
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(const uint8_t* msg, int len,
                                                                          uint8_t* first, uint8_t* basic);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(const uint8_t* msg, int len, uint8_t* capability);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability(const uint8_t* msg, int len,
                                                                          uint8_t* capability);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetEmailCapability(const uint8_t* msg, int len, uint8_t* capability);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetSecondNameCapability(const uint8_t* msg, int len,
                                                                    uint8_t* capability);
ZOVQMI_API int zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(const uint8_t* msg, int len,
                                                                       uint8_t* capability);

/* Get all PB capabilities 0x0003 */
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetAdditionalNumberCapabilityArray(const uint8_t* msg, int len,
                                                                                  PBMAllCapabilities* caps);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetEmailCapabilityArray(const uint8_t* msg, int len,
                                                                       PBMAllCapabilities* caps);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetSecondNameCapabilityArray(const uint8_t* msg, int len,
                                                                            PBMAllCapabilities* caps);
ZOVQMI_API int zovQMIPBMGetAllPBCapabilitiesRespGetHiddenRecordsCapabilityArray(const uint8_t* msg, int len,
                                                                               PBMAllCapabilities* caps);

/* Read records 0x0004, and the record-read indication 0x0004 */
ZOVQMI_API int zovQMIPBMReadRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                       uint16_t startId, uint16_t endId);
ZOVQMI_API int zovQMIPBMReadRecordsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMReadRecordsRespGetNumberOfRecords(const uint8_t* msg, int len, uint16_t* count);
ZOVQMI_API int zovQMIPBMRecordReadIND(const uint8_t* msg, int len, PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(const uint8_t* msg, int len, PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation(const uint8_t* msg, int len,
                                                                          PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofGroupIDInformation(const uint8_t* msg, int len, PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofEmailInformation(const uint8_t* msg, int len, PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMRecordReadINDGetArrayofHiddenInformation(const uint8_t* msg, int len, PBMRecordSet* set);

/* Write record 0x0005: the record is record 0 of the set.  textSlot(s):
 * 243-byte text slots; numberSlots: 44-byte number slots. */
ZOVQMI_API int zovQMIPBMWriteRecordReq(uint8_t* buf, int bufsize, const PBMRecordSet* set);
ZOVQMI_API int zovQMIPBMWriteRecordReqAddSecondNameInformation(uint8_t* buf, int bufsize, const uint8_t* textSlot);
ZOVQMI_API int zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                                    const uint8_t* numberSlots);
ZOVQMI_API int zovQMIPBMWriteRecordReqAddGroupIDInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                           const uint8_t* ids);
ZOVQMI_API int zovQMIPBMWriteRecordReqAddEmailInformation(uint8_t* buf, int bufsize, uint8_t count,
                                                         const uint8_t* textSlots);
ZOVQMI_API int zovQMIPBMWriteRecordReqAddHiddenInformation(uint8_t* buf, int bufsize, uint8_t hidden);
ZOVQMI_API int zovQMIPBMWriteRecordResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMWriteRecordRespGetRecordInfo(const uint8_t* msg, int len, uint16_t* recordInfo);

/* Delete record 0x0006 */
ZOVQMI_API int zovQMIPBMDeleteRecordReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord,
                                        uint16_t recordId);
ZOVQMI_API int zovQMIPBMDeleteRecordResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMDeleteRecordRespGetRecordID(const uint8_t* msg, int len, uint16_t* recordId);

/* Delete all PB records 0x0007 */
ZOVQMI_API int zovQMIPBMDeleteAllPBRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte,
                                              uint16_t selectorWord);
ZOVQMI_API int zovQMIPBMDeleteAllPBRecordsResp(const uint8_t* msg, int len, QmiResult* result);

/* Search records 0x0008 */
ZOVQMI_API int zovQMIPBMSearchRecordsReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
ZOVQMI_API int zovQMIPBMSearchRecordsReqAddNumberInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                            const void* bytes);
ZOVQMI_API int zovQMIPBMSearchRecordsReqAddNameInformation(uint8_t* buf, int bufsize, uint8_t length,
                                                          const void* bytes);
ZOVQMI_API int zovQMIPBMSearchRecordsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMSearchRecordsRespGetRecordIDsList(const uint8_t* msg, int len, uint16_t* count,
                                                         uint16_t* ids);

/* Record update indication 0x0009 */
ZOVQMI_API int zovQMIPBMRecordUpdateIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second,
                                        uint8_t* third, uint16_t* fourth);

/* Refresh indication 0x000A */
ZOVQMI_API int zovQMIPBMRefreshIND(const uint8_t* msg, int len, uint8_t* first, uint16_t* second, uint8_t* third);

/* PB ready indication 0x000B */
ZOVQMI_API int zovQMIPBMPBReadyIND(const uint8_t* msg, int len, uint8_t* selectorByte, uint16_t* selectorWord);

/* Emergency list indication 0x000C */
ZOVQMI_API int zovQMIPBMEmergencyListIND(const uint8_t* msg, int len, uint8_t* count, PBMEmergencyNumber* numbers);
ZOVQMI_API int zovQMIPBMEmergencyListINDGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                             PBMEmergencyNumber* numbers);
ZOVQMI_API int zovQMIPBMEmergencyListINDGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                               PBMEmergencyNumberSets* sets);
ZOVQMI_API int zovQMIPBMEmergencyListINDGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                  PBMEmergencyNumberSets* sets);

/* All PB init done indication 0x000D */
ZOVQMI_API int zovQMIPBMAllPBInitDoneIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* keys,
                                         uint16_t* words);

/* Get emergency list 0x000E */
ZOVQMI_API int zovQMIPBMGetEmergencyListReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPBMGetEmergencyListResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetHardCodedEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                        PBMEmergencyNumber* numbers);
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetNVEmergencyNumbers(const uint8_t* msg, int len, uint8_t* count,
                                                                 PBMEmergencyNumber* numbers);
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetCardEmergencyNumbers(const uint8_t* msg, int len,
                                                                   PBMEmergencyNumberSets* sets);
ZOVQMI_API int zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers(const uint8_t* msg, int len,
                                                                      PBMEmergencyNumberSets* sets);

/* Get all groups 0x000F */
ZOVQMI_API int zovQMIPBMGetAllGroupsReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIPBMGetAllGroupsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMGetAllGroupsRespGetGroupsData(const uint8_t* msg, int len, PBMGroupsData* groups);

/* Set group info 0x0010 (textSlot: a 243-byte text slot) */
ZOVQMI_API int zovQMIPBMSetGroupInfoReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second, uint8_t third,
                                        const uint8_t* textSlot);
ZOVQMI_API int zovQMIPBMSetGroupInfoResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMSetGroupInfoRespGetGroupIdentifier(const uint8_t* msg, int len, uint8_t* first,
                                                          uint8_t* second);

/* Get PB state 0x0011 */
ZOVQMI_API int zovQMIPBMGetPBStateReq(uint8_t* buf, int bufsize, uint8_t selectorByte, uint16_t selectorWord);
ZOVQMI_API int zovQMIPBMGetPBStateResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMGetPBStateRespGetPhonebookState(const uint8_t* msg, int len, uint8_t* first,
                                                       uint16_t* second, uint8_t* third);

/* Read all hidden records 0x0012 */
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsReq(uint8_t* buf, int bufsize, uint8_t value);
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIPBMReadAllHiddenRecordsRespGetNumberofRecords(const uint8_t* msg, int len, uint16_t* count);

/* Hidden record status indication 0x0013 */
ZOVQMI_API int zovQMIPBMHiddenRecordStatusIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second);

/* ------------------------------------------------------------ end PBM -- */


/* ---------------------------------------------------------------- QOS -- */
/* (QOS declarations) */
/* ------------------------------------------------------------ end QOS -- */

#ifdef __cplusplus
}
#endif

#endif /* ZOVQMI_H */
