/**
 * @file zovqmi.h
 * @brief The public interface of libzovqmi: device access, framing and the QMI service messages.
 *
 * libzovqmi talks to a cellular modem over QMI: it opens the modem's QMI
 * control device, frames and unframes messages, and builds and parses the
 * messages of the CTL, WDS, DMS, NAS, QOS, WMS, PDS and PBM services.
 *
 * Conventions shared by every function (see @ref page_conventions):
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
/** Marks an exported function of the library (default visibility with GCC and clang). */
#define ZOVQMI_API __attribute__((visibility("default")))
#else
#define ZOVQMI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------- codes -- */

/** @defgroup codes Return codes and service types
 *  @brief The negative codes every function may return, and the QMI service numbers.
 *  @{
 */

/** Return codes.  Success values are zero or positive; each function lists the codes it can give. */
enum {
    /** A null buffer or required output, a request buffer that is too small,
     *  a non-zero length with null data, or an argument outside its set.
     *  The device functions also give it for a negative descriptor. */
    ZOVQMI_ERR_ARG = -1,
    /** Builders: the item does not fit the buffer.  Parsers: no message with
     *  the expected id.  Device write: message too short or null.  Device
     *  read: null buffer. */
    ZOVQMI_ERR_NO_MESSAGE = -2,
    /** The same value as ZOVQMI_ERR_NO_MESSAGE, the name builders use: the item does not fit the buffer. */
    ZOVQMI_ERR_NO_ROOM = -2,
    /** Parsers: the requested item (or the result item) is missing.
     *  Device write: the frame could not be allocated. */
    ZOVQMI_ERR_NO_TLV = -3,
    /** Response parsers: the mandatory item 0x01 is missing (the result
     *  record has been filled already). */
    ZOVQMI_ERR_NO_MANDATORY = -4,
    /** Malformed input: a received message whose fields would lie beyond its
     *  end, a frame shorter than its header or larger than the buffer given
     *  for it, a value longer than the 1024 bytes of a QmiTlvRecord, or a
     *  count that would write past the end of a fixed-size caller record.
     *  No output is written when it is returned. */
    ZOVQMI_ERR_MALFORMED = -5
};

/** QMI service types, as used with zovQMIDeviceWrite() and the GetClientID request. */
enum {
    ZOVQMI_SERVICE_CTL = 0,  /**< Control service: client ids, versions, power save. */
    ZOVQMI_SERVICE_WDS = 1,  /**< Wireless data service: data calls and profiles. */
    ZOVQMI_SERVICE_DMS = 2,  /**< Device management service: identity, power, PIN. */
    ZOVQMI_SERVICE_NAS = 3,  /**< Network access service: registration, signal. */
    ZOVQMI_SERVICE_QOS = 4,  /**< Quality of service: flows and filters. */
    ZOVQMI_SERVICE_WMS = 5,  /**< Wireless messaging service: short messages. */
    ZOVQMI_SERVICE_PDS = 6,  /**< Position determination service: GPS. */
    ZOVQMI_SERVICE_PBM = 12  /**< Phonebook manager service. */
};

/** @} */

/* ------------------------------------------------------------- records -- */

#pragma pack(push, 1)

/** One TLV item: type, value length and value; 1027 bytes.
 *  @ingroup framing
 *  The element of zovQMIMSMGetTLVList() and the argument of zovQMIMSMControlAddTLV() and
 *  zovQMIMSMMessageAddTLV().  length holds little-endian bytes on every host, as on the wire.
 */
typedef struct QmiTlvRecord {
    uint8_t type;        /**< Item type: 0x01 mandatory item, 0x02 result, 0x10 and above optional items. */
    uint16_t length;     /**< Number of value bytes in use, at most 1024 (little-endian bytes). */
    uint8_t value[1024]; /**< The value as on the wire. */
} QmiTlvRecord;

/** The 6-byte QMUX header in front of every frame on the device, as zovQMIMSMQMUXHeaderParse() fills it.
 *  @ingroup framing
 *  length holds little-endian bytes on every host, as on the wire.
 */
typedef struct QmiQmuxHeader {
    uint8_t interfaceType; /**< Interface type, 1 in every frame. */
    uint16_t length;       /**< Bytes that follow the interface type: 5 + the message length (little-endian bytes). */
    uint8_t controlFlags;  /**< Control flags, 0 in frames the library writes. */
    uint8_t serviceType;   /**< Service of the message, a ZOVQMI_SERVICE_* value. */
    uint8_t clientId;      /**< Client id of the message (0 for CTL). */
} QmiQmuxHeader;

/** One message of a received buffer: id, item-area length and a caller-owned
 *  buffer that receives the item area (may be null).  8 bytes on 32-bit hosts (12 on 64-bit ones).
 *  @ingroup framing
 *  The id and length hold little-endian bytes on every host.
 */
typedef struct QmiMessageEntry {
    uint16_t messageId; /**< Message id (little-endian bytes). */
    uint16_t length;    /**< Length of the message's item area (little-endian bytes). */
    uint8_t* value;     /**< Caller's buffer of at least length bytes for the item area, or null to skip it. */
} QmiMessageEntry;

/** Header fields of a received message and its messages, as zovQMIMSMControlParse() and
 *  zovQMIMSMMessageParse() fill them; 9 bytes on 32-bit hosts (13 on 64-bit ones).
 *  @ingroup framing
 *  transactionId and messageCount hold little-endian bytes on every host; entries is set by the caller.
 */
typedef struct QmiMessageInfo {
    uint8_t controlFlags;     /**< Control flags: service messages 0 request, 2 response, 4 indication;
                                   CTL messages 0 request, 1 response, 2 indication. */
    uint16_t transactionId;   /**< Transaction id: one byte for CTL, two for the other services (LE bytes). */
    uint16_t messageCount;    /**< Number of messages in the buffer (little-endian bytes). */
    QmiMessageEntry* entries; /**< Caller's array for the messages, or null to count them only. */
} QmiMessageInfo;

/** The result item 0x02 of every response: result code and error code; 4 bytes.
 *  @ingroup framing
 *  Both fields hold little-endian bytes on every host, as on the wire; on a little-endian host they read as
 *  plain numbers.
 */
typedef struct QmiResult {
    uint16_t result; /**< 0 success, 1 failure. */
    uint16_t error;  /**< QMI error code when result is 1 (0 none). */
} QmiResult;

/** One entry of the CTL service version lists; 5 bytes, as on the wire.
 *  @ingroup svc_ctl
 *  The versions hold little-endian bytes on every host.
 */
typedef struct CTLVersionEntry {
    uint8_t serviceType;   /**< Service, a ZOVQMI_SERVICE_* value or another QMI service number. */
    uint16_t majorVersion; /**< Major version of the service (little-endian bytes). */
    uint16_t minorVersion; /**< Minor version of the service (little-endian bytes). */
} CTLVersionEntry;

#pragma pack(pop)

/* --------------------------------------------------- device and dump -- */

/** @defgroup device Device access and hex dump
 *  @brief Opening the QMI control device, writing and reading one frame, the driver's requests, a hex dump.
 *  The only functions that touch the device; they block as the device does.  See @ref page_device.
 *  @{
 */

/** Opens the QMI control device for reading and writing.
 *  Calls open(path, O_RDWR) and nothing else; the descriptor blocks.
 *  @param path Path of the character device, for instance "/dev/cdc-wdm0" (required).
 *  @return The descriptor; ZOVQMI_ERR_ARG when path is null; the negative result of open() otherwise (errno is
 *      left as open set it).
 */
ZOVQMI_API int zovQMIDeviceOpen(const char* path);
/** Closes the device.
 *  Calls close(fd) without any check.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @return The result of close(): 0, or -1 with errno set.
 */
ZOVQMI_API int zovQMIDeviceClose(int fd);
/** Writes one message as one frame: the 6-byte QMUX header, then the message.
 *  The header carries interface type 1, length len + 5 (little-endian), control flags 0, service and clientId.
 *  The frame is allocated for the call and freed before it returns.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @param service Service type of the message, a ZOVQMI_SERVICE_* value (0 for CTL).
 *  @param clientId Client id from GetClientID (0 for CTL).
 *  @param msg The message built by a Req function and its ReqAdd functions (required).
 *  @param len Length of msg in bytes, at least 6.
 *  @return len on success; ZOVQMI_ERR_ARG for a negative fd; ZOVQMI_ERR_NO_MESSAGE when msg is null or len is
 *      below 6; ZOVQMI_ERR_NO_TLV when the frame cannot be allocated; the negative result of write() otherwise.
 *  @note Deliberate: the result is len, the caller's message length, not the number of bytes written, and a
 *      short write is not detected.
 *  @note Deliberate: messages shorter than 6 bytes (a control header) are refused, even for services whose
 *      header is 7 bytes.
 */
ZOVQMI_API int zovQMIDeviceWrite(int fd, uint8_t service, uint8_t clientId, const uint8_t* msg, int len);
/** Reads one frame and hands out its message without the QMUX header.
 *  One read() of up to 4096 bytes; the header's service and client id are reported, its other fields are not
 *  examined.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @param msg Buffer that receives the message (required).
 *  @param msgSize Capacity of msg in bytes; 4090 holds any frame.
 *  @param service Receives the service type of the frame (byte 4 of the header); may be null.
 *  @param clientId Receives the client id of the frame (byte 5 of the header); may be null.
 *  @return The message length (frame length - 6); ZOVQMI_ERR_ARG for a negative fd; ZOVQMI_ERR_NO_MESSAGE when
 *      msg is null; ZOVQMI_ERR_MALFORMED when the frame is shorter than 6 bytes or the message longer than
 *      msgSize (nothing is stored then); the negative result of read() otherwise.
 */
ZOVQMI_API int zovQMIDeviceRead(int fd, uint8_t* msg, int msgSize, uint8_t* service, uint8_t* clientId);
/** Asks the driver for the modem's USB vendor and product ids.
 *  Driver request 0x8BE0, which yields one u32: vendor id in the high half, product id in the low half.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @param vid Receives the vendor id (0 to 0xFFFF); may be null.  Untouched when the request fails.
 *  @param pid Receives the product id (0 to 0xFFFF); may be null.  Untouched when the request fails.
 *  @return The result of ioctl() (0 or more on success, negative on failure); ZOVQMI_ERR_ARG for a negative fd.
 */
ZOVQMI_API int zovQMIDeviceGetVIDPID(int fd, uint32_t* vid, uint32_t* pid);
/** Asks the driver for its version.
 *  Driver request 0x8BE2 with the caller's pointer passed through; what the driver writes there is the
 *  driver's business.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @param out Buffer the driver writes its version into, as large as the driver needs (required).
 *  @return The result of ioctl(); ZOVQMI_ERR_ARG for a negative fd or a null out.
 */
ZOVQMI_API int zovQMIDeviceGetVersion(int fd, void* out);
/** Sets the driver's debug mode.
 *  Driver request 0x8BE1 with mode passed by value; which modes the driver accepts is the driver's business.
 *  @param fd Descriptor from zovQMIDeviceOpen().
 *  @param mode Debug mode for the driver (0 usually turns its debug output off).
 *  @return The result of ioctl(); ZOVQMI_ERR_ARG for a negative fd.
 */
ZOVQMI_API int zovQMIDeviceSetDebugMode(int fd, unsigned long mode);
/** Prints bytes in hex to standard output, for diagnostics.
 *  The line starts with "label (len), ", then the bytes follow as uppercase hex in groups of four, sixteen to a
 *  line; continuation lines are indented by the width of that prefix, and the dump ends with a newline (none
 *  when len is 0).
 *  @param ignored Not used.
 *  @param label Text in front of the dump; null prints as an empty label.
 *  @param data The bytes to print; may be null only when len is 0.
 *  @param len Number of bytes to print; 0 prints the prefix only, without newline.
 *  @return The result of the last printf() call (so 1 after a final newline), or ZOVQMI_ERR_ARG when data is
 *      null and len is positive.
 *  @note Deliberate: the first argument is ignored.
 *  @note Deliberate: the result is that of the last printf() alone, not the number of characters printed.
 */
ZOVQMI_API int zovPrintHex(int ignored, const char* label, const uint8_t* data, int len);

/** @} */

/* ------------------------------------------------- framing and TLVs -- */

/** @defgroup framing Framing and TLVs
 *  @brief Transaction ids, the QMUX header, appending items and finding messages and items.
 *  The wire format of every message: the control header (6 bytes: flags, one-byte transaction id, message id,
 *  item-area length) or the service header (7 bytes: flags, two-byte transaction id, message id, item-area
 *  length), then items of type u8, length u16 and value; all integers little-endian.  See @ref page_framing.
 *  @{
 */

/** Returns the current value of the library's transaction counter.
 *  @return The last transaction id handed out, 0 to 0xFFFF (0 before the first request).
 */
ZOVQMI_API int zovQMIMSMGetCurrentTransactionID(void);
/** Advances the transaction counter and returns the new id.
 *  Every Req function calls it once, after its argument checks pass.  The counter is 16 bits wide, starts at 0
 *  and skips 0 when it wraps: the ids run 1, 2, ... 0xFFFF, 1.  It is not protected: callers that build
 *  requests on several threads serialise the builders themselves.
 *  @return The new transaction id, 1 to 0xFFFF.
 *  @note Deliberate: CTL requests carry only the low byte of the id, so a CTL transaction id is 0 whenever the
 *      counter is a multiple of 256.
 */
