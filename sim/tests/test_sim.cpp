// The simulated modem, driven through the in-process socket transport with
// the library's own device, framing and service functions.
#include <atomic>
#include <string>
#include <thread>

#include "simutil.h"

using namespace simtest;

namespace {

// ---------------------------------------------------------------- CTL --

TEST_F(Sim, ClientIdsAreAllocatedPerServiceAndReleased) {
    Conn c(server);
    uint8_t a = c.clientId(ZOVQMI_SERVICE_WDS), b = c.clientId(ZOVQMI_SERVICE_WDS);
    uint8_t d = c.clientId(ZOVQMI_SERVICE_DMS);
    EXPECT_NE(a, b);
    EXPECT_EQ(d, 1);
    EXPECT_EQ(modem.clientCount(ZOVQMI_SERVICE_WDS), 2u);

    uint8_t buf[64];
    int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, ZOVQMI_SERVICE_WDS, a);
    c.send(0, 0, buf, n);
    Msg m = c.next();
    QmiResult r{};
    uint8_t svc = 0, cid = 0;
    ASSERT_GT(zovQMICTLReleaseClientIDResp(m.data(), m.len(), &r, &svc, &cid), 0);
    EXPECT_EQ(res(r), (Res{0, 0}));
    EXPECT_EQ(cid, a);
    EXPECT_EQ(modem.clientCount(ZOVQMI_SERVICE_WDS), 1u);
    // The released id is handed out again.
    EXPECT_EQ(c.clientId(ZOVQMI_SERVICE_WDS), a);
}

TEST_F(Sim, ReleasingAnUnknownClientIdIsAnError) {
    Conn c(server);
    uint8_t buf[64];
    int n = zovQMICTLReleaseClientIDReq(buf, sizeof buf, ZOVQMI_SERVICE_NAS, 77);
    c.send(0, 0, buf, n);
    Msg m = c.next();
    QmiResult r{};
    uint8_t svc = 0, cid = 0;
    EXPECT_EQ(zovQMICTLReleaseClientIDResp(m.data(), m.len(), &r, &svc, &cid), ZOVQMI_ERR_NO_MANDATORY);
    EXPECT_EQ(rd16(&r.result), 1);
    EXPECT_EQ(rd16(&r.error), zovsim::kErrInvalidClientId);
}

TEST_F(Sim, ClientIdForAServiceTheModemLacksIsRefused) {
    Conn c(server);
    uint8_t buf[64];
    int n = zovQMICTLGetClientIDReq(buf, sizeof buf, 0x42);
    c.send(0, 0, buf, n);
    Msg m = c.next();
    QmiResult r{};
    uint8_t svc = 0, cid = 0;
    EXPECT_EQ(zovQMICTLGetClientIDResp(m.data(), m.len(), &r, &svc, &cid), ZOVQMI_ERR_NO_MANDATORY);
    EXPECT_EQ(rd16(&r.error), zovsim::kErrInvalidServiceType);
}

TEST_F(Sim, ControlResponsesEchoTheTransactionIdAndCarryTheVersionList) {
    Conn c(server);
    uint8_t buf[64];
    int n = zovQMICTLGetVersionInfoReq(buf, sizeof buf);
    c.send(0, 0, buf, n);
    Msg m = c.next();
    ASSERT_GE(m.len(), 6);
    EXPECT_EQ(m.bytes[0], 0x01);
    EXPECT_EQ(m.bytes[1], buf[1]);
    QmiResult r{};
    uint8_t count = 0;
    CTLVersionEntry list[16];
    ASSERT_GT(zovQMICTLGetVersionInfoResp(m.data(), m.len(), &r, &count, list), 0);
    EXPECT_EQ(count, 8);
    EXPECT_EQ(list[1].serviceType, ZOVQMI_SERVICE_WDS);
}

TEST_F(Sim, ClosingAConnectionReleasesItsClientIds) {
    {
        Conn c(server);
        c.clientId(ZOVQMI_SERVICE_PBM);
        c.clientId(ZOVQMI_SERVICE_PBM);
        EXPECT_EQ(modem.clientCount(ZOVQMI_SERVICE_PBM), 2u);
    }
    for (int i = 0; i < 200 && modem.clientCount(ZOVQMI_SERVICE_PBM); ++i) usleep(5000);
    EXPECT_EQ(modem.clientCount(ZOVQMI_SERVICE_PBM), 0u);
}

