// QOS: requests, responses and indications.
#include "testutil.h"

using namespace t;

namespace {

// ------------------------------------------------------------- requests --

struct HeaderRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    uint16_t id;
};

TEST(QosRequests, HeaderOnlyRequestsWriteSevenBytesAndRefuseSix) {
    const HeaderRequest requests[] = {
        {"Reset", zovQMIQOSResetReq, 0x0000},
        {"SetEventReport", zovQMIQOSSetEventReportReq, 0x0001},
        {"RequestQoS", zovQMIQOSRequestQoSReq, 0x0020},
        {"ModifyQoS", zovQMIQOSModifyQoSReq, 0x0024},
        {"GetQoSNetworkStatus", zovQMIQOSGetQoSNetworkStatusReq, 0x0027},
        {"GetNWSupportedQoSProfiles", zovQMIQOSGetNWSupportedQoSProfilesReq, 0x0028},
    };
    for (const HeaderRequest& r : requests) {
        SCOPED_TRACE(r.name);
        Bytes buf = buffer(16);
        EXPECT_EQ(r.build(buf.data(), 6), -1);
        EXPECT_EQ(r.build(nullptr, 7), -1);
        EXPECT_EQ(buf, buffer(16));
        EXPECT_EQ(r.build(buf.data(), 7), 7);
        EXPECT_EQ(head(buf, 8), cat({reqHeader(r.id, 0), {0xEE}}));
    }
}

TEST(QosRequests, GetGrantedQoSNeedsFourteenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSReq(buf.data(), 13, 0x01020304), -1);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSReq(nullptr, 14, 0x01020304), -1);
    EXPECT_EQ(buf, buffer(16));
    EXPECT_EQ(zovQMIQOSGetGrantedQoSReq(buf.data(), 14, 0x01020304), 14);
    EXPECT_EQ(head(buf, 15), cat({reqHeader(0x0025, 7), tlv(0x01, le32(0x01020304)), {0xEE}}));
}

TEST(QosRequests, GetQoSStatusNeedsFourteenBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIQOSGetQoSStatusReq(buf.data(), 13, 0xA0B0C0D0), -1);
    EXPECT_EQ(zovQMIQOSGetQoSStatusReq(nullptr, 14, 0xA0B0C0D0), -1);
    EXPECT_EQ(buf, buffer(16));
    EXPECT_EQ(zovQMIQOSGetQoSStatusReq(buf.data(), 14, 0xA0B0C0D0), 14);
    EXPECT_EQ(head(buf, 15), cat({reqHeader(0x0026, 7), tlv(0x01, le32(0xA0B0C0D0)), {0xEE}}));
}

struct ListRequest {
    const char* name;
    int (*build)(uint8_t*, int, uint8_t, const uint32_t*);
    uint16_t id;
};
const ListRequest kListRequests[] = {
    {"ReleaseQoS", zovQMIQOSReleaseQoSReq, 0x0021},
    {"SuspendQoS", zovQMIQOSSuspendQoSReq, 0x0022},
    {"ResumeQoS", zovQMIQOSResumeQoSReq, 0x0023},
};

TEST(QosRequests, ReleaseSuspendResumeAppendCountAndIdentifiers) {
    const uint32_t ids[] = {0x11223344, 0x55667788};
    for (const ListRequest& r : kListRequests) {
        SCOPED_TRACE(r.name);
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), 32, 2, ids), 7 + 3 + 9);
        EXPECT_EQ(head(buf, 20),
                  cat({reqHeader(r.id, 12), tlv(0x01, cat({{0x02}, le32(0x11223344), le32(0x55667788)})), {0xEE}}));
    }
}

TEST(QosRequests, ReleaseWithCountZeroAddsOnlyTheCountByte) {
    for (const ListRequest& r : kListRequests) {
        SCOPED_TRACE(r.name);
        Bytes buf = buffer(16);
        EXPECT_EQ(r.build(buf.data(), 16, 0, nullptr), 11);
        EXPECT_EQ(head(buf, 12), cat({reqHeader(r.id, 4), tlv(0x01, {0x00}), {0xEE}}));
    }
}

