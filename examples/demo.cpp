// A whole modem session, step by step: identity, PIN, network, a data call,
// short messages, the phonebook and a GPS fix, on the session layer the
// router tools use (tools/session) and zovqmi-cli's PDU codec.
//
//   zovqmi-demo                  talks to a simulated modem started in-process
//   zovqmi-demo --device PATH    talks to the modem (or zovqmi-sim node) at PATH
//   zovqmi-demo --proxy PATH     talks through a proxy's socket (zovqmi-connect --proxy);
//                                --device takes a socket too
//   --hex                        also dumps every frame
//   --pin PIN                    the PIN to verify (default 1234)
//   --apn APN                    the access point name (default internet)
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "modem.h"
#include "pdu.h"
#include "session.h"
#include "socket_server.h"

using namespace zovapp;

namespace {

int step = 0;
void title(const char* what) { std::printf("\n[%d] %s\n", ++step, what); }

// A failed step: the session's status and text.
struct Failed {
    int status;
    std::string text;
};

struct Demo {
    Session s;
    Message m;  // the last answer
    uint8_t buf[kMaxMessage];

    void must(int rc) {
        if (rc != kOk) throw Failed{rc, s.error()};
    }
    // Sends the request built in buf and checks the answer with `parse`.
    template <typename Parse>
    void ask(uint8_t service, const char* what, int len, Parse parse) {
        must(s.request(service, buf, len, &m));
        QmiResult r{};
        must(s.check(what, parse(r), r));
    }
    std::string text(int (*get)(const uint8_t*, int, uint16_t*, void*)) {
        uint16_t n = 0;
        if (get(m.bytes, m.len, &n, nullptr) < 0 || n > m.len) return "";
        std::string out(n, '\0');
        get(m.bytes, m.len, &n, &out[0]);
        return out;
    }
    std::string textResp(uint8_t service, const char* what, int (*req)(uint8_t*, int),
                         int (*resp)(const uint8_t*, int, QmiResult*, uint16_t*, void*)) {
        uint16_t n = 0;
        ask(service, what, req(buf, sizeof buf), [&](QmiResult& r) { return resp(m.bytes, m.len, &r, &n, nullptr); });
        if (n > m.len) throw Failed{kBadAnswer, std::string(what) + ": unexpected answer"};
        std::string out(n, '\0');
        QmiResult r{};
        resp(m.bytes, m.len, &r, &n, &out[0]);
        return out;
    }
    uint8_t packetStatus(uint16_t* reason) {
        must(s.awaitIndication(ZOVQMI_SERVICE_WDS, 0x0022, -1, &m));
        uint8_t status = 0, second = 0;
        if (zovQMIWDSPktSrvcStatusIND(m.bytes, m.len, &status, &second) < 0)
            throw Failed{kBadAnswer, "packet service status: unexpected indication"};
        if (reason && zovQMIWDSPktSrvcStatusINDGetCallEndReason(m.bytes, m.len, reason) < 0) *reason = 0;
        return status;
    }
};

uint16_t le16(const void* p) {
    const uint8_t* b = static_cast<const uint8_t*>(p);
    return uint16_t(b[0] | b[1] << 8);
}

std::string ipv4(uint32_t a) {
    char t[20];
    std::snprintf(t, sizeof t, "%u.%u.%u.%u", a >> 24, a >> 16 & 255, a >> 8 & 255, a & 255);
    return t;
}

const char* radioName(uint8_t radio) {
    switch (radio) {
    case 4: return "gsm";
    case 5: return "umts";
    case 8: return "lte";
    default: return "other";
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::string device, pin = "1234", apn = "internet";
    bool hex = false;
    int timeout = 5000;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        bool more = i + 1 < argc;
        if ((a == "--device" || a == "-d" || a == "--proxy" || a == "-p") && more) device = argv[++i];
        else if (a == "--pin" && more) pin = argv[++i];
        else if (a == "--apn" && more) apn = argv[++i];
        else if (a == "--timeout" && more) timeout = std::atoi(argv[++i]);
        else if (a == "--hex") hex = true;
        else {
            std::fprintf(stderr, "usage: zovqmi-demo [--device PATH | --proxy SOCKET] [--hex] [--pin PIN] [--apn APN] [--timeout MS]\n");
            return a == "-h" || a == "--help" ? 0 : 2;
        }
    }

    // Without a device, a simulated modem answers on an in-process socket.
    std::unique_ptr<zovsim::Modem> modem;
    std::unique_ptr<zovsim::SocketServer> server;
    std::unique_ptr<Demo> demo(new Demo);
    Demo& d = *demo;
    Session& s = d.s;
    s.setTimeout(timeout);
    s.setHexDump(hex);
    try {
        title("open the device");
        if (device.empty()) {
            modem.reset(new zovsim::Modem());
            server.reset(new zovsim::SocketServer(*modem));
            s.attach(server->connect(), true);
            std::printf("    simulated modem (in-process socket, descriptor %d)\n", s.fd());
        } else {
            d.must(s.open(device.c_str()));
            std::printf("    %s (descriptor %d)\n", device.c_str(), s.fd());
        }

        title("obtain client ids");
        for (uint8_t svc : {ZOVQMI_SERVICE_DMS, ZOVQMI_SERVICE_NAS, ZOVQMI_SERVICE_WDS, ZOVQMI_SERVICE_WMS,
                            ZOVQMI_SERVICE_PBM, ZOVQMI_SERVICE_PDS}) {
            uint8_t id = 0;
            d.must(s.client(svc, &id));
            std::printf("    %s: %u\n", serviceName(svc), id);
        }

        title("read the modem's identity");
        std::string mfr = d.textResp(ZOVQMI_SERVICE_DMS, "manufacturer", zovQMIDMSGetDeviceMfrReq, zovQMIDMSGetDeviceMfrResp);
        std::string model =
            d.textResp(ZOVQMI_SERVICE_DMS, "model", zovQMIDMSGetDeviceModelIDReq, zovQMIDMSGetDeviceModelIDResp);
        std::string rev =
            d.textResp(ZOVQMI_SERVICE_DMS, "revision", zovQMIDMSGetDeviceRevIDReq, zovQMIDMSGetDeviceRevIDResp);
        d.ask(ZOVQMI_SERVICE_DMS, "serial numbers", zovQMIDMSGetDeviceSerialNumbersReq(d.buf, sizeof d.buf),
              [&](QmiResult& r) { return zovQMIDMSGetDeviceSerialNumbersResp(d.m.bytes, d.m.len, &r); });
        std::string imei = d.text(zovQMIDMSGetDeviceSerialNumbersRespGetIMEI);
        std::printf("    manufacturer: %s\n    model: %s\n    revision: %s\n    IMEI: %s\n", mfr.c_str(), model.c_str(),
                    rev.c_str(), imei.c_str());

        title("verify the PIN");
        int n = zovQMIDMSUIMVerifyPINReq(d.buf, sizeof d.buf, 1, uint8_t(pin.size()),
                                         reinterpret_cast<const uint8_t*>(pin.data()));
        d.ask(ZOVQMI_SERVICE_DMS, "verify PIN", n,
              [&](QmiResult& r) { return zovQMIDMSUIMVerifyPINResp(d.m.bytes, d.m.len, &r); });
        uint8_t left = 0, unblockLeft = 0;
        zovQMIDMSUIMVerifyPINRespGetRetriesLeft(d.m.bytes, d.m.len, &left, &unblockLeft);
        std::printf("    PIN verified, %u retries left\n", left);

        title("read signal strength and serving system");
        uint8_t strength = 0, radio = 0;
        d.ask(ZOVQMI_SERVICE_NAS, "signal strength", zovQMINASGetSignalStrengthReq(d.buf, sizeof d.buf),
              [&](QmiResult& r) { return zovQMINASGetSignalStrengthResp(d.m.bytes, d.m.len, &r, &strength, &radio); });
        std::printf("    signal: %d dBm on %s\n", int8_t(strength), radioName(radio));
        NASServingSystem ss{};
        d.ask(ZOVQMI_SERVICE_NAS, "serving system", zovQMINASGetServingSystemReq(d.buf, sizeof d.buf),
              [&](QmiResult& r) { return zovQMINASGetServingSystemResp(d.m.bytes, d.m.len, &r, &ss); });
        std::printf("    %s, PS %s", ss.state[0] == 1 ? "registered" : "not registered",
                    ss.state[2] == 1 ? "attached" : "detached");
        NASNetworkRecord plmn{};
        char desc[256];
        if (zovQMINASGetServingSystemRespGetCurrentPLMN(d.m.bytes, d.m.len, &plmn) >= 0 &&
            plmn.descriptionLength <= d.m.len) {
            plmn.description = reinterpret_cast<uint8_t*>(desc);
            zovQMINASGetServingSystemRespGetCurrentPLMN(d.m.bytes, d.m.len, &plmn);
            std::printf(", network %03u-%02u %.*s", le16(&plmn.firstCode), le16(&plmn.secondCode),
                        plmn.descriptionLength, desc);
        }
        std::printf("\n");

        title("create a profile");
        zovQMIWDSCreateProfileReq(d.buf, sizeof d.buf, 0);
        zovQMIWDSProfileReqAddProfileName(d.buf, sizeof d.buf, 4, reinterpret_cast<const uint8_t*>("demo"));
        n = zovQMIWDSProfileReqAddAPNName(d.buf, sizeof d.buf, uint16_t(apn.size()),
                                          reinterpret_cast<const uint8_t*>(apn.data()));
        uint8_t type = 0, profile = 0;
        d.ask(ZOVQMI_SERVICE_WDS, "create profile", n,
              [&](QmiResult& r) { return zovQMIWDSCreateProfileResp(d.m.bytes, d.m.len, &r, &type, &profile); });
        std::printf("    profile %u: name demo, APN %s\n", profile, apn.c_str());

        title("start a data call");
        zovQMIWDSStartNetworkInterfaceReq(d.buf, sizeof d.buf);
        n = zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(d.buf, sizeof d.buf, profile);
        uint32_t handle = 0;
        d.ask(ZOVQMI_SERVICE_WDS, "start network", n,
              [&](QmiResult& r) { return zovQMIWDSStartNetworkInterfaceResp(d.m.bytes, d.m.len, &r, &handle); });
        std::printf("    packet data handle %u\n", handle);
        uint8_t status = d.packetStatus(nullptr);
        std::printf("    indication: connection %s\n", status == 2 ? "up" : "down");

        title("read the runtime settings");
        d.ask(ZOVQMI_SERVICE_WDS, "runtime settings", zovQMIWDSGetRuntimeSettingsReq(d.buf, sizeof d.buf),
              [&](QmiResult& r) { return zovQMIWDSGetRuntimeSettingsResp(d.m.bytes, d.m.len, &r); });
        char apnNow[256] = {};
        uint16_t apnLen = 0;
        if (zovQMIWDSProfileRespGetAPNName(d.m.bytes, d.m.len, 0x002D, &apnLen, nullptr) >= 0 && apnLen < sizeof apnNow)
            zovQMIWDSProfileRespGetAPNName(d.m.bytes, d.m.len, 0x002D, &apnLen, reinterpret_cast<uint8_t*>(apnNow));
        uint32_t addr = 0, gw = 0, dns1 = 0, dns2 = 0, mtu = 0;
        zovQMIWDSProfileRespGetIPv4AddressPreference(d.m.bytes, d.m.len, 0x002D, &addr);
        zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(d.m.bytes, d.m.len, 0x002D, &dns1);
        zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(d.m.bytes, d.m.len, 0x002D, &dns2);
        zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(d.m.bytes, d.m.len, &gw);
        zovQMIWDSGetRuntimeSettingsRespGetMTU(d.m.bytes, d.m.len, &mtu);
        std::printf("    APN %s, address %s, gateway %s, DNS %s %s, MTU %u\n", apnNow, ipv4(addr).c_str(),
                    ipv4(gw).c_str(), ipv4(dns1).c_str(), ipv4(dns2).c_str(), mtu);

        title("write, list and read a short message");
        static SubmitParts parts;
        if (encodeSubmit("15550100200", "Hello from the demo", 0, &parts) != kPduOk)
            throw Failed{kBadRequest, "the message could not be encoded"};
        std::vector<uint8_t> raw(10 + size_t(parts.len[0]));
        raw[5] = 1;  // the device's store
        raw[7] = 6;  // GSM/WCDMA point to point
        raw[8] = uint8_t(parts.len[0]);
        std::memcpy(raw.data() + 10, parts.pdu[0], size_t(parts.len[0]));
        uint32_t index = 0;
        d.ask(ZOVQMI_SERVICE_WMS, "write message",
              zovQMIWMSRawWriteReq(d.buf, sizeof d.buf, reinterpret_cast<const WMSRawMessage*>(raw.data())),
              [&](QmiResult& r) { return zovQMIWMSRawWriteResp(d.m.bytes, d.m.len, &r, &index); });
        std::printf("    written at index %u of the device store\n", index);
        uint32_t count = 0;
        d.ask(ZOVQMI_SERVICE_WMS, "list messages", zovQMIWMSListMessagesReq(d.buf, sizeof d.buf, 1), [&](QmiResult& r) {
            return zovQMIWMSListMessagesResp(d.m.bytes, d.m.len, &r, &count, nullptr, nullptr);
        });
        if (count > uint32_t(d.m.len)) throw Failed{kBadAnswer, "list messages: unexpected answer"};
        std::vector<uint32_t> idx(count);
        std::vector<uint8_t> tags(count);
        QmiResult lr{};
        zovQMIWMSListMessagesResp(d.m.bytes, d.m.len, &lr, &count, idx.data(), tags.data());
        static const char* const kTags[] = {"read", "not read", "sent", "not sent"};
        for (uint32_t i = 0; i < count; ++i)
            std::printf("    listed: %u (%s)\n", idx[i], tags[i] < 4 ? kTags[tags[i]] : "unknown");
        std::vector<uint8_t> rec(10 + kMaxMessage);
        d.ask(ZOVQMI_SERVICE_WMS, "read message", zovQMIWMSRawReadReq(d.buf, sizeof d.buf, 1, index), [&](QmiResult& r) {
            return zovQMIWMSRawReadResp(d.m.bytes, d.m.len, &r, reinterpret_cast<WMSRawMessage*>(rec.data()));
        });
        static DecodedSms sms;
        if (decodePdu(rec.data() + 10, le16(rec.data() + 8), &sms) != kPduOk)
            throw Failed{kBadAnswer, "read message: the PDU does not decode"};
        std::printf("    read %u: to %s, \"%s\" (%s)\n", index, sms.address, sms.text,
                    rec[6] < 4 ? kTags[rec[6]] : "unknown");

        title("read phonebook records");
        uint16_t records = 0;
        d.ask(ZOVQMI_SERVICE_PBM, "read records", zovQMIPBMReadRecordsReq(d.buf, sizeof d.buf, 0, 1, 1, 10),
              [&](QmiResult& r) { return zovQMIPBMReadRecordsResp(d.m.bytes, d.m.len, &r); });
        zovQMIPBMReadRecordsRespGetNumberOfRecords(d.m.bytes, d.m.len, &records);
        std::unique_ptr<PBMRecordSet> set(new PBMRecordSet());
        for (int seen = 0; seen < records;) {
            d.must(s.awaitIndication(ZOVQMI_SERVICE_PBM, 0x0004, -1, &d.m));
            if (zovQMIPBMRecordReadIND(d.m.bytes, d.m.len, set.get()) < 0 || set->recordCount == 0 ||
                set->recordCount > 10)
                throw Failed{kBadAnswer, "record read indication: unexpected"};
            for (int i = 0; i < set->recordCount; ++i)
                std::printf("    %u: %.*s <%.*s>\n", le16(set->recordId[i]), set->name[i].length < 242 ? set->name[i].length : 242,
                            reinterpret_cast<const char*>(set->name[i].text),
                            set->numbers[i][0].length < 40 ? set->numbers[i][0].length : 40,
                            reinterpret_cast<const char*>(set->numbers[i][0].number));
            seen += set->recordCount;
        }

        title("run one GPS fix");
        zovQMIPDSSetEventReportReq(d.buf, sizeof d.buf);
        zovQMIPDSSetEventReportReqAddPositionDataNMEA(d.buf, sizeof d.buf, 1);
        n = zovQMIPDSSetEventReportReqAddParsedPositionData(d.buf, sizeof d.buf, 1);
        d.ask(ZOVQMI_SERVICE_PDS, "position event report", n,
              [&](QmiResult& r) { return zovQMIPDSSetEventReportResp(d.m.bytes, d.m.len, &r); });
        zovQMIPDSDetermineSinglePositionReq(d.buf, sizeof d.buf);
        n = zovQMIPDSDetermineSinglePositionReqAddSinglePositionTimeout(d.buf, sizeof d.buf, 30);
        d.ask(ZOVQMI_SERVICE_PDS, "single position fix", n,
              [&](QmiResult& r) { return zovQMIPDSDetermineSinglePositionResp(d.m.bytes, d.m.len, &r); });
        for (bool fixed = false; !fixed;) {
            d.must(s.awaitIndication(ZOVQMI_SERVICE_PDS, 0x0001, 30000, &d.m));
            std::string nmea = d.text(zovQMIPDSEventReportINDGetPositionDataNMEA);
            while (!nmea.empty() && (nmea.back() == '\n' || nmea.back() == '\r')) nmea.pop_back();
            if (!nmea.empty()) std::printf("    %s\n", nmea.c_str());
            ParsedPositionData p;
            if (zovQMIPDSEventReportINDGetParsedPositionData(d.m.bytes, d.m.len, &p) >= 0) {
                uint64_t lat = 0, lon = 0;
                // Little-endian bytes on every host.
                const uint8_t* a = reinterpret_cast<const uint8_t*>(&p.latitude);
                const uint8_t* o = reinterpret_cast<const uint8_t*>(&p.longitude);
                for (int i = 7; i >= 0; --i) lat = lat << 8 | a[i], lon = lon << 8 | o[i];
                double la, lo;
                std::memcpy(&la, &lat, 8);
                std::memcpy(&lo, &lon, 8);
                const uint8_t* alt = reinterpret_cast<const uint8_t*>(&p.altitudeFromSeaLevel);
                int32_t altitude = int32_t(uint32_t(alt[0] | alt[1] << 8 | alt[2] << 16 | uint32_t(alt[3]) << 24));
                std::printf("    position %.6f, %.6f, altitude %d m\n", la, lo, altitude);
                fixed = true;
            }
        }

        title("stop the call");
        d.ask(ZOVQMI_SERVICE_WDS, "stop network", zovQMIWDSStopNetworkInterfaceReq(d.buf, sizeof d.buf, handle),
              [&](QmiResult& r) { return zovQMIWDSStopNetworkInterfaceResp(d.m.bytes, d.m.len, &r); });
        uint16_t reason = 0;
        status = d.packetStatus(&reason);
        std::printf("    indication: connection %s, call end reason %u\n", status == 2 ? "up" : "down", reason);

        title("release the client ids");
        d.must(s.releaseAll());
        std::printf("    released\n");

        title("close");
        s.close();
        std::printf("    done\n");
        return 0;
    } catch (const Failed& f) {
        std::fflush(stdout);
        std::fprintf(stderr, "zovqmi-demo: error: %s\n", f.text.c_str());
        s.releaseAll();
        return f.status == kTimeout ? 3 : f.status == kQmiFailure ? 4 : 1;
    }
}
