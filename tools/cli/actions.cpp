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

// The answer being decoded (one at a time) and the request being built
// (large enough for any request the actions build).
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

int bad(Cli& c, const char* what, const char* why) {
    return c.s.fail(kBadAnswer, "%s: unexpected answer (%s)", what, why);
}

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

// --- requests and answers ---------------------------------------------------
//
// Requests are built here and answers read here, item by item, through the
// library's framing layer (transaction ids, item lookup): one small reader
// for every message keeps the program small, and every read is checked
// against the item's length.

int gReqLen = 0;
bool gReqCtl = false;

// Starts a request `id` of `service`.
void begin(uint8_t service, uint16_t id) {
    gReqCtl = service == ZOVQMI_SERVICE_CTL;
    uint16_t tx = uint16_t(zovQMIMSMGetNextTransactionID());
    int k = 0;
    gReq[k++] = 0;
    gReq[k++] = uint8_t(tx);
    if (!gReqCtl) gReq[k++] = uint8_t(tx >> 8);
    gReq[k++] = uint8_t(id);
    gReq[k++] = uint8_t(id >> 8);
    gReq[k++] = 0;
    gReq[k++] = 0;
    gReqLen = k;
}

// Appends an item (arguments are checked to fit long before).
void add(uint8_t type, const void* value, int len) {
    if (gReqLen + 3 + len > int(sizeof gReq)) return;
    uint8_t* p = gReq + gReqLen;
    p[0] = type;
    p[1] = uint8_t(len);
    p[2] = uint8_t(len >> 8);
    if (len) memcpy(p + 3, value, size_t(len));
    gReqLen += 3 + len;
    int area = gReqLen - (gReqCtl ? 6 : 7);
    gReq[gReqCtl ? 4 : 5] = uint8_t(area);
    gReq[gReqCtl ? 5 : 6] = uint8_t(area >> 8);
}
void add8(uint8_t type, uint32_t v) {
    uint8_t b = uint8_t(v);
    add(type, &b, 1);
}
void add16(uint8_t type, uint32_t v) {
    uint8_t b[2] = {uint8_t(v), uint8_t(v >> 8)};
    add(type, b, 2);
}
void add32(uint8_t type, uint32_t v) {
    uint8_t b[4] = {uint8_t(v), uint8_t(v >> 8), uint8_t(v >> 16), uint8_t(v >> 24)};
    add(type, b, 4);
}
void addText(uint8_t type, const char* s) { add(type, s, int(strlen(s))); }

// The items of the message in gM.
const uint8_t* gArea = nullptr;
int gAreaLen = 0;

// Finds the item area of gM; false when the header does not hold.
bool items() {
    int head = gM.service == ZOVQMI_SERVICE_CTL ? 6 : 7;
    gArea = nullptr;
    gAreaLen = 0;
    if (gM.len < head) return false;
    int n = le16(gM.bytes + head - 2);
    if (n > gM.len - head) return false;
    gArea = gM.bytes + head;
    gAreaLen = n;
    return true;
}

// One item of gM: every read is checked against its length (a read past
// it gives 0 and marks the item short).
struct Item {
    const uint8_t* p = nullptr;
    int n = 0;
    bool found = false;

    bool has(int off, int size) const { return found && off >= 0 && off + size <= n; }
    uint8_t u8(int off) const { return has(off, 1) ? p[off] : 0; }
    uint16_t u16(int off) const { return has(off, 2) ? le16(p + off) : 0; }
    uint32_t u32(int off) const { return has(off, 4) ? le32(p + off) : 0; }
    uint64_t u64(int off) const { return has(off, 8) ? le64(p + off) : 0; }
    const char* at(int off) const { return reinterpret_cast<const char*>(p + off); }
};

Item item(uint8_t type) {
    Item it;
    uint16_t n = 0;
    const uint8_t* v = gArea ? zovQMIMSMGetTLV(gArea, gAreaLen, type, &n) : nullptr;
    if (v && v >= gArea && v + n <= gArea + gAreaLen) {
        it.p = v;
        it.n = n;
        it.found = true;
    }
    return it;
}

// Sends the request built and reads the answer's items, without judging
// its result.
int send(Cli& c, uint8_t service, const char* what) {
    int rc = c.s.request(service, gReq, gReqLen, &gM);
    if (rc != kOk) return rc;
    if (!items()) return bad(c, what, "items longer than the message");
    return kOk;
}

// The result item of the answer: kOk, or the failure named after `what`.
int result(Cli& c, const char* what) {
    Item r = item(0x02);
    if (!r.has(0, 4)) return bad(c, what, "no result");
    return c.s.check(what, 0, *reinterpret_cast<const QmiResult*>(r.p));
}

int ask(Cli& c, uint8_t service, const char* what) {
    int rc = send(c, service, what);
    return rc != kOk ? rc : result(c, what);
}

// A mandatory item of at least `size` bytes.
int need(Cli& c, const char* what, uint8_t type, int size, Item* it) {
    *it = item(type);
    if (!it->has(0, size)) return bad(c, what, "an item is missing or short");
    return kOk;
}

// A text item into `out` (NUL-terminated); false when absent or too long.
bool text(uint8_t type, char* out, int cap) {
    Item it = item(type);
    out[0] = 0;
    if (!it.found || it.n >= cap) return false;
    memcpy(out, it.p, size_t(it.n));
    out[it.n] = 0;
    return true;
}

// A request without items whose answer's item 0x01 is a text.
int textRequest(Cli& c, uint8_t service, uint16_t id, const char* what, char* out, int cap) {
    begin(service, id);
    int rc = ask(c, service, what);
    if (rc != kOk) return rc;
    Item it = item(0x01);
    if (!it.found) return bad(c, what, "no text");
    if (!text(0x01, out, cap)) return bad(c, what, "text too long");
    return kOk;
}

