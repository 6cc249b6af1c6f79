// The message families every service is made of.
//
// A service export names only what is particular to it (message id, item
// type, value layout, which outputs are required) and hands the rest to the
// skeletons below:
//
//   req     header-only request                       returns 7 (CTL: 6)
//   reqTlv  request with its mandatory item 0x01      returns the fixed size
//   add     optional request item appended            returns the new length
//   resp    response: result item 0x02 (+ item 0x01)  returns the TLV-area length
//   get     optional item of a response/indication    returns the item's length
//   ind     indication (+ item 0x01)                  returns the TLV-area length
//
// Checks come in one order everywhere: null buffer and required outputs
// first (-1), then the message (-2), then the result item (-3), then the
// mandatory item (-4 in responses, -3 in indications).  A received message is
// read only inside [msg, msg + len); a field beyond that gives
// ZOVQMI_ERR_MALFORMED and no output is written.
//
// The commonest shapes (a header-only request, a request or optional item of
// one scalar or of a byte string, a response with only its result item, a
// scalar, byte string or record copied out of an item) are described by
// plain data, a Ref word naming header, message id, item type and width,
// and handled by a few out-of-line helpers: such an export compiles to a
// call with its constants.  Other layouts hand a decoder to the skeletons.
#pragma once

#include <zovqmi.h>

#include <utility>

#include "msg/bytes.h"

