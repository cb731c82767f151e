// Hyper-Drive with a Dice Roll File: playback takes one getc per roll from the
// open stream, recording one putc, against the generator's own draw. The three
// should cost nearly the same per roll; a per-roll open, seek or allocation
// would show at once as a gap of microseconds.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "engine/dice_roll_files.h"
#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "sim/assemble_game.h"

namespace {

constexpr int kRolls = 200'000;

std::string BenchFile(const char* name) { return (std::filesystem::temp_directory_path() / name).string(); }

void StartGame(Game& g) {
  g.ReSeedNewGames = false;
  FillDefaults(g);
  NewGame(g, false);
  g.SeedRequest = 20261121;
  SeedRNG(g, true);
}

void Run(Game& g) {
  g.RollCountStop = g.RollCountLeft = kRolls;
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
}

// mode: 0 generator only, 1 recording, 2 playback.
void BM_HyperDriveDiceSource(benchmark::State& state) {
  const int mode = static_cast<int>(state.range(0));
  const std::string path = BenchFile("dicemill_bench.rol");
  std::filesystem::remove(path);
  Game g;
  AssembleGame(g);
  StartGame(g);
  if (mode != 0) {
    // A file long enough for every timed run of playback.
    (void)OpenRollFile(g, path);
    SetRecorderStatus(g, kRecorderRecord);
    Run(g);
    SetRecorderStatus(g, mode);
  }
  for (auto _ : state) {
    state.PauseTiming();
    if (g.RollCounts[0] > MaxRolls - kRolls) NewGame(g, false);
    if (mode != 0) SetPosition(g, 1);
    if (mode == kRecorderPlayback) g.DiceFileMode = kRecorderPlayback;
    state.ResumeTiming();
    Run(g);
  }
  state.counters["rolls/s"] =
      benchmark::Counter(static_cast<double>(state.iterations() * kRolls), benchmark::Counter::kIsRate);
  CloseRollFile(g);
  std::filesystem::remove(path);
}
BENCHMARK(BM_HyperDriveDiceSource)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