ZOVQMI_API int zovQMIMSMGetNextTransactionID(void);
/** Parses a 6-byte QMUX header.
 *  Copies the six header bytes into out as they are (length stays little-endian bytes).
 *  @param buf A frame as read from the device, header first (required).
 *  @param len Length of buf in bytes, at least 6.
 *  @param out Receives the header fields (required).
 *  @return The header's length field (frame length - 1); ZOVQMI_ERR_ARG when buf or out is null;
 *      ZOVQMI_ERR_MALFORMED when len is below 6 (out is untouched).
 */
ZOVQMI_API int zovQMIMSMQMUXHeaderParse(const uint8_t* buf, int len, QmiQmuxHeader* out);
/** Appends an item to a control (CTL) message whose header is already written.
 *  Raises the item-area length at offset 4 and writes type, length (little-endian) and value after the items.
 *  @param msg The control message under construction (required).
 *  @param bufsize Capacity of msg in bytes.
 *  @param tlv The item to append: type, length (little-endian bytes, at most 1024) and value (required).
 *  @return The new message length (6 + item area); ZOVQMI_ERR_ARG when msg or tlv is null; ZOVQMI_ERR_NO_ROOM
 *      when bufsize is below 6 or the item does not fit; ZOVQMI_ERR_MALFORMED when tlv->length exceeds 1024.
 *      The message is unchanged on failure.
 */
ZOVQMI_API int zovQMIMSMControlAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv);
/** Appends an item to a service message whose header is already written.
 *  Raises the item-area length at offset 5 and writes type, length (little-endian) and value after the items.
 *  @param msg The service message under construction (required).
 *  @param bufsize Capacity of msg in bytes.
 *  @param tlv The item to append: type, length (little-endian bytes, at most 1024) and value (required).
 *  @return The new message length (7 + item area); ZOVQMI_ERR_ARG when msg or tlv is null; ZOVQMI_ERR_NO_ROOM
 *      when bufsize is below 7 or the item does not fit; ZOVQMI_ERR_MALFORMED when tlv->length exceeds 1024.
 *      The message is unchanged on failure.
 */
ZOVQMI_API int zovQMIMSMMessageAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv);
/** Parses the header of a received control (CTL) message.
 *  Fills flags, the one-byte transaction id and a count of 1; when out->entries is set, entry 0 gets the
 *  message id and item-area length, and its value buffer (when set) a copy of the item area.
 *  @param msg Received control message, QMUX header removed (required).
 *  @param len Length of msg in bytes, at least 2.
 *  @param out Receives the header fields; its entries pointer (set by the caller, may be null) receives
 *      entry 0 (required).
 *  @return 1, the number of messages; ZOVQMI_ERR_ARG when msg or out is null or len is below 2;
 *      ZOVQMI_ERR_MALFORMED when out->entries is set and the message id, length or item area to copy lies
 *      beyond len (out is untouched then).
 *  @note Deliberate: a control buffer always counts as one message; the buffer is not walked further.
 */
ZOVQMI_API int zovQMIMSMControlParse(const uint8_t* msg, int len, QmiMessageInfo* out);
/** Parses the header of a received service message and walks its messages.
 *  Fills flags and the two-byte transaction id, then walks the messages from offset 3 (id u16, length u16,
 *  item area) while at least one byte follows a message's 4-byte head, filling one entry per message when
 *  out->entries is set.
 *  @param msg Received service message, QMUX header removed (required).
 *  @param len Length of msg in bytes, at least 3.
 *  @param out Receives the header fields and the count; its entries pointer (set by the caller, may be null)
 *      must hold as many entries as the buffer can contain (required).
 *  @return The number of messages found (usually 1); ZOVQMI_ERR_ARG when msg or out is null or len is below 3;
 *      ZOVQMI_ERR_MALFORMED when an item area to copy lies beyond len (out and every entry are untouched then).
 */
ZOVQMI_API int zovQMIMSMMessageParse(const uint8_t* msg, int len, QmiMessageInfo* out);
/** Finds a message by id in a received service buffer.
 *  Walks the messages from offset 3 while at least one byte follows a message's 4-byte head.
 *  @param msg Received service message, QMUX header removed; null finds nothing.
 *  @param len Length of msg in bytes.
 *  @param msgid Message id to look for.
 *  @param tlvlen Receives the length of the message's item area (required, not checked for null).
 *  @return A pointer to the item area of the first message msgid, or null when there is none or msg is null.
 *  @note Deliberate: a message whose 4-byte head ends exactly at the end of the buffer is not visited.
 *  @note Deliberate: when no message is visited at all (len of 7 or less), id 0 matches at msg + 7 with length 0.
 *  @note Deliberate: the length handed out is the message's own field; it is not compared with len.
 */
ZOVQMI_API const uint8_t* zovQMIMSMGetMessage(const uint8_t* msg, int len, uint16_t msgid, uint16_t* tlvlen);
/** Finds an item by type in an item area.
 *  Walks the items while a whole 3-byte head (type, length) fits inside len, so a zero-length item ending
 *  exactly at the end of the area is found.
 *  @param area The item area, for instance from zovQMIMSMGetMessage(); null finds nothing.
 *  @param len Length of the area in bytes.
 *  @param type Item type to look for.
 *  @param vallen Receives the value length of the item (required, not checked for null).
 *  @return A pointer to the value of the first item of that type, or null when there is none or area is null.
 *  @note Deliberate: when no item is visited at all (len below 3), type 0 matches at area + 3 with length 0.
 *  @note Deliberate: the value length handed out is the item's own field; it is not compared with len.
 */
ZOVQMI_API const uint8_t* zovQMIMSMGetTLV(const uint8_t* area, int len, uint8_t type, uint16_t* vallen);
/** Counts the items of an area and copies each into the next record of a list.
 *  Walks as zovQMIMSMGetTLV() does; each copied record gets type, length and value as on the wire.
 *  @param area The item area; null gives 0.
 *  @param len Length of the area in bytes.
 *  @param list Array with one QmiTlvRecord per item of the area (1027 bytes each), or null to count only.
 *  @return The number of items; 0 when area is null; ZOVQMI_ERR_MALFORMED when an item length makes the walk
 *      wrap, or, with a list, when an item lies beyond len or its value exceeds 1024 bytes (list untouched).
 */
ZOVQMI_API int zovQMIMSMGetTLVList(const uint8_t* area, int len, QmiTlvRecord* list);

/** @} */

/* ---------------------------------------------------------------- CTL -- */
/** @defgroup svc_ctl CTL: control service (service 0)
 *  @brief Client ids, versions, data format and power-save reporting.
 *  CTL messages carry the 6-byte control header with a one-byte transaction id and are written with
 *  zovQMIDeviceWrite() as service 0, client id 0.  The parsers read the message id and item-area length from
 *  that header instead of walking the buffer; reads stay inside len.
 */

/** @defgroup ctl_set_instance_id SetInstanceID (0x0020)
 *  @ingroup svc_ctl
 *  @brief Sets the instance id of the control point and returns the link id the modem assigns.
 *  @{
 */
/** Builds a SetInstanceID request (0x0020).
 *  Writes the 6-byte control header and the mandatory item 0x01 (instance id u8): 10 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 10.
 *  @param instanceId Instance id to use for this control point (0 for the first).
 *  @return 10, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 10 (nothing written).
 */
ZOVQMI_API int zovQMICTLSetInstanceIDReq(uint8_t* buf, int bufsize, uint8_t instanceId);
/** Parses a SetInstanceID response (0x0020).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (assigned id u16).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param assignedId Receives the link id the modem assigned (u16, native order) (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, assignedId),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLSetInstanceIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* assignedId);
/** @} */
/** @defgroup ctl_get_version_info GetVersionInfo (0x0021)
 *  @ingroup svc_ctl
 *  @brief Asks which services the modem offers and their versions.
 *  @{
 */
/** Builds a GetVersionInfo request (0x0021).
 *  Writes the 6-byte control header of message 0x0021 with an empty item area: 6 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 6.
 *  @return 6, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 6 (nothing written).
 */
ZOVQMI_API int zovQMICTLGetVersionInfoReq(uint8_t* buf, int bufsize);
/** Parses a GetVersionInfo response (0x0021).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (a count u8, then per service its
 *  type u8, major u16 and minor u16).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param count Receives the number of entries of the list (required).
 *  @param list Array of at least *count entries (up to 255) that receives the version list, 5 bytes per entry; may
 *      be null, then only the count is stored.
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, count), ZOVQMI_ERR_NO_MESSAGE
 *      (the header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01;
 *      result already filled), ZOVQMI_ERR_MALFORMED (msg shorter than the control header, or a field read lies
 *      beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLGetVersionInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           CTLVersionEntry* list);
/** Reads the addendum version list of a GetVersionInfo response.
 *  Reads the optional item 0x10 (label length u8, label, count u8, then count version entries) of a GetVersionInfo
 *  response (0x0021).
 *  The count byte follows the label; the entries follow the count.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param labelLength Receives the length of the label (required).
 *  @param label Buffer of at least *labelLength bytes (up to 255) that receives the label, not NUL-terminated; may
 *      be null.
 *  @param count Receives the number of entries of the addendum list (required).
 *  @param list Array of at least *count entries that receives the addendum list; may be null.
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, labelLength, count), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLGetVersionInfoRespGetAddendumVersionList(const uint8_t* msg, int len, uint8_t* labelLength,
                                                                 uint8_t* label, uint8_t* count,
                                                                 CTLVersionEntry* list);
/** @} */
/** @defgroup ctl_get_client_id GetClientID (0x0022)
 *  @ingroup svc_ctl
 *  @brief Obtains a client id for a service; every service but CTL needs one.
 *  @{
 */
/** Builds a GetClientID request (0x0022) for one service.
 *  Writes the 6-byte control header and the mandatory item 0x01 (service type u8): 10 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  Send it with zovQMIDeviceWrite() as service 0, client id 0.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 10.
 *  @param serviceType Service the client id is for, a ZOVQMI_SERVICE_* value (1 WDS, 2 DMS, 3 NAS, ...).
 *  @return 10, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 10 (nothing written).
 */
ZOVQMI_API int zovQMICTLGetClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType);
/** Parses a GetClientID response (0x0022).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (service type u8, client id u8).
 *  The client id is valid only when result->result is 0.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param serviceType Receives the service type of the client id (a ZOVQMI_SERVICE_* value) (required).
 *  @param clientId Receives the client id (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, serviceType, clientId),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLGetClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                        uint8_t* clientId);
/** @} */
/** @defgroup ctl_release_client_id ReleaseClientID (0x0023)
 *  @ingroup svc_ctl
 *  @brief Gives a client id back to the modem.
 *  @{
 */
/** Builds a ReleaseClientID request (0x0023).
 *  Writes the 6-byte control header and the mandatory item 0x01 (service type u8, client id u8): 11 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 11.
 *  @param serviceType Service of the client id, a ZOVQMI_SERVICE_* value.
 *  @param clientId The client id to release, as GetClientID gave it.
 *  @return 11, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 11 (nothing written).
 */
ZOVQMI_API int zovQMICTLReleaseClientIDReq(uint8_t* buf, int bufsize, uint8_t serviceType, uint8_t clientId);
/** Parses a ReleaseClientID response (0x0023).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (service type u8, client id u8).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param serviceType Receives the service type of the released client id (required).
 *  @param clientId Receives the released client id (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, serviceType, clientId),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLReleaseClientIDResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* serviceType,
                                            uint8_t* clientId);
/** @} */
/** @defgroup ctl_revoke_client_id RevokeClientID (0x0024)
 *  @ingroup svc_ctl
 *  @brief Indication: the modem has taken a client id back.
 *  @{
 */
/** Parses a RevokeClientID indication (0x0024).
 *  Decodes the mandatory item 0x01 (service type u8, client id u8); an indication carries no result item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param serviceType Receives the service type of the revoked client id (required).
 *  @param clientId Receives the revoked client id (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, serviceType, clientId),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no item 0x01), ZOVQMI_ERR_MALFORMED
 *      (msg shorter than the control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLRevokeClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId);
/** @} */
/** @defgroup ctl_invalid_client_id InvalidClientID (0x0025)
 *  @ingroup svc_ctl
 *  @brief Indication: a message used a client id the modem does not know.
 *  @{
 */
/** Parses a InvalidClientID indication (0x0025).
 *  Decodes the mandatory item 0x01 (service type u8, client id u8); an indication carries no result item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param serviceType Receives the service type of the invalid client id (required).
 *  @param clientId Receives the invalid client id (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, serviceType, clientId),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no item 0x01), ZOVQMI_ERR_MALFORMED
 *      (msg shorter than the control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLInvalidClientIDIND(const uint8_t* msg, int len, uint8_t* serviceType, uint8_t* clientId);
/** @} */
/** @defgroup ctl_set_data_format SetDataFormat (0x0026)
 *  @ingroup svc_ctl
 *  @brief Sets the format of the data path: QoS header and link-layer protocol.
 *  @{
 */
/** Builds a SetDataFormat request (0x0026).
 *  Writes the 6-byte control header and the mandatory item 0x01 (data format u8): 10 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 10.
 *  @param dataFormat Data format: 0 without QoS flow header, 1 with QoS flow header.
 *  @return 10, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 10 (nothing written).
 */
