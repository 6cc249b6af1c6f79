// WMS, the wireless messaging service (service 5): message store, raw send
// and acknowledgement, routes, service centre address, retry settings and
// broadcast configuration.
//
// Raw messages cross the interface as a WMSRawMessage: a 10-byte head whose
// multi-byte fields are little-endian on every host, followed by the raw
// bytes.  Each function reads or writes only the head fields its message
// carries; the caller sizes the record for the raw bytes.
#include <stddef.h>

#include "msg/pattern.h"

using namespace zq;

namespace {

// Byte offsets of the WMSRawMessage head.
constexpr size_t kRouteFlag = offsetof(WMSRawMessage, routeFlag);
constexpr size_t kRouteReference = offsetof(WMSRawMessage, routeReference);
constexpr size_t kMemoryStore = offsetof(WMSRawMessage, memoryStore);
constexpr size_t kMessageTag = offsetof(WMSRawMessage, messageTag);
constexpr size_t kMessageFormat = offsetof(WMSRawMessage, messageFormat);
constexpr size_t kRawLength = offsetof(WMSRawMessage, length);
constexpr size_t kRawData = offsetof(WMSRawMessage, data);

const uint8_t* rawBytes(const WMSRawMessage* m) { return reinterpret_cast<const uint8_t*>(m); }
uint16_t rawLength(const WMSRawMessage* m) { return ld16(rawBytes(m) + kRawLength); }

// The format, length and raw bytes of a caller record, in wire order.
struct RawBody {
    W8 format;
    W16 length;
    WBytes data;
};
RawBody rawBody(const WMSRawMessage* m) {
    uint16_t n = rawLength(m);
    return {w8(rawBytes(m)[kMessageFormat]), w16(n), wbytes(n, rawBytes(m) + kRawData)};
}

// Stores a wire length, then copies that many raw bytes from value offset
// `off` into the record's data area.
void putRaw(Dec::Record& out, Dec& d, size_t off) {
    uint16_t n = d.le16(off);
    out.put16(kRawLength, n);
    out.copy(kRawData, off + 2, n);
}

// The GW cause information item: u16 cause, then one extra byte.
auto gwCause(uint16_t* cause, uint8_t* extra) {
    return [=](Dec& d) {
        d.put(cause, d.le16(0));
        d.put(extra, d.u8(2));
    };
}

// Byte offsets of the two word pairs inside a WMSBroadcastConfigEntry.
constexpr size_t kWords3GPP = offsetof(WMSBroadcastConfigEntry, first3GPP);
constexpr size_t kWords3GPP2 = offsetof(WMSBroadcastConfigEntry, first3GPP2);
constexpr size_t kSelection = offsetof(WMSBroadcastConfigEntry, selection);
constexpr size_t kEntrySize = sizeof(WMSBroadcastConfigEntry);

// Set broadcast config items: u16 count, then per entry the two words of one
// family and the shared selection byte (5 bytes), taken from caller entries
// 9 bytes apart.
int addBroadcastConfig(uint8_t* buf, int bufsize, uint8_t type, uint16_t count, const WMSBroadcastConfigEntry* entries,
                       size_t words) {
    if (count && !entries) return kErrArg;
    const uint8_t* in = reinterpret_cast<const uint8_t*>(entries);
    return add(buf, bufsize, type, w16(count), wfn(5u * count, [=](uint8_t* p) {
                   for (uint16_t i = 0; i < count; ++i, p += 5) {
                       const uint8_t* e = in + kEntrySize * i;
                       copyBytes(p, e + words, 4);
                       p[4] = e[kSelection];
                   }
               }));
}

// Get broadcast config items: the low byte of a u16 activation, a u16 count,
// then 5-byte entries from value offset 4 (two bytes further than in the set
// item).  Only the family's words and the selection byte of each caller
// entry are written.
auto broadcastConfig(uint8_t* activation, uint16_t* count, WMSBroadcastConfigEntry* entries, size_t words) {
    return [=](Dec& d) {
        d.put(activation, d.le16(0) & 0xFF);
        uint16_t n = d.le16(2);
        d.put(count, n);
        if (!entries) return;
        Dec::Record out = d.record(entries);
        for (uint16_t i = 0; i < n && !d.bad(); ++i) {
            out.copy(kEntrySize * i + words, 4 + 5u * i, 4);
            out.put8(kEntrySize * i + kSelection, d.u8(8 + 5u * i));
        }
    };
}

// Message waiting: u8 count, then 3-byte entries spread over three arrays.
auto messageWaiting(uint8_t* count, uint8_t* first, uint8_t* second, uint8_t* third) {
    return [=](Dec& d) {
        uint8_t n = d.u8(0);
        d.put(count, n);
        for (uint8_t i = 0; i < n && !d.bad(); ++i) {
            if (first) d.put(first + i, d.u8(1 + 3u * i));
            if (second) d.put(second + i, d.u8(2 + 3u * i));
            if (third) d.put(third + i, d.u8(3 + 3u * i));
        }
    };
}

}  // namespace

