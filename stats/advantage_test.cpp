// The advantage table against the figures of casino mathematics, worked by
// hand from the default payoffs, and the figures' behaviour on odd dice.

#include "stats/advantage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "engine/table_for_test.h"
#include "stats/roll_nets.h"

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

struct Exact {
  const char* name;
  int betId;
  double evPerDecision;
  double evPerRoll = kNone;  // unchecked when NaN
  std::function<void(Game&)> setup = nullptr;
};

void BarTwo(Game& g) { g.BarNumber = 2; }
void ZeroOutcomes(Game& g) { g.IncludeZeroOutcomes = true; }
void VigOnWinOnly(Game& g) { g.ChargeAllBuy = g.ChargeAllLay = false; }

const Exact kExact[] = {
    {"Pass Line", bet::kPassLine, -7.0 / 495, -7.0 / 1671},
    {"Come", bet::kCome, -7.0 / 495, -7.0 / 1671},
    {"Don't Pass, pushes left out", bet::kDontPass, -27.0 / 1925, -9.0 / 2228},
    {"Don't Pass, pushes counted", bet::kDontPass, -3.0 / 220, -9.0 / 2228, ZeroOutcomes},
    {"Don't Come bar 2", bet::kDontCome, -27.0 / 1925, -9.0 / 2228, BarTwo},
    {"Field, 2 and 12 pay double", bet::kField, -1.0 / 18, -1.0 / 18},
    {"Place 4", bet::Place(4), -1.0 / 15, -1.0 / 60},
    {"Place 5", bet::Place(5), -1.0 / 25, -1.0 / 90},
    {"Place 6", bet::Place(6), -1.0 / 66, -1.0 / 216},
    {"Place 8", bet::Place(8), -1.0 / 66, -1.0 / 216},
    {"Place 9", bet::Place(9), -1.0 / 25},
    {"Place 10", bet::Place(10), -1.0 / 15},
    {"Buy 4, vig up front", bet::Buy(4), -1.0 / 21},
    {"Buy 6, vig up front", bet::Buy(6), -1.0 / 21},
    {"Buy 4, vig on the win", bet::Buy(4), -1.0 / 60, -1.0 / 240, VigOnWinOnly},
    {"Buy 6, vig on the win", bet::Buy(6), -1.0 / 44, kNone, VigOnWinOnly},
    {"Lay 4, vig up front", bet::Lay(4), -1.0 / 41},
    {"Lay 6, vig up front", bet::Lay(6), -1.0 / 25},
    {"Lay 10, vig on the win", bet::Lay(10), -1.0 / 60, kNone, VigOnWinOnly},
    {"Lay 8, vig on the win", bet::Lay(8), -1.0 / 44, kNone, VigOnWinOnly},
    {"Come 4 on its number", bet::Come(4), -1.0 / 3, -1.0 / 12},
    {"Come 6 on its number", bet::Come(6), -1.0 / 11},
    {"Don't Come 4 on its number", bet::DontCome(4), 1.0 / 3, 1.0 / 12},
    {"Don't Come 8 on its number", bet::DontCome(8), 1.0 / 11},
    {"Come 5 Odds", bet::ComeOdds(5), 0, 0},
    {"Don't Come 10 Odds", bet::DontComeOdds(10), 0, 0},
    {"Pass Line Odds, no point", bet::kPassOdds, 0, 0},
    {"Don't Pass Odds, no point", bet::kDontPassOdds, 0, 0},
    {"Big 6", bet::kBig6, -1.0 / 11, -1.0 / 36},
    {"Big 8", bet::kBig8, -1.0 / 11, -1.0 / 36},
    {"Hard 4", bet::kHard4, -1.0 / 9, -1.0 / 36},
    {"Hard 6", bet::kHard6, -1.0 / 11, -1.0 / 36},
    {"Hard 8", bet::kHard8, -1.0 / 11, -1.0 / 36},
    {"Hard 10", bet::kHard10, -1.0 / 9, -1.0 / 36},
    {"Two", bet::kTwo, -5.0 / 36, -5.0 / 36},
    {"Three", bet::kThree, -1.0 / 9, -1.0 / 9},
    {"Any 7", bet::kSeven, -1.0 / 6, -1.0 / 6},
    {"Eleven", bet::kEleven, -1.0 / 9, -1.0 / 9},
    {"Twelve", bet::kTwelve, -5.0 / 36, -5.0 / 36},
    {"Any Craps", bet::kCraps, -1.0 / 9, -1.0 / 9},
    {"C and E", bet::kCandE, -1.0 / 9, -1.0 / 9},
    {"Horn", bet::kHorn, -1.0 / 8, -1.0 / 8},
    {"World, the 7 a push", bet::kWorld, -4.0 / 25, -2.0 / 15},
    {"World, pushes counted", bet::kWorld, -2.0 / 15, -2.0 / 15, ZeroOutcomes},
    {"Over 7", bet::kOver7, -1.0 / 6, -1.0 / 6},
    {"Under 7", bet::kUnder7, -1.0 / 6, -1.0 / 6},
    {"Hop 1-3", bet::HopFor(1, 3), -1.0 / 9, -1.0 / 9},
    {"Hop 3-4", bet::HopFor(3, 4), -1.0 / 9, -1.0 / 9},
    {"Hop 2-2", bet::HopFor(2, 2), -5.0 / 36, -5.0 / 36},
    {"Hop 5-5", bet::HopFor(5, 5), -5.0 / 36, -5.0 / 36},
};

