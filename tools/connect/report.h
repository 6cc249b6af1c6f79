// What zovqmi-connect tells the rest of the router: the state file (one JSON
// object, replaced atomically), the resolver file, and the script hook (one
// executable, an action argument, the settings in ZOVQMI_* variables, the way
// a DHCP client calls its script).
#pragma once

#include <stdint.h>
#include <stdio.h>

#include "machine.h"

namespace zovconnect {

// An address as text: the longest IPv6 form and its terminator.
constexpr int kAddressText = 46;
// DNS servers kept per family (the modem reports a primary and a secondary).
constexpr int kMaxDns = 2;

// The settings of one family's call, as the modem gave them.
struct FamilySettings {
    bool present = false;
    uint8_t family = 4;  // 4 or 6
    uint8_t address[16] = {};
    int prefix = 0;
    bool haveGateway = false;
    uint8_t gateway[16] = {};
    int dnsCount = 0;
    uint8_t dns[kMaxDns][16] = {};
    uint32_t mtu = 0;
};

// Writes an address of `family` (4: the first four bytes) as text.
void addressText(uint8_t family, const uint8_t* address, char* out, int size);
// Prefix length of an IPv4 netmask given as a host-order value (0xFFFFFFFC: 30).
int prefixOfMask(uint32_t mask);

// Everything the state file reports.
struct Snapshot {
    State state = State::Starting;
    long long since = 0;  // Unix time the state was entered
    const char* apn = nullptr;
    FamilySettings v4, v6;
    uint32_t mtu = 0;
    bool registered = false;
    bool haveSignal = false;
    int signalDbm = 0;
    int reconnects = 0;
    char lastError[160] = "";
    // With a proxy: the device it holds and the socket other programs use.
    const char* device = nullptr;
    const char* proxy = nullptr;
};

// The state file's object on one line (without the newline).
void writeStateJson(FILE* out, const Snapshot& s);
// Writes PATH.tmp, then renames it over PATH (creating the directory of the
// default location if needed).  0 or -1 with errno.
int writeStateFile(const char* path, const Snapshot& s);

// "nameserver X" for every DNS server of both families, written atomically;
// removeResolv() deletes the file.  0 or -1 with errno.
int writeResolv(const char* path, const FamilySettings& v4, const FamilySettings& v6);
int removeResolv(const char* path);

// Creates the directories leading to `path` (mode 0755).
void makeParentDirs(const char* path);

// The environment the script receives, as NAME=value strings in `buf`
// (entries pointed to by `env`, null-terminated).  Returns the entry count.
constexpr int kScriptVars = 16;
constexpr int kScriptEnvBytes = 2048;
struct ScriptEnv {
    char buf[kScriptEnvBytes];
    char* env[kScriptVars + 1];
    int count = 0;
};
void scriptEnvironment(ScriptEnv* e, const char* ifname, const char* apn, const FamilySettings& v4,
                       const FamilySettings& v6, uint32_t mtu, const char* reason);

// Runs `script action` with the ZOVQMI_* variables added to the environment
// and waits for it until `deadlineMs` (monotonic); a script still running then
// is killed.  When `stopFd` becomes readable meanwhile (a stop was asked
// for), the script has `graceMs` more at most.  Returns its exit status, or
// -1 when it could not run or was killed.
int runScript(const char* script, const char* action, const ScriptEnv& e, long long deadlineMs, int stopFd = -1,
              int graceMs = 0);

}  // namespace zovconnect
