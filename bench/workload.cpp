// A fixed workload for instruction counting: runs every scenario N times
// (default 1000), each inside its own function scenario_<index>, so that
// callgrind's inclusive cost of that function is the cost of N operations.
// bench/callgrind_report.sh runs it and prints instructions per message.
//
// Usage: zovqmi_workload [N]        prints "index<TAB>name<TAB>bytes" lines
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "scenarios.h"

namespace {

volatile int sink;

template <size_t I>
__attribute__((noinline)) void scenario(long n) {
    int (*run)() = zb::kScenarios[I].run;
    for (long k = 0; k < n; ++k) sink = run();
}

template <size_t... I>
void runAll(long n, std::index_sequence<I...>) {
    (scenario<I>(n), ...);
}

}  // namespace

int main(int argc, char** argv) {
    long n = argc > 1 ? std::atol(argv[1]) : 1000;
    zb::setupScenarios();
    runAll(n, std::make_index_sequence<zb::kScenarioCount>{});
    for (size_t i = 0; i < zb::kScenarioCount; ++i)
        std::printf("%zu\t%s\t%d\n", i, zb::kScenarios[i].name, zb::kScenarios[i].run());
    return 0;
}
