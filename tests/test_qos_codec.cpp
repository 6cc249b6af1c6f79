// QOS: the flow and filter codec and the QoS containers around it.
#include <cstddef>

#include "test_qos_fixtures.h"

using namespace t;
using namespace q;

// Record layouts: flows and filters are naturally aligned (no pointers, so
// the same on every host); QoSSpec and QoSProfileList are packed.
static_assert(sizeof(FlowSpecification) == 84, "FlowSpecification size");
static_assert(offsetof(FlowSpecification, present10) == 2 && offsetof(FlowSpecification, value10) == 3, "");
static_assert(offsetof(FlowSpecification, present1B) == 4 && offsetof(FlowSpecification, value1B) == 6, "");
static_assert(offsetof(FlowSpecification, present11) == 8 && offsetof(FlowSpecification, value11) == 9, "");
static_assert(offsetof(FlowSpecification, present12) == 10 && offsetof(FlowSpecification, value12First) == 12, "");
static_assert(offsetof(FlowSpecification, value12Second) == 16 && offsetof(FlowSpecification, present13) == 20, "");
static_assert(offsetof(FlowSpecification, value13First) == 24 && offsetof(FlowSpecification, value13Third) == 32, "");
static_assert(offsetof(FlowSpecification, present14) == 36 && offsetof(FlowSpecification, value14) == 40, "");
static_assert(offsetof(FlowSpecification, present15) == 44 && offsetof(FlowSpecification, value15) == 48, "");
static_assert(offsetof(FlowSpecification, present16) == 52 && offsetof(FlowSpecification, value16First) == 54, "");
static_assert(offsetof(FlowSpecification, value16Second) == 56 && offsetof(FlowSpecification, present17) == 58, "");
static_assert(offsetof(FlowSpecification, value17) == 60 && offsetof(FlowSpecification, present18) == 64, "");
static_assert(offsetof(FlowSpecification, value18) == 68 && offsetof(FlowSpecification, present19) == 72, "");
static_assert(offsetof(FlowSpecification, value1A) == 75 && offsetof(FlowSpecification, value1E) == 81, "");

static_assert(sizeof(FilterSpecification) == 112, "FilterSpecification size");
static_assert(offsetof(FilterSpecification, present12) == 6 && offsetof(FilterSpecification, value12First) == 8, "");
static_assert(offsetof(FilterSpecification, present13) == 16 && offsetof(FilterSpecification, value13First) == 20, "");
static_assert(offsetof(FilterSpecification, present14) == 28 && offsetof(FilterSpecification, value15Byte1) == 32, "");
static_assert(offsetof(FilterSpecification, value16) == 34 && offsetof(FilterSpecification, value16Last) == 50, "");
static_assert(offsetof(FilterSpecification, value17) == 52 && offsetof(FilterSpecification, value17Last) == 68, "");
static_assert(offsetof(FilterSpecification, present19) == 69 && offsetof(FilterSpecification, value1A) == 76, "");
static_assert(offsetof(FilterSpecification, present1B) == 80 && offsetof(FilterSpecification, value1BFirst) == 82, "");
static_assert(offsetof(FilterSpecification, present1E) == 98 && offsetof(FilterSpecification, value1ESecond) == 102,
              "");
static_assert(offsetof(FilterSpecification, present21) == 104 && offsetof(FilterSpecification, value21) == 108, "");

static_assert(sizeof(QoSSpec) == 2 + 2 * sizeof(void*), "QoSSpec is packed");
static_assert(offsetof(QoSSpec, filterCount) == 1 && offsetof(QoSSpec, flows) == 2, "");
static_assert(offsetof(QoSSpec, filters) == 2 + sizeof(void*), "");
static_assert(sizeof(QoSFlowState) == 6 && offsetof(QoSFlowState, status) == 4 && offsetof(QoSFlowState, event) == 5,
              "");
static_assert(sizeof(QoSProfileList) == 3 + sizeof(void*), "QoSProfileList is packed");
static_assert(offsetof(QoSProfileList, profileCount) == 2 && offsetof(QoSProfileList, profiles) == 3, "");

namespace {

// Sets and reads the record's length as the little-endian bytes it is.
void st(QmiTlvRecord& r, uint16_t n) {
    uint8_t* p = reinterpret_cast<uint8_t*>(&r);
    p[1] = uint8_t(n), p[2] = uint8_t(n >> 8);
}
// A QoS item record holding `used` value bytes of 0x5A.
QmiTlvRecord specRecord(uint16_t used = 0, uint8_t type = 0x10) {
    QmiTlvRecord r;
    std::memset(&r, 0x5A, sizeof r);
    r.type = type;
    st(r, used);
    return r;
}
uint16_t lengthOf(const QmiTlvRecord& r) { return rd16(reinterpret_cast<const uint8_t*>(&r) + 1); }
Bytes valueOf(const QmiTlvRecord& r, size_t from, size_t n) { return Bytes(r.value + from, r.value + from + n); }

// ------------------------------------------------------------ builders --

TEST(QosCodecBuild, FlowWithoutParametersAppendsSixBytes) {
    QmiTlvRecord r = specRecord();
    FlowSpecification f = zeroed<FlowSpecification>();
    f.type = 0x12;
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, &f), 6);
    EXPECT_EQ(lengthOf(r), 6);
    EXPECT_EQ(valueOf(r, 0, 7), Bytes({0x12, 0x03, 0x00, 0x10, 0x00, 0x00, 0x5A}));
}

