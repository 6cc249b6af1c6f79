#include "proxy.h"

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <zovqmi.h>

namespace zovproxy {

namespace {

void closeFd(int& fd) {
    if (fd >= 0) close(fd);
    fd = -1;
}

void nonBlocking(int fd) { fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) | O_NONBLOCK); }

}  // namespace

ProxyServer::ProxyServer() : router_(*this) {
    for (int& c : conns_) c = -1;
    if (pipe2(stopPipe_, O_CLOEXEC | O_NONBLOCK) < 0 || pipe2(localPipe_, O_CLOEXEC | O_NONBLOCK) < 0)
        snprintf(error_, sizeof error_, "pipe: %s", strerror(errno));
}

ProxyServer::~ProxyServer() {
    stop();
    for (int conn = 0; conn < kMaxConnections; ++conn) closeFd(conns_[conn]);
    if (ownDevice_) closeFd(deviceFd_);
    if (listenFd_ >= 0) {
        closeFd(listenFd_);
        unlink(socketPath_);
    }
    closeFd(stopPipe_[0]), closeFd(stopPipe_[1]), closeFd(localPipe_[0]), closeFd(localPipe_[1]);
}

void ProxyServer::log(const char* line) {
    if (logFn_) logFn_(logCtx_, line);
}

void ProxyServer::logf(const char* fmt, ...) {
    char line[200];
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(line, sizeof line, fmt, ap);
    va_end(ap);
    log(line);
}

int ProxyServer::listen(const char* path, unsigned mode, long gid) {
    sockaddr_un addr = {};
    addr.sun_family = AF_UNIX;
    if (strlen(path) >= sizeof addr.sun_path) {
        snprintf(error_, sizeof error_, "proxy socket path too long: %.100s", path);
        return -1;
    }
    strcpy(addr.sun_path, path);
    struct stat st;
    if (lstat(path, &st) == 0 && S_ISSOCK(st.st_mode)) unlink(path);  // left by an earlier run
    int fd = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const char* step = "socket";
    if (fd >= 0) {
        step = "bind";
        if (bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) == 0) {
            step = "chmod";
            if (chmod(path, mode) == 0) {
                step = "chown";
                if (gid < 0 || chown(path, uid_t(-1), gid_t(gid)) == 0) {
                    step = "listen";
                    if (::listen(fd, 8) == 0) {
                        listenFd_ = fd;
                        strcpy(socketPath_, path);
                        return 0;
                    }
                }
            }
            unlink(path);
        }
    }
    snprintf(error_, sizeof error_, "proxy socket %.100s: %s: %s", path, step, strerror(errno));
    closeFd(fd);
    return -1;
}

int ProxyServer::connectionCount() const {
    int n = 0;
    for (int c : conns_) n += c >= 0;
    return n;
}

void ProxyServer::add(int fd, const char* who) {
    for (int conn = 0; conn < kMaxConnections; ++conn)
        if (conns_[conn] < 0) {
            nonBlocking(fd);
            conns_[conn] = fd;
            router_.opened(conn);
            logf("connection %d: %s", conn, who);
            return;
        }
    logf("connection refused: %d connections already (%s)", kMaxConnections, who);
    close(fd);
}

void ProxyServer::accept() {
    int fd = accept4(listenFd_, nullptr, nullptr, SOCK_CLOEXEC);
    if (fd < 0) return;
    if (deviceFd_ < 0) {
        // Nothing to talk to: the program sees the device closed.
        close(fd);
        return;
    }
    ucred cred = {};
    socklen_t n = sizeof cred;
    char who[80] = "peer unknown";
    if (getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &cred, &n) == 0)
        snprintf(who, sizeof who, "pid %ld uid %ld gid %ld", long(cred.pid), long(cred.uid), long(cred.gid));
    add(fd, who);
}

void ProxyServer::drop(int conn) {
    router_.closed(conn);
    closeFd(conns_[conn]);
    logf("connection %d: closed", conn);
}

