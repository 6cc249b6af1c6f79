// Flows and filters with every parameter present, and their wire bytes.
#pragma once

#include "testutil.h"

namespace q {

using t::Bytes;
using t::cat;
using t::le16;
using t::le32;
using t::tlv;

template <class T>
T zeroed() {
    T v;
    std::memset(&v, 0, sizeof v);
    return v;
}
template <class T>
bool same(const T& a, const T& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

inline FlowSpecification fullFlow(uint8_t type = 0x11) {
    FlowSpecification f = zeroed<FlowSpecification>();
    f.type = type;
    f.index = 0x77;  // not written by the builder
    f.present10 = 1, f.value10 = 0xA1;
    f.present1B = 1, f.value1B = 0xB1B2;
    f.present11 = 1, f.value11 = 0xC1;
    f.present12 = 1, f.value12First = 0x12345678, f.value12Second = 0x9ABCDEF0;
    f.present13 = 1, f.value13First = 0x13000001, f.value13Second = 0x13000002, f.value13Third = 0x13000003;
    f.present14 = 1, f.value14 = 0x14000014;
    f.present15 = 1, f.value15 = 0x15000015;
    f.present16 = 1, f.value16First = 0x1601, f.value16Second = 0x1602;
    f.present17 = 1, f.value17 = 0x17000017;
    f.present18 = 1, f.value18 = 0x18000018;
    f.present19 = 1, f.value19 = 0x19;
    f.present1A = 1, f.value1A = 0x1A;
    f.present1C = 1, f.value1C = 0x1C;
    f.present1D = 1, f.value1D = 0x1D;
    f.present1E = 1, f.value1E = 0x1E;
    return f;
}
// The parameter items of fullFlow(), in the order the builder writes them.
inline Bytes fullFlowParams() {
    return cat({tlv(0x10, {0xA1}), tlv(0x1B, le16(0xB1B2)), tlv(0x11, {0xC1}),
                tlv(0x12, cat({le32(0x12345678), le32(0x9ABCDEF0)})),
                tlv(0x13, cat({le32(0x13000001), le32(0x13000002), le32(0x13000003)})),
                tlv(0x14, le32(0x14000014)), tlv(0x15, le32(0x15000015)),
                tlv(0x16, cat({le16(0x1601), le16(0x1602)})), tlv(0x17, le32(0x17000017)),
                tlv(0x18, le32(0x18000018)), tlv(0x19, {0x19}), tlv(0x1A, {0x1A}), tlv(0x1C, {0x1C}),
                tlv(0x1D, {0x1D}), tlv(0x1E, {0x1E})});
}

inline FilterSpecification fullFilter(uint8_t type = 0x13) {
    FilterSpecification f = zeroed<FilterSpecification>();
    f.type = type;
    f.index = 0x77;
    f.present10 = 1, f.value10 = 0xA0;
    f.present11 = 1, f.value11 = 0xA1;
    f.present12 = 1, f.value12First = 0xC0A80001, f.value12Second = 0xFFFFFF00;
    f.present13 = 1, f.value13First = 0x0A000001, f.value13Second = 0xFF000000;
    f.present14 = 1, f.value14 = 0x06;
    f.present15 = 1, f.value15Byte0 = 0x15, f.value15Byte1 = 0x51;
    f.present16 = 1;
    for (int i = 0; i < 16; ++i) f.value16[i] = uint8_t(0x60 + i);
    f.value16Last = 0x40;
    f.present17 = 1;
    for (int i = 0; i < 16; ++i) f.value17[i] = uint8_t(0x70 + i);
    f.value17Last = 0x41;
    f.present19 = 1, f.value19Byte0 = 0x19, f.value19Byte1 = 0x91;
    f.present1A = 1, f.value1A = 0x1A00001A;
    f.present1B = 1, f.value1BFirst = 0x1B01, f.value1BSecond = 0x1B02;
    f.present1C = 1, f.value1CFirst = 0x1C01, f.value1CSecond = 0x1C02;
    f.present1D = 1, f.value1DFirst = 0x1D01, f.value1DSecond = 0x1D02;
    f.present1E = 1, f.value1EFirst = 0x1E01, f.value1ESecond = 0x1E02;
    f.present21 = 1, f.value21 = 0x21000021;
    return f;
}
inline Bytes block(uint8_t first) {
    Bytes b;
    for (int i = 0; i < 16; ++i) b.push_back(uint8_t(first + i));
    return b;
}
inline Bytes fullFilterParams() {
    return cat({tlv(0x10, {0xA0}), tlv(0x11, {0xA1}), tlv(0x12, cat({le32(0xC0A80001), le32(0xFFFFFF00)})),
                tlv(0x13, cat({le32(0x0A000001), le32(0xFF000000)})), tlv(0x14, {0x06}), tlv(0x15, {0x15, 0x51}),
                tlv(0x16, cat({block(0x60), {0x40}})), tlv(0x17, cat({block(0x70), {0x41}})),
                tlv(0x19, {0x19, 0x91}), tlv(0x1A, le32(0x1A00001A)),
                tlv(0x1B, cat({le16(0x1B01), le16(0x1B02)})), tlv(0x1C, cat({le16(0x1C01), le16(0x1C02)})),
                tlv(0x1D, cat({le16(0x1D01), le16(0x1D02)})), tlv(0x1E, cat({le16(0x1E01), le16(0x1E02)})),
                tlv(0x21, le32(0x21000021))});
}

// One flow or filter as a container holds it: wrapper item, item 0x10, parameters.
inline Bytes wrapped(uint8_t type, const Bytes& params) { return tlv(type, tlv(0x10, params)); }

// What the parsers deliver for a full flow or filter: everything but the
// wrapper type and index.
inline FlowSpecification parsedFlow() {
    FlowSpecification f = fullFlow();
    f.type = 0, f.index = 0;
    return f;
}
inline FilterSpecification parsedFilter() {
    FilterSpecification f = fullFilter();
    f.type = 0, f.index = 0;
    return f;
}

// A QoSSpec pointing at caller arrays, counts preset.
inline QoSSpec qosSpec(uint8_t flowCount, FlowSpecification* flows, uint8_t filterCount, FilterSpecification* filters) {
    QoSSpec s;
    s.flowCount = flowCount;
    s.filterCount = filterCount;
    s.flows = flows;
    s.filters = filters;
    return s;
}

}  // namespace q
