// WMS, the wireless messaging service: message storage, sending and
// acknowledgement, routes, service centre address, retry settings, broadcast
// configuration and message waiting.
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

static_assert(sizeof(WMSBroadcastConfigEntry) == 9, "broadcast entry");
static_assert(offsetof(WMSBroadcastConfigEntry, first3GPP) == 0, "3GPP first word");
static_assert(offsetof(WMSBroadcastConfigEntry, second3GPP) == 2, "3GPP second word");
static_assert(offsetof(WMSBroadcastConfigEntry, first3GPP2) == 4, "3GPP2 first word");
static_assert(offsetof(WMSBroadcastConfigEntry, second3GPP2) == 6, "3GPP2 second word");
static_assert(offsetof(WMSBroadcastConfigEntry, selection) == 8, "selection byte");

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

// Each request refuses a buffer one byte short of its fixed size and a null
// buffer, then writes exactly its header and mandatory item.
template <size_t N>
void checkFixedRequests(const FixedRequest (&requests)[N]) {
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
    checkFixedRequests(requests);
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

// A response that carries only the result item.
struct ResultOnly {
    uint16_t id;
    int (*parse)(const uint8_t*, int, QmiResult*);
};

// Result stored and area length returned; -1, -2 and -3 on their paths.
template <size_t N>
void checkResultOnly(const ResultOnly (&cases)[N]) {
    for (const ResultOnly& c : cases) {
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

TEST(WmsResponses, ResultOnlyResponsesReturnTheAreaLength) {
    const ResultOnly cases[] = {{0x0000, zovQMIWMSResetResp},     {0x0001, zovQMIWMSSetEventReportResp},
                 {0x0023, zovQMIWMSModifyTagResp}, {0x0024, zovQMIWMSDeleteResp},
                 {0x0037, zovQMIWMSSendACKResp},   {0x0042, zovQMIWMSSendFromMemStoreResp}};
    checkResultOnly(cases);
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

// ======================================================== configuration ==

// ------------------------------------------------------------- requests --


TEST(WmsConfigRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"GetRoutes", [](uint8_t* b, int n) { return zovQMIWMSGetRoutesReq(b, n); }, {}, 0x0033},
        {"GetSMSCAddress", [](uint8_t* b, int n) { return zovQMIWMSGetSMSCAddressReq(b, n); }, {}, 0x0034},
        {"GetStoreMaxSize", [](uint8_t* b, int n) { return zovQMIWMSGetStoreMaxSizeReq(b, n, 0x01); },
         tlv(0x01, {0x01}), 0x0036},
        {"SetRetryPeriod", [](uint8_t* b, int n) { return zovQMIWMSSetRetryPeriodReq(b, n, 0x01020304); },
         tlv(0x01, le32(0x01020304)), 0x0038},
        {"SetRetryInterval", [](uint8_t* b, int n) { return zovQMIWMSSetRetryIntervalReq(b, n, 0x05060708); },
         tlv(0x01, le32(0x05060708)), 0x0039},
        {"SetDCDisconnectTimer", [](uint8_t* b, int n) { return zovQMIWMSSetDCDisconnectTimerReq(b, n, 0x0A0B0C0D); },
         tlv(0x01, le32(0x0A0B0C0D)), 0x003A},
        {"SetMemoryStatus", [](uint8_t* b, int n) { return zovQMIWMSSetMemoryStatusReq(b, n, 0x02); },
         tlv(0x01, {0x02}), 0x003B},
        {"SetBroadcastActivation", [](uint8_t* b, int n) { return zovQMIWMSSetBroadcastActivationReq(b, n, 0x03, 0x04); },
         tlv(0x01, {0x03, 0x04}), 0x003C},
        {"SetBroadcastConfig", [](uint8_t* b, int n) { return zovQMIWMSSetBroadcastConfigReq(b, n, 0x05); },
         tlv(0x01, {0x05}), 0x003D},
        {"GetBroadcastConfig", [](uint8_t* b, int n) { return zovQMIWMSGetBroadcastConfigReq(b, n, 0x06); },
         tlv(0x01, {0x06}), 0x003E},
        {"GetDomainPref", [](uint8_t* b, int n) { return zovQMIWMSGetDomainPrefReq(b, n); }, {}, 0x0040},
        {"SetDomainPref", [](uint8_t* b, int n) { return zovQMIWMSSetDomainPrefReq(b, n, 0x07); }, tlv(0x01, {0x07}),
         0x0041},
        {"GetMessageWaiting", [](uint8_t* b, int n) { return zovQMIWMSGetMessageWaitingReq(b, n); }, {}, 0x0043},
        {"SetPrimaryClient", [](uint8_t* b, int n) { return zovQMIWMSSetPrimaryClientReq(b, n, 0x08); },
         tlv(0x01, {0x08}), 0x0045},
    };
    checkFixedRequests(requests);
}

TEST(WmsConfigRequests, FixedSizesMatchTheirMessages) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSGetRoutesReq(buf.data(), 32), 7);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReq(buf.data(), 32, 0), 11);
    EXPECT_EQ(zovQMIWMSSetRetryPeriodReq(buf.data(), 32, 0), 14);
    EXPECT_EQ(zovQMIWMSSetBroadcastActivationReq(buf.data(), 32, 0, 0), 12);
    EXPECT_EQ(zovQMIWMSSetPrimaryClientReq(buf.data(), 32, 0), 11);
}

