// Fixtures and operations of the benchmarks (see scenarios.h).  Received
// messages are composed once, byte by byte, in little-endian order; every
// operation then only calls the library.
#include "scenarios.h"

#include <zovqmi.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

namespace zb {
namespace {

using Bytes = std::vector<uint8_t>;

Bytes cat(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}
Bytes le16(uint16_t v) { return {uint8_t(v), uint8_t(v >> 8)}; }
Bytes le32(uint32_t v) { return {uint8_t(v), uint8_t(v >> 8), uint8_t(v >> 16), uint8_t(v >> 24)}; }
Bytes str(const std::string& s) { return Bytes(s.begin(), s.end()); }
Bytes fill(size_t n, uint8_t v) { return Bytes(n, v); }
Bytes tlv(uint8_t type, const Bytes& value) { return cat({{type}, le16(uint16_t(value.size())), value}); }
Bytes result() { return tlv(0x02, cat({le16(0), le16(0)})); }
Bytes svc(uint16_t id, std::initializer_list<Bytes> items, uint8_t flags = 0x02) {
    Bytes area = cat(items);
    return cat({{flags}, le16(0x1234), le16(id), le16(uint16_t(area.size())), area});
}
Bytes ctl(uint16_t id, std::initializer_list<Bytes> items) {
    Bytes area = cat(items);
    return cat({{0x01, 0x12}, le16(id), le16(uint16_t(area.size())), area});
}

// Received messages.
Bytes gServing, gRuntime, gRuntimeShort, gPbm, gQosError, gRawRead, gCtl, gDms, gPds, gWdsStart;

// Output space shared by the parsers.
uint8_t gBuf[2048];
uint8_t gScratch[512];
PBMRecordSet gSet;
FlowSpecification gFlows[4];
FilterSpecification gFilters[4];
QmiResult gResult;

inline int len(const Bytes& b) { return int(b.size()); }
// Sum of the parsers' results so that none can be discarded.
int check(int r) {
    if (r < 0) {
        std::fprintf(stderr, "libzovqmi bench: a fixture was refused (%d)\n", r);
        std::abort();
    }
    return r;
}

// ------------------------------------------------------------------- WDS --

int wdsStartNetworkBuild() {
    static const char apn[] = "internet.example.net";
    static const char user[] = "subscriber@example.net";
    static const char pass[] = "correct horse battery";
    int n = zovQMIWDSStartNetworkInterfaceReq(gBuf, sizeof gBuf);
    n = zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(gBuf, sizeof gBuf, sizeof apn - 1,
                                                            reinterpret_cast<const uint8_t*>(apn));
    n = zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(gBuf, sizeof gBuf, 0x03);
    n = zovQMIWDSStartNetworkInterfaceReqAddUsername(gBuf, sizeof gBuf, sizeof user - 1,
                                                     reinterpret_cast<const uint8_t*>(user));
    n = zovQMIWDSStartNetworkInterfaceReqAddPassword(gBuf, sizeof gBuf, sizeof pass - 1,
                                                     reinterpret_cast<const uint8_t*>(pass));
    n = zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(gBuf, sizeof gBuf, 4);
    return check(n);
}

int wdsStartNetworkParse() {
    uint32_t handle;
    uint16_t reason;
    check(zovQMIWDSStartNetworkInterfaceResp(gWdsStart.data(), len(gWdsStart), &gResult, &handle));
    zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(gWdsStart.data(), len(gWdsStart), &reason);
    return len(gWdsStart);
}

int wdsRuntimeSettingsParse() {
    const uint8_t* m = gRuntime.data();
    const int n = len(gRuntime);
    const uint16_t id = 0x002D;
    uint8_t b1, b2, b3;
    uint16_t w;
    uint32_t v, list[4];
    WDSNameListEntry names[3];
    for (int i = 0; i < 3; ++i) names[i].name = gScratch + 64 * i;
    check(zovQMIWDSGetRuntimeSettingsResp(m, n, &gResult));
    check(zovQMIWDSProfileRespGetProfileName(m, n, id, &w, gScratch + 200));
    check(zovQMIWDSProfileRespGetPDPType(m, n, id, &b1));
    check(zovQMIWDSProfileRespGetAPNName(m, n, id, &w, gScratch + 200));
    check(zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSProfileRespGetUsername(m, n, id, &w, gScratch + 200));
    check(zovQMIWDSProfileRespGetAuthenticationPreference(m, n, id, &b1));
    check(zovQMIWDSProfileRespGetIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(m, n, &b1, &b2));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetPCSCFAddressUsingPCOFlag(m, n, &b1));
    check(zovQMIWDSGetRuntimeSettingsRespGetPCSCFIPv4ServerAddressList(m, n, &b1, list));
    check(zovQMIWDSGetRuntimeSettingsRespGetPCSCFFQDNList(m, n, &b1, names));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(m, n, gScratch + 300, &b3));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress(m, n, gScratch + 320, &b3));
    check(zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(m, n, gScratch + 340));
    check(zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(m, n, gScratch + 360));
    check(zovQMIWDSGetRuntimeSettingsRespGetMTU(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetDomainNameList(m, n, &b1, names));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPfamily(m, n, &b1));
    check(zovQMIWDSGetRuntimeSettingsRespGetIMCNFlag(m, n, &b1));
    check(zovQMIWDSGetRuntimeSettingsRespGetTechnologyName(m, n, &w));
    return n;
}

