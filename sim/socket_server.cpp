#include "socket_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

namespace zovsim {

SocketServer::SocketServer(Modem& modem) : modem_(modem) {
    if (pipe(wake_) != 0) wake_[0] = wake_[1] = -1;
    thread_ = std::thread([this] { run(); });
}

SocketServer::~SocketServer() {
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stop_ = true;
    }
    if (wake_[1] >= 0) (void)!write(wake_[1], "x", 1);
    thread_.join();
    for (int fd : fds_) close(fd);
    if (wake_[0] >= 0) close(wake_[0]);
    if (wake_[1] >= 0) close(wake_[1]);
}

int SocketServer::connect() {
    int sv[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sv) != 0) return -1;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        fds_.push_back(sv[1]);
    }
    (void)!write(wake_[1], "c", 1);
    return sv[0];
}

void SocketServer::deliver(const std::vector<Frame>& frames) {
    std::lock_guard<std::mutex> lock(mutex_);
    send(frames);
}

int SocketServer::opens() {
    std::lock_guard<std::mutex> lock(mutex_);
    return int(fds_.size());
}

std::string SocketServer::vanish(int) {
    std::lock_guard<std::mutex> lock(mutex_);
    for (int fd : fds_) shutdown(fd, SHUT_RDWR);
    modem_.reboot();
    return "";
}

void SocketServer::send(const std::vector<Frame>& frames) {
    for (const Frame& f : frames)
        if (std::find(fds_.begin(), fds_.end(), f.conn) != fds_.end())
            ::send(f.conn, f.bytes.data(), f.bytes.size(), MSG_NOSIGNAL);
}

void SocketServer::run() {
    std::vector<uint8_t> buf(65536);
    for (;;) {
        std::vector<pollfd> pfds;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (stop_) return;
            pfds.push_back({wake_[0], POLLIN, 0});
            for (int fd : fds_) pfds.push_back({fd, POLLIN, 0});
        }
        if (poll(pfds.data(), pfds.size(), -1) < 0) continue;
        if (pfds[0].revents) {
            char drain[64];
            (void)!read(wake_[0], drain, sizeof drain);
        }
        for (size_t i = 1; i < pfds.size(); ++i) {
            if (!pfds[i].revents) continue;
            int fd = pfds[i].fd;
            ssize_t n = (pfds[i].revents & POLLIN) ? recv(fd, buf.data(), buf.size(), 0) : 0;
            std::lock_guard<std::mutex> lock(mutex_);
            if (n <= 0) {
                modem_.disconnect(fd);
                fds_.erase(std::remove(fds_.begin(), fds_.end(), fd), fds_.end());
                close(fd);
                continue;
            }
            send(modem_.receive(fd, buf.data(), size_t(n)));
        }
    }
}

}  // namespace zovsim