TEST(WmsConfigRequests, SetRoutesWritesCountAndRoutes) {
    Bytes routes = {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08};
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 19, 2, routes.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 20, 2, routes.data()), 20);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0032, 13), tlv(0x01, cat({le16(2), routes})), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetRoutesReq(nullptr, 32, 2, routes.data()), -1);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 32, 1, nullptr), -1);
}

TEST(WmsConfigRequests, SetRoutesWithCountZeroAndNullRoutesIsTwelveBytes) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 12, 0, nullptr), 12);
    EXPECT_EQ(head(buf, 13), cat({reqHeader(0x0032, 5), tlv(0x01, {0x00, 0x00}), {0xEE}}));
}

TEST(WmsConfigRequests, SetSMSCAddressWritesTheAddressBytesAlone) {
    Bytes address = str("+1234");
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 14, 5, address.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 15, 5, address.data()), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0035, 8), tlv(0x01, address), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(nullptr, 32, 5, address.data()), -1);
}

TEST(WmsConfigRequests, SetSMSCAddressWithLengthZeroIsTenBytesWithAnEmptyItem) {
    Bytes buf = buffer(16);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 10, 0, nullptr), 10);
    EXPECT_EQ(head(buf, 11), cat({reqHeader(0x0035, 3), tlv(0x01, {}), {0xEE}}));
}

TEST(WmsConfigRequests, SetSMSCAddressWithANullAddressAndNonZeroLengthIsRefused) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 32, 4, nullptr), -1);
    EXPECT_EQ(buf, buffer(32));
}

TEST(WmsConfigRequests, SMSCAddressTypeIsAppendedAsItsBytes) {
    Bytes buf = buffer(32);
    Bytes type = {0x31, 0x34, 0x35};
    ASSERT_EQ(zovQMIWMSSetSMSCAddressReq(buf.data(), 32, 1, "9"), 11);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 16, 3, type.data()), -2);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 17, 3, type.data()), 17);
    EXPECT_EQ(head(buf, 18), cat({reqHeader(0x0035, 10), tlv(0x01, str("9")), tlv(0x10, type), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 32, 2, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(nullptr, 32, 3, type.data()), -1);
    EXPECT_EQ(zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(buf.data(), 32, 0, nullptr), 20);
    EXPECT_EQ(head(buf, 21), cat({reqHeader(0x0035, 13), tlv(0x01, str("9")), tlv(0x10, type), tlv(0x10, {}), {0xEE}}));
}

TEST(WmsConfigRequests, ScalarOptionalItemsAreAppended) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIWMSSetRoutesReq(buf.data(), 32, 0, nullptr), 12);
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(buf.data(), 15, 0x01), -2);
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(buf.data(), 16, 0x01), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x0032, 9), tlv(0x01, {0, 0}), tlv(0x10, {0x01}), {0xEE}}));
    EXPECT_EQ(zovQMIWMSSetRoutesReqAddTransferStatusReport(nullptr, 32, 0x01), -1);

    buf = buffer(32);
    ASSERT_EQ(zovQMIWMSGetStoreMaxSizeReq(buf.data(), 32, 0x02), 11);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(buf.data(), 14, 0x01), -2);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(buf.data(), 15, 0x01), 15);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0036, 8), tlv(0x01, {0x02}), tlv(0x10, {0x01}), {0xEE}}));
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeReqAddMessageMode(nullptr, 32, 0x01), -1);
}