void ipv4Text(uint32_t a, char* out, size_t cap) {
    snprintf(out, cap, "%u.%u.%u.%u", a >> 24, a >> 16 & 255, a >> 8 & 255, a & 255);
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

constexpr uint8_t kDms = ZOVQMI_SERVICE_DMS, kNas = ZOVQMI_SERVICE_NAS, kWds = ZOVQMI_SERVICE_WDS,
                  kWms = ZOVQMI_SERVICE_WMS, kPds = ZOVQMI_SERVICE_PDS, kPbm = ZOVQMI_SERVICE_PBM;

int runDmsIds(Cli& c, Step&) {
    static char mfr[256], model[256], rev[256], hw[256], imei[64], esn[64], meid[64];
    int rc;
    if ((rc = textRequest(c, kDms, 0x0021, "manufacturer", mfr, sizeof mfr)) != kOk ||
        (rc = textRequest(c, kDms, 0x0022, "model", model, sizeof model)) != kOk ||
        (rc = textRequest(c, kDms, 0x0023, "revision", rev, sizeof rev)) != kOk ||
        (rc = textRequest(c, kDms, 0x002C, "hardware revision", hw, sizeof hw)) != kOk)
        return rc;
    begin(kDms, 0x0025);
    if ((rc = ask(c, kDms, "serial numbers")) != kOk) return rc;
    text(0x10, esn, sizeof esn);
    text(0x11, imei, sizeof imei);
    text(0x12, meid, sizeof meid);
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
    char v[128];
    int rc = textRequest(c, kDms, 0x0024, "MSISDN", v, sizeof v);
    if (rc == kOk) c.out.str("msisdn", "MSISDN", v);
    return rc;
}

int runIccid(Cli& c, Step&) {
    char v[64];
    int rc = textRequest(c, kDms, 0x003C, "ICCID", v, sizeof v);
    if (rc == kOk) c.out.str("iccid", "ICCID", v);
    return rc;
}

int runImsi(Cli& c, Step&) {
    char v[64];
    int rc = textRequest(c, kDms, 0x0043, "IMSI", v, sizeof v);
    if (rc == kOk) c.out.str("imsi", "IMSI", v);
    return rc;
}

int runDmsCapabilities(Cli& c, Step&) {
    const char* what = "capabilities";
    begin(kDms, 0x0020);
    Item it;
    int rc = ask(c, kDms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 11, &it)) != kOk) return rc;
    int count = it.u8(10);
    if (!it.has(11, count)) return bad(c, what, "radio list longer than its item");
    static const char* const data[] = {"none", "cs", "ps", "simultaneous cs and ps", "non-simultaneous cs and ps"};
    uint8_t d = it.u8(8), sim = it.u8(9);
    c.out.open("capabilities");
    c.out.num("max_tx_rate", "max TX rate (bps)", it.u32(0));
    c.out.num("max_rx_rate", "max RX rate (bps)", it.u32(4));
    c.out.str("data_service", "data service", d < 5 ? data[d] : "unknown");
    c.out.str("sim", "SIM", sim == 2 ? "supported" : sim == 1 ? "not supported" : "unknown");
    c.out.openArray("radios");
    c.out.text("radios:");
    for (int i = 0; i < count; ++i) {
        c.out.jstr(nullptr, radioName(it.u8(11 + i)));
        c.out.text(" %s", radioName(it.u8(11 + i)));
    }
    c.out.text("\n");
    c.out.close();
    c.out.close();
    return kOk;
}

int runDmsPowerState(Cli& c, Step&) {
    const char* what = "power state";
    begin(kDms, 0x0026);
    Item it;
    int rc = ask(c, kDms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 2, &it)) != kOk) return rc;
    c.out.open("power_state");
    c.out.jnum("flags", it.u8(0));
    c.out.text("power state flags: 0x%02X\n", it.u8(0));
    c.out.num("battery_level", "battery level (%)", it.u8(1));
    c.out.close();
    return kOk;
}

int runDmsTime(Cli& c, Step&) {
    const char* what = "time";
    begin(kDms, 0x002F);
    Item it;
    int rc = ask(c, kDms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 8, &it)) != kOk) return rc;
    // 1.25 ms units since the GPS epoch, 1980-01-06 00:00:00 UTC.
    uint64_t ticks = 0;
    for (int i = 5; i >= 0; --i) ticks = ticks << 8 | it.u8(i);
    uint64_t ms = ticks * 5 / 4;
    time_t secs = time_t(315964800 + ms / 1000);
    struct tm t;
    char when[40];
    if (gmtime_r(&secs, &t)) strftime(when, sizeof when, "%Y-%m-%d %H:%M:%S UTC", &t);
    else snprintf(when, sizeof when, "unknown");
    c.out.open("time");
    c.out.str("time", "time", when);
    c.out.num("gps_time_ms", "GPS time (ms)", (long long)ms);
    c.out.num("source", "time source", it.u16(6));
    Item sys = item(0x10), user = item(0x11);
    if (sys.has(0, 8)) c.out.num("system_time_ms", "system time (ms)", (long long)sys.u64(0));
    if (user.has(0, 8)) c.out.num("user_time_ms", "user time (ms)", (long long)user.u64(0));
    c.out.close();
    return kOk;
}

int runDmsGetMode(Cli& c, Step&) {
    const char* what = "operating mode";
    begin(kDms, 0x002D);
    Item it;
    int rc = ask(c, kDms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 1, &it)) != kOk) return rc;
    uint8_t mode = it.u8(0);
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
    begin(kDms, 0x002E);
    add8(0x01, mode);
    int rc = ask(c, kDms, "set operating mode");
    if (rc == kOk) {
        c.out.jstr("set_operating_mode", modeName(mode));
        c.out.text("operating mode set: %s\n", modeName(mode));
    }
    return rc;
}

int runDmsReset(Cli& c, Step&) {
    begin(kDms, 0x0000);
    int rc = ask(c, kDms, "reset");
    if (rc == kOk) {
        c.out.jstr("dms_reset", "done");
        c.out.text("DMS service reset\n");
    }
    return rc;
}

// ===================================================================== UIM ==

// A PIN request built by the caller: the retries left come with success and
// failure alike, and a failure names them.  Prints the outcome under `key`.
int pinRequest(Cli& c, const char* what, const char* key, const char* flag, bool value, const char* done) {
    int rc = send(c, kDms, what);
    if (rc != kOk) return rc;
    Item r = item(0x10);
    bool have = r.has(0, 2);
    char w[96];
    Item res = item(0x02);
    if (have && res.has(0, 4) && res.u16(0) != 0)
        snprintf(w, sizeof w, "%s (%u retries left, %u unblock retries left)", what, r.u8(0), r.u8(1));
    else
        snprintf(w, sizeof w, "%s", what);
    if ((rc = result(c, w)) != kOk) return rc;
    c.out.open(key);
    c.out.flag(flag, nullptr, value);
    if (have) {
        c.out.jnum("retries_left", r.u8(0));
        c.out.jnum("unblock_retries_left", r.u8(1));
    }
    c.out.close();
    if (done) c.out.text("%s\n", done);
    else c.out.text("PIN verified (%u retries left, %u unblock retries left)\n", r.u8(0), r.u8(1));
    return kOk;
}

// The value of a PIN item: PIN id 1, then length-prefixed codes.
void pinItem(int first, const char* a, const char* b) {
    uint8_t v[2 + 2 * 17];
    int n = 0;
    v[n++] = 1;
    if (first >= 0) v[n++] = uint8_t(first);
    const char* codes[2] = {a, b};
    for (const char* s : codes) {
        if (!s) continue;
        int len = int(strlen(s));
        v[n++] = uint8_t(len);
        memcpy(v + n, s, size_t(len));
        n += len;
    }
    add(0x01, v, n);
}

int checkVerifyPin(Step& st) { return checkPin("PIN", st.arg[0]); }

int runVerifyPin(Cli& c, Step& st) {
    begin(kDms, 0x0028);
    pinItem(-1, st.arg[0], nullptr);
    return pinRequest(c, "verify PIN", "verify_pin", "verified", true, nullptr);
}

