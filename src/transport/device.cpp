// The QMI control device: open, close, one write per frame, one read per
// frame, and the driver's three requests.  This is the only code that touches
// the device; it knows the QMUX header and nothing inside a message.
#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "msg/pattern.h"

using namespace zq;

namespace {
constexpr int kQmuxHeader = 6;
constexpr int kMaxFrame = 4096;  // the largest frame one read takes

// Driver requests of the QMI control device.
constexpr unsigned long kIoctlGetVidPid = 0x8BE0;
constexpr unsigned long kIoctlSetDebugMode = 0x8BE1;
constexpr unsigned long kIoctlGetVersion = 0x8BE2;
}  // namespace

extern "C" int zovQMIDeviceOpen(const char* path) {
    if (!path) return -1;
    return open(path, O_RDWR);
}

extern "C" int zovQMIDeviceClose(int fd) { return close(fd); }

extern "C" int zovQMIDeviceWrite(int fd, uint8_t service, uint8_t clientId, const uint8_t* msg, int len) {
    if (fd < 0) return -1;
    // Six bytes is the smallest message (a CTL header), whatever the service.
    if (len < kQmuxHeader || !msg) return -2;
    uint8_t* frame = static_cast<uint8_t*>(malloc(static_cast<size_t>(len) + kQmuxHeader));
    if (!frame) return -3;
    frame[0] = 1;  // interface type
    st16(frame + 1, static_cast<uint16_t>(len + 5));
    frame[3] = 0;  // control flags
    frame[4] = service;
    frame[5] = clientId;
    copyBytes(frame + kQmuxHeader, msg, static_cast<size_t>(len));
    ssize_t n = write(fd, frame, static_cast<size_t>(len) + kQmuxHeader);
    free(frame);
    // A short write is not detected: the caller's length is returned.
    return n < 0 ? static_cast<int>(n) : len;
}

extern "C" int zovQMIDeviceRead(int fd, uint8_t* msg, int msgSize, uint8_t* service, uint8_t* clientId) {
    if (fd < 0) return -1;
    if (!msg) return -2;
    uint8_t frame[kMaxFrame];
    ssize_t n = read(fd, frame, sizeof frame);
    if (n < 0) return static_cast<int>(n);
    // A frame shorter than its header, or a message larger than the caller's
    // buffer, is refused rather than copied.
    if (n < kQmuxHeader || n - kQmuxHeader > msgSize) return ZOVQMI_ERR_MALFORMED;
    if (service) *service = frame[4];
    if (clientId) *clientId = frame[5];
    copyBytes(msg, frame + kQmuxHeader, static_cast<size_t>(n - kQmuxHeader));
    return static_cast<int>(n - kQmuxHeader);
}

extern "C" int zovQMIDeviceGetVIDPID(int fd, uint32_t* vid, uint32_t* pid) {
    if (fd < 0) return -1;
    uint32_t value = 0;
    int r = ioctl(fd, kIoctlGetVidPid, &value);
    if (r >= 0) {
        if (vid) *vid = value >> 16;
        if (pid) *pid = value & 0xFFFF;
    }
    return r;
}

extern "C" int zovQMIDeviceSetDebugMode(int fd, unsigned long mode) {
    if (fd < 0) return -1;
    return ioctl(fd, kIoctlSetDebugMode, mode);
}

extern "C" int zovQMIDeviceGetVersion(int fd, void* out) {
    if (fd < 0 || !out) return -1;
    return ioctl(fd, kIoctlGetVersion, out);
}