// ------------------------------------------------- errors, never silence --

TEST_F(Sim, UnknownRequestGetsInvalidQmiCommand) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    Msg m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x5555, {}));
    EXPECT_EQ(flags(m), 0x02);
    EXPECT_EQ(resultOf(m, 0x5555), std::make_pair(1, int(zovsim::kErrInvalidQmiCommand)));
    Msg ctl = c.ask(0, 0, ctlMessage(0x00EE, {}, 9, 0x00));
    ASSERT_GE(ctl.len(), 6);
    EXPECT_EQ(ctl.bytes[1], 9);
    EXPECT_EQ(rd16(ctl.data() + 2), 0x00EE);
    uint16_t vl = 0;
    const uint8_t* v = zovQMIMSMGetTLV(ctl.data() + 6, ctl.len() - 6, 0x02, &vl);
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(rd16(v), 1);
    EXPECT_EQ(rd16(v + 2), zovsim::kErrInvalidQmiCommand);
}

TEST_F(Sim, RequestOnAClientIdThatWasNeverAllocatedIsRefused) {
    Conn c(server);
    Msg m = c.ask(ZOVQMI_SERVICE_DMS, 9, request(0x0021, {}));
    EXPECT_EQ(resultOf(m, 0x0021), std::make_pair(1, int(zovsim::kErrInvalidClientId)));
}

TEST_F(Sim, MalformedRequestsGetMalformedMessage) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    // An item whose length runs past the TLV area.
    Bytes runs = cat({{0x00, 0x01, 0x00}, le16(0x0028), le16(5), {0x01}, le16(9), {1, 4}});
    EXPECT_EQ(resultOf(c.ask(ZOVQMI_SERVICE_DMS, dms, runs), 0x0028),
              std::make_pair(1, int(zovsim::kErrMalformedMessage)));
    // A PIN length longer than its item.
    Msg pin = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0028, {tlv(0x01, {1, 9, '1', '2'})}));
    EXPECT_EQ(resultOf(pin, 0x0028), std::make_pair(1, int(zovsim::kErrMalformedMessage)));
    // A TLV-area length that disagrees with the frame.
    Bytes area = cat({{0x00, 0x02, 0x00}, le16(0x0021), le16(40)});
    EXPECT_EQ(resultOf(c.ask(ZOVQMI_SERVICE_DMS, dms, area), 0x0021),
              std::make_pair(1, int(zovsim::kErrMalformedMessage)));
    // A mandatory item missing.
    Msg missing = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x0028, {}));
    EXPECT_EQ(resultOf(missing, 0x0028), std::make_pair(1, int(zovsim::kErrMissingArgument)));
}

TEST_F(Sim, FramesWithABrokenQmuxHeaderAreAnswered) {
    Conn c(server);
    uint8_t frame[] = {0x01, 0x40, 0x00, 0x00, 0x00, 0x00, 0x00, 0x07, 0x22, 0x00, 0x00, 0x00};
    ASSERT_EQ(write(c.fd(), frame, sizeof frame), ssize_t(sizeof frame));
    Msg m = c.next();
    ASSERT_GE(m.len(), 6);
    EXPECT_EQ(rd16(m.data() + 2), 0x0022);
    uint8_t tiny[] = {0x01, 0x02};
    ASSERT_EQ(write(c.fd(), tiny, sizeof tiny), ssize_t(sizeof tiny));
    uint8_t buf[4096];
    pollfd p{c.fd(), POLLIN, 0};
    ASSERT_EQ(poll(&p, 1, 2000), 1);
    ssize_t n = read(c.fd(), buf, sizeof buf);
    EXPECT_GT(n, 6);
}

TEST(SimSilent, AMessageListedAsSilentIsNeverAnswered) {
    zovsim::Options o;
    o.silent.insert({ZOVQMI_SERVICE_DMS, 0x0021});
    zovsim::Modem modem(o);
    zovsim::SocketServer server(modem);
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t buf[64];
    int n = zovQMIDMSGetDeviceMfrReq(buf, sizeof buf);
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, n);
    EXPECT_TRUE(c.next(200).bytes.empty());
    n = zovQMIDMSGetDeviceModelIDReq(buf, sizeof buf);
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, n);
    EXPECT_FALSE(c.next().bytes.empty());
}

