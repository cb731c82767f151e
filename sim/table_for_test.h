#pragma once
// Tests only: the game behind a Table, to stage a state no command reaches
// (a bankroll beyond the bank limit, a script edited elsewhere).

#include "engine/game.h"
#include "sim/table.h"

struct TableForTest {
  static Game& Staged(Table& table) { return *table.game_; }
};
