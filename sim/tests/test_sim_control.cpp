// The simulated modem as a testbed: the control commands, dual-stack calls,
// the ownership of calls and the data path, through the in-process socket
// transport (the tool's device node and network interface have tests of
// their own).
#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <string>

#include "control.h"
#include "simutil.h"

using namespace simtest;

namespace {

constexpr uint16_t kPktSrvcStatus = 0x0022, kServingSystem = 0x0024;

class Testbed : public ::testing::Test {
protected:
    explicit Testbed(zovsim::Options o = zovsim::Options()) : modem(o) {}

    std::string cmd(const std::string& line) { return control.execute(line); }

    // Verifies PIN1 on a DMS client.
    void unlock(Conn& c, uint8_t dms) {
        Msg m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0028, {tlv(0x01, {1, 4, '1', '2', '3', '4'})}));
        ASSERT_EQ(resultOf(m, 0x0028), kOk);
    }
    // Starts a call with the given IP family item (0: none) and returns the
    // response; the packet service status indication is left to the caller.
    Msg start(Conn& c, uint8_t wds, uint8_t family = 0) {
        if (family) return c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {tlv(0x19, {family})}));
        return c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {}));
    }
    // Starts a call that must come up, and takes its indication.
    Bytes connect(Conn& c, uint8_t wds, uint8_t family = 0) {
        Msg m = start(c, wds, family);
        EXPECT_EQ(resultOf(m, 0x0020), kOk);
        Msg ind = c.next();
        EXPECT_EQ(item(ind, kPktSrvcStatus, 0x01), (Bytes{2, 0}));
        return item(m, 0x0020, 0x01);
    }

    zovsim::Modem modem;
    zovsim::SocketServer server{modem};
    zovsim::Controller control{modem, server};
};

bool contains(const std::string& s, const std::string& part) { return s.find(part) != std::string::npos; }

// ------------------------------------------------------------- status --

TEST_F(Testbed, StatusOfAFreshModemGivesEveryKeyWithNoClientsAndNoCalls) {
    EXPECT_EQ(cmd("status"),
              "{\"registered\":true,\"stalled\":false,\"signal_dbm\":-67,\"sim\":\"present\","
              "\"pin1\":\"enabled-not-verified\",\"clients\":{\"wds\":[],\"dms\":[],\"nas\":[],\"qos\":[],"
              "\"wms\":[],\"pds\":[],\"pbm\":[]},\"calls\":[],\"opens\":0,\"pin1_retries\":3,"
              "\"puk1_retries\":10,\"tx_packets\":0,\"rx_packets\":0,\"dropped_packets\":0}");
}

TEST_F(Testbed, StatusListsClientIdsPerServiceEveryCallAndTheOpenConnections) {
    Conn c(server), other(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t wds = c.clientId(ZOVQMI_SERVICE_WDS);
    c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {tlv(0x14, str("apn.example"))}));
    uint32_t handle = rd32(item(m, 0x0020, 0x01).data());
    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"pin1\":\"enabled-verified\"")) << s;
    EXPECT_TRUE(contains(s, "\"clients\":{\"wds\":[1,2],\"dms\":[1],\"nas\":[],")) << s;
    EXPECT_TRUE(contains(s, "\"calls\":[{\"client\":1,\"handle\":" + std::to_string(handle) +
                                ",\"family\":4,\"apn\":\"apn.example\"}]"))
        << s;
    EXPECT_TRUE(contains(s, "\"opens\":2")) << s;
}

TEST_F(Testbed, AWrongPinCostsExactlyOneAttempt) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0028, {tlv(0x01, {1, 4, '9', '9', '9', '9'})}));
    EXPECT_TRUE(contains(cmd("status"), "\"pin1_retries\":2"));
}

class NoPin : public Testbed {
protected:
    static zovsim::Options options() {
        zovsim::Options o;
        o.pin1Enabled = false;
        return o;
    }
    NoPin() : Testbed(options()) {}
};

TEST_F(NoPin, WithoutPinProtectionTheSimIsReadyAtOnce) {
    EXPECT_TRUE(contains(cmd("status"), "\"pin1\":\"disabled\""));
    Conn c(server);
    uint8_t wds = c.clientId(ZOVQMI_SERVICE_WDS);
    EXPECT_EQ(resultOf(start(c, wds), 0x0020), kOk);
}

// --------------------------------------------------------- bad input --

