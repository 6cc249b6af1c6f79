// Frame intake, dispatch and the control service of the simulated modem.
#include "modem.h"

#include <chrono>
#include <cstdio>

#include "state.h"

namespace zovsim {

namespace {

constexpr uint8_t kQmuxFromModem = 0x80;
constexpr uint8_t kCtlResponse = 0x01, kCtlIndication = 0x02;
constexpr uint8_t kSvcResponse = 0x02, kSvcIndication = 0x04;

uint16_t le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

// The services the modem offers client ids for.
bool offered(uint8_t service) {
    switch (service) {
    case ZOVQMI_SERVICE_WDS: case ZOVQMI_SERVICE_DMS: case ZOVQMI_SERVICE_NAS: case ZOVQMI_SERVICE_QOS:
    case ZOVQMI_SERVICE_WMS: case ZOVQMI_SERVICE_PDS: case ZOVQMI_SERVICE_PBM:
        return true;
    default:
        return false;
    }
}

// Every TLV of the area lies inside it.
bool wellFormedArea(const uint8_t* area, size_t len) {
    size_t off = 0;
    while (off < len) {
        if (off + 3 > len) return false;
        off += 3 + le16(area + off + 1);
        if (off > len) return false;
    }
    return true;
}

Bytes answer(bool control, uint16_t tx, uint16_t id, const Reply& reply) {
    Tlvs tlvs;
    tlvs.push_back({0x02, W().u16(reply.error ? 1 : 0).u16(reply.error)});
    tlvs.insert(tlvs.end(), reply.tlvs.begin(), reply.tlvs.end());
    return buildMessage(control, control ? kCtlResponse : kSvcResponse, tx, id, tlvs);
}

}  // namespace

const char* errorName(uint16_t code) {
    switch (code) {
    case kErrNone: return "None";
    case kErrMalformedMessage: return "MalformedMessage";
    case kErrInternal: return "Internal";
    case kErrClientIdsExhausted: return "ClientIdsExhausted";
    case kErrInvalidClientId: return "InvalidClientId";
    case kErrInvalidHandle: return "InvalidHandle";
    case kErrInvalidProfile: return "InvalidProfile";
    case kErrInvalidPinId: return "InvalidPinId";
    case kErrIncorrectPin: return "IncorrectPin";
    case kErrNoNetworkFound: return "NoNetworkFound";
    case kErrCallFailed: return "CallFailed";
    case kErrOutOfCall: return "OutOfCall";
    case kErrMissingArgument: return "MissingArgument";
    case kErrNoEffect: return "NoEffect";
    case kErrNoFreeProfile: return "NoFreeProfile";
    case kErrInvalidProfileType: return "InvalidProfileType";
    case kErrInvalidServiceType: return "InvalidServiceType";
    case kErrPinBlocked: return "PinBlocked";
    case kErrPinPermanentlyBlocked: return "PinPermanentlyBlocked";
    case kErrInvalidQosId: return "InvalidQosId";
    case kErrInvalidArgument: return "InvalidArgument";
    case kErrInvalidIndex: return "InvalidIndex";
    case kErrNoEntry: return "NoEntry";
    case kErrDeviceStorageFull: return "DeviceStorageFull";
    case kErrDeviceNotReady: return "DeviceNotReady";
    case kErrInvalidQmiCommand: return "InvalidQmiCommand";
    default: return "Unknown";
    }
}

Bytes buildMessage(bool control, uint8_t flags, uint16_t tx, uint16_t id, const Tlvs& tlvs) {
    size_t total = control ? 6 : 7;
    for (const Tlv& t : tlvs) total += 3 + t.value.size();
    Bytes msg(total);
    if (control) {
        msg[0] = flags;
        msg[1] = uint8_t(tx);
        msg[2] = uint8_t(id);
        msg[3] = uint8_t(id >> 8);
    } else {
        msg[0] = flags;
        msg[1] = uint8_t(tx);
        msg[2] = uint8_t(tx >> 8);
        msg[3] = uint8_t(id);
        msg[4] = uint8_t(id >> 8);
    }
    int n = control ? 6 : 7;
    QmiTlvRecord rec;
    for (const Tlv& t : tlvs) {
        if (t.value.size() > sizeof rec.value) continue;  // the modem never builds such values
        rec.type = t.type;
        // The record mirrors the wire: its length is little-endian bytes on every host.
        uint8_t* length = reinterpret_cast<uint8_t*>(&rec.length);
        length[0] = uint8_t(t.value.size());
        length[1] = uint8_t(t.value.size() >> 8);
        if (!t.value.empty()) std::memcpy(rec.value, t.value.data(), t.value.size());
        n = control ? zovQMIMSMControlAddTLV(msg.data(), int(msg.size()), &rec)
                    : zovQMIMSMMessageAddTLV(msg.data(), int(msg.size()), &rec);
        if (n < 0) break;
    }
    msg.resize(n < 0 ? (control ? 6 : 7) : size_t(n));
    return msg;
}

Bytes qmuxFrame(uint8_t service, uint8_t clientId, const Bytes& message) {
    Bytes f(6 + message.size());
    uint16_t len = uint16_t(message.size() + 5);
    f[0] = 1;
    f[1] = uint8_t(len);
    f[2] = uint8_t(len >> 8);
    f[3] = kQmuxFromModem;
    f[4] = service;
    f[5] = clientId;
    std::copy(message.begin(), message.end(), f.begin() + 6);
    return f;
}

void State::indicate(uint8_t service, uint8_t client, uint16_t id, const Tlvs& tlvs) {
    auto it = clients.find({service, client});
    if (it == clients.end()) return;
    bool control = service == ZOVQMI_SERVICE_CTL;
    Bytes msg = buildMessage(control, control ? kCtlIndication : kSvcIndication, 0, id, tlvs);
    after.push_back(Frame{it->second.conn, qmuxFrame(service, client, msg)});
}

void State::indicateRegistered(uint8_t service, uint32_t mask, uint16_t id, const Tlvs& tlvs) {
    for (auto& [key, c] : clients) {
        if (key.first != service) continue;
        auto reg = c.reg.find(service);
        if (reg != c.reg.end() && (reg->second & mask)) indicate(service, key.second, id, tlvs);
    }
}

uint64_t State::nowMs() const {
    using namespace std::chrono;
    return uint64_t(duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count() + timeOffsetMs);
}

Modem::Modem(Options options) : state_(new State(options)) {}
Modem::~Modem() = default;

size_t Modem::clientCount(uint8_t service) const {
    std::lock_guard<std::mutex> lock(mutex_);
    size_t n = 0;
    for (auto& kv : state_->clients) n += kv.first.first == service;
    return n;
}

void Modem::disconnect(int conn, bool releaseIds) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.powerSaveReporting.erase(conn);
    for (auto it = st.clients.begin(); it != st.clients.end();) {
        if (it->second.conn == conn && !releaseIds) {
            it->second.conn = -1;
            ++it;
        } else if (it->second.conn == conn) {
            if (it->first.first == ZOVQMI_SERVICE_WDS) releaseWdsClient(st, it->first.second);
            it = st.clients.erase(it);
        } else {
            ++it;
        }
    }
    st.after.clear();
}

