// zovqmi-proxy: shares one modem control device among several programs over
// a SOCK_SEQPACKET Unix socket (for hosts where zovqmi-connect, which has the
// same proxy built in, does not run).
#include <grp.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <syslog.h>

#include "proxy.h"

namespace {

zovproxy::ProxyServer* running = nullptr;

void onSignal(int) {
    if (running) running->stop();
}

void logLine(void* ctx, const char* line) {
    if (ctx) syslog(LOG_INFO, "%s", line);
    else fprintf(stderr, "zovqmi-proxy: %s\n", line);
}

void usage(FILE* out) {
    fputs("usage: zovqmi-proxy -d DEVICE --socket PATH [--mode MODE] [--group GROUP] [--syslog]\n"
          "\n"
          "Shares the QMI control device DEVICE among programs that connect to the\n"
          "SOCK_SEQPACKET socket PATH and use it as they would use the device.\n"
          "\n"
          "  -d, --device DEVICE   the QMI control device\n"
          "  --socket PATH         the socket to listen on\n"
          "  --mode MODE           its permissions, in octal (default 0660)\n"
          "  --group GROUP         its group (name or number)\n"
          "  --syslog              log to syslog instead of standard error\n"
          "  -h, --help            this text\n",
          out);
}

int bad(const char* what) {
    fprintf(stderr, "zovqmi-proxy: %s (see --help)\n", what);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    const char *device = nullptr, *socketPath = nullptr, *group = nullptr;
    unsigned long mode = 0660;
    bool useSyslog = false;
    for (int i = 1; i < argc; ++i) {
        const char* a = argv[i];
        const char* v = i + 1 < argc ? argv[i + 1] : nullptr;
        if (!strcmp(a, "-h") || !strcmp(a, "--help")) {
            usage(stdout);
            return 0;
        } else if (!strcmp(a, "--syslog")) {
            useSyslog = true;
        } else if (!strcmp(a, "-d") || !strcmp(a, "--device") || !strcmp(a, "--socket") || !strcmp(a, "--mode") ||
                   !strcmp(a, "--group")) {
            if (!v) return bad("an option needs a value");
            ++i;
            if (a[1] == 'd' || a[2] == 'd') device = v;
            else if (a[2] == 's') socketPath = v;
            else if (a[2] == 'g') group = v;
            else {
                char* end = nullptr;
                mode = strtoul(v, &end, 8);
                if (!*v || *end || mode > 07777) return bad("--mode wants an octal mode such as 0660");
            }
        } else {
            fprintf(stderr, "zovqmi-proxy: unknown option %s (see --help)\n", a);
            return 2;
        }
    }
    if (!device) return bad("-d DEVICE is required");
    if (!socketPath) return bad("--socket PATH is required");
    long gid = -1;
    if (group) {
        char* end = nullptr;
        gid = strtol(group, &end, 10);
        if (!*group || *end) {
            struct group* g = getgrnam(group);
            if (!g) return bad("--group: no such group");
            gid = long(g->gr_gid);
        }
    }
    if (useSyslog) openlog("zovqmi-proxy", LOG_PID, LOG_DAEMON);

    static zovproxy::ProxyServer proxy;
    proxy.setLog(logLine, useSyslog ? &proxy : nullptr);
    proxy.setDevicePath(device);
    if (proxy.listen(socketPath, unsigned(mode), gid) < 0) {
        fprintf(stderr, "zovqmi-proxy: %s\n", proxy.error());
        return 1;
    }
    running = &proxy;
    struct sigaction sa = {};
    sa.sa_handler = onSignal;
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    signal(SIGPIPE, SIG_IGN);
    proxy.run();
    return 0;
}
