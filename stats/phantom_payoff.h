#pragma once
// The phantom one-unit wager of every working spot, figured as the settling
// figures FigurePayoff (0, BetId, Outcome, 1), but without touching the
// payoff scratch of the real bet and without its rounding to checks, which
// the phantom does not use. It runs for every working spot on every
// decision, so each case is worked straight from the payoff rows.

#include "engine/game.h"

struct PhantomFigure {
  Currency Stake;  // 1, plus the vig where it is paid
  Currency Net;    // the raw payoff
};

PhantomFigure FigurePhantom(const Game& g, int betId, int outcome);

// Figures and books the phantom unit of betId, when one stands there.
void BookPhantomResult(Game& g, int betId, int outcome);
