// WMS, the wireless messaging service: message storage, sending and acknowledgement.
#include <cstddef>

#include "testutil.h"

using namespace t;

// The raw message head is 10 bytes on every host; the raw bytes follow it.
static_assert(sizeof(WMSRawMessage) == 10, "raw message head");
static_assert(offsetof(WMSRawMessage, routeFlag) == 0, "route flag");
static_assert(offsetof(WMSRawMessage, routeReference) == 1, "route reference");
static_assert(offsetof(WMSRawMessage, memoryStore) == 5, "memory store");
static_assert(offsetof(WMSRawMessage, messageTag) == 6, "message tag");
static_assert(offsetof(WMSRawMessage, messageFormat) == 7, "message format");
static_assert(offsetof(WMSRawMessage, length) == 8, "raw length");
static_assert(offsetof(WMSRawMessage, data) == 10, "raw data");

namespace {

WMSRawMessage* asRaw(Bytes& b) { return reinterpret_cast<WMSRawMessage*>(b.data()); }

// A caller record: head bytes 0-6 set to recognisable values, then format,
// length and data.
Bytes rawRecord(uint8_t store, uint8_t format, const Bytes& data) {
    return cat({{0xA0, 0xA1, 0xA2, 0xA3, 0xA4, store, 0xA6, format}, le16(uint16_t(data.size())), data});
}

// ------------------------------------------------------------- requests --

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    Bytes expected;  // after the header
    uint16_t id;
};

TEST(WmsRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"Reset", [](uint8_t* b, int n) { return zovQMIWMSResetReq(b, n); }, {}, 0x0000},
        {"SetEventReport", [](uint8_t* b, int n) { return zovQMIWMSSetEventReportReq(b, n); }, {}, 0x0001},
        {"RawRead", [](uint8_t* b, int n) { return zovQMIWMSRawReadReq(b, n, 0x01, 0x11223344); },
         tlv(0x01, cat({{0x01}, le32(0x11223344)})), 0x0022},
        {"ModifyTag", [](uint8_t* b, int n) { return zovQMIWMSModifyTagReq(b, n, 0x02, 0x0A0B0C0D, 0x03); },
         tlv(0x01, cat({{0x02}, le32(0x0A0B0C0D), {0x03}})), 0x0023},
        {"Delete", [](uint8_t* b, int n) { return zovQMIWMSDeleteReq(b, n, 0x04); }, tlv(0x01, {0x04}), 0x0024},
        {"GetMessageProtocol", [](uint8_t* b, int n) { return zovQMIWMSGetMessageProtocolReq(b, n); }, {}, 0x0030},
        {"ListMessages", [](uint8_t* b, int n) { return zovQMIWMSListMessagesReq(b, n, 0x05); }, tlv(0x01, {0x05}),
         0x0031},
        {"SendACK", [](uint8_t* b, int n) { return zovQMIWMSSendACKReq(b, n, 0x01020304, 0x06, 0x07); },
         tlv(0x01, cat({le32(0x01020304), {0x06, 0x07}})), 0x0037},
        {"SendFromMemStore", [](uint8_t* b, int n) { return zovQMIWMSSendFromMemStoreReq(b, n, 0x08, 0x55667788, 0x09); },
         tlv(0x01, cat({{0x08}, le32(0x55667788), {0x09}})), 0x0042},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int size = 7 + int(r.expected.size());
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), size - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, size), -1);
        EXPECT_EQ(r.build(buf.data(), size), size);
        EXPECT_EQ(head(buf, size_t(size) + 1), cat({reqHeader(r.id, uint16_t(r.expected.size())), r.expected, {0xEE}}));
    }
}

TEST(WmsRequests, FixedSizesAreSevenElevenFifteenAndSixteen) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSResetReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMIWMSDeleteReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWMSListMessagesReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWMSRawReadReq(buf.data(), 32, 0, 0), 15);
    EXPECT_EQ(zovQMIWMSModifyTagReq(buf.data(), 32, 0, 0, 0), 16);
    EXPECT_EQ(zovQMIWMSSendACKReq(buf.data(), 32, 0, 0, 0), 16);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreReq(buf.data(), 32, 0, 0, 0), 16);
}

