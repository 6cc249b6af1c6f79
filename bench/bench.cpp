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

int registerAll() {
    zb::setupScenarios();
    for (size_t i = 0; i < zb::kScenarioCount; ++i)
        benchmark::RegisterBenchmark(zb::kScenarios[i].name, runScenario, &zb::kScenarios[i]);
    return 0;
}
const int registered = registerAll();

}  // namespace

BENCHMARK_MAIN();
