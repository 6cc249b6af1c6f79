// zovqmi-sim: the simulated modem on a device node.
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

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
                 "  --link PATH         with --pty: keep a symbolic link to the terminal at PATH\n"
                 "  --pin PIN           PIN1 of the simulated SIM (default 1234)\n"
                 "  --no-pin            PIN1 protection disabled: the SIM is ready at once\n"
                 "  --puk PUK           its unblock key (default 12345678)\n"
                 "  --control PATH      accept control commands on a Unix stream socket at PATH\n"
                 "  --tun IFNAME        create the TUN interface IFNAME (raw IP) as the modem's\n"
                 "                      network interface; its configuration is left to the host\n"
                 "  --silent SVC:MSG    never answer message MSG of service SVC (for timeout tests);\n"
                 "                      numbers in decimal or 0x hex, may be repeated\n"
                 "  --debug             FUSE debug output\n"
                 "  -h, --help          this text\n"
                 "\n"
                 "Control commands, one per line, each answered by one line (\"ok\", \"error: ...\"\n"
                 "or JSON): drop-call [REASON], deregister, register, signal DBM, stall, unstall,\n"
                 "vanish MS, reset, sim remove, sim insert, deliver-sms HEX, status.\n"
                 "\n"
                 "Address plan: the k-th IPv4 call at a time gets 10.64.k.2/30, gateway 10.64.k.1,\n"
                 "DNS 10.0.0.1 and 10.0.0.2; the k-th IPv6 call gets 2001:db8:64:k::2/64, gateway\n"
                 "2001:db8:64:k::1, DNS 2001:db8:0:53::1 and ::2; MTU 1500.  On the TUN interface\n"
                 "the modem answers echo requests (ICMP, ICMPv6) from a call's address to any\n"
                 "destination and drops packets from any other source.\n"
                 "\n"
                 "The device path is printed as \"device: PATH\" once it is ready; SIGINT or SIGTERM\n"
                 "ends the simulation.\n");
}

}  // namespace

int main(int argc, char** argv) {
    zovsim::Options options;
    std::string dir = "/tmp/zovqmi-sim";
    std::string link, control, tunName;
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
        } else if (a == "--no-pin") {
            options.pin1Enabled = false;
        } else if (a == "--link") {
            link = value("a path");
        } else if (a == "--control") {
            control = value("a socket path");
        } else if (a == "--tun") {
            tunName = value("an interface name");
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
    std::unique_ptr<zovsim::ServedDevice> device;
#ifdef ZOVQMI_SIM_FUSE
    if (!pty && !zovsim::fuseAvailable()) {
        std::fprintf(stderr, "zovqmi-sim: /dev/fuse is not available; use --pty\n");
        return 1;
    }
    if (!pty) device = zovsim::makeFuseDevice(modem, dir, debug);
#else
    (void)debug;
    if (!pty) std::fprintf(stderr, "zovqmi-sim: built without FUSE; serving a pseudo-terminal\n");
#endif
    if (!device) device = zovsim::makePtyDevice(modem, link);

    zovsim::Tun tun(modem);
    if (!tunName.empty()) {
        std::string why = tun.start(tunName);
        if (!why.empty()) {
            std::fprintf(stderr, "zovqmi-sim: --tun: %s\n", why.c_str());
            return 1;
        }
    }
    zovsim::Controller controller(modem, *device);
    zovsim::ControlServer controlServer(controller);
    if (!control.empty()) {
        std::string why = controlServer.start(control);
        if (!why.empty()) {
            std::fprintf(stderr, "zovqmi-sim: --control: %s\n", why.c_str());
            return 1;
        }
    }
    // Periodic reports (transfer statistics).
    std::atomic<bool> stop{false};
    std::thread ticker([&] {
        while (!stop) {
            device->deliver(modem.tick());
            usleep(200000);
        }
    });
    int status = device->serve();
    stop = true;
    ticker.join();
    controlServer.stop();
    tun.stop();
    return status;
}
