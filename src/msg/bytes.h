// Byte-order helpers and bounded views over caller memory.
//
// Every datum on the wire is little-endian and may stand at any offset, so it
// is loaded and stored byte by byte, never through a cast pointer.  Received
// bytes are read through a View that answers only inside its buffer; writes
// into fixed-size caller records go through a RecordView that refuses to
// write past the record's last byte.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace zq {

inline uint16_t ld16(const uint8_t* p) { return static_cast<uint16_t>(p[0] | (p[1] << 8)); }
inline uint32_t ld32(const uint8_t* p) {
    return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8) | (static_cast<uint32_t>(p[2]) << 16) |
           (static_cast<uint32_t>(p[3]) << 24);
}
// 64-bit values travel as two 32-bit halves, low half first.
inline uint64_t ld64(const uint8_t* p) { return ld32(p) | (static_cast<uint64_t>(ld32(p + 4)) << 32); }

inline void st16(uint8_t* p, uint16_t v) {
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
}
inline void st32(uint8_t* p, uint32_t v) {
    st16(p, static_cast<uint16_t>(v));
    st16(p + 2, static_cast<uint16_t>(v >> 16));
}
inline void st64(uint8_t* p, uint64_t v) {
    st32(p, static_cast<uint32_t>(v));
    st32(p + 4, static_cast<uint32_t>(v >> 32));
}

inline void copyBytes(void* dst, const void* src, size_t n) { __builtin_memcpy(dst, src, n); }

// A native pointer stored inside a packed caller record (possibly unaligned).
template <class T = uint8_t>
inline T* ldPtr(const void* field) {
    T* p;
    __builtin_memcpy(&p, field, sizeof p);  // NOLINT(bugprone-sizeof-expression): the pointer itself is copied
    return p;
}

// Read-only window [base, end) of a received buffer.  Offsets are relative to
// base.  A read outside the window returns zero and marks the view bad; the
// caller checks bad() once at the end instead of after every field.
class View {
public:
    View() = default;
    View(const uint8_t* base, const uint8_t* end) : base_(base), end_(end) {}

    const uint8_t* base() const { return base_; }
    const uint8_t* end() const { return end_; }
    bool bad() const { return bad_; }
    void fail() { bad_ = true; }

    // True when n bytes from off lie inside the window.
    bool has(size_t off, size_t n) const {
        if (base_ > end_) return n == 0 && off == 0;
        size_t size = static_cast<size_t>(end_ - base_);
        return off <= size && n <= size - off;
    }
    // Pointer to n readable bytes at off, or null (and bad) when they are not all there.
    const uint8_t* bytes(size_t off, size_t n) {
        if (!has(off, n)) {
            bad_ = true;
            return nullptr;
        }
        return base_ + off;
    }
    uint8_t u8(size_t off) {
        const uint8_t* p = bytes(off, 1);
        return p ? p[0] : 0;
    }
    uint16_t le16(size_t off) {
        const uint8_t* p = bytes(off, 2);
        return p ? ld16(p) : 0;
    }
    uint32_t le32(size_t off) {
        const uint8_t* p = bytes(off, 4);
        return p ? ld32(p) : 0;
    }
    uint64_t le64(size_t off) {
        const uint8_t* p = bytes(off, 8);
        return p ? ld64(p) : 0;
    }
    // A view of the same buffer starting at off (same end).
    View from(size_t off) const {
        View v(base_ + off, end_);
        v.bad_ = bad_;
        return v;
    }

private:
    const uint8_t* base_ = nullptr;
    const uint8_t* end_ = nullptr;
    bool bad_ = false;
};

}  // namespace zq
