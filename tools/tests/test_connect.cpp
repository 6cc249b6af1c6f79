// zovqmi-connect's pure parts: option parsing, the transition table, the
// backoff, the state file, the script's environment and the sysfs lookup.
#include <gtest/gtest.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "config.h"
#include "machine.h"
#include "report.h"
#include "sysfs.h"

using namespace zovconnect;

namespace {

// Parses a command line given as one vector of words (the program name first).
struct Parsed {
    int rc;
    Config cfg;
    std::string err;
};

Parsed parse(std::vector<std::string> words) {
    std::vector<char*> argv;
    static std::vector<std::string> keep;  // argv strings outlive the parse: Config points into them
    keep = std::move(words);
    for (std::string& w : keep) argv.push_back(&w[0]);
    Parsed p;
    char err[256] = "";
    p.rc = parseOptions(int(argv.size()), argv.data(), &p.cfg, err, sizeof err);
    p.err = err;
    return p;
}

std::string stateJson(const Snapshot& s) {
    char* buf = nullptr;
    size_t len = 0;
    FILE* f = open_memstream(&buf, &len);
    writeStateJson(f, s);
    fclose(f);
    std::string out(buf, len);
    free(buf);
    return out;
}

std::string slurp(const std::string& path) {
    std::ifstream in(path);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

struct TempDir {
    TempDir() {
        char tmpl[] = "/tmp/zovconnect-test-XXXXXX";
        path = mkdtemp(tmpl);
    }
    ~TempDir() { (void)!system(("rm -rf " + path).c_str()); }
    std::string path;
};

}  // namespace

// --- options -----------------------------------------------------------------

TEST(ConnectOptions, DeviceAndApnAreEnoughAndTheDefaultsHold) {
    Parsed p = parse({"zovqmi-connect", "-d", "/dev/cdc-wdm0", "--apn", "internet"});
    ASSERT_EQ(p.rc, kParseOk) << p.err;
    EXPECT_STREQ(p.cfg.device, "/dev/cdc-wdm0");
    EXPECT_STREQ(p.cfg.apn, "internet");
    EXPECT_EQ(p.cfg.family, kFamily4);
    EXPECT_EQ(p.cfg.probeIntervalMs, 30000);
    EXPECT_EQ(p.cfg.timeoutMs, 5000);
    EXPECT_EQ(p.cfg.maxBackoffMs, 60000);
    EXPECT_TRUE(p.cfg.defaultRoute);
    EXPECT_TRUE(p.cfg.configure);
    EXPECT_TRUE(p.cfg.sync);
    EXPECT_EQ(p.cfg.auth, kAuthNone);
}

TEST(ConnectOptions, EveryOptionIsTakenWithSeparateOrInlineValues) {
    Parsed p = parse({"zovqmi-connect", "--device=/dev/x", "--apn=a.b", "--auth", "chap", "--user", "u",
                      "--password=p", "--profile", "3", "--ip-family", "4+6", "--pin", "1234", "--ifname", "wwan1",
                      "--resolv", "/tmp/r", "--state-file=/tmp/s.json", "--script", "/bin/true",
                      "--probe-interval", "0.5", "--timeout=2", "--max-backoff", "10", "--no-default-route",
                      "--no-configure", "--no-sync", "--json"});
    ASSERT_EQ(p.rc, kParseOk) << p.err;
    EXPECT_STREQ(p.cfg.device, "/dev/x");
    EXPECT_EQ(p.cfg.auth, kAuthChap);
    EXPECT_STREQ(p.cfg.user, "u");
    EXPECT_STREQ(p.cfg.password, "p");
    EXPECT_EQ(p.cfg.profile, 3);
    EXPECT_EQ(p.cfg.family, kFamilyBoth);
    EXPECT_STREQ(p.cfg.pin, "1234");
    EXPECT_STREQ(p.cfg.ifname, "wwan1");
    EXPECT_STREQ(p.cfg.resolv, "/tmp/r");
    EXPECT_STREQ(p.cfg.stateFile, "/tmp/s.json");
    EXPECT_STREQ(p.cfg.script, "/bin/true");
    EXPECT_EQ(p.cfg.probeIntervalMs, 500);
    EXPECT_EQ(p.cfg.timeoutMs, 2000);
    EXPECT_EQ(p.cfg.maxBackoffMs, 10000);
    EXPECT_FALSE(p.cfg.defaultRoute);
    EXPECT_FALSE(p.cfg.configure);
    EXPECT_FALSE(p.cfg.sync);
    EXPECT_TRUE(p.cfg.json);
}

TEST(ConnectOptions, UserWithoutAuthMeansPapOrChap) {
    Parsed p = parse({"c", "-d", "/dev/x", "--apn", "a", "--user", "u", "--password", "p"});
    ASSERT_EQ(p.rc, kParseOk) << p.err;
    EXPECT_EQ(p.cfg.auth, kAuthBoth);
}

TEST(ConnectOptions, UsageErrorsSayWhatIsWrongInOneLine) {
    struct Case {
        std::vector<std::string> args;
        const char* says;
    };
    const std::string longApn(101, 'a');
    const Case cases[] = {
        {{"c", "--apn", "a"}, "no device given"},
        {{"c", "-d", "/dev/x"}, "no APN given"},
        {{"c", "-d", "/dev/x", "--apn", longApn}, "APN too long: 101 characters, the modem takes at most 100"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--ip-family", "5"}, "unknown IP family 5"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--auth", "md5"}, "unknown authentication md5"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--pin", "12a4"}, "bad PIN"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--pin", "123"}, "bad PIN"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--timeout", "0"}, "bad --timeout 0"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--probe-interval", "x"}, "bad --probe-interval x"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--max-backoff", "0.5"}, "bad --max-backoff 0.5"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--profile", "0"}, "bad profile number 0"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--ifname", "a-name-far-too-long"}, "bad interface name"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--password", "p"}, "--password without --user"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--user", "u", "--auth", "none"}, "--user or --password with --auth none"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--json", "--syslog"}, "--json and --syslog exclude each other"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--frobnicate"}, "unknown option --frobnicate"},
        {{"c", "-d", "/dev/x", "--apn"}, "--apn needs a value"},
        {{"c", "-d", "/dev/x", "--apn", "a", "--json=yes"}, "--json takes no value"},
    };
    for (const Case& c : cases) {
        Parsed p = parse(c.args);
        EXPECT_EQ(p.rc, kParseUsage) << c.says;
        EXPECT_NE(p.err.find(c.says), std::string::npos) << "got: " << p.err;
        EXPECT_EQ(p.err.find('\n'), std::string::npos) << p.err;
    }
}

