#pragma once
// The most odds allowed behind a flat bet.

#include "engine/money.h"

struct OddsLimitInput {
  Currency multiple;      // X: OddsAllowed410, OddsAllowed59 or OddsAllowed68
  int method = 0;         // OddsCalcMethod 0..5
  Currency flat;          // the parent bet's amount
  Currency win, per;      // the odds bet's payoff (Come side)
  Currency smallestChip;
  Currency maxOddsBet;
};

// A pure function of its inputs; the result pays a whole number of smallest
// checks where the method asks for that, and never exceeds maxOddsBet.
Currency FigureOddsMaximum(const OddsLimitInput& in);
