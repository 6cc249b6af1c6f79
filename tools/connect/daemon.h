// zovqmi-connect's daemon: the work of each state of the machine in
// machine.h, one poll loop (the device, the signal self-pipes, the next
// deadline), and the teardown that ends in time whatever the modem does.
#pragma once

#include "config.h"
#include "machine.h"
#include "netlink.h"
#include "report.h"
#include "session.h"

namespace zovconnect {

// Exit statuses.
enum ExitStatus { kExitStopped = 0, kExitFatal = 1, kExitUsage = 2, kExitSim = 3 };

// One data call: IPv4 or IPv6, on a WDS client of its own.
struct Call {
    uint8_t family = 4;
    bool haveClient = false;
    uint8_t client = 0;
    bool up = false;
    uint32_t handle = 0;
    FamilySettings settings;
    bool addressSet = false;
    bool routeSet = false;
};

class Daemon {
public:
    // Installs the signal handlers and runs until a signal or a fatal error;
    // returns the exit status.  `cfg` must have its interface name and paths.
    int run(const Config& cfg);

private:
    // The work of each state; each returns the event that ends it.
    Event start();
    Event sim();
    Event network();
    Event connect();
    Event watch();
    Event backoff();
    int stop();
    // Opens the session: on the device, or through the proxy that holds it.
    int openSession();
    bool startProxy();

    // Moves the machine on `event` (side effects of leaving a state).
    void handle(Event event);
    void enter(State s);

    // Waiting in poll: the device, the stop pipe, the dump pipe, until `untilMs`.
    enum Wake { kWakeStop, kWakeDevice, kWakeTimer };
    Wake waitIdle(long long untilMs);
    // Reads what the device has; an event when the device failed.
    bool drainDevice(Event* event);
    // Looks at the kept indications; an event when one calls for a change.
    bool indications(Event* event);

    // A request on (service, client); resets the count of timeouts on an answer.
    int request(uint8_t service, uint8_t client, const uint8_t* msg, int len);
    int request(uint8_t service, const uint8_t* msg, int len);
    // The event a failed request means (a timeout, a lost device, invalid
    // client ids, a signal), or `otherwise` for a failure of the request itself.
    Event fault(int rc, Event otherwise);

    // GetServingSystem: registered means registered with packet service attached.
    int servingSystem(bool* registered);
    void updateSignal();
    int probeCall(Call& c, uint8_t* status);
    int startCall(Call& c);
    int readSettings(Call& c, FamilySettings* out);
    // The calls' settings into the snapshot (and the log).
    void takeSettings(const char* how);
    Event refresh();
    bool configure();
    void unconfigure();
    // Runs the script, if any, with `action`.
    void runHook(const char* action, const char* reason);
    // Undoes what the connection configured and runs the script with down.
    void tearDown(const char* reason, bool talk);
    void publish();
    void dump();
    void fatal(int status, const char* fmt, ...) __attribute__((format(printf, 3, 4)));
    void setError(const char* fmt, ...) __attribute__((format(printf, 2, 3)));
    int callCount() const { return cfg_.family == kFamilyBoth ? 2 : 1; }

    Config cfg_;
    zovapp::Session s_;
    Netlink nl_;
    int ifindex_ = 0;
    State state_ = State::Starting;
    Snapshot snap_;
    Call calls_[2];
    Backoff backoff_;
    int backoffMs_ = 0;
    Event resume_ = Event::RetryOpen;
    int timeouts_ = 0;
    int exit_ = kExitStopped;
    bool everConnected_ = false;
    bool scriptUp_ = false;
    long long connectedAtMs_ = 0;
    long long stopDeadlineMs_ = 0;
    zovapp::Message msg_;
};

}  // namespace zovconnect
