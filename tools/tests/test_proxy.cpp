// The proxy: the router's decisions one frame at a time, then the server
// between the simulated modem and several sessions over its socket.
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "modem.h"
#include "proxy.h"
#include "router.h"
#include "session.h"
#include "socket_server.h"
#include "testutil.h"

using namespace t;
using zovproxy::Router;

namespace {

constexpr int kDevice = -1;

struct Sent {
    int to;  // a connection, or kDevice
    uint8_t service, client;
    Bytes msg;
};

struct Recorder : zovproxy::Sink {
    std::vector<Sent> sent;
    std::vector<std::string> logs;
    void toDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len) override {
        sent.push_back({kDevice, service, client, Bytes(msg, msg + len)});
    }
    void toConnection(int conn, uint8_t service, uint8_t client, const uint8_t* msg, int len) override {
        sent.push_back({conn, service, client, Bytes(msg, msg + len)});
    }
    void log(const char* line) override { logs.push_back(line); }
    std::vector<Sent> take() {
        std::vector<Sent> s;
        s.swap(sent);
        return s;
    }
};

// A frame as a program writes it: QMUX header (flags 0) and message.
Bytes frame(uint8_t service, uint8_t client, const Bytes& msg) {
    return cat({{0x01}, le16(uint16_t(msg.size() + 5)), {0x00, service, client}, msg});
}
Bytes ctlRequest(uint16_t id, uint8_t tx, std::initializer_list<Bytes> items = {}) {
    return ctlMessage(id, items, tx, 0x00);
}
Bytes getClientIdResponse(uint8_t tx, uint8_t service, uint8_t client) {
    return ctlMessage(0x0022, {result(), tlv(0x01, {service, client})}, tx);
}
Bytes wdsRequest(uint16_t tx) { return svcMessage(0x0022, {}, tx, 0x00); }

struct RouterTest : ::testing::Test {
    Recorder sink;
    Router router{sink};
    void SetUp() override {
        for (int c = 0; c < 3; ++c) router.opened(c);
    }
    void send(int conn, const Bytes& f) { router.fromConnection(conn, f.data(), int(f.size())); }
    void modem(uint8_t service, uint8_t client, const Bytes& msg) {
        router.fromDevice(service, client, msg.data(), int(msg.size()));
    }
    // conn obtains (service, client) through the router.
    void own(int conn, uint8_t service, uint8_t client) {
        send(conn, frame(0, 0, ctlRequest(0x0022, 0x40, {tlv(0x01, {service})})));
        auto out = sink.take();
        ASSERT_EQ(out.size(), 1u);
        modem(0, 0, getClientIdResponse(out[0].msg[1], service, client));
        sink.take();
        ASSERT_EQ(router.owner(service, client), conn);
    }
};

}  // namespace

TEST_F(RouterTest, CtlTransactionIdsAreRewrittenSoTwoConnectionsNeverCollide) {
    send(0, frame(0, 0, ctlRequest(0x0022, 0x05, {tlv(0x01, {0x01})})));
    send(1, frame(0, 0, ctlRequest(0x0022, 0x05, {tlv(0x01, {0x03})})));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(out[0].to, kDevice);
    EXPECT_EQ(out[1].to, kDevice);
    EXPECT_NE(out[0].msg[1], out[1].msg[1]);
    // Answered in the other order: each goes back to its own connection with
    // its own transaction id.
    modem(0, 0, getClientIdResponse(out[1].msg[1], 0x03, 7));
    modem(0, 0, getClientIdResponse(out[0].msg[1], 0x01, 9));
    auto back = sink.take();
    ASSERT_EQ(back.size(), 2u);
    EXPECT_EQ(back[0].to, 1);
    EXPECT_EQ(back[0].msg, getClientIdResponse(0x05, 0x03, 7));
    EXPECT_EQ(back[1].to, 0);
    EXPECT_EQ(back[1].msg, getClientIdResponse(0x05, 0x01, 9));
    EXPECT_EQ(router.owner(0x03, 7), 1);
    EXPECT_EQ(router.owner(0x01, 9), 0);
}