std::vector<Frame> Modem::receive(int conn, const uint8_t* frame, size_t len) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    std::vector<Frame> out;

    // What can be read of the header, for the answer to a malformed frame.
    uint8_t service = len >= 5 ? frame[4] : 0;
    uint8_t client = len >= 6 ? frame[5] : 0;
    bool control = service == ZOVQMI_SERVICE_CTL;
    const uint8_t* msg = len >= 6 ? frame + 6 : frame;
    size_t mlen = len >= 6 ? len - 6 : 0;
    size_t hdr = control ? 6 : 7;
    uint16_t tx = 0, id = 0;
    if (control) {
        if (mlen >= 2) tx = msg[1];
        if (mlen >= 4) id = le16(msg + 2);
    } else {
        if (mlen >= 3) tx = le16(msg + 1);
        if (mlen >= 5) id = le16(msg + 3);
    }
    auto reply = [&](const Reply& r) {
        out.push_back(Frame{conn, qmuxFrame(service, client, answer(control, tx, id, r))});
    };

    // The frame must be one whole message: QMUX length, header and TLV area agree.
    bool whole = len >= 6 && frame[0] == 1 && le16(frame + 1) + 1u == len && mlen >= hdr;
    QmiMessageInfo info{};
    uint16_t areaLen = 0;
    if (whole) {
        if (control) {
            QmiMessageEntry entry{};
            info.entries = &entry;
            // The entry's fields are little-endian bytes; the header has them too.
            areaLen = le16(msg + 4);
            whole = zovQMIMSMControlParse(msg, int(mlen), &info) == 1 && 6u + areaLen == mlen;
        } else {
            // The message walk does not visit a message without TLVs (its
            // head ends at the buffer's end): that one is a bare header.
            std::vector<QmiMessageEntry> entries(mlen / 4 + 1);
            info.entries = entries.data();
            int count = zovQMIMSMMessageParse(msg, int(mlen), &info);
            areaLen = le16(msg + 5);
            whole = count <= 1 && 7u + areaLen == mlen;
        }
        whole = whole && wellFormedArea(msg + hdr, areaLen);
    }
    if (!whole) {
        reply(fail(kErrMalformedMessage));
        return out;
    }
    if (st.options.silent.count({service, id}) || st.stalled) return out;

    Req r{conn, service, client, tx, id, control, msg + hdr, areaLen};
    Reply result;
    bool unknownClient = false;
    try {
        if (!control) {
            Client* c = st.client(service, client);
            unknownClient = !c;
            if (!c) throw Fail{kErrInvalidClientId};
            c->conn = conn;  // indications go where the client id is used
        }
        switch (service) {
        case ZOVQMI_SERVICE_CTL: result = handleCtl(st, r); break;
        case ZOVQMI_SERVICE_DMS: result = handleDms(st, r); break;
        case ZOVQMI_SERVICE_WDS: result = handleWds(st, r); break;
        case ZOVQMI_SERVICE_NAS: result = handleNas(st, r); break;
        case ZOVQMI_SERVICE_WMS: result = handleWms(st, r); break;
        case ZOVQMI_SERVICE_PDS: result = handlePds(st, r); break;
        case ZOVQMI_SERVICE_PBM: result = handlePbm(st, r); break;
        case ZOVQMI_SERVICE_QOS: result = handleQos(st, r); break;
        default: result = fail(kErrInvalidServiceType); break;
        }
    } catch (const Fail& f) {
        result = fail(f.error);
        st.after.clear();
    }
    reply(result);
    if (unknownClient) {
        // The error result, then the control indication that names the id.
        Bytes ind = buildMessage(true, kCtlIndication, 0, 0x0025, {{0x01, W().u8(service).u8(client)}});
        out.push_back(Frame{conn, qmuxFrame(ZOVQMI_SERVICE_CTL, 0, ind)});
    }
    out.insert(out.end(), st.after.begin(), st.after.end());
    st.after.clear();
    return out;
}

