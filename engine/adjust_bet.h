#pragma once
// Nudges a requested change so that the bet pays whole.

#include "dice/money.h"

struct Game;

// Takes the requested change and returns the adjusted one. With no candidate
// placeable it returns 0 and leaves the refusal in g.MsgText and g.MsgTitle.
// `neverUp` takes the lower candidate whatever the bias: the request was
// already cut to what the bankroll holds.
Currency AdjustBet(Game& g, int betId, Currency requestedChange, bool neverUp = false);

// Whether AdjustBet leaves the request as it is because no adjustment applies
// or the bet then pays whole: its first step, which works nothing else out
// and leaves no message. False says only that the adjustment has more to do.
bool PaysWholeAsAsked(Game& g, int betId, Currency requestedChange);

// Sets AutoAdjustMode (0..2); a mode above 0 adjusts the bets on the table.
void SetAutoAdjustMode(Game& g, int mode);
