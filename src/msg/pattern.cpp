// Message and item lookup, the result item, request headers and item
// appending: the shared steps of every service's builders and parsers.
#include "msg/pattern.h"

#include "msg/txid.h"

namespace zq {

// The TLV walk: continue while a whole 3-byte head fits inside areaLen, so a
// zero-length item that ends exactly at the end of the area is found.  The
// search starts at type 0: when no item is visited at all, asking for type 0
// matches at area + 3 with length 0.  Every head read must lie below `end`
// (an area that starts beyond it has no readable head at all).
namespace {
// The walk itself, inlined into every helper that looks an item up (the
// getters of one message each walk it again, so this loop is the hot path).
__attribute__((always_inline)) inline int walkItems(const uint8_t* area, int areaLen, const uint8_t* end,
                                                    uint8_t type, Item* out) {
    if (areaLen < 3) {
        if (type != 0) return kErrNoTlv;
        *out = Item{area + 3, 0, end};
        return 0;
    }
    if (area > end || end - area < 3) return kErrMalformed;
    // A head may start at most at `last` (inside the area) and at most at
    // `readable` (inside the buffer); the loop runs while both hold.
    const unsigned long last = static_cast<unsigned long>(areaLen) - 3;
    const unsigned long readable = static_cast<unsigned long>(end - area) - 3;
    const unsigned long limit = last < readable ? last : readable;
    unsigned long off = 0;
    while (area[off] != type) {
        off += ld16(area + off + 1) + 3ul;
        // Stopped inside the area: the next head lies beyond the buffer.
        if (off > limit) return off <= last ? kErrMalformed : kErrNoTlv;
    }
    *out = Item{area + off + 3, ld16(area + off + 1), end};
    return 0;
}
}  // namespace

int walkTlv(const uint8_t* area, int areaLen, const uint8_t* end, uint8_t type, Item* out) {
    return walkItems(area, areaLen, end, type, out);
}

// The message walk: continue while at least one byte lies beyond a message's
// 4-byte head.  As with items, id 0 matches when nothing is visited.
int walkMessages(const uint8_t* msg, int len, uint16_t id, Message* out) {
    long off = 3;
    uint16_t seen = 0;
    uint16_t length = 0;
    while (len > off + 4) {
        seen = ld16(msg + off);
        length = ld16(msg + off + 2);
        if (seen == id) break;
        off += length + 4;
    }
    if (seen != id) return kErrNoMessage;
    *out = Message{msg + off + 4, length, msg + (len > 0 ? len : 0)};
    return 0;
}

int findMessage(Header h, const uint8_t* msg, int len, uint16_t id, Message* out) {
    if (h == kService) return walkMessages(msg, len, id, out);
    // A CTL message names its id at byte 2 and its TLV-area length at byte 4.
    View v(msg, msg + (len > 0 ? len : 0));
    uint16_t seen = v.le16(2);
    if (v.bad()) return kErrMalformed;
    if (seen != id) return kErrNoMessage;
    uint16_t areaLen = v.le16(4);
    if (v.bad()) return kErrMalformed;
    *out = Message{msg + 6, areaLen, v.end()};
    return 0;
}

namespace {
// Only the two 16-bit codes are read; the item's length is not compared.
__attribute__((always_inline)) inline int copyResult(const Message& m, QmiResult* result) {
    Item it;
    if (int r = walkItems(m.area, m.areaLen, m.end, 0x02, &it)) return r;
    if (it.value > it.end || it.end - it.value < 4) return kErrMalformed;
    copyBytes(result, it.value, 4);
    return 0;
}
}  // namespace

int storeResult(const Message& m, QmiResult* result) { return copyResult(m, result); }

int decode(const Item& it, DecoderRef f) {
    Dec dry(it, true);
    f(dry);
    if (dry.bad()) return kErrMalformed;
    Dec real(it, false);
    f(real);
    return 0;
}

namespace {

// The message of a received buffer under the Ref's header.
inline int locate(const uint8_t* msg, int len, Ref r, Message* m) {
    if (!(r & kRefControl)) return walkMessages(msg, len, refId(r), m);
    return findMessage(kControl, msg, len, refId(r), m);
}

// The message the Ref names, found at once when it is the first of a
// service buffer (the usual case), else by the walk.
__attribute__((always_inline)) inline int findMessageOf(const uint8_t* msg, int len, Ref r, Message* m) {
    if (!(r & kRefControl) && len > 7 && ld16(msg + 3) == refId(r)) {
        *m = Message{msg + 7, ld16(msg + 5), msg + len};
        return 0;
    }
    return locate(msg, len, r, m);
}

// The result item, then the mandatory item 0x01 (-4 when it is missing).
inline int locateMandatory(const Message& m, QmiResult* result, Item* it) {
    if (int r = copyResult(m, result)) return r;
    if (int r = walkItems(m.area, m.areaLen, m.end, 0x01, it)) return r == kErrNoTlv ? kErrNoMandatory : r;
    return 0;
}

// True when n bytes from the start of the item's value lie inside the buffer.
inline bool fits(const Item& it, size_t n) {
    if (it.value > it.end) return n == 0;
    return n <= static_cast<size_t>(it.end - it.value);
}

// A little-endian value of 1, 2, 4 or 8 bytes stored in native order.
inline void storeValue(void* out, const uint8_t* p, unsigned width) {
    switch (width) {
    case 1:
        *static_cast<uint8_t*>(out) = p[0];
        break;
    case 2: {
        uint16_t v = ld16(p);
        copyBytes(out, &v, 2);
        break;
    }
    case 4: {
        uint32_t v = ld32(p);
        copyBytes(out, &v, 4);
        break;
    }
    default: {
        uint64_t v = ld64(p);
        copyBytes(out, &v, 8);
    }
    }
}

// n bytes copied; on 64-bit targets the short strings of items (an APN, a
// user name) are copied in place, as two overlapping 8- or 16-byte moves,
// instead of a call.  A 32-bit target would take those moves through its
// stack, so there the call is both smaller and as fast.
inline void copyString(uint8_t* dst, const void* from, size_t n) {
    constexpr bool kWordMoves = sizeof(void*) >= 8;
    const uint8_t* src = static_cast<const uint8_t*>(from);
    if (kWordMoves && n >= 8 && n <= 16) {
        uint8_t head[8], tail[8];
        copyBytes(head, src, 8);
        copyBytes(tail, src + n - 8, 8);
        copyBytes(dst, head, 8);
        copyBytes(dst + n - 8, tail, 8);
    } else if (kWordMoves && n > 16 && n <= 32) {
        uint8_t head[16], tail[16];
        copyBytes(head, src, 16);
        copyBytes(tail, src + n - 16, 16);
        copyBytes(dst, head, 16);
        copyBytes(dst + n - 16, tail, 16);
    } else {
        copyBytes(dst, src, n);
    }
}

// A text item (the Ref gives its length output's width): its length into
// *length, its bytes into data when data is non-null.  Raw bytes (no width):
// n bytes into data.  The text's length or the raw bytes' data is required.
inline int storeBytes(const Item& it, Ref r, void* length, void* data, size_t n) {
    const unsigned width = refWidth(r);
    if (width) n = it.length;
    if (data && n && !fits(it, n)) return kErrMalformed;
    if (width == 1) *static_cast<uint8_t*>(length) = static_cast<uint8_t>(it.length);
    else if (width == 2) copyBytes(length, &it.length, 2);
    if (data && n) copyBytes(data, it.value, n);
    return 0;
}
inline bool requiredBytes(Ref r, const void* length, const void* data) { return refWidth(r) ? length : data; }

}  // namespace

namespace {
// The usual case of a lookup: the first message of a service buffer of at
// least 10 bytes, whose TLV area holds at least one head.  There the message
// walk stops at once and both bounds of the item walk (the area's last head,
// the buffer's last readable head) are known before it starts, so an item is
// found in one pass that makes the same checks as walkMessages and
// walkItems, in the same order, and gives the same answers.  Addresses are
// kept as integers: a step may lead past the buffer (by at most one item's
// length) and is then only compared, never read.
struct First {
    uintptr_t area;  // the first head
    uintptr_t last;  // the area's last possible head
    uintptr_t stop;  // the last head both inside the area and readable
};

// False when the buffer is not of that shape: the general walks decide.  For
// a service Ref only (getScalar and getText are never handed a CTL one).
__attribute__((always_inline)) inline bool firstMessage(const uint8_t* msg, int len, Ref r, First* f) {
    if (len < 10 || ld16(msg + 3) != refId(r) || ld16(msg + 5) < 3) return false;
    f->area = reinterpret_cast<uintptr_t>(msg + 7);
    f->last = f->area + ld16(msg + 5) - 3;
    const uintptr_t readable = reinterpret_cast<uintptr_t>(msg + len - 3);
    f->stop = f->last < readable ? f->last : readable;
    return true;
}

// Item `type` of that message: 0 with its head in *head, kErrMalformed, or
// `absent` (kErrNoTlv, or kErrNoMandatory for a response's item 0x01).
__attribute__((always_inline)) inline int firstItem(const First& f, uint8_t type, int absent, const uint8_t** head) {
    uintptr_t p = f.area;
    while (*reinterpret_cast<const uint8_t*>(p) != type) {
        p += ld16(reinterpret_cast<const uint8_t*>(p) + 1) + 3u;
        if (p > f.stop) return p <= f.last ? kErrMalformed : absent;
    }
    *head = reinterpret_cast<const uint8_t*>(p);
    return 0;
}

// The bytes readable from the value of the item at head.
inline size_t room(const uint8_t* msg, int len, const uint8_t* head) {
    return static_cast<size_t>(msg + len - (head + 3));
}
}  // namespace

int getValue(const uint8_t* msg, int len, void* out, Ref r) {
    if (!msg || !out) return kErrArg;
    Message m;
    if (int e = locate(msg, len, r, &m)) return e;
    Item it;
    if (int e = walkItems(m.area, m.areaLen, m.end, refType(r), &it)) return e;
    if (!fits(it, refWidth(r))) return kErrMalformed;
    storeValue(out, it.value, refWidth(r));
    return (r & kRefIndication) ? m.areaLen : it.length;
}

template <unsigned W>
int getScalar(const uint8_t* msg, int len, void* out, Ref r) {
    First f;
    if (msg && out && firstMessage(msg, len, r, &f)) {
        const uint8_t* head;
        if (int e = firstItem(f, refType(r), kErrNoTlv, &head)) return e;
        if (room(msg, len, head) < W) return kErrMalformed;
        storeValue(out, head + 3, W);
        return ld16(head + 1);
    }
    return getValue(msg, len, out, r);
}
template int getScalar<1>(const uint8_t*, int, void*, Ref);
template int getScalar<2>(const uint8_t*, int, void*, Ref);
template int getScalar<4>(const uint8_t*, int, void*, Ref);

int getBytes(const uint8_t* msg, int len, Ref r, void* length, void* data, size_t n) {
    if (!msg || !requiredBytes(r, length, data)) return kErrArg;
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    Item it;
    if (int e = walkItems(m.area, m.areaLen, m.end, refType(r), &it)) return e;
    if (int e = storeBytes(it, r, length, data, n)) return e;
    return (r & kRefIndication) ? m.areaLen : it.length;
}

int getText(const uint8_t* msg, int len, Ref r, void* length, void* data) {
    First f;
    if (msg && length && firstMessage(msg, len, r, &f)) {
        const uint8_t* head;
        if (int e = firstItem(f, refType(r), kErrNoTlv, &head)) return e;
        // As storeBytes for a text: the length (one or two bytes), then the bytes.
        const uint16_t n = ld16(head + 1);
        if (data && n && room(msg, len, head) < n) return kErrMalformed;
        if (refWidth(r) == 1) *static_cast<uint8_t*>(length) = static_cast<uint8_t>(n);
        else copyBytes(length, &n, 2);
        if (data && n) copyString(static_cast<uint8_t*>(data), head + 3, n);
        return n;
    }
    return getBytes(msg, len, r, length, data, 0);
}

namespace {
// respValue and respResult beyond the usual shape (kept out of their fast paths).
__attribute__((noinline)) int respValueWalk(const uint8_t* msg, int len, QmiResult* result, void* out, Ref r) {
    Message m;
    if (int e = locate(msg, len, r, &m)) return e;
    Item it;
    if (int e = locateMandatory(m, result, &it)) return e;
    if (!fits(it, refWidth(r))) return kErrMalformed;
    storeValue(out, it.value, refWidth(r));
    return m.areaLen;
}
__attribute__((noinline)) int respResultWalk(const uint8_t* msg, int len, QmiResult* result, Ref r) {
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    if (int e = copyResult(m, result)) return e;
    return m.areaLen;
}
}  // namespace

int respValue(const uint8_t* msg, int len, QmiResult* result, void* out, Ref r) {
    if (!msg || !result || !out) return kErrArg;
    First f;
    if ((r & kRefControl) || !firstMessage(msg, len, r, &f)) return respValueWalk(msg, len, result, out, r);
    // The result item, then the mandatory item, each found from the first head.
    const uint8_t* head;
    if (int e = firstItem(f, 0x02, kErrNoTlv, &head)) return e;
    if (room(msg, len, head) < 4) return kErrMalformed;
    copyBytes(result, head + 3, 4);
    if (int e = firstItem(f, 0x01, kErrNoMandatory, &head)) return e;
    if (room(msg, len, head) < refWidth(r)) return kErrMalformed;
    storeValue(out, head + 3, refWidth(r));
    return ld16(msg + 5);
}

int respBytes(const uint8_t* msg, int len, QmiResult* result, Ref r, void* length, void* data, size_t n) {
    if (!msg || !result || !requiredBytes(r, length, data)) return kErrArg;
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    Item it;
    if (int e = locateMandatory(m, result, &it)) return e;
    if (int e = storeBytes(it, r, length, data, n)) return e;
    return m.areaLen;
}

int respItem(const uint8_t* msg, int len, QmiResult* result, Ref r, const DecoderRef& f) {
    if (!msg || !result || (r & kRefNoOutputs)) return kErrArg;
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    Item it;
    if (int e = locateMandatory(m, result, &it)) return e;
    if (int e = decode(it, f)) return e;
    return m.areaLen;
}

int respResult(const uint8_t* msg, int len, QmiResult* result, Ref r) {
    if (!msg || !result) return kErrArg;
    First f;
    if ((r & kRefControl) || !firstMessage(msg, len, r, &f)) return respResultWalk(msg, len, result, r);
    const uint8_t* head;
    if (int e = firstItem(f, 0x02, kErrNoTlv, &head)) return e;
    if (room(msg, len, head) < 4) return kErrMalformed;
    copyBytes(result, head + 3, 4);
    return ld16(msg + 5);
}

int getItem(const uint8_t* msg, int len, Ref r, const DecoderRef& f) {
    if (!msg || (r & kRefNoOutputs)) return kErrArg;
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    Item it;
    if (int e = walkItems(m.area, m.areaLen, m.end, refType(r), &it)) return e;
    if (int e = decode(it, f)) return e;
    return (r & kRefIndication) ? m.areaLen : it.length;
}

int indId(const uint8_t* msg, int len, Ref r) {
    if (!msg) return kErrArg;
    Message m;
    if (int e = findMessageOf(msg, len, r, &m)) return e;
    return m.areaLen;
}

namespace {
// The request header with a fresh transaction id.
__attribute__((always_inline)) inline void putHeader(bool control, uint8_t* buf, uint16_t id, uint16_t areaLen) {
    buf[0] = 0;  // control flags
    uint16_t tx = nextTransactionId();
    if (!control) {
        st32(buf + 1, tx | static_cast<uint32_t>(id) << 16);  // transaction id, message id
        st16(buf + 5, areaLen);
    } else {
        buf[1] = static_cast<uint8_t>(tx);  // CTL carries the low byte only
        st16(buf + 2, id);
        st16(buf + 4, areaLen);
    }
}

// Room for one item of n value bytes behind the header's TLV area (see
// reserveItem): the value's place, or null with the code in *total.
__attribute__((always_inline)) inline uint8_t* makeRoom(bool control, uint8_t* buf, int bufsize, uint8_t type,
                                                        size_t n, int* total) {
    if (n > kMaxItemValue) {
        *total = kErrMalformed;
        return nullptr;
    }
    const int hs = control ? 6 : 7;
    // A buffer smaller than the header cannot take any item; the header is
    // not read from it.
    if (bufsize < hs) {
        *total = kErrNoRoom;
        return nullptr;
    }
    uint8_t* lengthField = buf + hs - 2;
    uint16_t areaLen = ld16(lengthField);
    uint16_t itemLen = static_cast<uint16_t>(n + 3);
    int newTotal = areaLen + itemLen + hs;
    if (bufsize < newTotal) {
        *total = kErrNoRoom;
        return nullptr;
    }
    st16(lengthField, static_cast<uint16_t>(areaLen + itemLen));
    uint8_t* item = buf + hs + areaLen;
    item[0] = type;
    st16(item + 1, static_cast<uint16_t>(n));
    *total = newTotal;
    return item + 3;
}

// The low n bytes (1, 2 or 4) of v in wire order.
inline void storeLe(uint8_t* p, uint32_t v, unsigned n) {
    p[0] = static_cast<uint8_t>(v);
    if (n >= 2) p[1] = static_cast<uint8_t>(v >> 8);
    if (n == 4) st16(p + 2, static_cast<uint16_t>(v >> 16));
}
}  // namespace

void writeHeader(Header h, uint8_t* buf, uint16_t id, uint16_t areaLen) { putHeader(h == kControl, buf, id, areaLen); }

namespace {
// The builders' bodies, compiled once per header so that the header size is a constant.
template <bool C>
int requestOf(uint8_t* buf, int bufsize, uint16_t id) {
    const int hs = C ? 6 : 7;
    if (!buf || bufsize < hs) return kErrArg;
    putHeader(C, buf, id, 0);
    return hs;
}

template <bool C>
int requestValueOf(uint8_t* buf, int bufsize, uint32_t v, Ref r) {
    const int hs = C ? 6 : 7;
    const unsigned n = refWidth(r);
    const int total = hs + 3 + static_cast<int>(n);
    if (!buf || bufsize < total) return kErrArg;
    putHeader(C, buf, refId(r), static_cast<uint16_t>(n + 3));
    uint8_t* p = buf + hs;
    p[0] = 0x01;
    st16(p + 1, static_cast<uint16_t>(n));
    storeLe(p + 3, v, n);
    return total;
}

template <bool C>
int addValueOf(uint8_t* buf, int bufsize, uint32_t v, Ref r) {
    if (!buf) return kErrArg;
    const unsigned n = refWidth(r);
    int total = 0;  // always set by makeRoom
    uint8_t* p = makeRoom(C, buf, bufsize, refType(r), n, &total);
    if (!p) return total;
    storeLe(p, v, n);
    return total;
}

template <bool C>
int addBytesOf(uint8_t* buf, int bufsize, uint8_t type, size_t n, const void* p) {
    if (!buf) return kErrArg;
    if (n != 0 && !p) return kErrArg;
    int total = 0;  // always set by makeRoom
    uint8_t* value = makeRoom(C, buf, bufsize, type, n, &total);
    if (!value) return total;
    if (n) copyString(value, p, n);
    return total;
}
}  // namespace

int request(uint8_t* buf, int bufsize, Ref r) {
    return (r & kRefControl) ? requestOf<true>(buf, bufsize, refId(r)) : requestOf<false>(buf, bufsize, refId(r));
}

int requestValue(uint8_t* buf, int bufsize, uint32_t v, Ref r) {
    return (r & kRefControl) ? requestValueOf<true>(buf, bufsize, v, r) : requestValueOf<false>(buf, bufsize, v, r);
}

int addValue(uint8_t* buf, int bufsize, uint32_t v, Ref r) {
    return (r & kRefControl) ? addValueOf<true>(buf, bufsize, v, r) : addValueOf<false>(buf, bufsize, v, r);
}

int addBytes(uint8_t* buf, int bufsize, Ref r, size_t n, const void* p) {
    return (r & kRefControl) ? addBytesOf<true>(buf, bufsize, refType(r), n, p)
                             : addBytesOf<false>(buf, bufsize, refType(r), n, p);
}

uint8_t* reserveItem(Header h, uint8_t* buf, int bufsize, uint8_t type, size_t n, int* total) {
    return makeRoom(h == kControl, buf, bufsize, type, n, total);
}

}  // namespace zq