TEST(ConnectOptions, ProfileAloneNeedsNoApn) {
    Parsed p = parse({"c", "-d", "/dev/x", "--profile", "2"});
    ASSERT_EQ(p.rc, kParseOk) << p.err;
    EXPECT_EQ(p.cfg.apn, nullptr);
    EXPECT_EQ(p.cfg.profile, 2);
}

TEST(ConnectOptions, HelpAndVersionAreNotUsageErrors) {
    EXPECT_EQ(parse({"c", "--help"}).rc, kParseHelp);
    EXPECT_EQ(parse({"c", "-h"}).rc, kParseHelp);
    EXPECT_EQ(parse({"c", "--version"}).rc, kParseVersion);
}

TEST(ConnectOptions, DefaultPathsFollowTheInterfaceName) {
    Parsed p = parse({"c", "-d", "/dev/x", "--apn", "a", "--ifname", "wwan0"});
    ASSERT_EQ(p.rc, kParseOk);
    finishPaths(&p.cfg);
    EXPECT_STREQ(p.cfg.stateFile, "/run/zovqmi/wwan0.json");
    EXPECT_STREQ(p.cfg.resolv, "/run/zovqmi/wwan0.resolv");
    Parsed q = parse({"c", "-d", "/dev/x", "--apn", "a", "--ifname", "wwan0", "--state-file", "/tmp/s"});
    finishPaths(&q.cfg);
    EXPECT_STREQ(q.cfg.stateFile, "/tmp/s");
}

