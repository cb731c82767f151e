#pragma once
// From nothing to a table: the program's start with a data folder.

#include <string>

struct Game;

// The headless start-up: seeds every generator, fills the catalogue, the
// defaults and the payoffs, then opens the default game of `folder` (or, with
// none there yet, starts a new game).
void StartUp(Game& g, const std::string& folder);
