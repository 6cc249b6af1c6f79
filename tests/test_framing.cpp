// The wire layer: transaction ids, QMUX header, item appending, the message
// and item walks, and the shared request/response skeletons.
#include "msg/pattern.h"
#include "testutil.h"

using namespace t;

namespace {

// ------------------------------------------------------ transaction ids --

// This test runs first in its own process (the counter is library-wide).
TEST(TransactionId, StartsAtZeroAndFirstIdIsOne) {
    EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), 0);
    EXPECT_EQ(zovQMIMSMGetNextTransactionID(), 1);
    EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), 1);
}

TEST(TransactionId, WrapsFrom0xFFFFToOneNeverZero) {
    while (zovQMIMSMGetCurrentTransactionID() != 0xFFFE) zovQMIMSMGetNextTransactionID();
    EXPECT_EQ(zovQMIMSMGetNextTransactionID(), 0xFFFF);
    EXPECT_EQ(zovQMIMSMGetNextTransactionID(), 1);
    EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), 1);
}

TEST(TransactionId, After65535IncrementsTheNextValueIsTheSameAgain) {
    int first = zovQMIMSMGetNextTransactionID();
    for (int i = 0; i < 65534; ++i) {
        int v = zovQMIMSMGetNextTransactionID();
        ASSERT_NE(v, 0);
    }
    EXPECT_EQ(zovQMIMSMGetNextTransactionID(), first);
}

// ---------------------------------------------------------- QMUX header --

TEST(QmuxHeader, CopiesTheSixBytesAndReturnsTheLengthField) {
    Bytes frame = {0x01, 0x34, 0x12, 0x80, 0x03, 0x09, 0xAA};
    QmiQmuxHeader h;
    EXPECT_EQ(zovQMIMSMQMUXHeaderParse(frame.data(), int(frame.size()), &h), 0x1234);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(&h);
    EXPECT_EQ(Bytes(b, b + 6), head(frame, 6));
}

TEST(QmuxHeader, NullArgumentsReturnMinusOne) {
    Bytes frame(6, 0);
    QmiQmuxHeader h;
    EXPECT_EQ(zovQMIMSMQMUXHeaderParse(nullptr, 6, &h), -1);
    EXPECT_EQ(zovQMIMSMQMUXHeaderParse(frame.data(), 6, nullptr), -1);
}

TEST(QmuxHeader, ShorterThanSixBytesIsMalformed) {
    Bytes frame = {0x01, 0x05, 0x00, 0x00, 0x00};
    QmiQmuxHeader h;
    EXPECT_EQ(zovQMIMSMQMUXHeaderParse(frame.data(), 5, &h), ZOVQMI_ERR_MALFORMED);
}

// ------------------------------------------------------ appending items --

QmiTlvRecord record(uint8_t type, const Bytes& value) {
    QmiTlvRecord r;
    std::memset(&r, 0, sizeof r);
    r.type = type;
    uint8_t* len = reinterpret_cast<uint8_t*>(&r) + 1;
    len[0] = uint8_t(value.size());
    len[1] = uint8_t(value.size() >> 8);
    if (!value.empty()) std::memcpy(r.value, value.data(), value.size());
    return r;
}

TEST(MessageAddTLV, AppendsTypeLengthValueAndRaisesTheAreaLength) {
    Bytes buf = buffer(32);
    Bytes hdr = {0x00, 0x01, 0x00, 0x20, 0x00, 0x00, 0x00};
    std::copy(hdr.begin(), hdr.end(), buf.begin());
    QmiTlvRecord r = record(0x14, str("apn"));
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 32, &r), 13);
    QmiTlvRecord r2 = record(0x16, {0x02});
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 32, &r2), 17);
    EXPECT_EQ(head(buf, 17), cat({{0x00, 0x01, 0x00, 0x20, 0x00}, le16(10), tlv(0x14, str("apn")), tlv(0x16, {0x02})}));
    EXPECT_EQ(buf[17], 0xEE);
}

TEST(MessageAddTLV, ZeroLengthValueAppendsExactlyThreeBytes) {
    Bytes buf = buffer(16);
    Bytes hdr = {0x00, 0x01, 0x00, 0x20, 0x00, 0x00, 0x00};
    std::copy(hdr.begin(), hdr.end(), buf.begin());
    QmiTlvRecord r = record(0x10, {});
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 16, &r), 10);
    EXPECT_EQ(head(buf, 11), cat({{0x00, 0x01, 0x00, 0x20, 0x00, 0x03, 0x00, 0x10, 0x00, 0x00, 0xEE}}));
}