namespace zq {

enum : int {
    kErrArg = ZOVQMI_ERR_ARG,
    kErrNoMessage = ZOVQMI_ERR_NO_MESSAGE,
    kErrNoRoom = ZOVQMI_ERR_NO_ROOM,
    kErrNoTlv = ZOVQMI_ERR_NO_TLV,
    kErrNoMandatory = ZOVQMI_ERR_NO_MANDATORY,
    kErrMalformed = ZOVQMI_ERR_MALFORMED,
};

// Which header a message carries: the 7-byte service header or the 6-byte
// control (CTL) header with its one-byte transaction id.
enum Header { kService, kControl };

constexpr int headerSize(Header h) { return h == kService ? 7 : 6; }
constexpr int lengthOffset(Header h) { return h == kService ? 5 : 4; }

// The largest value a QmiTlvRecord can hold; optional items are limited to it.
constexpr size_t kMaxItemValue = sizeof(static_cast<QmiTlvRecord*>(nullptr)->value);

// ------------------------------------------------------------- lookups --

// A located message: its TLV area and the end of the received buffer.
struct Message {
    const uint8_t* area;
    uint16_t areaLen;
    const uint8_t* end;
};

// One TLV item's value, readable up to the end of the received buffer (a
// read may run past the item into the bytes that follow it, as the wire
// layouts allow, but never past the buffer).
struct Item {
    const uint8_t* value;
    uint16_t length;
    const uint8_t* end;
};

// The TLV walk over [area, area + areaLen), reading only below `end`.
// Returns 0 (found), kErrNoTlv (absent) or kErrMalformed.
int walkTlv(const uint8_t* area, int areaLen, const uint8_t* end, uint8_t type, Item* out);

// The message walk of a service buffer from offset 3.
// Returns 0, kErrNoMessage or kErrMalformed.
int walkMessages(const uint8_t* msg, int len, uint16_t id, Message* out);

// Locates message `id` under header h.  CTL messages are not walked: their id
// and TLV-area length are read from their own 6-byte header.
int findMessage(Header h, const uint8_t* msg, int len, uint16_t id, Message* out);

inline int findTlv(const Message& m, uint8_t type, Item* out) { return walkTlv(m.area, m.areaLen, m.end, type, out); }

// Copies the result item 0x02 into *result (-3 when absent).
int storeResult(const Message& m, QmiResult* result);

// ---------------------------------------------------- plain-data shapes --

// What a plain-data helper needs to know of an export, in one word:
//   bits 0-15   message id
//   bits 16-23  item type
//   bits 24-27  value width in bytes (1, 2, 4 or 8), or the width of a
//               length output
//   bit 28      the control (CTL) header instead of the service header
//   bit 29      indication: return the TLV-area length, not the item's
//   bit 30      the required outputs are not all given (-1)
using Ref = uint32_t;
enum : Ref { kRefControl = 1u << 28, kRefIndication = 1u << 29, kRefNoOutputs = 1u << 30 };

constexpr Ref ref(Header h, uint16_t id, uint8_t type = 0, size_t width = 0) {
    return id | static_cast<Ref>(type) << 16 | static_cast<Ref>(width) << 24 |
           (h == kControl ? Ref{kRefControl} : Ref{0});
}
constexpr Header refHeader(Ref r) { return (r & kRefControl) ? kControl : kService; }
constexpr uint16_t refId(Ref r) { return static_cast<uint16_t>(r); }
constexpr uint8_t refType(Ref r) { return static_cast<uint8_t>(r >> 16); }
constexpr unsigned refWidth(Ref r) { return (r >> 24) & 0x0F; }
inline Ref outputs(Ref r, bool outsOk) { return outsOk ? r : r | kRefNoOutputs; }

// A scalar output: the value of its width at offset 0, in native order.
struct Scalar {
    void* out;
    size_t width;
};
// The whole value as a byte string: its length into *length (width 1 or 2),
// its bytes into data when data is non-null.
struct Text {
    void* length;
    size_t width;
    void* data;
};
// n value bytes at offset 0 copied as they are (records laid out as on the wire).
struct Raw {
    void* dst;
    size_t n;
};

// The helpers.  Each checks everything it reads before it writes anything,
// so none needs a dry pass.  A helper refuses a null output of its shape
// (the scalar's output, the text's length, the record) with -1; the
// skeletons below also refuse a false outsOk with -1 before they call it.
// getValue and getBytes serve optional items (kRefIndication: the mandatory
// item of an indication), respValue and respBytes the mandatory item 0x01
// of a response.
int getValue(const uint8_t* msg, int len, void* out, Ref r);
int respValue(const uint8_t* msg, int len, QmiResult* result, void* out, Ref r);
// Text (a width: its length output's) or raw bytes (no width: n bytes into data).
int getBytes(const uint8_t* msg, int len, Ref r, void* length, void* data, size_t n);
// getValue and getBytes for an optional item of a service message: a scalar
// W bytes wide (1, 2 or 4), or a text.  They answer the usual buffer (its
// first message is the one asked for) themselves and hand every other to
// getValue and getBytes.
template <unsigned W>
int getScalar(const uint8_t* msg, int len, void* out, Ref r);
int getText(const uint8_t* msg, int len, Ref r, void* length, void* data);
int respBytes(const uint8_t* msg, int len, QmiResult* result, Ref r, void* length, void* data, size_t n);
int respResult(const uint8_t* msg, int len, QmiResult* result, Ref r);
int indId(const uint8_t* msg, int len, Ref r);

// ------------------------------------------------------------ decoding --

// What a decoder sees: the item's value as a bounded view, its length, and
// the output helpers.  Decoders run twice, first dry (nothing is written,
// only the reads are checked) and then for real, so a malformed item leaves
// every output untouched; they keep running state in locals.
class Dec : public View {
public:
    Dec(const Item& it, bool dry) : View(it.value, it.end), length(it.length), dry_(dry) {}

    const uint16_t length;  // the item's value length
    bool dry() const { return dry_; }

    // *out = v (native order).
    template <class T, class V>
    void put(T* out, V v) {
        if (!dry_) *out = static_cast<T>(v);
    }
    // Copies n value bytes at off into dst; nothing is read when dst is null or n is 0.
    void copy(void* dst, size_t off, size_t n) {
        if (!dst || n == 0) return;
        const uint8_t* src = bytes(off, n);
        if (src && !dry_) copyBytes(dst, src, n);
    }

    // A caller record written byte by byte at fixed offsets.  When its total
    // size is known, a write past its last byte is refused (the decode then
    // fails with kErrMalformed and nothing is written at all).
    class Record {
    public:
        Record(Dec* d, uint8_t* base, size_t size) : d_(d), base_(base), size_(size) {}
        uint8_t* at(size_t off, size_t n) {
            if (off > size_ || n > size_ - off) {
                d_->fail();
                return nullptr;
            }
            return d_->dry_ ? nullptr : base_ + off;
        }
        void put8(size_t off, uint8_t v) {
            if (uint8_t* p = at(off, 1)) *p = v;
        }
        void put16(size_t off, uint16_t v) {
            if (uint8_t* p = at(off, 2)) st16(p, v);
        }
        void put32(size_t off, uint32_t v) {
            if (uint8_t* p = at(off, 4)) st32(p, v);
        }
        void put64(size_t off, uint64_t v) {
            if (uint8_t* p = at(off, 8)) st64(p, v);
        }
        // Copies n value bytes from srcOff into the record at off.
        void copy(size_t off, size_t srcOff, size_t n) {
            if (n == 0) return;
            const uint8_t* src = d_->bytes(srcOff, n);
            uint8_t* dst = at(off, n);
            if (src && dst) copyBytes(dst, src, n);
        }
        // A native pointer field of the record, set by the caller.
        template <class T = uint8_t>
        T* ptr(size_t off) const {
            return ldPtr<T>(base_ + off);
        }
        uint8_t* base() const { return base_; }

