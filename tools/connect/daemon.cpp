#include "daemon.h"

#include <errno.h>
#include <fcntl.h>
#include <net/if.h>
#include <poll.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>
#include <time.h>
#include <unistd.h>

#include <grp.h>
#include <stdlib.h>

#include "log.h"
#include "proxy.h"

namespace zovconnect {

using zovapp::logError;
using zovapp::logEvent;
using zovapp::monotonicMs;

namespace {

// Signals only write a byte to a pipe: SIGTERM and SIGINT to the stop pipe
// (the session's wake descriptor, so that they end any wait at once),
// SIGUSR1 to the dump pipe (looked at between requests).
int gStopPipe[2] = {-1, -1};
int gDumpPipe[2] = {-1, -1};

// When the first stop signal came (monotonic ms): the teardown's time runs from there.
volatile long long gStopAtMs = 0;

void onSignal(int sig) {
    int e = errno;
    if (sig != SIGUSR1 && gStopAtMs == 0) {
        timespec ts;
        clock_gettime(CLOCK_MONOTONIC, &ts);
        gStopAtMs = (long long)ts.tv_sec * 1000 + ts.tv_nsec / 1000000;
    }
    char b = char(sig);
    ssize_t n = write(sig == SIGUSR1 ? gDumpPipe[1] : gStopPipe[1], &b, 1);
    (void)n;
    errno = e;
}

bool makePipe(int p[2]) {
    if (pipe(p) < 0) return false;
    for (int i = 0; i < 2; ++i) {
        fcntl(p[i], F_SETFD, FD_CLOEXEC);
        fcntl(p[i], F_SETFL, fcntl(p[i], F_GETFL) | O_NONBLOCK);
    }
    return true;
}

void emptyPipe(int fd) {
    char buf[64];
    while (read(fd, buf, sizeof buf) > 0) {
    }
}

// Values as the modem reports them.
constexpr uint8_t kModeOnline = 0;
constexpr uint8_t kPinNotVerified = 1, kPinVerified = 2, kPinDisabled = 3, kPinBlocked = 4,
                  kPinPermanentlyBlocked = 5;
constexpr uint8_t kUimAbsent = 0x02;
constexpr uint8_t kRegistered = 1;
constexpr uint8_t kPsDetached = 2;
constexpr uint8_t kCallConnected = 2, kCallDisconnected = 1;
constexpr uint16_t kErrInvalidClientId = 0x0007, kErrIncorrectPin = 0x000C, kErrPinBlocked = 0x0023,
                   kErrPinPermanentlyBlocked = 0x0024;
// Runtime settings asked for: DNS, IP address, gateway, MTU, IP family
// (and the rest of what a modem sends along).
constexpr uint32_t kRequestedSettings = 0x0010 | 0x0100 | 0x0200 | 0x0400 | 0x2000 | 0x8000;
// Registration is looked at this often while no indication comes.
constexpr int kRegistrationPollMs = 5000;
// A SIM still initialising is asked again after this long, this many times.
constexpr int kSimPollMs = 1000;
constexpr int kSimPolls = 30;

// A script gets this long (but see runHook at the end).
constexpr int kScriptMs = 30000;

long long nowUnix() { return (long long)time(nullptr); }

// The proxy, when --proxy asks for one: it holds the device on a thread of
// its own, and the daemon's session is one of its connections.
zovproxy::ProxyServer& proxyServer() {
    static zovproxy::ProxyServer server;
    return server;
}

void proxyLog(void*, const char* line) { logEvent("proxy", nullptr, "proxy: %s", line); }

bool sameSettings(const FamilySettings& a, const FamilySettings& b) {
    if (a.present != b.present || a.family != b.family || a.prefix != b.prefix || a.haveGateway != b.haveGateway ||
        a.dnsCount != b.dnsCount || a.mtu != b.mtu || memcmp(a.address, b.address, sizeof a.address) != 0)
        return false;
    if (a.haveGateway && memcmp(a.gateway, b.gateway, sizeof a.gateway) != 0) return false;
    for (int i = 0; i < a.dnsCount; ++i)
        if (memcmp(a.dns[i], b.dns[i], sizeof a.dns[i]) != 0) return false;
    return true;
}

}  // namespace

// --- the loop ------------------------------------------------------------------

int Daemon::run(const Config& cfg) {
    cfg_ = cfg;
    if (!makePipe(gStopPipe) || !makePipe(gDumpPipe)) {
        fprintf(stderr, "zovqmi-connect: pipe: %s\n", strerror(errno));
        return kExitFatal;
    }
    struct sigaction sa = {};
    sa.sa_handler = onSignal;
    sigemptyset(&sa.sa_mask);
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGUSR1, &sa, nullptr);
    signal(SIGPIPE, SIG_IGN);

    s_.setTimeout(cfg_.timeoutMs);
    s_.setWakeFd(gStopPipe[0]);
    backoff_.setMax(cfg_.maxBackoffMs);
    backoff_ = Backoff(cfg_.maxBackoffMs, uint32_t(monotonicMs()) ^ uint32_t(getpid()) << 16);
    snap_.apn = cfg_.apn;
    calls_[0].family = cfg_.family == kFamily6 ? 6 : 4;
    calls_[1].family = 6;

