// QOS, the quality-of-service service: QoS reservations on a data call
// (request, modify, release, suspend, resume), what was granted, their status
// and the network-supported QoS profiles.
//
// A QoSSpec travels as one item 0x10 whose value nests flows and filters
// two levels deep: a wrapper item (0x11/0x12 for a flow, 0x13/0x14 for a
// filter) holding an item 0x10 whose value is the list of parameter items.
// The flow and filter codec below writes and reads those nested lists; the
// caller's FlowSpecification and FilterSpecification records are native,
// naturally aligned structures.
#include <stddef.h>

#include "msg/pattern.h"

using namespace zq;

namespace {

constexpr int kErrNotQoSSpec = -2;     // builders: the record is not an item 0x10
constexpr int kErrLengthMismatch = -2;  // parsers: the item's length field disagrees

// ------------------------------------------------------------ building --

// Writes nested items at p, or only measures them when p is null, so one
// description of a layout both sizes and writes it.
class Emit {
public:
    explicit Emit(uint8_t* p) : p_(p) {}
    size_t size() const { return n_; }
    void u8(uint8_t v) {
        if (p_) p_[n_] = v;
        n_ += 1;
    }
    void u16(uint16_t v) {
        if (p_) st16(p_ + n_, v);
        n_ += 2;
    }
    void u32(uint32_t v) {
        if (p_) st32(p_ + n_, v);
        n_ += 4;
    }
    void block(const uint8_t* src, size_t k) {
        if (p_) copyBytes(p_ + n_, src, k);
        n_ += k;
    }
    void head(uint8_t type, uint16_t length) {
        u8(type);
        u16(length);
    }
    // Rewrites a 16-bit length written earlier at `at`.
    void patch16(size_t at, uint16_t v) {
        if (p_) st16(p_ + at, v);
    }

private:
    uint8_t* p_;
    size_t n_ = 0;
};

// The parameter items of a flow, in the fixed order of the wire (0x1B right
// after 0x10, ahead of 0x11).
void params(Emit& e, const FlowSpecification& f) {
    if (f.present10) e.head(0x10, 1), e.u8(f.value10);
    if (f.present1B) e.head(0x1B, 2), e.u16(f.value1B);
    if (f.present11) e.head(0x11, 1), e.u8(f.value11);
    if (f.present12) e.head(0x12, 8), e.u32(f.value12First), e.u32(f.value12Second);
    if (f.present13) e.head(0x13, 12), e.u32(f.value13First), e.u32(f.value13Second), e.u32(f.value13Third);
    if (f.present14) e.head(0x14, 4), e.u32(f.value14);
    if (f.present15) e.head(0x15, 4), e.u32(f.value15);
    if (f.present16) e.head(0x16, 4), e.u16(f.value16First), e.u16(f.value16Second);
    if (f.present17) e.head(0x17, 4), e.u32(f.value17);
    if (f.present18) e.head(0x18, 4), e.u32(f.value18);
    if (f.present19) e.head(0x19, 1), e.u8(f.value19);
    if (f.present1A) e.head(0x1A, 1), e.u8(f.value1A);
    if (f.present1C) e.head(0x1C, 1), e.u8(f.value1C);
    if (f.present1D) e.head(0x1D, 1), e.u8(f.value1D);
    if (f.present1E) e.head(0x1E, 1), e.u8(f.value1E);
}

// The parameter items of a filter.  A filter has no item 0x18, 0x1F or 0x20.
void params(Emit& e, const FilterSpecification& f) {
    if (f.present10) e.head(0x10, 1), e.u8(f.value10);
    if (f.present11) e.head(0x11, 1), e.u8(f.value11);
    if (f.present12) e.head(0x12, 8), e.u32(f.value12First), e.u32(f.value12Second);
    if (f.present13) e.head(0x13, 8), e.u32(f.value13First), e.u32(f.value13Second);
    if (f.present14) e.head(0x14, 1), e.u8(f.value14);
    if (f.present15) e.head(0x15, 2), e.u8(f.value15Byte0), e.u8(f.value15Byte1);
    if (f.present16) e.head(0x16, 17), e.block(f.value16, 16), e.u8(f.value16Last);
    if (f.present17) e.head(0x17, 17), e.block(f.value17, 16), e.u8(f.value17Last);
    if (f.present19) e.head(0x19, 2), e.u8(f.value19Byte0), e.u8(f.value19Byte1);
    if (f.present1A) e.head(0x1A, 4), e.u32(f.value1A);
    if (f.present1B) e.head(0x1B, 4), e.u16(f.value1BFirst), e.u16(f.value1BSecond);
    if (f.present1C) e.head(0x1C, 4), e.u16(f.value1CFirst), e.u16(f.value1CSecond);
    if (f.present1D) e.head(0x1D, 4), e.u16(f.value1DFirst), e.u16(f.value1DSecond);
    if (f.present1E) e.head(0x1E, 4), e.u16(f.value1EFirst), e.u16(f.value1ESecond);
    if (f.present21) e.head(0x21, 4), e.u32(f.value21);
}

// One flow or filter: the wrapper item (the element's own type byte) holding
// an item 0x10 whose value is the parameter items.
template <class S>
void wrapped(Emit& e, const S& s) {
    const size_t at = e.size();
    e.head(s.type, 0);
    e.head(0x10, 0);
    params(e, s);
    const uint16_t n = static_cast<uint16_t>(e.size() - at - 6);
    e.patch16(at + 1, static_cast<uint16_t>(n + 3));
    e.patch16(at + 4, n);
}

// Appends one flow or filter to the value of a QoS item record.  One that
// would run past the record's value area is refused and the record is left
// as it was.
template <class S>
int addToRecord(QmiTlvRecord* tlv, const S* s) {
    if (!tlv || !s) return kErrArg;
    uint8_t* rec = reinterpret_cast<uint8_t*>(tlv);
    if (rec[offsetof(QmiTlvRecord, type)] != 0x10) return kErrNotQoSSpec;
    const uint16_t used = ld16(rec + offsetof(QmiTlvRecord, length));
    Emit measure(nullptr);
    wrapped(measure, *s);
    if (used + measure.size() > kMaxItemValue) return kErrMalformed;
    Emit e(rec + offsetof(QmiTlvRecord, value) + used);
    wrapped(e, *s);
    st16(rec + offsetof(QmiTlvRecord, length), static_cast<uint16_t>(used + e.size()));
    return static_cast<int>(e.size());
}

// The QoS item 0x10 0x10 of RequestQoS (index item only) and ModifyQoS
// (identifier item 0x01 first), followed by every flow then every filter.
// Built straight into the caller's buffer; its value is limited to the
// 1024 bytes of a QmiTlvRecord.
int addQoSSpec(uint8_t* buf, int bufsize, const uint32_t* identifier, uint8_t index, const QoSSpec* qosSpec) {
    if (!buf || !qosSpec) return kErrArg;
    const uint8_t* sp = reinterpret_cast<const uint8_t*>(qosSpec);
    const uint8_t flowCount = sp[offsetof(QoSSpec, flowCount)];
    const uint8_t filterCount = sp[offsetof(QoSSpec, filterCount)];
    const FlowSpecification* flows = ldPtr<const FlowSpecification>(sp + offsetof(QoSSpec, flows));
    const FilterSpecification* filters = ldPtr<const FilterSpecification>(sp + offsetof(QoSSpec, filters));
    if ((flowCount && !flows) || (filterCount && !filters)) return kErrArg;
    auto body = [&](Emit& e) {
        if (identifier) e.head(0x01, 4), e.u32(*identifier);
        e.head(0x10, 1), e.u8(index);
        for (uint8_t i = 0; i < flowCount; ++i) wrapped(e, flows[i]);
        for (uint8_t i = 0; i < filterCount; ++i) wrapped(e, filters[i]);
    };
    Emit measure(nullptr);
    body(measure);
    int total;
    uint8_t* value = reserveItem(kService, buf, bufsize, 0x10, measure.size(), &total);
    if (!value) return total;
    Emit e(value);
    body(e);
    return total;
}

// Release, suspend and resume: the header, then item 0x01 appended with the
// count and the identifiers.
int identifierList(uint8_t* buf, int bufsize, uint16_t id, uint8_t count, const uint32_t* ids) {
    if (count && !ids) return kErrArg;
    if (int r = req(buf, bufsize, id); r < 0) return r;
    return add(buf, bufsize, 0x01, w8(count), wfn(4u * count, [=](uint8_t* p) {
                   for (uint8_t i = 0; i < count; ++i) st32(p + 4u * i, ids[i]);
               }));
}

// ------------------------------------------------------------- parsing --

// Reads value fields back to back from v, each at its own width, then sets
// the presence byte.
template <class T>
T load(Dec& d, size_t off) {
    if constexpr (sizeof(T) == 1) return d.u8(off);
    else if constexpr (sizeof(T) == 2) return d.le16(off);
    else return d.le32(off);
}
template <class... T>
void set(Dec& d, uint8_t* present, size_t v, T*... fields) {
    ((d.put(fields, load<T>(d, v)), v += sizeof(T)), ...);
    d.put(present, 1);
}

// One parameter item of a flow whose value starts at v, copied at the fixed
// width of its type whatever its length field says.  Unknown types are
// skipped.
void param(Dec& d, uint8_t t, size_t v, FlowSpecification* f) {
    switch (t) {
    case 0x10: set(d, &f->present10, v, &f->value10); break;
    case 0x11: set(d, &f->present11, v, &f->value11); break;
    case 0x12: set(d, &f->present12, v, &f->value12First, &f->value12Second); break;
    case 0x13: set(d, &f->present13, v, &f->value13First, &f->value13Second, &f->value13Third); break;
    case 0x14: set(d, &f->present14, v, &f->value14); break;
    case 0x15: set(d, &f->present15, v, &f->value15); break;
    case 0x16: set(d, &f->present16, v, &f->value16First, &f->value16Second); break;
    case 0x17: set(d, &f->present17, v, &f->value17); break;
    case 0x18: set(d, &f->present18, v, &f->value18); break;
    case 0x19: set(d, &f->present19, v, &f->value19); break;
    case 0x1A: set(d, &f->present1A, v, &f->value1A); break;
    case 0x1B: set(d, &f->present1B, v, &f->value1B); break;
    case 0x1C: set(d, &f->present1C, v, &f->value1C); break;
    case 0x1D: set(d, &f->present1D, v, &f->value1D); break;
    case 0x1E: set(d, &f->present1E, v, &f->value1E); break;
    default: break;
    }
}

// The same for a filter (no 0x18, 0x1F or 0x20); 0x16 and 0x17 copy a
// 16-byte block as it is, then the last byte.
void param(Dec& d, uint8_t t, size_t v, FilterSpecification* f) {
    switch (t) {
    case 0x10: set(d, &f->present10, v, &f->value10); break;
    case 0x11: set(d, &f->present11, v, &f->value11); break;
    case 0x12: set(d, &f->present12, v, &f->value12First, &f->value12Second); break;
    case 0x13: set(d, &f->present13, v, &f->value13First, &f->value13Second); break;
    case 0x14: set(d, &f->present14, v, &f->value14); break;
    case 0x15: set(d, &f->present15, v, &f->value15Byte0, &f->value15Byte1); break;
    case 0x16: d.copy(f->value16, v, 16), set(d, &f->present16, v + 16, &f->value16Last); break;
    case 0x17: d.copy(f->value17, v, 16), set(d, &f->present17, v + 16, &f->value17Last); break;
    case 0x19: set(d, &f->present19, v, &f->value19Byte0, &f->value19Byte1); break;
    case 0x1A: set(d, &f->present1A, v, &f->value1A); break;
    case 0x1B: set(d, &f->present1B, v, &f->value1BFirst, &f->value1BSecond); break;
    case 0x1C: set(d, &f->present1C, v, &f->value1CFirst, &f->value1CSecond); break;
    case 0x1D: set(d, &f->present1D, v, &f->value1DFirst, &f->value1DSecond); break;
    case 0x1E: set(d, &f->present1E, v, &f->value1EFirst, &f->value1ESecond); break;
    case 0x21: set(d, &f->present21, v, &f->value21); break;
    default: break;
    }
}

// Reads one flow or filter item at `off` whose total size (3-byte head plus
// value) is `length`: its own length field must be length - 3, then its
// parameter items are read into s.  The record is not cleared first.  The
// walk steps in 16 bits; a step that would wrap back inside the item makes
// the item malformed rather than looping over it again.
template <class S>
int parseSpec(Dec& d, size_t off, uint16_t length, S* s) {
    if (length < 3) return kErrArg;
    const uint16_t own = d.le16(off + 1);
    if (d.bad()) return kErrMalformed;
    if (length - own != 3) return kErrLengthMismatch;
    for (uint32_t o = 3; o < length;) {
        const uint8_t t = d.u8(off + o);
        const uint16_t m = d.le16(off + o + 1);
        if (d.bad()) return kErrMalformed;
        param(d, t, off + o + 3, s);
        o += m + 3u;
        if (o > 0xFFFF) {
            d.fail();
            return kErrMalformed;
        }
    }
    return length;
}

// The exported parsers read only inside [item, item + length).
template <class S>
int parseItem(const uint8_t* item, int length, S* s) {
    if (!item || !s) return kErrArg;
    const uint16_t n = static_cast<uint16_t>(length);
    if (n < 3) return kErrArg;
    int r = 0;
    auto f = [&](Dec& d) { r = parseSpec(d, 0, n, s); };
    if (decode(Item{item, n, item + n}, f)) return kErrMalformed;
    return r;
}

// The array pointers of a caller's QoSSpec.
struct SpecArrays {
    FlowSpecification* flows;
    FilterSpecification* filters;
};
SpecArrays arrays(Dec::Record& qosSpec) {
    return {qosSpec.ptr<FlowSpecification>(offsetof(QoSSpec, flows)),
            qosSpec.ptr<FilterSpecification>(offsetof(QoSSpec, filters))};
}
void putCounts(Dec::Record& qosSpec, uint8_t flows, uint8_t filters) {
    qosSpec.put8(offsetof(QoSSpec, flowCount), flows);
    qosSpec.put8(offsetof(QoSSpec, filterCount), filters);
}

// Walks the items of a container value, calling f(type, value offset, length).
template <class F>
void eachItem(Dec& d, size_t from, size_t to, F&& f) {
    for (size_t off = from; off < to;) {
        const uint8_t t = d.u8(off);
        const uint16_t m = d.le16(off + 1);
        if (d.bad()) return;
        f(t, off + 3, m);
        off += m + 3u;
    }
}

// One flow or filter of a QoS error list, its wrapper value at v: counted
// only when the value begins with a non-empty item 0x10.  That item holds the
// element's index (sub-item 0x10) and its parameters (sub-item 0x11, read
// whole by the flow or filter parser).  The count is a single byte and wraps.
template <class S>
void errorEntry(Dec& d, uint8_t t, size_t v, S* arr, uint8_t& count) {
    if (d.u8(v) != 0x10) return;
    const uint16_t inner = d.le16(v + 1);
    if (inner == 0) return;
    if (arr) {
        S* s = &arr[count];
        d.put(&s->type, t);
        eachItem(d, v + 3, v + 3 + inner, [&](uint8_t st, size_t sv, uint16_t sm) {
            if (st == 0x10) d.put(&s->index, d.u8(sv));
            else if (st == 0x11) parseSpec(d, sv - 3, static_cast<uint16_t>(sm + 3), s);
        });
    }
    ++count;
}

// The QoS error list (item 0x10 of the RequestQoS and ModifyQoS responses).
int specError(const uint8_t* msg, int len, uint16_t id, uint8_t* index, QoSSpec* qosSpec) {
    return get(msg, len, id, 0x10, all(index, qosSpec), [=](Dec& d) {
        Dec::Record sp = d.record(qosSpec);
        const SpecArrays a = arrays(sp);
        uint8_t flows = 0, filters = 0;
        eachItem(d, 0, d.length, [&](uint8_t t, size_t v, uint16_t) {
            if (t == 0x10) d.put(index, d.u8(v));
            else if (t == 0x11 || t == 0x12) errorEntry(d, t, v, a.flows, flows);
            else if (t == 0x13 || t == 0x14) errorEntry(d, t, v, a.filters, filters);
        });
        putCounts(sp, flows, filters);
    });
}

// One flow or filter of the flow-information list: the wrapper's value is
// the element's item 0x10, read by the flow or filter parser.  Counted in
// every case, even without an array; the count wraps.
template <class S>
void infoEntry(Dec& d, uint8_t t, size_t v, uint16_t m, S* arr, uint8_t& count) {
    if (arr) {
        d.put(&arr[count].type, t);
        parseSpec(d, v, m, &arr[count]);
    }
    ++count;
}

// Transmit and receive granted flows: the item's value is one flow item 0x10;
// the call returns what the flow parser returns.
int grantedFlow(const uint8_t* msg, int len, uint8_t type, FlowSpecification* flow) {
    int parsed = 0;
    int r = get(msg, len, 0x0025, type, all(flow), [&](Dec& d) { parsed = parseSpec(d, 0, d.length, flow); });
    return r < 0 ? r : parsed;
}

// One profile list at off into the caller's record; returns its wire size.
size_t profileList(Dec& d, size_t off, Dec::Record& out, size_t at) {
    const uint8_t n = d.u8(off + 2);
    out.put16(at + offsetof(QoSProfileList, technology), d.le16(off));
    out.put8(at + offsetof(QoSProfileList, profileCount), n);
    if (uint16_t* values = out.ptr<uint16_t>(at + offsetof(QoSProfileList, profiles)))
        for (uint8_t i = 0; i < n; ++i) d.put(&values[i], d.le16(off + 3 + 2u * i));
    return 3 + 2u * n;
}

}  // namespace