TEST(QosRequests, IdentifierListChecksArgumentsThenTheRoomForItsItem) {
    const uint32_t ids[] = {1, 2};
    for (const ListRequest& r : kListRequests) {
        SCOPED_TRACE(r.name);
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(nullptr, 32, 2, ids), -1);
        EXPECT_EQ(r.build(buf.data(), 6, 2, ids), -1);
        EXPECT_EQ(r.build(buf.data(), 32, 2, nullptr), -1);
        EXPECT_EQ(buf, buffer(32));
        // The header fits but the item does not: the header stays, item 0x01 is not added.
        EXPECT_EQ(r.build(buf.data(), 18, 2, ids), -2);
        EXPECT_EQ(head(buf, 8), cat({reqHeader(r.id, 0), {0xEE}}));
        EXPECT_EQ(r.build(buf.data(), 19, 2, ids), 19);
    }
}

struct OptionalItem {
    const char* name;
    int (*start)(uint8_t*, int);
    int (*add)(uint8_t*, int);
    uint16_t id;
    Bytes item;
};

int globalFlow(uint8_t* b, int n) { return zovQMIQOSSetEventReportReqAddGlobalFlowInfoReporting(b, n, 0x01); }
int profileChange(uint8_t* b, int n) {
    return zovQMIQOSSetEventReportReqAddNetworkSupportedQoSProfileChange(b, n, 0x01, 0x8001);
}
int opcode(uint8_t* b, int n) { return zovQMIQOSRequestQoSReqAddQoSRequestOpcode(b, n, 0x02); }
int primaryModify(uint8_t* b, int n) { return zovQMIQOSModifyQoSReqAddPrimaryQoSModifyRequest(b, n, 0x01); }
int grantedStart(uint8_t* b, int n) { return zovQMIQOSGetGrantedQoSReq(b, n, 0x0A0B0C0D); }
int primaryGranted(uint8_t* b, int n) { return zovQMIQOSGetGrantedQoSReqAddPrimaryGrantedQoSRequest(b, n, 0x01); }
int techPreference(uint8_t* b, int n) {
    return zovQMIQOSGetNWSupportedQoSProfilesReqAddExtendedTechnologyPreference(b, n, 0x8001);
}

TEST(QosRequests, OptionalItemsAreAppendedWithTheirBytes) {
    const OptionalItem items[] = {
        {"GlobalFlowInfoReporting", zovQMIQOSSetEventReportReq, globalFlow, 0x0001, tlv(0x10, {0x01})},
        {"NetworkSupportedQoSProfileChange", zovQMIQOSSetEventReportReq, profileChange, 0x0001,
         tlv(0x11, cat({{0x01}, le16(0x8001)}))},
        {"QoSRequestOpcode", zovQMIQOSRequestQoSReq, opcode, 0x0020, tlv(0x11, {0x02})},
        {"PrimaryQoSModifyRequest", zovQMIQOSModifyQoSReq, primaryModify, 0x0024, tlv(0x11, {0x01})},
        {"PrimaryGrantedQoSRequest", grantedStart, primaryGranted, 0x0025, tlv(0x10, {0x01})},
        {"ExtendedTechnologyPreference", zovQMIQOSGetNWSupportedQoSProfilesReq, techPreference, 0x0028,
         tlv(0x10, le16(0x8001))},
    };
    for (const OptionalItem& o : items) {
        SCOPED_TRACE(o.name);
        Bytes buf = buffer(32);
        int n = o.start(buf.data(), 32);
        ASSERT_GT(n, 0);
        Bytes before = buf;
        EXPECT_EQ(o.add(nullptr, 32), -1);
        EXPECT_EQ(o.add(buf.data(), n + int(o.item.size()) - 1), -2);
        EXPECT_EQ(buf, before);
        EXPECT_EQ(o.add(buf.data(), 32), n + int(o.item.size()));
        Bytes mandatory = Bytes(before.begin() + 7, before.begin() + n);
        EXPECT_EQ(head(buf, size_t(n) + o.item.size() + 1),
                  cat({reqHeader(o.id, uint16_t(n - 7 + o.item.size())), mandatory, o.item, {0xEE}}));
    }
}

