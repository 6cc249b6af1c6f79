// WDS of the simulated modem: profiles and the packet data call.
#include "state.h"

namespace zovsim {

namespace {

constexpr uint8_t kMaxProfiles = 16;
constexpr uint32_t kMtu = 1500;

// The address plan.  An IPv4 call in slot k (the lowest slot no other IPv4
// call holds, from 1) gets 10.64.k.2/30 with gateway 10.64.k.1; an IPv6
// call in slot k gets 2001:db8:64:k::2/64 with gateway 2001:db8:64:k::1.
constexpr uint32_t kMask = 0xFFFFFFFC;
constexpr uint32_t kDns1 = 0x0A000001, kDns2 = 0x0A000002;  // 10.0.0.1, 10.0.0.2
constexpr uint8_t kPrefix6 = 64;

uint32_t address4(uint8_t slot, uint8_t host) { return 0x0A400000u | uint32_t(slot) << 8 | host; }
Bytes address6(uint8_t slot, uint8_t host) {
    Bytes a(16, 0);
    a[0] = 0x20; a[1] = 0x01; a[2] = 0x0d; a[3] = 0xb8; a[4] = 0x00; a[5] = 0x64; a[6] = 0x00; a[7] = slot;
    a[15] = host;
    return a;
}
// DNS servers of IPv6 calls: 2001:db8:0:53::1 and 2001:db8:0:53::2.
Bytes dns6(uint8_t host) {
    Bytes a(16, 0);
    a[0] = 0x20; a[1] = 0x01; a[2] = 0x0d; a[3] = 0xb8; a[6] = 0x00; a[7] = 0x53;
    a[15] = host;
    return a;
}
Bytes be32(uint32_t v) { return {uint8_t(v >> 24), uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v)}; }

void ensureDefaults(State& st) {
    if (st.profiles.empty()) st.profiles[1] = Profile{"internet", 0, "internet", "", "", 0};
}

uint8_t profileType(const Val& v) {
    uint8_t type = v.u8(0);
    if (type != 0) throw Fail{kErrInvalidProfileType};  // 3GPP only
    return type;
}

// Applies the profile items of a request to a profile.
void applyItems(const Req& r, Profile& p) {
    Val v;
    if (r.has(0x10, &v)) p.name = v.all();
    if (r.has(0x11, &v)) p.pdpType = v.u8(0);
    if (r.has(0x14, &v)) p.apn = v.all();
    if (r.has(0x1B, &v)) p.user = v.all();
    if (r.has(0x1C, &v)) p.password = v.all();
    if (r.has(0x1D, &v)) p.auth = v.u8(0);
}

Tlvs profileItems(const Profile& p) {
    return {{0x10, W().str(p.name)}, {0x11, W().u8(p.pdpType)}, {0x14, W().str(p.apn)},
            {0x1B, W().str(p.user)}, {0x1D, W().u8(p.auth)}};
}

Call* callOf(State& st, uint8_t client) {
    for (auto& kv : st.calls)
        if (kv.second.client == client) return &kv.second;
    return nullptr;
}

// The packet service status indication of a call that ended.
Tlvs ended(uint8_t family, uint16_t reason, uint16_t vtype, uint16_t vreason) {
    Tlvs t = {{0x01, W().u8(1).u8(0)}, {0x10, W().u16(reason)}};
    if (vtype) t.push_back({0x11, W().u16(vtype).u16(vreason)});
    t.push_back({0x12, W().u8(family)});
    return t;
}

uint8_t freeSlot(const State& st, uint8_t family) {
    for (uint8_t slot = 1;; ++slot) {
        bool used = false;
        for (auto& kv : st.calls) used = used || (kv.second.family == family && kv.second.slot == slot);
        if (!used) return slot;
    }
}

Reply start(State& st, const Req& r) {
    ensureDefaults(st);
    if (callOf(st, r.client)) return fail(kErrNoEffect);
    Val v;
    uint8_t index = st.defaultProfile;
    if (r.has(0x31, &v)) index = v.u8(0);
    auto it = st.profiles.find(index);
    if (it == st.profiles.end()) return fail(kErrInvalidProfile);
    Profile s = it->second;
    if (r.has(0x14, &v)) s.apn = v.all();
    if (r.has(0x17, &v)) s.user = v.all();
    if (r.has(0x18, &v)) s.password = v.all();
    if (r.has(0x16, &v)) s.auth = v.u8(0);
    // The IP family: the request's item, else the client's preference;
    // "unspecified" (8) is an IPv4 call.
    uint8_t family = st.client(ZOVQMI_SERVICE_WDS, r.client)->ipFamily;
    if (r.has(0x19, &v)) family = v.u8(0);
    if (family == 8) family = 4;
    if (family != 4 && family != 6) return fail(kErrCallFailed, {{0x10, W().u16(1)}});

    if (!st.registered() || !st.simReady()) {
        // No service: the call cannot come up.
        return fail(kErrCallFailed, {{0x10, W().u16(kEndNoService)}, {0x11, W().u16(1).u16(3)}});
    }
    if (s.apn == st.options.secureApn &&
        (s.user != st.options.user || s.password != st.options.password || s.auth == 0)) {
        st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, ended(family, kEndAuth, 6, 29));
        return fail(kErrCallFailed, {{0x10, W().u16(kEndAuth)}, {0x11, W().u16(6).u16(29)}});
    }
    Call c;
    c.handle = st.nextHandle++;
    c.client = r.client;
    c.profile = index;
    c.family = family;
    c.slot = freeSlot(st, family);
    c.address = family == 4 ? be32(address4(c.slot, 2)) : address6(c.slot, 2);
    c.settings = s;
    c.startMs = st.nowMs();
    st.calls[c.handle] = c;
    st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, {{0x01, W().u8(2).u8(0)}, {0x12, W().u8(family)}});
    return ok({{0x01, W().u32(c.handle)}});
}

}  // namespace

