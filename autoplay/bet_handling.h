#pragma once
// What happens to a bet once it has won or lost: the vig is settled, then the
// bet is taken down, kept or re-bet by the player's choice.

#include "engine/frontend.h"

struct Game;

// Entries of ModifyOperator, ModifyAmount and ModifyUnits: each "Same Bet:"
// and "Bet:" form keeps its own.
enum ModifyEntry {
  kModifyWonSame, kModifyWonBet, kModifyLostSame, kModifyLostBet, kModifyDialogSame, kModifyDialogBet,
};

// Called by settlement for a decided bet, with g.NetPayoff holding the result
// and g.BetAtRollStart the bet's amount before the roll. With a notice, the
// player chooses in it; without one, the Auto-Play option decides.
void WonBetHandling(Game& g, int betId, const SettleNotice* notice = nullptr);
void LostBetHandling(Game& g, int betId, const SettleNotice* notice = nullptr);