// ------------------------------------------------------------ responses --

struct ResultOnly {
    const char* name;
    int (*parse)(const uint8_t*, int, QmiResult*);
    uint16_t id;
};

TEST(QosResponses, ResultOnlyResponsesReturnTheAreaLengthAndTheirCodes) {
    const ResultOnly responses[] = {
        {"Reset", zovQMIQOSResetResp, 0x0000},
        {"SetEventReport", zovQMIQOSSetEventReportResp, 0x0001},
        {"ReleaseQoS", zovQMIQOSReleaseQoSResp, 0x0021},
        {"SuspendQoS", zovQMIQOSSuspendQoSResp, 0x0022},
        {"ResumeQoS", zovQMIQOSResumeQoSResp, 0x0023},
        {"ModifyQoS", zovQMIQOSModifyQoSResp, 0x0024},
        {"GetGrantedQoS", zovQMIQOSGetGrantedQoSResp, 0x0025},
    };
    for (const ResultOnly& r : responses) {
        SCOPED_TRACE(r.name);
        // A failure result still returns the area length.
        Bytes msg = svcMessage(r.id, {result(1, 0x0030), tlv(0x10, {0x01})});
        QmiResult res1 = untouchedResult();
        EXPECT_EQ(r.parse(msg.data(), int(msg.size()), &res1), 11);
        EXPECT_EQ(res(res1), (Res{1, 0x0030}));
        EXPECT_EQ(r.parse(nullptr, int(msg.size()), &res1), -1);
        EXPECT_EQ(r.parse(msg.data(), int(msg.size()), nullptr), -1);
        Bytes other = svcMessage(uint16_t(r.id + 0x40), {result()});
        EXPECT_EQ(r.parse(other.data(), int(other.size()), &res1), -2);
        Bytes noResult = svcMessage(r.id, {tlv(0x10, {0x01})});
        QmiResult res2 = untouchedResult();
        EXPECT_EQ(r.parse(noResult.data(), int(noResult.size()), &res2), -3);
        EXPECT_EQ(res(res2), res(untouchedResult()));
    }
}

TEST(QosResponses, RequestQoSYieldsCountAndIdentifiers) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, cat({{0x02}, le32(0x01020304), le32(0xA1A2A3A4)}))});
    QmiResult r;
    uint8_t count = 0;
    uint32_t ids[3] = {0xEEEEEEEE, 0xEEEEEEEE, 0xEEEEEEEE};
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), &r, &count, ids), 19);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(ids[0], 0x01020304u);
    EXPECT_EQ(ids[1], 0xA1A2A3A4u);
    EXPECT_EQ(ids[2], 0xEEEEEEEEu);
}

TEST(QosResponses, RequestQoSWithANullIdentifierArrayStillReturnsTheCount) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, cat({{0x02}, le32(1), le32(2)}))});
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), &r, &count, nullptr), 19);
    EXPECT_EQ(count, 2);
}

TEST(QosResponses, RequestQoSReturnCodes) {
    QmiResult r = untouchedResult();
    uint8_t count = 0xEE;
    uint32_t id = 0;
    Bytes msg = svcMessage(0x0020, {result(1, 2)});
    EXPECT_EQ(zovQMIQOSRequestQoSResp(nullptr, int(msg.size()), &r, &count, &id), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), nullptr, &count, &id), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), &r, nullptr, &id), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), &r, &count, &id), -4);
    EXPECT_EQ(res(r), (Res{1, 2}));
    EXPECT_EQ(count, 0xEE);
    Bytes other = svcMessage(0x0021, {result(), tlv(0x01, {0})});
    EXPECT_EQ(zovQMIQOSRequestQoSResp(other.data(), int(other.size()), &r, &count, &id), -2);
    Bytes noResult = svcMessage(0x0020, {tlv(0x01, {0})});
    EXPECT_EQ(zovQMIQOSRequestQoSResp(noResult.data(), int(noResult.size()), &r, &count, &id), -3);
}

