// The actions of zovqmi-cli: each checks its arguments (before the device
// is opened) and then runs one exchange, or a few, on the session.  Every
// count and length an answer carries is checked against the answer's own
// size and the buffer it goes to before anything is copied: a malformed
// answer is reported ("unexpected answer"), never trusted.
#include <arpa/inet.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

#include "cli.h"
#include "pdu.h"

namespace zovapp {

namespace {

// The answer being decoded (one at a time) and the request being built.
Message gM;
uint8_t gReq[kMaxMessage];

uint16_t le16(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint16_t(b[0] | b[1] << 8);
}
uint32_t le32(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint32_t(b[0]) | uint32_t(b[1]) << 8 | uint32_t(b[2]) << 16 | uint32_t(b[3]) << 24;
}
uint64_t le64(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint64_t(le32(b)) | uint64_t(le32(b + 4)) << 32;
}

// The TLV area of the answer in gM (for sizes checked before a copy).
int areaLen() { return gM.len > 7 ? gM.len - 7 : 0; }

int bad(Cli& c, const char* what, const char* why) {
    return c.s.fail(kBadAnswer, "%s: unexpected answer (%s)", what, why);
}

// One request on `service` answered into gM and checked with the parser's
// return code and result record.
#define CHECKED(what, parse) c.s.check(what, (parse), r)

// --- names ------------------------------------------------------------------

const char* const kModes[] = {"online", "low-power", "factory-test", "offline", "reset", "shutting-down",
                              "persistent-low-power", "mode-only-low-power"};
const char* modeName(uint8_t m) { return m < 8 ? kModes[m] : "unknown"; }

const char* radioName(uint8_t radio) {
    switch (radio) {
    case 0: return "none";
    case 1: return "cdma-1x";
    case 2: return "cdma-evdo";
    case 3: return "amps";
    case 4: return "gsm";
    case 5: return "umts";
    case 8: return "lte";
    case 9: return "td-scdma";
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

const char* pinStatusName(uint8_t s) {
    static const char* const names[] = {"not-initialised", "enabled-not-verified", "enabled-verified", "disabled",
                                        "blocked", "permanently-blocked", "unblocked", "changed"};
    return s < 8 ? names[s] : "unknown";
}

const char* tagName(uint8_t tag) {
    static const char* const names[] = {"read", "not read", "sent", "not sent"};
    return tag < 4 ? names[tag] : "unknown";
}

const char* packetStatusName(uint8_t s) {
    static const char* const names[] = {"unknown", "disconnected", "connected", "suspended", "authenticating"};
    return s < 5 ? names[s] : "unknown";
}

// Mode preference bits of the system selection.
struct ModeBit {
    const char* name;
    uint16_t bit;
};
constexpr ModeBit kModeBits[] = {{"cdma-1x", 0x01}, {"cdma-evdo", 0x02}, {"gsm", 0x04},
                                 {"umts", 0x08},    {"lte", 0x10},       {"td-scdma", 0x20}};
constexpr uint16_t kModeAuto = 0x3F;

// --- argument checks ----------------------------------------------------------

bool digitsOnly(const char* s, size_t min, size_t max) {
    size_t n = strlen(s);
    if (n < min || n > max) return false;
    for (size_t i = 0; i < n; ++i)
        if (s[i] < '0' || s[i] > '9') return false;
    return true;
}

int checkPin(const char* what, const char* pin) {
    return digitsOnly(pin, 4, 8) ? kExitOk : usageError("bad %s %s (4 to 8 digits)", what, pin);
}

int storeByName(const char* name) {
    if (strcmp(name, "uim") == 0 || strcmp(name, "0") == 0) return 0;
    if (strcmp(name, "nv") == 0 || strcmp(name, "1") == 0) return 1;
    return -1;
}

int checkStore(Step& st, int k) {
    st.n[k] = storeByName(st.arg[k]);
    return st.n[k] < 0 ? usageError("unknown message store %s (uim or nv)", st.arg[k]) : kExitOk;
}

int checkIndexArg(Step& st, int k, long long min, long long max, const char* what) {
    return parseNumber(st.arg[k], min, max, &st.n[k])
               ? kExitOk
               : usageError("bad %s %s (%lld to %lld)", what, st.arg[k], min, max);
}

// SERVICE:ID style "name:number" → service number, or -1.
int serviceOf(const char* s, const char** rest) {
    const char* colon = strchr(s, ':');
    if (!colon || colon - s >= 16) return -1;
    char name[16];
    memcpy(name, s, size_t(colon - s));
    name[colon - s] = 0;
    *rest = colon + 1;
    return serviceByName(name);
}

// --- shared decoding ----------------------------------------------------------

// A text item read with a getter of the (msg, len, u16* length, void* data)
// family into `out` (NUL-terminated); false when absent or too long.
using TextGet = int (*)(const uint8_t*, int, uint16_t*, void*);
bool textItem(TextGet get, char* out, int cap) {
    uint16_t len = 0;
    out[0] = 0;
    if (get(gM.bytes, gM.len, &len, nullptr) < 0 || len >= cap || len > areaLen()) return false;
    if (len && get(gM.bytes, gM.len, &len, out) < 0) return false;
    out[len] = 0;
    return true;
}

// A response whose mandatory item is a text (manufacturer, MSISDN, ICCID...).
using TextResp = int (*)(const uint8_t*, int, QmiResult*, uint16_t*, void*);
int textRequest(Cli& c, uint8_t service, const char* what, int (*req)(uint8_t*, int), TextResp resp, char* out,
                int cap) {
    int rc = c.s.request(service, gReq, req(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint16_t len = 0;
    rc = CHECKED(what, resp(gM.bytes, gM.len, &r, &len, nullptr));
    if (rc != kOk) return rc;
    if (len >= cap || len > areaLen()) return bad(c, what, "text too long");
    if (len && resp(gM.bytes, gM.len, &r, &len, out) < 0) return bad(c, what, "text unreadable");
    out[len] = 0;
    return kOk;
}

void ipv4Text(uint32_t a, char* out, size_t cap) {
    snprintf(out, cap, "%u.%u.%u.%u", a >> 24, a >> 16 & 255, a >> 8 & 255, a & 255);
}

// A request built and answered, the answer checked; for actions whose
// answer carries nothing but the result.
int simple(Cli& c, uint8_t service, const char* what, int n, int (*resp)(const uint8_t*, int, QmiResult*)) {
    int rc = c.s.request(service, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    return CHECKED(what, resp(gM.bytes, gM.len, &r));
}

// ============================================================== client ids ==

int checkGetClientId(Step& st) {
    int svc = serviceByName(st.arg[0]);
    if (svc <= 0) return usageError("unknown service %s", st.arg[0]);
    st.n[0] = svc;
    return kExitOk;
}

int runGetClientId(Cli& c, Step& st) {
    uint8_t svc = uint8_t(st.n[0]), id = 0;
    int rc = c.s.client(svc, &id);
    if (rc != kOk) return rc;
    char key[40], label[40];
    snprintf(key, sizeof key, "%s_client_id", serviceName(svc));
    snprintf(label, sizeof label, "%s client id", serviceName(svc));
    c.out.num(key, label, id);
    return kOk;
}

// ===================================================================== DMS ==

int runDmsIds(Cli& c, Step&) {
    static char mfr[256], model[256], rev[256], hw[256], imei[64], esn[64], meid[64];
    int rc;
    if ((rc = textRequest(c, ZOVQMI_SERVICE_DMS, "manufacturer", zovQMIDMSGetDeviceMfrReq, zovQMIDMSGetDeviceMfrResp,
                          mfr, sizeof mfr)) != kOk ||
        (rc = textRequest(c, ZOVQMI_SERVICE_DMS, "model", zovQMIDMSGetDeviceModelIDReq,
                          zovQMIDMSGetDeviceModelIDResp, model, sizeof model)) != kOk ||
        (rc = textRequest(c, ZOVQMI_SERVICE_DMS, "revision", zovQMIDMSGetDeviceRevIDReq, zovQMIDMSGetDeviceRevIDResp,
                          rev, sizeof rev)) != kOk ||
        (rc = textRequest(c, ZOVQMI_SERVICE_DMS, "hardware revision", zovQMIDMSGetDeviceHardwareRevReq,
                          zovQMIDMSGetDeviceHardwareRevResp, hw, sizeof hw)) != kOk)
        return rc;
    rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSGetDeviceSerialNumbersReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("serial numbers", zovQMIDMSGetDeviceSerialNumbersResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    textItem(zovQMIDMSGetDeviceSerialNumbersRespGetIMEI, imei, sizeof imei);
    textItem(zovQMIDMSGetDeviceSerialNumbersRespGetESN, esn, sizeof esn);
    textItem(zovQMIDMSGetDeviceSerialNumbersRespGetMEID, meid, sizeof meid);
    c.out.open("ids");
    c.out.str("manufacturer", "manufacturer", mfr);
    c.out.str("model", "model", model);
    c.out.str("revision", "revision", rev);
    c.out.str("hardware", "hardware", hw);
    c.out.str("imei", "IMEI", imei);
    c.out.str("esn", "ESN", esn);
    c.out.str("meid", "MEID", meid);
    c.out.close();
    return kOk;
}

int runDmsMsisdn(Cli& c, Step&) {
    static char msisdn[128];
    int rc = textRequest(c, ZOVQMI_SERVICE_DMS, "MSISDN", zovQMIDMSGetMSISDNReq, zovQMIDMSGetMSISDNResp, msisdn,
                         sizeof msisdn);
    if (rc == kOk) c.out.str("msisdn", "MSISDN", msisdn);
    return rc;
}

int runDmsCapabilities(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSGetDeviceCapReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    DMSDeviceCapabilities caps;
    memset(&caps, 0, sizeof caps);
    const char* what = "capabilities";
    if ((rc = CHECKED(what, zovQMIDMSGetDeviceCapResp(gM.bytes, gM.len, &r, &caps))) != kOk) return rc;
    uint8_t radios[256];
    if (caps.listCount > areaLen()) return bad(c, what, "radio list longer than the message");
    caps.list = radios;
    if (zovQMIDMSGetDeviceCapResp(gM.bytes, gM.len, &r, &caps) < 0) return bad(c, what, "radio list unreadable");
    static const char* const data[] = {"none", "cs", "ps", "simultaneous cs and ps", "non-simultaneous cs and ps"};
    uint8_t d = caps.capabilityByte1, sim = caps.capabilityByte2;
    c.out.open("capabilities");
    c.out.num("max_tx_rate", "max TX rate (bps)", le32(&caps.capability1));
    c.out.num("max_rx_rate", "max RX rate (bps)", le32(&caps.capability2));
    c.out.str("data_service", "data service", d < 5 ? data[d] : "unknown");
    c.out.str("sim", "SIM", sim == 2 ? "supported" : sim == 1 ? "not supported" : "unknown");
    c.out.openArray("radios");
    c.out.text("radios:");
    for (int i = 0; i < caps.listCount; ++i) {
        c.out.jstr(nullptr, radioName(radios[i]));
        c.out.text(" %s", radioName(radios[i]));
    }
    c.out.text("\n");
    c.out.close();
    c.out.close();
    return kOk;
}

int runDmsPowerState(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSGetPowerStateReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t state = 0, level = 0;
    if ((rc = CHECKED("power state", zovQMIDMSGetPowerStateResp(gM.bytes, gM.len, &r, &state, &level))) != kOk)
        return rc;
    c.out.open("power_state");
    c.out.jnum("flags", state);
    c.out.text("power state flags: 0x%02X\n", state);
    c.out.num("battery_level", "battery level (%)", level);
    c.out.close();
    return kOk;
}

int runDmsTime(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSGetTimeReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t count[6] = {};
    uint16_t source = 0;
    if ((rc = CHECKED("time", zovQMIDMSGetTimeResp(gM.bytes, gM.len, &r, count, &source))) != kOk) return rc;
    // 1.25 ms units since the GPS epoch, 1980-01-06 00:00:00 UTC.
    uint64_t ticks = 0;
    for (int i = 5; i >= 0; --i) ticks = ticks << 8 | count[i];
    uint64_t ms = ticks * 5 / 4;
    time_t secs = time_t(315964800 + ms / 1000);
    struct tm t;
    char when[40];
    if (gmtime_r(&secs, &t)) strftime(when, sizeof when, "%Y-%m-%d %H:%M:%S UTC", &t);
    else snprintf(when, sizeof when, "unknown");
    c.out.open("time");
    c.out.str("time", "time", when);
    c.out.num("gps_time_ms", "GPS time (ms)", (long long)ms);
    c.out.num("source", "time source", source);
    uint64_t v;
    if (zovQMIDMSGetTimeRespGetSystemTimeInMS(gM.bytes, gM.len, &v) >= 0)
        c.out.num("system_time_ms", "system time (ms)", (long long)v);
    if (zovQMIDMSGetTimeRespGetUserTimeInMS(gM.bytes, gM.len, &v) >= 0)
        c.out.num("user_time_ms", "user time (ms)", (long long)v);
    c.out.close();
    return kOk;
}

int runDmsGetMode(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSGetOperatingModeReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t mode = 0;
    if ((rc = CHECKED("operating mode", zovQMIDMSGetOperatingModeResp(gM.bytes, gM.len, &r, &mode))) != kOk) return rc;
    c.out.open("operating_mode");
    c.out.jnum("mode", mode);
    c.out.jstr("name", modeName(mode));
    c.out.text("operating mode: %s (%u)\n", modeName(mode), mode);
    c.out.close();
    return kOk;
}

int checkSetMode(Step& st) {
    for (int i = 0; i < 8; ++i)
        if (strcmp(st.arg[0], kModes[i]) == 0) {
            st.n[0] = i;
            return kExitOk;
        }
    if (parseNumber(st.arg[0], 0, 255, &st.n[0])) return kExitOk;
    return usageError("unknown operating mode %s", st.arg[0]);
}

int runDmsSetMode(Cli& c, Step& st) {
    uint8_t mode = uint8_t(st.n[0]);
    int rc = simple(c, ZOVQMI_SERVICE_DMS, "set operating mode", zovQMIDMSSetOperatingModeReq(gReq, sizeof gReq, mode),
                    zovQMIDMSSetOperatingModeResp);
    if (rc == kOk) {
        c.out.jstr("set_operating_mode", modeName(mode));
        c.out.text("operating mode set: %s\n", modeName(mode));
    }
    return rc;
}

int runDmsReset(Cli& c, Step&) {
    int rc = simple(c, ZOVQMI_SERVICE_DMS, "reset", zovQMIDMSResetReq(gReq, sizeof gReq), zovQMIDMSResetResp);
    if (rc == kOk) {
        c.out.jstr("dms_reset", "done");
        c.out.text("DMS service reset\n");
    }
    return rc;
}

// ===================================================================== UIM ==

// The result of a PIN operation: the retries left come with success and
// failure alike; a failure names them.
using Retries = int (*)(const uint8_t*, int, uint8_t*, uint8_t*);
int pinResult(Cli& c, const char* what, int parseRc, const QmiResult& r, Retries get, uint8_t* left,
              uint8_t* unblockLeft) {
    bool have = get(gM.bytes, gM.len, left, unblockLeft) >= 0;
    if (!have) *left = *unblockLeft = 0xFF;
    char w[96];
    if (have && le16(&r) != 0)
        snprintf(w, sizeof w, "%s (%u retries left, %u unblock retries left)", what, *left, *unblockLeft);
    else
        snprintf(w, sizeof w, "%s", what);
    return c.s.check(w, parseRc, r);
}

void retriesOut(Cli& c, uint8_t left, uint8_t unblockLeft) {
    if (left != 0xFF) c.out.jnum("retries_left", left);
    if (unblockLeft != 0xFF) c.out.jnum("unblock_retries_left", unblockLeft);
}

int checkVerifyPin(Step& st) { return checkPin("PIN", st.arg[0]); }

int runVerifyPin(Cli& c, Step& st) {
    const char* pin = st.arg[0];
    int n = zovQMIDMSUIMVerifyPINReq(gReq, sizeof gReq, 1, uint8_t(strlen(pin)), reinterpret_cast<const uint8_t*>(pin));
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t left, unblockLeft;
    rc = pinResult(c, "verify PIN", zovQMIDMSUIMVerifyPINResp(gM.bytes, gM.len, &r), r,
                   zovQMIDMSUIMVerifyPINRespGetRetriesLeft, &left, &unblockLeft);
    if (rc != kOk) return rc;
    c.out.open("verify_pin");
    c.out.flag("verified", nullptr, true);
    retriesOut(c, left, unblockLeft);
    c.out.close();
    c.out.text("PIN verified (%u retries left, %u unblock retries left)\n", left, unblockLeft);
    return kOk;
}

int runPinStatus(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, zovQMIDMSUIMGetPINStatusReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("PIN status", zovQMIDMSUIMGetPINStatusResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    c.out.open("pin_status");
    for (int k = 1; k <= 2; ++k) {
        uint8_t s = 0, left = 0, unblockLeft = 0;
        int got = k == 1 ? zovQMIDMSUIMGetPINStatusRespGetPIN1Status(gM.bytes, gM.len, &s, &left, &unblockLeft)
                         : zovQMIDMSUIMGetPINStatusRespGetPIN2Status(gM.bytes, gM.len, &s, &left, &unblockLeft);
        if (got < 0) continue;
        c.out.open(k == 1 ? "pin1" : "pin2");
        c.out.jstr("status", pinStatusName(s));
        c.out.jnum("retries_left", left);
        c.out.jnum("unblock_retries_left", unblockLeft);
        c.out.close();
        c.out.text("PIN%d: %s (%u retries left, %u unblock retries left)\n", k, pinStatusName(s), left, unblockLeft);
    }
    c.out.close();
    return kOk;
}

int checkChangePin(Step& st) {
    int rc = checkPin("old PIN", st.arg[0]);
    return rc != kExitOk ? rc : checkPin("new PIN", st.arg[1]);
}

int runChangePin(Cli& c, Step& st) {
    const char *old = st.arg[0], *pin = st.arg[1];
    int n = zovQMIDMSUIMChangePINReq(gReq, sizeof gReq, 1, uint8_t(strlen(old)), reinterpret_cast<const uint8_t*>(old),
                                     uint8_t(strlen(pin)), reinterpret_cast<const uint8_t*>(pin));
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t left, unblockLeft;
    rc = pinResult(c, "change PIN", zovQMIDMSUIMChangePINResp(gM.bytes, gM.len, &r), r,
                   zovQMIDMSUIMChangePINRespGetRetriesLeft, &left, &unblockLeft);
    if (rc != kOk) return rc;
    c.out.open("change_pin");
    c.out.flag("changed", nullptr, true);
    retriesOut(c, left, unblockLeft);
    c.out.close();
    c.out.text("PIN changed\n");
    return kOk;
}

int checkUnblockPin(Step& st) {
    if (!digitsOnly(st.arg[0], 8, 8)) return usageError("bad PUK %s (8 digits)", st.arg[0]);
    return checkPin("new PIN", st.arg[1]);
}

int runUnblockPin(Cli& c, Step& st) {
    const char *puk = st.arg[0], *pin = st.arg[1];
    int n = zovQMIDMSUIMUnblockPINReq(gReq, sizeof gReq, 1, uint8_t(strlen(puk)), reinterpret_cast<const uint8_t*>(puk),
                                      uint8_t(strlen(pin)), reinterpret_cast<const uint8_t*>(pin));
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t left, unblockLeft;
    rc = pinResult(c, "unblock PIN", zovQMIDMSUIMUnblockPINResp(gM.bytes, gM.len, &r), r,
                   zovQMIDMSUIMUnblockPINRespGetRetriesLeft, &left, &unblockLeft);
    if (rc != kOk) return rc;
    c.out.open("unblock_pin");
    c.out.flag("unblocked", nullptr, true);
    retriesOut(c, left, unblockLeft);
    c.out.close();
    c.out.text("PIN unblocked\n");
    return kOk;
}

int checkPinProtection(Step& st) {
    if (strcmp(st.arg[0], "on") == 0) st.n[0] = 1;
    else if (strcmp(st.arg[0], "off") == 0) st.n[0] = 0;
    else return usageError("bad --uim-set-pin-protection %s (on or off)", st.arg[0]);
    return checkPin("PIN", st.arg[1]);
}

int runPinProtection(Cli& c, Step& st) {
    const char* pin = st.arg[1];
    bool on = st.n[0] != 0;
    int n = zovQMIDMSUIMSetPINProtectionReq(gReq, sizeof gReq, 1, on ? 1 : 0, uint8_t(strlen(pin)),
                                            reinterpret_cast<const uint8_t*>(pin));
    int rc = c.s.request(ZOVQMI_SERVICE_DMS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t left, unblockLeft;
    rc = pinResult(c, "set PIN protection", zovQMIDMSUIMSetPINProtectionResp(gM.bytes, gM.len, &r), r,
                   zovQMIDMSUIMSetPINProtectionRespGetRetriesLeft, &left, &unblockLeft);
    if (rc != kOk) return rc;
    c.out.open("pin_protection");
    c.out.flag("enabled", nullptr, on);
    retriesOut(c, left, unblockLeft);
    c.out.close();
    c.out.text("PIN protection %s\n", on ? "enabled" : "disabled");
    return kOk;
}

int runIccid(Cli& c, Step&) {
    char v[64];
    int rc = textRequest(c, ZOVQMI_SERVICE_DMS, "ICCID", zovQMIDMSUIMGetICCIDReq, zovQMIDMSUIMGetICCIDResp, v, sizeof v);
    if (rc == kOk) c.out.str("iccid", "ICCID", v);
    return rc;
}

int runImsi(Cli& c, Step&) {
    char v[64];
    int rc = textRequest(c, ZOVQMI_SERVICE_DMS, "IMSI", zovQMIDMSUIMGetIMSIReq, zovQMIDMSUIMGetIMSIResp, v, sizeof v);
    if (rc == kOk) c.out.str("imsi", "IMSI", v);
    return rc;
}

// ===================================================================== NAS ==

int runSignal(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASGetSignalStrengthReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t strength = 0, radio = 0;
    if ((rc = CHECKED("signal strength", zovQMINASGetSignalStrengthResp(gM.bytes, gM.len, &r, &strength, &radio))) != kOk)
        return rc;
    c.out.open("signal_strength");
    c.out.jnum("dbm", int8_t(strength));
    c.out.jstr("radio", radioName(radio));
    c.out.close();
    c.out.text("signal strength: %d dBm (%s)\n", int8_t(strength), radioName(radio));
    return kOk;
}

// A network record read by `get` into `rec` with its description in `desc`
// (256 bytes); false when absent or malformed.
bool networkRecord(int (*get)(const uint8_t*, int, NASNetworkRecord*), NASNetworkRecord* rec, char* desc) {
    memset(rec, 0, sizeof *rec);
    if (get(gM.bytes, gM.len, rec) < 0 || rec->descriptionLength > areaLen()) return false;
    rec->description = reinterpret_cast<uint8_t*>(desc);
    if (get(gM.bytes, gM.len, rec) < 0) return false;
    desc[rec->descriptionLength] = 0;
    return true;
}

int homeNetworkGet(const uint8_t* msg, int len, NASNetworkRecord* rec) {
    QmiResult r;
    return zovQMINASGetHomeNetworkResp(msg, len, &r, rec);
}

int runServing(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASGetServingSystemReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    NASServingSystem ss;
    memset(&ss, 0, sizeof ss);
    const char* what = "serving system";
    if ((rc = CHECKED(what, zovQMINASGetServingSystemResp(gM.bytes, gM.len, &r, &ss))) != kOk) return rc;
    uint8_t radios[256];
    if (ss.listCount > areaLen()) return bad(c, what, "radio list longer than the message");
    ss.list = radios;
    if (zovQMINASGetServingSystemResp(gM.bytes, gM.len, &r, &ss) < 0) return bad(c, what, "radio list unreadable");
    NASNetworkRecord plmn;
    char desc[256];
    bool hasPlmn = networkRecord(zovQMINASGetServingSystemRespGetCurrentPLMN, &plmn, desc);
    uint8_t roaming = 0;
    bool hasRoaming = zovQMINASGetServingSystemRespGetRoamingIndicatorValue(gM.bytes, gM.len, &roaming) >= 0;

    c.out.open("serving_system");
    c.out.str("registration", "registration", registrationName(ss.state[0]));
    c.out.flag("cs_attached", "CS attached", ss.state[1] == 1);
    c.out.flag("ps_attached", "PS attached", ss.state[2] == 1);
    c.out.openArray("radios");
    c.out.text("radios: %s", ss.listCount ? "" : "none");
    for (int i = 0; i < ss.listCount; ++i) {
        c.out.jstr(nullptr, radioName(radios[i]));
        c.out.text("%s%s", i ? ", " : "", radioName(radios[i]));
    }
    c.out.text("\n");
    c.out.close();
    if (hasPlmn) {
        c.out.jnum("mcc", le16(&plmn.firstCode));
        c.out.jnum("mnc", le16(&plmn.secondCode));
        c.out.jstr("network", desc);
        c.out.text("network: %u-%u %s\n", le16(&plmn.firstCode), le16(&plmn.secondCode), desc);
    } else {
        c.out.text("network: none\n");
    }
    if (hasRoaming) c.out.flag("roaming", "roaming", roaming == 0);
    c.out.close();
    return kOk;
}

int runHomeNetwork(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASGetHomeNetworkReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    NASNetworkRecord rec;
    memset(&rec, 0, sizeof rec);
    const char* what = "home network";
    if ((rc = CHECKED(what, zovQMINASGetHomeNetworkResp(gM.bytes, gM.len, &r, &rec))) != kOk) return rc;
    char desc[256];
    if (!networkRecord(homeNetworkGet, &rec, desc)) return bad(c, what, "network record unreadable");
    c.out.open("home_network");
    c.out.jnum("mcc", le16(&rec.firstCode));
    c.out.jnum("mnc", le16(&rec.secondCode));
    c.out.jstr("name", desc);
    c.out.close();
    c.out.text("home network: %03u-%02u %s\n", le16(&rec.firstCode), le16(&rec.secondCode), desc);
    return kOk;
}

// Networks one scan reports at most (a scan lists what is in range: a few
// operators, each on a few radios).
constexpr int kMaxNetworks = 40;

int runScan(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASPerformNetworkScanReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    const char* what = "network scan";
    if ((rc = CHECKED(what, zovQMINASPerformNetworkScanResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    static NASNetworkRecord recs[kMaxNetworks];
    static char descs[kMaxNetworks][256];
    uint16_t count = 0;
    if (zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(gM.bytes, gM.len, &count, nullptr) < 0) count = 0;
    if (count > kMaxNetworks || count * 6 > areaLen()) return bad(c, what, "more networks than the message holds");
    for (int i = 0; i < count; ++i) {
        memset(&recs[i], 0, sizeof recs[i]);
        recs[i].description = reinterpret_cast<uint8_t*>(descs[i]);
    }
    if (count && zovQMINASPerformNetworkScanRespGet3GPPNetworkInformation(gM.bytes, gM.len, &count, recs) < 0)
        return bad(c, what, "network list unreadable");
    c.out.openArray("networks");
    c.out.text("networks: %u\n", count);
    for (int i = 0; i < count; ++i) {
        const NASNetworkRecord& n = recs[i];
        c.out.open(nullptr);
        c.out.jnum("mcc", le16(&n.firstCode));
        c.out.jnum("mnc", le16(&n.secondCode));
        c.out.jnum("status", n.status);
        c.out.jstr("name", descs[i], n.descriptionLength);
        c.out.close();
        c.out.text("  %03u-%02u  status 0x%02X  %.*s\n", le16(&n.firstCode), le16(&n.secondCode), n.status,
                   n.descriptionLength, descs[i]);
    }
    c.out.close();
    return kOk;
}

int runRfBands(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASGetRFBandInfoReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t count = 0;
    const char* what = "RF band information";
    if ((rc = CHECKED(what, zovQMINASGetRFBandInfoResp(gM.bytes, gM.len, &r, &count, nullptr))) != kOk) return rc;
    NASRFBandRecord bands[255];
    if (count * 5 > areaLen()) return bad(c, what, "more bands than the message holds");
    if (zovQMINASGetRFBandInfoResp(gM.bytes, gM.len, &r, &count, bands) < 0) return bad(c, what, "band list unreadable");
    c.out.openArray("rf_bands");
    for (int i = 0; i < count; ++i) {
        c.out.open(nullptr);
        c.out.jstr("radio", radioName(bands[i].first));
        c.out.jnum("band_class", le16(&bands[i].second));
        c.out.jnum("channel", le16(&bands[i].third));
        c.out.close();
        c.out.text("radio: %s, band class %u, channel %u\n", radioName(bands[i].first), le16(&bands[i].second),
                   le16(&bands[i].third));
    }
    c.out.close();
    return kOk;
}

int runSystemSelection(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_NAS, gReq, zovQMINASGetSystemSelectionPreferenceReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("system selection", zovQMINASGetSystemSelectionPreferenceResp(gM.bytes, gM.len, &r))) != kOk)
        return rc;
    c.out.open("system_selection");
    uint16_t modes = 0, roam = 0;
    uint64_t bands = 0;
    uint8_t emergency = 0;
    if (zovQMINASGetSystemSelectionPreferenceRespGetModePreference(gM.bytes, gM.len, &modes) >= 0) {
        c.out.openArray("modes");
        c.out.text("network modes:");
        for (const ModeBit& m : kModeBits)
            if (modes & m.bit) {
                c.out.jstr(nullptr, m.name);
                c.out.text(" %s", m.name);
            }
        c.out.text("\n");
        c.out.close();
    }
    char hex[24];
    if (zovQMINASGetSystemSelectionPreferenceRespGetBandPreference(gM.bytes, gM.len, &bands) >= 0) {
        snprintf(hex, sizeof hex, "0x%016llX", (unsigned long long)bands);
        c.out.str("band_preference", "band preference", hex);
    }
    if (zovQMINASGetSystemSelectionPreferenceRespGetRoamingPreference(gM.bytes, gM.len, &roam) >= 0)
        c.out.num("roaming_preference", "roaming preference", roam);
    if (zovQMINASGetSystemSelectionPreferenceRespGetEmergencyMode(gM.bytes, gM.len, &emergency) >= 0)
        c.out.flag("emergency_mode", "emergency mode", emergency != 0);
    c.out.close();
    return kOk;
}

int checkNetworkModes(Step& st) {
    const char* s = st.arg[0];
    if (strcmp(s, "auto") == 0) {
        st.n[0] = kModeAuto;
        return kExitOk;
    }
    uint16_t mask = 0;
    while (*s) {
        const char* comma = strchr(s, ',');
        size_t len = comma ? size_t(comma - s) : strlen(s);
        bool known = false;
        for (const ModeBit& m : kModeBits)
            if (strlen(m.name) == len && strncmp(s, m.name, len) == 0) mask = uint16_t(mask | m.bit), known = true;
        if (!known)
            return usageError("unknown network mode %.*s (auto, or a list of lte, umts, gsm, td-scdma, cdma-1x, "
                              "cdma-evdo)",
                              int(len), s);
        s += len + (comma ? 1 : 0);
    }
    if (!mask) return usageError("no network mode given");
    st.n[0] = mask;
    return kExitOk;
}

int runSetNetworkModes(Cli& c, Step& st) {
    zovQMINASSetSystemSelectionPreferenceReq(gReq, sizeof gReq);
    int n = zovQMINASSetSystemSelectionPreferenceReqAddModePreference(gReq, sizeof gReq, uint16_t(st.n[0]));
    int rc = simple(c, ZOVQMI_SERVICE_NAS, "set network modes", n, zovQMINASSetSystemSelectionPreferenceResp);
    if (rc != kOk) return rc;
    c.out.openArray("network_modes");
    c.out.text("network modes set:");
    for (const ModeBit& m : kModeBits)
        if (st.n[0] & m.bit) {
            c.out.jstr(nullptr, m.name);
            c.out.text(" %s", m.name);
        }
    c.out.text("\n");
    c.out.close();
    return kOk;
}

int checkRegister(Step& st) {
    const char* s = st.arg[0];
    if (strcmp(s, "auto") == 0) {
        st.n[0] = 0;
        return kExitOk;
    }
    // MCC-MNC[/RADIO]: three digits, two or three digits, the radio of the
    // network (lte unless given).
    char mcc[4] = {}, mnc[4] = {};
    const char* dash = strchr(s, '-');
    const char* slash = strchr(s, '/');
    size_t mccLen = dash ? size_t(dash - s) : 0;
    size_t mncLen = dash ? (slash ? size_t(slash - dash - 1) : strlen(dash + 1)) : 0;
    if (!dash || mccLen != 3 || mncLen < 2 || mncLen > 3) return usageError("bad --nas-register %s (auto or MCC-MNC)", s);
    memcpy(mcc, s, 3);
    memcpy(mnc, dash + 1, mncLen);
    if (!digitsOnly(mcc, 3, 3) || !digitsOnly(mnc, 2, 3)) return usageError("bad --nas-register %s (auto or MCC-MNC)", s);
    st.n[0] = 1;
    st.n[1] = atoi(mcc);
    st.n[2] = atoi(mnc);
    st.n[3] = 8;
    if (slash) {
        static const struct {
            const char* name;
            uint8_t radio;
        } radios[] = {{"gsm", 4}, {"umts", 5}, {"lte", 8}};
        st.n[3] = -1;
        for (auto& r : radios)
            if (strcmp(slash + 1, r.name) == 0) st.n[3] = r.radio;
        if (st.n[3] < 0) return usageError("bad radio in --nas-register %s (gsm, umts or lte)", s);
    }
    return kExitOk;
}

int runRegister(Cli& c, Step& st) {
    bool manual = st.n[0] != 0;
    int n = zovQMINASInitiateNetworkRegisterReq(gReq, sizeof gReq, manual ? 2 : 1);
    if (manual) {
        NASManualNetworkRegister info;
        uint8_t* b = reinterpret_cast<uint8_t*>(&info);
        b[0] = uint8_t(st.n[1]), b[1] = uint8_t(st.n[1] >> 8);
        b[2] = uint8_t(st.n[2]), b[3] = uint8_t(st.n[2] >> 8);
        b[4] = uint8_t(st.n[3]);
        n = zovQMINASInitiateNetworkRegisterReqAddManualNetworkRegisterInformation(gReq, sizeof gReq, &info);
    }
    int rc = simple(c, ZOVQMI_SERVICE_NAS, "network register", n, zovQMINASInitiateNetworkRegisterResp);
    if (rc != kOk) return rc;
    if (manual) {
        char net[16];
        snprintf(net, sizeof net, "%03lld-%02lld", st.n[1], st.n[2]);
        c.out.jstr("registered", net);
        c.out.text("registration requested: %s\n", net);
    } else {
        c.out.jstr("registered", "auto");
        c.out.text("registration requested: automatic\n");
    }
    return kOk;
}

int runAttach(Cli& c, Step& st) {
    bool attach = st.action->name[6] == 'a';  // --nas-attach / --nas-detach
    zovQMINASInitiateAttachReq(gReq, sizeof gReq);
    int n = zovQMINASInitiateAttachReqAddPSAttachAction(gReq, sizeof gReq, attach ? 1 : 2);
    int rc = simple(c, ZOVQMI_SERVICE_NAS, attach ? "attach" : "detach", n, zovQMINASInitiateAttachResp);
    if (rc != kOk) return rc;
    c.out.jstr("ps", attach ? "attach requested" : "detach requested");
    c.out.text("packet domain %s requested\n", attach ? "attach" : "detach");
    return kOk;
}

// ===================================================================== WDS ==

int checkStart(Step& st) {
    if (strlen(st.arg[0]) > 100) return usageError("APN longer than 100 characters");
    return kExitOk;
}

int runStart(Cli& c, Step& st) {
    const Settings& s = c.set;
    const char* apn = st.arg[0];
    const char* what = "start network";
    if (s.ipFamily) {
        int rc = simple(c, ZOVQMI_SERVICE_WDS, "IP family preference",
                        zovQMIWDSSetClientIPFamilyPrefReq(gReq, sizeof gReq, uint8_t(s.ipFamily)),
                        zovQMIWDSSetClientIPFamilyPrefResp);
        if (rc != kOk) return rc;
    }
    int n = zovQMIWDSStartNetworkInterfaceReq(gReq, sizeof gReq);
    auto text = [](const char* v) { return reinterpret_cast<const uint8_t*>(v); };
    if (*apn) n = zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(gReq, sizeof gReq, uint16_t(strlen(apn)), text(apn));
    if (n >= 0 && s.auth >= 0)
        n = zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(gReq, sizeof gReq, uint8_t(s.auth));
    if (n >= 0 && s.user)
        n = zovQMIWDSStartNetworkInterfaceReqAddUsername(gReq, sizeof gReq, uint16_t(strlen(s.user)), text(s.user));
    if (n >= 0 && s.password)
        n = zovQMIWDSStartNetworkInterfaceReqAddPassword(gReq, sizeof gReq, uint16_t(strlen(s.password)),
                                                         text(s.password));
    if (n >= 0 && s.profile >= 0)
        n = zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(gReq, sizeof gReq, uint8_t(s.profile));
    if (n >= 0 && s.ipFamily)
        n = zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(gReq, sizeof gReq, uint8_t(s.ipFamily));
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint32_t handle = 0;
    int parsed = zovQMIWDSStartNetworkInterfaceResp(gM.bytes, gM.len, &r, &handle);
    char w[96];
    uint16_t reason = 0, type = 0, verbose = 0;
    int len = snprintf(w, sizeof w, "%s", what);
    if (le16(&r) != 0) {
        bool hasReason = zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(gM.bytes, gM.len, &reason) >= 0;
        bool hasVerbose = zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(gM.bytes, gM.len, &type, &verbose) >= 0;
        if (hasReason && hasVerbose)
            snprintf(w + len, sizeof w - size_t(len), " (call end reason %u, verbose %u/%u)", reason, type, verbose);
        else if (hasReason)
            snprintf(w + len, sizeof w - size_t(len), " (call end reason %u)", reason);
    }
    if ((rc = c.s.check(w, parsed, r)) != kOk) return rc;
    uint8_t id = 0;
    c.s.client(ZOVQMI_SERVICE_WDS, &id);
    c.out.num("packet_data_handle", "packet data handle", handle);
    c.out.text("WDS client id: %u\n", id);
    return kOk;
}

int checkStop(Step& st) { return checkIndexArg(st, 0, 0, 0xFFFFFFFFll, "handle"); }

int runStop(Cli& c, Step& st) {
    uint32_t h = uint32_t(st.n[0]);
    int rc = simple(c, ZOVQMI_SERVICE_WDS, "stop network", zovQMIWDSStopNetworkInterfaceReq(gReq, sizeof gReq, h),
                    zovQMIWDSStopNetworkInterfaceResp);
    if (rc != kOk) return rc;
    c.out.jnum("stopped", h);
    c.out.text("network stopped (handle %u)\n", h);
    return kOk;
}

int runPacketStatus(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, zovQMIWDSGetPktSrvcStatusReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t status = 0;
    if ((rc = CHECKED("packet status", zovQMIWDSGetPktSrvcStatusResp(gM.bytes, gM.len, &r, &status))) != kOk) return rc;
    c.out.str("packet_status", "connection status", packetStatusName(status));
    return kOk;
}

int runStatistics(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, zovQMIWDSGetPktStatisticsReq(gReq, sizeof gReq, 0xFF), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("statistics", zovQMIWDSGetPktStatisticsResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    using Get32 = int (*)(const uint8_t*, int, uint32_t*);
    static const struct {
        const char* key;
        const char* label;
        Get32 get;
    } counters[] = {
        {"tx_packets", "TX packets", zovQMIWDSGetPktStatisticsRespGetTxPacketsOK},
        {"rx_packets", "RX packets", zovQMIWDSGetPktStatisticsRespGetRxPacketsOK},
        {"tx_errors", "TX errors", zovQMIWDSGetPktStatisticsRespGetTxPacketsErrors},
        {"rx_errors", "RX errors", zovQMIWDSGetPktStatisticsRespGetRxPacketsErrors},
        {"tx_overflows", "TX overflows", zovQMIWDSGetPktStatisticsRespGetTxOverflows},
        {"rx_overflows", "RX overflows", zovQMIWDSGetPktStatisticsRespGetRxOverflows},
    };
    c.out.open("statistics");
    for (const auto& k : counters) {
        uint32_t v;
        if (k.get(gM.bytes, gM.len, &v) >= 0) c.out.num(k.key, k.label, v);
    }
    uint64_t b;
    if (zovQMIWDSGetPktStatisticsRespGetTxBytesOK(gM.bytes, gM.len, &b) >= 0) c.out.num("tx_bytes", "TX bytes", (long long)b);
    if (zovQMIWDSGetPktStatisticsRespGetRxBytesOK(gM.bytes, gM.len, &b) >= 0) c.out.num("rx_bytes", "RX bytes", (long long)b);
    c.out.close();
    return kOk;
}

void duration(Cli& c, const char* key, const char* label, uint64_t ms) {
    c.out.jnum(key, (long long)ms);
    uint64_t s = ms / 1000;
    c.out.text("%s: %llu:%02llu:%02llu.%03llu\n", label, (unsigned long long)(s / 3600),
               (unsigned long long)(s / 60 % 60), (unsigned long long)(s % 60), (unsigned long long)(ms % 1000));
}

int runCallDuration(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, zovQMIWDSGetCallDurationReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint64_t d = 0, v;
    if ((rc = CHECKED("call duration", zovQMIWDSGetCallDurationResp(gM.bytes, gM.len, &r, &d))) != kOk) return rc;
    c.out.open("call_duration");
    duration(c, "duration_ms", "call duration", d);
    if (zovQMIWDSGetCallDurationRespGetActiveDuration(gM.bytes, gM.len, &v) >= 0)
        duration(c, "active_ms", "active", v);
    if (zovQMIWDSGetCallDurationRespGetLastCallDuration(gM.bytes, gM.len, &v) >= 0)
        duration(c, "last_call_ms", "last call", v);
    if (zovQMIWDSGetCallDurationRespGetLastCallActiveDuration(gM.bytes, gM.len, &v) >= 0)
        duration(c, "last_call_active_ms", "last call active", v);
    c.out.close();
    return kOk;
}

// A profile text item (the profile getters take the message id).
bool profileText(uint16_t id, int (*get)(const uint8_t*, int, uint16_t, uint16_t*, uint8_t*), char* out, int cap) {
    uint16_t len = 0;
    out[0] = 0;
    if (get(gM.bytes, gM.len, id, &len, nullptr) < 0 || len >= cap || len > areaLen()) return false;
    if (len && get(gM.bytes, gM.len, id, &len, reinterpret_cast<uint8_t*>(out)) < 0) return false;
    out[len] = 0;
    return true;
}

int runRuntime(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, zovQMIWDSGetRuntimeSettingsReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("runtime settings", zovQMIWDSGetRuntimeSettingsResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    const uint16_t id = 0x002D;
    char name[128], apn[128];
    profileText(id, zovQMIWDSProfileRespGetProfileName, name, sizeof name);
    profileText(id, zovQMIWDSProfileRespGetAPNName, apn, sizeof apn);
    uint32_t addr = 0, gw = 0, mask = 0, dns1 = 0, dns2 = 0, mtu = 0;
    zovQMIWDSProfileRespGetIPv4AddressPreference(gM.bytes, gM.len, id, &addr);
    zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(gM.bytes, gM.len, id, &dns1);
    zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(gM.bytes, gM.len, id, &dns2);
    zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(gM.bytes, gM.len, &gw);
    zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(gM.bytes, gM.len, &mask);
    zovQMIWDSGetRuntimeSettingsRespGetMTU(gM.bytes, gM.len, &mtu);
    uint8_t type = 0, index = 0;
    bool hasProfile = zovQMIWDSGetRuntimeSettingsRespGetProfileIdentifier(gM.bytes, gM.len, &type, &index) >= 0;
    uint8_t v6[16], prefix = 0;
    bool hasV6 = zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(gM.bytes, gM.len, v6, &prefix) >= 0;

    char a[20], g[20], m[20], d1[20], d2[20], a6[48] = "";
    ipv4Text(addr, a, sizeof a);
    ipv4Text(gw, g, sizeof g);
    ipv4Text(mask, m, sizeof m);
    ipv4Text(dns1, d1, sizeof d1);
    ipv4Text(dns2, d2, sizeof d2);
    if (hasV6) inet_ntop(AF_INET6, v6, a6, sizeof a6);
    c.out.open("runtime_settings");
    if (hasProfile) c.out.jnum("profile", index);
    c.out.jstr("profile_name", name);
    c.out.text("profile: %d (%s)\n", hasProfile ? index : -1, name);
    c.out.str("apn", "APN", apn);
    c.out.str("ipv4", "IPv4 address", a);
    c.out.str("gateway", "gateway", g);
    c.out.str("subnet_mask", "subnet mask", m);
    c.out.openArray("dns");
    c.out.jstr(nullptr, d1);
    c.out.jstr(nullptr, d2);
    c.out.close();
    c.out.text("DNS: %s, %s\n", d1, d2);
    if (hasV6) {
        c.out.str("ipv6", "IPv6 address", a6);
        c.out.num("ipv6_prefix_length", "IPv6 prefix length", prefix);
    }
    c.out.num("mtu", "MTU", mtu);
    c.out.close();
    return kOk;
}

// Profiles one list shows at most (modems keep 16 to 24).
constexpr int kMaxProfiles = 32;

int runProfiles(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, zovQMIWDSGetProfileListReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t count = 0;
    const char* what = "profile list";
    if ((rc = CHECKED(what, zovQMIWDSGetProfileListResp(gM.bytes, gM.len, &r, &count, nullptr))) != kOk) return rc;
    static WDSProfileListEntry list[kMaxProfiles];
    static char names[kMaxProfiles][256], apns[kMaxProfiles][128];
    if (count > kMaxProfiles || count * 3 > areaLen()) return bad(c, what, "more profiles than the message holds");
    for (int i = 0; i < count; ++i) {
        memset(&list[i], 0, sizeof list[i]);
        list[i].name = reinterpret_cast<uint8_t*>(names[i]);
    }
    if (count && zovQMIWDSGetProfileListResp(gM.bytes, gM.len, &r, &count, list) < 0)
        return bad(c, what, "profile list unreadable");
    for (int i = 0; i < count; ++i) {
        names[i][list[i].nameLength] = 0;
        apns[i][0] = 0;
        int n = zovQMIWDSGetProfileSettingsReq(gReq, sizeof gReq, list[i].profileType, list[i].profileIndex);
        if ((rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, n, &gM)) != kOk) return rc;
        if (zovQMIWDSGetProfileSettingsResp(gM.bytes, gM.len, &r) >= 0 && le16(&r) == 0)
            profileText(0x002B, zovQMIWDSProfileRespGetAPNName, apns[i], sizeof apns[i]);
    }
    c.out.openArray("profiles");
    c.out.text("profiles:\n");
    for (int i = 0; i < count; ++i) {
        c.out.open(nullptr);
        c.out.jnum("index", list[i].profileIndex);
        c.out.jnum("type", list[i].profileType);
        c.out.jstr("name", names[i]);
        c.out.jstr("apn", apns[i]);
        c.out.close();
        c.out.text("  %u: %s (APN %s)\n", list[i].profileIndex, names[i], apns[i]);
    }
    c.out.close();
    return kOk;
}

// Appends the profile settings given by options; the new length or a
// negative builder code.
int profileItems(const Settings& s, int n) {
    auto text = [](const char* v) { return reinterpret_cast<const uint8_t*>(v); };
    if (n >= 0 && s.profileName)
        n = zovQMIWDSProfileReqAddProfileName(gReq, sizeof gReq, uint16_t(strlen(s.profileName)), text(s.profileName));
    if (n >= 0 && s.pdpType >= 0) n = zovQMIWDSProfileReqAddPDPType(gReq, sizeof gReq, uint8_t(s.pdpType));
    if (n >= 0 && s.apn) n = zovQMIWDSProfileReqAddAPNName(gReq, sizeof gReq, uint16_t(strlen(s.apn)), text(s.apn));
    if (n >= 0 && s.user) n = zovQMIWDSProfileReqAddUsername(gReq, sizeof gReq, uint16_t(strlen(s.user)), text(s.user));
    if (n >= 0 && s.password)
        n = zovQMIWDSProfileReqAddPassword(gReq, sizeof gReq, uint16_t(strlen(s.password)), text(s.password));
    if (n >= 0 && s.auth >= 0) n = zovQMIWDSProfileReqAddAuthenticationPreference(gReq, sizeof gReq, uint8_t(s.auth));
    return n;
}

int runCreateProfile(Cli& c, Step&) {
    int n = profileItems(c.set, zovQMIWDSCreateProfileReq(gReq, sizeof gReq, 0));
    int rc = c.s.request(ZOVQMI_SERVICE_WDS, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t type = 0, index = 0;
    if ((rc = CHECKED("create profile", zovQMIWDSCreateProfileResp(gM.bytes, gM.len, &r, &type, &index))) != kOk)
        return rc;
    c.out.num("created_profile", "profile created", index);
    return kOk;
}

int checkProfileIndex(Step& st) { return checkIndexArg(st, 0, 1, 255, "profile index"); }

int runModifyProfile(Cli& c, Step& st) {
    uint8_t index = uint8_t(st.n[0]);
    int n = profileItems(c.set, zovQMIWDSModifyProfileSettingsReq(gReq, sizeof gReq, 0, index));
    int rc = simple(c, ZOVQMI_SERVICE_WDS, "modify profile", n, zovQMIWDSModifyProfileSettingsResp);
    if (rc == kOk) c.out.num("modified_profile", "profile modified", index);
    return rc;
}

int runDeleteProfile(Cli& c, Step& st) {
    uint8_t index = uint8_t(st.n[0]);
    int rc = simple(c, ZOVQMI_SERVICE_WDS, "delete profile", zovQMIWDSDeleteProfileReq(gReq, sizeof gReq, 0, index),
                    zovQMIWDSDeleteProfileResp);
    if (rc == kOk) c.out.num("deleted_profile", "profile deleted", index);
    return rc;
}

int runDefaultProfile(Cli& c, Step& st) {
    uint8_t index = uint8_t(st.n[0]);
    // Profile family 0 (3GPP), for calls started over WDS (family 1 is
    // the embedded one: both are set alike by most hosts; the socket family
    // is what a router uses).
    int rc = simple(c, ZOVQMI_SERVICE_WDS, "set default profile",
                    zovQMIWDSSetDefaultProfileNumReq(gReq, sizeof gReq, 0, 1, index), zovQMIWDSSetDefaultProfileNumResp);
    if (rc == kOk) c.out.num("default_profile", "default profile", index);
    return rc;
}

// ===================================================================== CTL ==

int checkDataFormat(Step& st) {
    if (strcmp(st.arg[0], "802.3") == 0) st.n[0] = 1;
    else if (strcmp(st.arg[0], "raw-ip") == 0) st.n[0] = 2;
    else return usageError("bad --ctl-set-data-format %s (raw-ip or 802.3)", st.arg[0]);
    return kExitOk;
}

int runDataFormat(Cli& c, Step& st) {
    zovQMICTLSetDataFormatReq(gReq, sizeof gReq, 0);
    int n = zovQMICTLSetDataFormatReqAddUnderlyingLinkLayerProtocol(gReq, sizeof gReq, uint16_t(st.n[0]));
    int rc = c.s.request(ZOVQMI_SERVICE_CTL, 0, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("set data format", zovQMICTLSetDataFormatResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    uint16_t protocol = uint16_t(st.n[0]);
    zovQMICTLSetDataFormatRespGetUnderlyingLinkLayerProtocol(gM.bytes, gM.len, &protocol);
    const char* name = protocol == 1 ? "802.3" : protocol == 2 ? "raw-ip" : "unknown";
    c.out.str("data_format", "data format", name);
    if (protocol != st.n[0]) return c.s.fail(kBadAnswer, "set data format: the modem chose %s", name);
    return kOk;
}

// ===================================================================== WMS ==

int runWmsList(Cli& c, Step& st) {
    uint8_t store = uint8_t(st.n[0]);
    int rc = c.s.request(ZOVQMI_SERVICE_WMS, gReq, zovQMIWMSListMessagesReq(gReq, sizeof gReq, store), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint32_t count = 0;
    const char* what = "list messages";
    if ((rc = CHECKED(what, zovQMIWMSListMessagesResp(gM.bytes, gM.len, &r, &count, nullptr, nullptr))) != kOk)
        return rc;
    static uint32_t idx[kMaxMessage / 5];
    static uint8_t tags[kMaxMessage / 5];
    if (count > uint32_t(areaLen() / 5)) return bad(c, what, "more messages than the message holds");
    if (count && zovQMIWMSListMessagesResp(gM.bytes, gM.len, &r, &count, idx, tags) < 0)
        return bad(c, what, "message list unreadable");
    c.out.openArray("messages");
    c.out.text("messages: %u\n", count);
    for (uint32_t i = 0; i < count; ++i) {
        c.out.open(nullptr);
        c.out.jnum("index", idx[i]);
        c.out.jstr("tag", tagName(tags[i]));
        c.out.close();
        c.out.text("  %u: %s\n", idx[i], tagName(tags[i]));
    }
    c.out.close();
    return kOk;
}

int checkStore0(Step& st) { return checkStore(st, 0); }

int checkStoreIndex(Step& st) {
    int rc = checkStore(st, 0);
    return rc != kExitOk ? rc : checkIndexArg(st, 1, 0, 0xFFFFFFFFll, "message index");
}

void hexOut(const uint8_t* b, int n, char* out) {
    static const char kHex[] = "0123456789ABCDEF";
    for (int i = 0; i < n; ++i) {
        out[2 * i] = kHex[b[i] >> 4];
        out[2 * i + 1] = kHex[b[i] & 15];
    }
    out[2 * n] = 0;
}

int runWmsRead(Cli& c, Step& st) {
    uint8_t store = uint8_t(st.n[0]);
    uint32_t index = uint32_t(st.n[1]);
    int rc = c.s.request(ZOVQMI_SERVICE_WMS, gReq, zovQMIWMSRawReadReq(gReq, sizeof gReq, store, index), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    // The raw message: a 10-byte head and the PDU, no longer than the answer.
    // (The library refuses a length that runs past the answer, so the
    // answer's size bounds what it copies.)
    static uint8_t rec[10 + kMaxMessage];
    memset(rec, 0, 10);
    const char* what = "read message";
    int parsed = zovQMIWMSRawReadResp(gM.bytes, gM.len, &r, reinterpret_cast<WMSRawMessage*>(rec));
    if ((rc = c.s.check(what, parsed, r)) != kOk) return rc;
    uint16_t len = le16(rec + 8);
    if (len > areaLen()) return bad(c, what, "message longer than the answer");
    static DecodedSms sms;
    int dec = decodePdu(rec + 10, len, &sms);
    static char hex[2 * kMaxMessage + 1];
    hexOut(rec + 10, len, hex);
    c.out.open("message");
    c.out.jnum("index", index);
    c.out.jstr("tag", tagName(rec[6]));
    c.out.jnum("format", rec[7]);
    c.out.jstr("pdu", hex);
    c.out.text("message %u: %s\nPDU: %s\n", index, tagName(rec[6]), hex);
    if (dec == kPduOk) {
        c.out.str("type", "type", sms.submit ? "submit" : "deliver");
        c.out.str("address", sms.submit ? "to" : "from", sms.address);
        if (sms.centre[0]) c.out.str("smsc", "SMSC", sms.centre);
        if (sms.hasTime) {
            char t[40];
            snprintf(t, sizeof t, "%04d-%02d-%02d %02d:%02d:%02d %c%02d:%02d", sms.year, sms.month, sms.day, sms.hour,
                     sms.minute, sms.second, sms.zoneMinutes < 0 ? '-' : '+', abs(sms.zoneMinutes) / 60,
                     abs(sms.zoneMinutes) % 60);
            c.out.str("time", "time", t);
        }
        c.out.str("encoding", "encoding", codingName(sms.coding));
        if (sms.concatenated) {
            c.out.open("concatenation");
            c.out.jnum("reference", sms.reference);
            c.out.jnum("part", sms.part);
            c.out.jnum("parts", sms.total);
            c.out.close();
            c.out.text("part: %d of %d (reference %d)\n", sms.part, sms.total, sms.reference);
        }
        c.out.str("text", sms.coding == kCodingData8 ? "data" : "text", sms.text, sms.textLen);
    } else {
        c.out.str("decode_error", "not decoded", pduStatusText(dec));
    }
    c.out.close();
    return kOk;
}

int checkSend(Step& st) {
    if (!validNumber(st.arg[0])) return usageError("bad number %s (+ and 1 to 20 digits)", st.arg[0]);
    static SubmitParts probe;
    int rc = encodeSubmit(st.arg[0], st.arg[1], 0, &probe);
    if (rc != kPduOk) return usageError("bad message text: %s", pduStatusText(rc));
    return kExitOk;
}

int runSend(Cli& c, Step& st) {
    static SubmitParts parts;
    uint8_t reference = uint8_t(monotonicMs() ^ getpid());
    encodeSubmit(st.arg[0], st.arg[1], reference, &parts);
    uint16_t ids[kMaxParts];
    for (int p = 0; p < parts.count; ++p) {
        static uint8_t raw[10 + kPduMax];
        memset(raw, 0, 10);
        raw[7] = 6;  // GSM/WCDMA point to point
        raw[8] = uint8_t(parts.len[p]);
        raw[9] = uint8_t(parts.len[p] >> 8);
        memcpy(raw + 10, parts.pdu[p], size_t(parts.len[p]));
        int rc = c.s.request(ZOVQMI_SERVICE_WMS, gReq,
                             zovQMIWMSRawSendReq(gReq, sizeof gReq, reinterpret_cast<const WMSRawMessage*>(raw)), &gM);
        if (rc != kOk) return rc;
        QmiResult r = {};
        char what[48];
        uint16_t cause = 0;
        int len = snprintf(what, sizeof what, "send message");
        if (parts.count > 1) len += snprintf(what + len, sizeof what - size_t(len), " part %d", p + 1);
        int parsed = zovQMIWMSRawSendResp(gM.bytes, gM.len, &r, &ids[p]);
        if (le16(&r) != 0 && zovQMIWMSRawSendRespGetCauseCode(gM.bytes, gM.len, &cause) >= 0)
            snprintf(what + len, sizeof what - size_t(len), " (cause %u)", cause);
        if ((rc = c.s.check(what, parsed, r)) != kOk) return rc;
    }
    c.out.open("sent");
    c.out.str("encoding", nullptr, codingName(parts.coding));
    c.out.openArray("message_ids");
    for (int p = 0; p < parts.count; ++p) c.out.jnum(nullptr, ids[p]);
    c.out.close();
    c.out.close();
    c.out.text("message sent (%s, %d part%s, message id", codingName(parts.coding), parts.count,
               parts.count > 1 ? "s" : "");
    for (int p = 0; p < parts.count; ++p) c.out.text("%s %u", p ? "," : "", ids[p]);
    c.out.text(")\n");
    return kOk;
}

int runWmsDelete(Cli& c, Step& st) {
    uint8_t store = uint8_t(st.n[0]);
    uint32_t index = uint32_t(st.n[1]);
    zovQMIWMSDeleteReq(gReq, sizeof gReq, store);
    int n = zovQMIWMSDeleteReqAddMemoryIndex(gReq, sizeof gReq, index);
    int rc = simple(c, ZOVQMI_SERVICE_WMS, "delete message", n, zovQMIWMSDeleteResp);
    if (rc != kOk) return rc;
    c.out.jnum("deleted_message", index);
    c.out.text("message %u deleted\n", index);
    return kOk;
}

int runGetSmsc(Cli& c, Step&) {
    int rc = c.s.request(ZOVQMI_SERVICE_WMS, gReq, zovQMIWMSGetSMSCAddressReq(gReq, sizeof gReq), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    uint8_t type[4] = {}, len = 0;
    char address[256];
    const char* what = "SMSC address";
    if ((rc = CHECKED(what, zovQMIWMSGetSMSCAddressResp(gM.bytes, gM.len, &r, type, &len, nullptr))) != kOk) return rc;
    if (len > areaLen()) return bad(c, what, "address longer than the answer");
    if (zovQMIWMSGetSMSCAddressResp(gM.bytes, gM.len, &r, type, &len, reinterpret_cast<uint8_t*>(address)) < 0)
        return bad(c, what, "address unreadable");
    address[len] = 0;
    char t[4];
    for (int i = 0; i < 3; ++i) t[i] = type[i] >= 0x20 && type[i] < 0x7F ? char(type[i]) : '?';
    t[3] = 0;
    c.out.open("smsc");
    c.out.str("address", "SMSC", address, len);
    c.out.str("type", "SMSC type", t);
    c.out.close();
    return kOk;
}

int checkSetSmsc(Step& st) {
    return validNumber(st.arg[0]) ? kExitOk : usageError("bad SMSC number %s (+ and 1 to 20 digits)", st.arg[0]);
}

int runSetSmsc(Cli& c, Step& st) {
    const char* number = st.arg[0];
    // Type of number: 145 international (with +), 129 otherwise.
    const char* type = number[0] == '+' ? "145" : "129";
    zovQMIWMSSetSMSCAddressReq(gReq, sizeof gReq, uint16_t(strlen(number)), number);
    int n = zovQMIWMSSetSMSCAddressReqAddSMSCAddressType(gReq, sizeof gReq, 3, type);
    int rc = simple(c, ZOVQMI_SERVICE_WMS, "set SMSC address", n, zovQMIWMSSetSMSCAddressResp);
    if (rc == kOk) c.out.str("smsc_set", "SMSC set", number);
    return rc;
}

// ===================================================================== PBM ==

// The phonebook the tool works on: session 0 (GW primary), ADN.
constexpr uint8_t kPbSession = 0;
constexpr uint16_t kPbAdn = 1;

// Records one read delivers at most (ids up to 65535, and modems keep some
// hundreds): enough for any SIM phonebook.
constexpr int kMaxRecords = 1000;

int checkPbmRead(Step& st) {
    const char* v = st.arg[0];
    if (strcmp(v, "all") == 0) {
        st.n[0] = 1, st.n[1] = 65535;
        return kExitOk;
    }
    char first[8] = {};
    const char* dash = strchr(v, '-');
    size_t len = dash ? size_t(dash - v) : strlen(v);
    if (len == 0 || len >= sizeof first) return usageError("bad record range %s (FIRST[-LAST] or all)", v);
    memcpy(first, v, len);
    if (!parseNumber(first, 1, 65535, &st.n[0])) return usageError("bad record range %s (FIRST[-LAST] or all)", v);
    st.n[1] = st.n[0];
    if (dash && (!parseNumber(dash + 1, st.n[0], 65535, &st.n[1])))
        return usageError("bad record range %s (FIRST[-LAST] or all)", v);
    return kExitOk;
}

// Reads records [first, last] through their record-read indications and
// prints them under `key`.
int readRecords(Cli& c, uint16_t first, uint16_t last, const char* key, const char* label, bool printOpen,
                bool* found) {
    int n = zovQMIPBMReadRecordsReq(gReq, sizeof gReq, kPbSession, kPbAdn, first, last);
    int rc = c.s.request(ZOVQMI_SERVICE_PBM, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("read records", zovQMIPBMReadRecordsResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    uint16_t count = 0;
    zovQMIPBMReadRecordsRespGetNumberOfRecords(gM.bytes, gM.len, &count);
    if (printOpen) {
        c.out.openArray(key);
        c.out.text("%s:\n", label);
    }
    static PBMRecordSet set;
    int seen = 0;
    while (seen < count && seen < kMaxRecords) {
        rc = c.s.awaitIndication(ZOVQMI_SERVICE_PBM, 0x0004, -1, &gM);
        if (rc != kOk) return rc;
        memset(&set, 0, sizeof set);
        if (zovQMIPBMRecordReadIND(gM.bytes, gM.len, &set) < 0) return bad(c, "record read indication", "does not parse");
        if (set.recordCount == 0 || set.recordCount > 10) return bad(c, "record read indication", "bad record count");
        for (int i = 0; i < set.recordCount; ++i) {
            const PBMNumberSlot& num = set.numbers[i][0];
            const PBMTextSlot& name = set.name[i];
            int nl = num.length < 40 ? num.length : 40, tl = name.length < 242 ? name.length : 242;
            char number[48];
            int k = 0;
            if (num.attribute1 == 0x91) number[k++] = '+';
            memcpy(number + k, num.number, size_t(nl));
            number[k + nl] = 0;
            c.out.open(nullptr);
            c.out.jnum("id", le16(set.recordId[i]));
            c.out.jstr("name", reinterpret_cast<const char*>(name.text), tl);
            c.out.jstr("number", number);
            c.out.close();
            c.out.text("  %u: %.*s <%s>\n", le16(set.recordId[i]), tl, reinterpret_cast<const char*>(name.text), number);
            if (found) *found = true;
        }
        seen += set.recordCount;
    }
    return kOk;
}

int runPbmRead(Cli& c, Step& st) {
    int rc = readRecords(c, uint16_t(st.n[0]), uint16_t(st.n[1]), "records", "phonebook records", true, nullptr);
    if (rc == kOk) c.out.close();
    return rc;
}

bool validPhonebookNumber(const char* s) {
    const char* d = s + (s[0] == '+' ? 1 : 0);
    size_t n = strlen(d);
    if (n < 1 || n > 40) return false;
    for (size_t i = 0; i < n; ++i)
        if (!strchr("0123456789*#pw", d[i])) return false;
    return true;
}

int checkPbmWrite(Step& st) {
    int rc = checkIndexArg(st, 0, 0, 65535, "record id");
    if (rc != kExitOk) return rc;
    size_t nl = strlen(st.arg[1]);
    if (nl < 1 || nl > 241) return usageError("bad name (1 to 241 bytes)");
    if (!validPhonebookNumber(st.arg[2]))
        return usageError("bad phonebook number %s (up to 40 of 0-9 * # p w, + first)", st.arg[2]);
    return kExitOk;
}

int runPbmWrite(Cli& c, Step& st) {
    static PBMRecordSet set;
    memset(&set, 0, sizeof set);
    const char *name = st.arg[1], *number = st.arg[2];
    bool intl = number[0] == '+';
    if (intl) ++number;
    set.selectorByte = kPbSession;
    set.selectorWord[0] = uint8_t(kPbAdn), set.selectorWord[1] = uint8_t(kPbAdn >> 8);
    set.recordCount = 1;
    set.recordId[0][0] = uint8_t(st.n[0]), set.recordId[0][1] = uint8_t(st.n[0] >> 8);
    PBMNumberSlot& num = set.numbers[0][0];
    num.attribute1 = intl ? 0x91 : 0x81;
    num.length = uint8_t(strlen(number));
    memcpy(num.number, number, num.length);
    set.name[0].length = uint8_t(strlen(name));
    memcpy(set.name[0].text, name, set.name[0].length);
    int rc = c.s.request(ZOVQMI_SERVICE_PBM, gReq, zovQMIPBMWriteRecordReq(gReq, sizeof gReq, &set), &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    if ((rc = CHECKED("write record", zovQMIPBMWriteRecordResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    uint16_t id = uint16_t(st.n[0]);
    zovQMIPBMWriteRecordRespGetRecordInfo(gM.bytes, gM.len, &id);
    c.out.num("written_record", "record written", id);
    return kOk;
}

int checkPbmDelete(Step& st) { return checkIndexArg(st, 0, 1, 65535, "record id"); }

int runPbmDelete(Cli& c, Step& st) {
    uint16_t id = uint16_t(st.n[0]);
    int rc = simple(c, ZOVQMI_SERVICE_PBM, "delete record",
                    zovQMIPBMDeleteRecordReq(gReq, sizeof gReq, kPbSession, kPbAdn, id), zovQMIPBMDeleteRecordResp);
    if (rc == kOk) c.out.num("deleted_record", "record deleted", id);
    return rc;
}

int checkPbmSearch(Step& st) {
    size_t n = strlen(st.arg[0]);
    return n >= 1 && n <= 241 ? kExitOk : usageError("bad search name (1 to 241 bytes)");
}

int runPbmSearch(Cli& c, Step& st) {
    const char* name = st.arg[0];
    zovQMIPBMSearchRecordsReq(gReq, sizeof gReq, kPbSession, kPbAdn);
    int n = zovQMIPBMSearchRecordsReqAddNameInformation(gReq, sizeof gReq, uint8_t(strlen(name)), name);
    int rc = c.s.request(ZOVQMI_SERVICE_PBM, gReq, n, &gM);
    if (rc != kOk) return rc;
    QmiResult r = {};
    const char* what = "search records";
    if ((rc = CHECKED(what, zovQMIPBMSearchRecordsResp(gM.bytes, gM.len, &r))) != kOk) return rc;
    uint16_t count = 0;
    static uint16_t ids[kMaxMessage / 2];
    if (zovQMIPBMSearchRecordsRespGetRecordIDsList(gM.bytes, gM.len, &count, nullptr) < 0) count = 0;
    if (count * 2 > areaLen()) return bad(c, what, "more ids than the message holds");
    if (count && zovQMIPBMSearchRecordsRespGetRecordIDsList(gM.bytes, gM.len, &count, ids) < 0)
        return bad(c, what, "id list unreadable");
    c.out.openArray("found");
    c.out.text("records found: %u\n", count);
    for (int i = 0; i < count && rc == kOk; ++i) rc = readRecords(c, ids[i], ids[i], nullptr, nullptr, false, nullptr);
    if (rc == kOk) c.out.close();
    return rc;
}

// ===================================================================== PDS ==

struct Fix {
    bool has;
    double latitude, longitude;
    int altitude;
    int year, month, day, hour, minute, second;
};

double asDouble(uint64_t bits) {
    double d;
    memcpy(&d, &bits, sizeof d);
    return d;
}

// One event report: prints its NMEA sentence, reads its parsed position.
// A session status other than success ends the session with a failure.
int eventReport(Cli& c, Fix* fix) {
    static char nmea[kMaxMessage];
    if (textItem(zovQMIPDSEventReportINDGetPositionDataNMEA, nmea, sizeof nmea)) {
        int len = int(strlen(nmea));
        while (len > 0 && (nmea[len - 1] == '\n' || nmea[len - 1] == '\r')) nmea[--len] = 0;
        c.out.jstr(nullptr, nmea, len);
        c.out.text("NMEA: %s\n", nmea);
        fflush(stdout);
    }
    uint8_t status = 0;
    if (zovQMIPDSEventReportINDGetPositionSessionStatus(gM.bytes, gM.len, &status) >= 0 && status != 0)
        return c.s.fail(kQmiFailure, "position session ended with status %u", status);
    ParsedPositionData p;
    if (zovQMIPDSEventReportINDGetParsedPositionData(gM.bytes, gM.len, &p) >= 0) {
        fix->has = true;
        fix->latitude = asDouble(le64(&p.latitude));
        fix->longitude = asDouble(le64(&p.longitude));
        fix->altitude = int32_t(le32(&p.altitudeFromSeaLevel));
        fix->year = le16(&p.year);
        fix->month = p.month, fix->day = p.dayOfMonth;
        fix->hour = p.hour, fix->minute = p.minute, fix->second = p.second;
    }
    return kOk;
}

int subscribe(Cli& c) {
    zovQMIPDSSetEventReportReq(gReq, sizeof gReq);
    zovQMIPDSSetEventReportReqAddPositionDataNMEA(gReq, sizeof gReq, 1);
    int n = zovQMIPDSSetEventReportReqAddParsedPositionData(gReq, sizeof gReq, 1);
    return simple(c, ZOVQMI_SERVICE_PDS, "position event report", n, zovQMIPDSSetEventReportResp);
}

int runSingleFix(Cli& c, Step&) {
    int rc = subscribe(c);
    if (rc != kOk) return rc;
    zovQMIPDSDetermineSinglePositionReq(gReq, sizeof gReq);
    int n = zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(gReq, sizeof gReq, 30);
    if ((rc = simple(c, ZOVQMI_SERVICE_PDS, "single position fix", n, zovQMIPDSDetermineSinglePositionResp)) != kOk)
        return rc;
    Fix fix = {};
    c.out.open("fix");
    c.out.openArray("nmea");
    // A fix may take a minute under an open sky; --timeout bounds it instead.
    int limit = c.set.timeoutGiven ? c.s.timeout() : 60000;
    int64_t until = monotonicMs() + limit;
    while (!fix.has) {
        int left = int(until - monotonicMs());
        if (left <= 0) return c.s.fail(kTimeout, "timeout: no position within %d ms", limit);
        if ((rc = c.s.awaitIndication(ZOVQMI_SERVICE_PDS, 0x0001, left, &gM)) != kOk) return rc;
        if ((rc = eventReport(c, &fix)) != kOk) return rc;
    }
    c.out.close();
    char v[32];
    snprintf(v, sizeof v, "%.6f", fix.latitude);
    c.out.jstr("latitude", v);  // as text: JSON numbers of this writer are integers
    snprintf(v, sizeof v, "%.6f", fix.longitude);
    c.out.jstr("longitude", v);
    c.out.jnum("altitude", fix.altitude);
    c.out.close();
    c.out.text("position: %.6f, %.6f, %d m (%04d-%02d-%02d %02d:%02d:%02d UTC)\n", fix.latitude, fix.longitude,
               fix.altitude, fix.year, fix.month, fix.day, fix.hour, fix.minute, fix.second);
    return kOk;
}

int setTracking(Cli& c, bool on) {
    return simple(c, ZOVQMI_SERVICE_PDS, on ? "start tracking" : "stop tracking",
                  zovQMIPDSSetAutoTrackingStateReq(gReq, sizeof gReq, on ? 1 : 0), zovQMIPDSSetAutoTrackingStateResp);
}

int runStartTracking(Cli& c, Step&) {
    int rc = subscribe(c);
    if (rc != kOk) return rc;
    // The GPS on (already on is no failure), a fix a second, then tracking.
    rc = simple(c, ZOVQMI_SERVICE_PDS, "GPS service state", zovQMIPDSSetGPSServiceStateReq(gReq, sizeof gReq, 1),
                zovQMIPDSSetGPSServiceStateResp);
    if (rc == kQmiFailure && c.s.qmiError() == 0x001A) rc = kOk;
    if (rc != kOk) return rc;
    rc = simple(c, ZOVQMI_SERVICE_PDS, "tracking session",
                zovQMIPDSSetDefaultTrackingSessionReq(gReq, sizeof gReq, 0, 255, 1000, 50),
                zovQMIPDSSetDefaultTrackingSessionResp);
    if (rc != kOk) return rc;
    if ((rc = setTracking(c, true)) != kOk) return rc;
    c.out.open("tracking");
    c.out.openArray("nmea");
    long fixes = 0;
    while (c.set.count == 0 || fixes < c.set.count) {
        // No end but the count, a signal or the device going away: a fix
        // may take minutes under a roof.
        rc = c.s.awaitIndication(ZOVQMI_SERVICE_PDS, 0x0001, 3600000, &gM);
        if (rc == kTimeout) continue;
        if (rc != kOk) break;
        Fix fix = {};
        if ((rc = eventReport(c, &fix)) != kOk) break;
        if (fix.has) ++fixes;
    }
    bool interrupted = rc == kInterrupted;
    if (rc != kOk && !interrupted) return rc;
    if (interrupted) {
        // Take the signal's byte so that the teardown below can wait again.
        char b;
        while (read(c.wakeFd, &b, 1) == 1) {
        }
    }
    c.out.close();
    c.out.jnum("fixes", fixes);
    c.out.close();
    if ((rc = setTracking(c, false)) != kOk) return rc;
    c.out.text("tracking stopped after %ld fix%s%s\n", fixes, fixes == 1 ? "" : "es", interrupted ? " (interrupted)" : "");
    return kOk;
}

int runStopTracking(Cli& c, Step&) {
    int rc = setTracking(c, false);
    if (rc == kOk) {
        c.out.jstr("tracking", "stopped");
        c.out.text("tracking stopped\n");
    }
    return rc;
}

// ===================================================================== raw ==

// Items of one raw request, and their bytes.
constexpr int kMaxRawItems = 8;
struct RawItem {
    uint8_t type;
    uint16_t len;
    uint8_t value[256];
};
RawItem gRaw[kMaxRawItems];

int hexNibble(char ch) {
    if (ch >= '0' && ch <= '9') return ch - '0';
    if (ch >= 'a' && ch <= 'f') return ch - 'a' + 10;
    if (ch >= 'A' && ch <= 'F') return ch - 'A' + 10;
    return -1;
}

// SERVICE:MSGID[:TYPE=HEX,...]; the items are parsed again when the action
// runs (the check keeps nothing but numbers).
int parseRaw(const char* v, long long* service, long long* id, RawItem* items, int* count) {
    const char* rest;
    int svc = serviceOf(v, &rest);
    if (svc < 0) return usageError("bad --send-raw %s (SERVICE:MSGID[:TYPE=HEX,...])", v);
    *service = svc;
    char num[16];
    const char* colon = strchr(rest, ':');
    size_t len = colon ? size_t(colon - rest) : strlen(rest);
    if (len == 0 || len >= sizeof num) return usageError("bad message id in --send-raw %s", v);
    memcpy(num, rest, len);
    num[len] = 0;
    if (!parseNumber(num, 0, 0xFFFF, id)) return usageError("bad message id in --send-raw %s", v);
    *count = 0;
    if (!colon) return kExitOk;
    const char* p = colon + 1;
    while (*p) {
        if (*count == kMaxRawItems) return usageError("more than %d items in --send-raw", kMaxRawItems);
        RawItem& it = items[(*count)++];
        const char* eq = strchr(p, '=');
        const char* comma = strchr(p, ',');
        if (!eq || (comma && comma < eq) || size_t(eq - p) >= sizeof num)
            return usageError("bad item in --send-raw %s (TYPE=HEX)", v);
        memcpy(num, p, size_t(eq - p));
        num[eq - p] = 0;
        long long type;
        if (!parseNumber(num, 0, 255, &type)) return usageError("bad item type %s in --send-raw", num);
        it.type = uint8_t(type);
        it.len = 0;
        const char* h = eq + 1;
        const char* end = comma ? comma : h + strlen(h);
        if ((end - h) % 2) return usageError("odd number of hex digits in --send-raw item 0x%02X", it.type);
        if ((end - h) / 2 > int(sizeof it.value)) return usageError("--send-raw item 0x%02X longer than 256 bytes", it.type);
        for (; h < end; h += 2) {
            int hi = hexNibble(h[0]), lo = hexNibble(h[1]);
            if (hi < 0 || lo < 0) return usageError("bad hex digits in --send-raw item 0x%02X", it.type);
            it.value[it.len++] = uint8_t(hi << 4 | lo);
        }
        p = comma ? comma + 1 : end;
    }
    return kExitOk;
}

int checkRaw(Step& st) {
    int count;
    return parseRaw(st.arg[0], &st.n[0], &st.n[1], gRaw, &count);
}

int runRaw(Cli& c, Step& st) {
    int count = 0;
    long long svc, id;
    parseRaw(st.arg[0], &svc, &id, gRaw, &count);
    bool control = svc == ZOVQMI_SERVICE_CTL;
    uint16_t tx = uint16_t(zovQMIMSMGetNextTransactionID());
    int n;
    if (control) {
        const uint8_t h[6] = {0, uint8_t(tx), uint8_t(id), uint8_t(id >> 8), 0, 0};
        memcpy(gReq, h, 6);
        n = 6;
    } else {
        const uint8_t h[7] = {0, uint8_t(tx), uint8_t(tx >> 8), uint8_t(id), uint8_t(id >> 8), 0, 0};
        memcpy(gReq, h, 7);
        n = 7;
    }
    static QmiTlvRecord tlv;
    for (int i = 0; i < count && n >= 0; ++i) {
        tlv.type = gRaw[i].type;
        uint8_t* len = reinterpret_cast<uint8_t*>(&tlv.length);
        len[0] = uint8_t(gRaw[i].len), len[1] = uint8_t(gRaw[i].len >> 8);  // the record keeps little-endian bytes
        memcpy(tlv.value, gRaw[i].value, gRaw[i].len);
        n = control ? zovQMIMSMControlAddTLV(gReq, sizeof gReq, &tlv) : zovQMIMSMMessageAddTLV(gReq, sizeof gReq, &tlv);
    }
    int rc = c.s.request(uint8_t(svc), gReq, n, &gM);
    if (rc != kOk) return rc;
    // The items of the answer, walked with every length checked.
    int head = control ? 6 : 7;
    const char* what = "raw request";
    if (gM.len < head) return bad(c, what, "shorter than its header");
    int area = le16(gM.bytes + head - 2);
    if (head + area > gM.len) return bad(c, what, "items longer than the message");
    const uint8_t* p = gM.bytes + head;
    QmiResult r = {};
    bool hasResult = false;
    static char hex[2 * kMaxMessage + 1];
    c.out.open("raw");
    c.out.openArray("items");
    for (int off = 0; off < area;) {
        if (off + 3 > area) return bad(c, what, "item header cut short");
        uint8_t type = p[off];
        int len = le16(p + off + 1);
        if (off + 3 + len > area) return bad(c, what, "item longer than the message");
        hexOut(p + off + 3, len, hex);
        c.out.open(nullptr);
        c.out.jnum("type", type);
        c.out.jstr("value", hex);
        c.out.close();
        c.out.text("item 0x%02X (%d bytes): %s\n", type, len, hex);
        if (type == 0x02 && len >= 4) {
            memcpy(&r, p + off + 3, 4);
            hasResult = true;
        }
        off += 3 + len;
    }
    c.out.close();
    c.out.close();
    char w[48];
    snprintf(w, sizeof w, "raw request 0x%04llX", id);
    if (!hasResult) return bad(c, w, "no result item");
    return c.s.check(w, 0, r);
}

}  // namespace

const Action kActions[] = {
    {"--get-client-id", 1, "SERVICE", "obtain a client id (wds, dms, nas, qos, wms, pds, pbm or a number)",
     checkGetClientId, runGetClientId},
    // device
    {"--dms-get-ids", 0, "", "manufacturer, model, revisions and serial numbers", nullptr, runDmsIds},
    {"--dms-get-capabilities", 0, "", "data rates, data service, SIM and radio interfaces", nullptr,
     runDmsCapabilities},
    {"--dms-get-power-state", 0, "", "power state flags and battery level", nullptr, runDmsPowerState},
    {"--dms-get-time", 0, "", "the modem's time", nullptr, runDmsTime},
    {"--dms-get-operating-mode", 0, "", "the operating mode", nullptr, runDmsGetMode},
    {"--dms-set-operating-mode", 1, "MODE",
     "online, low-power, factory-test, offline, reset, shutting-down, persistent-low-power, mode-only-low-power "
     "or a number",
     checkSetMode, runDmsSetMode},
    {"--dms-reset", 0, "", "reset the DMS service state of this client", nullptr, runDmsReset},
    // SIM
    {"--uim-verify-pin", 1, "PIN", "verify PIN1; prints the retries left", checkVerifyPin, runVerifyPin},
    {"--uim-get-pin-status", 0, "", "status and retries of PIN1 and PIN2", nullptr, runPinStatus},
    {"--uim-change-pin", 2, "OLD NEW", "change PIN1", checkChangePin, runChangePin},
    {"--uim-unblock-pin", 2, "PUK NEW", "unblock PIN1 with its PUK and set a new PIN", checkUnblockPin,
     runUnblockPin},
    {"--uim-set-pin-protection", 2, "on|off PIN", "ask for PIN1 at power-up, or not", checkPinProtection,
     runPinProtection},
    {"--uim-get-iccid", 0, "", "the SIM's ICCID", nullptr, runIccid},
    {"--uim-get-imsi", 0, "", "the subscriber's IMSI", nullptr, runImsi},
    {"--dms-get-msisdn", 0, "", "the subscriber's phone number", nullptr, runDmsMsisdn},
    // network
    {"--nas-get-signal-strength", 0, "", "signal strength and radio interface", nullptr, runSignal},
    {"--nas-get-serving-system", 0, "", "registration, attach state, radios and current network", nullptr,
     runServing},
    {"--nas-get-home-network", 0, "", "the SIM's home network", nullptr, runHomeNetwork},
    {"--nas-network-scan", 0, "", "the networks in range", nullptr, runScan},
    {"--nas-get-rf-band-info", 0, "", "radio, band class and channel in use", nullptr, runRfBands},
    {"--nas-get-system-selection", 0, "", "network modes, bands and roaming allowed", nullptr, runSystemSelection},
    {"--nas-set-network-modes", 1, "LIST", "auto, or a comma list of lte, umts, gsm, td-scdma, cdma-1x, cdma-evdo",
     checkNetworkModes, runSetNetworkModes},
    {"--nas-register", 1, "auto|MCC-MNC", "register automatically or on one network (MCC-MNC[/gsm|umts|lte])",
     checkRegister, runRegister},
    {"--nas-attach", 0, "", "attach to the packet domain", nullptr, runAttach},
    {"--nas-detach", 0, "", "detach from the packet domain", nullptr, runAttach},
    // data
    {"--wds-start-network", 1, "APN", "start a data call (see --user, --password, --auth, --profile, --ip-family)",
     checkStart, runStart},
    {"--wds-stop-network", 1, "HANDLE", "end a data call (with the WDS client id that started it, --client-id)",
     checkStop, runStop},
    {"--wds-get-packet-status", 0, "", "connection status of the data call", nullptr, runPacketStatus},
    {"--wds-get-statistics", 0, "", "packets, errors, overflows and bytes", nullptr, runStatistics},
    {"--wds-get-call-duration", 0, "", "duration of the data call", nullptr, runCallDuration},
    {"--wds-get-runtime-settings", 0, "", "addresses, DNS, gateway and MTU of the running call", nullptr, runRuntime},
    {"--wds-list-profiles", 0, "", "the stored data profiles", nullptr, runProfiles},
    {"--wds-create-profile", 0, "", "create a profile (--profile-name, --apn, --pdp-type, --user, --password, --auth)",
     nullptr, runCreateProfile},
    {"--wds-modify-profile", 1, "INDEX", "change a profile (the same options)", checkProfileIndex, runModifyProfile},
    {"--wds-delete-profile", 1, "INDEX", "delete a profile", checkProfileIndex, runDeleteProfile},
    {"--wds-set-default-profile", 1, "INDEX", "the profile calls use by default", checkProfileIndex,
     runDefaultProfile},
    {"--ctl-set-data-format", 1, "raw-ip|802.3", "link layer of the network interface", checkDataFormat,
     runDataFormat},
    // messages
    {"--wms-list", 1, "STORE", "messages of a store (uim or nv)", checkStore0, runWmsList},
    {"--wms-read", 2, "STORE INDEX", "one message: tag, PDU, sender, time and text", checkStoreIndex, runWmsRead},
    {"--wms-send", 2, "NUMBER TEXT", "send a text message (long text in concatenated parts)", checkSend, runSend},
    {"--wms-delete", 2, "STORE INDEX", "delete one message", checkStoreIndex, runWmsDelete},
    {"--wms-get-smsc", 0, "", "the service centre address", nullptr, runGetSmsc},
    {"--wms-set-smsc", 1, "NUMBER", "set the service centre address", checkSetSmsc, runSetSmsc},
    // phonebook
    {"--pbm-read", 1, "FIRST[-LAST]|all", "phonebook records (ADN) by record id", checkPbmRead, runPbmRead},
    {"--pbm-write", 3, "INDEX NAME NUMBER", "write a record (INDEX 0: the first free one)", checkPbmWrite,
     runPbmWrite},
    {"--pbm-delete", 1, "INDEX", "delete a record", checkPbmDelete, runPbmDelete},
    {"--pbm-search", 1, "NAME", "records whose name contains NAME", checkPbmSearch, runPbmSearch},
    // GPS
    {"--pds-single-fix", 0, "", "one GPS fix: NMEA sentences and the position", nullptr, runSingleFix},
    {"--pds-start-tracking", 0, "", "print NMEA until interrupted (or --count N fixes)", nullptr, runStartTracking},
    {"--pds-stop-tracking", 0, "", "stop tracking", nullptr, runStopTracking},
    // raw
    {"--send-raw", 1, "SERVICE:MSGID[:TYPE=HEX,...]", "send a request and print every item of the answer in hex",
     checkRaw, runRaw},
    {nullptr, 0, nullptr, nullptr, nullptr, nullptr},
};

}  // namespace zovapp
