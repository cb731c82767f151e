#include "script/values.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

TEST(ScriptValues, GroupsReferencesPointsAndDecidedWagers) {
  TestTable t;
  for (int n : {4, 5, 6, 8, 9, 10}) t.Stand(bet::Place(n), n);
  EXPECT_EQ(GetValue(t.g, 1006, 0), Currency(42));
  EXPECT_EQ(GetValue(t.g, 1007, 0), Currency(5 + 6 + 8 + 9));  // inside: 5, 6, 8, 9
  EXPECT_EQ(GetValue(t.g, 1008, 0), Currency(4 + 5 + 9 + 10));  // outside: all but 6 and 8
  EXPECT_EQ(GetValue(t.g, 1702, 0), Currency(6));

  // Chip-Stack 3 points at Chip-Stack 7; a value of 100 or below 0 reads $0.
  t.g.BetAmount.Set(103, Currency::FromRaw(75'000));  // 7.5: its whole part
  t.g.BetAmount.Set(107, 25);
  EXPECT_EQ(GetValue(t.g, 1601, 3), Currency(25));
  for (Currency bad : {Currency(100), Currency(-1)}) {
    t.g.BetAmount.Set(103, bad);
    EXPECT_EQ(GetValue(t.g, 1601, 3), Currency(0));
  }

  // The shooter's-point Place bet is the Place bet of the point; none without one.
  EXPECT_EQ(GetValue(t.g, 1805, 0), Currency(0));
  t.SetPoint(8);
  EXPECT_EQ(GetValue(t.g, 1805, 0), Currency(8));
  t.SetPoint(10);
  EXPECT_EQ(GetValue(t.g, 1805, 0), Currency(10));

  // Decided wagers: a 6 decides the Place 6 (working, as all are here).
  t.SetPoint(0);
  for (int id = 0; id < t.g.BetStatus.size(); ++id) t.g.BetStatus.Set(id, 1);
  t.Roll(3, 3);
  EXPECT_EQ(GetValue(t.g, 1700, 0), Currency(1));
  EXPECT_EQ(GetValue(t.g, 1701, 0), Currency(6));
}

// The average bankroll is rounded to four places, ties to even, as every
// average of the statistics is; scripts read it the same.
TEST(ScriptValues, AverageBankrollIsRoundedNotCut) {
  const struct { int64_t sumRaw; int32_t rolls; int64_t averageRaw; } cases[] = {
      {55'420'000, 11, 5'038'182},   // 503.81818...
      {-55'420'000, 11, -5'038'182},
      {5, 2, 2}, {7, 2, 4},          // halves go to the even side
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.BankrollSum = Currency::FromRaw(c.sumRaw);
    t.g.RollCounts[0] = c.rolls;
    EXPECT_EQ(AverageBankroll(t.g).raw, c.averageRaw) << c.sumRaw;
    EXPECT_EQ(GetValue(t.g, 1401, 0).raw, c.averageRaw) << c.sumRaw;
  }
}