struct OptionalItem {
    const char* name;
    int (*start)(uint8_t*, int);
    int (*add)(uint8_t*, int);
    uint8_t type;
    Bytes value;
};

int rawSendStart(uint8_t* b, int n) {
    Bytes rec = rawRecord(0, 0x06, {0x31});
    return zovQMIWMSRawSendReq(b, n, asRaw(rec));
}

TEST(WmsRequests, EveryOptionalItemIsAppendedWithItsTypeAndValue) {
    const OptionalItem items[] = {
        {"SetEventReport NewMTMessageIndicator", [](uint8_t* b, int n) { return zovQMIWMSSetEventReportReq(b, n); },
         [](uint8_t* b, int n) { return zovQMIWMSSetEventReportReqAddNewMTMessageIndicator(b, n, 0x01); }, 0x10,
         {0x01}},
        {"RawSend ForceOnDC", rawSendStart,
         [](uint8_t* b, int n) { return zovQMIWMSRawSendReqAddForceOnDC(b, n, 0x01, 0x02); }, 0x10, {0x01, 0x02}},
        {"RawSend FollowOnDC", rawSendStart, [](uint8_t* b, int n) { return zovQMIWMSRawSendReqAddFollowOnDC(b, n, 0x03); },
         0x11, {0x03}},
        {"RawSend LinkControl", rawSendStart,
         [](uint8_t* b, int n) { return zovQMIWMSRawSendReqAddLinkControl(b, n, 0x04); }, 0x12, {0x04}},
        {"RawRead MessageMode", [](uint8_t* b, int n) { return zovQMIWMSRawReadReq(b, n, 1, 2); },
         [](uint8_t* b, int n) { return zovQMIWMSRawReadReqAddMessageMode(b, n, 0x05); }, 0x10, {0x05}},
        {"ModifyTag MessageMode", [](uint8_t* b, int n) { return zovQMIWMSModifyTagReq(b, n, 1, 2, 3); },
         [](uint8_t* b, int n) { return zovQMIWMSModifyTagReqAddMessageMode(b, n, 0x06); }, 0x10, {0x06}},
        {"Delete MemoryIndex", [](uint8_t* b, int n) { return zovQMIWMSDeleteReq(b, n, 1); },
         [](uint8_t* b, int n) { return zovQMIWMSDeleteReqAddMemoryIndex(b, n, 0x0A0B0C0D); }, 0x10,
         le32(0x0A0B0C0D)},
        {"Delete MessageTag", [](uint8_t* b, int n) { return zovQMIWMSDeleteReq(b, n, 1); },
         [](uint8_t* b, int n) { return zovQMIWMSDeleteReqAddMessageTag(b, n, 0x07); }, 0x11, {0x07}},
        {"Delete MessageMode", [](uint8_t* b, int n) { return zovQMIWMSDeleteReq(b, n, 1); },
         [](uint8_t* b, int n) { return zovQMIWMSDeleteReqAddMessageMode(b, n, 0x08); }, 0x12, {0x08}},
        {"ListMessages RequestedTag", [](uint8_t* b, int n) { return zovQMIWMSListMessagesReq(b, n, 1); },
         [](uint8_t* b, int n) { return zovQMIWMSListMessagesReqAddRequestedTag(b, n, 0x09); }, 0x10, {0x09}},
        {"ListMessages MessageMode", [](uint8_t* b, int n) { return zovQMIWMSListMessagesReq(b, n, 1); },
         [](uint8_t* b, int n) { return zovQMIWMSListMessagesReqAddMessageMode(b, n, 0x0A); }, 0x11, {0x0A}},
        {"SendACK 3GPP2FailureInformation", [](uint8_t* b, int n) { return zovQMIWMSSendACKReq(b, n, 1, 2, 3); },
         [](uint8_t* b, int n) { return zovQMIWMSSendACKReqAdd3GPP2FailureInformation(b, n, 0x0B, 0x0C); }, 0x10,
         {0x0B, 0x0C}},
        {"SendACK 3GPPFailureInformation", [](uint8_t* b, int n) { return zovQMIWMSSendACKReq(b, n, 1, 2, 3); },
         [](uint8_t* b, int n) { return zovQMIWMSSendACKReqAdd3GPPFailureInformation(b, n, 0x0D, 0x0E); }, 0x11,
         {0x0D, 0x0E}},
    };
    for (const OptionalItem& it : items) {
        SCOPED_TRACE(it.name);
        Bytes buf = buffer(64);
        int base = it.start(buf.data(), 64);
        ASSERT_GT(base, 0);
        Bytes before = buf;
        int total = base + 3 + int(it.value.size());
        // One byte short: nothing changes.
        EXPECT_EQ(it.add(buf.data(), total - 1), -2);
        EXPECT_EQ(buf, before);
        EXPECT_EQ(it.add(nullptr, 64), -1);
        EXPECT_EQ(it.add(buf.data(), total), total);
        EXPECT_EQ(rd16(&buf[5]), uint16_t(total - 7));
        EXPECT_EQ(Bytes(buf.begin() + base, buf.begin() + total + 1), cat({tlv(it.type, it.value), {0xEE}}));
        // Items append every time they are called.
        EXPECT_EQ(it.add(buf.data(), 64), total + 3 + int(it.value.size()));
    }
}

