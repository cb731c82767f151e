// Comp values worked by hand from the default payoffs: rate x the amount
// decided x the house edge of each earning bet.

#include "stats/comps.h"

#include <gtest/gtest.h>

#include <functional>

#include "dice/prob_table.h"
#include "engine/table_for_test.h"
#include "stats/bet_results.h"

namespace {

using results::kActual;

// $110 decided on the line (a Come bet decided on the 4 counts as a Come
// bet), $50 of free odds, $20 on the Field, $30 on Place 6, $5 on Hard 8.
void PlaySession(Game& g) {
  BookBetResult(g, kActual, bet::kPassLine, 100, 100);
  BookBetResult(g, kActual, bet::Come(4), 10, -10);
  BookBetResult(g, kActual, bet::kPassOdds, 50, 100);
  BookBetResult(g, kActual, bet::kField, 20, 20);
  BookBetResult(g, kActual, bet::Place(6), 30, 35);
  BookBetResult(g, kActual, bet::kHard8, 5, -5);
}

// No 7 can roll: every line bet is made, in the player's favour.
void NoSevens(Game& g) {
  g.UseSkewedProbability = true;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const ProbPosition cell = OutcomeCell(a, b);
      g.Prob.at(cell.row, cell.column).value = a + b == 7 ? 0 : 1000;
    }
}

TEST(Comps, ValueIsRateTimesTheoreticalLossOfTheEarningFamilies) {
  struct Case {
    const char* name;
    std::function<void(Game&)> setup;
    Currency expected;
  } cases[] = {
      // Per decision: line 110 x 7/495 = 1.5556, Field 20 x 1/18 = 1.1111,
      // Place 6 30 x 1/66 = .4545, odds 0; 3.1212 x 40% = 1.2485.
      {"defaults", [](Game&) {}, Currency::FromRaw(12500)},
      // Per roll: 110 x 7/1671 = .4608, 20 x 1/18 = 1.1111, 30 x 1/216 = .1389;
      // 1.7108 x 40% = .6843.
      {"per roll", [](Game& g) { g.CompBase = 1; }, Currency::FromRaw(6800)},
      // Hard 8 joins: 5 x 1/11 = .4545; 3.5758 x 40% = 1.4303.
      {"props earn", [](Game& g) { g.CompBetsMask[3] = 1; }, Currency::FromRaw(14300)},
      // Field and Place 6 only: 1.5657 x 40% = .6263.
      {"line off", [](Game& g) { g.CompBetsMask[1] = 0; }, Currency::FromRaw(6300)},
      {"rate 100%", [](Game& g) { g.CompRate = 1; }, Currency::FromRaw(31200)},
      {"rate 0", [](Game& g) { g.CompRate = 0; }, Currency{}},
      // Without 7s every one of these bets favours the player: no loss, no comp.
      {"current dice", [](Game& g) { NoSevens(g); g.CompsUseTrueProbs = false; }, Currency{}},
      // True dice set the skew aside: the same as the defaults.
      {"true dice", NoSevens, Currency::FromRaw(12500)},
  };
  for (const Case& c : cases) {
    TestTable t;
    PlaySession(t.g);
    c.setup(t.g);
    const bool skewed = t.g.UseSkewedProbability;
    EXPECT_EQ(comps::CompValue(t.g), c.expected) << c.name;
    EXPECT_EQ(t.g.UseSkewedProbability, skewed) << c.name << ": the player's dice are put back";
  }
}

// Every table bet earns in some family; the boundaries of the groups fall right.
TEST(Comps, FamiliesCoverEveryTableBet) {
  using comps::Family;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) EXPECT_NE(comps::FamilyOf(id), Family::None) << id;
  EXPECT_EQ(comps::FamilyOf(bet::DontComeOdds(10)), Family::LineAndCome);
  EXPECT_EQ(comps::FamilyOf(bet::Lay(4)), Family::PlaceBuyLayField);
  EXPECT_EQ(comps::FamilyOf(bet::kBig8), Family::PlaceBuyLayField);
  EXPECT_EQ(comps::FamilyOf(bet::kHard4), Family::Proposition);
  EXPECT_EQ(comps::FamilyOf(bet::kRail), Family::None);
}

}  // namespace
