// The router tools' session layer against the simulated modem, through the
// in-process SOCK_SEQPACKET transport (one frame per read, as on the device).
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <string.h>
#include <termios.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <thread>

#include "json.h"
#include "modem.h"
#include "session.h"
#include "socket_server.h"
#include "testutil.h"

using namespace zovapp;

namespace {

// A session is large (its kept indications), so tests keep it off the stack.
struct Fixture {
    explicit Fixture(zovsim::Options options = zovsim::Options())
        : modem(options), server(modem), session(new Session) {
        session->attach(server.connect(), true);
        session->setTimeout(2000);
    }
    zovsim::Modem modem;
    zovsim::SocketServer server;
    std::unique_ptr<Session> session;
};

std::string manufacturer(const Message& m) {
    QmiResult r{};
    uint16_t n = 0;
    char text[256] = {};
    int rc = zovQMIDMSGetDeviceMfrResp(m.data(), m.len, &r, &n, reinterpret_cast<uint8_t*>(text));
    return rc < 0 ? "" : std::string(text, n);
}

}  // namespace

TEST(ToolSession, RequestObtainsAClientIdAndReturnsTheMatchingResponse) {
    Fixture f;
    uint8_t buf[64];
    int n = zovQMIDMSGetDeviceMfrReq(buf, sizeof buf);
    static Message resp;
    ASSERT_EQ(f.session->request(ZOVQMI_SERVICE_DMS, buf, n, &resp), kOk) << f.session->error();
    EXPECT_EQ(resp.service, ZOVQMI_SERVICE_DMS);
    EXPECT_EQ(resp.id(), 0x0021);
    EXPECT_FALSE(manufacturer(resp).empty());
    EXPECT_EQ(f.session->clientCount(), 1);
    EXPECT_EQ(f.modem.clientCount(ZOVQMI_SERVICE_DMS), 1u);
}

TEST(ToolSession, SecondClientOfAServiceIsADifferentId) {
    Fixture f;
    uint8_t a = 0, b = 0, again = 0;
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_WDS, &a), kOk);
    ASSERT_EQ(f.session->newClient(ZOVQMI_SERVICE_WDS, &b), kOk);
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_WDS, &again), kOk);
    EXPECT_NE(a, b);
    EXPECT_EQ(again, a);
    EXPECT_TRUE(f.session->holds(ZOVQMI_SERVICE_WDS, b));
    EXPECT_EQ(f.modem.clientCount(ZOVQMI_SERVICE_WDS), 2u);
}

TEST(ToolSession, ReleaseAllGivesEveryClientIdBackButAdoptedOnes) {
    Fixture f;
    uint8_t id = 0;
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_NAS, &id), kOk);
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_DMS, &id), kOk);
    ASSERT_EQ(f.session->adopt(ZOVQMI_SERVICE_WMS, 77), kOk);
    EXPECT_EQ(f.session->releaseAll(), kOk) << f.session->error();
    EXPECT_EQ(f.modem.clientCount(ZOVQMI_SERVICE_NAS), 0u);
    EXPECT_EQ(f.modem.clientCount(ZOVQMI_SERVICE_DMS), 0u);
    EXPECT_EQ(f.session->clientCount(), 1);
    EXPECT_TRUE(f.session->holds(ZOVQMI_SERVICE_WMS, 77));
}

TEST(ToolSession, SilentModemTimesOutWithTheMessageNamedInTheError) {
    zovsim::Options o;
    o.silent.insert({ZOVQMI_SERVICE_DMS, 0x0021});
    Fixture f(o);
    f.session->setTimeout(200);
    uint8_t buf[64];
    int n = zovQMIDMSGetDeviceMfrReq(buf, sizeof buf);
    static Message resp;
    int64_t start = monotonicMs();
    EXPECT_EQ(f.session->request(ZOVQMI_SERVICE_DMS, buf, n, &resp), kTimeout);
    EXPECT_GE(monotonicMs() - start, 190);
    EXPECT_STREQ(f.session->error(), "timeout: no answer to dms message 0x0021 within 200 ms");
}

TEST(ToolSession, DeadlineCutsAWaitShorterThanTheTimeout) {
    zovsim::Options o;
    o.silent.insert({ZOVQMI_SERVICE_DMS, 0x0021});
    Fixture f(o);
    f.session->setTimeout(5000);
    f.session->setDeadline(monotonicMs() + 150);
    uint8_t buf[64];
    int n = zovQMIDMSGetDeviceMfrReq(buf, sizeof buf);
    uint8_t id = 0;
    static Message resp;
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_DMS, &id), kOk);
    int64_t start = monotonicMs();
    EXPECT_EQ(f.session->request(ZOVQMI_SERVICE_DMS, id, buf, n, &resp), kTimeout);
    EXPECT_LT(monotonicMs() - start, 1000);
}

