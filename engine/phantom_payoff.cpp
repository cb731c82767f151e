#include "engine/phantom_payoff.h"

namespace {

const Currency kUnit = 1;

// The record that pays a won line bet: the Come or Don't Come record of the
// point, or of the come-out.
const PayoffRecord& LineRecord(const Game& g, const ThrowFacts& t, int betId) {
  const int point = t.pointBefore;
  const bool onPoint = bet::IsPointNumber(point);
  switch (betId) {
    case bet::kPassLine: return g.Payoff[onPoint ? bet::Come(point) : bet::kCome];
    case bet::kPassOdds: return g.Payoff[onPoint ? bet::ComeOdds(point) : betId];
    case bet::kDontPass: return g.Payoff[onPoint ? bet::DontCome(point) : bet::kDontCome];
    default: return g.Payoff[onPoint ? bet::DontComeOdds(point) : betId];
  }
}

// The winning part pays by its own record, the other parts lose.
Currency SplitShare(const Game& g, const ThrowFacts& t, int betId) {
  const int total = t.Total();
  const int parts = betId == bet::kCandE ? 2 : betId == bet::kHorn ? 4 : 5;
  int part = bet::kTwelve;
  if (betId == bet::kCandE) part = total == 11 ? bet::kEleven : bet::kCraps;
  else if (total == 2) part = bet::kTwo;
  else if (total == 3) part = bet::kThree;
  else if (total == 7 && betId == bet::kWorld) part = bet::kSeven;
  else if (total == 11) part = bet::kEleven;
  const PayoffRecord& paid = g.Payoff[part];
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

PhantomFigure FigurePhantomInFull(const Game& g, const ThrowFacts& t, int betId, Outcome outcome) {
  const bool won = IsWin(outcome);
  if (bet::IsLay(betId)) {
    const Currency share = UnitShare(g.Payoff[betId]);
    return WithVig(won ? share : -kUnit, MulRatio(share, g.LayVigRate.ToDouble()), g.ChargeAllLay);
  }
  if (bet::IsBuy(betId))
    return WithVig(won ? UnitShare(g.Payoff[betId]) : -kUnit, MulRatio(kUnit, g.BuyVigRate.ToDouble()),
                   g.ChargeAllBuy);
  if (betId == bet::kCandE || betId == bet::kHorn || betId == bet::kWorld) return {kUnit, SplitShare(g, t, betId)};
  return {kUnit, UnitShare(LineRecord(g, t, betId))};
}
