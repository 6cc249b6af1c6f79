// The proxy server: one modem control device shared by several programs
// over a SOCK_SEQPACKET Unix socket.  A program connects and then uses
// zovQMIDeviceWrite / zovQMIDeviceRead on the connected descriptor exactly as
// on the device (same frames, QMUX header included); the Router decides
// where each frame goes.
//
// The server runs one poll loop (run(), or start() for a thread of its own)
// over a stop pipe, the listening socket, the device and the connections.
// When the device fails (a USB disconnect), every connection is closed, so
// that their programs see the device close, and the device is opened again
// every kReopenMs until it is back.
#pragma once

#include <pthread.h>
#include <stdint.h>

#include "router.h"

namespace zovproxy {

// How often a missing device is looked for again.
constexpr int kReopenMs = 500;

class ProxyServer : private Sink {
public:
    typedef void (*LogFn)(void* ctx, const char* line);

    ProxyServer();
    ~ProxyServer();
    ProxyServer(const ProxyServer&) = delete;
    ProxyServer& operator=(const ProxyServer&) = delete;

    void setLog(LogFn fn, void* ctx) { logFn_ = fn, logCtx_ = ctx; }
    // Listens on PATH (a stale socket there is replaced), with permissions
    // `mode` and, when gid >= 0, that group.  0, or -1 with error().
    int listen(const char* path, unsigned mode, long gid);
    // The device the proxy opens (and opens again after it vanished).
    void setDevicePath(const char* path) { devicePath_ = path; }
    // Or a descriptor already open (tests); never reopened.
    void attachDevice(int fd) { deviceFd_ = fd, ownDevice_ = false; }

    // The loop, until stop().
    void run();
    // run() on a thread of its own; 0, or -1 with error().
    int start();
    // Ends the loop (safe from a signal handler or another thread) and, after
    // start(), waits for the thread.
    void stop();

    // A connection for a program in this process (a socket pair end the
    // caller owns); -1 while the device is not open.  Thread-safe.
    int connectLocal();

    bool deviceOpen() const { return __atomic_load_n(&deviceUp_, __ATOMIC_ACQUIRE) != 0; }
    int connectionCount() const;
    const char* error() const { return error_; }

private:
    void toDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len) override;
    void toConnection(int conn, uint8_t service, uint8_t client, const uint8_t* msg, int len) override;
    void log(const char* line) override;
    void logf(const char* fmt, ...) __attribute__((format(printf, 2, 3)));

    void accept();
    void add(int fd, const char* who);
    void drop(int conn);
    void readConnection(int conn);
    void readDevice();
    void deviceLost(const char* why);
    void openDevice();
    static void* thread(void* self);

    Router router_;
    int stopPipe_[2] = {-1, -1};
    int localPipe_[2] = {-1, -1};
    int listenFd_ = -1;
    char socketPath_[108] = "";
    const char* devicePath_ = nullptr;
    int deviceFd_ = -1;
    bool ownDevice_ = true;
    bool deviceFailed_ = false;
    int deviceUp_ = 0;
    int conns_[kMaxConnections];
    pthread_t thread_;
    bool threadStarted_ = false;
    LogFn logFn_ = nullptr;
    void* logCtx_ = nullptr;
    char error_[160] = "";
};

}  // namespace zovproxy
