// Helpers that let tests state expected messages as bytes.
#pragma once

#include <gtest/gtest.h>
#include <zovqmi.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

namespace t {

using Bytes = std::vector<uint8_t>;

inline Bytes cat(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}
inline Bytes le16(uint16_t v) { return {uint8_t(v), uint8_t(v >> 8)}; }
inline Bytes le32(uint32_t v) { return {uint8_t(v), uint8_t(v >> 8), uint8_t(v >> 16), uint8_t(v >> 24)}; }
inline Bytes le64(uint64_t v) { return cat({le32(uint32_t(v)), le32(uint32_t(v >> 32))}); }
inline Bytes str(const std::string& s) { return Bytes(s.begin(), s.end()); }
inline Bytes fill(size_t n, uint8_t v) { return Bytes(n, v); }

// One TLV item.
inline Bytes tlv(uint8_t type, const Bytes& value) {
    return cat({{type}, le16(uint16_t(value.size())), value});
}
// The result item 0x02.
inline Bytes result(uint16_t code = 0, uint16_t error = 0) { return tlv(0x02, cat({le16(code), le16(error)})); }

// A received service message: flags 0x02 (response), transaction id, id, TLV area.
inline Bytes svcMessage(uint16_t id, std::initializer_list<Bytes> items, uint16_t tx = 0x1234, uint8_t flags = 0x02) {
    Bytes area = cat(items);
    return cat({{flags}, le16(tx), le16(id), le16(uint16_t(area.size())), area});
}
// A received CTL message: flags 0x01 (response), one-byte transaction id, id, TLV area.
inline Bytes ctlMessage(uint16_t id, std::initializer_list<Bytes> items, uint8_t tx = 0x12, uint8_t flags = 0x01) {
    Bytes area = cat(items);
    return cat({{flags, tx}, le16(id), le16(uint16_t(area.size())), area});
}

// The transaction id the last request builder took, as written by a service request.
inline Bytes lastTx() { return le16(uint16_t(zovQMIMSMGetCurrentTransactionID())); }
// The header a service request builder writes: flags 0, transaction id, id, TLV-area length.
inline Bytes reqHeader(uint16_t id, uint16_t areaLen) { return cat({{0x00}, lastTx(), le16(id), le16(areaLen)}); }
// The same for CTL: the low byte of the transaction id.
inline Bytes ctlHeader(uint16_t id, uint16_t areaLen) {
    return cat({{0x00, uint8_t(zovQMIMSMGetCurrentTransactionID())}, le16(id), le16(areaLen)});
}

// A buffer of n bytes filled with a guard value, so untouched bytes show.
inline Bytes buffer(size_t n = 256, uint8_t guard = 0xEE) { return Bytes(n, guard); }
inline Bytes head(const Bytes& b, size_t n) { return Bytes(b.begin(), b.begin() + long(n)); }

// Reads little-endian fields of records laid out as on the wire.
inline uint16_t rd16(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint16_t(b[0] | b[1] << 8);
}
inline uint32_t rd32(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
}

// A QmiResult read byte-wise (it is little-endian on every host).
struct Res {
    uint16_t code, error;
    bool operator==(const Res& o) const { return code == o.code && error == o.error; }
};
inline Res res(const QmiResult& r) { return {rd16(&r), rd16(reinterpret_cast<const uint8_t*>(&r) + 2)}; }
inline std::ostream& operator<<(std::ostream& os, const Res& r) { return os << "{" << r.code << "," << r.error << "}"; }
inline QmiResult untouchedResult() {
    QmiResult r;
    std::memset(&r, 0xEE, sizeof r);
    return r;
}

}  // namespace t