// Flow and filter codec
extern "C" int fnRequestAddFlowSpecification(QmiTlvRecord* tlv, const FlowSpecification* flow) {
    return addToRecord(tlv, flow);
}
extern "C" int fnRequestAddFilterSpecification(QmiTlvRecord* tlv, const FilterSpecification* filter) {
    return addToRecord(tlv, filter);
}
extern "C" int fnResponseParseFlowSpecification(const uint8_t* item, int length, FlowSpecification* flow) {
    return parseItem(item, length, flow);
}
extern "C" int fnResponseParseFilterSpecification(const uint8_t* item, int length, FilterSpecification* filter) {
    return parseItem(item, length, filter);
}

// Reset 0x0000
extern "C" int zovQMIQOSResetReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0000); }
extern "C" int zovQMIQOSResetResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0000);
}

// SetEventReport 0x0001 (request and indication)
extern "C" int zovQMIQOSSetEventReportReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0001); }
extern "C" int zovQMIQOSSetEventReportReqAddGlobalFlowInfoReporting(uint8_t* buf, int bufsize, uint8_t report) {
    return add(buf, bufsize, 0x10, w8(report));
}
extern "C" int zovQMIQOSSetEventReportReqAddNetworkSupportedQoSProfileChange(uint8_t* buf, int bufsize, uint8_t report,
                                                                            uint16_t technology) {
    return add(buf, bufsize, 0x11, w8(report), w16(technology));
}
extern "C" int zovQMIQOSSetEventReportResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0001);
}
extern "C" int zovQMIQOSSetEventReportIND(const uint8_t* msg, int len) { return ind(msg, len, 0x0001); }
// Item 0x10: the flow state (item 0x10) and the flows and filters it lists.
extern "C" int zovQMIQOSSetEventReportINDGetQoSFlowInfo(const uint8_t* msg, int len, QoSFlowState* state,
                                                       QoSSpec* qosSpec) {
    return get(msg, len, 0x0001, 0x10, all(state, qosSpec), [=](Dec& d) {
        Dec::Record st = d.record(state);
        Dec::Record sp = d.record(qosSpec);
        const SpecArrays a = arrays(sp);
        uint8_t flows = 0, filters = 0;
        eachItem(d, 0, d.length, [&](uint8_t t, size_t v, uint16_t m) {
            if (t == 0x10) {
                st.put32(offsetof(QoSFlowState, identifier), d.le32(v));
                st.put8(offsetof(QoSFlowState, status), d.u8(v + 4));
                st.put8(offsetof(QoSFlowState, event), d.u8(v + 5));
            } else if (t == 0x11 || t == 0x12) {
                infoEntry(d, t, v, m, a.flows, flows);
            } else if (t == 0x13 || t == 0x14) {
                infoEntry(d, t, v, m, a.filters, filters);
            }
        });
        putCounts(sp, flows, filters);
    });
}
extern "C" int zovQMIQOSSetEventReportINDGetNetworkSupportedQoSProfiles(const uint8_t* msg, int len,
                                                                       QoSProfileList* list) {
    return get(msg, len, 0x0001, 0x11, all(list), [=](Dec& d) {
        Dec::Record out = d.record(list);
        profileList(d, 0, out, 0);
    });
}

