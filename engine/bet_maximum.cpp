// GetBetMaximum: the most that may stand on a bet now.

#include <algorithm>
#include <initializer_list>

#include "engine/game.h"
#include "engine/odds_maximum.h"
#include "engine/place_bet.h"

namespace {

Currency RoundDownToChip(const Game& g, Currency amount) {
  if (amount.raw <= 0) return 0;
  Currency chip = g.SmallestChip();
  if (chip.raw <= 0) return amount;
  // A $1 check is the common case, and a constant divisor is cheap.
  if (chip.raw == Currency::kScale) return Currency::FromRaw(amount.raw / Currency::kScale * Currency::kScale);
  return Currency::FromRaw(amount.raw / chip.raw * chip.raw);
}

double Ratio(const PayoffRecord& p) { return p.Per.raw > 0 ? p.Win.ToDouble() / p.Per.ToDouble() : 0.0; }

// MaxPropBetPayoff over what one unit of the bet nets; `fallback` when the
// bet cannot win (a payoff that is not positive sets no payoff limit).
Currency PropMaximum(const Game& g, double netPerUnit, Currency fallback) {
  if (netPerUnit <= 0) return fallback;
  return RoundDownToChip(g, Currency::FromDouble(g.MaxPropBetPayoff.ToDouble() / netPerUnit));
}

double LargestRatio(const Game& g, std::initializer_list<int> bets) {
  double r = 0;
  for (int id : bets) r = std::max(r, Ratio(g.Payoff[id]));
  return r;
}

Currency OddsMultiple(const Game& g, int number) {
  if (number == 4 || number == 10) return g.OddsAllowed410;
  if (number == 5 || number == 9) return g.OddsAllowed59;
  return g.OddsAllowed68;
}

// The number an odds bet rides on: its own, or the point for the line odds.
int OddsNumber(const Game& g, int oddsId) {
  if (oddsId == bet::kPassOdds || oddsId == bet::kDontPassOdds) return g.Point;
  if (bet::IsComeOdds(oddsId)) return bet::NumberAt(oddsId - bet::kComeOddsBase);
  return bet::NumberAt(oddsId - bet::kDontComeOddsBase);
}

// Out of line, as every figuring of a maximum is: the placements ask for a
// bet's maximum several times a roll, and nearly always find it known.
[[gnu::noinline]] Currency FigureOddsMaximumOf(const Game& g, int oddsId, int number, const OddsLimitInput& in,
                                              const PayoffRecord& lay) {
  const bool takeSide = oddsId == bet::kPassOdds || bet::IsComeOdds(oddsId);
  BetMaximumMemo::Odds& memo = g.MaximumMemo.odds[BetMaximumMemo::OddsSlot(oddsId, number)];
  memo = {in, lay.Win, lay.Per,
          RoundDownToChip(g, takeSide ? FigureOddsMaximum(in) : FigureLayOddsMaximum(in, lay.Win, lay.Per)), true};
  return memo.maximum;
}

Currency OddsMaximum(const Game& g, int oddsId) {
  int number = OddsNumber(g, oddsId);
  if (!bet::IsPointNumber(number)) return 0;
  // Both sides are figured from the take odds of the number; the line odds
  // records only copy those rows while a point is on.
  const PayoffRecord& take = g.Payoff[bet::ComeOdds(number)];
  OddsLimitInput in;
  in.multiple = OddsMultiple(g, number);
  in.method = g.OddsCalcMethod;
  in.flat = g.BetAmount[bet::ParentOf(oddsId)];
  in.win = take.Win;
  in.per = take.Per;
  in.smallestChip = g.SmallestChip();
  in.maxOddsBet = g.MaxOddsBet;
  const PayoffRecord& lay = g.Payoff[bet::DontComeOdds(number)];

  const BetMaximumMemo::Odds& memo = g.MaximumMemo.odds[BetMaximumMemo::OddsSlot(oddsId, number)];
  if (memo.known && memo.in == in && memo.layWin == lay.Win && memo.layPer == lay.Per) return memo.maximum;
  return FigureOddsMaximumOf(g, oddsId, number, in, lay);
}

// The maximum of a proposition bet, worked from the payoff ratios.
[[gnu::noinline]] Currency FigurePropMaximum(const Game& g, int betId, Currency start) {
  // The split bets: the winning part is paid by its own number's record while
  // the other parts lose, so the largest of those ratios decides.
  switch (betId) {
    case bet::kCandE:
      return PropMaximum(g, LargestRatio(g, {bet::kCraps, bet::kEleven}) / 2 - 0.5, start);
    case bet::kHorn:
      return PropMaximum(g, LargestRatio(g, {bet::kTwo, bet::kThree, bet::kEleven, bet::kTwelve}) / 4 - 0.75,
                         start);
    case bet::kWorld:
      return PropMaximum(
          g, LargestRatio(g, {bet::kTwo, bet::kThree, bet::kSeven, bet::kEleven, bet::kTwelve}) / 5 - 0.8, start);
    default:
      return PropMaximum(g, Ratio(g.Payoff[betId]), start);
  }
}

Currency PropMaximumOf(const Game& g, int betId, Currency start) {
  BetMaximumMemo& memo = g.MaximumMemo;
  const BetMaximumMemo::PropLimits now{g.Payoff.Version(), g.TableMaximum, g.MaxPropBetPayoff, g.SmallestChip()};
  if (!(memo.propLimits == now)) {
    memo.propLimits = now;
    memo.propKnown = {};
  }
  const int slot = betId - BetMaximumMemo::kFirstProp;
  if (!memo.propKnown[slot]) {
    memo.prop[slot] = FigurePropMaximum(g, betId, start);
    memo.propKnown[slot] = true;
  }
  return memo.prop[slot];
}

}  // namespace

Currency GetBetMaximum(const Game& g, int betId) {
  if (bet::IsTableBet(betId) && bet::IsOdds(betId)) return OddsMaximum(g, betId);
  const Currency start = RoundDownToChip(g, g.TableMaximum);
  if (!bet::IsTableBet(betId)) return start;
  return betId >= BetMaximumMemo::kFirstProp ? PropMaximumOf(g, betId, start) : start;
}
