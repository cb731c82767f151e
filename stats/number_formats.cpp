#include "stats/number_formats.h"

#include <cmath>
#include <cstdint>

#include "dice/money.h"

namespace {

// "#,#." and `decimals` digits of the rounded magnitude, trailing zeros
// dropped down to `keepDecimals`.
std::string Pattern(double value, int decimals, int keepDecimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = std::nearbyint(std::fabs(value) * scale);
  const auto whole = static_cast<int64_t>(scaled / scale);
  auto fraction = static_cast<int64_t>(scaled - static_cast<double>(whole) * scale);
  std::string digits = std::to_string(fraction);
  digits.insert(0, static_cast<size_t>(decimals) - digits.size(), '0');
  while (static_cast<int>(digits.size()) > keepDecimals && digits.back() == '0') digits.pop_back();
  const std::string sign = value < 0 && scaled != 0 ? "-" : "";
  return sign + (whole == 0 ? "" : FormatWithCommas(whole)) + "." + digits;
}

}  // namespace

std::string FormatUpToTwoDecimals(double value) { return value == 0 ? "0" : Pattern(value, 2, 0); }

std::string FormatPercent(double fraction) { return fraction == 0 ? "0%" : Pattern(100 * fraction, 2, 2) + "%"; }

std::string FormatTwoDecimals(double value) { return value == 0 ? "0" : Pattern(value, 2, 2); }
