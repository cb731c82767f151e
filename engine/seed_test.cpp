#include <gtest/gtest.h>

#include "dice/rng.h"
#include "engine/seed.h"
#include "engine/table_for_test.h"

TEST(SeedRNG, LimitsAreTestedBeforeRounding) {
  Game g;
  // Seeds out of limits are dropped without a word; the rest round to even.
  const struct { int choice; double seed; int32_t last; } cases[] = {
      {2, 1'000'000, 0}, {2, 999'999.4, 0}, {2, 999'999, 999'999}, {0, 0, 999'999}, {0, 0.5, 999'999},
      {0, 2.5, 2},       {0, 3.5001, 4},    {0, 2'147'483'647, 2'147'483'647}};
  for (const auto& c : cases) {
    SeedSilently(g, c.choice, Currency::FromDouble(c.seed));
    EXPECT_EQ(g.LastSeed, c.last) << c.seed;
    if (c.seed == 999'999) {
      EXPECT_EQ(g.ModSeed, (999'999 * 1366 + 150889) % 714025);
    }
  }
}

TEST(SeedRNG, OverflowingSeedIsReportedAndSeedsWhatCameBefore) {
  TestTable t;
  Game& g = t.g;
  SeedSilently(g, 5, 2'147'428'875);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last(), (RecordedMessage{"Dicemill", "Overflow, Error #6 occurred, at: SeedRNG\r"}));
  EXPECT_EQ(g.Rng.mt.mti, 624);  // #1 half seeded
  EXPECT_EQ(g.Rng.ran1.iff, 0);  // #5 half not
  EXPECT_EQ(g.ModSeed, 2'147'428'875);
  EXPECT_EQ(g.LastSeed, 2'147'428'875);
  SeedSilently(g, 4, 2'147'428'874);
  EXPECT_EQ(g.Rng.ran1.iff, 1);

  SeedSilently(g, 6, 2'147'332'759);
  EXPECT_EQ(t.ui.messages.size(), 2u);
  EXPECT_EQ(g.Rng.cokus.left, 0);
  EXPECT_EQ(g.Rng.ran2.iff, 0);
  SeedSilently(g, 3, 2'147'332'758);
  EXPECT_EQ(g.Rng.ran2.iff, 1);
  EXPECT_EQ(t.ui.messages.size(), 2u);
}

TEST(SeedRNG, PromptAsksUntilTheSeedIsWithinLimits) {
  TestTable t;
  Game& g = t.g;
  g.UserSeedMode = g.KeepRolling = true;
  g.RngChoice = 2;
  g.LastSeed = 12;
  t.ui.numberReplies = {Currency(1'000'000), Currency(0), Currency(5)};
  SeedRNG(g, false);
  const std::string request = "Please enter a value between 1 and 999,999 to seed the random number generator:\r";
  ASSERT_EQ(t.ui.asked.size(), 3u);
  EXPECT_EQ(t.ui.asked[0], (RecordedMessage{"RNG Seed", request}));
  EXPECT_EQ(t.ui.asked[1].text, "Your seed value is out of limits.\r\r" + request);
  EXPECT_EQ(t.ui.offered[0], Currency(12));
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(g.LastSeed, 5);
  EXPECT_EQ(g.SeedRequest, Currency(5));

  // A cancelled prompt seeds nothing.
  g.RngChoice = 0;
  g.Rng.mt.mti = 625;
  t.ui.numberReplies = {std::nullopt};
  SeedRNG(g, false);
  EXPECT_EQ(t.ui.asked[3].text,
            "Please enter a value between 1 and 2,147,483,647 to seed the random number generator:\r");
  EXPECT_EQ(g.LastSeed, 5);
  EXPECT_EQ(g.Rng.mt.mti, 625);

  // An out-of-limits default handed back is asked again once; a front end
  // that only ever returns it cannot trap the prompt.
  g.LastSeed = 0;
  t.ui.numberReplies = {Currency(0), Currency(7)};
  SeedRNG(g, false);
  EXPECT_EQ(g.LastSeed, 7);
  Game h;
  h.UserSeedMode = true;
  SeedRNG(h, false);
  EXPECT_EQ(h.LastSeed, 0);
}

TEST(SeedRNG, StartUpSeedsEveryBaseGeneratorFromTheClock) {
  Game g;
  SeedAtStartUp(g);
  EXPECT_EQ(g.RngChoice, 0);
  EXPECT_EQ(g.Rng.mt.mti, 624);
  EXPECT_EQ(g.Rng.cokus.left, 0);
  EXPECT_EQ(g.Rng.ran1.iff + g.Rng.ran2.iff, 2);
  EXPECT_GT(g.LastSeed, 0);
  EXPECT_EQ(g.SeedRequest, Currency(g.LastSeed));
}
