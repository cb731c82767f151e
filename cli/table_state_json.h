#pragma once
// The `state` object of the play protocol: the table as a client sees it.

#include "cli/json_lines.h"

struct Game;

Json TableStateJson(const Game& g);