// n caller entries filled with the guard byte 0xEE.
std::vector<WMSBroadcastConfigEntry> guardedEntries(size_t n) {
    std::vector<WMSBroadcastConfigEntry> e(n);
    std::memset(e.data(), 0xEE, n * sizeof(WMSBroadcastConfigEntry));
    return e;
}
// The bytes of caller entries as they lie in memory.
Bytes bytesOf(const std::vector<WMSBroadcastConfigEntry>& e) {
    const uint8_t* b = reinterpret_cast<const uint8_t*>(e.data());
    return Bytes(b, b + e.size() * sizeof(WMSBroadcastConfigEntry));
}

// Two caller entries whose 18 bytes count up from `first`.
std::vector<WMSBroadcastConfigEntry> twoEntries(uint8_t first = 0x10) {
    std::vector<WMSBroadcastConfigEntry> e(2);
    uint8_t* b = reinterpret_cast<uint8_t*>(e.data());
    for (size_t i = 0; i < 18; ++i) b[i] = uint8_t(first + i);
    return e;
}

TEST(WmsConfigRequests, BroadcastConfig3GPPTakesTheFirstWordPairAndTheSelectionByte) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes value = {0x02, 0x00, 0x10, 0x11, 0x12, 0x13, 0x18, 0x19, 0x1A, 0x1B, 0x1C, 0x21};
    EXPECT_EQ(head(buf, 27), cat({reqHeader(0x003D, 19), tlv(0x01, {0x00}), tlv(0x10, value), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfig3GPP2TakesTheSecondWordPairAndTheSelectionByte) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x01), 11);
    EXPECT_EQ(
        zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()), 26);
    Bytes value = {0x02, 0x00, 0x14, 0x15, 0x16, 0x17, 0x18, 0x1D, 0x1E, 0x1F, 0x20, 0x21};
    EXPECT_EQ(head(buf, 27), cat({reqHeader(0x003D, 19), tlv(0x01, {0x01}), tlv(0x11, value), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfigAddChecksPointersAndRoom) {
    auto entries = twoEntries();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    Bytes before = buf;
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(nullptr, 64, 2, entries.data()),
              -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(nullptr, 64, 2, entries.data()),
              -1);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 25, 2, entries.data()),
              -2);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 25, 2, entries.data()),
              -2);
    EXPECT_EQ(buf, before);
    // No entries: the item holds only the zero count.
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 0, nullptr), 16);
    EXPECT_EQ(head(buf, 17), cat({reqHeader(0x003D, 9), tlv(0x01, {0x00}), tlv(0x10, {0x00, 0x00}), {0xEE}}));
}

TEST(WmsConfigRequests, BroadcastConfigRefusesMoreEntriesThanOneItemValueHolds) {
    std::vector<WMSBroadcastConfigEntry> entries(205);
    std::memset(entries.data(), 0x5A, entries.size() * sizeof(WMSBroadcastConfigEntry));
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 2048, 0x00), 11);
    Bytes before = buf;
    // 204 entries make a 1022-byte value; 205 would need 1027.
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 2048, 205,
                                                                                      entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPP2BroadcastConfigurationInformation(buf.data(), 2048, 205,
                                                                                       entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(buf, before);
    EXPECT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 2048, 204,
                                                                                      entries.data()),
              11 + 3 + 1022);
    EXPECT_EQ(buf[11], 0x10);
    EXPECT_EQ(rd16(&buf[12]), 1022);
    EXPECT_EQ(rd16(&buf[14]), 204);
    EXPECT_EQ(buf[11 + 3 + 1022], 0xEE);
}