TEST_F(Testbed, UnknownCommandsAndBadArgumentsAnswerAnErrorAndChangeNothing) {
    std::string before = cmd("status");
    for (const char* line : {"", "frobnicate", "signal", "signal loud", "signal -200", "signal -60 -70", "vanish",
                             "vanish -5", "vanish soon", "sim", "sim eject", "sim remove now", "drop-call x",
                             "drop-call 70000", "stall now", "register 1", "reset hard", "status all",
                             "deliver-sms xyz"}) {
        std::string answer = cmd(line);
        EXPECT_EQ(answer.rfind("error: ", 0), 0u) << "'" << line << "' answered " << answer;
    }
    EXPECT_EQ(cmd("status"), before);
}

// ------------------------------------------------------------- calls --

TEST_F(Testbed, DropCallEndsEveryCallAndTellsEachOwnerWithANetworkReason) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t a = c.clientId(ZOVQMI_SERVICE_WDS), b = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    connect(c, a, 4);
    connect(c, b, 6);
    EXPECT_EQ(cmd("drop-call"), "ok");
    Msg first = c.next(), second = c.next();
    ASSERT_EQ(first.client, a);
    ASSERT_EQ(second.client, b);
    for (const Msg& ind : {first, second}) {
        EXPECT_EQ(flags(ind), 0x04);
        EXPECT_EQ(item(ind, kPktSrvcStatus, 0x01), (Bytes{1, 0}));
        EXPECT_EQ(item(ind, kPktSrvcStatus, 0x10), le16(zovsim::kEndFade));
        EXPECT_EQ(item(ind, kPktSrvcStatus, 0x11), cat({le16(6), le16(36)}));
    }
    EXPECT_EQ(item(first, kPktSrvcStatus, 0x12), Bytes{4});
    EXPECT_EQ(item(second, kPktSrvcStatus, 0x12), Bytes{6});
    EXPECT_TRUE(contains(cmd("status"), "\"calls\":[]"));
    Msg status = c.ask(ZOVQMI_SERVICE_WDS, a, request(0x0022, {}));
    EXPECT_EQ(item(status, 0x0022, 0x01), Bytes{1});
}

TEST_F(Testbed, DropCallWithAReasonReportsThatReason) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    connect(c, wds);
    EXPECT_EQ(cmd("drop-call 0x1234"), "ok");
    Msg ind = c.next();
    EXPECT_EQ(item(ind, kPktSrvcStatus, 0x10), le16(0x1234));
    EXPECT_TRUE(item(ind, kPktSrvcStatus, 0x11).empty());
    EXPECT_EQ(cmd("drop-call"), "ok");  // nothing left to end
    EXPECT_TRUE(c.next(100).bytes.empty());
}

TEST_F(Testbed, ADualStackConnectionIsTwoCallsOnTwoClientsWithTheirOwnSettings) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t v4 = c.clientId(ZOVQMI_SERVICE_WDS), v6 = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    uint8_t buf[64];
    c.send(ZOVQMI_SERVICE_WDS, v6, buf, zovQMIWDSSetClientIPFamilyPrefReq(buf, sizeof buf, 6));
    Msg m = c.next();
    QmiResult r{};
    ASSERT_GE(zovQMIWDSSetClientIPFamilyPrefResp(m.data(), m.len(), &r), 0);
    EXPECT_EQ(res(r), (Res{0, 0}));

    Msg started = start(c, v4, 4);
    ASSERT_EQ(resultOf(started, 0x0020), kOk);
    Msg ind = c.next();
    uint8_t family = 0;
    EXPECT_EQ(zovQMIWDSPktSrvcStatusINDGetIPFamily(ind.data(), ind.len(), &family), 1);
    EXPECT_EQ(family, 4);
    started = start(c, v6);  // the client's preference decides
    ASSERT_EQ(resultOf(started, 0x0020), kOk);
    ind = c.next();
    EXPECT_EQ(ind.client, v6);
    EXPECT_EQ(zovQMIWDSPktSrvcStatusINDGetIPFamily(ind.data(), ind.len(), &family), 1);
    EXPECT_EQ(family, 6);

    Msg s4 = c.ask(ZOVQMI_SERVICE_WDS, v4, request(0x002D, {}));
    ASSERT_EQ(resultOf(s4, 0x002D), kOk);
    EXPECT_EQ(item(s4, 0x002D, 0x1E), le32(0x0A400102));  // 10.64.1.2
    EXPECT_EQ(item(s4, 0x002D, 0x20), le32(0x0A400101));  // gateway 10.64.1.1
    EXPECT_EQ(item(s4, 0x002D, 0x21), le32(0xFFFFFFFC));
    EXPECT_EQ(item(s4, 0x002D, 0x29), le32(1500));
    EXPECT_EQ(item(s4, 0x002D, 0x2B), Bytes{4});
    EXPECT_TRUE(item(s4, 0x002D, 0x25).empty());

    Msg s6 = c.ask(ZOVQMI_SERVICE_WDS, v6, request(0x002D, {}));
    ASSERT_EQ(resultOf(s6, 0x002D), kOk);
    uint8_t address[16], prefix = 0;
    ASSERT_EQ(zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(s6.data(), s6.len(), address, &prefix), 17);
    EXPECT_EQ(Bytes(address, address + 16),
              (Bytes{0x20, 0x01, 0x0d, 0xb8, 0, 0x64, 0, 1, 0, 0, 0, 0, 0, 0, 0, 2}));  // 2001:db8:64:1::2
    EXPECT_EQ(prefix, 64);
    EXPECT_EQ(item(s6, 0x002D, 0x26),
              (Bytes{0x20, 0x01, 0x0d, 0xb8, 0, 0x64, 0, 1, 0, 0, 0, 0, 0, 0, 0, 1, 64}));
    EXPECT_EQ(item(s6, 0x002D, 0x27).size(), 16u);
    EXPECT_EQ(item(s6, 0x002D, 0x28).size(), 16u);
    EXPECT_EQ(item(s6, 0x002D, 0x29), le32(1500));
    EXPECT_EQ(item(s6, 0x002D, 0x2B), Bytes{6});
    EXPECT_TRUE(item(s6, 0x002D, 0x1E).empty());

    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"family\":4")) << s;
    EXPECT_TRUE(contains(s, "\"family\":6")) << s;
}

