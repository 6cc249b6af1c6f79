// zovqmi-cli: the command line, checked as a whole before the device is
// opened, then one modem operation per action in the order given.
#include <dirent.h>
#include <errno.h>
#include <new>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "cli.h"

namespace zovapp {

namespace {

// Actions and client ids one command line may carry.
constexpr int kMaxSteps = 64;
constexpr int kMaxGiven = 8;

void usage(FILE* out) {
    fputs("usage: zovqmi-cli -d PATH [options] ACTION...\n"
          "\n"
          "Talks to a QMI modem through its control device (or a proxy's socket).\n"
          "Actions run in the order given.\n"
          "\n"
          "Actions:\n",
          out);
    for (const Action* a = kActions; a->name; ++a) {
        char head[64];
        snprintf(head, sizeof head, "%s%s%s", a->name, a->args[0] ? " " : "", a->args);
        fprintf(out, "  %-34s %s\n", head, a->help);
    }
    fputs("\n"
          "Options (they apply to every action that uses them):\n"
          "  -d, --device PATH                  the QMI control device or proxy socket (required)\n"
          "  -p, --proxy PATH                   a proxy's socket (zovqmi-connect --proxy, zovqmi-proxy)\n"
          "  --client-id SERVICE:ID             use a client id obtained earlier instead of a new one\n"
          "  --keep-client-ids                  do not release the client ids at the end (prints them)\n"
          "  --json                             one JSON object on standard output\n"
          "  --hex                              dump every frame\n"
          "  --timeout MS                       wait at most MS per response (default 5000; a network\n"
          "                                     scan waits at least 180000, a message send 60000)\n"
          "  --user U, --password P             credentials for --wds-start-network and the profile\n"
          "                                     actions\n"
          "  --auth none|pap|chap|both          authentication, likewise\n"
          "  --profile INDEX                    profile for --wds-start-network\n"
          "  --ip-family 4|6                    IP family for --wds-start-network\n"
          "  --apn APN, --profile-name NAME     settings of --wds-create-profile, --wds-modify-profile\n"
          "  --pdp-type ipv4|ipv6|ipv4v6        likewise\n"
          "  --count N                          --pds-start-tracking ends after N fixes\n"
          "  -h, --help                         this text\n"
          "\n"
          "Exit status: 0 success, 1 failure (device, I/O, unexpected answer), 2 usage,\n"
          "3 timeout, 4 QMI error result (its numeric code is printed).\n",
          out);
}

int exitOf(int status) {
    switch (status) {
    case kOk: return kExitOk;
    case kTimeout: return kExitTimeout;
    case kQmiFailure: return kExitQmi;
    default: return kExitFailed;
    }
}

// The self-pipe of SIGINT and SIGTERM.
int gWake[2] = {-1, -1};

void onSignal(int) {
    int e = errno;
    if (gWake[1] >= 0) {
        char b = 1;
        ssize_t ignored = write(gWake[1], &b, 1);
        (void)ignored;
    }
    errno = e;
}

void catchSignals() {
    if (gWake[0] < 0 && pipe(gWake) == 0) {
        for (int fd : gWake) fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) | O_NONBLOCK);
        for (int fd : gWake) fcntl(fd, F_SETFD, FD_CLOEXEC);
    }
    struct sigaction sa;
    memset(&sa, 0, sizeof sa);
    sa.sa_handler = onSignal;
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGTERM, &sa, nullptr);
}

const Action* findAction(const char* name) {
    for (const Action* a = kActions; a->name; ++a)
        if (strcmp(a->name, name) == 0) return a;
    return nullptr;
}

int nameOf(const char* v, const char* const* names, int count) {
    for (int i = 0; i < count; ++i)
        if (strcmp(v, names[i]) == 0) return i;
    return -1;
}

// The Cli is large (the session keeps whole frames): it lives in static
// storage, rebuilt for each run.
alignas(Cli) unsigned char gCliStorage[sizeof(Cli)];

}  // namespace