// ------------------------------------------------------------ responses --

TEST(WmsConfigResponses, ResultOnlyResponsesReturnTheAreaLength) {
    const ResultOnly cases[] = {{0x0032, zovQMIWMSSetRoutesResp},           {0x0035, zovQMIWMSSetSMSCAddressResp},
                 {0x0038, zovQMIWMSSetRetryPeriodResp},      {0x0039, zovQMIWMSSetRetryIntervalResp},
                 {0x003A, zovQMIWMSSetDCDisconnectTimerResp}, {0x003B, zovQMIWMSSetMemoryStatusResp},
                 {0x003C, zovQMIWMSSetBroadcastActivationResp}, {0x003D, zovQMIWMSSetBroadcastConfigResp},
                 {0x003E, zovQMIWMSGetBroadcastConfigResp},  {0x0041, zovQMIWMSSetDomainPrefResp},
                 {0x0045, zovQMIWMSSetPrimaryClientResp}};
    checkResultOnly(cases);
}

Bytes routesValue() { return cat({le16(2), {0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08}}); }

TEST(WmsConfigResponses, GetRoutesCopiesCountAndRoutes) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, routesValue()), tlv(0x10, {0x01})});
    QmiResult r;
    uint16_t count = 0;
    Bytes routes = buffer(9);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, routes.data()), 24);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(routes, Bytes({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 0xEE}));
    uint8_t report = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(msg.data(), int(msg.size()), &report), 1);
    EXPECT_EQ(report, 0x01);
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0033, {result(), tlv(0x01, routesValue())});
    EXPECT_EQ(zovQMIWMSGetRoutesRespGetTransferStatusReport(bare.data(), int(bare.size()), &report), -3);
}

TEST(WmsConfigResponses, GetRoutesWithANullRouteArrayStoresOnlyTheCount) {
    // The count claims more routes than there are: without an array they are not read.
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, le16(7))});
    QmiResult r;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, nullptr), 12);
    EXPECT_EQ(count, 7);
}

TEST(WmsConfigResponses, GetRoutesRequiresResultAndCount) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, routesValue())});
    QmiResult r;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), nullptr, &count, nullptr), -1);
    Bytes bare = svcMessage(0x0033, {result()});
    EXPECT_EQ(zovQMIWMSGetRoutesResp(bare.data(), int(bare.size()), &r, &count, nullptr), -4);
}

TEST(WmsConfigResponses, GetRoutesCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0033, {result(), tlv(0x01, cat({le16(3), {0x01, 0x02, 0x03, 0x04}}))});
    QmiResult r;
    uint16_t count = 0xEEEE;
    Bytes routes = buffer(12);
    EXPECT_EQ(zovQMIWMSGetRoutesResp(msg.data(), int(msg.size()), &r, &count, routes.data()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(routes, buffer(12));
}

TEST(WmsConfigResponses, GetSMSCAddressYieldsTypeLengthAndAddress) {
    Bytes value = cat({str("145"), {0x05}, str("+1234")});
    Bytes msg = svcMessage(0x0034, {result(), tlv(0x01, value)});
    QmiResult r;
    Bytes type = buffer(4), address = buffer(6);
    uint8_t length = 0;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, address.data()),
              int(7 + 3 + value.size()));
    EXPECT_EQ(type, cat({str("145"), {0xEE}}));
    EXPECT_EQ(length, 5);
    EXPECT_EQ(address, cat({str("+1234"), {0xEE}}));
    // The address is optional, type and length are not.
    length = 0;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, nullptr), 19);
    EXPECT_EQ(length, 5);
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, nullptr, &length, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), nullptr, nullptr), -1);
    Bytes bare = svcMessage(0x0034, {result()});
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(bare.data(), int(bare.size()), &r, type.data(), &length, nullptr), -4);
}