TEST_F(Testbed, UnspecifiedFamilyIsAnIPv4CallAndOtherFamiliesAreRefused) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    EXPECT_EQ(resultOf(start(c, wds, 5), 0x0020).first, 1);
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x004D, {tlv(0x01, {5})}));
    EXPECT_EQ(resultOf(m, 0x004D), std::make_pair(1, int(zovsim::kErrInvalidArgument)));
    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x004D, {tlv(0x01, {8})}));
    EXPECT_EQ(resultOf(m, 0x004D), kOk);
    connect(c, wds);
    Msg s = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x002D, {}));
    EXPECT_EQ(item(s, 0x002D, 0x2B), Bytes{4});
}

TEST_F(Testbed, ASecondCallOfTheSameFamilyGetsTheNextAddressOfThePlan) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t a = c.clientId(ZOVQMI_SERVICE_WDS), b = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    connect(c, a, 4);
    connect(c, b, 4);
    Msg s = c.ask(ZOVQMI_SERVICE_WDS, b, request(0x002D, {}));
    EXPECT_EQ(item(s, 0x002D, 0x1E), le32(0x0A400202));  // 10.64.2.2
    EXPECT_EQ(item(s, 0x002D, 0x20), le32(0x0A400201));
}

TEST_F(Testbed, ACallBelongsToItsClientReleasingItEndsOnlyThatCall) {
    Conn owner(server), other(server);
    uint8_t dms = owner.clientId(ZOVQMI_SERVICE_DMS);
    unlock(owner, dms);
    uint8_t mine = owner.clientId(ZOVQMI_SERVICE_WDS);
    uint8_t theirs = other.clientId(ZOVQMI_SERVICE_WDS);
    Bytes handle = connect(owner, mine);
    connect(other, theirs);
    // Another client cannot stop the call, and hears nothing of it.
    Msg m = other.ask(ZOVQMI_SERVICE_WDS, theirs, request(0x0021, {tlv(0x01, handle)}));
    EXPECT_EQ(resultOf(m, 0x0021), std::make_pair(1, int(zovsim::kErrInvalidHandle)));
    EXPECT_TRUE(other.next(100).bytes.empty());

    uint8_t buf[64];
    owner.send(0, 0, buf, zovQMICTLReleaseClientIDReq(buf, sizeof buf, ZOVQMI_SERVICE_WDS, mine));
    owner.next();
    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"calls\":[{\"client\":" + std::to_string(theirs) + ",")) << s;
    EXPECT_FALSE(contains(s, "},{")) << s;  // one call left
    EXPECT_TRUE(other.next(100).bytes.empty());
    // The packet service status of a call goes to its owner only.
    EXPECT_EQ(cmd("drop-call"), "ok");
    Msg ind = other.next();
    EXPECT_EQ(ind.client, theirs);
    EXPECT_EQ(item(ind, kPktSrvcStatus, 0x01), (Bytes{1, 0}));
    EXPECT_TRUE(owner.next(100).bytes.empty());
}

