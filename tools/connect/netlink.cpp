#include "netlink.h"

#include <errno.h>
#include <linux/if_addr.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <poll.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

namespace zovconnect {

namespace {

// One request with its attributes; the largest (a route with a 16-byte
// gateway) needs well under this.
constexpr int kRequestBytes = 256;
// How long the kernel may take to acknowledge.
constexpr int kAckMs = 2000;

struct Request {
    nlmsghdr h;
    uint8_t body[kRequestBytes - sizeof(nlmsghdr)];
};

void attr(Request* r, uint16_t type, const void* data, int len) {
    rtattr* a = reinterpret_cast<rtattr*>(reinterpret_cast<uint8_t*>(r) + NLMSG_ALIGN(r->h.nlmsg_len));
    a->rta_type = type;
    a->rta_len = uint16_t(RTA_LENGTH(len));
    memcpy(RTA_DATA(a), data, size_t(len));
    r->h.nlmsg_len = NLMSG_ALIGN(r->h.nlmsg_len) + RTA_ALIGN(a->rta_len);
}

void u32attr(Request* r, uint16_t type, uint32_t v) { attr(r, type, &v, 4); }

}  // namespace

int Netlink::open() {
    close();
    fd_ = socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE);
    if (fd_ < 0) {
        int e = errno;
        snprintf(error_, sizeof error_, "netlink socket: %s", strerror(e));
        return -e;
    }
    sockaddr_nl local = {};
    local.nl_family = AF_NETLINK;
    if (bind(fd_, reinterpret_cast<sockaddr*>(&local), sizeof local) < 0) {
        int e = errno;
        snprintf(error_, sizeof error_, "netlink bind: %s", strerror(e));
        close();
        return -e;
    }
    return 0;
}

void Netlink::close() {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

int Netlink::talk(void* msg, const char* what) {
    nlmsghdr* h = static_cast<nlmsghdr*>(msg);
    if (fd_ < 0 && open() < 0) return -EBADF;
    h->nlmsg_seq = ++seq_;
    h->nlmsg_flags |= NLM_F_REQUEST | NLM_F_ACK;
    sockaddr_nl kernel = {};
    kernel.nl_family = AF_NETLINK;
    if (sendto(fd_, msg, h->nlmsg_len, 0, reinterpret_cast<sockaddr*>(&kernel), sizeof kernel) < 0) {
        int e = errno;
        snprintf(error_, sizeof error_, "%s: netlink send: %s", what, strerror(e));
        return -e;
    }
    uint8_t buf[4096];
    for (;;) {
        pollfd p = {fd_, POLLIN, 0};
        int rc = poll(&p, 1, kAckMs);
        if (rc < 0 && errno == EINTR) continue;
        if (rc <= 0) {
            snprintf(error_, sizeof error_, "%s: no answer from the kernel", what);
            return -ETIMEDOUT;
        }
        ssize_t n = recv(fd_, buf, sizeof buf, 0);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            int e = errno;
            snprintf(error_, sizeof error_, "%s: netlink receive: %s", what, strerror(e));
            return -e;
        }
        int left = int(n);
        for (nlmsghdr* r = reinterpret_cast<nlmsghdr*>(buf); NLMSG_OK(r, unsigned(left)); r = NLMSG_NEXT(r, left)) {
            if (r->nlmsg_seq != seq_ || r->nlmsg_type != NLMSG_ERROR) continue;
            const nlmsgerr* err = static_cast<const nlmsgerr*>(NLMSG_DATA(r));
            if (err->error == 0) return 0;
            snprintf(error_, sizeof error_, "%s: %s", what, strerror(-err->error));
            return err->error;
        }
    }
}

int Netlink::address(bool add, int ifindex, uint8_t family, const uint8_t* addr, int prefix) {
    Request r = {};
    r.h.nlmsg_len = NLMSG_LENGTH(sizeof(ifaddrmsg));
    r.h.nlmsg_type = add ? RTM_NEWADDR : RTM_DELADDR;
    r.h.nlmsg_flags = add ? NLM_F_CREATE | NLM_F_REPLACE : 0;
    ifaddrmsg* ifa = static_cast<ifaddrmsg*>(NLMSG_DATA(&r.h));
    ifa->ifa_family = family == 6 ? AF_INET6 : AF_INET;
    ifa->ifa_prefixlen = uint8_t(prefix);
    ifa->ifa_scope = RT_SCOPE_UNIVERSE;
    ifa->ifa_index = uint32_t(ifindex);
    int len = family == 6 ? 16 : 4;
    attr(&r, IFA_LOCAL, addr, len);
    attr(&r, IFA_ADDRESS, addr, len);
    if (family == 6) {
        ifa->ifa_flags = IFA_F_NODAD;
        u32attr(&r, IFA_FLAGS, IFA_F_NODAD);
    }
    return talk(&r, add ? "add address" : "remove address");
}

int Netlink::addAddress(int ifindex, uint8_t family, const uint8_t* a, int prefix) {
    return address(true, ifindex, family, a, prefix);
}

int Netlink::delAddress(int ifindex, uint8_t family, const uint8_t* a, int prefix) {
    return address(false, ifindex, family, a, prefix);
}

int Netlink::linkUp(int ifindex, uint32_t mtu) {
    Request r = {};
    r.h.nlmsg_len = NLMSG_LENGTH(sizeof(ifinfomsg));
    r.h.nlmsg_type = RTM_NEWLINK;
    ifinfomsg* ifi = static_cast<ifinfomsg*>(NLMSG_DATA(&r.h));
    ifi->ifi_family = AF_UNSPEC;
    ifi->ifi_index = ifindex;
    ifi->ifi_flags = IFF_UP;
    ifi->ifi_change = IFF_UP;
    if (mtu) u32attr(&r, IFLA_MTU, mtu);
    return talk(&r, "link up");
}

int Netlink::route(bool add, int ifindex, uint8_t family, const uint8_t* gateway) {
    Request r = {};
    r.h.nlmsg_len = NLMSG_LENGTH(sizeof(rtmsg));
    r.h.nlmsg_type = add ? RTM_NEWROUTE : RTM_DELROUTE;
    // An existing default route of another interface is left alone.
    r.h.nlmsg_flags = add ? NLM_F_CREATE | NLM_F_EXCL : 0;
    rtmsg* rt = static_cast<rtmsg*>(NLMSG_DATA(&r.h));
    rt->rtm_family = family == 6 ? AF_INET6 : AF_INET;
    rt->rtm_dst_len = 0;
    rt->rtm_table = RT_TABLE_MAIN;
    rt->rtm_protocol = RTPROT_STATIC;
    rt->rtm_scope = RT_SCOPE_UNIVERSE;
    rt->rtm_type = RTN_UNICAST;
    if (gateway) {
        rt->rtm_flags = RTNH_F_ONLINK;
        attr(&r, RTA_GATEWAY, gateway, family == 6 ? 16 : 4);
    } else if (family == 4) {
        rt->rtm_scope = RT_SCOPE_LINK;
    }
    u32attr(&r, RTA_OIF, uint32_t(ifindex));
    return talk(&r, add ? "add default route" : "remove default route");
}

int Netlink::addDefaultRoute(int ifindex, uint8_t family, const uint8_t* gateway) {
    return route(true, ifindex, family, gateway);
}

int Netlink::delDefaultRoute(int ifindex, uint8_t family, const uint8_t* gateway) {
    return route(false, ifindex, family, gateway);
}

}  // namespace zovconnect
