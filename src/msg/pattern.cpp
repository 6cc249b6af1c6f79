// Message and item lookup, the result item, request headers and item
// appending: the shared steps of every service's builders and parsers.
#include "msg/pattern.h"

#include "msg/txid.h"

namespace zq {

// The TLV walk: continue while a whole 3-byte head fits inside areaLen, so a
// zero-length item that ends exactly at the end of the area is found.  The
// search starts at type 0: when no item is visited at all, asking for type 0
// matches at area + 3 with length 0.
int walkTlv(const uint8_t* area, int areaLen, const uint8_t* end, uint8_t type, Item* out) {
    View v(area, end);
    long off = 0;
    uint8_t t = 0;
    uint16_t length = 0;
    while (areaLen >= off + 3) {
        t = v.u8(static_cast<size_t>(off));
        length = v.le16(static_cast<size_t>(off) + 1);
        if (v.bad()) return kErrMalformed;
        if (t == type) break;
        off += length + 3;
    }
    if (t != type) return kErrNoTlv;
    *out = Item{area + off + 3, length, end};
    return 0;
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

// Only the two 16-bit codes are read; the item's length is not compared.
int storeResult(const Message& m, QmiResult* result) {
    Item it;
    if (int r = findTlv(m, 0x02, &it)) return r;
    View v(it.value, it.end);
    const uint8_t* codes = v.bytes(0, 4);
    if (!codes) return kErrMalformed;
    copyBytes(result, codes, 4);
    return 0;
}

int decode(const Item& it, DecoderRef f) {
    Dec dry(it, true);
    f(dry);
    if (dry.bad()) return kErrMalformed;
    Dec real(it, false);
    f(real);
    return 0;
}

int respItem(Header h, const uint8_t* msg, int len, QmiResult* result, uint16_t id, bool outsOk, DecoderRef f) {
    if (!msg || !result || !outsOk) return kErrArg;
    Message m;
    if (int r = findMessage(h, msg, len, id, &m)) return r;
    if (int r = storeResult(m, result)) return r;
    Item it;
    if (int r = findTlv(m, 0x01, &it)) return r == kErrNoTlv ? kErrNoMandatory : r;
    if (int r = decode(it, f)) return r;
    return m.areaLen;
}

int respResult(Header h, const uint8_t* msg, int len, QmiResult* result, uint16_t id) {
    if (!msg || !result) return kErrArg;
    Message m;
    if (int r = findMessage(h, msg, len, id, &m)) return r;
    if (int r = storeResult(m, result)) return r;
    return m.areaLen;
}

int getItem(Header h, const uint8_t* msg, int len, uint16_t id, uint8_t type, bool outsOk, DecoderRef f) {
    if (!msg || !outsOk) return kErrArg;
    Message m;
    if (int r = findMessage(h, msg, len, id, &m)) return r;
    Item it;
    if (int r = findTlv(m, type, &it)) return r;
    if (int r = decode(it, f)) return r;
    return it.length;
}

int indItem(Header h, const uint8_t* msg, int len, uint16_t id, bool outsOk, DecoderRef f) {
    if (!msg || !outsOk) return kErrArg;
    Message m;
    if (int r = findMessage(h, msg, len, id, &m)) return r;
    Item it;
    if (int r = findTlv(m, 0x01, &it)) return r;
    if (int r = decode(it, f)) return r;
    return m.areaLen;
}

int indId(Header h, const uint8_t* msg, int len, uint16_t id) {
    if (!msg) return kErrArg;
    Message m;
    if (int r = findMessage(h, msg, len, id, &m)) return r;
    return m.areaLen;
}

void writeHeader(Header h, uint8_t* buf, uint16_t id, uint16_t areaLen) {
    buf[0] = 0;  // control flags
    uint16_t tx = nextTransactionId();
    if (h == kService) {
        st16(buf + 1, tx);
        st16(buf + 3, id);
        st16(buf + 5, areaLen);
    } else {
        buf[1] = static_cast<uint8_t>(tx);  // CTL carries the low byte only
        st16(buf + 2, id);
        st16(buf + 4, areaLen);
    }
}

uint8_t* reserveItem(Header h, uint8_t* buf, int bufsize, uint8_t type, size_t n, int* total) {
    if (n > kMaxItemValue) {
        *total = kErrMalformed;
        return nullptr;
    }
    const int hs = headerSize(h);
    // A buffer smaller than the header cannot take any item; the header is
    // not read from it.
    if (bufsize < hs) {
        *total = kErrNoRoom;
        return nullptr;
    }
    uint16_t areaLen = ld16(buf + lengthOffset(h));
    uint16_t itemLen = static_cast<uint16_t>(n + 3);
    int newTotal = areaLen + itemLen + hs;
    if (bufsize < newTotal) {
        *total = kErrNoRoom;
        return nullptr;
    }
    st16(buf + lengthOffset(h), static_cast<uint16_t>(areaLen + itemLen));
    uint8_t* item = buf + hs + areaLen;
    item[0] = type;
    st16(item + 1, static_cast<uint16_t>(n));
    *total = newTotal;
    return item + 3;
}

}  // namespace zq