// ------------------------------------------------------- registration --

TEST_F(Testbed, DeregisterTellsRegisteredClientsEndsCallsAndRefusesNewOnesUntilRegister) {
    Conn c(server), quiet(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    uint8_t nas = c.clientId(ZOVQMI_SERVICE_NAS);
    quiet.clientId(ZOVQMI_SERVICE_NAS);  // never asks for serving system indications
    unlock(c, dms);
    uint8_t buf[64];
    int n = zovQMINASIndicationRegisterReq(buf, sizeof buf);
    n = zovQMINASIndicationRegisterReqAddServingSystemEvents(buf, sizeof buf, 1);
    c.send(ZOVQMI_SERVICE_NAS, nas, buf, n);
    ASSERT_EQ(resultOf(c.next(), 0x0003), kOk);
    connect(c, wds);

    EXPECT_EQ(cmd("deregister"), "ok");
    Msg serving = c.next();
    EXPECT_EQ(serving.service, ZOVQMI_SERVICE_NAS);
    NASServingSystem ss{};
    ASSERT_GT(zovQMINASGetServingSystemIND(serving.data(), serving.len(), &ss), 0);
    EXPECT_EQ(item(serving, kServingSystem, 0x01)[0], 2);  // searching
    Msg ended = c.next();
    EXPECT_EQ(item(ended, kPktSrvcStatus, 0x01), (Bytes{1, 0}));
    EXPECT_EQ(item(ended, kPktSrvcStatus, 0x10), le16(zovsim::kEndNoService));
    EXPECT_TRUE(quiet.next(100).bytes.empty());
    EXPECT_TRUE(contains(cmd("status"), "\"registered\":false"));

    Msg m = start(c, wds);
    EXPECT_EQ(resultOf(m, 0x0020), std::make_pair(1, int(zovsim::kErrCallFailed)));
    EXPECT_EQ(item(m, 0x0020, 0x10), le16(zovsim::kEndNoService));
    m = c.ask(ZOVQMI_SERVICE_NAS, nas, request(0x0024, {}));
    EXPECT_EQ(item(m, kServingSystem, 0x01), (Bytes{2, 2, 2, 2, 0}));

    EXPECT_EQ(cmd("register"), "ok");
    serving = c.next();
    EXPECT_EQ(item(serving, kServingSystem, 0x01), (Bytes{1, 1, 1, 2, 1, 8}));
    EXPECT_TRUE(contains(cmd("status"), "\"registered\":true"));
    connect(c, wds);
}

TEST_F(Testbed, SignalSetsTheReportedLevelAndTellsClientsThatAskedForIt) {
    Conn c(server);
    uint8_t nas = c.clientId(ZOVQMI_SERVICE_NAS);
    uint8_t buf[64];
    int n = zovQMINASSetEventReportReq(buf, sizeof buf);
    const uint8_t thresholds[] = {uint8_t(-100), uint8_t(-80)};
    n = zovQMINASSetEventReportReqAddSignalStrengthIndicator(buf, sizeof buf, 1, 2, thresholds);
    c.send(ZOVQMI_SERVICE_NAS, nas, buf, n);
    ASSERT_EQ(resultOf(c.next(), 0x0002), kOk);

    EXPECT_EQ(cmd("signal -95"), "ok");
    Msg ind = c.next();
    uint8_t strength = 0, radio = 0;
    ASSERT_EQ(zovQMINASEventReportINDGetSignalStrength(ind.data(), ind.len(), &strength, &radio), 2);
    EXPECT_EQ(int8_t(strength), -95);
    EXPECT_EQ(radio, 8);
    Msg m = c.ask(ZOVQMI_SERVICE_NAS, nas, request(0x0020, {}));
    EXPECT_EQ(item(m, 0x0020, 0x01), (Bytes{uint8_t(-95), 8}));
    EXPECT_TRUE(contains(cmd("status"), "\"signal_dbm\":-95"));
}

// -------------------------------------------------------------- stall --

TEST_F(Testbed, AStalledModemAnswersNothingAndUnstallAnswersOnlyNewRequests) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    EXPECT_EQ(cmd("stall"), "ok");
    EXPECT_TRUE(contains(cmd("status"), "\"stalled\":true"));
    c.send(ZOVQMI_SERVICE_DMS, dms, request(0x002D, {}));
    c.send(0, 0, ctlMessage(0x0022, {tlv(0x01, {ZOVQMI_SERVICE_NAS})}, 7, 0x00));
    EXPECT_TRUE(c.next(200).bytes.empty());
    EXPECT_EQ(cmd("unstall"), "ok");
    EXPECT_TRUE(c.next(100).bytes.empty());  // what was sent meanwhile stays unanswered
    Msg m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x002D, {}));
    EXPECT_EQ(resultOf(m, 0x002D), kOk);
    EXPECT_TRUE(contains(cmd("status"), "\"nas\":[]"));
}

