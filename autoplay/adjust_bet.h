#pragma once
// Nudges a requested change so that the bet pays whole.

#include "engine/money.h"

struct Game;

// Takes the requested change and returns the adjusted one. With no candidate
// placeable it returns 0 and leaves the refusal in g.MsgText and g.MsgTitle.
Currency AdjustBet(Game& g, int betId, Currency requestedChange);

// Sets AutoAdjustMode (0..2); a mode above 0 adjusts the bets on the table.
void SetAutoAdjustMode(Game& g, int mode);
