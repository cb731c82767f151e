#pragma once
// Nudges a requested change so that the bet pays whole.

#include "dice/money.h"

struct Game;

// Takes the requested change and returns the adjusted one. With no candidate
// placeable it returns 0 and leaves the refusal in g.MsgText and g.MsgTitle.
// `neverUp` takes the lower candidate whatever the bias: the request was
// already cut to what the bankroll holds.
Currency AdjustBet(Game& g, int betId, Currency requestedChange, bool neverUp = false);

// Sets AutoAdjustMode (0..2); a mode above 0 adjusts the bets on the table.
void SetAutoAdjustMode(Game& g, int mode);
