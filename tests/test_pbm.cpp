// PBM, the phonebook manager service.
#include <stddef.h>

#include <algorithm>

#include "testutil.h"

using namespace t;

// ------------------------------------------------------------- layouts --

static_assert(sizeof(PBMTextSlot) == 243, "text slot");
static_assert(offsetof(PBMTextSlot, text) == 1, "text slot");
static_assert(sizeof(PBMNumberSlot) == 44, "number slot");
static_assert(offsetof(PBMNumberSlot, attribute2) == 1, "number slot");
static_assert(offsetof(PBMNumberSlot, length) == 2, "number slot");
static_assert(offsetof(PBMNumberSlot, number) == 3, "number slot");
static_assert(offsetof(PBMNumberSlot, trailingAttribute) == 43, "number slot");

static_assert(sizeof(PBMRecordSet) == 9216, "record set");
static_assert(offsetof(PBMRecordSet, leadingWord) == 0, "record set");
static_assert(offsetof(PBMRecordSet, selectorByte) == 2, "record set");
static_assert(offsetof(PBMRecordSet, selectorWord) == 3, "record set");
static_assert(offsetof(PBMRecordSet, recordCount) == 5, "record set");
static_assert(offsetof(PBMRecordSet, recordId) == 6, "record set");
static_assert(offsetof(PBMRecordSet, numberCount) == 26, "record set");
static_assert(offsetof(PBMRecordSet, numbers) == 36, "record set");
static_assert(offsetof(PBMRecordSet, numbers[1][0]) == 36 + 176, "record set");
static_assert(offsetof(PBMRecordSet, numbers[0][1]) == 36 + 44, "record set");
static_assert(offsetof(PBMRecordSet, name) == 1796, "record set");
static_assert(offsetof(PBMRecordSet, groupIdCount) == 4226, "record set");
static_assert(offsetof(PBMRecordSet, groupIds) == 4236, "record set");
static_assert(offsetof(PBMRecordSet, emailCount) == 4336, "record set");
static_assert(offsetof(PBMRecordSet, emails) == 4346, "record set");
static_assert(offsetof(PBMRecordSet, emails[1][0]) == 4346 + 486, "record set");
static_assert(offsetof(PBMRecordSet, hidden) == 9206, "record set");

static_assert(sizeof(PBMAllCapabilities) == 451, "capabilities");
static_assert(offsetof(PBMAllCapabilities, key) == 1, "capabilities");
static_assert(offsetof(PBMAllCapabilities, basicCount) == 7, "capabilities");
static_assert(offsetof(PBMAllCapabilities, basic) == 13, "capabilities");
static_assert(offsetof(PBMAllCapabilities, basic[1][0]) == 13 + 64, "capabilities");
static_assert(offsetof(PBMAllCapabilities, group) == 397, "capabilities");
static_assert(offsetof(PBMAllCapabilities, additionalNumber) == 409, "capabilities");
static_assert(offsetof(PBMAllCapabilities, email) == 427, "capabilities");
static_assert(offsetof(PBMAllCapabilities, secondName) == 439, "capabilities");
static_assert(offsetof(PBMAllCapabilities, hiddenRecords) == 445, "capabilities");

static_assert(sizeof(PBMEmergencyNumber) == 8, "emergency number");
static_assert(offsetof(PBMEmergencyNumber, length) == 1, "emergency number");
static_assert(offsetof(PBMEmergencyNumber, number) == 2, "emergency number");
static_assert(sizeof(PBMEmergencyNumberSets) == 12745, "emergency sets");
static_assert(offsetof(PBMEmergencyNumberSets, key) == 1, "emergency sets");
static_assert(offsetof(PBMEmergencyNumberSets, numberCount) == 451, "emergency sets");
static_assert(offsetof(PBMEmergencyNumberSets, numbers) == 457, "emergency sets");
static_assert(offsetof(PBMEmergencyNumberSets, numbers[1][0]) == 457 + 2048, "emergency sets");

static_assert(sizeof(PBMGroupsData) == 58573, "groups");
static_assert(offsetof(PBMGroupsData, key) == 1, "groups");
static_assert(offsetof(PBMGroupsData, groupCount) == 7, "groups");
static_assert(offsetof(PBMGroupsData, groupId) == 13, "groups");
static_assert(offsetof(PBMGroupsData, groupId[1][0]) == 13 + 40, "groups");
static_assert(offsetof(PBMGroupsData, name) == 253, "groups");
static_assert(offsetof(PBMGroupsData, name[1][0]) == 253 + 9720, "groups");

namespace {

// A caller record of type T with every byte set to the guard value 0xEE.
template <class T>
struct Guarded {
    Bytes bytes = Bytes(sizeof(T), 0xEE);
    T* get() { return reinterpret_cast<T*>(bytes.data()); }
    Bytes range(size_t off, size_t n) const { return Bytes(bytes.begin() + long(off), bytes.begin() + long(off + n)); }
};

int size(const Bytes& b) { return int(b.size()); }

// b with the bytes at off replaced by v.
Bytes with(Bytes b, size_t off, const Bytes& v) {
    std::copy(v.begin(), v.end(), b.begin() + long(off));
    return b;
}

// n bytes counting up from first.
Bytes seq(size_t n, uint8_t first = 1) {
    Bytes b(n);
    for (size_t i = 0; i < n; ++i) b[i] = uint8_t(first + i);
    return b;
}

// A wire text: length byte and bytes.
Bytes wtext(const Bytes& s) { return cat({{uint8_t(s.size())}, s}); }

// ------------------------------------------------------------- requests --

struct FixedRequest {
    const char* name;
    int (*build)(uint8_t*, int);
    uint16_t id;
    Bytes expected;  // the TLV area
};

int indicationRegister(uint8_t* b, int n) { return zovQMIPBMIndicationRegisterReq(b, n, 0x11223344); }
int pbCapabilities(uint8_t* b, int n) { return zovQMIPBMGetPBCapabilitiesReq(b, n, 0x01, 0x0203); }
int allPbCapabilities(uint8_t* b, int n) { return zovQMIPBMGetAllPBCapabilitiesReq(b, n); }
int readRecords(uint8_t* b, int n) { return zovQMIPBMReadRecordsReq(b, n, 0x01, 0x0203, 0x0405, 0x0607); }
int deleteRecord(uint8_t* b, int n) { return zovQMIPBMDeleteRecordReq(b, n, 0x02, 0x0102, 0x0A0B); }
int deleteAll(uint8_t* b, int n) { return zovQMIPBMDeleteAllPBRecordsReq(b, n, 0x03, 0x0405); }
int searchRecords(uint8_t* b, int n) { return zovQMIPBMSearchRecordsReq(b, n, 0x04, 0x0607); }
int emergencyList(uint8_t* b, int n) { return zovQMIPBMGetEmergencyListReq(b, n); }
int allGroups(uint8_t* b, int n) { return zovQMIPBMGetAllGroupsReq(b, n); }
int pbState(uint8_t* b, int n) { return zovQMIPBMGetPBStateReq(b, n, 0x05, 0x0809); }
int allHidden(uint8_t* b, int n) { return zovQMIPBMReadAllHiddenRecordsReq(b, n, 0x07); }

TEST(PbmRequests, EveryFixedRequestWritesItsBytesAndRefusesOneByteLess) {
    const FixedRequest requests[] = {
        {"IndicationRegister", indicationRegister, 0x0001, tlv(0x01, le32(0x11223344))},
        {"GetPBCapabilities", pbCapabilities, 0x0002, tlv(0x01, cat({{0x01}, le16(0x0203)}))},
        {"GetAllPBCapabilities", allPbCapabilities, 0x0003, {}},
        {"ReadRecords", readRecords, 0x0004, tlv(0x01, cat({{0x01}, le16(0x0203), le16(0x0405), le16(0x0607)}))},
        {"DeleteRecord", deleteRecord, 0x0006, tlv(0x01, cat({{0x02}, le16(0x0102), le16(0x0A0B)}))},
        {"DeleteAllPBRecords", deleteAll, 0x0007, tlv(0x01, cat({{0x03}, le16(0x0405)}))},
        {"SearchRecords", searchRecords, 0x0008, tlv(0x01, cat({{0x04}, le16(0x0607)}))},
        {"GetEmergencyList", emergencyList, 0x000E, {}},
        {"GetAllGroups", allGroups, 0x000F, {}},
        {"GetPBState", pbState, 0x0011, tlv(0x01, cat({{0x05}, le16(0x0809)}))},
        {"ReadAllHiddenRecords", allHidden, 0x0012, tlv(0x01, {0x07})},
    };
    for (const FixedRequest& r : requests) {
        SCOPED_TRACE(r.name);
        int n = 7 + size(r.expected);
        Bytes buf = buffer(32);
        EXPECT_EQ(r.build(buf.data(), n - 1), -1);
        EXPECT_EQ(buf, buffer(32));
        EXPECT_EQ(r.build(nullptr, n), -1);
        EXPECT_EQ(r.build(buf.data(), n), n);
        EXPECT_EQ(head(buf, size_t(n) + 1), cat({reqHeader(r.id, uint16_t(r.expected.size())), r.expected, {0xEE}}));
    }
}

TEST(PbmRequests, FixedRequestSizesAreThoseOfTheMessageTable) {
    Bytes buf = buffer(32);
    EXPECT_EQ(indicationRegister(buf.data(), 32), 14);
    EXPECT_EQ(pbCapabilities(buf.data(), 32), 13);
    EXPECT_EQ(allPbCapabilities(buf.data(), 32), 7);
    EXPECT_EQ(readRecords(buf.data(), 32), 17);
    EXPECT_EQ(deleteAll(buf.data(), 32), 13);
    EXPECT_EQ(searchRecords(buf.data(), 32), 13);
    EXPECT_EQ(emergencyList(buf.data(), 32), 7);
    EXPECT_EQ(allGroups(buf.data(), 32), 7);
    EXPECT_EQ(pbState(buf.data(), 32), 13);
    EXPECT_EQ(allHidden(buf.data(), 32), 11);
}

TEST(PbmRequests, DeleteRecordIsFifteenBytesWithAnEightByteArea) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIPBMDeleteRecordReq(buf.data(), 32, 0x01, 0x0302, 0x0504), 15);
    EXPECT_EQ(rd16(&buf[3]), 0x0006);
    EXPECT_EQ(rd16(&buf[5]), 8);
    EXPECT_EQ(head(buf, 16), cat({reqHeader(0x0006, 8), tlv(0x01, {0x01, 0x02, 0x03, 0x04, 0x05}), {0xEE}}));
}