ZOVQMI_API int zovQMICTLSetDataFormatReq(uint8_t* buf, int bufsize, uint8_t dataFormat);
/** Appends the underlying link-layer protocol to a SetDataFormat request.
 *  Extends a SetDataFormat request built by zovQMICTLSetDataFormatReq(): appends item 0x10 (u16 protocol), 5 bytes
 *  in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param protocol Link-layer protocol of the data path: 1 IEEE 802.3 (Ethernet frames), 2 raw IP; sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(uint8_t* buf, int bufsize, uint16_t protocol);
/** Parses a SetDataFormat response (0x0026).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLSetDataFormatResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the link-layer protocol the modem settled on from a SetDataFormat response.
 *  Reads the optional item 0x10 (u16 protocol) of a SetDataFormat response (0x0026).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param protocol Receives the link-layer protocol in use: 1 IEEE 802.3, 2 raw IP (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, protocol), ZOVQMI_ERR_NO_MESSAGE (the header
 *      names another id), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (msg shorter than the control
 *      header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(const uint8_t* msg, int len,
                                                                        uint16_t* protocol);
/** @} */
/** @defgroup ctl_sync Sync (0x0027)
 *  @ingroup svc_ctl
 *  @brief Synchronises the control point with the modem; the modem announces a sync with the indication.
 *  @{
 */
/** Builds a Sync request (0x0027).
 *  Writes the 6-byte control header of message 0x0027 with an empty item area: 6 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 6.
 *  @return 6, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 6 (nothing written).
 */
ZOVQMI_API int zovQMICTLSyncReq(uint8_t* buf, int bufsize);
/** Parses a Sync response (0x0027).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLSyncResp(const uint8_t* msg, int len, QmiResult* result);
/** Parses a Sync indication (0x0027).
 *  Confirms the message id; the optional items are read with the INDGet functions.
 *  The indication has no items; it shares the id of the request.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg), ZOVQMI_ERR_NO_MESSAGE (the header names
 *      another id), ZOVQMI_ERR_MALFORMED (msg shorter than the control header).
 */
ZOVQMI_API int zovQMICTLSyncIND(const uint8_t* msg, int len);
/** @} */
/** @defgroup ctl_reg_pwr_save_mode RegPwrSaveMode and PwrSaveMode (0x0028)
 *  @ingroup svc_ctl
 *  @brief Registers for power-save state reports, and the PwrSaveMode indication that delivers them.
 *  @{
 */
/** Builds a RegPwrSaveMode request (0x0028).
 *  Writes the 6-byte control header and the mandatory item 0x01 (report u8): 10 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 10.
 *  @param value Whether to report power-save state changes: 0 do not report, 1 report; passed as it is.
 *  @return 10, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 10 (nothing written).
 */
ZOVQMI_API int zovQMICTLRegPwrSaveModeReq(uint8_t* buf, int bufsize, uint8_t value);
/** Parses a RegPwrSaveMode response (0x0028).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLRegPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result);
/** Parses a PwrSaveMode indication (0x0028).
 *  Confirms the message id; the optional items are read with the INDGet functions.
 *  The indication shares the id of the RegPwrSaveMode request.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg), ZOVQMI_ERR_NO_MESSAGE (the header names
 *      another id), ZOVQMI_ERR_MALFORMED (msg shorter than the control header).
 */
ZOVQMI_API int zovQMICTLPwrSaveModeIND(const uint8_t* msg, int len);
/** Reads the power-save state report of a PwrSaveMode indication.
 *  Reads the optional item 0x10 (two u32, little-endian on the wire, handed out in wire order) of a PwrSaveMode
 *  indication (0x0028).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param first Receives the first u32 of the report, the modem's power-save state value (required).
 *  @param second Receives the second u32 of the report, as the modem defines it (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, first, second), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(const uint8_t* msg, int len, uint32_t* first,
                                                              uint32_t* second);
/** @} */
/** @defgroup ctl_config_pwr_save_settings ConfigPwrSaveSettings (0x0029)
 *  @ingroup svc_ctl
 *  @brief Chooses which indications of a service the modem still sends in a power-save state.
 *  @{
 */
/** Builds a ConfigPwrSaveSettings request (0x0029).
 *  Writes the 6-byte control header and the mandatory item 0x01 (u32 power-save state, u8 service type): 14 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 14.
 *  @param powerSaveState Power-save state the setting applies to, as the modem numbers its states; sent
 *      little-endian.
 *  @param serviceType Service whose indications are configured, a ZOVQMI_SERVICE_* value.
 *  @return 14, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 14 (nothing written).
 */
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsReq(uint8_t* buf, int bufsize, uint32_t powerSaveState,
                                                 uint8_t serviceType);
/** Appends the set of indications permitted in that power-save state.
 *  Extends a ConfigPwrSaveSettings request built by zovQMICTLConfigPwrSaveSettingsReq(): appends item 0x11 (the
 *  caller's bytes: the permitted indication set), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Number of bytes of data; 0 appends an empty item.
 *  @param data The permitted indication set as the modem expects it (message ids), copied as it is; may be null
 *      when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(uint8_t* buf, int bufsize, uint16_t length,
                                                                          const uint8_t* data);
/** Parses a ConfigPwrSaveSettings response (0x0029).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLConfigPwrSaveSettingsResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup ctl_set_pwr_save_mode SetPwrSaveMode (0x002A)
 *  @ingroup svc_ctl
 *  @brief Puts the modem into a power-save state.
 *  @{
 */
/** Builds a SetPwrSaveMode request (0x002A).
 *  Writes the 6-byte control header and the mandatory item 0x01 (u32 power-save mode): 13 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 13.
 *  @param powerSaveMode Power-save state to enter, as the modem numbers its states; sent little-endian.
 *  @return 13, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 13 (nothing written).
 */
ZOVQMI_API int zovQMICTLSetPwrSaveModeReq(uint8_t* buf, int bufsize, uint32_t powerSaveMode);
/** Parses a SetPwrSaveMode response (0x002A).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (the
 *      header names another id), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLSetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup ctl_get_pwr_save_mode GetPwrSaveMode (0x002B)
 *  @ingroup svc_ctl
 *  @brief Reads the modem's current power-save state.
 *  @{
 */
/** Builds a GetPwrSaveMode request (0x002B).
 *  Writes the 6-byte control header of message 0x002B with an empty item area: 6 bytes.
 *  The transaction id byte is the low byte of the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 6.
 *  @return 6, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 6 (nothing written).
 */
ZOVQMI_API int zovQMICTLGetPwrSaveModeReq(uint8_t* buf, int bufsize);
/** Parses a GetPwrSaveMode response (0x002B).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u32 power-save mode).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param powerSaveMode Receives the current power-save state (u32, native order) (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, powerSaveMode),
 *      ZOVQMI_ERR_NO_MESSAGE (the header names another id), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (msg shorter than the
 *      control header, or a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMICTLGetPwrSaveModeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* powerSaveMode);
/** @} */

/* ---------------------------------------------------------------- WDS -- */
/** @defgroup svc_wds WDS: wireless data service (service 1)
 *  @brief Packet data calls, their statistics and indications, data profiles and runtime settings.
 *  Composite profile items (UMTS, GPRS and LTE QoS, TFT filters) cross the interface as byte pointers to the
 *  packed records WDSUMTSQoS, WDSGPRSQoS, WDSLTEQoS and WDSTFTFilter, IPv6 addresses as 16 bytes in network
 *  order, and the channel rate as a WDSChannelRate.  IPv4 addresses are u32 numbers (192.168.0.1 is
 *  0xC0A80001), little-endian on the wire.
 */

#pragma pack(push, 1)

/** The channel rates of GetCurrentChannelRate (item 0x01), 16 bytes, as on the wire.
 *  @ingroup svc_wds
 *  Multi-byte fields hold little-endian bytes on every host, as on the wire.
 */
typedef struct WDSChannelRate {
    uint32_t rates[4]; /**< Bits per second: current transmit, current receive, maximum transmit, maximum receive. */
} WDSChannelRate;

/** One profile of the GetProfileList response; 7 bytes on 32-bit hosts (11 on 64-bit ones).
 *  @ingroup svc_wds
 *  The caller sets name before the call; the parser fills the other fields and copies the name.
 */
typedef struct WDSProfileListEntry {
    uint8_t profileType;  /**< Profile type: 0 3GPP, 1 3GPP2. */
    uint8_t profileIndex; /**< Index of the profile. */
    uint8_t nameLength;   /**< Length of the profile name in bytes. */
    uint8_t* name;        /**< Caller's buffer of 255 bytes for the name (not NUL-terminated), or null to skip it. */
} WDSProfileListEntry;

/** UMTS quality of service of a profile (items 0x17 and 0x18), 33 bytes in wire layout.
 *  @ingroup svc_wds
 *  Multi-byte fields hold little-endian bytes on every host, as on the wire.
 *  A value of 0 asks for the subscribed value.
 */
typedef struct WDSUMTSQoS {
    uint8_t trafficClass;               /**< 0 subscribed, 1 conversational, 2 streaming, 3 interactive,
                                             4 background. */
    uint32_t maxUplinkBitrate;          /**< Maximum uplink bit rate, bits per second. */
    uint32_t maxDownlinkBitrate;        /**< Maximum downlink bit rate, bits per second. */
    uint32_t guaranteedUplinkBitrate;   /**< Guaranteed uplink bit rate, bits per second. */
    uint32_t guaranteedDownlinkBitrate; /**< Guaranteed downlink bit rate, bits per second. */
    uint8_t deliveryOrder;              /**< 0 subscribed, 1 in order, 2 without order. */
    uint32_t maxSDUSize;                /**< Largest service data unit, bytes. */
    uint8_t sduErrorRatio;              /**< SDU error ratio, coded as the modem defines it. */
    uint8_t residualBitErrorRatio;      /**< Residual bit error ratio, coded as the modem defines it. */
    uint8_t deliveryErroneousSDUs;      /**< 0 subscribed, 1 no detection, 2 delivered, 3 not delivered. */
    uint32_t transferDelay;             /**< Transfer delay, milliseconds. */
    uint32_t trafficHandlingPriority;   /**< Traffic handling priority, 1 (highest) to 3. */
} WDSUMTSQoS;

/** GPRS quality of service of a profile (items 0x19 and 0x1A), 20 bytes in wire layout.
 *  @ingroup svc_wds
 *  Multi-byte fields hold little-endian bytes on every host, as on the wire.
 *  Each field is a class number of the GPRS QoS profile; 0 asks for the subscribed class.
 */
typedef struct WDSGPRSQoS {
    uint32_t precedenceClass;     /**< Precedence class. */
    uint32_t delayClass;          /**< Delay class. */
    uint32_t reliabilityClass;    /**< Reliability class. */
    uint32_t peakThroughputClass; /**< Peak throughput class. */
    uint32_t meanThroughputClass; /**< Mean throughput class. */
} WDSGPRSQoS;

/** A traffic flow template filter of a profile (items 0x23 and 0x24), 39 bytes in wire layout.
 *  @ingroup svc_wds
 *  Multi-byte fields hold little-endian bytes on every host, as on the wire.
 */
typedef struct WDSTFTFilter {
    uint8_t leading[21];             /**< Filter id, evaluation precedence, IP version, 16-byte source address,
                                          mask and next protocol; copied as they are. */
    uint16_t destinationPortStart;   /**< First destination port. */
    uint16_t destinationPortRange;   /**< Number of destination ports from the first. */
    uint16_t sourcePortStart;        /**< First source port. */
    uint16_t sourcePortRange;        /**< Number of source ports from the first. */
    uint32_t securityParameterIndex; /**< IPsec security parameter index. */
    uint16_t typeOfServiceMask;      /**< Type of service (first byte) and its mask (second byte). */
    uint32_t flowLabel;              /**< IPv6 flow label. */
} WDSTFTFilter;

/** LTE quality of service of a profile (item 0x2E), 17 bytes in wire layout.
 *  @ingroup svc_wds
 *  Multi-byte fields hold little-endian bytes on every host, as on the wire.
 */
typedef struct WDSLTEQoS {
    uint8_t qci;                        /**< QoS class identifier. */
    uint32_t guaranteedUplinkBitrate;   /**< Guaranteed uplink bit rate, bits per second. */
    uint32_t guaranteedDownlinkBitrate; /**< Guaranteed downlink bit rate, bits per second. */
    uint32_t maxUplinkBitrate;          /**< Maximum uplink bit rate, bits per second. */
    uint32_t maxDownlinkBitrate;        /**< Maximum downlink bit rate, bits per second. */
} WDSLTEQoS;

/** One name of a runtime name list (P-CSCF names, domain names); 6 bytes on 32-bit hosts (10 on 64-bit ones).
 *  @ingroup svc_wds
 *  The caller sets name before the call; the parser fills length and copies the name.  length holds
 *  little-endian bytes on every host.
 */
typedef struct WDSNameListEntry {
    uint16_t length; /**< Length of the name in bytes. */
    uint8_t* name;   /**< Caller's buffer of length bytes for the name (not NUL-terminated), or null to skip it. */
} WDSNameListEntry;

#pragma pack(pop)

/** @defgroup wds_reset Reset (0x0000)
 *  @ingroup svc_wds
 *  @brief Resets the WDS state of this client.
 *  @{
 */
/** Builds a Reset request (0x0000).
 *  Writes the 7-byte service header of message 0x0000 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSResetReq(uint8_t* buf, int bufsize);
/** Parses a Reset response (0x0000).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @note Deliberate: the message walk takes a buffer of 7 bytes or less for message 0x0000 with an empty item area,
 *      so such a buffer gives ZOVQMI_ERR_NO_TLV rather than ZOVQMI_ERR_NO_MESSAGE.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0000 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_set_event_report SetEventReport and EventReport (0x0001)
 *  @ingroup svc_wds
 *  @brief Chooses what the modem reports in EventReport indications, and reads those indications.
 *  The indication shares the id 0x0001 of the request; its items are read one by one with the INDGet functions.
 *  @{
 */