    private:
        Dec* d_;
        uint8_t* base_;
        size_t size_;
    };
    Record record(void* base, size_t size = static_cast<size_t>(-1)) {
        return Record(this, static_cast<uint8_t*>(base), size);
    }

private:
    bool dry_;
};

// A decoder handed to the skeletons: the address of the caller's callable and
// a trampoline that invokes it.  The skeletons are then compiled once, out of
// line, and each export adds only its own decoder body.
class DecoderRef {
public:
    template <class F>
    DecoderRef(F& f)  // NOLINT(google-explicit-constructor): built at every skeleton call
        : obj_(const_cast<void*>(static_cast<const void*>(&f))),
          call_([](void* o, Dec& d) { (*static_cast<F*>(o))(d); }) {}
    void operator()(Dec& d) const { call_(obj_, d); }

private:
    void* obj_;
    void (*call_)(void*, Dec&);
};

// Runs a decoder over an item: dry, then for real.  0 or kErrMalformed.
int decode(const Item& it, DecoderRef f);

// True when every pointer given is non-null: the required outputs of a parser.
template <class... P>
constexpr bool all(P*... p) {
    return (true && ... && (p != nullptr));
}

// Common decoders, as plain data.
// A scalar at value offset 0 into a native output (width from the output type).
template <class T>
Scalar scalar(T* out) {
    static_assert(sizeof(T) == 1 || sizeof(T) == 2 || sizeof(T) == 4 || sizeof(T) == 8, "a scalar output");
    return {out, sizeof(T)};
}
// The whole value as a byte string: its length into *length, its bytes into
// data when data is non-null.
template <class L>
Text text(L* length, void* data) {
    static_assert(sizeof(L) == 1 || sizeof(L) == 2, "a one- or two-byte length");
    return {length, sizeof(L), data};
}
// n bytes at value offset 0 copied as they are (records laid out as on the wire).
inline Raw raw(void* dst, size_t n) { return {dst, n}; }
inline auto nothing() {
    return [](Dec&) {};
}

// ----------------------------------------------------------- skeletons --

// The skeletons themselves, out of line (see pattern.cpp).  The Ref names
// header, message id and (for getItem) item type; kRefNoOutputs gives -1.
int respItem(const uint8_t* msg, int len, QmiResult* result, Ref r, const DecoderRef& f);
int getItem(const uint8_t* msg, int len, Ref r, const DecoderRef& f);

// A decoder callable on a Dec (the plain-data shapes above are not).
template <class F>
using IfDecoder = decltype(std::declval<F&>()(std::declval<Dec&>()));

// Response with a mandatory item 0x01 decoded by f.
template <Header H = kService, class F, class = IfDecoder<F>>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, F&& f) {
    return respItem(msg, len, result, outputs(ref(H, id), outsOk), DecoderRef(f));
}
template <Header H = kService>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, Scalar s) {
    if (!outsOk) return kErrArg;
    return respValue(msg, len, result, s.out, ref(H, id, 0x01, s.width));
}
template <Header H = kService>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, Text t) {
    if (!outsOk) return kErrArg;
    return respBytes(msg, len, result, ref(H, id, 0x01, t.width), t.length, t.data, 0);
}
template <Header H = kService>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, Raw b) {
    if (!outsOk) return kErrArg;
    return respBytes(msg, len, result, ref(H, id, 0x01), nullptr, b.dst, b.n);
}

// Response that carries only the result item.
template <Header H = kService>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id) {
    return respResult(msg, len, result, ref(H, id));
}

