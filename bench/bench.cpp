// Google Benchmark over the scenarios of scenarios.cpp: time per operation
// and bytes per operation (bytes_per_second counts the message bytes built
// or parsed; the "bytes" counter is the message length of one operation).
#include <benchmark/benchmark.h>

#include "scenarios.h"

namespace {

void runScenario(benchmark::State& state, const zb::Scenario* s) {
    int bytes = 0;
    for (auto _ : state) {
        bytes = s->run();
        benchmark::DoNotOptimize(bytes);
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * bytes);
    state.counters["bytes"] = bytes;
}

}  // namespace

int main(int argc, char** argv) {
    // The fixtures are built here, not during static initialisation, where
    // the scenarios' own globals may not be constructed yet.
    zb::setupScenarios();
    for (size_t i = 0; i < zb::kScenarioCount; ++i)
        benchmark::RegisterBenchmark(zb::kScenarios[i].name, runScenario, &zb::kScenarios[i]);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