void endCalls(State& st, uint16_t reason, uint16_t verboseType, uint16_t verboseReason) {
    for (auto it = st.calls.begin(); it != st.calls.end();) {
        st.indicate(ZOVQMI_SERVICE_WDS, it->second.client, 0x0022,
                    ended(it->second.family, reason, verboseType, verboseReason));
        it = st.calls.erase(it);
    }
}

Tlvs trafficItems(const Traffic& t, uint32_t mask) {
    Tlvs all = {{0x10, W().u32(t.txPackets)}, {0x11, W().u32(t.rxPackets)}, {0x12, W().u32(t.txDropped)},
                {0x13, W().u32(t.rxDropped)}, {0x14, W().u32(0)},           {0x15, W().u32(0)},
                {0x19, W().u64(t.txBytes)},   {0x1A, W().u64(t.rxBytes)}};
    Tlvs out;
    for (size_t i = 0; i < all.size(); ++i)
        if (mask & (1u << i)) out.push_back(all[i]);
    return out;
}

void releaseWdsClient(State& st, uint8_t client) {
    for (auto it = st.calls.begin(); it != st.calls.end();)
        it = it->second.client == client ? st.calls.erase(it) : std::next(it);
    for (auto it = st.flows.begin(); it != st.flows.end();)
        it = it->second.client == client ? st.flows.erase(it) : std::next(it);
}