TEST(QosCodecBuild, FlowParametersFollowTheFixedOrderWith1BRightAfter10) {
    QmiTlvRecord r = specRecord(4);
    FlowSpecification f = fullFlow(0x11);
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, &f), 100);
    EXPECT_EQ(lengthOf(r), 104);
    EXPECT_EQ(valueOf(r, 0, 105), cat({fill(4, 0x5A), wrapped(0x11, fullFlowParams()), {0x5A}}));
}

TEST(QosCodecBuild, FlowWritesOnlyPresentParameters) {
    QmiTlvRecord r = specRecord();
    FlowSpecification f = zeroed<FlowSpecification>();
    f.type = 0x11;
    f.value10 = 0x99;  // not present: not written
    f.present18 = 1, f.value18 = 0x01020304;
    f.present1B = 1, f.value1B = 0x0506;
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, &f), 6 + 12);
    EXPECT_EQ(valueOf(r, 0, 18), wrapped(0x11, cat({tlv(0x1B, le16(0x0506)), tlv(0x18, le32(0x01020304))})));
}

TEST(QosCodecBuild, FilterParametersHaveNo18Nor1FNor20) {
    QmiTlvRecord r = specRecord(11);
    FilterSpecification f = fullFilter(0x14);
    EXPECT_EQ(fnRequestAddFilterSpecification(&r, &f), 132);
    EXPECT_EQ(lengthOf(r), 143);
    EXPECT_EQ(valueOf(r, 0, 144), cat({fill(11, 0x5A), wrapped(0x14, fullFilterParams()), {0x5A}}));
}

TEST(QosCodecBuild, NullArgumentsAreMinusOneAndAnotherRecordTypeMinusTwo) {
    FlowSpecification f = fullFlow();
    FilterSpecification g = fullFilter();
    QmiTlvRecord r = specRecord(4, 0x11);
    QmiTlvRecord before = r;
    EXPECT_EQ(fnRequestAddFlowSpecification(nullptr, &f), -1);
    EXPECT_EQ(fnRequestAddFilterSpecification(nullptr, &g), -1);
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, nullptr), -1);
    EXPECT_EQ(fnRequestAddFilterSpecification(&r, nullptr), -1);
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, &f), -2);
    EXPECT_EQ(fnRequestAddFilterSpecification(&r, &g), -2);
    EXPECT_TRUE(same(r, before));
}

TEST(QosCodecBuild, FlowThatWouldRunPastTheRecordValueIsRefusedAndTheRecordKept) {
    FlowSpecification f = fullFlow();
    QmiTlvRecord fits = specRecord(924);
    EXPECT_EQ(fnRequestAddFlowSpecification(&fits, &f), 100);
    EXPECT_EQ(lengthOf(fits), 1024);
    EXPECT_EQ(valueOf(fits, 924, 100), wrapped(0x11, fullFlowParams()));

    QmiTlvRecord r = specRecord(925);
    QmiTlvRecord before = r;
    EXPECT_EQ(fnRequestAddFlowSpecification(&r, &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(r, before));
    // A length already beyond the value area is refused too.
    QmiTlvRecord odd = specRecord(0xFFFF);
    before = odd;
    FlowSpecification empty = zeroed<FlowSpecification>();
    EXPECT_EQ(fnRequestAddFlowSpecification(&odd, &empty), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(odd, before));
}

TEST(QosCodecBuild, FilterThatWouldRunPastTheRecordValueIsRefusedAndTheRecordKept) {
    FilterSpecification f = fullFilter();
    QmiTlvRecord fits = specRecord(1024 - 132);
    EXPECT_EQ(fnRequestAddFilterSpecification(&fits, &f), 132);
    EXPECT_EQ(lengthOf(fits), 1024);
    QmiTlvRecord r = specRecord(1024 - 131);
    QmiTlvRecord before = r;
    EXPECT_EQ(fnRequestAddFilterSpecification(&r, &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(r, before));
}

// ------------------------------------------------------------- parsers --

TEST(QosCodecParse, FlowParserReadsEveryParameterAndReturnsTheLength) {
    Bytes item = tlv(0x10, fullFlowParams());
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()), &f), int(item.size()));
    EXPECT_TRUE(same(f, parsedFlow()));
    EXPECT_EQ(f.value13Third, 0x13000003u);
    EXPECT_EQ(f.value1B, 0xB1B2);
}