TEST(MessageAddTLV, NewTotalEqualToBufsizeSucceedsOneMoreReturnsMinusTwo) {
    Bytes hdr = {0x00, 0x01, 0x00, 0x20, 0x00, 0x00, 0x00};
    Bytes fits = buffer(16);
    std::copy(hdr.begin(), hdr.end(), fits.begin());
    QmiTlvRecord r6 = record(0x10, {1, 2, 3, 4, 5, 6});
    EXPECT_EQ(zovQMIMSMMessageAddTLV(fits.data(), 16, &r6), 16);
    Bytes tight = buffer(16);
    std::copy(hdr.begin(), hdr.end(), tight.begin());
    QmiTlvRecord r7 = record(0x10, {1, 2, 3, 4, 5, 6, 7});
    Bytes unchanged = tight;
    EXPECT_EQ(zovQMIMSMMessageAddTLV(tight.data(), 16, &r7), -2);
    EXPECT_EQ(tight, unchanged);
}

TEST(MessageAddTLV, NullArgumentsReturnMinusOne) {
    Bytes buf = buffer(16);
    QmiTlvRecord r = record(0x10, {});
    EXPECT_EQ(zovQMIMSMMessageAddTLV(nullptr, 16, &r), -1);
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 16, nullptr), -1);
    EXPECT_EQ(zovQMIMSMControlAddTLV(nullptr, 16, &r), -1);
    EXPECT_EQ(zovQMIMSMControlAddTLV(buf.data(), 16, nullptr), -1);
}

TEST(MessageAddTLV, RecordLongerThanItsValueIsRefused) {
    Bytes buf = buffer(2048, 0);
    QmiTlvRecord r = record(0x10, {});
    uint8_t* len = reinterpret_cast<uint8_t*>(&r) + 1;
    len[0] = 0x01;  // 1025
    len[1] = 0x04;
    Bytes unchanged = buf;
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 2048, &r), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIMSMControlAddTLV(buf.data(), 2048, &r), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(buf, unchanged);
}

TEST(MessageAddTLV, FullRecordOf1024BytesIsAccepted) {
    Bytes buf = buffer(7 + 3 + 1024, 0);
    QmiTlvRecord r = record(0x10, fill(1024, 0x5A));
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), int(buf.size()), &r), 1034);
    EXPECT_EQ(buf.back(), 0x5A);
}

TEST(MessageAddTLV, BufferSmallerThanTheHeaderReturnsMinusTwo) {
    Bytes buf = buffer(4, 0);
    QmiTlvRecord r = record(0x10, {});
    EXPECT_EQ(zovQMIMSMMessageAddTLV(buf.data(), 4, &r), -2);
    EXPECT_EQ(zovQMIMSMControlAddTLV(buf.data(), 4, &r), -2);
}

TEST(ControlAddTLV, AppendsAfterTheSixByteHeader) {
    Bytes buf = buffer(16);
    Bytes hdr = {0x00, 0x05, 0x26, 0x00, 0x04, 0x00, 0x01, 0x01, 0x00, 0x02};
    std::copy(hdr.begin(), hdr.end(), buf.begin());
    QmiTlvRecord r = record(0x10, le16(0x0102));
    EXPECT_EQ(zovQMIMSMControlAddTLV(buf.data(), 15, &r), 15);
    EXPECT_EQ(head(buf, 16), cat({{0x00, 0x05, 0x26, 0x00, 0x09, 0x00, 0x01, 0x01, 0x00, 0x02},
                                  tlv(0x10, le16(0x0102)),
                                  {0xEE}}));
    EXPECT_EQ(zovQMIMSMControlAddTLV(buf.data(), 19, &r), -2);
}

// -------------------------------------------------------------- parsing --

TEST(ControlParse, FillsFlagsTransactionCountAndEntry) {
    Bytes msg = ctlMessage(0x0022, {result(), tlv(0x01, {0x01, 0x07})}, 0x42, 0x01);
    Bytes area(16, 0xEE);
    QmiMessageEntry entry{0, 0, area.data()};
    QmiMessageInfo info{0, 0, 0, &entry};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), int(msg.size()), &info), 1);
    EXPECT_EQ(info.controlFlags, 0x01);
    EXPECT_EQ(rd16(&info.transactionId), 0x42);
    EXPECT_EQ(rd16(&info.messageCount), 1);
    EXPECT_EQ(rd16(&entry.messageId), 0x0022);
    EXPECT_EQ(rd16(&entry.length), 12);
    EXPECT_EQ(head(area, 13), cat({result(), tlv(0x01, {0x01, 0x07}), {0xEE}}));
}