    if (cfg_.configure) {
        ifindex_ = int(if_nametoindex(cfg_.ifname));
        if (ifindex_ == 0) {
            fatal(kExitFatal, "no network interface %s: %s", cfg_.ifname, strerror(errno));
            return stop();
        }
        if (nl_.open() < 0) {
            fatal(kExitFatal, "%s", nl_.error());
            return stop();
        }
    }
    if (cfg_.proxy && !startProxy()) return stop();
    enter(State::Starting);
    for (;;) {
        Event ev;
        switch (state_) {
        case State::Starting: ev = start(); break;
        case State::WaitingSim: ev = sim(); break;
        case State::WaitingNetwork: ev = network(); break;
        case State::Connecting: ev = connect(); break;
        case State::Connected: ev = watch(); break;
        case State::Backoff: ev = backoff(); break;
        case State::Stopping: return stop();
        default: return stop();
        }
        handle(ev);
    }
}

void Daemon::enter(State s) {
    state_ = s;
    snap_.state = s;
    snap_.since = nowUnix();
    publish();
    if (s == State::Backoff)
        logEvent("state", stateName(s), "next attempt in %d.%03d s", backoffMs_ / 1000, backoffMs_ % 1000);
    else
        logEvent("state", stateName(s), "%s", s == State::Connected ? "online" : "entered");
}

void Daemon::handle(Event ev) {
    State to;
    if (!transition(state_, ev, &to)) {
        logError(stateName(state_), "event %s has no meaning here; ignored", eventName(ev));
        return;
    }
    State from = state_;
    bool lost = (from == State::Connecting || from == State::Connected) && to != State::Connected;
    bool deviceFault = ev == Event::Timeout || ev == Event::ModemStuck || ev == Event::DeviceLost ||
                       ev == Event::ClientsInvalid;
    if (ev == Event::Stop) {
        if (exit_ == kExitStopped) logEvent("signal", stateName(from), "stopping");
    } else if (lost && ev != Event::Fatal) {
        // Tell the modem to end the calls unless it cannot hear us.
        bool talk = s_.isOpen() && !(ev == Event::ModemStuck || ev == Event::DeviceLost || ev == Event::Timeout);
        tearDown(eventName(ev), talk);
    }
    if (from == State::Connected && connectedAtMs_ && monotonicMs() - connectedAtMs_ >= kHeldMs) backoff_.reset();
    if (deviceFault) {
        if (ev == Event::ClientsInvalid) s_.forgetClients();
        for (Call& c : calls_) c.haveClient = false, c.up = false;
        if (ev != Event::Timeout) s_.close();
    }
    if (to == State::Backoff) {
        resume_ = deviceFault || from == State::Starting || from == State::WaitingSim ? Event::RetryOpen
                                                                                      : Event::RetryCall;
        backoffMs_ = backoff_.next();
    }
    if (to == State::Connected) {
        if (everConnected_) ++snap_.reconnects;
        everConnected_ = true;
        connectedAtMs_ = monotonicMs();
    }
    enter(to);
}

Daemon::Wake Daemon::waitIdle(long long untilMs) {
    for (;;) {
        pollfd p[3] = {{gStopPipe[0], POLLIN, 0}, {gDumpPipe[0], POLLIN, 0}, {s_.fd(), POLLIN, 0}};
        nfds_t n = s_.isOpen() ? 3 : 2;
        long long left = untilMs - monotonicMs();
        if (left < 0) left = 0;
        int rc = poll(p, n, int(left));
        if (rc < 0 && errno == EINTR) continue;
        if (rc < 0) return kWakeTimer;
        if (p[0].revents) return kWakeStop;
        if (p[1].revents) {
            emptyPipe(gDumpPipe[0]);
            dump();
            continue;
        }
        if (n == 3 && p[2].revents) return kWakeDevice;
        if (rc == 0 && monotonicMs() >= untilMs) return kWakeTimer;
    }
}

bool Daemon::drainDevice(Event* ev) {
    int rc = s_.drain();
    if (rc == zovapp::kOk) return false;
    if (rc == zovapp::kInterrupted) {
        *ev = Event::Stop;
        return true;
    }
    setError("%s", s_.error());
    logError(stateName(state_), "%s", s_.error());
    *ev = Event::DeviceLost;
    return true;
}

int Daemon::request(uint8_t service, uint8_t client, const uint8_t* msg, int len) {
    int rc = s_.request(service, client, msg, len, &msg_);
    if (rc == zovapp::kOk) timeouts_ = 0;
    return rc;
}

int Daemon::request(uint8_t service, const uint8_t* msg, int len) {
    uint8_t id = 0;
    int rc = s_.client(service, &id);
    if (rc != zovapp::kOk) return rc;
    return request(service, id, msg, len);
}

Event Daemon::fault(int rc, Event otherwise) {
    switch (rc) {
    case zovapp::kInterrupted: return Event::Stop;
    case zovapp::kTimeout:
        setError("%s", s_.error());
        logError(stateName(state_), "%s", s_.error());
        return ++timeouts_ >= 2 ? Event::ModemStuck : Event::Timeout;
    case zovapp::kDeviceGone:
    case zovapp::kDeviceClosed:
        setError("%s", s_.error());
        logError(stateName(state_), "%s", s_.error());
        return Event::DeviceLost;
    default: break;
    }
    setError("%s", s_.error());
    logError(stateName(state_), "%s", s_.error());
    if (rc == zovapp::kQmiFailure && s_.qmiError() == kErrInvalidClientId) return Event::ClientsInvalid;
    return otherwise;
}

// --- starting --------------------------------------------------------------------

