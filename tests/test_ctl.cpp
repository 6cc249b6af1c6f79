// CTL, the control service.
#include "testutil.h"

using namespace t;

namespace {

// ------------------------------------------------------------- requests --

TEST(CtlRequests, TransactionIdIsTheLowByteOfTheSharedCounter) {
    // Move the counter to 255: the next CTL request carries 0x00 when it reaches 256.
    while (zovQMIMSMGetCurrentTransactionID() != 255) zovQMIMSMGetNextTransactionID();
    Bytes buf = buffer(8);
    ASSERT_EQ(zovQMICTLSyncReq(buf.data(), 8), 6);
    EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), 256);
    EXPECT_EQ(buf[1], 0x00);
    ASSERT_EQ(zovQMICTLSyncReq(buf.data(), 8), 6);
    EXPECT_EQ(buf[1], 0x01);
}

TEST(CtlRequests, ReleaseClientIDNeedsElevenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMICTLReleaseClientIDReq(buf.data(), 10, 0x02, 0x05), -1);
    EXPECT_EQ(buf, buffer(16));
    EXPECT_EQ(zovQMICTLReleaseClientIDReq(buf.data(), 11, 0x02, 0x05), 11);
    uint8_t tt = uint8_t(zovQMIMSMGetCurrentTransactionID());
    EXPECT_EQ(head(buf, 12), Bytes({0x00, tt, 0x23, 0x00, 0x05, 0x00, 0x01, 0x02, 0x00, 0x02, 0x05, 0xEE}));
    EXPECT_EQ(zovQMICTLReleaseClientIDReq(nullptr, 11, 0x02, 0x05), -1);
}

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    Bytes expected;  // after the header
    uint16_t id;
};

int setInstance(uint8_t* b, int n) { return zovQMICTLSetInstanceIDReq(b, n, 0x09); }
int versionInfo(uint8_t* b, int n) { return zovQMICTLGetVersionInfoReq(b, n); }
int clientId(uint8_t* b, int n) { return zovQMICTLGetClientIDReq(b, n, 0x01); }
int dataFormat(uint8_t* b, int n) { return zovQMICTLSetDataFormatReq(b, n, 0x02); }
int sync(uint8_t* b, int n) { return zovQMICTLSyncReq(b, n); }
int regPwrSave(uint8_t* b, int n) { return zovQMICTLRegPwrSaveModeReq(b, n, 0x01); }
int configPwrSave(uint8_t* b, int n) { return zovQMICTLConfigPwrSaveSettingsReq(b, n, 0x11223344, 0x03); }
int setPwrSave(uint8_t* b, int n) { return zovQMICTLSetPwrSaveModeReq(b, n, 0xA1B2C3D4); }
int getPwrSave(uint8_t* b, int n) { return zovQMICTLGetPwrSaveModeReq(b, n); }

TEST(CtlRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"SetInstanceID", setInstance, tlv(0x01, {0x09}), 0x0020},
        {"GetVersionInfo", versionInfo, {}, 0x0021},
        {"GetClientID", clientId, tlv(0x01, {0x01}), 0x0022},
        {"SetDataFormat", dataFormat, tlv(0x01, {0x02}), 0x0026},
        {"Sync", sync, {}, 0x0027},
        {"RegPwrSaveMode", regPwrSave, tlv(0x01, {0x01}), 0x0028},
        {"ConfigPwrSaveSettings", configPwrSave, tlv(0x01, cat({le32(0x11223344), {0x03}})), 0x0029},
        {"SetPwrSaveMode", setPwrSave, tlv(0x01, le32(0xA1B2C3D4)), 0x002A},
        {"GetPwrSaveMode", getPwrSave, {}, 0x002B},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int size = 6 + int(r.expected.size());
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), size - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, size), -1);
        EXPECT_EQ(r.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({ctlHeader(r.id, uint16_t(r.expected.size())), r.expected, {0xEE}}));
    }
}

