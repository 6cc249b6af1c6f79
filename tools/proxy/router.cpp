#include "router.h"

#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <zovqmi.h>

namespace zovproxy {

namespace {

constexpr uint16_t kGetClientId = 0x0022;
constexpr uint16_t kReleaseClientId = 0x0023;
constexpr uint16_t kRevokeClientId = 0x0024;
constexpr uint16_t kInvalidClientId = 0x0025;
constexpr uint16_t kSync = 0x0027;
constexpr uint8_t kBroadcast = 0xFF;

uint16_t le16(const uint8_t* p) { return uint16_t(p[0] | p[1] << 8); }

}  // namespace

void Router::logf(const char* fmt, ...) {
    char line[160];
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(line, sizeof line, fmt, ap);
    va_end(ap);
    sink_.log(line);
}

void Router::refuse(int conn, const char* why) { logf("connection %d: frame refused: %s", conn, why); }

int Router::owner(uint8_t service, uint8_t client) const {
    for (int i = 0; i < ownedCount_; ++i)
        if (owned_[i].service == service && owned_[i].client == client) return owned_[i].conn;
    return -1;
}

int Router::ownedCount(int conn) const {
    int n = 0;
    for (int i = 0; i < ownedCount_; ++i) n += owned_[i].conn == conn;
    return n;
}

void Router::forget(uint8_t service, uint8_t client) {
    for (int i = 0; i < ownedCount_; ++i)
        if (owned_[i].service == service && owned_[i].client == client) {
            owned_[i] = owned_[--ownedCount_];
            return;
        }
}

void Router::opened(int conn) {
    if (conn >= 0 && conn < kMaxConnections) open_[conn] = true;
}

void Router::closed(int conn) {
    if (conn < 0 || conn >= kMaxConnections || !open_[conn]) return;
    releaseOwned(conn);
    open_[conn] = false;
    // Answers still on their way to it are dropped (a new client id among
    // them is given back when it arrives).
    for (Pending& p : pending_)
        if (p.used && p.conn == conn) p.conn = -1;
}

void Router::deviceLost() {
    ownedCount_ = 0;
    memset(pending_, 0, sizeof pending_);
}

void Router::releaseOwned(int conn) {
    for (int i = ownedCount_ - 1; i >= 0; --i) {
        if (i >= ownedCount_ || owned_[i].conn != conn) continue;
        Owned o = owned_[i];
        owned_[i] = owned_[--ownedCount_];
        uint8_t buf[16];
        int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, o.service, o.client);
        if (n > 0 && sendControl(kInternal, buf, n))
            logf("connection %d: released %u client id %u", conn, o.service, o.client);
    }
}

bool Router::sendControl(int conn, uint8_t* msg, int len) {
    for (int tries = 0; tries < 255; ++tries) {
        nextTx_ = uint8_t(nextTx_ % 255 + 1);  // 1..255; 0 is never used
        Pending& p = pending_[nextTx_];
        if (p.used) continue;
        p = Pending{true, conn, msg[1], le16(msg + 2), 0, 0};
        if (p.id == kReleaseClientId && len >= 11) {
            // Item 0x01 of the request: the service and the id it gives back.
            p.service = msg[9];
            p.client = msg[10];
        }
        msg[1] = nextTx_;
        sink_.toDevice(ZOVQMI_SERVICE_CTL, 0, msg, len);
        return true;
    }
    logf("connection %d: CTL request refused: 255 requests in flight", conn);
    return false;
}

void Router::fromConnection(int conn, const uint8_t* frame, int n) {
    if (conn < 0 || conn >= kMaxConnections || !open_[conn]) return;
    if (n < 6 || n > kMaxFrame) return refuse(conn, "not a QMUX frame (size)");
    if (frame[0] != 1) return refuse(conn, "not a QMUX frame (interface type)");
    if (le16(frame + 1) != n - 1) return refuse(conn, "QMUX length does not match the frame");
    uint8_t service = frame[4], client = frame[5];
    const uint8_t* msg = frame + 6;
    int len = n - 6;
    if (service == ZOVQMI_SERVICE_CTL) {
        if (len < 6 || 6 + le16(msg + 4) != len) return refuse(conn, "malformed CTL message");
        if (msg[0] != 0) return refuse(conn, "CTL message is not a request");
        uint8_t copy[kMaxFrame];
        memcpy(copy, msg, size_t(len));
        return fromControl(conn, copy, len);
    }
    if (len < 7 || 7 + le16(msg + 5) != len) return refuse(conn, "malformed service message");
    if (msg[0] != 0) return refuse(conn, "service message is not a request");
    if (owner(service, client) != conn) {
        logf("connection %d: frame refused: %u client id %u is not its own", conn, service, client);
        return;
    }
    sink_.toDevice(service, client, msg, len);
}