TEST(ControlParse, NullEntryArrayFillsOnlyFlagsTransactionAndCount) {
    Bytes msg = ctlMessage(0x0022, {result()}, 0x42, 0x01);
    QmiMessageInfo info{0, 0, 0, nullptr};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), int(msg.size()), &info), 1);
    EXPECT_EQ(info.controlFlags, 0x01);
    EXPECT_EQ(rd16(&info.transactionId), 0x42);
    EXPECT_EQ(rd16(&info.messageCount), 1);
}

TEST(ControlParse, EntryWithNullValueGetsIdAndLengthOnly) {
    Bytes msg = ctlMessage(0x0027, {result()});
    QmiMessageEntry entry{0, 0, nullptr};
    QmiMessageInfo info{0, 0, 0, &entry};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), int(msg.size()), &info), 1);
    EXPECT_EQ(rd16(&entry.messageId), 0x0027);
    EXPECT_EQ(rd16(&entry.length), 7);
}

TEST(ControlParse, ShortOrNullArgumentsReturnMinusOne) {
    Bytes msg = ctlMessage(0x0027, {});
    QmiMessageInfo info{0, 0, 0, nullptr};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), 1, &info), -1);
    EXPECT_EQ(zovQMIMSMControlParse(nullptr, 6, &info), -1);
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), 6, nullptr), -1);
}

TEST(ControlParse, AreaRunningPastTheBufferIsMalformed) {
    Bytes msg = ctlMessage(0x0027, {result()});
    Bytes area(16, 0xEE);
    QmiMessageEntry entry{0, 0, area.data()};
    QmiMessageInfo info{0, 0, 0, &entry};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), int(msg.size()) - 1, &info), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(area, Bytes(16, 0xEE));
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), 4, &info), ZOVQMI_ERR_MALFORMED);
}

TEST(ControlParse, MalformedAreaLeavesTheInfoRecordUntouched) {
    Bytes msg = ctlMessage(0x0027, {result()}, 0x42, 0x01);
    Bytes area(16, 0xEE);
    QmiMessageEntry entry{0x1111, 0x2222, area.data()};
    QmiMessageInfo info{0x33, 0x4444, 0x5555, &entry};
    EXPECT_EQ(zovQMIMSMControlParse(msg.data(), int(msg.size()) - 1, &info), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(info.controlFlags, 0x33);
    EXPECT_EQ(uint16_t(info.transactionId), 0x4444);
    EXPECT_EQ(uint16_t(info.messageCount), 0x5555);
    EXPECT_EQ(uint16_t(entry.messageId), 0x1111);
    EXPECT_EQ(uint16_t(entry.length), 0x2222);
}

TEST(MessageParse, MalformedLaterMessageLeavesEarlierEntriesUntouched) {
    // The first message is whole; the second's area runs past the buffer.
    Bytes msg = cat({{0x02}, le16(0x0102), le16(0x0020), le16(1), {0xAA}, le16(0x0021), le16(9), {0xBB}});
    Bytes a1(4, 0xEE), a2(16, 0xEE);
    QmiMessageEntry entries[2] = {{0x1111, 0x2222, a1.data()}, {0x1111, 0x2222, a2.data()}};
    QmiMessageInfo info{0x33, 0x4444, 0x5555, entries};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), int(msg.size()), &info), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(info.controlFlags, 0x33);
    EXPECT_EQ(uint16_t(info.messageCount), 0x5555);
    EXPECT_EQ(uint16_t(entries[0].messageId), 0x1111);
    EXPECT_EQ(uint16_t(entries[0].length), 0x2222);
    EXPECT_EQ(a1, Bytes(4, 0xEE));
    EXPECT_EQ(a2, Bytes(16, 0xEE));
}

TEST(MessageParse, WalksEveryMessageOfTheBuffer) {
    Bytes msg = cat({{0x02}, le16(0x0102), le16(0x0020), le16(7), result(), le16(0x0021), le16(3), tlv(0x10, {})});
    Bytes a1(8, 0xEE), a2(4, 0xEE);
    QmiMessageEntry entries[2] = {{0, 0, a1.data()}, {0, 0, a2.data()}};
    QmiMessageInfo info{0, 0, 0, entries};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), int(msg.size()), &info), 2);
    EXPECT_EQ(info.controlFlags, 0x02);
    EXPECT_EQ(rd16(&info.transactionId), 0x0102);
    EXPECT_EQ(rd16(&info.messageCount), 2);
    EXPECT_EQ(rd16(&entries[0].messageId), 0x0020);
    EXPECT_EQ(rd16(&entries[0].length), 7);
    EXPECT_EQ(head(a1, 8), cat({result(), {0xEE}}));
    EXPECT_EQ(rd16(&entries[1].messageId), 0x0021);
    EXPECT_EQ(rd16(&entries[1].length), 3);
    EXPECT_EQ(a2, cat({tlv(0x10, {}), {0xEE}}));
}

