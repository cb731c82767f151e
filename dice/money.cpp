#include "dice/money.h"

#include <climits>
#include <cstring>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <ostream>

Currency Currency::FromDouble(double value) {
  // nearbyint honours the default rounding mode: to nearest, ties to even.
  return FromRaw(static_cast<int64_t>(std::nearbyint(value * kScale)));
}

// Scaling the raw count keeps ten-thousandths exact where the ratio allows.
Currency MulRatio(Currency a, double ratio) {
  const double raw = std::nearbyint(static_cast<double>(a.raw) * ratio);
  // A payoff ratio from a damaged file can carry a figure beyond what money
  // holds; it stops at the ends, since converting it would be undefined.
  constexpr double kTwoTo63 = 9223372036854775808.0;
  if (raw >= -kTwoTo63 && raw < kTwoTo63) return Currency::FromRaw(static_cast<int64_t>(raw));
  if (std::isnan(raw)) return Currency::FromRaw(0);
  return Currency::FromRaw(raw > 0 ? std::numeric_limits<int64_t>::max() : std::numeric_limits<int64_t>::min());
}

int64_t Floor(Currency a) {
  int64_t q = a.raw / Currency::kScale;
  if (a.raw % Currency::kScale != 0 && a.raw < 0) --q;
  return q;
}

namespace {

__extension__ typedef __int128 Wide;  // products of two raw counts need 128 bits

// num / den rounded to the nearest integer, ties to even; exact.
template <typename Int>
int64_t DivideHalfEven(Int num, Int den) {
  if (den < 0) {
    num = -num;
    den = -den;
  }
  Int quotient = num / den;  // toward zero
  Int remainder = num % den;
  Int twice = 2 * (remainder < 0 ? -remainder : remainder);
  if (twice > den || (twice == den && quotient % 2 != 0)) quotient += num < 0 ? -1 : 1;
  return static_cast<int64_t>(quotient);
}

// a x b / den: in 64 bits when the product fits, which is nearly always, and
// by a constant divisor for the commonest payoff, per one unit.
int64_t MulDivideHalfEven(int64_t a, int64_t b, int64_t den) {
  int64_t product;
  if (!__builtin_mul_overflow(a, b, &product) && product != INT64_MIN) {
    if (den == Currency::kScale) return DivideHalfEven<int64_t>(product, Currency::kScale);
    return DivideHalfEven<int64_t>(product, den);
  }
  return DivideHalfEven<Wide>(static_cast<Wide>(a) * b, den);
}

}  // namespace

Currency MulDiv(Currency a, Currency num, Currency den) {
  return Currency::FromRaw(MulDivideHalfEven(a.raw, num.raw, den.raw));
}

// The quotient is rounded to four decimals before its integer part is taken,
// so a quotient within half a ten-thousandth below a whole number counts as
// whole. Worked with one floor division: the rounding lifts the floor by one
// exactly when the remainder is at least 0.99995 of the unit.
int64_t IntegerPartOf(Currency a, Currency unit) {
  int64_t num = a.raw, den = unit.raw;
  if (den < 0) {
    num = -num;
    den = -den;
  }
  // The smallest check is $1 on most tables: a constant divisor is cheap.
  int64_t quotient = den == Currency::kScale ? num / Currency::kScale : num / den;
  int64_t remainder = num - quotient * den;
  if (remainder < 0) {
    --quotient;
    remainder += den;
  }
  const bool roundsUp = static_cast<Wide>(remainder) * 20000 >= static_cast<Wide>(den) * 19999;
  return roundsUp ? quotient + 1 : quotient;
}

bool ParseCurrency(const std::string& text, Currency& out) {
  std::string digits;
  for (char c : text)
    if (c != ',') digits += c;
  if (digits.empty()) return false;
  char* end = nullptr;
  double v = std::strtod(digits.c_str(), &end);
  if (end == digits.c_str() || *end != '\0' || !std::isfinite(v)) return false;
  if (std::fabs(v) > 9.0e14) return false;  // beyond what 64-bit ten-thousandths hold
  out = Currency::FromDouble(v);
  return true;
}

std::string FormatWithCommas(int64_t value) {
  std::string digits = std::to_string(value < 0 ? -static_cast<uint64_t>(value) : static_cast<uint64_t>(value));
  std::string out;
  int n = static_cast<int>(digits.size());
  for (int i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return value < 0 ? "-" + out : out;
}

std::string FormatNumberWithCommas(Currency value) {
  if (value.raw == 0) return "0";
  uint64_t mag = value.raw < 0 ? -static_cast<uint64_t>(value.raw) : static_cast<uint64_t>(value.raw);
  uint64_t whole = mag / Currency::kScale;
  uint64_t frac = mag % Currency::kScale;
  std::string sign = value.raw < 0 ? "-" : "";
  // "#" before the point shows no digit for a zero integer part.
  std::string intPart = whole == 0 ? "" : FormatWithCommas(static_cast<int64_t>(whole));
  if (frac == 0) return sign + intPart;
  std::string f = std::to_string(frac);
  f.insert(0, 4 - f.size(), '0');
  while (f.size() > 2 && f.back() == '0') f.pop_back();  // ".00##": two digits always, two more if needed
  return sign + intPart + "." + f;
}

void PrintTo(Currency value, std::ostream* os) { *os << "$" << FormatNumberWithCommas(value); }

void CopyBlock(void* to, const void* from, size_t bytes) { std::memcpy(to, from, bytes); }
