#include "dice/rng.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "engine/game.h"

namespace {

void SeedSilently(Game& g, int choice, Currency seed) {
  g.RngChoice = choice;
  g.SeedRequest = seed;
  SeedRNG(g, true);
}

std::pair<int, int> Roll(Game& g) {
  DrawDice(g);
  ++g.RollCounts[0];
  return {g.Die1, g.Die2};
}

int Face(double unit) { return static_cast<int>(unit * 6) + 1; }

}  // namespace

TEST(RanMod, StepsAndShrinksAnOverflowingSeed) {
  Game g;
  SeedSilently(g, 2, 777);
  std::vector<int> dice;
  for (int i = 0; i < 3; ++i) {
    auto [a, b] = Roll(g);
    dice.insert(dice.end(), {a, b});
  }
  EXPECT_EQ(dice, (std::vector<int>{3, 2, 5, 1, 6, 2}));

  g.ModSeed = 2'000'000'000;  // cut twice, to 200,000
  RanMod(g, 6);
  EXPECT_EQ(g.ModSeed, 593339);
  g.ModSeed = 1'572'750;  // 15,727.5 rounds to even
  RanMod(g, 6);
  EXPECT_EQ(g.ModSeed, 214587);
  g.ModSeed = 1'572'650;  // 15,726.5 rounds to even
  RanMod(g, 6);
  EXPECT_EQ(g.ModSeed, 211855);
  g.ModSeed = 1'572'000;  // the product fits, the increment does not
  RanMod(g, 6);
  EXPECT_EQ(g.ModSeed, 203659);
}

TEST(DrawDice, EveryGeneratorShowsEveryFaceAndNoOther) {
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game g;
    SeedSilently(g, choice, 20240);
    std::array<int, 8> seen{};
    for (int i = 0; i < 20000; ++i) {
      auto [a, b] = Roll(g);
      ASSERT_TRUE(a >= 1 && a <= 6 && b >= 1 && b <= 6) << RngListText(choice) << " roll " << i;
      ++seen[a];
      ++seen[b];
    }
    for (int face = 1; face <= 6; ++face) EXPECT_GT(seen[face], 5000) << RngListText(choice) << " face " << face;
    EXPECT_EQ(g.ErrorText, "");
  }
}

TEST(DrawDice, SameSeedSameDiceInAFreshGame) {
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game first, second;
    SeedSilently(first, choice, 31337);
    SeedSilently(second, choice, 31337);
    for (int i = 0; i < 50; ++i) ASSERT_EQ(Roll(first), Roll(second)) << RngListText(choice) << " roll " << i;
  }
}

TEST(DrawDice, CombinedGeneratorsAlternateByRollCount) {
  // #6: the first roll of a game from Ran1, the second from genrand_real2.
  Game g;
  SeedSilently(g, 5, 42);
  Mt19937 mt;
  init_genrand(mt, 42);
  Ran1State r1;
  std::string err;
  int32_t idum = -42;
  Ran1(r1, idum, err);
  int die1 = Face(Ran1(r1, idum, err)), die2 = Face(Ran1(r1, idum, err));
  EXPECT_EQ(Roll(g), std::make_pair(die1, die2));
  die1 = Face(genrand_real2(mt));
  die2 = Face(genrand_real2(mt));
  EXPECT_EQ(Roll(g), std::make_pair(die1, die2));

  // #7: Ran2 first, then the Cokus generator.
  Game h;
  SeedSilently(h, 6, 42);
  CokusMt cokus;
  srandMT(cokus, 42);
  Ran2State r2;
  idum = -42;
  Ran2(r2, idum, err);
  idum = 1;
  die1 = Face(Ran2(r2, idum, err));
  die2 = Face(Ran2(r2, idum, err));
  EXPECT_EQ(Roll(h), std::make_pair(die1, die2));
  die1 = Face(randomMT(cokus));
  die2 = Face(randomMT(cokus));
  EXPECT_EQ(Roll(h), std::make_pair(die1, die2));
}

TEST(DrawDice, SingleCallGeneratorSplitsOneDraw) {
  EXPECT_EQ(DiceFromSingleDraw(0).die1, 1);
  EXPECT_EQ(DiceFromSingleDraw(0).die2, 1);
  EXPECT_EQ(DiceFromSingleDraw(35).die1, 6);
  EXPECT_EQ(DiceFromSingleDraw(35).die2, 6);
  EXPECT_EQ(DiceFromSingleDraw(6).die1, 1);
  EXPECT_EQ(DiceFromSingleDraw(6).die2, 2);

  // One draw per roll: the stream moves on by one value each time.
  Game g;
  SeedSilently(g, 7, 5);
  Mt19937 mt;
  init_genrand(mt, 5);
  for (int i = 0; i < 100; ++i) {
    DicePair expected = DiceFromSingleDraw(static_cast<int32_t>(genrand_real2(mt) * 36));
    ASSERT_EQ(Roll(g), std::make_pair(expected.die1, expected.die2)) << i;
  }
}

TEST(DrawPercentageX, OneDrawScaledPerGenerator) {
  Game g;
  SeedSilently(g, 0, 9);
  Mt19937 mt;
  init_genrand(mt, 9);
  for (int i = 0; i < 100; ++i)
    ASSERT_EQ(DrawPercentageX(g), static_cast<int32_t>(genrand_real2(mt) * 100000) + 1);

  // #5 rounds instead of flooring.
  SeedSilently(g, 4, 9);
  Ran1State r1;
  std::string err;
  int32_t idum = -9;
  Ran1(r1, idum, err);
  for (int i = 0; i < 100; ++i)
    ASSERT_EQ(DrawPercentageX(g), static_cast<int32_t>(std::nearbyint(Ran1(r1, idum, err) * 100000.0)) + 1);

  // Every generator stays within 1..100,001.
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game h;
    SeedSilently(h, choice, 77);
    for (int i = 0; i < 20000; ++i, ++h.RollCounts[0]) {
      int32_t x = DrawPercentageX(h);
      ASSERT_TRUE(x >= 1 && x <= 100001) << RngListText(choice) << " " << x;
    }
  }
}
