// The measured operations: each builds or parses one representative message
// of a service with the library's exports and returns the message's length
// in bytes (negative when the library refused it, which would be a bug in
// the fixtures).  Shared by the Google Benchmark program and the fixed
// workload the instruction counts are taken from.
#pragma once

#include <cstddef>

namespace zb {

struct Scenario {
    const char* name;   // benchmark name, also the workload's label
    int (*run)();       // one operation; returns the bytes processed
};

// Builds the received messages once (call before the first run).
void setupScenarios();

// The number of scenarios (the workload instantiates one function per scenario).
constexpr size_t kScenarioCount = 19;
extern const Scenario kScenarios[kScenarioCount];

}  // namespace zb
