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
/** @defgroup svc_dms DMS: device management service (service 2)
 *  @brief Identity, capabilities, power, operating mode and time of the modem; UIM PIN, personalisation and user
 *  lock.
 *  @note Deliberate: parsers read fixed fields at their offsets and take counts and lengths from the message as they
 *  stand, without comparing them with the item's length: a short item is read on into the bytes that follow it. Only
 *  a read past the end of the received message is refused, with ZOVQMI_ERR_MALFORMED, and the outputs of that
 *  item are then left untouched.
 */

#pragma pack(push, 1)

/** The device capabilities of a GetDeviceCap response (item 0x01), filled by zovQMIDMSGetDeviceCapResp().
 *  11 bytes plus a native pointer: 15 bytes on 32-bit hosts. Packed; the multi-byte integer fields hold
 *  little-endian bytes on every host (read them byte by byte). The parser fills the first five fields; `list` is
 *  set by the caller before the call and never written.
 *  @ingroup dms_get_device_cap
 */
typedef struct DMSDeviceCapabilities {
    uint32_t capability1;     /**< maximum transmit data rate in bits per second (little-endian bytes) */
    uint32_t capability2;     /**< maximum receive data rate in bits per second (little-endian bytes) */
    uint8_t capabilityByte1;  /**< data service: 0 none, 1 circuit switched only, 2 packet switched only, 3 both
                                   at once, 4 both but not at once */
    uint8_t capabilityByte2;  /**< SIM capability: 1 not supported, 2 supported */
    uint8_t listCount;        /**< number of radio interface bytes that follow in the item */
    uint8_t* list;            /**< caller buffer for the listCount radio interface bytes (1 cdma2000 1x,
                                   2 cdma2000 HRPD, 4 GSM, 5 UMTS, 8 LTE), up to 255; null copies nothing */
} DMSDeviceCapabilities;

#pragma pack(pop)

/** @defgroup dms_reset Reset (0x0000)
 *  @ingroup svc_dms
 *  @brief Resets the DMS state of the client.
 *  @{
 */
/** Builds a Reset request (0x0000): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSResetReq(uint8_t* buf, int bufsize);
/** Parses a Reset response (0x0000): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0000 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_set_event_report SetEventReport (0x0001)
 *  @ingroup svc_dms
 *  @brief Chooses which changes the modem reports with the EventReport indication.
 *  @{
 */
/** Builds a SetEventReport request (0x0001): the 7-byte header, no item.
 *  Append the reporting items with the zovQMIDMSSetEventReportReqAdd... functions (item 0x13 is not offered).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSSetEventReportReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 PowerStateReporting to a SetEventReport request (0x0001).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIDMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetEventReportReqAddPowerStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
/** Appends item 0x11 BatteryLevelReportLimits to a SetEventReport request (0x0001).
 *  Adds 5 bytes: type, length 2, lower then upper limit.
 *  @param buf the request, begun by zovQMIDMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param lower lower battery level limit, in percent
 *  @param upper upper battery level limit, in percent
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetEventReportReqAddBatteryLevelReportLimits(uint8_t* buf, int bufsize, uint8_t lower,
                                                                    uint8_t upper);
/** Appends item 0x12 PINStateReporting to a SetEventReport request (0x0001).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIDMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetEventReportReqAddPINStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
/** Appends item 0x14 OperatingModeReporting to a SetEventReport request (0x0001).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIDMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetEventReportReqAddOperatingModeReporting(uint8_t* buf, int bufsize, uint8_t mode);
/** Appends item 0x15 UIMStateReporting to a SetEventReport request (0x0001).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIDMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetEventReportReqAddUIMStateReporting(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a SetEventReport response (0x0001): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_event_report EventReport indication (0x0001)
 *  @ingroup svc_dms
 *  @brief The changes a client asked for with SetEventReport; it carries the id of that request.
 *  @{
 */
/** Confirms that msg holds an EventReport indication (0x0001).
 *  Only the message id is checked; read the items with the zovQMIDMSEventReportINDGet... functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg. No item
 *          is read, so it never gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIDMSEventReportIND(const uint8_t* msg, int len);
/** Reads the power state of an EventReport indication.
 *  Reads item 0x10 PowerState of a EventReport message (0x0001): power state byte, battery level byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param powerState receives the power state bits: bit 0 set on external power, bit 1 set while the battery charges
 *         (required)
 *  @param batteryLevel receives the battery level in percent, 0 to 100 (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, powerState or batteryLevel is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSEventReportINDGetPowerState(const uint8_t* msg, int len, uint8_t* powerState,
                                                   uint8_t* batteryLevel);
/** Reads the PIN1 status of an EventReport indication.
 *  Reads item 0x11 PIN1Status of a EventReport message (0x0001): status byte, then the two retries counters.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param status receives the PIN status: 0 not initialised, 1 enabled and not verified, 2 enabled and verified, 3
 *         disabled, 4 blocked, 5 permanently blocked, 6 unblocked, 7 changed (required)
 *  @param retries1 receives the number of verify attempts left (required)
 *  @param retries2 receives the number of unblock attempts left (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSEventReportINDGetPIN1Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2);
/** Reads the PIN2 status of an EventReport indication.
 *  Reads item 0x12 PIN2Status of a EventReport message (0x0001): status byte, then the two retries counters.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param status receives the PIN status: 0 not initialised, 1 enabled and not verified, 2 enabled and verified, 3
 *         disabled, 4 blocked, 5 permanently blocked, 6 unblocked, 7 changed (required)
 *  @param retries1 receives the number of verify attempts left (required)
 *  @param retries2 receives the number of unblock attempts left (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSEventReportINDGetPIN2Status(const uint8_t* msg, int len, uint8_t* status, uint8_t* retries1,
                                                   uint8_t* retries2);
/** Reads the operating mode of an EventReport indication.
 *  Reads item 0x14 OperatingMode of a EventReport message (0x0001): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param mode receives the operating mode: 0 online, 1 low power, 2 factory test, 3 offline, 4 resetting, 5 shutting
 *         down, 6 persistent low power, 7 mode-only low power (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg or mode is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSEventReportINDGetOperatingMode(const uint8_t* msg, int len, uint8_t* mode);
/** Reads the UIM state of an EventReport indication.
 *  Reads item 0x15 UIMState of a EventReport message (0x0001): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param state receives the UIM state: 0x00 initialised, 0x01 initialisation failed, 0x02 not present, 0xFF state
 *         unavailable (required)
 *  @return the value length of item 0x15; ZOVQMI_ERR_ARG: msg or state is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x15; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSEventReportINDGetUIMState(const uint8_t* msg, int len, uint8_t* state);
/** @} */
/** @defgroup dms_get_device_cap GetDeviceCap (0x0020)
 *  @ingroup svc_dms
 *  @brief Asks for the device capabilities: data rates, data and SIM capability, radio interfaces.
 *  @{
 */
/** Builds a GetDeviceCap request (0x0020): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceCapReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceCap response (0x0020) into a DMSDeviceCapabilities record.
 *  Item 0x01 holds two u32, two bytes, a count and count list bytes; see DMSDeviceCapabilities for where each goes.
 *  The list bytes are copied only when caps->list is non-null; the count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param caps receives the capabilities (required); set caps->list beforehand to a buffer of up to 255 bytes, or to
 *         null to skip the list
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or caps is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0020 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetDeviceCapResp(const uint8_t* msg, int len, QmiResult* result,
                                         DMSDeviceCapabilities* caps);
/** @} */
/** @defgroup dms_get_device_mfr GetDeviceMfr (0x0021)
 *  @ingroup svc_dms
 *  @brief Asks for the manufacturer name.
 *  @{
 */
/** Builds a GetDeviceMfr request (0x0021): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceMfrReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceMfr response (0x0021): the manufacturer name from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the manufacturer name in bytes, the item's value length (required)
 *  @param data receives the manufacturer name bytes, no terminator added; may be null to learn the length first. No
 *         capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0021 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetDeviceMfrResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                         void* data);
/** @} */
/** @defgroup dms_get_device_model_id GetDeviceModelID (0x0022)
 *  @ingroup svc_dms
 *  @brief Asks for the model identifier.
 *  @{
 */
/** Builds a GetDeviceModelID request (0x0022): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceModelIDReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceModelID response (0x0022): the model identifier from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the model identifier in bytes, the item's value length (required)
 *  @param data receives the model identifier bytes, no terminator added; may be null to learn the length first. No
 *         capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0022 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetDeviceModelIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                             void* data);
/** @} */
/** @defgroup dms_get_device_rev_id GetDeviceRevID (0x0023)
 *  @ingroup svc_dms
 *  @brief Asks for the firmware revision.
 *  @{
 */
/** Builds a GetDeviceRevID request (0x0023): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceRevIDReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceRevID response (0x0023): the firmware revision from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the firmware revision in bytes, the item's value length (required)
 *  @param data receives the firmware revision bytes, no terminator added; may be null to learn the length first. No
 *         capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0023 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetDeviceRevIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                           void* data);
/** @} */
/** @defgroup dms_get_msisdn GetMSISDN (0x0024)
 *  @ingroup svc_dms
 *  @brief Asks for the phone number of the SIM and the mobile identifier.
 *  @{
 */
/** Builds a GetMSISDN request (0x0024): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetMSISDNReq(uint8_t* buf, int bufsize);
/** Parses a GetMSISDN response (0x0024): the phone number (MSISDN) from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the phone number (MSISDN) in bytes, the item's value length (required)
 *  @param data receives the phone number (MSISDN) bytes, no terminator added; may be null to learn the length first.
 *         No capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetMSISDNResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
/** Reads the mobile identifier (MIN) of a GetMSISDN response.
 *  Reads item 0x10 MobileID of a GetMSISDN message (0x0024): the whole value is the text.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param length receives the length of the mobile identifier in bytes, the item's value length (required)
 *  @param data receives the mobile identifier bytes, no terminator added; may be null to learn the length first. No
 *         capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or length is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetMSISDNRespGetMobileID(const uint8_t* msg, int len, uint16_t* length, void* data);
/** @} */
/** @defgroup dms_get_device_serial_numbers GetDeviceSerialNumbers (0x0025)
 *  @ingroup svc_dms
 *  @brief Asks for the serial numbers: ESN, IMEI and MEID, each optional.
 *  @{
 */
/** Builds a GetDeviceSerialNumbers request (0x0025): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceSerialNumbers response (0x0025): only the result item 0x02 is read.
 *  Every serial number is an optional item: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0025 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the ESN of a GetDeviceSerialNumbers response.
 *  Reads item 0x10 ESN of a GetDeviceSerialNumbers message (0x0025): the whole value is the text.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param length receives the length of the ESN in bytes, the item's value length (required)
 *  @param data receives the ESN bytes, no terminator added; may be null to learn the length first. No capacity is
 *         checked: provide room for *length bytes (at most 65535)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or length is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0025 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetESN(const uint8_t* msg, int len, uint16_t* length, void* data);
/** Reads the IMEI of a GetDeviceSerialNumbers response.
 *  Reads item 0x11 IMEI of a GetDeviceSerialNumbers message (0x0025): the whole value is the text.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param length receives the length of the IMEI in bytes, the item's value length (required)
 *  @param data receives the IMEI bytes, no terminator added; may be null to learn the length first. No capacity is
 *         checked: provide room for *length bytes (at most 65535)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or length is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0025 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetIMEI(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data);
/** Reads the MEID of a GetDeviceSerialNumbers response.
 *  Reads item 0x12 MEID of a GetDeviceSerialNumbers message (0x0025): the whole value is the text.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param length receives the length of the MEID in bytes, the item's value length (required)
 *  @param data receives the MEID bytes, no terminator added; may be null to learn the length first. No capacity is
 *         checked: provide room for *length bytes (at most 65535)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or length is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0025 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetDeviceSerialNumbersRespGetMEID(const uint8_t* msg, int len, uint16_t* length,
                                                         void* data);
/** @} */
/** @defgroup dms_get_power_state GetPowerState (0x0026)
 *  @ingroup svc_dms
 *  @brief Asks for the power source and battery level.
 *  @{
 */
/** Builds a GetPowerState request (0x0026): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetPowerStateReq(uint8_t* buf, int bufsize);
/** Parses a GetPowerState response (0x0026): power state and battery level.
 *  Item 0x01: power state byte, battery level byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param powerState receives the power state bits: bit 0 set on external power, bit 1 set while the battery charges
 *         (required)
 *  @param batteryLevel receives the battery level in percent, 0 to 100 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result, powerState
 *          or batteryLevel is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0026 in msg; ZOVQMI_ERR_NO_TLV: no result
 *          item (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetPowerStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* powerState,
                                          uint8_t* batteryLevel);
/** @} */
/** @defgroup dms_get_device_hardware_rev GetDeviceHardwareRev (0x002C)
 *  @ingroup svc_dms
 *  @brief Asks for the hardware revision.
 *  @{
 */
/** Builds a GetDeviceHardwareRev request (0x002C): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetDeviceHardwareRevReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceHardwareRev response (0x002C): the hardware revision from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the hardware revision in bytes, the item's value length (required)
 *  @param data receives the hardware revision bytes, no terminator added; may be null to learn the length first. No
 *         capacity is checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002C in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetDeviceHardwareRevResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length,
                                                 void* data);
/** @} */
/** @defgroup dms_get_operating_mode GetOperatingMode (0x002D)
 *  @ingroup svc_dms
 *  @brief Asks for the operating mode.
 *  @{
 */
/** Builds a GetOperatingMode request (0x002D): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetOperatingModeReq(uint8_t* buf, int bufsize);
/** Parses a GetOperatingMode response (0x002D).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param mode receives the operating mode: 0 online, 1 low power, 2 factory test, 3 offline, 4 resetting, 5 shutting
 *         down, 6 persistent low power, 7 mode-only low power (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or mode is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002D in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* mode);
/** @} */
/** @defgroup dms_set_operating_mode SetOperatingMode (0x002E)
 *  @ingroup svc_dms
 *  @brief Puts the modem into another operating mode (online, low power, offline, reset...).
 *  @{
 */
/** Builds a SetOperatingMode request (0x002E) with its mandatory item 0x01.
 *  Item 0x01 holds the mode byte (message bytes 7 to 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param mode the operating mode to enter: 0 online, 1 low power, 2 factory test, 3 offline, 4 resetting, 5 shutting
 *         down, 6 persistent low power, 7 mode-only low power
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIDMSSetOperatingModeReq(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a SetOperatingMode response (0x002E): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002E in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSSetOperatingModeResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_get_time GetTime (0x002F)
 *  @ingroup svc_dms
 *  @brief Asks for the device time, and optionally the system and user times in milliseconds.
 *  @{
 */
/** Builds a GetTime request (0x002F): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetTimeReq(uint8_t* buf, int bufsize);
/** Parses a GetTime response (0x002F): the 6-byte time count and the time source.
 *  Item 0x01: a 6-byte count of 1.25 ms units since 1980-01-06 00:00:00, little-endian, then a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param timeCount receives the 6 count bytes as they stand on the wire, least significant byte first (required)
 *  @param timeField2 receives the time source: 0 device, 1 CDMA network, 2 HDR network (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result, timeCount
 *          or timeField2 is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002F in msg; ZOVQMI_ERR_NO_TLV: no result item
 *          (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item
 *          or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 *  @note Deliberate: the time count is handed over as its 6 raw wire bytes, not converted to a number.
 */
ZOVQMI_API int zovQMIDMSGetTimeResp(const uint8_t* msg, int len, QmiResult* result, uint8_t timeCount[6],
                                    uint16_t* timeField2);
