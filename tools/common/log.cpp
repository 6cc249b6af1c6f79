#include "log.h"

#include <stdarg.h>
#include <stdio.h>
#include <syslog.h>
#include <time.h>

#include "json.h"

namespace zovapp {

namespace {

const char* gProgram = "zovapp";
LogTarget gTarget = LogTarget::Stderr;

void emit(bool error, const char* event, const char* state, const char* fmt, va_list ap) {
    char text[512];
    vsnprintf(text, sizeof text, fmt, ap);
    switch (gTarget) {
    case LogTarget::Syslog:
        syslog(error ? LOG_ERR : LOG_INFO, "%s%s%s", state ? state : "", state ? ": " : "", text);
        break;
    case LogTarget::Json: {
        // One line at a time, also when a second thread (the proxy) logs.
        flockfile(stdout);
        Json j(stdout);
        j.object().num("time", (long long)time(nullptr)).str("event", event).str("state", state).str("message", text);
        j.end().line();
        funlockfile(stdout);
        break;
    }
    case LogTarget::Stderr:
        fprintf(stderr, "%s: %s%s%s\n", gProgram, state ? state : "", state ? ": " : "", text);
        break;
    }
}

}  // namespace

void logInit(const char* program, LogTarget target) {
    gProgram = program;
    gTarget = target;
    if (target == LogTarget::Syslog) openlog(program, LOG_PID, LOG_DAEMON);
}

void logEvent(const char* event, const char* state, const char* fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    emit(false, event, state, fmt, ap);
    va_end(ap);
}

void logError(const char* state, const char* fmt, ...) {
    va_list ap;
    va_start(ap, fmt);
    emit(true, "error", state, fmt, ap);
    va_end(ap);
}

}  // namespace zovapp