TEST(CtlRequests, SetDataFormatAddsTheLinkLayerProtocol) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMICTLSetDataFormatReq(buf.data(), 32, 0x01), 10);
    EXPECT_EQ(zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(buf.data(), 32, 0x0102), 15);
    EXPECT_EQ(head(buf, 16), cat({ctlHeader(0x0026, 9), tlv(0x01, {0x01}), tlv(0x10, le16(0x0102)), {0xEE}}));
    EXPECT_EQ(zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(buf.data(), 17, 0x0102), -2);
    EXPECT_EQ(zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(nullptr, 32, 0x0102), -1);
}

TEST(CtlRequests, PermittedIndicationSetCopiesTheCallersBytes) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMICTLConfigPwrSaveSettingsReq(buf.data(), 32, 1, 2), 14);
    Bytes set = {0x20, 0x00, 0x22, 0x00};
    EXPECT_EQ(zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(buf.data(), 32, 4, set.data()), 21);
    EXPECT_EQ(head(buf, 21), cat({ctlHeader(0x0029, 15), tlv(0x01, cat({le32(1), {2}})), tlv(0x11, set)}));
    EXPECT_EQ(zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(buf.data(), 32, 2, nullptr), -1);
    EXPECT_EQ(zovQMICTLConfigPwrSaveSettingsReqAddPermittedIndicationSet(buf.data(), 32, 0, nullptr), 24);
}

// ------------------------------------------------------------ responses --

TEST(CtlResponses, GetClientIDYieldsResultServiceAndClient) {
    Bytes msg = ctlMessage(0x0022, {result(), tlv(0x01, {0x01, 0x07})});
    QmiResult r;
    uint8_t service = 0, client = 0;
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), &r, &service, &client), 12);
    EXPECT_EQ(res(r), (Res{0, 0}));
    EXPECT_EQ(service, 0x01);
    EXPECT_EQ(client, 0x07);
}

TEST(CtlResponses, ReleaseClientIDYieldsThePair) {
    Bytes msg = ctlMessage(0x0023, {result(1, 0x22), tlv(0x01, {0x02, 0x05})});
    QmiResult r;
    uint8_t service = 0, client = 0;
    EXPECT_EQ(zovQMICTLReleaseClientIDResp(msg.data(), int(msg.size()), &r, &service, &client), 12);
    EXPECT_EQ(res(r), (Res{1, 0x22}));
    EXPECT_EQ(service, 0x02);
    EXPECT_EQ(client, 0x05);
}

TEST(CtlResponses, ClientIdParsersRequireEveryOutput) {
    Bytes msg = ctlMessage(0x0022, {result(), tlv(0x01, {0x01, 0x07})});
    QmiResult r;
    uint8_t v = 0;
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), nullptr, &v, &v), -1);
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), &r, nullptr, &v), -1);
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), &r, &v, nullptr), -1);
    EXPECT_EQ(zovQMICTLGetClientIDResp(nullptr, int(msg.size()), &r, &v, &v), -1);
    EXPECT_EQ(zovQMICTLReleaseClientIDResp(msg.data(), int(msg.size()), &r, &v, nullptr), -1);
}

TEST(CtlResponses, ResponseWithAnotherMessagesIdReturnsMinusTwoWithoutReadingItems) {
    // The TLV area of the other message is garbage: it must not be looked at.
    Bytes msg = cat({{0x01, 0x12}, le16(0x0023), le16(0xFFFF), {0x02}});
    QmiResult r = untouchedResult();
    uint8_t service = 0xEE, client = 0xEE;
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), &r, &service, &client), -2);
    EXPECT_EQ(res(r), res(untouchedResult()));
    EXPECT_EQ(service, 0xEE);
}

TEST(CtlResponses, MissingResultIsMinusThreeAndMissingMandatoryMinusFour) {
    QmiResult r = untouchedResult();
    uint8_t service = 0xEE, client = 0xEE;
    Bytes noResult = ctlMessage(0x0022, {tlv(0x01, {0x01, 0x07})});
    EXPECT_EQ(zovQMICTLGetClientIDResp(noResult.data(), int(noResult.size()), &r, &service, &client), -3);
    EXPECT_EQ(res(r), res(untouchedResult()));
    Bytes noPair = ctlMessage(0x0022, {result(1, 5)});
    EXPECT_EQ(zovQMICTLGetClientIDResp(noPair.data(), int(noPair.size()), &r, &service, &client), -4);
    EXPECT_EQ(res(r), (Res{1, 5}));
    EXPECT_EQ(service, 0xEE);
}