Event Daemon::start() {
    s_.close();
    for (Call& c : calls_) {
        uint8_t family = c.family;
        c = Call();
        c.family = family;
    }
    timeouts_ = timeouts_ >= 2 ? 0 : timeouts_;
    int rc = openSession();
    if (rc != zovapp::kOk) {
        setError("%s", s_.error());
        logError(stateName(state_), "%s", s_.error());
        return Event::DeviceLost;
    }
    // The script must not inherit the device.
    fcntl(s_.fd(), F_SETFD, FD_CLOEXEC);
    if (cfg_.sync) {
        rc = s_.sync();
        if (rc != zovapp::kOk) return fault(rc, Event::DeviceLost);
        timeouts_ = 0;
    }
    uint8_t buf[64];
    // Serving system indications for the registration.
    int n = zovQMINASIndicationRegisterReq(buf, sizeof buf);
    n = zovQMINASIndicationRegisterReqAddServingSystemEvents(buf, sizeof buf, 1);
    rc = request(ZOVQMI_SERVICE_NAS, buf, n);
    if (rc == zovapp::kOk) {
        QmiResult r = {};
        rc = s_.check("indication register", zovQMINASIndicationRegisterResp(msg_.bytes, msg_.len, &r), r);
    }
    // Without the indications, the registration is polled.
    if (rc != zovapp::kOk && !(rc == zovapp::kQmiFailure && s_.qmiError() != kErrInvalidClientId) &&
        rc != zovapp::kBadAnswer)
        return fault(rc, Event::DeviceLost);

    // The operating mode: online, or brought online.
    n = zovQMIDMSGetOperatingModeReq(buf, sizeof buf);
    rc = request(ZOVQMI_SERVICE_DMS, buf, n);
    uint8_t mode = 0;
    if (rc == zovapp::kOk) {
        QmiResult r = {};
        rc = s_.check("operating mode", zovQMIDMSGetOperatingModeResp(msg_.bytes, msg_.len, &r, &mode), r);
    }
    if (rc != zovapp::kOk) return fault(rc, Event::DeviceLost);
    if (mode != kModeOnline) {
        logEvent("modem", stateName(state_), "operating mode %u: bringing the modem online", mode);
        n = zovQMIDMSSetOperatingModeReq(buf, sizeof buf, kModeOnline);
        rc = request(ZOVQMI_SERVICE_DMS, buf, n);
        if (rc == zovapp::kOk) {
            QmiResult r = {};
            rc = s_.check("set operating mode online", zovQMIDMSSetOperatingModeResp(msg_.bytes, msg_.len, &r), r);
        }
        if (rc != zovapp::kOk) return fault(rc, Event::DeviceLost);
    }
    return Event::Ready;
}

// --- the SIM ---------------------------------------------------------------------

Event Daemon::sim() {
    uint8_t buf[64];
    for (int attempt = 0;; ++attempt) {
        int n = zovQMIDMSUIMGetStateReq(buf, sizeof buf);
        int rc = request(ZOVQMI_SERVICE_DMS, buf, n);
        uint8_t uim = 0xFF;
        if (rc == zovapp::kOk) {
            QmiResult r = {};
            rc = s_.check("UIM state", zovQMIDMSUIMGetStateResp(msg_.bytes, msg_.len, &r, &uim), r);
        }
        if (rc != zovapp::kOk && rc != zovapp::kQmiFailure && rc != zovapp::kBadAnswer) return fault(rc, Event::Fatal);
        if (rc == zovapp::kQmiFailure && s_.qmiError() == kErrInvalidClientId) return fault(rc, Event::Fatal);
        if (rc == zovapp::kOk && uim == kUimAbsent) {
            fatal(kExitSim, "SIM absent");
            return Event::Fatal;
        }

        n = zovQMIDMSUIMGetPINStatusReq(buf, sizeof buf);
        rc = request(ZOVQMI_SERVICE_DMS, buf, n);
        uint8_t status = 0, left = 0, unblockLeft = 0;
        if (rc == zovapp::kOk) {
            QmiResult r = {};
            rc = s_.check("PIN status", zovQMIDMSUIMGetPINStatusResp(msg_.bytes, msg_.len, &r), r);
            if (rc == zovapp::kOk &&
                zovQMIDMSUIMGetPINStatusRespGetPIN1Status(msg_.bytes, msg_.len, &status, &left, &unblockLeft) < 0)
                rc = s_.fail(zovapp::kBadAnswer, "PIN status: no PIN1 status in the answer");
        }
        if (rc == zovapp::kQmiFailure && s_.qmiError() == kErrInvalidClientId) return fault(rc, Event::Fatal);
        if (rc == zovapp::kOk) {
            switch (status) {
            case kPinVerified:
            case kPinDisabled:
                return Event::Ready;
            case kPinNotVerified: {
                if (!cfg_.pin) {
                    fatal(kExitSim, "the SIM asks for its PIN and no --pin was given (%u attempts left)", left);
                    return Event::Fatal;
                }
                logEvent("sim", stateName(state_), "verifying the PIN (%u attempts left)", left);
                n = zovQMIDMSUIMVerifyPINReq(buf, sizeof buf, 1, uint8_t(strlen(cfg_.pin)),
                                             reinterpret_cast<const uint8_t*>(cfg_.pin));
                rc = request(ZOVQMI_SERVICE_DMS, buf, n);
                if (rc == zovapp::kOk) {
                    QmiResult r = {};
                    rc = s_.check("verify PIN", zovQMIDMSUIMVerifyPINResp(msg_.bytes, msg_.len, &r), r);
                }
                if (rc == zovapp::kQmiFailure && s_.qmiError() == kErrInvalidClientId) return fault(rc, Event::Fatal);
                if (rc == zovapp::kQmiFailure) {
                    uint8_t vl = 0, ul = 0;
                    bool have = zovQMIDMSUIMVerifyPINRespGetRetriesLeft(msg_.bytes, msg_.len, &vl, &ul) >= 0;
                    uint16_t e = s_.qmiError();
                    if (e == kErrIncorrectPin && have)
                        fatal(kExitSim, "wrong PIN: %u attempts left (not retried)", vl);
                    else if (e == kErrIncorrectPin)
                        fatal(kExitSim, "wrong PIN (not retried)");
                    else if (e == kErrPinBlocked || e == kErrPinPermanentlyBlocked)
                        fatal(kExitSim, "PIN blocked: %u unblock attempts left", ul);
                    else
                        fatal(kExitSim, "PIN not accepted: %s", s_.error());
                    return Event::Fatal;
                }
                if (rc != zovapp::kOk) return fault(rc, Event::Fatal);
                logEvent("sim", stateName(state_), "PIN verified");
                return Event::Ready;
            }
            case kPinBlocked:
                fatal(kExitSim, "PIN blocked: %u unblock attempts left", unblockLeft);
                return Event::Fatal;
            case kPinPermanentlyBlocked:
                fatal(kExitSim, "SIM permanently blocked");
                return Event::Fatal;
            default:
                break;  // not initialised yet
            }
        } else if (rc != zovapp::kQmiFailure && rc != zovapp::kBadAnswer) {
            return fault(rc, Event::Fatal);
        }
        if (attempt + 1 >= kSimPolls) {
            fatal(kExitSim, "SIM not ready: %s", rc == zovapp::kOk ? "PIN state not initialised" : s_.error());
            return Event::Fatal;
        }
        long long until = monotonicMs() + kSimPollMs;
        for (Wake w; (w = waitIdle(until)) != kWakeTimer;) {
            if (w == kWakeStop) return Event::Stop;
            Event ev;
            if (drainDevice(&ev)) return ev;
            s_.dropIndications();
        }
    }
}