TEST(WmsRequests, RawSendCopiesFormatLengthAndRawBytesOnly) {
    Bytes rec = rawRecord(0x77, 0x06, str("HELLO"));
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSRawSendReq(buf.data(), 32, asRaw(rec)), 18);
    EXPECT_EQ(head(buf, 19), cat({reqHeader(0x0020, 11), tlv(0x01, cat({{0x06}, le16(5), str("HELLO")})), {0xEE}}));
}

TEST(WmsRequests, RawSendWithLengthZeroIsThirteenBytesAndCopiesNoData) {
    Bytes rec = rawRecord(0x00, 0x01, {});
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIWMSRawSendReq(buf.data(), 16, asRaw(rec)), 13);
    EXPECT_EQ(head(buf, 14), cat({reqHeader(0x0020, 6), tlv(0x01, {0x01, 0x00, 0x00}), {0xEE}}));
}

TEST(WmsRequests, RawSendNeedsExactlyLengthPlusThirteenBytes) {
    Bytes rec = rawRecord(0x00, 0x02, str("ABCD"));
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSRawSendReq(buf.data(), 16, asRaw(rec)), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSRawSendReq(buf.data(), 17, asRaw(rec)), 17);
    EXPECT_EQ(buf[17], 0xEE);
    EXPECT_EQ(zovQMIWMSRawSendReq(buf.data(), 32, nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawSendReq(nullptr, 32, asRaw(rec)), -1);
}

TEST(WmsRequests, RawWriteCarriesTheMemoryStoreAndNeedsLengthPlusFourteenBytes) {
    Bytes rec = rawRecord(0x01, 0x06, str("ABC"));
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSRawWriteReq(buf.data(), 16, asRaw(rec)), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSRawWriteReq(buf.data(), 17, asRaw(rec)), 17);
    EXPECT_EQ(head(buf, 18), cat({reqHeader(0x0021, 10), tlv(0x01, cat({{0x01, 0x06}, le16(3), str("ABC")})), {0xEE}}));
    EXPECT_EQ(zovQMIWMSRawWriteReq(buf.data(), 32, nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawWriteReq(nullptr, 32, asRaw(rec)), -1);
    Bytes empty = rawRecord(0x02, 0x00, {});
    EXPECT_EQ(zovQMIWMSRawWriteReq(buf.data(), 14, asRaw(empty)), 14);
    EXPECT_EQ(head(buf, 14), cat({reqHeader(0x0021, 7), tlv(0x01, {0x02, 0x00, 0x00, 0x00})}));
}