// ---------------------------------------------------- storage and sending --

// Reset 0x0000
extern "C" int zovQMIWMSResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0000); }
extern "C" int zovQMIWMSResetResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0000);
}

// SetEventReport 0x0001
extern "C" int zovQMIWMSSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0001); }
extern "C" int zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(uint8_t* buf, int bufsize, uint8_t indicator) {
    return add(buf, bufsize, 0x10, w8(indicator));
}
extern "C" int zovQMIWMSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}

// EventReport indication, 0x0001 like the request that registers for it
extern "C" int zovQMIWMSEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0001); }
extern "C" int zovQMIWMSEventReportINDGetMTMessage(const uint8_t* msg, int len, uint8_t* memoryStore,
                                                   uint32_t* memoryIndex) {
    return get(msg, len, 0x0001, 0x10, all(memoryStore, memoryIndex), [=](Dec& d) {
        d.put(memoryStore, d.u8(0));
        d.put(memoryIndex, d.le32(1));
    });
}
// Item 0x11: route flag, route reference, format, raw length and bytes; the
// record's memory store and tag bytes are left as they are.
extern "C" int zovQMIWMSEventReportINDGetTransferRouteMTMessage(const uint8_t* msg, int len, WMSRawMessage* message) {
    return get(msg, len, 0x0001, 0x11, all(message), [=](Dec& d) {
        Dec::Record out = d.record(message);
        out.put8(kRouteFlag, d.u8(0));
        out.put32(kRouteReference, d.le32(1));
        out.put8(kMessageFormat, d.u8(5));
        putRaw(out, d, 6);
    });
}
extern "C" int zovQMIWMSEventReportINDGetMessageMode(const uint8_t* msg, int len, uint8_t* mode) {
    return get(msg, len, 0x0001, 0x12, all(mode), scalar(mode));
}

// RawSend 0x0020: item 0x01 is format, length and raw bytes of the record.
extern "C" int zovQMIWMSRawSendReq(uint8_t* buf, int bufsize, const WMSRawMessage* message) {
    if (!message) return kErrArg;
    RawBody b = rawBody(message);
    return reqTlv(buf, bufsize, 0x0020, b.format, b.length, b.data);
}
extern "C" int zovQMIWMSRawSendReqAddForceOnDC(uint8_t* buf, int bufsize, uint8_t first, uint8_t second) {
    return add(buf, bufsize, 0x10, w8(first), w8(second));
}
extern "C" int zovQMIWMSRawSendReqAddFollowOnDC(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x11, w8(value));
}
extern "C" int zovQMIWMSRawSendReqAddLinkControl(uint8_t* buf, int bufsize, uint8_t value) {
    return add(buf, bufsize, 0x12, w8(value));
}
extern "C" int zovQMIWMSRawSendResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* messageId) {
    return resp(msg, len, result, 0x0020, all(messageId), scalar(messageId));
}
// Cause, error class and GW cause sit at 0x10-0x12 here, one below their
// places in SendFromMemStore, and the error class is one byte here.
extern "C" int zovQMIWMSRawSendRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause) {
    return get(msg, len, 0x0020, 0x10, all(cause), scalar(cause));
}
extern "C" int zovQMIWMSRawSendRespGetErrorClass(const uint8_t* msg, int len, uint8_t* errorClass) {
    return get(msg, len, 0x0020, 0x11, all(errorClass), scalar(errorClass));
}
extern "C" int zovQMIWMSRawSendRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause,
                                                         uint8_t* extra) {
    return get(msg, len, 0x0020, 0x12, all(cause, extra), gwCause(cause, extra));
}