// Optional item `type` of a response or indication, decoded by f.
template <Header H = kService, class F, class = IfDecoder<F>>
int get(const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, F&& f) {
    return getItem(msg, len, outputs(ref(H, id, type), outsOk), DecoderRef(f));
}
template <Header H = kService>
int get(const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, Scalar s) {
    if (!outsOk) return kErrArg;
    const Ref r = ref(H, id, type, s.width);
    if (H == kService && s.width == 1) return getScalar<1>(msg, len, s.out, r);
    if (H == kService && s.width == 2) return getScalar<2>(msg, len, s.out, r);
    if (H == kService && s.width == 4) return getScalar<4>(msg, len, s.out, r);
    return getValue(msg, len, s.out, r);
}
template <Header H = kService>
int get(const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, Text t) {
    if (!outsOk) return kErrArg;
    if (H == kService) return getText(msg, len, ref(H, id, type, t.width), t.length, t.data);
    return getBytes(msg, len, ref(H, id, type, t.width), t.length, t.data, 0);
}
template <Header H = kService>
int get(const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, Raw b) {
    if (!outsOk) return kErrArg;
    return getBytes(msg, len, ref(H, id, type), nullptr, b.dst, b.n);
}

// Indication with a mandatory item 0x01 decoded by f (-3 when it is missing).
template <Header H = kService, class F, class = IfDecoder<F>>
int ind(const uint8_t* msg, int len, uint16_t id, bool outsOk, F&& f) {
    return getItem(msg, len, outputs(ref(H, id, 0x01) | kRefIndication, outsOk), DecoderRef(f));
}
template <Header H = kService>
int ind(const uint8_t* msg, int len, uint16_t id, bool outsOk, Scalar s) {
    if (!outsOk) return kErrArg;
    return getValue(msg, len, s.out, ref(H, id, 0x01, s.width) | kRefIndication);
}

// Indication whose items are read by getters: confirms the id only.
template <Header H = kService>
int ind(const uint8_t* msg, int len, uint16_t id) {
    return indId(msg, len, ref(H, id));
}

// ------------------------------------------------------------ building --

// Value fields of a request item, written in wire order.  Each knows its
// size, whether its arguments are acceptable and how to write itself.
struct W8 {
    uint8_t v;
    size_t size() const { return 1; }
    bool ok() const { return true; }
    void write(uint8_t*& p) const { *p++ = v; }
};
struct W16 {
    uint16_t v;
    size_t size() const { return 2; }
    bool ok() const { return true; }
    void write(uint8_t*& p) const {
        st16(p, v);
        p += 2;
    }
};
struct W32 {
    uint32_t v;
    size_t size() const { return 4; }
    bool ok() const { return true; }
    void write(uint8_t*& p) const {
        st32(p, v);
        p += 4;
    }
};
struct W64 {
    uint64_t v;
    size_t size() const { return 8; }
    bool ok() const { return true; }
    void write(uint8_t*& p) const {
        st64(p, v);
        p += 8;
    }
};
// n bytes copied as they are; a non-zero n with null data is refused, a zero
// n never reads the pointer.
struct WBytes {
    const void* p;
    size_t n;
    size_t size() const { return n; }
    bool ok() const { return n == 0 || p != nullptr; }
    void write(uint8_t*& dst) const {
        if (n) copyBytes(dst, p, n);
        dst += n;
    }
};
// A fixed-size caller record copied as it is; a null record is refused.
struct WRecord {
    const void* p;
    size_t n;
    size_t size() const { return n; }
    bool ok() const { return p != nullptr; }
    void write(uint8_t*& dst) const {
        copyBytes(dst, p, n);
        dst += n;
    }
};
// A value written by a callback, for layouts made of caller arrays.
template <class F>
struct WFn {
    size_t n;
    F fn;
    size_t size() const { return n; }
    bool ok() const { return true; }
    void write(uint8_t*& dst) const {
        fn(dst);
        dst += n;
    }
};

inline W8 w8(uint8_t v) { return {v}; }
inline W16 w16(uint16_t v) { return {v}; }
inline W32 w32(uint32_t v) { return {v}; }
inline W64 w64(uint64_t v) { return {v}; }
inline WBytes wbytes(size_t n, const void* p) { return {p, n}; }
inline WRecord wrecord(const void* p, size_t n) { return {p, n}; }
template <class F>
WFn<F> wfn(size_t n, F fn) {
    return {n, fn};
}