TEST(WmsConfigResponses, GetSMSCAddressLengthPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0034, {result(), tlv(0x01, cat({str("145"), {0x09}, str("+1234")}))});
    QmiResult r;
    Bytes type = buffer(3), address = buffer(9);
    uint8_t length = 0xEE;
    EXPECT_EQ(zovQMIWMSGetSMSCAddressResp(msg.data(), int(msg.size()), &r, type.data(), &length, address.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(type, buffer(3));
    EXPECT_EQ(length, 0xEE);
    EXPECT_EQ(address, buffer(9));
}

TEST(WmsConfigResponses, GetStoreMaxSizeYieldsMaximumAndAvailable) {
    Bytes msg = svcMessage(0x0036, {result(), tlv(0x01, le32(0x000000FF)), tlv(0x10, le32(0x00010002))});
    QmiResult r;
    uint32_t maxSize = 0, available = 0;
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(msg.data(), int(msg.size()), &r, &maxSize), 21);
    EXPECT_EQ(maxSize, 0xFFu);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(msg.data(), int(msg.size()), &available), 4);
    EXPECT_EQ(available, 0x00010002u);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(msg.data(), int(msg.size()), nullptr), -1);
    Bytes bare = svcMessage(0x0036, {result()});
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeResp(bare.data(), int(bare.size()), &r, &maxSize), -4);
    EXPECT_EQ(zovQMIWMSGetStoreMaxSizeRespGetMemoryAvailable(bare.data(), int(bare.size()), &available), -3);
}

TEST(WmsConfigResponses, GetDomainPrefYieldsThePreference) {
    Bytes msg = svcMessage(0x0040, {result(), tlv(0x01, {0x01})});
    QmiResult r;
    uint8_t preference = 0;
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(msg.data(), int(msg.size()), &r, &preference), 11);
    EXPECT_EQ(preference, 0x01);
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(msg.data(), int(msg.size()), &r, nullptr), -1);
    Bytes bare = svcMessage(0x0040, {result()});
    EXPECT_EQ(zovQMIWMSGetDomainPrefResp(bare.data(), int(bare.size()), &r, &preference), -4);
}

// A get-broadcast-config item: u16 activation, u16 count, 5-byte entries.
Bytes broadcastValue(uint16_t activation) {
    return cat({le16(activation), le16(2), le16(0x0102), le16(0x0304), {0x05}, le16(0x0607), le16(0x0809), {0x0A}});
}

TEST(WmsConfigResponses, GetBroadcastConfig3GPPFillsTheFirstWordPairAndTheSelectionByte) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, broadcastValue(0x0001))});
    uint8_t activation = 0;
    uint16_t count = 0;
    auto entries = guardedEntries(3);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       entries.data()),
              14);
    EXPECT_EQ(activation, 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(bytesOf(entries), cat({le16(0x0102), le16(0x0304), fill(4, 0xEE), {0x05}, le16(0x0607), le16(0x0809),
                                      fill(4, 0xEE), {0x0A}, fill(9, 0xEE)}));
}

TEST(WmsConfigResponses, GetBroadcastConfig3GPP2FillsTheSecondWordPairAndTheSelectionByte) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x11, broadcastValue(0x0000))});
    uint8_t activation = 0xEE;
    uint16_t count = 0;
    auto entries = guardedEntries(2);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                        &activation, &count,
                                                                                        entries.data()),
              14);
    EXPECT_EQ(activation, 0);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(bytesOf(entries), cat({fill(4, 0xEE), le16(0x0102), le16(0x0304), {0x05}, fill(4, 0xEE), le16(0x0607),
                                      le16(0x0809), {0x0A}}));
    // Each getter reads its own item only.
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count, nullptr),
              -3);
}

TEST(WmsConfigResponses, ThreeGPPSetThenThreeGPP2GetIntoTheSameEntriesLeavesTheThreeGPPWordsAlone) {
    auto entries = twoEntries(0x10);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x11, broadcastValue(0x0001))});
    uint8_t activation = 0;
    uint16_t count = 0;
    ASSERT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                        &activation, &count,
                                                                                        entries.data()),
              14);
    EXPECT_EQ(bytesOf(entries), Bytes({0x10, 0x11, 0x12, 0x13, 0x02, 0x01, 0x04, 0x03, 0x05, 0x19, 0x1A, 0x1B, 0x1C,
                                        0x07, 0x06, 0x09, 0x08, 0x0A}));
}