int runPinStatus(Cli& c, Step&) {
    begin(kDms, 0x002B);
    int rc = ask(c, kDms, "PIN status");
    if (rc != kOk) return rc;
    c.out.open("pin_status");
    for (int k = 1; k <= 2; ++k) {
        Item it = item(uint8_t(0x10 + k));
        if (!it.has(0, 3)) continue;
        c.out.open(k == 1 ? "pin1" : "pin2");
        c.out.jstr("status", pinStatusName(it.u8(0)));
        c.out.jnum("retries_left", it.u8(1));
        c.out.jnum("unblock_retries_left", it.u8(2));
        c.out.close();
        c.out.text("PIN%d: %s (%u retries left, %u unblock retries left)\n", k, pinStatusName(it.u8(0)), it.u8(1),
                   it.u8(2));
    }
    c.out.close();
    return kOk;
}

int checkChangePin(Step& st) {
    int rc = checkPin("old PIN", st.arg[0]);
    return rc != kExitOk ? rc : checkPin("new PIN", st.arg[1]);
}

int runChangePin(Cli& c, Step& st) {
    begin(kDms, 0x002A);
    pinItem(-1, st.arg[0], st.arg[1]);
    return pinRequest(c, "change PIN", "change_pin", "changed", true, "PIN changed");
}

int checkUnblockPin(Step& st) {
    if (!digitsOnly(st.arg[0], 8, 8)) return usageError("bad PUK %s (8 digits)", st.arg[0]);
    return checkPin("new PIN", st.arg[1]);
}

int runUnblockPin(Cli& c, Step& st) {
    begin(kDms, 0x0029);
    pinItem(-1, st.arg[0], st.arg[1]);
    return pinRequest(c, "unblock PIN", "unblock_pin", "unblocked", true, "PIN unblocked");
}

int checkPinProtection(Step& st) {
    if (strcmp(st.arg[0], "on") == 0) st.n[0] = 1;
    else if (strcmp(st.arg[0], "off") == 0) st.n[0] = 0;
    else return usageError("bad --uim-set-pin-protection %s (on or off)", st.arg[0]);
    return checkPin("PIN", st.arg[1]);
}

int runPinProtection(Cli& c, Step& st) {
    bool on = st.n[0] != 0;
    begin(kDms, 0x0027);
    pinItem(on ? 1 : 0, st.arg[1], nullptr);
    return pinRequest(c, "set PIN protection", "pin_protection", "enabled", on,
                      on ? "PIN protection enabled" : "PIN protection disabled");
}

// ===================================================================== NAS ==

int runSignal(Cli& c, Step&) {
    const char* what = "signal strength";
    begin(kNas, 0x0020);
    Item it;
    int rc = ask(c, kNas, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 2, &it)) != kOk) return rc;
    int dbm = int8_t(it.u8(0));
    c.out.open("signal_strength");
    c.out.jnum("dbm", dbm);
    c.out.jstr("radio", radioName(it.u8(1)));
    c.out.close();
    c.out.text("signal strength: %d dBm (%s)\n", dbm, radioName(it.u8(1)));
    return kOk;
}

// A network: MCC, MNC, then (at `descAt`) a length byte and the description.
bool network(const Item& it, int off, int descAt, uint16_t* mcc, uint16_t* mnc, const char** desc, int* len) {
    if (!it.has(off, descAt + 1)) return false;
    *mcc = it.u16(off);
    *mnc = it.u16(off + 2);
    *len = it.u8(off + descAt);
    *desc = it.at(off + descAt + 1);
    return it.has(off + descAt + 1, *len);
}

int runServing(Cli& c, Step&) {
    const char* what = "serving system";
    begin(kNas, 0x0024);
    Item it;
    int rc = ask(c, kNas, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 5, &it)) != kOk) return rc;
    int count = it.u8(4);
    if (!it.has(5, count)) return bad(c, what, "radio list longer than its item");
    uint16_t mcc = 0, mnc = 0;
    const char* desc = "";
    int len = 0;
    bool hasPlmn = network(item(0x12), 0, 4, &mcc, &mnc, &desc, &len);
    Item roaming = item(0x10);

    c.out.open("serving_system");
    c.out.str("registration", "registration", registrationName(it.u8(0)));
    c.out.flag("cs_attached", "CS attached", it.u8(1) == 1);
    c.out.flag("ps_attached", "PS attached", it.u8(2) == 1);
    c.out.openArray("radios");
    c.out.text("radios: %s", count ? "" : "none");
    for (int i = 0; i < count; ++i) {
        c.out.jstr(nullptr, radioName(it.u8(5 + i)));
        c.out.text("%s%s", i ? ", " : "", radioName(it.u8(5 + i)));
    }
    c.out.text("\n");
    c.out.close();
    if (hasPlmn) {
        c.out.jnum("mcc", mcc);
        c.out.jnum("mnc", mnc);
        c.out.jstr("network", desc, len);
        c.out.text("network: %u-%u %.*s\n", mcc, mnc, len, desc);
    } else {
        c.out.text("network: none\n");
    }
    if (roaming.has(0, 1)) c.out.flag("roaming", "roaming", roaming.u8(0) == 0);
    c.out.close();
    return kOk;
}

int runHomeNetwork(Cli& c, Step&) {
    const char* what = "home network";
    begin(kNas, 0x0025);
    int rc = ask(c, kNas, what);
    if (rc != kOk) return rc;
    uint16_t mcc, mnc;
    const char* desc;
    int len;
    if (!network(item(0x01), 0, 4, &mcc, &mnc, &desc, &len)) return bad(c, what, "network item missing or short");
    c.out.open("home_network");
    c.out.jnum("mcc", mcc);
    c.out.jnum("mnc", mnc);
    c.out.jstr("name", desc, len);
    c.out.close();
    c.out.text("home network: %03u-%02u %.*s\n", mcc, mnc, len, desc);
    return kOk;
}

int runScan(Cli& c, Step&) {
    const char* what = "network scan";
    begin(kNas, 0x0021);
    int rc = ask(c, kNas, what);
    if (rc != kOk) return rc;
    Item it = item(0x10);
    int count = it.u16(0);
    // Each network: MCC, MNC, status, a length byte and the description.
    int off = 2;
    for (int i = 0; i < count; ++i) {
        if (!it.has(off, 6) || !it.has(off + 6, it.u8(off + 5))) return bad(c, what, "network list cut short");
        off += 6 + it.u8(off + 5);
    }
    c.out.openArray("networks");
    c.out.text("networks: %d\n", count);
    off = 2;
    for (int i = 0; i < count; ++i) {
        uint16_t mcc = it.u16(off), mnc = it.u16(off + 2);
        int status = it.u8(off + 4), len = it.u8(off + 5);
        c.out.open(nullptr);
        c.out.jnum("mcc", mcc);
        c.out.jnum("mnc", mnc);
        c.out.jnum("status", status);
        c.out.jstr("name", it.at(off + 6), len);
        c.out.close();
        c.out.text("  %03u-%02u  status 0x%02X  %.*s\n", mcc, mnc, status, len, it.at(off + 6));
        off += 6 + len;
    }
    c.out.close();
    return kOk;
}