void ProxyServer::readConnection(int conn) {
    uint8_t frame[kMaxFrame + 1];
    ssize_t n = recv(conns_[conn], frame, sizeof frame, 0);
    if (n < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (n <= 0) return drop(conn);
    router_.fromConnection(conn, frame, int(n));
}

void ProxyServer::readDevice() {
    uint8_t msg[kMaxFrame];
    uint8_t service = 0, client = 0;
    errno = 0;
    int n = zovQMIDeviceRead(deviceFd_, msg, sizeof msg, &service, &client);
    if (n < 0 && errno != 0 && errno != EAGAIN && errno != EINTR) return deviceLost(strerror(errno));
    if (n < 0) return;  // less than a header: nothing to route
    router_.fromDevice(service, client, msg, n);
}

void ProxyServer::deviceLost(const char* why) {
    logf("device lost: %s; closing every connection", why);
    router_.deviceLost();
    for (int conn = 0; conn < kMaxConnections; ++conn)
        if (conns_[conn] >= 0) drop(conn);
    if (ownDevice_) closeFd(deviceFd_);
    else deviceFd_ = -1;
    deviceFailed_ = false;
    __atomic_store_n(&deviceUp_, 0, __ATOMIC_RELEASE);
}

void ProxyServer::openDevice() {
    if (deviceFd_ >= 0 || !devicePath_) return;
    deviceFd_ = zovQMIDeviceOpen(devicePath_);
    if (deviceFd_ >= 0) {
        fcntl(deviceFd_, F_SETFD, FD_CLOEXEC);
        logf("device %s open", devicePath_);
    }
}

void ProxyServer::toDevice(uint8_t service, uint8_t client, const uint8_t* msg, int len) {
    if (deviceFd_ < 0) return;
    if (zovQMIDeviceWrite(deviceFd_, service, client, msg, len) < 0) deviceFailed_ = true;
}

void ProxyServer::toConnection(int conn, uint8_t service, uint8_t client, const uint8_t* msg, int len) {
    if (conn < 0 || conn >= kMaxConnections || conns_[conn] < 0) return;
    if (zovQMIDeviceWrite(conns_[conn], service, client, msg, len) < 0)
        logf("connection %d: frame dropped: %s", conn, strerror(errno));
}

int ProxyServer::connectLocal() {
    if (!deviceOpen()) {
        errno = ENODEV;
        return -1;
    }
    int sv[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sv) < 0) return -1;
    if (write(localPipe_[1], &sv[1], sizeof sv[1]) != ssize_t(sizeof sv[1])) {
        close(sv[0]), close(sv[1]);
        errno = EAGAIN;
        return -1;
    }
    return sv[0];
}

void ProxyServer::run() {
    if (ownDevice_) openDevice();
    for (;;) {
        __atomic_store_n(&deviceUp_, deviceFd_ >= 0 ? 1 : 0, __ATOMIC_RELEASE);
        pollfd fds[4 + kMaxConnections];
        int slot[4 + kMaxConnections];
        int n = 0;
        fds[n++] = pollfd{stopPipe_[0], POLLIN, 0};
        fds[n++] = pollfd{localPipe_[0], POLLIN, 0};
        fds[n++] = pollfd{listenFd_, POLLIN, 0};
        fds[n++] = pollfd{deviceFd_, POLLIN, 0};
        for (int conn = 0; conn < kMaxConnections; ++conn)
            if (conns_[conn] >= 0) {
                slot[n] = conn;
                fds[n++] = pollfd{conns_[conn], POLLIN, 0};
            }
        int rc = poll(fds, nfds_t(n), deviceFd_ < 0 && devicePath_ ? kReopenMs : -1);
        if (rc < 0 && errno != EINTR) {
            logf("poll: %s", strerror(errno));
            return;
        }
        if (fds[0].revents) return;
        if (fds[1].revents & POLLIN) {
            int fd;
            while (read(localPipe_[0], &fd, sizeof fd) == ssize_t(sizeof fd)) {
                if (deviceFd_ >= 0) add(fd, "this process");
                else close(fd);
            }
        }
        if (fds[2].revents & POLLIN) accept();
        if (deviceFd_ < 0) {
            openDevice();
            continue;
        }
        if (fds[3].revents & POLLIN) readDevice();
        else if (fds[3].revents & (POLLERR | POLLHUP | POLLNVAL)) deviceLost("device error");
        for (int i = 4; i < n && deviceFd_ >= 0; ++i)
            if (fds[i].revents && conns_[slot[i]] == fds[i].fd) readConnection(slot[i]);
        if (deviceFailed_) deviceLost("write failed");
    }
}

void* ProxyServer::thread(void* self) {
    static_cast<ProxyServer*>(self)->run();
    return nullptr;
}

int ProxyServer::start() {
    int rc = pthread_create(&thread_, nullptr, thread, this);
    if (rc != 0) {
        snprintf(error_, sizeof error_, "proxy thread: %s", strerror(rc));
        return -1;
    }
    threadStarted_ = true;
    return 0;
}

void ProxyServer::stop() {
    if (stopPipe_[1] >= 0) {
        char c = 1;
        ssize_t ignored = write(stopPipe_[1], &c, 1);
        (void)ignored;
    }
    if (threadStarted_) {
        pthread_join(thread_, nullptr);
        threadStarted_ = false;
    }
}

}  // namespace zovproxy
