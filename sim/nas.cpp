// NAS of the simulated modem: signal, serving system and network scan.
#include "state.h"

namespace zovsim {

namespace {

constexpr uint16_t kMcc = 1, kMnc = 1;
const char* const kHomeName = "ZovNet";

constexpr uint32_t kRegSignal = kNasRegSignal, kRegServing = kNasRegServing;

}  // namespace

Bytes nasServingSystem(const State& st) {
    // Registration state: 1 registered, 2 searching (the network is gone),
    // 0 not registered and not searching (offline or no SIM).
    bool reg = st.registered();
    uint8_t state = reg ? 1 : (st.online() && st.simPresent) ? 2 : 0;
    W w;
    // CS and PS attached (PS detached on request), 3GPP network
    w.u8(state).u8(reg ? 1 : 2).u8(reg && !st.psDetached ? 1 : 2).u8(2);
    if (reg) w.u8(1).u8(8);                                          // LTE
    else w.u8(0);
    return w;
}

void servingSystemChanged(State& st) {
    st.indicateRegistered(ZOVQMI_SERVICE_NAS, kRegServing, 0x0024, {{0x01, nasServingSystem(st)}});
}

Reply handleNas(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_NAS, r.client);
    switch (r.id) {
    case 0x0000:  // Reset
        me.reg.erase(ZOVQMI_SERVICE_NAS);
        return ok();
    case 0x0001:  // Abort: nothing is ever pending
        r.need(0x01).u16(0);
        return fail(kErrNoEffect);
    case 0x0002: {  // SetEventReport: signal strength reporting
        Val v;
        uint32_t& reg = me.reg[ZOVQMI_SERVICE_NAS];
        if (r.has(0x10, &v)) reg = v.u8(0) ? reg | kRegSignal : reg & ~kRegSignal;
        return ok();
    }
    case 0x0003: {  // IndicationRegister: serving system events
        Val v;
        uint32_t& reg = me.reg[ZOVQMI_SERVICE_NAS];
        if (r.has(0x13, &v)) reg = v.u8(0) ? reg | kRegServing : reg & ~kRegServing;
        return ok();
    }
    case 0x0020: {  // GetSignalStrength: the level set (-67 dBm at power-up) on LTE
        if (!st.online()) return fail(kErrNoNetworkFound);
        uint8_t dbm = uint8_t(int8_t(st.signalDbm));
        return ok({{0x01, W().u8(dbm).u8(8)},
                   {0x10, W().u16(1).u8(dbm).u8(8)},
                   {0x11, W().u16(1).u8(uint8_t(-st.signalDbm)).u8(8)},
                   {0x12, W().u16(1).u8(10).u8(8)},
                   {0x14, W().u8(6)}});
    }
    case 0x0021: {  // PerformNetworkScan: three networks, the home one in use
        if (!st.online()) return fail(kErrDeviceNotReady);
        struct Net { uint16_t mcc, mnc; uint8_t status; const char* name; };
        static const Net nets[] = {{kMcc, kMnc, 0x01 | 0x04 | 0x40, kHomeName},
                                   {kMcc, 2, 0x02 | 0x08, "Simtel"},
                                   {kMcc, 3, 0x02 | 0x10, "Forbidden Mobile"}};
        W w;
        w.u16(3);
        for (const Net& n : nets) w.u16(n.mcc).u16(n.mnc).u8(n.status).str8(n.name);
        return ok({{0x10, w}});
    }
    case 0x0022: {  // InitiateNetworkRegister: 1 automatic, 2 manual
        uint8_t action = r.need(0x01).u8(0);
        if (action != 1 && action != 2) return fail(kErrInvalidArgument);
        Val v;
        if (action == 2 && r.has(0x10, &v) && (v.u16(0) != kMcc || v.u16(2) != kMnc))
            return fail(kErrNoNetworkFound);
        return ok();
    }
    case 0x0023: {  // InitiateAttach: PS attach action 1 attach, 2 detach
        if (!st.registered()) return fail(kErrNoNetworkFound);
        Val v;
        uint8_t action = r.has(0x10, &v) ? v.u8(0) : 1;
        if (action != 1 && action != 2) return fail(kErrInvalidArgument);
        if ((action == 2) == st.psDetached) return fail(kErrNoEffect);
        st.psDetached = action == 2;
        st.indicateRegistered(ZOVQMI_SERVICE_NAS, kRegServing, 0x0024, {{0x01, nasServingSystem(st)}});
        return ok();
    }
    case 0x0024: {  // GetServingSystem
        Tlvs t = {{0x01, nasServingSystem(st)}};
        if (st.registered()) {
            t.push_back({0x10, W().u8(1)});                       // roaming off
            t.push_back({0x11, W().u8(2).u8(5).u8(11)});          // data capabilities
            t.push_back({0x12, W().u16(kMcc).u16(kMnc).str8(kHomeName)});
        }
        return ok(t);
    }
    case 0x0025:  // GetHomeNetwork
        return ok({{0x01, W().u16(kMcc).u16(kMnc).str8(kHomeName)}});
    case 0x0031:  // GetRFBandInfo: LTE band 3 (band class 122), EARFCN 1300
        if (!st.registered()) return fail(kErrNoNetworkFound);
        return ok({{0x01, W().u8(1).u8(8).u16(122).u16(1300)}});
    case 0x0033: {  // SetSystemSelectionPreference
        Val v;
        if (r.has(0x11, &v)) {
            uint16_t modes = v.u16(0);
            if (modes == 0 || (modes & ~0x3Fu)) return fail(kErrInvalidArgument);
            st.modePreference = modes;
        }
        if (r.has(0x12, &v)) st.bandPreference = v.u64(0);
        if (r.has(0x14, &v)) st.roamingPreference = v.u16(0);
        return ok();
    }
    case 0x0034:  // GetSystemSelectionPreference
        return ok({{0x10, W().u8(0)}, {0x11, W().u16(st.modePreference)}, {0x12, W().u64(st.bandPreference)},
                   {0x14, W().u16(st.roamingPreference)}});
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
