// The control channel of the simulated modem: faults and changes of the
// radio environment on command, one line per command and one line per
// answer, over a Unix stream socket.
//
//   drop-call [REASON]   ends every active call (REASON: the call end reason,
//                        default 4 "fade" with the 3GPP cause 36)
//   deregister           the network is lost: serving system indications,
//                        calls end with "no service", new calls fail
//   register             the network is back
//   signal DBM           the signal level from now on (-150 .. 0)
//   stall / unstall      requests are read and never answered / answered again
//   vanish MS            the device disappears for MS milliseconds and comes
//                        back as a freshly booted modem
//   reset                the modem restarts in place: client ids and calls
//                        are forgotten
//   sim remove / insert  the SIM leaves / returns to its slot
//   deliver-sms HEX      a short message (its PDU in hex) arrives
//   status               one line of JSON describing the modem
//
// Answers are "ok", "error: <reason>" or, for status, the JSON object.
#pragma once

#include <string>
#include <thread>
#include <vector>

#include "modem.h"

namespace zovsim {

// What the control channel needs from the transport that carries the modem.
class Device {
public:
    virtual ~Device() = default;
    // Sends frames the modem produced outside a request.
    virtual void deliver(const std::vector<Frame>& frames) = 0;
    // The device descriptors currently open.
    virtual int opens() = 0;
    // The device disappears for `ms` milliseconds (open descriptors fail),
    // then a freshly booted modem is back.  Returns "" or the reason it
    // cannot.
    virtual std::string vanish(int ms) = 0;
};

// Executes control commands on a modem and its transport.
class Controller {
public:
    Controller(Modem& modem, Device& device) : modem_(modem), device_(device) {}
    // One command line (without its newline); returns the answer line.
    std::string execute(const std::string& line);

private:
    Modem& modem_;
    Device& device_;
};

// Listens on a Unix stream socket and answers every connected controller,
// several at once, on a thread of its own.
class ControlServer {
public:
    explicit ControlServer(Controller& controller) : controller_(controller) {}
    ~ControlServer();
    ControlServer(const ControlServer&) = delete;
    ControlServer& operator=(const ControlServer&) = delete;

    // Binds `path` (replacing a socket left there) and starts serving.
    // Returns "" or the reason it cannot.
    std::string start(const std::string& path);
    void stop();

private:
    void run();

    Controller& controller_;
    std::string path_;
    int listen_ = -1;
    int wake_[2] = {-1, -1};
    std::thread thread_;
};

}  // namespace zovsim
