// The data path of the simulated modem: raw IP packets from the host's
// network interface.  A packet whose source is the address of an active call
// of its family goes "to the network"; an echo request among them is
// answered as if the destination replied.  Every other packet is dropped.
#include <algorithm>

#include "state.h"

namespace zovsim {

namespace {

constexpr uint8_t kProtoIcmp = 1, kProtoIcmp6 = 58;
constexpr uint8_t kEchoRequest4 = 8, kEchoReply4 = 0;
constexpr uint8_t kEchoRequest6 = 128, kEchoReply6 = 129;

// Adds 16-bit big-endian words to a ones' complement sum.
uint32_t sumWords(uint32_t sum, const uint8_t* p, size_t n) {
    for (size_t i = 0; i + 1 < n; i += 2) sum += uint32_t(p[i] << 8 | p[i + 1]);
    if (n & 1) sum += uint32_t(p[n - 1] << 8);
    return sum;
}
uint16_t fold(uint32_t sum) {
    while (sum >> 16) sum = (sum & 0xFFFF) + (sum >> 16);
    return uint16_t(~sum);
}
void put16(uint8_t* p, uint16_t v) {
    p[0] = uint8_t(v >> 8);
    p[1] = uint8_t(v);
}

// The echo reply to an IPv4 echo request, or nothing.
Bytes echo4(const uint8_t* in, size_t len) {
    size_t ihl = size_t(in[0] & 0x0F) * 4;
    size_t total = size_t(in[2] << 8 | in[3]);
    bool fragment = ((in[6] & 0x3F) | in[7]) != 0;  // more fragments, or an offset
    if (ihl < 20 || total > len || total < ihl + 8 || fragment || in[9] != kProtoIcmp) return {};
    if (in[ihl] != kEchoRequest4 || in[ihl + 1] != 0) return {};
    Bytes out(in, in + total);
    std::swap_ranges(out.begin() + 12, out.begin() + 16, out.begin() + 16);
    out[8] = 64;  // time to live
    put16(&out[10], 0);
    put16(&out[10], fold(sumWords(0, out.data(), ihl)));
    out[ihl] = kEchoReply4;
    put16(&out[ihl + 2], 0);
    put16(&out[ihl + 2], fold(sumWords(0, out.data() + ihl, total - ihl)));
    return out;
}

// The echo reply to an ICMPv6 echo request that follows the fixed header
// directly, or nothing.
Bytes echo6(const uint8_t* in, size_t len) {
    size_t payload = size_t(in[4] << 8 | in[5]);
    if (40 + payload > len || payload < 8 || in[6] != kProtoIcmp6) return {};
    if (in[40] != kEchoRequest6 || in[41] != 0) return {};
    Bytes out(in, in + 40 + payload);
    std::swap_ranges(out.begin() + 8, out.begin() + 24, out.begin() + 24);
    out[7] = 64;  // hop limit
    out[40] = kEchoReply6;
    put16(&out[42], 0);
    // Pseudo-header: source, destination, upper-layer length, next header.
    uint32_t sum = sumWords(0, out.data() + 8, 32);
    sum += uint32_t(payload >> 16) + uint32_t(payload & 0xFFFF) + kProtoIcmp6;
    put16(&out[42], fold(sumWords(sum, out.data() + 40, payload)));
    return out;
}

}  // namespace

Bytes Modem::dataPacket(const uint8_t* packet, size_t len) {
    std::lock_guard<std::mutex> lock(mutex_);
    State& st = *state_;
    uint8_t version = len ? packet[0] >> 4 : 0;
    const uint8_t* source = nullptr;
    size_t size = 0;
    if (version == 4 && len >= 20) {
        source = packet + 12;
        size = 4;
    } else if (version == 6 && len >= 40) {
        source = packet + 8;
        size = 16;
    }
    const Call* call = nullptr;
    for (auto& kv : st.calls) {
        const Call& c = kv.second;
        if (source && c.family == version && c.address.size() == size &&
            std::equal(c.address.begin(), c.address.end(), source))
            call = &c;
    }
    if (!call) {
        ++st.traffic.txDropped;
        return {};
    }
    ++st.traffic.txPackets;
    st.traffic.txBytes += len;
    Bytes reply = version == 4 ? echo4(packet, len) : echo6(packet, len);
    if (!reply.empty()) {
        ++st.traffic.rxPackets;
        st.traffic.rxBytes += reply.size();
    }
    return reply;
}

}  // namespace zovsim