// ---------------------------------------------------------------- DMS --

TEST_F(Sim, IdentityStringsAndSerialNumbers) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t buf[64];
    char text[256];
    uint16_t len = 0;
    QmiResult r{};
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSGetDeviceMfrReq(buf, sizeof buf));
    Msg m = c.next();
    ASSERT_GT(zovQMIDMSGetDeviceMfrResp(m.data(), m.len(), &r, &len, text), 0);
    EXPECT_EQ(std::string(text, len), "Zov Simulated Modems");
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSGetDeviceModelIDReq(buf, sizeof buf));
    m = c.next();
    ASSERT_GT(zovQMIDMSGetDeviceModelIDResp(m.data(), m.len(), &r, &len, text), 0);
    EXPECT_EQ(std::string(text, len), "ZQ-SIM 100");
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSGetDeviceSerialNumbersReq(buf, sizeof buf));
    m = c.next();
    ASSERT_GT(zovQMIDMSGetDeviceSerialNumbersResp(m.data(), m.len(), &r), 0);
    ASSERT_EQ(zovQMIDMSGetDeviceSerialNumbersRespGetIMEI(m.data(), m.len(), &len, text), 15);
    EXPECT_EQ(std::string(text, len), "356938035643809");
    EXPECT_GT(zovQMIDMSGetDeviceSerialNumbersRespGetMEID(m.data(), m.len(), &len, text), 0);
}

TEST_F(Sim, OperatingModeIsKeptAndReported) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    uint8_t buf[64];
    int n = zovQMIDMSSetEventReportReq(buf, sizeof buf);
    n = zovQMIDMSSetEventReportReqAddOperatingModeReporting(buf, sizeof buf, 1);
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, n);
    c.next();
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSSetOperatingModeReq(buf, sizeof buf, 1));
    QmiResult r{};
    Msg m = c.next();
    ASSERT_GT(zovQMIDMSSetOperatingModeResp(m.data(), m.len(), &r), 0);
    EXPECT_EQ(res(r), (Res{0, 0}));
    Msg ind = c.next();
    uint8_t mode = 0xFF;
    EXPECT_EQ(flags(ind), 0x04);
    ASSERT_EQ(zovQMIDMSEventReportINDGetOperatingMode(ind.data(), ind.len(), &mode), 1);
    EXPECT_EQ(mode, 1);
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSGetOperatingModeReq(buf, sizeof buf));
    m = c.next();
    ASSERT_GT(zovQMIDMSGetOperatingModeResp(m.data(), m.len(), &r, &mode), 0);
    EXPECT_EQ(mode, 1);
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSSetOperatingModeReq(buf, sizeof buf, 9));
    m = c.next();
    ASSERT_GT(zovQMIDMSSetOperatingModeResp(m.data(), m.len(), &r), 0);
    EXPECT_EQ(rd16(&r.error), zovsim::kErrInvalidArgument);
}

struct PinAnswer {
    int result = -1, error = -1, left = -1, unblockLeft = -1;
};
PinAnswer verify(Conn& c, uint8_t dms, const std::string& pin) {
    uint8_t buf[64];
    int n = zovQMIDMSUIMVerifyPINReq(buf, sizeof buf, 1, uint8_t(pin.size()),
                                    reinterpret_cast<const uint8_t*>(pin.data()));
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, n);
    Msg m = c.next();
    PinAnswer a;
    QmiResult r{};
    if (zovQMIDMSUIMVerifyPINResp(m.data(), m.len(), &r) < 0) return a;
    a.result = rd16(&r.result);
    a.error = rd16(&r.error);
    uint8_t v = 0, u = 0;
    if (zovQMIDMSUIMVerifyPINRespGetRetriesLeft(m.data(), m.len(), &v, &u) == 2) {
        a.left = v;
        a.unblockLeft = u;
    }
    return a;
}