TEST(QosResponses, IdentifierCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, cat({{0x03}, le32(1), le32(2)}))});
    QmiResult r;
    uint8_t count = 0xEE;
    uint32_t ids[3] = {0, 0, 0};
    EXPECT_EQ(zovQMIQOSRequestQoSResp(msg.data(), int(msg.size()), &r, &count, ids), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(ids[0], 0u);
}

TEST(QosResponses, StatusResponsesYieldOneByte) {
    QmiResult r;
    uint8_t status = 0;
    Bytes qos = svcMessage(0x0026, {result(), tlv(0x01, {0x03})});
    EXPECT_EQ(zovQMIQOSGetQoSStatusResp(qos.data(), int(qos.size()), &r, &status), 11);
    EXPECT_EQ(status, 0x03);
    EXPECT_EQ(zovQMIQOSGetQoSStatusResp(qos.data(), int(qos.size()), &r, nullptr), -1);
    Bytes net = svcMessage(0x0027, {result(), tlv(0x01, {0x01})});
    EXPECT_EQ(zovQMIQOSGetQoSNetworkStatusResp(net.data(), int(net.size()), &r, &status), 11);
    EXPECT_EQ(status, 0x01);
    EXPECT_EQ(zovQMIQOSGetQoSNetworkStatusResp(net.data(), int(net.size()), &r, nullptr), -1);
    EXPECT_EQ(zovQMIQOSGetQoSStatusResp(net.data(), int(net.size()), &r, &status), -2);
    Bytes noStatus = svcMessage(0x0027, {result()});
    EXPECT_EQ(zovQMIQOSGetQoSNetworkStatusResp(noStatus.data(), int(noStatus.size()), &r, &status), -4);
    Bytes noQosStatus = svcMessage(0x0026, {result()});
    EXPECT_EQ(zovQMIQOSGetQoSStatusResp(noQosStatus.data(), int(noQosStatus.size()), &r, &status), -4);
}

TEST(QosResponses, ExtendedErrorInfoIsReadFromItemE0) {
    uint16_t error = 0;
    Bytes granted = svcMessage(0x0025, {result(1, 0), tlv(0xE0, le16(0x1234))});
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(granted.data(), int(granted.size()), &error), 2);
    EXPECT_EQ(error, 0x1234);
    Bytes profiles = svcMessage(0x0028, {result(1, 0), tlv(0xE0, le16(0x4321))});
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(profiles.data(), int(profiles.size()), &error),
              2);
    EXPECT_EQ(error, 0x4321);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(profiles.data(), int(profiles.size()), &error), -2);
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(granted.data(), int(granted.size()), &error),
              -2);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(granted.data(), int(granted.size()), nullptr), -1);
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(nullptr, 10, &error), -1);
    Bytes none = svcMessage(0x0025, {result()});
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(none.data(), int(none.size()), &error), -3);
    Bytes noneProfiles = svcMessage(0x0028, {result()});
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(noneProfiles.data(),
                                                                         int(noneProfiles.size()), &error),
              -3);
}

// ---------------------------------------------------------- profiles --

const uint8_t* bytesOf(const QoSProfileList& l) { return reinterpret_cast<const uint8_t*>(&l); }

