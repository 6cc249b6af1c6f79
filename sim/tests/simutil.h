// Helpers of the simulated modem's tests: a connection through the
// in-process socket transport and readers of the answers it gets.
#pragma once

#include <poll.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "modem.h"
#include "socket_server.h"
#include "testutil.h"

namespace simtest {

using namespace t;

struct Msg {
    uint8_t service = 0, client = 0;
    Bytes bytes;
    int len() const { return int(bytes.size()); }
    const uint8_t* data() const { return bytes.data(); }
};

// One connection to the simulated modem.
class Conn {
public:
    explicit Conn(zovsim::SocketServer& s) : fd_(s.connect()) {}
    ~Conn() { close(fd_); }
    int fd() const { return fd_; }

    void send(uint8_t service, uint8_t client, const uint8_t* msg, int n) {
        ASSERT_EQ(zovQMIDeviceWrite(fd_, service, client, msg, n), n);
    }
    void send(uint8_t service, uint8_t client, const Bytes& msg) { send(service, client, msg.data(), int(msg.size())); }
    // The next frame, or an empty message after `ms` milliseconds.
    Msg next(int ms = 2000) {
        Msg m;
        pollfd p{fd_, POLLIN, 0};
        if (poll(&p, 1, ms) != 1) return m;
        uint8_t buf[4096];
        int n = zovQMIDeviceRead(fd_, buf, sizeof buf, &m.service, &m.client);
        if (n > 0) m.bytes.assign(buf, buf + n);
        return m;
    }
    // Sends a request and returns the response (the next frame).
    Msg ask(uint8_t service, uint8_t client, const Bytes& msg) {
        send(service, client, msg);
        return next();
    }
    uint8_t clientId(uint8_t service) {
        uint8_t buf[64];
        int n = zovQMICTLGetClientIDReq(buf, sizeof buf, service);
        send(0, 0, buf, n);
        Msg m = next();
        QmiResult r{};
        uint8_t svc = 0, cid = 0;
        EXPECT_GT(zovQMICTLGetClientIDResp(m.data(), m.len(), &r, &svc, &cid), 0);
        EXPECT_EQ(res(r), (Res{0, 0}));
        EXPECT_EQ(svc, service);
        return cid;
    }

private:
    int fd_;
};

// A service request as the library writes it: flags 0, a transaction id.
inline Bytes request(uint16_t id, std::initializer_list<Bytes> items) {
    return svcMessage(id, items, uint16_t(zovQMIMSMGetNextTransactionID()), 0x00);
}

// Result code and error of a response.
inline std::pair<int, int> resultOf(const Msg& m, uint16_t id) {
    uint16_t n = 0;
    const uint8_t* area = zovQMIMSMGetMessage(m.data(), m.len(), id, &n);
    if (!area) return {-1, -1};
    uint16_t vl = 0;
    const uint8_t* v = zovQMIMSMGetTLV(area, n, 0x02, &vl);
    if (!v || vl < 4) return {-1, -1};
    return {rd16(v), rd16(v + 2)};
}
// The value of one TLV of message `id`, or nothing.
inline Bytes item(const Msg& m, uint16_t id, uint8_t type) {
    uint16_t n = 0;
    const uint8_t* area = zovQMIMSMGetMessage(m.data(), m.len(), id, &n);
    if (!area) return {};
    uint16_t vl = 0;
    const uint8_t* v = zovQMIMSMGetTLV(area, n, type, &vl);
    return v ? Bytes(v, v + vl) : Bytes{};
}
inline uint8_t flags(const Msg& m) { return m.bytes.empty() ? 0xFF : m.bytes[0]; }

const std::pair<int, int> kOk{0, 0};

class Sim : public ::testing::Test {
protected:
    zovsim::Modem modem;
    zovsim::SocketServer server{modem};
};

}  // namespace simtest
