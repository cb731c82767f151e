#include "dice/rng.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

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

// Two faces from two draws, in order.
template <typename Draw>
std::pair<int, int> Faces(Draw draw) {
  const int first = static_cast<int>(draw() * 6) + 1;
  return {first, static_cast<int>(draw() * 6) + 1};
}

}  // namespace

TEST(RanMod, StepsAndShrinksAnOverflowingSeed) {
  Game g;
  SeedSilently(g, 2, 777);
  for (auto dice : {std::pair{3, 2}, {5, 1}, {6, 2}}) EXPECT_EQ(Roll(g), dice);
  // Cut twice, to 200,000; 15,727.5 and 15,726.5 round to even; the product
  // fits and the increment does not.
  const std::pair<int32_t, int32_t> steps[] = {
      {2'000'000'000, 593339}, {1'572'750, 214587}, {1'572'650, 211855}, {1'572'000, 203659}};
  for (const auto& [seed, next] : steps) {
    g.ModSeed = seed;
    RanMod(g, 6);
    EXPECT_EQ(g.ModSeed, next) << seed;
  }
}

TEST(DrawDice, EveryGeneratorShowsEveryFaceAndRepeatsItsStream) {
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game g, h;
    SeedSilently(g, choice, 20240);
    int seen[7] = {};
    for (int i = 0; i < 20000; ++i) {
      auto [a, b] = Roll(g);
      ASSERT_TRUE(a >= 1 && a <= 6 && b >= 1 && b <= 6) << RngListText(choice) << " roll " << i;
      ++seen[a];
      ++seen[b];
    }
    for (int face = 1; face <= 6; ++face) EXPECT_GT(seen[face], 5000) << RngListText(choice) << " face " << face;
    EXPECT_EQ(g.ErrorText, "");
    // Seeding again gives the stream again, in this game as in a fresh one.
    SeedSilently(g, choice, 31337);
    SeedSilently(h, choice, 31337);
    g.RollCounts[0] = 0;
    for (int i = 0; i < 50; ++i) ASSERT_EQ(Roll(g), Roll(h)) << RngListText(choice) << " roll " << i;
  }
}

TEST(DrawDice, CombinedGeneratorsAlternateByRollCount) {
  std::string err;
  // #6: the first roll of a game from Ran1, the second from genrand_real2.
  Game g;
  SeedSilently(g, 5, 42);
  Mt19937 mt;
  init_genrand(mt, 42);
  Ran1State r1;
  int32_t idum = -42;
  Ran1(r1, idum, err);
  EXPECT_EQ(Roll(g), Faces([&] { return Ran1(r1, idum, err); }));
  EXPECT_EQ(Roll(g), Faces([&] { return genrand_real2(mt); }));

  // #7: Ran2 first, then the Cokus generator.
  SeedSilently(g, 6, 42);
  g.RollCounts[0] = 0;
  CokusMt cokus;
  srandMT(cokus, 42);
  Ran2State r2;
  idum = -42;
  Ran2(r2, idum, err);
  idum = 1;
  EXPECT_EQ(Roll(g), Faces([&] { return Ran2(r2, idum, err); }));
  EXPECT_EQ(Roll(g), Faces([&] { return randomMT(cokus); }));
}

TEST(DrawDice, SingleCallGeneratorSplitsOneDraw) {
  const struct { int v, die1, die2; } splits[] = {{0, 1, 1}, {35, 6, 6}, {6, 1, 2}};
  for (const auto& s : splits) {
    EXPECT_EQ(DiceFromSingleDraw(s.v).die1, s.die1) << s.v;
    EXPECT_EQ(DiceFromSingleDraw(s.v).die2, s.die2) << s.v;
  }
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
  for (int i = 0; i < 100; ++i) ASSERT_EQ(DrawPercentageX(g), static_cast<int32_t>(genrand_real2(mt) * 100000) + 1);
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
