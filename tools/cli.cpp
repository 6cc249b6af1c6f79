// zovqmi-cli: one modem operation per option, in the order given.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "ops.h"

using namespace zovapp;

namespace {

enum Exit { kOk = 0, kFailed = 1, kUsage = 2, kTimeout = 3, kQmi = 4 };

void usage(FILE* out) {
    std::fprintf(out,
        "usage: zovqmi-cli -d PATH [options] ACTION...\n"
        "\n"
        "Talks to a QMI modem through its control device.  Actions run in the order given.\n"
        "\n"
        "Actions:\n"
        "  --get-client-id SERVICE        obtain a client id (wds, dms, nas, qos, wms, pds, pbm or a number)\n"
        "  --dms-get-ids                  manufacturer, model, revisions and serial numbers\n"
        "  --dms-get-operating-mode       the operating mode\n"
        "  --dms-set-operating-mode MODE  online, low-power, factory-test, offline, reset, shutting-down,\n"
        "                                 persistent-low-power, mode-only-low-power or a number\n"
        "  --uim-verify-pin PIN           verify PIN1; prints the retries left\n"
        "  --nas-get-signal-strength      signal strength and radio interface\n"
        "  --nas-get-serving-system       registration, attach state, radios and current network\n"
        "  --nas-network-scan             the networks in range\n"
        "  --wds-start-network APN        start a data call; prints the packet data handle\n"
        "      [--user U] [--password P] [--auth none|pap|chap|both] [--profile INDEX]\n"
        "                                 (give these before --wds-start-network)\n"
        "  --wds-stop-network HANDLE      end a data call (use the WDS client id that started it,\n"
        "                                 see --client-id)\n"
        "  --wds-get-runtime-settings     addresses, DNS, gateway and MTU of the running call\n"
        "  --wds-list-profiles            the stored data profiles\n"
        "  --wms-list STORE               messages of a store (uim or nv)\n"
        "  --wms-read STORE INDEX         one message: tag, PDU and its text\n"
        "  --pbm-read FIRST[-LAST]        phonebook records (ADN) by record id, or 'all'\n"
        "  --pds-single-fix               one GPS fix: NMEA sentences and the position\n"
        "  --send-raw SERVICE:MSGID       send a request without items and print its result\n"
        "\n"
        "Options:\n"
        "  -d, --device PATH              the QMI control device (required)\n"
        "  --client-id SERVICE:ID         use a client id obtained earlier instead of a new one\n"
        "  --keep-client-ids              do not release the client ids at the end (prints them)\n"
        "  --json                         one JSON object on standard output\n"
        "  --hex                          dump every frame\n"
        "  --timeout MS                   wait at most MS per response (default 5000)\n"
        "  -h, --help                     this text\n"
        "\n"
        "Exit status: 0 success, 1 failure (device, I/O, unexpected answer), 2 usage,\n"
        "3 timeout, 4 QMI error result (its numeric code is printed).\n");
}

std::string jstr(const std::string& s) {
    std::string o = "\"";
    for (unsigned char c : s) {
        if (c == '"' || c == '\\') o += '\\', o += char(c);
        else if (c < 0x20) { char b[8]; std::snprintf(b, sizeof b, "\\u%04x", c); o += b; }
        else o += char(c);
    }
    return o + "\"";
}

// Output: human lines, or the members of one JSON object.
struct Out {
    bool json = false;
    std::vector<std::string> members;
    void add(const std::string& key, const std::string& jsonValue, const std::string& human) {
        if (json) members.push_back(jstr(key) + ": " + jsonValue);
        else std::printf("%s\n", human.c_str());
    }
};

std::string v_hex(uint16_t id) {
    char b[8];
    std::snprintf(b, sizeof b, "0x%04X", id);
    return b;
}

struct Usage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

unsigned long number(const std::string& s, const char* what) {
    char* end = nullptr;
    unsigned long v = std::strtoul(s.c_str(), &end, 0);
    if (s.empty() || *end) throw Usage(std::string("bad ") + what + ": " + s);
    return v;
}

}  // namespace