// ---------------------------------------------------------- write record --

// A record set whose record 0 carries selector, id, primary number and name;
// every other byte is a guard.
Guarded<PBMRecordSet> recordToWrite(const Bytes& number, const Bytes& name) {
    Guarded<PBMRecordSet> s;
    s.bytes = with(s.bytes, 2, {0x01, 0x34, 0x12});
    s.bytes = with(s.bytes, 6, le16(0x0099));
    s.bytes = with(s.bytes, 36, {0xA1, 0xA2, uint8_t(number.size())});
    s.bytes = with(s.bytes, 39, number);
    s.bytes = with(s.bytes, 1796, wtext(name));
    return s;
}

TEST(PbmWriteRecord, EmptyNumberAndNameGiveNineteenBytesWithANineByteItem) {
    Guarded<PBMRecordSet> s = recordToWrite({}, {});
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPBMWriteRecordReq(buf.data(), 19, s.get()), 19);
    EXPECT_EQ(head(buf, 20),
              cat({reqHeader(0x0005, 12), tlv(0x01, {0x01, 0x34, 0x12, 0x99, 0x00, 0xA1, 0xA2, 0x00, 0x00}), {0xEE}}));
}

TEST(PbmWriteRecord, ItemIsBuiltFromSelectorIdPrimaryNumberAndName) {
    Guarded<PBMRecordSet> s = recordToWrite(str("5551234"), str("Alice"));
    Bytes buf = buffer(64);
    const int total = 7 + 5 + 19;  // L + K + 19
    EXPECT_EQ(zovQMIPBMWriteRecordReq(buf.data(), total - 1, s.get()), -1);
    EXPECT_EQ(buf, buffer(64));
    EXPECT_EQ(zovQMIPBMWriteRecordReq(buf.data(), total, s.get()), total);
    Bytes value = cat({{0x01, 0x34, 0x12}, le16(0x0099), {0xA1, 0xA2, 7}, str("5551234"), {5}, str("Alice")});
    EXPECT_EQ(head(buf, size_t(total) + 1), cat({reqHeader(0x0005, uint16_t(total - 7)), tlv(0x01, value), {0xEE}}));
    EXPECT_EQ(zovQMIPBMWriteRecordReq(nullptr, 64, s.get()), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReq(buf.data(), 64, nullptr), -1);
}

TEST(PbmWriteRecord, NumberLengthBeyondTheSlotReadsOnIntoTheFollowingSetBytes) {
    // The number length is used as it stands: 50 bytes run from slot 0 into slot 1.
    Guarded<PBMRecordSet> s = recordToWrite(seq(50), {});
    Bytes buf = buffer(128);
    ASSERT_EQ(zovQMIPBMWriteRecordReq(buf.data(), 128, s.get()), 50 + 19);
    EXPECT_EQ(Bytes(buf.begin() + 18, buf.begin() + 68), seq(50));
}

TEST(PbmWriteRecord, SecondNameIsSentFromOneTextSlot) {
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPBMDeleteAllPBRecordsReq(buf.data(), 64, 1, 2), 13);
    Bytes slot = with(Bytes(243, 0xEE), 0, wtext(str("Bob")));
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddSecondNameInformation(buf.data(), 64, slot.data()), 20);
    EXPECT_EQ(Bytes(buf.begin() + 13, buf.begin() + 21), cat({tlv(0x10, wtext(str("Bob"))), {0xEE}}));
    EXPECT_EQ(rd16(&buf[5]), 13);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddSecondNameInformation(buf.data(), 64, nullptr), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddSecondNameInformation(nullptr, 64, slot.data()), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddSecondNameInformation(buf.data(), 24, slot.data()), -2);
}

TEST(PbmWriteRecord, AdditionalNumbersSendEachSlotsHeadNumberAndTrailingAttribute) {
    Bytes slots(2 * 44, 0xEE);
    slots = with(slots, 0, cat({{0x11, 0x12, 3}, str("112")}));
    slots[43] = 0x13;
    slots = with(slots, 44, cat({{0x21, 0x22, 2}, str("99")}));
    slots[87] = 0x23;
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPBMGetAllPBCapabilitiesReq(buf.data(), 64), 7);
    Bytes value = cat({{2, 0x11, 0x12, 3}, str("112"), {0x13, 0x21, 0x22, 2}, str("99"), {0x23}});
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(buf.data(), 64, 2, slots.data()), 7 + 3 + 14);
    EXPECT_EQ(head(buf, 25), cat({reqHeader(0x0003, 17), tlv(0x11, value), {0xEE}}));
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(nullptr, 64, 2, slots.data()), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(buf.data(), 64, 0, nullptr), 28);
    EXPECT_EQ(Bytes(buf.begin() + 24, buf.begin() + 29), cat({tlv(0x11, {0x00}), {0xEE}}));
}

TEST(PbmWriteRecord, AdditionalNumbersBeyondTheItemValueAreRefused) {
    // Four numbers of 255 bytes need 1 + 4 * 259 value bytes: more than an item holds.
    Bytes slots(3 * 44 + 3 + 255 + 1, 0x30);
    for (int k = 0; k < 4; ++k) slots[44 * k + 2] = 255;
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIPBMGetAllPBCapabilitiesReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(buf.data(), 2048, 4, slots.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rd16(&buf[5]), 0);
    EXPECT_EQ(buf[7], 0xEE);
    // Three of them (778 bytes) still fit.
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddAdditionalNumberInformation(buf.data(), 2048, 3, slots.data()), 7 + 3 + 778);
}

TEST(PbmWriteRecord, EmailsAreReadFromConsecutiveTextSlots) {
    Bytes slots(2 * 243, 0xEE);
    slots = with(slots, 0, wtext(str("a@b")));
    slots = with(slots, 243, wtext(str("cd@ef")));
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPBMGetAllPBCapabilitiesReq(buf.data(), 64), 7);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 64, 2, slots.data()), 7 + 3 + 11);
    EXPECT_EQ(head(buf, 22), cat({reqHeader(0x0003, 14), tlv(0x13, cat({{2}, wtext(str("a@b")), wtext(str("cd@ef"))})),
                                  {0xEE}}));
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(nullptr, 64, 2, slots.data()), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 24, 0, nullptr), -2);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 25, 0, nullptr), 25);
    EXPECT_EQ(Bytes(buf.begin() + 21, buf.begin() + 26), Bytes({0x13, 0x01, 0x00, 0x00, 0xEE}));
}

TEST(PbmWriteRecord, EmailsBeyondTheItemValueAreRefused) {
    Bytes slots(5 * 243, 242);  // five emails of 242 bytes: 1 + 5 * 243 value bytes
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIPBMGetAllPBCapabilitiesReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 2048, 5, slots.data()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddEmailInformation(buf.data(), 2048, 4, slots.data()), 7 + 3 + 973);
}

TEST(PbmWriteRecord, GroupIdsAndHiddenFlag) {
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPBMGetAllPBCapabilitiesReq(buf.data(), 64), 7);
    Bytes ids = {0x05, 0x07, 0x09};
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddGroupIDInformation(buf.data(), 64, 3, ids.data()), 14);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddHiddenInformation(buf.data(), 64, 0x01), 18);
    EXPECT_EQ(head(buf, 19), cat({reqHeader(0x0003, 11), tlv(0x12, {3, 0x05, 0x07, 0x09}), tlv(0x14, {0x01}), {0xEE}}));
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddGroupIDInformation(buf.data(), 64, 3, nullptr), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddGroupIDInformation(nullptr, 64, 3, ids.data()), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddGroupIDInformation(buf.data(), 64, 0, nullptr), 22);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddHiddenInformation(nullptr, 64, 1), -1);
    EXPECT_EQ(zovQMIPBMWriteRecordReqAddHiddenInformation(buf.data(), 25, 1), -2);
    EXPECT_EQ(head(buf, 23), cat({reqHeader(0x0003, 15), tlv(0x12, {3, 0x05, 0x07, 0x09}), tlv(0x14, {0x01}),
                                  tlv(0x12, {0x00}), {0xEE}}));
}

