// WDS of the simulated modem: profiles and the packet data call.
#include "state.h"

namespace zovsim {

namespace {

constexpr uint8_t kMaxProfiles = 16;
constexpr uint32_t kAddress = 0x0A400102;   // 10.64.1.2
constexpr uint32_t kGateway = 0x0A400101;   // 10.64.1.1
constexpr uint32_t kMask = 0xFFFFFFFC;
constexpr uint32_t kDns1 = 0x0A000001, kDns2 = 0x0A000002;
constexpr uint32_t kMtu = 1500;

// Call end reasons: generic "client end", "authentication failed", and the
// verbose 3GPP cause "user authentication failed" (type 6, cause 29).
constexpr uint16_t kEndClient = 2;
constexpr uint16_t kEndAuth = 1014;

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

Tlvs ended(uint16_t reason, uint16_t vtype, uint16_t vreason) {
    return {{0x01, W().u8(1).u8(0)}, {0x10, W().u16(reason)}, {0x11, W().u16(vtype).u16(vreason)}};
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
    if (r.has(0x19, &v) && v.u8(0) != 4) return fail(kErrCallFailed, {{0x10, W().u16(1)}});

    if (!st.online() || !st.simReady()) {
        // No service: the call cannot come up.
        return fail(kErrCallFailed, {{0x10, W().u16(3)}, {0x11, W().u16(1).u16(3)}});
    }
    if (s.apn == st.options.secureApn &&
        (s.user != st.options.user || s.password != st.options.password || s.auth == 0)) {
        st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, ended(kEndAuth, 6, 29));
        return fail(kErrCallFailed, {{0x10, W().u16(kEndAuth)}, {0x11, W().u16(6).u16(29)}});
    }
    Call c;
    c.handle = st.nextHandle++;
    c.client = r.client;
    c.profile = index;
    c.settings = s;
    c.startMs = st.nowMs();
    st.calls[c.handle] = c;
    st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, {{0x01, W().u8(2).u8(0)}, {0x12, W().u8(4)}});
    return ok({{0x01, W().u32(c.handle)}});
}

}  // namespace

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
    case 0x0001:  // SetEventReport: remembered, reports are not generated
        me.reg[ZOVQMI_SERVICE_WDS] = r.areaLen ? 1 : 0;
        return ok();
    case 0x0002:  // Abort: nothing is ever pending
        r.need(0x01).u16(0);
        return fail(kErrNoEffect);
    case 0x0020:
        return start(st, r);
    case 0x0021: {  // StopNetworkInterface
        uint32_t handle = r.need(0x01).u32(0);
        auto it = st.calls.find(handle);
        if (it == st.calls.end() || it->second.client != r.client) return fail(kErrInvalidHandle);
        st.calls.erase(it);
        st.indicate(ZOVQMI_SERVICE_WDS, r.client, 0x0022, ended(kEndClient, 3, 2));
        return ok();
    }
    case 0x0022:  // GetPktSrvcStatus: 1 disconnected, 2 connected
        return ok({{0x01, W().u8(call ? 2 : 1)}});
    case 0x0023:  // GetCurrentChannelRate: current and maximum, tx and rx
        if (!call) return fail(kErrOutOfCall);
        return ok({{0x01, W().u32(5000000).u32(20000000).u32(50000000).u32(150000000)}});
    case 0x0024: {  // GetPktStatistics
        r.need(0x01).u32(0);
        uint64_t secs = call ? (st.nowMs() - call->startMs) / 1000 + 1 : 0;
        return ok({{0x10, W().u32(uint32_t(secs * 12))}, {0x11, W().u32(uint32_t(secs * 30))},
                   {0x12, W().u32(0)}, {0x13, W().u32(0)}, {0x14, W().u32(0)}, {0x15, W().u32(0)},
                   {0x19, W().u64(secs * 1800)}, {0x1A, W().u64(secs * 42000)}});
    }
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
        Tlvs more = {{0x15, W().u32(kDns1)}, {0x16, W().u32(kDns2)}, {0x1E, W().u32(kAddress)},
                     {0x1F, W().u8(0).u8(call->profile)}, {0x20, W().u32(kGateway)},
                     {0x21, W().u32(kMask)}, {0x29, W().u32(kMtu)}, {0x2B, W().u8(4)}};
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
    case 0x004D:  // SetClientIPFamilyPref: IPv4 only
        return r.need(0x01).u8(0) == 4 ? ok() : fail(kErrInvalidArgument);
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