/** Reads the system time in milliseconds of a GetTime response.
 *  Reads item 0x10 SystemTimeInMS of a GetTime message (0x002F): a u64, low 32-bit word first.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param ms receives the system time in milliseconds since 1980-01-06 00:00:00, native value (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or ms is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002F
 *          in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end
 *          of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetTimeRespGetSystemTimeInMS(const uint8_t* msg, int len, uint64_t* ms);
/** Reads the user time in milliseconds of a GetTime response.
 *  Reads item 0x11 UserTimeInMS of a GetTime message (0x002F): a u64, low 32-bit word first.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param ms receives the user time in milliseconds since 1980-01-06 00:00:00, native value (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or ms is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002F
 *          in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end
 *          of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSGetTimeRespGetUserTimeInMS(const uint8_t* msg, int len, uint64_t* ms);
/** @} */
/** @defgroup dms_get_prl_ver GetPRLVer (0x0030)
 *  @ingroup svc_dms
 *  @brief Asks for the version of the preferred roaming list (PRL).
 *  @{
 */
/** Builds a GetPRLVer request (0x0030): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetPRLVerReq(uint8_t* buf, int bufsize);
/** Parses a GetPRLVer response (0x0030): the PRL version.
 *  Item 0x01: a u16, little-endian on the wire.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param version receives the PRL version, native value (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or version
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0030 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetPRLVerResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* version);
/** @} */
/** @defgroup dms_get_band_capability GetBandCapability (0x0045)
 *  @ingroup svc_dms
 *  @brief Asks for the radio bands the modem supports.
 *  @{
 */
/** Builds a GetBandCapability request (0x0045): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetBandCapabilityReq(uint8_t* buf, int bufsize);
/** Parses a GetBandCapability response (0x0045): the band mask.
 *  Item 0x01: a u64, low 32-bit word first.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param bands receives the band capability mask, one bit per band as the modem defines them, native value
 *         (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or bands is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0045 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetBandCapabilityResp(const uint8_t* msg, int len, QmiResult* result, uint64_t* bands);
/** @} */
/** @defgroup dms_set_time SetTime (0x004B)
 *  @ingroup svc_dms
 *  @brief Sets the device time.
 *  @{
 */
/** Builds a SetTime request (0x004B) with its mandatory item 0x01.
 *  Item 0x01 holds the time as a u64, low 32-bit word first (message bytes 10 to 17).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param time the time to set, in milliseconds since 1980-01-06 00:00:00
 *  @return 18, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 18.
 */
ZOVQMI_API int zovQMIDMSSetTimeReq(uint8_t* buf, int bufsize, uint64_t time);
/** Appends item 0x10 TimeReferenceType to a SetTime request (0x004B).
 *  Adds 7 bytes: type, length 4, the type as a little-endian u32.
 *  @param buf the request, begun by zovQMIDMSSetTimeReq()
 *  @param bufsize capacity of buf in bytes
 *  @param type the time reference: 0 user time
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIDMSSetTimeReqAddTimeReferenceType(uint8_t* buf, int bufsize, uint32_t type);
/** Parses a SetTime response (0x004B): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x004B in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSSetTimeResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup dms_uim_set_pin_protection UIMSetPINProtection (0x0027)
 *  @ingroup svc_dms
 *  @brief Enables or disables the request for a PIN.
 *  @{
 */
/** Builds a UIMSetPINProtection request (0x0027) with its mandatory item 0x01.
 *  Item 0x01 (length 3 + pinLength): PIN id, protection setting, PIN length byte, PIN bytes.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param pinId the PIN: 1 PIN1, 2 PIN2
 *  @param protection the protection setting: 0 disable the PIN, 1 enable it
 *  @param pinLength length of pin in bytes; only its low 8 bits are used
 *  @param pin PIN bytes, copied as they are (no terminator); may be null when pinLength is 0
 *  @return 13 + pinLength, the message length; ZOVQMI_ERR_ARG when buf is null, when bufsize is below 13 + pinLength,
 *          or when pinLength is non-zero and pin is null.
 */
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t protection,
                                               uint8_t pinLength, const uint8_t* pin);
/** Parses a UIMSetPINProtection response (0x0027): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0027 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the retries left of a UIMSetPINProtection response.
 *  Reads item 0x10 RetriesLeft of a UIMSetPINProtection message (0x0027): verify attempts left byte, unblock attempts
 *  left byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, verifyLeft or unblockLeft is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0027 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMSetPINProtectionRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                              uint8_t* unblockLeft);
/** @} */
/** @defgroup dms_uim_verify_pin UIMVerifyPIN (0x0028)
 *  @ingroup svc_dms
 *  @brief Verifies a PIN.
 *  @{
 */
/** Builds a UIMVerifyPIN request (0x0028) with its mandatory item 0x01.
 *  Item 0x01 (length 2 + pinLength): PIN id, PIN length byte, PIN bytes.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param pinId the PIN: 1 PIN1, 2 PIN2
 *  @param pinLength length of pin in bytes; only its low 8 bits are used
 *  @param pin PIN bytes, copied as they are (no terminator); may be null when pinLength is 0
 *  @return 12 + pinLength, the message length; ZOVQMI_ERR_ARG when buf is null, when bufsize is below 12 + pinLength,
 *          or when pinLength is non-zero and pin is null.
 */
ZOVQMI_API int zovQMIDMSUIMVerifyPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t pinLength,
                                        const uint8_t* pin);
/** Parses a UIMVerifyPIN response (0x0028): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0028 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMVerifyPINResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the retries left of a UIMVerifyPIN response.
 *  Reads item 0x10 RetriesLeft of a UIMVerifyPIN message (0x0028): verify attempts left byte, unblock attempts left
 *  byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, verifyLeft or unblockLeft is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0028 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMVerifyPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft);
/** @} */
/** @defgroup dms_uim_unblock_pin UIMUnblockPIN (0x0029)
 *  @ingroup svc_dms
 *  @brief Unblocks a blocked PIN with its unblock key (PUK) and sets a new PIN.
 *  @{
 */
/** Builds a UIMUnblockPIN request (0x0029) with its mandatory item 0x01.
 *  Item 0x01 (length 3 + keyLength + newPinLength): PIN id, key length byte, key bytes, new PIN length byte right
 *  behind the key, new PIN bytes.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param pinId the PIN: 1 PIN1, 2 PIN2
 *  @param keyLength length of key in bytes; only its low 8 bits are used
 *  @param key unblock key (PUK) bytes, copied as they are (no terminator); may be null when keyLength is 0
 *  @param newPinLength length of newPin in bytes; only its low 8 bits are used
 *  @param newPin new PIN bytes, copied as they are (no terminator); may be null when newPinLength is 0
 *  @return 13 + keyLength + newPinLength, the message length; ZOVQMI_ERR_ARG when buf is null, when bufsize is below
 *          13 + keyLength + newPinLength, or when a non-zero length comes with a null pointer.
 */
ZOVQMI_API int zovQMIDMSUIMUnblockPINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t keyLength,
                                         const uint8_t* key, uint8_t newPinLength, const uint8_t* newPin);
/** Parses a UIMUnblockPIN response (0x0029): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0029 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMUnblockPINResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the retries left of a UIMUnblockPIN response.
 *  Reads item 0x10 RetriesLeft of a UIMUnblockPIN message (0x0029): verify attempts left byte, unblock attempts left
 *  byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, verifyLeft or unblockLeft is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0029 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMUnblockPINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                        uint8_t* unblockLeft);
/** @} */
/** @defgroup dms_uim_change_pin UIMChangePIN (0x002A)
 *  @ingroup svc_dms
 *  @brief Replaces a PIN by a new one.
 *  @{
 */
/** Builds a UIMChangePIN request (0x002A) with its mandatory item 0x01.
 *  Item 0x01 (length 3 + oldPinLength + newPinLength): PIN id, old PIN length byte, old PIN bytes, new PIN length
 *  byte right behind them, new PIN bytes.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param pinId the PIN: 1 PIN1, 2 PIN2
 *  @param oldPinLength length of oldPin in bytes; only its low 8 bits are used
 *  @param oldPin current PIN bytes, copied as they are (no terminator); may be null when oldPinLength is 0
 *  @param newPinLength length of newPin in bytes; only its low 8 bits are used
 *  @param newPin new PIN bytes, copied as they are (no terminator); may be null when newPinLength is 0
 *  @return 13 + oldPinLength + newPinLength, the message length; ZOVQMI_ERR_ARG when buf is null, when bufsize is
 *          below 13 + oldPinLength + newPinLength, or when a non-zero length comes with a null pointer.
 */
ZOVQMI_API int zovQMIDMSUIMChangePINReq(uint8_t* buf, int bufsize, uint8_t pinId, uint8_t oldPinLength,
                                        const uint8_t* oldPin, uint8_t newPinLength, const uint8_t* newPin);
/** Parses a UIMChangePIN response (0x002A): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002A in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMChangePINResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the retries left of a UIMChangePIN response.
 *  Reads item 0x10 RetriesLeft of a UIMChangePIN message (0x002A): verify attempts left byte, unblock attempts left
 *  byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, verifyLeft or unblockLeft is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002A in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMChangePINRespGetRetriesLeft(const uint8_t* msg, int len, uint8_t* verifyLeft,
                                                       uint8_t* unblockLeft);
/** @} */
/** @defgroup dms_uim_get_pin_status UIMGetPINStatus (0x002B)
 *  @ingroup svc_dms
 *  @brief Asks for the status and retries left of PIN1 and PIN2.
 *  @{
 */
/** Builds a UIMGetPINStatus request (0x002B): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSUIMGetPINStatusReq(uint8_t* buf, int bufsize);
/** Parses a UIMGetPINStatus response (0x002B): only the result item 0x02 is read.
 *  The two PIN states are optional items: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002B in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMGetPINStatusResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the PIN1 status of a UIMGetPINStatus response.
 *  Reads item 0x11 PIN1Status of a UIMGetPINStatus message (0x002B): status byte, verify attempts left, unblock
 *  attempts left.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param status receives the PIN status: 0 not initialised, 1 enabled and not verified, 2 enabled and verified, 3
 *         disabled, 4 blocked, 5 permanently blocked, 6 unblocked, 7 changed (required)
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002B in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMGetPINStatusRespGetPIN1Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft);
/** Reads the PIN2 status of a UIMGetPINStatus response.
 *  Reads item 0x12 PIN2Status of a UIMGetPINStatus message (0x002B): status byte, verify attempts left, unblock
 *  attempts left.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param status receives the PIN status: 0 not initialised, 1 enabled and not verified, 2 enabled and verified, 3
 *         disabled, 4 blocked, 5 permanently blocked, 6 unblocked, 7 changed (required)
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002B in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMGetPINStatusRespGetPIN2Status(const uint8_t* msg, int len, uint8_t* status,
                                                         uint8_t* verifyLeft, uint8_t* unblockLeft);
/** @} */
/** @defgroup dms_get_user_lock_state GetUserLockState (0x0034)
 *  @ingroup svc_dms
 *  @brief Asks whether the device user lock is on.
 *  @{
 */
/** Builds a GetUserLockState request (0x0034): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSGetUserLockStateReq(uint8_t* buf, int bufsize);
/** Parses a GetUserLockState response (0x0034).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param state receives the lock state: 0 disabled, 1 enabled (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or state is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSGetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);
/** @} */
/** @defgroup dms_set_user_lock_state SetUserLockState (0x0035)
 *  @ingroup svc_dms
 *  @brief Turns the device user lock on or off.
 *  @{
 */
/** Builds a SetUserLockState request (0x0035) with its mandatory item 0x01.
 *  Item 0x01 (length 5): the state byte, then the lock code as a little-endian u32.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param state the lock state to set: 0 disabled, 1 enabled
 *  @param lockCode the current lock code
 *  @return 15, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 15.
 */
ZOVQMI_API int zovQMIDMSSetUserLockStateReq(uint8_t* buf, int bufsize, uint8_t state, uint32_t lockCode);
/** Parses a SetUserLockState response (0x0035): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0035 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSSetUserLockStateResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_set_user_lock_code SetUserLockCode (0x0036)
 *  @ingroup svc_dms
 *  @brief Changes the device user lock code.
 *  @{
 */
/** Builds a SetUserLockCode request (0x0036) with its mandatory item 0x01.
 *  Item 0x01 (length 8): the two codes as little-endian u32, old code first.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param oldCode the current lock code
 *  @param newCode the new lock code
 *  @return 18, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 18.
 */
ZOVQMI_API int zovQMIDMSSetUserLockCodeReq(uint8_t* buf, int bufsize, uint32_t oldCode, uint32_t newCode);
/** Parses a SetUserLockCode response (0x0036): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0036 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSSetUserLockCodeResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_validate_service_programming_code ValidateServiceProgrammingCode (0x003B)
 *  @ingroup svc_dms
 *  @brief Checks a service programming code.
 *  @{
 */
/** Builds a ValidateServiceProgrammingCode request (0x003B) with its mandatory item 0x01.
 *  Item 0x01 (length 6): the 6 code bytes (message bytes 10 to 15).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param code the 6 code bytes, usually ASCII digits, copied as they are (required)
 *  @return 16, the message length; ZOVQMI_ERR_ARG when buf or code is null or bufsize is below 16.
 */
ZOVQMI_API int zovQMIDMSValidateServiceProgrammingCodeReq(uint8_t* buf, int bufsize, const uint8_t code[6]);
/** Parses a ValidateServiceProgrammingCode response (0x003B): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003B in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSValidateServiceProgrammingCodeResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup dms_uim_get_iccid UIMGetICCID (0x003C)
 *  @ingroup svc_dms
 *  @brief Asks for the ICCID of the UIM.
 *  @{
 */
/** Builds a UIMGetICCID request (0x003C): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSUIMGetICCIDReq(uint8_t* buf, int bufsize);
/** Parses a UIMGetICCID response (0x003C): the ICCID from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the ICCID in bytes, the item's value length (required)
 *  @param data receives the ICCID bytes, no terminator added; may be null to learn the length first. No capacity is
 *         checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x003C in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSUIMGetICCIDResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
/** @} */
/** @defgroup dms_uim_get_ck_status UIMGetCKStatus (0x0040)
 *  @ingroup svc_dms
 *  @brief Asks for the state of a personalisation facility (control key).
 *  @{
 */
/** Builds a UIMGetCKStatus request (0x0040) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the facility byte (message byte 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param facility the personalisation facility: 0 network, 1 network subset, 2 service provider, 3 corporate, 4 UIM
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIDMSUIMGetCKStatusReq(uint8_t* buf, int bufsize, uint8_t facility);
/** Parses a UIMGetCKStatus response (0x0040): status and retries.
 *  Item 0x01: facility status byte, verify attempts left, unblock attempts left.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param status receives the facility status: 0 deactivated, 1 activated, 2 blocked (required)
 *  @param verifyLeft receives the number of verify attempts left (required)
 *  @param unblockLeft receives the number of unblock attempts left (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or any of
 *          the three outputs is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0040 in msg; ZOVQMI_ERR_NO_TLV: no result
 *          item (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSUIMGetCKStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status,
                                           uint8_t* verifyLeft, uint8_t* unblockLeft);
/** Reads whether the facility blocks operation, from a UIMGetCKStatus response.
 *  Reads item 0x10 OperationBlockingFacility of a UIMGetCKStatus message (0x0040): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param blocking receives 0 when the facility does not block operation, 1 when it does (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or blocking is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0040 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMGetCKStatusRespGetOperationBlockingFacility(const uint8_t* msg, int len,
                                                                       uint8_t* blocking);
/** @} */
/** @defgroup dms_uim_set_ck_protection UIMSetCKProtection (0x0041)
 *  @ingroup svc_dms
 *  @brief Deactivates a personalisation facility with its control key.
 *  @{
 */
/** Builds a UIMSetCKProtection request (0x0041) with its mandatory item 0x01.
 *  Item 0x01 (length 3 + keyLength): facility, state, key length byte, key bytes.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param facility the personalisation facility: 0 network, 1 network subset, 2 service provider, 3 corporate, 4 UIM
 *  @param state the state to set: 0 deactivate
 *  @param keyLength length of key in bytes; only its low 8 bits are used
 *  @param key control key bytes, copied as they are (no terminator); may be null when keyLength is 0
 *  @return 13 + keyLength, the message length; ZOVQMI_ERR_ARG when buf is null, when bufsize is below 13 + keyLength,
 *          or when keyLength is non-zero and key is null.
 */
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t state,
                                              uint8_t keyLength, const uint8_t* key);