// --- the network -----------------------------------------------------------------

int Daemon::servingSystem(bool* registered) {
    uint8_t buf[32];
    int n = zovQMINASGetServingSystemReq(buf, sizeof buf);
    int rc = request(ZOVQMI_SERVICE_NAS, buf, n);
    NASServingSystem ss = {};
    if (rc == zovapp::kOk) {
        QmiResult r = {};
        rc = s_.check("serving system", zovQMINASGetServingSystemResp(msg_.bytes, msg_.len, &r, &ss), r);
    }
    *registered = rc == zovapp::kOk && ss.state[0] == kRegistered && ss.state[2] != kPsDetached;
    return rc;
}

void Daemon::updateSignal() {
    uint8_t buf[32];
    int n = zovQMINASGetSignalStrengthReq(buf, sizeof buf);
    int rc = s_.request(ZOVQMI_SERVICE_NAS, buf, n, &msg_);
    uint8_t strength = 0, radio = 0;
    bool have = false;
    if (rc == zovapp::kOk) {
        timeouts_ = 0;
        QmiResult r = {};
        have = s_.check("signal", zovQMINASGetSignalStrengthResp(msg_.bytes, msg_.len, &r, &strength, &radio), r) ==
               zovapp::kOk;
    }
    int dbm = int(int8_t(strength));
    if (have != snap_.haveSignal || (have && dbm != snap_.signalDbm)) {
        snap_.haveSignal = have;
        snap_.signalDbm = have ? dbm : 0;
        publish();
    }
}

Event Daemon::network() {
    for (;;) {
        bool registered = false;
        int rc = servingSystem(&registered);
        if (rc != zovapp::kOk && rc != zovapp::kQmiFailure && rc != zovapp::kBadAnswer)
            return fault(rc, Event::DeviceLost);
        if (rc == zovapp::kQmiFailure && s_.qmiError() == kErrInvalidClientId) return fault(rc, Event::DeviceLost);
        updateSignal();
        if (registered != snap_.registered) {
            snap_.registered = registered;
            publish();
            logEvent("network", stateName(state_), "%s", registered ? "registered" : "not registered");
        }
        if (registered) return Event::Ready;

        // Wait for a serving system indication, or look again later.
        long long until = monotonicMs() + kRegistrationPollMs;
        for (;;) {
            Wake w = waitIdle(until);
            if (w == kWakeStop) return Event::Stop;
            if (w == kWakeTimer) break;
            Event ev;
            if (drainDevice(&ev)) return ev;
            if (indications(&ev)) return ev;
            if (snap_.registered) return Event::Ready;
        }
    }
}

// --- the call --------------------------------------------------------------------