// --- transitions ----------------------------------------------------------------

TEST(ConnectMachine, StateNamesAreTheStateFileSpellings) {
    EXPECT_STREQ(stateName(State::Starting), "starting");
    EXPECT_STREQ(stateName(State::WaitingSim), "waiting-sim");
    EXPECT_STREQ(stateName(State::WaitingNetwork), "waiting-network");
    EXPECT_STREQ(stateName(State::Connecting), "connecting");
    EXPECT_STREQ(stateName(State::Connected), "connected");
    EXPECT_STREQ(stateName(State::Backoff), "backoff");
    EXPECT_STREQ(stateName(State::Stopping), "stopping");
}

TEST(ConnectMachine, TheHappyPathLeadsFromStartingToConnected) {
    State s = State::Starting, to;
    const State path[] = {State::WaitingSim, State::WaitingNetwork, State::Connecting, State::Connected};
    for (State want : path) {
        ASSERT_TRUE(transition(s, Event::Ready, &to)) << stateName(s);
        EXPECT_EQ(to, want);
        s = to;
    }
    EXPECT_FALSE(transition(State::Connected, Event::Ready, &to));
}

TEST(ConnectMachine, TheWholeTableReadsAsDesigned) {
    using S = State;
    using E = Event;
    const S X = S::Stopping;  // marks "no transition" below (Stopping is never a plain target but of Stop/Fatal)
    // rows: states in enum order; columns: events in enum order.
    const S table[kStateCount][kEventCount] = {
        //            Ready              NotReg             CallFailed  CallDropped Timeout     Stuck       Lost        Invalid     RetryOpen    RetryCall          Stop Fatal
        /*starting*/ {S::WaitingSim,     X,                 X,          X,          S::Backoff, S::Backoff, S::Backoff, S::Backoff, X,           X,                 X,   X},
        /*sim*/      {S::WaitingNetwork, X,                 X,          X,          S::Backoff, S::Backoff, S::Backoff, S::Backoff, X,           X,                 X,   X},
        /*network*/  {S::Connecting,     X,                 X,          X,          S::Backoff, S::Backoff, S::Backoff, S::Backoff, X,           X,                 X,   X},
        /*connecting*/{S::Connected,     S::WaitingNetwork, S::Backoff, X,          S::Backoff, S::Backoff, S::Backoff, S::Backoff, X,           X,                 X,   X},
        /*connected*/{X,                 S::WaitingNetwork, X,          S::Backoff, S::Backoff, S::Backoff, S::Backoff, S::Backoff, X,           X,                 X,   X},
        /*backoff*/  {X,                 X,                 X,          X,          X,          X,          X,          X,          S::Starting, S::WaitingNetwork, X,   X},
    };
    for (int s = 0; s < kStateCount - 1; ++s)
        for (int e = 0; e < kEventCount; ++e) {
            S to = S::Starting;
            bool moved = transition(S(s), E(e), &to);
            S want = table[s][e];
            bool stopOrFatal = E(e) == E::Stop || E(e) == E::Fatal;
            if (want == X && !stopOrFatal) {
                EXPECT_FALSE(moved) << stateName(S(s)) << " on " << eventName(E(e)) << " went to " << stateName(to);
            } else {
                ASSERT_TRUE(moved) << stateName(S(s)) << " on " << eventName(E(e));
                EXPECT_EQ(to, want) << stateName(S(s)) << " on " << eventName(E(e)) << " went to " << stateName(to);
            }
        }
}

TEST(ConnectMachine, StoppingIsFinal) {
    for (int e = 0; e < kEventCount; ++e) {
        State to;
        EXPECT_FALSE(transition(State::Stopping, Event(e), &to)) << eventName(Event(e));
    }
}

// --- backoff ------------------------------------------------------------------------

