#include "session.h"

#include <errno.h>
#include <poll.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <time.h>
#include <unistd.h>

namespace zovapp {

namespace {

uint16_t le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

// Services by number, for names in both directions.
struct ServiceName {
    uint8_t service;
    const char* name;
};
constexpr ServiceName kServices[] = {
    {ZOVQMI_SERVICE_CTL, "ctl"}, {ZOVQMI_SERVICE_WDS, "wds"}, {ZOVQMI_SERVICE_DMS, "dms"},
    {ZOVQMI_SERVICE_NAS, "nas"}, {ZOVQMI_SERVICE_QOS, "qos"}, {ZOVQMI_SERVICE_WMS, "wms"},
    {ZOVQMI_SERVICE_PDS, "pds"}, {ZOVQMI_SERVICE_PBM, "pbm"},
};

struct ErrorName {
    uint16_t code;
    const char* name;
};
constexpr ErrorName kErrors[] = {
    {0x0001, "MalformedMessage"},  {0x0002, "NoMemory"},          {0x0003, "Internal"},
    {0x0005, "ClientIdsExhausted"}, {0x0007, "InvalidClientId"},  {0x0009, "InvalidHandle"},
    {0x000A, "InvalidProfile"},    {0x000B, "InvalidPinId"},      {0x000C, "IncorrectPin"},
    {0x000D, "NoNetworkFound"},    {0x000E, "CallFailed"},        {0x000F, "OutOfCall"},
    {0x0011, "MissingArgument"},   {0x001A, "NoEffect"},          {0x001B, "NoFreeProfile"},
    {0x001E, "InvalidProfileType"}, {0x001F, "InvalidServiceType"}, {0x0023, "PinBlocked"},
    {0x0024, "PinPermanentlyBlocked"}, {0x0029, "InvalidQosId"},  {0x0030, "InvalidArgument"},
    {0x0031, "InvalidIndex"},      {0x0032, "NoEntry"},           {0x0033, "DeviceStorageFull"},
    {0x0034, "DeviceNotReady"},    {0x0047, "InvalidQmiCommand"},
};

bool isSocket(const char* path) {
    struct stat st;
    return stat(path, &st) == 0 && S_ISSOCK(st.st_mode);
}

}  // namespace

uint16_t Message::id() const {
    if (service == ZOVQMI_SERVICE_CTL) return len >= 4 ? le16(bytes + 2) : 0;
    return len >= 5 ? le16(bytes + 3) : 0;
}

uint16_t Message::transaction() const {
    if (service == ZOVQMI_SERVICE_CTL) return len >= 2 ? bytes[1] : 0;
    return len >= 3 ? le16(bytes + 1) : 0;
}

bool Message::isIndication() const {
    if (len < 1) return false;
    return service == ZOVQMI_SERVICE_CTL ? (bytes[0] & 0x02) != 0 : (bytes[0] & 0x04) != 0;
}

const char* serviceName(uint8_t service) {
    for (const ServiceName& s : kServices)
        if (s.service == service) return s.name;
    return "service";
}

int serviceByName(const char* name) {
    if (!name || !*name) return -1;
    for (const ServiceName& s : kServices)
        if (strcmp(name, s.name) == 0) return s.service;
    char* end = nullptr;
    long v = strtol(name, &end, 0);
    return *end == 0 && v >= 0 && v <= 255 ? int(v) : -1;
}

const char* qmiErrorName(uint16_t code) {
    for (const ErrorName& e : kErrors)
        if (e.code == code) return e.name;
    return "unknown error";
}

int64_t monotonicMs() {
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return int64_t(ts.tv_sec) * 1000 + ts.tv_nsec / 1000000;
}

// --- transport -------------------------------------------------------------

int Session::open(const char* path) {
    close();
    int fd;
    if (isSocket(path)) {
        sockaddr_un addr = {};
        addr.sun_family = AF_UNIX;
        if (strlen(path) >= sizeof addr.sun_path) return fail(kBadRequest, "socket path too long: %s", path);
        strcpy(addr.sun_path, path);
        fd = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        if (fd >= 0 && connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) < 0) {
            int e = errno;
            ::close(fd);
            errno = e;
            fd = -1;
        }
    } else {
        fd = zovQMIDeviceOpen(path);
    }
    if (fd < 0) return fail(kDeviceGone, "cannot open %s: %s", path, strerror(errno));
    attach(fd, true);
    return kOk;
}

void Session::attach(int fd, bool own) {
    close();
    fd_ = fd;
    own_ = own;
    stream_ = isatty(fd) != 0;
}

