// Device access and the hex dump.  The device is played by one end of a
// SOCK_SEQPACKET pair (frame boundaries kept); the driver's requests by an
// interposed ioctl.
#include <fcntl.h>
#include <stdarg.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>

#include "testutil.h"

using namespace t;

// ------------------------------------------------------- driver stand-in --

namespace {
struct FakeDriver {
    unsigned long request = 0;
    void* argument = nullptr;
    unsigned long value = 0;  // the by-value argument of 0x8BE1
    int result = 0;
    uint32_t vidpid = 0;
} driver;
}  // namespace

// Stands in for the system's ioctl in this test program: records the request
// and answers as the QMI driver would.
extern "C" int ioctl(int fd, unsigned long request, ...) {
    (void)fd;
    va_list ap;
    va_start(ap, request);
    driver.request = request;
    if (request == 0x8BE1) {
        driver.value = va_arg(ap, unsigned long);
    } else {
        driver.argument = va_arg(ap, void*);
        if (request == 0x8BE0 && driver.result >= 0) *static_cast<uint32_t*>(driver.argument) = driver.vidpid;
    }
    va_end(ap);
    return driver.result;
}

namespace {

struct Pair {
    int app = -1, modem = -1;
    Pair() {
        int sv[2];
        if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, sv) == 0) {
            app = sv[0];
            modem = sv[1];
        }
    }
    ~Pair() {
        close(app);
        close(modem);
    }
    Bytes receive() const {
        Bytes b(8192);
        ssize_t n = ::read(modem, b.data(), b.size());
        b.resize(n > 0 ? size_t(n) : 0);
        return b;
    }
    void send(const Bytes& frame) const { ASSERT_EQ(::write(modem, frame.data(), frame.size()), ssize_t(frame.size())); }
};

// ------------------------------------------------------ open and close --

TEST(DeviceOpen, OpensReadWriteAndReturnsTheDescriptor) {
    char path[] = "/tmp/zovqmi-device-XXXXXX";
    int tmp = mkstemp(path);
    ASSERT_GE(tmp, 0);
    close(tmp);
    int fd = zovQMIDeviceOpen(path);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(fcntl(fd, F_GETFL) & O_ACCMODE, O_RDWR);
    EXPECT_EQ(zovQMIDeviceClose(fd), 0);
    unlink(path);
}

TEST(DeviceOpen, NullPathReturnsMinusOneAndAMissingPathTheOpenResult) {
    EXPECT_EQ(zovQMIDeviceOpen(nullptr), -1);
    EXPECT_EQ(zovQMIDeviceOpen("/nonexistent/zovqmi"), -1);
}

TEST(DeviceClose, ReturnsTheCloseResultWithoutChecks) { EXPECT_EQ(zovQMIDeviceClose(-1), -1); }

// ---------------------------------------------------------------- write --

TEST(DeviceWrite, PrependsTheQmuxHeaderAndWritesOneFrame) {
    Pair p;
    Bytes msg = {0x00, 0x05, 0x00, 0x22, 0x00, 0x04, 0x00, 0x01, 0x01, 0x00, 0x01};
    EXPECT_EQ(zovQMIDeviceWrite(p.app, 0x01, 0x07, msg.data(), int(msg.size())), int(msg.size()));
    EXPECT_EQ(p.receive(), cat({{0x01}, le16(uint16_t(msg.size() + 5)), {0x00, 0x01, 0x07}, msg}));
}

TEST(DeviceWrite, LengthFiveReturnsMinusTwoAndWritesNothing) {
    Pair p;
    Bytes msg(6, 0);
    EXPECT_EQ(zovQMIDeviceWrite(p.app, 0, 0, msg.data(), 5), -2);
    EXPECT_EQ(zovQMIDeviceWrite(p.app, 0, 0, nullptr, 6), -2);
    EXPECT_EQ(zovQMIDeviceWrite(-1, 0, 0, msg.data(), 6), -1);
    // Nothing reached the other end.
    fcntl(p.modem, F_SETFL, O_NONBLOCK);
    uint8_t b;
    EXPECT_LT(::read(p.modem, &b, 1), 0);
}

TEST(DeviceWrite, LengthSixWritesTwelveBytesWithLengthField0x0B) {
    Pair p;
    Bytes msg = {0x00, 0x01, 0x27, 0x00, 0x00, 0x00};
    EXPECT_EQ(zovQMIDeviceWrite(p.app, 0, 0, msg.data(), 6), 6);
    Bytes frame = p.receive();
    ASSERT_EQ(frame.size(), 12u);
    EXPECT_EQ(frame[1], 0x0B);
    EXPECT_EQ(frame[2], 0x00);
}