// RawWrite 0x0021: item 0x01 is memory store, format, length and raw bytes.
extern "C" int zovQMIWMSRawWriteReq(uint8_t* buf, int bufsize, const WMSRawMessage* message) {
    if (!message) return kErrArg;
    RawBody b = rawBody(message);
    return reqTlv(buf, bufsize, 0x0021, w8(rawBytes(message)[kMemoryStore]), b.format, b.length, b.data);
}
extern "C" int zovQMIWMSRawWriteResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* memoryIndex) {
    return resp(msg, len, result, 0x0021, all(memoryIndex), scalar(memoryIndex));
}

// RawRead 0x0022
extern "C" int zovQMIWMSRawReadReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex) {
    return reqTlv(buf, bufsize, 0x0022, w8(memoryStore), w32(memoryIndex));
}
extern "C" int zovQMIWMSRawReadReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
// Item 0x01: tag, format, raw length and bytes into the record's head from byte 6.
extern "C" int zovQMIWMSRawReadResp(const uint8_t* msg, int len, QmiResult* result, WMSRawMessage* message) {
    return resp(msg, len, result, 0x0022, all(message), [=](Dec& d) {
        Dec::Record out = d.record(message);
        out.put8(kMessageTag, d.u8(0));
        out.put8(kMessageFormat, d.u8(1));
        putRaw(out, d, 2);
    });
}

// ModifyTag 0x0023
extern "C" int zovQMIWMSModifyTagReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex,
                                     uint8_t tag) {
    return reqTlv(buf, bufsize, 0x0023, w8(memoryStore), w32(memoryIndex), w8(tag));
}
extern "C" int zovQMIWMSModifyTagReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
extern "C" int zovQMIWMSModifyTagResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0023);
}

// Delete 0x0024
extern "C" int zovQMIWMSDeleteReq(uint8_t* buf, int bufsize, uint8_t memoryStore) {
    return reqTlv(buf, bufsize, 0x0024, w8(memoryStore));
}
extern "C" int zovQMIWMSDeleteReqAddMemoryIndex(uint8_t* buf, int bufsize, uint32_t memoryIndex) {
    return add(buf, bufsize, 0x10, w32(memoryIndex));
}
extern "C" int zovQMIWMSDeleteReqAddMessageTag(uint8_t* buf, int bufsize, uint8_t tag) {
    return add(buf, bufsize, 0x11, w8(tag));
}
extern "C" int zovQMIWMSDeleteReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x12, w8(mode));
}
extern "C" int zovQMIWMSDeleteResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0024);
}

// GetMessageProtocol 0x0030
extern "C" int zovQMIWMSGetMessageProtocolReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0030); }
extern "C" int zovQMIWMSGetMessageProtocolResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* protocol) {
    return resp(msg, len, result, 0x0030, all(protocol), scalar(protocol));
}