int main(int argc, char** argv) {
    std::string device;
    Out out;
    bool hex = false, keep = false;
    int timeout = 5000;
    StartArgs start;
    std::vector<std::pair<uint8_t, uint8_t>> given;
    std::vector<std::function<void(Session&)>> actions;

    try {
        for (int i = 1; i < argc; ++i) {
            std::string a = argv[i];
            auto arg = [&](const char* what) -> std::string {
                if (i + 1 >= argc) throw Usage(a + " needs " + what);
                return argv[++i];
            };
            if (a == "-h" || a == "--help") { usage(stdout); return kOk; }
            else if (a == "-d" || a == "--device") device = arg("a device path");
            else if (a == "--json") out.json = true;
            else if (a == "--hex") hex = true;
            else if (a == "--keep-client-ids") keep = true;
            else if (a == "--timeout") timeout = int(number(arg("milliseconds"), "timeout"));
            else if (a == "--client-id") {
                std::string v = arg("SERVICE:ID");
                size_t c = v.find(':');
                int svc = c == std::string::npos ? -1 : serviceByName(v.substr(0, c));
                if (svc < 0) throw Usage("bad --client-id " + v);
                given.push_back({uint8_t(svc), uint8_t(number(v.substr(c + 1), "client id"))});
            }
            else if (a == "--user") start.user = arg("a user name");
            else if (a == "--password") start.password = arg("a password");
            else if (a == "--profile") start.profile = int(number(arg("a profile index"), "profile"));
            else if (a == "--auth") {
                std::string v = arg("none|pap|chap|both");
                start.auth = v == "none" ? 0 : v == "pap" ? 1 : v == "chap" ? 2 : v == "both" ? 3 : -2;
                if (start.auth == -2) throw Usage("bad --auth " + v);
            }
            else if (a == "--get-client-id") {
                std::string v = arg("a service");
                int svc = serviceByName(v);
                if (svc <= 0) throw Usage("unknown service " + v);
                actions.push_back([&out, svc](Session& s) {
                    uint8_t id = s.clientId(uint8_t(svc));
                    out.add(std::string(serviceName(uint8_t(svc))) + "_client_id", std::to_string(id),
                            std::string(serviceName(uint8_t(svc))) + " client id: " + std::to_string(id));
                });
            }
            else if (a == "--dms-get-ids") actions.push_back([&out](Session& s) {
                Identity id = dmsIdentity(s);
                out.add("ids", "{\"manufacturer\": " + jstr(id.manufacturer) + ", \"model\": " + jstr(id.model) +
                        ", \"revision\": " + jstr(id.revision) + ", \"hardware\": " + jstr(id.hardware) +
                        ", \"imei\": " + jstr(id.imei) + ", \"esn\": " + jstr(id.esn) + ", \"meid\": " + jstr(id.meid) + "}",
                        "manufacturer: " + id.manufacturer + "\nmodel: " + id.model + "\nrevision: " + id.revision +
                        "\nhardware: " + id.hardware + "\nIMEI: " + id.imei + "\nESN: " + id.esn + "\nMEID: " + id.meid);
            });
            else if (a == "--dms-get-operating-mode") actions.push_back([&out](Session& s) {
                uint8_t m = dmsOperatingMode(s);
                out.add("operating_mode", "{\"mode\": " + std::to_string(m) + ", \"name\": " + jstr(operatingModeName(m)) + "}",
                        std::string("operating mode: ") + operatingModeName(m) + " (" + std::to_string(m) + ")");
            });
            else if (a == "--dms-set-operating-mode") {
                std::string v = arg("a mode");
                int mode = operatingModeByName(v);
                if (mode < 0) throw Usage("unknown operating mode " + v);
                actions.push_back([&out, mode](Session& s) {
                    dmsSetOperatingMode(s, uint8_t(mode));
                    out.add("set_operating_mode", jstr(operatingModeName(uint8_t(mode))),
                            std::string("operating mode set: ") + operatingModeName(uint8_t(mode)));
                });
            }
            else if (a == "--uim-verify-pin") {
                std::string pin = arg("a PIN");
                actions.push_back([&out, pin](Session& s) {
                    PinRetries r;
                    uimVerifyPin(s, pin, &r);
                    out.add("verify_pin", "{\"verified\": true, \"retries_left\": " + std::to_string(r.verifyLeft) +
                            ", \"unblock_retries_left\": " + std::to_string(r.unblockLeft) + "}",
                            "PIN verified (" + std::to_string(r.verifyLeft) + " retries left, " +
                            std::to_string(r.unblockLeft) + " unblock retries left)");
                });
            }
            else if (a == "--nas-get-signal-strength") actions.push_back([&out](Session& s) {
                Signal sig = nasSignal(s);
                out.add("signal_strength", "{\"dbm\": " + std::to_string(sig.dbm) + ", \"radio\": " + jstr(radioName(sig.radio)) + "}",
                        "signal strength: " + std::to_string(sig.dbm) + " dBm (" + radioName(sig.radio) + ")");
            });
            else if (a == "--nas-get-serving-system") actions.push_back([&out](Session& s) {
                Serving sv = nasServing(s);
                std::string radios, jradios;
                for (uint8_t r : sv.radios) {
                    radios += (radios.empty() ? "" : ", ") + std::string(radioName(r));
                    jradios += (jradios.empty() ? "" : ", ") + jstr(radioName(r));
                }
                std::string plmn = sv.hasPlmn ? std::to_string(sv.plmn.mcc) + "-" + std::to_string(sv.plmn.mnc) + " " + sv.plmn.description : "none";
                out.add("serving_system",
                        "{\"registration\": " + jstr(registrationName(sv.registration)) + ", \"cs_attached\": " +
                        (sv.csAttach == 1 ? "true" : "false") + ", \"ps_attached\": " + (sv.psAttach == 1 ? "true" : "false") +
                        ", \"radios\": [" + jradios + "]" +
                        (sv.hasPlmn ? ", \"mcc\": " + std::to_string(sv.plmn.mcc) + ", \"mnc\": " + std::to_string(sv.plmn.mnc) +
                                      ", \"network\": " + jstr(sv.plmn.description) : std::string()) + "}",
                        std::string("registration: ") + registrationName(sv.registration) + "\nCS attached: " +
                        (sv.csAttach == 1 ? "yes" : "no") + "\nPS attached: " + (sv.psAttach == 1 ? "yes" : "no") +
                        "\nradios: " + (radios.empty() ? "none" : radios) + "\nnetwork: " + plmn);
            });
            else if (a == "--nas-network-scan") actions.push_back([&out](Session& s) {
                std::vector<Network> nets = nasScan(s);
                std::string j, h = "networks: " + std::to_string(nets.size());
                for (const Network& n : nets) {
                    j += (j.empty() ? "" : ", ") + std::string("{\"mcc\": ") + std::to_string(n.mcc) + ", \"mnc\": " +
                         std::to_string(n.mnc) + ", \"status\": " + std::to_string(n.status) + ", \"name\": " + jstr(n.description) + "}";
                    char line[128];
                    std::snprintf(line, sizeof line, "\n  %03u-%02u  status 0x%02X  %s", n.mcc, n.mnc, n.status, n.description.c_str());
                    h += line;
                }
                out.add("networks", "[" + j + "]", h);
            });
            else if (a == "--wds-start-network") {
                std::string apn = arg("an APN");
                actions.push_back([&out, apn, &start](Session& s) {
                    StartArgs args = start;
                    args.apn = apn;
                    uint32_t h = wdsStart(s, args);
                    out.add("packet_data_handle", std::to_string(h), "packet data handle: " + std::to_string(h) +
                            "\nWDS client id: " + std::to_string(s.clientId(ZOVQMI_SERVICE_WDS)));
                });
            }
            else if (a == "--wds-stop-network") {
                uint32_t h = uint32_t(number(arg("a handle"), "handle"));
                actions.push_back([&out, h](Session& s) {
                    wdsStop(s, h);
                    out.add("stopped", std::to_string(h), "network stopped (handle " + std::to_string(h) + ")");
                });
            }
            else if (a == "--wds-get-runtime-settings") actions.push_back([&out](Session& s) {
                Runtime rt = wdsRuntime(s);
                out.add("runtime_settings",
                        "{\"profile\": " + std::to_string(rt.profileIndex) + ", \"profile_name\": " + jstr(rt.profileName) +
                        ", \"apn\": " + jstr(rt.apn) + ", \"ipv4\": " + jstr(ipv4(rt.ipv4)) + ", \"gateway\": " +
                        jstr(ipv4(rt.gateway)) + ", \"subnet_mask\": " + jstr(ipv4(rt.mask)) + ", \"dns\": [" +
                        jstr(ipv4(rt.dns1)) + ", " + jstr(ipv4(rt.dns2)) + "], \"mtu\": " + std::to_string(rt.mtu) + "}",
                        "profile: " + std::to_string(rt.profileIndex) + " (" + rt.profileName + ")\nAPN: " + rt.apn +
                        "\nIPv4 address: " + ipv4(rt.ipv4) + "\ngateway: " + ipv4(rt.gateway) + "\nsubnet mask: " +
                        ipv4(rt.mask) + "\nDNS: " + ipv4(rt.dns1) + ", " + ipv4(rt.dns2) + "\nMTU: " + std::to_string(rt.mtu));
            });
            else if (a == "--wds-list-profiles") actions.push_back([&out](Session& s) {
                std::string j, h = "profiles:";
                for (const ProfileInfo& p : wdsProfiles(s)) {
                    j += (j.empty() ? "" : ", ") + std::string("{\"index\": ") + std::to_string(p.index) + ", \"type\": " +
                         std::to_string(p.type) + ", \"name\": " + jstr(p.name) + ", \"apn\": " + jstr(p.apn) + "}";
                    h += "\n  " + std::to_string(p.index) + ": " + p.name + " (APN " + p.apn + ")";
                }
                out.add("profiles", "[" + j + "]", h);
            });
            else if (a == "--wms-list") {
                std::string v = arg("a store");
                int store = storeByName(v);
                if (store < 0) throw Usage("unknown message store " + v + " (uim or nv)");
                actions.push_back([&out, store](Session& s) {
                    std::string j, h = "messages: ";
                    std::vector<SmsEntry> list = wmsList(s, uint8_t(store));
                    h += std::to_string(list.size());
                    for (const SmsEntry& e : list) {
                        j += (j.empty() ? "" : ", ") + std::string("{\"index\": ") + std::to_string(e.index) + ", \"tag\": " + jstr(tagName(e.tag)) + "}";
                        h += "\n  " + std::to_string(e.index) + ": " + tagName(e.tag);
                    }
                    out.add("messages", "[" + j + "]", h);
                });
            }
            else if (a == "--wms-read") {
                std::string v = arg("a store");
                int store = storeByName(v);
                if (store < 0) throw Usage("unknown message store " + v + " (uim or nv)");
                uint32_t index = uint32_t(number(arg("an index"), "index"));
                actions.push_back([&out, store, index](Session& s) {
                    Sms m = wmsRead(s, uint8_t(store), index);
                    std::string addr, text = pduText(m.pdu, &addr);
                    out.add("message", "{\"index\": " + std::to_string(index) + ", \"tag\": " + jstr(tagName(m.tag)) +
                            ", \"format\": " + std::to_string(m.format) + ", \"pdu\": " + jstr(hexBytes(m.pdu)) +
                            ", \"address\": " + jstr(addr) + ", \"text\": " + jstr(text) + "}",
                            "message " + std::to_string(index) + ": " + tagName(m.tag) + "\nPDU: " + hexBytes(m.pdu) +
                            (addr.empty() ? "" : "\naddress: " + addr) + (text.empty() ? "" : "\ntext: " + text));
                });
            }
            else if (a == "--pbm-read") {
                std::string v = arg("FIRST[-LAST] or all");
                uint16_t first = 1, last = 250;
                if (v != "all") {
                    size_t dash = v.find('-');
                    first = uint16_t(number(v.substr(0, dash), "record id"));
                    last = dash == std::string::npos ? first : uint16_t(number(v.substr(dash + 1), "record id"));
                }
                actions.push_back([&out, first, last](Session& s) {
                    std::string j, h = "phonebook records:";
                    for (const PbEntry& e : pbmRead(s, 1, first, last)) {
                        j += (j.empty() ? "" : ", ") + std::string("{\"id\": ") + std::to_string(e.id) + ", \"name\": " + jstr(e.name) + ", \"number\": " + jstr(e.number) + "}";
                        h += "\n  " + std::to_string(e.id) + ": " + e.name + " <" + e.number + ">";
                    }
                    out.add("records", "[" + j + "]", h);
                });
            }
            else if (a == "--pds-single-fix") actions.push_back([&out](Session& s) {
                Fix f = pdsSingleFix(s);
                std::string jn, h;
                for (const std::string& n : f.nmea) {
                    jn += (jn.empty() ? "" : ", ") + jstr(n);
                    h += "NMEA: " + n + "\n";
                }
                char pos[160];
                std::snprintf(pos, sizeof pos, "position: %.6f, %.6f, %d m (%04d-%02d-%02d %02d:%02d:%02d UTC)", f.latitude,
                              f.longitude, f.altitude, f.year, f.month, f.day, f.hour, f.minute, f.second);
                char jpos[200];
                std::snprintf(jpos, sizeof jpos, "\"latitude\": %.6f, \"longitude\": %.6f, \"altitude\": %d", f.latitude,
                              f.longitude, f.altitude);
                out.add("fix", "{\"nmea\": [" + jn + "], " + jpos + "}", h + pos);
            });
            else if (a == "--send-raw") {
                std::string v = arg("SERVICE:MSGID");
                size_t c = v.find(':');
                int svc = c == std::string::npos ? -1 : serviceByName(v.substr(0, c));
                if (svc < 0) throw Usage("bad --send-raw " + v);
                uint16_t id = uint16_t(number(v.substr(c + 1), "message id"));
                actions.push_back([&out, svc, id](Session& s) {
                    // A bare request: header only, built with the library's transaction ids.
                    uint8_t msg[7];
                    uint16_t tx = uint16_t(zovQMIMSMGetNextTransactionID());
                    int n = svc == 0 ? 6 : 7;
                    if (svc == 0) {
                        uint8_t ctl[6] = {0, uint8_t(tx), uint8_t(id), uint8_t(id >> 8), 0, 0};
                        std::copy(ctl, ctl + 6, msg);
                    } else {
                        uint8_t req[7] = {0, uint8_t(tx), uint8_t(tx >> 8), uint8_t(id), uint8_t(id >> 8), 0, 0};
                        std::copy(req, req + 7, msg);
                    }
                    Message m = s.request(uint8_t(svc), msg, n);
                    const uint8_t* area = m.data() + n;
                    uint16_t vl = 0;
                    const uint8_t* r = m.len() >= n ? zovQMIMSMGetTLV(area, m.len() - n, 0x02, &vl) : nullptr;
                    if (!r || vl < 4) throw Error("raw request: no result in the answer");
                    QmiResult res;
                    std::copy(r, r + 4, reinterpret_cast<uint8_t*>(&res));
                    Session::check("raw request " + v_hex(id), res);
                    out.add("raw", "{\"result\": 0}", "result: success");
                });
            }
            else throw Usage("unknown option " + a);
        }
        if (device.empty()) throw Usage("no device given (-d PATH)");
        if (actions.empty()) throw Usage("no action given");
    } catch (const Usage& e) {
        std::fprintf(stderr, "zovqmi-cli: %s (see --help)\n", e.what());
        return kUsage;
    }

    try {
        Session s(device, timeout, hex);
        int status = kOk;
        try {
            for (auto& g : given) s.adoptClientId(g.first, g.second);
            for (auto& act : actions) act(s);
        } catch (...) {
            if (!keep) try { s.releaseAll(); } catch (...) {}
            throw;
        }
        if (keep) {
            for (auto& c : s.clients())
                out.add(std::string("kept_") + serviceName(c.first) + "_client_id", std::to_string(c.second),
                        std::string("kept ") + serviceName(c.first) + " client id: " + std::to_string(c.second));
        } else {
            s.releaseAll();
        }
        if (out.json) {
            std::string o = "{";
            for (size_t i = 0; i < out.members.size(); ++i) o += (i ? ", " : "") + out.members[i];
            std::printf("%s}\n", o.c_str());
        }
        return status;
    } catch (const Timeout& e) {
        std::fprintf(stderr, "zovqmi-cli: error: %s\n", e.what());
        return kTimeout;
    } catch (const QmiError& e) {
        std::fprintf(stderr, "zovqmi-cli: error: %s\n", e.what());
        return kQmi;
    } catch (const Error& e) {
        std::fprintf(stderr, "zovqmi-cli: error: %s\n", e.what());
        return kFailed;
    }
}