int Daemon::startCall(Call& c) {
    uint8_t buf[512];
    int rc;
    if (!c.haveClient) {
        // The first call may use the session's first WDS client id; a second
        // call needs a client of its own.
        rc = &c == &calls_[0] ? s_.client(ZOVQMI_SERVICE_WDS, &c.client) : s_.newClient(ZOVQMI_SERVICE_WDS, &c.client);
        if (rc != zovapp::kOk) return rc;
        c.haveClient = true;
        int n = zovQMIWDSSetClientIPFamilyPrefReq(buf, sizeof buf, c.family);
        rc = request(ZOVQMI_SERVICE_WDS, c.client, buf, n);
        if (rc == zovapp::kOk) {
            QmiResult r = {};
            rc = s_.check("IP family preference", zovQMIWDSSetClientIPFamilyPrefResp(msg_.bytes, msg_.len, &r), r);
        }
        // A modem that does not know the preference still takes the
        // family with the call.
        if (rc != zovapp::kOk && rc != zovapp::kQmiFailure) return rc;
    }
    int n = zovQMIWDSStartNetworkInterfaceReq(buf, sizeof buf);
    if (cfg_.apn)
        n = zovQMIWDSStartNetworkInterfaceReqAddContextAPNName(buf, sizeof buf, uint16_t(strlen(cfg_.apn)),
                                                                reinterpret_cast<const uint8_t*>(cfg_.apn));
    if (cfg_.profile) n = zovQMIWDSStartNetworkInterfaceReqAdd3GPPConfiguredProfileIdentifier(buf, sizeof buf,
                                                                                            uint8_t(cfg_.profile));
    if (cfg_.authGiven || cfg_.user) n = zovQMIWDSStartNetworkInterfaceReqAddAuthenticationPreference(buf, sizeof buf, cfg_.auth);
    if (cfg_.user)
        n = zovQMIWDSStartNetworkInterfaceReqAddUsername(buf, sizeof buf, uint16_t(strlen(cfg_.user)),
                                                         reinterpret_cast<const uint8_t*>(cfg_.user));
    if (cfg_.password)
        n = zovQMIWDSStartNetworkInterfaceReqAddPassword(buf, sizeof buf, uint16_t(strlen(cfg_.password)),
                                                         reinterpret_cast<const uint8_t*>(cfg_.password));
    n = zovQMIWDSStartNetworkInterfaceReqAddIPFamilyPreference(buf, sizeof buf, c.family);
    rc = request(ZOVQMI_SERVICE_WDS, c.client, buf, n);
    if (rc != zovapp::kOk) return rc;
    QmiResult r = {};
    uint32_t handle = 0;
    char what[32];
    snprintf(what, sizeof what, "IPv%u call", c.family);
    rc = s_.check(what, zovQMIWDSStartNetworkInterfaceResp(msg_.bytes, msg_.len, &r, &handle), r);
    if (rc == zovapp::kQmiFailure) {
        uint16_t reason = 0, vtype = 0, vreason = 0;
        char text[zovapp::kErrorText];
        snprintf(text, sizeof text, "%s", s_.error());
        if (zovQMIWDSStartNetworkInterfaceRespGetVerboseCallEndReason(msg_.bytes, msg_.len, &vtype, &vreason) >= 0)
            return s_.fail(rc, "%s, call end reason type %u reason %u", text, vtype, vreason);
        if (zovQMIWDSStartNetworkInterfaceRespGetCallEndReason(msg_.bytes, msg_.len, &reason) >= 0)
            return s_.fail(rc, "%s, call end reason %u", text, reason);
        return rc;
    }
    if (rc != zovapp::kOk) return rc;
    c.up = true;
    c.handle = handle;
    return zovapp::kOk;
}

int Daemon::readSettings(Call& c, FamilySettings* out) {
    uint8_t buf[32];
    int n = zovQMIWDSGetRuntimeSettingsReq(buf, sizeof buf);
    n = zovQMIWDSGetRuntimeSettingsReqAddRequestedSettings(buf, sizeof buf, kRequestedSettings);
    int rc = request(ZOVQMI_SERVICE_WDS, c.client, buf, n);
    if (rc != zovapp::kOk) return rc;
    QmiResult r = {};
    rc = s_.check("runtime settings", zovQMIWDSGetRuntimeSettingsResp(msg_.bytes, msg_.len, &r), r);
    if (rc != zovapp::kOk) return rc;
    const uint8_t* m = msg_.bytes;
    int len = msg_.len;
    FamilySettings f;
    f.family = c.family;
    if (c.family == 4) {
        uint32_t v = 0;
        if (zovQMIWDSProfileRespGetIPv4AddressPreference(m, len, 0x002D, &v) < 0 || v == 0)
            return s_.fail(zovapp::kBadAnswer, "runtime settings: no IPv4 address");
        auto put = [](uint8_t* to, uint32_t a) {
            to[0] = uint8_t(a >> 24), to[1] = uint8_t(a >> 16), to[2] = uint8_t(a >> 8), to[3] = uint8_t(a);
        };
        put(f.address, v);
        uint32_t mask = 0;
        f.prefix = zovQMIWDSGetRuntimeSettingsRespGetIPv4SubnetMask(m, len, &mask) >= 0 ? prefixOfMask(mask) : 32;
        if (zovQMIWDSGetRuntimeSettingsRespGetIPv4GatewayAddress(m, len, &v) >= 0 && v) {
            put(f.gateway, v);
            f.haveGateway = true;
        }
        if (zovQMIWDSProfileRespGetPrimaryDNSIPv4AddressPreference(m, len, 0x002D, &v) >= 0 && v)
            put(f.dns[f.dnsCount++], v);
        if (zovQMIWDSProfileRespGetSecondaryDNSIPv4AddressPreference(m, len, 0x002D, &v) >= 0 && v)
            put(f.dns[f.dnsCount++], v);
    } else {
        uint8_t prefix = 0, gwPrefix = 0;
        if (zovQMIWDSGetRuntimeSettingsRespGetIPv6Address(m, len, f.address, &prefix) < 0)
            return s_.fail(zovapp::kBadAnswer, "runtime settings: no IPv6 address");
        f.prefix = prefix;
        if (zovQMIWDSGetRuntimeSettingsRespGetIPv6GatewayAddress(m, len, f.gateway, &gwPrefix) >= 0)
            f.haveGateway = true;
        if (zovQMIWDSGetRuntimeSettingsRespGetPrimaryIPv6DNSAddress(m, len, f.dns[f.dnsCount]) >= 0) ++f.dnsCount;
        if (zovQMIWDSGetRuntimeSettingsRespGetSecondaryIPv6DNSAddress(m, len, f.dns[f.dnsCount]) >= 0) ++f.dnsCount;
    }
    uint32_t mtu = 0;
    if (zovQMIWDSGetRuntimeSettingsRespGetMTU(m, len, &mtu) >= 0) f.mtu = mtu;
    f.present = true;
    *out = f;
    return zovapp::kOk;
}

