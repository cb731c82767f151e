#include "engine/adjust_bet.h"

#include <cmath>
#include <string>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/place_bet.h"

namespace {

// The payoff a bet is paid by; the line bets borrow the row of their point.
const PayoffRecord& PayoffOf(const Game& g, int id) {
  const bool point = bet::IsPointNumber(g.Point);
  switch (id) {
    case bet::kPassLine: return g.Payoff[point ? bet::Come(g.Point) : bet::kCome];
    case bet::kPassOdds: return g.Payoff[point ? bet::ComeOdds(g.Point) : id];
    case bet::kDontPass: return g.Payoff[point ? bet::DontCome(g.Point) : bet::kDontCome];
    case bet::kDontPassOdds: return g.Payoff[point ? bet::DontComeOdds(g.Point) : id];
    default: return g.Payoff[id];
  }
}

Currency Times(Currency a, Currency b) {
  // A whole Per multiplies exactly: no rounding to work out.
  int64_t product = 0;
  if (b.IsWhole() && !__builtin_mul_overflow(a.raw, b.raw / Currency::kScale, &product))
    return Currency::FromRaw(product);
  return MulDiv(a, b, Currency(1));
}

// new / unit to four places, so that a quotient within rounding of a whole
// number counts as whole.
Currency Quotient(Currency amount, Currency unit) {
  return Currency::FromDouble(std::round(amount.ToDouble() / unit.ToDouble() * 1e9) / 1e9);
}

struct Candidates {
  Currency down, up;
  bool whole = false;
};

Candidates Figure(Currency amount, Currency request, Currency unit) {
  // The quotient new / unit comes back as money, to four places: it counts as
  // whole when it is within half a ten-thousandth of a whole number (a tie
  // rounds to the even, whole, side). Worked exactly on the raw counts.
  const Currency target = amount + request;
  int64_t whole = target.raw / unit.raw;
  int64_t remainder = target.raw % unit.raw;
  if (remainder < 0) {
    --whole;
    remainder += unit.raw;
  }
  __extension__ typedef __int128 Wide;
  const Wide twice = static_cast<Wide>(Currency::kScale) * 2;
  if (remainder * twice <= unit.raw || (unit.raw - remainder) * twice <= unit.raw) return {request, request, true};
  return {unit * whole - amount, unit * (whole + 1) - amount, false};
}

// The check of the bet's colour: the largest that the amount is a whole
// number (above one) of, and whose payoff unit fits within the amount.
Currency ColourUnit(const Game& g, Currency a, Currency per) {
  for (int k = bet::kLastChip; k >= bet::kFirstChip; --k) {
    const Currency check = g.BetAmount[k];
    if (check <= 0 || a.raw % check.raw != 0 || a.raw / check.raw <= 1) continue;
    if (Times(check, per) <= a) return Times(check, per);
  }
  return 0;
}

int BiasOf(const Game& g, int id) {
  if (bet::IsLay(id)) return g.LayBias;
  if (bet::IsPlace(id)) return g.PlaceBias;
  if (id == bet::kPassOdds || bet::IsComeOdds(id)) return g.DoBias;
  if (id == bet::kDontPassOdds || bet::IsDontComeOdds(id)) return g.DontBias;
  return 0;
}

Currency Pick(int bias, Currency request, const Candidates& c) {
  if (bias == 1) return c.up;
  if (bias == 2) return c.down;
  return Abs(c.up - request) < Abs(request - c.down) ? c.up : c.down;
}

bool IsFlatWithLimit(int id) {
  return bet::IsComeNumber(id) || bet::IsDontComeNumber(id) || id == bet::kPassLine || id == bet::kDontPass;
}

Currency MinimumOf(const Game& g, int id) {
  return bet::IsHardWay(id) || id >= bet::kTwo ? g.SmallestChip() : g.TableMinimum;
}

void Refuse(Game& g, const std::string& what, const std::string& title, Currency amount) {
  g.MsgText = "Unable to auto-adjust bet for proper odds payoff." + std::string(kTwoBreaks) + what +
              " bet for proper odds payoff here is $" + FormatNumberWithCommas(amount);
  g.MsgTitle = title;
}

// Whether amount + request pays whole at a check times per, remembered when
// it does. Out of line, as the adjustment proper is: the known amounts, most
// of a run's placements, then cost the caller only a few loads and compares.
[[gnu::noinline]] bool FoundToPayWhole(Game& g, int betId, Currency request, Currency per, Currency chip) {
  const Currency amount = g.BetAmount[betId];
  if (!Figure(amount, request, Times(chip, per)).whole) return false;
  g.WholePayoffs.Remember(betId, amount + request, per, chip);
  return true;
}

// The adjustment proper, for an amount that does not pay whole as asked.
[[gnu::noinline]] Currency AdjustToWholePayoff(Game& g, int betId, Currency request, bool neverUp) {
  const Currency amount = g.BetAmount[betId];
  const Currency per = PayoffOf(g, betId).Per;
  Currency unit = Times(g.SmallestChip(), per);
  Candidates c = Figure(amount, request, unit);

  const Currency maximum = GetBetMaximum(g, betId);
  // A full-odds request is the maximum the odds rule figured; it stands as
  // asked, whatever that rule made of the payoff.
  const bool fullOddsRow = bet::IsOdds(betId) || bet::IsComeNumber(betId);
  if (fullOddsRow && amount + request == maximum) return request;
  const int mode = g.AutoAdjustMode;
  if (mode == 2) {
    const Currency colour = ColourUnit(g, request != 0 ? Abs(request) : amount, per);
    if (colour > 0) {
      unit = colour;
      c = Figure(amount, request, unit);
      if (c.whole) return request;
    }
  }

  neverUp = neverUp || g.AdjustDownOnly;
  Currency chosen = Pick(neverUp ? 2 : BiasOf(g, betId), request, c);
  const Currency minimum = MinimumOf(g, betId);
  auto placeable = [&](Currency change) {
    const Currency after = amount + change;
    return after <= maximum && (after >= minimum || (after == 0 && request <= 0));
  };
  if (IsFlatWithLimit(betId) && !placeable(c.up)) chosen = c.down;
  if (placeable(chosen)) return chosen;
  if (neverUp) return 0;
  const Currency other = chosen == c.up ? c.down : c.up;
  if (placeable(other)) return other;

  // Neither lands on a whole payoff within the limits.
  if (request > 0)
    Refuse(g, "Maximum", "Maximum", unit * Floor(Quotient(maximum, unit)));
  else
    Refuse(g, "Minimum", "Minimum", unit * (Floor(Quotient(minimum - Currency::FromRaw(1), unit)) + 1));
  return 0;
}

}  // namespace

