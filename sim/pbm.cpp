// PBM of the simulated modem: phonebooks of the GW session (ADN and FDN).
//
// Records are delivered by record-read indications of up to ten records
// each after the ReadRecords response; writes and deletes send record-update
// indications (operation 1 added, 2 modified, 3 deleted, 4 all deleted) to
// the clients that registered for them (mask bit 0).
#include <algorithm>
#include <cctype>

#include "state.h"

namespace zovsim {

namespace {

constexpr uint16_t kCapacity = 250;
constexpr uint8_t kMaxNumber = 40, kMaxName = 30;
constexpr uint32_t kRegUpdate = 1, kRegMask = 0x0F;
enum : uint8_t { kOpAdd = 1, kOpModify = 2, kOpDelete = 3, kOpDeleteAll = 4 };

using Book = std::map<uint16_t, PbRecord>;

Book& book(State& st, const Val& v) {
    uint8_t session = v.u8(0);
    uint16_t type = v.u16(1);
    if (session != 0 || (type != 1 && type != 2)) throw Fail{kErrInvalidArgument};
    auto key = std::make_pair(session, type);
    if (!st.books.count(key) && type == 1) {
        Book& adn = st.books[key];
        adn[1] = PbRecord{0x91, 0, "15550100001", "Alice Example"};
        adn[2] = PbRecord{0x81, 0, "5550100002", "Bob Example"};
        adn[3] = PbRecord{0x91, 0, "15550100003", "Voicemail"};
    }
    return st.books[key];
}

std::string lower(std::string s) {
    for (char& c : s) c = char(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

void updated(State& st, const Val& sel, uint8_t op, uint16_t id) {
    st.indicateRegistered(ZOVQMI_SERVICE_PBM, kRegUpdate, 0x0009,
                          {{0x01, W().u8(sel.u8(0)).u16(sel.u16(1)).u8(op).u16(id)}});
}

}  // namespace

Reply handlePbm(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_PBM, r.client);
    switch (r.id) {
    case 0x0001: {  // IndicationRegister: the mask the modem accepted
        uint32_t mask = r.need(0x01).u32(0) & kRegMask;
        me.reg[ZOVQMI_SERVICE_PBM] = mask;
        return ok({{0x10, W().u32(mask)}});
    }
    case 0x0002: {  // GetPBCapabilities
        Val sel = r.need(0x01);
        Book& b = book(st, sel);
        return ok({{0x10, W().u8(sel.u8(0)).u16(sel.u16(1)).u16(uint32_t(b.size())).u16(kCapacity)
                              .u8(kMaxNumber).u8(kMaxName)},
                   {0x11, W().u8(0).u8(0)}, {0x12, W().u8(0).u8(0).u8(0)}, {0x13, W().u8(0).u8(0)},
                   {0x14, W().u8(0)}, {0x15, W().u8(0)}});
    }
    case 0x0003: {  // GetAllPBCapabilities: one session with ADN and FDN
        Val adn{reinterpret_cast<const uint8_t*>("\0\1\0"), 3}, fdn{reinterpret_cast<const uint8_t*>("\0\2\0"), 3};
        size_t a = book(st, adn).size(), f = book(st, fdn).size();
        return ok({{0x10, W().u8(1).u8(0).u8(2)
                              .u16(1).u16(uint32_t(a)).u16(kCapacity).u8(kMaxNumber).u8(kMaxName)
                              .u16(2).u16(uint32_t(f)).u16(kCapacity).u8(kMaxNumber).u8(kMaxName)},
                   {0x11, W().u8(1).u8(0).u8(0).u8(0)}, {0x12, W().u8(1).u8(0).u8(0).u8(0).u8(0)},
                   {0x13, W().u8(1).u8(0).u8(0).u8(0)}, {0x14, W().u8(1).u8(0).u8(0)},
                   {0x15, W().u8(1).u8(0).u8(0)}});
    }
    case 0x0004: {  // ReadRecords: start id .. end id
        Val v = r.need(0x01);
        Book& b = book(st, v);
        uint16_t first = v.u16(3), last = v.u16(5);
        if (first == 0 || first > last) return fail(kErrInvalidArgument);
        std::vector<std::pair<uint16_t, const PbRecord*>> found;
        for (auto it = b.lower_bound(first); it != b.end() && it->first <= last; ++it)
            found.push_back({it->first, &it->second});
        uint16_t seq = 1;
        for (size_t i = 0; i < found.size(); i += 10, ++seq) {
            size_t n = std::min<size_t>(10, found.size() - i);
            W w;
            w.u16(seq).u8(v.u8(0)).u16(v.u16(1)).u8(uint32_t(n));
            for (size_t j = i; j < i + n; ++j) {
                const PbRecord& rec = *found[j].second;
                w.u16(found[j].first).u8(rec.numType).u8(rec.numPlan).str8(rec.number).str8(rec.name);
            }
            st.indicate(ZOVQMI_SERVICE_PBM, r.client, 0x0004, {{0x01, w}});
        }
        return ok({{0x10, W().u16(uint32_t(found.size()))}});
    }
    case 0x0005: {  // WriteRecord: record id 0 adds a record at the first free id
        Val v = r.need(0x01);
        Book& b = book(st, v);
        uint16_t id = v.u16(3);
        uint8_t nlen = v.u8(7);
        PbRecord rec{v.u8(5), v.u8(6), v.str(8, nlen), v.str(9 + nlen, v.u8(8 + nlen))};
        if (rec.number.size() > kMaxNumber || rec.name.size() > kMaxName || id > kCapacity)
            return fail(kErrInvalidArgument);
        if (id == 0) {
            id = 1;
            while (id <= kCapacity && b.count(id)) ++id;
            if (id > kCapacity) return fail(kErrDeviceStorageFull);
        }
        uint8_t op = b.count(id) ? kOpModify : kOpAdd;
        b[id] = rec;
        updated(st, v, op, id);
        return ok({{0x10, W().u16(id)}});
    }
    case 0x0006: {  // DeleteRecord
        Val v = r.need(0x01);
        uint16_t id = v.u16(3);
        if (!book(st, v).erase(id)) return fail(kErrNoEntry);
        updated(st, v, kOpDelete, id);
        return ok({{0x10, W().u16(id)}});
    }
    case 0x0007: {  // DeleteAllPBRecords
        Val v = r.need(0x01);
        book(st, v).clear();
        updated(st, v, kOpDeleteAll, 0);
        return ok();
    }
    case 0x0008: {  // SearchRecords: number and name parts, case-insensitive
        Book& b = book(st, r.need(0x01));
        Val v;
        std::string number, name;
        if (r.has(0x10, &v)) number = v.str(1, v.u8(0));
        if (r.has(0x11, &v)) name = lower(v.str(1, v.u8(0)));
        W ids;
        uint32_t count = 0;
        for (auto& kv : b) {
            if (!number.empty() && kv.second.number.find(number) == std::string::npos) continue;
            if (!name.empty() && lower(kv.second.name).find(name) == std::string::npos) continue;
            ids.u16(kv.first);
            ++count;
        }
        return ok({{0x10, W().u16(count).bytes(ids.done())}});
    }
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