TEST(CtlResponses, SetInstanceIDYieldsTheAssignedId) {
    Bytes msg = ctlMessage(0x0020, {result(), tlv(0x01, le16(0x0B0A))});
    QmiResult r;
    uint16_t id = 0;
    EXPECT_EQ(zovQMICTLSetInstanceIDResp(msg.data(), int(msg.size()), &r, &id), 12);
    EXPECT_EQ(id, 0x0B0A);
    EXPECT_EQ(zovQMICTLSetInstanceIDResp(msg.data(), int(msg.size()), &r, nullptr), -1);
}

Bytes versions() {
    return cat({{0x03}, {0x00}, le16(1), le16(5), {0x01}, le16(1), le16(67), {0x02}, le16(1), le16(0x0102)});
}

TEST(CtlResponses, GetVersionInfoDecodesTheVersionList) {
    Bytes msg = ctlMessage(0x0021, {result(), tlv(0x01, versions())});
    QmiResult r;
    uint8_t count = 0;
    CTLVersionEntry list[4];
    std::memset(list, 0xEE, sizeof list);
    EXPECT_EQ(zovQMICTLGetVersionInfoResp(msg.data(), int(msg.size()), &r, &count, list), int(7 + 3 + 16));
    EXPECT_EQ(count, 3);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(list);
    const Bytes v = versions();
    EXPECT_EQ(Bytes(b, b + 16), cat({Bytes(v.begin() + 1, v.end()), {0xEE}}));
    EXPECT_EQ(list[2].serviceType, 0x02);
    EXPECT_EQ(rd16(&list[2].minorVersion), 0x0102);
}

TEST(CtlResponses, GetVersionInfoWithNullListStoresOnlyTheCount) {
    Bytes msg = ctlMessage(0x0021, {result(), tlv(0x01, versions())});
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMICTLGetVersionInfoResp(msg.data(), int(msg.size()), &r, &count, nullptr), 26);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(zovQMICTLGetVersionInfoResp(msg.data(), int(msg.size()), &r, nullptr, nullptr), -1);
}

