// The zovqmi-sim tool as a testbed: its device node vanishing under an open
// descriptor, its pseudo-terminal hanging up, and its data path crossed by
// ping in a private network namespace.  The tool's path is the first
// argument (or ZOVQMI_SIM).
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <chrono>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "testutil.h"

using namespace t;

namespace {

std::string gSim;

using Clock = std::chrono::steady_clock;
long msSince(Clock::time_point t0) {
    return long(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - t0).count());
}

bool fuseUsable() { return access("/dev/fuse", R_OK | W_OK) == 0; }

// A temporary directory, removed (with what the tests left in it) at the end.
struct TempDir {
    TempDir() {
        char tmpl[] = "/tmp/zovqmi-simtool-XXXXXX";
        path = mkdtemp(tmpl) ? tmpl : "";
    }
    ~TempDir() {
        if (!path.empty()) (void)!system(("rm -rf '" + path + "'").c_str());
    }
    std::string path;
};

// One running zovqmi-sim, stopped with SIGTERM at the end.
class SimProcess {
public:
    explicit SimProcess(const std::vector<std::string>& args) {
        int out[2];
        if (pipe(out) != 0) return;
        pid_ = fork();
        if (pid_ == 0) {
            dup2(out[1], 1);
            close(out[0]);
            close(out[1]);
            std::vector<char*> argv;
            argv.push_back(const_cast<char*>(gSim.c_str()));
            for (const std::string& a : args) argv.push_back(const_cast<char*>(a.c_str()));
            argv.push_back(nullptr);
            execv(gSim.c_str(), argv.data());
            _exit(127);
        }
        close(out[1]);
        out_ = out[0];
        device = nextDevice(5000);
    }
    ~SimProcess() {
        if (pid_ > 0) {
            kill(pid_, SIGTERM);
            int status = 0;
            for (int i = 0; i < 300 && waitpid(pid_, &status, WNOHANG) == 0; ++i) usleep(10000);
            if (waitpid(pid_, &status, WNOHANG) == 0) {
                kill(pid_, SIGKILL);
                waitpid(pid_, &status, 0);
            }
        }
        if (out_ >= 0) close(out_);
    }
    // The path of the next "device: PATH" line, or "" after `ms`.
    std::string nextDevice(int ms) {
        auto t0 = Clock::now();
        while (msSince(t0) < ms) {
            size_t nl = text_.find('\n');
            if (nl != std::string::npos) {
                std::string line = text_.substr(0, nl);
                text_.erase(0, nl + 1);
                if (line.rfind("device: ", 0) == 0) return line.substr(8);
                continue;
            }
            pollfd p{out_, POLLIN, 0};
            if (poll(&p, 1, 50) != 1) continue;
            char buf[512];
            ssize_t n = read(out_, buf, sizeof buf);
            if (n <= 0) break;
            text_.append(buf, size_t(n));
        }
        return "";
    }
    std::string device;

private:
    pid_t pid_ = -1;
    int out_ = -1;
    std::string text_;
};

// Sends one control command and returns the answer line (without newline).
std::string control(const std::string& path, const std::string& command) {
    int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    std::snprintf(addr.sun_path, sizeof addr.sun_path, "%s", path.c_str());
    if (connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0) {
        close(fd);
        return "no control socket";
    }
    std::string line = command + "\n", answer;
    (void)!write(fd, line.data(), line.size());
    auto t0 = Clock::now();
    while (answer.find('\n') == std::string::npos && msSince(t0) < 3000) {
        pollfd p{fd, POLLIN, 0};
        if (poll(&p, 1, 100) != 1) continue;
        char buf[4096];
        ssize_t n = read(fd, buf, sizeof buf);
        if (n <= 0) break;
        answer.append(buf, size_t(n));
    }
    close(fd);
    return answer.substr(0, answer.find('\n'));
}

bool contains(const std::string& s, const std::string& part) { return s.find(part) != std::string::npos; }

