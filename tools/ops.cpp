#include "ops.h"

#include <cstdio>
#include <cstring>
#include <memory>

namespace zovapp {

namespace {

uint16_t rd16(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint16_t(b[0] | b[1] << 8);
}
uint64_t rd64(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    uint64_t v = 0;
    for (int i = 7; i >= 0; --i) v = v << 8 | b[i];
    return v;
}
double asDouble(uint64_t bits) {
    double d;
    std::memcpy(&d, &bits, sizeof d);
    return d;
}

// A request that could not be built is a program error, reported like others.
int built(const char* what, int n) {
    if (n < 0) throw Error(std::string(what) + ": request could not be built (" + std::to_string(n) + ")");
    return n;
}

// A response parser's result: a failure result throws QmiError (also when the
// mandatory item is missing, as failures often omit it), any other negative
// code throws Error.
void checked(const std::string& what, int rc, const QmiResult& r) {
    if (rc >= 0 || rc == ZOVQMI_ERR_NO_MANDATORY) Session::check(what, r);
    Session::parsed(what, rc);
}

const uint8_t* bytesOf(const std::string& s) { return reinterpret_cast<const uint8_t*>(s.data()); }

using TextResp = int (*)(const uint8_t*, int, QmiResult*, uint16_t*, void*);
std::string text(Session& s, const char* what, int (*req)(uint8_t*, int), TextResp resp) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_DMS, buf, built(what, req(buf, sizeof buf)));
    QmiResult r;
    uint16_t len = 0;
    checked(what, resp(m.data(), m.len(), &r, &len, nullptr), r);
    std::string out(len, '\0');
    resp(m.data(), m.len(), &r, &len, &out[0]);
    return out;
}

using TextGet = int (*)(const uint8_t*, int, uint16_t*, void*);
std::string optionalText(const Message& m, TextGet get) {
    uint16_t len = 0;
    if (get(m.data(), m.len(), &len, nullptr) < 0) return "";
    std::string out(len, '\0');
    get(m.data(), m.len(), &len, &out[0]);
    return out;
}

}  // namespace

std::string hexBytes(const std::vector<uint8_t>& b) {
    std::string out;
    char h[4];
    for (uint8_t v : b) {
        std::snprintf(h, sizeof h, "%02X", v);
        out += h;
    }
    return out;
}

// ---------------------------------------------------------------- DMS --

Identity dmsIdentity(Session& s) {
    Identity id;
    id.manufacturer = text(s, "manufacturer", zovQMIDMSGetDeviceMfrReq, zovQMIDMSGetDeviceMfrResp);
    id.model = text(s, "model", zovQMIDMSGetDeviceModelIDReq, zovQMIDMSGetDeviceModelIDResp);
    id.revision = text(s, "revision", zovQMIDMSGetDeviceRevIDReq, zovQMIDMSGetDeviceRevIDResp);
    id.hardware = text(s, "hardware revision", zovQMIDMSGetDeviceHardwareRevReq, zovQMIDMSGetDeviceHardwareRevResp);
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_DMS, buf,
                          built("serial numbers", zovQMIDMSGetDeviceSerialNumbersReq(buf, sizeof buf)));
    QmiResult r;
    checked("serial numbers", zovQMIDMSGetDeviceSerialNumbersResp(m.data(), m.len(), &r), r);
    id.imei = optionalText(m, zovQMIDMSGetDeviceSerialNumbersRespGetIMEI);
    id.esn = optionalText(m, zovQMIDMSGetDeviceSerialNumbersRespGetESN);
    id.meid = optionalText(m, zovQMIDMSGetDeviceSerialNumbersRespGetMEID);
    return id;
}

std::string dmsMsisdn(Session& s) { return text(s, "MSISDN", zovQMIDMSGetMSISDNReq, zovQMIDMSGetMSISDNResp); }

static const char* const kModes[] = {"online",        "low-power",           "factory-test",
                                     "offline",       "reset",               "shutting-down",
                                     "persistent-low-power", "mode-only-low-power"};

const char* operatingModeName(uint8_t mode) { return mode < 8 ? kModes[mode] : "unknown"; }

int operatingModeByName(const std::string& name) {
    for (int i = 0; i < 8; ++i)
        if (name == kModes[i]) return i;
    char* end = nullptr;
    long v = std::strtol(name.c_str(), &end, 0);
    return !name.empty() && *end == 0 && v >= 0 && v <= 255 ? int(v) : -1;
}

