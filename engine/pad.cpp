#include "engine/pad.h"

#include <chrono>
#include <random>

#include "engine/game.h"
#include "engine/roll.h"

int CombinationCount(int total) { return total < 2 || total > 12 ? 0 : 6 - (total > 7 ? total - 7 : 7 - total); }

void CombinationDice(int total, int k, int& die1, int& die2) {
  die1 = k + (total > 7 ? total - 7 : 0);
  die2 = total - die1;
}

void PadRoll(Game& g, int die1, int die2) {
  g.Die1 = die1;
  g.Die2 = die2;
  g.DiceAlreadySet = true;
  RollDice(g);
}

void PadRollTotal(Game& g, int total) {
  const int count = CombinationCount(total);
  if (count == 0) return;
  // The library's uniform draw, not one of the numbered generators.
  std::minstd_rand rnd(static_cast<uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
  const int k = std::uniform_int_distribution<int>(1, count)(rnd);
  int die1 = 0, die2 = 0;
  CombinationDice(total, k, die1, die2);
  PadRoll(g, die1, die2);
}
