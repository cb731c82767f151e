#pragma once
// The bets that span rolls from a come-out: Pass Line and Come, Don't Pass
// and Don't Come, and the line odds while no point is on.

#include "stats/bet_ends.h"

struct Game;

// Pass Line and Come: 7 and 11 win by the Come record, 2, 3 and 12 lose; a
// point wins by its Come record before a 7, which loses.
BetEnds DoEnds(const Game& g, const PairProbabilities& p);
// Don't Pass and Don't Come: the ends exchanged, paid by the Don't Come
// records, and the barred number (both 2 and 12 for a bar of neither) a push.
BetEnds DontEnds(const Game& g, const PairProbabilities& p);
// Pass Line Odds or Don't Pass Odds taken on whatever point comes: each point
// weighted by its chance among the points, one decision per point.
BetEnds LineOddsEnds(const Game& g, const PairProbabilities& p, bool pass);
