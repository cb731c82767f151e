#pragma once
// The `state` object of the play protocol: the table as a client sees it.

#include "sim/money_json.h"

struct Game;

Json TableStateJson(const Game& g);
