#include "engine/money.h"

#include <cmath>
#include <cstdlib>
#include <ostream>

Currency Currency::FromDouble(double value) {
  // nearbyint honours the default rounding mode: to nearest, ties to even.
  return FromRaw(static_cast<int64_t>(std::nearbyint(value * kScale)));
}

// Scaling the raw count keeps ten-thousandths exact where the ratio allows.
Currency MulRatio(Currency a, double ratio) {
  return Currency::FromRaw(static_cast<int64_t>(std::nearbyint(static_cast<double>(a.raw) * ratio)));
}

int64_t Floor(Currency a) {
  int64_t q = a.raw / Currency::kScale;
  if (a.raw % Currency::kScale != 0 && a.raw < 0) --q;
  return q;
}

int64_t IntegerPartOf(Currency a, Currency unit) {
  return Floor(Currency::FromDouble(a.ToDouble() / unit.ToDouble()));
}

Currency Abs(Currency a) { return a.raw < 0 ? -a : a; }
Currency Max(Currency a, Currency b) { return a < b ? b : a; }
Currency Min(Currency a, Currency b) { return a < b ? a : b; }

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
