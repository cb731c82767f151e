// The advantage figures against the table itself: every bet is stood on the
// layout and each of the 36 pairs is rolled through the settling code, so the
// exact long run on fair dice is worked from what the table pays, not from
// the figures' own model of it.

#include <gtest/gtest.h>

#include <vector>

#include "engine/rules.h"
#include "engine/table_for_test.h"
#include "stats/advantage.h"

namespace {

const Currency kStake = 1200;

struct TableSetup { const char* name; int barNumber = 12; bool vigUpFront = true; bool oddPayoffs = false; };

// Payoffs away from the defaults, so that a bet read by the wrong record shows.
void OddPayoffs(Game& g) {
  for (int id = 1; id <= bet::kLastTableBet; ++id) g.Payoff.Set(id, {2 + id % 5, -1, 1 + id % 3});
  for (int row = 1; row <= 21; ++row) g.FieldPayoff.Set(row, {row % 3 - 1, -1, 1 + row % 2});
}

void Prepare(TestTable& t, const TableSetup& s, int point) {
  Game& g = t.g;
  g.BetAmount.Set(bet::kFirstChip, Currency::FromRaw(1));  // no rounding to chips
  g.BarNumber = s.barNumber;
  g.ChargeAllBuy = g.ChargeAllLay = s.vigUpFront;
  if (s.oddPayoffs) OddPayoffs(g);
  t.SetPoint(point);
}

// What one throw of (a, b) does to a unit of the bet, with `point` on before
// it: the bankroll's change over the bet plus any vig paid up front.
double NetOfThrow(const TableSetup& s, int betId, int point, int a, int b) {
  TestTable t;
  Prepare(t, s, point);
  Game& g = t.g;
  t.Stand(betId, kStake);
  RefigureVigs(g);
  Currency staked = kStake;
  if (bet::IsLay(betId) && g.ChargeAllLay) staked += g.LayVigOnBet[betId - bet::kLayBase];
  if (bet::IsBuy(betId) && g.ChargeAllBuy) staked += g.BuyVigOnBet[betId - bet::kBuyBase];
  const Currency before = g.Bankroll();
  t.Roll(a, b);
  return (g.Bankroll() - before).ToDouble() / staked.ToDouble();
}

bool IsLineBet(int id) { return id == bet::kPassLine || id == bet::kDontPass; }

// A bet settled roll by roll: the mean of the 36 throws and the share that
// decide something.
struct RollFigures { double ev = 0, decided = 0; };
RollFigures ThrowAll(const TableSetup& s, int betId, int point) {
  RollFigures f;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const double net = NetOfThrow(s, betId, point, a, b);
      f.ev += net / 36;
      if (net != 0) f.decided += 1.0 / 36;
    }
  return f;
}

// A line bet from the come-out to its end: the come-out throws, then for each
// point the throws with the point on, of which those that decide end the bet.
struct LineFigures { double ev = 0, decided = 0, rolls = 0; };
LineFigures ThrowLine(const TableSetup& s, int betId) {
  LineFigures f;
  f.rolls = 1;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const int total = a + b;
      if (bet::IsPointNumber(total)) {
        const RollFigures point = ThrowAll(s, betId, total);
        f.ev += point.ev / point.decided / 36;
        f.decided += 1.0 / 36;
        f.rolls += 1 / point.decided / 36;
        continue;
      }
      const double net = NetOfThrow(s, betId, 0, a, b);
      f.ev += net / 36;
      if (net != 0) f.decided += 1.0 / 36;
    }
  return f;
}

TEST(AdvantageAgainstTheTable, EveryBetOnFairDice) {
  const std::vector<TableSetup> setups = {
      {"default payoffs, bar 12, vig up front"},
      {"bar 2, vig on the win", 2, false},
      {"odd payoffs, bar 3 (both 2 and 12 barred)", 3, true, true},
  };
  for (const TableSetup& s : setups) {
    for (int id = 1; id <= bet::kLastTableBet; ++id) {
      if (id == bet::kCome || id == bet::kDontCome) continue;  // they are the line bets moved along
      TestTable t;
      // Line odds are figured on the point that stands.
      const int point = id == bet::kPassOdds || id == bet::kDontPassOdds ? 9 : 0;
      Prepare(t, s, point);
      const Advantage a = FigureAdvantage(t.g, id);
      if (IsLineBet(id)) {
        const LineFigures line = ThrowLine(s, id);
        EXPECT_NEAR(a.EvPerDecision, line.ev / line.decided, 1e-6) << s.name << ": " << t.g.BetName[id];
        EXPECT_NEAR(a.RollsPerDecision, line.rolls / line.decided, 1e-9) << s.name << ": " << t.g.BetName[id];
        continue;
      }
      const RollFigures roll = ThrowAll(s, id, point);
      EXPECT_NEAR(a.EvPerRoll, roll.ev, 1e-6) << s.name << ": " << t.g.BetName[id];
      EXPECT_NEAR(a.RollsPerDecision, roll.decided > 0 ? 1 / roll.decided : 0, 1e-9)
          << s.name << ": " << t.g.BetName[id];
    }
  }
}

}  // namespace
