// zovqmi-cli driven in-process: arguments checked before the device is
// opened, and every action fed answers that do not parse (short items,
// counts larger than the message, missing results, garbage indications).
// A wrong answer must end in a failure status and a line of text, never a
// crash or a read past a buffer (the asan leg runs this too).
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <signal.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "cli.h"

using namespace zovapp;

namespace {

using Bytes = std::vector<uint8_t>;

void put16(Bytes& b, unsigned v) {
    b.push_back(uint8_t(v));
    b.push_back(uint8_t(v >> 8));
}

// Runs the tool with `args`, its output thrown away; returns its status.
int run(std::vector<std::string> args) {
    std::vector<char*> argv;
    static std::string name = "zovqmi-cli";
    argv.push_back(&name[0]);
    for (std::string& a : args) argv.push_back(&a[0]);
    fflush(stdout);
    fflush(stderr);
    int out = dup(1), err = dup(2);
    int null = open("/dev/null", O_WRONLY);
    dup2(null, 1);
    dup2(null, 2);
    int rc = runCli(int(argv.size()), argv.data());
    fflush(stdout);
    fflush(stderr);
    dup2(out, 1);
    dup2(err, 2);
    close(out);
    close(err);
    close(null);
    return rc;
}

// A modem on a SOCK_SEQPACKET socket (the tool opens sockets as it opens
// devices) that hands out client ids properly and answers everything else
// with what `answer` makes of the request.
class FakeModem {
public:
    using Answer = std::function<void(uint8_t service, uint8_t client, uint16_t tx, uint16_t id, int fd)>;

    explicit FakeModem(Answer answer) : answer_(std::move(answer)) {
        path_ = "/tmp/zovqmi-cli-test-" + std::to_string(getpid()) + ".sock";
        unlink(path_.c_str());
        listen_ = socket(AF_UNIX, SOCK_SEQPACKET, 0);
        sockaddr_un a = {};
        a.sun_family = AF_UNIX;
        snprintf(a.sun_path, sizeof a.sun_path, "%s", path_.c_str());
        EXPECT_EQ(bind(listen_, reinterpret_cast<sockaddr*>(&a), sizeof a), 0);
        EXPECT_EQ(listen(listen_, 4), 0);
        thread_ = std::thread([this] { serve(); });
    }
    ~FakeModem() {
        stop_ = true;
        thread_.join();
        close(listen_);
        unlink(path_.c_str());
    }
    const std::string& path() const { return path_; }

    static void send(int fd, uint8_t service, uint8_t client, const Bytes& msg) {
        Bytes f = {1};
        put16(f, unsigned(msg.size() + 5));
        f.push_back(0x80);
        f.push_back(service);
        f.push_back(client);
        f.insert(f.end(), msg.begin(), msg.end());
        ssize_t ignored = write(fd, f.data(), f.size());
        (void)ignored;
    }

private:
    void serve() {
        while (!stop_) {
            pollfd p = {listen_, POLLIN, 0};
            if (poll(&p, 1, 20) <= 0) continue;
            int fd = accept(listen_, nullptr, nullptr);
            if (fd < 0) continue;
            uint8_t f[4096 + 6];
            for (;;) {
                pollfd q = {fd, POLLIN, 0};
                if (poll(&q, 1, 20) <= 0) {
                    if (stop_) break;
                    continue;
                }
                ssize_t n = read(fd, f, sizeof f);
                if (n <= 0) break;
                if (n < 12) continue;
                uint8_t service = f[4], client = f[5];
                const uint8_t* m = f + 6;
                if (service == 0) {
                    uint8_t tx = m[1];
                    uint16_t id = uint16_t(m[2] | m[3] << 8);
                    if (id == 0x0022 || id == 0x0023) {  // client ids: always granted and released
                        Bytes r = {0x01, tx};
                        put16(r, id);
                        put16(r, 12);
                        r.insert(r.end(), {0x02, 4, 0, 0, 0, 0, 0, 0x01, 2, 0, m[9], uint8_t(id == 0x0022 ? 1 : m[10])});
                        send(fd, 0, 0, r);
                        continue;
                    }
                    answer_(0, 0, tx, id, fd);
                } else {
                    answer_(service, client, uint16_t(m[1] | m[2] << 8), uint16_t(m[3] | m[4] << 8), fd);
                }
            }
            close(fd);
        }
    }