// RequestQoS 0x0020
extern "C" int zovQMIQOSRequestQoSReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0020); }
extern "C" int zovQMIQOSRequestQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint8_t index, const QoSSpec* qosSpec) {
    return addQoSSpec(buf, bufsize, nullptr, index, qosSpec);
}
extern "C" int zovQMIQOSRequestQoSReqAddQoSRequestOpcode(uint8_t* buf, int bufsize, uint8_t opcode) {
    return add(buf, bufsize, 0x11, w8(opcode));
}
// Item 0x01: count, then count identifiers (the array is optional).
extern "C" int zovQMIQOSRequestQoSResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                       uint32_t* identifiers) {
    return resp(msg, len, result, 0x0020, all(count), [=](Dec& d) {
        const uint8_t n = d.u8(0);
        d.put(count, n);
        if (identifiers)
            for (uint8_t i = 0; i < n; ++i) d.put(&identifiers[i], d.le32(1 + 4u * i));
    });
}
extern "C" int zovQMIQOSRequestQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec) {
    return specError(msg, len, 0x0020, index, qosSpec);
}

// ReleaseQoS 0x0021, SuspendQoS 0x0022, ResumeQoS 0x0023
extern "C" int zovQMIQOSReleaseQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers) {
    return identifierList(buf, bufsize, 0x0021, count, identifiers);
}
extern "C" int zovQMIQOSReleaseQoSResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0021);
}
extern "C" int zovQMIQOSSuspendQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers) {
    return identifierList(buf, bufsize, 0x0022, count, identifiers);
}
extern "C" int zovQMIQOSSuspendQoSResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0022);
}
extern "C" int zovQMIQOSResumeQoSReq(uint8_t* buf, int bufsize, uint8_t count, const uint32_t* identifiers) {
    return identifierList(buf, bufsize, 0x0023, count, identifiers);
}
extern "C" int zovQMIQOSResumeQoSResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0023);
}

