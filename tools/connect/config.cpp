#include "config.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace zovconnect {

namespace {

const char kUsage[] =
    "usage: zovqmi-connect -d DEVICE (--apn APN | --profile N) [options]\n"
    "\n"
    "Brings the network interface of a QMI modem online and keeps it online.\n"
    "\n"
    "  -d, --device PATH        the modem's QMI control device (/dev/cdc-wdm0)\n"
    "  --apn APN                access point name of the call\n"
    "  --auth none|pap|chap|both  authentication of the call (default none, or both\n"
    "                           when --user is given)\n"
    "  --user NAME, --password SECRET  credentials of the call\n"
    "  --profile N              start the call from the modem's profile N\n"
    "  --ip-family 4|6|4+6      IPv4, IPv6 or both (two calls); default 4\n"
    "  --pin PIN                PIN1, verified once when the SIM asks for it\n"
    "  --ifname NAME            the network interface (default: the one of the same\n"
    "                           USB device, found through sysfs)\n"
    "  --resolv PATH            DNS servers file (default /run/zovqmi/<ifname>.resolv)\n"
    "  --state-file PATH        state file (default /run/zovqmi/<ifname>.json)\n"
    "  --script PATH            run PATH up|down|update with the settings in ZOVQMI_*\n"
    "  --probe-interval SEC     liveness probe interval (default 30)\n"
    "  --timeout SEC            answer time of each request, and of the teardown\n"
    "                           (default 5)\n"
    "  --max-backoff SEC        longest wait between reconnection attempts (default 60)\n"
    "  --no-default-route       do not add default routes\n"
    "  --no-configure           leave the interface alone (the script configures it)\n"
    "  --no-sync                do not synchronise with the modem at start\n"
    "  --proxy PATH             share the device: other programs connect to the\n"
    "                           SOCK_SEQPACKET socket PATH and use it as the device\n"
    "  --proxy-mode MODE        the socket's permissions, octal (default 0660)\n"
    "  --proxy-group GROUP      the socket's group (name or number)\n"
    "  --json                   events as JSON objects on standard output\n"
    "  --syslog                 events to syslog instead of standard error\n"
    "  -h, --help               this text\n"
    "  --version                the version\n"
    "\n"
    "Exit status: 0 stopped by SIGTERM or SIGINT, 1 fatal error, 2 usage, 3 SIM\n"
    "(PIN wrong, missing or blocked; SIM absent).  SIGUSR1 logs the current state.\n";

// Seconds as a positive decimal number ("2", "0.5") into milliseconds.
bool seconds(const char* s, int minMs, int maxMs, int* ms) {
    if (!s || !*s) return false;
    char* end = nullptr;
    double v = strtod(s, &end);
    if (*end != 0 || !(v * 1000 >= minMs) || !(v * 1000 <= maxMs)) return false;
    *ms = int(v * 1000 + 0.5);
    return true;
}

bool copy(char* to, size_t size, const char* from) {
    size_t n = strlen(from);
    if (n >= size) return false;
    memcpy(to, from, n + 1);
    return true;
}

}  // namespace

const char* usageText() { return kUsage; }