/** Parses a UIMSetCKProtection response (0x0041): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0041 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the control key attempts left from a UIMSetCKProtection response.
 *  Reads item 0x10 FacilityCKRetryStatus of a UIMSetCKProtection message (0x0041): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param retriesLeft receives the number of attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or retriesLeft is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0041 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMSetCKProtectionRespGetFacilityCKRetryStatus(const uint8_t* msg, int len,
                                                                       uint8_t* retriesLeft);
/** @} */
/** @defgroup dms_uim_unblock_ck UIMUnblockCK (0x0042)
 *  @ingroup svc_dms
 *  @brief Unblocks a blocked personalisation facility with its unblock key.
 *  @{
 */
/** Builds a UIMUnblockCK request (0x0042) with its mandatory item 0x01.
 *  Item 0x01 (length 2 + keyLength): facility, key length byte, key bytes; the message written is 12 + keyLength
 *  bytes. Send 12 + keyLength bytes, not the value returned.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param facility the personalisation facility: 0 network, 1 network subset, 2 service provider, 3 corporate, 4 UIM
 *  @param keyLength length of key in bytes; only its low 8 bits are used
 *  @param key unblock key bytes, copied as they are (no terminator); may be null when keyLength is 0
 *  @return 13 + keyLength; ZOVQMI_ERR_ARG when buf is null, when bufsize is below 12 + keyLength, or when keyLength
 *          is non-zero and key is null.
 *  @note Deliberate: returns 13 + keyLength, one more than the 12 + keyLength bytes it writes; a caller that sends
 *        the returned length sends one byte past the message.
 */
ZOVQMI_API int zovQMIDMSUIMUnblockCKReq(uint8_t* buf, int bufsize, uint8_t facility, uint8_t keyLength,
                                        const uint8_t* key);
/** Parses a UIMUnblockCK response (0x0042): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0042 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIDMSUIMUnblockCKResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the unblock attempts left from a UIMUnblockCK response.
 *  Reads item 0x10 FacilityCKRetryStatus of a UIMUnblockCK message (0x0042): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param retriesLeft receives the number of attempts left (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or retriesLeft is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0042 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIDMSUIMUnblockCKRespGetFacilityCKRetryStatus(const uint8_t* msg, int len, uint8_t* retriesLeft);
/** @} */
/** @defgroup dms_uim_get_imsi UIMGetIMSI (0x0043)
 *  @ingroup svc_dms
 *  @brief Asks for the IMSI of the UIM.
 *  @{
 */
/** Builds a UIMGetIMSI request (0x0043): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSUIMGetIMSIReq(uint8_t* buf, int bufsize);
/** Parses a UIMGetIMSI response (0x0043): the IMSI from item 0x01.
 *  The whole value of item 0x01 is the text, of any length, not terminated.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param length receives the length of the IMSI in bytes, the item's value length (required)
 *  @param data receives the IMSI bytes, no terminator added; may be null to learn the length first. No capacity is
 *         checked: provide room for *length bytes (at most 65535)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or length is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0043 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSUIMGetIMSIResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* length, void* data);
/** @} */
/** @defgroup dms_uim_get_state UIMGetState (0x0044)
 *  @ingroup svc_dms
 *  @brief Asks for the state of the UIM.
 *  @{
 */
/** Builds a UIMGetState request (0x0044): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIDMSUIMGetStateReq(uint8_t* buf, int bufsize);
/** Parses a UIMGetState response (0x0044).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param state receives the UIM state: 0x00 initialised, 0x01 initialisation failed, 0x02 not present, 0xFF state
 *         unavailable (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or state is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0044 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIDMSUIMGetStateResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* state);

/** @} */
/* ------------------------------------------------------------ end DMS -- */


/* ---------------------------------------------------------------- NAS -- */
/** @defgroup svc_nas NAS: network access service (service 3)
 *  @brief Registration, serving system, signal strength, network scans, preferred and forbidden networks, system
 *  selection.
 *  @note Deliberate: parsers read fixed fields at their offsets and take counts and lengths from the message as they
 *  stand, without comparing them with the item's length: a short item is read on into the bytes that follow it. Only
 *  a read past the end of the received message is refused, with ZOVQMI_ERR_MALFORMED, and the outputs of that
 *  item are then left untouched.
 */
#pragma pack(push, 1)

/** The serving system, item 0x01 of GetServingSystem responses and ServingSystem indications.
 *  5 bytes plus a native pointer: 9 bytes on 32-bit hosts. Packed; it has no multi-byte integer field. The
 *  parsers fill `state` and `listCount`; `list` is set by the caller before the call and never written.
 *  @ingroup nas_get_serving_system
 */
typedef struct NASServingSystem {
    uint8_t state[4];   /**< [0] registration state: 0 not registered, 1 registered, 2 searching, 3 denied,
                             4 unknown; [1] circuit switched attach state and [2] packet switched attach state:
                             0 unknown, 1 attached, 2 detached; [3] network type: 0 unknown, 1 3GPP2, 2 3GPP */
    uint8_t listCount;  /**< number of radio interfaces in use (bytes that follow in the item) */
    uint8_t* list;      /**< caller buffer for the listCount radio interface bytes (0x01 cdma2000 1x,
                             0x02 cdma2000 HRPD, 0x04 GSM, 0x05 UMTS, 0x08 LTE), up to 255; null copies nothing */
} NASServingSystem;

/** One network: the element of every network list (scan results, current and home network, preferred and
 *  forbidden lists). 8 bytes plus a native pointer: 12 bytes on 32-bit hosts. Packed; the multi-byte integer
 *  fields hold little-endian bytes on every host. Arrays are walked with this record's size as stride. Each
 *  function reads or writes only its own fields and leaves the others as the caller set them:
 *
 *  | field | written by |
 *  |---|---|
 *  | firstCode, secondCode | all the network parsers; read by both list builders |
 *  | thirdCode | the preferred-list parsers; read by the preferred-list builder |
 *  | status | the network scan |
 *  | descriptionLength | the scan, the current network and the home network |
 *
 *  @ingroup svc_nas
 */
typedef struct NASNetworkRecord {
    uint16_t firstCode;         /**< mobile country code, MCC (little-endian bytes) */
    uint16_t secondCode;        /**< mobile network code, MNC (little-endian bytes) */
    uint16_t thirdCode;         /**< preferred lists: the access technology bits as the modem defines them
                                     (little-endian bytes) */
    uint8_t status;             /**< network scan: in-use, roaming, forbidden and preferred bits, two each (see
                                     zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation()) */
    uint8_t descriptionLength;  /**< length of the network name that follows in the item */
    uint8_t* description;       /**< caller buffer for the descriptionLength name bytes (not terminated), up to
                                     255; null copies nothing; never written itself */
} NASNetworkRecord;

/** One RF band entry, laid out as on the wire and copied as it is. 5 bytes, packed; the multi-byte integer
 *  fields hold little-endian bytes on every host.
 *  @ingroup svc_nas
 */
typedef struct NASRFBandRecord {
    uint8_t first;    /**< radio interface: 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x04 GSM, 0x05 UMTS, 0x08 LTE */
    uint16_t second;  /**< active band class (little-endian bytes) */
    uint16_t third;   /**< active channel (little-endian bytes) */
} NASRFBandRecord;

/** The network of a manual registration, item 0x10 of InitiateNetworkRegister, copied to the wire as it is.
 *  5 bytes, packed; the multi-byte integer fields hold little-endian bytes on every host.
 *  @ingroup nas_initiate_network_register
 */
typedef struct NASManualNetworkRegister {
    uint16_t firstCode;   /**< mobile country code, MCC (little-endian bytes) */
    uint16_t secondCode;  /**< mobile network code, MNC (little-endian bytes) */
    uint8_t third;        /**< radio access technology: 0x04 GSM, 0x05 UMTS, 0x08 LTE */
} NASManualNetworkRegister;

#pragma pack(pop)

/** @defgroup nas_reset Reset (0x0000)
 *  @ingroup svc_nas
 *  @brief Resets the NAS state of the client.
 *  @{
 */
/** Builds a Reset request (0x0000): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASResetReq(uint8_t* buf, int bufsize);
/** Parses a Reset response (0x0000): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0000 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup nas_abort Abort (0x0001)
 *  @ingroup svc_nas
 *  @brief Aborts a NAS request still in progress, named by its transaction id.
 *  @{
 */
/** Builds an Abort request (0x0001) with its mandatory item 0x01.
 *  Item 0x01 (length 2): the transaction id, little-endian.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param transactionId the transaction id of the request to abort
 *  @return 12, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 12.
 */
ZOVQMI_API int zovQMINASAbortReq(uint8_t* buf, int bufsize, uint16_t transactionId);
/** Parses a Abort response (0x0001): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASAbortResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_set_event_report SetEventReport (0x0002)
 *  @ingroup svc_nas
 *  @brief Chooses which radio changes the modem reports with the EventReport indication.
 *  @{
 */
/** Builds a SetEventReport request (0x0002): the 7-byte header, no item.
 *  Append the reporting items with the zovQMINASSetEventReportReqAdd... functions.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASSetEventReportReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 SignalStrengthIndicator to a SetEventReport request (0x0002).
 *  Adds 5 + count bytes: type, length 2 + count, report byte, count byte, count threshold bytes.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @param count number of thresholds (0 to 255)
 *  @param thresholds count thresholds, each a signed dBm value in one byte; may be null when count is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or count is non-zero and thresholds is null;
 *          ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddSignalStrengthIndicator(uint8_t* buf, int bufsize, uint8_t report,
                                                                    uint8_t count, const uint8_t* thresholds);
/** Appends item 0x11 RFBandInformation to a SetEventReport request (0x0002).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddRFBandInformation(uint8_t* buf, int bufsize, uint8_t report);
/** Appends item 0x12 RegistrationRejectReasons to a SetEventReport request (0x0002).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddRegistrationRejectReasons(uint8_t* buf, int bufsize, uint8_t report);
/** Appends item 0x13 RSSIIndicator to a SetEventReport request (0x0002).
 *  Adds 5 bytes: type, length 2, report byte, delta byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @param delta the change of the reported value that triggers a new report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddRSSIIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
/** Appends item 0x14 ECIOIndicator to a SetEventReport request (0x0002).
 *  Adds 5 bytes: type, length 2, report byte, delta byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @param delta the change of the reported value that triggers a new report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddECIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
/** Appends item 0x15 IOIndicator to a SetEventReport request (0x0002).
 *  Adds 5 bytes: type, length 2, report byte, delta byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @param delta the change of the reported value that triggers a new report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddIOIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
/** Appends item 0x16 SINRIndicator to a SetEventReport request (0x0002).
 *  Adds 5 bytes: type, length 2, report byte, delta byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @param delta the change of the reported value that triggers a new report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddSINRIndicator(uint8_t* buf, int bufsize, uint8_t report, uint8_t delta);
/** Appends item 0x17 ErrorRateIndicator to a SetEventReport request (0x0002).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report reporting switch: 0 do not report, 1 report
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetEventReportReqAddErrorRateIndicator(uint8_t* buf, int bufsize, uint8_t report);
/** Parses a SetEventReport response (0x0002): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup nas_event_report EventReport indication (0x0002)
 *  @ingroup svc_nas
 *  @brief The radio changes a client asked for with SetEventReport; it carries the id of that request.
 *  @{
 */
/** Confirms that msg holds an EventReport indication (0x0002).
 *  Only the message id is checked; read the items with the zovQMINASEventReportINDGet... functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0002 in msg. No item
 *          is read, so it never gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMINASEventReportIND(const uint8_t* msg, int len);
/** Reads the signal strength of an EventReport indication.
 *  Reads item 0x10 SignalStrength of a EventReport message (0x0002): strength byte, radio interface byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param strength receives the signal strength in dBm, a signed value in one byte (required)
 *  @param radioInterface receives the radio interface: 0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, strength or radioInterface is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetSignalStrength(const uint8_t* msg, int len, uint8_t* strength,
                                                        uint8_t* radioInterface);
/** Reads the RF band list of an EventReport indication.
 *  Reads item 0x11 RFBandInformationList of a EventReport message (0x0002): a count byte, then count 5-byte entries
 *  {radio interface, u16 band class, u16 channel}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of entries (required)
 *  @param list receives count NASRFBandRecord entries copied as they are, up to 255; may be null to learn the count
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetRFBandInformationList(const uint8_t* msg, int len, uint8_t* count,
                                                               NASRFBandRecord* list);
/** Reads why the network refused a registration, from an EventReport indication.
 *  Reads item 0x12 RegistrationRejectReason of a EventReport message (0x0002): domain byte, u16 reject cause.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param domain receives the service domain: 1 circuit switched, 2 packet switched (required)
 *  @param cause receives the reject cause the network sent, native value (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg, domain or cause is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetRegistrationRejectReason(const uint8_t* msg, int len, uint8_t* domain,
                                                                  uint16_t* cause);
/** Reads the RSSI of an EventReport indication.
 *  Reads item 0x13 RSSI of a EventReport message (0x0002): RSSI byte, radio interface byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param rssi receives the RSSI as a positive number: 75 means -75 dBm (required)
 *  @param radioInterface receives the radio interface: 0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg, rssi or radioInterface is null; ZOVQMI_ERR_NO_MESSAGE:
 *          no message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an item or a field read
 *          runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetRSSI(const uint8_t* msg, int len, uint8_t* rssi, uint8_t* radioInterface);
/** Reads the Ec/Io of an EventReport indication.
 *  Reads item 0x14 ECIO of a EventReport message (0x0002): Ec/Io byte, radio interface byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param ecio receives the Ec/Io in units of -0.5 dB: 10 means -5 dB (required)
 *  @param radioInterface receives the radio interface: 0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg, ecio or radioInterface is null; ZOVQMI_ERR_NO_MESSAGE:
 *          no message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an item or a field read
 *          runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetECIO(const uint8_t* msg, int len, uint8_t* ecio, uint8_t* radioInterface);
/** Reads the received power Io of an EventReport indication.
 *  Reads item 0x15 IO of a EventReport message (0x0002): a u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param io receives Io in dBm, a signed 32-bit value stored as u32, native (required)
 *  @return the value length of item 0x15; ZOVQMI_ERR_ARG: msg or io is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0002
 *          in msg; ZOVQMI_ERR_NO_TLV: no item 0x15; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end
 *          of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetIO(const uint8_t* msg, int len, uint32_t* io);
/** Reads the SINR level of an EventReport indication.
 *  Reads item 0x16 SINR of a EventReport message (0x0002): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param sinr receives the SINR level, 0 (-9 dB) to 8 (+9 dB) (required)
 *  @return the value length of item 0x16; ZOVQMI_ERR_ARG: msg or sinr is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x16; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetSINR(const uint8_t* msg, int len, uint8_t* sinr);
/** Reads the error rate of an EventReport indication.
 *  Reads item 0x17 ErrorRate of a EventReport message (0x0002): u16 error rate, radio interface byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param errorRate receives the frame or block error rate as the modem reports it, native value (required)
 *  @param radioInterface receives the radio interface: 0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE (required)
 *  @return the value length of item 0x17; ZOVQMI_ERR_ARG: msg, errorRate or radioInterface is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0002 in msg; ZOVQMI_ERR_NO_TLV: no item 0x17; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASEventReportINDGetErrorRate(const uint8_t* msg, int len, uint16_t* errorRate,
                                                   uint8_t* radioInterface);

/** @} */
/** @defgroup nas_indication_register IndicationRegister (0x0003)
 *  @ingroup svc_nas
 *  @brief Registers for the serving system, system selection and DDTM indications.
 *  @{
 */
