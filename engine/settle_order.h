#pragma once
// The settling of one throw: every SettleBet call in its fixed order.

struct Game;

// Whether any real bet won or lost on the throw, for the Auto-Roll stops.
struct ThrowDecisions {
  bool anyWon = false;
  bool anyLost = false;
};

// Settles the point made, the bets of the total and what every roll
// settles, moving Come and Don't Come box bets to their numbers on the way.
ThrowDecisions SettleTheThrow(Game& g);
