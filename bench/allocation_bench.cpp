// Heap allocations per roll of Hyper-Drive on the empty table, with each
// sample strategy and on the busy table, counted by the replaced global
// operator new (testkit/counting_new.cpp) between a run's first roll and
// its last.

#include <benchmark/benchmark.h>

#include "testkit/long_runs.h"
#include "testkit/roll_allocations.h"

namespace {

constexpr int64_t kRolls = 100'000;

void BM_AllocationsPerRoll(benchmark::State& state) {
  const LongRun& run = kLongRuns[static_cast<size_t>(state.range(0))];
  state.SetLabel(run.Name);
  int64_t rolls = 0, allocations = 0;
  for (auto _ : state) {
    RollAllocations counted;
    PlayLongRun(run, kRolls, &counted);
    rolls += counted.Rolls();
    allocations += counted.Allocations();
  }
  state.counters["allocs/roll"] = rolls > 0 ? static_cast<double>(allocations) / static_cast<double>(rolls) : 0;
  state.counters["allocs"] = static_cast<double>(allocations);
}
BENCHMARK(BM_AllocationsPerRoll)->DenseRange(0, static_cast<int>(kLongRuns.size()) - 1)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