/** Builds an IndicationRegister request (0x0003): the 7-byte header, no item.
 *  Append the registration items with the zovQMINASIndicationRegisterReqAdd... functions (item 0x11 is not offered).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASIndicationRegisterReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 SystemSelectionPreference to a IndicationRegister request (0x0003).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASIndicationRegisterReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report registration switch for the SystemSelectionPreference indication (0x0034): 0 off, 1 on
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASIndicationRegisterReqAddSystemSelectionPreference(uint8_t* buf, int bufsize, uint8_t report);
/** Appends item 0x12 DDTMEvents to a IndicationRegister request (0x0003).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASIndicationRegisterReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report registration switch for the DDTM indication (0x0038): 0 off, 1 on
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASIndicationRegisterReqAddDDTMEvents(uint8_t* buf, int bufsize, uint8_t report);
/** Appends item 0x13 ServingSystemEvents to a IndicationRegister request (0x0003).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMINASIndicationRegisterReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report registration switch for the ServingSystem indication (0x0024): 0 off, 1 on
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASIndicationRegisterReqAddServingSystemEvents(uint8_t* buf, int bufsize, uint8_t report);
/** Parses a IndicationRegister response (0x0003): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0003 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASIndicationRegisterResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_signal_strength GetSignalStrength (0x0020)
 *  @ingroup svc_nas
 *  @brief Asks for the signal strength and, on request, RSSI, Ec/Io, Io, SINR and error rates.
 *  @{
 */
/** Builds a GetSignalStrength request (0x0020): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetSignalStrengthReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 RequestMask to a GetSignalStrength request (0x0020).
 *  Adds 5 bytes: type, length 2, the mask as a little-endian u16.
 *  @param buf the request, begun by zovQMINASGetSignalStrengthReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mask which extra items to return: bit 0 RSSI (0x11), bit 1 Ec/Io (0x12), bit 2 Io (0x13), bit 3 SINR
 *         (0x14), bit 4 error rate (0x15)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthReqAddRequestMask(uint8_t* buf, int bufsize, uint16_t mask);
/** Parses a GetSignalStrength response (0x0020): the current signal strength.
 *  Item 0x01: strength byte, radio interface byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param strength receives the signal strength in dBm, a signed value in one byte (required)
 *  @param radioInterface receives the radio interface: 0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result, strength or
 *          radioInterface is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0020 in msg; ZOVQMI_ERR_NO_TLV: no result item
 *          (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item
 *          or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* strength,
                                              uint8_t* radioInterface);
/** Reads the signal strength list of a GetSignalStrength response.
 *  Reads item 0x10 SignalStrengthList of a GetSignalStrength message (0x0020): a u16 count, then count pairs {value
 *  byte, radio interface byte}.
 *  The count is not compared with the item length; with both arrays null only the count is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of pairs, native value (required)
 *  @param first receives the count values, signed dBm values; may be null
 *  @param second receives the count radio interfaces (0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE); may be null
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetSignalStrengthList(const uint8_t* msg, int len, uint16_t* count,
                                                                   uint8_t* first, uint8_t* second);
/** Reads the RSSI list of a GetSignalStrength response.
 *  Reads item 0x11 RSSIList of a GetSignalStrength message (0x0020): a u16 count, then count pairs {value byte, radio
 *  interface byte}.
 *  The count is not compared with the item length; with both arrays null only the count is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of pairs, native value (required)
 *  @param first receives the count values, positive RSSI numbers: 75 means -75 dBm; may be null
 *  @param second receives the count radio interfaces (0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE); may be null
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetRSSIList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second);
/** Reads the Ec/Io list of a GetSignalStrength response.
 *  Reads item 0x12 ECIOList of a GetSignalStrength message (0x0020): a u16 count, then count pairs {value byte, radio
 *  interface byte}.
 *  The count is not compared with the item length; with both arrays null only the count is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of pairs, native value (required)
 *  @param first receives the count values, in units of -0.5 dB; may be null
 *  @param second receives the count radio interfaces (0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS,
 *         0x04 GSM, 0x05 UMTS, 0x08 LTE); may be null
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetECIOList(const uint8_t* msg, int len, uint16_t* count, uint8_t* first,
                                                         uint8_t* second);
/** Reads the received power Io of a GetSignalStrength response.
 *  Reads item 0x13 IO of a GetSignalStrength message (0x0020): a u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param io receives Io in dBm, a signed 32-bit value stored as u32, native (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg or io is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0020
 *          in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end
 *          of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetIO(const uint8_t* msg, int len, uint32_t* io);
/** Reads the SINR level of a GetSignalStrength response.
 *  Reads item 0x14 SINR of a GetSignalStrength message (0x0020): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param sinr receives the SINR level, 0 (-9 dB) to 8 (+9 dB) (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg or sinr is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetSINR(const uint8_t* msg, int len, uint8_t* sinr);
/** Reads the error rate list of a GetSignalStrength response.
 *  Reads item 0x15 ErrorRateList of a GetSignalStrength message (0x0020): a u16 count, then count 3-byte entries {u16
 *  error rate, radio interface byte}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of entries, native value (required)
 *  @param errorRates receives the count error rates, native values; may be null
 *  @param radioInterfaces receives the count radio interfaces (0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03
 *         AMPS, 0x04 GSM, 0x05 UMTS, 0x08 LTE); may be null
 *  @return the value length of item 0x15; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x15; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSignalStrengthRespGetErrorRateList(const uint8_t* msg, int len, uint16_t* count,
                                                              uint16_t* errorRates, uint8_t* radioInterfaces);

/** @} */
/** @defgroup nas_perform_network_scan PerformNetworkScan (0x0021)
 *  @ingroup svc_nas
 *  @brief Scans for the 3GPP networks in reach.
 *  @{
 */
/** Builds a PerformNetworkScan request (0x0021): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASPerformNetworkScanReq(uint8_t* buf, int bufsize);
/** Parses a PerformNetworkScan response (0x0021): only the result item 0x02 is read.
 *  The networks found are in an optional item: read it with
 *  zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation().
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0021 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASPerformNetworkScanResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the networks found by a PerformNetworkScan response.
 *  Reads item 0x10 3GPPNetworkInformation of a PerformNetworkScan message (0x0021): a u16 count, then per network
 *  {u16 MCC, u16 MNC, status byte, description length n, n description bytes}.
 *  Status bits, two per property: bits 0-1 in use (1 current serving, 2 available), bits 2-3 roaming (1 home, 2
 *  roaming), bits 4-5 forbidden (1 forbidden, 2 not forbidden), bits 6-7 preferred (1 preferred, 2 not preferred).
 *  The wire elements vary in length, the records do not; the count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of networks, native value (required)
 *  @param list array of count NASNetworkRecord; fills firstCode (MCC), secondCode (MNC), status and descriptionLength
 *         of each, and copies the description (network name, not terminated) where the caller set a description
 *         pointer; thirdCode is left alone. May be null to learn the count
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0021 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(const uint8_t* msg, int len, uint16_t* count,
                                                                        NASNetworkRecord* list);

/** @} */
/** @defgroup nas_initiate_network_register InitiateNetworkRegister (0x0022)
 *  @ingroup svc_nas
 *  @brief Registers with a network, automatically or with one named by the caller.
 *  @{
 */
/** Builds an InitiateNetworkRegister request (0x0022) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the action byte (message byte 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param action the registration action: 1 automatic, 2 manual (add the network with
 *         zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation())
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMINASInitiateNetworkRegisterReq(uint8_t* buf, int bufsize, uint8_t action);
/** Appends item 0x10 ManualNetworkRegisterInformation to a InitiateNetworkRegister request (0x0022).
 *  Adds 8 bytes: type, length 5, the 5 bytes of the record as they are (u16 MCC, u16 MNC, radio access technology).
 *  @param buf the request, begun by zovQMINASInitiateNetworkRegisterReq()
 *  @param bufsize capacity of buf in bytes
 *  @param info the network to register with, its codes held as little-endian bytes (required)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null or info is null; ZOVQMI_ERR_NO_ROOM: the item does not
 *          fit in bufsize (nothing written).
 */
ZOVQMI_API int zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(
    uint8_t* buf, int bufsize, const NASManualNetworkRegister* info);
/** Parses a InitiateNetworkRegister response (0x0022): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0022 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASInitiateNetworkRegisterResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_initiate_attach InitiateAttach (0x0023)
 *  @ingroup svc_nas
 *  @brief Attaches to or detaches from the packet switched domain.
 *  @{
 */
/** Builds a InitiateAttach request (0x0023): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASInitiateAttachReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 PSAttachAction to a InitiateAttach request (0x0023).
 *  Adds 4 bytes: type, length 1, the action byte.
 *  @param buf the request, begun by zovQMINASInitiateAttachReq()
 *  @param bufsize capacity of buf in bytes
 *  @param action the packet switched action: 1 attach, 2 detach
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASInitiateAttachReqAddPSAttachAction(uint8_t* buf, int bufsize, uint8_t action);
/** Parses a InitiateAttach response (0x0023): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0023 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASInitiateAttachResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_serving_system GetServingSystem (0x0024)
 *  @ingroup svc_nas
 *  @brief Asks for the registration state and the network in use; the ServingSystem indication carries the same id
 *  and item 0x01.
 *  @{
 */
/** Builds a GetServingSystem request (0x0024): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetServingSystemReq(uint8_t* buf, int bufsize);
/** Parses a GetServingSystem response (0x0024) into a NASServingSystem record.
 *  Item 0x01: four state bytes, a count byte, count radio interface bytes; see NASServingSystem. The list is copied
 *  only when servingSystem->list is non-null; the count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param servingSystem receives the serving system (required); set its list pointer beforehand to a buffer of up to
 *         255 bytes, or to null to skip the list
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or
 *          servingSystem is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no result item
 *          (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item
 *          or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetServingSystemResp(const uint8_t* msg, int len, QmiResult* result,
                                             NASServingSystem* servingSystem);
/** Reads the roaming indicator of a GetServingSystem response.
 *  Reads item 0x10 RoamingIndicatorValue of a GetServingSystem message (0x0024): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param value receives the roaming indicator: 0 roaming, 1 home (not roaming), other values as the network defines
 *         them (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or value is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetRoamingIndicatorValue(const uint8_t* msg, int len, uint8_t* value);
/** Reads the data services of the serving system from a GetServingSystem response.
 *  Reads item 0x11 DataServiceCapabilityList of a GetServingSystem message (0x0024): a count byte, then count
 *  capability bytes.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of capabilities (required)
 *  @param list receives the count capability bytes, up to 255: 1 GPRS, 2 EDGE, 3 HSDPA, 4 HSUPA, 5 WCDMA, 6 CDMA 1x,
 *         7 EV-DO rev. 0, 8 EV-DO rev. A, 9 GSM, 10 EV-DO rev. B, 11 LTE; may be null
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetDataServiceCapabilityList(const uint8_t* msg, int len, uint8_t* count,
                                                                         uint8_t* list);
/** Reads the network in use from a GetServingSystem response.
 *  Reads item 0x12 CurrentPLMN of a GetServingSystem message (0x0024): u16 MCC, u16 MNC, description length n, n
 *  description bytes.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param network receives firstCode (MCC), secondCode (MNC) and descriptionLength, and the network name (not
 *         terminated) through its description pointer when the caller set one; thirdCode and status are left alone
 *         (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or network is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetCurrentPLMN(const uint8_t* msg, int len, NASNetworkRecord* network);
/** Reads the CDMA system and network ids from a GetServingSystem response.
 *  Reads item 0x13 CDMASystemID of a GetServingSystem message (0x0024): u16 SID, u16 NID.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param systemId receives the system id (SID), native value (required)
 *  @param networkId receives the network id (NID), native value (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg, systemId or networkId is null; ZOVQMI_ERR_NO_MESSAGE:
 *          no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an item or a field read
 *          runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMASystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                            uint16_t* networkId);
/** Reads the CDMA base station id and position from a GetServingSystem response.
 *  Reads item 0x14 CDMABaseStationInformation of a GetServingSystem message (0x0024): u16 base station id, u32
 *  latitude, u32 longitude.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param baseId receives the base station id, native value (required)
 *  @param latitude receives the latitude in units of 0.25 arc-second, a signed value stored as u32 (required)
 *  @param longitude receives the longitude in units of 0.25 arc-second, a signed value stored as u32 (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg, baseId, latitude or longitude is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMABaseStationInformation(const uint8_t* msg, int len,
                                                                          uint16_t* baseId, uint32_t* latitude,
                                                                          uint32_t* longitude);
/** Reads the roaming indicator per radio interface from a GetServingSystem response.
 *  Reads item 0x15 RoamingIndicatorList of a GetServingSystem message (0x0024): a count byte, then count pairs {radio
 *  interface byte, roaming indicator byte}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of pairs (required)
 *  @param first receives the count radio interfaces (0x00 none, 0x01 cdma2000 1x, 0x02 cdma2000 HRPD, 0x03 AMPS, 0x04
 *         GSM, 0x05 UMTS, 0x08 LTE); may be null
 *  @param second receives the count roaming indicators (0 roaming, 1 home); may be null
 *  @return the value length of item 0x15; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x15; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetRoamingIndicatorList(const uint8_t* msg, int len, uint8_t* count,
                                                                    uint8_t* first, uint8_t* second);
/** Reads the default roaming indicator from a GetServingSystem response.
 *  Reads item 0x16 DefaultRoamingIndicator of a GetServingSystem message (0x0024): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param value receives the roaming indicator the preferred roaming list sets by default (required)
 *  @return the value length of item 0x16; ZOVQMI_ERR_ARG: msg or value is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x16; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetDefaultRoamingIndicator(const uint8_t* msg, int len, uint8_t* value);
/** Reads the 3GPP2 time zone from a GetServingSystem response.
 *  Reads item 0x17 3GPP2TimeZone of a GetServingSystem message (0x0024): leap seconds byte, local offset byte,
 *  daylight saving byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param leapSeconds receives the leap seconds since the start of CDMA system time (required)
 *  @param localOffset receives the offset of local time from UTC in units of 30 minutes, a signed value (required)
 *  @param daylightSaving receives 1 when daylight saving time is in effect, else 0 (required)
 *  @return the value length of item 0x17; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x17; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGet3GPP2TimeZone(const uint8_t* msg, int len, uint8_t* leapSeconds,
                                                             uint8_t* localOffset, uint8_t* daylightSaving);
/** Reads the CDMA protocol revision in use from a GetServingSystem response.
 *  Reads item 0x18 CDMAPRevInUse of a GetServingSystem message (0x0024): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param pRev receives the protocol revision (P_REV) in use (required)
 *  @return the value length of item 0x18; ZOVQMI_ERR_ARG: msg or pRev is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x18; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemRespGetCDMAPRevInUse(const uint8_t* msg, int len, uint8_t* pRev);
/** Parses a ServingSystem indication (0x0024) into a NASServingSystem record.
 *  Item 0x01 as in the response; there is no result item. Its optional items are read with the
 *  zovQMINASGetServingSystemRespGet... functions, which look for the same id.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param servingSystem receives the serving system (required); set its list pointer beforehand, or to null to skip
 *         the list
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg or servingSystem is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0024 in msg; ZOVQMI_ERR_NO_TLV: no item 0x01; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetServingSystemIND(const uint8_t* msg, int len, NASServingSystem* servingSystem);

/** @} */
/** @defgroup nas_get_home_network GetHomeNetwork (0x0025)
 *  @ingroup svc_nas
 *  @brief Asks for the home network of the subscription.
 *  @{
 */
/** Builds a GetHomeNetwork request (0x0025): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetHomeNetworkReq(uint8_t* buf, int bufsize);
/** Parses a GetHomeNetwork response (0x0025) into a NASNetworkRecord.
 *  Item 0x01: u16 MCC, u16 MNC, description length n, n description bytes.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param network receives firstCode (MCC), secondCode (MNC) and descriptionLength, and the network name (not
 *         terminated) through its description pointer when the caller set one; thirdCode and status are left alone
 *         (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or network
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0025 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetHomeNetworkResp(const uint8_t* msg, int len, QmiResult* result, NASNetworkRecord* network);
/** Reads the CDMA home system and network ids from a GetHomeNetwork response.
 *  Reads item 0x10 HomeSystemID of a GetHomeNetwork message (0x0025): u16 SID, u16 NID.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param systemId receives the home system id (SID), native value (required)
 *  @param networkId receives the home network id (NID), native value (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, systemId or networkId is null; ZOVQMI_ERR_NO_MESSAGE:
 *          no message 0x0025 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read
 *          runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetHomeNetworkRespGetHomeSystemID(const uint8_t* msg, int len, uint16_t* systemId,
                                                          uint16_t* networkId);

/** @} */
/** @defgroup nas_get_preferred_networks GetPreferredNetworks (0x0026)
 *  @ingroup svc_nas
 *  @brief Asks for the preferred 3GPP networks stored on the SIM and in the modem.
 *  @{
 */
