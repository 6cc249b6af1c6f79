#include <fcntl.h>
#include <linux/if.h>
#include <linux/if_tun.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "transports.h"

namespace zovsim {

Tun::~Tun() { stop(); }

std::string Tun::start(const std::string& name) {
    ifreq ifr{};
    if (name.empty() || name.size() >= sizeof ifr.ifr_name) return "bad interface name: " + name;
    fd_ = open("/dev/net/tun", O_RDWR | O_CLOEXEC);
    if (fd_ < 0) return std::string("/dev/net/tun: ") + std::strerror(errno);
    ifr.ifr_flags = IFF_TUN | IFF_NO_PI;
    std::memcpy(ifr.ifr_name, name.c_str(), name.size());
    if (ioctl(fd_, TUNSETIFF, &ifr) != 0 || pipe(wake_) != 0) {
        std::string why = name + ": " + std::strerror(errno);
        close(fd_);
        fd_ = -1;
        return why;
    }
    thread_ = std::thread([this] { run(); });
    return "";
}

void Tun::stop() {
    if (!thread_.joinable()) return;
    (void)!write(wake_[1], "x", 1);
    thread_.join();
    close(fd_);
    close(wake_[0]);
    close(wake_[1]);
    fd_ = wake_[0] = wake_[1] = -1;
}

void Tun::run() {
    uint8_t buf[65536];
    for (;;) {
        pollfd p[2] = {{wake_[0], POLLIN, 0}, {fd_, POLLIN, 0}};
        if (poll(p, 2, -1) < 0) {
            if (errno == EINTR) continue;
            return;
        }
        if (p[0].revents) return;
        if (!(p[1].revents & POLLIN)) continue;
        ssize_t n = read(fd_, buf, sizeof buf);
        if (n <= 0) continue;
        Bytes reply = modem_.dataPacket(buf, size_t(n));
        if (!reply.empty()) (void)!write(fd_, reply.data(), reply.size());
    }
}

}  // namespace zovsim
