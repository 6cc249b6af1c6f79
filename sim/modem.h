// The simulated modem: a QMI responder with plausible, stateful behaviour.
//
// A Modem takes whole frames (QMUX header included) as a driver would hand
// them to the modem, and returns the frames the modem sends back: the
// response first, then any indications the request caused.  Each frame is
// tagged with the connection it goes to, so that one Modem can serve several
// open descriptors (a transport maps connections to sockets, FUSE handles or
// a pseudo-terminal).  Requests and responses are read and written with the
// library's own framing and TLV functions.
//
// Every request gets an answer: a request the modem does not know, or a
// malformed one, is answered with a failure result (result 1 and a QMI
// error code).  The exceptions are a message listed in Options::silent,
// which lets tests exercise a caller's timeout, and a stalled modem (see
// setStalled), which answers nothing at all.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace zovsim {

using Bytes = std::vector<uint8_t>;

// QMI error codes the modem answers with.
enum QmiError : uint16_t {
    kErrNone = 0x0000,
    kErrMalformedMessage = 0x0001,
    kErrInternal = 0x0003,
    kErrClientIdsExhausted = 0x0005,
    kErrInvalidClientId = 0x0007,
    kErrInvalidHandle = 0x0009,
    kErrInvalidProfile = 0x000A,
    kErrInvalidPinId = 0x000B,
    kErrIncorrectPin = 0x000C,
    kErrNoNetworkFound = 0x000D,
    kErrCallFailed = 0x000E,
    kErrOutOfCall = 0x000F,
    kErrMissingArgument = 0x0011,
    kErrNoEffect = 0x001A,
    kErrNoFreeProfile = 0x001B,
    kErrInvalidProfileType = 0x001E,
    kErrInvalidServiceType = 0x001F,
    kErrPinBlocked = 0x0023,
    kErrPinPermanentlyBlocked = 0x0024,
    kErrInvalidQosId = 0x0029,
    kErrInvalidArgument = 0x0030,
    kErrInvalidIndex = 0x0031,
    kErrNoEntry = 0x0032,
    kErrDeviceStorageFull = 0x0033,
    kErrDeviceNotReady = 0x0034,
    kErrInvalidQmiCommand = 0x0047,
};

// Call end reasons the modem gives.
constexpr uint16_t kEndClient = 2;         // the client stopped the call
constexpr uint16_t kEndNoService = 3;      // no network service
constexpr uint16_t kEndFade = 4;           // the radio link faded
constexpr uint16_t kEndAuth = 1014;        // authentication failed

// Name of an error code ("IncorrectPin"), or "Unknown".
const char* errorName(uint16_t code);

struct Options {
    std::string pin1 = "1234";
    // PIN1 protection: enabled (and not verified) at power-up, or disabled.
    bool pin1Enabled = true;
    std::string puk1 = "12345678";
    // An APN that needs credentials, and the credentials it accepts.
    std::string secureApn = "secure.example";
    std::string user = "zov";
    std::string password = "secret";
    // Messages (service, message id) that are never answered.
    std::set<std::pair<uint8_t, uint16_t>> silent;
};

// One frame to deliver: the connection it goes to and its bytes.
struct Frame {
    int conn;
    Bytes bytes;
};

struct State;

class Modem {
public:
    explicit Modem(Options options = Options());
    ~Modem();
    Modem(const Modem&) = delete;
    Modem& operator=(const Modem&) = delete;

    // Handles one frame written on connection `conn`.  Thread-safe.
    std::vector<Frame> receive(int conn, const uint8_t* frame, size_t len);

    // A connection went away.  With `releaseIds` its client ids are
    // released (and their calls end); without, they stay allocated, as on a
    // real control device, and follow the next connection that uses them.
    void disconnect(int conn, bool releaseIds = true);

    // A short message arrives from the network: it is stored (store 1,
    // tag "not read") and WMS clients registered for new messages get an
    // event report.  Returns the indications to deliver.
    std::vector<Frame> deliverSms(const Bytes& pdu);

    // Client ids currently allocated for a service.
    size_t clientCount(uint8_t service) const;

    // ---- faults and the environment (the control channel) --------------
    // Each returns the indications to deliver (none while stalled).

    // Ends every active call; a negative reason gives the network-side
    // default (fade, with the 3GPP cause "regular deactivation").
    std::vector<Frame> dropCalls(int reason = -1);
    // The network accepts the modem or not.
    std::vector<Frame> setNetwork(bool registered);
    // The signal level from now on; clients that asked hear of it.
    std::vector<Frame> setSignal(int dbm);
    // A hung modem: requests are read and never answered.
    void setStalled(bool stalled);
    // The SIM leaves or returns to its slot.
    std::vector<Frame> setSim(bool present);
    // Restart in place: every client id and call is forgotten, PIN1 must be
    // verified again; each connection that held client ids gets a CTL Sync
    // indication.
    std::vector<Frame> reset();
    // A fresh power-up: everything but the options is forgotten.
    void reboot();
    // The state as one line of JSON; `opens` is the transport's count of
    // open device descriptors.
    std::string status(int opens) const;

    // Periodic work (transfer statistics reports); call it a few times a second.
    std::vector<Frame> tick();

    // One IP packet the host sent into the modem's network interface.
    // Returns the packet the modem sends back (an echo reply), or nothing.
    Bytes dataPacket(const uint8_t* packet, size_t len);

private:
    mutable std::mutex mutex_;
    std::unique_ptr<State> state_;
};

// Builds a QMUX frame around a message, as the modem sends it.
Bytes qmuxFrame(uint8_t service, uint8_t clientId, const Bytes& message);

}  // namespace zovsim