TEST(WmsRequests, SetEventReportRequestAndIndicationShareMessageIdOne) {
    Bytes buf = buffer(16);
    ASSERT_EQ(zovQMIWMSSetEventReportReq(buf.data(), 16), 7);
    EXPECT_EQ(rd16(&buf[3]), 0x0001);
    Bytes msg = svcMessage(0x0001, {result(), tlv(0x12, {0x01})}, 0x1234, 0x04);
    QmiResult r;
    EXPECT_EQ(zovQMIWMSEventReportIND(msg.data(), int(msg.size())), 11);
    EXPECT_EQ(zovQMIWMSSetEventReportResp(msg.data(), int(msg.size()), &r), 11);
}

// ------------------------------------------------------------ responses --

TEST(WmsResponses, ResultOnlyResponsesReturnTheAreaLength) {
    using Parser = int (*)(const uint8_t*, int, QmiResult*);
    struct Case {
        uint16_t id;
        Parser parse;
    } cases[] = {{0x0000, zovQMIWMSResetResp},     {0x0001, zovQMIWMSSetEventReportResp},
                 {0x0023, zovQMIWMSModifyTagResp}, {0x0024, zovQMIWMSDeleteResp},
                 {0x0037, zovQMIWMSSendACKResp},   {0x0042, zovQMIWMSSendFromMemStoreResp}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.id);
        Bytes msg = svcMessage(c.id, {result(1, 0x30)});
        QmiResult r;
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), &r), 7);
        EXPECT_EQ(res(r), (Res{1, 0x30}));
        EXPECT_EQ(c.parse(msg.data(), int(msg.size()), nullptr), -1);
        EXPECT_EQ(c.parse(nullptr, int(msg.size()), &r), -1);
        Bytes other = svcMessage(uint16_t(c.id + 0x100), {result()});
        EXPECT_EQ(c.parse(other.data(), int(other.size()), &r), -2);
        Bytes none = svcMessage(c.id, {tlv(0x10, {0x00})});
        EXPECT_EQ(c.parse(none.data(), int(none.size()), &r), -3);
    }
}

TEST(WmsResponses, RawSendYieldsTheMessageId) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x01, le16(0x0A0B))});
    QmiResult r;
    uint16_t id = 0;
    EXPECT_EQ(zovQMIWMSRawSendResp(msg.data(), int(msg.size()), &r, &id), 12);
    EXPECT_EQ(id, 0x0A0B);
    EXPECT_EQ(zovQMIWMSRawSendResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes noId = svcMessage(0x0020, {result(1, 0x20)});
    r = untouchedResult();
    id = 0xEEEE;
    EXPECT_EQ(zovQMIWMSRawSendResp(noId.data(), int(noId.size()), &r, &id), -4);
    EXPECT_EQ(res(r), (Res{1, 0x20}));
    EXPECT_EQ(id, 0xEEEE);
    Bytes noResult = svcMessage(0x0020, {tlv(0x01, le16(1))});
    EXPECT_EQ(zovQMIWMSRawSendResp(noResult.data(), int(noResult.size()), &r, &id), -3);
    Bytes other = svcMessage(0x0021, {result(), tlv(0x01, le16(1))});
    EXPECT_EQ(zovQMIWMSRawSendResp(other.data(), int(other.size()), &r, &id), -2);
}

// One failure report carrying the items at 0x10 to 0x13.
Bytes failureItems(uint16_t id) {
    return svcMessage(id, {result(1, 0x20), tlv(0x10, le16(0x1111)), tlv(0x11, le16(0x2203)),
                           tlv(0x12, cat({le16(0x3304), {0x05}})), tlv(0x13, cat({le16(0x4444), {0x06}}))});
}