TEST(QosCodecParse, FilterParserReadsEveryParameterWithBlocksAndLastBytes) {
    Bytes item = tlv(0x10, fullFilterParams());
    FilterSpecification f = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFilterSpecification(item.data(), int(item.size()), &f), int(item.size()));
    EXPECT_TRUE(same(f, parsedFilter()));
    EXPECT_EQ(f.value16[15], 0x6F);
    EXPECT_EQ(f.value17Last, 0x41);
}

TEST(QosCodecParse, BuiltFlowsAndFiltersParseBack) {
    QmiTlvRecord r = specRecord();
    FlowSpecification flow = fullFlow();
    FilterSpecification filter = fullFilter();
    ASSERT_EQ(fnRequestAddFlowSpecification(&r, &flow), 100);
    ASSERT_EQ(fnRequestAddFilterSpecification(&r, &filter), 132);
    FlowSpecification f = zeroed<FlowSpecification>();
    FilterSpecification g = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(r.value + 3, 97, &f), 97);
    EXPECT_EQ(fnResponseParseFilterSpecification(r.value + 103, 129, &g), 129);
    EXPECT_TRUE(same(f, parsedFlow()));
    EXPECT_TRUE(same(g, parsedFilter()));
}

TEST(QosCodecParse, ItemTypeIsNotExaminedAndTypeAndIndexAreLeftAlone) {
    Bytes item = tlv(0x42, tlv(0x10, {0x07}));
    FlowSpecification f = zeroed<FlowSpecification>();
    f.type = 0x12, f.index = 0x09;
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()), &f), 7);
    EXPECT_EQ(f.type, 0x12);
    EXPECT_EQ(f.index, 0x09);
    EXPECT_EQ(f.present10, 1);
    EXPECT_EQ(f.value10, 0x07);
}

TEST(QosCodecParse, ParserCopiesTheFixedWidthWhateverTheParameterLengthSays) {
    // Item 0x12 claims 2 bytes: 8 are copied (running into item 0x11), and
    // the walk then steps by the claimed 2 bytes to item 0x11.
    Bytes item = tlv(0x10, cat({tlv(0x12, {0x01, 0x02}), tlv(0x11, {0x33}), tlv(0x00, {})}));
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()), &f), int(item.size()));
    EXPECT_EQ(f.present12, 1);
    EXPECT_EQ(f.value12First, 0x01110201u);
    EXPECT_EQ(f.value12Second, 0x00003300u);
    EXPECT_EQ(f.present11, 1);
    EXPECT_EQ(f.value11, 0x33);
}

TEST(QosCodecParse, UnknownParameterTypesAreSkipped) {
    Bytes flowItem = tlv(0x10, cat({tlv(0x1F, {1, 2, 3}), tlv(0x20, {}), tlv(0x1E, {0x44})}));
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(flowItem.data(), int(flowItem.size()), &f), int(flowItem.size()));
    FlowSpecification expected = zeroed<FlowSpecification>();
    expected.present1E = 1, expected.value1E = 0x44;
    EXPECT_TRUE(same(f, expected));

    Bytes filterItem = tlv(0x10, cat({tlv(0x18, le32(0x01020304)), tlv(0x1F, {}), tlv(0x20, {9}), tlv(0x14, {0x11})}));
    FilterSpecification g = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFilterSpecification(filterItem.data(), int(filterItem.size()), &g),
              int(filterItem.size()));
    FilterSpecification gexpected = zeroed<FilterSpecification>();
    gexpected.present14 = 1, gexpected.value14 = 0x11;
    EXPECT_TRUE(same(g, gexpected));
}

TEST(QosCodecParse, RecordIsNotClearedBeforeParsing) {
    Bytes item = tlv(0x10, tlv(0x11, {0x05}));
    FlowSpecification f = fullFlow();
    FlowSpecification expected = fullFlow();
    expected.value11 = 0x05;
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()), &f), 7);
    EXPECT_TRUE(same(f, expected));
}

TEST(QosCodecParse, LengthFieldDisagreeingWithTheGivenLengthIsMinusTwoAndWritesNothing) {
    Bytes item = tlv(0x10, tlv(0x11, {0x05}));
    FlowSpecification f = zeroed<FlowSpecification>();
    FilterSpecification g = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()) + 1, &f), -2);
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()) - 1, &f), -2);
    EXPECT_EQ(fnResponseParseFilterSpecification(item.data(), int(item.size()) - 1, &g), -2);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));
    EXPECT_TRUE(same(g, zeroed<FilterSpecification>()));
}