// -------------------------------------------------------------- reset --

TEST_F(Testbed, AfterResetEveryClientIdIsInvalidAndCallsAreGone) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    connect(c, wds);
    EXPECT_EQ(cmd("reset"), "ok");
    Msg sync = c.next();
    EXPECT_EQ(sync.service, 0);
    EXPECT_EQ(zovQMICTLSyncIND(sync.data(), sync.len()), 0);

    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0022, {}));
    EXPECT_EQ(m.client, wds);
    EXPECT_EQ(resultOf(m, 0x0022), std::make_pair(1, int(zovsim::kErrInvalidClientId)));
    Msg invalid = c.next();
    uint8_t service = 0, client = 0;
    ASSERT_GE(zovQMICTLInvalidClientIDIND(invalid.data(), invalid.len(), &service, &client), 0);
    EXPECT_EQ(service, ZOVQMI_SERVICE_WDS);
    EXPECT_EQ(client, wds);

    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"clients\":{\"wds\":[],\"dms\":[],")) << s;
    EXPECT_TRUE(contains(s, "\"calls\":[]")) << s;
    EXPECT_TRUE(contains(s, "\"pin1\":\"enabled-not-verified\"")) << s;
    // New client ids work at once.
    uint8_t again = c.clientId(ZOVQMI_SERVICE_DMS);
    EXPECT_EQ(resultOf(c.ask(ZOVQMI_SERVICE_DMS, again, request(0x002D, {})), 0x002D), kOk);
}

// ---------------------------------------------------------------- SIM --

TEST_F(Testbed, SimRemoveAndInsertChangeTheUimStateThePinAndWhatFollows) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    Msg m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0001, {tlv(0x12, {1}), tlv(0x15, {1})}));
    ASSERT_EQ(resultOf(m, 0x0001), kOk);
    connect(c, wds);

    EXPECT_EQ(cmd("sim remove"), "ok");
    Msg uim = c.next();
    uint8_t state = 0xEE;
    ASSERT_EQ(zovQMIDMSEventReportINDGetUIMState(uim.data(), uim.len(), &state), 1);
    EXPECT_EQ(state, 2);  // not present
    Msg ended = c.next();
    EXPECT_EQ(item(ended, kPktSrvcStatus, 0x10), le16(zovsim::kEndNoService));
    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"registered\":false,")) << s;
    EXPECT_TRUE(contains(s, "\"sim\":\"absent\",\"pin1\":\"unknown\"")) << s;

    m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x002B, {}));
    EXPECT_EQ(resultOf(m, 0x002B), std::make_pair(1, int(zovsim::kErrDeviceNotReady)));
    m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0044, {}));
    EXPECT_EQ(item(m, 0x0044, 0x01), Bytes{2});
    m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0028, {tlv(0x01, {1, 4, '1', '2', '3', '4'})}));
    EXPECT_EQ(resultOf(m, 0x0028), std::make_pair(1, int(zovsim::kErrDeviceNotReady)));
    EXPECT_EQ(resultOf(start(c, wds), 0x0020).first, 1);

    EXPECT_EQ(cmd("sim insert"), "ok");
    uim = c.next();
    ASSERT_EQ(zovQMIDMSEventReportINDGetUIMState(uim.data(), uim.len(), &state), 1);
    EXPECT_EQ(state, 0);
    Msg pin = c.next();
    uint8_t status = 0, left = 0, unblock = 0;
    ASSERT_EQ(zovQMIDMSEventReportINDGetPIN1Status(pin.data(), pin.len(), &status, &left, &unblock), 3);
    EXPECT_EQ(status, 1);  // enabled, not verified
    EXPECT_TRUE(contains(cmd("status"), "\"sim\":\"present\",\"pin1\":\"enabled-not-verified\""));
    EXPECT_EQ(resultOf(start(c, wds), 0x0020).first, 1);  // the PIN first
    unlock(c, dms);
    c.next();  // the PIN1 status indication
    connect(c, wds);
}