TEST(CtlResponses, VersionListCountBeyondTheBufferIsMalformed) {
    Bytes msg = ctlMessage(0x0021, {result(), tlv(0x01, {0x05, 0x01, 0x01, 0x00})});
    QmiResult r;
    uint8_t count = 0xEE;
    CTLVersionEntry list[5];
    EXPECT_EQ(zovQMICTLGetVersionInfoResp(msg.data(), int(msg.size()), &r, &count, list), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    // Without a list only the count is read, and that is inside the buffer.
    EXPECT_EQ(zovQMICTLGetVersionInfoResp(msg.data(), int(msg.size()), &r, &count, nullptr), 14);
    EXPECT_EQ(count, 5);
}

TEST(CtlResponses, AddendumVersionListReadsLabelThenList) {
    Bytes value = cat({{0x04}, str("ABCD"), {0x01, 0x05}, le16(2), le16(3)});
    Bytes msg = ctlMessage(0x0021, {result(), tlv(0x01, {0x00}), tlv(0x10, value)});
    uint8_t labelLength = 0, count = 0;
    Bytes label(6, 0xEE);
    CTLVersionEntry list[2];
    std::memset(list, 0xEE, sizeof list);
    EXPECT_EQ(zovQMICTLGetVersionInfoRespGetAddendumVersionList(msg.data(), int(msg.size()), &labelLength,
                                                                label.data(), &count, list),
              int(value.size()));
    EXPECT_EQ(labelLength, 4);
    EXPECT_EQ(label, cat({str("ABCD"), {0xEE, 0xEE}}));
    EXPECT_EQ(count, 1);
    EXPECT_EQ(list[0].serviceType, 0x05);
    EXPECT_EQ(rd16(&list[0].majorVersion), 2);
    EXPECT_EQ(rd16(&list[0].minorVersion), 3);
    EXPECT_EQ(list[1].serviceType, 0xEE);
}

TEST(CtlResponses, AddendumVersionListNeedsOnlyLabelLengthAndCount) {
    Bytes value = cat({{0x02}, str("AB"), {0x01, 0x05}, le16(2), le16(3)});
    Bytes msg = ctlMessage(0x0021, {result(), tlv(0x10, value)});
    uint8_t labelLength = 0, count = 0;
    EXPECT_EQ(zovQMICTLGetVersionInfoRespGetAddendumVersionList(msg.data(), int(msg.size()), &labelLength, nullptr,
                                                                &count, nullptr),
              int(value.size()));
    EXPECT_EQ(labelLength, 2);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(zovQMICTLGetVersionInfoRespGetAddendumVersionList(msg.data(), int(msg.size()), nullptr, nullptr,
                                                                &count, nullptr),
              -1);
    EXPECT_EQ(zovQMICTLGetVersionInfoRespGetAddendumVersionList(msg.data(), int(msg.size()), &labelLength, nullptr,
                                                                nullptr, nullptr),
              -1);
    Bytes without = ctlMessage(0x0021, {result()});
    EXPECT_EQ(zovQMICTLGetVersionInfoRespGetAddendumVersionList(without.data(), int(without.size()), &labelLength,
                                                                nullptr, &count, nullptr),
              -3);
}

TEST(CtlResponses, DataFormatResultAndProtocol) {
    Bytes msg = ctlMessage(0x0026, {result(), tlv(0x10, le16(0x0002))});
    QmiResult r;
    uint16_t protocol = 0;
    EXPECT_EQ(zovQMICTLSetDataFormatResp(msg.data(), int(msg.size()), &r), 12);
    EXPECT_EQ(zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(msg.data(), int(msg.size()), &protocol), 2);
    EXPECT_EQ(protocol, 2);
    EXPECT_EQ(zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = ctlMessage(0x0026, {result()});
    EXPECT_EQ(zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(bare.data(), int(bare.size()), &protocol), -3);
}

TEST(CtlResponses, ResultOnlyResponsesReturnTheAreaLength) {
    using Parser = int (*)(const uint8_t*, int, QmiResult*);
    struct Case {
        uint16_t id;
        Parser parse;
    } cases[] = {{0x0026, zovQMICTLSetDataFormatResp},       {0x0027, zovQMICTLSyncResp},
                 {0x0028, zovQMICTLRegPwrSaveModeResp},      {0x0029, zovQMICTLConfigPwrSaveSettingsResp},
                 {0x002A, zovQMICTLSetPwrSaveModeResp}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        Bytes msg = ctlMessage(c.id, {result(1, 0x30)});
        QmiResult r;
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), &r), 7);
        EXPECT_EQ(res(r), (Res{1, 0x30}));
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), nullptr), -1);
        Bytes other = ctlMessage(uint16_t(c.id + 0x10), {result()});
        EXPECT_EQ(c.parse(other.data(), int(other.size()), &r), -2);
        Bytes none = ctlMessage(c.id, {});
        EXPECT_EQ(c.parse(none.data(), int(none.size()), &r), -3);
    }
}

TEST(CtlResponses, GetPwrSaveModeYieldsTheMode) {
    Bytes msg = ctlMessage(0x002B, {result(), tlv(0x01, le32(0x01020304))});
    QmiResult r;
    uint32_t mode = 0;
    EXPECT_EQ(zovQMICTLGetPwrSaveModeResp(msg.data(), int(msg.size()), &r, &mode), 14);
    EXPECT_EQ(mode, 0x01020304u);
    EXPECT_EQ(zovQMICTLGetPwrSaveModeResp(msg.data(), int(msg.size()), &r, nullptr), -1);
}

// ----------------------------------------------------------- indications --

