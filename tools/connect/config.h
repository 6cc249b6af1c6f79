// zovqmi-connect's command line: what the user asked for, checked before the
// device is touched.  Strings point into argv; the paths derived from the
// interface name live in fixed buffers here.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace zovconnect {

// The longest access point name a network takes (a 3GPP APN is at most 100
// octets).
constexpr int kMaxApn = 100;
// User name and password of the call's authentication.
constexpr int kMaxCredential = 127;
// A PIN is 4 to 8 digits.
constexpr int kMinPin = 4, kMaxPin = 8;
// Paths kept in fixed buffers (the state file, the resolver file, the script).
constexpr int kMaxPath = 256;
// An interface name with its terminator (the kernel's IFNAMSIZ).
constexpr int kMaxIfname = 16;

enum Family : uint8_t { kFamily4 = 1, kFamily6 = 2, kFamilyBoth = 3 };

// Authentication preference as the modem numbers it.
enum Auth : uint8_t { kAuthNone = 0, kAuthPap = 1, kAuthChap = 2, kAuthBoth = 3 };

struct Config {
    const char* device = nullptr;
    const char* apn = nullptr;
    bool authGiven = false;
    uint8_t auth = kAuthNone;
    const char* user = nullptr;
    const char* password = nullptr;
    int profile = 0;  // 0: none given
    uint8_t family = kFamily4;
    const char* pin = nullptr;

    char ifname[kMaxIfname] = "";
    char resolv[kMaxPath] = "";
    char stateFile[kMaxPath] = "";
    const char* script = nullptr;

    int probeIntervalMs = 30000;
    int timeoutMs = 5000;
    int maxBackoffMs = 60000;

    bool defaultRoute = true;
    bool configure = true;
    bool sync = true;
    bool json = false;
    bool syslog = false;
    // The proxy that shares the device with other programs: its socket
    // (none when null), permissions and group (-1: the process's own).
    const char* proxy = nullptr;
    unsigned proxyMode = 0660;
    const char* proxyGroup = nullptr;
};

enum ParseResult { kParseOk = 0, kParseHelp = 1, kParseVersion = 3, kParseUsage = 2 };

// Parses the command line into `cfg`.  On kParseUsage `err` holds one line
// saying what is wrong.  The interface name may still be empty afterwards
// (found through sysfs later); call finishPaths() once it is known.
int parseOptions(int argc, char** argv, Config* cfg, char* err, size_t errSize);

// Fills the default state file and resolver paths from the interface name
// (/run/zovqmi/<ifname>.json and .resolv) where none were given.
void finishPaths(Config* cfg);

// The usage text.
const char* usageText();

}  // namespace zovconnect