TEST(PbmRequests, SearchNumberAndNameAreALengthAndTheBytes) {
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIPBMSearchRecordsReq(buf.data(), 64, 0x01, 0x0002), 13);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNumberInformation(buf.data(), 64, 3, "911"), 20);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNameInformation(buf.data(), 64, 2, "Jo"), 26);
    EXPECT_EQ(head(buf, 27), cat({reqHeader(0x0008, 19), tlv(0x01, {0x01, 0x02, 0x00}), tlv(0x10, wtext(str("911"))),
                                  tlv(0x11, wtext(str("Jo"))), {0xEE}}));
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNumberInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNameInformation(buf.data(), 64, 1, nullptr), -1);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNameInformation(nullptr, 64, 2, "Jo"), -1);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNameInformation(buf.data(), 30, 0, nullptr), 30);
    EXPECT_EQ(zovQMIPBMSearchRecordsReqAddNumberInformation(buf.data(), 33, 0, nullptr), -2);
}

// ------------------------------------------------------------ responses --

struct ResultOnly {
    const char* name;
    int (*parse)(const uint8_t*, int, QmiResult*);
    uint16_t id;
};

TEST(PbmResponses, EveryResultOnlyResponseFollowsTheCommonPattern) {
    const ResultOnly responses[] = {
        {"IndicationRegister", zovQMIPBMIndicationRegisterResp, 0x0001},
        {"GetPBCapabilities", zovQMIPBMGetPBCapabilitiesResp, 0x0002},
        {"GetAllPBCapabilities", zovQMIPBMGetAllPBCapabilitiesResp, 0x0003},
        {"ReadRecords", zovQMIPBMReadRecordsResp, 0x0004},
        {"WriteRecord", zovQMIPBMWriteRecordResp, 0x0005},
        {"DeleteRecord", zovQMIPBMDeleteRecordResp, 0x0006},
        {"DeleteAllPBRecords", zovQMIPBMDeleteAllPBRecordsResp, 0x0007},
        {"SearchRecords", zovQMIPBMSearchRecordsResp, 0x0008},
        {"GetEmergencyList", zovQMIPBMGetEmergencyListResp, 0x000E},
        {"GetAllGroups", zovQMIPBMGetAllGroupsResp, 0x000F},
        {"SetGroupInfo", zovQMIPBMSetGroupInfoResp, 0x0010},
        {"GetPBState", zovQMIPBMGetPBStateResp, 0x0011},
        {"ReadAllHiddenRecords", zovQMIPBMReadAllHiddenRecordsResp, 0x0012},
    };
    for (const ResultOnly& r : responses) {
        SCOPED_TRACE(r.name);
        Bytes msg = svcMessage(r.id, {result(1, 0x30), tlv(0x10, {0x01})});
        QmiResult q = untouchedResult();
        EXPECT_EQ(r.parse(msg.data(), size(msg), &q), 11);  // a failure result still returns the area length
        EXPECT_EQ(res(q), (Res{1, 0x30}));
        EXPECT_EQ(r.parse(nullptr, size(msg), &q), -1);
        EXPECT_EQ(r.parse(msg.data(), size(msg), nullptr), -1);
        Bytes other = svcMessage(uint16_t(r.id + 0x40), {result()});
        EXPECT_EQ(r.parse(other.data(), size(other), &q), -2);
        Bytes noResult = svcMessage(r.id, {tlv(0x10, {0x01})});
        q = untouchedResult();
        EXPECT_EQ(r.parse(noResult.data(), size(noResult), &q), -3);
        EXPECT_EQ(res(q), res(untouchedResult()));
    }
}

struct WordGetter {
    const char* name;
    int (*parse)(const uint8_t*, int, uint16_t*);
    uint16_t id;
};

TEST(PbmResponses, SixteenBitGettersDeliverNativeValues) {
    const WordGetter getters[] = {
        {"ReadRecords NumberOfRecords", zovQMIPBMReadRecordsRespGetNumberOfRecords, 0x0004},
        {"WriteRecord RecordInfo", zovQMIPBMWriteRecordRespGetRecordInfo, 0x0005},
        {"DeleteRecord RecordID", zovQMIPBMDeleteRecordRespGetRecordID, 0x0006},
        {"ReadAllHiddenRecords NumberofRecords", zovQMIPBMReadAllHiddenRecordsRespGetNumberofRecords, 0x0012},
    };
    for (const WordGetter& g : getters) {
        SCOPED_TRACE(g.name);
        Bytes msg = svcMessage(g.id, {result(), tlv(0x10, le16(0xBEEF))});
        uint16_t v = 0;
        EXPECT_EQ(g.parse(msg.data(), size(msg), &v), 2);
        EXPECT_EQ(v, 0xBEEF);
        EXPECT_EQ(g.parse(msg.data(), size(msg), nullptr), -1);
        EXPECT_EQ(g.parse(nullptr, size(msg), &v), -1);
        Bytes absent = svcMessage(g.id, {result()});
        EXPECT_EQ(g.parse(absent.data(), size(absent), &v), -3);
        Bytes other = svcMessage(0x0001, {result(), tlv(0x10, le16(1))});
        EXPECT_EQ(g.parse(other.data(), size(other), &v), -2);
        Bytes cut = svcMessage(g.id, {result(), tlv(0x10, {0x01})});
        v = 0x1234;
        EXPECT_EQ(g.parse(cut.data(), size(cut), &v), ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(v, 0x1234);
    }
}

TEST(PbmResponses, EventRegistrationMaskIsAThirtyTwoBitValue) {
    Bytes msg = svcMessage(0x0001, {result(), tlv(0x10, le32(0x80000003))});
    uint32_t mask = 0;
    EXPECT_EQ(zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(msg.data(), size(msg), &mask), 4);
    EXPECT_EQ(mask, 0x80000003u);
    EXPECT_EQ(zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(msg.data(), size(msg), nullptr), -1);
    Bytes absent = svcMessage(0x0001, {result()});
    EXPECT_EQ(zovQMIPBMIndicationRegisterRespGetEventRegistrationMask(absent.data(), size(absent), &mask), -3);
}

TEST(PbmCapabilities, OnePhonebooksCapabilitiesAreCopiedAsTheyStand) {
    Bytes msg = svcMessage(0x0002, {result(), tlv(0x10, cat({{0x07}, le16(0x0102), le16(0x0304), le16(0x0506), {8, 9}})),
                                    tlv(0x11, {0x21, 0x22}), tlv(0x12, {0x31, 0x32, 0x33}), tlv(0x13, {0x41, 0x42}),
                                    tlv(0x14, {0x51}), tlv(0x15, {0x61})});
    const int n = size(msg);
    uint8_t first = 0;
    Bytes basic(9, 0xEE);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(msg.data(), n, &first, basic.data()), 9);
    EXPECT_EQ(first, 0x07);
    EXPECT_EQ(basic, Bytes({0x02, 0x01, 0x04, 0x03, 0x06, 0x05, 8, 9, 0xEE}));
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(msg.data(), n, nullptr, basic.data()), -1);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(msg.data(), n, &first, nullptr), -1);
    Bytes cap(4, 0xEE);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(msg.data(), n, cap.data()), 2);
    EXPECT_EQ(cap, Bytes({0x21, 0x22, 0xEE, 0xEE}));
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability(msg.data(), n, cap.data()), 3);
    EXPECT_EQ(cap, Bytes({0x31, 0x32, 0x33, 0xEE}));
    cap.assign(4, 0xEE);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetEmailCapability(msg.data(), n, cap.data()), 2);
    EXPECT_EQ(cap, Bytes({0x41, 0x42, 0xEE, 0xEE}));
    uint8_t one = 0;
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetSecondNameCapability(msg.data(), n, &one), 1);
    EXPECT_EQ(one, 0x51);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(msg.data(), n, &one), 1);
    EXPECT_EQ(one, 0x61);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(msg.data(), n, nullptr), -1);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetAdditionalNumberCapability(msg.data(), n, nullptr), -1);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetEmailCapability(msg.data(), n, nullptr), -1);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetSecondNameCapability(msg.data(), n, nullptr), -1);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(msg.data(), n, nullptr), -1);
    Bytes absent = svcMessage(0x0002, {result()});
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetHiddenRecordsCapability(absent.data(), size(absent), &one), -3);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetGroupCapability(absent.data(), size(absent), cap.data()), -3);
}

