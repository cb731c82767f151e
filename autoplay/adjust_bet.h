#pragma once
// Nudges a requested change so that the bet pays whole.

#include "engine/money.h"

struct Game;

// Takes the requested change and returns the adjusted one.
Currency AdjustBet(Game& g, int betId, Currency requestedChange);
