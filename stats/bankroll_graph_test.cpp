#include "stats/bankroll_graph.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"
#include "stats/rounded_quotient.h"

namespace {

// The graph's side of a roll: the count, the running sum and the point.
void Point(Game& g, Currency bankroll) {
  ++g.RollCounts[0];
  g.Bankroll() = bankroll;
  g.BankrollSum += bankroll;
  RecordBankrollPoint(g);
}

// A game of `rolls` points whose bankroll is the roll number.
void Points(Game& g, int rolls) {
  for (int i = 0; i < rolls; ++i) Point(g, g.RollCounts[0] + 1);
}

TEST(BankrollGraph, The526thRollStartsAWindowAndKeepsTheOld) {
  Game g;
  g.Bankroll() = 0;
  ClearBankrollGraph(g);
  Points(g, 525);
  EXPECT_EQ(g.GraphCount, 525);
  EXPECT_EQ(g.GraphBankroll[525], 525);
  EXPECT_EQ(WindowFirstRoll(g), 0);
  EXPECT_EQ(g.GraphHigh, 525);
  EXPECT_EQ(g.GraphLow, 0);

  Points(g, 1);
  EXPECT_EQ(g.GraphCount, 1);
  EXPECT_EQ(g.GraphBankroll[1], 526);
  EXPECT_EQ(g.GraphBankroll[526], 1);
  EXPECT_EQ(g.GraphBankroll[1050], 525);
  EXPECT_EQ(WindowFirstRoll(g), 525);
  EXPECT_EQ(WindowLastRoll(g), 1050);
  // High and low restart at the bankroll as the window opens.
  EXPECT_EQ(g.GraphHigh, 526);
  EXPECT_EQ(g.GraphLow, 526);
}

TEST(BankrollGraph, MovingAverageTakesThePointsThereAre) {
  Game g;
  g.Bankroll() = 0;
  ClearBankrollGraph(g);
  Points(g, 20);  // bankrolls 1..20
  struct Case { int position, rolls; Currency expected; };
  const Case firstWindow[] = {
      {10, 100, Currency::FromRaw(55000)},  // ten points, not a hundred: 5.5
      {10, 1, 10},
      {10, 4, Currency::FromRaw(85000)},    // 7..10
      {20, 0, Currency::FromRaw(105000)},   // every roll: 10.5
      {4, 0, Currency::FromRaw(25000)},     // every roll up to point 4
      {21, 5, 0},                           // not drawn yet
  };
  for (const Case& c : firstWindow)
    EXPECT_EQ(MovingAverage(g, c.position, c.rolls), c.expected) << c.position << " " << c.rolls;

  Points(g, 525 + 10 - 20);  // 535 rolls: ten in the second window
  // Window 2 holds rolls 526..535 at points 1..10; the previous window 1..525.
  EXPECT_EQ(MovingAverage(g, 2, 4), Currency::FromRaw((527 + 526 + 525 + 524) * 10000 / 4));
  EXPECT_EQ(MovingAverage(g, 10, 600), MovingAverage(g, 10, 525));  // above 525 is 525
  EXPECT_EQ(MovingAverage(g, 10, 525), Currency::FromRaw((11 + 535) * 10000 / 2));
  EXPECT_EQ(MovingAverage(g, 10, 0), Currency::FromRaw(2680000));  // 1..535: 268
  EXPECT_EQ(MovingAverage(g, 5, 0), Currency::FromRaw(2655000));   // 1..530: 265.5

  SetMovingAverageRolls(g, 900);
  EXPECT_EQ(g.MovingAverageRolls, 525);
  SetMovingAverageRolls(g, -3);
  EXPECT_EQ(g.MovingAverageRolls, 0);
  EXPECT_EQ(g.GraphAverage[5], Currency::FromRaw(2655000));
  EXPECT_EQ(MovingAverageCaption(0), "All rolls moving average");
  EXPECT_EQ(MovingAverageCaption(100), "100 roll moving average");

  // Averages kept as the points come in, when they are shown.
  g.DisplayAverage = true;
  SetMovingAverageRolls(g, 2);
  Point(g, 1000);
  EXPECT_EQ(g.GraphAverage[11], Currency::FromRaw((1000 + 535) * 10000 / 2));
}

TEST(BankrollGraph, TheScaleLadder) {
  struct Case { Currency scale, larger, smaller; };
  const Case cases[] = {
      {Currency::FromRaw(100), Currency::FromRaw(200), Currency::FromRaw(100)},   // 0.01 is the bottom
      {Currency::FromRaw(400), Currency::FromRaw(1000), Currency::FromRaw(200)},  // 0.04 -> 0.1
      {1, 2, Currency::FromRaw(4000)},
      {4, 10, 2},
      {10, 20, 4},
      {40000, 100000, 20000},
      {100000, 100000, 40000},  // the top
      {3, 3, 3},                // off the ladder: left alone
      {0, 0, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(LargerScale(c.scale), c.larger) << c.scale.ToDouble();
    EXPECT_EQ(SmallerScale(c.scale), c.smaller) << c.scale.ToDouble();
  }
}

TEST(BankrollGraph, ExpandingAndSnapBackScales) {
  struct Case { int32_t adjustType; Currency scaleWhileFilling, scaleOfNextWindow; };
  // 500 up to 900: a spread of 400 needs a scale of 2 (250 rows hold 500).
  const Case cases[] = {{1, 2, 2}, {2, 2, 1}, {0, 1, 1}};
  for (const Case& c : cases) {
    Game g;
    g.Bankroll() = 500;
    g.AutoAdjustType = c.adjustType;
    ClearBankrollGraph(g);
    EXPECT_EQ(g.GraphTop, 500) << c.adjustType;
    for (int i = 1; i <= 400; ++i) Point(g, 500 + i);
    EXPECT_EQ(g.GraphScale, c.scaleWhileFilling) << c.adjustType;
    if (c.adjustType > 0) {
      EXPECT_LE(g.GraphHigh, g.GraphTop);
      EXPECT_GE(g.GraphLow, GraphBottom(g));
      EXPECT_EQ(g.GraphTop, 900);  // snapped to a grid line of 100
      EXPECT_EQ(GraphBottom(g), 300);
    } else {
      EXPECT_EQ(g.GraphTop, 500);  // manual: the window stays put
    }
    for (int i = 401; i <= 526; ++i) Point(g, 900);
    EXPECT_EQ(g.GraphCount, 1);
    EXPECT_EQ(g.GraphScale, c.scaleOfNextWindow) << c.adjustType;
  }
  // A spread no ladder step can hold stops at the top of the ladder.
  Game g;
  g.GraphScale = 40000;
  g.GraphHigh = Currency::FromRaw(int64_t{1} << 60);
  g.GraphLow = 0;
  ResetBankrollGraph(g, false);
  EXPECT_EQ(g.GraphScale, 100000);
  // A scale off the ladder is not widened, and the loop still ends.
  g.GraphScale = 3;
  ResetBankrollGraph(g, false);
  EXPECT_EQ(g.GraphScale, 3);
}

TEST(BankrollGraph, ManualWindowPlacementAndReferenceLines) {
  Game g;
  g.AutoAdjustType = 0;
  g.Bankroll() = 512;
  ClearBankrollGraph(g);
  EXPECT_EQ(g.GraphTop, 500);  // 512 to the nearest 50
  g.Bankroll() = 525;
  ResetBankrollGraph(g, false);
  EXPECT_EQ(g.GraphTop, 500);  // 10.5 grid steps: the tie goes to the even one
  MoveGraphWindow(g, true);
  EXPECT_EQ(g.GraphTop, 550);
  StepGraphScale(g, true);
  EXPECT_EQ(g.GraphScale, 2);
  EXPECT_EQ(g.ManualScale, 2);
  EXPECT_EQ(g.GraphTop, 500);  // 525 to the nearest 100
  EXPECT_EQ(GraphBottom(g), -100);

  const Currency bankrolls[] = {480, 530, 620, 610};
  for (Currency b : bankrolls) Point(g, b);
  g.DisplayRefLines = true;
  struct Case { int32_t first, second; bool valid; int32_t rolls; Currency difference, top; };
  const Case cases[] = {
      {1, 3, true, 2, 140, 600},     // centre (480 + 620) / 2 = 550: 5.5 steps of 100 -> 6
      {4, 2, true, -2, -80, 600},    // 570
      {1, 9, false, 0, 0, 500},      // line 2 beyond the points: centre 480
      {0, 0, false, 0, 0, 600},      // no lines: the bankroll now, 610
  };
  for (const Case& c : cases) {
    g.RefLinePosition = {c.first, c.second};
    const RefLineDifferences d = ReferenceLineDifferences(g);
    EXPECT_EQ(d.Valid, c.valid) << c.first << "," << c.second;
    EXPECT_EQ(d.Rolls, c.rolls);
    EXPECT_EQ(d.Bankroll, c.difference);
    ResetBankrollGraph(g, false);
    EXPECT_EQ(g.GraphTop, c.top) << c.first << "," << c.second;
  }
}

TEST(BankrollGraph, TheRollTakesAPointAndANewGameClearsThem) {
  TestTable t;
  t.g.AutoAdjustType = 1;
  t.Roll(3, 4);
  t.Roll(2, 2);
  t.Roll(6, 5);
  EXPECT_EQ(t.g.GraphCount, 3);
  EXPECT_EQ(t.g.GraphBankroll[3], t.g.Bankroll());
  EXPECT_EQ(MovingAverage(t.g, 3, 0), RoundedQuotient(t.g.BankrollSum, 3));

  NewGame(t.g, false);
  EXPECT_EQ(t.g.GraphCount, 0);
  EXPECT_EQ(t.g.GraphHigh, t.g.Bankroll());
  EXPECT_EQ(t.g.GraphLow, t.g.Bankroll());
  EXPECT_EQ(t.g.GraphBankroll[1], 0);
}

}  // namespace