/** Builds a SetEventReport request (0x0001).
 *  Writes the 7-byte service header of message 0x0001 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  Append the reports wanted with the zovQMIWDSSetEventReportReqAdd functions.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReq(uint8_t* buf, int bufsize);
/** Asks for channel rate reports.
 *  Extends a SetEventReport request built by zovQMIWDSSetEventReportReq(): appends item 0x10 (u8 report indicator:
 *  0 do not report, 1 report), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param report 0 do not report, 1 report the current channel rate (item 0x16 of the indication).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentChannelRateIndicator(uint8_t* buf, int bufsize, uint8_t report);
/** Asks for periodic transfer statistics.
 *  Extends a SetEventReport request built by zovQMIWDSSetEventReportReq(): appends item 0x11 (u8 period, u32 mask),
 *  8 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param period Seconds between two statistics reports; 0 stops them.
 *  @param mask Statistics wanted, bits: 0x01 Tx packets OK, 0x02 Rx packets OK, 0x04 Tx errors, 0x08 Rx errors,
 *      0x10 Tx overflows, 0x20 Rx overflows, 0x40 Tx bytes OK, 0x80 Rx bytes OK; sent little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReqAddTransferStatisticsIndicator(uint8_t* buf, int bufsize, uint8_t period,
                                                                        uint32_t mask);
/** Asks for data bearer technology reports in their older form.
 *  Extends a SetEventReport request built by zovQMIWDSSetEventReportReq(): appends item 0x12 (u8 report indicator:
 *  0 do not report, 1 report), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param report 0 do not report, 1 report the data bearer technology (item 0x17 of the indication).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicatorDeprecated(uint8_t* buf, int bufsize,
                                                                                           uint8_t report);
/** Asks for dormancy status reports.
 *  Extends a SetEventReport request built by zovQMIWDSSetEventReportReq(): appends item 0x13 (u8 report indicator:
 *  0 do not report, 1 report), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param report 0 do not report, 1 report the dormancy status (item 0x18 of the indication).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReqAddDormancyStatusIndicator(uint8_t* buf, int bufsize, uint8_t report);
/** Asks for current data bearer technology reports.
 *  Extends a SetEventReport request built by zovQMIWDSSetEventReportReq(): appends item 0x15 (u8 report indicator:
 *  0 do not report, 1 report), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param report 0 do not report, 1 report the current data bearer technology (item 0x1D of the indication).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSSetEventReportReqAddCurrentDataBearerTechnologyIndicator(uint8_t* buf, int bufsize,
                                                                                 uint8_t report);
/** Parses a SetEventReport response (0x0001).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0001 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/** Parses an EventReport indication (0x0001).
 *  Confirms the message id; the optional items are read with the INDGet functions.
 *  The items present are not examined here.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg), ZOVQMI_ERR_NO_MESSAGE (no message 0x0001
 *      in msg).
 */
ZOVQMI_API int zovQMIWDSEventReportIND(const uint8_t* msg, int len);
/** Reads the count of packets sent without error.
 *  Reads the optional item 0x10 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of packets sent without error (u32, native order) (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of packets received without error.
 *  Reads the optional item 0x11 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of packets received without error (u32, native order) (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x11), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of outgoing packets with errors.
 *  Reads the optional item 0x12 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of outgoing packets with errors (u32, native order) (required).
 *  @return The value length of item 0x12; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x12), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of incoming packets with errors.
 *  Reads the optional item 0x13 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of incoming packets with errors (u32, native order) (required).
 *  @return The value length of item 0x13; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x13), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of transmit overflows.
 *  Reads the optional item 0x14 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of outgoing packets dropped for overflow (u32, native order) (required).
 *  @return The value length of item 0x14; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x14), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetTxOverflows(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of receive overflows.
 *  Reads the optional item 0x15 (u32) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of incoming packets dropped for overflow (u32, native order) (required).
 *  @return The value length of item 0x15; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x15), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetRxOverflows(const uint8_t* msg, int len, uint32_t* count);
/** Reads the current channel rate.
 *  Reads the optional item 0x16 (two u32 in wire order) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param first Receives the first u32, the current transmit rate in bits per second (required).
 *  @param second Receives the second u32, the current receive rate in bits per second (required).
 *  @return The value length of item 0x16; ZOVQMI_ERR_ARG (null msg, first, second), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x16), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetChannelRate(const uint8_t* msg, int len, uint32_t* first, uint32_t* second);
/** Reads the data bearer technology in its older form.
 *  Reads the optional item 0x17 (u8) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param technology Receives the data bearer technology byte as the modem numbers it (older form) (required).
 *  @return The value length of item 0x17; ZOVQMI_ERR_ARG (null msg, technology), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x17), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetDataBearerTechnology(const uint8_t* msg, int len, uint8_t* technology);
/** Reads the dormancy status.
 *  Reads the optional item 0x18 (u8) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param status Receives the dormancy status: 1 traffic channel dormant, 2 traffic channel active (required).
 *  @return The value length of item 0x18; ZOVQMI_ERR_ARG (null msg, status), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x18), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetDormancyStatus(const uint8_t* msg, int len, uint8_t* status);
/** Reads the count of bytes sent without error.
 *  Reads the optional item 0x19 (u64, low 32 bits first) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of bytes sent without error (u64, native order) (required).
 *  @return The value length of item 0x19; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x19), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count);
/** Reads the count of bytes received without error.
 *  Reads the optional item 0x1A (u64, low 32 bits first) of a EventReport indication (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of bytes received without error (u64, native order) (required).
 *  @return The value length of item 0x1A; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x1A), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count);
/** Reads the current data bearer technology.
 *  Reads the optional item 0x1D (the 9-byte data bearer record: u8, then two u32) of a EventReport indication
 *  (0x0001).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param technology Receives the current network: 0 unknown, 1 3GPP2, 2 3GPP (required).
 *  @param first Receives the first u32, the radio access technology mask as the modem defines it (required).
 *  @param second Receives the second u32, the service option mask as the modem defines it (required).
 *  @return The value length of item 0x1D; ZOVQMI_ERR_ARG (null msg, technology, first, second),
 *      ZOVQMI_ERR_NO_MESSAGE (no message 0x0001 in msg), ZOVQMI_ERR_NO_TLV (no item 0x1D), ZOVQMI_ERR_MALFORMED (a
 *      field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSEventReportINDGetCurrentDataBearerTechnology(const uint8_t* msg, int len,
                                                                     uint8_t* technology, uint32_t* first,
                                                                     uint32_t* second);
/** @} */
/** @defgroup wds_abort Abort (0x0002)
 *  @ingroup svc_wds
 *  @brief Aborts a request still in progress.
 *  @{
 */
/** Builds a Abort request (0x0002).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u16 transaction id): 12 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 12.
 *  @param value Transaction id of the request to abort; sent little-endian.
 *  @return 12, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 12 (nothing written).
 */
ZOVQMI_API int zovQMIWDSAbortReq(uint8_t* buf, int bufsize, uint16_t value);
/** Parses a Abort response (0x0002).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0002 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSAbortResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_start_network_interface StartNetworkInterface (0x0020)
 *  @ingroup svc_wds
 *  @brief Starts a packet data call and returns its handle; on failure the response tells why.
 *  Item 0x33 has no builder.
 *  @{
 */
/** Builds a StartNetworkInterface request (0x0020).
 *  Writes the 7-byte service header of message 0x0020 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  Every setting is optional and appended with the zovQMIWDSStartNetworkInterfaceReqAdd functions.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReq(uint8_t* buf, int bufsize);
/** Appends the preferred primary DNS server.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x10 (u32
 *  IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address Preferred primary DNS server, IPv4 as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPrimaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                               uint32_t address);
/** Appends the preferred secondary DNS server.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x11 (u32
 *  IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address Preferred secondary DNS server, IPv4 as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddSecondaryDNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                 uint32_t address);
/** Appends the preferred primary NetBIOS name server.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x12 (u32
 *  IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address Preferred primary NetBIOS name server, IPv4 as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPrimaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                uint32_t address);
/** Appends the preferred secondary NetBIOS name server.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x13 (u32
 *  IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address Preferred secondary NetBIOS name server, IPv4 as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddSecondaryNBNSAddressPreference(uint8_t* buf, int bufsize,
                                                                                  uint32_t address);
/** Appends the access point name.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x14 (the
 *  access point name), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the access point name in bytes; 0 appends an empty item.
 *  @param data The access point name, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(uint8_t* buf, int bufsize, uint16_t length,
                                                                  const uint8_t* data);
/** Appends the preferred IPv4 address.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x15 (u32
 *  IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address Preferred IPv4 address of the call as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddIPAddressPreference(uint8_t* buf, int bufsize, uint32_t address);
/** Appends the authentication protocols allowed.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x16 (u8 bit
 *  mask), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param preference Authentication protocols allowed, bits: 0x01 PAP, 0x02 CHAP (0x03 either, 0 none).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(uint8_t* buf, int bufsize,
                                                                            uint8_t preference);
/** Appends the user name for authentication.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x17 (the
 *  user name), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the user name in bytes; 0 appends an empty item.
 *  @param data The user name, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddUsername(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data);
/** Appends the password for authentication.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x18 (the
 *  password), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the password in bytes; 0 appends an empty item.
 *  @param data The password, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddPassword(uint8_t* buf, int bufsize, uint16_t length,
                                                            const uint8_t* data);
/** Appends the IP family of the call.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x19 (u8), 4
 *  bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param family IP family of the call: 4 IPv4, 6 IPv6, 8 unspecified.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(uint8_t* buf, int bufsize, uint8_t family);
/** Appends the technologies allowed.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x30 (u8 bit
 *  mask), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param preference Technologies allowed, bits: 0x01 3GPP, 0x02 3GPP2.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddTechnologyPreference(uint8_t* buf, int bufsize,
                                                                        uint8_t preference);
/** Appends the 3GPP profile to use.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x31 (u8
 *  profile index), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param profileIndex Index of the 3GPP profile to start the call with.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                   uint8_t profileIndex);
/** Appends the 3GPP2 profile to use.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x32 (u8
 *  profile index), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param profileIndex Index of the 3GPP2 profile to start the call with.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAdd3GPP2ConfiguredProfileIdentifier(uint8_t* buf, int bufsize,
                                                                                    uint8_t profileIndex);
/** Appends the extended technology preference.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x34 (u16), 5
 *  bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param preference Extended technology preference as the modem numbers it; sent little-endian (0x8001 appends 34
 *      02 00 01 80).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                uint16_t preference);
/** Appends the call type.
 *  Extends a StartNetworkInterface request built by zovQMIWDSStartNetworkInterfaceReq(): appends item 0x35 (u8), 4
 *  bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param callType Call type: 0 laptop (tethered) call, 1 embedded call.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceReqAddCallTypeIdentifier(uint8_t* buf, int bufsize, uint8_t callType);
/** Parses a StartNetworkInterface response (0x0020).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u32 packet data handle).
 *  When result->result says failure, fetch the call end reason items.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param handle Receives the packet data handle (u32, native order) that StopNetworkInterface takes (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, handle), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x0020 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01;
 *      result already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* handle);
/** Reads why the call could not be started.
 *  Reads the optional item 0x10 (u16) of a StartNetworkInterface response (0x0020).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param reason Receives the call end reason code as the modem numbers it (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, reason), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0020 in msg), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason);
/** Reads the detailed reason why the call could not be started.
 *  Reads the optional item 0x11 (u16 reason type, u16 reason) of a StartNetworkInterface response (0x0020).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param type Receives the reason type: 1 mobile IP, 2 internal, 3 call manager, 6 3GPP, 7 PPP, 8 EHRPD, 9 IPv6
 *      (required).
 *  @param reason Receives the reason code within that type (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, type, reason), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0020 in msg), ZOVQMI_ERR_NO_TLV (no item 0x11), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(const uint8_t* msg, int len, uint16_t* type,
                                                                         uint16_t* reason);
/** @} */
/** @defgroup wds_stop_network_interface StopNetworkInterface (0x0021)
 *  @ingroup svc_wds
 *  @brief Ends a packet data call.
 *  @{
 */
/** Builds a StopNetworkInterface request (0x0021).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u32 packet data handle): 14 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 14.
 *  @param handle The packet data handle zovQMIWDSStartNetworkInterfaceResp() returned; sent little-endian.
 *  @return 14, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 14 (nothing written).
 */
ZOVQMI_API int zovQMIWDSStopNetworkInterfaceReq(uint8_t* buf, int bufsize, uint32_t handle);
/** Parses a StopNetworkInterface response (0x0021).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0021 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSStopNetworkInterfaceResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_get_pkt_srvc_status GetPktSrvcStatus and PktSrvcStatus (0x0022)
 *  @ingroup svc_wds
 *  @brief Reads the state of the packet data connection, and the indication that announces its changes.
 *  The indication shares the id 0x0022 of the request.
 *  @{
 */
