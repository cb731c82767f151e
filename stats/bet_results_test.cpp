// Booking of bet results: phantom units on spots never bet, the travelling
// Come and Don't Come units, pushes, the vig in the stake, the measures and
// the per-roll columns.

#include "stats/bet_results.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine/table_for_test.h"

using namespace results;

namespace {

const std::array<Currency, kMeasures>& Wagers(const Game& g, int kind, int id) { return g.BetWagers[kind][id]; }
Currency Entries(const Game& g, int kind, int id) { return g.BetWagers[kind][id][kCount]; }

// Rolls each total as a non-double pair.
void RollTotals(TestTable& t, const std::vector<int>& totals) {
  for (int total : totals) t.Roll(total <= 7 ? 1 : total - 6, total <= 7 ? total - 1 : 6);
}

}  // namespace

TEST(BetResults, PhantomUnitOnASpotNeverBet) {
  TestTable t;
  RollTotals(t, {5, 6, 6, 7});  // point 5, two sixes, seven-out
  const int place6 = bet::Place(6);
  EXPECT_EQ(t.g.BetAmount[place6], 0);
  EXPECT_EQ(Entries(t.g, kPhantom, place6), 3);
  EXPECT_EQ(t.g.BetWins[kPhantom][place6][kCount], 2);
  EXPECT_EQ(t.g.BetWins[kPhantom][place6][kTotal], Currency::FromDouble(2.3334));  // 7/6 twice, unrounded
  EXPECT_EQ(t.g.BetLosses[kPhantom][place6][kTotal], 1);
  EXPECT_EQ(Entries(t.g, kActual, place6), 0);
  // Place bets are off on the come-out: the first 5 won no phantom; the
  // seven-out took one.
  EXPECT_EQ(Entries(t.g, kPhantom, bet::Place(5)), 1);
  EXPECT_EQ(t.g.BetLosses[kPhantom][bet::Place(5)][kCount], 1);
  // A one-roll bet has a phantom entry every roll.
  EXPECT_EQ(Entries(t.g, kPhantom, bet::kField), 4);
}

TEST(BetResults, PhantomComeUnitsTravel) {
  const int come5 = bet::Come(5), dontCome5 = bet::DontCome(5), comeOdds5 = bet::ComeOdds(5);
  const struct { std::vector<int> totals; int comeWins, comeLosses, dontComeWins, comeOddsLosses; } cases[] = {
      {{6, 7}, 0, 0, 0, 0},        // nothing travelled to the 5
      {{5, 7}, 0, 0, 0, 0},        // a come-out 5 carries no Come unit
      {{6, 5, 7}, 0, 1, 1, 1},     // the 5 with a point up moved the units there
      {{6, 5, 5}, 1, 0, 0, 0},     // and the next 5 decides them
      {{6, 5, 5, 7}, 1, 1, 1, 1},  // a fresh unit travelled again
      {{6, 5, 7, 7}, 0, 1, 1, 1},  // the seven took every mark down
  };
  for (const auto& c : cases) {
    TestTable t;
    RollTotals(t, c.totals);
    SCOPED_TRACE(::testing::PrintToString(c.totals));
    EXPECT_EQ(t.g.BetWins[kPhantom][come5][kCount], c.comeWins);
    EXPECT_EQ(t.g.BetLosses[kPhantom][come5][kCount], c.comeLosses);
    EXPECT_EQ(t.g.BetWins[kPhantom][dontCome5][kCount], c.dontComeWins);
    EXPECT_EQ(t.g.BetLosses[kPhantom][comeOdds5][kCount], c.comeOddsLosses);
  }
  // With Put bets a unit may stand on a Come number whenever it works.
  TestTable t;
  t.g.AllowPutBets = true;
  RollTotals(t, {6, 5});
  EXPECT_EQ(t.g.BetWins[kPhantom][come5][kCount], 1);
  EXPECT_EQ(t.g.BetLosses[kPhantom][dontCome5][kCount], 0);  // Don't Come still needs its mark
}