TEST(MessageParse, CountsWithoutAnEntryArray) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0020), le16(1), {0xAA}, le16(0x0021), le16(1), {0xBB}});
    QmiMessageInfo info{0, 0, 0, nullptr};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), int(msg.size()), &info), 2);
    EXPECT_EQ(rd16(&info.messageCount), 2);
}

TEST(MessageParse, MessageWhoseHeadEndsAtTheBufferEndIsNotVisited) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0020), le16(0)});
    QmiMessageInfo info{0, 0, 0, nullptr};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), int(msg.size()), &info), 0);
}

TEST(MessageParse, ShortOrNullArgumentsReturnMinusOne) {
    Bytes msg = svcMessage(0x0020, {});
    QmiMessageInfo info{0, 0, 0, nullptr};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), 2, &info), -1);
    EXPECT_EQ(zovQMIMSMMessageParse(nullptr, 7, &info), -1);
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), 7, nullptr), -1);
}

TEST(MessageParse, AreaCopyPastTheBufferIsMalformed) {
    Bytes msg = svcMessage(0x0020, {result()});
    Bytes area(16, 0xEE);
    QmiMessageEntry entry{0, 0, area.data()};
    QmiMessageInfo info{0, 0, 0, &entry};
    EXPECT_EQ(zovQMIMSMMessageParse(msg.data(), int(msg.size()) - 2, &info), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(area, Bytes(16, 0xEE));
}

TEST(GetMessage, FindsTheMessageAndItsAreaLength) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0020), le16(1), {0xAA}, le16(0x0021), le16(2), {0xBB, 0xCC}});
    uint16_t n = 0;
    const uint8_t* p = zovQMIMSMGetMessage(msg.data(), int(msg.size()), 0x0021, &n);
    EXPECT_EQ(p, msg.data() + 12);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(zovQMIMSMGetMessage(msg.data(), int(msg.size()), 0x0022, &n), nullptr);
    EXPECT_EQ(zovQMIMSMGetMessage(nullptr, int(msg.size()), 0x0021, &n), nullptr);
}

TEST(GetMessage, DoesNotFindAMessageWhoseHeadEndsAtTheBufferEnd) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0020), le16(0)});
    uint16_t n = 0;
    EXPECT_EQ(zovQMIMSMGetMessage(msg.data(), int(msg.size()), 0x0020, &n), nullptr);
}

TEST(GetMessage, IdZeroMatchesWhenNoMessageIsVisited) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0000), le16(0)});
    uint16_t n = 0xFFFF;
    EXPECT_EQ(zovQMIMSMGetMessage(msg.data(), int(msg.size()), 0x0000, &n), msg.data() + 7);
    EXPECT_EQ(n, 0);
}

TEST(GetMessage, ReturnsALengthThatRunsPastTheBufferAsItStands) {
    Bytes msg = cat({{0x02}, le16(1), le16(0x0020), le16(100), {0x02}});
    uint16_t n = 0;
    EXPECT_EQ(zovQMIMSMGetMessage(msg.data(), int(msg.size()), 0x0020, &n), msg.data() + 7);
    EXPECT_EQ(n, 100);
}

TEST(GetTLV, FindsTheFirstItemOfTheType) {
    Bytes area = cat({tlv(0x10, {1}), tlv(0x11, {2, 3}), tlv(0x11, {4})});
    uint16_t n = 0;
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), int(area.size()), 0x11, &n), area.data() + 7);
    EXPECT_EQ(n, 2);
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), int(area.size()), 0x12, &n), nullptr);
    EXPECT_EQ(zovQMIMSMGetTLV(nullptr, int(area.size()), 0x11, &n), nullptr);
}

TEST(GetTLV, FindsAZeroLengthItemEndingExactlyAtTheAreaEnd) {
    Bytes area = cat({tlv(0x10, {1}), tlv(0x11, {})});
    uint16_t n = 0xFFFF;
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), int(area.size()), 0x11, &n), area.data() + 7);
    EXPECT_EQ(n, 0);
}

TEST(GetTLV, AreaShorterThanThreeBytesFindsNothing) {
    Bytes area = {0x10, 0x00};
    uint16_t n = 0;
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), 2, 0x10, &n), nullptr);
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), 2, 0x00, &n), area.data() + 3);
    EXPECT_EQ(n, 0);
}