/** Builds a GetPktSrvcStatus request (0x0022).
 *  Writes the 7-byte service header of message 0x0022 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktSrvcStatusReq(uint8_t* buf, int bufsize);
/** Parses a GetPktSrvcStatus response (0x0022).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u8 connection status).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param status Receives the connection status: 1 disconnected, 2 connected, 3 suspended, 4 authenticating
 *      (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, status), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x0022 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01;
 *      result already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktSrvcStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
/** Parses a PktSrvcStatus indication (0x0022).
 *  Decodes the mandatory item 0x01 (two bytes in wire order); an indication carries no result item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param status Receives the first byte, the connection status: 1 disconnected, 2 connected, 3 suspended, 4
 *      authenticating (required).
 *  @param second Receives the second byte, the reconfiguration flag: 1 when the interface must be configured again
 *      (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, status, second), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x0022 in msg), ZOVQMI_ERR_NO_TLV (no item 0x01), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSPktSrvcStatusIND(const uint8_t* msg, int len, uint8_t* status, uint8_t* second);
/** Reads why the call ended.
 *  Reads the optional item 0x10 (u16) of a PktSrvcStatus indication (0x0022).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param reason Receives the call end reason code as the modem numbers it (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, reason), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0022 in msg), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetCallEndReason(const uint8_t* msg, int len, uint16_t* reason);
/** Reads the detailed reason why the call ended.
 *  Reads the optional item 0x11 (u16 reason type, u16 reason) of a PktSrvcStatus indication (0x0022).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param type Receives the reason type: 1 mobile IP, 2 internal, 3 call manager, 6 3GPP, 7 PPP, 8 EHRPD, 9 IPv6
 *      (required).
 *  @param reason Receives the reason code within that type (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, type, reason), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0022 in msg), ZOVQMI_ERR_NO_TLV (no item 0x11), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetVerboseCallEndReason(const uint8_t* msg, int len, uint16_t* type,
                                                                uint16_t* reason);
/** Reads the IP family the status applies to.
 *  Reads the optional item 0x12 (u8) of a PktSrvcStatus indication (0x0022).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param family Receives the IP family of the call: 4 IPv4, 6 IPv6 (required).
 *  @return The value length of item 0x12; ZOVQMI_ERR_ARG (null msg, family), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0022 in msg), ZOVQMI_ERR_NO_TLV (no item 0x12), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSPktSrvcStatusINDGetIPFamily(const uint8_t* msg, int len, uint8_t* family);
/** @} */
/** @defgroup wds_get_current_channel_rate GetCurrentChannelRate (0x0023)
 *  @ingroup svc_wds
 *  @brief Reads the current and maximum channel rates.
 *  @{
 */
/** Builds a GetCurrentChannelRate request (0x0023).
 *  Writes the 7-byte service header of message 0x0023 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCurrentChannelRateReq(uint8_t* buf, int bufsize);
/** Parses a GetCurrentChannelRate response (0x0023).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (the 16-byte channel rate record).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param rates A WDSChannelRate (16 bytes) that receives the four u32 as on the wire, little-endian: current
 *      transmit, current receive, maximum transmit and maximum receive rate in bits per second (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, rates), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0023 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result
 *      already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCurrentChannelRateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* rates);
/** @} */
/** @defgroup wds_get_pkt_statistics GetPktStatistics (0x0024)
 *  @ingroup svc_wds
 *  @brief Reads the packet and byte counters of the data call.
 *  @{
 */
/** Builds a GetPktStatistics request (0x0024).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u32 statistics mask): 14 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 14.
 *  @param mask Counters wanted, bits: 0x01 Tx packets OK, 0x02 Rx packets OK, 0x04 Tx errors, 0x08 Rx errors, 0x10
 *      Tx overflows, 0x20 Rx overflows, 0x40 Tx bytes OK, 0x80 Rx bytes OK; sent little-endian.
 *  @return 14, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 14 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsReq(uint8_t* buf, int bufsize, uint32_t mask);
/** Parses a GetPktStatistics response (0x0024).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  The counters are read with the zovQMIWDSGetPktStatisticsRespGet functions.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0024 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the count of packets sent without error.
 *  Reads the optional item 0x10 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of packets sent without error (u32, native order) (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of packets received without error.
 *  Reads the optional item 0x11 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of packets received without error (u32, native order) (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x11), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxPacketsOK(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of outgoing packets with errors.
 *  Reads the optional item 0x12 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of outgoing packets with errors (u32, native order) (required).
 *  @return The value length of item 0x12; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x12), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of incoming packets with errors.
 *  Reads the optional item 0x13 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of incoming packets with errors (u32, native order) (required).
 *  @return The value length of item 0x13; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x13), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxPacketsErrors(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of transmit overflows.
 *  Reads the optional item 0x14 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of outgoing packets dropped for overflow (u32, native order) (required).
 *  @return The value length of item 0x14; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x14), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxOverflows(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of receive overflows.
 *  Reads the optional item 0x15 (u32) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of incoming packets dropped for overflow (u32, native order) (required).
 *  @return The value length of item 0x15; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x15), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxOverflows(const uint8_t* msg, int len, uint32_t* count);
/** Reads the count of bytes sent without error.
 *  Reads the optional item 0x19 (u64, low 32 bits first) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of bytes sent without error (u64, native order) (required).
 *  @return The value length of item 0x19; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x19), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetTxBytesOK(const uint8_t* msg, int len, uint64_t* count);
/** Reads the count of bytes received without error.
 *  Reads the optional item 0x1A (u64, low 32 bits first) of a GetPktStatistics response (0x0024).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of bytes received without error (u64, native order) (required).
 *  @return The value length of item 0x1A; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0024 in msg), ZOVQMI_ERR_NO_TLV (no item 0x1A), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetPktStatisticsRespGetRxBytesOK(const uint8_t* msg, int len, uint64_t* count);
/** @} */
/** @defgroup wds_go_dormant GoDormant (0x0025)
 *  @ingroup svc_wds
 *  @brief Asks the modem to release the traffic channel of the call.
 *  @{
 */
/** Builds a GoDormant request (0x0025).
 *  Writes the 7-byte service header of message 0x0025 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGoDormantReq(uint8_t* buf, int bufsize);
/** Parses a GoDormant response (0x0025).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0025 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGoDormantResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_go_active GoActive (0x0026)
 *  @ingroup svc_wds
 *  @brief Asks the modem to bring the traffic channel of a dormant call back.
 *  @{
 */
/** Builds a GoActive request (0x0026).
 *  Writes the 7-byte service header of message 0x0026 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGoActiveReq(uint8_t* buf, int bufsize);
/** Parses a GoActive response (0x0026).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0026 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGoActiveResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_create_profile CreateProfile (0x0027)
 *  @ingroup svc_wds
 *  @brief Creates a data profile; its settings are profile items appended to the request.
 *  @{
 */
/** Builds a CreateProfile request (0x0027).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 profile type): 11 bytes.
 *  Takes the next transaction id.
 *  Append the settings with the zovQMIWDSProfileReqAdd functions.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 11.
 *  @param profileType Profile type: 0 3GPP, 1 3GPP2.
 *  @return 11, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 11 (nothing written).
 */
ZOVQMI_API int zovQMIWDSCreateProfileReq(uint8_t* buf, int bufsize, uint8_t profileType);
/** Parses a CreateProfile response (0x0027).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (profile type u8, profile index u8).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param profileType Receives the type of the new profile: 0 3GPP, 1 3GPP2 (required).
 *  @param profileIndex Receives the index of the new profile (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, profileType, profileIndex),
 *      ZOVQMI_ERR_NO_MESSAGE (no message 0x0027 in msg), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (a field read lies
 *      beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSCreateProfileResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* profileType,
                                          uint8_t* profileIndex);
/** @} */
/** @defgroup wds_modify_profile_settings ModifyProfileSettings (0x0028)
 *  @ingroup svc_wds
 *  @brief Changes settings of a data profile; the new settings are profile items.
 *  @{
 */
/** Builds a ModifyProfileSettings request (0x0028).
 *  Writes the 7-byte service header and the mandatory item 0x01 (profile type u8, profile index u8): 12 bytes.
 *  Takes the next transaction id.
 *  Append the settings to change with the zovQMIWDSProfileReqAdd functions.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 12.
 *  @param profileType Profile type: 0 3GPP, 1 3GPP2.
 *  @param profileIndex Index of the profile (1 for the first).
 *  @return 12, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 12 (nothing written).
 */
ZOVQMI_API int zovQMIWDSModifyProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType,
                                                 uint8_t profileIndex);
/** Parses a ModifyProfileSettings response (0x0028).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0028 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSModifyProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_delete_profile DeleteProfile (0x0029)
 *  @ingroup svc_wds
 *  @brief Deletes a data profile.
 *  @{
 */
/** Builds a DeleteProfile request (0x0029).
 *  Writes the 7-byte service header and the mandatory item 0x01 (profile type u8, profile index u8): 12 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 12.
 *  @param profileType Profile type: 0 3GPP, 1 3GPP2.
 *  @param profileIndex Index of the profile (1 for the first).
 *  @return 12, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 12 (nothing written).
 */
ZOVQMI_API int zovQMIWDSDeleteProfileReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex);
/** Parses a DeleteProfile response (0x0029).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x0029 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSDeleteProfileResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_get_profile_list GetProfileList (0x002A)
 *  @ingroup svc_wds
 *  @brief Lists the data profiles: type, index and name of each.
 *  @{
 */
/** Builds a GetProfileList request (0x002A).
 *  Writes the 7-byte service header of message 0x002A with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetProfileListReq(uint8_t* buf, int bufsize);
/** Parses a GetProfileList response (0x002A).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (count u8, then per profile its type
 *  u8, index u8, name length u8 and name).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param count Receives the number of profiles (required).
 *  @param list Array of at least *count WDSProfileListEntry records (up to 255); each record's name pointer, set
 *      beforehand, receives the name when it is not null.  May be null: then only the count is stored.
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, count), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002A in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result
 *      already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetProfileListResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                           WDSProfileListEntry* list);
/** @} */
/** @defgroup wds_get_profile_settings GetProfileSettings (0x002B)
 *  @ingroup svc_wds
 *  @brief Reads the settings of a data profile; they are read with the profile item parsers.
 *  @{
 */
/** Builds a GetProfileSettings request (0x002B).
 *  Writes the 7-byte service header and the mandatory item 0x01 (profile type u8, profile index u8): 12 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 12.
 *  @param profileType Profile type: 0 3GPP, 1 3GPP2.
 *  @param profileIndex Index of the profile (1 for the first).
 *  @return 12, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 12 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetProfileSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType, uint8_t profileIndex);
/** Parses a GetProfileSettings response (0x002B).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  The settings are read with the zovQMIWDSProfileRespGet functions given message id 0x002B.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002B in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetProfileSettingsResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_get_default_settings GetDefaultSettings (0x002C)
 *  @ingroup svc_wds
 *  @brief Reads the default settings of a profile type; they are read with the profile item parsers.
 *  @{
 */
/** Builds a GetDefaultSettings request (0x002C).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 profile type): 11 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 11.
 *  @param profileType Profile type: 0 3GPP, 1 3GPP2.
 *  @return 11, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 11 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDefaultSettingsReq(uint8_t* buf, int bufsize, uint8_t profileType);
/** Parses a GetDefaultSettings response (0x002C).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  The settings are read with the zovQMIWDSProfileRespGet functions given message id 0x002C.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002C in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDefaultSettingsResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_profile_items Profile items
 *  @ingroup svc_wds
 *  @brief One builder and one parser per profile setting, shared by the profile messages.
 *  The builders append to a CreateProfile or ModifyProfileSettings request.  The parsers take the id of the
 *  response they read: GetProfileSettings (0x002B), GetDefaultSettings (0x002C) and, for item types 0x10 to 0x1E,
 *  GetRuntimeSettings (0x002D); any other id gives ZOVQMI_ERR_ARG before the buffer is looked at.
 *  @note Deliberate: the parsers of item types 0x1F and above refuse id 0x002D with ZOVQMI_ERR_ARG, because in a
 *  GetRuntimeSettings response those types carry other items (see the zovQMIWDSGetRuntimeSettingsRespGet
 *  functions).
 *  @{
 */