// ------------------------------------------------------------- vanish --

TEST_F(Testbed, VanishOnTheSocketTransportEndsEveryConnectionAndBootsAFreshModem) {
    Conn c(server);
    c.clientId(ZOVQMI_SERVICE_DMS);
    EXPECT_EQ(cmd("vanish 0"), "ok");
    uint8_t buf[64];
    pollfd p{c.fd(), POLLIN, 0};
    ASSERT_EQ(poll(&p, 1, 2000), 1);
    EXPECT_EQ(read(c.fd(), buf, sizeof buf), 0);
    EXPECT_TRUE(contains(cmd("status"), "\"dms\":[]"));
    Conn fresh(server);
    EXPECT_EQ(fresh.clientId(ZOVQMI_SERVICE_DMS), 1);
}

// ------------------------------------------------ CTL power-save mode --

TEST_F(Testbed, AChangeOfThePowerSaveModeIsReportedToConnectionsThatAskedForIt) {
    Conn asked(server), quiet(server);
    uint8_t buf[64];
    asked.send(0, 0, buf, zovQMICTLRegPwrSaveModeReq(buf, sizeof buf, 1));
    ASSERT_EQ(rd16(asked.next().data() + 2), 0x0028);
    quiet.send(0, 0, buf, zovQMICTLSetPwrSaveModeReq(buf, sizeof buf, 2));
    Msg m = quiet.next();
    QmiResult r{};
    ASSERT_GE(zovQMICTLSetPwrSaveModeResp(m.data(), m.len(), &r), 0);
    EXPECT_EQ(res(r), (Res{0, 0}));
    Msg ind = asked.next();
    uint32_t before = 9, after = 9;
    ASSERT_EQ(zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(ind.data(), ind.len(), &before, &after), 8);
    EXPECT_EQ(before, 0u);
    EXPECT_EQ(after, 2u);
    EXPECT_TRUE(quiet.next(100).bytes.empty());
}

// -------------------------------------------------------- SMS arrival --

TEST_F(Testbed, DeliverSmsStoresTheMessageAndAnnouncesIt) {
    Conn c(server);
    uint8_t wms = c.clientId(ZOVQMI_SERVICE_WMS);
    Msg m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0001, {tlv(0x10, {1})}));
    ASSERT_EQ(resultOf(m, 0x0001), kOk);
    EXPECT_EQ(cmd("deliver-sms 0791448720003023"), "ok");
    Msg ind = c.next();
    EXPECT_EQ(ind.service, ZOVQMI_SERVICE_WMS);
    EXPECT_EQ(item(ind, 0x0001, 0x10).size(), 5u);
}

// ------------------------------------------------------ control socket --

TEST_F(Testbed, TheControlSocketAnswersSeveralControllersAtOnceLineByLine) {
    char dir[] = "/tmp/zovqmi-ctl-XXXXXX";
    ASSERT_NE(mkdtemp(dir), nullptr);
    std::string path = std::string(dir) + "/control";
    zovsim::ControlServer ctl(control);
    ASSERT_EQ(ctl.start(path), "");
    auto open = [&]() {
        int fd = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un addr{};
        addr.sun_family = AF_UNIX;
        std::snprintf(addr.sun_path, sizeof addr.sun_path, "%s", path.c_str());
        EXPECT_EQ(::connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr), 0);
        return fd;
    };
    // Reads whole lines until `count` have arrived (bounded).
    auto lines = [](int fd, int count) {
        std::string got;
        for (int i = 0; i < 50 && std::count(got.begin(), got.end(), '\n') < count; ++i) {
            pollfd p{fd, POLLIN, 0};
            if (poll(&p, 1, 100) != 1) continue;
            char buf[4096];
            ssize_t n = read(fd, buf, sizeof buf);
            if (n <= 0) break;
            got.append(buf, size_t(n));
        }
        return got;
    };
    int a = open(), b = open();
    std::string both = "signal -71\nstatus\n";
    ASSERT_EQ(write(a, both.data(), both.size()), ssize_t(both.size()));
    ASSERT_EQ(write(b, "bogus\r\n", 7), 7);
    std::string fromA = lines(a, 2), fromB = lines(b, 1);
    EXPECT_EQ(fromA.substr(0, 3), "ok\n");
    EXPECT_TRUE(contains(fromA, "\n{\"registered\":true,\"stalled\":false,\"signal_dbm\":-71,")) << fromA;
    EXPECT_EQ(fromA.back(), '\n');
    EXPECT_EQ(fromB, "error: unknown command bogus\n");
    close(a);
    close(b);
    ctl.stop();
    EXPECT_NE(access(path.c_str(), F_OK), 0);  // the socket is removed
    rmdir(dir);
}