TEST(GetTLV, ReturnsALengthThatRunsPastTheAreaAsItStands) {
    Bytes area = cat({{0x10}, le16(50), {1, 2}});
    uint16_t n = 0;
    EXPECT_EQ(zovQMIMSMGetTLV(area.data(), int(area.size()), 0x10, &n), area.data() + 3);
    EXPECT_EQ(n, 50);
}

TEST(GetTLVList, CountsAndCopiesEveryItem) {
    Bytes area = cat({tlv(0x02, le32(0)), tlv(0x10, {}), tlv(0x11, {9, 8})});
    std::vector<QmiTlvRecord> list(3);
    std::memset(list.data(), 0xEE, list.size() * sizeof(QmiTlvRecord));
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), list.data()), 3);
    EXPECT_EQ(list[0].type, 0x02);
    EXPECT_EQ(rd16(reinterpret_cast<uint8_t*>(&list[0]) + 1), 4);
    EXPECT_EQ(list[1].type, 0x10);
    EXPECT_EQ(rd16(reinterpret_cast<uint8_t*>(&list[1]) + 1), 0);
    EXPECT_EQ(list[1].value[0], 0xEE);
    EXPECT_EQ(list[2].type, 0x11);
    EXPECT_EQ(list[2].value[0], 9);
    EXPECT_EQ(list[2].value[1], 8);
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), nullptr), 3);
    EXPECT_EQ(zovQMIMSMGetTLVList(nullptr, int(area.size()), nullptr), 0);
}

TEST(GetTLVList, ItemLongerThanARecordIsRefused) {
    Bytes area = cat({{0x10}, le16(1025), fill(1025, 1)});
    QmiTlvRecord rec[2];
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), rec), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), nullptr), 1);
}

TEST(GetTLVList, ItemRunningPastTheAreaIsRefusedWhenCopied) {
    Bytes area = cat({{0x10}, le16(5), {1, 2}});
    QmiTlvRecord rec[1];
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), rec), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), nullptr), 1);
}

TEST(GetTLVList, MalformedLaterItemLeavesEarlierRecordsUntouched) {
    Bytes area = cat({tlv(0x10, {1, 2}), {0x11}, le16(5), {3}});
    QmiTlvRecord rec[2];
    std::memset(rec, 0xEE, sizeof rec);
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), rec), ZOVQMI_ERR_MALFORMED);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(rec);
    EXPECT_EQ(Bytes(b, b + sizeof rec), Bytes(sizeof rec, 0xEE));
}

TEST(GetTLVList, ItemSizeWrappingToZeroIsRefusedInsteadOfLoopingForever) {
    // Length 0xFFFD plus the 3-byte head is 0 in 16 bits: the walk would not advance.
    Bytes area = cat({{0x10}, le16(0xFFFD), {1, 2, 3}});
    EXPECT_EQ(zovQMIMSMGetTLVList(area.data(), int(area.size()), nullptr), ZOVQMI_ERR_MALFORMED);
}

// ------------------------------------------------------------ skeletons --
// The families every service export is built from, exercised with a
// made-up message id.

constexpr uint16_t kId = 0x0077;

TEST(RequestSkeleton, HeaderOnlyRequestNeedsSevenBytes) {
    Bytes buf = buffer(8);
    EXPECT_EQ(zq::req(buf.data(), 6, kId), -1);
    EXPECT_EQ(buf, buffer(8));
    EXPECT_EQ(zq::req(buf.data(), 7, kId), 7);
    EXPECT_EQ(head(buf, 8), cat({reqHeader(kId, 0), {0xEE}}));
    EXPECT_EQ(zq::req(nullptr, 7, kId), -1);
}

TEST(RequestSkeleton, TransactionIdIsTakenOnlyAfterTheChecksPass) {
    Bytes buf = buffer(16);
    int before = zovQMIMSMGetCurrentTransactionID();
    EXPECT_EQ(zq::reqTlv(buf.data(), 11, kId, zq::w16(1)), -1);
    EXPECT_EQ(zq::reqTlv(buf.data(), 16, kId, zq::wbytes(2, nullptr)), -1);
    EXPECT_EQ(zovQMIMSMGetCurrentTransactionID(), before);
    EXPECT_EQ(zq::reqTlv(buf.data(), 12, kId, zq::w16(0x0102)), 12);
    EXPECT_NE(zovQMIMSMGetCurrentTransactionID(), before);
}