// Writes a request header with a fresh transaction id.
void writeHeader(Header h, uint8_t* buf, uint16_t id, uint16_t areaLen);

// The builders' helpers.  A Ref names header and message id (requests) or
// item type (optional items), and the value's width.
int request(uint8_t* buf, int bufsize, Ref r);
int requestValue(uint8_t* buf, int bufsize, uint32_t v, Ref r);
int addValue(uint8_t* buf, int bufsize, uint32_t v, Ref r);
// n bytes from p (a non-zero n with a null p is refused).
int addBytes(uint8_t* buf, int bufsize, Ref r, size_t n, const void* p);

// Header-only request.
template <Header H = kService>
int req(uint8_t* buf, int bufsize, uint16_t id) {
    return request(buf, bufsize, ref(H, id));
}

// Request with its mandatory item 0x01 written right behind the header.
template <Header H = kService, class... W>
int reqTlv(uint8_t* buf, int bufsize, uint16_t id, W... w) {
    const size_t n = (size_t{0} + ... + w.size());
    const long total = headerSize(H) + 3 + static_cast<long>(n);
    if (!buf || bufsize < total) return kErrArg;
    if (!(true && ... && w.ok())) return kErrArg;
    writeHeader(H, buf, id, static_cast<uint16_t>(n + 3));
    uint8_t* p = buf + headerSize(H);
    *p++ = 0x01;
    st16(p, static_cast<uint16_t>(n));
    p += 2;
    (w.write(p), ...);
    return static_cast<int>(total);
}
// ... of one value of up to 32 bits.
template <Header H = kService>
int reqTlv(uint8_t* buf, int bufsize, uint16_t id, W8 w) {
    return requestValue(buf, bufsize, w.v, ref(H, id, 0x01, 1));
}
template <Header H = kService>
int reqTlv(uint8_t* buf, int bufsize, uint16_t id, W16 w) {
    return requestValue(buf, bufsize, w.v, ref(H, id, 0x01, 2));
}
template <Header H = kService>
int reqTlv(uint8_t* buf, int bufsize, uint16_t id, W32 w) {
    return requestValue(buf, bufsize, w.v, ref(H, id, 0x01, 4));
}

// Makes room for one item of n value bytes at the end of a message whose
// header is written: raises the header's TLV-area length, writes the item's
// type and length, and returns where the value goes, with the new total
// message length in *total.  On failure returns null with the code in *total
// and leaves the message unchanged: kErrMalformed for a value longer than
// kMaxItemValue, kErrNoRoom when the new total would exceed bufsize.
uint8_t* reserveItem(Header h, uint8_t* buf, int bufsize, uint8_t type, size_t n, int* total);

// Optional request item, written straight into the caller's buffer.
template <Header H = kService, class... W>
int add(uint8_t* buf, int bufsize, uint8_t type, W... w) {
    if (!buf) return kErrArg;
    if (!(true && ... && w.ok())) return kErrArg;
    int total = 0;  // always set by reserveItem
    uint8_t* p = reserveItem(H, buf, bufsize, type, (size_t{0} + ... + w.size()), &total);
    if (!p) return total;
    (w.write(p), ...);
    return total;
}
// ... of one value of up to 32 bits, or of one byte string or record.
template <Header H = kService>
int add(uint8_t* buf, int bufsize, uint8_t type, W8 w) {
    return addValue(buf, bufsize, w.v, ref(H, 0, type, 1));
}
template <Header H = kService>
int add(uint8_t* buf, int bufsize, uint8_t type, W16 w) {
    return addValue(buf, bufsize, w.v, ref(H, 0, type, 2));
}
template <Header H = kService>
int add(uint8_t* buf, int bufsize, uint8_t type, W32 w) {
    return addValue(buf, bufsize, w.v, ref(H, 0, type, 4));
}
template <Header H = kService>
int add(uint8_t* buf, int bufsize, uint8_t type, WBytes w) {
    return addBytes(buf, bufsize, ref(H, 0, type), w.n, w.p);
}
// A record's size is never 0, so "null refused" is the byte string's rule too.
template <Header H = kService>
int add(uint8_t* buf, int bufsize, uint8_t type, WRecord w) {
    return addBytes(buf, bufsize, ref(H, 0, type), w.n, w.p);
}

}  // namespace zq
