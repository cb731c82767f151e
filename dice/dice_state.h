#pragma once
// What the dice themselves hold: the selected generator and the state of
// every generator, the percentage table, and the pair last thrown. The game
// is made of it, so the generators take only this part of a game.

#include <cstdint>

#include "dice/generators.h"
#include "dice/prob_table.h"
#include "dice/skewed_draw.h"

struct DiceState {
  int32_t Die1 = 3, Die2 = 4;
  int32_t RngChoice = 0;
  int32_t ModSeed = 0;  // generator #3's state, and where every seed lands first
  bool UseSkewedProbability = false;
  Generators Rng;
  // The table the roll walks when UseSkewedProbability is set.
  ProbTable Prob = TrueTable();
  uint32_t RndState = kRndStartState;  // Rnd, for the second walk of a short table
};