TEST(PbmCapabilities, BasicInformationCutByTheBufferEndWritesNothing) {
    Bytes msg = svcMessage(0x0002, {result(), tlv(0x10, {0x07, 0x01, 0x02})});
    uint8_t first = 0xEE;
    Bytes basic(8, 0xEE);
    EXPECT_EQ(zovQMIPBMGetPBCapabilitiesRespGetCapabilityBasicInformation(msg.data(), size(msg), &first, basic.data()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(first, 0xEE);
    EXPECT_EQ(basic, Bytes(8, 0xEE));
}

// ------------------------------------------------------ all capabilities --

TEST(PbmAllCapabilities, BasicInformationArrayStoresKeysCountsAndEntries) {
    Bytes e1 = cat({le16(0x0101), le16(0x0202), le16(0x0303), {4, 5}});
    Bytes e2 = seq(8, 0x40), e3 = seq(8, 0x50);
    Bytes value = cat({{2}, {0xA1, 1}, e1, {0xA2, 2}, e2, e3});
    Bytes msg = svcMessage(0x0003, {result(), tlv(0x10, value)});
    Guarded<PBMAllCapabilities> c;
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(msg.data(), size(msg), c.get()),
              size(value));
    Bytes expected = Bytes(451, 0xEE);
    expected = with(expected, 0, {2, 0xA1, 0xA2});
    expected = with(expected, 7, {1, 2});
    expected = with(expected, 13, e1);
    expected = with(expected, 13 + 64, cat({e2, e3}));
    EXPECT_EQ(c.bytes, expected);
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(msg.data(), size(msg), nullptr), -1);
}

struct CapabilityArray {
    const char* name;
    int (*parse)(const uint8_t*, int, PBMAllCapabilities*);
    uint8_t type;
    size_t field;
    size_t width;
};

const CapabilityArray kCapabilityArrays[] = {
    {"Group", zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray, 0x11, 397, 2},
    {"AdditionalNumber", zovQMIPBMGetAllPBCapabilitiesRespGetAdditionalNumberCapabilityArray, 0x12, 409, 3},
    {"Email", zovQMIPBMGetAllPBCapabilitiesRespGetEmailCapabilityArray, 0x13, 427, 2},
    {"SecondName", zovQMIPBMGetAllPBCapabilitiesRespGetSecondNameCapabilityArray, 0x14, 439, 1},
    {"HiddenRecords", zovQMIPBMGetAllPBCapabilitiesRespGetHiddenRecordsCapabilityArray, 0x15, 445, 1},
};

// n entries: key 0xK0 + i, capability bytes counting from 0x10 * (i + 1).
Bytes capabilityEntries(size_t n, size_t width) {
    Bytes v = {uint8_t(n)};
    for (size_t i = 0; i < n; ++i) v = cat({v, {uint8_t(0xC0 + i)}, seq(width, uint8_t(0x10 * (i + 1)))});
    return v;
}

TEST(PbmAllCapabilities, EachFixedArrayStoresCountKeysAndItsOwnField) {
    for (const CapabilityArray& a : kCapabilityArrays) {
        SCOPED_TRACE(a.name);
        Bytes value = capabilityEntries(2, a.width);
        Bytes msg = svcMessage(0x0003, {result(), tlv(a.type, value)});
        Guarded<PBMAllCapabilities> c;
        EXPECT_EQ(a.parse(msg.data(), size(msg), c.get()), size(value));
        Bytes expected = with(Bytes(451, 0xEE), 0, {2, 0xC0, 0xC1});
        expected = with(expected, a.field, cat({seq(a.width, 0x10), seq(a.width, 0x20)}));
        EXPECT_EQ(c.bytes, expected);
        EXPECT_EQ(a.parse(msg.data(), size(msg), nullptr), -1);
        Bytes absent = svcMessage(0x0003, {result()});
        EXPECT_EQ(a.parse(absent.data(), size(absent), c.get()), -3);
    }
}

TEST(PbmAllCapabilities, EveryArrayGetterRewritesTheCountAndKeyBytes) {
    Bytes basic = cat({{3}, {0xB0, 0}, {0xB1, 0}, {0xB2, 0}});
    Bytes msg = svcMessage(0x0003, {result(), tlv(0x10, basic), tlv(0x11, capabilityEntries(1, 2)),
                                    tlv(0x12, capabilityEntries(2, 3)), tlv(0x13, capabilityEntries(1, 2)),
                                    tlv(0x14, capabilityEntries(2, 1)), tlv(0x15, capabilityEntries(1, 1))});
    for (const CapabilityArray& a : kCapabilityArrays) {
        SCOPED_TRACE(a.name);
        Guarded<PBMAllCapabilities> c;
        ASSERT_GT(zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(msg.data(), size(msg), c.get()),
                  0);
        EXPECT_EQ(c.range(0, 4), Bytes({3, 0xB0, 0xB1, 0xB2}));
        ASSERT_GT(a.parse(msg.data(), size(msg), c.get()), 0);
        uint8_t n = a.type == 0x12 || a.type == 0x14 ? 2 : 1;
        EXPECT_EQ(c.bytes[0], n);
        EXPECT_EQ(c.bytes[1], 0xC0);
        // The key of the third basic set stays; the second is replaced when the array has two entries.
        EXPECT_EQ(c.bytes[2], n == 2 ? 0xC1 : 0xB1);
        EXPECT_EQ(c.bytes[3], 0xB2);
    }
}

TEST(PbmAllCapabilities, CountBeyondSixOverrunsIntoTheNextFieldsInsideTheRecord) {
    // 27 group entries: entry 26 lands on bytes 449-450, the record's last two bytes.
    Bytes value = capabilityEntries(27, 2);
    Bytes msg = svcMessage(0x0003, {result(), tlv(0x11, value)});
    Guarded<PBMAllCapabilities> c;
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray(msg.data(), size(msg), c.get()), size(value));
    EXPECT_EQ(c.bytes[0], 27);
    EXPECT_EQ(c.bytes[7], 0xC6);  // the seventh key lands on the first basic count
    EXPECT_EQ(c.range(449, 2), seq(2, uint8_t(0x10 * 27)));
}

TEST(PbmAllCapabilities, CountThatWouldWritePastTheRecordIsRefused) {
    Bytes value = capabilityEntries(28, 2);  // entry 27 would land on bytes 451-452
    Bytes msg = svcMessage(0x0003, {result(), tlv(0x11, value)});
    Guarded<PBMAllCapabilities> c;
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetGroupCapabilityArray(msg.data(), size(msg), c.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(c.bytes, Bytes(451, 0xEE));
    // The basic array likewise: set 5's entries start at byte 333; 14 of them
    // end on byte 444 (written as they stand), 15 would pass byte 450.
    auto basicWith = [](uint8_t m) {
        return cat({{6}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}, {6, m}, fill(8u * m, 0x77)});
    };
    Bytes fits = svcMessage(0x0003, {result(), tlv(0x10, basicWith(14))});
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(fits.data(), size(fits), c.get()),
              13 + 112);
    EXPECT_EQ(c.range(333, 113), cat({fill(112, 0x77), {0xEE}}));
    Guarded<PBMAllCapabilities> c2;
    Bytes over = svcMessage(0x0003, {result(), tlv(0x10, basicWith(15))});
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetCapabilityBasicInformationArray(over.data(), size(over), c2.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(c2.bytes, Bytes(451, 0xEE));
}

TEST(PbmAllCapabilities, ArrayCountRunningPastTheBufferIsMalformed) {
    Bytes value = cat({{3}, {0xC0, 1, 2}, {0xC1, 3, 4}});
    Bytes msg = svcMessage(0x0003, {result(), tlv(0x13, value)});
    Guarded<PBMAllCapabilities> c;
    EXPECT_EQ(zovQMIPBMGetAllPBCapabilitiesRespGetEmailCapabilityArray(msg.data(), size(msg), c.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(c.bytes, Bytes(451, 0xEE));
}

// ----------------------------------------------------------- record read --

// One record of item 0x01: id, number attributes, number, name.
Bytes wireRecord(uint16_t id, const Bytes& number, const Bytes& name) {
    return cat({le16(id), {0x81, 0x82}, wtext(number), wtext(name)});
}

Bytes leading(uint8_t count) { return cat({le16(0x0A0B), {0x01}, le16(0x0C0D), {count}}); }

TEST(PbmRecordRead, IndicationStoresLeadingFieldsAndEachRecord) {
    Bytes value = cat({leading(2), wireRecord(0x0011, str("123"), str("Ann")), wireRecord(0x0022, {}, str("Bo"))});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, value)}, 0x0000, 0x04);
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 3 + size(value));
    Bytes expected = with(Bytes(9216, 0xEE), 0, cat({leading(2), le16(0x0011), le16(0x0022)}));
    expected = with(expected, 26, {1, 1});
    expected = with(expected, 36, cat({{0x81, 0x82, 3}, str("123")}));
    expected = with(expected, 36 + 176, {0x81, 0x82, 0});
    expected = with(expected, 1796, wtext(str("Ann")));
    expected = with(expected, 1796 + 243, wtext(str("Bo")));
    EXPECT_EQ(s.bytes, expected);
}

TEST(PbmRecordRead, IndicationWithNoRecordsStoresOnlyTheLeadingFieldsAndCount) {
    Bytes msg = svcMessage(0x0004, {tlv(0x01, leading(0))});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 9);
    EXPECT_EQ(s.bytes, with(Bytes(9216, 0xEE), 0, leading(0)));
}

TEST(PbmRecordRead, IndicationReturnCodes) {
    Guarded<PBMRecordSet> s;
    Bytes msg = svcMessage(0x0004, {tlv(0x01, leading(0))});
    EXPECT_EQ(zovQMIPBMRecordReadIND(nullptr, size(msg), s.get()), -1);
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), nullptr), -1);
    Bytes other = svcMessage(0x0009, {tlv(0x01, leading(0))});
    EXPECT_EQ(zovQMIPBMRecordReadIND(other.data(), size(other), s.get()), -2);
    Bytes noItem = svcMessage(0x0004, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMRecordReadIND(noItem.data(), size(noItem), s.get()), -3);
    EXPECT_EQ(s.bytes, Bytes(9216, 0xEE));
}