TEST(ConnectBackoff, DoublesFromOneSecondToTheMaximumWithinAFifthEitherWay) {
    Backoff b(60000, 12345);
    const int bases[] = {1000, 2000, 4000, 8000, 16000, 32000, 60000, 60000, 60000};
    for (int base : bases) {
        int wait = b.next();
        EXPECT_GE(wait, base - base / 5) << "base " << base;
        EXPECT_LE(wait, std::min(60000, base + base / 5)) << "base " << base;
    }
}

TEST(ConnectBackoff, ResetStartsAgainFromOneSecond) {
    Backoff b(60000, 7);
    for (int i = 0; i < 5; ++i) b.next();
    b.reset();
    int wait = b.next();
    EXPECT_GE(wait, 800);
    EXPECT_LE(wait, 1200);
}

TEST(ConnectBackoff, JitterSpreadsTheWaits) {
    Backoff a(60000, 1), b(60000, 99);
    bool differ = false;
    for (int i = 0; i < 6; ++i) differ = differ || a.next() != b.next();
    EXPECT_TRUE(differ);
}

TEST(ConnectBackoff, NeverWaitsLongerThanTheMaximum) {
    Backoff b(5000, 3);
    for (int i = 0; i < 50; ++i) EXPECT_LE(b.next(), 5000);
}

// --- state file ---------------------------------------------------------------------

TEST(ConnectStateFile, DisconnectedSnapshotHasNullsWhereNothingIsKnown) {
    Snapshot s;
    s.state = State::WaitingNetwork;
    s.since = 1700000000;
    s.apn = "internet";
    EXPECT_EQ(stateJson(s),
              "{\"state\":\"waiting-network\",\"since\":1700000000,\"apn\":\"internet\",\"ipv4\":null,"
              "\"ipv6\":null,\"mtu\":null,\"registered\":false,\"signal_dbm\":null,\"reconnects\":0,"
              "\"last_error\":null}");
}

TEST(ConnectStateFile, ConnectedSnapshotListsBothFamilies) {
    Snapshot s;
    s.state = State::Connected;
    s.since = 5;
    s.apn = "a\"b";
    s.v4.present = true;
    s.v4.family = 4;
    const uint8_t a4[4] = {10, 64, 1, 2}, g4[4] = {10, 64, 1, 1}, d4[4] = {10, 0, 0, 1};
    memcpy(s.v4.address, a4, 4);
    memcpy(s.v4.gateway, g4, 4);
    memcpy(s.v4.dns[0], d4, 4);
    s.v4.prefix = 30;
    s.v4.haveGateway = true;
    s.v4.dnsCount = 1;
    s.v6.present = true;
    s.v6.family = 6;
    s.v6.address[0] = 0x20, s.v6.address[1] = 0x01, s.v6.address[15] = 2;
    s.v6.prefix = 64;
    s.mtu = 1500;
    s.registered = true;
    s.haveSignal = true;
    s.signalDbm = -67;
    s.reconnects = 2;
    snprintf(s.lastError, sizeof s.lastError, "IPv4 call ended");
    EXPECT_EQ(stateJson(s),
              "{\"state\":\"connected\",\"since\":5,\"apn\":\"a\\\"b\","
              "\"ipv4\":{\"address\":\"10.64.1.2\",\"prefix\":30,\"gateway\":\"10.64.1.1\",\"dns\":[\"10.0.0.1\"]},"
              "\"ipv6\":{\"address\":\"2001::2\",\"prefix\":64,\"gateway\":null,\"dns\":[]},"
              "\"mtu\":1500,\"registered\":true,\"signal_dbm\":-67,\"reconnects\":2,"
              "\"last_error\":\"IPv4 call ended\"}");
}

TEST(ConnectStateFile, IsReplacedWholeAndNoTemporaryFileStays) {
    TempDir d;
    std::string path = d.path + "/run/zovqmi/wwan0.json";  // its directory is created
    Snapshot s;
    s.state = State::Starting;
    ASSERT_EQ(writeStateFile(path.c_str(), s), 0);
    s.state = State::Backoff;
    ASSERT_EQ(writeStateFile(path.c_str(), s), 0);
    std::string text = slurp(path);
    EXPECT_EQ(text.find("\"state\":\"backoff\""), 1u) << text;
    EXPECT_EQ(text.back(), '\n');
    EXPECT_NE(access((path + ".tmp").c_str(), F_OK), 0);
}

