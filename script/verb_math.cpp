#include "script/verb_math.h"

#include <cmath>
#include <limits>

#include "script/pass_state.h"

namespace {

__extension__ typedef __int128 Wide;

constexpr Wide kMaxRaw = std::numeric_limits<int64_t>::max();
constexpr Wide kMinRaw = std::numeric_limits<int64_t>::min();

Currency FromWide(Wide raw) {
  if (raw > kMaxRaw || raw < kMinRaw) throw script_error::Overflow();
  return Currency::FromRaw(static_cast<int64_t>(raw));
}

// num / den to the nearest integer, ties to even; den is not 0.
Wide DivideHalfEven(Wide num, Wide den) {
  if (den < 0) {
    num = -num;
    den = -den;
  }
  Wide quotient = num / den;
  const Wide remainder = num % den;
  const Wide twice = 2 * (remainder < 0 ? -remainder : remainder);
  if (twice > den || (twice == den && quotient % 2 != 0)) quotient += num < 0 ? -1 : 1;
  return quotient;
}

}  // namespace

Currency CheckedFromDouble(double value) {
  const double raw = std::nearbyint(value * Currency::kScale);
  // 2^63 is exact in a double; anything at or past it does not fit.
  if (!std::isfinite(raw) || raw >= 9223372036854775808.0 || raw < -9223372036854775808.0)
    throw script_error::Overflow();
  return Currency::FromRaw(static_cast<int64_t>(raw));
}

Currency PercentOf(Currency percent, Currency value) {
  return CheckedFromDouble(percent.ToDouble() * value.ToDouble() / 100.0);
}

Currency CheckedAdd(Currency a, Currency b) { return FromWide(static_cast<Wide>(a.raw) + b.raw); }

Currency CheckedTimes(Currency a, Currency b) {
  return FromWide(DivideHalfEven(static_cast<Wide>(a.raw) * b.raw, Currency::kScale));
}

Currency CheckedOver(Currency a, Currency b) {
  return FromWide(DivideHalfEven(static_cast<Wide>(a.raw) * Currency::kScale, b.raw));
}

Currency CheckedWhole(int64_t dollars) { return FromWide(static_cast<Wide>(dollars) * Currency::kScale); }

Currency CheckedMultiple(int64_t count, Currency unit) { return FromWide(static_cast<Wide>(count) * unit.raw); }
