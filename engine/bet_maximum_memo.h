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
  // The odds bets lie among the Don't Come odds (the first) and the Don't
  // Pass odds (the last); the slots between cost little.
  static constexpr int kFirstOdds = bet::kDontComeOddsBase;
  std::array<Odds, bet::kDontPassOdds - kFirstOdds + 1> odds{};
};
