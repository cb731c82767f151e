// A long run of phantom wagers set beside the advantage table: each bet's
// result per unit wagered must land within a few standard errors of its
// expected value. The seed is fixed, so the run is the same every time.

#include <gtest/gtest.h>

#include <cmath>

#include "dice/rng.h"
#include "engine/table_for_test.h"
#include "stats/advantage.h"
#include "stats/bet_results.h"

TEST(PhantomRun, EveryBetAgreesWithItsExpectedValue) {
  TestTable t;
  SeedSilently(t.g, 0, 20261121);
  constexpr int kRolls = 400'000;
  t.g.RollCountStop = t.g.RollCountLeft = kRolls;
  t.g.HyperDriveOn = t.g.KeepRolling = true;
  RollDice(t.g);
  ASSERT_EQ(t.g.RollCounts[0], kRolls);
  t.g.Point = 0;  // the line odds are figured over all the points

  using namespace results;
  int checked = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    // The box of a Come or Don't Come unit is decided on its first roll
    // only; the rest of its life is booked on the numbers it travels to.
    if (id == bet::kCome || id == bet::kDontCome) continue;
    const double decisions = static_cast<double>(t.g.BetWagers[kPhantom][id][kCount].raw) / Currency::kScale;
    if (decisions < 1000) continue;
    const double staked = t.g.BetWagers[kPhantom][id][kTotal].ToDouble();
    const double net = t.g.BetWins[kPhantom][id][kTotal].ToDouble() - t.g.BetLosses[kPhantom][id][kTotal].ToDouble();
    const Advantage a = FigureAdvantage(t.g, id);
    const double standardError = std::sqrt(a.VarPerDecision / decisions);
    EXPECT_NEAR(net / staked, a.EvPerDecision, 5 * standardError + 1e-9)
        << t.g.BetName[id] << " (" << id << "), " << decisions << " decisions";
    ++checked;
  }
  EXPECT_GE(checked, 75);
}