    Answer answer_;
    std::string path_;
    int listen_ = -1;
    std::atomic<bool> stop_{false};
    std::thread thread_;
};

// A message of `service` with the header and the given items area.
Bytes message(uint8_t service, uint8_t flags, uint16_t tx, uint16_t id, const Bytes& area) {
    Bytes r = {flags};
    if (service == 0) r.push_back(uint8_t(tx));
    else put16(r, tx);
    put16(r, id);
    put16(r, unsigned(area.size()));
    r.insert(r.end(), area.begin(), area.end());
    return r;
}

// Every action with arguments that pass the checks.
const std::vector<std::vector<std::string>> kEveryAction = {
    {"--get-client-id", "wds"}, {"--dms-get-ids"}, {"--dms-get-capabilities"}, {"--dms-get-power-state"},
    {"--dms-get-time"}, {"--dms-get-operating-mode"}, {"--dms-set-operating-mode", "online"}, {"--dms-reset"},
    {"--uim-verify-pin", "1234"}, {"--uim-get-pin-status"}, {"--uim-change-pin", "1234", "4321"},
    {"--uim-unblock-pin", "12345678", "1234"}, {"--uim-set-pin-protection", "off", "1234"}, {"--uim-get-iccid"},
    {"--uim-get-imsi"}, {"--dms-get-msisdn"}, {"--nas-get-signal-strength"}, {"--nas-get-serving-system"},
    {"--nas-get-home-network"}, {"--nas-network-scan"}, {"--nas-get-rf-band-info"}, {"--nas-get-system-selection"},
    {"--nas-set-network-modes", "lte,umts"}, {"--nas-register", "001-01"}, {"--nas-attach"}, {"--nas-detach"},
    {"--wds-start-network", "internet"}, {"--wds-stop-network", "1"}, {"--wds-get-packet-status"},
    {"--wds-get-statistics"}, {"--wds-get-call-duration"}, {"--wds-get-runtime-settings"}, {"--wds-list-profiles"},
    {"--wds-create-profile"}, {"--wds-modify-profile", "1"}, {"--wds-delete-profile", "2"},
    {"--wds-set-default-profile", "1"}, {"--ctl-set-data-format", "raw-ip"}, {"--wms-list", "nv"},
    {"--wms-read", "nv", "0"}, {"--wms-send", "+15550100300", "hello"}, {"--wms-delete", "nv", "0"},
    {"--wms-get-smsc"}, {"--wms-set-smsc", "+15550100999"}, {"--pbm-read", "1-5"},
    {"--pbm-write", "0", "Name", "+123"}, {"--pbm-delete", "1"}, {"--pbm-search", "a"}, {"--pds-single-fix"},
    {"--pds-start-tracking"}, {"--pds-stop-tracking"}, {"--send-raw", "dms:0x20:0x10=00"},
};

}  // namespace

TEST(Cli, EveryActionOfTheTableIsCoveredByTheMalformedAnswerTest) {
    int n = 0;
    for (const Action* a = kActions; a->name; ++a) {
        bool found = false;
        for (const auto& args : kEveryAction) found |= args[0] == a->name;
        EXPECT_TRUE(found) << a->name;
        ++n;
    }
    EXPECT_EQ(size_t(n), kEveryAction.size());
}

TEST(Cli, BadArgumentsAreRefusedWithStatusTwoBeforeTheDeviceIsOpened) {
    // A device that cannot be opened would give status 1: status 2 shows the
    // check came first.
    const std::vector<std::vector<std::string>> bad = {
        {"--uim-verify-pin", "12a4"}, {"--uim-change-pin", "1234", "123"}, {"--uim-unblock-pin", "1234", "1234"},
        {"--uim-set-pin-protection", "maybe", "1234"}, {"--nas-set-network-modes", "lte,5g"},
        {"--nas-register", "1-1"}, {"--nas-register", "001-01/wifi"}, {"--wds-stop-network", "x"},
        {"--wds-modify-profile", "0"}, {"--ctl-set-data-format", "ppp"}, {"--wms-read", "sd", "0"},
        {"--wms-send", "12ab", "hi"}, {"--wms-send", "+1555", "\xC3\x28"}, {"--wms-delete", "nv", "-1"},
        {"--wms-set-smsc", "smsc"}, {"--pbm-read", "5-1"}, {"--pbm-write", "1", "Name", "12;3"},
        {"--pbm-delete", "0"}, {"--send-raw", "dms"}, {"--send-raw", "dms:0x20:0x10=0"},
        {"--send-raw", "nope:1"}, {"--get-client-id", "foo"}, {"--dms-set-operating-mode", "sleepy"},
        {"--ip-family", "5", "--wds-start-network", "internet"}, {"--auth", "md5", "--dms-get-ids"},
        {"--timeout", "0", "--dms-get-ids"}, {"--count", "x", "--pds-start-tracking"}, {"--frobnicate"},
        {"--pdp-type", "ppp", "--wds-create-profile"}, {"--uim-verify-pin"},
    };
    for (auto args : bad) {
        args.insert(args.begin(), {"-d", "/nonexistent/cdc-wdm0"});
        EXPECT_EQ(run(args), kExitUsage) << args[2];
    }
    EXPECT_EQ(run({"-d", "/nonexistent/cdc-wdm0", "--dms-get-ids"}), kExitFailed);
    EXPECT_EQ(run({"--dms-get-ids"}), kExitUsage);
}