TEST_F(Sim, WrongPinCountsDownAndTheRightPinRestoresTheRetries) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    PinAnswer a = verify(c, dms, "0000");
    EXPECT_EQ(a.result, 1);
    EXPECT_EQ(a.error, zovsim::kErrIncorrectPin);
    EXPECT_EQ(a.left, 2);
    a = verify(c, dms, "1111");
    EXPECT_EQ(a.left, 1);
    a = verify(c, dms, "1234");
    EXPECT_EQ(a.result, 0);
    EXPECT_EQ(a.left, 3);
    EXPECT_EQ(a.unblockLeft, 10);

    uint8_t buf[64];
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSUIMGetPINStatusReq(buf, sizeof buf));
    Msg m = c.next();
    uint8_t status = 0, v = 0, u = 0;
    ASSERT_EQ(zovQMIDMSUIMGetPINStatusRespGetPIN1Status(m.data(), m.len(), &status, &v, &u), 3);
    EXPECT_EQ(status, 2);  // enabled and verified
}

TEST_F(Sim, ThreeWrongPinsBlockAndTheUnblockKeyFreesIt) {
    Conn c(server);
    uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
    verify(c, dms, "0000");
    verify(c, dms, "0000");
    PinAnswer a = verify(c, dms, "0000");
    EXPECT_EQ(a.error, zovsim::kErrPinBlocked);
    EXPECT_EQ(a.left, 0);
    a = verify(c, dms, "1234");
    EXPECT_EQ(a.error, zovsim::kErrPinBlocked);

    uint8_t buf[64];
    const uint8_t puk[] = {'1', '2', '3', '4', '5', '6', '7', '8'}, pin[] = {'4', '3', '2', '1'};
    c.send(ZOVQMI_SERVICE_DMS, dms, buf, zovQMIDMSUIMUnblockPINReq(buf, sizeof buf, 1, 8, puk, 4, pin));
    Msg m = c.next();
    QmiResult r{};
    ASSERT_GT(zovQMIDMSUIMUnblockPINResp(m.data(), m.len(), &r), 0);
    EXPECT_EQ(res(r), (Res{0, 0}));
    EXPECT_EQ(verify(c, dms, "4321").result, 0);
}

// ---------------------------------------------------------------- WDS --

class Call : public Sim {
protected:
    void SetUp() override {
        dms = c.clientId(ZOVQMI_SERVICE_DMS);
        wds = c.clientId(ZOVQMI_SERVICE_WDS);
        ASSERT_EQ(verify(c, dms, "1234").result, 0);
    }
    Conn c{server};
    uint8_t dms = 0, wds = 0;
};

TEST_F(Call, StartReturnsAHandleAndAConnectedIndicationAndStopEndsIt) {
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {tlv(0x14, str("internet"))}));
    ASSERT_EQ(resultOf(m, 0x0020), kOk);
    Bytes handle = item(m, 0x0020, 0x01);
    ASSERT_EQ(handle.size(), 4u);
    Msg ind = c.next();
    EXPECT_EQ(flags(ind), 0x04);
    EXPECT_EQ(ind.client, wds);
    EXPECT_EQ(item(ind, 0x0022, 0x01), (Bytes{2, 0}));

    Msg status = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0022, {}));
    EXPECT_EQ(item(status, 0x0022, 0x01), Bytes{2});

    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0021, {tlv(0x01, handle)}));
    EXPECT_EQ(resultOf(m, 0x0021), kOk);
    ind = c.next();
    EXPECT_EQ(item(ind, 0x0022, 0x01), (Bytes{1, 0}));
    EXPECT_EQ(item(ind, 0x0022, 0x10), le16(2));

    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0021, {tlv(0x01, handle)}));
    EXPECT_EQ(resultOf(m, 0x0021), std::make_pair(1, int(zovsim::kErrInvalidHandle)));
}

TEST_F(Call, RuntimeSettingsReflectTheProfileAndTheApn) {
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0027, {tlv(0x01, {0}), tlv(0x10, str("work")),
                                                            tlv(0x14, str("corp.example"))}));
    ASSERT_EQ(resultOf(m, 0x0027), kOk);
    Bytes id = item(m, 0x0027, 0x01);
    ASSERT_EQ(id.size(), 2u);
    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x002D, {}));
    EXPECT_EQ(resultOf(m, 0x002D), std::make_pair(1, int(zovsim::kErrOutOfCall)));

    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {tlv(0x31, {id[1]})}));
    ASSERT_EQ(resultOf(m, 0x0020), kOk);
    c.next();
    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x002D, {}));
    ASSERT_EQ(resultOf(m, 0x002D), kOk);
    EXPECT_EQ(item(m, 0x002D, 0x14), str("corp.example"));
    EXPECT_EQ(item(m, 0x002D, 0x10), str("work"));
    EXPECT_EQ(item(m, 0x002D, 0x1F), (Bytes{0, id[1]}));
    EXPECT_EQ(item(m, 0x002D, 0x1E), le32(0x0A400102));

    m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x002A, {}));
    Bytes list = item(m, 0x002A, 0x01);
    ASSERT_FALSE(list.empty());
    EXPECT_EQ(list[0], 2);  // the default profile and the new one
}

