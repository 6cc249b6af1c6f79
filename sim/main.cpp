// zovqmi-sim: the simulated modem on a device node.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "transports.h"

namespace {

void usage(FILE* out) {
    std::fprintf(out,
                 "usage: zovqmi-sim [--fuse [DIR] | --pty] [options]\n"
                 "\n"
                 "Answers QMI requests like a modem, on a device node that zovQMIDeviceOpen opens.\n"
                 "\n"
                 "  --fuse [DIR]        serve DIR/cdc-wdm0 through FUSE (default; DIR defaults to\n"
                 "                      /tmp/zovqmi-sim); each read returns exactly one frame\n"
                 "  --pty               serve a pseudo-terminal instead and print its path\n"
                 "  --pin PIN           PIN1 of the simulated SIM (default 1234)\n"
                 "  --puk PUK           its unblock key (default 12345678)\n"
                 "  --silent SVC:MSG    never answer message MSG of service SVC (for timeout tests);\n"
                 "                      numbers in decimal or 0x hex, may be repeated\n"
                 "  --debug             FUSE debug output\n"
                 "  -h, --help          this text\n"
                 "\n"
                 "The device path is printed as \"device: PATH\" once it is ready; SIGINT or SIGTERM\n"
                 "ends the simulation.\n");
}

}  // namespace

int main(int argc, char** argv) {
    zovsim::Options options;
    std::string dir = "/tmp/zovqmi-sim";
    bool pty = false, debug = false;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        auto value = [&](const char* what) -> std::string {
            if (i + 1 >= argc) {
                std::fprintf(stderr, "zovqmi-sim: %s needs %s\n", a.c_str(), what);
                std::exit(2);
            }
            return argv[++i];
        };
        if (a == "-h" || a == "--help") {
            usage(stdout);
            return 0;
        } else if (a == "--fuse") {
            pty = false;
            if (i + 1 < argc && argv[i + 1][0] != '-') dir = argv[++i];
        } else if (a == "--pty") {
            pty = true;
        } else if (a == "--pin") {
            options.pin1 = value("a PIN");
        } else if (a == "--puk") {
            options.puk1 = value("an unblock key");
        } else if (a == "--silent") {
            std::string v = value("SVC:MSG");
            size_t colon = v.find(':');
            if (colon == std::string::npos) {
                std::fprintf(stderr, "zovqmi-sim: --silent wants SVC:MSG, got %s\n", v.c_str());
                return 2;
            }
            options.silent.insert({uint8_t(std::strtoul(v.substr(0, colon).c_str(), nullptr, 0)),
                                   uint16_t(std::strtoul(v.substr(colon + 1).c_str(), nullptr, 0))});
        } else if (a == "--debug") {
            debug = true;
        } else {
            std::fprintf(stderr, "zovqmi-sim: unknown option %s (see --help)\n", a.c_str());
            return 2;
        }
    }
    zovsim::Modem modem(options);
    if (pty) return zovsim::servePty(modem);
#ifdef ZOVQMI_SIM_FUSE
    if (!zovsim::fuseAvailable()) {
        std::fprintf(stderr, "zovqmi-sim: /dev/fuse is not available; use --pty\n");
        return 1;
    }
    return zovsim::serveFuse(modem, dir, debug);
#else
    (void)debug;
    std::fprintf(stderr, "zovqmi-sim: built without FUSE; serving a pseudo-terminal\n");
    return zovsim::servePty(modem);
#endif
}
