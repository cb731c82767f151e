#include "dice/rng.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

#include "engine/game.h"
#include "engine/seed.h"

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

// The base generators seeded as SeedRNG seeds them, and the dice each
// numbered generator should draw from them.
struct Reference {
  Mt19937 mt;
  CokusMt cokus;
  Ran1State r1;
  Ran2State r2;
  int32_t one = 1;
  std::string err;

  explicit Reference(int32_t seed) {
    init_genrand(mt, seed);
    srandMT(cokus, seed);
    int32_t idum = -seed;
    Ran1(r1, idum, err);
    idum = -seed;
    Ran2(r2, idum, err);
  }
  double Draw(int base) {
    return base == 0 ? genrand_real2(mt) : base == 1 ? randomMT(cokus) : base == 3 ? Ran2(r2, one, err) : Ran1(r1, one, err);
  }
  // #6 and #7 take #1 and #2 on odd roll counts, #5 and #4 on even ones.
  std::pair<int, int> Roll(int choice, int rollCount) {
    if (choice == 7) {
      const DicePair d = DiceFromSingleDraw(static_cast<int32_t>(genrand_real2(mt) * 36));
      return {d.die1, d.die2};
    }
    const int base = choice == 5 ? (rollCount % 2 ? 0 : 4) : choice == 6 ? (rollCount % 2 ? 1 : 3) : choice;
    const int first = Face(Draw(base));
    return {first, Face(Draw(base))};
  }
};

}  // namespace

TEST(DrawDice, EachGeneratorDrawsFromItsBaseGenerators) {
  for (int choice : {0, 1, 3, 4, 5, 6, 7}) {
    Game g;
    SeedSilently(g, choice, 42);
    Reference reference(42);
    for (int i = 0; i < 1000; ++i) ASSERT_EQ(Roll(g), reference.Roll(choice, i)) << RngListText(choice) << " roll " << i;
    EXPECT_EQ(g.ErrorText, "");
  }
  // #8 splits its one draw: 0 is 1-1, 35 is 6-6, 6 is 1 and 2.
  const struct { int v, die1, die2; } splits[] = {{0, 1, 1}, {35, 6, 6}, {6, 1, 2}};
  for (const auto& s : splits) {
    EXPECT_EQ(DiceFromSingleDraw(s.v).die1, s.die1) << s.v;
    EXPECT_EQ(DiceFromSingleDraw(s.v).die2, s.die2) << s.v;
  }
}

TEST(DrawDice, SeedingAgainRepeatsTheStream) {
  for (int choice = 0; choice < kRngCount; ++choice) {
    Game g, fresh;
    SeedSilently(g, choice, 31337);
    for (int i = 0; i < 25; ++i) Roll(g);
    SeedSilently(g, choice, 31337);
    SeedSilently(fresh, choice, 31337);
    g.RollCounts[0] = 0;
    for (int i = 0; i < 50; ++i) ASSERT_EQ(Roll(g), Roll(fresh)) << RngListText(choice) << " roll " << i;
  }
}

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
  // Every face shows, and no other.
  int seen[8] = {};
  for (int i = 0; i < 6000; ++i) ++seen[RanMod(g, 6)];
  for (int face = 1; face <= 6; ++face) EXPECT_GT(seen[face], 800) << face;
  EXPECT_EQ(seen[0] + seen[7], 0);
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
