#include "stats/game_measures.h"

#include <cmath>
#include <cstdio>

#include "engine/game.h"
#include "stats/rounded_quotient.h"

double SimHours(const Game& g) {
  const double rate = g.SimRollRate.ToDouble();
  return rate > 0 ? g.RollCounts[0] / rate : 0;
}

std::string SimHoursText(double hours) {
  if (hours < 0) return "-" + FormatWithCommas(std::llround(-hours));
  const double tenThousandths = std::nearbyint(hours * 10000);
  if (tenThousandths == 0) return "0";
  const auto raw = static_cast<int64_t>(tenThousandths);
  std::string text = FormatWithCommas(raw / 10000);
  if (raw < 10000) text.clear();  // "#" shows no digit for a zero integer part
  char digits[8];
  std::snprintf(digits, sizeof digits, "%04lld", static_cast<long long>(raw % 10000));
  std::string fraction = digits;
  while (fraction.size() > 1 && fraction.back() == '0') fraction.pop_back();
  return text + "." + fraction;
}

std::string RollsPerHourText(Currency rate) {
  const std::string text = FormatNumberWithCommas(rate);
  return text == "0" ? "<.0001" : text;
}

Currency AverageBankroll(const Game& g) {
  if (g.RollCounts[0] == 0) return g.Bankroll();
  return RoundedQuotient(g.BankrollSum, g.RollCounts[0]);
}