// ModifyQoS 0x0024
extern "C" int zovQMIQOSModifyQoSReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0024); }
extern "C" int zovQMIQOSModifyQoSReqAddQoSSpec(uint8_t* buf, int bufsize, uint32_t identifier, uint8_t index,
                                               const QoSSpec* qosSpec) {
    return addQoSSpec(buf, bufsize, &identifier, index, qosSpec);
}
extern "C" int zovQMIQOSModifyQoSReqAddPrimaryQoSModifyRequest(uint8_t* buf, int bufsize, uint8_t primary) {
    return add(buf, bufsize, 0x11, w8(primary));
}
extern "C" int zovQMIQOSModifyQoSResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0024);
}
extern "C" int zovQMIQOSModifyQoSRespGetQoSSpecError(const uint8_t* msg, int len, uint8_t* index, QoSSpec* qosSpec) {
    return specError(msg, len, 0x0024, index, qosSpec);
}

// GetGrantedQoS 0x0025
extern "C" int zovQMIQOSGetGrantedQoSReq(uint8_t* buf, int bufsize, uint32_t identifier) {
    return reqTlv(buf, bufsize, 0x0025, w32(identifier));
}
extern "C" int zovQMIQOSGetGrantedQoSReqAddPrimaryGrantedQoSRequest(uint8_t* buf, int bufsize, uint8_t primary) {
    return add(buf, bufsize, 0x10, w8(primary));
}
extern "C" int zovQMIQOSGetGrantedQoSResp(const uint8_t* msg, int len, QmiResult* result) {
    return resp(msg, len, result, 0x0025);
}
extern "C" int zovQMIQOSGetGrantedQoSRespGetTxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow) {
    return grantedFlow(msg, len, 0x11, flow);
}
extern "C" int zovQMIQOSGetGrantedQoSRespGetRxQoSGrantedFlow(const uint8_t* msg, int len, FlowSpecification* flow) {
    return grantedFlow(msg, len, 0x12, flow);
}
extern "C" int zovQMIQOSGetGrantedQoSRespGetExtendedErrorInfo(const uint8_t* msg, int len, uint16_t* error) {
    return get(msg, len, 0x0025, 0xE0, all(error), scalar(error));
}

