// Transaction ids, the QMUX header, item appending and the message and item
// walks that applications use directly.
#include "msg/pattern.h"
#include "msg/txid.h"

namespace zq {
uint16_t transactionCounter = 0;

namespace {
// Appends a caller-filled record under header h.
int addRecord(Header h, uint8_t* msg, int bufsize, const QmiTlvRecord* tlv) {
    if (!msg || !tlv) return kErrArg;
    const uint8_t* rec = reinterpret_cast<const uint8_t*>(tlv);
    uint16_t n = ld16(rec + 1);
    int total;
    uint8_t* value = reserveItem(h, msg, bufsize, rec[0], n, &total);
    if (value && n) copyBytes(value, rec + 3, n);
    return total;
}
}  // namespace
}  // namespace zq

using namespace zq;

extern "C" int zovQMIMSMGetCurrentTransactionID(void) { return currentTransactionId(); }
extern "C" int zovQMIMSMGetNextTransactionID(void) { return nextTransactionId(); }

extern "C" int zovQMIMSMQMUXHeaderParse(const uint8_t* buf, int len, QmiQmuxHeader* out) {
    if (!buf || !out) return kErrArg;
    if (len < static_cast<int>(sizeof *out)) return kErrMalformed;  // the header is six bytes
    copyBytes(out, buf, sizeof *out);  // laid out as on the wire
    return ld16(buf + 1);
}

extern "C" int zovQMIMSMControlAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv) {
    return addRecord(kControl, msg, bufsize, tlv);
}

extern "C" int zovQMIMSMMessageAddTLV(uint8_t* msg, int bufsize, const QmiTlvRecord* tlv) {
    return addRecord(kService, msg, bufsize, tlv);
}

namespace {
// Fills entry i of a caller's message list with id, length and, when the
// entry has a value buffer, a copy of the TLV area at `area`.  With `write`
// false it only checks that all of it lies inside the buffer, so that a
// malformed message is refused before any output is written.
bool fillEntry(QmiMessageEntry* entries, unsigned i, View& v, size_t idOff, size_t area, bool write) {
    uint8_t* e = reinterpret_cast<uint8_t*>(entries) + i * sizeof(QmiMessageEntry);
    uint16_t id = v.le16(idOff);
    uint16_t length = v.le16(idOff + 2);
    uint8_t* value = ldPtr(e + offsetof(QmiMessageEntry, value));
    const uint8_t* src = (value && length) ? v.bytes(area, length) : nullptr;
    if (v.bad()) return false;
    if (!write) return true;
    st16(e + offsetof(QmiMessageEntry, messageId), id);
    st16(e + offsetof(QmiMessageEntry, length), length);
    if (src) copyBytes(value, src, length);
    return true;
}

void storeInfo(QmiMessageInfo* out, uint8_t flags, uint16_t tx, uint16_t count) {
    uint8_t* o = reinterpret_cast<uint8_t*>(out);
    o[offsetof(QmiMessageInfo, controlFlags)] = flags;
    st16(o + offsetof(QmiMessageInfo, transactionId), tx);
    st16(o + offsetof(QmiMessageInfo, messageCount), count);
}

// The message walk of MessageParse from offset 3; returns the count, or -1
// when an entry's fields lie beyond the buffer.
long walkEntries(const uint8_t* msg, int len, QmiMessageEntry* entries, bool write) {
    View v(msg, msg + len);
    uint16_t i = 0;
    long off = 3;
    while (len > off + 4) {
        uint16_t length = ld16(msg + off + 2);
        if (entries && !fillEntry(entries, i, v, static_cast<size_t>(off), static_cast<size_t>(off) + 4, write))
            return -1;
        ++i;
        off += length + 4;
    }
    return i;
}
}  // namespace

extern "C" int zovQMIMSMControlParse(const uint8_t* msg, int len, QmiMessageInfo* out) {
    if (len < 2 || !msg || !out) return kErrArg;
    QmiMessageEntry* entries = ldPtr<QmiMessageEntry>(reinterpret_cast<uint8_t*>(out) + offsetof(QmiMessageInfo, entries));
    View v(msg, msg + len);
    if (entries && !fillEntry(entries, 0, v, 2, 6, false)) return kErrMalformed;
    storeInfo(out, msg[0], msg[1], 1);
    if (entries) fillEntry(entries, 0, v, 2, 6, true);
    return 1;
}

extern "C" int zovQMIMSMMessageParse(const uint8_t* msg, int len, QmiMessageInfo* out) {
    if (len < 3 || !msg || !out) return kErrArg;
    QmiMessageEntry* entries = ldPtr<QmiMessageEntry>(reinterpret_cast<uint8_t*>(out) + offsetof(QmiMessageInfo, entries));
    // Checked in full first: a malformed buffer leaves every entry as it was.
    if (walkEntries(msg, len, entries, false) < 0) return kErrMalformed;
    uint16_t i = static_cast<uint16_t>(walkEntries(msg, len, entries, true));
    storeInfo(out, msg[0], ld16(msg + 1), i);
    return i;
}

extern "C" const uint8_t* zovQMIMSMGetMessage(const uint8_t* msg, int len, uint16_t msgid, uint16_t* tlvlen) {
    if (!msg) return nullptr;
    Message m;
    if (walkMessages(msg, len, msgid, &m) != 0) return nullptr;
    *tlvlen = m.areaLen;
    return m.area;
}

extern "C" const uint8_t* zovQMIMSMGetTLV(const uint8_t* area, int len, uint8_t type, uint16_t* vallen) {
    if (!area) return nullptr;
    Item it;
    if (walkTlv(area, len, area + (len > 0 ? len : 0), type, &it) != 0) return nullptr;
    *vallen = it.length;
    return it.value;
}

namespace {
// The item walk of GetTLVList; returns the count, or -1 when an item to be
// copied lies beyond the area or exceeds a record's 1024-byte value.  With
// `write` false it only checks, so that a malformed area leaves the list as
// it was.
long walkList(const uint8_t* area, int len, QmiTlvRecord* list, bool write) {
    View v(area, area + (len > 0 ? len : 0));
    long i = 0;
    long off = 0;
    while (len >= off + 3) {
        uint16_t length = ld16(area + off + 1);
        uint16_t n = static_cast<uint16_t>(length + 3);  // taken in 16 bits
        // A length of 0xFFFD makes the item size wrap to 0: the walk would never end.
        if (n == 0) return -1;
        if (list) {
            // The record's value holds 1024 bytes; the whole item must be in the area.
            if (length > kMaxItemValue || !v.bytes(static_cast<size_t>(off), n)) return -1;
            if (write)
                copyBytes(reinterpret_cast<uint8_t*>(list) + static_cast<size_t>(i) * sizeof(QmiTlvRecord), area + off, n);
        }
        off += n;
        ++i;
    }
    return i;
}
}  // namespace

extern "C" int zovQMIMSMGetTLVList(const uint8_t* area, int len, QmiTlvRecord* list) {
    if (!area) return 0;
    if (walkList(area, len, list, false) < 0) return kErrMalformed;
    return static_cast<int>(walkList(area, len, list, true));
}
