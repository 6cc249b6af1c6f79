// A whole modem session, step by step: identity, PIN, network, a data call,
// short messages, the phonebook and a GPS fix.
//
//   zovqmi-demo                  talks to a simulated modem started in-process
//   zovqmi-demo --device PATH    talks to the modem (or zovqmi-sim node) at PATH
//   --hex                        also dumps every frame
//   --pin PIN                    the PIN to verify (default 1234)
//   --apn APN                    the access point name (default internet)
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <string>

#include "modem.h"
#include "ops.h"
#include "socket_server.h"

using namespace zovapp;

namespace {

int step = 0;
void title(const char* what) { std::printf("\n[%d] %s\n", ++step, what); }

}  // namespace

int main(int argc, char** argv) {
    std::string device, pin = "1234", apn = "internet";
    bool hex = false;
    int timeout = 5000;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        bool more = i + 1 < argc;
        if (a == "--device" && more) device = argv[++i];
        else if (a == "--pin" && more) pin = argv[++i];
        else if (a == "--apn" && more) apn = argv[++i];
        else if (a == "--timeout" && more) timeout = std::atoi(argv[++i]);
        else if (a == "--hex") hex = true;
        else {
            std::fprintf(stderr, "usage: zovqmi-demo [--device PATH] [--hex] [--pin PIN] [--apn APN] [--timeout MS]\n");
            return a == "-h" || a == "--help" ? 0 : 2;
        }
    }

    // Without a device, a simulated modem answers on an in-process socket.
    std::unique_ptr<zovsim::Modem> modem;
    std::unique_ptr<zovsim::SocketServer> server;
    int fd = -1;
    try {
        title("open the device");
        std::unique_ptr<Session> session;
        if (device.empty()) {
            modem.reset(new zovsim::Modem());
            server.reset(new zovsim::SocketServer(*modem));
            fd = server->connect();
            session.reset(new Session(fd, timeout, hex));
            std::printf("    simulated modem (in-process socket, descriptor %d)\n", fd);
        } else {
            session.reset(new Session(device, timeout, hex));
            std::printf("    %s (descriptor %d)\n", device.c_str(), session->fd());
        }
        Session& s = *session;

        title("obtain client ids");
        for (uint8_t svc : {ZOVQMI_SERVICE_DMS, ZOVQMI_SERVICE_NAS, ZOVQMI_SERVICE_WDS, ZOVQMI_SERVICE_WMS,
                            ZOVQMI_SERVICE_PBM, ZOVQMI_SERVICE_PDS})
            std::printf("    %s: %u\n", serviceName(svc), s.clientId(svc));

        title("read the modem's identity");
        Identity id = dmsIdentity(s);
        std::printf("    manufacturer: %s\n    model: %s\n    revision: %s\n    IMEI: %s\n", id.manufacturer.c_str(),
                    id.model.c_str(), id.revision.c_str(), id.imei.c_str());

        title("verify the PIN");
        PinRetries retries;
        uimVerifyPin(s, pin, &retries);
        std::printf("    PIN verified, %d retries left\n", retries.verifyLeft);

        title("read signal strength and serving system");
        Signal sig = nasSignal(s);
        std::printf("    signal: %d dBm on %s\n", sig.dbm, radioName(sig.radio));
        Serving sv = nasServing(s);
        std::printf("    %s, PS %s", registrationName(sv.registration), sv.psAttach == 1 ? "attached" : "detached");
        if (sv.hasPlmn) std::printf(", network %03u-%02u %s", sv.plmn.mcc, sv.plmn.mnc, sv.plmn.description.c_str());
        std::printf("\n");

        title("create a profile");
        uint8_t profile = wdsCreateProfile(s, "demo", apn);
        std::printf("    profile %u: name demo, APN %s\n", profile, apn.c_str());

        title("start a data call");
        StartArgs args;
        args.profile = profile;
        uint32_t handle = wdsStart(s, args);
        std::printf("    packet data handle %u\n", handle);
        uint8_t status = wdsAwaitStatus(s);
        std::printf("    indication: connection %s\n", status == 2 ? "up" : "down");

        title("read the runtime settings");
        Runtime rt = wdsRuntime(s);
        std::printf("    APN %s, address %s, gateway %s, DNS %s %s, MTU %u\n", rt.apn.c_str(), ipv4(rt.ipv4).c_str(),
                    ipv4(rt.gateway).c_str(), ipv4(rt.dns1).c_str(), ipv4(rt.dns2).c_str(), rt.mtu);

        title("write, list and read a short message");
        uint32_t index = wmsWrite(s, 1, submitPdu("15550100200", "Hello from the demo"));
        std::printf("    written at index %u of the device store\n", index);
        for (const SmsEntry& e : wmsList(s, 1)) std::printf("    listed: %u (%s)\n", e.index, tagName(e.tag));
        Sms sms = wmsRead(s, 1, index);
        std::string to, text = pduText(sms.pdu, &to);
        std::printf("    read %u: to %s, \"%s\" (%s)\n", index, to.c_str(), text.c_str(), tagName(sms.tag));

        title("read phonebook records");
        for (const PbEntry& e : pbmRead(s, 1, 1, 10))
            std::printf("    %u: %s <%s>\n", e.id, e.name.c_str(), e.number.c_str());

        title("run one GPS fix");
        Fix fix = pdsSingleFix(s);
        for (const std::string& n : fix.nmea) std::printf("    %s\n", n.c_str());
        std::printf("    position %.6f, %.6f, altitude %d m\n", fix.latitude, fix.longitude, fix.altitude);

        title("stop the call");
        wdsStop(s, handle);
        uint16_t reason = 0;
        status = wdsAwaitStatus(s, &reason);
        std::printf("    indication: connection %s, call end reason %u\n", status == 2 ? "up" : "down", reason);

        title("release the client ids");
        s.releaseAll();
        std::printf("    released\n");

        title("close");
        session.reset();
        if (fd >= 0) close(fd);
        std::printf("    done\n");
        return 0;
    } catch (const Error& e) {
        std::fflush(stdout);
        std::fprintf(stderr, "zovqmi-demo: error: %s\n", e.what());
        return dynamic_cast<const Timeout*>(&e) ? 3 : dynamic_cast<const QmiError*>(&e) ? 4 : 1;
    }
}
