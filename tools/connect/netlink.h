// Interface configuration through rtnetlink: addresses with their prefix,
// the link's MTU and state, default routes.  No `ip` binary needed.  Each
// request waits for the kernel's acknowledgement; failures give -errno and a
// line of text (error()).
#pragma once

#include <stdint.h>

namespace zovconnect {

class Netlink {
public:
    Netlink() = default;
    ~Netlink() { close(); }
    Netlink(const Netlink&) = delete;
    Netlink& operator=(const Netlink&) = delete;

    int open();
    void close();
    bool isOpen() const { return fd_ >= 0; }

    // family 4 or 6; address of 4 or 16 bytes.  IPv6 addresses are added
    // without duplicate address detection (nothing else is on the link).
    int addAddress(int ifindex, uint8_t family, const uint8_t* address, int prefix);
    int delAddress(int ifindex, uint8_t family, const uint8_t* address, int prefix);
    // Sets the MTU (0: unchanged) and brings the link up.
    int linkUp(int ifindex, uint32_t mtu);
    // The default route of `family` through the interface, via `gateway`
    // when given (taken as on the link), else straight on the link.
    int addDefaultRoute(int ifindex, uint8_t family, const uint8_t* gateway);
    int delDefaultRoute(int ifindex, uint8_t family, const uint8_t* gateway);

    const char* error() const { return error_; }

private:
    int talk(void* msg, const char* what);
    int address(bool add, int ifindex, uint8_t family, const uint8_t* address, int prefix);
    int route(bool add, int ifindex, uint8_t family, const uint8_t* gateway);

    int fd_ = -1;
    uint32_t seq_ = 0;
    char error_[128] = "";
};

}  // namespace zovconnect
