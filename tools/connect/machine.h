// The connection manager's state machine: its states are exactly the ones the
// state file reports, and every event (a step done, a response, an
// indication, a timeout, a lost device, a signal) maps to one transition of
// the table in machine.cpp.  The daemon (daemon.cpp) does the work of each
// state and reports what happened as an Event.
#pragma once

#include <stdint.h>

namespace zovconnect {

enum class State : uint8_t {
    Starting,        // opening the device, synchronising, client ids, operating mode
    WaitingSim,      // reading the PIN state, verifying the PIN once
    WaitingNetwork,  // waiting for network registration
    Connecting,      // starting the call(s), configuring the interface
    Connected,       // watching: indications, liveness probe
    Backoff,         // waiting before the next attempt
    Stopping,        // tearing down after a signal or a fatal error
};
constexpr int kStateCount = 7;

enum class Event : uint8_t {
    Ready,           // the state's work is done
    NotRegistered,   // the network registration is lost (or not there yet)
    CallFailed,      // a call could not be started or configured
    CallDropped,     // an established call ended
    Timeout,         // one request went unanswered
    ModemStuck,      // two requests in a row went unanswered
    DeviceLost,      // the device failed a read or write, or is absent
    ClientsInvalid,  // the modem revoked or no longer knows the client ids
    RetryOpen,       // the backoff is over; start again from the device
    RetryCall,       // the backoff is over; start again from the registration
    Stop,            // SIGTERM or SIGINT
    Fatal,           // nothing more can be done (SIM, configuration)
};
constexpr int kEventCount = 12;

// Names as the state file spells them ("waiting-network").
const char* stateName(State s);
const char* eventName(Event e);

// The state that `event` leads to from `from`; false when the event has no
// meaning there (the daemon then stays where it is).
bool transition(State from, Event event, State* to);

// Waits between attempts: from 1 s, doubling to the maximum, each wait
// spread by up to a fifth either way so that many routers that lost the
// same cell do not come back in step.
class Backoff {
public:
    explicit Backoff(int maxMs = 60000, uint32_t seed = 1) : maxMs_(maxMs), rand_(seed ? seed : 1) {}
    void setMax(int maxMs) { maxMs_ = maxMs; }
    // The next wait in milliseconds (and the base doubles for the one after).
    int next();
    // Back to the first wait (after a connection that held).
    void reset() { baseMs_ = kFirstMs; }
    int base() const { return baseMs_; }

    static constexpr int kFirstMs = 1000;

private:
    uint32_t random();
    int maxMs_;
    int baseMs_ = kFirstMs;
    uint32_t rand_;
};

// A connection that held this long resets the backoff.
constexpr int kHeldMs = 60000;

}  // namespace zovconnect