bool Daemon::configure() {
    uint32_t mtu = snap_.mtu;
    if (nl_.linkUp(ifindex_, mtu) < 0) {
        // An MTU the link refuses is not worth staying offline for.
        if (!mtu || nl_.linkUp(ifindex_, 0) < 0) return false;
        logError(stateName(state_), "%s; MTU left as it was", nl_.error());
    }
    for (int i = 0; i < callCount(); ++i) {
        Call& c = calls_[i];
        const FamilySettings& f = c.settings;
        if (nl_.addAddress(ifindex_, f.family, f.address, f.prefix) < 0) return false;
        c.addressSet = true;
        if (cfg_.defaultRoute) {
            int rc = nl_.addDefaultRoute(ifindex_, f.family, f.haveGateway ? f.gateway : nullptr);
            if (rc == -EEXIST) {
                logEvent("route", stateName(state_), "an IPv%u default route exists already; left alone", f.family);
            } else if (rc < 0) {
                return false;
            } else {
                c.routeSet = true;
            }
        }
    }
    if (writeResolv(cfg_.resolv, snap_.v4, snap_.v6) < 0)
        logError(stateName(state_), "cannot write %s: %s", cfg_.resolv, strerror(errno));
    return true;
}

void Daemon::unconfigure() {
    for (int i = 1; i >= 0; --i) {
        Call& c = calls_[i];
        const FamilySettings& f = c.settings;
        if (c.routeSet) nl_.delDefaultRoute(ifindex_, f.family, f.haveGateway ? f.gateway : nullptr);
        if (c.addressSet && nl_.delAddress(ifindex_, f.family, f.address, f.prefix) < 0)
            logError(stateName(state_), "%s", nl_.error());
        c.routeSet = c.addressSet = false;
    }
    if (cfg_.configure) removeResolv(cfg_.resolv);
}

Event Daemon::connect() {
    s_.dropIndications();
    for (int i = 0; i < callCount(); ++i) {
        Call& c = calls_[i];
        int rc = startCall(c);
        if (rc == zovapp::kOk) rc = readSettings(c, &c.settings);
        if (rc != zovapp::kOk) return fault(rc, Event::CallFailed);
    }
    takeSettings("up");
    if (cfg_.configure && !configure()) {
        setError("%s", nl_.error());
        logError(stateName(state_), "%s", nl_.error());
        return Event::CallFailed;
    }
    runHook("up", "");
    scriptUp_ = cfg_.script != nullptr;
    snap_.lastError[0] = 0;
    return Event::Ready;
}

void Daemon::takeSettings(const char* how) {
    snap_.v4 = FamilySettings();
    snap_.v6 = FamilySettings();
    snap_.mtu = 0;
    for (int i = 0; i < callCount(); ++i) {
        const FamilySettings& f = calls_[i].settings;
        (f.family == 4 ? snap_.v4 : snap_.v6) = f;
        if (f.mtu && (!snap_.mtu || f.mtu < snap_.mtu)) snap_.mtu = f.mtu;
        char a[kAddressText], g[kAddressText] = "-";
        addressText(f.family, f.address, a, sizeof a);
        if (f.haveGateway) addressText(f.family, f.gateway, g, sizeof g);
        logEvent("call", stateName(state_), "IPv%u call %s: %s/%d gateway %s mtu %u", f.family, how, a, f.prefix, g,
                 f.mtu);
    }
}

void Daemon::runHook(const char* action, const char* reason) {
    if (!cfg_.script) return;
    ScriptEnv env;
    scriptEnvironment(&env, cfg_.ifname, cfg_.apn, snap_.v4, snap_.v6, snap_.mtu, reason);
    long long deadline = monotonicMs() + kScriptMs;
    // At the end the script has what the teardown's time leaves it.
    if (state_ == State::Stopping) {
        // Half of what is left when the modem is still to be told, else all.
        long long now = monotonicMs(), left = stopDeadlineMs_ - now;
        deadline = now + (s_.isOpen() ? left / 2 : left);
    }
    int st = runScript(cfg_.script, action, env, deadline, state_ == State::Stopping ? -1 : gStopPipe[0],
                       cfg_.timeoutMs / 4);
    if (st != 0) logError(stateName(state_), "script %s %s: exit status %d", cfg_.script, action, st);
}

// The settings the modem reports now differ from those configured: the
// interface follows, and the script hears "update".
Event Daemon::refresh() {
    bool changed = false;
    FamilySettings now[2];
    for (int i = 0; i < callCount(); ++i) {
        int rc = readSettings(calls_[i], &now[i]);
        if (rc != zovapp::kOk) {
            // A call without settings is about to be reported down; the probe will say so.
            if (rc == zovapp::kQmiFailure || rc == zovapp::kBadAnswer) return Event::Ready;
            return fault(rc, Event::CallDropped);
        }
        if (!sameSettings(now[i], calls_[i].settings)) changed = true;
    }
    if (!changed) return Event::Ready;
    unconfigure();
    for (int i = 0; i < callCount(); ++i) calls_[i].settings = now[i];
    takeSettings("changed");
    if (cfg_.configure && !configure()) {
        setError("%s", nl_.error());
        logError(stateName(state_), "%s", nl_.error());
        return Event::CallFailed;
    }
    runHook("update", "");
    publish();
    return Event::Ready;
}