TEST(WmsConfigResponses, GetBroadcastConfigEntriesStartTwoBytesFurtherThanInTheSetItem) {
    // The set item for the same entries, with the activation word put in front, is the get item.
    auto entries = twoEntries(0x30);
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReq(buf.data(), 64, 0x00), 11);
    ASSERT_EQ(zovQMIWMSSetBroadcastConfigReqAdd3GPPBroadcastConfigurationInformation(buf.data(), 64, 2, entries.data()),
              26);
    Bytes setValue(buf.begin() + 14, buf.begin() + 26);
    ASSERT_EQ(setValue.size(), 12u);
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, cat({le16(1), setValue}))});
    auto back = guardedEntries(2);
    uint8_t activation = 0;
    uint16_t count = 0;
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       back.data()),
              14);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(bytesOf(back), Bytes({0x30, 0x31, 0x32, 0x33, 0xEE, 0xEE, 0xEE, 0xEE, 0x38, 0x39, 0x3A, 0x3B, 0x3C,
                                     0xEE, 0xEE, 0xEE, 0xEE, 0x41}));
}

TEST(WmsConfigResponses, GetBroadcastConfigActivationIsTheLowByteOfTheFirstWord) {
    uint8_t activation = 0;
    uint16_t count = 0;
    Bytes one = svcMessage(0x003E, {result(), tlv(0x10, {0x01, 0x00, 0x00, 0x00})});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(one.data(), int(one.size()),
                                                                                       &activation, &count, nullptr),
              4);
    EXPECT_EQ(activation, 1);
    EXPECT_EQ(count, 0);
    Bytes high = svcMessage(0x003E, {result(), tlv(0x11, {0x00, 0x01, 0x00, 0x00})});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(high.data(), int(high.size()),
                                                                                        &activation, &count, nullptr),
              4);
    EXPECT_EQ(activation, 0);
}

TEST(WmsConfigResponses, GetBroadcastConfigOfFourBytesWithCountZeroIsAccepted) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, {0x01, 0x00, 0x00, 0x00})});
    uint8_t activation = 0;
    uint16_t count = 0xEEEE;
    auto entry = guardedEntries(1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       entry.data()),
              4);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(activation, 1);
    EXPECT_EQ(bytesOf(entry), fill(9, 0xEE));
}

TEST(WmsConfigResponses, GetBroadcastConfigRequiresActivationAndCount) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, broadcastValue(1)), tlv(0x11, broadcastValue(1))});
    uint8_t activation = 0;
    uint16_t count = 0;
    int n = int(msg.size());
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), n, nullptr, &count,
                                                                                       nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), n, &activation,
                                                                                       nullptr, nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), n, nullptr, &count,
                                                                                        nullptr),
              -1);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(nullptr, n, &activation, &count,
                                                                                        nullptr),
              -1);
    // Without entries only the count is stored.
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPP2BroadcastConfigurationInformation(msg.data(), n, &activation,
                                                                                        &count, nullptr),
              14);
    EXPECT_EQ(count, 2);
    Bytes other = svcMessage(0x003D, {result(), tlv(0x10, broadcastValue(1))});
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(
                  other.data(), int(other.size()), &activation, &count, nullptr),
              -2);
}

TEST(WmsConfigResponses, GetBroadcastConfigCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x003E, {result(), tlv(0x10, cat({le16(1), le16(3), le16(1), le16(2), {0x03}}))});
    uint8_t activation = 0xEE;
    uint16_t count = 0xEEEE;
    auto entries = guardedEntries(3);
    EXPECT_EQ(zovQMIWMSGetBroadcastConfigRespGet3GPPBroadcastConfigurationInformation(msg.data(), int(msg.size()),
                                                                                       &activation, &count,
                                                                                       entries.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(activation, 0xEE);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(bytesOf(entries), fill(27, 0xEE));
}

// Message waiting: count, then 3-byte entries spread over three arrays.
Bytes waitingValue() { return {0x02, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06}; }

TEST(WmsConfigResponses, GetMessageWaitingSpreadsEntriesOverThreeArrays) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, waitingValue())});
    QmiResult r;
    uint8_t count = 0;
    Bytes first = buffer(3), second = buffer(3), third = buffer(3);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, first.data(), second.data(),
                                             third.data()),
              17);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(first, Bytes({0x01, 0x04, 0xEE}));
    EXPECT_EQ(second, Bytes({0x02, 0x05, 0xEE}));
    EXPECT_EQ(third, Bytes({0x03, 0x06, 0xEE}));
}