TEST(BetResults, MarksMoveAtTheTopOfEachRoll) {
  const struct {
    int lastTotal, pointBefore;
    Currency mark;  // of the four bets of the number 8
  } cases[] = {{8, 5, 1}, {8, 0, 0}, {7, 5, 0}, {7, 0, 0}, {11, 5, 1}, {2, 0, 1}, {6, 5, 1}};
  for (const auto& c : cases) {
    TestTable t;
    for (int n : {6, 8}) {
      for (int id : {bet::DontCome(n), bet::DontComeOdds(n), bet::Come(n), bet::ComeOdds(n)})
        t.g.BetWagers[kPhantom][id][kMark] = 1;
    }
    t.g.DiceTotal = c.lastTotal;
    t.g.PointBeforeRoll = c.pointBefore;
    MoveResultMarks(t.g);
    SCOPED_TRACE(c.lastTotal * 100 + c.pointBefore);
    for (int id : {bet::DontCome(8), bet::DontComeOdds(8), bet::Come(8), bet::ComeOdds(8)})
      EXPECT_EQ(t.g.BetWagers[kPhantom][id][kMark], c.lastTotal == 6 ? Currency(1) : c.mark);
    EXPECT_EQ(t.g.BetWagers[kPhantom][bet::Come(6)][kMark], c.lastTotal == 7 ? 0 : 1);
  }
}

TEST(BetResults, PushesBookNothing) {
  TestTable t;
  BookBetResult(t.g, kActual, bet::kField, 5, 0);
  BookBetResult(t.g, kPhantom, bet::kField, 1, 0);
  EXPECT_EQ(t.g.BetWagers, Game::BetResultTable{});
  EXPECT_EQ(t.g.BookedThisRollCount, 0);
  // A $.50 Place 6 nets nothing when it wins: no actual entry, while its
  // phantom unit wins 7/6 unrounded.
  t.SetPoint(5);
  t.g.BetStatus.Set(bet::Place(6), 1);
  t.Stand(bet::Place(6), Currency::FromDouble(0.5));
  t.Dice(2, 4, 5);
  t.Settle(Outcome::Win, bet::Place(6));
  EXPECT_EQ(Wagers(t.g, kActual, bet::Place(6)), (std::array<Currency, kMeasures>{}));
  EXPECT_EQ(t.g.BetWins[kPhantom][bet::Place(6)][kTotal], Currency::FromDouble(1.1667));
}

TEST(BetResults, VigIsStakedWhereItIsPaid) {
  const int lay4 = bet::Lay(4), buy4 = bet::Buy(4);
  const struct { int kind, id; bool chargeAll; int net; double stake; } cases[] = {
      // A phantom Lay 4 pays 5% of what it would win, 1/2; a Buy 5% of 1.
      {kPhantom, lay4, false, 1, 1.025}, {kPhantom, lay4, false, -1, 1}, {kPhantom, lay4, true, -1, 1.025},
      {kPhantom, buy4, false, 2, 1.05},  {kPhantom, buy4, false, -1, 1}, {kPhantom, buy4, true, -1, 1.05},
      // A real bet stakes its own vig.
      {kActual, lay4, false, 19, 41},    {kActual, lay4, false, -40, 40}, {kActual, lay4, true, -40, 41},
      {kActual, buy4, false, 39, 21},    {kActual, buy4, false, -20, 20}, {kActual, buy4, true, -20, 21},
      {kActual, bet::Place(4), true, -20, 20},
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.ChargeAllLay = t.g.ChargeAllBuy = c.chargeAll;
    t.g.LayVigOnBet[0] = 1;
    t.g.BuyVigOnBet[0] = 1;
    const Currency amount = c.kind == kPhantom ? Currency(1) : c.id == lay4 ? Currency(40) : Currency(20);
    BookBetResult(t.g, c.kind, c.id, amount, c.net);
    SCOPED_TRACE(c.kind * 1000 + c.id * 10 + c.chargeAll);
    EXPECT_EQ(Wagers(t.g, c.kind, c.id)[kTotal], Currency::FromDouble(c.stake));
    const auto& decided = c.net > 0 ? t.g.BetWins : t.g.BetLosses;
    EXPECT_EQ(decided[c.kind][c.id][kTotal], Abs(c.net));  // the net itself carries no vig
  }
}