/** Appends the profile name to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x10 (profile name), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the profile name in bytes; 0 appends an empty item.
 *  @param data The profile name, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddProfileName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
/** Reads the profile name of a profile.
 *  Reads item 0x10 (profile name) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param length Receives the length of the profile name (required).
 *  @param data Buffer of at least *length bytes (up to the item's length) that receives the profile name, not
 *      NUL-terminated; may be null.
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, length, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x10),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetProfileName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                                  uint8_t* data);
/** Appends the PDP type to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x11 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 0 IPv4, 1 PPP, 2 IPv6, 3 IPv4 and IPv6.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPType(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the PDP type of a profile.
 *  Reads item 0x11 (u8) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives PDP type: 0 IPv4, 1 PPP, 2 IPv6, 3 IPv4 and IPv6 (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x11),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPType(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value);
/** Appends the PDP header compression to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x12 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 0 off, 1 manufacturer preferred, 2 RFC 1144, 3 RFC 2507, 4 RFC 3095.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPHeaderCompression(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the PDP header compression of a profile.
 *  Reads item 0x12 (u8) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives PDP header compression: 0 off, 1 manufacturer preferred, 2 RFC 1144, 3 RFC 2507, 4 RFC
 *      3095 (required).
 *  @return The value length of item 0x12; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x12),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPHeaderCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value);
/** Appends the PDP data compression to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x13 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 0 off, 1 manufacturer preferred, 2 V.42bis, 3 V.44.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPDataCompression(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the PDP data compression of a profile.
 *  Reads item 0x13 (u8) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives PDP data compression: 0 off, 1 manufacturer preferred, 2 V.42bis, 3 V.44 (required).
 *  @return The value length of item 0x13; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x13),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPDataCompression(const uint8_t* msg, int len, uint16_t messageId,
                                                         uint8_t* value);
/** Appends the access point name to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x14 (access point name), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the access point name in bytes; 0 appends an empty item.
 *  @param data The access point name, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddAPNName(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
/** Reads the access point name of a profile.
 *  Reads item 0x14 (access point name) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param length Receives the length of the access point name (required).
 *  @param data Buffer of at least *length bytes (up to the item's length) that receives the access point name, not
 *      NUL-terminated; may be null.
 *  @return The value length of item 0x14; ZOVQMI_ERR_ARG (null msg, length, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x14),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetAPNName(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                              uint8_t* data);
/** Appends the preferred primary DNS server (IPv4) to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x15 (u32 IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value The preferred primary DNS server (IPv4) as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPrimaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
/** Reads the preferred primary DNS server (IPv4) of a profile.
 *  Reads item 0x15 (u32 IPv4 address) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives the preferred primary DNS server (IPv4) as a u32 number, native order (required).
 *  @return The value length of item 0x15; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x15),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                      uint16_t messageId, uint32_t* value);
/** Appends the preferred secondary DNS server (IPv4) to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x16 (u32 IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value The preferred secondary DNS server (IPv4) as a u32 number (192.168.0.1 is 0xC0A80001); sent
 *      little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddSecondaryDNSIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
/** Reads the preferred secondary DNS server (IPv4) of a profile.
 *  Reads item 0x16 (u32 IPv4 address) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives the preferred secondary DNS server (IPv4) as a u32 number, native order (required).
 *  @return The value length of item 0x16; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x16),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(const uint8_t* msg, int len,
                                                                        uint16_t messageId, uint32_t* value);
/** Appends the UMTS quality of service requested to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x17 (WDSUMTSQoS, 33 bytes), 36 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSUMTSQoS (33 bytes, wire layout, multi-byte fields little-endian) holding the UMTS quality of
 *      service requested, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddUMTSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the UMTS quality of service requested of a profile.
 *  Reads item 0x17 (WDSUMTSQoS, 33 bytes) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings
 *  response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param record A WDSUMTSQoS (33 bytes) that receives the UMTS quality of service requested in wire layout
 *      (required).
 *  @return The value length of item 0x17; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x17),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetUMTSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record);
/** Appends the minimum acceptable UMTS quality of service to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x18 (WDSUMTSQoS, 33 bytes), 36 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSUMTSQoS (33 bytes, wire layout, multi-byte fields little-endian) holding the minimum
 *      acceptable UMTS quality of service, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddUMTSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the minimum acceptable UMTS quality of service of a profile.
 *  Reads item 0x18 (WDSUMTSQoS, 33 bytes) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings
 *  response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param record A WDSUMTSQoS (33 bytes) that receives the minimum acceptable UMTS quality of service in wire
 *      layout (required).
 *  @return The value length of item 0x18; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x18),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetUMTSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                     uint8_t* record);
/** Appends the GPRS quality of service requested to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x19 (WDSGPRSQoS, 20 bytes), 23 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSGPRSQoS (20 bytes, wire layout, multi-byte fields little-endian) holding the GPRS quality of
 *      service requested, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddGPRSRequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the GPRS quality of service requested of a profile.
 *  Reads item 0x19 (WDSGPRSQoS, 20 bytes) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings
 *  response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param record A WDSGPRSQoS (20 bytes) that receives the GPRS quality of service requested in wire layout
 *      (required).
 *  @return The value length of item 0x19; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x19),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetGPRSRequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* record);
/** Appends the minimum acceptable GPRS quality of service to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1A (WDSGPRSQoS, 20 bytes), 23 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSGPRSQoS (20 bytes, wire layout, multi-byte fields little-endian) holding the minimum
 *      acceptable GPRS quality of service, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddGPRSMinimumQoS(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the minimum acceptable GPRS quality of service of a profile.
 *  Reads item 0x1A (WDSGPRSQoS, 20 bytes) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings
 *  response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param record A WDSGPRSQoS (20 bytes) that receives the minimum acceptable GPRS quality of service in wire
 *      layout (required).
 *  @return The value length of item 0x1A; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1A),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetGPRSMinimumQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                     uint8_t* record);
/** Appends the user name to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1B (user name), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the user name in bytes; 0 appends an empty item.
 *  @param data The user name, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddUsername(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
/** Reads the user name of a profile.
 *  Reads item 0x1B (user name) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param length Receives the length of the user name (required).
 *  @param data Buffer of at least *length bytes (up to the item's length) that receives the user name, not
 *      NUL-terminated; may be null.
 *  @return The value length of item 0x1B; ZOVQMI_ERR_ARG (null msg, length, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1B),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetUsername(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data);
/** Appends the password to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1C (password), 3 + length bytes.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param length Length of the password in bytes; 0 appends an empty item.
 *  @param data The password, not NUL-terminated, copied as it is; may be null when length is 0.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf, or non-zero length with null data),
 *      ZOVQMI_ERR_NO_ROOM (the item does not fit bufsize; request unchanged), ZOVQMI_ERR_MALFORMED (length above
 *      1024).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPassword(uint8_t* buf, int bufsize, uint16_t length, const uint8_t* data);
/** Reads the password of a profile.
 *  Reads item 0x1C (password) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param length Receives the length of the password (required).
 *  @param data Buffer of at least *length bytes (up to the item's length) that receives the password, not
 *      NUL-terminated; may be null.
 *  @return The value length of item 0x1C; ZOVQMI_ERR_ARG (null msg, length, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1C),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPassword(const uint8_t* msg, int len, uint16_t messageId, uint16_t* length,
                                               uint8_t* data);
/** Appends the authentication protocols allowed to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1D (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value bits 0x01 PAP, 0x02 CHAP (0x03 either, 0 none).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddAuthenticationPreference(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the authentication protocols allowed of a profile.
 *  Reads item 0x1D (u8) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives authentication protocols allowed: bits 0x01 PAP, 0x02 CHAP (0x03 either, 0 none)
 *      (required).
 *  @return The value length of item 0x1D; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1D),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetAuthenticationPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value);
/** Appends the preferred IPv4 address to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1E (u32 IPv4 address), 7 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value The preferred IPv4 address as a u32 number (192.168.0.1 is 0xC0A80001); sent little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddIPv4AddressPreference(uint8_t* buf, int bufsize, uint32_t value);
/** Reads the preferred IPv4 address of a profile.
 *  Reads item 0x1E (u32 IPv4 address) of a GetProfileSettings, GetDefaultSettings or GetRuntimeSettings response.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B, 0x002C or 0x002D.
 *  @param value Receives the preferred IPv4 address as a u32 number, native order (required).
 *  @return The value length of item 0x1E; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B, 0x002C or
 *      0x002D), ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1E),
 *      ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetIPv4AddressPreference(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint32_t* value);
/** Appends the P-CSCF by PCO flag to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x1F (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 1 to ask for the P-CSCF address with protocol configuration options, 0 not.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPCSCFAddressUsingPCOFlag(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the P-CSCF by PCO flag of a profile.
 *  Reads item 0x1F (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives P-CSCF by PCO flag: 1 to ask for the P-CSCF address with protocol configuration options, 0
 *      not (required).
 *  @return The value length of item 0x1F; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x1F), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                               uint8_t* value);
/** Appends the PDP access control to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x20 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 0 no access control, 1 reject, 2 permission.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPAccessControlFlag(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the PDP access control of a profile.
 *  Reads item 0x20 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives PDP access control: 0 no access control, 1 reject, 2 permission (required).
 *  @return The value length of item 0x20; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x20), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPAccessControlFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                           uint8_t* value);
/** Appends the P-CSCF by DHCP flag to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x21 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 1 to ask for the P-CSCF address with DHCP, 0 not.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPCSCFAddressUsingDHCPFlag(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the P-CSCF by DHCP flag of a profile.
 *  Reads item 0x21 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives P-CSCF by DHCP flag: 1 to ask for the P-CSCF address with DHCP, 0 not (required).
 *  @return The value length of item 0x21; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x21), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPCSCFAddressUsingDHCPFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                                uint8_t* value);
/** Appends the IM CN flag to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x22 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 1 to ask for a context for IM CN subsystem signalling, 0 not.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddIMCNFlag(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the IM CN flag of a profile.
 *  Reads item 0x22 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives IM CN flag: 1 to ask for a context for IM CN subsystem signalling, 0 not (required).
 *  @return The value length of item 0x22; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x22), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetIMCNFlag(const uint8_t* msg, int len, uint16_t messageId, uint8_t* value);
/** Appends the first traffic flow template filter to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x23 (WDSTFTFilter, 39 bytes), 42 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSTFTFilter (39 bytes, wire layout, multi-byte fields little-endian) holding the first traffic
 *      flow template filter, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddTFTFilterID1(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the first traffic flow template filter of a profile.
 *  Reads item 0x23 (WDSTFTFilter, 39 bytes) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param record A WDSTFTFilter (39 bytes) that receives the first traffic flow template filter in wire layout
 *      (required).
 *  @return The value length of item 0x23; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x23), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetTFTFilterID1(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record);
/** Appends the second traffic flow template filter to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x24 (WDSTFTFilter, 39 bytes), 42 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSTFTFilter (39 bytes, wire layout, multi-byte fields little-endian) holding the second traffic
 *      flow template filter, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddTFTFilterID2(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the second traffic flow template filter of a profile.
 *  Reads item 0x24 (WDSTFTFilter, 39 bytes) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param record A WDSTFTFilter (39 bytes) that receives the second traffic flow template filter in wire layout
 *      (required).
 *  @return The value length of item 0x24; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x24), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetTFTFilterID2(const uint8_t* msg, int len, uint16_t messageId, uint8_t* record);
/** Appends the PDP context number to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x25 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value the PDP context number.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextNumber(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the PDP context number of a profile.
 *  Reads item 0x25 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives PDP context number: the PDP context number (required).
 *  @return The value length of item 0x25; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x25), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextNumber(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value);
/** Appends the secondary context flag to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x26 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 1 for a secondary context, 0 for a primary one.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextSecondaryFlag(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the secondary context flag of a profile.
 *  Reads item 0x26 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives secondary context flag: 1 for a secondary context, 0 for a primary one (required).
 *  @return The value length of item 0x26; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x26), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextSecondaryFlag(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* value);
/** Appends the primary context id to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x27 (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value the context number of the primary context.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextPrimaryID(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the primary context id of a profile.
 *  Reads item 0x27 (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives primary context id: the context number of the primary context (required).
 *  @return The value length of item 0x27; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x27), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextPrimaryID(const uint8_t* msg, int len, uint16_t messageId,
                                                          uint8_t* value);
/** Appends the IPv6 address of the context to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x28 (16-byte IPv6 address), 19 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address The IPv6 address of the context: 16 bytes in network order, copied as they are (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPDPContextIPv6Address(uint8_t* buf, int bufsize, const uint8_t* address);
/** Reads the IPv6 address of the context of a profile.
 *  Reads item 0x28 (16-byte IPv6 address) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param address A 16-byte buffer that receives the IPv6 address of the context in network order (required).
 *  @return The value length of item 0x28; ZOVQMI_ERR_ARG (null msg, address, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x28), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPDPContextIPv6Address(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address);
/** Appends the preferred primary DNS server (IPv6) to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x2B (16-byte IPv6 address), 19 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address The preferred primary DNS server (IPv6): 16 bytes in network order, copied as they are
 *      (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddPrimaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address);
/** Reads the preferred primary DNS server (IPv6) of a profile.
 *  Reads item 0x2B (16-byte IPv6 address) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param address A 16-byte buffer that receives the preferred primary DNS server (IPv6) in network order
 *      (required).
 *  @return The value length of item 0x2B; ZOVQMI_ERR_ARG (null msg, address, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x2B), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                            uint8_t* address);
/** Appends the preferred secondary DNS server (IPv6) to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x2C (16-byte IPv6 address), 19 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param address The preferred secondary DNS server (IPv6): 16 bytes in network order, copied as they are
 *      (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddSecondaryIPv6DNSAddress(uint8_t* buf, int bufsize, const uint8_t* address);
/** Reads the preferred secondary DNS server (IPv6) of a profile.
 *  Reads item 0x2C (16-byte IPv6 address) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param address A 16-byte buffer that receives the preferred secondary DNS server (IPv6) in network order
 *      (required).
 *  @return The value length of item 0x2C; ZOVQMI_ERR_ARG (null msg, address, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x2C), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len, uint16_t messageId,
                                                              uint8_t* address);
/** Appends the IPv4 address allocation to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x2D (u8), 4 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param value 0 by NAS signalling, 1 by DHCP.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddIPv4AddressAlloc(uint8_t* buf, int bufsize, uint8_t value);
/** Reads the IPv4 address allocation of a profile.
 *  Reads item 0x2D (u8) of a GetProfileSettings, GetDefaultSettings response (not GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param value Receives IPv4 address allocation: 0 by NAS signalling, 1 by DHCP (required).
 *  @return The value length of item 0x2D; ZOVQMI_ERR_ARG (null msg, value, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x2D), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetIPv4AddressAlloc(const uint8_t* msg, int len, uint16_t messageId,
                                                       uint8_t* value);
/** Appends the LTE quality of service requested to a profile request.
 *  Extends a CreateProfile or ModifyProfileSettings request built by zovQMIWDSCreateProfileReq() or
 *  zovQMIWDSModifyProfileSettingsReq(): appends item 0x2E (WDSLTEQoS, 17 bytes), 20 bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param record A WDSLTEQoS (17 bytes, wire layout, multi-byte fields little-endian) holding the LTE quality of
 *      service requested, copied as it is (required).
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf or record), ZOVQMI_ERR_NO_ROOM (the
 *      item does not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSProfileReqAddLTERequestedQoS(uint8_t* buf, int bufsize, const uint8_t* record);
/** Reads the LTE quality of service requested of a profile.
 *  Reads item 0x2E (WDSLTEQoS, 17 bytes) of a GetProfileSettings, GetDefaultSettings response (not
 *  GetRuntimeSettings).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param messageId Id of the response in msg: 0x002B or 0x002C.
 *  @param record A WDSLTEQoS (17 bytes) that receives the LTE quality of service requested in wire layout
 *      (required).
 *  @return The value length of item 0x2E; ZOVQMI_ERR_ARG (null msg, record, or messageId not 0x002B or 0x002C),
 *      ZOVQMI_ERR_NO_MESSAGE (no message messageId in msg), ZOVQMI_ERR_NO_TLV (no item 0x2E), ZOVQMI_ERR_MALFORMED
 *      (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSProfileRespGetLTERequestedQoS(const uint8_t* msg, int len, uint16_t messageId,
                                                      uint8_t* record);
/** @} */
/** @defgroup wds_get_runtime_settings GetRuntimeSettings (0x002D)
 *  @ingroup svc_wds
 *  @brief Reads the settings of the current call: addresses, names, MTU.
 *  Item types 0x10 to 0x1E of the response are profile items, read with the zovQMIWDSProfileRespGet functions given
 *  message id 0x002D; types 0x1F to 0x2D are read with the functions of this group.
 *  @{
 */