TEST(RequestSkeleton, MandatoryItemFollowsTheHeader) {
    Bytes buf = buffer(32);
    EXPECT_EQ(zq::reqTlv(buf.data(), 32, kId, zq::w8(1), zq::w16(0x0203), zq::w32(0x04050607), zq::w64(0x08090A0B0C0D0E0Full),
                         zq::wbytes(2, "xy")),
              7 + 3 + 17);
    EXPECT_EQ(head(buf, 28), cat({reqHeader(kId, 20), tlv(0x01, cat({{1}, le16(0x0203), le32(0x04050607),
                                                                      le64(0x08090A0B0C0D0E0Full), str("xy")})),
                                  {0xEE}}));
}

TEST(RequestSkeleton, OptionalItemChecksBufferThenDataThenRoom) {
    Bytes buf = buffer(16);
    ASSERT_EQ(zq::req(buf.data(), 12, kId), 7);
    EXPECT_EQ(zq::add(nullptr, 12, 0x10, zq::w8(1)), -1);
    EXPECT_EQ(zq::add(buf.data(), 12, 0x10, zq::wbytes(3, nullptr)), -1);
    EXPECT_EQ(zq::add(buf.data(), 12, 0x10, zq::wbytes(0, nullptr)), 10);
    Bytes before = buf;
    EXPECT_EQ(zq::add(buf.data(), 12, 0x11, zq::w8(1)), -2);
    EXPECT_EQ(buf, before);
    EXPECT_EQ(zq::add(buf.data(), 14, 0x11, zq::w8(1)), 14);
}

TEST(RequestSkeleton, OptionalItemLongerThanARecordValueIsRefused) {
    Bytes buf = buffer(2048);
    ASSERT_EQ(zq::req(buf.data(), 2048, kId), 7);
    Bytes data(1025, 1);
    EXPECT_EQ(zq::add(buf.data(), 2048, 0x10, zq::wbytes(data.size(), data.data())), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zq::add(buf.data(), 2048, 0x10, zq::wbytes(1024, data.data())), 7 + 3 + 1024);
}

TEST(ResponseSkeleton, StoresResultThenDecodesTheMandatoryItem) {
    Bytes msg = svcMessage(kId, {result(1, 0x0E), tlv(0x01, le32(0xCAFEF00D))});
    QmiResult r = untouchedResult();
    uint32_t v = 0;
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId, zq::all(&v), zq::scalar(&v)), 14);
    EXPECT_EQ(res(r), (Res{1, 0x0E}));
    EXPECT_EQ(v, 0xCAFEF00Du);
}

TEST(ResponseSkeleton, ReturnCodesInTheirOrder) {
    QmiResult r = untouchedResult();
    uint32_t v = 7;
    Bytes other = svcMessage(kId + 1, {result(), tlv(0x01, le32(1))});
    Bytes noResult = svcMessage(kId, {tlv(0x01, le32(1))});
    Bytes noMandatory = svcMessage(kId, {result(0, 3)});
    EXPECT_EQ(zq::resp(nullptr, 10, &r, kId, true, zq::scalar(&v)), -1);
    EXPECT_EQ(zq::resp(other.data(), int(other.size()), nullptr, kId, true, zq::scalar(&v)), -1);
    EXPECT_EQ(zq::resp(other.data(), int(other.size()), &r, kId, false, zq::scalar(&v)), -1);
    EXPECT_EQ(zq::resp(other.data(), int(other.size()), &r, kId, true, zq::scalar(&v)), -2);
    EXPECT_EQ(zq::resp(noResult.data(), int(noResult.size()), &r, kId, true, zq::scalar(&v)), -3);
    EXPECT_EQ(res(r), res(untouchedResult()));
    EXPECT_EQ(zq::resp(noMandatory.data(), int(noMandatory.size()), &r, kId, true, zq::scalar(&v)), -4);
    EXPECT_EQ(res(r), (Res{0, 3}));
    EXPECT_EQ(v, 7u);
}

TEST(ResponseSkeleton, FailureResultStillReturnsTheAreaLength) {
    Bytes msg = svcMessage(kId, {result(1, 0x1A)});
    QmiResult r;
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId), 7);
    EXPECT_EQ(res(r), (Res{1, 0x1A}));
}

TEST(ResponseSkeleton, FieldsPastTheBufferAreMalformedAndWriteNothing) {
    Bytes msg = svcMessage(kId, {result(), tlv(0x01, {1, 2})});  // a u32 read from a 2-byte item at the end
    QmiResult r;
    uint32_t v = 7;
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId, true, zq::scalar(&v)), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(v, 7u);
}

TEST(ResponseSkeleton, ReadsPastAnItemIntoTheFollowingBytesOfTheBuffer) {
    Bytes msg = svcMessage(kId, {result(), tlv(0x01, {1, 2}), tlv(0x10, {})});
    QmiResult r;
    uint32_t v = 0;
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId, true, zq::scalar(&v)), 15);
    EXPECT_EQ(v, 0x00100201u);
}

