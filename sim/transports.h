// The device transports of the zovqmi-sim tool, and its data path.
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "control.h"
#include "modem.h"

namespace zovsim {

// A transport the tool serves the modem on, until SIGINT or SIGTERM.
class ServedDevice : public Device {
public:
    // Prints "device: PATH" once the device is ready, serves, and returns
    // the exit status.
    virtual int serve() = 0;
};

// A file `<dir>/cdc-wdm0` of a FUSE file system mounted on `dir` (direct
// I/O: each write hands over one whole frame, each read returns exactly
// one).  Vanishing makes open descriptors fail (reads EIO, writes ENODEV,
// poll POLLERR|POLLHUP) and the node absent (ENOENT) for the time given.
std::unique_ptr<ServedDevice> makeFuseDevice(Modem& modem, const std::string& dir, bool debug);
bool fuseAvailable();

// A pseudo-terminal; requests may arrive in pieces or several at once and
// are reassembled by the QMUX length.  With a `link` path, a symbolic link
// there names the terminal's slave.  Vanishing hangs the terminal up (the
// master is closed: open descriptors read EOF or EIO, writes fail, poll
// reports POLLHUP) and removes the link; after the time given a new
// terminal is opened, printed as "device: PATH" again and linked.
std::unique_ptr<ServedDevice> makePtyDevice(Modem& modem, const std::string& link);

// The modem's network interface: a TUN interface (raw IP, no packet
// information header) whose packets go through Modem::dataPacket.
class Tun {
public:
    explicit Tun(Modem& modem) : modem_(modem) {}
    ~Tun();
    Tun(const Tun&) = delete;
    Tun& operator=(const Tun&) = delete;
    // Creates the interface `name` and starts moving packets; "" or the reason.
    std::string start(const std::string& name);
    void stop();

private:
    void run();
    Modem& modem_;
    int fd_ = -1;
    int wake_[2] = {-1, -1};
    std::thread thread_;
};

}  // namespace zovsim