namespace {

// Takes the indications queued by a change; a hung modem sends none.
std::vector<Frame> takeAfter(State& st) {
    std::vector<Frame> out;
    if (!st.stalled) out.swap(st.after);
    st.after.clear();
    return out;
}

const char* serviceName(uint8_t service) {
    switch (service) {
    case ZOVQMI_SERVICE_WDS: return "wds";
    case ZOVQMI_SERVICE_DMS: return "dms";
    case ZOVQMI_SERVICE_NAS: return "nas";
    case ZOVQMI_SERVICE_QOS: return "qos";
    case ZOVQMI_SERVICE_WMS: return "wms";
    case ZOVQMI_SERVICE_PDS: return "pds";
    case ZOVQMI_SERVICE_PBM: return "pbm";
    default: return nullptr;
    }
}

const char* pinName(const Pin& p) {
    switch (p.status()) {
    case 1: return "enabled-not-verified";
    case 2: return "enabled-verified";
    case 3: return "disabled";
    case 4: return "blocked";
    case 5: return "permanently-blocked";
    default: return "unknown";
    }
}

std::string jsonString(const std::string& s) {
    std::string out = "\"";
    for (unsigned char ch : s) {
        if (ch == '"' || ch == '\\') {
            out += '\\';
            out += char(ch);
        } else if (ch < 0x20 || ch >= 0x7F) {
            char esc[8];
            std::snprintf(esc, sizeof esc, "\\u%04x", ch);
            out += esc;
        } else {
            out += char(ch);
        }
    }
    return out + "\"";
}

}  // namespace

std::vector<Frame> Modem::dropCalls(int reason) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    if (reason < 0)
        endCalls(st, kEndFade, 6, 36);  // 3GPP cause 36, regular deactivation by the network
    else
        endCalls(st, uint16_t(reason), 0, 0);
    return takeAfter(st);
}

std::vector<Frame> Modem::setNetwork(bool registered) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    if (st.network == registered) return {};
    st.network = registered;
    servingSystemChanged(st);
    if (!st.registered()) endCalls(st, kEndNoService, 1, 3);
    return takeAfter(st);
}