TEST(ResponseSkeleton, ResultItemShorterThanFourBytesAtTheEndIsMalformed) {
    Bytes msg = svcMessage(kId, {tlv(0x02, {0, 0})});
    QmiResult r = untouchedResult();
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(res(r), res(untouchedResult()));
}

TEST(ResponseSkeleton, AreaLengthPastTheBufferIsMalformedWhenTheWalkGetsThere) {
    Bytes msg = cat({{0x02}, le16(1), le16(kId), le16(40), tlv(0x10, {1})});
    QmiResult r;
    EXPECT_EQ(zq::resp(msg.data(), int(msg.size()), &r, kId), ZOVQMI_ERR_MALFORMED);
    uint8_t b = 0;
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId, 0x10, true, zq::scalar(&b)), 1);
    EXPECT_EQ(b, 1);
}

TEST(GetterSkeleton, ReturnsTheItemLengthAndZeroForAnEmptyString) {
    Bytes msg = svcMessage(kId, {result(), tlv(0x10, str("abc")), tlv(0x11, {})});
    uint16_t n = 0xFFFF;
    Bytes out(4, 0xEE);
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId, 0x10, true, zq::text(&n, out.data())), 3);
    EXPECT_EQ(n, 3);
    EXPECT_EQ(out, cat({str("abc"), {0xEE}}));
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId, 0x11, true, zq::text(&n, out.data())), 0);
    EXPECT_EQ(n, 0);
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId, 0x12, true, zq::text(&n, out.data())), -3);
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId + 1, 0x10, true, zq::text(&n, out.data())), -2);
    EXPECT_EQ(zq::get(msg.data(), int(msg.size()), kId, 0x10, false, zq::text(&n, out.data())), -1);
}

TEST(IndicationSkeleton, MissingMandatoryItemIsMinusThree) {
    Bytes msg = svcMessage(kId, {tlv(0x10, {1})}, 0, 0x04);
    uint8_t v = 0;
    EXPECT_EQ(zq::ind(msg.data(), int(msg.size()), kId, true, zq::scalar(&v)), -3);
    EXPECT_EQ(zq::ind(msg.data(), int(msg.size()), kId), 4);
    EXPECT_EQ(zq::ind(msg.data(), int(msg.size()), kId + 1), -2);
    EXPECT_EQ(zq::ind(nullptr, int(msg.size()), kId), -1);
}

TEST(RecordWrites, AFixedSizeRecordRefusesAWritePastItsEndAndNothingIsWritten) {
    Bytes msg = svcMessage(kId, {tlv(0x10, {1, 2, 3, 4})});
    Bytes rec(3, 0xEE);
    int r = zq::get(msg.data(), int(msg.size()), kId, 0x10, true, [&](zq::Dec& d) {
        zq::Dec::Record out = d.record(rec.data(), rec.size());
        out.copy(0, 0, 4);
    });
    EXPECT_EQ(r, ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rec, Bytes(3, 0xEE));
}

// ------------------------------------------- the usual shape, answered first --

// The getters answer the first message of a service buffer in one pass of
// their own (getScalar, getText, and the fast paths of respValue and
// respResult).  Every answer must be the general walk's: the same code, the
// same outputs, nothing written on failure.  Each buffer below is a response
// with one byte changed and then cut short, so that every check of that pass
// (message id, area length, item lengths, the buffer's end) is hit.
struct Answer {
    int code;
    Bytes out;
    bool operator==(const Answer& o) const { return code == o.code && out == o.out; }
};

std::vector<Bytes> shortenedAndChanged(const Bytes& base) {
    static const uint8_t kValues[] = {0x00, 0x01, 0x02, 0x03, 0x04, 0x14, 0x15, 0x2B, 0x2D, 0xFF};
    std::vector<Bytes> all;
    for (size_t pos = 0; pos <= base.size(); ++pos) {
        for (uint8_t v : kValues) {
            Bytes changed = base;
            if (pos < base.size()) changed[pos] = v;
            for (size_t n = 0; n <= changed.size(); ++n) all.emplace_back(changed.begin(), changed.begin() + long(n));
            if (pos == base.size()) break;  // the unchanged message, once
        }
    }
    return all;
}

const uint8_t kTypes[] = {0x00, 0x01, 0x02, 0x14, 0x15, 0x2B, 0x7F};