// The QMI side: requests through the library's device functions.
struct Frame {
    uint8_t service = 0, client = 0;
    Bytes bytes;
};
Frame readFrame(int fd, int ms = 2000) {
    Frame f;
    pollfd p{fd, POLLIN, 0};
    if (poll(&p, 1, ms) != 1 || !(p.revents & POLLIN)) return f;
    uint8_t buf[4096];
    int n = zovQMIDeviceRead(fd, buf, sizeof buf, &f.service, &f.client);
    if (n > 0) f.bytes.assign(buf, buf + n);
    return f;
}
// The response to a request of `id` on (service, client), skipping indications.
Frame ask(int fd, uint8_t service, uint8_t client, const uint8_t* msg, int len, uint16_t id) {
    if (zovQMIDeviceWrite(fd, service, client, msg, len) != len) return {};
    for (int i = 0; i < 10; ++i) {
        Frame f = readFrame(fd);
        if (f.bytes.empty()) return f;
        bool response = service == 0 ? f.bytes.size() >= 6 && f.bytes[0] == 0x01 && rd16(&f.bytes[2]) == id
                                     : f.bytes.size() >= 7 && f.bytes[0] == 0x02 && rd16(&f.bytes[3]) == id;
        if (f.service == service && response) return f;
    }
    return {};
}
uint8_t clientId(int fd, uint8_t service) {
    uint8_t buf[64];
    int n = zovQMICTLGetClientIDReq(buf, sizeof buf, service);
    Frame f = ask(fd, 0, 0, buf, n, 0x0022);
    QmiResult r{};
    uint8_t svc = 0, cid = 0;
    if (zovQMICTLGetClientIDResp(f.bytes.data(), int(f.bytes.size()), &r, &svc, &cid) < 0) return 0;
    return cid;
}
// Starts a call of `family` on a WDS client; returns whether it came up.
bool startCall(int fd, uint8_t wds, uint8_t family) {
    uint8_t buf[64];
    int n = zovQMIWDSStartNetworkInterfaceReq(buf, sizeof buf);
    n = zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(buf, sizeof buf, family);
    Frame f = ask(fd, ZOVQMI_SERVICE_WDS, wds, buf, n, 0x0020);
    QmiResult r{};
    uint32_t handle = 0;
    return zovQMIWDSStartNetworkInterfaceResp(f.bytes.data(), int(f.bytes.size()), &r, &handle) > 0 &&
           rd16(&r.result) == 0;
}
// The error code of a DMS GetOperatingMode answer on `client` (-1: none).
int operatingModeError(int fd, uint8_t client) {
    uint8_t buf[64];
    int n = zovQMIDMSGetOperatingModeReq(buf, sizeof buf);
    Frame f = ask(fd, ZOVQMI_SERVICE_DMS, client, buf, n, 0x002D);
    QmiResult r{};
    uint8_t mode = 0;
    if (zovQMIDMSGetOperatingModeResp(f.bytes.data(), int(f.bytes.size()), &r, &mode) == ZOVQMI_ERR_ARG ||
        f.bytes.empty())
        return -1;
    return rd16(&r.error);
}

// ------------------------------------------------------------- vanish --