TEST(ToolSession, QmiFailureCarriesTheErrorCodeAndName) {
    Fixture f;
    uint8_t buf[64];
    int n = zovQMIDMSUIMVerifyPINReq(buf, sizeof buf, 1, 4, reinterpret_cast<const uint8_t*>("0000"));
    static Message resp;
    ASSERT_EQ(f.session->request(ZOVQMI_SERVICE_DMS, buf, n, &resp), kOk);
    QmiResult r{};
    int rc = zovQMIDMSUIMVerifyPINResp(resp.data(), resp.len, &r);
    EXPECT_EQ(f.session->check("verify PIN", rc, r), kQmiFailure);
    EXPECT_EQ(f.session->qmiError(), 0x000C);
    EXPECT_STREQ(f.session->error(), "verify PIN: QMI error 12 (0x000C, IncorrectPin)");
}

TEST(ToolSession, IndicationReadWhileWaitingIsKeptForLater) {
    Fixture f;
    uint8_t buf[64];
    int n = zovQMIWMSSetEventReportReq(buf, sizeof buf);
    n = zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(buf, sizeof buf, 1);
    static Message resp;
    ASSERT_EQ(f.session->request(ZOVQMI_SERVICE_WMS, buf, n, &resp), kOk);
    f.server.deliver(f.modem.deliverSms({0x00, 0x04, 0x81, 0x21, 0x43, 0x00, 0x00}));
    // The indication comes before this response on the same transport.
    n = zovQMIDMSGetDeviceMfrReq(buf, sizeof buf);
    ASSERT_EQ(f.session->request(ZOVQMI_SERVICE_DMS, buf, n, &resp), kOk);
    EXPECT_EQ(f.session->keptIndications(), 1);
    static Message ind;
    ASSERT_TRUE(f.session->nextIndication(&ind, ZOVQMI_SERVICE_WMS));
    EXPECT_EQ(ind.id(), 0x0001);
    EXPECT_TRUE(ind.isIndication());
    EXPECT_EQ(f.session->keptIndications(), 0);
}

TEST(ToolSession, AwaitIndicationReturnsTheOneAskedForOnce) {
    Fixture f;
    uint8_t buf[64];
    int n = zovQMIWMSSetEventReportReq(buf, sizeof buf);
    n = zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(buf, sizeof buf, 1);
    static Message resp, ind;
    ASSERT_EQ(f.session->request(ZOVQMI_SERVICE_WMS, buf, n, &resp), kOk);
    f.server.deliver(f.modem.deliverSms({0x00, 0x04, 0x81, 0x21, 0x43, 0x00, 0x00}));
    EXPECT_EQ(f.session->awaitIndication(ZOVQMI_SERVICE_WMS, 0x0001, 2000, &ind), kOk) << f.session->error();
    EXPECT_EQ(ind.service, ZOVQMI_SERVICE_WMS);
    EXPECT_EQ(f.session->awaitIndication(ZOVQMI_SERVICE_WMS, 0x0001, 100, &ind), kTimeout);
    EXPECT_STREQ(f.session->error(), "timeout: no wms indication 0x0001");
}

TEST(ToolSession, EndOfFileIsReportedAsDeviceClosed) {
    int sv[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, sv), 0);
    std::unique_ptr<Session> s(new Session);
    s->attach(sv[0], true);
    close(sv[1]);
    uint8_t buf[64];
    int n = zovQMICTLSyncReq(buf, sizeof buf);
    static Message resp;
    int rc = s->request(ZOVQMI_SERVICE_CTL, 0, buf, n, &resp);
    EXPECT_TRUE(rc == kDeviceClosed || rc == kDeviceGone) << rc;
    if (rc == kDeviceClosed) {
        EXPECT_STREQ(s->error(), "device closed");
    }
}

TEST(ToolSession, ReadOfNothingIsReportedAsDeviceClosed) {
    // The other end still takes requests but will never send again: a read
    // of 0 bytes, which is an end of file, not a short frame.
    int sv[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, sv), 0);
    ASSERT_EQ(shutdown(sv[1], SHUT_WR), 0);
    std::unique_ptr<Session> s(new Session);
    s->attach(sv[0], true);
    uint8_t buf[64];
    int n = zovQMICTLSyncReq(buf, sizeof buf);
    static Message resp;
    EXPECT_EQ(s->request(ZOVQMI_SERVICE_CTL, 0, buf, n, &resp), kDeviceClosed);
    EXPECT_STREQ(s->error(), "device closed");
    close(sv[1]);
}

TEST(ToolSession, FailedReadIsReportedAsDeviceGoneWithItsReason) {
    // The other end goes away with the request unread: the read fails with
    // ECONNRESET, named in the error text.
    int sv[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, sv), 0);
    std::thread peer([&] {
        pollfd p = {sv[1], POLLIN, 0};
        poll(&p, 1, 2000);
        close(sv[1]);
    });
    std::unique_ptr<Session> s(new Session);
    s->attach(sv[0], true);
    uint8_t buf[64];
    int n = zovQMICTLSyncReq(buf, sizeof buf);
    static Message resp;
    int rc = s->request(ZOVQMI_SERVICE_CTL, 0, buf, n, &resp);
    peer.join();
    EXPECT_EQ(rc, kDeviceGone);
    EXPECT_STREQ(s->error(), "device gone: Connection reset by peer");
}