uint8_t dmsOperatingMode(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_DMS, buf, built("operating mode", zovQMIDMSGetOperatingModeReq(buf, sizeof buf)));
    QmiResult r;
    uint8_t mode = 0;
    checked("operating mode", zovQMIDMSGetOperatingModeResp(m.data(), m.len(), &r, &mode), r);
    return mode;
}

void dmsSetOperatingMode(Session& s, uint8_t mode) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_DMS, buf,
                          built("set operating mode", zovQMIDMSSetOperatingModeReq(buf, sizeof buf, mode)));
    QmiResult r;
    checked("set operating mode", zovQMIDMSSetOperatingModeResp(m.data(), m.len(), &r), r);
}

void uimVerifyPin(Session& s, const std::string& pin, PinRetries* retries) {
    uint8_t buf[300];
    int n = zovQMIDMSUIMVerifyPINReq(buf, sizeof buf, 1, uint8_t(pin.size()), bytesOf(pin));
    Message m = s.request(ZOVQMI_SERVICE_DMS, buf, built("verify PIN", n));
    QmiResult r;
    int rc = zovQMIDMSUIMVerifyPINResp(m.data(), m.len(), &r);
    uint8_t v = 0, u = 0;
    bool have = zovQMIDMSUIMVerifyPINRespGetRetriesLeft(m.data(), m.len(), &v, &u) >= 0;
    if (retries && have) *retries = PinRetries{v, u};
    try {
        checked("verify PIN", rc, r);
    } catch (const QmiError& e) {
        if (!have) throw;
        throw QmiError(std::string("verify PIN (") + std::to_string(v) + " retries left, " + std::to_string(u) +
                           " unblock retries left)",
                       e.code);
    }
}

// ---------------------------------------------------------------- NAS --

const char* radioName(uint8_t radio) {
    switch (radio) {
    case 0: return "none";
    case 1: return "cdma-1x";
    case 2: return "cdma-evdo";
    case 3: return "amps";
    case 4: return "gsm";
    case 5: return "umts";
    case 8: return "lte";
    default: return "other";
    }
}

const char* registrationName(uint8_t state) {
    switch (state) {
    case 0: return "not registered";
    case 1: return "registered";
    case 2: return "searching";
    case 3: return "registration denied";
    default: return "unknown";
    }
}

Signal nasSignal(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_NAS, buf, built("signal strength", zovQMINASGetSignalStrengthReq(buf, sizeof buf)));
    QmiResult r;
    uint8_t strength = 0, radio = 0;
    checked("signal strength", zovQMINASGetSignalStrengthResp(m.data(), m.len(), &r, &strength, &radio), r);
    return Signal{int8_t(strength), radio};
}

Serving nasServing(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_NAS, buf, built("serving system", zovQMINASGetServingSystemReq(buf, sizeof buf)));
    QmiResult r;
    uint8_t radios[256];
    NASServingSystem ss;
    std::memset(&ss, 0, sizeof ss);
    ss.list = radios;
    checked("serving system", zovQMINASGetServingSystemResp(m.data(), m.len(), &r, &ss), r);
    Serving out{ss.state[0], ss.state[1], ss.state[2], ss.state[3],
                std::vector<uint8_t>(radios, radios + ss.listCount), false, Network{}, -1};
    NASNetworkRecord plmn;
    std::memset(&plmn, 0, sizeof plmn);
    char desc[256];
    plmn.description = reinterpret_cast<uint8_t*>(desc);
    if (zovQMINASGetServingSystemRespGetCurrentPLMN(m.data(), m.len(), &plmn) >= 0) {
        out.hasPlmn = true;
        out.plmn = Network{rd16(&plmn.firstCode), rd16(&plmn.secondCode), 0, std::string(desc, plmn.descriptionLength)};
    }
    uint8_t roaming = 0;
    if (zovQMINASGetServingSystemRespGetRoamingIndicatorValue(m.data(), m.len(), &roaming) >= 0) out.roaming = roaming;
    return out;
}