TEST(QosCodecParse, NullArgumentsAndLengthsBelowThreeAreMinusOne) {
    Bytes item = tlv(0x10, {});
    FlowSpecification f = zeroed<FlowSpecification>();
    FilterSpecification g = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(nullptr, 3, &f), -1);
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 3, nullptr), -1);
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 2, &f), -1);
    EXPECT_EQ(fnResponseParseFilterSpecification(nullptr, 3, &g), -1);
    EXPECT_EQ(fnResponseParseFilterSpecification(item.data(), 3, nullptr), -1);
    EXPECT_EQ(fnResponseParseFilterSpecification(item.data(), 0, &g), -1);
    // An empty parameter list is fine.
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 3, &f), 3);
    EXPECT_EQ(fnResponseParseFilterSpecification(item.data(), 3, &g), 3);
}

TEST(QosCodecParse, LengthIsTakenAsSixteenBits) {
    Bytes item = tlv(0x10, tlv(0x10, {0x05}));
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 0x10000 + 7, &f), 7);
    EXPECT_EQ(f.value10, 0x05);
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 0x10002, &f), -1);
}

TEST(QosCodecParse, ParameterRunningPastTheGivenItemIsMalformedAndWritesNothing) {
    // The bytes behind the item are there, but the parser only reads inside it.
    Bytes buf = cat({tlv(0x10, cat({tlv(0x11, {0x01}), tlv(0x12, {0x01, 0x02})})), fill(16, 0x00)});
    const int length = 3 + 4 + 5;
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(buf.data(), length, &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));

    Bytes fbuf = cat({tlv(0x10, cat({tlv(0x10, {0x01}), tlv(0x16, block(0))})), fill(16, 0x00)});
    FilterSpecification g = zeroed<FilterSpecification>();
    EXPECT_EQ(fnResponseParseFilterSpecification(fbuf.data(), 3 + 4 + 19, &g), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(g, zeroed<FilterSpecification>()));
}

TEST(QosCodecParse, ParameterHeadCutShortByTheItemEndIsMalformed) {
    Bytes item = cat({tlv(0x10, cat({tlv(0x10, {0x01}), {0x11}})), {0x01, 0x00, 0x05}});
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), 3 + 5, &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));
}

TEST(QosCodecParse, StepWrappingPastSixteenBitsIsMalformedInsteadOfLooping) {
    // A parameter length of 0xFFFD would bring the 16-bit offset back to itself.
    Bytes item = tlv(0x10, cat({tlv(0x10, {0x01}), {0x42, 0xFD, 0xFF}}));
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(fnResponseParseFlowSpecification(item.data(), int(item.size()), &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));
}

// --------------------------------------------------- QoS item builders --

TEST(QosSpecBuild, RequestFormWithoutFlowsOrFiltersHoldsOnlyTheIndex) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 32), 7);
    QoSSpec s = qosSpec(0, nullptr, 0, nullptr);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 32, 0x03, &s), 7 + 7);
    EXPECT_EQ(head(buf, 15), cat({reqHeader(0x0020, 7), tlv(0x10, tlv(0x10, {0x03})), {0xEE}}));
}

TEST(QosSpecBuild, ModifyFormWithoutFlowsOrFiltersHoldsIdentifierAndIndex) {
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIQOSModifyQoSReq(buf.data(), 32), 7);
    QoSSpec s = qosSpec(0, nullptr, 0, nullptr);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(buf.data(), 32, 0x11223344, 0x02, &s), 7 + 14);
    EXPECT_EQ(head(buf, 22),
              cat({reqHeader(0x0024, 14), tlv(0x10, cat({tlv(0x01, le32(0x11223344)), tlv(0x10, {0x02})})), {0xEE}}));
}

TEST(QosSpecBuild, FlowsThenFiltersEachUnderTheirOwnWrapperType) {
    FlowSpecification flows[2] = {fullFlow(0x11), zeroed<FlowSpecification>()};
    flows[1].type = 0x12;
    flows[1].present19 = 1, flows[1].value19 = 0x09;
    FilterSpecification filters[1] = {fullFilter(0x14)};
    QoSSpec s = qosSpec(2, flows, 1, filters);
    Bytes buf = buffer(400);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 400), 7);
    Bytes value = cat({tlv(0x10, {0x01}), wrapped(0x11, fullFlowParams()), wrapped(0x12, tlv(0x19, {0x09})),
                       wrapped(0x14, fullFilterParams())});
    ASSERT_EQ(value.size(), 4u + 100 + 10 + 132);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 400, 0x01, &s), int(7 + 3 + value.size()));
    EXPECT_EQ(head(buf, 7 + 3 + value.size() + 1),
              cat({reqHeader(0x0020, uint16_t(3 + value.size())), tlv(0x10, value), {0xEE}}));

    Bytes mbuf = buffer(400);
    ASSERT_EQ(zovQMIQOSModifyQoSReq(mbuf.data(), 400), 7);
    Bytes mvalue = cat({tlv(0x01, le32(7)), value});
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(mbuf.data(), 400, 7, 0x01, &s), int(7 + 3 + mvalue.size()));
    EXPECT_EQ(head(mbuf, 7 + 3 + mvalue.size()), cat({reqHeader(0x0024, uint16_t(3 + mvalue.size())), tlv(0x10, mvalue)}));
}