void Session::close() {
    if (fd_ >= 0 && own_) ::close(fd_);
    fd_ = -1;
    own_ = false;
    stream_ = false;
    inLen_ = 0;
    clientCount_ = 0;
    keptCount_ = 0;
}

int Session::fail(int status, const char* fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(error_, sizeof error_, fmt, ap);
    va_end(ap);
    return status;
}

int64_t Session::waitUntil(int timeoutMs) const {
    int64_t until = monotonicMs() + (timeoutMs < 0 ? timeoutMs_ : timeoutMs);
    if (deadlineMs_ && until > deadlineMs_) until = deadlineMs_;
    return until;
}

bool Session::takeFrame(Message* m) {
    // Resynchronise on the interface-type byte of a frame of plausible length.
    int skip = 0;
    while (skip < inLen_) {
        if (in_[skip] == 0x01) {
            if (inLen_ - skip < 3) break;
            int total = le16(in_ + skip + 1) + 1;
            if (total >= 12 && total <= int(sizeof in_)) break;
        }
        ++skip;
    }
    if (skip) {
        memmove(in_, in_ + skip, size_t(inLen_ - skip));
        inLen_ -= skip;
    }
    if (inLen_ < 3) return false;
    int total = le16(in_ + 1) + 1;
    if (inLen_ < total) return false;
    m->service = in_[4];
    m->client = in_[5];
    m->len = total - 6;
    memcpy(m->bytes, in_ + 6, size_t(m->len));
    memmove(in_, in_ + total, size_t(inLen_ - total));
    inLen_ -= total;
    if (hex_) zovPrintHex(0, m->isIndication() ? "IND" : "RX", m->bytes, m->len);
    return true;
}

int Session::readOne(Message* m, int64_t untilMs) {
    if (fd_ < 0) return fail(kDeviceClosed, "device closed");
    if (stream_ && takeFrame(m)) return kOk;
    pollfd p[2] = {{fd_, POLLIN, 0}, {wakeFd_, POLLIN, 0}};
    int watched = wakeFd_ >= 0 ? 2 : 1;
    for (;;) {
        int64_t left = untilMs - monotonicMs();
        int rc = poll(p, nfds_t(watched), left < 0 ? 0 : int(left));
        if (rc < 0 && errno == EINTR) continue;
        if (rc < 0) return fail(kDeviceGone, "device gone: poll: %s", strerror(errno));
        if (watched == 2 && (p[1].revents & POLLIN)) return fail(kInterrupted, "interrupted");
        if (rc == 0 || p[0].revents == 0) return fail(kTimeout, "timeout");
        break;
    }
    // The frame is read here rather than through zovQMIDeviceRead, so that
    // an end of file (a read of 0 bytes) is told apart from a short frame.
    uint8_t qmux[6];
    iovec iov[2] = {{qmux, sizeof qmux}, {m->bytes, size_t(kMaxMessage)}};
    if (stream_) {
        iov[0] = {in_ + inLen_, sizeof in_ - size_t(inLen_)};
        iov[1] = {nullptr, 0};
    }
    ssize_t n = readv(fd_, iov, 2);
    if (n < 0 && (errno == EINTR || errno == EAGAIN)) {
        m->len = 0;
        return kOk;
    }
    if (n < 0) return fail(kDeviceGone, "device gone: %s", strerror(errno));
    if (n == 0) return fail(kDeviceClosed, "device closed");
    if (stream_) {
        // What is not yet a whole frame waits for the next read.
        inLen_ += int(n);
        if (!takeFrame(m)) m->len = 0;
        return kOk;
    }
    if (n < int(sizeof qmux)) {
        // Less than a QMUX header: skip it.
        m->len = 0;
        return kOk;
    }
    m->service = qmux[4];
    m->client = qmux[5];
    int got = int(n) - int(sizeof qmux);
    m->len = got;
    if (hex_) zovPrintHex(0, m->isIndication() ? "IND" : "RX", m->bytes, m->len);
    return kOk;
}

void Session::keep(const Message& m) {
    if (keptCount_ == kMaxKeptIndications) {
        keptFirst_ = (keptFirst_ + 1) % kMaxKeptIndications;
        --keptCount_;
    }
    Message& slot = kept_[(keptFirst_ + keptCount_) % kMaxKeptIndications];
    slot.service = m.service;
    slot.client = m.client;
    slot.len = m.len;
    memcpy(slot.bytes, m.bytes, size_t(m.len));
    ++keptCount_;
}