TEST(WmsResponses, RawSendFailureItemsSitAtTypesSixteenToEighteen) {
    Bytes msg = failureItems(0x0020);
    int n = int(msg.size());
    uint16_t cause = 0, gw = 0;
    uint8_t errorClass = 0, extra = 0;
    EXPECT_EQ(zovQMIWMSRawSendRespGetCauseCode(msg.data(), n, &cause), 2);
    EXPECT_EQ(cause, 0x1111);
    EXPECT_EQ(zovQMIWMSRawSendRespGetErrorClass(msg.data(), n, &errorClass), 2);
    EXPECT_EQ(errorClass, 0x03);
    EXPECT_EQ(zovQMIWMSRawSendRespGetGWCauseInformation(msg.data(), n, &gw, &extra), 3);
    EXPECT_EQ(gw, 0x3304);
    EXPECT_EQ(extra, 0x05);
}

TEST(WmsResponses, SendFromMemStoreFailureItemsSitOneTypeHigherBehindTheMessageId) {
    Bytes msg = failureItems(0x0042);
    int n = int(msg.size());
    uint16_t id = 0, cause = 0, errorClass = 0, gw = 0;
    uint8_t extra = 0;
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetMessageID(msg.data(), n, &id), 2);
    EXPECT_EQ(id, 0x1111);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetCauseCode(msg.data(), n, &cause), 2);
    EXPECT_EQ(cause, 0x2203);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetErrorClass(msg.data(), n, &errorClass), 3);
    EXPECT_EQ(errorClass, 0x3304);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(msg.data(), n, &gw, &extra), 3);
    EXPECT_EQ(gw, 0x4444);
    EXPECT_EQ(extra, 0x06);
}

TEST(WmsResponses, ErrorClassIsOneByteInRawSendButSixteenBitsInSendFromMemStore) {
    // The same error class item, 0x0102, read by both getters.
    Bytes raw = svcMessage(0x0020, {result(), tlv(0x11, le16(0x0102))});
    Bytes stored = svcMessage(0x0042, {result(), tlv(0x12, le16(0x0102))});
    uint8_t oneByte = 0;
    uint16_t twoBytes = 0;
    EXPECT_EQ(zovQMIWMSRawSendRespGetErrorClass(raw.data(), int(raw.size()), &oneByte), 2);
    EXPECT_EQ(oneByte, 0x02);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetErrorClass(stored.data(), int(stored.size()), &twoBytes), 2);
    EXPECT_EQ(twoBytes, 0x0102);
    // A one-byte item at the end of the buffer is enough for the first, not for the second.
    Bytes rawShort = svcMessage(0x0020, {result(), tlv(0x11, {0x07})});
    Bytes storedShort = svcMessage(0x0042, {result(), tlv(0x12, {0x07})});
    EXPECT_EQ(zovQMIWMSRawSendRespGetErrorClass(rawShort.data(), int(rawShort.size()), &oneByte), 1);
    EXPECT_EQ(oneByte, 0x07);
    twoBytes = 0xEEEE;
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetErrorClass(storedShort.data(), int(storedShort.size()), &twoBytes),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(twoBytes, 0xEEEE);
}