std::vector<Network> nasScan(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_NAS, buf, built("network scan", zovQMINASPerformNetworkScanReq(buf, sizeof buf)));
    QmiResult r;
    checked("network scan", zovQMINASPerformNetworkScanResp(m.data(), m.len(), &r), r);
    uint16_t count = 0;
    std::vector<Network> out;
    if (zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(m.data(), m.len(), &count, nullptr) < 0) return out;
    std::vector<NASNetworkRecord> recs(count);
    std::vector<std::vector<uint8_t>> descs(count, std::vector<uint8_t>(256));
    for (uint16_t i = 0; i < count; ++i) {
        std::memset(&recs[i], 0, sizeof recs[i]);
        recs[i].description = descs[i].data();
    }
    Session::parsed("network scan",
                    zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(m.data(), m.len(), &count, recs.data()));
    for (uint16_t i = 0; i < count; ++i)
        out.push_back(Network{rd16(&recs[i].firstCode), rd16(&recs[i].secondCode), recs[i].status,
                              std::string(descs[i].begin(), descs[i].begin() + recs[i].descriptionLength)});
    return out;
}

// ---------------------------------------------------------------- WDS --

std::string ipv4(uint32_t a) {
    return std::to_string(a >> 24) + "." + std::to_string(a >> 16 & 255) + "." + std::to_string(a >> 8 & 255) + "." +
           std::to_string(a & 255);
}

uint32_t wdsStart(Session& s, const StartArgs& a) {
    uint8_t buf[1024];
    const char* what = "start network";
    int n = built(what, zovQMIWDSStartNetworkInterfaceReq(buf, sizeof buf));
    if (!a.apn.empty())
        n = built(what, zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(buf, sizeof buf, uint16_t(a.apn.size()),
                                                                            bytesOf(a.apn)));
    if (a.auth >= 0)
        n = built(what, zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(buf, sizeof buf, uint8_t(a.auth)));
    if (!a.user.empty())
        n = built(what, zovQMIWDSStartNetworkInterfaceReqAddUsername(buf, sizeof buf, uint16_t(a.user.size()),
                                                                      bytesOf(a.user)));
    if (!a.password.empty())
        n = built(what, zovQMIWDSStartNetworkInterfaceReqAddPassword(buf, sizeof buf, uint16_t(a.password.size()),
                                                                      bytesOf(a.password)));
    if (a.profile >= 0)
        n = built(what, zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(buf, sizeof buf,
                                                                                             uint8_t(a.profile)));
    Message m = s.request(ZOVQMI_SERVICE_WDS, buf, n);
    QmiResult r;
    uint32_t handle = 0;
    int rc = zovQMIWDSStartNetworkInterfaceResp(m.data(), m.len(), &r, &handle);
    try {
        checked(what, rc, r);
    } catch (const QmiError& e) {
        uint16_t reason = 0, type = 0, verbose = 0;
        std::string more;
        if (zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(m.data(), m.len(), &reason) >= 0)
            more += "call end reason " + std::to_string(reason);
        if (zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(m.data(), m.len(), &type, &verbose) >= 0)
            more += ", verbose " + std::to_string(type) + "/" + std::to_string(verbose);
        if (more.empty()) throw;
        throw QmiError(std::string(what) + " (" + more + ")", e.code);
    }
    return handle;
}

uint8_t wdsAwaitStatus(Session& s, uint16_t* endReason) {
    Message m = s.indication(ZOVQMI_SERVICE_WDS, 0x0022);
    uint8_t status = 0, second = 0;
    Session::parsed("packet service status", zovQMIWDSPktSrvcStatusIND(m.data(), m.len(), &status, &second));
    if (endReason && zovQMIWDSPktSrvcStatusINDGetCallEndReason(m.data(), m.len(), endReason) < 0) *endReason = 0;
    return status;
}

void wdsStop(Session& s, uint32_t handle) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_WDS, buf,
                          built("stop network", zovQMIWDSStopNetworkInterfaceReq(buf, sizeof buf, handle)));
    QmiResult r;
    checked("stop network", zovQMIWDSStopNetworkInterfaceResp(m.data(), m.len(), &r), r);
}

namespace {
std::string profileText(const Message& m, uint16_t id,
                        int (*get)(const uint8_t*, int, uint16_t, uint16_t*, uint8_t*)) {
    uint16_t len = 0;
    if (get(m.data(), m.len(), id, &len, nullptr) < 0) return "";
    std::string out(len, '\0');
    get(m.data(), m.len(), id, &len, reinterpret_cast<uint8_t*>(&out[0]));
    return out;
}
}  // namespace

