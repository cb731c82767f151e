#include "engine/odds_maximum.h"

#include <numeric>

namespace {

// No amount of money the table can hold comes near this; a payoff unit that
// would be larger is as good as "never pays whole".
constexpr int64_t kUnitCeiling = 100'000'000'000'000'000;  // raw, $10 trillion

// A chip that is not positive (a broken configuration) counts as the least
// amount money can hold, so that nothing divides by zero.
Currency UsableChip(Currency chip) { return chip.raw > 0 ? chip : Currency::FromRaw(1); }

Currency RoundDownTo(Currency a, Currency unit) {
  if (a.raw <= 0) return 0;
  return Currency::FromRaw(a.raw / unit.raw * unit.raw);
}

Currency RoundUpTo(Currency a, Currency unit) {
  if (a.raw <= 0) return 0;
  return Currency::FromRaw((a.raw + unit.raw - 1) / unit.raw * unit.raw);
}

}  // namespace

int ResolveOddsMethod(int method, Currency multiple) {
  if (method >= 1 && method <= 5) return method;
  if (!multiple.IsWhole() || multiple <= 0) return 0;
  if (multiple == 1) return 4;
  if (multiple == 3) return 5;
  return 3;  // 2, and every whole multiple above 3
}

Currency PayoffUnit(Currency win, Currency per, Currency smallestChip) {
  Currency chip = UsableChip(smallestChip);
  if (win.raw <= 0 || per.raw <= 0) return chip;
  // k chips pay whole at win/per exactly when k is a multiple of per's part of
  // the reduced fraction: 6 to 5 needs 5 chips, 3 to 2 two, 7 to 6 six.
  int64_t chipsPerUnit = per.raw / std::gcd(win.raw, per.raw);
  int64_t unit = 0;
  if (__builtin_mul_overflow(chip.raw, chipsPerUnit, &unit) || unit > kUnitCeiling) unit = kUnitCeiling;
  return Currency::FromRaw(unit);
}

Currency FigureOddsMaximum(const OddsLimitInput& in) {
  if (in.flat <= 0 || in.multiple <= 0 || in.maxOddsBet <= 0) return 0;
  const Currency chip = UsableChip(in.smallestChip);
  const Currency unit = PayoffUnit(in.win, in.per, chip);
  const Currency base = MulRatio(in.flat, in.multiple.ToDouble());
  const int method = ResolveOddsMethod(in.method, in.multiple);

  Currency shaped;
  switch (method) {
    case 1:  // X flat, as it stands
      shaped = base;
      break;
    case 2:  // push up to the next amount that pays whole: less than one unit more
      shaped = RoundUpTo(base, unit);
      break;
    case 3: {  // the same push, but never beyond (X + 1) x flat
      Currency up = RoundUpTo(base, unit);
      shaped = up <= base + in.flat ? up : RoundDownTo(base, unit);
      break;
    }
    case 4: {  // X times the single odds, the flat pushed to pay whole
      Currency single = RoundUpTo(in.flat, unit);
      shaped = RoundDownTo(MulRatio(single, in.multiple.ToDouble()), unit);
      break;
    }
    case 5: {  // X flat, plus the push that single odds would get, once
      Currency single = RoundUpTo(in.flat, unit);
      shaped = RoundDownTo(base + single - in.flat, unit);
      break;
    }
    default:  // a fractional X: the most, not above X flat, that pays whole
      shaped = RoundDownTo(base, unit);
      break;
  }

  const bool paysWhole = method != 1;
  // When no positive amount pays whole (a flat below one unit), the player
  // still gets odds in plain chips rather than none at all.
  if (paysWhole && shaped == 0) shaped = RoundDownTo(base, chip);

  Currency limit = paysWhole ? RoundDownTo(in.maxOddsBet, unit) : in.maxOddsBet;
  if (limit == 0) limit = in.maxOddsBet;
  return RoundDownTo(Min(shaped, limit), chip);
}

Currency FigureLayOddsMaximum(const OddsLimitInput& comeSide, Currency ownWin, Currency ownPer) {
  if (comeSide.maxOddsBet <= 0) return 0;
  const Currency chip = UsableChip(comeSide.smallestChip);

  // What the take side may win decides; the cap applies to the lay itself.
  OddsLimitInput open = comeSide;
  open.maxOddsBet = Currency::FromRaw(kUnitCeiling);
  const Currency take = FigureOddsMaximum(open);

  Currency lay = take;
  Currency unit = chip;
  if (ownWin > 0 && ownPer > 0) {
    lay = MulRatio(take, ownPer.ToDouble() / ownWin.ToDouble());
    unit = PayoffUnit(ownWin, ownPer, chip);
  }
  if (lay > comeSide.maxOddsBet) {
    lay = RoundDownTo(comeSide.maxOddsBet, unit);
    if (lay == 0) lay = comeSide.maxOddsBet;
  }
  return RoundDownTo(lay, chip);
}