// ListMessages 0x0031
extern "C" int zovQMIWMSListMessagesReq(uint8_t* buf, int bufsize, uint8_t memoryStore) {
    return reqTlv(buf, bufsize, 0x0031, w8(memoryStore));
}
extern "C" int zovQMIWMSListMessagesReqAddRequestedTag(uint8_t* buf, int bufsize, uint8_t tag) {
    return add(buf, bufsize, 0x10, w8(tag));
}
extern "C" int zovQMIWMSListMessagesReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x11, w8(mode));
}
// Item 0x01: a 32-bit count (wider than the usual one-byte list counts),
// then 5-byte entries of index and tag; either array may be null.
extern "C" int zovQMIWMSListMessagesResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* count,
                                         uint32_t* indexes, uint8_t* tags) {
    return resp(msg, len, result, 0x0031, all(count), [=](Dec& d) {
        uint32_t n = d.le32(0);
        d.put(count, n);
        if (!indexes && !tags) return;
        for (uint32_t i = 0; i < n && !d.bad(); ++i) {
            if (indexes) d.put(indexes + i, d.le32(4 + 5u * i));
            if (tags) d.put(tags + i, d.u8(8 + 5u * i));
        }
    });
}

// SendACK 0x0037
extern "C" int zovQMIWMSSendACKReq(uint8_t* buf, int bufsize, uint32_t reference, uint8_t value1, uint8_t value2) {
    return reqTlv(buf, bufsize, 0x0037, w32(reference), w8(value1), w8(value2));
}
extern "C" int zovQMIWMSSendACKReqAdd3GPP2FailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second) {
    return add(buf, bufsize, 0x10, w8(first), w8(second));
}
extern "C" int zovQMIWMSSendACKReqAdd3GPPFailureInformation(uint8_t* buf, int bufsize, uint8_t first, uint8_t second) {
    return add(buf, bufsize, 0x11, w8(first), w8(second));
}
extern "C" int zovQMIWMSSendACKResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0037);
}

// SendFromMemStore 0x0042
extern "C" int zovQMIWMSSendFromMemStoreReq(uint8_t* buf, int bufsize, uint8_t memoryStore, uint32_t memoryIndex,
                                            uint8_t mode) {
    return reqTlv(buf, bufsize, 0x0042, w8(memoryStore), w32(memoryIndex), w8(mode));
}
extern "C" int zovQMIWMSSendFromMemStoreResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0042);
}
extern "C" int zovQMIWMSSendFromMemStoreRespGetMessageID(const uint8_t* msg, int len, uint16_t* messageId) {
    return get(msg, len, 0x0042, 0x10, all(messageId), scalar(messageId));
}
// Deliberately one item type above the RawSend getters (0x10 is the message id here).
extern "C" int zovQMIWMSSendFromMemStoreRespGetCauseCode(const uint8_t* msg, int len, uint16_t* cause) {
    return get(msg, len, 0x0042, 0x11, all(cause), scalar(cause));
}
// Deliberate: the error class is read as 16 bits here, as one byte in RawSend.
extern "C" int zovQMIWMSSendFromMemStoreRespGetErrorClass(const uint8_t* msg, int len, uint16_t* errorClass) {
    return get(msg, len, 0x0042, 0x12, all(errorClass), scalar(errorClass));
}
extern "C" int zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(const uint8_t* msg, int len, uint16_t* cause,
                                                                  uint8_t* extra) {
    return get(msg, len, 0x0042, 0x13, all(cause, extra), gwCause(cause, extra));
}

// ----------------------------------------------------------- configuration --

// SetRoutes 0x0032: item 0x01 is a u16 count and count 4-byte routes.
extern "C" int zovQMIWMSSetRoutesReq(uint8_t* buf, int bufsize, uint16_t count, const uint8_t* routes) {
    return reqTlv(buf, bufsize, 0x0032, w16(count), wbytes(4u * count, routes));
}
extern "C" int zovQMIWMSSetRoutesReqAddTransferStatusReport(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x10, w8(report));
}
extern "C" int zovQMIWMSSetRoutesResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0032);
}

