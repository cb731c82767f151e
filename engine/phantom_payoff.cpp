#include "engine/phantom_payoff.h"

namespace {

const Currency kUnit = 1;

// The record that pays a won line bet: the Come or Don't Come record of the
// point, or of the come-out.
const PayoffRecord& LineRecord(const PhantomRates& r, const ThrowFacts& t, int betId) {
  const int point = t.pointBefore;
  const bool onPoint = bet::IsPointNumber(point);
  switch (betId) {
    case bet::kPassLine: return r.payoff[onPoint ? bet::Come(point) : bet::kCome];
    case bet::kPassOdds: return r.payoff[onPoint ? bet::ComeOdds(point) : betId];
    case bet::kDontPass: return r.payoff[onPoint ? bet::DontCome(point) : bet::kDontCome];
    default: return r.payoff[onPoint ? bet::DontComeOdds(point) : betId];
  }
}

// The winning part pays by its own record, the other parts lose.
Currency SplitShare(const PhantomRates& r, const ThrowFacts& t, int betId) {
  const int total = t.Total();
  const int parts = betId == bet::kCandE ? 2 : betId == bet::kHorn ? 4 : 5;
  int part = bet::kTwelve;
  if (betId == bet::kCandE) part = total == 11 ? bet::kEleven : bet::kCraps;
  else if (total == 2) part = bet::kTwo;
  else if (total == 3) part = bet::kThree;
  else if (total == 7 && betId == bet::kWorld) part = bet::kSeven;
  else if (total == 11) part = bet::kEleven;
  const PayoffRecord& paid = r.payoff[part];
  if (paid.Per.raw == 0) return Currency{};
  return MulDiv(kUnit, paid.Win - paid.Per * (parts - 1), paid.Per * parts);
}

// A Lay or Buy: the vig comes off a win, and off a loss too when it is
// charged up front; the stake carries it on the same terms.
PhantomFigure WithVig(Currency raw, Currency vig, bool chargeAll) {
  if (raw > 0 || chargeAll) raw -= vig;
  return {raw > 0 || chargeAll ? kUnit + vig : kUnit, raw};
}

}  // namespace

PhantomFigure FigurePhantomInFull(const PhantomRates& r, const ThrowFacts& t, int betId, Outcome outcome) {
  const bool won = IsWin(outcome);
  if (bet::IsLay(betId)) {
    const Currency share = UnitShare(r.payoff[betId]);
    return WithVig(won ? share : -kUnit, MulRatio(share, r.layVigRate.ToDouble()), r.chargeAllLay);
  }
  if (bet::IsBuy(betId))
    return WithVig(won ? UnitShare(r.payoff[betId]) : -kUnit, MulRatio(kUnit, r.buyVigRate.ToDouble()),
                   r.chargeAllBuy);
  if (betId == bet::kCandE || betId == bet::kHorn || betId == bet::kWorld) return {kUnit, SplitShare(r, t, betId)};
  return {kUnit, UnitShare(LineRecord(r, t, betId))};
}
