// Internals of the simulated modem: the request view, the reply and
// indication builders and the state every service handler shares.
#pragma once

#include <zovqmi.h>

#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "modem.h"

namespace zovsim {

// Thrown by a handler to answer with a failure result.
struct Fail {
    uint16_t error;
};

// One TLV of a reply or an indication.
struct Tlv {
    uint8_t type;
    Bytes value;
};
using Tlvs = std::vector<Tlv>;

// Little-endian value writer for TLV values.
class W {
public:
    W& u8(uint32_t v) { b_.push_back(uint8_t(v)); return *this; }
    W& u16(uint32_t v) { u8(v); return u8(v >> 8); }
    W& u32(uint32_t v) { u16(v); return u16(v >> 16); }
    W& u64(uint64_t v) { u32(uint32_t(v)); return u32(uint32_t(v >> 32)); }
    W& bytes(const void* p, size_t n) {
        const uint8_t* s = static_cast<const uint8_t*>(p);
        b_.insert(b_.end(), s, s + n);
        return *this;
    }
    W& bytes(const Bytes& v) { return bytes(v.data(), v.size()); }
    W& str(const std::string& s) { return bytes(s.data(), s.size()); }
    // A string led by its length byte.
    W& str8(const std::string& s) { u8(uint32_t(s.size())); return str(s); }
    W& str16(const std::string& s) { u16(uint32_t(s.size())); return str(s); }
    Bytes done() const { return b_; }
    operator Bytes() const { return b_; }

private:
    Bytes b_;
};

// A value of a request TLV; every read is checked against its length and a
// read past it answers the request with MalformedMessage.
struct Val {
    const uint8_t* p = nullptr;
    uint16_t n = 0;

    void need(size_t off, size_t size) const {
        if (off + size > n) throw Fail{kErrMalformedMessage};
    }
    uint8_t u8(size_t off) const { need(off, 1); return p[off]; }
    uint16_t u16(size_t off) const { need(off, 2); return uint16_t(p[off] | p[off + 1] << 8); }
    uint32_t u32(size_t off) const { need(off, 4); return uint32_t(u16(off)) | uint32_t(u16(off + 2)) << 16; }
    uint64_t u64(size_t off) const { return uint64_t(u32(off)) | uint64_t(u32(off + 4)) << 32; }
    Bytes bytes(size_t off, size_t len) const {
        need(off, len);
        return Bytes(p + off, p + off + len);
    }
    std::string str(size_t off, size_t len) const {
        need(off, len);
        return std::string(reinterpret_cast<const char*>(p + off), len);
    }
    std::string all() const { return str(0, n); }
};

// A received request: its routing, header fields and TLV area (already
// checked: every TLV lies inside the area).
struct Req {
    int conn;
    uint8_t service;
    uint8_t client;
    uint16_t tx;
    uint16_t id;
    bool control;
    const uint8_t* area;
    uint16_t areaLen;

    // The TLV of `type`, if present.
    bool has(uint8_t type, Val* out = nullptr) const {
        uint16_t n = 0;
        const uint8_t* v = zovQMIMSMGetTLV(area, areaLen, type, &n);
        if (!v) return false;
        if (out) *out = Val{v, n};
        return true;
    }
    // A TLV the message cannot do without: MissingArgument when absent.
    Val need(uint8_t type) const {
        Val v;
        if (!has(type, &v)) throw Fail{kErrMissingArgument};
        return v;
    }
};

struct Reply {
    uint16_t error = kErrNone;
    Tlvs tlvs;
};
inline Reply ok(Tlvs t = {}) { return Reply{kErrNone, std::move(t)}; }
inline Reply fail(uint16_t e, Tlvs t = {}) { return Reply{e, std::move(t)}; }

// What a client id knows about its client: the connection it came from and
// the indications it registered for (flags are per service).
struct Client {
    int conn;
    std::map<uint8_t, uint32_t> reg;
    // WDS: the IP family preference (4, 6, or 8 "unspecified", which is 4)
    // and the transfer statistics report (period in seconds, mask, last sent).
    uint8_t ipFamily = 4;
    uint8_t statsPeriod = 0;
    uint32_t statsMask = 0;
    uint64_t statsSentMs = 0;
};

// ---- per-service state --------------------------------------------------

struct Pin {
    std::string code;
    std::string puk;
    bool enabled = true;
    bool verified = false;
    uint8_t left = 3;
    uint8_t pukLeft = 10;
    // Status byte as the modem reports it.
    uint8_t status() const {
        if (pukLeft == 0) return 5;        // permanently blocked
        if (left == 0) return 4;           // blocked
        if (!enabled) return 3;            // disabled
        return verified ? 2 : 1;           // enabled, verified or not
    }
};

struct Profile {
    std::string name;
    uint8_t pdpType = 0;  // IPv4
    std::string apn;
    std::string user;
    std::string password;
    uint8_t auth = 0;
};

struct Call {
    uint32_t handle = 0;
    uint8_t client = 0;
    uint8_t profile = 0;
    uint8_t family = 4;  // 4 or 6
    uint8_t slot = 1;    // which address of the family's plan the call holds
    Bytes address;       // 4 or 16 bytes, the call's own address
    Profile settings;
    uint64_t startMs = 0;
};

struct Sms {
    uint8_t tag;
    uint8_t format;
    Bytes pdu;
};

struct PbRecord {
    uint8_t numType = 0x81;
    uint8_t numPlan = 0x00;
    std::string number;
    std::string name;
};

struct QosFlow {
    uint32_t id;
    uint8_t client;
    uint8_t status;  // 1 activated, 2 suspended
};

// Counters of the data path since the modem booted (shared by every client):
// uplink packets are those the host sends to the network, downlink those the
// modem hands to the host; uplink packets without a call to carry them are
// dropped and counted as transmit errors.
struct Traffic {
    uint32_t txPackets = 0, rxPackets = 0, txDropped = 0, rxDropped = 0;
    uint64_t txBytes = 0, rxBytes = 0;
};

struct State {
    explicit State(const Options& o) : options(o) {
        pin1.code = o.pin1;
        pin1.puk = o.puk1;
        pin1.enabled = o.pin1Enabled;
        pin2.code = "0000";
        pin2.puk = "00000000";
    }

