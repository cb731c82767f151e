#pragma once
// Percentage dice: one number x from a generator picks an outcome by walking
// the probability table in a fixed order.

#include <cstdint>

#include "dice/dice_pair.h"
#include "dice/prob_table.h"

struct DiceState;

// The plain uniform generator of the program (the dice animation's too): a
// 24-bit congruential step, never seeded by the player.
constexpr uint32_t kRndStartState = 0x50000;
double Rnd(uint32_t& state);

// Walks the outcomes (1,1) .. (1,6), (2,6) .. (6,6), (2,1) .. and last (6,1);
// the outcome whose interval holds x is the roll. When x lies beyond the
// table's sum, a new x is drawn from Rnd and the walk repeats without
// resetting its running sum. Allocates nothing.
DicePair DrawSkewed(const ProbTable& t, int32_t x, uint32_t& rndState);

// Sets Die1 and Die2 from x and the dice's table.
void DrawSkewed(DiceState& d, int32_t x);
