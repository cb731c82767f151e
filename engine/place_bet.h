#pragma once
// The one gate through which every change of a bet or Chip-Stack passes.

#include "dice/money.h"

struct Game;

// Applies g.BetChange to betId under every rule of the table; the change made
// is left in g.BetChangeAllowed. Refusals shrink the change, never fail.
// Slots 0 and 84..99 take the change with no rule; Chip-Stacks (100..200)
// only keep within +-99,999,999,999,999.9999.
// On return g.MsgText and g.MsgTitle hold the last refusal or limit notice
// composed, whether the notice mask let it show or not; both are empty when
// the change went through as asked. A betId outside 0..200 changes nothing.
void PlaceBet(Game& g, int betId);
// PlaceBet without its shortcuts for the commonest placements: what each
// shortcut must end as.
void PlaceBetThroughEveryRule(Game& g, int betId);
// PlaceBet, then the chips are drawn and automatic odds re-applied.
void PlaceBetOnTable(Game& g, int betId);
// The most that may stand on betId now, a multiple of the smallest check.
// For slots that are no table bet it is the table maximum.
Currency GetBetMaximum(const Game& g, int betId);
// Removes a bet through the normal path, then asks for 9,999,999 so that the
// rules cut it to the most allowed. Notices are silenced meanwhile, and the
// pending message is left as it was found.
void SetBetToMaximum(Game& g, int betId);
// Removes a bet through the normal placement path.
void TakeDownBet(Game& g, int betId);
// Takes a table bet down and puts its amount back, leaving the table exactly
// as those two PlaceBetOnTable calls would, without walking the rules twice.
// Returns false, having changed nothing, for a bet that a contract, odds or
// vig rule governs, or that is not up: those go through the two placements.
bool RestateBet(Game& g, int betId);
