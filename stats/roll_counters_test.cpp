#include "stats/roll_counters.h"

#include <gtest/gtest.h>

#include <set>

#include "engine/table_for_test.h"

namespace {

// The selections a throw must count, by index; nothing else may move.
struct ThrowCase { int die1, die2; std::set<int> counted; };

TEST(RollCounters, EachThrowCountsExactlyItsSelections) {
  const ThrowCase cases[] = {
      {1, 1, {1, 2, 20, 21, 65, 66, 69, 74, 78, 84}},
      {1, 2, {1, 3, 20, 21, 22, 65, 66, 70, 74, 75, 78, 85}},
      {2, 1, {1, 3, 20, 21, 23, 65, 66, 70, 74, 75, 79, 84}},
      {2, 2, {1, 4, 13, 17, 19, 21, 67, 71, 79, 85}},
      {3, 1, {1, 4, 17, 19, 21, 25, 26, 67, 71, 80, 84}},
      {6, 1, {1, 7, 40, 45, 65, 76, 83, 84}},
      {4, 3, {1, 7, 44, 47, 65, 76, 81, 86}},
      {5, 3, {1, 8, 17, 18, 51, 53, 68, 73, 82, 86}},
      {5, 4, {1, 9, 17, 18, 19, 21, 57, 59, 68, 72, 82, 87}},
      {5, 5, {1, 10, 16, 17, 19, 21, 68, 71, 82, 88}},
      {6, 5, {1, 11, 21, 64, 65, 66, 70, 76, 77, 83, 88}},
      {6, 6, {1, 12, 20, 21, 65, 66, 69, 75, 77, 83, 89}},
  };
  for (const ThrowCase& c : cases) {
    Game g;
    g.Die1 = c.die1;
    g.Die2 = c.die2;
    UpdateRollCounters(g);
    for (int i = 1; i < event::kCount; ++i) {
      const bool counted = c.counted.count(i) != 0;
      EXPECT_EQ(g.RollCounts[i], counted ? 1 : 0) << c.die1 << "-" << c.die2 << " index " << i;
      EXPECT_EQ(g.RollsSinceLast[i], counted ? 0 : 1) << c.die1 << "-" << c.die2 << " index " << i;
    }
  }
}

TEST(RollCounters, GapsGrowUntilTheSelectionComesAgain) {
  Game g;
  const int throws[][2] = {{3, 4}, {2, 2}, {1, 1}, {6, 1}};
  for (const auto& t : throws) {
    g.Die1 = t[0];
    g.Die2 = t[1];
    UpdateRollCounters(g);
  }
  EXPECT_EQ(g.RollCounts[7], 2);
  EXPECT_EQ(g.RollsSinceLast[7], 0);
  EXPECT_EQ(g.RollsSinceLast[13], 2);  // hard 4, two throws back
  EXPECT_EQ(g.RollsSinceLast[2], 1);
  EXPECT_EQ(g.RollsSinceLast[12], 4);  // never rolled: the whole roll count
  EXPECT_EQ(g.RollsSinceLast[90], 4);  // named by no list, never comes
  EXPECT_EQ(g.RollsSinceLast[0], 0);
}

TEST(RollCounters, TheRollKeepsTheValuesBeforeItAndANewGameClearsAll) {
  TestTable t;
  t.Roll(2, 2);
  t.Roll(1, 1);
  EXPECT_EQ(t.g.RollCounts[0], 2);
  EXPECT_EQ(t.g.PreviousRollCounts[0], 1);
  EXPECT_EQ(t.g.RollCounts[2], 1);
  EXPECT_EQ(t.g.PreviousRollCounts[2], 0);
  EXPECT_EQ(t.g.PreviousRollCounts[13], 1);
  EXPECT_EQ(t.g.PreviousRollsSinceLast[13], 0);
  EXPECT_EQ(t.g.RollsSinceLast[13], 1);
  EXPECT_EQ(t.g.PreviousRollsSinceLast[2], 1);

  NewGame(t.g, false);
  for (const auto* table : {&t.g.RollCounts, &t.g.RollsSinceLast, &t.g.PreviousRollCounts, &t.g.PreviousRollsSinceLast})
    for (int v : *table) EXPECT_EQ(v, 0);
}

}  // namespace