// ---------------------------------------------------------- data path --

uint16_t onesSum(const Bytes& b, size_t from, size_t to, uint32_t sum = 0) {
    for (size_t i = from; i + 1 < to; i += 2) sum += uint32_t(b[i] << 8 | b[i + 1]);
    if ((to - from) & 1) sum += uint32_t(b[to - 1] << 8);
    while (sum >> 16) sum = (sum & 0xFFFF) + (sum >> 16);
    return uint16_t(sum);
}

// An IPv4 echo request (ICMP type 8) from `src` to `dst` with 8 payload bytes.
Bytes ping4(uint32_t src, uint32_t dst) {
    Bytes p = {0x45, 0, 0, 36, 0x12, 0x34, 0x40, 0, 64, 1, 0, 0};
    for (uint32_t a : {src, dst})
        for (int s = 24; s >= 0; s -= 8) p.push_back(uint8_t(a >> s));
    Bytes icmp = {8, 0, 0, 0, 0x00, 0x07, 0x00, 0x01, 'z', 'o', 'v', 's', 'i', 'm', '!', '!'};
    p.insert(p.end(), icmp.begin(), icmp.end());
    uint16_t h = uint16_t(~onesSum(p, 0, 20));
    p[10] = uint8_t(h >> 8), p[11] = uint8_t(h);
    uint16_t c = uint16_t(~onesSum(p, 20, p.size()));
    p[22] = uint8_t(c >> 8), p[23] = uint8_t(c);
    return p;
}

// An ICMPv6 echo request (type 128) between two addresses.
Bytes ping6(const Bytes& src, const Bytes& dst) {
    Bytes p = {0x60, 0, 0, 0, 0, 12, 58, 64};
    p.insert(p.end(), src.begin(), src.end());
    p.insert(p.end(), dst.begin(), dst.end());
    Bytes icmp = {128, 0, 0, 0, 0x00, 0x09, 0x00, 0x01, 'p', 'i', 'n', 'g'};
    p.insert(p.end(), icmp.begin(), icmp.end());
    return p;  // the modem does not check the request's checksum
}

Bytes v6(uint8_t slot, uint8_t host) { return {0x20, 0x01, 0x0d, 0xb8, 0, 0x64, 0, slot, 0, 0, 0, 0, 0, 0, 0, host}; }

