#include "dice/skewed_draw.h"
#include "engine/seed.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

TEST(DrawDice, PercentageDiceOfEachGeneratorFollowItsWalk) {
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game skewed, reference;
    SeedSilently(skewed, choice, 4242);
    SeedSilently(reference, choice, 4242);
    skewed.UseSkewedProbability = true;
    ProbTable table = TrueTable();
    uint32_t rnd = kRndStartState;
    for (int roll = 0; roll < 500; ++roll) {
      DrawDice(skewed);
      const DicePair expected = DrawSkewed(table, DrawPercentageX(reference), rnd);
      ASSERT_EQ(skewed.Die1, expected.die1) << RngListText(choice) << " roll " << roll;
      ASSERT_EQ(skewed.Die2, expected.die2) << RngListText(choice) << " roll " << roll;
      ++skewed.RollCounts[0];
      ++reference.RollCounts[0];
    }
  }
  // Without the flag the table is not consulted.
  Game g;
  SeedSilently(g, 0, 5);
  ResetToTrue(g.Prob);
  SetCell(g.Prob, 1, 6, 100000);
  int sevens = 0;
  for (int roll = 0; roll < 200; ++roll, ++g.RollCounts[0]) {
    DrawDice(g);
    sevens += g.Die1 + g.Die2 == 7;
  }
  EXPECT_LT(sevens, 100);
  g.UseSkewedProbability = true;
  for (int roll = 0; roll < 200; ++roll, ++g.RollCounts[0]) {
    DrawDice(g);
    ASSERT_EQ(g.Die1 + g.Die2, 7);
  }
}