TEST(PbmRecordRead, RecordCountRunningPastTheBufferWritesNothing) {
    Bytes value = cat({leading(3), wireRecord(1, str("1"), str("A"))});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, value)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s.bytes, Bytes(9216, 0xEE));
}

TEST(PbmRecordRead, NumberLongerThanItsSlotIsWrittenOnIntoTheNextSlot) {
    Bytes value = cat({leading(1), wireRecord(1, seq(60), {})});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, value)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 3 + size(value));
    EXPECT_EQ(s.range(38, 61), cat({{60}, seq(60)}));  // slot 0 ends at byte 79, slot 1 gets the rest
    EXPECT_EQ(s.bytes[99], 0xEE);
}

TEST(PbmRecordRead, RecordsBeyondTenOverrunInsideTheSetUpToItsEnd) {
    // Record 30's name slot starts at byte 9086; a 129-byte name ends on byte 9215.
    Bytes value = leading(31);
    for (int i = 0; i < 30; ++i) value = cat({value, wireRecord(uint16_t(0x100 + i), {}, {})});
    Bytes ok = cat({value, wireRecord(0x7777, {}, fill(129, 0x55))});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, ok)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 3 + size(ok));
    EXPECT_EQ(s.bytes[5], 31);
    EXPECT_EQ(s.range(9086, 130), cat({{129}, fill(129, 0x55)}));
    // One name byte more would write byte 9216: refused, nothing written.
    Bytes over = cat({value, wireRecord(0x7777, {}, fill(130, 0x55))});
    Bytes msg2 = svcMessage(0x0004, {tlv(0x01, over)});
    Guarded<PBMRecordSet> s2;
    EXPECT_EQ(zovQMIPBMRecordReadIND(msg2.data(), size(msg2), s2.get()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s2.bytes, Bytes(9216, 0xEE));
}

// Record-read optional arrays: count, then entries starting with a record id.
Bytes arrayOf(std::initializer_list<Bytes> entries) {
    return cat({{uint8_t(entries.size())}, cat(entries)});
}

TEST(PbmRecordRead, SecondNameArrayReplacesTheNamesOfTheIndication) {
    Bytes value = cat({leading(2), wireRecord(0x0011, str("1"), str("Ann")), wireRecord(0x0022, str("2"), str("Bo"))});
    Bytes names = arrayOf({cat({le16(0x0011), wtext(str("Anna"))}), cat({le16(0x0023), wtext(str("B"))})});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, value), tlv(0x10, names)});
    Guarded<PBMRecordSet> s;
    ASSERT_GT(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 0);
    Bytes before = s.bytes;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(msg.data(), size(msg), s.get()), size(names));
    Bytes expected = with(before, 5, {2});
    expected = with(expected, 6, cat({le16(0x0011), le16(0x0023)}));
    expected = with(expected, 1796, wtext(str("Anna")));
    expected = with(expected, 1796 + 243, wtext(str("B")));
    EXPECT_EQ(s.bytes, expected);
    EXPECT_EQ(s.bytes[1796 + 243 + 2], 'o');  // the rest of the old name stays
}

TEST(PbmRecordRead, AdditionalNumberArrayReplacesThePrimaryNumberAndTheNumberCount) {
    Bytes value = cat({leading(1), wireRecord(0x0011, str("555"), str("Ann"))});
    Bytes numbers = arrayOf({cat({le16(0x0011), {2}, {0x91, 0x92, 2}, str("77"), {0x93}, {0xA1, 0xA2, 1}, str("8"),
                                  {0xA3}})});
    Bytes msg = svcMessage(0x0004, {tlv(0x01, value), tlv(0x11, numbers)});
    Guarded<PBMRecordSet> s;
    ASSERT_GT(zovQMIPBMRecordReadIND(msg.data(), size(msg), s.get()), 0);
    Bytes before = s.bytes;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation(msg.data(), size(msg), s.get()),
              size(numbers));
    Bytes expected = with(before, 26, {2});
    expected = with(expected, 36, cat({{0x91, 0x92, 2}, str("77")}));
    expected = with(expected, 36 + 43, {0x93});
    expected = with(expected, 36 + 44, cat({{0xA1, 0xA2, 1}, str("8")}));
    expected = with(expected, 36 + 44 + 43, {0xA3});
    EXPECT_EQ(s.bytes, expected);
    EXPECT_EQ(s.bytes[36 + 5], '5');  // the old primary number's third digit stays
}