TEST(QosSpecBuild, NullBufferSpecOrArrayWithACountIsMinusOneAndWritesNothing) {
    FlowSpecification flow = fullFlow();
    FilterSpecification filter = fullFilter();
    Bytes buf = buffer(64);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 64), 7);
    Bytes before = buf;
    QoSSpec ok = qosSpec(1, &flow, 1, &filter);
    QoSSpec noFlows = qosSpec(1, nullptr, 0, &filter);
    QoSSpec noFilters = qosSpec(0, &flow, 1, nullptr);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(nullptr, 64, 0, &ok), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 64, 0, nullptr), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 64, 0, &noFlows), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 64, 0, &noFilters), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(nullptr, 64, 1, 0, &ok), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(buf.data(), 64, 1, 0, nullptr), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(buf.data(), 64, 1, 0, &noFlows), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(buf.data(), 64, 1, 0, &noFilters), -1);
    EXPECT_EQ(buf, before);
    // Null arrays with zero counts are fine.
    QoSSpec none = qosSpec(0, nullptr, 0, nullptr);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 64, 0, &none), 14);
}

TEST(QosSpecBuild, SpecOverTheRecordValueIsMalformedAndTheMessageKept) {
    FlowSpecification flows[10];
    for (auto& f : flows) f = fullFlow();
    FilterSpecification filter = fullFilter();
    Bytes buf = buffer(2048);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 2048), 7);
    Bytes before = buf;
    // 4 + 10 x 100 + 132 value bytes.
    QoSSpec big = qosSpec(10, flows, 1, &filter);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 2048, 0, &big), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(buf, before);
    Bytes mbuf = buffer(2048);
    ASSERT_EQ(zovQMIQOSModifyQoSReq(mbuf.data(), 2048), 7);
    before = mbuf;
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(mbuf.data(), 2048, 1, 0, &big), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(mbuf, before);
    // 4 + 10 x 100 + 20 value bytes fill the record exactly; 4 more do not fit.
    FlowSpecification eleven[11];
    for (int i = 0; i < 10; ++i) eleven[i] = flows[i];
    eleven[10] = zeroed<FlowSpecification>();
    eleven[10].type = 0x12, eleven[10].present16 = 1, eleven[10].present17 = 1;
    QoSSpec exact = qosSpec(11, eleven, 0, nullptr);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 2048, 0, &exact), 7 + 3 + 1024);
    EXPECT_EQ(rd16(buf.data() + 8), 1024);
    eleven[10].present10 = 1;
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 2048), 7);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 2048, 0, &exact), ZOVQMI_ERR_MALFORMED);
}

TEST(QosSpecBuild, SpecThatDoesNotFitTheBufferIsMinusTwoAndTheMessageKept) {
    QoSSpec s = qosSpec(0, nullptr, 0, nullptr);
    Bytes buf = buffer(32);
    ASSERT_EQ(zovQMIQOSRequestQoSReq(buf.data(), 32), 7);
    Bytes before = buf;
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 13, 0, &s), -2);
    EXPECT_EQ(zovQMIQOSModifyQoSReqAddQoSSpec(buf.data(), 20, 5, 0, &s), -2);
    EXPECT_EQ(buf, before);
    EXPECT_EQ(zovQMIQOSRequestQoSReqAddQoSSpec(buf.data(), 14, 0, &s), 14);
}

// ------------------------------------------------- QoS error list --

Bytes errorFlow(uint8_t type, uint8_t index, const Bytes& params) {
    return tlv(type, tlv(0x10, cat({tlv(0x10, {index}), tlv(0x11, params)})));
}

TEST(QosSpecError, ReadsIndexFlowsAndFiltersWithTheirWrapperTypeAndIndex) {
    Bytes msg = svcMessage(0x0020, {result(1, 0x5A), tlv(0x01, {0x00}),
                                    tlv(0x10, cat({tlv(0x10, {0x04}), errorFlow(0x12, 0x02, fullFlowParams()),
                                                   errorFlow(0x13, 0x03, fullFilterParams()),
                                                   tlv(0x55, {1, 2, 3}), errorFlow(0x11, 0x01, tlv(0x1E, {0x0E}))}))});
    FlowSpecification flows[2] = {zeroed<FlowSpecification>(), zeroed<FlowSpecification>()};
    FilterSpecification filters[1] = {zeroed<FilterSpecification>()};
    QoSSpec s = qosSpec(0xEE, flows, 0xEE, filters);
    uint8_t index = 0xEE;
    int r = zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s);
    EXPECT_EQ(r, int(msg.size()) - 7 - 7 - 4 - 3);
    EXPECT_EQ(index, 0x04);
    EXPECT_EQ(s.flowCount, 2);
    EXPECT_EQ(s.filterCount, 1);
    FlowSpecification f0 = parsedFlow();
    f0.type = 0x12, f0.index = 0x02;
    EXPECT_TRUE(same(flows[0], f0));
    FlowSpecification f1 = zeroed<FlowSpecification>();
    f1.type = 0x11, f1.index = 0x01, f1.present1E = 1, f1.value1E = 0x0E;
    EXPECT_TRUE(same(flows[1], f1));
    FilterSpecification g0 = parsedFilter();
    g0.type = 0x13, g0.index = 0x03;
    EXPECT_TRUE(same(filters[0], g0));
}

