// The session layer of the router tools (zovqmi-cli, zovqmi-connect, the
// demo): one open transport, the client ids it holds, requests matched to
// their responses under a deadline, and the indications that arrive in
// between.
//
// It runs on the router, so it needs libc and libzovqmi alone: no exceptions,
// no RTTI, no heap.  Every failure is a negative Status with one line of text
// (error()).  Capacities are fixed and named below.
//
// The transport is any descriptor that hands over one QMUX frame per read and
// takes one per write: the modem's control device, or a connected
// SOCK_SEQPACKET Unix socket (a proxy that shares the device).
//
// Waiting happens only in poll(2), over the transport and an optional wake
// descriptor (a signal handler's self-pipe): when the wake descriptor becomes
// readable, the wait ends with kInterrupted and the byte is left unread for
// the caller's own loop.
#pragma once

#include <stddef.h>
#include <stdint.h>
#include <zovqmi.h>

namespace zovapp {

// The largest message one read delivers (the device's frame limit).
constexpr int kMaxMessage = 4096;
// Client ids one session holds at once: one per service in everyday use, two
// WDS clients for a dual-stack call, and room to spare.
constexpr int kMaxClients = 12;
// Indications kept until the caller asks for them.  A modem sends a handful
// per event; older ones are dropped first when more arrive unread.
constexpr int kMaxKeptIndications = 8;
// One line of error text.
constexpr int kErrorText = 160;

enum Status : int {
    kOk = 0,
    kTimeout = -1,       // no answer before the deadline
    kDeviceGone = -2,    // a read or write failed (a USB disconnect, a reset device)
    kDeviceClosed = -3,  // end of file on the transport
    kInterrupted = -4,   // the wake descriptor became readable
    kQmiFailure = -5,    // the response's result item says failure (qmiError())
    kBadAnswer = -6,     // the response did not parse
    kBadRequest = -7,    // the request could not be built or sent (too large, no client id slot)
};

// A message as read from the transport, QMUX header stripped.
struct Message {
    uint8_t service;
    uint8_t client;
    int len;
    uint8_t bytes[kMaxMessage];

