#pragma once
// One throw of the two dice.

#include <cstdint>

struct DicePair {
  int32_t die1, die2;
};

// Generator #8 turns one draw v in 0..35 into both dice.
constexpr DicePair DiceFromSingleDraw(int32_t v) { return {v - 6 * (v / 6) + 1, v / 6 + 1}; }