TEST_F(Call, WrongCredentialsEndTheCallWithAReason) {
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds,
                  request(0x0020, {tlv(0x14, str("secure.example")), tlv(0x16, {1}), tlv(0x17, str("zov")),
                                   tlv(0x18, str("wrong"))}));
    EXPECT_EQ(resultOf(m, 0x0020), std::make_pair(1, int(zovsim::kErrCallFailed)));
    EXPECT_EQ(item(m, 0x0020, 0x10).size(), 2u);
    EXPECT_EQ(item(m, 0x0020, 0x11), cat({le16(6), le16(29)}));
    Msg ind = c.next();
    EXPECT_EQ(item(ind, 0x0022, 0x01), (Bytes{1, 0}));

    m = c.ask(ZOVQMI_SERVICE_WDS, wds,
              request(0x0020, {tlv(0x14, str("secure.example")), tlv(0x16, {1}), tlv(0x17, str("zov")),
                               tlv(0x18, str("secret"))}));
    EXPECT_EQ(resultOf(m, 0x0020), kOk);
}

TEST_F(Sim, ACallNeedsTheSimUnlocked) {
    Conn c(server);
    uint8_t wds = c.clientId(ZOVQMI_SERVICE_WDS);
    Msg m = c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {}));
    EXPECT_EQ(resultOf(m, 0x0020), std::make_pair(1, int(zovsim::kErrCallFailed)));
}

// ---------------------------------------------------------------- NAS --

TEST_F(Sim, SignalServingSystemAndScan) {
    Conn c(server);
    uint8_t nas = c.clientId(ZOVQMI_SERVICE_NAS);
    Msg m = c.ask(ZOVQMI_SERVICE_NAS, nas, request(0x0020, {}));
    EXPECT_EQ(item(m, 0x0020, 0x01), (Bytes{uint8_t(-67), 8}));
    m = c.ask(ZOVQMI_SERVICE_NAS, nas, request(0x0024, {}));
    EXPECT_EQ(item(m, 0x0024, 0x01), (Bytes{1, 1, 1, 2, 1, 8}));
    EXPECT_EQ(item(m, 0x0024, 0x12), cat({le16(1), le16(1), {6}, str("ZovNet")}));
    m = c.ask(ZOVQMI_SERVICE_NAS, nas, request(0x0021, {}));
    Bytes scan = item(m, 0x0021, 0x10);
    ASSERT_GE(scan.size(), 2u);
    EXPECT_EQ(rd16(scan.data()), 3);
}

// ---------------------------------------------------------------- WMS --