int runRfBands(Cli& c, Step&) {
    const char* what = "RF band information";
    begin(kNas, 0x0031);
    Item it;
    int rc = ask(c, kNas, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 1, &it)) != kOk) return rc;
    int count = it.u8(0);
    if (!it.has(1, count * 5)) return bad(c, what, "band list longer than its item");
    c.out.openArray("rf_bands");
    for (int i = 0, off = 1; i < count; ++i, off += 5) {
        c.out.open(nullptr);
        c.out.jstr("radio", radioName(it.u8(off)));
        c.out.jnum("band_class", it.u16(off + 1));
        c.out.jnum("channel", it.u16(off + 3));
        c.out.close();
        c.out.text("radio: %s, band class %u, channel %u\n", radioName(it.u8(off)), it.u16(off + 1), it.u16(off + 3));
    }
    c.out.close();
    return kOk;
}

void modeList(Cli& c, const char* key, const char* label, uint16_t modes) {
    c.out.openArray(key);
    c.out.text("%s:", label);
    for (const ModeBit& m : kModeBits)
        if (modes & m.bit) {
            c.out.jstr(nullptr, m.name);
            c.out.text(" %s", m.name);
        }
    c.out.text("\n");
    c.out.close();
}

int runSystemSelection(Cli& c, Step&) {
    begin(kNas, 0x0034);
    int rc = ask(c, kNas, "system selection");
    if (rc != kOk) return rc;
    c.out.open("system_selection");
    Item modes = item(0x11), bands = item(0x12), roam = item(0x14), emergency = item(0x10);
    if (modes.has(0, 2)) modeList(c, "modes", "network modes", modes.u16(0));
    if (bands.has(0, 8)) {
        char hex[24];
        snprintf(hex, sizeof hex, "0x%016llX", (unsigned long long)bands.u64(0));
        c.out.str("band_preference", "band preference", hex);
    }
    if (roam.has(0, 2)) c.out.num("roaming_preference", "roaming preference", roam.u16(0));
    if (emergency.has(0, 1)) c.out.flag("emergency_mode", "emergency mode", emergency.u8(0) != 0);
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
    begin(kNas, 0x0033);
    add16(0x11, uint32_t(st.n[0]));
    int rc = ask(c, kNas, "set network modes");
    if (rc == kOk) modeList(c, "network_modes", "network modes set", uint16_t(st.n[0]));
    return rc;
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
        st.n[3] = strcmp(slash + 1, "gsm") == 0 ? 4 : strcmp(slash + 1, "umts") == 0 ? 5
                : strcmp(slash + 1, "lte") == 0 ? 8 : -1;
        if (st.n[3] < 0) return usageError("bad radio in --nas-register %s (gsm, umts or lte)", s);
    }
    return kExitOk;
}

int runRegister(Cli& c, Step& st) {
    bool manual = st.n[0] != 0;
    begin(kNas, 0x0022);
    add8(0x01, manual ? 2 : 1);
    if (manual) {
        uint8_t v[5] = {uint8_t(st.n[1]), uint8_t(st.n[1] >> 8), uint8_t(st.n[2]), uint8_t(st.n[2] >> 8),
                        uint8_t(st.n[3])};
        add(0x10, v, 5);
    }
    int rc = ask(c, kNas, "network register");
    if (rc != kOk) return rc;
    char net[16] = "automatic";
    if (manual) snprintf(net, sizeof net, "%03lld-%02lld", st.n[1], st.n[2]);
    c.out.jstr("registered", manual ? net : "auto");
    c.out.text("registration requested: %s\n", net);
    return kOk;
}

int runAttach(Cli& c, Step& st) {
    bool attach = st.action->name[6] == 'a';  // --nas-attach / --nas-detach
    begin(kNas, 0x0023);
    add8(0x10, attach ? 1 : 2);
    int rc = ask(c, kNas, attach ? "attach" : "detach");
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
    int rc;
    if (s.ipFamily) {
        begin(kWds, 0x004D);
        add8(0x01, uint32_t(s.ipFamily));
        if ((rc = ask(c, kWds, "IP family preference")) != kOk) return rc;
    }
    begin(kWds, 0x0020);
    if (*apn) addText(0x14, apn);
    if (s.auth >= 0) add8(0x16, uint32_t(s.auth));
    if (s.user) addText(0x17, s.user);
    if (s.password) addText(0x18, s.password);
    if (s.ipFamily) add8(0x19, uint32_t(s.ipFamily));
    if (s.profile >= 0) add8(0x31, uint32_t(s.profile));
    const char* what = "start network";
    if ((rc = send(c, kWds, what)) != kOk) return rc;
    char w[96];
    Item reason = item(0x10), verbose = item(0x11);
    int len = snprintf(w, sizeof w, "%s", what);
    if (verbose.has(0, 4) && reason.has(0, 2))
        snprintf(w + len, sizeof w - size_t(len), " (call end reason %u, verbose %u/%u)", reason.u16(0), verbose.u16(0),
                 verbose.u16(2));
    else if (reason.has(0, 2))
        snprintf(w + len, sizeof w - size_t(len), " (call end reason %u)", reason.u16(0));
    Item handle;
    if ((rc = result(c, w)) != kOk || (rc = need(c, what, 0x01, 4, &handle)) != kOk) return rc;
    uint8_t id = 0;
    c.s.client(kWds, &id);
    c.out.num("packet_data_handle", "packet data handle", handle.u32(0));
    c.out.text("WDS client id: %u\n", id);
    return kOk;
}

int checkStop(Step& st) { return checkIndexArg(st, 0, 0, 0xFFFFFFFFll, "handle"); }

int runStop(Cli& c, Step& st) {
    uint32_t h = uint32_t(st.n[0]);
    begin(kWds, 0x0021);
    add32(0x01, h);
    int rc = ask(c, kWds, "stop network");
    if (rc != kOk) return rc;
    c.out.jnum("stopped", h);
    c.out.text("network stopped (handle %u)\n", h);
    return kOk;
}

int runPacketStatus(Cli& c, Step&) {
    const char* what = "packet status";
    begin(kWds, 0x0022);
    Item it;
    int rc = ask(c, kWds, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 1, &it)) != kOk) return rc;
    c.out.str("packet_status", "connection status", packetStatusName(it.u8(0)));
    return kOk;
}

int runStatistics(Cli& c, Step&) {
    begin(kWds, 0x0024);
    add32(0x01, 0xFF);
    int rc = ask(c, kWds, "statistics");
    if (rc != kOk) return rc;
    static const struct {
        uint8_t type, size;
        const char* key;
        const char* label;
    } counters[] = {
        {0x10, 4, "tx_packets", "TX packets"},     {0x11, 4, "rx_packets", "RX packets"},
        {0x12, 4, "tx_errors", "TX errors"},       {0x13, 4, "rx_errors", "RX errors"},
        {0x14, 4, "tx_overflows", "TX overflows"}, {0x15, 4, "rx_overflows", "RX overflows"},
        {0x19, 8, "tx_bytes", "TX bytes"},         {0x1A, 8, "rx_bytes", "RX bytes"},
    };
    c.out.open("statistics");
    for (const auto& k : counters) {
        Item it = item(k.type);
        if (it.has(0, k.size)) c.out.num(k.key, k.label, k.size == 4 ? (long long)it.u32(0) : (long long)it.u64(0));
    }
    c.out.close();
    return kOk;
}