std::vector<Frame> Modem::setSignal(int dbm) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    if (st.signalDbm == dbm) return {};
    st.signalDbm = dbm;
    // The event report of clients that asked for signal strength: dBm and radio (LTE).
    st.indicateRegistered(ZOVQMI_SERVICE_NAS, kNasRegSignal, 0x0002,
                          {{0x10, W().u8(uint8_t(int8_t(dbm))).u8(8)}});
    return takeAfter(st);
}

void Modem::setStalled(bool stalled) {
    std::lock_guard<std::mutex> lock(mutex_);
    state_->stalled = stalled;
}

std::vector<Frame> Modem::setSim(bool present) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    if (st.simPresent == present) return {};
    st.simPresent = present;
    st.pin1.verified = false;  // a SIM that comes back is powered up afresh
    st.pin2.verified = false;
    simChanged(st);
    servingSystemChanged(st);
    if (!present) endCalls(st, kEndNoService, 1, 3);
    return takeAfter(st);
}

std::vector<Frame> Modem::reset() {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    std::set<int> conns;
    for (auto& kv : st.clients)
        if (kv.second.conn >= 0) conns.insert(kv.second.conn);
    st.clients.clear();
    st.calls.clear();
    st.flows.clear();
    st.powerSaveReporting.clear();
    st.traffic = Traffic();
    st.operatingMode = 0;
    st.pin1.verified = st.pin2.verified = false;
    st.stalled = false;
    std::vector<Frame> out;
    Bytes sync = buildMessage(true, kCtlIndication, 0, 0x0027, {});
    for (int conn : conns) out.push_back(Frame{conn, qmuxFrame(ZOVQMI_SERVICE_CTL, 0, sync)});
    return out;
}

void Modem::reboot() {
    std::lock_guard<std::mutex> lock(mutex_);
    Options options = state_->options;
    state_.reset(new State(options));
}

std::string Modem::status(int opens) const {
    std::lock_guard<std::mutex> lock(mutex_);
    const State& st = *state_;
    std::string j = "{\"registered\":";
    j += st.registered() ? "true" : "false";
    j += ",\"stalled\":";
    j += st.stalled ? "true" : "false";
    j += ",\"signal_dbm\":" + std::to_string(st.signalDbm);
    j += ",\"sim\":";
    j += st.simPresent ? "\"present\"" : "\"absent\"";
    j += ",\"pin1\":\"";
    j += st.simPresent ? pinName(st.pin1) : "unknown";
    j += "\",\"clients\":{";
    static const uint8_t services[] = {ZOVQMI_SERVICE_WDS, ZOVQMI_SERVICE_DMS, ZOVQMI_SERVICE_NAS,
                                       ZOVQMI_SERVICE_QOS, ZOVQMI_SERVICE_WMS, ZOVQMI_SERVICE_PDS,
                                       ZOVQMI_SERVICE_PBM};
    bool firstService = true;
    for (uint8_t service : services) {
        j += firstService ? "" : ",";
        firstService = false;
        j += "\"" + std::string(serviceName(service)) + "\":[";
        bool first = true;
        for (auto& kv : st.clients) {
            if (kv.first.first != service) continue;
            j += first ? "" : ",";
            first = false;
            j += std::to_string(kv.first.second);
        }
        j += "]";
    }
    j += "},\"calls\":[";
    bool first = true;
    for (auto& kv : st.calls) {
        j += first ? "" : ",";
        first = false;
        j += "{\"client\":" + std::to_string(kv.second.client) + ",\"handle\":" + std::to_string(kv.second.handle) +
             ",\"family\":" + std::to_string(kv.second.family) + ",\"apn\":" + jsonString(kv.second.settings.apn) +
             "}";
    }
    j += "],\"opens\":" + std::to_string(opens);
    j += ",\"pin1_retries\":" + std::to_string(st.simPresent ? st.pin1.left : 0);
    j += ",\"puk1_retries\":" + std::to_string(st.simPresent ? st.pin1.pukLeft : 0);
    j += ",\"tx_packets\":" + std::to_string(st.traffic.txPackets);
    j += ",\"rx_packets\":" + std::to_string(st.traffic.rxPackets);
    j += ",\"dropped_packets\":" + std::to_string(st.traffic.txDropped);
    return j + "}";
}

