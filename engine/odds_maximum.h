#pragma once
// The most odds allowed behind a flat bet. docs/odds-limits.md gives the rule
// of each method with worked examples.

#include "dice/money.h"

struct OddsLimitInput {
  Currency multiple;      // X: OddsAllowed410, OddsAllowed59 or OddsAllowed68
  int method = 0;         // OddsCalcMethod 0..5
  Currency flat;          // the parent bet's amount
  Currency win, per;      // the odds bet's payoff (Come side)
  Currency smallestChip;
  Currency maxOddsBet;
  friend bool operator==(const OddsLimitInput&, const OddsLimitInput&) = default;
};

// The method that "Auto select" (0) stands for with this X: 4 for 1, 3 for 2,
// 5 for 3, 3 above 3. A fractional X, and 0 itself, keep method 0.
int ResolveOddsMethod(int method, Currency multiple);

// The smallest amount of whole chips that pays whole at win to per; any
// multiple of it pays whole too. A payoff that is not positive makes every
// chip pay whole, so the unit is the chip itself.
Currency PayoffUnit(Currency win, Currency per, Currency smallestChip);

// A pure function of its inputs. The result is a multiple of the smallest
// check, pays whole where the method asks for that, lies in 0..maxOddsBet.
Currency FigureOddsMaximum(const OddsLimitInput& in);

// Odds laid on the don't side: the take-odds maximum of `comeSide` turned
// into what must be laid to win it, through the lay's own payoff (ownWin to
// ownPer). Also within maxOddsBet and a multiple of the smallest check.
Currency FigureLayOddsMaximum(const OddsLimitInput& comeSide, Currency ownWin, Currency ownPer);
