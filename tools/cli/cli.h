// zovqmi-cli: the pieces shared by its argument table (main.cpp), its
// actions (actions.cpp) and its output (out.cpp).  Runs on the router:
// no exceptions, no RTTI, no heap, nothing of the C++ runtime.
#pragma once

#include <stdint.h>
#include <stdio.h>

#include "json.h"
#include "session.h"

namespace zovapp {

// Exit statuses.
enum Exit { kExitOk = 0, kExitFailed = 1, kExitUsage = 2, kExitTimeout = 3, kExitQmi = 4 };

// Output: human lines ("label: value"), or one JSON object whose members
// the actions add in turn.  An action writes only after its answers are
// decoded, so a failure leaves no half-written member behind.
class Out {
public:
    void begin(bool json, FILE* f);
    bool json() const { return json_; }
    // Closes whatever is still open and ends the JSON document.
    void finish();

    void open(const char* key);       // a JSON object member (nothing in text)
    void openArray(const char* key);  // a JSON array member (nothing in text)
    void close();

    // A value: JSON member `key`, text line "label: value" (no line when
    // label is null).
    void str(const char* key, const char* label, const char* value, int len = -1);
    void num(const char* key, const char* label, long long value);
    void flag(const char* key, const char* label, bool value);
    // A JSON value without a text line, and a text line without JSON.
    void jstr(const char* key, const char* value, int len = -1);
    void jnum(const char* key, long long value);
    void text(const char* fmt, ...) __attribute__((format(printf, 2, 3)));

private:
    bool json_ = false;
    FILE* f_ = stdout;
    Json j_{stdout};
    int depth_ = 0;
};

// Settings given by options; they apply to every action that uses them,
// wherever they stand on the command line.
struct Settings {
    const char* user = nullptr;
    const char* password = nullptr;
    int auth = -1;             // -1 not given; 0 none, 1 PAP, 2 CHAP, 3 both
    int profile = -1;          // 3GPP profile index for --wds-start-network
    int ipFamily = 0;          // 0 not given, 4 or 6
    long count = 0;            // --count: fixes to print, 0 until interrupted
    bool timeoutGiven = false; // --timeout given: it also bounds a whole fix
    const char* profileName = nullptr;
    const char* apn = nullptr;
    int pdpType = -1;          // 0 IPv4, 2 IPv6, 3 IPv4v6
};

// One action of the command line, its arguments as given and as checked.
struct Action;
struct Step {
    const Action* action;
    const char* arg[3];
    long long n[4];
};

struct Cli {
    Session s;
    Out out;
    Settings set;
    int wakeFd = -1;  // readable when SIGINT or SIGTERM arrived
};

// An action: validates its arguments before anything is opened (returns
// kExitOk or kExitUsage after usageError()), then runs on the open session
// (returns a session Status).
struct Action {
    const char* name;
    int nargs;
    const char* args;  // for --help
    const char* help;
    int (*check)(Step& st);
    int (*run)(Cli& c, Step& st);
};

// The action table, ended by an entry with a null name.
extern const Action kActions[];

// Prints "zovqmi-cli: <text> (see --help)" and returns kExitUsage.
int usageError(const char* fmt, ...) __attribute__((format(printf, 1, 2)));

// Argument parsers shared by the checks: false when `s` is not a number
// within [min, max].
bool parseNumber(const char* s, long long min, long long max, long long* out);

// The whole program (main() calls it; tests call it with their own argv).
int runCli(int argc, char** argv);

}  // namespace zovapp
