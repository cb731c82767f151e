#include "engine/pad.h"

#include <gtest/gtest.h>

#include <set>

#include "cli/temp_folder_for_test.h"
#include "engine/dice_roll_files.h"
#include "dice/rng.h"
#include "engine/seed.h"
#include "engine/table_for_test.h"

TEST(Pad, EveryCombinationOfEveryTotalIsOnePairInRange) {
  int pairs = 0;
  for (int total = 2; total <= 12; ++total) {
    std::set<std::pair<int, int>> seen;
    for (int k = 1; k <= CombinationCount(total); ++k) {
      int d1 = 0, d2 = 0;
      CombinationDice(total, k, d1, d2);
      EXPECT_TRUE(d1 >= 1 && d1 <= 6 && d2 >= 1 && d2 <= 6) << total << " k=" << k;
      EXPECT_EQ(d1 + d2, total);
      seen.insert({d1, d2});
    }
    EXPECT_EQ(seen.size(), static_cast<size_t>(CombinationCount(total)));
    pairs += CombinationCount(total);
  }
  EXPECT_EQ(pairs, 36);
  EXPECT_EQ(CombinationCount(7), 6);
  EXPECT_EQ(CombinationCount(13), 0);
}

TEST(Pad, PadRollIsRecordedAndCountedAndLeavesTheGeneratorAlone) {
  TestTable padded, plain;
  for (TestTable* t : {&padded, &plain}) {
    t->g.SeedRequest = 4242;
    SeedRNG(t->g, true);
  }
  TempFolder dir;
  ASSERT_TRUE(OpenRollFile(padded.g, (dir.path() / "pad.rol").string()));
  ASSERT_TRUE(SetRecorderStatus(padded.g, kRecorderRecord));
  PadRoll(padded.g, 2, 5);
  PadRollTotal(padded.g, 10);
  EXPECT_EQ(padded.g.DiceTotal, 10);
  EXPECT_EQ(padded.g.RollCounts[0], 2);
  EXPECT_EQ(TotalRolls(padded.g), 2);
  EXPECT_EQ(padded.g.DiceFile.File.Read(1), RollByte(2, 5));
  EXPECT_FALSE(padded.g.DiceAlreadySet);

  // The next generator roll is the first the same seed gives without the pad.
  RollDice(padded.g);
  RollDice(plain.g);
  EXPECT_EQ(padded.g.Die1, plain.g.Die1);
  EXPECT_EQ(padded.g.Die2, plain.g.Die2);
}