int parseOptions(int argc, char** argv, Config* cfg, char* err, size_t errSize) {
#define USAGE(...) (snprintf(err, errSize, __VA_ARGS__), kParseUsage)
    for (int i = 1; i < argc; ++i) {
        const char* a = argv[i];
        const char* inlineValue = nullptr;
        char name[32];
        // --name=value
        const char* eq = strncmp(a, "--", 2) == 0 ? strchr(a, '=') : nullptr;
        if (eq) {
            size_t n = size_t(eq - a);
            if (n >= sizeof name) return USAGE("unknown option %s", a);
            memcpy(name, a, n);
            name[n] = 0;
            inlineValue = eq + 1;
            a = name;
        }
        auto is = [&](const char* n) { return strcmp(a, n) == 0; };
        auto flag = [&](bool* f, bool v) {
            *f = v;
            return inlineValue == nullptr;
        };
        const char* value = nullptr;
        auto needValue = [&]() -> bool {
            if (inlineValue) {
                value = inlineValue;
                return true;
            }
            if (i + 1 >= argc) return false;
            value = argv[++i];
            return true;
        };

        if (is("-h") || is("--help")) return kParseHelp;
        if (is("--version")) return kParseVersion;
        if (is("--no-default-route")) {
            if (!flag(&cfg->defaultRoute, false)) return USAGE("%s takes no value", a);
            continue;
        }
        if (is("--no-configure")) {
            if (!flag(&cfg->configure, false)) return USAGE("%s takes no value", a);
            continue;
        }
        if (is("--no-sync")) {
            if (!flag(&cfg->sync, false)) return USAGE("%s takes no value", a);
            continue;
        }
        if (is("--json")) {
            if (!flag(&cfg->json, true)) return USAGE("%s takes no value", a);
            continue;
        }
        if (is("--syslog")) {
            if (!flag(&cfg->syslog, true)) return USAGE("%s takes no value", a);
            continue;
        }

        bool known = is("-d") || is("--device") || is("--apn") || is("--auth") || is("--user") ||
                     is("--password") || is("--profile") || is("--ip-family") || is("--pin") ||
                     is("--ifname") || is("--resolv") || is("--state-file") || is("--script") ||
                     is("--probe-interval") || is("--timeout") || is("--max-backoff") || is("--proxy") ||
                     is("--proxy-mode") || is("--proxy-group");
        if (!known) return USAGE("unknown option %s (see --help)", a);
        if (!needValue()) return USAGE("%s needs a value", a);

        if (is("-d") || is("--device")) {
            if (!*value) return USAGE("%s needs a device path", a);
            cfg->device = value;
        } else if (is("--apn")) {
            size_t n = strlen(value);
            if (n == 0) return USAGE("--apn needs a name");
            if (n > size_t(kMaxApn))
                return USAGE("APN too long: %zu characters, the modem takes at most %d", n, kMaxApn);
            cfg->apn = value;
        } else if (is("--auth")) {
            cfg->authGiven = true;
            if (strcmp(value, "none") == 0) cfg->auth = kAuthNone;
            else if (strcmp(value, "pap") == 0) cfg->auth = kAuthPap;
            else if (strcmp(value, "chap") == 0) cfg->auth = kAuthChap;
            else if (strcmp(value, "both") == 0) cfg->auth = kAuthBoth;
            else return USAGE("unknown authentication %s (none, pap, chap or both)", value);
        } else if (is("--user") || is("--password")) {
            size_t n = strlen(value);
            if (n > size_t(kMaxCredential))
                return USAGE("%s too long: %zu characters, at most %d", a + 2, n, kMaxCredential);
            (is("--user") ? cfg->user : cfg->password) = value;
        } else if (is("--profile")) {
            char* end = nullptr;
            long n = strtol(value, &end, 10);
            if (!*value || *end || n < 1 || n > 255) return USAGE("bad profile number %s (1 to 255)", value);
            cfg->profile = int(n);
        } else if (is("--ip-family")) {
            if (strcmp(value, "4") == 0) cfg->family = kFamily4;
            else if (strcmp(value, "6") == 0) cfg->family = kFamily6;
            else if (strcmp(value, "4+6") == 0) cfg->family = kFamilyBoth;
            else return USAGE("unknown IP family %s (4, 6 or 4+6)", value);
        } else if (is("--pin")) {
            size_t n = strlen(value);
            if (n < size_t(kMinPin) || n > size_t(kMaxPin) || strspn(value, "0123456789") != n)
                return USAGE("bad PIN: %d to %d digits expected", kMinPin, kMaxPin);
            cfg->pin = value;
        } else if (is("--ifname")) {
            if (!*value || strchr(value, '/') || !copy(cfg->ifname, sizeof cfg->ifname, value))
                return USAGE("bad interface name %s (1 to %d characters, no '/')", value, kMaxIfname - 1);
        } else if (is("--resolv")) {
            if (!*value || !copy(cfg->resolv, sizeof cfg->resolv, value))
                return USAGE("bad --resolv path (1 to %d characters)", kMaxPath - 1);
        } else if (is("--state-file")) {
            if (!*value || !copy(cfg->stateFile, sizeof cfg->stateFile, value))
                return USAGE("bad --state-file path (1 to %d characters)", kMaxPath - 1);
        } else if (is("--script")) {
            if (!*value) return USAGE("--script needs a path");
            cfg->script = value;
        } else if (is("--probe-interval")) {
            if (!seconds(value, 100, 86400000, &cfg->probeIntervalMs))
                return USAGE("bad --probe-interval %s (seconds, 0.1 to 86400)", value);
        } else if (is("--timeout")) {
            if (!seconds(value, 100, 600000, &cfg->timeoutMs))
                return USAGE("bad --timeout %s (seconds, 0.1 to 600)", value);
        } else if (is("--proxy")) {
            if (!*value || strlen(value) >= 108) return USAGE("bad --proxy path (1 to 107 characters)");
            cfg->proxy = value;
        } else if (is("--proxy-mode")) {
            char* end = nullptr;
            unsigned long mode = strtoul(value, &end, 8);
            if (!*value || *end || mode > 0777) return USAGE("bad --proxy-mode %s (octal, such as 0660)", value);
            cfg->proxyMode = unsigned(mode);
        } else if (is("--proxy-group")) {
            if (!*value) return USAGE("--proxy-group needs a group");
            cfg->proxyGroup = value;
        } else if (is("--max-backoff")) {
            if (!seconds(value, 1000, 86400000, &cfg->maxBackoffMs))
                return USAGE("bad --max-backoff %s (seconds, 1 to 86400)", value);
        }
    }
    if (!cfg->device) return USAGE("no device given (-d DEVICE)");
    if (!cfg->apn && !cfg->profile) return USAGE("no APN given (--apn APN or --profile N)");
    if (cfg->password && !cfg->user) return USAGE("--password without --user");
    if ((cfg->user || cfg->password) && cfg->authGiven && cfg->auth == kAuthNone)
        return USAGE("--user or --password with --auth none");
    if (cfg->user && !cfg->authGiven) cfg->auth = kAuthBoth;
    if (cfg->json && cfg->syslog) return USAGE("--json and --syslog exclude each other");
    if ((cfg->proxyGroup || cfg->proxyMode != 0660) && !cfg->proxy)
        return USAGE("--proxy-mode and --proxy-group go with --proxy PATH");
    return kParseOk;
#undef USAGE
}

void finishPaths(Config* cfg) {
    if (!cfg->stateFile[0]) snprintf(cfg->stateFile, sizeof cfg->stateFile, "/run/zovqmi/%s.json", cfg->ifname);
    if (!cfg->resolv[0]) snprintf(cfg->resolv, sizeof cfg->resolv, "/run/zovqmi/%s.resolv", cfg->ifname);
}

}  // namespace zovconnect