TEST(BetResults, MeasuresAndTheLastRollColumns) {
  TestTable t;
  const int id = bet::kField;
  EXPECT_EQ(Wagers(t.g, kActual, id)[kLow], 0);
  const struct { int stake, net; } entries[] = {{5, 5}, {3, -3}, {8, 16}, {4, -4}};
  for (const auto& e : entries) BookBetResult(t.g, kActual, id, e.stake, e.net);
  using M = std::array<Currency, kMeasures>;
  EXPECT_EQ(Wagers(t.g, kActual, id), (M{0, 4, 20, 8, 3, 4, 1, 4}));
  EXPECT_EQ(t.g.BetWins[kActual][id], (M{0, 2, 21, 16, 5, 16, 1, 16}));
  EXPECT_EQ(t.g.BetLosses[kActual][id], (M{0, 2, 7, 4, 3, 4, 1, 4}));
  EXPECT_EQ(t.g.BookedThisRollCount, 1);  // listed once however often booked

  MoveResultMarks(t.g);  // the next roll clears only the last-roll columns
  EXPECT_EQ(Wagers(t.g, kActual, id), (M{0, 4, 20, 8, 3, 4, 0, 0}));
  EXPECT_EQ(t.g.BetWins[kActual][id], (M{0, 2, 21, 16, 5, 16, 0, 0}));
  EXPECT_EQ(t.g.BetLosses[kActual][id], (M{0, 2, 7, 4, 3, 4, 0, 0}));

  // Cells filled from outside are cleared once relisted.
  t.g.BetWins[kPhantom][bet::kSeven][kLastRollCount] = 1;
  t.g.BetWagers[kPhantom][bet::kSeven][kLastRollAmount] = 1;
  RelistLastRollCells(t.g);
  MoveResultMarks(t.g);
  EXPECT_EQ(t.g.BetWins[kPhantom][bet::kSeven][kLastRollCount], 0);
  EXPECT_EQ(t.g.BetWagers[kPhantom][bet::kSeven][kLastRollAmount], 0);

  const BetTotalsOfKind totals = BetTotals(t.g, kActual);
  EXPECT_EQ(totals.Wagers, (M{0, 4, 20, 8, 3, 4, 0, 0}));
  FillTotalsCell(t.g, kActual);
  EXPECT_EQ(t.g.BetLosses[kActual][0], t.g.BetLosses[kActual][id]);

  NewGame(t.g, false);
  EXPECT_EQ(t.g.BetWagers, Game::BetResultTable{});
  EXPECT_EQ(t.g.BetTrends[id].Count(), 0);
}

TEST(BetResults, ActualResultsAreBookedAtSettlement) {
  TestTable t;
  t.Place(bet::kPassLine, 10);
  t.Place(bet::kField, 5);
  t.Roll(3, 4);  // a natural: the line wins 10, the field loses 5
  EXPECT_EQ(t.g.BetWins[kActual][bet::kPassLine][kTotal], 10);
  EXPECT_EQ(t.g.BetLosses[kActual][bet::kField][kTotal], 5);
  EXPECT_EQ(t.g.BetWagers[kActual][bet::kPassLine][kLastRollCount], 1);
  t.Place(bet::kField, 5);
  t.Roll(1, 1);  // the field wins double, the line loses
  EXPECT_EQ(t.g.BetWagers[kActual][bet::kField][kCount], 2);
  EXPECT_EQ(t.g.BetWins[kActual][bet::kField][kTotal], 10);
  const BetTrend& trend = t.g.BetTrends[bet::kField];
  ASSERT_EQ(trend.Count(), 2);
  EXPECT_EQ(trend.Net(0), -5);
  EXPECT_EQ(trend.Net(1), 10);
  EXPECT_EQ(trend.Roll(1), 2);
  for (int i = 0; i < 20; ++i) {
    if (t.g.BetAmount[bet::kField] == 0) t.Place(bet::kField, 5);
    t.Roll(1, 1);
  }
  // Only the latest are kept, oldest first, however far the cells went round.
  ASSERT_EQ(trend.Count(), Game::kTrendCells);
  for (int i = 0; i < Game::kTrendCells; ++i) EXPECT_EQ(trend.Roll(i), 22 - Game::kTrendCells + 1 + i);
}