TEST(QosProfiles, ResponseWalksListsByTheirOwnCountsAndAnEmptyListConsumesThreeBytes) {
    Bytes lists = cat({{0x03}, le16(0x0101), {0x02}, le16(0x1111), le16(0x2222),  // two profiles
                       le16(0x0202), {0x00},                                      // empty: 3 bytes
                       le16(0x0303), {0x01}, le16(0x3333)});
    Bytes msg = svcMessage(0x0028, {result(), tlv(0x01, lists)});
    uint16_t a[2] = {0, 0}, c[2] = {0, 0};
    QoSProfileList out[3];
    out[0].profiles = a;
    out[1].profiles = nullptr;
    out[2].profiles = c;
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesResp(msg.data(), int(msg.size()), &r, &count, out),
              int(7 + 3 + lists.size()));
    EXPECT_EQ(count, 3);
    EXPECT_EQ(rd16(bytesOf(out[0])), 0x0101);
    EXPECT_EQ(bytesOf(out[0])[2], 2);
    EXPECT_EQ(a[0], 0x1111);
    EXPECT_EQ(a[1], 0x2222);
    EXPECT_EQ(rd16(bytesOf(out[1])), 0x0202);
    EXPECT_EQ(bytesOf(out[1])[2], 0);
    EXPECT_EQ(rd16(bytesOf(out[2])), 0x0303);
    EXPECT_EQ(bytesOf(out[2])[2], 1);
    EXPECT_EQ(c[0], 0x3333);
    EXPECT_EQ(c[1], 0);
}

TEST(QosProfiles, ResponseWithoutListsDeliversOnlyTheCount) {
    Bytes msg = svcMessage(0x0028, {result(), tlv(0x01, cat({{0x05}, le16(1)}))});
    QmiResult r;
    uint8_t count = 0;
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesResp(msg.data(), int(msg.size()), &r, &count, nullptr), 13);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesResp(msg.data(), int(msg.size()), &r, nullptr, nullptr), -1);
    Bytes noList = svcMessage(0x0028, {result()});
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesResp(noList.data(), int(noList.size()), &r, &count, nullptr), -4);
}

TEST(QosProfiles, ProfileCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0028, {result(), tlv(0x01, cat({{0x01}, le16(0x0101), {0x03}, le16(1), le16(2)}))});
    uint16_t values[3] = {0, 0, 0};
    QoSProfileList out[1];
    std::memset(out, 0xEE, sizeof out);
    out[0].profiles = values;
    QmiResult r;
    uint8_t count = 0xEE;
    EXPECT_EQ(zovQMIQOSGetNWSupportedQoSProfilesResp(msg.data(), int(msg.size()), &r, &count, out),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(rd16(bytesOf(out[0])), 0xEEEE);
    EXPECT_EQ(values[0], 0);
}

TEST(QosProfiles, IndicationReadsOneListFromItem11) {
    Bytes msg = svcMessage(0x0001, {tlv(0x11, cat({le16(0x8001), {0x02}, le16(0x0A0B), le16(0x0C0D)}))}, 0, 0x04);
    uint16_t values[2] = {0, 0};
    QoSProfileList list;
    list.profiles = values;
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(msg.data(), int(msg.size()), &list), 7);
    EXPECT_EQ(rd16(bytesOf(list)), 0x8001);
    EXPECT_EQ(bytesOf(list)[2], 2);
    EXPECT_EQ(values[0], 0x0A0B);
    EXPECT_EQ(values[1], 0x0C0D);
    // Without an array only the technology and the count are stored.
    QoSProfileList bare;
    bare.profiles = nullptr;
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(msg.data(), int(msg.size()), &bare), 7);
    EXPECT_EQ(bytesOf(bare)[2], 2);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(msg.data(), int(msg.size()), nullptr), -1);
    Bytes none = svcMessage(0x0001, {tlv(0x10, {})});
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(none.data(), int(none.size()), &list), -3);
    Bytes other = svcMessage(0x0026, {tlv(0x11, {0, 0, 0})});
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(other.data(), int(other.size()), &list), -2);
}

// --------------------------------------------------------- indications --

TEST(QosIndications, EventReportConfirmsItsId) {
    Bytes msg = svcMessage(0x0001, {tlv(0x10, {}), tlv(0x11, {0, 0, 0})}, 0, 0x04);
    EXPECT_EQ(zovQMIQOSSetEventReportIND(msg.data(), int(msg.size())), 9);
    EXPECT_EQ(zovQMIQOSSetEventReportIND(nullptr, int(msg.size())), -1);
    Bytes other = svcMessage(0x0026, {tlv(0x10, {})});
    EXPECT_EQ(zovQMIQOSSetEventReportIND(other.data(), int(other.size())), -2);
}