// GetQoSStatus 0x0026 and the QoS status indication
extern "C" int zovQMIQOSGetQoSStatusReq(uint8_t* buf, int bufsize, uint32_t identifier) {
    return reqTlv(buf, bufsize, 0x0026, w32(identifier));
}
extern "C" int zovQMIQOSGetQoSStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status) {
    return resp(msg, len, result, 0x0026, all(status), scalar(status));
}
extern "C" int zovQMIQOSStatusIND(const uint8_t* msg, int len, uint32_t* identifier, uint8_t* status,
                                  uint8_t* event) {
    return ind(msg, len, 0x0026, all(identifier, status, event), [=](Dec& d) {
        d.put(identifier, d.le32(0));
        d.put(status, d.u8(4));
        d.put(event, d.u8(5));
    });
}
extern "C" int zovQMIQOSStatusINDGetReasonCode(const uint8_t* msg, int len, uint8_t* reason) {
    return get(msg, len, 0x0026, 0x10, all(reason), scalar(reason));
}

// GetQoSNetworkStatus 0x0027 and the network status indication
extern "C" int zovQMIQOSGetQoSNetworkStatusReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0027); }
extern "C" int zovQMIQOSGetQoSNetworkStatusResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* status) {
    return resp(msg, len, result, 0x0027, all(status), scalar(status));
}
extern "C" int zovQMIQOSNetworkStatusIND(const uint8_t* msg, int len, uint8_t* status) {
    return ind(msg, len, 0x0027, all(status), scalar(status));
}

