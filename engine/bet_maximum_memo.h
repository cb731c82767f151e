#pragma once
// The maxima that are worked from payoff ratios (the proposition bets and the
// odds), kept with the figures they came from: every placement asks for its
// bet's maximum, and those figures seldom change between placements.

#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/catalogue.h"
#include "engine/odds_maximum.h"

struct BetMaximumMemo {
  // What every proposition maximum is worked from; the payoff rows stand in
  // by their version.
  struct PropLimits {
    uint32_t payoffVersion = 0;
    Currency tableMaximum, maxPropBetPayoff, smallestChip;
    friend bool operator==(const PropLimits&, const PropLimits&) = default;
  };
  static constexpr int kFirstProp = bet::kHard4;
  static constexpr int kProps = bet::kLastTableBet - kFirstProp + 1;
  PropLimits propLimits;
  std::array<Currency, kProps> prop{};
  std::array<bool, kProps> propKnown{};  // all false whenever propLimits move

  // One odds bet's maximum with everything it was worked from.
  struct Odds {
    OddsLimitInput in;
    Currency layWin, layPer;  // the Don't side's own payoff
    Currency maximum;
    bool known = false;
  };
  // The Don't Come and Come odds of each number, then the Pass and Don't
  // Pass odds of each point: the line odds keep a maximum for every point,
  // so that a new point finds its maximum known.
  static constexpr int kOddsSlots = 4 * 6;
  static int OddsSlot(int oddsId, int number) {
    if (bet::IsDontComeOdds(oddsId)) return oddsId - bet::kDontComeOddsBase;
    if (bet::IsComeOdds(oddsId)) return 6 + oddsId - bet::kComeOddsBase;
    return (oddsId == bet::kPassOdds ? 12 : 18) + bet::NumberIndex(number);
  }
  std::array<Odds, kOddsSlots> odds{};
};