TEST(Advantage, DefaultPayoffsGiveTheCasinoFigures) {
  for (const Exact& e : kExact) {
    TestTable t;
    if (e.setup) e.setup(t.g);
    const Advantage a = FigureAdvantage(t.g, e.betId);
    EXPECT_NEAR(a.EvPerDecision, e.evPerDecision, 1e-12) << e.name;
    if (!std::isnan(e.evPerRoll)) {
      EXPECT_NEAR(a.EvPerRoll, e.evPerRoll, 1e-12) << e.name;
    }
  }
}

TEST(Advantage, RollsPerDecisionAndSpread) {
  TestTable t;
  const Advantage pass = FigureAdvantage(t.g, bet::kPassLine);
  EXPECT_NEAR(pass.RollsPerDecision, 557.0 / 165, 1e-12);
  EXPECT_NEAR(pass.VarPerDecision, 1 - std::pow(7.0 / 495, 2), 1e-12);
  // Per roll: every end (net +1 or -1) about EV/Roll m, over the 557/165
  // rolls a decision takes: (1 - 2 m ev + m^2) / rolls.
  const double ev = -7.0 / 495, rolls = 557.0 / 165, m = ev / rolls;
  EXPECT_NEAR(pass.VarPerRoll, (1 - 2 * m * ev + m * m) / rolls, 1e-12);

  const Advantage field = FigureAdvantage(t.g, bet::kField);
  EXPECT_NEAR(field.RollsPerDecision, 1, 1e-12);
  EXPECT_NEAR(field.VarPerRoll, 42.0 / 36 - 1.0 / 324, 1e-12);
  EXPECT_NEAR(field.VarPerDecision, field.VarPerRoll, 1e-12);

  const Advantage place6 = FigureAdvantage(t.g, bet::Place(6));
  EXPECT_NEAR(place6.RollsPerDecision, 36.0 / 11, 1e-12);
  EXPECT_NEAR(place6.VarPerRoll, (5 * 49.0 / 36 + 6) / 36 - std::pow(1.0 / 216, 2), 1e-12);
  EXPECT_NEAR(place6.VarPerDecision, (5 * 49.0 / 36 + 6) / 11 - std::pow(1.0 / 66, 2), 1e-12);

  // The World's push on 7 counts toward its rolls but not its decisions.
  const Advantage world = FigureAdvantage(t.g, bet::kWorld);
  EXPECT_NEAR(world.RollsPerDecision, 36.0 / 30, 1e-12);

  // Counting pushes, a bet on a number decides on every roll.
  t.g.IncludeZeroOutcomes = true;
  const Advantage place6Every = FigureAdvantage(t.g, bet::Place(6));
  EXPECT_NEAR(place6Every.EvPerDecision, -1.0 / 216, 1e-12);
  EXPECT_NEAR(place6Every.RollsPerDecision, 1, 1e-12);
  EXPECT_NEAR(place6Every.VarPerDecision, place6.VarPerRoll, 1e-12);
  // Ids that name no bet give nothing.
  for (int id : {0, 84, 93, 100}) {
    EXPECT_EQ(FigureAdvantage(t.g, id).EvPerDecision, 0) << id;
    EXPECT_EQ(FigureAdvantage(t.g, id).RollsPerDecision, 0) << id;
  }
}

