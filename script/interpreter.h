#pragma once
// One pass over the Auto-Bet script, and the snapshots that the next pass
// compares with.

#include "engine/game.h"

void RunAutoBet(Game& g);

// Copies what the next pass sees as "previous": the table of amounts after
// the roll, every flag's value and the roll count.
void TakeScriptSnapshots(Game& g);

// When the script has changed (InitPending) and Auto-Bet is on with at least
// one line, offers one cycle before the next roll. Clears InitPending.
void OfferInitialCycle(Game& g);
