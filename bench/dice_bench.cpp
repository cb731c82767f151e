// Dice draws as Hyper-Drive makes them: millions in a row, nothing else.

#include <benchmark/benchmark.h>

#include "dice/prob_table.h"
#include "dice/rng.h"
#include "engine/game.h"
#include "engine/seed.h"

namespace {

void DrawWith(benchmark::State& state, int rngChoice, bool skewed = false) {
  Game g;
  ResetToTrue(g.Prob);
  g.UseSkewedProbability = skewed;
  g.RngChoice = rngChoice;
  g.SeedRequest = 12345;
  SeedRNG(g, true);
  for (auto _ : state) {
    DrawDice(g);
    ++g.RollCounts[0];
    benchmark::DoNotOptimize(g.Die1);
    benchmark::DoNotOptimize(g.Die2);
  }
  state.SetItemsProcessed(state.iterations());
}

void BM_DrawDiceRng1(benchmark::State& state) { DrawWith(state, 0); }
void BM_DrawDiceRng5(benchmark::State& state) { DrawWith(state, 4); }
// Percentage dice: one draw walked through the 36 cells of the table.
void BM_DrawDiceRng1Percentage(benchmark::State& state) { DrawWith(state, 0, true); }

}  // namespace

BENCHMARK(BM_DrawDiceRng1);
BENCHMARK(BM_DrawDiceRng5);
BENCHMARK(BM_DrawDiceRng1Percentage);