Runtime wdsRuntime(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_WDS, buf,
                          built("runtime settings", zovQMIWDSGetRuntimeSettingsReq(buf, sizeof buf)));
    QmiResult r;
    checked("runtime settings", zovQMIWDSGetRuntimeSettingsResp(m.data(), m.len(), &r), r);
    Runtime rt;
    const uint16_t id = 0x002D;
    rt.profileName = profileText(m, id, zovQMIWDSProfileRespGetProfileName);
    rt.apn = profileText(m, id, zovQMIWDSProfileRespGetAPNName);
    rt.user = profileText(m, id, zovQMIWDSProfileRespGetUsername);
    zovQMIWDSProfileRespGetIPv4AddressPreference(m.data(), m.len(), id, &rt.ipv4);
    zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(m.data(), m.len(), id, &rt.dns1);
    zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(m.data(), m.len(), id, &rt.dns2);
    zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(m.data(), m.len(), &rt.gateway);
    zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(m.data(), m.len(), &rt.mask);
    zovQMIWDSGetRuntimeSettingsRespGetMTU(m.data(), m.len(), &rt.mtu);
    uint8_t type = 0, index = 0;
    if (zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(m.data(), m.len(), &type, &index) >= 0)
        rt.profileIndex = index;
    return rt;
}

std::vector<ProfileInfo> wdsProfiles(Session& s) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_WDS, buf, built("profile list", zovQMIWDSGetProfileListReq(buf, sizeof buf)));
    QmiResult r;
    uint8_t count = 0;
    checked("profile list", zovQMIWDSGetProfileListResp(m.data(), m.len(), &r, &count, nullptr), r);
    std::vector<WDSProfileListEntry> list(count);
    std::vector<std::vector<uint8_t>> names(count, std::vector<uint8_t>(256));
    for (uint8_t i = 0; i < count; ++i) list[i].name = names[i].data();
    zovQMIWDSGetProfileListResp(m.data(), m.len(), &r, &count, list.data());
    std::vector<ProfileInfo> out;
    for (uint8_t i = 0; i < count; ++i) {
        ProfileInfo p{list[i].profileType, list[i].profileIndex,
                      std::string(names[i].begin(), names[i].begin() + list[i].nameLength), ""};
        Message ps = s.request(ZOVQMI_SERVICE_WDS, buf,
                               built("profile settings", zovQMIWDSGetProfileSettingsReq(buf, sizeof buf, p.type, p.index)));
        if (zovQMIWDSGetProfileSettingsResp(ps.data(), ps.len(), &r) >= 0 && rd16(&r) == 0)
            p.apn = profileText(ps, 0x002B, zovQMIWDSProfileRespGetAPNName);
        out.push_back(p);
    }
    return out;
}

uint8_t wdsCreateProfile(Session& s, const std::string& name, const std::string& apn) {
    uint8_t buf[1024];
    const char* what = "create profile";
    built(what, zovQMIWDSCreateProfileReq(buf, sizeof buf, 0));
    built(what, zovQMIWDSProfileReqAddProfileName(buf, sizeof buf, uint16_t(name.size()), bytesOf(name)));
    int n = built(what, zovQMIWDSProfileReqAddAPNName(buf, sizeof buf, uint16_t(apn.size()), bytesOf(apn)));
    Message m = s.request(ZOVQMI_SERVICE_WDS, buf, n);
    QmiResult r;
    uint8_t type = 0, index = 0;
    checked(what, zovQMIWDSCreateProfileResp(m.data(), m.len(), &r, &type, &index), r);
    return index;
}

// ---------------------------------------------------------------- WMS --

const char* tagName(uint8_t tag) {
    switch (tag) {
    case 0: return "read";
    case 1: return "not read";
    case 2: return "sent";
    case 3: return "not sent";
    default: return "unknown";
    }
}

int storeByName(const std::string& name) {
    if (name == "uim" || name == "0") return 0;
    if (name == "nv" || name == "1") return 1;
    return -1;
}

std::vector<SmsEntry> wmsList(Session& s, uint8_t store) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_WMS, buf, built("list messages", zovQMIWMSListMessagesReq(buf, sizeof buf, store)));
    QmiResult r;
    uint32_t count = 0;
    checked("list messages", zovQMIWMSListMessagesResp(m.data(), m.len(), &r, &count, nullptr, nullptr), r);
    if (count > uint32_t(m.len())) throw Error("list messages: count larger than the message");
    std::vector<uint32_t> idx(count);
    std::vector<uint8_t> tags(count);
    zovQMIWMSListMessagesResp(m.data(), m.len(), &r, &count, idx.data(), tags.data());
    std::vector<SmsEntry> out;
    for (uint32_t i = 0; i < count; ++i) out.push_back(SmsEntry{idx[i], tags[i]});
    return out;
}