    Options options;
    std::map<std::pair<uint8_t, uint8_t>, Client> clients;  // (service, client id)

    // The radio environment, set through the control channel: whether the
    // network accepts the modem, the signal level, the SIM in its slot, and
    // a hung modem that reads requests but answers none.
    bool network = true;
    int signalDbm = -67;
    bool simPresent = true;
    bool stalled = false;
    Traffic traffic;

    // CTL
    uint32_t powerSaveMode = 0;
    std::set<int> powerSaveReporting;  // connections that asked for power-save indications
    // DMS
    uint8_t operatingMode = 0;  // online
    Pin pin1, pin2;
    uint8_t userLock = 0;
    uint32_t userLockCode = 0;
    int64_t timeOffsetMs = 0;
    // WDS
    std::map<uint8_t, Profile> profiles;  // 3GPP profiles by index
    uint8_t defaultProfile = 1;
    std::map<uint32_t, Call> calls;       // by handle
    uint32_t nextHandle = 0x5A0C0001;
    uint64_t txBytes = 0, rxBytes = 0;
    // NAS: system selection (modes GSM, UMTS and LTE; any roaming) and the
    // packet domain attach
    uint16_t modePreference = 0x1C;
    uint64_t bandPreference = 0x00000000000C0180ull;
    uint16_t roamingPreference = 0xFF;
    bool psDetached = false;
    // WMS
    std::map<uint8_t, std::map<uint32_t, Sms>> sms;  // store -> index -> message
    uint16_t nextMessageId = 1;
    std::string smscAddress = "+15550100999";
    std::string smscType = "145";
    // PDS
    uint8_t gpsEnabled = 1;
    uint8_t autoTracking = 0;
    Bytes trackingSession = Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    // PBM
    std::map<std::pair<uint8_t, uint16_t>, std::map<uint16_t, PbRecord>> books;
    // QOS
    std::map<uint32_t, QosFlow> flows;
    uint32_t nextQosId = 0x00010001;

    // Frames to send after the response of the request being handled.
    std::vector<Frame> after;

    // Queues an indication for one client.
    void indicate(uint8_t service, uint8_t client, uint16_t id, const Tlvs& tlvs);
    // Queues an indication for every client of a service whose registration
    // flags (for `service`) have any bit of `mask`.
    void indicateRegistered(uint8_t service, uint32_t mask, uint16_t id, const Tlvs& tlvs);
    uint64_t nowMs() const;
    bool online() const { return operatingMode == 0; }
    bool simReady() const { return simPresent && (!pin1.enabled || pin1.verified); }
    // Registered with the network: online, a SIM in the slot and the network there.
    bool registered() const { return online() && simPresent && network; }
    Client* client(uint8_t service, uint8_t id) {
        auto it = clients.find({service, id});
        return it == clients.end() ? nullptr : &it->second;
    }
};

// Builds a service (or CTL) message with the library's TLV functions.
Bytes buildMessage(bool control, uint8_t flags, uint16_t tx, uint16_t id, const Tlvs& tlvs);

// The handlers, one per service: they answer one request each.
Reply handleCtl(State& st, const Req& r);
Reply handleDms(State& st, const Req& r);
Reply handleWds(State& st, const Req& r);
Reply handleNas(State& st, const Req& r);
Reply handleWms(State& st, const Req& r);
Reply handlePds(State& st, const Req& r);
Reply handlePbm(State& st, const Req& r);
Reply handleQos(State& st, const Req& r);

// The serving system item (0x01) as it stands.
Bytes nasServingSystem(const State& st);

// Releases what a client held in the services (calls, flows).
void releaseWdsClient(State& st, uint8_t client);

// Ends every call and tells each owner with a packet service status
// indication carrying the end reason; a verbose reason type 0 leaves the
// verbose item out.
void endCalls(State& st, uint16_t reason, uint16_t verboseType, uint16_t verboseReason);

// Registration flags of a NAS client.
enum : uint32_t { kNasRegSignal = 1, kNasRegServing = 2 };
// Registration flags of a DMS client (SetEventReport).
enum : uint32_t { kDmsRegPower = 1, kDmsRegPin = 2, kDmsRegMode = 4, kDmsRegUim = 8 };

// The serving system changed: registered NAS clients hear of it.
void servingSystemChanged(State& st);
// The SIM came or went: registered DMS clients hear of its state and PIN1.
void simChanged(State& st);
// The UIM state byte: 0 initialised, 2 not present.
uint8_t uimState(const State& st);

// Transfer statistics report items selected by a mask (bit 0 TLV 0x10 ...
// bit 5 TLV 0x15, bit 6 TLV 0x19, bit 7 TLV 0x1A).
Tlvs trafficItems(const Traffic& t, uint32_t mask);

}  // namespace zovsim