int runCallDuration(Cli& c, Step&) {
    const char* what = "call duration";
    begin(kWds, 0x0035);
    Item it;
    int rc = ask(c, kWds, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 8, &it)) != kOk) return rc;
    static const struct {
        uint8_t type;
        const char* key;
        const char* label;
    } durations[] = {{0x01, "duration_ms", "call duration"},
                     {0x11, "active_ms", "active"},
                     {0x10, "last_call_ms", "last call"},
                     {0x12, "last_call_active_ms", "last call active"}};
    c.out.open("call_duration");
    for (const auto& d : durations) {
        Item v = item(d.type);
        if (!v.has(0, 8)) continue;
        unsigned long long ms = v.u64(0), s = ms / 1000;
        c.out.jnum(d.key, (long long)ms);
        c.out.text("%s: %llu:%02llu:%02llu.%03llu\n", d.label, s / 3600, s / 60 % 60, s % 60, ms % 1000);
    }
    c.out.close();
    return kOk;
}

int runRuntime(Cli& c, Step&) {
    begin(kWds, 0x002D);
    add32(0x10, 0xFFFF);  // every setting the modem has
    int rc = ask(c, kWds, "runtime settings");
    if (rc != kOk) return rc;
    char name[128], apn[128];
    text(0x10, name, sizeof name);
    text(0x14, apn, sizeof apn);
    Item profile = item(0x1F);
    static const struct {
        uint8_t type;
        const char* key;
        const char* label;
    } addresses[] = {{0x1E, "ipv4", "IPv4 address"}, {0x20, "gateway", "gateway"}, {0x21, "subnet_mask", "subnet mask"}},
      addresses6[] = {{0x25, "ipv6", "IPv6 address"}, {0x26, "ipv6_gateway", "IPv6 gateway"}};
    c.out.open("runtime_settings");
    if (profile.has(0, 2)) c.out.jnum("profile", profile.u8(1));
    c.out.jstr("profile_name", name);
    c.out.text("profile: %d (%s)\n", profile.has(0, 2) ? profile.u8(1) : -1, name);
    c.out.str("apn", "APN", apn);
    char t[2][48];
    // IPv4 settings when the call has IPv4, IPv6 settings when it has IPv6.
    if (item(0x1E).has(0, 4)) {
        for (const auto& a : addresses) {
            ipv4Text(item(a.type).u32(0), t[0], sizeof t[0]);
            c.out.str(a.key, a.label, t[0]);
        }
        ipv4Text(item(0x15).u32(0), t[0], sizeof t[0]);
        ipv4Text(item(0x16).u32(0), t[1], sizeof t[1]);
        c.out.openArray("dns");
        c.out.jstr(nullptr, t[0]);
        c.out.jstr(nullptr, t[1]);
        c.out.close();
        c.out.text("DNS: %s, %s\n", t[0], t[1]);
    }
    if (item(0x25).has(0, 17)) {
        for (const auto& a : addresses6) {
            Item v = item(a.type);
            if (!v.has(0, 17)) continue;
            inet_ntop(AF_INET6, v.p, t[0], sizeof t[0]);
            snprintf(t[0] + strlen(t[0]), sizeof t[0] - strlen(t[0]), "/%u", v.u8(16));
            c.out.str(a.key, a.label, t[0]);
        }
        c.out.openArray("ipv6_dns");
        c.out.text("IPv6 DNS:");
        for (uint8_t type = 0x27; type <= 0x28; ++type) {
            Item v = item(type);
            if (!v.has(0, 16)) continue;
            inet_ntop(AF_INET6, v.p, t[0], sizeof t[0]);
            c.out.jstr(nullptr, t[0]);
            c.out.text(" %s", t[0]);
        }
        c.out.text("\n");
        c.out.close();
    }
    c.out.num("mtu", "MTU", item(0x29).u32(0));
    c.out.close();
    return kOk;
}

// Profiles one list shows at most (modems keep 16 to 24).
constexpr int kMaxProfiles = 32;

int runProfiles(Cli& c, Step&) {
    const char* what = "profile list";
    begin(kWds, 0x002A);
    Item it;
    int rc = ask(c, kWds, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 1, &it)) != kOk) return rc;
    int count = it.u8(0);
    if (count > kMaxProfiles) return bad(c, what, "too many profiles");
    static struct {
        uint8_t type, index;
        char name[256], apn[128];
    } list[kMaxProfiles];
    for (int i = 0, off = 1; i < count; ++i) {
        if (!it.has(off, 3) || !it.has(off + 3, it.u8(off + 2))) return bad(c, what, "profile list cut short");
        list[i].type = it.u8(off);
        list[i].index = it.u8(off + 1);
        int len = it.u8(off + 2);
        memcpy(list[i].name, it.at(off + 3), size_t(len));
        list[i].name[len] = 0;
        off += 3 + len;
    }
    for (int i = 0; i < count; ++i) {
        begin(kWds, 0x002B);
        uint8_t v[2] = {list[i].type, list[i].index};
        add(0x01, v, 2);
        list[i].apn[0] = 0;
        if ((rc = send(c, kWds, "profile settings")) != kOk) return rc;
        if (item(0x02).u16(0) == 0) text(0x14, list[i].apn, sizeof list[i].apn);
    }
    c.out.openArray("profiles");
    c.out.text("profiles:\n");
    for (int i = 0; i < count; ++i) {
        c.out.open(nullptr);
        c.out.jnum("index", list[i].index);
        c.out.jnum("type", list[i].type);
        c.out.jstr("name", list[i].name);
        c.out.jstr("apn", list[i].apn);
        c.out.close();
        c.out.text("  %u: %s (APN %s)\n", list[i].index, list[i].name, list[i].apn);
    }
    c.out.close();
    return kOk;
}

// Appends the profile settings given by options.
void profileItems(const Settings& s) {
    if (s.profileName) addText(0x10, s.profileName);
    if (s.pdpType >= 0) add8(0x11, uint32_t(s.pdpType));
    if (s.apn) addText(0x14, s.apn);
    if (s.user) addText(0x1B, s.user);
    if (s.password) addText(0x1C, s.password);
    if (s.auth >= 0) add8(0x1D, uint32_t(s.auth));
}

int runCreateProfile(Cli& c, Step&) {
    const char* what = "create profile";
    begin(kWds, 0x0027);
    add8(0x01, 0);  // 3GPP
    profileItems(c.set);
    Item it;
    int rc = ask(c, kWds, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 2, &it)) != kOk) return rc;
    c.out.num("created_profile", "profile created", it.u8(1));
    return kOk;
}

int checkProfileIndex(Step& st) { return checkIndexArg(st, 0, 1, 255, "profile index"); }

int profileRequest(Cli& c, Step& st, uint16_t id, const char* what, const char* key, const char* label) {
    uint8_t index = uint8_t(st.n[0]);
    begin(kWds, id);
    uint8_t v[3] = {0, index, index};
    if (id == 0x004A) v[1] = 1;  // default profile: type 3GPP, the socket family, the index
    add(0x01, v, id == 0x004A ? 3 : 2);
    if (id == 0x0028) profileItems(c.set);
    int rc = ask(c, kWds, what);
    if (rc == kOk) c.out.num(key, label, index);
    return rc;
}

