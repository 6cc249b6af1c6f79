// QOS of the simulated modem: flows on top of a running data call.
//
// Each QoSSpec item (0x10) of a RequestQoS becomes one flow; status
// indications (id, status, event) follow every change: status 1 activated,
// 2 suspended, 3 released; event 1 activated, 2 suspended, 3 released,
// 5 resumed.
#include "state.h"

namespace zovsim {

namespace {

enum : uint8_t { kActivated = 1, kSuspended = 2, kReleased = 3, kResumed = 5 };

bool hasCall(State& st, int conn) {
    for (auto& kv : st.calls) {
        Client* c = st.client(ZOVQMI_SERVICE_WDS, kv.second.client);
        if (c && c->conn == conn) return true;
    }
    return false;
}

void status(State& st, uint8_t client, uint32_t id, uint8_t s, uint8_t event) {
    st.indicate(ZOVQMI_SERVICE_QOS, client, 0x0026, {{0x01, W().u32(id).u8(s).u8(event)}, {0x10, W().u8(0)}});
}

// The identifiers of a release, suspend or resume request, all known.
std::vector<uint32_t> flowIds(State& st, const Req& r) {
    Val v = r.need(0x01);
    uint8_t n = v.u8(0);
    if (n == 0) throw Fail{kErrMissingArgument};
    std::vector<uint32_t> ids;
    for (uint8_t i = 0; i < n; ++i) {
        uint32_t id = v.u32(1 + 4u * i);
        auto it = st.flows.find(id);
        if (it == st.flows.end() || it->second.client != r.client) throw Fail{kErrInvalidQosId};
        ids.push_back(id);
    }
    return ids;
}

}  // namespace

Reply handleQos(State& st, const Req& r) {
    Client& me = *st.client(ZOVQMI_SERVICE_QOS, r.client);
    switch (r.id) {
    case 0x0000:  // Reset: this client's flows are released
        for (auto it = st.flows.begin(); it != st.flows.end();)
            it = it->second.client == r.client ? st.flows.erase(it) : std::next(it);
        me.reg.erase(ZOVQMI_SERVICE_QOS);
        return ok();
    case 0x0001:  // SetEventReport
        me.reg[ZOVQMI_SERVICE_QOS] = r.areaLen ? 1 : 0;
        return ok();
    case 0x0020: {  // RequestQoS: one flow per QoSSpec item, needs a data call of this connection
        int qosItems = 0;
        for (uint16_t off = 0; off + 3 <= r.areaLen; off += 3 + (r.area[off + 1] | r.area[off + 2] << 8))
            qosItems += r.area[off] == 0x10;
        if (qosItems == 0) return fail(kErrMissingArgument);
        if (!hasCall(st, me.conn)) return fail(kErrOutOfCall);
        W ids;
        ids.u8(uint32_t(qosItems));
        for (int i = 0; i < qosItems; ++i) {
            uint32_t id = st.nextQosId++;
            st.flows[id] = QosFlow{id, r.client, kActivated};
            ids.u32(id);
            status(st, r.client, id, kActivated, kActivated);
        }
        return ok({{0x01, ids}});
    }
    case 0x0021:  // ReleaseQoS
        for (uint32_t id : flowIds(st, r)) {
            st.flows.erase(id);
            status(st, r.client, id, kReleased, kReleased);
        }
        return ok();
    case 0x0022: case 0x0023: {  // SuspendQoS, ResumeQoS
        bool suspend = r.id == 0x0022;
        std::vector<uint32_t> ids = flowIds(st, r);
        for (uint32_t id : ids)
            if ((st.flows[id].status == kSuspended) == suspend) return fail(kErrNoEffect);
        for (uint32_t id : ids) {
            st.flows[id].status = suspend ? kSuspended : kActivated;
            status(st, r.client, id, st.flows[id].status, suspend ? kSuspended : kResumed);
        }
        return ok();
    }
    case 0x0024:  // ModifyQoS: accepted as it stands
        return r.has(0x10) || r.has(0x11) ? ok() : fail(kErrMissingArgument);
    case 0x0025: case 0x0026: {  // GetGrantedQoS, GetQoSStatus
        uint32_t id = r.need(0x01).u32(0);
        auto it = st.flows.find(id);
        if (it == st.flows.end()) return fail(kErrInvalidQosId);
        if (r.id == 0x0025) return ok();
        return ok({{0x01, W().u8(it->second.status)}});
    }
    case 0x0027:  // GetQoSNetworkStatus: the network supports QoS
        return ok({{0x01, W().u8(1)}});
    case 0x0028:  // GetNWSupportedQoSProfiles: one technology with two profiles
        return ok({{0x01, W().u8(1).u16(0x8004).u8(2).u16(0x0100).u16(0x0101)}});
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
