#pragma once
// From nothing to a table, and back to the first roll.

#include <string>

struct Game;

// The headless start-up: seeds every generator, fills the catalogue, the
// defaults and the payoffs, then opens the default game of `folder` (or, with
// none there yet, starts a new game).
void StartUp(Game& g, const std::string& folder);
// Fills the built-in defaults of every setting, the catalogue and payoffs.
void FillDefaults(Game& g);
// Resets the table to its first roll. keepChipStacks keeps the Chip-Stacks.
void NewGame(Game& g, bool keepChipStacks);