TEST(Cli, CountLargerThanTheAnswerIsReportedAsAnUnexpectedAnswer) {
    // A scan result claiming 5000 networks in an item of 2 bytes.
    FakeModem modem([](uint8_t svc, uint8_t client, uint16_t tx, uint16_t id, int fd) {
        FakeModem::send(fd, svc, client, message(svc, 0x02, tx, id, {0x02, 4, 0, 0, 0, 0, 0, 0x10, 2, 0, 0x88, 0x13}));
    });
    EXPECT_EQ(run({"-d", modem.path(), "--timeout", "500", "--nas-network-scan"}), kExitFailed);
}

TEST(Cli, FailureResultGivesStatusFourAndSuccessStatusZero) {
    FakeModem modem([](uint8_t svc, uint8_t client, uint16_t tx, uint16_t id, int fd) {
        Bytes area = {0x02, 4, 0, 1, 0, 0x0C, 0};  // failure, IncorrectPin
        if (id == 0x002B) area = {0x02, 4, 0, 0, 0, 0, 0, 0x11, 3, 0, 2, 3, 10};
        FakeModem::send(fd, svc, client, message(svc, 0x02, tx, id, area));
    });
    EXPECT_EQ(run({"-d", modem.path(), "--timeout", "500", "--uim-verify-pin", "1111"}), kExitQmi);
    EXPECT_EQ(run({"-d", modem.path(), "--timeout", "500", "--uim-get-pin-status"}), kExitOk);
}

TEST(Cli, MalformedAnswersToEveryActionEndInAFailureStatusNeverACrash) {
    std::mt19937 rng(20261123);
    std::mutex mu;
    int variant = 0;
    FakeModem modem([&](uint8_t svc, uint8_t client, uint16_t tx, uint16_t id, int fd) {
        std::lock_guard<std::mutex> lock(mu);
        Bytes area;
        int kind = variant % 6;
        // The result: success mostly, else a failure, a short one or none.
        if (kind != 5) area.insert(area.end(), {0x02, 4, 0, uint8_t(kind == 4), 0, uint8_t(kind == 4 ? 0x31 : 0), 0});
        else area.insert(area.end(), {0x02, 1, 0, 0});
        int items = int(rng() % 5);
        for (int i = 0; i < items; ++i) {
            uint8_t type = i == 0 ? 0x01 : uint8_t(0x10 + rng() % 0x20);
            unsigned len = kind == 1 ? 1 + rng() % 3 : rng() % 48;
            area.push_back(type);
            put16(area, len);
            for (unsigned k = 0; k < len; ++k) area.push_back(uint8_t(kind == 2 ? 0xFF : rng()));
        }
        if (kind == 3 && !area.empty()) put16(area, 0x7FFF);  // an item that runs past the end
        Bytes msg = message(svc, svc == 0 ? 0x01 : 0x02, tx, id, area);
        if (kind == 0 && (rng() % 4) == 0) msg.resize(rng() % msg.size());  // cut short
        FakeModem::send(fd, svc, client, msg);
        // An indication of the same id with garbage items, for the actions
        // that wait for one (records, positions).
        Bytes ind;
        unsigned len = rng() % 64;
        ind.push_back(uint8_t(rng() % 2 ? 0x01 : 0x13));
        put16(ind, len);
        for (unsigned k = 0; k < len; ++k) ind.push_back(uint8_t(rng()));
        if (svc != 0) FakeModem::send(fd, svc, client, message(svc, 0x04, 0, id, ind));
    });
    for (const auto& action : kEveryAction) {
        for (int v = 0; v < 12; ++v) {
            {
                std::lock_guard<std::mutex> lock(mu);
                variant = v;
            }
            std::vector<std::string> args = {"-d", modem.path(), "--timeout", "60", "--count", "1", "--json"};
            args.insert(args.end(), action.begin(), action.end());
            // Tracking ends only when interrupted (or after --count fixes,
            // which garbage never makes): a SIGINT ends it, as a user would.
            std::thread interrupt;
            if (action[0] == "--pds-start-tracking")
                interrupt = std::thread([] {
                    std::this_thread::sleep_for(std::chrono::milliseconds(300));
                    struct sigaction sa;
                    sigaction(SIGINT, nullptr, &sa);
                    if (sa.sa_handler != SIG_DFL) kill(getpid(), SIGINT);
                });
            int rc = run(args);
            if (interrupt.joinable()) interrupt.join();
            EXPECT_TRUE(rc == kExitOk || rc == kExitFailed || rc == kExitTimeout || rc == kExitQmi)
                << action[0] << " variant " << v << " gave " << rc;
        }
    }
}