TEST(WmsResponses, SendFailureGettersReportMissingItemsMessagesAndOutputs) {
    Bytes bare = svcMessage(0x0020, {result()});
    Bytes bareStore = svcMessage(0x0042, {result()});
    Bytes msg = failureItems(0x0020);
    Bytes msgStore = failureItems(0x0042);
    uint16_t v16 = 0;
    uint8_t v8 = 0;
    EXPECT_EQ(zovQMIWMSRawSendRespGetCauseCode(bare.data(), int(bare.size()), &v16), -3);
    EXPECT_EQ(zovQMIWMSRawSendRespGetErrorClass(bare.data(), int(bare.size()), &v8), -3);
    EXPECT_EQ(zovQMIWMSRawSendRespGetGWCauseInformation(bare.data(), int(bare.size()), &v16, &v8), -3);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetMessageID(bareStore.data(), int(bareStore.size()), &v16), -3);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetCauseCode(bareStore.data(), int(bareStore.size()), &v16), -3);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetErrorClass(bareStore.data(), int(bareStore.size()), &v16), -3);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(bareStore.data(), int(bareStore.size()), &v16, &v8),
              -3);
    // Each family looks only at its own message id.
    EXPECT_EQ(zovQMIWMSRawSendRespGetCauseCode(msgStore.data(), int(msgStore.size()), &v16), -2);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetCauseCode(msg.data(), int(msg.size()), &v16), -2);
    EXPECT_EQ(zovQMIWMSRawSendRespGetCauseCode(msg.data(), int(msg.size()), nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawSendRespGetErrorClass(msg.data(), int(msg.size()), nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawSendRespGetGWCauseInformation(msg.data(), int(msg.size()), &v16, nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawSendRespGetGWCauseInformation(msg.data(), int(msg.size()), nullptr, &v8), -1);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetMessageID(msgStore.data(), int(msgStore.size()), nullptr), -1);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetCauseCode(nullptr, int(msgStore.size()), &v16), -1);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetErrorClass(msgStore.data(), int(msgStore.size()), nullptr), -1);
    EXPECT_EQ(zovQMIWMSSendFromMemStoreRespGetGWCauseInformation(msgStore.data(), int(msgStore.size()), nullptr, &v8),
              -1);
}

TEST(WmsResponses, RawWriteYieldsTheMemoryIndex) {
    Bytes msg = svcMessage(0x0021, {result(), tlv(0x01, le32(0x01020304))});
    QmiResult r;
    uint32_t index = 0;
    EXPECT_EQ(zovQMIWMSRawWriteResp(msg.data(), int(msg.size()), &r, &index), 14);
    EXPECT_EQ(index, 0x01020304u);
    EXPECT_EQ(zovQMIWMSRawWriteResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes noIndex = svcMessage(0x0021, {result()});
    EXPECT_EQ(zovQMIWMSRawWriteResp(noIndex.data(), int(noIndex.size()), &r, &index), -4);
}

TEST(WmsResponses, RawReadFillsTagFormatLengthAndDataAndLeavesTheRouteHeadAlone) {
    Bytes value = cat({{0x03, 0x06}, le16(4), str("TEXT")});
    Bytes msg = svcMessage(0x0022, {result(), tlv(0x01, value)});
    QmiResult r;
    Bytes rec = buffer(20);
    EXPECT_EQ(zovQMIWMSRawReadResp(msg.data(), int(msg.size()), &r, asRaw(rec)), int(7 + 3 + value.size()));
    EXPECT_EQ(rec, cat({fill(6, 0xEE), {0x03, 0x06}, le16(4), str("TEXT"), fill(6, 0xEE)}));
    EXPECT_EQ(zovQMIWMSRawReadResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    EXPECT_EQ(zovQMIWMSRawReadResp(msg.data(), int(msg.size()), nullptr, asRaw(rec)), -1);
    Bytes noBody = svcMessage(0x0022, {result()});
    EXPECT_EQ(zovQMIWMSRawReadResp(noBody.data(), int(noBody.size()), &r, asRaw(rec)), -4);
}

TEST(WmsResponses, RawReadWithARawLengthPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0022, {result(), tlv(0x01, cat({{0x03, 0x06}, le16(9), str("TEXT")}))});
    QmiResult r;
    Bytes rec = buffer(20);
    EXPECT_EQ(zovQMIWMSRawReadResp(msg.data(), int(msg.size()), &r, asRaw(rec)), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rec, buffer(20));
}

TEST(WmsResponses, GetMessageProtocolYieldsTheProtocol) {
    Bytes msg = svcMessage(0x0030, {result(), tlv(0x01, {0x01})});
    QmiResult r;
    uint8_t protocol = 0;
    EXPECT_EQ(zovQMIWMSGetMessageProtocolResp(msg.data(), int(msg.size()), &r, &protocol), 11);
    EXPECT_EQ(protocol, 0x01);
    EXPECT_EQ(zovQMIWMSGetMessageProtocolResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes bare = svcMessage(0x0030, {result()});
    EXPECT_EQ(zovQMIWMSGetMessageProtocolResp(bare.data(), int(bare.size()), &r, &protocol), -4);
}

Bytes listValue() {
    return cat({le32(3), le32(0x0A), {0x01}, le32(0x0B), {0x02}, le32(0x0C0D0E0F), {0x03}});
}

TEST(WmsResponses, ListMessagesFillsIndexesAndTags) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, listValue())});
    QmiResult r;
    uint32_t count = 0;
    uint32_t indexes[4] = {0xEEEEEEEE, 0xEEEEEEEE, 0xEEEEEEEE, 0xEEEEEEEE};
    uint8_t tags[4] = {0xEE, 0xEE, 0xEE, 0xEE};
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, indexes, tags),
              int(7 + 3 + listValue().size()));
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(indexes[0], 0x0Au);
    EXPECT_EQ(indexes[1], 0x0Bu);
    EXPECT_EQ(indexes[2], 0x0C0D0E0Fu);
    EXPECT_EQ(indexes[3], 0xEEEEEEEEu);
    EXPECT_EQ(Bytes(tags, tags + 4), Bytes({0x01, 0x02, 0x03, 0xEE}));
}