TEST_F(Call, MessagesAreWrittenListedReadTaggedDeletedAndSent) {
    uint8_t wms = c.clientId(ZOVQMI_SERVICE_WMS);
    Bytes pdu = {0x00, 0x01, 0x00, 0x0B, 0x91, 0x51, 0x55, 0x10, 0x00, 0x30, 0xF0, 0x00, 0x00, 0x02, 0xE8, 0x34};
    Msg m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0021, {tlv(0x01, cat({{1, 6}, le16(uint16_t(pdu.size())), pdu}))}));
    ASSERT_EQ(resultOf(m, 0x0021), kOk);
    EXPECT_EQ(item(m, 0x0021, 0x01), le32(0));

    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0031, {tlv(0x01, {1})}));
    EXPECT_EQ(item(m, 0x0031, 0x01), cat({le32(1), le32(0), {3}}));
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0022, {tlv(0x01, cat({{1}, le32(0)}))}));
    EXPECT_EQ(item(m, 0x0022, 0x01), cat({{3, 6}, le16(uint16_t(pdu.size())), pdu}));
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0023, {tlv(0x01, cat({{1}, le32(0), {2}}))}));
    EXPECT_EQ(resultOf(m, 0x0023), kOk);
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0031, {tlv(0x01, {1}), tlv(0x10, {2})}));
    EXPECT_EQ(item(m, 0x0031, 0x01), cat({le32(1), le32(0), {2}}));
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0022, {tlv(0x01, cat({{1}, le32(7)}))}));
    EXPECT_EQ(resultOf(m, 0x0022), std::make_pair(1, int(zovsim::kErrInvalidIndex)));

    // Sending returns a message id; the network's answer arrives as a new message.
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0001, {tlv(0x10, {1})}));
    EXPECT_EQ(resultOf(m, 0x0001), kOk);
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0020, {tlv(0x01, cat({{6}, le16(uint16_t(pdu.size())), pdu}))}));
    ASSERT_EQ(resultOf(m, 0x0020), kOk);
    EXPECT_EQ(item(m, 0x0020, 0x01).size(), 2u);
    Msg ind = c.next();
    EXPECT_EQ(item(ind, 0x0001, 0x10), cat({{1}, le32(1)}));
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0022, {tlv(0x01, cat({{1}, le32(1)}))}));
    EXPECT_EQ(item(m, 0x0022, 0x01)[0], 1);  // not read yet; reading marks it read

    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0024, {tlv(0x01, {1}), tlv(0x10, le32(0))}));
    EXPECT_EQ(resultOf(m, 0x0024), kOk);
    m = c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0031, {tlv(0x01, {1})}));
    EXPECT_EQ(item(m, 0x0031, 0x01), cat({le32(1), le32(1), {0}}));
}

TEST_F(Sim, AnIncomingMessageIsStoredAndAnnounced) {
    Conn c(server);
    uint8_t wms = c.clientId(ZOVQMI_SERVICE_WMS);
    c.ask(ZOVQMI_SERVICE_WMS, wms, request(0x0001, {tlv(0x10, {1})}));
    server.deliver(modem.deliverSms({0x00, 0x04}));
    Msg ind = c.next();
    EXPECT_EQ(item(ind, 0x0001, 0x10), cat({{1}, le32(0)}));
}

// ---------------------------------------------------------------- PDS --

TEST_F(Sim, ASingleFixProducesNmeaAndAParsedPosition) {
    Conn c(server);
    uint8_t pds = c.clientId(ZOVQMI_SERVICE_PDS);
    Msg m = c.ask(ZOVQMI_SERVICE_PDS, pds, request(0x0035, {}));
    ASSERT_EQ(resultOf(m, 0x0035), kOk);
    Bytes gga = item(c.next(), 0x0001, 0x10);
    ASSERT_GT(gga.size(), 6u);
    EXPECT_EQ(std::string(gga.begin(), gga.begin() + 6), "$GPGGA");
    EXPECT_EQ(gga.back(), '\n');
    Bytes rmc = item(c.next(), 0x0001, 0x10);
    EXPECT_EQ(std::string(rmc.begin(), rmc.begin() + 6), "$GPRMC");
    Msg parsed = c.next();
    EXPECT_EQ(item(parsed, 0x0001, 0x12), Bytes{0});
    EXPECT_EQ(item(parsed, 0x0001, 0x13).size(), 105u);

    // Off, the engine refuses a fix.
    m = c.ask(ZOVQMI_SERVICE_PDS, pds, request(0x0021, {tlv(0x01, {0})}));
    EXPECT_EQ(resultOf(m, 0x0021), kOk);
    c.next();
    m = c.ask(ZOVQMI_SERVICE_PDS, pds, request(0x0035, {}));
    EXPECT_EQ(resultOf(m, 0x0035), std::make_pair(1, int(zovsim::kErrDeviceNotReady)));
}

// ---------------------------------------------------------------- PBM --

