// The in-process transport of the simulated modem: each connection is an
// AF_UNIX SOCK_SEQPACKET socket pair, so every write and every read carries
// exactly one frame, as on the modem's control device.  One thread serves
// every connection.
#pragma once

#include <mutex>
#include <thread>
#include <vector>

#include "control.h"
#include "modem.h"

namespace zovsim {

class SocketServer : public Device {
public:
    explicit SocketServer(Modem& modem);
    ~SocketServer() override;
    SocketServer(const SocketServer&) = delete;
    SocketServer& operator=(const SocketServer&) = delete;

    // A new connection: returns the descriptor the application uses with
    // zovQMIDeviceWrite/Read (closing it ends the connection), or -1.
    int connect();

    // Delivers frames the modem produced outside a request (deliverSms).
    void deliver(const std::vector<Frame>& frames) override;
    // The connections open now.
    int opens() override;
    // There is no node to take away: every connection is shut down at once
    // (its reads return end of file) and the modem boots afresh.
    std::string vanish(int ms) override;

private:
    void run();
    void send(const std::vector<Frame>& frames);

    Modem& modem_;
    std::mutex mutex_;
    std::vector<int> fds_;  // the modem's ends; a connection is named by its fd
    int wake_[2] = {-1, -1};
    bool stop_ = false;
    std::thread thread_;
};

}  // namespace zovsim