Sms wmsRead(Session& s, uint8_t store, uint32_t index) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_WMS, buf, built("read message", zovQMIWMSRawReadReq(buf, sizeof buf, store, index)));
    QmiResult r;
    std::vector<uint8_t> rec(10 + 65536);
    WMSRawMessage* raw = reinterpret_cast<WMSRawMessage*>(rec.data());
    checked("read message", zovQMIWMSRawReadResp(m.data(), m.len(), &r, raw), r);
    uint16_t len = rd16(rec.data() + 8);
    return Sms{rec[6], rec[7], std::vector<uint8_t>(rec.begin() + 10, rec.begin() + 10 + len)};
}

uint32_t wmsWrite(Session& s, uint8_t store, const std::vector<uint8_t>& pdu) {
    std::vector<uint8_t> rec(10 + pdu.size());
    rec[5] = store;
    rec[7] = 6;  // GSM/WCDMA point-to-point
    rec[8] = uint8_t(pdu.size());
    rec[9] = uint8_t(pdu.size() >> 8);
    std::copy(pdu.begin(), pdu.end(), rec.begin() + 10);
    std::vector<uint8_t> buf(pdu.size() + 64);
    int n = zovQMIWMSRawWriteReq(buf.data(), int(buf.size()), reinterpret_cast<const WMSRawMessage*>(rec.data()));
    Message m = s.request(ZOVQMI_SERVICE_WMS, buf.data(), built("write message", n));
    QmiResult r;
    uint32_t index = 0;
    checked("write message", zovQMIWMSRawWriteResp(m.data(), m.len(), &r, &index), r);
    return index;
}

std::vector<uint8_t> submitPdu(const std::string& to, const std::string& text) {
    std::vector<uint8_t> p = {0x00, 0x01, 0x00, uint8_t(to.size()), 0x91};
    for (size_t i = 0; i < to.size(); i += 2) {
        uint8_t lo = uint8_t(to[i] - '0'), hi = i + 1 < to.size() ? uint8_t(to[i + 1] - '0') : 0x0F;
        p.push_back(uint8_t(hi << 4 | lo));
    }
    p.push_back(0x00);
    p.push_back(0x00);
    p.push_back(uint8_t(text.size()));
    uint32_t acc = 0;
    int bits = 0;
    for (char c : text) {
        acc |= uint32_t(c & 0x7F) << bits;
        for (bits += 7; bits >= 8; bits -= 8, acc >>= 8) p.push_back(uint8_t(acc));
    }
    if (bits > 0) p.push_back(uint8_t(acc));
    return p;
}

std::string pduText(const std::vector<uint8_t>& pdu, std::string* address) {
    size_t i = 0;
    auto at = [&](size_t k) -> int { return k < pdu.size() ? pdu[k] : -1; };
    if (at(0) < 0) return "";
    i = 1 + size_t(at(0));  // service centre
    int first = at(i++);
    if (first < 0) return "";
    bool submit = (first & 3) == 1;
    if (submit) ++i;  // message reference
    int digits = at(i++);
    int toa = at(i++);
    if (digits < 0 || toa < 0) return "";
    std::string number;
    for (int d = 0; d < digits; ++d) {
        int b = at(i + size_t(d / 2));
        if (b < 0) return "";
        int v = d % 2 ? b >> 4 : b & 15;
        if (v < 10) number += char('0' + v);
    }
    i += size_t(digits + 1) / 2;
    int dcs = at(i + 1);
    i += 2;
    if (submit) {
        if (first & 0x10) ++i;  // relative validity period
    } else {
        i += 7;  // time stamp
    }
    int udl = at(i++);
    if (dcs != 0 || udl < 0) return "";
    std::string out;
    uint32_t acc = 0;
    int bits = 0;
    while (int(out.size()) < udl) {
        if (bits < 7) {
            int b = at(i++);
            if (b < 0) break;
            acc |= uint32_t(b) << bits;
            bits += 8;
        }
        out += char(acc & 0x7F);
        acc >>= 7;
        bits -= 7;
    }
    if (address) *address = (toa == 0x91 ? "+" : "") + number;
    return out;
}