TEST_F(Sim, PhonebookRecordsAreReadWrittenSearchedAndDeleted) {
    Conn c(server);
    uint8_t pbm = c.clientId(ZOVQMI_SERVICE_PBM);
    Msg m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0001, {tlv(0x01, le32(1))}));
    EXPECT_EQ(item(m, 0x0001, 0x10), le32(1));
    m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0004, {tlv(0x01, cat({{0}, le16(1), le16(1), le16(10)}))}));
    ASSERT_EQ(resultOf(m, 0x0004), kOk);
    EXPECT_EQ(item(m, 0x0004, 0x10), le16(3));
    Bytes rec = item(c.next(), 0x0004, 0x01);
    ASSERT_GE(rec.size(), 8u);
    EXPECT_EQ(rec[5], 3);  // records in this indication
    EXPECT_EQ(rd16(rec.data() + 6), 1);

    Bytes write = cat({{0}, le16(1), le16(0), {0x81, 0}, {4}, str("5551"), {4}, str("Carl")});
    m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0005, {tlv(0x01, write)}));
    ASSERT_EQ(resultOf(m, 0x0005), kOk);
    EXPECT_EQ(item(m, 0x0005, 0x10), le16(4));
    EXPECT_EQ(item(c.next(), 0x0009, 0x01), cat({{0}, le16(1), {1}, le16(4)}));

    m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0008, {tlv(0x01, cat({{0}, le16(1)})), tlv(0x11, {3, 'c', 'A', 'r'})}));
    EXPECT_EQ(item(m, 0x0008, 0x10), cat({le16(1), le16(4)}));

    m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0006, {tlv(0x01, cat({{0}, le16(1), le16(4)}))}));
    EXPECT_EQ(resultOf(m, 0x0006), kOk);
    EXPECT_EQ(item(c.next(), 0x0009, 0x01), cat({{0}, le16(1), {3}, le16(4)}));
    m = c.ask(ZOVQMI_SERVICE_PBM, pbm, request(0x0006, {tlv(0x01, cat({{0}, le16(1), le16(4)}))}));
    EXPECT_EQ(resultOf(m, 0x0006), std::make_pair(1, int(zovsim::kErrNoEntry)));
}

// ---------------------------------------------------------------- QOS --

TEST_F(Call, QosFlowsAreRequestedReportedAndReleased) {
    uint8_t qos = c.clientId(ZOVQMI_SERVICE_QOS);
    Bytes qosItem = tlv(0x10, cat({tlv(0x10, {0})}));
    Msg m = c.ask(ZOVQMI_SERVICE_QOS, qos, request(0x0020, {qosItem}));
    EXPECT_EQ(resultOf(m, 0x0020), std::make_pair(1, int(zovsim::kErrOutOfCall)));

    c.ask(ZOVQMI_SERVICE_WDS, wds, request(0x0020, {}));
    c.next();
    m = c.ask(ZOVQMI_SERVICE_QOS, qos, request(0x0020, {qosItem}));
    ASSERT_EQ(resultOf(m, 0x0020), kOk);
    Bytes ids = item(m, 0x0020, 0x01);
    ASSERT_EQ(ids.size(), 5u);
    Bytes id(ids.begin() + 1, ids.end());
    EXPECT_EQ(item(c.next(), 0x0026, 0x01), cat({id, {1, 1}}));

    m = c.ask(ZOVQMI_SERVICE_QOS, qos, request(0x0026, {tlv(0x01, id)}));
    EXPECT_EQ(item(m, 0x0026, 0x01), Bytes{1});
    m = c.ask(ZOVQMI_SERVICE_QOS, qos, request(0x0021, {tlv(0x01, cat({{1}, id}))}));
    EXPECT_EQ(resultOf(m, 0x0021), kOk);
    EXPECT_EQ(item(c.next(), 0x0026, 0x01), cat({id, {3, 3}}));
    m = c.ask(ZOVQMI_SERVICE_QOS, qos, request(0x0026, {tlv(0x01, id)}));
    EXPECT_EQ(resultOf(m, 0x0026), std::make_pair(1, int(zovsim::kErrInvalidQosId)));
}

// ------------------------------------------------------------ threads --

TEST_F(Sim, ConnectionsOnSeveralThreadsEachGetTheirOwnAnswers) {
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&] {
            Conn c(server);
            uint8_t dms = c.clientId(ZOVQMI_SERVICE_DMS);
            for (int i = 0; i < 25; ++i) {
                Msg m = c.ask(ZOVQMI_SERVICE_DMS, dms, request(0x002D, {}));
                if (m.client == dms && resultOf(m, 0x002D) == kOk) ++good;
            }
        });
    for (auto& th : threads) th.join();
    EXPECT_EQ(good.load(), 100);
}

}  // namespace
