#include "report.h"

#include <arpa/inet.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "json.h"
#include "session.h"

extern char** environ;

namespace zovconnect {

void addressText(uint8_t family, const uint8_t* address, char* out, int size) {
    if (!inet_ntop(family == 6 ? AF_INET6 : AF_INET, address, out, socklen_t(size))) {
        if (size > 0) out[0] = 0;
    }
}

int prefixOfMask(uint32_t mask) {
    int n = 0;
    while (n < 32 && (mask & (0x80000000u >> n))) ++n;
    return n;
}

namespace {

void familyJson(zovapp::Json& j, const char* key, const FamilySettings& f) {
    if (!f.present) {
        j.null(key);
        return;
    }
    char text[kAddressText];
    j.object(key);
    addressText(f.family, f.address, text, sizeof text);
    j.str("address", text).num("prefix", f.prefix);
    if (f.haveGateway) {
        addressText(f.family, f.gateway, text, sizeof text);
        j.str("gateway", text);
    } else {
        j.null("gateway");
    }
    j.array("dns");
    for (int i = 0; i < f.dnsCount; ++i) {
        addressText(f.family, f.dns[i], text, sizeof text);
        j.str(nullptr, text);
    }
    j.end().end();
}

int replaceFile(const char* path, const char* tmp, FILE* f) {
    bool ok = fflush(f) == 0 && fsync(fileno(f)) == 0;
    int e = errno;
    if (fclose(f) != 0 && ok) {
        ok = false;
        e = errno;
    }
    if (ok && rename(tmp, path) == 0) return 0;
    if (ok) e = errno;
    unlink(tmp);
    errno = e;
    return -1;
}

FILE* openTemp(const char* path, char* tmp, size_t size) {
    if (snprintf(tmp, size, "%s.tmp", path) >= int(size)) {
        errno = ENAMETOOLONG;
        return nullptr;
    }
    FILE* f = fopen(tmp, "we");
    if (!f && errno == ENOENT) {
        makeParentDirs(path);
        f = fopen(tmp, "we");
    }
    return f;
}

}  // namespace

void writeStateJson(FILE* out, const Snapshot& s) {
    zovapp::Json j(out);
    j.object();
    j.str("state", stateName(s.state)).num("since", s.since).str("apn", s.apn);
    familyJson(j, "ipv4", s.v4);
    familyJson(j, "ipv6", s.v6);
    if (s.mtu) j.unum("mtu", s.mtu);
    else j.null("mtu");
    j.boolean("registered", s.registered);
    if (s.haveSignal) j.num("signal_dbm", s.signalDbm);
    else j.null("signal_dbm");
    j.num("reconnects", s.reconnects);
    j.str("last_error", s.lastError[0] ? s.lastError : nullptr);
    if (s.proxy) j.str("device", s.device).str("proxy", s.proxy);
    j.end();
}

void makeParentDirs(const char* path) {
    char dir[512];
    size_t n = strlen(path);
    if (n >= sizeof dir) return;
    memcpy(dir, path, n + 1);
    for (char* p = dir + 1; *p; ++p) {
        if (*p != '/') continue;
        *p = 0;
        mkdir(dir, 0755);
        *p = '/';
    }
}

int writeStateFile(const char* path, const Snapshot& s) {
    char tmp[512];
    FILE* f = openTemp(path, tmp, sizeof tmp);
    if (!f) return -1;
    writeStateJson(f, s);
    fputc('\n', f);
    return replaceFile(path, tmp, f);
}

int writeResolv(const char* path, const FamilySettings& v4, const FamilySettings& v6) {
    char tmp[512];
    FILE* f = openTemp(path, tmp, sizeof tmp);
    if (!f) return -1;
    char text[kAddressText];
    const FamilySettings* both[2] = {&v4, &v6};
    for (const FamilySettings* s : both) {
        if (!s->present) continue;
        for (int i = 0; i < s->dnsCount; ++i) {
            addressText(s->family, s->dns[i], text, sizeof text);
            fprintf(f, "nameserver %s\n", text);
        }
    }
    return replaceFile(path, tmp, f);
}

int removeResolv(const char* path) {
    if (unlink(path) == 0 || errno == ENOENT) return 0;
    return -1;
}

void scriptEnvironment(ScriptEnv* e, const char* ifname, const char* apn, const FamilySettings& v4,
                       const FamilySettings& v6, uint32_t mtu, const char* reason) {
    int used = 0;
    e->count = 0;
    auto add = [&](const char* name, const char* value) {
        if (e->count == kScriptVars) return;
        int room = kScriptEnvBytes - used;
        int n = snprintf(e->buf + used, size_t(room), "%s=%s", name, value ? value : "");
        if (n < 0 || n >= room) return;
        e->env[e->count++] = e->buf + used;
        used += n + 1;
    };
    char text[kAddressText], num[16], dns[kMaxDns * kAddressText + kMaxDns];
    add("ZOVQMI_IFNAME", ifname);
    struct Names {
        const char *address, *prefix, *gateway, *dns;
    };
    const Names names[2] = {
        {"ZOVQMI_IPV4_ADDRESS", "ZOVQMI_IPV4_PREFIX", "ZOVQMI_IPV4_GATEWAY", "ZOVQMI_IPV4_DNS"},
        {"ZOVQMI_IPV6_ADDRESS", "ZOVQMI_IPV6_PREFIX", "ZOVQMI_IPV6_GATEWAY", "ZOVQMI_IPV6_DNS"},
    };
    const FamilySettings* fams[2] = {&v4, &v6};
    for (int k = 0; k < 2; ++k) {
        const FamilySettings& f = *fams[k];
        if (!f.present) {
            const char* const empty[4] = {names[k].address, names[k].prefix, names[k].gateway, names[k].dns};
            for (const char* n : empty) add(n, "");
            continue;
        }
        addressText(f.family, f.address, text, sizeof text);
        add(names[k].address, text);
        snprintf(num, sizeof num, "%d", f.prefix);
        add(names[k].prefix, num);
        if (f.haveGateway) addressText(f.family, f.gateway, text, sizeof text);
        else text[0] = 0;
        add(names[k].gateway, text);
        dns[0] = 0;
        for (int i = 0; i < f.dnsCount; ++i) {
            addressText(f.family, f.dns[i], text, sizeof text);
            if (i) strcat(dns, " ");
            strcat(dns, text);
        }
        add(names[k].dns, dns);
    }
    if (mtu) snprintf(num, sizeof num, "%u", mtu);
    else num[0] = 0;
    add("ZOVQMI_MTU", num);
    add("ZOVQMI_APN", apn);
    add("ZOVQMI_REASON", reason);
    e->env[e->count] = nullptr;
}

int runScript(const char* script, const char* action, const ScriptEnv& e, long long deadlineMs, int stopFd,
              int graceMs) {
    pid_t pid = fork();
    if (pid < 0) return -1;
    if (pid == 0) {
        // The child: the daemon's signal dispositions are not the script's.
        signal(SIGPIPE, SIG_DFL);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        for (int i = 0; i < e.count; ++i) putenv(e.env[i]);
        execl(script, script, action, static_cast<char*>(nullptr));
        _exit(127);
    }
    int status = 0;
    for (;;) {
        pid_t got = waitpid(pid, &status, WNOHANG);
        if (got == pid) break;
        if (got < 0 && errno != EINTR) return -1;
        if (zovapp::monotonicMs() >= deadlineMs) {
            kill(pid, SIGKILL);
            waitpid(pid, &status, 0);
            return -1;
        }
        // A short sleep between looks at the child (or a stop asked for).
        pollfd p = {stopFd, POLLIN, 0};
        if (poll(&p, stopFd >= 0 ? 1 : 0, 10) > 0 && (p.revents & POLLIN)) {
            long long soon = zovapp::monotonicMs() + graceMs;
            if (soon < deadlineMs) deadlineMs = soon;
            stopFd = -1;
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace zovconnect