/** Builds a GetPreferredNetworks request (0x0026): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetPreferredNetworksReq(uint8_t* buf, int bufsize);
/** Parses a GetPreferredNetworks response (0x0026): only the result item 0x02 is read.
 *  The lists are optional items: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0026 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASGetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the preferred networks of a GetPreferredNetworks response.
 *  Reads item 0x10 3GPPPreferredNetworks of a GetPreferredNetworks message (0x0026): a u16 count, then count entries
 *  {u16 MCC, u16 MNC, u16 access technology}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of networks, native value (required)
 *  @param list array of count NASNetworkRecord; fills firstCode (MCC), secondCode (MNC) and thirdCode (the access
 *         technology bits as the modem defines them) of each and leaves the other fields alone; may be null to learn
 *         the count
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0026 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetPreferredNetworksRespGet3GPPPreferredNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list);
/** Reads the static preferred networks of a GetPreferredNetworks response.
 *  Reads item 0x11 Static3GPPPreferredNetworks of a GetPreferredNetworks message (0x0026): a u16 count, then count
 *  entries {u16 MCC, u16 MNC, u16 access technology}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of networks, native value (required)
 *  @param list array of count NASNetworkRecord; fills firstCode (MCC), secondCode (MNC) and thirdCode (the access
 *         technology bits as the modem defines them) of each and leaves the other fields alone; may be null to learn
 *         the count
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0026 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetPreferredNetworksRespGetStatic3GPPPreferredNetworks(const uint8_t* msg, int len,
                                                                               uint16_t* count,
                                                                               NASNetworkRecord* list);
/** @} */
/** @defgroup nas_set_preferred_networks SetPreferredNetworks (0x0027)
 *  @ingroup svc_nas
 *  @brief Replaces the preferred 3GPP networks.
 *  @{
 */
/** Builds a SetPreferredNetworks request (0x0027): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASSetPreferredNetworksReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 3GPPPreferredNetworks to a SetPreferredNetworks request (0x0027).
 *  Adds 5 + 6 x count bytes: type, length 2 + 6 x count, u16 count, then firstCode, secondCode and thirdCode of each
 *  record, little-endian.
 *  @param buf the request, begun by zovQMINASSetPreferredNetworksReq()
 *  @param bufsize capacity of buf in bytes
 *  @param count number of networks, at most 170 (the item value holds 1024 bytes)
 *  @param list count NASNetworkRecord entries, walked with the record size as stride; its codes are read as
 *         little-endian bytes (MCC, MNC, the access technology bits as the modem defines them); may be null when
 *         count is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or count is non-zero and list is null;
 *          ZOVQMI_ERR_MALFORMED: count is above 170; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing
 *          written).
 */
ZOVQMI_API int zovQMINASSetPreferredNetworksReqAdd3GPPPreferredNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list);
/** Parses a SetPreferredNetworks response (0x0027): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0027 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetPreferredNetworksResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_forbidden_networks GetForbiddenNetworks (0x0028)
 *  @ingroup svc_nas
 *  @brief Asks for the forbidden 3GPP networks.
 *  @{
 */
/** Builds a GetForbiddenNetworks request (0x0028): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetForbiddenNetworksReq(uint8_t* buf, int bufsize);
/** Parses a GetForbiddenNetworks response (0x0028): only the result item 0x02 is read.
 *  The list is an optional item: read it with zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks().
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0028 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASGetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the forbidden networks of a GetForbiddenNetworks response.
 *  Reads item 0x10 3GPPForbiddenNetworks of a GetForbiddenNetworks message (0x0028): a u16 count, then count entries
 *  {u16 MCC, u16 MNC}.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of networks, native value (required)
 *  @param list array of count NASNetworkRecord; fills firstCode (MCC) and secondCode (MNC) of each and leaves the
 *         other fields alone; may be null to learn the count
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0028 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetForbiddenNetworksRespGet3GPPForbiddenNetworks(const uint8_t* msg, int len, uint16_t* count,
                                                                         NASNetworkRecord* list);
/** @} */
/** @defgroup nas_set_forbidden_networks SetForbiddenNetworks (0x0029)
 *  @ingroup svc_nas
 *  @brief Replaces the forbidden 3GPP networks.
 *  @{
 */
/** Builds a SetForbiddenNetworks request (0x0029): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASSetForbiddenNetworksReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 3GPPForbiddenNetworks to a SetForbiddenNetworks request (0x0029).
 *  Adds 5 + 4 x count bytes: type, length 2 + 4 x count, u16 count, then firstCode and secondCode of each record,
 *  little-endian.
 *  @param buf the request, begun by zovQMINASSetForbiddenNetworksReq()
 *  @param bufsize capacity of buf in bytes
 *  @param count number of networks, at most 255 (the item value holds 1024 bytes)
 *  @param list count NASNetworkRecord entries, walked with the record size as stride; firstCode (MCC) and secondCode
 *         (MNC) are read as little-endian bytes; may be null when count is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or count is non-zero and list is null;
 *          ZOVQMI_ERR_MALFORMED: count is above 255; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing
 *          written).
 */
ZOVQMI_API int zovQMINASSetForbiddenNetworksReqAdd3GPPForbiddenNetworks(uint8_t* buf, int bufsize, uint32_t count,
                                                                        const NASNetworkRecord* list);
/** Parses a SetForbiddenNetworks response (0x0029): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0029 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetForbiddenNetworksResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_accolc GetACCOLC (0x002C)
 *  @ingroup svc_nas
 *  @brief Asks for the access overload class.
 *  @{
 */
/** Builds a GetACCOLC request (0x002C): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetACCOLCReq(uint8_t* buf, int bufsize);
/** Parses a GetACCOLC response (0x002C): the access overload class.
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param accolc receives the access overload class, 0 to 15 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or accolc is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x002C in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetACCOLCResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* accolc);
/** @} */
/** @defgroup nas_set_accolc SetACCOLC (0x002D)
 *  @ingroup svc_nas
 *  @brief Sets the access overload class, under the service programming code.
 *  @{
 */
/** Builds a SetACCOLC request (0x002D) with its mandatory item 0x01.
 *  Item 0x01 (length 7): the 6 code bytes (message bytes 10 to 15), then the class byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param code the 6-byte service programming code, copied as it is (required)
 *  @param accolc the access overload class, 0 to 15
 *  @return 17, the message length; ZOVQMI_ERR_ARG: buf or code is null, or bufsize < 17.
 */
ZOVQMI_API int zovQMINASSetACCOLCReq(uint8_t* buf, int bufsize, const uint8_t* code, uint8_t accolc);
/** Parses a SetACCOLC response (0x002D): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002D in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetACCOLCResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_device_config GetDeviceConfig (0x002F)
 *  @ingroup svc_nas
 *  @brief Asks for the CDMA and HDR device settings.
 *  @{
 */
/** Builds a GetDeviceConfig request (0x002F): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetDeviceConfigReq(uint8_t* buf, int bufsize);
/** Parses a GetDeviceConfig response (0x002F): only the result item 0x02 is read.
 *  Every setting is an optional item: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002F in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASGetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the slot cycle index of a GetDeviceConfig response.
 *  Reads item 0x11 SlotCycleIndex of a GetDeviceConfig message (0x002F): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param index receives the CDMA paging slot cycle index (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or index is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetSlotCycleIndex(const uint8_t* msg, int len, uint8_t* index);
/** Reads the station class mark of a GetDeviceConfig response.
 *  Reads item 0x12 StationClassMark of a GetDeviceConfig message (0x002F): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param mark receives the CDMA station class mark (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or mark is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetStationClassMark(const uint8_t* msg, int len, uint8_t* mark);
/** Reads the registration parameters of a GetDeviceConfig response.
 *  Reads item 0x13 RegistrationParameters of a GetDeviceConfig message (0x002F): three bytes.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param first receives the first byte (required)
 *  @param second receives the second byte (required)
 *  @param third receives the third byte (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg or any of the three outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetRegistrationParameters(const uint8_t* msg, int len, uint8_t* first,
                                                                     uint8_t* second, uint8_t* third);
/** Reads the forced HDR revision setting of a GetDeviceConfig response.
 *  Reads item 0x14 ForceHDRRevision of a GetDeviceConfig message (0x002F): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param revision receives the forced HDR revision setting as the modem defines it (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg or revision is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetForceHDRRevision(const uint8_t* msg, int len, uint8_t* revision);
/** Reads the HDR session configuration of a GetDeviceConfig response.
 *  Reads item 0x15 HDRSCPCustomConfig of a GetDeviceConfig message (0x002F): active byte, then three u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param active receives 1 when the custom configuration is active, else 0 (required)
 *  @param first receives the first u32, native (required)
 *  @param second receives the second u32, native (required)
 *  @param third receives the third u32, native (required)
 *  @return the value length of item 0x15; ZOVQMI_ERR_ARG: msg or any of the four outputs is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x15; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetHDRSCPCustomConfig(const uint8_t* msg, int len, uint8_t* active,
                                                                 uint32_t* first, uint32_t* second, uint32_t* third);
/** Reads the roaming preference of a GetDeviceConfig response.
 *  Reads item 0x16 RoamPreference of a GetDeviceConfig message (0x002F): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param preference receives the roaming preference as the modem defines it (required)
 *  @return the value length of item 0x16; ZOVQMI_ERR_ARG: msg or preference is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x002F in msg; ZOVQMI_ERR_NO_TLV: no item 0x16; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetDeviceConfigRespGetRoamPreference(const uint8_t* msg, int len, uint8_t* preference);
/** @} */
/** @defgroup nas_set_device_config SetDeviceConfig (0x0030)
 *  @ingroup svc_nas
 *  @brief Changes CDMA and HDR device settings.
 *  @{
 */
/** Builds a SetDeviceConfig request (0x0030): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASSetDeviceConfigReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 ServiceProgrammingCode to a SetDeviceConfig request (0x0030).
 *  Adds 9 bytes: type, length 6, the 6 code bytes as they are.
 *  @param buf the request, begun by zovQMINASSetDeviceConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param code the 6-byte service programming code (required)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null or code is null; ZOVQMI_ERR_NO_ROOM: the item does not
 *          fit in bufsize (nothing written).
 */
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddServiceProgrammingCode(uint8_t* buf, int bufsize, const uint8_t* code);
/** Appends item 0x14 ForceHDRRevision to a SetDeviceConfig request (0x0030).
 *  Adds 4 bytes: type, length 1, the revision byte.
 *  @param buf the request, begun by zovQMINASSetDeviceConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param revision the forced HDR revision setting as the modem defines it
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddForceHDRRevision(uint8_t* buf, int bufsize, uint8_t revision);
/** Appends item 0x15 HDRSCPCustomConfig to a SetDeviceConfig request (0x0030).
 *  Adds 16 bytes: type, length 13, the active byte, then the three values as little-endian u32.
 *  @param buf the request, begun by zovQMINASSetDeviceConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param active 1 to activate the custom configuration, 0 to deactivate it
 *  @param first the first 32-bit value
 *  @param second the second 32-bit value
 *  @param third the third 32-bit value
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddHDRSCPCustomConfig(uint8_t* buf, int bufsize, uint8_t active,
                                                                uint32_t first, uint32_t second, uint32_t third);
/** Appends item 0x16 RoamPreference to a SetDeviceConfig request (0x0030).
 *  Adds 4 bytes: type, length 1, the preference byte.
 *  @param buf the request, begun by zovQMINASSetDeviceConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param preference the roaming preference as the modem defines it
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetDeviceConfigReqAddRoamPreference(uint8_t* buf, int bufsize, uint8_t preference);
/** Parses a SetDeviceConfig response (0x0030): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0030 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetDeviceConfigResp(const uint8_t* msg, int len, QmiResult* result);

/** @} */
/** @defgroup nas_get_rf_band_info GetRFBandInfo (0x0031)
 *  @ingroup svc_nas
 *  @brief Asks for the band and channel in use per radio interface.
 *  @{
 */
/** Builds a GetRFBandInfo request (0x0031): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetRFBandInfoReq(uint8_t* buf, int bufsize);
/** Parses a GetRFBandInfo response (0x0031): the RF band list.
 *  Item 0x01: a count byte, then count 5-byte entries {radio interface, u16 band class, u16 channel}. The count is
 *  not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param count receives the number of entries (required)
 *  @param list receives count NASRFBandRecord entries copied as they are, up to 255; may be null to learn the count
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or count is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0031 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetRFBandInfoResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                          NASRFBandRecord* list);
/** @} */
/** @defgroup nas_get_an_aaa_status GetANAAAStatus (0x0032)
 *  @ingroup svc_nas
 *  @brief Asks for the state of the HDR access network authentication (AN-AAA).
 *  @{
 */
/** Builds a GetANAAAStatus request (0x0032): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetANAAAStatusReq(uint8_t* buf, int bufsize);
/** Parses a GetANAAAStatus response (0x0032).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param status receives the authentication status as the modem defines it (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or status is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0032 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMINASGetANAAAStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status);

/** @} */
/** @defgroup nas_set_system_selection_preference SetSystemSelectionPreference (0x0033)
 *  @ingroup svc_nas
 *  @brief Chooses which radio technologies, bands and roaming the modem may use.
 *  @{
 */
/** Builds a SetSystemSelectionPreference request (0x0033): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 EmergencyMode to a SetSystemSelectionPreference request (0x0033).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMINASSetSystemSelectionPreferenceReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode emergency mode: 0 off, 1 on
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddEmergencyMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Appends item 0x11 ModePreference to a SetSystemSelectionPreference request (0x0033).
 *  Adds 5 bytes: type, length 2, the preference as a little-endian u16.
 *  @param buf the request, begun by zovQMINASSetSystemSelectionPreferenceReq()
 *  @param bufsize capacity of buf in bytes
 *  @param preference the radio technologies allowed: bit 0 cdma2000 1x, bit 1 cdma2000 HRPD, bit 2 GSM, bit 3 UMTS,
 *         bit 4 LTE
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddModePreference(uint8_t* buf, int bufsize,
                                                                         uint16_t preference);
/** Appends item 0x12 BandPreference to a SetSystemSelectionPreference request (0x0033).
 *  Adds 11 bytes: type, length 8, the preference as a u64, low 32-bit word first.
 *  @param buf the request, begun by zovQMINASSetSystemSelectionPreferenceReq()
 *  @param bufsize capacity of buf in bytes
 *  @param preference the band mask, one bit per band as the modem defines them
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddBandPreference(uint8_t* buf, int bufsize,
                                                                         uint64_t preference);
/** Appends item 0x13 CDMAPRLPreference to a SetSystemSelectionPreference request (0x0033).
 *  Adds 5 bytes: type, length 2, the preference as a little-endian u16.
 *  @param buf the request, begun by zovQMINASSetSystemSelectionPreferenceReq()
 *  @param bufsize capacity of buf in bytes
 *  @param preference the CDMA PRL preference: 0x0001 A side only, 0x0002 B side only, 0x3FFF any
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddCDMAPRLPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference);
/** Appends item 0x14 RoamingPreference to a SetSystemSelectionPreference request (0x0033).
 *  Adds 5 bytes: type, length 2, the preference as a little-endian u16.
 *  @param buf the request, begun by zovQMINASSetSystemSelectionPreferenceReq()
 *  @param bufsize capacity of buf in bytes
 *  @param preference the roaming preference: 0x01 only where the roaming indicator is off, 0x02 only where it is not
 *         off, 0x03 where it is off or solid (not flashing), 0xFF any
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceReqAddRoamingPreference(uint8_t* buf, int bufsize,
                                                                            uint16_t preference);
/** Parses a SetSystemSelectionPreference response (0x0033): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0033 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASSetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup nas_get_system_selection_preference GetSystemSelectionPreference (0x0034)
 *  @ingroup svc_nas
 *  @brief Asks for the system selection preference; the SystemSelectionPreference indication carries the same id and
 *  items.
 *  @{
 */