Bytes firstShapeResponse() {
    return svcMessage(0x002D, {result(1, 0x0E), tlv(0x14, str("abcdefghijk")), tlv(0x01, le32(0xA1B2C3D4)),
                               tlv(0x15, le32(0x01020304)), tlv(0x16, {}), tlv(0x2B, {0x04})});
}

TEST(FirstMessageLookup, ScalarGettersAnswerAsTheGeneralWalk) {
    size_t checked = 0;
    for (const Bytes& msg : shortenedAndChanged(firstShapeResponse())) {
        for (uint8_t type : kTypes) {
            for (unsigned width : {1u, 2u, 4u}) {
                const zq::Ref r = zq::ref(zq::kService, 0x002D, type, width);
                Answer fast{0, Bytes(8, 0xEE)}, walk{0, Bytes(8, 0xEE)};
                if (width == 1) fast.code = zq::getScalar<1>(msg.data(), int(msg.size()), fast.out.data(), r);
                if (width == 2) fast.code = zq::getScalar<2>(msg.data(), int(msg.size()), fast.out.data(), r);
                if (width == 4) fast.code = zq::getScalar<4>(msg.data(), int(msg.size()), fast.out.data(), r);
                walk.code = zq::getValue(msg.data(), int(msg.size()), walk.out.data(), r);
                ASSERT_EQ(fast, walk) << "type " << int(type) << " width " << width << " length " << msg.size();
                ++checked;
            }
        }
    }
    EXPECT_GT(checked, 100000u);
}

TEST(FirstMessageLookup, TextGettersAnswerAsTheGeneralWalk) {
    for (const Bytes& msg : shortenedAndChanged(firstShapeResponse())) {
        for (uint8_t type : kTypes) {
            for (unsigned width : {1u, 2u}) {
                for (bool withData : {true, false}) {
                    const zq::Ref r = zq::ref(zq::kService, 0x002D, type, width);
                    Answer fast{0, Bytes(2 + 64, 0xEE)}, walk{0, Bytes(2 + 64, 0xEE)};
                    fast.code = zq::getText(msg.data(), int(msg.size()), r, fast.out.data(),
                                            withData ? fast.out.data() + 2 : nullptr);
                    walk.code = zq::getBytes(msg.data(), int(msg.size()), r, walk.out.data(),
                                             withData ? walk.out.data() + 2 : nullptr, 0);
                    ASSERT_EQ(fast, walk) << "type " << int(type) << " width " << width << " length " << msg.size();
                }
            }
        }
    }
}

TEST(FirstMessageLookup, ResponsesAnswerAsTheGeneralWalk) {
    for (const Bytes& msg : shortenedAndChanged(firstShapeResponse())) {
        const int len = int(msg.size());
        for (unsigned width : {1u, 2u, 4u}) {
            // The general walk, through the decoder skeleton: the result
            // item, the mandatory item, then its value of `width` bytes.
            Answer fast{0, Bytes(4 + 8, 0xEE)}, walk{0, Bytes(4 + 8, 0xEE)};
            fast.code = zq::respValue(msg.data(), len, reinterpret_cast<QmiResult*>(fast.out.data()),
                                      fast.out.data() + 4, zq::ref(zq::kService, 0x002D, 0x01, width));
            uint8_t* value = walk.out.data() + 4;
            walk.code = zq::resp(msg.data(), len, reinterpret_cast<QmiResult*>(walk.out.data()), 0x002D, true,
                                 [&](zq::Dec& d) {
                                     if (width == 1) d.put(value, d.u8(0));
                                     if (width == 2) d.put(reinterpret_cast<uint16_t*>(value), d.le16(0));
                                     if (width == 4) d.put(reinterpret_cast<uint32_t*>(value), d.le32(0));
                                 });
            // The decoder skeleton writes the result item before decoding;
            // so does the fast path: both leave it on a malformed value.
            ASSERT_EQ(fast, walk) << "width " << width << " length " << len;
        }
        Answer fast{0, Bytes(4, 0xEE)}, walk{0, Bytes(4, 0xEE)};
        fast.code = zq::respResult(msg.data(), len, reinterpret_cast<QmiResult*>(fast.out.data()),
                                   zq::ref(zq::kService, 0x002D));
        zq::Message m;
        walk.code = msg.data() == nullptr ? ZOVQMI_ERR_ARG : zq::walkMessages(msg.data(), len, 0x002D, &m);
        if (walk.code == 0) walk.code = zq::storeResult(m, reinterpret_cast<QmiResult*>(walk.out.data()));
        if (walk.code == 0) walk.code = m.areaLen;
        ASSERT_EQ(fast, walk) << "length " << len;
    }
}

}  // namespace
