#pragma once
// A table with no game file behind it: the built-in defaults, then the first
// roll. Every such table is built here, whether a screen or a batch run
// plays it, so that both start from the same game.

#include <optional>

#include "dice/money.h"

struct Game;

struct FreshTable {
  bool reSeed = true;                // the new game seeds its generator
  std::optional<Currency> bankroll;  // the starting bankroll; default the table's
};

void SetUpFreshTable(Game& g, const FreshTable& how);

// The generator (1..8) a fresh table plays: a run's games when none is given.
int DefaultGeneratorNumber();