/** Builds a GetSystemSelectionPreference request (0x0034): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceReq(uint8_t* buf, int bufsize);
/** Parses a GetSystemSelectionPreference response (0x0034): only the result item 0x02 is read.
 *  Every preference is an optional item: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the emergency mode of a system selection preference message.
 *  Reads item 0x10 EmergencyMode of a GetSystemSelectionPreference or SystemSelectionPreference message (0x0034): one
 *  byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param mode receives the emergency mode: 0 off, 1 on (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or mode is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0034 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetEmergencyMode(const uint8_t* msg, int len, uint8_t* mode);
/** Reads the mode preference of a system selection preference message.
 *  Reads item 0x11 ModePreference of a GetSystemSelectionPreference or SystemSelectionPreference message (0x0034): a
 *  u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param preference receives the radio technologies allowed: bit 0 cdma2000 1x, bit 1 cdma2000 HRPD, bit 2 GSM, bit
 *         3 UMTS, bit 4 LTE; native value (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or preference is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetModePreference(const uint8_t* msg, int len,
                                                                          uint16_t* preference);
/** Reads the band preference of a system selection preference message.
 *  Reads item 0x12 BandPreference of a GetSystemSelectionPreference or SystemSelectionPreference message (0x0034): a
 *  u64, low 32-bit word first.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param preference receives the band mask, native value (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or preference is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetBandPreference(const uint8_t* msg, int len,
                                                                          uint64_t* preference);
/** Reads the CDMA PRL preference of a system selection preference message.
 *  Reads item 0x13 CDMAPRLPreference of a GetSystemSelectionPreference or SystemSelectionPreference message (0x0034):
 *  a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param preference receives the CDMA PRL preference: 0x0001 A side only, 0x0002 B side only, 0x3FFF any; native
 *         value (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg or preference is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetCDMAPRLPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference);
/** Reads the roaming preference of a system selection preference message.
 *  Reads item 0x14 RoamingPreference of a GetSystemSelectionPreference or SystemSelectionPreference message (0x0034):
 *  a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param preference receives the roaming preference: 0x01 only where the roaming indicator is off, 0x02 only where
 *         it is not off, 0x03 where it is off or solid (not flashing), 0xFF any; native value (required)
 *  @return the value length of item 0x14; ZOVQMI_ERR_ARG: msg or preference is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no item 0x14; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMINASGetSystemSelectionPreferenceRespGetRoamingPreference(const uint8_t* msg, int len,
                                                                             uint16_t* preference);
/** Confirms that msg holds a SystemSelectionPreference indication (0x0034).
 *  Only the message id is checked; read the items with the zovQMINASGetSystemSelectionPreferenceRespGet... functions,
 *  which look for the same id.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0034 in msg. No item
 *          is read, so it never gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMINASSystemSelectionPreferenceIND(const uint8_t* msg, int len);

/** @} */
/** @defgroup nas_set_ddtm_preference SetDDTMPreference (0x0037)
 *  @ingroup svc_nas
 *  @brief Sets the data dedicated transmission mode (DDTM) preference.
 *  @{
 */
/** Builds a SetDDTMPreference request with its mandatory item 0x01.
 *  Item 0x01 (length 5 + 2 x count): first byte, second value as a little-endian u16, third byte, count byte, then
 *  count little-endian u16 entries from message byte 15.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param first the first value byte
 *  @param second the second value, 16 bits
 *  @param third the third value byte
 *  @param count number of list entries
 *  @param list count 16-bit entries, native values; may be null when count is 0
 *  @return 15 + 2 x count, the message length; ZOVQMI_ERR_ARG: count is non-zero and list is null (checked first),
 *          buf is null, or bufsize < 15 + 2 x count.
 *  @note Deliberate: the request is written with message id 0x0033, the id of SetSystemSelectionPreference, while its
 *        response is looked for as 0x0037.
 */
ZOVQMI_API int zovQMINASSetDDTMPreferenceReq(uint8_t* buf, int bufsize, uint8_t first, uint16_t second, uint8_t third,
                                             uint8_t count, const uint16_t* list);
/** Parses a SetDDTMPreference response (0x0037): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0037 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 *  @note Deliberate: looks for message id 0x0037, not the 0x0033 its request is written with.
 */
ZOVQMI_API int zovQMINASSetDDTMPreferenceResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup nas_ddtm DDTM indication (0x0038)
 *  @ingroup svc_nas
 *  @brief Reports the DDTM settings in force.
 *  @{
 */
/** Parses a DDTM indication (0x0038).
 *  Item 0x01: first byte, second byte, u16 third value, count byte, then count u16 entries from value byte 5. The
 *  count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param first receives the first byte (required)
 *  @param second receives the second byte (required)
 *  @param third receives the third value, 16 bits, native (required)
 *  @param count receives the number of list entries (required)
 *  @param list receives the count 16-bit entries, native values; may be null only when the count is 0
 *  @return 0 on success; ZOVQMI_ERR_ARG: msg, first, second, third or count is null, or the count read is non-zero
 *          while list is null (nothing written); ZOVQMI_ERR_NO_MESSAGE: no message 0x0038 in msg; ZOVQMI_ERR_NO_TLV:
 *          no item 0x01; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end of msg (nothing written).
 *  @note Deliberate: returns 0 on success, not the TLV-area length the other indication parsers return.
 */
ZOVQMI_API int zovQMINASDDTMIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second, uint16_t* third,
                                uint8_t* count, uint16_t* list);
/** @} */
/* ------------------------------------------------------------ end NAS -- */


/* ---------------------------------------------------------------- WMS -- */
/** @defgroup svc_wms WMS: wireless messaging service (service 5)
 *  @brief Short messages: store, read, list, send and acknowledge; routes, service centre address, broadcast
 *  settings.
 *  @note Deliberate: parsers read fixed fields at their offsets and take counts and lengths from the message as they
 *  stand, without comparing them with the item's length: a short item is read on into the bytes that follow it. Only
 *  a read past the end of the received message is refused, with ZOVQMI_ERR_MALFORMED, and the outputs of that
 *  item are then left untouched.
 */
#pragma pack(push, 1)

/** A raw short message as it crosses the interface: a 10-byte head followed by `length` raw bytes, so 10 +
 *  length bytes in all. Packed; the multi-byte integer fields hold little-endian bytes on every host. Each
 *  function uses only some head fields: the event report's transfer-route item writes the route flag and
 *  reference, raw write reads the memory store, raw read writes the tag, and format and length travel with every
 *  raw message. The caller sizes the record for the raw bytes; the library checks no capacity.
 *  @ingroup svc_wms
 */
typedef struct WMSRawMessage {
    uint8_t routeFlag;        /**< transfer-route messages: 0 acknowledge it with zovQMIWMSSendACKReq(), 1 no
                                   acknowledgement needed */
    uint32_t routeReference;  /**< transfer-route messages: the reference to quote in the acknowledgement
                                   (little-endian bytes) */
    uint8_t memoryStore;      /**< raw write: the store, 0 UIM, 1 device memory */
    uint8_t messageTag;       /**< raw read: 0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent */
    uint8_t messageFormat;    /**< 0 CDMA, 6 GSM/WCDMA point-to-point, 7 GSM/WCDMA broadcast, 8 message waiting */
    uint16_t length;          /**< number of raw bytes in data (little-endian bytes) */
    uint8_t data[];           /**< the raw message (a PDU), length bytes */
} WMSRawMessage;

/** One broadcast configuration entry, shared by the 3GPP (GSM/WCDMA) and 3GPP2 (CDMA) functions: the 3GPP ones
 *  use the first word pair and the selection byte, the 3GPP2 ones the second pair and the selection byte, and
 *  each leaves the other pair alone. 9 bytes, packed; the multi-byte integer fields hold little-endian bytes on
 *  every host. Arrays are walked with a stride of 9 bytes.
 *  @ingroup svc_wms
 */
typedef struct WMSBroadcastConfigEntry {
    uint16_t first3GPP;    /**< 3GPP: first message id of the range (little-endian bytes) */
    uint16_t second3GPP;   /**< 3GPP: last message id of the range (little-endian bytes) */
    uint16_t first3GPP2;   /**< 3GPP2: service category (little-endian bytes) */
    uint16_t second3GPP2;  /**< 3GPP2: language (little-endian bytes) */
    uint8_t selection;     /**< 1 the range or category is selected, 0 not */
} WMSBroadcastConfigEntry;

#pragma pack(pop)

/** @defgroup wms_reset Reset (0x0000)
 *  @ingroup svc_wms
 *  @brief Resets the WMS state of the client.
 *  @{
 */
/** Builds a Reset request (0x0000): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSResetReq(uint8_t* buf, int bufsize);
/** Parses a Reset response (0x0000): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0000 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSResetResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_event_report SetEventReport (0x0001)
 *  @ingroup svc_wms
 *  @brief Asks the modem to report new mobile-terminated messages with the EventReport indication.
 *  @{
 */
/** Builds a SetEventReport request (0x0001): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSSetEventReportReq(uint8_t* buf, int bufsize);
/** Appends item 0x10 NewMTMessageIndicator to a SetEventReport request (0x0001).
 *  Adds 4 bytes: type, length 1, the indicator byte.
 *  @param buf the request, begun by zovQMIWMSSetEventReportReq()
 *  @param bufsize capacity of buf in bytes
 *  @param indicator reporting switch for new MT messages: 0 off, 1 on
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(uint8_t* buf, int bufsize, uint8_t indicator);
/** Parses a SetEventReport response (0x0001): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_event_report EventReport indication (0x0001)
 *  @ingroup svc_wms
 *  @brief Tells of a new mobile-terminated message; it carries the id of the SetEventReport request.
 *  @{
 */
/** Confirms that msg holds an EventReport indication (0x0001).
 *  Only the message id is checked; read the items with the zovQMIWMSEventReportINDGet... functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg. No item
 *          is read, so it never gives ZOVQMI_ERR_MALFORMED.
 */
ZOVQMI_API int zovQMIWMSEventReportIND(const uint8_t* msg, int len);
/** Reads where a new message was stored, from an EventReport indication.
 *  Reads item 0x10 MTMessage of a EventReport message (0x0001): store byte, u32 index.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param memoryStore receives the memory store: 0 UIM, 1 device memory (required)
 *  @param memoryIndex receives the index of the message in that store, native (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, memoryStore or memoryIndex is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an
 *          item or a field read runs past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSEventReportINDGetMTMessage(const uint8_t* msg, int len, uint8_t* memoryStore,
                                                   uint32_t* memoryIndex);
/** Reads a new message handed over directly (not stored), from an EventReport indication.
 *  Reads item 0x11 TransferRouteMTMessage of a EventReport message (0x0001): route flag byte, u32 route reference,
 *  format byte, u16 length n, n raw bytes.
 *  The raw length is not compared with the item length or with any size of the record.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param message receives routeFlag (0: acknowledge it with zovQMIWMSSendACKReq(), 1: no acknowledgement needed),
 *         routeReference (the reference to quote in that acknowledgement), messageFormat, length and the n raw bytes;
 *         memoryStore and messageTag are left alone. Size it for the largest message accepted (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or message is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSEventReportINDGetTransferRouteMTMessage(const uint8_t* msg, int len, WMSRawMessage* message);
/** Reads the message mode of an EventReport indication.
 *  Reads item 0x12 MessageMode of a EventReport message (0x0001): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param mode receives the message mode: 0 CDMA, 1 GSM/WCDMA (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or mode is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0001 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSEventReportINDGetMessageMode(const uint8_t* msg, int len, uint8_t* mode);
/** @} */
/** @defgroup wms_raw_send RawSend (0x0020)
 *  @ingroup svc_wms
 *  @brief Sends a message given as its raw bytes.
 *  @{
 */
/** Builds a RawSend request (0x0020) with its mandatory item 0x01 taken from a WMSRawMessage.
 *  Item 0x01 (length L + 3): messageFormat, the length L as a little-endian u16, then the L raw bytes; the other head
 *  fields of the record are not read.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param message the message: messageFormat (0 CDMA, 6 GSM/WCDMA point-to-point, 7 GSM/WCDMA broadcast, 8 message
 *         waiting), length L and data (required)
 *  @return L + 13, the message length; ZOVQMI_ERR_ARG: message or buf is null, or bufsize < L + 13 (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendReq(uint8_t* buf, int bufsize, const WMSRawMessage* message);
/** Appends item 0x10 ForceOnDC to a RawSend request (0x0020).
 *  Adds 5 bytes: type, length 2, the two bytes in argument order.
 *  @param buf the request, begun by zovQMIWMSRawSendReq()
 *  @param bufsize capacity of buf in bytes
 *  @param first 1 to send the message on a dedicated traffic channel (CDMA), else 0
 *  @param second the service option to use for it
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendReqAddForceOnDC(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
/** Appends item 0x11 FollowOnDC to a RawSend request (0x0020).
 *  Adds 4 bytes: type, length 1, the value byte.
 *  @param buf the request, begun by zovQMIWMSRawSendReq()
 *  @param bufsize capacity of buf in bytes
 *  @param value 1 to keep the dedicated channel up after the message is sent (CDMA), else 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendReqAddFollowOnDC(uint8_t* buf, int bufsize, uint8_t value);
/** Appends item 0x12 LinkControl to a RawSend request (0x0020).
 *  Adds 4 bytes: type, length 1, the value byte.
 *  @param buf the request, begun by zovQMIWMSRawSendReq()
 *  @param bufsize capacity of buf in bytes
 *  @param value the link control setting as the modem defines it (GSM/WCDMA)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendReqAddLinkControl(uint8_t* buf, int bufsize, uint8_t value);
/** Parses a RawSend response (0x0020): the message reference.
 *  Item 0x01: a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param messageId receives the message reference given to the sent message, native (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or messageId
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0020 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSRawSendResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* messageId);
/** Reads the cause code of a failed RawSend.
 *  Reads item 0x10 CauseCode of a RawSend message (0x0020): a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param cause receives the cause code of the failure, native (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or cause is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause);
/** Reads the error class of a failed RawSend.
 *  Reads item 0x11 ErrorClass of a RawSend message (0x0020): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param errorClass receives the error class: 0 temporary, 1 permanent (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or errorClass is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendRespGetErrorClass(const uint8_t* msg, int len, uint8_t* errorClass);
/** Reads the GSM/WCDMA cause of a failed RawSend.
 *  Reads item 0x12 GWCauseInformation of a RawSend message (0x0020): u16 RP cause, TP cause byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param cause receives the RP cause, native (required)
 *  @param extra receives the TP cause (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg, cause or extra is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0020 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawSendRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause, uint8_t* extra);
/** @} */
/** @defgroup wms_raw_write RawWrite (0x0021)
 *  @ingroup svc_wms
 *  @brief Stores a message given as its raw bytes.
 *  @{
 */
/** Builds a RawWrite request (0x0021) with its mandatory item 0x01 taken from a WMSRawMessage.
 *  Item 0x01 (length L + 4): memoryStore, messageFormat, the length L as a little-endian u16, then the L raw bytes;
 *  the other head fields of the record are not read.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param message the message: memoryStore (0 UIM, 1 device memory), messageFormat (0 CDMA, 6 GSM/WCDMA
 *         point-to-point, 7 GSM/WCDMA broadcast, 8 message waiting), length L and data (required)
 *  @return L + 14, the message length; ZOVQMI_ERR_ARG: message or buf is null, or bufsize < L + 14 (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawWriteReq(uint8_t* buf, int bufsize, const WMSRawMessage* message);
/** Parses a RawWrite response (0x0021): where the message was stored.
 *  Item 0x01: a u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param memoryIndex receives the index of the stored message, native (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or
 *          memoryIndex is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0021 in msg; ZOVQMI_ERR_NO_TLV: no result item
 *          (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item
 *          or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSRawWriteResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* memoryIndex);
/** @} */
/** @defgroup wms_raw_read RawRead (0x0022)
 *  @ingroup svc_wms
 *  @brief Reads a stored message as its raw bytes.
 *  @{
 */