/** Builds a GetRuntimeSettings request (0x002D).
 *  Writes the 7-byte service header of message 0x002D with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  Append the settings wanted with zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings().
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsReq(uint8_t* buf, int bufsize);
/** Appends the mask of the settings wanted.
 *  Extends a GetRuntimeSettings request built by zovQMIWDSGetRuntimeSettingsReq(): appends item 0x10 (u32 mask), 7
 *  bytes in all.
 *  @param buf The request under construction; its item-area length is raised (required).
 *  @param bufsize Capacity of buf in bytes.
 *  @param mask Settings wanted, bits: 0x0001 profile identifier, 0x0002 profile name, 0x0004 PDP type, 0x0008 APN,
 *      0x0010 DNS addresses, 0x0020 granted QoS, 0x0040 user name, 0x0080 authentication protocol, 0x0100 IP
 *      address, 0x0200 gateway, 0x0400 P-CSCF by PCO, 0x0800 P-CSCF addresses, 0x1000 P-CSCF names, 0x2000 MTU,
 *      0x4000 domain names, 0x8000 IP family, 0x10000 IM CN flag, 0x20000 technology; sent little-endian.
 *  @return The new request length (header and items); ZOVQMI_ERR_ARG (null buf), ZOVQMI_ERR_NO_ROOM (the item does
 *      not fit bufsize; request unchanged).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings(uint8_t* buf, int bufsize, uint32_t mask);
/** Parses a GetRuntimeSettings response (0x002D).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  The settings are read with the RespGet functions of this group and the profile item parsers.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002D in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads which profile the call uses.
 *  Reads the optional item 0x1F (profile type u8, profile index u8) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param profileType Receives the profile type: 0 3GPP, 1 3GPP2 (required).
 *  @param profileIndex Receives the profile index (required).
 *  @return The value length of item 0x1F; ZOVQMI_ERR_ARG (null msg, profileType, profileIndex),
 *      ZOVQMI_ERR_NO_MESSAGE (no message 0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x1F), ZOVQMI_ERR_MALFORMED (a
 *      field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(const uint8_t* msg, int len, uint8_t* profileType,
                                                                   uint8_t* profileIndex);
/** Reads the IPv4 gateway address.
 *  Reads the optional item 0x20 (u32) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param address Receives the gateway address as a u32 number, native order (0xC0A80001 is 192.168.0.1)
 *      (required).
 *  @return The value length of item 0x20; ZOVQMI_ERR_ARG (null msg, address), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x20), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(const uint8_t* msg, int len, uint32_t* address);
/** Reads the IPv4 subnet mask.
 *  Reads the optional item 0x21 (u32) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param mask Receives the subnet mask as a u32 number, native order (0xFFFFFF00 is /24) (required).
 *  @return The value length of item 0x21; ZOVQMI_ERR_ARG (null msg, mask), ZOVQMI_ERR_NO_MESSAGE (no message 0x002D
 *      in msg), ZOVQMI_ERR_NO_TLV (no item 0x21), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing
 *      written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(const uint8_t* msg, int len, uint32_t* mask);
/** Reads the P-CSCF by PCO flag of the call.
 *  Reads the optional item 0x22 (u8) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param flag Receives 1 when the P-CSCF address was obtained with protocol configuration options, else 0
 *      (required).
 *  @return The value length of item 0x22; ZOVQMI_ERR_ARG (null msg, flag), ZOVQMI_ERR_NO_MESSAGE (no message 0x002D
 *      in msg), ZOVQMI_ERR_NO_TLV (no item 0x22), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing
 *      written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag(const uint8_t* msg, int len, uint8_t* flag);
/** Reads the IPv4 addresses of the P-CSCF servers.
 *  Reads the optional item 0x23 (count u8, then count u32) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of addresses (required).
 *  @param list Array of at least *count u32 (up to 255) that receives the addresses as u32 numbers, native order;
 *      may be null.
 *  @return The value length of item 0x23; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x23), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(const uint8_t* msg, int len,
                                                                            uint8_t* count, uint32_t* list);
/** Reads the domain names of the P-CSCF servers.
 *  Reads the optional item 0x24 (count u8, then per name a u16 length and its bytes) of a GetRuntimeSettings
 *  response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of names (required).
 *  @param list Array of at least *count WDSNameListEntry records (up to 255); each record's name pointer, set
 *      beforehand, receives the name when it is not null.  May be null: then only the count is stored.
 *  @return The value length of item 0x24; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x24), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPCSCFFQDNList(const uint8_t* msg, int len, uint8_t* count,
                                                               WDSNameListEntry* list);
/** Reads the IPv6 address of the call and its prefix length.
 *  Reads the optional item 0x25 (16-byte address, u8 prefix length) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param address A 16-byte buffer that receives the IPv6 address of the call in network order (required).
 *  @param prefixLength Receives the prefix length in bits (required).
 *  @return The value length of item 0x25; ZOVQMI_ERR_ARG (null msg, address, prefixLength), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x25), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(const uint8_t* msg, int len, uint8_t* address,
                                                             uint8_t* prefixLength);
/** Reads the IPv6 gateway address and its prefix length.
 *  Reads the optional item 0x26 (16-byte address, u8 prefix length) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param address A 16-byte buffer that receives the IPv6 gateway address in network order (required).
 *  @param prefixLength Receives the prefix length in bits (required).
 *  @return The value length of item 0x26; ZOVQMI_ERR_ARG (null msg, address, prefixLength), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x26), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress(const uint8_t* msg, int len, uint8_t* address,
                                                                    uint8_t* prefixLength);
/** Reads the primary IPv6 DNS server.
 *  Reads the optional item 0x27 (16-byte address) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param address A 16-byte buffer that receives the primary DNS server in network order (required).
 *  @return The value length of item 0x27; ZOVQMI_ERR_ARG (null msg, address), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x27), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(const uint8_t* msg, int len, uint8_t* address);
/** Reads the secondary IPv6 DNS server.
 *  Reads the optional item 0x28 (16-byte address) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param address A 16-byte buffer that receives the secondary DNS server in network order (required).
 *  @return The value length of item 0x28; ZOVQMI_ERR_ARG (null msg, address), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x28), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(const uint8_t* msg, int len,
                                                                         uint8_t* address);
/** Reads the MTU of the call.
 *  Reads the optional item 0x29 (u32) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param mtu Receives the MTU of the call in bytes (required).
 *  @return The value length of item 0x29; ZOVQMI_ERR_ARG (null msg, mtu), ZOVQMI_ERR_NO_MESSAGE (no message 0x002D
 *      in msg), ZOVQMI_ERR_NO_TLV (no item 0x29), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing
 *      written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetMTU(const uint8_t* msg, int len, uint32_t* mtu);
/** Reads the domain name search list.
 *  Reads the optional item 0x2A (count u8, then per name a u16 length and its bytes) of a GetRuntimeSettings
 *  response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param count Receives the number of domain names (required).
 *  @param list Array of at least *count WDSNameListEntry records (up to 255); each record's name pointer, set
 *      beforehand, receives the name when it is not null.  May be null: then only the count is stored.
 *  @return The value length of item 0x2A; ZOVQMI_ERR_ARG (null msg, count), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x2A), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetDomainNameList(const uint8_t* msg, int len, uint8_t* count,
                                                                WDSNameListEntry* list);
/** Reads the IP family of the call.
 *  Reads the optional item 0x2B (u8) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param family Receives the IP family of the call: 4 IPv4, 6 IPv6 (required).
 *  @return The value length of item 0x2B; ZOVQMI_ERR_ARG (null msg, family), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x002D in msg), ZOVQMI_ERR_NO_TLV (no item 0x2B), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIPfamily(const uint8_t* msg, int len, uint8_t* family);
/** Reads the IM CN flag of the call.
 *  Reads the optional item 0x2C (u8) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param flag Receives 1 when the context serves IM CN subsystem signalling, else 0 (required).
 *  @return The value length of item 0x2C; ZOVQMI_ERR_ARG (null msg, flag), ZOVQMI_ERR_NO_MESSAGE (no message 0x002D
 *      in msg), ZOVQMI_ERR_NO_TLV (no item 0x2C), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing
 *      written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetIMCNFlag(const uint8_t* msg, int len, uint8_t* flag);
/** Reads the technology the call runs on.
 *  Reads the optional item 0x2D (u16) of a GetRuntimeSettings response (0x002D).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param name Receives the technology of the call as the modem numbers it (the values of the extended technology
 *      preference) (required).
 *  @return The value length of item 0x2D; ZOVQMI_ERR_ARG (null msg, name), ZOVQMI_ERR_NO_MESSAGE (no message 0x002D
 *      in msg), ZOVQMI_ERR_NO_TLV (no item 0x2D), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing
 *      written).
 */
ZOVQMI_API int zovQMIWDSGetRuntimeSettingsRespGetTechnologyName(const uint8_t* msg, int len, uint16_t* name);
/** @} */
/** @defgroup wds_set_mip_mode SetMIPMode (0x002E)
 *  @ingroup svc_wds
 *  @brief Sets the mobile IP mode.
 *  @{
 */
/** Builds a SetMIPMode request (0x002E).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 mode): 11 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 11.
 *  @param mode Mobile IP mode: 0 mobile IP off (simple IP only), 1 mobile IP preferred, 2 mobile IP only.
 *  @return 11, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 11 (nothing written).
 */
ZOVQMI_API int zovQMIWDSSetMIPModeReq(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a SetMIPMode response (0x002E).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002E in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSSetMIPModeResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_get_mip_mode GetMIPMode (0x002F)
 *  @ingroup svc_wds
 *  @brief Reads the mobile IP mode.
 *  @{
 */
/** Builds a GetMIPMode request (0x002F).
 *  Writes the 7-byte service header of message 0x002F with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetMIPModeReq(uint8_t* buf, int bufsize);
/** Parses a GetMIPMode response (0x002F).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u8 mode).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param mode Receives the mobile IP mode: 0 mobile IP off (simple IP only), 1 mobile IP preferred, 2 mobile IP
 *      only (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, mode), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x002F in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result
 *      already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetMIPModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode);
/** @} */
/** @defgroup wds_get_dormancy_status GetDormancyStatus (0x0030)
 *  @ingroup svc_wds
 *  @brief Reads whether the traffic channel is dormant.
 *  @{
 */
/** Builds a GetDormancyStatus request (0x0030).
 *  Writes the 7-byte service header of message 0x0030 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDormancyStatusReq(uint8_t* buf, int bufsize);
/** Parses a GetDormancyStatus response (0x0030).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u8 status).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param status Receives the dormancy status: 1 traffic channel dormant, 2 traffic channel active (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, status), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x0030 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01;
 *      result already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDormancyStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
/** @} */
/** @defgroup wds_get_call_duration GetCallDuration (0x0035)
 *  @ingroup svc_wds
 *  @brief Reads how long the current and the last call have lasted.
 *  @{
 */
/** Builds a GetCallDuration request (0x0035).
 *  Writes the 7-byte service header of message 0x0035 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCallDurationReq(uint8_t* buf, int bufsize);
/** Parses a GetCallDuration response (0x0035).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u64 duration, low 32 bits first).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param duration Receives the duration of the current call in milliseconds (u64, native order) (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, duration), ZOVQMI_ERR_NO_MESSAGE
 *      (no message 0x0035 in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_NO_MANDATORY (no item 0x01;
 *      result already filled), ZOVQMI_ERR_MALFORMED (a field read lies beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCallDurationResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* duration);
/** Reads the duration of the last call.
 *  Reads the optional item 0x10 (u64, low 32 bits first) of a GetCallDuration response (0x0035).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param duration Receives the duration of the last call in milliseconds (u64, native order) (required).
 *  @return The value length of item 0x10; ZOVQMI_ERR_ARG (null msg, duration), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0035 in msg), ZOVQMI_ERR_NO_TLV (no item 0x10), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetLastCallDuration(const uint8_t* msg, int len, uint64_t* duration);
/** Reads the active time of the current call.
 *  Reads the optional item 0x11 (u64, low 32 bits first) of a GetCallDuration response (0x0035).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param duration Receives the time the current call has not been dormant in milliseconds (u64, native order)
 *      (required).
 *  @return The value length of item 0x11; ZOVQMI_ERR_ARG (null msg, duration), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0035 in msg), ZOVQMI_ERR_NO_TLV (no item 0x11), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetActiveDuration(const uint8_t* msg, int len, uint64_t* duration);
/** Reads the active time of the last call.
 *  Reads the optional item 0x12 (u64, low 32 bits first) of a GetCallDuration response (0x0035).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param duration Receives the time the last call was not dormant in milliseconds (u64, native order) (required).
 *  @return The value length of item 0x12; ZOVQMI_ERR_ARG (null msg, duration), ZOVQMI_ERR_NO_MESSAGE (no message
 *      0x0035 in msg), ZOVQMI_ERR_NO_TLV (no item 0x12), ZOVQMI_ERR_MALFORMED (a field read lies beyond len;
 *      nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCallDurationRespGetLastCallActiveDuration(const uint8_t* msg, int len, uint64_t* duration);
/** @} */
/** @defgroup wds_get_current_data_bearer_technology GetCurrentDataBearerTechnology (0x0044)
 *  @ingroup svc_wds
 *  @brief Reads the network and radio technology the data call runs on.
 *  @{
 */
/** Builds a GetCurrentDataBearerTechnology request (0x0044).
 *  Writes the 7-byte service header of message 0x0044 with an empty item area: 7 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 7.
 *  @return 7, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 7 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCurrentDataBearerTechnologyReq(uint8_t* buf, int bufsize);
/** Parses a GetCurrentDataBearerTechnology response (0x0044).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (the 9-byte data bearer record: u8,
 *  then two u32).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param technology Receives the current network: 0 unknown, 1 3GPP2, 2 3GPP (required).
 *  @param first Receives the first u32, the radio access technology mask as the modem defines it (required).
 *  @param second Receives the second u32, the service option mask as the modem defines it (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, technology, first, second),
 *      ZOVQMI_ERR_NO_MESSAGE (no message 0x0044 in msg), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (a field read lies
 *      beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetCurrentDataBearerTechnologyResp(const uint8_t* msg, int len, QmiResult* result,
                                                           uint8_t* technology, uint32_t* first, uint32_t* second);
/** @} */
/** @defgroup wds_get_default_profile_num GetDefaultProfileNum (0x0049)
 *  @ingroup svc_wds
 *  @brief Reads which profile a profile type and family use by default.
 *  @{
 */
/** Builds a GetDefaultProfileNum request (0x0049).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 profile type, u8 profile family): 12 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 12.
 *  @param first Profile type: 0 3GPP, 1 3GPP2 (first byte of item 0x01).
 *  @param second Profile family: 0 embedded, 1 tethered (second byte of item 0x01).
 *  @return 12, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 12 (nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
/** Parses a GetDefaultProfileNum response (0x0049).
 *  Stores the result item 0x02 in result, then decodes the mandatory item 0x01 (u8 profile number).
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @param profileNumber Receives the index of the default profile (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result, profileNumber),
 *      ZOVQMI_ERR_NO_MESSAGE (no message 0x0049 in msg), ZOVQMI_ERR_NO_TLV (no result item),
 *      ZOVQMI_ERR_NO_MANDATORY (no item 0x01; result already filled), ZOVQMI_ERR_MALFORMED (a field read lies
 *      beyond len; nothing written).
 */
ZOVQMI_API int zovQMIWDSGetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result,
                                                 uint8_t* profileNumber);
/** @} */
/** @defgroup wds_set_default_profile_num SetDefaultProfileNum (0x004A)
 *  @ingroup svc_wds
 *  @brief Sets which profile a profile type and family use by default.
 *  @{
 */
/** Builds a SetDefaultProfileNum request (0x004A).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 profile type, u8 profile family, u8 profile
 *  number): 13 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 13.
 *  @param first Profile type: 0 3GPP, 1 3GPP2 (first byte of item 0x01).
 *  @param second Profile family: 0 embedded, 1 tethered (second byte of item 0x01).
 *  @param profileNumber Index of the profile to make the default (third byte).
 *  @return 13, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 13 (nothing written).
 */
ZOVQMI_API int zovQMIWDSSetDefaultProfileNumReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second,
                                                uint8_t profileNumber);