TEST(SimTool, VanishFailsOpenDescriptorsHidesTheNodeThenBringsBackAFreshModem) {
    if (!fuseUsable()) GTEST_SKIP() << "/dev/fuse is not usable here: the device node cannot be served";
    TempDir dir;
    std::string ctl = dir.path + "/control";
    SimProcess sim({"--fuse", dir.path + "/node", "--control", ctl});
    ASSERT_FALSE(sim.device.empty());
    int fd = zovQMIDeviceOpen(sim.device.c_str());
    ASSERT_GE(fd, 0);
    uint8_t dms = clientId(fd, ZOVQMI_SERVICE_DMS);
    ASSERT_NE(dms, 0);
    EXPECT_EQ(operatingModeError(fd, dms), 0);
    EXPECT_TRUE(contains(control(ctl, "status"), "\"opens\":1")) << control(ctl, "status");

    // A poller waits on the descriptor while the device goes away.
    short revents = 0;
    long woke = -1;
    std::thread poller([&] {
        pollfd p{fd, POLLIN, 0};
        auto t0 = Clock::now();
        if (poll(&p, 1, 4000) == 1) revents = p.revents;
        woke = msSince(t0);
    });
    usleep(200000);
    auto vanished = Clock::now();
    EXPECT_EQ(control(ctl, "vanish 1500"), "ok");
    poller.join();
    EXPECT_TRUE(revents & (POLLERR | POLLHUP)) << "revents " << revents;
    EXPECT_LT(woke, 1500);

    uint8_t buf[64];
    uint8_t service = 0, client = 0;
    errno = 0;
    EXPECT_LT(zovQMIDeviceRead(fd, buf, sizeof buf, &service, &client), 0);
    EXPECT_TRUE(errno == EIO || errno == ENODEV) << "errno " << errno;
    int n = zovQMIDMSGetOperatingModeReq(buf, sizeof buf);
    errno = 0;
    EXPECT_LT(zovQMIDeviceWrite(fd, ZOVQMI_SERVICE_DMS, dms, buf, n), 0);
    EXPECT_TRUE(errno == EIO || errno == ENODEV) << "errno " << errno;
    errno = 0;
    EXPECT_LT(open(sim.device.c_str(), O_RDWR), 0);
    EXPECT_EQ(errno, ENOENT);
    struct stat sb;
    EXPECT_NE(stat(sim.device.c_str(), &sb), 0);
    // The dead descriptor still counts as open until it is closed.
    EXPECT_TRUE(contains(control(ctl, "status"), "\"opens\":1"));
    zovQMIDeviceClose(fd);

    int again = -1;
    while (again < 0 && msSince(vanished) < 6000) {
        usleep(50000);
        again = zovQMIDeviceOpen(sim.device.c_str());
    }
    ASSERT_GE(again, 0);
    EXPECT_GE(msSince(vanished), 1400);
    // A freshly booted modem: the old client id is unknown.
    EXPECT_EQ(operatingModeError(again, dms), 0x0007);
    EXPECT_TRUE(contains(control(ctl, "status"), "\"dms\":[],"));
    uint8_t fresh = clientId(again, ZOVQMI_SERVICE_DMS);
    EXPECT_EQ(fresh, 1);
    EXPECT_EQ(operatingModeError(again, fresh), 0);
    std::string status = control(ctl, "status");
    EXPECT_TRUE(contains(status, "\"opens\":1")) << status;
    zovQMIDeviceClose(again);
}