// The two fixed figures of the footprint work: nine separate reads of a
// short GetRuntimeSettings response (each call finds its message and item
// again), and a connect request with APN, user name and password built and
// its response parsed.
int wdsRuntimeNineItems() {
    const uint8_t* m = gRuntimeShort.data();
    const int n = len(gRuntimeShort);
    const uint16_t id = 0x002D;
    uint8_t family;
    uint16_t w;
    uint32_t v;
    check(zovQMIWDSGetRuntimeSettingsResp(m, n, &gResult));
    check(zovQMIWDSProfileRespGetAPNName(m, n, id, &w, gScratch));
    check(zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSProfileRespGetIPv4AddressPreference(m, n, id, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetMTU(m, n, &v));
    check(zovQMIWDSGetRuntimeSettingsRespGetIPfamily(m, n, &family));
    return n;
}

int wdsStartNetworkConnect() {
    static const char apn[] = "internet.example.net";
    static const char user[] = "subscriber@example.net";
    static const char pass[] = "correct horse battery";
    uint32_t handle;
    zovQMIWDSStartNetworkInterfaceReq(gBuf, sizeof gBuf);
    zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(gBuf, sizeof gBuf, sizeof apn - 1,
                                                       reinterpret_cast<const uint8_t*>(apn));
    zovQMIWDSStartNetworkInterfaceReqAddUsername(gBuf, sizeof gBuf, sizeof user - 1,
                                                 reinterpret_cast<const uint8_t*>(user));
    int n = check(zovQMIWDSStartNetworkInterfaceReqAddPassword(gBuf, sizeof gBuf, sizeof pass - 1,
                                                               reinterpret_cast<const uint8_t*>(pass)));
    check(zovQMIWDSStartNetworkInterfaceResp(gWdsStart.data(), len(gWdsStart), &gResult, &handle));
    return n + len(gWdsStart);
}

// ------------------------------------------------------------------- NAS --

int nasServingSystemParse() {
    const uint8_t* m = gServing.data();
    const int n = len(gServing);
    NASServingSystem ss;
    ss.list = gScratch;
    NASNetworkRecord plmn;
    plmn.description = gScratch + 32;
    uint8_t b1, b2, b3, list1[8], list2[8];
    uint16_t w1, w2;
    uint32_t lat, lon;
    check(zovQMINASGetServingSystemResp(m, n, &gResult, &ss));
    check(zovQMINASGetServingSystemRespGetRoamingIndicatorValue(m, n, &b1));
    check(zovQMINASGetServingSystemRespGetDataServiceCapabilityList(m, n, &b1, list1));
    check(zovQMINASGetServingSystemRespGetCurrentPLMN(m, n, &plmn));
    check(zovQMINASGetServingSystemRespGetCDMASystemID(m, n, &w1, &w2));
    check(zovQMINASGetServingSystemRespGetCDMABaseStationInformation(m, n, &w1, &lat, &lon));
    check(zovQMINASGetServingSystemRespGetRoamingIndicatorList(m, n, &b1, list1, list2));
    check(zovQMINASGetServingSystemRespGetDefaultRoamingIndicator(m, n, &b1));
    check(zovQMINASGetServingSystemRespGet3GPP2TimeZone(m, n, &b1, &b2, &b3));
    check(zovQMINASGetServingSystemRespGetCDMAPRevInUse(m, n, &b1));
    return n;
}

// ------------------------------------------------------------------- PBM --

int pbmRecordReadParse() {
    const uint8_t* m = gPbm.data();
    const int n = len(gPbm);
    check(zovQMIPBMRecordReadIND(m, n, &gSet));
    check(zovQMIPBMRecordReadINDGetArrayofSecondNameInformation(m, n, &gSet));
    check(zovQMIPBMRecordReadINDGetArrayofAdditionalNumberInformation(m, n, &gSet));
    check(zovQMIPBMRecordReadINDGetArrayofGroupIDInformation(m, n, &gSet));
    check(zovQMIPBMRecordReadINDGetArrayofEmailInformation(m, n, &gSet));
    check(zovQMIPBMRecordReadINDGetArrayofHiddenInformation(m, n, &gSet));
    return n;
}

// ------------------------------------------------------------------- QOS --

FlowSpecification fullFlow(uint8_t type) {
    FlowSpecification f;
    std::memset(&f, 0, sizeof f);
    f.type = type;
    f.present10 = 1, f.value10 = 0x01;
    f.present1B = 1, f.value1B = 0x0102;
    f.present11 = 1, f.value11 = 0x02;
    f.present12 = 1, f.value12First = 64000, f.value12Second = 128000;
    f.present13 = 1, f.value13First = 1, f.value13Second = 2, f.value13Third = 3;
    f.present14 = 1, f.value14 = 100;
    f.present15 = 1, f.value15 = 1000;
    f.present16 = 1, f.value16First = 1, f.value16Second = 6;
    f.present17 = 1, f.value17 = 1500;
    f.present18 = 1, f.value18 = 40;
    f.present19 = 1, f.value19 = 1;
    f.present1A = 1, f.value1A = 2;
    f.present1C = 1, f.value1C = 3;
    f.present1D = 1, f.value1D = 4;
    f.present1E = 1, f.value1E = 5;
    return f;
}
FilterSpecification fullFilter(uint8_t type) {
    FilterSpecification f;
    std::memset(&f, 0, sizeof f);
    f.type = type;
    f.present10 = 1, f.value10 = 4;
    f.present11 = 1, f.value11 = 6;
    f.present12 = 1, f.value12First = 0xC0A80001, f.value12Second = 0xFFFFFF00;
    f.present13 = 1, f.value13First = 0x0A000001, f.value13Second = 0xFF000000;
    f.present14 = 1, f.value14 = 0x06;
    f.present15 = 1, f.value15Byte0 = 0x15, f.value15Byte1 = 0x51;
    f.present16 = 1;
    for (int i = 0; i < 16; ++i) f.value16[i] = uint8_t(0x60 + i);
    f.value16Last = 64;
    f.present17 = 1;
    for (int i = 0; i < 16; ++i) f.value17[i] = uint8_t(0x70 + i);
    f.value17Last = 64;
    f.present19 = 1, f.value19Byte0 = 0x19, f.value19Byte1 = 0x91;
    f.present1A = 1, f.value1A = 0x1A00001A;
    f.present1B = 1, f.value1BFirst = 5000, f.value1BSecond = 5010;
    f.present1C = 1, f.value1CFirst = 80, f.value1CSecond = 80;
    f.present1D = 1, f.value1DFirst = 443, f.value1DSecond = 443;
    f.present1E = 1, f.value1EFirst = 1, f.value1ESecond = 2;
    f.present21 = 1, f.value21 = 0x21000021;
    return f;
}
FlowSpecification gReqFlows[2];
FilterSpecification gReqFilters[2];

int qosRequestBuild() {
    QoSSpec qosSpec;
    qosSpec.flowCount = 2;
    qosSpec.filterCount = 2;
    qosSpec.flows = gReqFlows;
    qosSpec.filters = gReqFilters;
    zovQMIQOSRequestQoSReq(gBuf, sizeof gBuf);
    check(zovQMIQOSRequestQoSReqAddQoSSpec(gBuf, sizeof gBuf, 1, &qosSpec));
    return check(zovQMIQOSRequestQoSReqAddQoSRequestOpcode(gBuf, sizeof gBuf, 1));
}

int qosSpecErrorParse() {
    QoSSpec qosSpec;
    qosSpec.flowCount = 0;
    qosSpec.filterCount = 0;
    qosSpec.flows = gFlows;
    qosSpec.filters = gFilters;
    uint8_t count, index;
    uint32_t ids[4];
    check(zovQMIQOSRequestQoSResp(gQosError.data(), len(gQosError), &gResult, &count, ids));
    check(zovQMIQOSRequestQoSRespGetQoSSpecError(gQosError.data(), len(gQosError), &index, &qosSpec));
    return len(gQosError);
}

// ------------------------------------------------------------------- WMS --

alignas(4) uint8_t gSms[sizeof(WMSRawMessage) + 160];
alignas(4) uint8_t gSmsIn[sizeof(WMSRawMessage) + 256];

int wmsRawSendBuild() {
    return check(zovQMIWMSRawSendReq(gBuf, sizeof gBuf, reinterpret_cast<const WMSRawMessage*>(gSms)));
}

int wmsRawReadParse() {
    check(zovQMIWMSRawReadResp(gRawRead.data(), len(gRawRead), &gResult, reinterpret_cast<WMSRawMessage*>(gSmsIn)));
    return len(gRawRead);
}

// -------------------------------------------------------- framing, misc --

int txidNext() { return zovQMIMSMGetNextTransactionID() & 0; }

int tlvLookup() {
    // The serving-system response: locate the message, then its last item.
    uint16_t area, vlen;
    const uint8_t* a = zovQMIMSMGetMessage(gServing.data(), len(gServing), 0x0024, &area);
    if (!a || !zovQMIMSMGetTLV(a, area, 0x18, &vlen)) check(-1);
    return len(gServing);
}

int ctlClientIdBuild() { return check(zovQMICTLGetClientIDReq(gBuf, sizeof gBuf, ZOVQMI_SERVICE_WDS)); }
int ctlClientIdParse() {
    uint8_t service, client;
    check(zovQMICTLGetClientIDResp(gCtl.data(), len(gCtl), &gResult, &service, &client));
    return len(gCtl);
}
int dmsMfrBuild() { return check(zovQMIDMSGetDeviceMfrReq(gBuf, sizeof gBuf)); }
int dmsMfrParse() {
    uint16_t n;
    check(zovQMIDMSGetDeviceMfrResp(gDms.data(), len(gDms), &gResult, &n, gScratch));
    return len(gDms);
}
int pdsServiceStateBuild() { return check(zovQMIPDSSetGPSServiceStateReq(gBuf, sizeof gBuf, 1)); }
int pdsServiceStateParse() {
    uint8_t enabled, tracking;
    check(zovQMIPDSGetGPSServiceStateResp(gPds.data(), len(gPds), &gResult, &enabled, &tracking));
    return len(gPds);
}

}  // namespace