TEST(PbmRecordRead, GroupIdArrayStoresCountsAndIds) {
    Bytes groups = arrayOf({cat({le16(0x0001), {2, 0x05, 0x06}}), cat({le16(0x0002), {1, 0x07}})});
    Bytes msg = svcMessage(0x0004, {tlv(0x12, groups)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofGroupIDInformation(msg.data(), size(msg), s.get()), size(groups));
    Bytes expected = with(Bytes(9216, 0xEE), 5, cat({{2}, le16(1), le16(2)}));
    expected = with(expected, 4226, {2, 1});
    expected = with(expected, 4236, {0x05, 0x06});
    expected = with(expected, 4246, {0x07});
    EXPECT_EQ(s.bytes, expected);
}

TEST(PbmRecordRead, EmailArrayStoresCountsAndTextSlots) {
    Bytes emails = arrayOf({cat({le16(0x0001), {2}, wtext(str("a@b")), wtext(str("c@d"))}),
                            cat({le16(0x0002), {1}, wtext(str("e@f"))})});
    Bytes msg = svcMessage(0x0004, {tlv(0x13, emails)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofEmailInformation(msg.data(), size(msg), s.get()), size(emails));
    Bytes expected = with(Bytes(9216, 0xEE), 5, cat({{2}, le16(1), le16(2)}));
    expected = with(expected, 4336, {2, 1});
    expected = with(expected, 4346, wtext(str("a@b")));
    expected = with(expected, 4346 + 243, wtext(str("c@d")));
    expected = with(expected, 4346 + 486, wtext(str("e@f")));
    EXPECT_EQ(s.bytes, expected);
}

TEST(PbmRecordRead, HiddenArrayStoresOneFlagPerRecord) {
    Bytes hidden = arrayOf({cat({le16(0x0001), {1}}), cat({le16(0x0002), {0}})});
    Bytes msg = svcMessage(0x0004, {tlv(0x14, hidden)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofHiddenInformation(msg.data(), size(msg), s.get()), size(hidden));
    Bytes expected = with(Bytes(9216, 0xEE), 5, cat({{2}, le16(1), le16(2)}));
    expected = with(expected, 9206, {1, 0});
    EXPECT_EQ(s.bytes, expected);
}

TEST(PbmRecordRead, HiddenFlagOfAnEleventhRecordWouldPassTheSetsEndAndIsRefused) {
    Bytes ten = {10}, eleven = {11};
    for (int i = 0; i < 10; ++i) ten = cat({ten, le16(uint16_t(i)), {uint8_t(i)}});
    eleven = cat({eleven, Bytes(ten.begin() + 1, ten.end()), le16(10), {10}});
    Bytes msg = svcMessage(0x0004, {tlv(0x14, ten)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofHiddenInformation(msg.data(), size(msg), s.get()), size(ten));
    EXPECT_EQ(s.range(9206, 10), seq(10, 0));
    Bytes msg2 = svcMessage(0x0004, {tlv(0x14, eleven)});
    Guarded<PBMRecordSet> s2;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofHiddenInformation(msg2.data(), size(msg2), s2.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s2.bytes, Bytes(9216, 0xEE));
}

TEST(PbmRecordRead, LastEmailSlotMayRunToTheSetsLastByteButNotBeyond) {
    // Record 9's second email slot starts at byte 8963; 252 text bytes end on byte 9215.
    auto emailsOf = [](size_t textLength) {
        Bytes v = {10};
        for (int i = 0; i < 9; ++i) v = cat({v, le16(uint16_t(i)), {0}});
        return cat({v, le16(9), {2}, wtext(str("x")), wtext(fill(textLength, 0x66))});
    };
    Bytes fits = emailsOf(252);
    Bytes msg = svcMessage(0x0004, {tlv(0x13, fits)});
    Guarded<PBMRecordSet> s;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofEmailInformation(msg.data(), size(msg), s.get()), size(fits));
    EXPECT_EQ(s.range(8963, 253), cat({{252}, fill(252, 0x66)}));
    Bytes over = emailsOf(253);
    Bytes msg2 = svcMessage(0x0004, {tlv(0x13, over)});
    Guarded<PBMRecordSet> s2;
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofEmailInformation(msg2.data(), size(msg2), s2.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s2.bytes, Bytes(9216, 0xEE));
}

TEST(PbmRecordRead, ArrayGettersReturnCodesAndCutEntries) {
    using Getter = int (*)(const uint8_t*, int, PBMRecordSet*);
    const Getter getters[] = {
        zovQMIPBMRecordReadINDGetArrayofSecondNameInformation, zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation,
        zovQMIPBMRecordReadINDGetArrayofGroupIDInformation, zovQMIPBMRecordReadINDGetArrayofEmailInformation,
        zovQMIPBMRecordReadINDGetArrayofHiddenInformation};
    Bytes empty = svcMessage(0x0004, {tlv(0x01, leading(0))});
    Bytes other = svcMessage(0x0005, {tlv(0x10, {0}), tlv(0x11, {0}), tlv(0x12, {0}), tlv(0x13, {0}), tlv(0x14, {0})});
    // Each item claims one record but holds only its id and a length byte of 5.
    Bytes cut = svcMessage(0x0004, {tlv(0x01, leading(0)), tlv(0x10, {1, 0, 0, 5})});
    Guarded<PBMRecordSet> s;
    for (int k = 0; k < 5; ++k) {
        SCOPED_TRACE(k);
        EXPECT_EQ(getters[k](nullptr, size(empty), s.get()), -1);
        EXPECT_EQ(getters[k](empty.data(), size(empty), nullptr), -1);
        EXPECT_EQ(getters[k](empty.data(), size(empty), s.get()), -3);
        EXPECT_EQ(getters[k](other.data(), size(other), s.get()), -2);
    }
    EXPECT_EQ(zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(cut.data(), size(cut), s.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s.bytes, Bytes(9216, 0xEE));
}

// --------------------------------------------------------------- search --

TEST(PbmSearch, RecordIdsListDeliversCountAndNativeIds) {
    Bytes value = cat({le16(3), le16(0x0102), le16(0x0304), le16(0xFFFE)});
    Bytes msg = svcMessage(0x0008, {result(), tlv(0x10, value)});
    uint16_t count = 0;
    uint16_t ids[4] = {0xEEEE, 0xEEEE, 0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMIPBMSearchRecordsRespGetRecordIDsList(msg.data(), size(msg), &count, ids), 8);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(ids[0], 0x0102);
    EXPECT_EQ(ids[1], 0x0304);
    EXPECT_EQ(ids[2], 0xFFFE);
    EXPECT_EQ(ids[3], 0xEEEE);
    count = 0;
    EXPECT_EQ(zovQMIPBMSearchRecordsRespGetRecordIDsList(msg.data(), size(msg), &count, nullptr), 8);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(zovQMIPBMSearchRecordsRespGetRecordIDsList(msg.data(), size(msg), nullptr, ids), -1);
    Bytes absent = svcMessage(0x0008, {result()});
    EXPECT_EQ(zovQMIPBMSearchRecordsRespGetRecordIDsList(absent.data(), size(absent), &count, ids), -3);
}

TEST(PbmSearch, RecordIdCountRunningPastTheBufferWritesNothing) {
    Bytes msg = svcMessage(0x0008, {result(), tlv(0x10, cat({le16(3), le16(1), le16(2)}))});
    uint16_t count = 0xEEEE;
    uint16_t ids[3] = {0xEEEE, 0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMIPBMSearchRecordsRespGetRecordIDsList(msg.data(), size(msg), &count, ids), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEEEE);
    EXPECT_EQ(ids[0], 0xEEEE);
}

// ---------------------------------------------------------- record update --

TEST(PbmIndications, RecordUpdateFillsItsFourOutputs) {
    Bytes msg = svcMessage(0x0009, {tlv(0x01, cat({{0x01}, le16(0x0203), {0x04}, le16(0x0506)}))}, 0, 0x04);
    uint8_t a = 0, c = 0;
    uint16_t b = 0, d = 0;
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(msg.data(), size(msg), &a, &b, &c, &d), 9);
    EXPECT_EQ(a, 0x01);
    EXPECT_EQ(b, 0x0203);
    EXPECT_EQ(c, 0x04);
    EXPECT_EQ(d, 0x0506);
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(msg.data(), size(msg), nullptr, &b, &c, &d), -1);
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(msg.data(), size(msg), &a, nullptr, &c, &d), -1);
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(msg.data(), size(msg), &a, &b, nullptr, &d), -1);
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(msg.data(), size(msg), &a, &b, &c, nullptr), -1);
    Bytes noItem = svcMessage(0x0009, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(noItem.data(), size(noItem), &a, &b, &c, &d), -3);
    Bytes other = svcMessage(0x000A, {tlv(0x01, fill(6, 0))});
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(other.data(), size(other), &a, &b, &c, &d), -2);
    Bytes cut = svcMessage(0x0009, {tlv(0x01, {0x09, 0x09, 0x09, 0x09, 0x09})});
    EXPECT_EQ(zovQMIPBMRecordUpdateIND(cut.data(), size(cut), &a, &b, &c, &d), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(a, 0x01);
}

// ------------------------------------------------- state and indications --

TEST(PbmIndications, RefreshReadyAndHiddenStatusFillTheirOutputs) {
    Bytes refresh = svcMessage(0x000A, {tlv(0x01, cat({{0x01}, le16(0x0203), {0x04}}))}, 0, 0x04);
    uint8_t a = 0, c = 0;
    uint16_t b = 0;
    EXPECT_EQ(zovQMIPBMRefreshIND(refresh.data(), size(refresh), &a, &b, &c), 7);
    EXPECT_EQ(a, 0x01);
    EXPECT_EQ(b, 0x0203);
    EXPECT_EQ(c, 0x04);
    EXPECT_EQ(zovQMIPBMRefreshIND(refresh.data(), size(refresh), nullptr, &b, &c), -1);
    EXPECT_EQ(zovQMIPBMRefreshIND(refresh.data(), size(refresh), &a, nullptr, &c), -1);
    EXPECT_EQ(zovQMIPBMRefreshIND(refresh.data(), size(refresh), &a, &b, nullptr), -1);

    Bytes ready = svcMessage(0x000B, {tlv(0x01, cat({{0x05}, le16(0x0607)}))}, 0, 0x04);
    EXPECT_EQ(zovQMIPBMPBReadyIND(ready.data(), size(ready), &a, &b), 6);
    EXPECT_EQ(a, 0x05);
    EXPECT_EQ(b, 0x0607);
    EXPECT_EQ(zovQMIPBMPBReadyIND(ready.data(), size(ready), nullptr, &b), -1);
    EXPECT_EQ(zovQMIPBMPBReadyIND(ready.data(), size(ready), &a, nullptr), -1);

    Bytes status = svcMessage(0x0013, {tlv(0x01, {0x08, 0x09})}, 0, 0x04);
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(status.data(), size(status), &a, &c), 5);
    EXPECT_EQ(a, 0x08);
    EXPECT_EQ(c, 0x09);
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(status.data(), size(status), nullptr, &c), -1);
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(status.data(), size(status), &a, nullptr), -1);
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(nullptr, size(status), &a, &c), -1);

    // The wrong message, a missing item 0x01 and a cut item.
    EXPECT_EQ(zovQMIPBMRefreshIND(ready.data(), size(ready), &a, &b, &c), -2);
    EXPECT_EQ(zovQMIPBMPBReadyIND(status.data(), size(status), &a, &b), -2);
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(refresh.data(), size(refresh), &a, &c), -2);
    Bytes noItem = svcMessage(0x000B, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMPBReadyIND(noItem.data(), size(noItem), &a, &b), -3);
    Bytes noItem2 = svcMessage(0x000A, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMRefreshIND(noItem2.data(), size(noItem2), &a, &b, &c), -3);
    Bytes noItem3 = svcMessage(0x0013, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMHiddenRecordStatusIND(noItem3.data(), size(noItem3), &a, &c), -3);
    Bytes cut = svcMessage(0x000B, {tlv(0x01, {0x0F, 0x0F})});
    EXPECT_EQ(zovQMIPBMPBReadyIND(cut.data(), size(cut), &a, &b), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(a, 0x08);
    EXPECT_EQ(b, 0x0607);
}

TEST(PbmResponses, GroupIdentifierAndPhonebookState) {
    Bytes group = svcMessage(0x0010, {result(), tlv(0x10, {0x0A, 0x0B})});
    uint8_t a = 0, c = 0;
    uint16_t b = 0;
    EXPECT_EQ(zovQMIPBMSetGroupInfoRespGetGroupIdentifier(group.data(), size(group), &a, &c), 2);
    EXPECT_EQ(a, 0x0A);
    EXPECT_EQ(c, 0x0B);
    EXPECT_EQ(zovQMIPBMSetGroupInfoRespGetGroupIdentifier(group.data(), size(group), nullptr, &c), -1);
    EXPECT_EQ(zovQMIPBMSetGroupInfoRespGetGroupIdentifier(group.data(), size(group), &a, nullptr), -1);
    Bytes state = svcMessage(0x0011, {result(), tlv(0x10, cat({{0x01}, le16(0xA0B0), {0x02}}))});
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(state.data(), size(state), &a, &b, &c), 4);
    EXPECT_EQ(a, 0x01);
    EXPECT_EQ(b, 0xA0B0);
    EXPECT_EQ(c, 0x02);
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(state.data(), size(state), nullptr, &b, &c), -1);
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(state.data(), size(state), &a, nullptr, &c), -1);
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(state.data(), size(state), &a, &b, nullptr), -1);
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(group.data(), size(group), &a, &b, &c), -2);
    Bytes absent = svcMessage(0x0011, {result()});
    EXPECT_EQ(zovQMIPBMGetPBStateRespGetPhonebookState(absent.data(), size(absent), &a, &b, &c), -3);
    Bytes absent2 = svcMessage(0x0010, {result()});
    EXPECT_EQ(zovQMIPBMSetGroupInfoRespGetGroupIdentifier(absent2.data(), size(absent2), &a, &c), -3);
}