TEST(QosSpecError, CountsOnlyWrappersWhoseNested10ItemIsNonEmpty) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x10, cat({
                                                           tlv(0x11, tlv(0x10, {})),           // empty: ignored
                                                           tlv(0x12, tlv(0x11, {0x10, 0x00})),  // not 0x10: ignored
                                                           tlv(0x14, tlv(0x10, {})),           // empty: ignored
                                                           tlv(0x12, tlv(0x10, tlv(0x10, {0x07}))),
                                                       }))});
    FlowSpecification flows[2] = {zeroed<FlowSpecification>(), zeroed<FlowSpecification>()};
    FilterSpecification filter = zeroed<FilterSpecification>();
    QoSSpec s = qosSpec(0xEE, flows, 0xEE, &filter);
    uint8_t index = 0xEE;
    EXPECT_GT(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), 0);
    EXPECT_EQ(index, 0xEE);  // no item 0x10 at the top
    EXPECT_EQ(s.flowCount, 1);
    EXPECT_EQ(s.filterCount, 0);
    EXPECT_EQ(flows[0].type, 0x12);
    EXPECT_EQ(flows[0].index, 0x07);
    EXPECT_TRUE(same(flows[1], zeroed<FlowSpecification>()));
    EXPECT_TRUE(same(filter, zeroed<FilterSpecification>()));
}

TEST(QosSpecError, NullArraysStillCount) {
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x10, cat({errorFlow(0x11, 1, {}), errorFlow(0x12, 2, {}),
                                                               errorFlow(0x14, 3, {})}))});
    QoSSpec s = qosSpec(0xEE, nullptr, 0xEE, nullptr);
    uint8_t index = 0;
    EXPECT_GT(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), 0);
    EXPECT_EQ(s.flowCount, 2);
    EXPECT_EQ(s.filterCount, 1);
}

TEST(QosSpecError, CountIsASingleByteThatWraps) {
    Bytes value;
    for (int i = 0; i < 257; ++i) value = cat({value, tlv(0x11, tlv(0x10, tlv(0x10, {uint8_t(i)})))});
    Bytes msg = svcMessage(0x0020, {result(), tlv(0x10, value)});
    QoSSpec s = qosSpec(0xEE, nullptr, 0xEE, nullptr);
    uint8_t index = 0;
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), int(value.size()));
    EXPECT_EQ(s.flowCount, 1);
    EXPECT_EQ(s.filterCount, 0);
}

TEST(QosSpecError, ModifyReadsTheSameListFromMessage24) {
    Bytes item = tlv(0x10, cat({tlv(0x10, {0x09}), errorFlow(0x14, 0x05, tlv(0x21, le32(0x01020304)))}));
    Bytes msg = svcMessage(0x0024, {result(), item});
    FilterSpecification filter = zeroed<FilterSpecification>();
    QoSSpec s = qosSpec(0xEE, nullptr, 0xEE, &filter);
    uint8_t index = 0;
    EXPECT_EQ(zovQMIQOSModifyQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), int(item.size()) - 3);
    EXPECT_EQ(index, 0x09);
    EXPECT_EQ(s.flowCount, 0);
    EXPECT_EQ(s.filterCount, 1);
    EXPECT_EQ(filter.type, 0x14);
    EXPECT_EQ(filter.index, 0x05);
    EXPECT_EQ(filter.present21, 1);
    EXPECT_EQ(filter.value21, 0x01020304u);
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), -2);
}

TEST(QosSpecError, ReturnCodes) {
    QoSSpec s = qosSpec(0, nullptr, 0, nullptr);
    uint8_t index = 0;
    Bytes msg = svcMessage(0x0020, {result()});
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(nullptr, int(msg.size()), &index, &s), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), nullptr, &s), -1);
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, nullptr), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, nullptr), -1);
    EXPECT_EQ(zovQMIQOSModifyQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), -2);
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), -3);
    Bytes modify = svcMessage(0x0024, {result()});
    EXPECT_EQ(zovQMIQOSModifyQoSRespGetQoSSpecError(modify.data(), int(modify.size()), &index, &s), -3);
}