void setupScenarios() {
    // WDS: StartNetworkInterface response with a packet data handle.
    gWdsStart = svc(0x0020, {result(), tlv(0x01, le32(0x12345678))});
    // WDS: GetRuntimeSettings with profile items and every runtime item.
    Bytes ipv6 = fill(16, 0x20);
    gRuntime = svc(0x002D, {
        result(), tlv(0x10, str("default")), tlv(0x11, {0x00}), tlv(0x14, str("internet.example.net")),
        tlv(0x15, le32(0x08080808)), tlv(0x16, le32(0x08080404)), tlv(0x1B, str("subscriber")),
        tlv(0x1D, {0x03}), tlv(0x1E, le32(0x0A000002)), tlv(0x1F, {0x00, 0x01}), tlv(0x20, le32(0x0A000001)),
        tlv(0x21, le32(0xFFFFFF00)), tlv(0x22, {0x01}),
        tlv(0x23, cat({{0x02}, le32(0x0A000005), le32(0x0A000006)})),
        tlv(0x24, cat({{0x02}, le16(12), str("pcscf1.ims.a"), le16(12), str("pcscf2.ims.a")})),
        tlv(0x25, cat({ipv6, {64}})), tlv(0x26, cat({ipv6, {64}})), tlv(0x27, ipv6), tlv(0x28, ipv6),
        tlv(0x29, le32(1500)), tlv(0x2A, cat({{0x02}, le16(11), str("example.net"), le16(11), str("example.org")})),
        tlv(0x2B, {0x04}), tlv(0x2C, {0x00}), tlv(0x2D, le16(0x8004))});
    // WDS: a short GetRuntimeSettings response, items in type order: APN,
    // both IPv4 DNS addresses, IPv4 address, gateway, subnet mask, MTU, IP family.
    gRuntimeShort = svc(0x002D, {
        result(), tlv(0x14, str("internet")), tlv(0x15, le32(0x08080808)), tlv(0x16, le32(0x08080404)),
        tlv(0x1E, le32(0x0A000002)), tlv(0x20, le32(0x0A000001)), tlv(0x21, le32(0xFFFFFF00)),
        tlv(0x29, le32(1500)), tlv(0x2B, {0x04})});
    // NAS: GetServingSystem with every optional item.
    gServing = svc(0x0024, {
        result(), tlv(0x01, {0x01, 0x01, 0x01, 0x01, 0x02, 0x08, 0x09}), tlv(0x10, {0x01}),
        tlv(0x11, {0x03, 0x05, 0x08, 0x09}), tlv(0x12, cat({le16(262), le16(1), {0x08}, str("Operator")})),
        tlv(0x13, cat({le16(0x1122), le16(0x3344)})), tlv(0x14, cat({le16(0x55), le32(0x01020304), le32(0x05060708)})),
        tlv(0x15, {0x02, 0x01, 0x02, 0x03, 0x04}), tlv(0x16, {0x02}), tlv(0x17, {0x0F, 0x10, 0x01}),
        tlv(0x18, {0x06})});
    // PBM: RecordRead indication of 10 records with every optional array.
    {
        Bytes basic = {0x01, 0x00, 0x01, 0x01, 0x00, 10};
        Bytes names = {10}, numbers = {10}, groups = {10}, emails = {10}, hidden = {10};
        for (uint8_t i = 0; i < 10; ++i) {
            Bytes id = le16(uint16_t(i + 1));
            Bytes number = cat({{0x01, 0x02, 12}, str("+49301234567")});
            basic = cat({basic, id, number, {14}, str("Contact name ") , {uint8_t('0' + i)}});
            names = cat({names, id, {11}, str("Second name")});
            numbers = cat({numbers, id, {3}, number, {0x00}, number, {0x00}, number, {0x00}});
            groups = cat({groups, id, {3, 1, 2, 3}});
            emails = cat({emails, id, {2, 20}, str("first@example.net..."), {20}, str("other@example.org...")});
            hidden = cat({hidden, id, {uint8_t(i & 1)}});
        }
        gPbm = svc(0x0004, {tlv(0x01, basic), tlv(0x10, names), tlv(0x11, numbers), tlv(0x12, groups),
                            tlv(0x13, emails), tlv(0x14, hidden)}, 0x04);
    }
    // QOS: two flows and two filters for the request, and an error list
    // naming both flows and both filters with all their parameters.
    gReqFlows[0] = fullFlow(0x11), gReqFlows[1] = fullFlow(0x12);
    gReqFilters[0] = fullFilter(0x13), gReqFilters[1] = fullFilter(0x14);
    {
        // The library's own encoding of one flow and one filter: item 0x10
        // of the QoS item 0x10, whose flow and filter items carry the parameters.
        QoSSpec one;
        one.flowCount = 1, one.filterCount = 1, one.flows = gReqFlows, one.filters = gReqFilters;
        uint8_t b[1024];
        int n = zovQMIQOSRequestQoSReq(b, sizeof b);
        n = check(zovQMIQOSRequestQoSReqAddQoSSpec(b, sizeof b, 0, &one));
        // Request: header 7, item 0x10 header 3, its index item 4, then the
        // flow item 0x11 {0x10 {params}} and the filter item 0x13 {0x10 {params}}.
        Bytes qosSpec(b + 7 + 3, b + n);
        size_t off = 4;  // behind the index item
        auto item = [&](size_t at) { return size_t(qosSpec[at + 1] | qosSpec[at + 2] << 8); };
        size_t flowLen = item(off);
        Bytes flowParams(qosSpec.begin() + long(off + 6), qosSpec.begin() + long(off + 3 + flowLen));
        off += 3 + flowLen;
        size_t filterLen = item(off);
        Bytes filterParams(qosSpec.begin() + long(off + 6), qosSpec.begin() + long(off + 3 + filterLen));
        auto entry = [](uint8_t type, uint8_t index, const Bytes& params) {
            return tlv(type, tlv(0x10, cat({tlv(0x10, {index}), tlv(0x11, params)})));
        };
        gQosError = svc(0x0020, {result(), tlv(0x01, cat({{0x01}, le32(0x00000101)})),
                                 tlv(0x10, cat({tlv(0x10, {0x01}), entry(0x11, 0, flowParams),
                                                entry(0x12, 1, flowParams), entry(0x13, 0, filterParams),
                                                entry(0x14, 1, filterParams)}))});
    }
    // WMS: a 140-byte PDU to send, and a raw read of one.
    {
        WMSRawMessage* m = reinterpret_cast<WMSRawMessage*>(gSms);
        m->messageFormat = 0x06;
        m->length = 140;
        for (int i = 0; i < 140; ++i) m->data[i] = uint8_t(i);
        gRawRead = svc(0x0022, {result(), tlv(0x01, cat({{0x01, 0x06}, le16(140), fill(140, 0x5A)}))});
    }
    gCtl = ctl(0x0022, {result(), tlv(0x01, {0x01, 0x07})});
    gDms = svc(0x0021, {result(), tlv(0x01, str("Example Modems Inc."))});
    gPds = svc(0x20, {result(), tlv(0x01, {0x01, 0x00})});
}

