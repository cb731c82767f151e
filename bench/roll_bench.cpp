// Rolls per second of RollDice in Hyper-Drive with a busy table: line bets
// with odds, Come bets, Place 6 and 8, the Field and the hard ways.

#include <benchmark/benchmark.h>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "dice/rng.h"
#include "engine/seed.h"
#include "sim/assemble_game.h"
#include "testkit/busy_table.h"
#include "testkit/heap_count.h"

namespace {

// Between rolls of a run the table lets queued input run; here that input is
// a player who keeps the layout full, as a betting script would.
class BusyPlayer : public SilentFrontEnd {
 public:
  explicit BusyPlayer(Game& g) : g_(g) {}
  bool LetInputRun() override {
    KeepBusyTable(g_);
    return true;
  }

 private:
  Game& g_;
};

void BM_RollDiceHyperDriveBusyTable(benchmark::State& state) {
  Game g;
  AssembleGame(g);
  BusyPlayer player(g);
  g.Ui = &player;
  g.ReSeedNewGames = false;
  FillDefaults(g);
  g.BankrollInitAmount = 1'000'000;
  NewGame(g, false);
  g.SeedRequest = 20261121;
  SeedRNG(g, true);
  const int rollsPerRun = static_cast<int>(state.range(0));
  int64_t allocations = 0;
  for (auto _ : state) {
    if (g.RollCounts[0] > MaxRolls - rollsPerRun || Abs(g.Bankroll()) > Currency(BankLimit / 2)) {
      state.PauseTiming();
      NewGame(g, false);
      state.ResumeTiming();
    }
    g.RollCountStop = g.RollCountLeft = rollsPerRun;
    g.HyperDriveOn = g.KeepRolling = true;
    const int64_t before = HeapAllocations();
    RollDice(g);
    allocations += HeapAllocations() - before;
  }
  state.SetItemsProcessed(state.iterations() * rollsPerRun);
  state.counters["allocs/roll"] = static_cast<double>(allocations) / static_cast<double>(state.iterations() * rollsPerRun);
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(state.iterations() * rollsPerRun),
                                                 benchmark::Counter::kIsRate);
}
BENCHMARK(BM_RollDiceHyperDriveBusyTable)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace
