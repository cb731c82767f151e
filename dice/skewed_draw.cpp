#include "dice/skewed_draw.h"

#include <array>

#include "dice/dice_state.h"

namespace {

struct WalkStep {
  int8_t row, column, die1, die2;
};

constexpr std::array<WalkStep, 36> MakeWalk() {
  std::array<WalkStep, 36> walk{};
  int i = 0;
  for (int c = 2; c <= 7; ++c)
    for (int r = c - 1; r <= 13 - c; ++r)
      walk[i++] = {static_cast<int8_t>(r), static_cast<int8_t>(c),
                   static_cast<int8_t>(r < 7 ? c - 1 : c + r - 7), static_cast<int8_t>(r < 7 ? r - c + 2 : 8 - c)};
  return walk;
}

constexpr std::array<WalkStep, 36> kWalk = MakeWalk();

}  // namespace

double Rnd(uint32_t& state) {
  state = (state * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
  return state / 16777216.0;
}

DicePair DrawSkewed(const ProbTable& t, int32_t x, uint32_t& rndState) {
  int64_t cum = 0;
  for (;;) {
    const int64_t cumBefore = cum;
    int64_t prev = 0;
    for (const WalkStep& s : kWalk) {
      cum += t.at(s.row, s.column).value;
      if (x <= cum && x > prev) return {s.die1, s.die2};
      prev = cum;
    }
    // A table with no weight at all (only a damaged file has one) would walk
    // forever; it gives the dice of x as if every outcome were equal.
    if (cum <= cumBefore) return DiceFromSingleDraw(((x - 1) % 36 + 36) % 36);
    x = static_cast<int32_t>(Rnd(rndState) * 100000) + 1;
  }
}

void DrawSkewed(DiceState& g, int32_t x) {
  const DicePair pair = DrawSkewed(g.Prob, x, g.RndState);
  g.Die1 = pair.die1;
  g.Die2 = pair.die2;
}
