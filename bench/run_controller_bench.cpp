// What the run controller costs: the same Hyper-Drive run, with the empty
// table and with a sample strategy, on the caller's thread and on the
// controller's worker with a screen thread waiting for its questions.

#include "test_paths.h"
#include <benchmark/benchmark.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "sim/assemble_game.h"
#include "sim/hyper_drive.h"
#include "sim/run_controller.h"
#include "script/script_file.h"
#include "testkit/task_queue.h"

namespace {

constexpr int kRollsPerRun = 100'000;

// Arg 0: the empty table; 1: the Place 6 and 8 sample.
void SetUp(Game& g, int64_t layout) {
  AssembleGame(g);
  g.ReSeedNewGames = false;
  FillDefaults(g);
  g.BankrollInitAmount = 1'000'000;
  if (layout == 1) {
    if (!LoadScriptFile(std::string(DICEMILL_SOURCE_DIR) + "/samples/place-6-8-press.txt", g.AutoBet))
      throw std::runtime_error("the Place 6 and 8 sample cannot be read");
    g.AutoBetActivated = true;
  }
  g.SeedRequest = 20261121;
  SeedRNG(g, true);
  NewGame(g, false);
}

// A strategy that stops itself, or a bankroll nearing the limit, starts a new game.
bool NeedsNewGame(const Game& g, int64_t rollsBefore) {
  return g.RollCounts[0] - rollsBefore < kRollsPerRun || g.RollCounts[0] > MaxRolls - kRollsPerRun ||
         Abs(g.Bankroll()) > Currency(BankLimit / 2);
}

template <typename RunOnce>
void Measure(benchmark::State& state, Game& g, RunOnce runOnce) {
  SetUp(g, state.range(0));
  int64_t rolls = 0;
  for (auto _ : state) {
    const int64_t before = g.RollCounts[0];
    g.RollCountStop = g.RollCountLeft = kRollsPerRun;
    runOnce();
    rolls += g.RollCounts[0] - before;
    if (NeedsNewGame(g, before)) {
      state.PauseTiming();
      NewGame(g, false);
      state.ResumeTiming();
    }
  }
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(rolls), benchmark::Counter::kIsRate);
}

void BM_HyperDriveOnCallersThread(benchmark::State& state) {
  Game g;
  Measure(state, g, [&] { StartHyperDrive(g); });
}

void BM_RunControllerHyperDrive(benchmark::State& state) {
  Game g;
  SilentFrontEnd screen;
  TaskQueue queue;
  RunController rc(g, screen, queue.Poster());
  Measure(state, g, [&] {
    rc.Start(RunKind::HyperDrive);
    queue.RunUntil([&] { return !rc.Running(); });
    rc.Wait();
  });
}

}  // namespace

// The process's CPU time: the controller's run is on another thread, and on
// a shared machine wall time measures the neighbours more than the run. The
// least of the repetitions is the steadiest figure there.
double Least(const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); }

BENCHMARK(BM_HyperDriveOnCallersThread)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()
    ->ComputeStatistics("min", Least);
BENCHMARK(BM_RunControllerHyperDrive)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()
    ->ComputeStatistics("min", Least);