// --- connected ---------------------------------------------------------------------

int Daemon::probeCall(Call& c, uint8_t* status) {
    uint8_t buf[32];
    int n = zovQMIWDSGetPktSrvcStatusReq(buf, sizeof buf);
    int rc = request(ZOVQMI_SERVICE_WDS, c.client, buf, n);
    if (rc != zovapp::kOk) return rc;
    QmiResult r = {};
    return s_.check("packet service status", zovQMIWDSGetPktSrvcStatusResp(msg_.bytes, msg_.len, &r, status), r);
}

bool Daemon::indications(Event* ev) {
    bool lostRegistration = false, dropped = false, invalid = false;
    zovapp::Message& m = msg_;
    while (s_.nextIndication(&m)) {
        if (m.service == ZOVQMI_SERVICE_CTL && (m.id() == 0x0024 || m.id() == 0x0025)) {
            uint8_t svc = 0, cid = 0;
            int rc = m.id() == 0x0024 ? zovQMICTLRevokeClientIDIND(m.bytes, m.len, &svc, &cid)
                                      : zovQMICTLInvalidClientIDIND(m.bytes, m.len, &svc, &cid);
            if (rc >= 0 && s_.holds(svc, cid)) {
                setError("the modem %s %s client id %u", m.id() == 0x0024 ? "revoked" : "no longer knows",
                         zovapp::serviceName(svc), cid);
                invalid = true;
            }
        } else if (m.service == ZOVQMI_SERVICE_NAS && m.id() == 0x0024) {
            NASServingSystem ss = {};
            if (zovQMINASGetServingSystemIND(m.bytes, m.len, &ss) >= 0) {
                bool reg = ss.state[0] == kRegistered && ss.state[2] != kPsDetached;
                if (reg != snap_.registered) {
                    snap_.registered = reg;
                    publish();
                    logEvent("network", stateName(state_), "%s", reg ? "registered" : "registration lost");
                }
                if (!reg) lostRegistration = true;
            }
        } else if (m.service == ZOVQMI_SERVICE_WDS && m.id() == 0x0022 && state_ == State::Connected) {
            uint8_t status = 0, second = 0;
            if (zovQMIWDSPktSrvcStatusIND(m.bytes, m.len, &status, &second) < 0 || status != kCallDisconnected)
                continue;
            for (int i = 0; i < callCount(); ++i)
                if (calls_[i].haveClient && calls_[i].client == m.client) {
                    uint16_t reason = 0;
                    if (zovQMIWDSPktSrvcStatusINDGetCallEndReason(m.bytes, m.len, &reason) >= 0)
                        setError("IPv%u call ended, call end reason %u", calls_[i].family, reason);
                    else
                        setError("IPv%u call ended", calls_[i].family);
                    dropped = true;
                }
        }
    }
    if (invalid) return *ev = Event::ClientsInvalid, true;
    if (lostRegistration && state_ != State::WaitingNetwork) {
        setError("network registration lost");
        return *ev = Event::NotRegistered, true;
    }
    if (dropped) {
        // An indication may be a late one about a call ended earlier: the
        // modem's current word decides.
        for (int i = 0; i < callCount(); ++i) {
            uint8_t status = 0;
            int rc = probeCall(calls_[i], &status);
            if (rc != zovapp::kOk) return *ev = fault(rc, Event::CallDropped), true;
            if (status != kCallConnected) {
                calls_[i].up = false;
                logError(stateName(state_), "%s", snap_.lastError);
                return *ev = Event::CallDropped, true;
            }
        }
    }
    return false;
}

Event Daemon::watch() {
    long long nextProbe = monotonicMs() + cfg_.probeIntervalMs;
    for (;;) {
        Wake w = waitIdle(nextProbe);
        if (w == kWakeStop) return Event::Stop;
        Event ev;
        if (w == kWakeDevice) {
            if (drainDevice(&ev)) return ev;
            if (indications(&ev)) return ev;
            continue;
        }
        // The liveness probe: every call still up, and the signal.
        for (int i = 0; i < callCount(); ++i) {
            uint8_t status = 0;
            int rc = probeCall(calls_[i], &status);
            if (rc == zovapp::kTimeout) {
                ev = fault(rc, Event::CallDropped);
                if (ev == Event::Timeout) {
                    // One unanswered probe: ask again at once; a second makes the modem stuck.
                    logEvent("probe", stateName(state_), "no answer; probing again");
                    break;
                }
                return ev;
            }
            if (rc != zovapp::kOk) return fault(rc, Event::CallDropped);
            if (status != kCallConnected) {
                calls_[i].up = false;
                setError("IPv%u call no longer connected (status %u)", calls_[i].family, status);
                logError(stateName(state_), "%s", snap_.lastError);
                return Event::CallDropped;
            }
        }
        if (timeouts_ == 0) {
            ev = refresh();
            if (ev != Event::Ready) return ev;
            updateSignal();
            if (timeouts_ >= 2) return Event::ModemStuck;
            nextProbe = monotonicMs() + cfg_.probeIntervalMs;
        } else {
            nextProbe = monotonicMs();
        }
        if (indications(&ev)) return ev;
    }
}

// --- backoff -----------------------------------------------------------------------

Event Daemon::backoff() {
    long long until = monotonicMs() + backoffMs_;
    for (;;) {
        Wake w = waitIdle(until);
        if (w == kWakeStop) return Event::Stop;
        if (w == kWakeTimer) return resume_;
        Event ev;
        if (drainDevice(&ev)) {
            if (ev == Event::Stop) return ev;
            // The device went away meanwhile: start over from it.
            s_.close();
            resume_ = Event::RetryOpen;
            continue;
        }
        s_.dropIndications();
    }
}