TEST(WmsResponses, ListMessagesSkipsANullArrayEntryByEntryWhileFillingTheOther) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, listValue())});
    QmiResult r;
    uint32_t count = 0;
    uint32_t indexes[3] = {};
    uint8_t tags[3] = {};
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, nullptr, tags), 29);
    EXPECT_EQ(Bytes(tags, tags + 3), Bytes({0x01, 0x02, 0x03}));
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, indexes, nullptr), 29);
    EXPECT_EQ(indexes[2], 0x0C0D0E0Fu);
    EXPECT_EQ(count, 3u);
}

TEST(WmsResponses, ListMessagesWithCountZeroTouchesNeitherArray) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, le32(0))});
    QmiResult r;
    uint32_t count = 0xEE;
    uint32_t indexes[1] = {0xEEEEEEEE};
    uint8_t tags[1] = {0xEE};
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, indexes, tags), 14);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(indexes[0], 0xEEEEEEEEu);
    EXPECT_EQ(tags[0], 0xEE);
}

TEST(WmsResponses, ListMessagesCountIsThirtyTwoBitsWide) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, le32(0x01000002))});
    QmiResult r;
    uint32_t count = 0;
    // Without arrays only the count is read.
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, nullptr, nullptr), 14);
    EXPECT_EQ(count, 0x01000002u);
}

TEST(WmsResponses, ListMessagesRequiresResultAndCount) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, listValue())});
    QmiResult r;
    uint32_t count = 0;
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), nullptr, &count, nullptr, nullptr), -1);
    Bytes bare = svcMessage(0x0031, {result()});
    EXPECT_EQ(zovQMIWMSListMessagesResp(bare.data(), int(bare.size()), &r, &count, nullptr, nullptr), -4);
}

TEST(WmsResponses, ListMessagesCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0031, {result(), tlv(0x01, cat({le32(0xFFFFFFFF), le32(0x0A), {0x01}}))});
    QmiResult r;
    uint32_t count = 0xEE;
    uint32_t indexes[2] = {0xEEEEEEEE, 0xEEEEEEEE};
    uint8_t tags[2] = {0xEE, 0xEE};
    EXPECT_EQ(zovQMIWMSListMessagesResp(msg.data(), int(msg.size()), &r, &count, indexes, tags),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEu);
    EXPECT_EQ(indexes[0], 0xEEEEEEEEu);
    EXPECT_EQ(tags[0], 0xEE);
}

// ----------------------------------------------------------- indications --