/** Builds a RawRead request (0x0022) with its mandatory item 0x01.
 *  Item 0x01 (length 5): store byte, index as a little-endian u32.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @param memoryIndex the index of the message in that store
 *  @return 15, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 15.
 */
ZOVQMI_API int zovQMIWMSRawReadReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex);
/** Appends item 0x10 MessageMode to a RawRead request (0x0022).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIWMSRawReadReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSRawReadReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a RawRead response (0x0022) into a WMSRawMessage.
 *  Item 0x01: tag byte, format byte, u16 length n, n raw bytes. The raw length is not compared with the item length
 *  or with any size of the record.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param message receives messageTag (0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent), messageFormat, length and
 *         the n raw bytes; routeFlag, routeReference and memoryStore are left alone. Size it for the largest message
 *         accepted (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or message
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0022 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSRawReadResp(const uint8_t* msg, int len, QmiResult* result, WMSRawMessage* message);
/** @} */
/** @defgroup wms_modify_tag ModifyTag (0x0023)
 *  @ingroup svc_wms
 *  @brief Changes the tag of a stored message (read, not read, sent, not sent).
 *  @{
 */
/** Builds a ModifyTag request (0x0023) with its mandatory item 0x01.
 *  Item 0x01 (length 6): store byte, index as a little-endian u32, tag byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @param memoryIndex the index of the message in that store
 *  @param tag the new tag: 0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent
 *  @return 16, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 16.
 */
ZOVQMI_API int zovQMIWMSModifyTagReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex, uint8_t tag);
/** Appends item 0x10 MessageMode to a ModifyTag request (0x0023).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIWMSModifyTagReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSModifyTagReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a ModifyTag response (0x0023): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0023 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSModifyTagResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_delete Delete (0x0024)
 *  @ingroup svc_wms
 *  @brief Deletes one stored message, the messages with a tag, or a whole store.
 *  @{
 */
/** Builds a Delete request (0x0024) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the store byte. Without further items the whole store is deleted.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSDeleteReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
/** Appends item 0x10 MemoryIndex to a Delete request (0x0024).
 *  Adds 7 bytes: type, length 4, the index as a little-endian u32.
 *  @param buf the request, begun by zovQMIWMSDeleteReq()
 *  @param bufsize capacity of buf in bytes
 *  @param memoryIndex the index of the one message to delete
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSDeleteReqAddMemoryIndex(uint8_t* buf, int bufsize, uint32_t memoryIndex);
/** Appends item 0x11 MessageTag to a Delete request (0x0024).
 *  Adds 4 bytes: type, length 1, the tag byte.
 *  @param buf the request, begun by zovQMIWMSDeleteReq()
 *  @param bufsize capacity of buf in bytes
 *  @param tag delete only the messages with this tag: 0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSDeleteReqAddMessageTag(uint8_t* buf, int bufsize, uint8_t tag);
/** Appends item 0x12 MessageMode to a Delete request (0x0024).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIWMSDeleteReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSDeleteReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a Delete response (0x0024): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0024 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSDeleteResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_get_message_protocol GetMessageProtocol (0x0030)
 *  @ingroup svc_wms
 *  @brief Asks which message protocol the modem uses.
 *  @{
 */
/** Builds a GetMessageProtocol request (0x0030): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSGetMessageProtocolReq(uint8_t* buf, int bufsize);
/** Parses a GetMessageProtocol response (0x0030).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param protocol receives the protocol: 0 CDMA, 1 GSM/WCDMA (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or protocol
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0030 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetMessageProtocolResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* protocol);
/** @} */
/** @defgroup wms_list_messages ListMessages (0x0031)
 *  @ingroup svc_wms
 *  @brief Lists the messages of a store, optionally only those with a tag.
 *  @{
 */
/** Builds a ListMessages request (0x0031) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the store byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSListMessagesReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
/** Appends item 0x10 RequestedTag to a ListMessages request (0x0031).
 *  Adds 4 bytes: type, length 1, the tag byte.
 *  @param buf the request, begun by zovQMIWMSListMessagesReq()
 *  @param bufsize capacity of buf in bytes
 *  @param tag list only the messages with this tag: 0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSListMessagesReqAddRequestedTag(uint8_t* buf, int bufsize, uint8_t tag);
/** Appends item 0x11 MessageMode to a ListMessages request (0x0031).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIWMSListMessagesReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSListMessagesReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a ListMessages response (0x0031): the index and tag of each message.
 *  Item 0x01: a u32 count, then count 5-byte entries {u32 index, tag byte}. The count is 32 bits wide and is not
 *  compared with the item length; the arrays must hold as many entries as the modem reports.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param count receives the number of messages, native (required)
 *  @param indexes receives the count indexes, native; may be null
 *  @param tags receives the count tags (0 MT read, 1 MT not read, 2 MO sent, 3 MO not sent); may be null
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or count is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0031 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSListMessagesResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* count,
                                         uint32_t* indexes, uint8_t* tags);
/** @} */
/** @defgroup wms_send_ack SendACK (0x0037)
 *  @ingroup svc_wms
 *  @brief Acknowledges a message handed over by the transfer-route item of the EventReport indication.
 *  @{
 */
/** Builds a SendACK request (0x0037) with its mandatory item 0x01.
 *  Item 0x01 (length 6): the reference as a little-endian u32, then the two bytes in argument order.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param reference the routeReference of the message acknowledged
 *  @param value1 the first byte of the acknowledgement, passed through
 *  @param value2 the second byte of the acknowledgement, passed through
 *  @return 16, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 16.
 */
ZOVQMI_API int zovQMIWMSSendACKReq(uint8_t* buf, int bufsize, uint32_t reference, uint8_t value1, uint8_t value2);
/** Appends item 0x10 3GPP2FailureInformation to a SendACK request (0x0037).
 *  Adds 5 bytes: type, length 2, the two bytes in argument order.
 *  @param buf the request, begun by zovQMIWMSSendACKReq()
 *  @param bufsize capacity of buf in bytes
 *  @param first the first byte (the error class)
 *  @param second the second byte (the cause code)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSSendACKReqAdd3GPP2FailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
/** Appends item 0x11 3GPPFailureInformation to a SendACK request (0x0037).
 *  Adds 5 bytes: type, length 2, the two bytes in argument order.
 *  @param buf the request, begun by zovQMIWMSSendACKReq()
 *  @param bufsize capacity of buf in bytes
 *  @param first the first byte (the RP cause)
 *  @param second the second byte (the TP cause)
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSSendACKReqAdd3GPPFailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
/** Parses a SendACK response (0x0037): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0037 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSendACKResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_send_from_mem_store SendFromMemStore (0x0042)
 *  @ingroup svc_wms
 *  @brief Sends a message from a store.
 *  @{
 */
/** Builds a SendFromMemStore request (0x0042) with its mandatory item 0x01.
 *  Item 0x01 (length 6): store byte, index as a little-endian u32, mode byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @param memoryIndex the index of the message in that store
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return 16, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 16.
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex,
                                            uint8_t mode);
/** Parses a SendFromMemStore response (0x0042): only the result item 0x02 is read.
 *  The message reference and the failure details are optional items: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0042 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the message reference of a SendFromMemStore response.
 *  Reads item 0x10 MessageID of a SendFromMemStore message (0x0042): a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param messageId receives the message reference given to the sent message, native (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or messageId is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0042 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetMessageID(const uint8_t* msg, int len, uint16_t* messageId);
/** Reads the cause code of a failed SendFromMemStore.
 *  Reads item 0x11 CauseCode of a SendFromMemStore message (0x0042): a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param cause receives the cause code of the failure, native (required)
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg or cause is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0042 in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 *  @note Deliberate: the failure items sit one type higher than in RawSend (cause code 0x11, error class 0x12,
 *        GSM/WCDMA cause 0x13), since 0x10 holds the message reference here.
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause);
/** Reads the error class of a failed SendFromMemStore.
 *  Reads item 0x12 ErrorClass of a SendFromMemStore message (0x0042): a u16.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param errorClass receives the error class: 0 temporary, 1 permanent, native (required)
 *  @return the value length of item 0x12; ZOVQMI_ERR_ARG: msg or errorClass is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0042 in msg; ZOVQMI_ERR_NO_TLV: no item 0x12; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 *  @note Deliberate: the failure items sit one type higher than in RawSend (cause code 0x11, error class 0x12,
 *        GSM/WCDMA cause 0x13), since 0x10 holds the message reference here.
 *  @note Deliberate: the error class is read as 16 bits here, while zovQMIWMSRawSendRespGetErrorClass() reads one
 *        byte.
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetErrorClass(const uint8_t* msg, int len, uint16_t* errorClass);
/** Reads the GSM/WCDMA cause of a failed SendFromMemStore.
 *  Reads item 0x13 GWCauseInformation of a SendFromMemStore message (0x0042): u16 RP cause, TP cause byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param cause receives the RP cause, native (required)
 *  @param extra receives the TP cause (required)
 *  @return the value length of item 0x13; ZOVQMI_ERR_ARG: msg, cause or extra is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x0042 in msg; ZOVQMI_ERR_NO_TLV: no item 0x13; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 *  @note Deliberate: the failure items sit one type higher than in RawSend (cause code 0x11, error class 0x12,
 *        GSM/WCDMA cause 0x13), since 0x10 holds the message reference here.
 */
ZOVQMI_API int zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause,
                                                                  uint8_t* extra);
/** @} */
/** @defgroup wms_set_routes SetRoutes (0x0032)
 *  @ingroup svc_wms
 *  @brief Sets where incoming messages of each type and class go.
 *  @{
 */
/** Builds a SetRoutes request (0x0032) with its mandatory item 0x01.
 *  Item 0x01 (length 2 + 4 x count): the count as a little-endian u16, then the 4-byte routes as they are.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param count number of routes
 *  @param routes count 4-byte routes {message type, message class, memory store, receipt action}, copied as they are;
 *         may be null when count is 0
 *  @return 12 + 4 x count, the message length; ZOVQMI_ERR_ARG: buf is null, bufsize < 12 + 4 x count, or count is
 *          non-zero and routes is null (nothing written).
 */
ZOVQMI_API int zovQMIWMSSetRoutesReq(uint8_t* buf, int bufsize, uint16_t count, const uint8_t* routes);
/** Appends item 0x10 TransferStatusReport to a SetRoutes request (0x0032).
 *  Adds 4 bytes: type, length 1, the report byte.
 *  @param buf the request, begun by zovQMIWMSSetRoutesReq()
 *  @param bufsize capacity of buf in bytes
 *  @param report 1 to hand status reports to the client instead of storing them, else 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSSetRoutesReqAddTransferStatusReport(uint8_t* buf, int bufsize, uint8_t report);
/** Parses a SetRoutes response (0x0032): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0032 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetRoutesResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_get_routes GetRoutes (0x0033)
 *  @ingroup svc_wms
 *  @brief Asks for the routes of incoming messages.
 *  @{
 */
/** Builds a GetRoutes request (0x0033): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSGetRoutesReq(uint8_t* buf, int bufsize);
/** Parses a GetRoutes response (0x0033): the routes.
 *  Item 0x01: a u16 count, then count 4-byte routes. The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param count receives the number of routes, native (required)
 *  @param routes receives the 4 x count route bytes as they are {message type, message class, memory store, receipt
 *         action}; may be null
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or count is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0033 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetRoutesResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* count, uint8_t* routes);
/** Reads the status report setting of a GetRoutes response.
 *  Reads item 0x10 TransferStatusReport of a GetRoutes message (0x0033): one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param report receives 1 when status reports go to the client, else 0 (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or report is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0033 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSGetRoutesRespGetTransferStatusReport(const uint8_t* msg, int len, uint8_t* report);
/** @} */
/** @defgroup wms_get_smsc_address GetSMSCAddress (0x0034)
 *  @ingroup svc_wms
 *  @brief Asks for the address of the service centre (SMSC).
 *  @{
 */
/** Builds a GetSMSCAddress request (0x0034): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSGetSMSCAddressReq(uint8_t* buf, int bufsize);
/** Parses a GetSMSCAddress response (0x0034): type and address.
 *  Item 0x01: 3 type bytes, a length byte n, n address bytes. The length is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param type receives the 3 address type bytes, ASCII digits such as "145" (required)
 *  @param length receives the address length n in bytes (required)
 *  @param address receives the n address bytes, ASCII digits, not terminated; room for up to 255 bytes; may be null
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result, type or
 *          length is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0034 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* type,
                                           uint8_t* length, uint8_t* address);
/** @} */
/** @defgroup wms_set_smsc_address SetSMSCAddress (0x0035)
 *  @ingroup svc_wms
 *  @brief Sets the address of the service centre (SMSC).
 *  @{
 */
/** Builds a SetSMSCAddress request (0x0035) with its mandatory item 0x01.
 *  Item 0x01 (length length): the address bytes alone, with no length byte inside.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param length number of address bytes
 *  @param address the address, ASCII digits possibly led by "+", copied as they are; may be null when length is 0
 *  @return 10 + length, the message length; ZOVQMI_ERR_ARG: buf is null, bufsize < 10 + length, or length is non-zero
 *          and address is null (nothing written).
 */
ZOVQMI_API int zovQMIWMSSetSMSCAddressReq(uint8_t* buf, int bufsize, uint16_t length, const void* address);
/** Appends item 0x10 SMSCAddressType to a SetSMSCAddress request (0x0035).
 *  Adds 3 + length bytes: type, length length, the type bytes as they are.
 *  @param buf the request, begun by zovQMIWMSSetSMSCAddressReq()
 *  @param bufsize capacity of buf in bytes
 *  @param length number of type bytes, usually 3
 *  @param type the address type, ASCII digits such as "145"; may be null when length is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or length is non-zero and type is null;
 *          ZOVQMI_ERR_MALFORMED: length is above 1024; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing
 *          written).
 */
ZOVQMI_API int zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(uint8_t* buf, int bufsize, uint16_t length,
                                                            const void* type);
/** Parses a SetSMSCAddress response (0x0035): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0035 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_get_store_max_size GetStoreMaxSize (0x0036)
 *  @ingroup svc_wms
 *  @brief Asks how many messages a store holds and how many more it can take.
 *  @{
 */
/** Builds a GetStoreMaxSize request (0x0036) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the store byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param memoryStore the memory store: 0 UIM, 1 device memory
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeReq(uint8_t* buf, int bufsize, uint8_t memoryStore);
/** Appends item 0x10 MessageMode to a GetStoreMaxSize request (0x0036).
 *  Adds 4 bytes: type, length 1, the mode byte.
 *  @param buf the request, begun by zovQMIWMSGetStoreMaxSizeReq()
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize
 *          (nothing written).
 */
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a GetStoreMaxSize response (0x0036): the capacity of the store.
 *  Item 0x01: a u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param maxSize receives the number of messages the store holds at most, native (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or maxSize
 *          is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0036 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* maxSize);
/** Reads the free room of the store from a GetStoreMaxSize response.
 *  Reads item 0x10 MemoryAvailable of a GetStoreMaxSize message (0x0036): a u32.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param available receives the number of messages the store can still take, native (required)
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg or available is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x0036 in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(const uint8_t* msg, int len, uint32_t* available);
/** @} */
/** @defgroup wms_set_retry_period SetRetryPeriod (0x0038)
 *  @ingroup svc_wms
 *  @brief Sets how long the modem keeps retrying a failed send.
 *  @{
 */
/** Builds a SetRetryPeriod request (0x0038) with its mandatory item 0x01.
 *  Item 0x01 (length 4): the value as a little-endian u32.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param period the retry period in seconds
 *  @return 14, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 14.
 */
ZOVQMI_API int zovQMIWMSSetRetryPeriodReq(uint8_t* buf, int bufsize, uint32_t period);
/** Parses a SetRetryPeriod response (0x0038): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0038 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetRetryPeriodResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_retry_interval SetRetryInterval (0x0039)
 *  @ingroup svc_wms
 *  @brief Sets the pause between two tries of a failed send.
 *  @{
 */
