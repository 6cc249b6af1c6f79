#include "session.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>

namespace zovapp {

namespace {

uint16_t le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

std::string hex16(unsigned v) {
    char b[8];
    std::snprintf(b, sizeof b, "0x%04X", v & 0xFFFF);
    return b;
}

int64_t nowMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace

uint16_t Message::id() const {
    if (service == ZOVQMI_SERVICE_CTL) return bytes.size() >= 4 ? le16(bytes.data() + 2) : 0;
    return bytes.size() >= 5 ? le16(bytes.data() + 3) : 0;
}

bool Message::isIndication() const {
    if (bytes.empty()) return false;
    return service == ZOVQMI_SERVICE_CTL ? (bytes[0] & 0x02) != 0 : (bytes[0] & 0x04) != 0;
}

QmiError::QmiError(const std::string& what, uint16_t c)
    : Error(what + ": QMI error " + std::to_string(c) + " (" + hex16(c) + ", " + qmiErrorName(c) + ")"), code(c) {}

const char* qmiErrorName(uint16_t code) {
    switch (code) {
    case 0x0001: return "MalformedMessage";
    case 0x0002: return "NoMemory";
    case 0x0003: return "Internal";
    case 0x0005: return "ClientIdsExhausted";
    case 0x0007: return "InvalidClientId";
    case 0x0009: return "InvalidHandle";
    case 0x000A: return "InvalidProfile";
    case 0x000B: return "InvalidPinId";
    case 0x000C: return "IncorrectPin";
    case 0x000D: return "NoNetworkFound";
    case 0x000E: return "CallFailed";
    case 0x000F: return "OutOfCall";
    case 0x0011: return "MissingArgument";
    case 0x001A: return "NoEffect";
    case 0x001B: return "NoFreeProfile";
    case 0x001E: return "InvalidProfileType";
    case 0x001F: return "InvalidServiceType";
    case 0x0023: return "PinBlocked";
    case 0x0024: return "PinPermanentlyBlocked";
    case 0x0029: return "InvalidQosId";
    case 0x0030: return "InvalidArgument";
    case 0x0031: return "InvalidIndex";
    case 0x0032: return "NoEntry";
    case 0x0033: return "DeviceStorageFull";
    case 0x0034: return "DeviceNotReady";
    case 0x0047: return "InvalidQmiCommand";
    default: return "unknown error";
    }
}

const char* serviceName(uint8_t service) {
    switch (service) {
    case ZOVQMI_SERVICE_CTL: return "ctl";
    case ZOVQMI_SERVICE_WDS: return "wds";
    case ZOVQMI_SERVICE_DMS: return "dms";
    case ZOVQMI_SERVICE_NAS: return "nas";
    case ZOVQMI_SERVICE_QOS: return "qos";
    case ZOVQMI_SERVICE_WMS: return "wms";
    case ZOVQMI_SERVICE_PDS: return "pds";
    case ZOVQMI_SERVICE_PBM: return "pbm";
    default: return "service";
    }
}

int serviceByName(const std::string& name) {
    for (int s : {0, 1, 2, 3, 4, 5, 6, 12})
        if (name == serviceName(uint8_t(s))) return s;
    char* end = nullptr;
    long v = std::strtol(name.c_str(), &end, 0);
    if (!name.empty() && *end == 0 && v >= 0 && v <= 255) return int(v);
    return -1;
}

Session::Session(const std::string& path, int timeoutMs, bool hex) : timeoutMs_(timeoutMs), hex_(hex) {
    fd_ = zovQMIDeviceOpen(path.c_str());
    if (fd_ < 0) throw Error("cannot open " + path + ": " + std::strerror(errno));
    own_ = true;
}

Session::Session(int fd, int timeoutMs, bool hex) : fd_(fd), timeoutMs_(timeoutMs), hex_(hex) {}

Session::~Session() {
    if (own_) zovQMIDeviceClose(fd_);
}

Message Session::readOne(int timeoutMs) {
    pollfd p{fd_, POLLIN, 0};
    int rc = poll(&p, 1, timeoutMs);
    if (rc < 0) throw Error(std::string("poll: ") + std::strerror(errno));
    if (rc == 0) throw Timeout("timeout");
    if (p.revents & (POLLERR | POLLNVAL)) throw Error("device error");
    uint8_t buf[4096];
    Message m;
    int n = zovQMIDeviceRead(fd_, buf, sizeof buf, &m.service, &m.client);
    if (n < 0) throw Error(std::string("read: ") + std::strerror(errno));
    if (n == 0 && (p.revents & POLLHUP)) throw Error("device closed");
    m.bytes.assign(buf, buf + n);
    if (hex_) zovPrintHex(0, m.isIndication() ? "IND" : "RX", m.data(), m.len());
    return m;
}

Message Session::request(uint8_t service, const uint8_t* msg, int len) {
    bool control = service == ZOVQMI_SERVICE_CTL;
    uint8_t client = control ? 0 : clientId(service);
    if (len < (control ? 6 : 7)) throw Error("request could not be built");
    uint16_t tx = control ? msg[1] : le16(msg + 1);
    uint16_t id = control ? le16(msg + 2) : le16(msg + 3);
    if (hex_) zovPrintHex(0, "TX", msg, len);
    if (zovQMIDeviceWrite(fd_, service, client, msg, len) < 0)
        throw Error(std::string("write: ") + std::strerror(errno));
    int64_t deadline = nowMs() + timeoutMs_;
    for (;;) {
        int left = int(deadline - nowMs());
        Message m;
        try {
            m = readOne(left < 0 ? 0 : left);
        } catch (const Timeout&) {
            throw Timeout(std::string("timeout: no answer to ") + serviceName(service) + " message " + hex16(id) +
                          " within " + std::to_string(timeoutMs_) + " ms");
        }
        bool mine = m.service == service && m.client == client && m.id() == id && !m.isIndication() &&
                    (control ? m.len() >= 2 && m.bytes[1] == uint8_t(tx) : m.len() >= 3 && le16(m.data() + 1) == tx);
        if (mine) return m;
        if (m.isIndication()) kept_.push_back(m);
    }
}

Message Session::indication(uint8_t service, uint16_t id, int timeoutMs) {
    for (auto it = kept_.begin(); it != kept_.end(); ++it)
        if (it->service == service && it->id() == id) {
            Message m = *it;
            kept_.erase(it);
            return m;
        }
    int64_t deadline = nowMs() + (timeoutMs < 0 ? timeoutMs_ : timeoutMs);
    for (;;) {
        int left = int(deadline - nowMs());
        Message m;
        try {
            m = readOne(left < 0 ? 0 : left);
        } catch (const Timeout&) {
            throw Timeout(std::string("timeout: no ") + serviceName(service) + " indication " + hex16(id));
        }
        if (m.service == service && m.id() == id && m.isIndication()) return m;
        if (m.isIndication()) kept_.push_back(m);
    }
}

void Session::dropIndications(uint8_t service) {
    for (auto it = kept_.begin(); it != kept_.end();) it = it->service == service ? kept_.erase(it) : it + 1;
}

uint8_t Session::clientId(uint8_t service) {
    auto it = clients_.find(service);
    if (it != clients_.end()) return it->second;
    uint8_t buf[64];
    int n = zovQMICTLGetClientIDReq(buf, sizeof buf, service);
    Message m = request(ZOVQMI_SERVICE_CTL, buf, n);
    QmiResult r;
    uint8_t svc = 0, cid = 0;
    std::string what = std::string("client id for ") + serviceName(service);
    int rc = zovQMICTLGetClientIDResp(m.data(), m.len(), &r, &svc, &cid);
    if (rc == ZOVQMI_ERR_NO_MANDATORY || rc >= 0) check(what, r);
    parsed(what, rc);
    clients_[service] = cid;
    return cid;
}

void Session::releaseAll() {
    while (!clients_.empty()) {
        auto it = clients_.begin();
        if (adopted_.count(it->first) && adopted_[it->first] == it->second) {
            clients_.erase(it);
            continue;
        }
        uint8_t buf[64];
        int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, it->first, it->second);
        std::string what = std::string("release ") + serviceName(it->first) + " client id";
        clients_.erase(it);
        Message m = request(ZOVQMI_SERVICE_CTL, buf, n);
        QmiResult r;
        uint8_t svc = 0, cid = 0;
        int rc = zovQMICTLReleaseClientIDResp(m.data(), m.len(), &r, &svc, &cid);
        if (rc == ZOVQMI_ERR_NO_MANDATORY || rc >= 0) check(what, r);
        parsed(what, rc);
    }
}

void Session::check(const std::string& what, const QmiResult& result) {
    const uint8_t* b = reinterpret_cast<const uint8_t*>(&result);
    if (le16(b) != 0) throw QmiError(what, le16(b + 2));
}

int Session::parsed(const std::string& what, int rc) {
    if (rc < 0) throw Error(what + ": unexpected answer (parser returned " + std::to_string(rc) + ")");
    return rc;
}

}  // namespace zovapp