// ---------------------------------------------------------------- PBM --

std::vector<PbEntry> pbmRead(Session& s, uint16_t phonebook, uint16_t first, uint16_t last) {
    uint8_t buf[64];
    Message m = s.request(ZOVQMI_SERVICE_PBM, buf,
                          built("read records", zovQMIPBMReadRecordsReq(buf, sizeof buf, 0, phonebook, first, last)));
    QmiResult r;
    checked("read records", zovQMIPBMReadRecordsResp(m.data(), m.len(), &r), r);
    uint16_t count = 0;
    zovQMIPBMReadRecordsRespGetNumberOfRecords(m.data(), m.len(), &count);
    std::vector<PbEntry> out;
    std::unique_ptr<PBMRecordSet> set(new PBMRecordSet());
    while (out.size() < count) {
        Message ind = s.indication(ZOVQMI_SERVICE_PBM, 0x0004);
        Session::parsed("record read indication", zovQMIPBMRecordReadIND(ind.data(), ind.len(), set.get()));
        for (uint8_t i = 0; i < set->recordCount && i < 10; ++i) {
            const PBMNumberSlot& num = set->numbers[i][0];
            const PBMTextSlot& name = set->name[i];
            out.push_back(PbEntry{rd16(set->recordId[i]),
                                  std::string(reinterpret_cast<const char*>(num.number), num.length < 40 ? num.length : 40),
                                  std::string(reinterpret_cast<const char*>(name.text), name.length < 242 ? name.length : 242)});
        }
        if (set->recordCount == 0) break;
    }
    return out;
}

// ---------------------------------------------------------------- PDS --

Fix pdsSingleFix(Session& s) {
    uint8_t buf[128];
    const char* what = "position event report";
    built(what, zovQMIPDSSetEventReportReq(buf, sizeof buf));
    built(what, zovQMIPDSSetEventReportReqAddPositionDataNMEA(buf, sizeof buf, 1));
    int n = built(what, zovQMIPDSSetEventReportReqAddParsedPositionData(buf, sizeof buf, 1));
    Message m = s.request(ZOVQMI_SERVICE_PDS, buf, n);
    QmiResult r;
    checked(what, zovQMIPDSSetEventReportResp(m.data(), m.len(), &r), r);

    what = "single position fix";
    built(what, zovQMIPDSDetermineSinglePositionReq(buf, sizeof buf));
    n = built(what, zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(buf, sizeof buf, 30));
    m = s.request(ZOVQMI_SERVICE_PDS, buf, n);
    checked(what, zovQMIPDSDetermineSinglePositionResp(m.data(), m.len(), &r), r);

    Fix fix;
    while (!fix.hasPosition) {
        Message ind = s.indication(ZOVQMI_SERVICE_PDS, 0x0001, 30000);
        uint16_t len = 0;
        if (zovQMIPDSEventReportINDGetPositionDataNMEA(ind.data(), ind.len(), &len, nullptr) >= 0) {
            std::string sentence(len, '\0');
            zovQMIPDSEventReportINDGetPositionDataNMEA(ind.data(), ind.len(), &len, &sentence[0]);
            while (!sentence.empty() && (sentence.back() == '\n' || sentence.back() == '\r')) sentence.pop_back();
            fix.nmea.push_back(sentence);
        }
        uint8_t status = 0;
        if (zovQMIPDSEventReportINDGetPositionSessionStatus(ind.data(), ind.len(), &status) >= 0) {
            fix.sessionStatus = status;
            if (status != 0) throw Error("single position fix: session ended with status " + std::to_string(status));
        }
        ParsedPositionData p;
        if (zovQMIPDSEventReportINDGetParsedPositionData(ind.data(), ind.len(), &p) >= 0) {
            fix.hasPosition = true;
            fix.latitude = asDouble(rd64(&p.latitude));
            fix.longitude = asDouble(rd64(&p.longitude));
            const uint8_t* b = reinterpret_cast<const uint8_t*>(&p.altitudeFromSeaLevel);
            fix.altitude = int32_t(uint32_t(b[0] | b[1] << 8 | b[2] << 16 | uint32_t(b[3]) << 24));
            fix.year = rd16(&p.year);
            fix.month = p.month;
            fix.day = p.dayOfMonth;
            fix.hour = p.hour;
            fix.minute = p.minute;
            fix.second = p.second;
        }
    }
    return fix;
}

}  // namespace zovapp