// GetRoutes 0x0033
extern "C" int zovQMIWMSGetRoutesReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0033); }
extern "C" int zovQMIWMSGetRoutesResp(const uint8_t* msg, int len, QmiResult* result, uint16_t* count,
                                      uint8_t* routes) {
    return resp(msg, len, result, 0x0033, all(count), [=](Dec& d) {
        uint16_t n = d.le16(0);
        d.put(count, n);
        d.copy(routes, 2, 4u * n);
    });
}
extern "C" int zovQMIWMSGetRoutesRespGetTransferStatusReport(const uint8_t* msg, int len, uint8_t* report) {
    return get(msg, len, 0x0033, 0x10, all(report), scalar(report));
}

// GetSMSCAddress 0x0034: item 0x01 is a 3-byte type, a u8 length and the address.
extern "C" int zovQMIWMSGetSMSCAddressReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0034); }
extern "C" int zovQMIWMSGetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* type,
                                           uint8_t* length, uint8_t* address) {
    return resp(msg, len, result, 0x0034, all(type, length), [=](Dec& d) {
        d.copy(type, 0, 3);
        uint8_t n = d.u8(3);
        d.put(length, n);
        d.copy(address, 4, n);
    });
}

// SetSMSCAddress 0x0035: item 0x01 is the address bytes alone; a null
// address with a non-zero length is refused.
extern "C" int zovQMIWMSSetSMSCAddressReq(uint8_t* buf, int bufsize, uint16_t length, const void* address) {
    return reqTlv(buf, bufsize, 0x0035, wbytes(length, address));
}
extern "C" int zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(uint8_t* buf, int bufsize, uint16_t length,
                                                            const void* type) {
    return add(buf, bufsize, 0x10, wbytes(length, type));
}
extern "C" int zovQMIWMSSetSMSCAddressResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0035);
}

// GetStoreMaxSize 0x0036
extern "C" int zovQMIWMSGetStoreMaxSizeReq(uint8_t* buf, int bufsize, uint8_t memoryStore) {
    return reqTlv(buf, bufsize, 0x0036, w8(memoryStore));
}
extern "C" int zovQMIWMSGetStoreMaxSizeReqAddMessageMode(uint8_t* buf, int bufsize, uint8_t mode) {
    return add(buf, bufsize, 0x10, w8(mode));
}
extern "C" int zovQMIWMSGetStoreMaxSizeResp(const uint8_t* msg, int len, QmiResult* result, uint32_t* maxSize) {
    return resp(msg, len, result, 0x0036, all(maxSize), scalar(maxSize));
}
extern "C" int zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(const uint8_t* msg, int len, uint32_t* available) {
    return get(msg, len, 0x0036, 0x10, all(available), scalar(available));
}

// SetRetryPeriod 0x0038
extern "C" int zovQMIWMSSetRetryPeriodReq(uint8_t* buf, int bufsize, uint32_t period) {
    return reqTlv(buf, bufsize, 0x0038, w32(period));
}
extern "C" int zovQMIWMSSetRetryPeriodResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0038);
}

// SetRetryInterval 0x0039
extern "C" int zovQMIWMSSetRetryIntervalReq(uint8_t* buf, int bufsize, uint32_t interval) {
    return reqTlv(buf, bufsize, 0x0039, w32(interval));
}
extern "C" int zovQMIWMSSetRetryIntervalResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0039);
}

// SetDCDisconnectTimer 0x003A
extern "C" int zovQMIWMSSetDCDisconnectTimerReq(uint8_t* buf, int bufsize, uint32_t timer) {
    return reqTlv(buf, bufsize, 0x003A, w32(timer));
}
extern "C" int zovQMIWMSSetDCDisconnectTimerResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003A);
}

// SetMemoryStatus 0x003B
extern "C" int zovQMIWMSSetMemoryStatusReq(uint8_t* buf, int bufsize, uint8_t status) {
    return reqTlv(buf, bufsize, 0x003B, w8(status));
}
extern "C" int zovQMIWMSSetMemoryStatusResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003B);
}

