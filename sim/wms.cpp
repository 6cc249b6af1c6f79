// WMS of the simulated modem: two message stores, sending and new messages.
#include "state.h"

namespace zovsim {

namespace {

constexpr size_t kStoreCapacity = 50;
enum : uint8_t { kTagRead = 0, kTagNotRead = 1, kTagSent = 2, kTagNotSent = 3 };

std::map<uint32_t, Sms>& storeOf(State& st, uint8_t store) {
    if (store > 1) throw Fail{kErrInvalidArgument};  // 0 UIM, 1 device memory
    return st.sms[store];
}

Sms& messageAt(State& st, uint8_t store, uint32_t index) {
    auto& s = storeOf(st, store);
    auto it = s.find(index);
    if (it == s.end()) throw Fail{kErrInvalidIndex};
    return it->second;
}

}  // namespace

// An incoming SMS-DELIVER PDU from `from` with a 7-bit text.
Bytes deliverPdu(const std::string& from, const std::string& text) {
    W w;
    w.u8(0x00).u8(0x04).u8(uint32_t(from.size())).u8(0x91);
    for (size_t i = 0; i < from.size(); i += 2) {
        uint8_t lo = uint8_t(from[i] - '0'), hi = i + 1 < from.size() ? uint8_t(from[i + 1] - '0') : 0x0F;
        w.u8(uint32_t(hi) << 4 | lo);
    }
    w.u8(0x00).u8(0x00).u8(0x52).u8(0x10).u8(0x20).u8(0x21).u8(0x43).u8(0x00).u8(0x00);
    w.u8(uint32_t(text.size()));
    uint32_t acc = 0;
    int bits = 0;
    for (char c : text) {
        acc |= uint32_t(c & 0x7F) << bits;
        bits += 7;
        while (bits >= 8) {
            w.u8(acc & 0xFF);
            acc >>= 8;
            bits -= 8;
        }
    }
    if (bits > 0) w.u8(acc & 0xFF);
    return w;
}

Reply handleWms(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_WMS, r.client);
    switch (r.id) {
    case 0x0000:  // Reset
        me.reg.erase(ZOVQMI_SERVICE_WMS);
        return ok();
    case 0x0001: {  // SetEventReport: new MT message indicator
        Val v;
        if (r.has(0x10, &v)) me.reg[ZOVQMI_SERVICE_WMS] = v.u8(0) ? 1 : 0;
        return ok();
    }
    case 0x0020: {  // RawSend: the network answers each message with a delivery
        Val v = r.need(0x01);
        uint16_t len = v.u16(1);
        v.need(3, len);
        if (len == 0) return fail(kErrInvalidArgument);
        if (!st.online() || !st.simReady()) return fail(kErrDeviceNotReady, {{0x10, W().u16(1)}});
        uint16_t id = st.nextMessageId++;
        auto& store = st.sms[1];
        if (store.size() < kStoreCapacity) {
            uint32_t index = store.empty() ? 0 : store.rbegin()->first + 1;
            store[index] = Sms{kTagNotRead, 6, deliverPdu("15550100300", "Delivered")};
            st.indicateRegistered(ZOVQMI_SERVICE_WMS, 1, 0x0001, {{0x10, W().u8(1).u32(index)}});
        }
        return ok({{0x01, W().u16(id)}});
    }
    case 0x0021: {  // RawWrite: store, format, length, PDU
        Val v = r.need(0x01);
        uint8_t store = v.u8(0), format = v.u8(1);
        uint16_t len = v.u16(2);
        auto& s = storeOf(st, store);
        if (s.size() >= kStoreCapacity) return fail(kErrDeviceStorageFull);
        uint32_t index = 0;
        while (s.count(index)) ++index;
        s[index] = Sms{kTagNotSent, format, v.bytes(4, len)};
        return ok({{0x01, W().u32(index)}});
    }
    case 0x0022: {  // RawRead: an unread MT message becomes read
        Val v = r.need(0x01);
        Sms& m = messageAt(st, v.u8(0), v.u32(1));
        Reply rep = ok({{0x01, W().u8(m.tag).u8(m.format).u16(uint32_t(m.pdu.size())).bytes(m.pdu)}});
        if (m.tag == kTagNotRead) m.tag = kTagRead;
        return rep;
    }
    case 0x0023: {  // ModifyTag
        Val v = r.need(0x01);
        uint8_t tag = v.u8(5);
        if (tag > kTagNotSent) return fail(kErrInvalidArgument);
        messageAt(st, v.u8(0), v.u32(1)).tag = tag;
        return ok();
    }
    case 0x0024: {  // Delete: one index, or every message with a tag, or the whole store
        auto& s = storeOf(st, r.need(0x01).u8(0));
        Val v;
        if (r.has(0x10, &v)) {
            if (!s.erase(v.u32(0))) return fail(kErrInvalidIndex);
            return ok();
        }
        bool byTag = r.has(0x11, &v);
        uint8_t tag = byTag ? v.u8(0) : 0;
        for (auto it = s.begin(); it != s.end();)
            it = (!byTag || it->second.tag == tag) ? s.erase(it) : std::next(it);
        return ok();
    }
    case 0x0030:  // GetMessageProtocol: GSM/WCDMA
        return ok({{0x01, W().u8(1)}});
    case 0x0031: {  // ListMessages
        auto& s = storeOf(st, r.need(0x01).u8(0));
        Val v;
        bool byTag = r.has(0x10, &v);
        uint8_t tag = byTag ? v.u8(0) : 0;
        W entries;
        uint32_t count = 0;
        for (auto& kv : s) {
            if (byTag && kv.second.tag != tag) continue;
            entries.u32(kv.first).u8(kv.second.tag);
            ++count;
        }
        return ok({{0x01, W().u32(count).bytes(entries.done())}});
    }
    case 0x0034:  // GetSMSCAddress: type (3 digits), length, address
        return ok({{0x01, W().str(st.smscType).str8(st.smscAddress)}});
    case 0x0035: {  // SetSMSCAddress: the address, and its type when given
        std::string address = r.need(0x01).all();
        if (address.empty() || address.size() > 21) return fail(kErrInvalidArgument);
        Val v;
        if (r.has(0x10, &v)) {
            if (v.n != 3) return fail(kErrInvalidArgument);
            st.smscType = v.all();
        }
        st.smscAddress = address;
        return ok();
    }
    case 0x0037:  // SendACK
        r.need(0x01).u32(0);
        return ok();
    case 0x0042: {  // SendFromMemStore
        Val v = r.need(0x01);
        Sms& m = messageAt(st, v.u8(0), v.u32(1));
        if (!st.online() || !st.simReady()) return fail(kErrDeviceNotReady);
        if (m.tag == kTagRead || m.tag == kTagNotRead) return fail(kErrInvalidArgument);
        m.tag = kTagSent;
        return ok({{0x10, W().u16(st.nextMessageId++)}});
    }
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
