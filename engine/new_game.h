#pragma once
// A table's defaults, and the table back to its first roll.

struct Game;

// Fills the built-in defaults of every setting, the catalogue and payoffs.
void FillDefaults(Game& g);
// Resets the table to its first roll. keepChipStacks keeps the Chip-Stacks.
void NewGame(Game& g, bool keepChipStacks);