/** Builds a SetRetryInterval request (0x0039) with its mandatory item 0x01.
 *  Item 0x01 (length 4): the value as a little-endian u32.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param interval the retry interval in seconds
 *  @return 14, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 14.
 */
ZOVQMI_API int zovQMIWMSSetRetryIntervalReq(uint8_t* buf, int bufsize, uint32_t interval);
/** Parses a SetRetryInterval response (0x0039): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0039 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetRetryIntervalResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_dc_disconnect_timer SetDCDisconnectTimer (0x003A)
 *  @ingroup svc_wms
 *  @brief Sets when an idle dedicated channel (CDMA) is released.
 *  @{
 */
/** Builds a SetDCDisconnectTimer request (0x003A) with its mandatory item 0x01.
 *  Item 0x01 (length 4): the value as a little-endian u32.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param timer the idle time in seconds after which the dedicated channel is released; 0 disables the timer
 *  @return 14, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 14.
 */
ZOVQMI_API int zovQMIWMSSetDCDisconnectTimerReq(uint8_t* buf, int bufsize, uint32_t timer);
/** Parses a SetDCDisconnectTimer response (0x003A): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003A in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetDCDisconnectTimerResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_memory_status SetMemoryStatus (0x003B)
 *  @ingroup svc_wms
 *  @brief Tells the network whether the client has room for new messages.
 *  @{
 */
/** Builds a SetMemoryStatus request (0x003B) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the value byte (message byte 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param status the memory status: 1 room available, 0 full
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSSetMemoryStatusReq(uint8_t* buf, int bufsize, uint8_t status);
/** Parses a SetMemoryStatus response (0x003B): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003B in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetMemoryStatusResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_broadcast_activation SetBroadcastActivation (0x003C)
 *  @ingroup svc_wms
 *  @brief Switches the reception of broadcast messages on or off.
 *  @{
 */
/** Builds a SetBroadcastActivation request (0x003C) with its mandatory item 0x01.
 *  Item 0x01 (length 2): the two bytes in argument order.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param first the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @param second 1 to activate broadcast reception, 0 to deactivate it
 *  @return 12, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 12.
 */
ZOVQMI_API int zovQMIWMSSetBroadcastActivationReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second);
/** Parses a SetBroadcastActivation response (0x003C): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003C in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetBroadcastActivationResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_set_broadcast_config SetBroadcastConfig (0x003D)
 *  @ingroup svc_wms
 *  @brief Chooses which broadcast messages are received.
 *  @{
 */
/** Builds a SetBroadcastConfig request (0x003D) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the mode byte. Append the entries with the ReqAdd functions.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode);
/** Appends item 0x10 3GPPBroadcastConfigurationInformation to a SetBroadcastConfig request (0x003D).
 *  Adds 5 + 5 x count bytes: type, length 2 + 5 x count, u16 count, then per entry first3GPP, second3GPP and
 *  selection as 5 bytes, little-endian.
 *  @param buf the request, begun by zovQMIWMSSetBroadcastConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param count number of entries, at most 204 (the item value holds 1024 bytes)
 *  @param entries count WMSBroadcastConfigEntry, 9 bytes apart; only first3GPP, second3GPP (first and last message id
 *         of a range) and selection are read (the GSM/WCDMA fields); may be null when count is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or count is non-zero and entries is null;
 *          ZOVQMI_ERR_MALFORMED: count is above 204; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing
 *          written).
 */
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(uint8_t* buf, int bufsize,
                                                                                      uint16_t count,
                                                                                      const WMSBroadcastConfigEntry* entries);
/** Appends item 0x11 3GPP2BroadcastConfigurationInformation to a SetBroadcastConfig request (0x003D).
 *  Adds 5 + 5 x count bytes: type, length 2 + 5 x count, u16 count, then per entry first3GPP2, second3GPP2 and
 *  selection as 5 bytes, little-endian.
 *  @param buf the request, begun by zovQMIWMSSetBroadcastConfigReq()
 *  @param bufsize capacity of buf in bytes
 *  @param count number of entries, at most 204 (the item value holds 1024 bytes)
 *  @param entries count WMSBroadcastConfigEntry, 9 bytes apart; only first3GPP2, second3GPP2 (service category and
 *         language) and selection are read (the CDMA fields); may be null when count is 0
 *  @return the new message length; ZOVQMI_ERR_ARG: buf is null, or count is non-zero and entries is null;
 *          ZOVQMI_ERR_MALFORMED: count is above 204; ZOVQMI_ERR_NO_ROOM: the item does not fit in bufsize (nothing
 *          written).
 */
ZOVQMI_API int zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(uint8_t* buf, int bufsize,
                                                                                       uint16_t count,
                                                                                       const WMSBroadcastConfigEntry* entries);
/** Parses a SetBroadcastConfig response (0x003D): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003D in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_get_broadcast_config GetBroadcastConfig (0x003E)
 *  @ingroup svc_wms
 *  @brief Asks which broadcast messages are received.
 *  @{
 */
/** Builds a GetBroadcastConfig request (0x003E) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the mode byte.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param mode the message mode: 0 CDMA, 1 GSM/WCDMA
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSGetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode);
/** Parses a GetBroadcastConfig response (0x003E): only the result item 0x02 is read.
 *  The entries are optional items: read them with the RespGet functions.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x003E in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSGetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result);
/** Reads the GSM/WCDMA broadcast entries of a GetBroadcastConfig response.
 *  Reads item 0x10 3GPPBroadcastConfigurationInformation of a GetBroadcastConfig message (0x003E): u16 activation,
 *  u16 count, then count 5-byte entries from value byte 4.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param activation receives the low byte of the activation word: 1 broadcast reception active, 0 not (required)
 *  @param count receives the number of entries, native (required)
 *  @param entries array of count WMSBroadcastConfigEntry; only first3GPP and second3GPP and selection of each are
 *         written, the other pair is left alone; may be null
 *  @return the value length of item 0x10; ZOVQMI_ERR_ARG: msg, activation or count is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x003E in msg; ZOVQMI_ERR_NO_TLV: no item 0x10; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 *  @note Deliberate: the entries start at value byte 4, two bytes further than in the item the set function writes,
 *        because a 16-bit activation word leads; only its low byte is delivered.
 */
ZOVQMI_API int zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(const uint8_t* msg, int len,
                                                                                       uint8_t* activation,
                                                                                       uint16_t* count,
                                                                                       WMSBroadcastConfigEntry* entries);
/** Reads the CDMA broadcast entries of a GetBroadcastConfig response.
 *  Reads item 0x11 3GPP2BroadcastConfigurationInformation of a GetBroadcastConfig message (0x003E): u16 activation,
 *  u16 count, then count 5-byte entries from value byte 4.
 *  The count is not compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param activation receives the low byte of the activation word: 1 broadcast reception active, 0 not (required)
 *  @param count receives the number of entries, native (required)
 *  @param entries array of count WMSBroadcastConfigEntry; only first3GPP2 and second3GPP2 and selection of each are
 *         written, the other pair is left alone; may be null
 *  @return the value length of item 0x11; ZOVQMI_ERR_ARG: msg, activation or count is null; ZOVQMI_ERR_NO_MESSAGE: no
 *          message 0x003E in msg; ZOVQMI_ERR_NO_TLV: no item 0x11; ZOVQMI_ERR_MALFORMED: an item or a field read runs
 *          past the end of msg (nothing written).
 *  @note Deliberate: the entries start at value byte 4, two bytes further than in the item the set function writes,
 *        because a 16-bit activation word leads; only its low byte is delivered.
 */
ZOVQMI_API int zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(const uint8_t* msg, int len,
                                                                                        uint8_t* activation,
                                                                                        uint16_t* count,
                                                                                        WMSBroadcastConfigEntry* entries);
/** @} */
/** @defgroup wms_memory_full MemoryFull indication (0x003F)
 *  @ingroup svc_wms
 *  @brief Tells that a message store is full.
 *  @{
 */
/** Parses a MemoryFull indication (0x003F).
 *  Item 0x01: two bytes, stored in order.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param first receives the memory store that is full: 0 UIM, 1 device memory (required)
 *  @param second receives the message mode: 0 CDMA, 1 GSM/WCDMA (required)
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg, first or second is null; ZOVQMI_ERR_NO_MESSAGE: no message
 *          0x003F in msg; ZOVQMI_ERR_NO_TLV: no item 0x01; ZOVQMI_ERR_MALFORMED: an item or a field read runs past
 *          the end of msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSMemoryFullIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second);
/** @} */
/** @defgroup wms_get_domain_pref GetDomainPref (0x0040)
 *  @ingroup svc_wms
 *  @brief Asks over which domain messages are sent.
 *  @{
 */
/** Builds a GetDomainPref request (0x0040): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSGetDomainPrefReq(uint8_t* buf, int bufsize);
/** Parses a GetDomainPref response (0x0040).
 *  Item 0x01: one byte.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param preference receives the domain preference: 0 circuit switched preferred, 1 packet switched preferred, 2
 *         circuit switched only, 3 packet switched only (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or
 *          preference is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0040 in msg; ZOVQMI_ERR_NO_TLV: no result item
 *          (result untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item
 *          or a field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* preference);
/** @} */
/** @defgroup wms_set_domain_pref SetDomainPref (0x0041)
 *  @ingroup svc_wms
 *  @brief Chooses over which domain messages are sent.
 *  @{
 */
/** Builds a SetDomainPref request (0x0041) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the value byte (message byte 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param preference the domain preference: 0 circuit switched preferred, 1 packet switched preferred, 2 circuit
 *         switched only, 3 packet switched only
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSSetDomainPrefReq(uint8_t* buf, int bufsize, uint8_t preference);
/** Parses a SetDomainPref response (0x0041): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0041 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
/** @defgroup wms_get_message_waiting GetMessageWaiting (0x0043)
 *  @ingroup svc_wms
 *  @brief Asks for the message waiting indications (voice mail and others).
 *  @{
 */
/** Builds a GetMessageWaiting request (0x0043): the 7-byte header, no item.
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @return 7, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 7.
 */
ZOVQMI_API int zovQMIWMSGetMessageWaitingReq(uint8_t* buf, int bufsize);
/** Parses a GetMessageWaiting response (0x0043).
 *  Item 0x01: a count byte, then count 3-byte entries whose bytes are spread over the three arrays. The count is not
 *  compared with the item length.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @param count receives the number of entries (required)
 *  @param first receives byte 0 of each entry, the kind of message waiting (0 voice mail, 1 fax, 2 e-mail, 3 other, 4
 *         video mail); may be null
 *  @param second receives byte 1 of each entry, 1 when the indication is active, else 0; may be null
 *  @param third receives byte 2 of each entry, the number of messages waiting; may be null
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg, result or count is
 *          null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0043 in msg; ZOVQMI_ERR_NO_TLV: no result item (result
 *          untouched); ZOVQMI_ERR_NO_MANDATORY: no item 0x01 (result filled); ZOVQMI_ERR_MALFORMED: an item or a
 *          field read runs past the end of msg (result may be filled, the other outputs are untouched).
 */
ZOVQMI_API int zovQMIWMSGetMessageWaitingResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                              uint8_t* first, uint8_t* second, uint8_t* third);
/** @} */
/** @defgroup wms_message_waiting MessageWaiting indication (0x0044)
 *  @ingroup svc_wms
 *  @brief Tells of a change of the message waiting indications.
 *  @{
 */
/** Parses a MessageWaiting indication (0x0044).
 *  Item 0x01 as in the GetMessageWaiting response.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param count receives the number of entries (required)
 *  @param first receives byte 0 of each entry, the kind of message waiting (0 voice mail, 1 fax, 2 e-mail, 3 other, 4
 *         video mail); may be null
 *  @param second receives byte 1 of each entry, 1 when the indication is active, else 0; may be null
 *  @param third receives byte 2 of each entry, the number of messages waiting; may be null
 *  @return the TLV-area length; ZOVQMI_ERR_ARG: msg or count is null; ZOVQMI_ERR_NO_MESSAGE: no message 0x0044 in
 *          msg; ZOVQMI_ERR_NO_TLV: no item 0x01; ZOVQMI_ERR_MALFORMED: an item or a field read runs past the end of
 *          msg (nothing written).
 */
ZOVQMI_API int zovQMIWMSMessageWaitingIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* first, uint8_t* second,
                                          uint8_t* third);
/** @} */
/** @defgroup wms_set_primary_client SetPrimaryClient (0x0045)
 *  @ingroup svc_wms
 *  @brief Makes this client the primary messaging client, or gives that role up.
 *  @{
 */
/** Builds a SetPrimaryClient request (0x0045) with its mandatory item 0x01.
 *  Item 0x01 (length 1): the value byte (message byte 10).
 *  @param buf request buffer; the message is written from its first byte
 *  @param bufsize capacity of buf in bytes
 *  @param primary 1 to become the primary client, 0 to give the role up
 *  @return 11, the message length; ZOVQMI_ERR_ARG: buf is null or bufsize < 11.
 */
ZOVQMI_API int zovQMIWMSSetPrimaryClientReq(uint8_t* buf, int bufsize, uint8_t primary);
/** Parses a SetPrimaryClient response (0x0045): only the result item 0x02 is read.
 *  @param msg received message, QMUX header already stripped
 *  @param len length of msg in bytes
 *  @param result receives the result code and error code of item 0x02 (required)
 *  @return the TLV-area length, even when the result code reports a failure; ZOVQMI_ERR_ARG: msg or result is null;
 *          ZOVQMI_ERR_NO_MESSAGE: no message 0x0045 in msg; ZOVQMI_ERR_NO_TLV: no result item (result untouched);
 *          ZOVQMI_ERR_MALFORMED: an item runs past the end of msg.
 */
ZOVQMI_API int zovQMIWMSSetPrimaryClientResp(const uint8_t* msg, int len, QmiResult* result);
/** @} */
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
 * One traffic flow of a QoS description: the parameter items the flow carries.  84 bytes, natural alignment; arrays of it
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
 * One packet filter of a QoS description: the parameter items the filter carries.  112 bytes, natural alignment, as for
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
 *  @brief Nests one flow or filter into a QoS description item and reads one back.
 *
 *  On the wire a flow or filter is a wrapper item (0x11 or 0x12 for a flow, 0x13 or 0x14 for a filter) whose value
 *  is one item 0x10 whose value is the list of parameter items.
 *  @{
 */
/**
 * Appends one flow to the value of a QoS description item record of type 0x10.
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
 * Appends one filter to the value of a QoS description item record of type 0x10.
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
 *  @brief Asks for a QoS reservation described by a QoS description.
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
 * Appends item 0x10, a QoS description, to a RequestQoS (0x0020) request.
 * The value is the index item 0x10 (1 byte), then every flow of @p qosSpec, then every filter, each nested by the
 * flow or filter codec under its own @c type.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param index Index of this QoS description in the request.
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
 * Reads item 0x10 of the RequestQoS (0x0020) response: the QoS description errors.
 * Walks the value item by item: item 0x10 gives @p index; an item 0x11 or 0x12 whose value begins with a non-empty
 * item 0x10 is the next flow, one 0x13 or 0x14 the next filter, with @c type set to the item's type, @c index from
 * its sub-item 0x10 and the parameters from its sub-item 0x11.  Both counts are set.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param index Receives the index of the QoS description in error; required.
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
 * Appends item 0x10, a QoS description, to a ModifyQoS (0x0024) request.
 * The value is the identifier item 0x01 (u32), the index item 0x10 (1 byte), then every flow of @p qosSpec, then
 * every filter, each nested by the flow or filter codec under its own @c type.
 * @param buf Request under construction, its header written by the matching Req function; required.
 * @param bufsize Capacity of @p buf in bytes.
 * @param identifier QoS identifier of the reservation to change (written little-endian).
 * @param index Index of this QoS description in the request.
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
 * Reads item 0x10 of the ModifyQoS (0x0024) response: the QoS description errors, read exactly as for RequestQoS.
 * See zovQMIQOSRequestQoSRespGetQoSSpecError.
 * @param msg Received message (QMUX header removed); required.
 * @param len Length of @p msg in bytes.
 * @param index Receives the index of the QoS description in error; required.
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