    const uint8_t* data() const { return bytes; }
    uint16_t id() const;             // message id (0 when too short)
    uint16_t transaction() const;    // transaction id (one byte on CTL)
    bool isIndication() const;
};

// Short name of a service ("wds"), or "service" when unknown.
const char* serviceName(uint8_t service);
// Service number from a name ("wds") or a number ("1", "0x01"); -1 when unknown.
int serviceByName(const char* name);
// Name of a QMI error code ("IncorrectPin"), or "unknown error".
const char* qmiErrorName(uint16_t code);
// Milliseconds of the monotonic clock.
int64_t monotonicMs();

class Session {
public:
    Session() = default;
    ~Session() { close(); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Opens PATH: a Unix socket (connected as SOCK_SEQPACKET) or a device
    // node (zovQMIDeviceOpen).  Forgets every client id held before.
    int open(const char* path);
    // Uses a descriptor the caller opened; the session closes it only when
    // `own` is true.
    void attach(int fd, bool own);
    // Closes the transport (without releasing client ids) and forgets them.
    void close();
    int fd() const { return fd_; }
    bool isOpen() const { return fd_ >= 0; }

    void setTimeout(int ms) { timeoutMs_ = ms; }
    int timeout() const { return timeoutMs_; }
    // No wait lasts past this absolute monotonicMs() time (0: none).  For a
    // teardown that must end in time whatever the modem does.
    void setDeadline(int64_t atMs) { deadlineMs_ = atMs; }
    void setWakeFd(int fd) { wakeFd_ = fd; }
    // Dumps every frame to standard output (zovPrintHex).
    void setHexDump(bool on) { hex_ = on; }

    // --- client ids ------------------------------------------------------
    // The first client id held for `service`, obtained from CTL when none is.
    int client(uint8_t service, uint8_t* id);
    // A further client id for `service` (a second WDS client for a second call).
    int newClient(uint8_t service, uint8_t* id);
    // Records a client id obtained elsewhere (an earlier run); adopted ids are
    // never released by releaseAll().
    int adopt(uint8_t service, uint8_t id);
    // Gives one client id back to the modem and forgets it (forgotten even
    // when the modem does not answer).
    int release(uint8_t service, uint8_t id);
    // Releases every client id held, except adopted ones; returns the first
    // failure, after trying all.
    int releaseAll();
    // Forgets every client id without telling the modem (after a reset or a
    // revocation made them invalid).
    void forgetClients() { clientCount_ = 0; }
    // True when the session holds `id` for `service`.
    bool holds(uint8_t service, uint8_t id) const;
    int clientCount() const { return clientCount_; }
    // The n-th held client id (0 <= n < clientCount()).
    void clientAt(int n, uint8_t* service, uint8_t* id) const;

    // CTL Sync: the modem releases every client id of this control point.
    int sync();

    // --- requests --------------------------------------------------------
    // Writes `msg` (built by a ...Req function) on (service, client) and waits
    // for the response with the same transaction and message id.  On kOk the
    // response is in `resp`.  Indications read meanwhile are kept.
    int request(uint8_t service, uint8_t client, const uint8_t* msg, int len, Message* resp);
    // The same on the service's first client id (obtained on first use).
    int request(uint8_t service, const uint8_t* msg, int len, Message* resp);
    // Checks a parsed response: a negative parser code gives kBadAnswer, a
    // failed result kQmiFailure, both with `what` in the error text.
    int check(const char* what, int parseRc, const QmiResult& result);

    // --- indications -----------------------------------------------------
    // Waits up to `timeoutMs` (-1: the session timeout; 0: only what is
    // already readable) for frames and keeps the indications among them.
    // Returns kOk when at least one indication is kept, else the status
    // that ended the wait.
    int pump(int timeoutMs);
    // Reads the frames that are ready now without waiting; kOk or the status
    // of a failed read.
    int drain();
    // Takes the oldest kept indication (of `service`, or of any service when
    // service is 0xFF).  False when none is kept.
    bool nextIndication(Message* out, uint8_t service = 0xFF);
    // Waits for indication `id` of `service` (kept or still to come).
    int awaitIndication(uint8_t service, uint16_t id, int timeoutMs, Message* out);
    int keptIndications() const { return keptCount_; }
    void dropIndications() { keptCount_ = 0; }

    // --- failures --------------------------------------------------------
    const char* error() const { return error_; }
    uint16_t qmiError() const { return qmiError_; }
    // Sets the error text (printf style) and returns `status`.
    int fail(int status, const char* fmt, ...) __attribute__((format(printf, 3, 4)));

private:
    // Reads one frame into `m`, waiting until `untilMs` at most.
    int readOne(Message* m, int64_t untilMs);
    // A terminal keeps no frame boundaries: its bytes are gathered in in_
    // and cut into frames by the QMUX length.  True when a whole frame was
    // taken into `m`.
    bool takeFrame(Message* m);
    void keep(const Message& m);
    void take(int i, Message* out);
    int64_t waitUntil(int timeoutMs) const;
    int ctl(const uint8_t* msg, int len, Message* resp);
    int allocate(uint8_t service, uint8_t* id);

    int fd_ = -1;
    bool own_ = false;
    bool stream_ = false;  // a terminal (serial line, pseudo-terminal)
    uint8_t in_[kMaxMessage + 6];
    int inLen_ = 0;
    bool hex_ = false;
    int timeoutMs_ = 5000;
    int64_t deadlineMs_ = 0;
    int wakeFd_ = -1;

    struct Client {
        uint8_t service, id;
        bool adopted;
    };
    Client clients_[kMaxClients] = {};
    int clientCount_ = 0;

    // Kept indications: a ring, oldest at keptFirst_.
    Message kept_[kMaxKeptIndications];
    int keptFirst_ = 0, keptCount_ = 0;
    Message scratch_;  // the frame being read while a request waits

    char error_[kErrorText] = "";
    uint16_t qmiError_ = 0;
};

}  // namespace zovapp