Reply handleWds(State& st, const Req& r) {
    ensureDefaults(st);
    Client& me = *st.client(ZOVQMI_SERVICE_WDS, r.client);
    Call* call = callOf(st, r.client);
    switch (r.id) {
    case 0x0000:  // Reset
        me.reg.erase(ZOVQMI_SERVICE_WDS);
        return ok();
    case 0x0001: {  // SetEventReport: transfer statistics every `period` seconds
        me.reg[ZOVQMI_SERVICE_WDS] = r.areaLen ? 1 : 0;
        Val v;
        if (r.has(0x11, &v)) {
            me.statsPeriod = v.u8(0);
            me.statsMask = v.u32(1);
            me.statsSentMs = st.nowMs();
        }
        return ok();
    }
    case 0x0002:  // Abort: nothing is ever pending
        r.need(0x01).u16(0);
        return fail(kErrNoEffect);
    case 0x0020:
        return start(st, r);
    case 0x0021: {  // StopNetworkInterface
        uint32_t handle = r.need(0x01).u32(0);
        auto it = st.calls.find(handle);
        if (it == st.calls.end() || it->second.client != r.client) return fail(kErrInvalidHandle);
        uint8_t family = it->second.family;
        st.calls.erase(it);
        st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, ended(family, kEndClient, 3, 2));
        return ok();
    }
    case 0x0022:  // GetPktSrvcStatus: 1 disconnected, 2 connected
        return ok({{0x01, W().u8(call ? 2 : 1)}});
    case 0x0023:  // GetCurrentChannelRate: current and maximum, tx and rx
        if (!call) return fail(kErrOutOfCall);
        return ok({{0x01, W().u32(5000000).u32(20000000).u32(50000000).u32(150000000)}});
    case 0x0024:  // GetPktStatistics: the data path's counters the mask selects
        return ok(trafficItems(st.traffic, r.need(0x01).u32(0)));
    case 0x0025: case 0x0026:  // GoDormant, GoActive
        return call ? ok() : fail(kErrOutOfCall);
    case 0x0027: {  // CreateProfile
        uint8_t type = profileType(r.need(0x01));
        uint8_t index = 1;
        while (index <= kMaxProfiles && st.profiles.count(index)) ++index;
        if (index > kMaxProfiles) return fail(kErrNoFreeProfile);
        Profile p;
        applyItems(r, p);
        st.profiles[index] = p;
        return ok({{0x01, W().u8(type).u8(index)}});
    }
    case 0x0028: case 0x0029: {  // ModifyProfileSettings, DeleteProfile
        Val v = r.need(0x01);
        profileType(v);
        auto it = st.profiles.find(v.u8(1));
        if (it == st.profiles.end()) return fail(kErrInvalidProfile);
        if (r.id == 0x0028) {
            applyItems(r, it->second);
        } else {
            for (auto& kv : st.calls)
                if (kv.second.profile == it->first) return fail(kErrInvalidArgument);  // in use
            st.profiles.erase(it);
        }
        return ok();
    }
    case 0x002A: {  // GetProfileList
        W list;
        list.u8(uint32_t(st.profiles.size()));
        for (auto& kv : st.profiles) list.u8(0).u8(kv.first).str8(kv.second.name);
        return ok({{0x01, list}});
    }
    case 0x002B: {  // GetProfileSettings
        Val v = r.need(0x01);
        profileType(v);
        auto it = st.profiles.find(v.u8(1));
        if (it == st.profiles.end()) return fail(kErrInvalidProfile);
        return ok(profileItems(it->second));
    }
    case 0x002C:  // GetDefaultSettings
        profileType(r.need(0x01));
        return ok(profileItems(st.profiles[st.defaultProfile]));
    case 0x002D: {  // GetRuntimeSettings: what the call runs with
        if (!call) return fail(kErrOutOfCall);
        Tlvs t = profileItems(call->settings);
        Tlvs more;
        if (call->family == 4)
            more = {{0x15, W().u32(kDns1)}, {0x16, W().u32(kDns2)}, {0x1E, W().u32(address4(call->slot, 2))},
                    {0x1F, W().u8(0).u8(call->profile)}, {0x20, W().u32(address4(call->slot, 1))},
                    {0x21, W().u32(kMask)}, {0x29, W().u32(kMtu)}, {0x2B, W().u8(4)}};
        else
            more = {{0x1F, W().u8(0).u8(call->profile)},
                    {0x25, W().bytes(address6(call->slot, 2)).u8(kPrefix6)},
                    {0x26, W().bytes(address6(call->slot, 1)).u8(kPrefix6)},
                    {0x27, W().bytes(dns6(1))}, {0x28, W().bytes(dns6(2))},
                    {0x29, W().u32(kMtu)}, {0x2B, W().u8(6)}};
        t.insert(t.end(), more.begin(), more.end());
        return ok(t);
    }
    case 0x002E:  // SetMIPMode
        r.need(0x01).u8(0);
        return ok();
    case 0x002F: return ok({{0x01, W().u8(0)}});                      // GetMIPMode
    case 0x0030:                                                       // GetDormancyStatus: 2 active
        return call ? ok({{0x01, W().u8(2)}}) : fail(kErrOutOfCall);
    case 0x0035: {  // GetCallDuration
        if (!call) return fail(kErrOutOfCall);
        uint64_t d = st.nowMs() - call->startMs;
        return ok({{0x01, W().u64(d)}, {0x11, W().u64(d)}});
    }
    case 0x0044:  // GetCurrentDataBearerTechnology: 3GPP, LTE
        if (!call) return fail(kErrOutOfCall);
        return ok({{0x01, W().u8(1).u32(0x20).u32(0)}});
    case 0x0049:  // GetDefaultProfileNum
        r.need(0x01).u8(1);
        return ok({{0x01, W().u8(st.defaultProfile)}});
    case 0x004A: {  // SetDefaultProfileNum
        Val v = r.need(0x01);
        if (!st.profiles.count(v.u8(2))) return fail(kErrInvalidProfile);
        st.defaultProfile = v.u8(2);
        return ok();
    }
    case 0x004D: {  // SetClientIPFamilyPref: 4, 6 or 8 (unspecified)
        uint8_t family = r.need(0x01).u8(0);
        if (family != 4 && family != 6 && family != 8) return fail(kErrInvalidArgument);
        me.ipFamily = family;
        return ok();
    }
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