const Scenario kScenarios[kScenarioCount] = {
    {"WDS/StartNetworkInterface/build", wdsStartNetworkBuild},
    {"WDS/StartNetworkInterface/parse", wdsStartNetworkParse},
    {"WDS/GetRuntimeSettings/parse_all", wdsRuntimeSettingsParse},
    {"NAS/GetServingSystem/parse_all", nasServingSystemParse},
    {"PBM/RecordRead_10/parse_all", pbmRecordReadParse},
    {"QOS/RequestQoS_2flows_2filters/build", qosRequestBuild},
    {"QOS/RequestQoS/parse_error_list", qosSpecErrorParse},
    {"WMS/RawSend_140/build", wmsRawSendBuild},
    {"WMS/RawRead_140/parse", wmsRawReadParse},
    {"MSM/NextTransactionID", txidNext},
    {"MSM/GetMessage+GetTLV", tlvLookup},
    {"CTL/GetClientID/build", ctlClientIdBuild},
    {"CTL/GetClientID/parse", ctlClientIdParse},
    {"DMS/GetDeviceMfr/build", dmsMfrBuild},
    {"DMS/GetDeviceMfr/parse", dmsMfrParse},
    {"PDS/SetGPSServiceState/build", pdsServiceStateBuild},
    {"PDS/GetGPSServiceState/parse", pdsServiceStateParse},
    {"WDS/GetRuntimeSettings/read_9_items", wdsRuntimeNineItems},
    {"WDS/StartNetworkInterface/connect_build+parse", wdsStartNetworkConnect},
};
static_assert(sizeof kScenarios / sizeof kScenarios[0] == kScenarioCount, "kScenarioCount");

}  // namespace zb