TEST(ToolSession, FramesThatArriveTogetherOnATerminalAreTakenOneByOne) {
    // A terminal keeps no frame boundaries: two indications written at once,
    // and a third in two pieces, come out as three messages.
    int master = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(master, 0);
    ASSERT_EQ(grantpt(master), 0);
    ASSERT_EQ(unlockpt(master), 0);
    int slave = open(ptsname(master), O_RDWR | O_NOCTTY);
    ASSERT_GE(slave, 0);
    termios tio;
    ASSERT_EQ(tcgetattr(slave, &tio), 0);
    cfmakeraw(&tio);
    ASSERT_EQ(tcsetattr(slave, TCSANOW, &tio), 0);
    std::unique_ptr<Session> s(new Session);
    s->attach(slave, true);
    // WDS packet service status indications (id 0x0022), 7-byte header and
    // one item each.
    const uint8_t frame[] = {0x01, 0x11, 0x00, 0x80, 0x01, 0x02, 0x04, 0x00, 0x00, 0x22, 0x00,
                             0x05, 0x00, 0x01, 0x02, 0x00, 0x02, 0x00};
    uint8_t two[2 * sizeof frame];
    memcpy(two, frame, sizeof frame);
    memcpy(two + sizeof frame, frame, sizeof frame);
    two[sizeof frame + 16] = 0x01;  // the second one says "disconnected"
    ASSERT_EQ(write(master, two, sizeof two), ssize_t(sizeof two));
    ASSERT_EQ(write(master, frame, 5), 5);
    static Message m;
    ASSERT_EQ(s->awaitIndication(ZOVQMI_SERVICE_WDS, 0x0022, 1000, &m), kOk) << s->error();
    EXPECT_EQ(m.len, 12);
    EXPECT_EQ(m.bytes[10], 0x02);
    ASSERT_EQ(s->awaitIndication(ZOVQMI_SERVICE_WDS, 0x0022, 1000, &m), kOk) << s->error();
    EXPECT_EQ(m.bytes[10], 0x01);
    ASSERT_EQ(write(master, frame + 5, sizeof frame - 5), ssize_t(sizeof frame - 5));
    ASSERT_EQ(s->awaitIndication(ZOVQMI_SERVICE_WDS, 0x0022, 1000, &m), kOk) << s->error();
    EXPECT_EQ(m.client, 0x02);
    close(master);
}

TEST(ToolSession, WakeDescriptorInterruptsAWait) {
    int sv[2], wake[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, sv), 0);
    ASSERT_EQ(pipe(wake), 0);
    std::unique_ptr<Session> s(new Session);
    s->attach(sv[0], true);
    s->setWakeFd(wake[0]);
    ASSERT_EQ(write(wake[1], "x", 1), 1);
    EXPECT_EQ(s->pump(5000), kInterrupted);
    close(sv[1]);
    close(wake[0]);
    close(wake[1]);
}

TEST(ToolSession, SyncForgetsEveryClientId) {
    Fixture f;
    uint8_t id = 0;
    ASSERT_EQ(f.session->client(ZOVQMI_SERVICE_NAS, &id), kOk);
    EXPECT_EQ(f.session->sync(), kOk) << f.session->error();
    EXPECT_EQ(f.session->clientCount(), 0);
}

TEST(ToolSession, ServiceNamesRoundTrip) {
    EXPECT_EQ(serviceByName("wds"), 1);
    EXPECT_EQ(serviceByName("pbm"), 12);
    EXPECT_EQ(serviceByName("0x03"), 3);
    EXPECT_EQ(serviceByName("bogus"), -1);
    EXPECT_STREQ(serviceName(5), "wms");
    EXPECT_STREQ(qmiErrorName(0x0024), "PinPermanentlyBlocked");
}

TEST(ToolJson, WritesNestedObjectsArraysAndEscapedStrings) {
    char* text = nullptr;
    size_t size = 0;
    FILE* out = open_memstream(&text, &size);
    Json j(out);
    j.object().str("name", "a\"b\n").num("n", -3).boolean("ok", true).null("none");
    j.array("list").unum(nullptr, 1).unum(nullptr, 2).end();
    j.object("inner").str("k", "v").end().end().line();
    fclose(out);
    EXPECT_EQ(std::string(text), "{\"name\":\"a\\\"b\\n\",\"n\":-3,\"ok\":true,\"none\":null,\"list\":[1,2],"
                                 "\"inner\":{\"k\":\"v\"}}\n");
    free(text);
}
