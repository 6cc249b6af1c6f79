#include "machine.h"

namespace zovconnect {

const char* stateName(State s) {
    switch (s) {
    case State::Starting: return "starting";
    case State::WaitingSim: return "waiting-sim";
    case State::WaitingNetwork: return "waiting-network";
    case State::Connecting: return "connecting";
    case State::Connected: return "connected";
    case State::Backoff: return "backoff";
    case State::Stopping: return "stopping";
    }
    return "unknown";
}

const char* eventName(Event e) {
    switch (e) {
    case Event::Ready: return "ready";
    case Event::NotRegistered: return "not-registered";
    case Event::CallFailed: return "call-failed";
    case Event::CallDropped: return "call-dropped";
    case Event::Timeout: return "timeout";
    case Event::ModemStuck: return "modem-stuck";
    case Event::DeviceLost: return "device-lost";
    case Event::ClientsInvalid: return "clients-invalid";
    case Event::RetryOpen: return "retry-open";
    case Event::RetryCall: return "retry-call";
    case Event::Stop: return "stop";
    case Event::Fatal: return "fatal";
    }
    return "unknown";
}

bool transition(State from, Event event, State* to) {
    using S = State;
    using E = Event;
    // Everywhere: a signal or a fatal error ends the run.
    if (from == S::Stopping) return false;
    if (event == E::Stop || event == E::Fatal) return *to = S::Stopping, true;
    // A fault of the device or the modem: wait, then start over from the
    // device (the next start resynchronises and obtains new client ids).
    if (event == E::Timeout || event == E::ModemStuck || event == E::DeviceLost || event == E::ClientsInvalid)
        return from == S::Backoff ? false : (*to = S::Backoff, true);

    switch (from) {
    case S::Starting:
        if (event == E::Ready) return *to = S::WaitingSim, true;
        return false;
    case S::WaitingSim:
        if (event == E::Ready) return *to = S::WaitingNetwork, true;
        return false;
    case S::WaitingNetwork:
        if (event == E::Ready) return *to = S::Connecting, true;
        return false;
    case S::Connecting:
        if (event == E::Ready) return *to = S::Connected, true;
        if (event == E::NotRegistered) return *to = S::WaitingNetwork, true;
        if (event == E::CallFailed) return *to = S::Backoff, true;
        return false;
    case S::Connected:
        if (event == E::NotRegistered) return *to = S::WaitingNetwork, true;
        if (event == E::CallDropped) return *to = S::Backoff, true;
        return false;
    case S::Backoff:
        if (event == E::RetryOpen) return *to = S::Starting, true;
        if (event == E::RetryCall) return *to = S::WaitingNetwork, true;
        return false;
    case S::Stopping:
        return false;
    }
    return false;
}

uint32_t Backoff::random() {
    // xorshift32: enough to spread retries.
    rand_ ^= rand_ << 13;
    rand_ ^= rand_ >> 17;
    rand_ ^= rand_ << 5;
    return rand_;
}

int Backoff::next() {
    int base = baseMs_ < maxMs_ ? baseMs_ : maxMs_;
    int spread = base / 5;
    int wait = base - spread + (spread > 0 ? int(random() % uint32_t(2 * spread + 1)) : 0);
    if (wait > maxMs_) wait = maxMs_;
    if (baseMs_ < maxMs_) baseMs_ = baseMs_ > maxMs_ / 2 ? maxMs_ : baseMs_ * 2;
    return wait;
}

}  // namespace zovconnect