TEST(Advantage, APointWithAPointOnReadsItsOwnOddsRecord) {
  TestTable t;
  t.SetPoint(4);
  t.g.Payoff.Set(bet::ComeOdds(4), {3, -1, 1});  // 3 to 1 on the 4: +1/3 a decision
  t.g.Payoff.Set(bet::DontComeOdds(4), {1, -1, 4});  // 1 to 4 against it
  EXPECT_NEAR(FigureAdvantage(t.g, bet::kPassOdds).EvPerDecision, 1.0 / 3, 1e-12);
  EXPECT_NEAR(FigureAdvantage(t.g, bet::kDontPassOdds).EvPerDecision, (2 * 0.25 - 1) / 3, 1e-12);
  // With no point the odds average over the points by their chances.
  t.SetPoint(0);
  EXPECT_NEAR(FigureAdvantage(t.g, bet::kPassOdds).EvPerDecision, 3.0 / 24 * (1.0 / 3), 1e-12);
}

TEST(Advantage, PayoffsAboveTrueOddsTurnTheRowPositive) {
  TestTable t;
  t.g.Payoff.Set(bet::Place(6), {13, -1, 10});  // 13 to 10 beats 6 to 5
  EXPECT_NEAR(FigureAdvantage(t.g, bet::Place(6)).EvPerDecision, (5 * 1.3 - 6) / 11, 1e-12);
  t.g.Payoff.Set(bet::Come(5), {8, -1, 5});  // the Pass Line then pays 8 to 5 on a 5
  EXPECT_GT(FigureAdvantage(t.g, bet::kPassLine).EvPerDecision, 0);
  EXPECT_GT(FigureAdvantage(t.g, bet::kCome).EvPerRoll, 0);
  t.g.FieldPayoff.Set(5, {0, -1, 1});  // 5 (1-4) (4-1) pushes: the Field breaks even
  const Advantage field = FigureAdvantage(t.g, bet::kField);
  EXPECT_NEAR(field.EvPerRoll, 0, 1e-12);
  EXPECT_NEAR(field.RollsPerDecision, 36.0 / 34, 1e-12);
}

// Percentage dice weighted by hand: every outcome given a weight.
void SetWeights(Game& g, const std::function<int32_t(int, int)>& weight) {
  g.UseSkewedProbability = true;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const ProbPosition cell = OutcomeCell(a, b);
      g.Prob.at(cell.row, cell.column).value = weight(a, b);
    }
}

TEST(Advantage, PercentageDice) {
  // The true table sums to 100,008 but its outcomes are equal: true odds.
  TestTable t;
  t.g.UseSkewedProbability = true;
  EXPECT_NEAR(FigureAdvantage(t.g, bet::kPassLine).EvPerDecision, -7.0 / 495, 1e-15);
  EXPECT_NEAR(FigureAdvantage(t.g, bet::kDontPass).EvPerRoll, -9.0 / 2228, 1e-15);

  // No 7 and no 4: the point of 4 can never come or be decided, and is
  // skipped; every other point is made, and Place 4 never decides.
  SetWeights(t.g, [](int a, int b) { return a + b == 7 || a + b == 4 ? 0 : 1000; });
  // Of 27 outcomes: 2, 3, 12 lose (4), 11 wins (2), the points all win (21).
  const Advantage pass = FigureAdvantage(t.g, bet::kPassLine);
  EXPECT_NEAR(pass.EvPerDecision, 19.0 / 27, 1e-12);
  EXPECT_NEAR(pass.RollsPerDecision, 1 + 5, 1e-12);  // each point waits 1 / its chance
  const Advantage place4 = FigureAdvantage(t.g, bet::Place(4));
  EXPECT_EQ(place4.EvPerDecision, 0);
  EXPECT_EQ(place4.RollsPerDecision, 0);
  EXPECT_FALSE(std::isnan(place4.EvPerRoll));
  EXPECT_FALSE(std::isnan(FigureAdvantage(t.g, bet::kDontPassOdds).EvPerRoll));

  // Nothing anywhere: no figures, no fault.
  SetWeights(t.g, [](int, int) { return 0; });
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    const Advantage a = FigureAdvantage(t.g, id);
    EXPECT_EQ(a.EvPerRoll, 0) << id;
    EXPECT_EQ(a.VarPerDecision, 0) << id;
  }
}

}  // namespace