TEST(PbmIndications, AllPBInitDoneDeliversKeysAndWordsWhenAsked) {
    Bytes value = cat({{2}, {0x01}, le16(0x1112), {0x02}, le16(0x2122)});
    Bytes msg = svcMessage(0x000D, {tlv(0x01, value)}, 0, 0x04);
    uint8_t count = 0;
    uint8_t keys[3] = {0xEE, 0xEE, 0xEE};
    uint16_t words[3] = {0xEEEE, 0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(msg.data(), size(msg), &count, keys, words), 10);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(Bytes(keys, keys + 3), Bytes({0x01, 0x02, 0xEE}));
    EXPECT_EQ(words[0], 0x1112);
    EXPECT_EQ(words[1], 0x2122);
    EXPECT_EQ(words[2], 0xEEEE);
    uint8_t keys2[2] = {0xEE, 0xEE};
    uint16_t words2[2] = {0xEEEE, 0xEEEE};
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(msg.data(), size(msg), &count, nullptr, words2), 10);
    EXPECT_EQ(words2[1], 0x2122);
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(msg.data(), size(msg), &count, keys2, nullptr), 10);
    EXPECT_EQ(keys2[1], 0x02);
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(msg.data(), size(msg), nullptr, keys, words), -1);
    // With neither array the entries are not read: a count beyond the buffer is fine.
    Bytes cut = svcMessage(0x000D, {tlv(0x01, cat({{3}, {0x01}, le16(0x1112)}))});
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(cut.data(), size(cut), &count, nullptr, nullptr), 7);
    EXPECT_EQ(count, 3);
    count = 0xEE;
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(cut.data(), size(cut), &count, keys2, words2), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(count, 0xEE);
    Bytes noItem = svcMessage(0x000D, {tlv(0x10, {0})});
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(noItem.data(), size(noItem), &count, keys, words), -3);
    Bytes other = svcMessage(0x000C, {tlv(0x01, {0})});
    EXPECT_EQ(zovQMIPBMAllPBInitDoneIND(other.data(), size(other), &count, keys, words), -2);
}

// ------------------------------------------------------ emergency lists --

struct FlatList {
    const char* name;
    int (*parse)(const uint8_t*, int, uint8_t*, PBMEmergencyNumber*);
    uint16_t id;
    uint8_t type;
};

const FlatList kFlatLists[] = {
    {"EmergencyListIND", zovQMIPBMEmergencyListIND, 0x000C, 0x01},
    {"EmergencyListINDGetNVEmergencyNumbers", zovQMIPBMEmergencyListINDGetNVEmergencyNumbers, 0x000C, 0x10},
    {"GetEmergencyListRespGetHardCodedEmergencyNumbers", zovQMIPBMGetEmergencyListRespGetHardCodedEmergencyNumbers,
     0x000E, 0x10},
    {"GetEmergencyListRespGetNVEmergencyNumbers", zovQMIPBMGetEmergencyListRespGetNVEmergencyNumbers, 0x000E, 0x11},
};

// A message holding the flat list as item `type`; what the parser returns
// for it (the TLV-area length for the indication, else the item's length).
Bytes flatMessage(const FlatList& f, const Bytes& value, int* expected) {
    Bytes msg = f.type == 0x01 ? svcMessage(f.id, {tlv(0x01, value)}) : svcMessage(f.id, {result(), tlv(f.type, value)});
    *expected = f.type == 0x01 ? 3 + size(value) : size(value);
    return msg;
}

TEST(PbmEmergency, FlatListsStoreLengthAndNumberAndLeaveTheAttributeAlone) {
    Bytes value = cat({{3}, wtext(str("112")), {0}, wtext(str("999888"))});
    for (const FlatList& f : kFlatLists) {
        SCOPED_TRACE(f.name);
        int expected = 0;
        Bytes msg = flatMessage(f, value, &expected);
        uint8_t count = 0;
        Bytes numbers(32, 0xEE);
        auto* list = reinterpret_cast<PBMEmergencyNumber*>(numbers.data());
        EXPECT_EQ(f.parse(msg.data(), size(msg), &count, list), expected);
        EXPECT_EQ(count, 3);
        // The empty second number advances the walk by its length byte only.
        EXPECT_EQ(numbers, cat({{0xEE, 3}, str("112"), fill(3, 0xEE), {0xEE, 0}, fill(6, 0xEE), {0xEE, 6}, str("999888"),
                                fill(8, 0xEE)}));
        EXPECT_EQ(f.parse(msg.data(), size(msg), nullptr, list), -1);
        EXPECT_EQ(f.parse(nullptr, size(msg), &count, list), -1);
    }
}

TEST(PbmEmergency, FlatListWithNullArrayStoresOnlyTheCount) {
    Bytes value = {5, 3};  // the numbers are not read at all
    for (const FlatList& f : kFlatLists) {
        SCOPED_TRACE(f.name);
        int expected = 0;
        Bytes msg = flatMessage(f, value, &expected);
        uint8_t count = 0;
        EXPECT_EQ(f.parse(msg.data(), size(msg), &count, nullptr), expected);
        EXPECT_EQ(count, 5);
    }
}

TEST(PbmEmergency, FlatListAbsentOrCutByTheBuffer) {
    Bytes cut = {2, 3, '1', '1', '2', 4, '9'};
    for (const FlatList& f : kFlatLists) {
        SCOPED_TRACE(f.name);
        int expected = 0;
        Bytes msg = flatMessage(f, cut, &expected);
        uint8_t count = 0xEE;
        Bytes numbers(16, 0xEE);
        EXPECT_EQ(f.parse(msg.data(), size(msg), &count, reinterpret_cast<PBMEmergencyNumber*>(numbers.data())),
                  ZOVQMI_ERR_MALFORMED);
        EXPECT_EQ(count, 0xEE);
        EXPECT_EQ(numbers, Bytes(16, 0xEE));
        Bytes absent = svcMessage(f.id, {result(), tlv(0x15, {0})});
        EXPECT_EQ(f.parse(absent.data(), size(absent), &count, nullptr), -3);
        Bytes other = svcMessage(0x000D, {result(), tlv(f.type, {0})});
        EXPECT_EQ(f.parse(other.data(), size(other), &count, nullptr), -2);
    }
}

TEST(PbmEmergency, FlatListRunningOffsetIsEightBitsAndWraps) {
    // 200 bytes, then 100 bytes: the running offset reaches 303, kept in 8
    // bits as 47, so the third number's length is value byte 47 (inside the
    // first number) and its bytes follow it.
    Bytes first = seq(200, 0x10);
    first[45] = 4;  // value byte 47
    Bytes second = fill(100, 0xB0);
    Bytes value = cat({{3}, wtext(first), wtext(second)});
    ASSERT_EQ(value.size(), 303u);
    ASSERT_EQ(value[47], 4);
    for (const FlatList& f : kFlatLists) {
        SCOPED_TRACE(f.name);
        int expected = 0;
        Bytes msg = flatMessage(f, value, &expected);
        uint8_t count = 0;
        Bytes numbers(256, 0xEE);
        EXPECT_EQ(f.parse(msg.data(), size(msg), &count, reinterpret_cast<PBMEmergencyNumber*>(numbers.data())),
                  expected);
        // Lengths are used as they stand: each number runs on over the following elements.
        Bytes want(256, 0xEE);
        want = with(want, 1, wtext(first));
        want = with(want, 9, wtext(second));
        want = with(want, 17, cat({{4}, Bytes(value.begin() + 48, value.begin() + 52)}));
        EXPECT_EQ(numbers, want);
    }
}

struct NumberSets {
    const char* name;
    int (*parse)(const uint8_t*, int, PBMEmergencyNumberSets*);
    uint16_t id;
    uint8_t type;
};

const NumberSets kNumberSets[] = {
    {"EmergencyListINDGetCardEmergencyNumbers", zovQMIPBMEmergencyListINDGetCardEmergencyNumbers, 0x000C, 0x11},
    {"EmergencyListINDGetNetworkEmergencyNumbers", zovQMIPBMEmergencyListINDGetNetworkEmergencyNumbers, 0x000C, 0x12},
    {"GetEmergencyListRespGetCardEmergencyNumbers", zovQMIPBMGetEmergencyListRespGetCardEmergencyNumbers, 0x000E, 0x12},
    {"GetEmergencyListRespGetNetworkEmergencyNumbers", zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers, 0x000E,
     0x13},
};

// One wire number of a set: attribute, length, bytes.
Bytes setNumber(uint8_t attribute, const Bytes& number) { return cat({{attribute}, wtext(number)}); }