TEST(SimTool, VanishOnThePseudoTerminalHangsUpAndOpensANewOne) {
    TempDir dir;
    std::string ctl = dir.path + "/control", link = dir.path + "/modem";
    SimProcess sim({"--pty", "--link", link, "--control", ctl});
    ASSERT_FALSE(sim.device.empty());
    int fd = open(link.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(fd, 0);
    EXPECT_NE(clientId(fd, ZOVQMI_SERVICE_DMS), 0);
    EXPECT_EQ(control(ctl, "vanish 300"), "ok");
    pollfd p{fd, POLLIN, 0};
    ASSERT_EQ(poll(&p, 1, 2000), 1);
    EXPECT_TRUE(p.revents & (POLLHUP | POLLERR)) << "revents " << p.revents;
    struct stat sb;
    EXPECT_NE(lstat(link.c_str(), &sb), 0);  // the link is gone meanwhile
    close(fd);
    std::string second = sim.nextDevice(5000);
    ASSERT_FALSE(second.empty());
    fd = open(link.c_str(), O_RDWR | O_NOCTTY);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(clientId(fd, ZOVQMI_SERVICE_DMS), 1);  // a fresh modem
    close(fd);
}

// ---------------------------------------------------------- data path --

// Runs a shell command in the test's namespace; true when it exits 0.
bool run(const std::string& command) { return system((command + " >/dev/null 2>&1").c_str()) == 0; }

class DataPath : public ::testing::Test {
protected:
    void SetUp() override {
        if (geteuid() != 0) GTEST_SKIP() << "the data path test needs root for a private network namespace";
        if (access("/dev/net/tun", R_OK | W_OK) != 0) GTEST_SKIP() << "/dev/net/tun is not usable here";
        if (!run("command -v ip") || !run("command -v ping"))
            GTEST_SKIP() << "ip (iproute2) or ping (iputils-ping) is missing";
        // The whole test process moves into a network namespace of its own,
        // so the interface, its addresses and the pings never touch the host.
        static bool isolated = unshare(CLONE_NEWNET) == 0;
        if (!isolated) GTEST_SKIP() << "cannot create a private network namespace: " << std::strerror(errno);
        ASSERT_TRUE(run("ip link set lo up"));
    }
};

TEST_F(DataPath, PingCrossesTheModemWhileACallIsUpAndFailsWhenItDrops) {
    TempDir dir;
    std::string ctl = dir.path + "/control";
    std::vector<std::string> args = {"--control", ctl, "--tun", "zovsim0", "--no-pin"};
    if (fuseUsable()) {
        args.insert(args.begin(), {"--fuse", dir.path + "/node"});
    } else {
        args.insert(args.begin(), "--pty");
    }
    SimProcess sim(args);
    ASSERT_FALSE(sim.device.empty());
    int fd = zovQMIDeviceOpen(sim.device.c_str());
    ASSERT_GE(fd, 0);
    uint8_t v4 = clientId(fd, ZOVQMI_SERVICE_WDS), v6 = clientId(fd, ZOVQMI_SERVICE_WDS);
    ASSERT_TRUE(v4 && v6);

    // The call's addresses, as the runtime settings give them.  IPv6 on a
    // TUN interface needs nodad, or the address stays tentative (and
    // unusable) while duplicate address detection waits for answers that
    // a point-to-point link never gives.
    ASSERT_TRUE(run("ip link set zovsim0 up"));
    ASSERT_TRUE(run("ip addr add 10.64.1.2/30 dev zovsim0"));
    ASSERT_TRUE(run("ip -6 addr add 2001:db8:64:1::2/64 dev zovsim0 nodad"));
    const std::string ping4 = "ping -n -c 3 -i 0.2 -w 5 10.64.1.1";
    const std::string ping6 = "ping -6 -n -c 3 -i 0.2 -w 5 2001:db8:64:1::1";
    const std::string lost4 = "ping -n -c 2 -i 0.2 -W 1 10.64.1.1";
    const std::string lost6 = "ping -6 -n -c 2 -i 0.2 -W 1 2001:db8:64:1::1";

    EXPECT_FALSE(run(lost4)) << "no call yet, yet the gateway answers";
    ASSERT_TRUE(startCall(fd, v4, 4));
    EXPECT_TRUE(run(ping4));
    ASSERT_TRUE(startCall(fd, v6, 6));
    EXPECT_TRUE(run(ping6));
    // Both pings were counted (the kernel may send more of its own).
    std::string status = control(ctl, "status");
    std::printf("status with a dual-stack call up: %s\n", status.c_str());
    EXPECT_TRUE(contains(status, "\"family\":4,\"apn\":\"internet\"}")) << status;
    EXPECT_TRUE(contains(status, "\"family\":6,\"apn\":\"internet\"}")) << status;
    size_t at = status.find("\"rx_packets\":");
    ASSERT_NE(at, std::string::npos) << status;
    EXPECT_GE(std::atoi(status.c_str() + at + 13), 6) << status;

    EXPECT_EQ(control(ctl, "drop-call"), "ok");
    EXPECT_FALSE(run(lost4));
    EXPECT_FALSE(run(lost6));

    ASSERT_TRUE(startCall(fd, v4, 4));
    ASSERT_TRUE(startCall(fd, v6, 6));
    EXPECT_TRUE(run(ping4));
    EXPECT_TRUE(run(ping6));
    zovQMIDeviceClose(fd);
}

}  // namespace

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (argc > 1) gSim = argv[1];
    else if (const char* env = std::getenv("ZOVQMI_SIM")) gSim = env;
    if (gSim.empty()) {
        std::fprintf(stderr, "usage: test_sim_tool ZOVQMI_SIM_PATH [gtest options]\n");
        return 2;
    }
    signal(SIGPIPE, SIG_IGN);
    return RUN_ALL_TESTS();
}
