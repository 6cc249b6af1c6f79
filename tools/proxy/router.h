// Routing of QMI frames between one modem and several client connections,
// so that programs can share one control device.
//
// The router is pure: it is handed frames (from a client connection or from
// the device) and says, through a Sink, where frames go.  The proxy server
// (proxy.h) wires it to sockets and the device.
//
//  - Service requests go to the modem when the connection owns the client id
//    they use; responses and indications go to the connection that owns
//    their client id, broadcast indications (client id 0xFF) to every
//    connection that holds a client of that service.
//  - CTL transaction ids are one byte shared by the whole device: the router
//    gives each forwarded CTL request a transaction id of its own and puts the
//    client's back on the response.  GetClientID responses record which
//    connection owns the new id; ReleaseClientID responses forget it.
//  - A CTL Sync is answered by the router itself (forwarded, it would release
//    every other connection's client ids); it releases the ids that this
//    connection still owns.
//  - When a connection closes, the router releases every client id it owned.
//  - A frame that is not a well-formed QMUX frame, or that uses a client id its
//    connection does not own, is refused with one log line; the connection
//    stays usable.
#pragma once

#include <stdint.h>

namespace zovproxy {

// Connections the proxy serves at once (each program sharing the modem
// usually needs one).
constexpr int kMaxConnections = 16;
// Client ids held through the proxy at once (the modem hands out far fewer
// per service in practice).
constexpr int kMaxOwned = 64;
// The largest QMUX frame: the device's read limit.
constexpr int kMaxFrame = 4096;

// Where the router's frames go.  Messages are without the QMUX header.
class Sink {
public:
    virtual void toDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len) {
        (void)service, (void)client, (void)msg, (void)len;
    }
    virtual void toConnection(int conn, uint8_t service, uint8_t client, const uint8_t* msg, int len) {
        (void)conn, (void)service, (void)client, (void)msg, (void)len;
    }
    virtual void log(const char* line) { (void)line; }

protected:
    // Not deleted through a Sink pointer (and no virtual destructor, whose
    // deleting variant would need the C++ runtime's operator delete).
    ~Sink() = default;
};

class Router {
public:
    explicit Router(Sink& sink) : sink_(sink) {}

    // A connection slot (0 <= conn < kMaxConnections) opened / closed.
    void opened(int conn);
    void closed(int conn);
    // A whole QMUX frame read from a connection.
    void fromConnection(int conn, const uint8_t* frame, int n);
    // A message read from the device (QMUX header stripped).
    void fromDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len);
    // The device went away: every client id and pending CTL request is void.
    void deviceLost();

    // Owner of (service, client id), or -1.
    int owner(uint8_t service, uint8_t client) const;
    int ownedCount(int conn) const;

private:
    struct Owned {
        uint8_t service, client;
        int conn;
    };
    // A CTL request in flight, indexed by the router's transaction id.
    struct Pending {
        bool used;
        int conn;          // kInternal for the router's own requests
        uint8_t clientTx;  // the client's transaction id, put back on the response
        uint16_t id;       // message id
        uint8_t service, client;  // of a ReleaseClientID: the id it gives back
    };
    static constexpr int kInternal = -2;

    void fromControl(int conn, uint8_t* msg, int len);
    void controlFromDevice(uint8_t* msg, int len);
    void releaseOwned(int conn);
    bool sendControl(int conn, uint8_t* msg, int len);
    void refuse(int conn, const char* why);
    void logf(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    void forget(uint8_t service, uint8_t client);

    Sink& sink_;
    bool open_[kMaxConnections] = {};
    Owned owned_[kMaxOwned] = {};
    int ownedCount_ = 0;
    Pending pending_[256] = {};
    uint8_t nextTx_ = 0;
};

}  // namespace zovproxy