int runModifyProfile(Cli& c, Step& st) {
    return profileRequest(c, st, 0x0028, "modify profile", "modified_profile", "profile modified");
}

int runDeleteProfile(Cli& c, Step& st) {
    return profileRequest(c, st, 0x0029, "delete profile", "deleted_profile", "profile deleted");
}

int runDefaultProfile(Cli& c, Step& st) {
    return profileRequest(c, st, 0x004A, "set default profile", "default_profile", "default profile");
}

// ===================================================================== CTL ==

int checkDataFormat(Step& st) {
    if (strcmp(st.arg[0], "802.3") == 0) st.n[0] = 1;
    else if (strcmp(st.arg[0], "raw-ip") == 0) st.n[0] = 2;
    else return usageError("bad --ctl-set-data-format %s (raw-ip or 802.3)", st.arg[0]);
    return kExitOk;
}

int runDataFormat(Cli& c, Step& st) {
    begin(ZOVQMI_SERVICE_CTL, 0x0026);
    add8(0x01, 0);  // no QoS header
    add16(0x10, uint32_t(st.n[0]));
    const char* what = "set data format";
    int rc = c.s.request(ZOVQMI_SERVICE_CTL, 0, gReq, gReqLen, &gM);
    if (rc != kOk) return rc;
    if (!items()) return bad(c, what, "items longer than the message");
    if ((rc = result(c, what)) != kOk) return rc;
    Item p = item(0x10);
    int protocol = p.has(0, 2) ? p.u16(0) : int(st.n[0]);
    const char* name = protocol == 1 ? "802.3" : protocol == 2 ? "raw-ip" : "unknown";
    c.out.str("data_format", "data format", name);
    if (protocol != st.n[0]) return c.s.fail(kBadAnswer, "set data format: the modem chose %s", name);
    return kOk;
}

// ===================================================================== WMS ==