TEST_F(RouterTest, ServiceFramesGoToTheModemAndTheirAnswersToTheOwnerOnly) {
    own(0, 0x01, 9);
    own(1, 0x01, 10);
    send(1, frame(0x01, 10, wdsRequest(0x0102)));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].to, kDevice);
    EXPECT_EQ(out[0].client, 10);
    EXPECT_EQ(out[0].msg, wdsRequest(0x0102));
    modem(0x01, 10, svcMessage(0x0022, {result()}, 0x0102));
    out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].to, 1);
}

TEST_F(RouterTest, BroadcastIndicationReachesEveryConnectionHoldingThatServiceOnce) {
    own(0, 0x01, 9);
    own(0, 0x01, 11);
    own(1, 0x01, 10);
    own(2, 0x03, 4);
    modem(0x01, 0xFF, svcMessage(0x0022, {tlv(0x01, {0x01, 0x00})}, 0, 0x04));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 2u);
    EXPECT_EQ(out[0].to + out[1].to, 1);  // connections 0 and 1, not 2
    EXPECT_NE(out[0].to, out[1].to);
}

TEST_F(RouterTest, RequestOnAForeignClientIdIsRefusedAndTheConnectionStaysUsable) {
    own(0, 0x01, 9);
    own(1, 0x01, 10);
    send(1, frame(0x01, 9, wdsRequest(1)));
    EXPECT_TRUE(sink.take().empty());
    ASSERT_EQ(sink.logs.size(), 1u);
    EXPECT_EQ(sink.logs[0], "connection 1: frame refused: 1 client id 9 is not its own");
    send(1, frame(0x01, 10, wdsRequest(2)));
    EXPECT_EQ(sink.take().size(), 1u);
}

TEST_F(RouterTest, GarbageIsRefusedWithOneLogLineEach) {
    own(0, 0x01, 9);
    send(0, {0x01, 0x02});
    send(0, cat({{0x02}, le16(12), {0, 1, 9}, wdsRequest(1)}));
    send(0, cat({{0x01}, le16(99), {0, 1, 9}, wdsRequest(1)}));
    send(0, frame(0x01, 9, {0x00, 0x01, 0x00, 0x22, 0x00, 0x09, 0x00}));
    send(0, frame(0, 0, {0x00, 0x01, 0x22}));
    EXPECT_TRUE(sink.take().empty());
    EXPECT_EQ(sink.logs.size(), 5u);
    send(0, frame(0x01, 9, wdsRequest(3)));
    EXPECT_EQ(sink.take().size(), 1u);
}

TEST_F(RouterTest, SyncIsAnsweredHereAndReleasesOnlyThatConnectionsIds) {
    own(0, 0x01, 9);
    own(1, 0x03, 4);
    send(0, frame(0, 0, ctlRequest(0x0027, 0x33)));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 2u);
    // The release of connection 0's id goes to the modem ...
    EXPECT_EQ(out[0].to, kDevice);
    EXPECT_EQ(Bytes(out[0].msg.begin() + 2, out[0].msg.end()),
              cat({le16(0x0023), le16(5), tlv(0x01, {0x01, 9})}));
    // ... and the connection gets success at once, with its transaction id.
    EXPECT_EQ(out[1].to, 0);
    EXPECT_EQ(out[1].msg, ctlMessage(0x0027, {result()}, 0x33));
    EXPECT_EQ(router.owner(0x01, 9), -1);
    EXPECT_EQ(router.owner(0x03, 4), 1);
    // The modem's answer to the proxy's own release goes nowhere.
    modem(0, 0, ctlMessage(0x0023, {result(), tlv(0x01, {0x01, 9})}, out[0].msg[1]));
    EXPECT_TRUE(sink.take().empty());
}

TEST_F(RouterTest, ClosingAConnectionReleasesEveryClientIdItOwned) {
    own(2, 0x01, 9);
    own(2, 0x03, 4);
    own(1, 0x02, 5);
    router.closed(2);
    auto out = sink.take();
    ASSERT_EQ(out.size(), 2u);
    for (const Sent& s : out) {
        EXPECT_EQ(s.to, kDevice);
        EXPECT_EQ(s.msg[2], 0x23);
    }
    EXPECT_EQ(router.ownedCount(2), 0);
    EXPECT_EQ(router.ownedCount(1), 1);
}