TEST(PbmEmergency, NumberSetsStoreKeysCountsAndNumbersAndLeaveTheGapUntouched) {
    Bytes value = cat({{2}, {0xA0, 2}, setNumber(0x01, str("112")), setNumber(0x02, {}), {0xA1, 1},
                       setNumber(0x03, str("999888"))});
    for (const NumberSets& f : kNumberSets) {
        SCOPED_TRACE(f.name);
        Bytes msg = svcMessage(f.id, {result(), tlv(0x01, {0}), tlv(f.type, value)});
        Guarded<PBMEmergencyNumberSets> s;
        EXPECT_EQ(f.parse(msg.data(), size(msg), s.get()), size(value));
        Bytes want = with(Bytes(12745, 0xEE), 0, {2, 0xA0, 0xA1});
        want = with(want, 451, {2, 1});
        // The empty second number advances the walk by its two header bytes only.
        want = with(want, 457, cat({{0x01, 3}, str("112")}));
        want = with(want, 465, {0x02, 0});
        want = with(want, 457 + 2048, cat({{0x03, 6}, str("999888")}));
        EXPECT_EQ(s.bytes, want);
        EXPECT_EQ(s.range(7, 444), fill(444, 0xEE));
        EXPECT_EQ(f.parse(msg.data(), size(msg), nullptr), -1);
        EXPECT_EQ(f.parse(nullptr, size(msg), s.get()), -1);
        Bytes absent = svcMessage(f.id, {result(), tlv(0x01, {0})});
        EXPECT_EQ(f.parse(absent.data(), size(absent), s.get()), -3);
        Bytes other = svcMessage(0x000D, {result(), tlv(f.type, value)});
        EXPECT_EQ(f.parse(other.data(), size(other), s.get()), -2);
    }
}

TEST(PbmEmergency, NumberLongerThanItsElementIsWrittenIntoTheNextElement) {
    Bytes value = cat({{1}, {0xA0, 1}, setNumber(0x01, seq(7))});
    Bytes msg = svcMessage(0x000C, {tlv(0x11, value)});
    Guarded<PBMEmergencyNumberSets> s;
    EXPECT_EQ(zovQMIPBMEmergencyListINDGetCardEmergencyNumbers(msg.data(), size(msg), s.get()), size(value));
    EXPECT_EQ(s.range(457, 10), cat({{0x01, 7}, seq(7), {0xEE}}));  // byte 464 is element 1's attribute
}

TEST(PbmEmergency, SeventhSetWithANumberWouldPassTheRecordsEndAndIsRefused) {
    // Set 6's first number would start at byte 12745, just past the record.
    Bytes value = {7};
    for (int i = 0; i < 6; ++i) value = cat({value, {uint8_t(0xA0 + i), 0}});
    Bytes fits = cat({value, {0xA6, 0}});
    Bytes msg = svcMessage(0x000E, {result(), tlv(0x13, fits)});
    Guarded<PBMEmergencyNumberSets> s;
    EXPECT_EQ(zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers(msg.data(), size(msg), s.get()), size(fits));
    EXPECT_EQ(s.bytes[7], 0xA6);  // a seventh key lands in the gap: counts are used as they stand
    EXPECT_EQ(s.bytes[457], 0);   // and its count on set 0's first number
    Bytes over = cat({value, {0xA6, 1}, setNumber(0x01, {})});
    Bytes msg2 = svcMessage(0x000E, {result(), tlv(0x13, over)});
    Guarded<PBMEmergencyNumberSets> s2;
    EXPECT_EQ(zovQMIPBMGetEmergencyListRespGetNetworkEmergencyNumbers(msg2.data(), size(msg2), s2.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s2.bytes, Bytes(12745, 0xEE));
}

TEST(PbmEmergency, NumberSetCutByTheBufferWritesNothing) {
    Bytes value = cat({{1}, {0xA0, 2}, setNumber(0x01, str("112")), {0x02, 5, '9'}});
    Bytes msg = svcMessage(0x000C, {tlv(0x12, value)});
    Guarded<PBMEmergencyNumberSets> s;
    EXPECT_EQ(zovQMIPBMEmergencyListINDGetNetworkEmergencyNumbers(msg.data(), size(msg), s.get()),
              ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(s.bytes, Bytes(12745, 0xEE));
}

// --------------------------------------------------------------- groups --

TEST(PbmGroups, GroupsDataStoresKeysCountsIdsAndNames) {
    Bytes value = cat({{2}, {0xB0, 2}, {0x05}, wtext(str("Family")), {0x06}, wtext({}), {0xB1, 1}, {0x07},
                       wtext(str("Work"))});
    Bytes msg = svcMessage(0x000F, {result(), tlv(0x10, value)});
    Guarded<PBMGroupsData> g;
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg.data(), size(msg), g.get()), size(value));
    Bytes want = with(Bytes(58573, 0xEE), 0, {2, 0xB0, 0xB1});
    want = with(want, 7, {2, 1});
    want = with(want, 13, {0x05, 0x06});
    want = with(want, 53, {0x07});
    want = with(want, 253, wtext(str("Family")));
    want = with(want, 253 + 243, {0});
    want = with(want, 253 + 9720, wtext(str("Work")));
    EXPECT_EQ(g.bytes, want);
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg.data(), size(msg), nullptr), -1);
    Bytes absent = svcMessage(0x000F, {result()});
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(absent.data(), size(absent), g.get()), -3);
    Bytes other = svcMessage(0x0010, {result(), tlv(0x10, value)});
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(other.data(), size(other), g.get()), -2);
}

TEST(PbmGroups, LastGroupNameMayRunToTheRecordsLastByteButNotBeyond) {
    // Set 5, group 39: name slot at 58330; 242 bytes end on byte 58572.
    auto groupsWith = [](size_t nameLength) {
        Bytes v = {6};
        for (int i = 0; i < 5; ++i) v = cat({v, {uint8_t(0xB0 + i), 0}});
        v = cat({v, {0xB5, 40}});
        for (int j = 0; j < 39; ++j) v = cat({v, {uint8_t(j)}, wtext({})});
        return cat({v, {39}, wtext(fill(nameLength, 0x4E))});
    };
    Bytes fits = groupsWith(242);
    Bytes msg = svcMessage(0x000F, {result(), tlv(0x10, fits)});
    Guarded<PBMGroupsData> g;
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg.data(), size(msg), g.get()), size(fits));
    EXPECT_EQ(g.range(58330, 243), cat({{242}, fill(242, 0x4E)}));
    EXPECT_EQ(g.bytes[13 + 200 + 39], 39);
    // A 243-byte name is used as it stands within the record, but here it
    // would write byte 58573: refused, nothing written.
    Bytes over = groupsWith(243);
    Bytes msg2 = svcMessage(0x000F, {result(), tlv(0x10, over)});
    Guarded<PBMGroupsData> g2;
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg2.data(), size(msg2), g2.get()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(g2.bytes, Bytes(58573, 0xEE));
}

TEST(PbmGroups, NameLongerThanItsSlotIsWrittenIntoTheNextSlot) {
    Bytes value = cat({{1}, {0xB0, 1}, {0x05}, wtext(fill(250, 0x61))});
    Bytes msg = svcMessage(0x000F, {result(), tlv(0x10, value)});
    Guarded<PBMGroupsData> g;
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg.data(), size(msg), g.get()), size(value));
    EXPECT_EQ(g.range(253, 252), cat({{250}, fill(250, 0x61), {0xEE}}));
}

TEST(PbmGroups, GroupCountRunningPastTheBufferWritesNothing) {
    Bytes value = cat({{1}, {0xB0, 3}, {0x05}, wtext(str("A")), {0x06}});
    Bytes msg = svcMessage(0x000F, {result(), tlv(0x10, value)});
    Guarded<PBMGroupsData> g;
    EXPECT_EQ(zovQMIPBMGetAllGroupsRespGetGroupsData(msg.data(), size(msg), g.get()), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(g.bytes, Bytes(58573, 0xEE));
}

TEST(PbmGroups, SetGroupInfoWithEmptyTextIsFourteenBytesWithAFourByteItem) {
    Bytes slot(243, 0xEE);
    slot[0] = 0;
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPBMSetGroupInfoReq(buf.data(), 13, 1, 2, 3, slot.data()), -1);
    EXPECT_EQ(buf, buffer(32));
    EXPECT_EQ(zovQMIPBMSetGroupInfoReq(buf.data(), 14, 1, 2, 3, slot.data()), 14);
    EXPECT_EQ(head(buf, 15), cat({reqHeader(0x0010, 7), tlv(0x01, {1, 2, 3, 0}), {0xEE}}));
}

TEST(PbmGroups, SetGroupInfoSendsTheTextSlotsLengthAndText) {
    Bytes slot = with(Bytes(243, 0xEE), 0, wtext(str("Friends")));
    Bytes buf = buffer(32);
    EXPECT_EQ(zovQMIPBMSetGroupInfoReq(buf.data(), 21, 0x0A, 0x0B, 0x0C, slot.data()), 21);
    EXPECT_EQ(head(buf, 22), cat({reqHeader(0x0010, 14), tlv(0x01, cat({{0x0A, 0x0B, 0x0C}, wtext(str("Friends"))})),
                                  {0xEE}}));
    EXPECT_EQ(zovQMIPBMSetGroupInfoReq(buf.data(), 32, 1, 2, 3, nullptr), -1);
    EXPECT_EQ(zovQMIPBMSetGroupInfoReq(nullptr, 32, 1, 2, 3, slot.data()), -1);
}

}  // namespace