// GetNWSupportedQoSProfiles 0x0028
extern "C" int zovQMIQOSGetNWSupportedQoSProfilesReq(uint8_t* buf, int bufsize) { return req(buf, bufsize, 0x0028); }
extern "C" int zovQMIQOSGetNWSupportedQoSProfilesReqAddExtendedTechnologyPreference(uint8_t* buf, int bufsize,
                                                                                   uint16_t preference) {
    return add(buf, bufsize, 0x10, w16(preference));
}
// Item 0x01: count, then count profile lists back to back (read only when
// the caller gives an array of records).
extern "C" int zovQMIQOSGetNWSupportedQoSProfilesResp(const uint8_t* msg, int len, QmiResult* result, uint8_t* count,
                                                      QoSProfileList* lists) {
    return resp(msg, len, result, 0x0028, all(count), [=](Dec& d) {
        const uint8_t n = d.u8(0);
        d.put(count, n);
        if (!lists) return;
        Dec::Record out = d.record(lists);
        size_t off = 1;
        for (uint8_t i = 0; i < n; ++i) off += profileList(d, off, out, i * sizeof(QoSProfileList));
    });
}
extern "C" int zovQMIQOSGetNWSupportedQoSProfilesRespGetExtendedErrorInfo(const uint8_t* msg, int len,
                                                                         uint16_t* error) {
    return get(msg, len, 0x0028, 0xE0, all(error), scalar(error));
}

// Primary QoS event indication 0x0029
extern "C" int zovQMIQOSPrimaryQoSEventIND(const uint8_t* msg, int len, uint16_t* event) {
    return ind(msg, len, 0x0029, all(event), scalar(event));
}