void Router::fromControl(int conn, uint8_t* msg, int len) {
    uint16_t id = le16(msg + 2);
    if (id == kSync) {
        // Answered here: the modem would release every connection's ids.
        releaseOwned(conn);
        const uint8_t ok[] = {0x01, msg[1], uint8_t(kSync), uint8_t(kSync >> 8), 0x07, 0x00,
                              0x02, 0x04, 0x00, 0x00, 0x00, 0x00, 0x00};
        sink_.toConnection(conn, ZOVQMI_SERVICE_CTL, 0, ok, int(sizeof ok));
        return;
    }
    if (id == kReleaseClientId && (len < 11 || owner(msg[9], msg[10]) != conn)) {
        logf("connection %d: frame refused: release of a client id that is not its own", conn);
        return;
    }
    sendControl(conn, msg, len);
}

void Router::fromDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len) {
    if (service == ZOVQMI_SERVICE_CTL) {
        if (len < 6 || len > kMaxFrame) return;
        uint8_t copy[kMaxFrame];
        memcpy(copy, msg, size_t(len));
        return controlFromDevice(copy, len);
    }
    if (client != kBroadcast) {
        int conn = owner(service, client);
        if (conn >= 0) sink_.toConnection(conn, service, client, msg, len);
        return;
    }
    // To every connection holding a client of the service, once each.
    bool sent[kMaxConnections] = {};
    for (int i = 0; i < ownedCount_; ++i) {
        int conn = owned_[i].conn;
        if (owned_[i].service != service || conn < 0 || sent[conn]) continue;
        sent[conn] = true;
        sink_.toConnection(conn, service, client, msg, len);
    }
}

void Router::controlFromDevice(uint8_t* msg, int len) {
    uint16_t id = le16(msg + 2);
    if (msg[0] & 0x02) {
        // An indication: about one client id, to its owner; else to everyone.
        uint8_t service = 0, client = 0;
        if (id == kRevokeClientId || id == kInvalidClientId) {
            int rc = id == kRevokeClientId ? zovQMICTLRevokeClientIDIND(msg, len, &service, &client)
                                           : zovQMICTLInvalidClientIDIND(msg, len, &service, &client);
            int conn = rc >= 0 ? owner(service, client) : -1;
            if (conn >= 0) sink_.toConnection(conn, ZOVQMI_SERVICE_CTL, 0, msg, len);
            if (rc >= 0 && id == kRevokeClientId) forget(service, client);
            return;
        }
        for (int conn = 0; conn < kMaxConnections; ++conn)
            if (open_[conn]) sink_.toConnection(conn, ZOVQMI_SERVICE_CTL, 0, msg, len);
        return;
    }
    Pending p = pending_[msg[1]];
    if (!p.used || p.id != id) return;  // not ours, or a duplicate
    pending_[msg[1]].used = false;
    if (id == kGetClientId) {
        QmiResult r = {};
        uint8_t service = 0, client = 0;
        int rc = zovQMICTLGetClientIDResp(msg, len, &r, &service, &client);
        const uint8_t* result = reinterpret_cast<const uint8_t*>(&r);
        if (rc >= 0 && le16(result) == 0) {
            if (p.conn >= 0 && ownedCount_ < kMaxOwned) {
                owned_[ownedCount_++] = Owned{service, client, p.conn};
            } else {
                // Its connection is gone (or the table is full): give it back.
                uint8_t buf[16];
                int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, service, client);
                if (n > 0) sendControl(kInternal, buf, n);
                if (p.conn >= 0) {
                    logf("connection %d: no room to record %u client id %u", p.conn, service, client);
                    // No answer rather than an id nobody routes: the
                    // client's request times out.
                    p.conn = -1;
                }
            }
        }
    } else if (id == kReleaseClientId) {
        forget(p.service, p.client);
    }
    if (p.conn < 0) return;
    msg[1] = p.clientTx;
    sink_.toConnection(p.conn, ZOVQMI_SERVICE_CTL, 0, msg, len);
}

}  // namespace zovproxy