int usageError(const char* fmt, ...) {
    fputs("zovqmi-cli: ", stderr);
    va_list ap;
    va_start(ap, fmt);
    vfprintf(stderr, fmt, ap);
    va_end(ap);
    fputs(" (see --help)\n", stderr);
    return kExitUsage;
}

bool parseNumber(const char* s, long long min, long long max, long long* out) {
    if (!s || !*s || *s == '-' || *s == '+' || *s == ' ') return false;
    char* end = nullptr;
    errno = 0;
    unsigned long long v = strtoull(s, &end, 0);
    if (errno || *end || v > (unsigned long long)max || (long long)v < min) return false;
    *out = (long long)v;
    return true;
}

namespace {

// The longest proxy socket path (a Unix socket address's limit).
constexpr int kHeldPath = 108;
// Where zovqmi-connect keeps its state files (ZOVQMI_RUN_DIR for tests).
constexpr const char* kRunDir = "/run/zovqmi";

bool isSocket(const char* path) {
    struct stat st;
    return stat(path, &st) == 0 && S_ISSOCK(st.st_mode);
}

// The string value of "key" in a one-line JSON object (no escapes: paths).
bool jsonValue(const char* json, const char* key, char* out, size_t size) {
    char pattern[32];
    snprintf(pattern, sizeof pattern, "\"%s\":\"", key);
    const char* at = strstr(json, pattern);
    if (!at) return false;
    at += strlen(pattern);
    const char* end = strchr(at, '"');
    if (!end || size_t(end - at) >= size) return false;
    memcpy(out, at, size_t(end - at));
    out[end - at] = 0;
    return true;
}

// True when a running zovqmi-connect holds `device` and shares it through a
// proxy: one of its state files names the device and a socket that accepts
// connections.  The socket's path goes to `proxy`.
bool heldByManager(const char* device, char* proxy, size_t size) {
    const char* dir = getenv("ZOVQMI_RUN_DIR");
    if (!dir || !*dir) dir = kRunDir;
    DIR* d = opendir(dir);
    if (!d) return false;
    bool held = false;
    while (dirent* e = readdir(d)) {
        size_t n = strlen(e->d_name);
        if (n < 6 || strcmp(e->d_name + n - 5, ".json") != 0) continue;
        char path[512], text[2048], named[256];
        snprintf(path, sizeof path, "%s/%s", dir, e->d_name);
        int fd = open(path, O_RDONLY | O_CLOEXEC);
        if (fd < 0) continue;
        ssize_t got = read(fd, text, sizeof text - 1);
        close(fd);
        if (got <= 0) continue;
        text[got] = 0;
        if (!jsonValue(text, "device", named, sizeof named) || strcmp(named, device) != 0) continue;
        if (!jsonValue(text, "proxy", proxy, size)) continue;
        // A state file left by a manager that is gone names a dead socket.
        sockaddr_un addr = {};
        addr.sun_family = AF_UNIX;
        snprintf(addr.sun_path, sizeof addr.sun_path, "%s", proxy);
        int s = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        if (s >= 0 && connect(s, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0) held = true;
        if (s >= 0) close(s);
        if (held) break;
    }
    closedir(d);
    return held;
}

}  // namespace

int runCli(int argc, char** argv) {
    Cli* cp = new (gCliStorage) Cli();
    Cli& c = *cp;
    const char* device = nullptr;
    bool proxy = false;
    bool json = false, hex = false, keep = false, timeoutGiven = false;
    long long timeout = 5000;
    Step steps[kMaxSteps];
    int nsteps = 0;
    struct Given {
        uint8_t service, id;
    } given[kMaxGiven];
    int ngiven = 0;

    // --- the command line, checked before anything is opened --------------
    int rc = kExitOk;
    for (int i = 1; i < argc && rc == kExitOk; ++i) {
        const char* a = argv[i];
        auto value = [&](const char* what) -> const char* {
            if (i + 1 >= argc) {
                rc = usageError("%s needs %s", a, what);
                return nullptr;
            }
            return argv[++i];
        };
        const char* v;
        long long n;
        if (strcmp(a, "-h") == 0 || strcmp(a, "--help") == 0) {
            usage(stdout);
            c.~Cli();
            return kExitOk;
        } else if (strcmp(a, "-d") == 0 || strcmp(a, "--device") == 0) {
            if ((v = value("a device path"))) device = v, proxy = false;
        } else if (strcmp(a, "-p") == 0 || strcmp(a, "--proxy") == 0) {
            if ((v = value("a socket path"))) device = v, proxy = true;
        } else if (strcmp(a, "--json") == 0) {
            json = true;
        } else if (strcmp(a, "--hex") == 0) {
            hex = true;
        } else if (strcmp(a, "--keep-client-ids") == 0) {
            keep = true;
        } else if (strcmp(a, "--timeout") == 0) {
            if ((v = value("milliseconds")) && !parseNumber(v, 1, 3600000, &timeout))
                rc = usageError("bad --timeout %s (1 to 3600000 ms)", v);
            timeoutGiven = true;
        } else if (strcmp(a, "--client-id") == 0) {
            if (!(v = value("SERVICE:ID"))) break;
            char svc[16];
            const char* colon = strchr(v, ':');
            int service = -1;
            if (colon && colon - v < int(sizeof svc)) {
                memcpy(svc, v, size_t(colon - v));
                svc[colon - v] = 0;
                service = serviceByName(svc);
            }
            if (service <= 0 || !parseNumber(colon + 1, 1, 254, &n))
                rc = usageError("bad --client-id %s (SERVICE:ID, e.g. wds:3)", v);
            else if (ngiven == kMaxGiven)
                rc = usageError("too many --client-id options (at most %d)", kMaxGiven);
            else
                given[ngiven++] = Given{uint8_t(service), uint8_t(n)};
        } else if (strcmp(a, "--user") == 0) {
            if ((v = value("a user name"))) c.set.user = v;
        } else if (strcmp(a, "--password") == 0) {
            if ((v = value("a password"))) c.set.password = v;
        } else if (strcmp(a, "--auth") == 0) {
            static const char* const names[] = {"none", "pap", "chap", "both"};
            if ((v = value("none|pap|chap|both")) && (c.set.auth = nameOf(v, names, 4)) < 0)
                rc = usageError("bad --auth %s (none, pap, chap or both)", v);
        } else if (strcmp(a, "--profile") == 0) {
            if ((v = value("a profile index"))) {
                if (!parseNumber(v, 1, 255, &n)) rc = usageError("bad --profile %s (1 to 255)", v);
                c.set.profile = int(n);
            }
        } else if (strcmp(a, "--ip-family") == 0) {
            if ((v = value("4 or 6"))) {
                if (strcmp(v, "4") && strcmp(v, "6")) rc = usageError("bad --ip-family %s (4 or 6)", v);
                c.set.ipFamily = v[0] - '0';
            }
        } else if (strcmp(a, "--count") == 0) {
            if ((v = value("a number of fixes"))) {
                if (!parseNumber(v, 1, 1000000, &n)) rc = usageError("bad --count %s (1 to 1000000)", v);
                c.set.count = long(n);
            }
        } else if (strcmp(a, "--apn") == 0) {
            if ((v = value("an APN"))) {
                if (strlen(v) > 100) rc = usageError("--apn is longer than 100 characters");
                c.set.apn = v;
            }
        } else if (strcmp(a, "--profile-name") == 0) {
            if ((v = value("a name"))) {
                if (strlen(v) > 32) rc = usageError("--profile-name is longer than 32 characters");
                c.set.profileName = v;
            }
        } else if (strcmp(a, "--pdp-type") == 0) {
            static const char* const names[] = {"ipv4", "ppp", "ipv6", "ipv4v6"};
            if ((v = value("ipv4|ipv6|ipv4v6")) && ((c.set.pdpType = nameOf(v, names, 4)) < 0 || c.set.pdpType == 1))
                rc = usageError("bad --pdp-type %s (ipv4, ipv6 or ipv4v6)", v);
        } else if (const Action* act = findAction(a)) {
            if (nsteps == kMaxSteps) {
                rc = usageError("too many actions (at most %d)", kMaxSteps);
                break;
            }
            Step& st = steps[nsteps++];
            memset(&st, 0, sizeof st);
            st.action = act;
            for (int k = 0; k < act->nargs; ++k) {
                if (i + 1 >= argc) {
                    rc = usageError("%s needs %s", a, act->args);
                    break;
                }
                st.arg[k] = argv[++i];
            }
            if (rc == kExitOk && act->check) rc = act->check(st);
        } else {
            rc = usageError("unknown option %s", a);
        }
    }
    if (rc == kExitOk && !device) rc = usageError("no device given (-d PATH or -p SOCKET)");
    if (rc == kExitOk && proxy && !isSocket(device)) rc = usageError("-p %s: not a socket", device);
    if (rc == kExitOk && nsteps == 0) rc = usageError("no action given");
    if (rc == kExitOk && c.set.user && strlen(c.set.user) > 127) rc = usageError("--user is longer than 127 characters");
    if (rc == kExitOk && c.set.password && strlen(c.set.password) > 127)
        rc = usageError("--password is longer than 127 characters");
    if (rc != kExitOk) {
        c.~Cli();
        return rc;
    }

    // --- the session --------------------------------------------------------
    catchSignals();
    c.wakeFd = gWake[0];
    c.set.timeoutGiven = timeoutGiven;
    // A signal of an earlier run (tests run the tool in-process) is past.
    char stale;
    while (c.wakeFd >= 0 && read(c.wakeFd, &stale, 1) == 1) {
    }
    c.out.begin(json, stdout);
    c.s.setTimeout(int(timeout));
    c.s.setHexDump(hex);
    c.s.setWakeFd(c.wakeFd);
    char held[kHeldPath];
    int status = !proxy && heldByManager(device, held, sizeof held)
                     ? c.s.fail(kDeviceGone, "%s is held by zovqmi-connect: use its proxy, -p %s", device, held)
                     : c.s.open(device);
    for (int g = 0; status == kOk && g < ngiven; ++g) status = c.s.adopt(given[g].service, given[g].id);
    for (int k = 0; status == kOk && k < nsteps; ++k) {
        // Operations that take long on a real modem wait longer by default.
        int wait = int(timeout);
        if (!timeoutGiven && strcmp(steps[k].action->name, "--nas-network-scan") == 0) wait = 180000;
        if (!timeoutGiven && strcmp(steps[k].action->name, "--wms-send") == 0) wait = 60000;
        c.s.setTimeout(wait);
        status = steps[k].action->run(c, steps[k]);
        c.s.setTimeout(int(timeout));
    }
    char error[kErrorText];
    snprintf(error, sizeof error, "%s", c.s.error());
    if (status == kInterrupted) {
        // The client ids are still given back: the signal's byte is taken
        // so that the waits of the release do not end at once.
        while (read(c.wakeFd, &stale, 1) == 1) {
        }
    }
    if (c.s.isOpen()) {
        if (keep) {
            for (int k = 0; k < c.s.clientCount(); ++k) {
                uint8_t svc, id;
                c.s.clientAt(k, &svc, &id);
                char key[40], label[40];
                snprintf(key, sizeof key, "kept_%s_client_id", serviceName(svc));
                snprintf(label, sizeof label, "kept %s client id", serviceName(svc));
                c.out.num(key, label, id);
            }
        } else {
            // A failed release after a failed action does not hide the first failure.
            int released = c.s.releaseAll();
            if (status == kOk && released != kOk) {
                status = released;
                snprintf(error, sizeof error, "%s", c.s.error());
            }
        }
    }
    c.out.finish();
    if (status != kOk) fprintf(stderr, "zovqmi-cli: error: %s\n", error);
    c.~Cli();
    return exitOf(status);
}

}  // namespace zovapp