TEST_F(RouterTest, ClientIdGrantedAfterItsConnectionClosedIsGivenBack) {
    send(1, frame(0, 0, ctlRequest(0x0022, 0x07, {tlv(0x01, {0x01})})));
    auto out = sink.take();
    router.closed(1);
    modem(0, 0, getClientIdResponse(out[0].msg[1], 0x01, 12));
    out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].to, kDevice);
    EXPECT_EQ(Bytes(out[0].msg.begin() + 2, out[0].msg.end()),
              cat({le16(0x0023), le16(5), tlv(0x01, {0x01, 12})}));
    EXPECT_EQ(router.owner(0x01, 12), -1);
}

TEST_F(RouterTest, ReleaseClientIdForgetsTheOwnerWhenAnswered) {
    own(0, 0x01, 9);
    send(0, frame(0, 0, ctlRequest(0x0023, 0x08, {tlv(0x01, {0x01, 9})})));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(router.owner(0x01, 9), 0);
    modem(0, 0, ctlMessage(0x0023, {result(), tlv(0x01, {0x01, 9})}, out[0].msg[1]));
    EXPECT_EQ(router.owner(0x01, 9), -1);
    out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].msg[1], 0x08);
}

TEST_F(RouterTest, ReleaseOfAForeignClientIdIsRefused) {
    own(0, 0x01, 9);
    send(1, frame(0, 0, ctlRequest(0x0023, 0x08, {tlv(0x01, {0x01, 9})})));
    EXPECT_TRUE(sink.take().empty());
    EXPECT_EQ(router.owner(0x01, 9), 0);
}

TEST_F(RouterTest, RevokedClientIdIsToldToItsOwnerAndForgotten) {
    own(0, 0x01, 9);
    modem(0, 0, ctlMessage(0x0024, {tlv(0x01, {0x01, 9})}, 0, 0x02));
    auto out = sink.take();
    ASSERT_EQ(out.size(), 1u);
    EXPECT_EQ(out[0].to, 0);
    EXPECT_EQ(router.owner(0x01, 9), -1);
}

TEST_F(RouterTest, AnswerWithUnknownTransactionIdIsDropped) {
    modem(0, 0, getClientIdResponse(0x99, 0x01, 3));
    EXPECT_TRUE(sink.take().empty());
    EXPECT_EQ(router.owner(0x01, 3), -1);
}

// --- the server between the simulated modem and sessions ----------------------

namespace {

struct ProxyFixture : ::testing::Test {
    zovsim::Modem modem;
    zovsim::SocketServer server{modem};
    zovproxy::ProxyServer proxy;
    std::string path = "/tmp/zovqmi-proxy-test-" + std::to_string(getpid()) + ".sock";
    void SetUp() override {
        proxy.attachDevice(server.connect());
        ASSERT_EQ(proxy.listen(path.c_str(), 0660, -1), 0) << proxy.error();
        ASSERT_EQ(proxy.start(), 0);
    }
    std::unique_ptr<zovapp::Session> session() {
        std::unique_ptr<zovapp::Session> s(new zovapp::Session);
        EXPECT_EQ(s->open(path.c_str()), zovapp::kOk) << s->error();
        s->setTimeout(2000);
        return s;
    }
    int signalDbm(zovapp::Session& s) {
        static zovapp::Message resp;
        uint8_t buf[32];
        int n = zovQMINASGetSignalStrengthReq(buf, sizeof buf);
        if (s.request(ZOVQMI_SERVICE_NAS, buf, n, &resp) != zovapp::kOk) return 1;
        QmiResult r{};
        uint8_t dbm = 0, radio = 0;
        if (zovQMINASGetSignalStrengthResp(resp.data(), resp.len, &r, &dbm, &radio) < 0) return 2;
        return int8_t(dbm);
    }
    // Waits (bounded) until the modem holds `n` NAS client ids.
    bool nasClients(size_t n) {
        for (int i = 0; i < 200 && modem.clientCount(ZOVQMI_SERVICE_NAS) != n; ++i) usleep(10000);
        return modem.clientCount(ZOVQMI_SERVICE_NAS) == n;
    }
};

}  // namespace