TEST(ConnectStateFile, ResolverFileListsEveryServerAndIsRemovedAgain) {
    TempDir d;
    std::string path = d.path + "/resolv";
    FamilySettings v4, v6;
    v4.present = true;
    v4.family = 4;
    v4.dnsCount = 2;
    const uint8_t a[4] = {10, 0, 0, 1}, b[4] = {10, 0, 0, 2};
    memcpy(v4.dns[0], a, 4);
    memcpy(v4.dns[1], b, 4);
    v6.present = true;
    v6.family = 6;
    v6.dnsCount = 1;
    v6.dns[0][0] = 0x20, v6.dns[0][1] = 0x01, v6.dns[0][15] = 0x53;
    ASSERT_EQ(writeResolv(path.c_str(), v4, v6), 0);
    EXPECT_EQ(slurp(path), "nameserver 10.0.0.1\nnameserver 10.0.0.2\nnameserver 2001::53\n");
    EXPECT_EQ(removeResolv(path.c_str()), 0);
    EXPECT_NE(access(path.c_str(), F_OK), 0);
    EXPECT_EQ(removeResolv(path.c_str()), 0);  // already gone: fine
}

TEST(ConnectStateFile, PrefixOfMaskCountsLeadingOnes) {
    EXPECT_EQ(prefixOfMask(0xFFFFFFFC), 30);
    EXPECT_EQ(prefixOfMask(0xFFFFFF00), 24);
    EXPECT_EQ(prefixOfMask(0xFFFFFFFF), 32);
    EXPECT_EQ(prefixOfMask(0), 0);
}

// --- the script -------------------------------------------------------------------

TEST(ConnectScript, EnvironmentCarriesEveryVariableOfBothFamilies) {
    FamilySettings v4, v6;
    v4.present = true;
    v4.family = 4;
    const uint8_t a[4] = {10, 64, 1, 2}, g[4] = {10, 64, 1, 1}, d1[4] = {10, 0, 0, 1}, d2[4] = {10, 0, 0, 2};
    memcpy(v4.address, a, 4);
    memcpy(v4.gateway, g, 4);
    memcpy(v4.dns[0], d1, 4);
    memcpy(v4.dns[1], d2, 4);
    v4.prefix = 30;
    v4.haveGateway = true;
    v4.dnsCount = 2;
    ScriptEnv e;
    scriptEnvironment(&e, "wwan0", "internet", v4, v6, 1500, "call-dropped");
    std::vector<std::string> vars(e.env, e.env + e.count);
    EXPECT_EQ(e.env[e.count], nullptr);
    const std::vector<std::string> want = {
        "ZOVQMI_IFNAME=wwan0",          "ZOVQMI_IPV4_ADDRESS=10.64.1.2", "ZOVQMI_IPV4_PREFIX=30",
        "ZOVQMI_IPV4_GATEWAY=10.64.1.1", "ZOVQMI_IPV4_DNS=10.0.0.1 10.0.0.2", "ZOVQMI_IPV6_ADDRESS=",
        "ZOVQMI_IPV6_PREFIX=",          "ZOVQMI_IPV6_GATEWAY=",          "ZOVQMI_IPV6_DNS=",
        "ZOVQMI_MTU=1500",              "ZOVQMI_APN=internet",           "ZOVQMI_REASON=call-dropped",
    };
    EXPECT_EQ(vars, want);
}

TEST(ConnectScript, RunsWithTheActionAndTheVariablesAndReportsItsStatus) {
    TempDir d;
    std::string script = d.path + "/hook", out = d.path + "/out";
    {
        std::ofstream f(script);
        f << "#!/bin/sh\necho \"$1 $ZOVQMI_IFNAME $ZOVQMI_REASON\" > " << out << "\nexit 3\n";
    }
    chmod(script.c_str(), 0755);
    FamilySettings none;
    ScriptEnv e;
    scriptEnvironment(&e, "wwan9", "apn", none, none, 0, "stopped");
    long long deadline = 1LL << 62;
    EXPECT_EQ(runScript(script.c_str(), "down", e, deadline), 3);
    EXPECT_EQ(slurp(out), "down wwan9 stopped\n");
}

