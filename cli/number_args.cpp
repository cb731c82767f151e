#include "cli/number_args.h"

#include <cctype>

namespace {

constexpr int64_t kLargestCount = 999'999'999'999'999;  // fits ten-thousandths in 64 bits

// Whole digits; commas, if any, between groups of three ("1,000,000").
std::optional<int64_t> WholeNumber(const std::string& text) {
  if (text.empty()) return std::nullopt;
  int64_t value = 0;
  size_t group = 0;  // digits since the last comma
  bool grouped = false;
  for (char c : text) {
    if (c == ',') {
      if (group == 0 || group > 3 || (grouped && group != 3)) return std::nullopt;
      grouped = true;
      group = 0;
      continue;
    }
    if (!std::isdigit(static_cast<unsigned char>(c)) || value > kLargestCount / 10) return std::nullopt;
    value = value * 10 + (c - '0');
    ++group;
  }
  if (grouped && group != 3) return std::nullopt;
  return value;
}

}  // namespace

std::optional<int64_t> ParseCountArg(const std::string& text) { return WholeNumber(text); }

std::optional<Currency> ParseAmountArg(const std::string& text) {
  std::string rest = text;
  if (!rest.empty() && rest.front() == '$') rest.erase(0, 1);
  std::string cents;
  if (const size_t point = rest.find('.'); point != std::string::npos) {
    cents = rest.substr(point + 1);
    rest.erase(point);
    if (cents.empty() || cents.size() > 2) return std::nullopt;
    for (char c : cents)
      if (!std::isdigit(static_cast<unsigned char>(c))) return std::nullopt;
  }
  const std::optional<int64_t> whole = WholeNumber(rest);
  if (!whole || *whole > kLargestCount / Currency::kScale) return std::nullopt;
  cents.resize(2, '0');
  return Currency::FromRaw(*whole * Currency::kScale + std::stoi(cents) * (Currency::kScale / 100));
}