TEST_F(ProxyFixture, SocketIsCreatedWithTheRequestedPermissions) {
    struct stat st;
    ASSERT_EQ(stat(path.c_str(), &st), 0);
    EXPECT_TRUE(S_ISSOCK(st.st_mode));
    EXPECT_EQ(st.st_mode & 07777, 0660u);
}

TEST_F(ProxyFixture, TwoSessionsShareTheModemEachWithItsOwnClientId) {
    auto a = session(), b = session();
    uint8_t ida = 0, idb = 0;
    ASSERT_EQ(a->client(ZOVQMI_SERVICE_NAS, &ida), zovapp::kOk) << a->error();
    ASSERT_EQ(b->client(ZOVQMI_SERVICE_NAS, &idb), zovapp::kOk) << b->error();
    EXPECT_NE(ida, idb);
    for (int i = 0; i < 20; ++i) {
        EXPECT_LT(signalDbm(*a), 0) << a->error();
        EXPECT_LT(signalDbm(*b), 0) << b->error();
    }
    EXPECT_TRUE(nasClients(2));
}

TEST_F(ProxyFixture, SyncOfOneSessionLeavesTheOtherSessionsClientIds) {
    auto a = session(), b = session();
    uint8_t id = 0;
    ASSERT_EQ(a->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    ASSERT_EQ(b->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    ASSERT_EQ(a->sync(), zovapp::kOk) << a->error();
    EXPECT_TRUE(nasClients(1));
    EXPECT_LT(signalDbm(*b), 0) << b->error();
}

TEST_F(ProxyFixture, ClosedSessionsClientIdsAreReleasedWithTheModem) {
    auto a = session(), b = session();
    uint8_t id = 0;
    ASSERT_EQ(a->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    ASSERT_EQ(b->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    ASSERT_TRUE(nasClients(2));
    a.reset();
    EXPECT_TRUE(nasClients(1));
    EXPECT_LT(signalDbm(*b), 0) << b->error();
}

TEST_F(ProxyFixture, LocalConnectionWorksLikeASocketOne) {
    for (int i = 0; i < 100 && !proxy.deviceOpen(); ++i) usleep(10000);
    int fd = proxy.connectLocal();
    ASSERT_GE(fd, 0);
    std::unique_ptr<zovapp::Session> s(new zovapp::Session);
    s->attach(fd, true);
    EXPECT_LT(signalDbm(*s), 0) << s->error();
}

TEST_F(ProxyFixture, ProgramThatVanishesMidRequestDisturbsNoOtherSession) {
    auto b = session();
    uint8_t id = 0;
    ASSERT_EQ(b->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    {
        // Obtains a client id, sends a request on it and goes away before the answer.
        auto a = session();
        uint8_t ida = 0;
        ASSERT_EQ(a->client(ZOVQMI_SERVICE_NAS, &ida), zovapp::kOk);
        uint8_t buf[32];
        int n = zovQMINASGetSignalStrengthReq(buf, sizeof buf);
        ASSERT_EQ(zovQMIDeviceWrite(a->fd(), ZOVQMI_SERVICE_NAS, ida, buf, n), n);
    }
    EXPECT_TRUE(nasClients(1));
    for (int i = 0; i < 10; ++i) EXPECT_LT(signalDbm(*b), 0) << b->error();
}

TEST_F(ProxyFixture, GarbageFromOneProgramLeavesItAndTheOthersUsable) {
    auto a = session(), b = session();
    uint8_t id = 0;
    ASSERT_EQ(b->client(ZOVQMI_SERVICE_NAS, &id), zovapp::kOk);
    const uint8_t junk[] = {0x07, 0xFF, 0x00, 0x13, 0x37};
    ASSERT_EQ(write(a->fd(), junk, sizeof junk), ssize_t(sizeof junk));
    // A request on b's client id from a: refused, never answered.
    uint8_t buf[32];
    int n = zovQMINASGetSignalStrengthReq(buf, sizeof buf);
    ASSERT_EQ(zovQMIDeviceWrite(a->fd(), ZOVQMI_SERVICE_NAS, id, buf, n), n);
    EXPECT_LT(signalDbm(*b), 0) << b->error();
    EXPECT_LT(signalDbm(*a), 0) << a->error();
    EXPECT_EQ(a->keptIndications(), 0);
}