TEST(DeviceWrite, NegativeWriteResultIsPassedThrough) {
    Bytes msg(6, 0);
    int fd = open("/dev/null", O_RDONLY);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(zovQMIDeviceWrite(fd, 0, 0, msg.data(), 6), -1);
    close(fd);
}

// ----------------------------------------------------------------- read --

TEST(DeviceRead, StripsTheHeaderAndReportsServiceAndClient) {
    Pair p;
    Bytes body = svcMessage(0x0020, {result()});
    p.send(cat({{0x01}, le16(uint16_t(body.size() + 5)), {0x80, 0x01, 0x09}, body}));
    Bytes msg = buffer(64);
    uint8_t service = 0, client = 0;
    EXPECT_EQ(zovQMIDeviceRead(p.app, msg.data(), 64, &service, &client), int(body.size()));
    EXPECT_EQ(service, 0x01);
    EXPECT_EQ(client, 0x09);
    EXPECT_EQ(head(msg, body.size() + 1), cat({body, {0xEE}}));
}

TEST(DeviceRead, NullServiceAndClientStillCopyTheMessage) {
    Pair p;
    Bytes body = ctlMessage(0x0027, {});
    p.send(cat({{0x01}, le16(uint16_t(body.size() + 5)), {0x80, 0x00, 0x00}, body}));
    Bytes msg = buffer(64);
    EXPECT_EQ(zovQMIDeviceRead(p.app, msg.data(), 64, nullptr, nullptr), int(body.size()));
    EXPECT_EQ(head(msg, body.size()), body);
}

TEST(DeviceRead, ArgumentChecks) {
    Bytes msg(16);
    EXPECT_EQ(zovQMIDeviceRead(-1, msg.data(), 16, nullptr, nullptr), -1);
    EXPECT_EQ(zovQMIDeviceRead(0, nullptr, 16, nullptr, nullptr), -2);
}

TEST(DeviceRead, NegativeReadResultIsPassedThrough) {
    int fd = open("/dev/null", O_WRONLY);
    ASSERT_GE(fd, 0);
    Bytes msg(16);
    EXPECT_EQ(zovQMIDeviceRead(fd, msg.data(), 16, nullptr, nullptr), -1);
    close(fd);
}