std::vector<Frame> Modem::tick() {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    uint64_t now = st.nowMs();
    for (auto& [key, c] : st.clients) {
        if (key.first != ZOVQMI_SERVICE_WDS || c.statsPeriod == 0 || c.statsMask == 0) continue;
        if (now - c.statsSentMs < uint64_t(c.statsPeriod) * 1000) continue;
        c.statsSentMs = now;
        bool inCall = false;
        for (auto& kv : st.calls) inCall = inCall || kv.second.client == key.second;
        if (inCall) st.indicate(ZOVQMI_SERVICE_WDS, key.second, 0x0001, trafficItems(st.traffic, c.statsMask));
    }
    return takeAfter(st);
}

std::vector<Frame> Modem::deliverSms(const Bytes& pdu) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    st.after.clear();
    auto& store = st.sms[1];
    uint32_t index = store.empty() ? 0 : store.rbegin()->first + 1;
    store[index] = Sms{1, 6, pdu};
    st.indicateRegistered(ZOVQMI_SERVICE_WMS, 1, 0x0001, {{0x10, W().u8(1).u32(index)}});
    return takeAfter(st);
}

// ------------------------------------------------------------------ CTL --

Reply handleCtl(State& st, const Req& r) {
    switch (r.id) {
    case 0x0020: {  // SetInstanceID: the link id is the instance in the high byte
        uint8_t instance = r.need(0x01).u8(0);
        return ok({{0x01, W().u16(uint32_t(instance) << 8 | 0x01)}});
    }
    case 0x0021: {  // GetVersionInfo
        static const uint8_t services[] = {0, 1, 2, 3, 4, 5, 6, 12};
        W list;
        list.u8(sizeof services);
        for (uint8_t s : services) list.u8(s).u16(1).u16(s == 0 ? 5 : 10 + s);
        return ok({{0x01, list}, {0x10, W().u8(6).str("zovsim").u8(0)}});
    }
    case 0x0022: {  // GetClientID: the lowest free id of the service
        uint8_t service = r.need(0x01).u8(0);
        if (!offered(service)) return fail(kErrInvalidServiceType);
        for (unsigned id = 1; id < 255; ++id) {
            if (st.client(service, uint8_t(id))) continue;
            st.clients[{service, uint8_t(id)}] = Client{r.conn, {}};
            return ok({{0x01, W().u8(service).u8(id)}});
        }
        return fail(kErrClientIdsExhausted);
    }
    case 0x0023: {  // ReleaseClientID
        Val v = r.need(0x01);
        uint8_t service = v.u8(0), id = v.u8(1);
        if (!st.client(service, id)) return fail(kErrInvalidClientId);
        if (service == ZOVQMI_SERVICE_WDS) releaseWdsClient(st, id);
        st.clients.erase({service, id});
        return ok({{0x01, W().u8(service).u8(id)}});
    }
    case 0x0026: {  // SetDataFormat: the link layer protocol asked for, or 802.3
        r.need(0x01).u8(0);
        Val p;
        uint16_t protocol = r.has(0x10, &p) ? p.u16(0) : 1;
        return ok({{0x10, W().u16(protocol)}});
    }
    case 0x0027:  // Sync: every client id of this connection is released, and
                  // those left behind by descriptors closed since (an earlier run)
        for (auto it = st.clients.begin(); it != st.clients.end();) {
            if (it->second.conn == r.conn || it->second.conn == -1) {
                if (it->first.first == ZOVQMI_SERVICE_WDS) releaseWdsClient(st, it->first.second);
                it = st.clients.erase(it);
            } else {
                ++it;
            }
        }
        return ok();
    case 0x0028:  // RegPwrSaveMode: 1 reports changes of the power-save mode to this connection
        if (r.need(0x01).u8(0)) st.powerSaveReporting.insert(r.conn);
        else st.powerSaveReporting.erase(r.conn);
        return ok();
    case 0x0029:  // ConfigPwrSaveSettings
        r.need(0x01).need(0, 5);
        return ok();
    case 0x002A: {  // SetPwrSaveMode
        uint32_t mode = r.need(0x01).u32(0);
        if (mode != st.powerSaveMode) {
            // The indication reports the state left and the state entered.
            Bytes ind = buildMessage(true, kCtlIndication, 0, 0x0028, {{0x10, W().u32(st.powerSaveMode).u32(mode)}});
            for (int conn : st.powerSaveReporting) st.after.push_back(Frame{conn, qmuxFrame(0, 0, ind)});
            st.powerSaveMode = mode;
        }
        return ok();
    }
    case 0x002B:  // GetPwrSaveMode
        return ok({{0x01, W().u32(st.powerSaveMode)}});
    default:
        return fail(kErrInvalidQmiCommand);
    }
}

}  // namespace zovsim