TEST_F(Testbed, TheDataPathAnswersEchoRequestsFromACallsAddressAndDropsTheRest) {
    Bytes request4 = ping4(0x0A400102, 0x08080808);
    EXPECT_TRUE(modem.dataPacket(request4.data(), request4.size()).empty());  // no call yet

    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t a = c.clientId(ZOVQMI_SERVICE_WDS), b = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    connect(c, a, 4);
    connect(c, b, 6);

    Bytes reply = modem.dataPacket(request4.data(), request4.size());
    ASSERT_EQ(reply.size(), request4.size());
    EXPECT_EQ(Bytes(reply.begin() + 12, reply.begin() + 16), (Bytes{8, 8, 8, 8}));
    EXPECT_EQ(Bytes(reply.begin() + 16, reply.begin() + 20), (Bytes{10, 64, 1, 2}));
    EXPECT_EQ(reply[20], 0);                                // echo reply
    EXPECT_EQ(onesSum(reply, 0, 20), 0xFFFF);               // header checksum
    EXPECT_EQ(onesSum(reply, 20, reply.size()), 0xFFFF);    // ICMP checksum
    EXPECT_EQ(Bytes(reply.begin() + 24, reply.end()), Bytes(request4.begin() + 24, request4.end()));

    Bytes request6 = ping6(v6(1, 2), v6(1, 1));
    reply = modem.dataPacket(request6.data(), request6.size());
    ASSERT_EQ(reply.size(), request6.size());
    EXPECT_EQ(Bytes(reply.begin() + 8, reply.begin() + 24), v6(1, 1));
    EXPECT_EQ(Bytes(reply.begin() + 24, reply.begin() + 40), v6(1, 2));
    EXPECT_EQ(reply[40], 129);
    // Pseudo-header sum: addresses, length, next header; then the message.
    uint32_t pseudo = onesSum(reply, 8, 40) + 12 + 58;
    EXPECT_EQ(onesSum(reply, 40, reply.size(), pseudo), 0xFFFF);

    Bytes stranger = ping4(0x0A090909, 0x0A400101);
    EXPECT_TRUE(modem.dataPacket(stranger.data(), stranger.size()).empty());
    Bytes wrongPrefix = ping6(v6(2, 2), v6(1, 1));
    EXPECT_TRUE(modem.dataPacket(wrongPrefix.data(), wrongPrefix.size()).empty());
    Bytes garbage = {0x45, 0, 0};
    EXPECT_TRUE(modem.dataPacket(garbage.data(), garbage.size()).empty());

    uint8_t buf[64];
    c.send(ZOVQMI_SERVICE_WDS, a, buf, zovQMIWDSGetPktStatisticsReq(buf, sizeof buf, 0xFF));
    Msg m = c.next();
    QmiResult r{};
    ASSERT_GE(zovQMIWDSGetPktStatisticsResp(m.data(), m.len(), &r), 0);
    uint32_t tx = 0, rx = 0, dropped = 0;
    uint64_t txBytes = 0, rxBytes = 0;
    ASSERT_EQ(zovQMIWDSGetPktStatisticsRespGetTxPacketsOK(m.data(), m.len(), &tx), 4);
    ASSERT_EQ(zovQMIWDSGetPktStatisticsRespGetRxPacketsOK(m.data(), m.len(), &rx), 4);
    ASSERT_EQ(zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors(m.data(), m.len(), &dropped), 4);
    ASSERT_EQ(zovQMIWDSGetPktStatisticsRespGetTxBytesOK(m.data(), m.len(), &txBytes), 8);
    ASSERT_EQ(zovQMIWDSGetPktStatisticsRespGetRxBytesOK(m.data(), m.len(), &rxBytes), 8);
    EXPECT_EQ(tx, 2u);
    EXPECT_EQ(rx, 2u);
    EXPECT_EQ(dropped, 4u);
    EXPECT_EQ(txBytes, request4.size() + request6.size());
    EXPECT_EQ(rxBytes, request4.size() + request6.size());
    std::string s = cmd("status");
    EXPECT_TRUE(contains(s, "\"tx_packets\":2,\"rx_packets\":2,\"dropped_packets\":4")) << s;
}

TEST_F(Testbed, TransferStatisticsAreReportedEveryPeriodToTheCallsOwner) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS), wds = c.clientId(ZOVQMI_SERVICE_WDS);
    unlock(c, dms);
    uint8_t buf[64];
    int n = zovQMIWDSSetEventReportReq(buf, sizeof buf);
    n = zovQMIWDSSetEventReportReqAddTransferStatisticsIndicator(buf, sizeof buf, 1, 0xC3);
    c.send(ZOVQMI_SERVICE_WDS, wds, buf, n);
    ASSERT_EQ(resultOf(c.next(), 0x0001), kOk);
    connect(c, wds);
    Bytes request4 = ping4(0x0A400102, 0x0A400101);
    ASSERT_FALSE(modem.dataPacket(request4.data(), request4.size()).empty());

    EXPECT_TRUE(modem.tick().empty());  // the period has not passed
    std::vector<zovsim::Frame> frames;
    for (int i = 0; i < 30 && frames.empty(); ++i) {
        usleep(100000);
        frames = modem.tick();
    }
    ASSERT_EQ(frames.size(), 1u);
    server.deliver(frames);
    Msg ind = c.next();
    EXPECT_EQ(ind.client, wds);
    uint32_t tx = 0, rx = 0;
    uint64_t rxBytes = 0;
    ASSERT_EQ(zovQMIWDSEventReportINDGetTxPacketsOK(ind.data(), ind.len(), &tx), 4);
    ASSERT_EQ(zovQMIWDSEventReportINDGetRxPacketsOK(ind.data(), ind.len(), &rx), 4);
    ASSERT_EQ(zovQMIWDSEventReportINDGetRxBytesOK(ind.data(), ind.len(), &rxBytes), 8);
    EXPECT_EQ(tx, 1u);
    EXPECT_EQ(rx, 1u);
    EXPECT_EQ(rxBytes, request4.size());
    uint32_t errors = 0;
    EXPECT_EQ(zovQMIWDSEventReportINDGetTxPacketsErrors(ind.data(), ind.len(), &errors), ZOVQMI_ERR_NO_TLV);
}

}  // namespace