TEST(DeviceRead, FrameShorterThanItsHeaderIsMalformed) {
    Pair p;
    p.send({0x01, 0x04, 0x00, 0x80});
    Bytes msg = buffer(16);
    uint8_t service = 0xEE;
    EXPECT_EQ(zovQMIDeviceRead(p.app, msg.data(), 16, &service, nullptr), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(msg, buffer(16));
    EXPECT_EQ(service, 0xEE);
}

TEST(DeviceRead, MessageLargerThanTheCallersBufferIsRefused) {
    Pair p;
    Bytes body = svcMessage(0x0020, {result()});
    p.send(cat({{0x01}, le16(uint16_t(body.size() + 5)), {0x80, 0x01, 0x09}, body}));
    Bytes msg = buffer(64);
    EXPECT_EQ(zovQMIDeviceRead(p.app, msg.data(), int(body.size()) - 1, nullptr, nullptr), ZOVQMI_ERR_MALFORMED);
    EXPECT_EQ(msg, buffer(64));
}

TEST(DeviceRead, MessageThatExactlyFillsTheBufferIsCopied) {
    Pair p;
    Bytes body = svcMessage(0x0020, {result()});
    p.send(cat({{0x01}, le16(uint16_t(body.size() + 5)), {0x80, 0x01, 0x09}, body}));
    Bytes msg = buffer(body.size());
    EXPECT_EQ(zovQMIDeviceRead(p.app, msg.data(), int(body.size()), nullptr, nullptr), int(body.size()));
    EXPECT_EQ(msg, body);
}

// ------------------------------------------------------ driver requests --

TEST(DeviceGetVIDPID, SplitsTheDriverValueIntoVendorAndProduct) {
    driver = FakeDriver{};
    driver.vidpid = 0x12345678;
    uint32_t vid = 0, pid = 0;
    EXPECT_EQ(zovQMIDeviceGetVIDPID(3, &vid, &pid), 0);
    EXPECT_EQ(driver.request, 0x8BE0ul);
    EXPECT_EQ(vid, 0x1234u);
    EXPECT_EQ(pid, 0x5678u);
}

TEST(DeviceGetVIDPID, FailureLeavesTheOutputsUntouched) {
    driver = FakeDriver{};
    driver.result = -1;
    uint32_t vid = 7, pid = 8;
    EXPECT_EQ(zovQMIDeviceGetVIDPID(3, &vid, &pid), -1);
    EXPECT_EQ(vid, 7u);
    EXPECT_EQ(pid, 8u);
    EXPECT_EQ(zovQMIDeviceGetVIDPID(-1, &vid, &pid), -1);
}

TEST(DeviceSetDebugMode, PassesTheModeByValue) {
    driver = FakeDriver{};
    driver.result = 5;
    EXPECT_EQ(zovQMIDeviceSetDebugMode(3, 1ul), 5);
    EXPECT_EQ(driver.request, 0x8BE1ul);
    EXPECT_EQ(driver.value, 1ul);
    driver.request = 0;
    EXPECT_EQ(zovQMIDeviceSetDebugMode(-1, 1ul), -1);
    EXPECT_EQ(driver.request, 0ul);
}

TEST(DeviceGetVersion, PassesTheCallersPointerThrough) {
    driver = FakeDriver{};
    driver.result = 0;
    char out[32];
    EXPECT_EQ(zovQMIDeviceGetVersion(3, out), 0);
    EXPECT_EQ(driver.request, 0x8BE2ul);
    EXPECT_EQ(driver.argument, static_cast<void*>(out));
    driver.request = 0;
    EXPECT_EQ(zovQMIDeviceGetVersion(3, nullptr), -1);
    EXPECT_EQ(zovQMIDeviceGetVersion(-1, out), -1);
    EXPECT_EQ(driver.request, 0ul);
}

// ------------------------------------------------------------- hex dump --

// Runs zovPrintHex with standard output sent to a file; returns the text.
std::string dump(const char* label, const Bytes& data, int* result = nullptr) {
    std::fflush(stdout);
    char path[] = "/tmp/zovqmi-hex-XXXXXX";
    int tmp = mkstemp(path);
    int saved = dup(1);
    dup2(tmp, 1);
    int r = zovPrintHex(99, label, data.data(), int(data.size()));
    std::fflush(stdout);
    dup2(saved, 1);
    close(saved);
    if (result) *result = r;
    std::string text;
    lseek(tmp, 0, SEEK_SET);
    char b[4096];
    ssize_t n;
    while ((n = ::read(tmp, b, sizeof b)) > 0) text.append(b, size_t(n));
    close(tmp);
    unlink(path);
    return text;
}

Bytes counting(size_t n) {
    Bytes b(n);
    for (size_t i = 0; i < n; ++i) b[i] = uint8_t(i);
    return b;
}

TEST(PrintHex, TwentyBytesWrapAfterSixteenWithAnIndentOfThePrefixWidth) {
    EXPECT_EQ(dump("TX", counting(20)),
              "TX ( 20), 00010203 04050607 08090A0B 0C0D0E0F\n"
              "          10111213 \n");
}

TEST(PrintHex, ExactlySixteenBytesPrintOneLineAndNoIndent) {
    EXPECT_EQ(dump("RX", counting(16)), "RX ( 16), 00010203 04050607 08090A0B 0C0D0E0F\n");
}

TEST(PrintHex, SeventeenBytesPrintTheIndentOnceAndAFinalNewline) {
    EXPECT_EQ(dump("RX", counting(17)),
              "RX ( 17), 00010203 04050607 08090A0B 0C0D0E0F\n"
              "          10\n");
}

TEST(PrintHex, ZeroLengthPrintsOnlyThePrefix) {
    int r = 0;
    EXPECT_EQ(dump("TX", {}, &r), "TX (  0), ");
    EXPECT_EQ(r, 10);
}

TEST(PrintHex, ReturnsTheResultOfTheLastPrintf) {
    int r = 0;
    dump("TX", counting(3), &r);
    EXPECT_EQ(r, 1);  // the final "\n"
    dump("TX", counting(32), &r);
    EXPECT_EQ(r, 1);  // the "\n" that ends the second line
}

TEST(PrintHex, ThreeLinesUppercaseAndLongLabels) {
    Bytes data(33, 0xAB);
    EXPECT_EQ(dump("a longer label than usual", data),
              "a longer label than usual ( 33), ABABABAB ABABABAB ABABABAB ABABABAB\n"
              "                                 ABABABAB ABABABAB ABABABAB ABABABAB\n"
              "                                 AB\n");
}

}  // namespace