TEST(WmsConfigResponses, GetMessageWaitingSkipsNullArraysEntryByEntry) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, waitingValue())});
    QmiResult r;
    uint8_t count = 0;
    Bytes second = buffer(2);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, nullptr, second.data(), nullptr),
              17);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(second, Bytes({0x02, 0x05}));
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, nullptr, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), nullptr, &count, nullptr, nullptr, nullptr),
              -1);
    Bytes bare = svcMessage(0x0043, {result()});
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(bare.data(), int(bare.size()), &r, &count, nullptr, nullptr, nullptr), -4);
}

TEST(WmsConfigResponses, GetMessageWaitingCountRunningPastTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0043, {result(), tlv(0x01, {0x03, 0x01, 0x02, 0x03, 0x04})});
    QmiResult r;
    uint8_t count = 0xEE;
    Bytes first = buffer(3);
    EXPECT_EQ(zovQMIWMSGetMessageWaitingResp(msg.data(), int(msg.size()), &r, &count, first.data(), nullptr, nullptr),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    EXPECT_EQ(first, buffer(3));
}

// ----------------------------------------------------------- indications --

TEST(WmsConfigIndications, MessageWaitingSpreadsEntriesAndNeedsOnlyTheCount) {
    Bytes msg = svcMessage(0x0044, {tlv(0x01, waitingValue())}, 0, 0x04);
    uint8_t count = 0;
    Bytes first = buffer(2), second = buffer(2), third = buffer(2);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), &count, first.data(), second.data(),
                                         third.data()),
              10);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(first, Bytes({0x01, 0x04}));
    EXPECT_EQ(second, Bytes({0x02, 0x05}));
    EXPECT_EQ(third, Bytes({0x03, 0x06}));
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), &count, nullptr, nullptr, nullptr), 10);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(msg.data(), int(msg.size()), nullptr, nullptr, nullptr, nullptr), -1);
    Bytes noList = svcMessage(0x0044, {tlv(0x10, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(noList.data(), int(noList.size()), &count, nullptr, nullptr, nullptr), -3);
    Bytes other = svcMessage(0x0043, {tlv(0x01, waitingValue())}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMessageWaitingIND(other.data(), int(other.size()), &count, nullptr, nullptr, nullptr), -2);
}

TEST(WmsConfigIndications, MemoryFullYieldsBothBytesInOrder) {
    Bytes msg = svcMessage(0x003F, {tlv(0x01, {0x01, 0x02})}, 0, 0x04);
    uint8_t first = 0, second = 0;
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), &first, &second), 5);
    EXPECT_EQ(first, 0x01);
    EXPECT_EQ(second, 0x02);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), nullptr, &second), -1);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()), &first, nullptr), -1);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(nullptr, int(msg.size()), &first, &second), -1);
    Bytes noItem = svcMessage(0x003F, {tlv(0x10, {0x00})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(noItem.data(), int(noItem.size()), &first, &second), -3);
    Bytes other = svcMessage(0x0040, {tlv(0x01, {0x01, 0x02})}, 0, 0x04);
    EXPECT_EQ(zovQMIWMSMemoryFullIND(other.data(), int(other.size()), &first, &second), -2);
    // Cut short by the buffer end: nothing is written.
    first = second = 0xEE;
    EXPECT_EQ(zovQMIWMSMemoryFullIND(msg.data(), int(msg.size()) - 1, &first, &second), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(first, 0xEE);
    EXPECT_EQ(second, 0xEE);
}

}  // namespace