TEST(ConnectScript, AScriptStillRunningAtTheDeadlineIsKilled) {
    TempDir d;
    std::string script = d.path + "/hook";
    {
        std::ofstream f(script);
        f << "#!/bin/sh\nexec sleep 30\n";
    }
    chmod(script.c_str(), 0755);
    FamilySettings none;
    ScriptEnv e;
    scriptEnvironment(&e, "wwan0", "apn", none, none, 0, "");
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    long long now = (long long)ts.tv_sec * 1000 + ts.tv_nsec / 1000000;
    EXPECT_EQ(runScript(script.c_str(), "up", e, now + 200), -1);
    clock_gettime(CLOCK_MONOTONIC, &ts);
    long long after = (long long)ts.tv_sec * 1000 + ts.tv_nsec / 1000000;
    EXPECT_LT(after - now, 5000);
}

// --- sysfs ----------------------------------------------------------------------------

namespace {

// A sysfs tree with one modem: USB device 1-1, the control node on interface
// 1-1:1.4 (usbmisc/cdc-wdm0) and its net interface wwan0 there too; a second
// interface eth0 elsewhere.
void fakeSysfs(const std::string& root, bool withNet) {
    std::string dev = root + "/devices/pci0000:00/usb1/1-1";
    for (const std::string& dir : {dev + "/1-1:1.4/usbmisc/cdc-wdm0", dev + "/1-1:1.4/net/wwan0",
                                   root + "/devices/pci0000:00/eth/net/eth0", root + "/class/usbmisc",
                                   root + "/class/net"})
        (void)!system(("mkdir -p '" + dir + "'").c_str());
    (void)!symlink((dev + "/1-1:1.4").c_str(), (dev + "/1-1:1.4/usbmisc/cdc-wdm0/device").c_str());
    (void)!symlink((dev + "/1-1:1.4/usbmisc/cdc-wdm0").c_str(), (root + "/class/usbmisc/cdc-wdm0").c_str());
    (void)!symlink((root + "/devices/pci0000:00/eth").c_str(), (root + "/devices/pci0000:00/eth/net/eth0/device").c_str());
    (void)!symlink((root + "/devices/pci0000:00/eth/net/eth0").c_str(), (root + "/class/net/eth0").c_str());
    if (withNet) {
        (void)!symlink((dev + "/1-1:1.4").c_str(), (dev + "/1-1:1.4/net/wwan0/device").c_str());
        (void)!symlink((dev + "/1-1:1.4/net/wwan0").c_str(), (root + "/class/net/wwan0").c_str());
    }
}

}  // namespace

TEST(ConnectSysfs, FindsTheNetInterfaceOfTheSameUsbDevice) {
    TempDir d;
    fakeSysfs(d.path, true);
    char name[16] = "", err[256] = "";
    ASSERT_EQ(findInterface(d.path.c_str(), "/dev/cdc-wdm0", name, sizeof name, err, sizeof err), 0) << err;
    EXPECT_STREQ(name, "wwan0");
}

TEST(ConnectSysfs, SaysClearlyWhenNoInterfaceBelongsToTheDevice) {
    TempDir d;
    fakeSysfs(d.path, false);
    char name[16] = "", err[256] = "";
    EXPECT_EQ(findInterface(d.path.c_str(), "/dev/cdc-wdm0", name, sizeof name, err, sizeof err), -1);
    EXPECT_NE(std::string(err).find("no network interface found for /dev/cdc-wdm0"), std::string::npos) << err;
    EXPECT_EQ(findInterface(d.path.c_str(), "/dev/ttyUSB0", name, sizeof name, err, sizeof err), -1);
    EXPECT_NE(std::string(err).find("give --ifname"), std::string::npos) << err;
}
