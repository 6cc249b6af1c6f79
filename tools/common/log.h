// One line per event, for the router tools: on standard error (with the
// program's name), to syslog, or as one JSON object per line on standard
// output ({"time":..,"event":..,"state":..,"message":..}).
#pragma once

namespace zovapp {

enum class LogTarget { Stderr, Syslog, Json };

void logInit(const char* program, LogTarget target);
// `event` names the kind of event ("state", "call", "error", ...); `state`
// is the current state's name or null; the message is printf-formatted.
void logEvent(const char* event, const char* state, const char* fmt, ...) __attribute__((format(printf, 3, 4)));
// Severity for syslog: errors are LOG_ERR, the rest LOG_INFO.
void logError(const char* state, const char* fmt, ...) __attribute__((format(printf, 2, 3)));

}  // namespace zovapp
