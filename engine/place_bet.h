#pragma once
// The one gate through which every change of a bet or Chip-Stack passes.

#include "engine/money.h"

struct Game;

// Applies g.BetChange to betId under every rule of the table; the change made
// is left in g.BetChangeAllowed. Refusals shrink the change, never fail.
void PlaceBet(Game& g, int betId);
// PlaceBet, then the chips are drawn and automatic odds re-applied.
void PlaceBetOnTable(Game& g, int betId);
// The most that may stand on betId now, a multiple of the smallest check.
Currency GetBetMaximum(const Game& g, int betId);
// Removes a bet through the normal path, then asks for 9,999,999 so that the
// rules cut it to the most allowed. Notices are silenced meanwhile.
void SetBetToMaximum(Game& g, int betId);
// Removes a bet through the normal placement path.
void TakeDownBet(Game& g, int betId);
