// zovqmi-connect: brings a router online over its QMI modem and keeps it
// online.  See `zovqmi-connect --help` and man/zovqmi-connect.1.
#include <stdio.h>
#include <string.h>

#include "config.h"
#include "daemon.h"
#include "log.h"
#include "sysfs.h"

namespace {

// The daemon holds the session's message buffers: too large for the stack
// of a small router, so it lives here.
zovconnect::Daemon gDaemon;

}  // namespace

int main(int argc, char** argv) {
    zovconnect::Config cfg;
    char err[256] = "";
    switch (zovconnect::parseOptions(argc, argv, &cfg, err, sizeof err)) {
    case zovconnect::kParseHelp:
        fputs(zovconnect::usageText(), stdout);
        return 0;
    case zovconnect::kParseVersion:
        printf("zovqmi-connect %s\n", ZOVQMI_VERSION);
        return 0;
    case zovconnect::kParseUsage:
        fprintf(stderr, "zovqmi-connect: %s\n", err);
        return zovconnect::kExitUsage;
    default:
        break;
    }
    if (!cfg.ifname[0] &&
        zovconnect::findInterface("/sys", cfg.device, cfg.ifname, sizeof cfg.ifname, err, sizeof err) < 0) {
        fprintf(stderr, "zovqmi-connect: %s\n", err);
        return zovconnect::kExitFatal;
    }
    zovconnect::finishPaths(&cfg);
    zovapp::logInit("zovqmi-connect", cfg.json     ? zovapp::LogTarget::Json
                                      : cfg.syslog ? zovapp::LogTarget::Syslog
                                                   : zovapp::LogTarget::Stderr);
    return gDaemon.run(cfg);
}