int runWmsList(Cli& c, Step& st) {
    const char* what = "list messages";
    begin(kWms, 0x0031);
    add8(0x01, uint32_t(st.n[0]));
    Item it;
    int rc = ask(c, kWms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 4, &it)) != kOk) return rc;
    uint32_t count = it.u32(0);
    if (count > uint32_t(it.n / 5) || !it.has(4, int(count) * 5)) return bad(c, what, "list longer than its item");
    c.out.openArray("messages");
    c.out.text("messages: %u\n", count);
    for (uint32_t i = 0; i < count; ++i) {
        int off = 4 + int(i) * 5;
        c.out.open(nullptr);
        c.out.jnum("index", it.u32(off));
        c.out.jstr("tag", tagName(it.u8(off + 4)));
        c.out.close();
        c.out.text("  %u: %s\n", it.u32(off), tagName(it.u8(off + 4)));
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

// A store and an index as the first item.
void storeIndex(uint8_t type, uint8_t store, uint32_t index) {
    uint8_t v[5] = {store, uint8_t(index), uint8_t(index >> 8), uint8_t(index >> 16), uint8_t(index >> 24)};
    add(type, v, 5);
}

int runWmsRead(Cli& c, Step& st) {
    const char* what = "read message";
    uint32_t index = uint32_t(st.n[1]);
    begin(kWms, 0x0022);
    storeIndex(0x01, uint8_t(st.n[0]), index);
    Item it;
    int rc = ask(c, kWms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 4, &it)) != kOk) return rc;
    int len = it.u16(2);
    if (!it.has(4, len)) return bad(c, what, "message longer than its item");
    const uint8_t* pdu = it.p + 4;
    static DecodedSms sms;
    int dec = decodePdu(pdu, len, &sms);
    static char hex[2 * kMaxMessage + 1];
    hexOut(pdu, len, hex);
    c.out.open("message");
    c.out.jnum("index", index);
    c.out.jstr("tag", tagName(it.u8(0)));
    c.out.jnum("format", it.u8(1));
    c.out.jstr("pdu", hex);
    c.out.text("message %u: %s\nPDU: %s\n", index, tagName(it.u8(0)), hex);
    if (dec == kPduOk) {
        c.out.str("type", "type", sms.submit ? "submit" : "deliver");
        c.out.str("address", sms.submit ? "to" : "from", sms.address);
        if (sms.centre[0]) c.out.str("smsc", "SMSC", sms.centre);
        if (sms.hasTime) {
            char t[40];
            int z = sms.zoneMinutes < 0 ? -sms.zoneMinutes : sms.zoneMinutes;
            snprintf(t, sizeof t, "%04d-%02d-%02d %02d:%02d:%02d %c%02d:%02d", sms.year, sms.month, sms.day, sms.hour,
                     sms.minute, sms.second, sms.zoneMinutes < 0 ? '-' : '+', z / 60, z % 60);
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
        uint8_t v[3 + kPduMax] = {6, uint8_t(parts.len[p]), uint8_t(parts.len[p] >> 8)};  // GSM/WCDMA point to point
        memcpy(v + 3, parts.pdu[p], size_t(parts.len[p]));
        begin(kWms, 0x0020);
        add(0x01, v, 3 + parts.len[p]);
        char what[48];
        int len = snprintf(what, sizeof what, "send message");
        if (parts.count > 1) len += snprintf(what + len, sizeof what - size_t(len), " part %d", p + 1);
        int rc = send(c, kWms, what);
        if (rc != kOk) return rc;
        Item cause = item(0x10), id;
        if (item(0x02).u16(0) != 0 && cause.has(0, 2))
            snprintf(what + len, sizeof what - size_t(len), " (cause %u)", cause.u16(0));
        if ((rc = result(c, what)) != kOk || (rc = need(c, what, 0x01, 2, &id)) != kOk) return rc;
        ids[p] = id.u16(0);
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
    uint32_t index = uint32_t(st.n[1]);
    begin(kWms, 0x0024);
    add8(0x01, uint32_t(st.n[0]));
    add32(0x10, index);
    int rc = ask(c, kWms, "delete message");
    if (rc != kOk) return rc;
    c.out.jnum("deleted_message", index);
    c.out.text("message %u deleted\n", index);
    return kOk;
}

int runGetSmsc(Cli& c, Step&) {
    const char* what = "SMSC address";
    begin(kWms, 0x0034);
    Item it;
    int rc = ask(c, kWms, what);
    if (rc != kOk || (rc = need(c, what, 0x01, 4, &it)) != kOk) return rc;
    int len = it.u8(3);
    if (!it.has(4, len)) return bad(c, what, "address longer than its item");
    char t[4];
    for (int i = 0; i < 3; ++i) t[i] = it.u8(i) >= 0x20 && it.u8(i) < 0x7F ? char(it.u8(i)) : '?';
    t[3] = 0;
    c.out.open("smsc");
    c.out.str("address", "SMSC", it.at(4), len);
    c.out.str("type", "SMSC type", t);
    c.out.close();
    return kOk;
}

int checkSetSmsc(Step& st) {
    return validNumber(st.arg[0]) ? kExitOk : usageError("bad SMSC number %s (+ and 1 to 20 digits)", st.arg[0]);
}

int runSetSmsc(Cli& c, Step& st) {
    const char* number = st.arg[0];
    begin(kWms, 0x0035);
    addText(0x01, number);
    addText(0x10, number[0] == '+' ? "145" : "129");  // type of number: international, or not
    int rc = ask(c, kWms, "set SMSC address");
    if (rc == kOk) c.out.str("smsc_set", "SMSC set", number);
    return rc;
}

// ===================================================================== PBM ==

// The phonebook the tool works on: session 0 (GW primary), ADN.
constexpr uint8_t kPbSession = 0;
constexpr uint16_t kPbAdn = 1;

// Records one read delivers at most: enough for any SIM phonebook.
constexpr int kMaxRecords = 1000;

// Starts a phonebook request: session and phonebook, then `more`.
void phonebook(uint16_t id, const uint8_t* more, int n) {
    begin(kPbm, id);
    uint8_t v[7] = {kPbSession, uint8_t(kPbAdn), uint8_t(kPbAdn >> 8)};
    if (n) memcpy(v + 3, more, size_t(n));
    add(0x01, v, 3 + n);
}

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
// prints each as an element of the array open.
int readRecords(Cli& c, uint16_t first, uint16_t last) {
    const char* what = "read records";
    uint8_t range[4] = {uint8_t(first), uint8_t(first >> 8), uint8_t(last), uint8_t(last >> 8)};
    phonebook(0x0004, range, 4);
    int rc = ask(c, kPbm, what);
    if (rc != kOk) return rc;
    int count = item(0x10).u16(0);
    const char* ind = "record read indication";
    for (int seen = 0; seen < count && seen < kMaxRecords;) {
        if ((rc = c.s.awaitIndication(kPbm, 0x0004, -1, &gM)) != kOk) return rc;
        Item it;
        if (!items() || (rc = need(c, ind, 0x01, 6, &it)) != kOk) return rc != kOk ? rc : bad(c, ind, "header");
        int n = it.u8(5);
        if (n == 0) return bad(c, ind, "no records");
        for (int i = 0, off = 6; i < n; ++i) {
            // id, two number attributes, number, name (each led by its length)
            if (!it.has(off, 5) || !it.has(off + 5, it.u8(off + 4) + 1)) return bad(c, ind, "record cut short");
            int nl = it.u8(off + 4), tl = it.u8(off + 5 + nl);
            if (!it.has(off + 6 + nl, tl)) return bad(c, ind, "record cut short");
            char number[48];
            int k = 0;
            if (it.u8(off + 2) == 0x91) number[k++] = '+';
            int copy = nl < 40 ? nl : 40;
            memcpy(number + k, it.at(off + 5), size_t(copy));
            number[k + copy] = 0;
            c.out.open(nullptr);
            c.out.jnum("id", it.u16(off));
            c.out.jstr("name", it.at(off + 6 + nl), tl);
            c.out.jstr("number", number);
            c.out.close();
            c.out.text("  %u: %.*s <%s>\n", it.u16(off), tl, it.at(off + 6 + nl), number);
            off += 6 + nl + tl;
        }
        seen += n;
    }
    return kOk;
}

int runPbmRead(Cli& c, Step& st) {
    c.out.openArray("records");
    c.out.text("phonebook records:\n");
    int rc = readRecords(c, uint16_t(st.n[0]), uint16_t(st.n[1]));
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
    const char *name = st.arg[1], *number = st.arg[2];
    bool intl = number[0] == '+';
    if (intl) ++number;
    int nl = int(strlen(number)), tl = int(strlen(name));
    uint8_t v[300];
    int k = 0;
    v[k++] = kPbSession, v[k++] = uint8_t(kPbAdn), v[k++] = uint8_t(kPbAdn >> 8);
    v[k++] = uint8_t(st.n[0]), v[k++] = uint8_t(st.n[0] >> 8);
    v[k++] = intl ? 0x91 : 0x81, v[k++] = 0;
    v[k++] = uint8_t(nl);
    memcpy(v + k, number, size_t(nl));
    k += nl;
    v[k++] = uint8_t(tl);
    memcpy(v + k, name, size_t(tl));
    k += tl;
    begin(kPbm, 0x0005);
    add(0x01, v, k);
    int rc = ask(c, kPbm, "write record");
    if (rc != kOk) return rc;
    Item id = item(0x10);
    c.out.num("written_record", "record written", id.has(0, 2) ? id.u16(0) : st.n[0]);
    return kOk;
}

int checkPbmDelete(Step& st) { return checkIndexArg(st, 0, 1, 65535, "record id"); }

int runPbmDelete(Cli& c, Step& st) {
    uint16_t id = uint16_t(st.n[0]);
    uint8_t v[2] = {uint8_t(id), uint8_t(id >> 8)};
    phonebook(0x0006, v, 2);
    int rc = ask(c, kPbm, "delete record");
    if (rc == kOk) c.out.num("deleted_record", "record deleted", id);
    return rc;
}

int checkPbmSearch(Step& st) {
    size_t n = strlen(st.arg[0]);
    return n >= 1 && n <= 241 ? kExitOk : usageError("bad search name (1 to 241 bytes)");
}

int runPbmSearch(Cli& c, Step& st) {
    const char* what = "search records";
    const char* name = st.arg[0];
    uint8_t v[242];
    v[0] = uint8_t(strlen(name));
    memcpy(v + 1, name, v[0]);
    phonebook(0x0008, nullptr, 0);
    add(0x11, v, 1 + v[0]);
    int rc = ask(c, kPbm, what);
    if (rc != kOk) return rc;
    Item it = item(0x10);
    int count = it.u16(0);
    if (!it.has(2, count * 2)) return bad(c, what, "more ids than its item holds");
    static uint16_t ids[kMaxMessage / 2];
    for (int i = 0; i < count; ++i) ids[i] = it.u16(2 + 2 * i);
    c.out.openArray("found");
    c.out.text("records found: %d\n", count);
    for (int i = 0; i < count && rc == kOk; ++i) rc = readRecords(c, ids[i], ids[i]);
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

// One event report in gM: prints its NMEA sentence, reads its parsed
// position.  A session status other than success ends with a failure.
int eventReport(Cli& c, Fix* fix) {
    if (!items()) return bad(c, "position report", "items longer than the message");
    Item nmea = item(0x10), status = item(0x12), p = item(0x13);
    if (nmea.found) {
        int len = nmea.n;
        while (len > 0 && (nmea.p[len - 1] == '\n' || nmea.p[len - 1] == '\r')) --len;
        c.out.jstr(nullptr, nmea.at(0), len);
        c.out.text("NMEA: %.*s\n", len, nmea.at(0));
        fflush(stdout);
    }
    if (status.has(0, 1) && status.u8(0) != 0)
        return c.s.fail(kQmiFailure, "position session ended with status %u", status.u8(0));
    // The parsed position: date and time at 4..11, latitude and longitude
    // (doubles) at 27 and 35, the altitude above sea level at 47.
    if (p.has(0, 51)) {
        fix->has = true;
        fix->latitude = asDouble(p.u64(27));
        fix->longitude = asDouble(p.u64(35));
        fix->altitude = int32_t(p.u32(47));
        fix->year = p.u16(4);
        fix->month = p.u8(6), fix->day = p.u8(8);
        fix->hour = p.u8(9), fix->minute = p.u8(10), fix->second = p.u8(11);
    }
    return kOk;
}

// NMEA sentences and parsed positions, to this client.
int subscribe(Cli& c) {
    begin(kPds, 0x0001);
    add8(0x10, 1);
    add8(0x12, 1);
    return ask(c, kPds, "position event report");
}

int runSingleFix(Cli& c, Step&) {
    int rc = subscribe(c);
    if (rc != kOk) return rc;
    begin(kPds, 0x0035);
    add8(0x11, 30);  // seconds
    if ((rc = ask(c, kPds, "single position fix")) != kOk) return rc;
    Fix fix = {};
    c.out.open("fix");
    c.out.openArray("nmea");
    // A fix may take a minute under an open sky; --timeout bounds it instead.
    int limit = c.set.timeoutGiven ? c.s.timeout() : 60000;
    int64_t until = monotonicMs() + limit;
    while (!fix.has) {
        int left = int(until - monotonicMs());
        if (left <= 0) return c.s.fail(kTimeout, "timeout: no position within %d ms", limit);
        if ((rc = c.s.awaitIndication(kPds, 0x0001, left, &gM)) != kOk) return rc;
        if ((rc = eventReport(c, &fix)) != kOk) return rc;
    }
    c.out.close();
    char v[32];
    snprintf(v, sizeof v, "%.6f", fix.latitude);
    c.out.jstr("latitude", v);  // as text: the JSON writer's numbers are integers
    snprintf(v, sizeof v, "%.6f", fix.longitude);
    c.out.jstr("longitude", v);
    c.out.jnum("altitude", fix.altitude);
    c.out.close();
    c.out.text("position: %.6f, %.6f, %d m (%04d-%02d-%02d %02d:%02d:%02d UTC)\n", fix.latitude, fix.longitude,
               fix.altitude, fix.year, fix.month, fix.day, fix.hour, fix.minute, fix.second);
    return kOk;
}

int setTracking(Cli& c, bool on) {
    begin(kPds, 0x0031);
    add8(0x01, on ? 1 : 0);
    return ask(c, kPds, on ? "start tracking" : "stop tracking");
}

int runStartTracking(Cli& c, Step&) {
    int rc = subscribe(c);
    if (rc != kOk) return rc;
    // The GPS on (already on is no failure), a fix a second, then tracking.
    begin(kPds, 0x0021);
    add8(0x01, 1);
    rc = ask(c, kPds, "GPS service state");
    if (rc == kQmiFailure && c.s.qmiError() == 0x001A) rc = kOk;
    if (rc != kOk) return rc;
    // Mode standalone, no timeout of its own, every 1000 ms, 50 m.
    const uint8_t session[10] = {0, 255, 0xE8, 0x03, 0, 0, 50, 0, 0, 0};
    begin(kPds, 0x002A);
    add(0x01, session, 10);
    if ((rc = ask(c, kPds, "tracking session")) != kOk) return rc;
    if ((rc = setTracking(c, true)) != kOk) return rc;
    c.out.open("tracking");
    c.out.openArray("nmea");
    long fixes = 0;
    while (c.set.count == 0 || fixes < c.set.count) {
        // No end but the count, a signal or the device going away: a fix
        // may take minutes under a roof.
        rc = c.s.awaitIndication(kPds, 0x0001, 3600000, &gM);
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

// Items of one raw request.
constexpr int kMaxRawItems = 8;

int hexNibble(char ch) {
    if (ch >= '0' && ch <= '9') return ch - '0';
    if (ch >= 'a' && ch <= 'f') return ch - 'a' + 10;
    if (ch >= 'A' && ch <= 'F') return ch - 'A' + 10;
    return -1;
}

// SERVICE:MSGID[:TYPE=HEX,...].  With `build` the request is built as it
// is parsed (the check parses without building).
int parseRaw(const char* v, long long* service, long long* id, bool build) {
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
    if (build) begin(uint8_t(svc), uint16_t(*id));
    if (!colon) return kExitOk;
    int count = 0;
    for (const char* p = colon + 1; *p;) {
        if (++count > kMaxRawItems) return usageError("more than %d items in --send-raw", kMaxRawItems);
        const char* eq = strchr(p, '=');
        const char* comma = strchr(p, ',');
        if (!eq || (comma && comma < eq) || size_t(eq - p) >= sizeof num)
            return usageError("bad item in --send-raw %s (TYPE=HEX)", v);
        memcpy(num, p, size_t(eq - p));
        num[eq - p] = 0;
        long long type;
        if (!parseNumber(num, 0, 255, &type)) return usageError("bad item type %s in --send-raw", num);
        const char* h = eq + 1;
        const char* end = comma ? comma : h + strlen(h);
        if ((end - h) % 2) return usageError("odd number of hex digits in --send-raw item 0x%02llX", type);
        uint8_t value[256];
        int n = 0;
        if ((end - h) / 2 > int(sizeof value)) return usageError("--send-raw item 0x%02llX longer than 256 bytes", type);
        for (; h < end; h += 2) {
            int hi = hexNibble(h[0]), lo = hexNibble(h[1]);
            if (hi < 0 || lo < 0) return usageError("bad hex digits in --send-raw item 0x%02llX", type);
            value[n++] = uint8_t(hi << 4 | lo);
        }
        if (build) add(uint8_t(type), value, n);
        p = comma ? comma + 1 : end;
    }
    return kExitOk;
}

int checkRaw(Step& st) { return parseRaw(st.arg[0], &st.n[0], &st.n[1], false); }

int runRaw(Cli& c, Step& st) {
    long long svc, id;
    parseRaw(st.arg[0], &svc, &id, true);
    char w[48];
    snprintf(w, sizeof w, "raw request 0x%04llX", id);
    int rc = c.s.request(uint8_t(svc), gReq, gReqLen, &gM);
    if (rc != kOk) return rc;
    if (!items()) return bad(c, w, "items longer than the message");
    // Every item, walked with every length checked.
    static char hex[2 * kMaxMessage + 1];
    c.out.open("raw");
    c.out.openArray("items");
    for (int off = 0; off < gAreaLen;) {
        if (off + 3 > gAreaLen) return bad(c, w, "item header cut short");
        uint8_t type = gArea[off];
        int len = le16(gArea + off + 1);
        if (off + 3 + len > gAreaLen) return bad(c, w, "item longer than the message");
        hexOut(gArea + off + 3, len, hex);
        c.out.open(nullptr);
        c.out.jnum("type", type);
        c.out.jstr("value", hex);
        c.out.close();
        c.out.text("item 0x%02X (%d bytes): %s\n", type, len, hex);
        off += 3 + len;
    }
    c.out.close();
    c.out.close();
    return result(c, w);
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
