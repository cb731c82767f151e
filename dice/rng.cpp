#include "dice/rng.h"

#include <cmath>
#include <limits>

#include "dice/dice_state.h"
#include "dice/skewed_draw.h"

namespace {

constexpr int32_t kModM = 714025, kModA = 1366, kModC = 150889;

// The generators a roll can come from; #6 to #8 are made of these.
enum class Base { Mt, Cokus, Mod, Ran2, Ran1 };

bool FitsInt32(int64_t v) {
  return v >= std::numeric_limits<int32_t>::min() && v <= std::numeric_limits<int32_t>::max();
}

// #6 and #7 alternate by the roll count before this roll is booked, so a
// game's first roll takes the Ran1 or Ran2 half.
Base BaseForRoll(const DiceState& g, int32_t rollCount) {
  bool oddRoll = (rollCount & 1) != 0;
  switch (g.RngChoice) {
    case 1: return Base::Cokus;
    case 2: return Base::Mod;
    case 3: return Base::Ran2;
    case 4: return Base::Ran1;
    case 5: return oddRoll ? Base::Mt : Base::Ran1;
    case 6: return oddRoll ? Base::Cokus : Base::Ran2;
    default: return Base::Mt;  // #1 and #8; an unknown index falls back to #1
  }
}

// A uniform draw in [0,1) from a base generator other than #3.
double UnitDraw(DiceState& g, Base base, std::string& errorText) {
  int32_t idum = 1;
  switch (base) {
    case Base::Cokus: return randomMT(g.Rng.cokus);
    case Base::Ran2: return Ran2(g.Rng.ran2, idum, errorText);
    case Base::Ran1: return Ran1(g.Rng.ran1, idum, errorText);
    default: return genrand_real2(g.Rng.mt);
  }
}

int32_t Die(DiceState& g, Base base, std::string& errorText) {
  if (base == Base::Mod) return RanMod(g, 6);
  return static_cast<int32_t>(UnitDraw(g, base, errorText) * 6) + 1;
}

}  // namespace

const char* RngListText(int rngChoice) {
  static constexpr const char* kTexts[kRngCount] = {
      "RNG #1", "RNG #2", "RNG #3", "RNG #4", "RNG #5",
      "RNG #6 (#1 and #5)", "RNG #7 (#2 and #4)", "RNG #8 (#1 single call)"};
  return rngChoice >= 0 && rngChoice < kRngCount ? kTexts[rngChoice] : "";
}

int32_t RanMod(DiceState& g, int32_t range) {
  // The step is meant for 32-bit signed arithmetic. A seed too large for it
  // (any generator's seed lands in ModSeed) is cut by a hundred until the
  // step fits; after one step ModSeed is below 714025 and always fits.
  for (;;) {
    int64_t product = int64_t{g.ModSeed} * kModA;
    int64_t sum = product + kModC;
    if (FitsInt32(product) && FitsInt32(sum)) {
      g.ModSeed = static_cast<int32_t>(sum % kModM);
      break;
    }
    g.ModSeed = static_cast<int32_t>(std::nearbyint(g.ModSeed / 100.0));
  }
  return static_cast<int32_t>(std::floor(g.ModSeed / static_cast<double>(kModM) * range)) + 1;
}

void DrawDice(DiceState& g, int32_t rollCount, std::string& errorText) {
  // Percentage dice: one draw per roll, mapped to a pair by the table.
  if (g.UseSkewedProbability) return DrawSkewed(g, DrawPercentageX(g, rollCount, errorText));
  if (g.RngChoice == 7) {
    DicePair pair = DiceFromSingleDraw(static_cast<int32_t>(genrand_real2(g.Rng.mt) * 36));
    g.Die1 = pair.die1;
    g.Die2 = pair.die2;
    return;
  }
  Base base = BaseForRoll(g, rollCount);
  g.Die1 = Die(g, base, errorText);
  g.Die2 = Die(g, base, errorText);
}

int32_t DrawPercentageX(DiceState& g, int32_t rollCount, std::string& errorText) {
  constexpr int32_t kScale = 100000;
  Base base = BaseForRoll(g, rollCount);
  switch (base) {
    case Base::Mod:
      return RanMod(g, kScale);
    case Base::Ran1:
    case Base::Ran2:
      // Rounded, not floored, so these two can reach 100,001.
      return static_cast<int32_t>(std::nearbyint(UnitDraw(g, base, errorText) * kScale)) + 1;
    default:
      return static_cast<int32_t>(UnitDraw(g, base, errorText) * kScale) + 1;
  }
}