bool PaysWholeAsAsked(Game& g, int betId, Currency request) {
  if (g.AutoAdjustMode <= 0 || !bet::IsTableBet(betId)) return true;
  const Currency amount = g.BetAmount[betId];
  // Nothing left standing pays a payoff to be made whole.
  if (amount + request <= 0) return true;
  const Currency per = PayoffOf(g, betId).Per;
  const Currency chip = g.SmallestChip();
  if (per <= 0 || chip <= 0) return true;
  return g.WholePayoffs.Knows(betId, amount + request, per, chip) || FoundToPayWhole(g, betId, request, per, chip);
}

Currency AdjustBet(Game& g, int betId, Currency request, bool neverUp) {
  if (PaysWholeAsAsked(g, betId, request)) return request;
  return AdjustToWholePayoff(g, betId, request, neverUp);
}

void SetAutoAdjustMode(Game& g, int mode) {
  if (mode < 0 || mode > 2) return;
  g.AutoAdjustMode = mode;
  if (mode == 0) return;
  // Each bet is put back through the placement, which adjusts it.
  const int32_t mask = g.NoticeMask;
  const Currency request = g.BetChange;
  g.NoticeMask = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    if (g.BetAmount[id] <= 0) continue;
    g.BetChange = 0;
    const Currency amount = g.BetAmount[id];
    const Currency change = AdjustBet(g, id, 0);
    if (change == 0 || amount + change < 0) continue;
    g.BetChange = change;
    PlaceBet(g, id);
    g.Ui->RedrawBet(id);
  }
  g.NoticeMask = mask;
  g.BetChange = request;
  g.MsgText.clear();
  g.MsgTitle.clear();
}