TEST(QosSpecError, WrapperRunningPastTheBufferIsMalformedAndWritesNothing) {
    // The second flow's parameters are cut short by the end of the buffer.
    Bytes full = svcMessage(0x0020, {result(), tlv(0x10, cat({tlv(0x10, {0x04}), errorFlow(0x11, 1, {}),
                                                                errorFlow(0x12, 2, tlv(0x13, fill(12, 1)))}))});
    Bytes msg = head(full, full.size() - 6);
    FlowSpecification flows[2] = {zeroed<FlowSpecification>(), zeroed<FlowSpecification>()};
    QoSSpec s = qosSpec(0xEE, flows, 0xEE, nullptr);
    uint8_t index = 0xEE;
    EXPECT_EQ(zovQMIQOSRequestQoSRespGetQoSSpecError(msg.data(), int(msg.size()), &index, &s), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(index, 0xEE);
    EXPECT_EQ(s.flowCount, 0xEE);
    EXPECT_EQ(s.filterCount, 0xEE);
    EXPECT_TRUE(same(flows[0], zeroed<FlowSpecification>()));
    EXPECT_TRUE(same(flows[1], zeroed<FlowSpecification>()));
}

// -------------------------------------------------- flow information --

TEST(QosFlowInfo, ReadsStateFlowsAndFilters) {
    Bytes item = tlv(0x10, cat({tlv(0x10, cat({le32(0x01020304), {0x05, 0x06}})), wrapped(0x12, fullFlowParams()),
                                tlv(0x77, {}), wrapped(0x14, fullFilterParams()), wrapped(0x11, tlv(0x10, {0x3C}))}));
    Bytes msg = svcMessage(0x0001, {item}, 0x0000, 0x04);
    QoSFlowState state;
    std::memset(&state, 0xEE, sizeof state);
    FlowSpecification flows[2] = {zeroed<FlowSpecification>(), zeroed<FlowSpecification>()};
    FilterSpecification filter = zeroed<FilterSpecification>();
    QoSSpec s = qosSpec(0xEE, flows, 0xEE, &filter);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s),
              int(item.size()) - 3);
    const uint8_t* st = reinterpret_cast<const uint8_t*>(&state);
    EXPECT_EQ(rd32(st), 0x01020304u);
    EXPECT_EQ(st[4], 0x05);
    EXPECT_EQ(st[5], 0x06);
    EXPECT_EQ(s.flowCount, 2);
    EXPECT_EQ(s.filterCount, 1);
    FlowSpecification f0 = parsedFlow();
    f0.type = 0x12;
    EXPECT_TRUE(same(flows[0], f0));
    EXPECT_EQ(flows[1].type, 0x11);
    EXPECT_EQ(flows[1].present10, 1);
    EXPECT_EQ(flows[1].value10, 0x3C);
    FilterSpecification g0 = parsedFilter();
    g0.type = 0x14;
    EXPECT_TRUE(same(filter, g0));
}

TEST(QosFlowInfo, CountsEveryWrapperEvenWithNullArraysOrEmptyItems) {
    Bytes msg = svcMessage(0x0001, {tlv(0x10, cat({tlv(0x11, {}), tlv(0x12, tlv(0x10, {})), tlv(0x13, {}),
                                                     tlv(0x14, {1, 2})}))});
    QoSFlowState state;
    std::memset(&state, 0xEE, sizeof state);
    QoSSpec s = qosSpec(0xEE, nullptr, 0xEE, nullptr);
    EXPECT_GT(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), 0);
    EXPECT_EQ(s.flowCount, 2);
    EXPECT_EQ(s.filterCount, 2);
    EXPECT_EQ(rd32(&state), 0xEEEEEEEEu);  // no item 0x10
}

TEST(QosFlowInfo, EmptyWrapperWithAnArrayIsCountedAndOnlyTyped) {
    Bytes msg = svcMessage(0x0001, {tlv(0x10, cat({tlv(0x11, {}), wrapped(0x12, tlv(0x10, {0x01}))}))});
    QoSFlowState state;
    FlowSpecification flows[2] = {zeroed<FlowSpecification>(), zeroed<FlowSpecification>()};
    QoSSpec s = qosSpec(0, flows, 0, nullptr);
    EXPECT_GT(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), 0);
    EXPECT_EQ(s.flowCount, 2);
    FlowSpecification f0 = zeroed<FlowSpecification>();
    f0.type = 0x11;
    EXPECT_TRUE(same(flows[0], f0));
    EXPECT_EQ(flows[1].type, 0x12);
    EXPECT_EQ(flows[1].value10, 0x01);
}

TEST(QosFlowInfo, CountsAreSingleBytesThatWrap) {
    Bytes value;
    for (int i = 0; i < 256; ++i) value = cat({value, tlv(0x11, {})});
    for (int i = 0; i < 258; ++i) value = cat({value, tlv(0x13, {})});
    Bytes msg = svcMessage(0x0001, {tlv(0x10, value)});
    QoSFlowState state;
    QoSSpec s = qosSpec(0xEE, nullptr, 0xEE, nullptr);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), int(value.size()));
    EXPECT_EQ(s.flowCount, 0);
    EXPECT_EQ(s.filterCount, 2);
}