TEST(WmsIndications, EventReportConfirmsTheIdOnly) {
    Bytes msg = svcMessage(0x0001, {tlv(0x12, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSEventReportIND(msg.data(), int(msg.size())), 4);
    Bytes other = svcMessage(0x0002, {tlv(0x10, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSEventReportIND(other.data(), int(other.size())), -2);
    EXPECT_EQ(zovQMIWMSEventReportIND(nullptr, 7), -1);
}

TEST(WmsIndications, MTMessageYieldsStoreAndIndex) {
    Bytes msg = svcMessage(0x0001, {tlv(0x10, cat({{0x01}, le32(0x00000102)}))}, 0, 0x04);
    uint8_t store = 0;
    uint32_t index = 0;
    EXPECT_EQ(zovQMIWMSEventReportINDGetMTMessage(msg.data(), int(msg.size()), &store, &index), 5);
    EXPECT_EQ(store, 0x01);
    EXPECT_EQ(index, 0x102u);
    EXPECT_EQ(zovQMIWMSEventReportINDGetMTMessage(msg.data(), int(msg.size()), nullptr, &index), -1);
    EXPECT_EQ(zovQMIWMSEventReportINDGetMTMessage(msg.data(), int(msg.size()), &store, nullptr), -1);
    Bytes bare = svcMessage(0x0001, {tlv(0x12, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSEventReportINDGetMTMessage(bare.data(), int(bare.size()), &store, &index), -3);
}

TEST(WmsIndications, MessageModeYieldsTheMode) {
    Bytes msg = svcMessage(0x0001, {tlv(0x12, {0x01})}, 0, 0x04);
    uint8_t mode = 0;
    EXPECT_EQ(zovQMIWMSEventReportINDGetMessageMode(msg.data(), int(msg.size()), &mode), 1);
    EXPECT_EQ(mode, 0x01);
    EXPECT_EQ(zovQMIWMSEventReportINDGetMessageMode(msg.data(), int(msg.size()), nullptr), -1);
    Bytes other = svcMessage(0x0022, {tlv(0x12, {0x01})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSEventReportINDGetMessageMode(other.data(), int(other.size()), &mode), -2);
}

TEST(WmsIndications, TransferRouteMTMessageLeavesMemoryStoreAndTagAsTheyWere) {
    Bytes value = cat({{0x01}, le32(0x0A0B0C0D), {0x06}, le16(3), str("XYZ")});
    Bytes msg = svcMessage(0x0001, {tlv(0x11, value)}, 0, 0x04);
    Bytes rec = buffer(16);
    EXPECT_EQ(zovQMIWMSEventReportINDGetTransferRouteMTMessage(msg.data(), int(msg.size()), asRaw(rec)),
              int(value.size()));
    EXPECT_EQ(rec, cat({{0x01}, le32(0x0A0B0C0D), {0xEE, 0xEE, 0x06}, le16(3), str("XYZ"), fill(3, 0xEE)}));
    EXPECT_EQ(rd32(&rec[offsetof(WMSRawMessage, routeReference)]), 0x0A0B0C0Du);
    EXPECT_EQ(rd16(&rec[offsetof(WMSRawMessage, length)]), 3);
    EXPECT_EQ(zovQMIWMSEventReportINDGetTransferRouteMTMessage(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0001, {tlv(0x10, cat({{0x01}, le32(1)}))}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSEventReportINDGetTransferRouteMTMessage(bare.data(), int(bare.size()), asRaw(rec)), -3);
}

TEST(WmsIndications, TransferRouteMTMessageCutShortByTheBufferIsMalformedAndWritesNothing) {
    Bytes value = cat({{0x01}, le32(0x0A0B0C0D), {0x06}, le16(3), str("XYZ")});
    Bytes msg = svcMessage(0x0001, {tlv(0x11, value)}, 0, 0x04);
    Bytes rec = buffer(16);
    EXPECT_EQ(zovQMIWMSEventReportINDGetTransferRouteMTMessage(msg.data(), int(msg.size()) - 1, asRaw(rec)),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rec, buffer(16));
}

}  // namespace
