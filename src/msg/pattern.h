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
#pragma once

#include <zovqmi.h>

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

// Common decoders.
// A scalar at value offset `off` into a native output (width from the output type).
template <class T>
auto scalar(T* out, size_t off = 0) {
    return [out, off](Dec& d) {
        if constexpr (sizeof(T) == 1) d.put(out, d.u8(off));
        else if constexpr (sizeof(T) == 2) d.put(out, d.le16(off));
        else if constexpr (sizeof(T) == 4) d.put(out, d.le32(off));
        else d.put(out, d.le64(off));
    };
}
// The whole value as a byte string: its length into *length, its bytes into
// data when data is non-null.
template <class L>
auto text(L* length, void* data) {
    return [length, data](Dec& d) {
        d.put(length, d.length);
        d.copy(data, 0, d.length);
    };
}
// n bytes at value offset `off` copied as they are (records laid out as on the wire).
inline auto raw(void* dst, size_t n, size_t off = 0) {
    return [dst, n, off](Dec& d) { d.copy(dst, off, n); };
}
inline auto nothing() {
    return [](Dec&) {};
}

// ----------------------------------------------------------- skeletons --

// The skeletons themselves, out of line (see pattern.cpp).
int respItem(Header h, const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, DecoderRef f);
int respResult(Header h, const uint8_t* msg, int len, QmiResult* result, uint16_t id);
int getItem(Header h, const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, DecoderRef f);
int indItem(Header h, const uint8_t* msg, int len, uint16_t id, bool outsOk, DecoderRef f);
int indId(Header h, const uint8_t* msg, int len, uint16_t id);

// Response with a mandatory item 0x01 decoded by f.
template <Header H = kService, class F>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, F&& f) {
    return respItem(H, msg, len, result, id, outsOk, DecoderRef(f));
}

// Response that carries only the result item.
template <Header H = kService>
int resp(const uint8_t* msg, int len, QmiResult* result, uint16_t id) {
    return respResult(H, msg, len, result, id);
}

// Optional item `type` of a response or indication, decoded by f.
template <Header H = kService, class F>
int get(const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, F&& f) {
    return getItem(H, msg, len, id, type, outsOk, DecoderRef(f));
}

// Indication with a mandatory item 0x01 decoded by f (-3 when it is missing).
template <Header H = kService, class F>
int ind(const uint8_t* msg, int len, uint16_t id, bool outsOk, F&& f) {
    return indItem(H, msg, len, id, outsOk, DecoderRef(f));
}

// Indication whose items are read by getters: confirms the id only.
template <Header H = kService>
int ind(const uint8_t* msg, int len, uint16_t id) {
    return indId(H, msg, len, id);
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

// Header-only request.
template <Header H = kService>
int req(uint8_t* buf, int bufsize, uint16_t id) {
    if (!buf || bufsize < headerSize(H)) return kErrArg;
    writeHeader(H, buf, id, 0);
    return headerSize(H);
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

}  // namespace zq