TEST(QosFlowInfo, ReturnCodes) {
    QoSFlowState state;
    QoSSpec s = qosSpec(0, nullptr, 0, nullptr);
    Bytes msg = svcMessage(0x0001, {tlv(0x11, {})});
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(nullptr, int(msg.size()), &state, &s), -1);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), nullptr, &s), -1);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, nullptr), -1);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), -3);
    Bytes other = svcMessage(0x0002, {tlv(0x10, {})});
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(other.data(), int(other.size()), &state, &s), -2);
}

TEST(QosFlowInfo, ParameterCutShortByTheBufferIsMalformedAndWritesNothing) {
    // The parameter claims 1 byte but 0x13 is copied at its fixed 12 bytes,
    // which the buffer does not hold.
    Bytes msg = svcMessage(0x0001, {tlv(0x10, cat({tlv(0x10, cat({le32(1), {2, 3}})),
                                                     wrapped(0x11, tlv(0x13, {0x01}))}))});
    QoSFlowState state;
    std::memset(&state, 0xEE, sizeof state);
    FlowSpecification flow = zeroed<FlowSpecification>();
    QoSSpec s = qosSpec(0xEE, &flow, 0xEE, nullptr);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(rd32(&state), 0xEEEEEEEEu);
    EXPECT_EQ(s.flowCount, 0xEE);
    EXPECT_TRUE(same(flow, zeroed<FlowSpecification>()));
}

TEST(QosFlowInfo, ParametersMayReadIntoTheFollowingBytesOfTheBuffer) {
    // Inside a message the fixed width may run past the item into later
    // bytes of the same buffer.
    Bytes msg = svcMessage(0x0001, {tlv(0x10, wrapped(0x11, tlv(0x14, {0x01}))), tlv(0x20, {0x02, 0x03})});
    QoSFlowState state;
    FlowSpecification flow = zeroed<FlowSpecification>();
    QoSSpec s = qosSpec(0, &flow, 0, nullptr);
    EXPECT_EQ(zovQMIQOSSetEventReportINDGetQoSFlowInfo(msg.data(), int(msg.size()), &state, &s), 10);
    EXPECT_EQ(flow.present14, 1);
    EXPECT_EQ(flow.value14, 0x00022001u);
}

// ------------------------------------------------------ granted flows --

TEST(QosGrantedFlow, TransmitAndReceiveFlowsAreReadFromItems11And12) {
    Bytes tx = tlv(0x10, fullFlowParams());
    Bytes rx = tlv(0x10, tlv(0x1D, {0x2D}));
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x11, tx), tlv(0x12, rx)});
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(msg.data(), int(msg.size()), &f), int(tx.size()));
    EXPECT_TRUE(same(f, parsedFlow()));
    FlowSpecification g = zeroed<FlowSpecification>();
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(msg.data(), int(msg.size()), &g), int(rx.size()));
    FlowSpecification expected = zeroed<FlowSpecification>();
    expected.present1D = 1, expected.value1D = 0x2D;
    EXPECT_TRUE(same(g, expected));
}

TEST(QosGrantedFlow, ReturnCodesIncludeTheParsersOwn) {
    FlowSpecification f = zeroed<FlowSpecification>();
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x11, cat({{0x10}, le16(5), tlv(0x10, {1})})), tlv(0x12, {0x10})});
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(nullptr, int(msg.size()), &f), -1);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(msg.data(), int(msg.size()), nullptr), -1);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(msg.data(), int(msg.size()), nullptr), -1);
    // The inner length disagrees with the item's: the parser's -2.
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(msg.data(), int(msg.size()), &f), -2);
    // An item shorter than 3 bytes: the parser's -1.
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(msg.data(), int(msg.size()), &f), -1);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));
    Bytes none = svcMessage(0x0025, {result()});
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(none.data(), int(none.size()), &f), -3);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(none.data(), int(none.size()), &f), -3);
    Bytes other = svcMessage(0x0026, {result(), tlv(0x11, tlv(0x10, {}))});
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(other.data(), int(other.size()), &f), -2);
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(other.data(), int(other.size()), &f), -2);
}

TEST(QosGrantedFlow, ParameterCutShortByTheBufferIsMalformedAndWritesNothing) {
    Bytes msg = svcMessage(0x0025, {result(), tlv(0x11, tlv(0x10, cat({tlv(0x10, {1}), tlv(0x12, {1})})))});
    FlowSpecification f = zeroed<FlowSpecification>();
    EXPECT_EQ(zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(msg.data(), int(msg.size()), &f), ZOVQMI_ERR_MALFORMED);
    EXPECT_TRUE(same(f, zeroed<FlowSpecification>()));
}

}  // namespace