TEST(QosIndications, StatusYieldsIdentifierStatusAndEvent) {
    Bytes msg = svcMessage(0x0026, {tlv(0x01, cat({le32(0x01020304), {0x02, 0x05}})), tlv(0x10, {0x07})}, 0, 0x04);
    uint32_t id = 0;
    uint8_t status = 0, event = 0, reason = 0;
    EXPECT_EQ(zovQMIQOSStatusIND(msg.data(), int(msg.size()), &id, &status, &event), 13);
    EXPECT_EQ(id, 0x01020304u);
    EXPECT_EQ(status, 0x02);
    EXPECT_EQ(event, 0x05);
    EXPECT_EQ(zovQMIQOSStatusINDGetReasonCode(msg.data(), int(msg.size()), &reason), 1);
    EXPECT_EQ(reason, 0x07);
    EXPECT_EQ(zovQMIQOSStatusIND(msg.data(), int(msg.size()), nullptr, &status, &event), -1);
    EXPECT_EQ(zovQMIQOSStatusIND(msg.data(), int(msg.size()), &id, nullptr, &event), -1);
    EXPECT_EQ(zovQMIQOSStatusIND(msg.data(), int(msg.size()), &id, &status, nullptr), -1);
    EXPECT_EQ(zovQMIQOSStatusINDGetReasonCode(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0026, {tlv(0x11, {0})});
    EXPECT_EQ(zovQMIQOSStatusIND(bare.data(), int(bare.size()), &id, &status, &event), -3);
    EXPECT_EQ(zovQMIQOSStatusINDGetReasonCode(bare.data(), int(bare.size()), &reason), -3);
    Bytes other = svcMessage(0x0027, {tlv(0x01, {0})});
    EXPECT_EQ(zovQMIQOSStatusIND(other.data(), int(other.size()), &id, &status, &event), -2);
    EXPECT_EQ(zovQMIQOSStatusINDGetReasonCode(other.data(), int(other.size()), &reason), -2);
}

TEST(QosIndications, StatusCutShortIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0026, {tlv(0x01, cat({le32(0x01020304), {0x02}}))});
    uint32_t id = 0;
    uint8_t status = 0xEE, event = 0xEE;
    EXPECT_EQ(zovQMIQOSStatusIND(msg.data(), int(msg.size()), &id, &status, &event), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(id, 0u);
    EXPECT_EQ(status, 0xEE);
}

TEST(QosIndications, NetworkStatusYieldsOneByte) {
    Bytes msg = svcMessage(0x0027, {tlv(0x01, {0x01})});
    uint8_t status = 0;
    EXPECT_EQ(zovQMIQOSNetworkStatusIND(msg.data(), int(msg.size()), &status), 4);
    EXPECT_EQ(status, 0x01);
    EXPECT_EQ(zovQMIQOSNetworkStatusIND(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0027, {tlv(0x10, {})});
    EXPECT_EQ(zovQMIQOSNetworkStatusIND(bare.data(), int(bare.size()), &status), -3);
}

TEST(QosIndications, PrimaryQoSEventYieldsAWord) {
    Bytes msg = svcMessage(0x0029, {tlv(0x01, le16(0x0102))});
    uint16_t event = 0;
    EXPECT_EQ(zovQMIQOSPrimaryQoSEventIND(msg.data(), int(msg.size()), &event), 5);
    EXPECT_EQ(event, 0x0102);
    EXPECT_EQ(zovQMIQOSPrimaryQoSEventIND(msg.data(), int(msg.size()), nullptr), -1);
    Bytes other = svcMessage(0x0028, {tlv(0x01, le16(1))});
    EXPECT_EQ(zovQMIQOSPrimaryQoSEventIND(other.data(), int(other.size()), &event), -2);
    Bytes bare = svcMessage(0x0029, {tlv(0x10, {})});
    EXPECT_EQ(zovQMIQOSPrimaryQoSEventIND(bare.data(), int(bare.size()), &event), -3);
}

}  // namespace
