// A QMI session for applications: one open device, the client ids it holds,
// requests matched to their responses, and the indications that arrive in
// between.  Used by zovqmi-cli and the demo.
#pragma once

#include <zovqmi.h>

#include <cstdint>
#include <deque>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace zovapp {

// A message read from the device (QMUX header stripped).
struct Message {
    uint8_t service = 0;
    uint8_t client = 0;
    std::vector<uint8_t> bytes;
    const uint8_t* data() const { return bytes.data(); }
    int len() const { return int(bytes.size()); }
    uint16_t id() const;            // message id
    bool isIndication() const;
};

// Failures, each with one line of text.  Timeout and QmiError are told apart
// so that callers can exit with distinct statuses.
struct Error : std::runtime_error {
    using std::runtime_error::runtime_error;
};
struct Timeout : Error {
    using Error::Error;
};
struct QmiError : Error {
    QmiError(const std::string& what, uint16_t code);
    uint16_t code;
};

// Name of a QMI error code, for messages.
const char* qmiErrorName(uint16_t code);
const char* serviceName(uint8_t service);
// Service number from a name ("wds") or a number; -1 when unknown.
int serviceByName(const std::string& name);

class Session {
public:
    // Opens the device with zovQMIDeviceOpen; throws Error on failure.
    explicit Session(const std::string& path, int timeoutMs = 5000, bool hex = false);
    // Uses a descriptor the caller opened (and keeps owning).
    Session(int fd, int timeoutMs, bool hex);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // The client id of a service, obtained from CTL on first use.
    uint8_t clientId(uint8_t service);
    // Uses a client id obtained earlier (by another run); it is not released.
    void adoptClientId(uint8_t service, uint8_t id) { adopted_[service] = clients_[service] = id; }
    // Gives every client id back (except adopted ones).
    void releaseAll();

    // Writes a request (`msg`, `len` bytes built by a ...Req function) on the
    // service's client id and waits for the response with the same
    // transaction and message id.  Indications read meanwhile are kept.
    Message request(uint8_t service, const uint8_t* msg, int len);
    // The next indication `id` of a service (kept or still to come).
    Message indication(uint8_t service, uint16_t id, int timeoutMs = -1);
    // Drops kept indications of a service.
    void dropIndications(uint8_t service);

    // Throws QmiError when a parsed result says failure.
    static void check(const std::string& what, const QmiResult& result);
    // Throws Error when a parser returned a negative code.
    static int parsed(const std::string& what, int rc);

    int fd() const { return fd_; }
    std::map<uint8_t, uint8_t> clients() const { return clients_; }

private:
    Message readOne(int timeoutMs);
    Message ctl(const uint8_t* msg, int len);

    int fd_ = -1;
    bool own_ = false;
    int timeoutMs_;
    bool hex_;
    std::map<uint8_t, uint8_t> clients_;
    std::map<uint8_t, uint8_t> adopted_;
    std::deque<Message> kept_;
};

}  // namespace zovapp
