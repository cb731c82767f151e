#pragma once
// What happens to a bet once it has won or lost.

struct Game;

// Called by settlement for a decided bet, with g.NetPayoff holding the result.
// previousAmount is the bet's amount before the roll.
void WonBetHandling(Game& g, int betId);
void LostBetHandling(Game& g, int betId);