// --- requests ----------------------------------------------------------------

int Session::request(uint8_t service, const uint8_t* msg, int len, Message* resp) {
    uint8_t id = 0;
    if (service != ZOVQMI_SERVICE_CTL) {
        int rc = client(service, &id);
        if (rc != kOk) return rc;
    }
    return request(service, id, msg, len, resp);
}

int Session::request(uint8_t service, uint8_t clientId, const uint8_t* msg, int len, Message* resp) {
    bool control = service == ZOVQMI_SERVICE_CTL;
    if (!msg || len < (control ? 6 : 7) || len > kMaxMessage)
        return fail(kBadRequest, "%s request could not be built (%d)", serviceName(service), len);
    if (fd_ < 0) return fail(kDeviceClosed, "device closed");
    uint16_t tx = control ? msg[1] : le16(msg + 1);
    uint16_t mid = control ? le16(msg + 2) : le16(msg + 3);
    if (hex_) zovPrintHex(0, "TX", msg, len);
    errno = 0;
    if (zovQMIDeviceWrite(fd_, service, control ? 0 : clientId, msg, len) < 0)
        return fail(kDeviceGone, "device gone: %s", errno ? strerror(errno) : "write failed");
    int64_t until = waitUntil(-1);
    for (;;) {
        int rc = readOne(resp, until);
        if (rc == kTimeout)
            return fail(kTimeout, "timeout: no answer to %s message 0x%04X within %d ms", serviceName(service),
                        mid, timeoutMs_);
        if (rc != kOk) return rc;
        if (resp->len == 0) continue;
        if (resp->isIndication()) {
            keep(*resp);
            continue;
        }
        if (resp->service == service && (control || resp->client == clientId) && resp->id() == mid &&
            resp->transaction() == tx)
            return kOk;
        // A late answer to an earlier request that timed out: dropped.
    }
}

int Session::check(const char* what, int parseRc, const QmiResult& result) {
    // The result item is read as little-endian bytes whatever the host.
    const uint8_t* r = reinterpret_cast<const uint8_t*>(&result);
    if (parseRc < 0 && parseRc != ZOVQMI_ERR_NO_MANDATORY)
        return fail(kBadAnswer, "%s: unexpected answer (parser returned %d)", what, parseRc);
    if (le16(r) != 0) {
        qmiError_ = le16(r + 2);
        return fail(kQmiFailure, "%s: QMI error %u (0x%04X, %s)", what, qmiError_, qmiError_, qmiErrorName(qmiError_));
    }
    if (parseRc < 0) return fail(kBadAnswer, "%s: unexpected answer (parser returned %d)", what, parseRc);
    return kOk;
}

// --- indications -------------------------------------------------------------

int Session::drain() {
    for (;;) {
        int rc = readOne(&scratch_, 0);
        if (rc == kTimeout) return kOk;
        if (rc != kOk) return rc;
        if (scratch_.len > 0 && scratch_.isIndication()) keep(scratch_);
    }
}

int Session::pump(int timeoutMs) {
    int64_t until = waitUntil(timeoutMs);
    int before = keptCount_;
    for (;;) {
        int rc = readOne(&scratch_, until);
        if (rc != kOk) return keptCount_ > before ? kOk : rc;
        if (scratch_.len > 0 && scratch_.isIndication()) {
            keep(scratch_);
            // Whatever else is ready now comes along, without waiting.
            rc = drain();
            return rc == kOk || keptCount_ > 0 ? kOk : rc;
        }
    }
}

void Session::take(int i, Message* out) {
    const Message& m = kept_[(keptFirst_ + i) % kMaxKeptIndications];
    out->service = m.service;
    out->client = m.client;
    out->len = m.len;
    memcpy(out->bytes, m.bytes, size_t(m.len));
    // Close the gap: later entries move up by one.
    for (int j = i; j + 1 < keptCount_; ++j) {
        Message& to = kept_[(keptFirst_ + j) % kMaxKeptIndications];
        const Message& from = kept_[(keptFirst_ + j + 1) % kMaxKeptIndications];
        to.service = from.service;
        to.client = from.client;
        to.len = from.len;
        memcpy(to.bytes, from.bytes, size_t(from.len));
    }
    --keptCount_;
}

bool Session::nextIndication(Message* out, uint8_t service) {
    for (int i = 0; i < keptCount_; ++i)
        if (service == 0xFF || kept_[(keptFirst_ + i) % kMaxKeptIndications].service == service) {
            take(i, out);
            return true;
        }
    return false;
}