/** Parses a SetDefaultProfileNum response (0x004A).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x004A in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSSetDefaultProfileNumResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wds_set_client_ip_family_pref SetClientIPFamilyPref (0x004D)
 *  @ingroup svc_wds
 *  @brief Declares the IP family this client works with.
 *  @{
 */
/** Builds a SetClientIPFamilyPref request (0x004D).
 *  Writes the 7-byte service header and the mandatory item 0x01 (u8 IP family): 11 bytes.
 *  Takes the next transaction id.
 *  @param buf Buffer that receives the request (required).
 *  @param bufsize Capacity of buf in bytes; at least 11.
 *  @param ipFamily IP family of the client: 4 IPv4, 6 IPv6.
 *  @return 11, the request length; ZOVQMI_ERR_ARG when buf is null or bufsize is below 11 (nothing written).
 */
ZOVQMI_API int zovQMIWDSSetClientIPFamilyPrefReq(uint8_t* buf, int bufsize, uint8_t ipFamily);
/** Parses a SetClientIPFamilyPref response (0x004D).
 *  Stores the result item 0x02 in result; the response has no other item.
 *  @param msg Received message, QMUX header removed (as zovQMIDeviceRead() gives it).
 *  @param len Length of msg in bytes; nothing beyond it is read.
 *  @param result Receives the result item 0x02: result code (0 success, 1 failure) and error code (required).
 *  @return The item-area length of the message; ZOVQMI_ERR_ARG (null msg, result), ZOVQMI_ERR_NO_MESSAGE (no
 *      message 0x004D in msg), ZOVQMI_ERR_NO_TLV (no result item), ZOVQMI_ERR_MALFORMED (a field read lies beyond
 *      len; nothing written).
 */
ZOVQMI_API int zovQMIWDSSetClientIPFamilyPrefResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */

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

/* QOS: one traffic flow of a QoSSpec.  Natural alignment (84 bytes); arrays
 * of it are stepped by its size.  Fields are native values.  `type` is the
 * type of the item that wraps the flow in its container (0x11 or 0x12);
 * `index` is set only when reading a QoS error list.  Every parameter
 * item has a presence byte (nonzero: present) and its value fields, named
 * after the item's type. */
typedef struct FlowSpecification {
    uint8_t type;
    uint8_t index;
    uint8_t present10;
    uint8_t value10;
    uint8_t present1B;
    uint16_t value1B;
    uint8_t present11;
    uint8_t value11;
    uint8_t present12;
    uint32_t value12First;
    uint32_t value12Second;
    uint8_t present13;
    uint32_t value13First;
    uint32_t value13Second;
    uint32_t value13Third;
    uint8_t present14;
    uint32_t value14;
    uint8_t present15;
    uint32_t value15;
    uint8_t present16;
    uint16_t value16First;
    uint16_t value16Second;
    uint8_t present17;
    uint32_t value17;
    uint8_t present18;
    uint32_t value18;
    uint8_t present19;
    uint8_t value19;
    uint8_t present1A;
    uint8_t value1A;
    uint8_t present1C;
    uint8_t value1C;
    uint8_t present1D;
    uint8_t value1D;
    uint8_t present1E;
    uint8_t value1E;
} FlowSpecification;

/* QOS: one packet filter of a QoSSpec.  Natural alignment (112 bytes), as
 * for flows; `type` is 0x13 or 0x14.  A filter has no item 0x18, 0x1F or
 * 0x20. */
typedef struct FilterSpecification {
    uint8_t type;
    uint8_t index;
    uint8_t present10;
    uint8_t value10;
    uint8_t present11;
    uint8_t value11;
    uint8_t present12;
    uint32_t value12First;
    uint32_t value12Second;
    uint8_t present13;
    uint32_t value13First;
    uint32_t value13Second;
    uint8_t present14;
    uint8_t value14;
    uint8_t present15;
    uint8_t value15Byte0;
    uint8_t value15Byte1;
    uint8_t present16;
    uint8_t value16[16];
    uint8_t value16Last;
    uint8_t present17;
    uint8_t value17[16];
    uint8_t value17Last;
    uint8_t present19;
    uint8_t value19Byte0;
    uint8_t value19Byte1;
    uint8_t present1A;
    uint32_t value1A;
    uint8_t present1B;
    uint16_t value1BFirst;
    uint16_t value1BSecond;
    uint8_t present1C;
    uint16_t value1CFirst;
    uint16_t value1CSecond;
    uint8_t present1D;
    uint16_t value1DFirst;
    uint16_t value1DSecond;
    uint8_t present1E;
    uint16_t value1EFirst;
    uint16_t value1ESecond;
    uint8_t present21;
    uint32_t value21;
} FilterSpecification;

#pragma pack(push, 1)

/* QOS: a set of flows and filters in caller-owned arrays.  Packed: the
 * pointers lie unaligned.  Parsers read the pointers and write the counts. */
typedef struct QoSSpec {
    uint8_t flowCount;
    uint8_t filterCount;
    FlowSpecification* flows;
    FilterSpecification* filters;
} QoSSpec;

/* QOS: item 0x10 of the flow-information list (6 bytes; the identifier is
 * stored as little-endian bytes). */
typedef struct QoSFlowState {
    uint32_t identifier;
    uint8_t status;
    uint8_t event;
} QoSFlowState;

/* QOS: one list of network-supported QoS profiles (7 bytes on 32-bit hosts):
 * technology (little-endian bytes), profile count and a caller array that
 * receives the profile values as native words (may be null). */
typedef struct QoSProfileList {
    uint16_t technology;
    uint8_t profileCount;
    uint16_t* profiles;
} QoSProfileList;

#pragma pack(pop)

/* Flow and filter codec: append one flow or filter to a QoS
 * item record of type 0x10, or read one back from a received item. */
ZOVQMI_API int fnRequestAddFlowSpecification(QmiTlvRecord* tlv, const FlowSpecification* flow);
ZOVQMI_API int fnRequestAddFilterSpecification(QmiTlvRecord* tlv, const FilterSpecification* filter);
ZOVQMI_API int fnResponseParseFlowSpecification(const uint8_t* item, int length, FlowSpecification* flow);
ZOVQMI_API int fnResponseParseFilterSpecification(const uint8_t* item, int length, FilterSpecification* filter);

ZOVQMI_API int zovQMIQOSResetReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSResetResp(const uint8_t* msg, int len, QmiResult* result);

ZOVQMI_API int zovQMIQOSSetEventReportReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSSetEventReportReqAddGlobalFlowInfoReporting(uint8_t* buf, int bufsize, uint8_t report);
ZOVQMI_API int zovQMIQOSSetEventReportReqAddNetworkSupportedQoSProfileChange(uint8_t* buf, int bufsize, uint8_t report,
                                                                            uint16_t technology);
ZOVQMI_API int zovQMIQOSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIQOSSetEventReportIND(const uint8_t* msg, int len);
ZOVQMI_API int zovQMIQOSSetEventReportINDGetQoSFlowInfo(const uint8_t* msg, int len, QoSFlowState* state,
                                                       QoSSpec* qosSpec);
ZOVQMI_API int zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(const uint8_t* msg, int len,
                                                                       QoSProfileList* list);

ZOVQMI_API int zovQMIQOSRequestQoSReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSRequestQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint8_t index, const QoSSpec* qosSpec);
ZOVQMI_API int zovQMIQOSRequestQoSReqAddQoSRequestOpcode(uint8_t* buf, int bufsize, uint8_t opcode);
ZOVQMI_API int zovQMIQOSRequestQoSResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                       uint32_t* identifiers);
ZOVQMI_API int zovQMIQOSRequestQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec);

ZOVQMI_API int zovQMIQOSReleaseQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
ZOVQMI_API int zovQMIQOSReleaseQoSResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIQOSSuspendQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
ZOVQMI_API int zovQMIQOSSuspendQoSResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIQOSResumeQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers);
ZOVQMI_API int zovQMIQOSResumeQoSResp(const uint8_t* msg, int len, QmiResult* result);

ZOVQMI_API int zovQMIQOSModifyQoSReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSModifyQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint32_t identifier, uint8_t index,
                                               const QoSSpec* qosSpec);
ZOVQMI_API int zovQMIQOSModifyQoSReqAddPrimaryQoSModifyRequest(uint8_t* buf, int bufsize, uint8_t primary);
ZOVQMI_API int zovQMIQOSModifyQoSResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIQOSModifyQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec);

ZOVQMI_API int zovQMIQOSGetGrantedQoSReq(uint8_t* buf, int bufsize, uint32_t identifier);
ZOVQMI_API int zovQMIQOSGetGrantedQoSReqAddPrimaryGrantedQoSRequest(uint8_t* buf, int bufsize, uint8_t primary);
ZOVQMI_API int zovQMIQOSGetGrantedQoSResp(const uint8_t* msg, int len, QmiResult* result);
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow);
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow);
ZOVQMI_API int zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(const uint8_t* msg, int len, uint16_t* error);

ZOVQMI_API int zovQMIQOSGetQoSStatusReq(uint8_t* buf, int bufsize, uint32_t identifier);
ZOVQMI_API int zovQMIQOSGetQoSStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
ZOVQMI_API int zovQMIQOSStatusIND(const uint8_t* msg, int len, uint32_t* identifier, uint8_t* status,
                                  uint8_t* event);
ZOVQMI_API int zovQMIQOSStatusINDGetReasonCode(const uint8_t* msg, int len, uint8_t* reason);

ZOVQMI_API int zovQMIQOSGetQoSNetworkStatusReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSGetQoSNetworkStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);
ZOVQMI_API int zovQMIQOSNetworkStatusIND(const uint8_t* msg, int len, uint8_t* status);

ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesReq(uint8_t* buf, int bufsize);
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                   uint16_t preference);
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                                      QoSProfileList* lists);
ZOVQMI_API int zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(const uint8_t* msg, int len,
                                                                         uint16_t* error);

ZOVQMI_API int zovQMIQOSPrimaryQoSEventIND(const uint8_t* msg, int len, uint16_t* event);

/* ------------------------------------------------------------ end QOS -- */

#ifdef __cplusplus
}
#endif

#endif /* ZOVQMI_H */
