#pragma once
// The totals of the bet-result tables over every bet, for one kind (0
// phantom, 1 actual): what the games log and the reports read.

#include <array>

#include "engine/money.h"

struct Game;

struct BetTotalsRecord {
  // Index = measure: 1 entries, 2 amount, 3 high, 4 low, 5 last, 6 and 7 the
  // last roll's entries and amount. Element 0 is unused.
  std::array<Currency, 8> Wagers{}, Wins{}, Losses{};
};

BetTotalsRecord BetTotals(const Game& g, int kind);