int Session::awaitIndication(uint8_t service, uint16_t id, int timeoutMs, Message* out) {
    int64_t until = waitUntil(timeoutMs);
    for (;;) {
        for (int i = 0; i < keptCount_; ++i) {
            const Message& m = kept_[(keptFirst_ + i) % kMaxKeptIndications];
            if (m.service == service && m.id() == id) {
                take(i, out);
                return kOk;
            }
        }
        int rc = readOne(&scratch_, until);
        if (rc == kTimeout)
            return fail(kTimeout, "timeout: no %s indication 0x%04X", serviceName(service), id);
        if (rc != kOk) return rc;
        if (scratch_.len > 0 && scratch_.isIndication()) keep(scratch_);
    }
}

// --- client ids ----------------------------------------------------------------

int Session::ctl(const uint8_t* msg, int len, Message* resp) { return request(ZOVQMI_SERVICE_CTL, 0, msg, len, resp); }

bool Session::holds(uint8_t service, uint8_t id) const {
    for (int i = 0; i < clientCount_; ++i)
        if (clients_[i].service == service && clients_[i].id == id) return true;
    return false;
}

void Session::clientAt(int n, uint8_t* service, uint8_t* id) const {
    *service = clients_[n].service;
    *id = clients_[n].id;
}

int Session::client(uint8_t service, uint8_t* id) {
    for (int i = 0; i < clientCount_; ++i)
        if (clients_[i].service == service) {
            *id = clients_[i].id;
            return kOk;
        }
    return allocate(service, id);
}

int Session::newClient(uint8_t service, uint8_t* id) { return allocate(service, id); }

int Session::allocate(uint8_t service, uint8_t* id) {
    if (clientCount_ == kMaxClients)
        return fail(kBadRequest, "too many client ids held (%d)", kMaxClients);
    uint8_t buf[16];
    int n = zovQMICTLGetClientIDReq(buf, sizeof buf, service);
    int rc = ctl(buf, n, &scratch_);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t svc = 0, cid = 0;
    char what[48];
    snprintf(what, sizeof what, "client id for %s", serviceName(service));
    rc = check(what, zovQMICTLGetClientIDResp(scratch_.bytes, scratch_.len, &r, &svc, &cid), r);
    if (rc != kOk) return rc;
    clients_[clientCount_++] = Client{service, cid, false};
    *id = cid;
    return kOk;
}

int Session::adopt(uint8_t service, uint8_t id) {
    if (holds(service, id)) return kOk;
    if (clientCount_ == kMaxClients) return fail(kBadRequest, "too many client ids held (%d)", kMaxClients);
    clients_[clientCount_++] = Client{service, id, true};
    return kOk;
}

int Session::release(uint8_t service, uint8_t id) {
    for (int i = 0; i < clientCount_; ++i)
        if (clients_[i].service == service && clients_[i].id == id) {
            clients_[i] = clients_[--clientCount_];
            break;
        }
    uint8_t buf[16];
    int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, service, id);
    int rc = ctl(buf, n, &scratch_);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t svc = 0, cid = 0;
    char what[48];
    snprintf(what, sizeof what, "release %s client id %u", serviceName(service), id);
    return check(what, zovQMICTLReleaseClientIDResp(scratch_.bytes, scratch_.len, &r, &svc, &cid), r);
}

int Session::releaseAll() {
    int first = kOk;
    for (int i = clientCount_ - 1; i >= 0; --i) {
        if (i >= clientCount_) continue;
        Client c = clients_[i];
        if (c.adopted) continue;
        int rc = release(c.service, c.id);
        if (first == kOk) first = rc;
        // Once the transport is gone, nothing more can be released.
        if (rc == kDeviceGone || rc == kDeviceClosed || rc == kInterrupted) break;
    }
    // What could not be released is forgotten all the same.
    int kept = 0;
    for (int i = 0; i < clientCount_; ++i)
        if (clients_[i].adopted) clients_[kept++] = clients_[i];
    clientCount_ = kept;
    return first;
}

int Session::sync() {
    uint8_t buf[16];
    int n = zovQMICTLSyncReq(buf, sizeof buf);
    int rc = ctl(buf, n, &scratch_);
    if (rc != kOk) return rc;
    QmiResult r = {};
    rc = check("sync", zovQMICTLSyncResp(scratch_.bytes, scratch_.len, &r), r);
    if (rc == kOk) clientCount_ = 0;
    return rc;
}

}  // namespace zovapp