// --- teardown ----------------------------------------------------------------------

void Daemon::tearDown(const char* reason, bool talk) {
    // What is local first (it cannot hang), then the modem.
    unconfigure();
    if (scriptUp_) runHook("down", reason);
    scriptUp_ = false;
    snap_.v4 = FamilySettings();
    snap_.v6 = FamilySettings();
    snap_.mtu = 0;
    for (int i = 0; i < 2; ++i) {
        Call& c = calls_[i];
        if (talk && c.up && c.haveClient) {
            uint8_t buf[32];
            int n = zovQMIWDSStopNetworkInterfaceReq(buf, sizeof buf, c.handle);
            int rc = request(ZOVQMI_SERVICE_WDS, c.client, buf, n);
            if (rc == zovapp::kTimeout || rc == zovapp::kDeviceGone || rc == zovapp::kDeviceClosed) talk = false;
        }
        c.up = false;
        c.settings = FamilySettings();
    }
    publish();
}

bool Daemon::startProxy() {
    long gid = -1;
    if (cfg_.proxyGroup) {
        char* end = nullptr;
        gid = strtol(cfg_.proxyGroup, &end, 10);
        if (*end) {
            group* g = getgrnam(cfg_.proxyGroup);
            if (!g) {
                fatal(kExitFatal, "--proxy-group: no group %s", cfg_.proxyGroup);
                return false;
            }
            gid = long(g->gr_gid);
        }
    }
    zovproxy::ProxyServer& proxy = proxyServer();
    proxy.setLog(proxyLog, nullptr);
    proxy.setDevicePath(cfg_.device);
    if (proxy.listen(cfg_.proxy, cfg_.proxyMode, gid) < 0 || proxy.start() < 0) {
        fatal(kExitFatal, "%s", proxy.error());
        return false;
    }
    snap_.device = cfg_.device;
    snap_.proxy = cfg_.proxy;
    logEvent("proxy", nullptr, "sharing %s on %s", cfg_.device, cfg_.proxy);
    return true;
}

int Daemon::openSession() {
    if (!cfg_.proxy) return s_.open(cfg_.device);
    // The proxy opens the device itself; give it a moment at start and
    // after the device came back.
    zovproxy::ProxyServer& proxy = proxyServer();
    long long until = monotonicMs() + 2 * zovproxy::kReopenMs;
    while (!proxy.deviceOpen() && monotonicMs() < until) {
        pollfd p = {gStopPipe[0], POLLIN, 0};
        if (poll(&p, 1, 50) > 0) break;
    }
    int fd = proxy.connectLocal();
    if (fd < 0) return s_.fail(zovapp::kDeviceGone, "cannot open %s: %s", cfg_.device, strerror(errno));
    s_.attach(fd, true);
    return zovapp::kOk;
}

int Daemon::stop() {
    // From here no wait outlasts the timeout, whatever the modem does (less
    // a margin for closing down and exiting).
    int margin = cfg_.timeoutMs / 10 < 250 ? cfg_.timeoutMs / 10 : 250;
    long long deadline = (gStopAtMs ? gStopAtMs : monotonicMs()) + cfg_.timeoutMs - margin;
    stopDeadlineMs_ = deadline;
    s_.setWakeFd(-1);
    s_.setDeadline(deadline);
    emptyPipe(gStopPipe[0]);
    if (state_ != State::Stopping) {
        state_ = State::Stopping;
        snap_.state = State::Stopping;
        snap_.since = nowUnix();
        publish();
    }
    tearDown("stopped", s_.isOpen());
    if (s_.isOpen()) {
        s_.releaseAll();
        s_.close();
    }
    s_.setDeadline(0);
    if (cfg_.proxy) proxyServer().stop();
    logEvent("exit", stateName(state_), "exit status %d", exit_);
    return exit_;
}

// --- reporting ---------------------------------------------------------------------

void Daemon::publish() {
    if (writeStateFile(cfg_.stateFile, snap_) < 0) {
        static bool told = false;
        if (!told) logError(stateName(state_), "cannot write %s: %s", cfg_.stateFile, strerror(errno));
        told = true;
    }
}

void Daemon::dump() {
    char v4[kAddressText] = "-", v6[kAddressText] = "-";
    if (snap_.v4.present) addressText(4, snap_.v4.address, v4, sizeof v4);
    if (snap_.v6.present) addressText(6, snap_.v6.address, v6, sizeof v6);
    char signal[16] = "-";
    if (snap_.haveSignal) snprintf(signal, sizeof signal, "%d dBm", snap_.signalDbm);
    logEvent("dump", stateName(state_),
             "dump: since %lld, apn %s, ipv4 %s, ipv6 %s, mtu %u, registered %s, signal %s, reconnects %d, "
             "client ids %d, last error: %s",
             snap_.since, cfg_.apn ? cfg_.apn : "-", v4, v6, snap_.mtu, snap_.registered ? "yes" : "no", signal,
             snap_.reconnects, s_.clientCount(), snap_.lastError[0] ? snap_.lastError : "none");
}

void Daemon::setError(const char* fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(snap_.lastError, sizeof snap_.lastError, fmt, ap);
    va_end(ap);
}

void Daemon::fatal(int status, const char* fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    vsnprintf(snap_.lastError, sizeof snap_.lastError, fmt, ap);
    va_end(ap);
    exit_ = status;
    logError(stateName(state_), "%s", snap_.lastError);
}

}  // namespace zovconnect