// SetBroadcastActivation 0x003C
extern "C" int zovQMIWMSSetBroadcastActivationReq(uint8_t* buf, int bufsize, uint8_t first, uint8_t second) {
    return reqTlv(buf, bufsize, 0x003C, w8(first), w8(second));
}
extern "C" int zovQMIWMSSetBroadcastActivationResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003C);
}

// SetBroadcastConfig 0x003D: more entries than fit one item value are refused.
extern "C" int zovQMIWMSSetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode) {
    return reqTlv(buf, bufsize, 0x003D, w8(mode));
}
extern "C" int zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(
    uint8_t* buf, int bufsize, uint16_t count, const WMSBroadcastConfigEntry* entries) {
    return addBroadcastConfig(buf, bufsize, 0x10, count, entries, kWords3GPP);
}
extern "C" int zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(
    uint8_t* buf, int bufsize, uint16_t count, const WMSBroadcastConfigEntry* entries) {
    return addBroadcastConfig(buf, bufsize, 0x11, count, entries, kWords3GPP2);
}
extern "C" int zovQMIWMSSetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003D);
}

// GetBroadcastConfig 0x003E: its items carry two more header bytes than the set items, on purpose.
extern "C" int zovQMIWMSGetBroadcastConfigReq(uint8_t* buf, int bufsize, uint8_t mode) {
    return reqTlv(buf, bufsize, 0x003E, w8(mode));
}
extern "C" int zovQMIWMSGetBroadcastConfigResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x003E);
}
extern "C" int zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(
    const uint8_t* msg, int len, uint8_t* activation, uint16_t* count, WMSBroadcastConfigEntry* entries) {
    return get(msg, len, 0x003E, 0x10, all(activation, count), broadcastConfig(activation, count, entries, kWords3GPP));
}
extern "C" int zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(
    const uint8_t* msg, int len, uint8_t* activation, uint16_t* count, WMSBroadcastConfigEntry* entries) {
    return get(msg, len, 0x003E, 0x11, all(activation, count),
               broadcastConfig(activation, count, entries, kWords3GPP2));
}

// MemoryFull indication 0x003F
extern "C" int zovQMIWMSMemoryFullIND(const uint8_t* msg, int len, uint8_t* first, uint8_t* second) {
    return ind(msg, len, 0x003F, all(first, second), [=](Dec& d) {
        d.put(first, d.u8(0));
        d.put(second, d.u8(1));
    });
}

// GetDomainPref 0x0040
extern "C" int zovQMIWMSGetDomainPrefReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0040); }
extern "C" int zovQMIWMSGetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* preference) {
    return resp(msg, len, result, 0x0040, all(preference), scalar(preference));
}

// SetDomainPref 0x0041
extern "C" int zovQMIWMSSetDomainPrefReq(uint8_t* buf, int bufsize, uint8_t preference) {
    return reqTlv(buf, bufsize, 0x0041, w8(preference));
}
extern "C" int zovQMIWMSSetDomainPrefResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0041);
}

// GetMessageWaiting 0x0043
extern "C" int zovQMIWMSGetMessageWaitingReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0043); }
extern "C" int zovQMIWMSGetMessageWaitingResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                              uint8_t* first, uint8_t* second, uint8_t* third) {
    return resp(msg, len, result, 0x0043, all(count), messageWaiting(count, first, second, third));
}

// MessageWaiting indication 0x0044
extern "C" int zovQMIWMSMessageWaitingIND(const uint8_t* msg, int len, uint8_t* count, uint8_t* first,
                                          uint8_t* second, uint8_t* third) {
    return ind(msg, len, 0x0044, all(count), messageWaiting(count, first, second, third));
}

// SetPrimaryClient 0x0045
extern "C" int zovQMIWMSSetPrimaryClientReq(uint8_t* buf, int bufsize, uint8_t primary) {
    return reqTlv(buf, bufsize, 0x0045, w8(primary));
}
extern "C" int zovQMIWMSSetPrimaryClientResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0045);
}
