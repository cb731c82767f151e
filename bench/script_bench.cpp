// Hyper-Drive rolls per second with nothing on the table and with each
// sample strategy making its pass after every roll, and a batch of games on
// one thread against two.

#include "test_paths.h"
#include <benchmark/benchmark.h>

#include <string>

#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "script/interpreter.h"
#include "sim/batch.h"
#include "script/script_file.h"
#include "sim/assemble_game.h"

namespace {

constexpr int kRollsPerRun = 100'000;

const char* const kSamples[] = {"pass-line-full-odds", "three-point-molly", "iron-cross",
                                "place-6-8-press",     "dont-pass-stop-loss", "field-martingale"};

Script LoadSample(int index) {
  Script s;
  std::string error;
  (void)LoadScriptFile(std::string(DICEMILL_SOURCE_DIR) + "/samples/" + kSamples[index] + ".txt", s);
  return s;
}

void StartGame(Game& g) {
  NewGame(g, false);
  if (g.AutoBet.NumLines() == 0) return;
  g.InitPending = true;  // the first cycle, as the table's offer runs it on Yes
  RunAutoBet(g);
  TakeScriptSnapshots(g);
  g.InitPending = false;
}

// index -1: an empty table.
void RunHyperDrive(benchmark::State& state, int index) {
  Game g;
  AssembleGame(g);
  g.ReSeedNewGames = false;
  FillDefaults(g);
  g.BankrollInitAmount = 1'000'000;
  if (index >= 0) {
    g.AutoBet = LoadSample(index);
    g.AutoBetActivated = true;
    state.SetLabel(std::string(kSamples[index]) + ", " + std::to_string(g.AutoBet.NumLines()) + " lines");
  }
  g.SeedRequest = 20261121;
  SeedRNG(g, true);
  g.HyperDriveOn = true;
  StartGame(g);
  int64_t rolls = 0;
  bool stoppedEarly = false;  // a strategy that stops itself starts a new game
  for (auto _ : state) {
    if (stoppedEarly || g.RollCounts[0] > MaxRolls - kRollsPerRun || Abs(g.Bankroll()) > Currency(BankLimit / 2)) {
      state.PauseTiming();
      StartGame(g);
      state.ResumeTiming();
    }
    const int64_t before = g.RollCounts[0];
    g.RollCountStop = g.RollCountLeft = kRollsPerRun;
    g.HyperDriveOn = g.KeepRolling = true;
    RollDice(g);
    rolls += g.RollCounts[0] - before;
    stoppedEarly = g.RollCounts[0] - before < kRollsPerRun;
  }
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(rolls), benchmark::Counter::kIsRate);
}

void BM_HyperDriveEmptyTable(benchmark::State& state) { RunHyperDrive(state, -1); }
void BM_HyperDriveSample(benchmark::State& state) { RunHyperDrive(state, static_cast<int>(state.range(0))); }

// Four games of a sample, as `dicemill-cli run --games 4 --threads T` plays them.
void BM_BatchThreads(benchmark::State& state) {
  RunOptions options;
  options.Rolls = kRollsPerRun;
  options.Games = 4;
  options.Threads = static_cast<int>(state.range(0));
  options.Bankroll = 1'000'000;
  const Script script = LoadSample(3);
  for (auto _ : state) {
    RunControl control;
    benchmark::DoNotOptimize(RunBatch(options, script, control));
  }
  state.counters["rolls/s"] = benchmark::Counter(
      static_cast<double>(state.iterations() * options.Games * kRollsPerRun), benchmark::Counter::kIsRate);
}

}  // namespace

BENCHMARK(BM_HyperDriveEmptyTable)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_HyperDriveSample)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_BatchThreads)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();