TEST(CtlIndications, RevokeAndInvalidClientIdYieldThePair) {
    Bytes revoke = ctlMessage(0x0024, {tlv(0x01, {0x03, 0x09})}, 0, 0x02);
    Bytes invalid = ctlMessage(0x0025, {tlv(0x01, {0x04, 0x0A})}, 0, 0x02);
    uint8_t service = 0, client = 0;
    EXPECT_EQ(zovQMICTLRevokeClientIDIND(revoke.data(), int(revoke.size()), &service, &client), 5);
    EXPECT_EQ(service, 3);
    EXPECT_EQ(client, 9);
    EXPECT_EQ(zovQMICTLInvalidClientIDIND(invalid.data(), int(invalid.size()), &service, &client), 5);
    EXPECT_EQ(service, 4);
    EXPECT_EQ(client, 10);
    EXPECT_EQ(zovQMICTLRevokeClientIDIND(invalid.data(), int(invalid.size()), &service, &client), -2);
    EXPECT_EQ(zovQMICTLInvalidClientIDIND(invalid.data(), int(invalid.size()), nullptr, &client), -1);
    Bytes empty = ctlMessage(0x0024, {}, 0, 0x02);
    EXPECT_EQ(zovQMICTLRevokeClientIDIND(empty.data(), int(empty.size()), &service, &client), -3);
}

TEST(CtlIndications, SyncIndicationWithoutItemsReturnsZero) {
    Bytes msg = ctlMessage(0x0027, {}, 0, 0x02);
    EXPECT_EQ(zovQMICTLSyncIND(msg.data(), int(msg.size())), 0);
    Bytes other = ctlMessage(0x0028, {}, 0, 0x02);
    EXPECT_EQ(zovQMICTLSyncIND(other.data(), int(other.size())), -2);
    EXPECT_EQ(zovQMICTLSyncIND(nullptr, 6), -1);
}

TEST(CtlIndications, PowerSaveStateReportYieldsBothWordsInOrder) {
    Bytes msg = ctlMessage(0x0028, {tlv(0x10, cat({le32(0x11111111), le32(0x22222222)}))}, 0, 0x02);
    EXPECT_EQ(zovQMICTLPwrSaveModeIND(msg.data(), int(msg.size())), 11);
    uint32_t first = 0, second = 0;
    EXPECT_EQ(zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(msg.data(), int(msg.size()), &first, &second), 8);
    EXPECT_EQ(first, 0x11111111u);
    EXPECT_EQ(second, 0x22222222u);
    EXPECT_EQ(zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(msg.data(), int(msg.size()), &first, nullptr), -1);
    Bytes empty = ctlMessage(0x0028, {}, 0, 0x02);
    EXPECT_EQ(zovQMICTLPwrSaveModeINDGetPowerSaveStateReport(empty.data(), int(empty.size()), &first, &second), -3);
}

// ------------------------------------------------------------ bad input --

TEST(CtlBadInput, HeaderShorterThanSixBytesIsMalformed) {
    Bytes msg = {0x01, 0x12, 0x27, 0x00, 0x00};
    EXPECT_EQ(zovQMICTLSyncIND(msg.data(), 5), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMICTLSyncIND(msg.data(), 3), ZOVQMI_ERR_MALFORMED);
    // With a different id in the first four bytes the answer is "not this message".
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), 4, nullptr, nullptr, nullptr), -1);
}

TEST(CtlBadInput, AreaLengthClaimingMoreThanTheBufferIsWalkedOnlyInsideIt) {
    // The header says 0x40 bytes of items; only the result item is there.
    Bytes msg = cat({{0x01, 0x12}, le16(0x0022), le16(0x40), result()});
    QmiResult r;
    uint8_t service = 0xEE, client = 0xEE;
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()), &r, &service, &client), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(service, 0xEE);
}

TEST(CtlBadInput, ClientIdPairCutShortByTheBufferIsMalformed) {
    Bytes msg = ctlMessage(0x0022, {result(), tlv(0x01, {0x01, 0x07})});
    QmiResult r;
    uint8_t service = 0xEE, client = 0xEE;
    EXPECT_EQ(zovQMICTLGetClientIDResp(msg.data(), int(msg.size()) - 1, &r, &service, &client), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(service, 0xEE);
    EXPECT_EQ(client, 0xEE);
}

}  // namespace
