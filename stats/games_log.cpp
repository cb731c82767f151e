#include "stats/games_log.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "autoplay/atm.h"
#include "engine/game.h"
#include "stats/bet_results.h"
#include "stats/game_measures.h"
#include "stats/rounded_quotient.h"

namespace {

constexpr const char* kMeasureNames[logfield::kMeasures] = {
    "Total Rolls",     "Bets Decided",   "Bets Won",         "Bets Lost",       "Net Bets Won",
    "Amount Wagered",  "Amount Won",     "Amount Lost",      "Net Amount Won",  "Advantage %",
    "Amount Invested", "Ending Bankroll", "Hands Played",    "High Bankroll",   "Low Bankroll",
    "Average Bankroll", "Net Result",    "Sim Hours",
};

constexpr int kActual = 1;

// The limits of Currency as a double, for values that must not leave it.
constexpr double kCurrencyLimit = 922'337'203'685'477.0;

bool Add(Currency& sum, Currency x) { return !__builtin_add_overflow(sum.raw, x.raw, &sum.raw); }

bool ToCurrency(double value, Currency& out) {
  if (!std::isfinite(value) || std::fabs(value) >= kCurrencyLimit) return false;
  out = Currency::FromDouble(value);
  return true;
}

std::string CalculationError(int measure) {
  return std::string("An error has occurred in calculating the statistics for ") + MeasureName(measure) + ". " +
         "This may have been due to excessive variance or corruption in your data.  You should be able " +
         "to view the actual data by selecting " + "Display Data";
}

// Median of sorted values: the middle one, or the mean of the two middle ones.
Currency MedianOf(const std::vector<Currency>& sorted) {
  const size_t n = sorted.size();
  if (n % 2 == 1) return sorted[n / 2];
  const Currency a = sorted[n / 2 - 1], b = sorted[n / 2];
  // Halved before adding so that no sum can overflow; a half left over goes
  // to the even neighbour.
  const int64_t odd = a.raw % 2 + b.raw % 2;
  int64_t half = a.raw / 2 + b.raw / 2 + odd / 2;
  if (odd % 2 != 0 && half % 2 != 0) half += odd % 2;
  return Currency::FromRaw(half);
}

// The most frequent value, the lowest of a tie; none when no value repeats.
void FindMode(const std::vector<Currency>& sorted, GamesStatistics& s) {
  size_t best = 1, run = 0;
  for (size_t i = 0; i < sorted.size(); ++i) {
    run = i > 0 && sorted[i] == sorted[i - 1] ? run + 1 : 1;
    if (run > best) {
      best = run;
      s.Mode = sorted[i];
    }
  }
  s.HasMode = best > 1;
}

// x - mean in dollars. Worked in double: values from a damaged log may lie
// further apart than money holds; below 2^53 it equals the exact difference.
double Deviation(Currency x, Currency mean) {
  return (static_cast<double>(x.raw) - static_cast<double>(mean.raw)) / Currency::kScale;
}

bool Moments(const std::vector<Currency>& values, int measure, GamesStatistics& s, std::string& error) {
  const int64_t n = static_cast<int64_t>(values.size());
  Currency sum;
  for (Currency x : values)
    if (!Add(sum, x)) return error = CalculationError(measure), false;
  s.Mean = RoundedQuotient(sum, n);

  double squares = 0;
  for (Currency x : values) {
    const double d = Deviation(x, s.Mean);
    squares += d * d;
  }
  s.Variance = squares / n;
  if (!ToCurrency(std::sqrt(s.Variance), s.StdDev)) return error = CalculationError(measure), false;
  if (s.StdDev == 0) return true;

  Currency cubes, fourths;
  const double sd = s.StdDev.ToDouble();
  for (Currency x : values) {
    const double t = Deviation(x, s.Mean) / sd;
    Currency cube, fourth;
    if (!ToCurrency(t * t * t, cube) || !ToCurrency(t * t * t * t, fourth) || !Add(cubes, cube) ||
        !Add(fourths, fourth))
      return error = CalculationError(measure), false;
  }
  s.Skew = RoundedQuotient(cubes, n);
  s.Kurtosis = RoundedQuotient(fourths, n);
  return true;
}

// The bars run from mean - SDCount standard deviations to mean + SDCount;
// edges are worked in double so that no spread can overflow them.
bool MakeHistogram(const std::vector<Currency>& sorted, const GamesView& view, GamesStatistics& s) {
  const double spread = s.StdDev.ToDouble() * view.SDCount.ToDouble();
  if (!ToCurrency(s.Mean.ToDouble() - spread, s.RangeLow) || !ToCurrency(s.Mean.ToDouble() + spread, s.RangeHigh))
    return false;
  s.RangeMid = s.Mean;
  const double low = s.RangeLow.ToDouble(), width = s.RangeHigh.ToDouble() - low;
  const int64_t count = width > 0 ? std::clamp(view.ValueCount, 1, 1000) : 1;
  s.Bars.assign(count, HistogramBar{});
  for (int64_t i = 0; i < count; ++i) {
    s.Bars[i].Low = i == 0 ? s.RangeLow : Currency::FromDouble(low + width * i / count);
    s.Bars[i].High = i == count - 1 ? s.RangeHigh : Currency::FromDouble(low + width * (i + 1) / count);
  }
  int64_t bar = 0;  // the values come sorted, so the bar only moves up
  for (Currency x : sorted) {
    if (x < s.RangeLow) {
      ++s.BelowRange;
    } else if (x > s.RangeHigh) {
      ++s.AboveRange;
    } else {
      while (bar + 1 < count && x >= s.Bars[bar + 1].Low) ++bar;
      ++s.Bars[bar].Games;
    }
  }
  for (const HistogramBar& each : s.Bars) s.HighGames = std::max(s.HighGames, each.Games);
  return true;
}

}  // namespace

const char* MeasureName(int field) { return field >= 0 && field < logfield::kMeasures ? kMeasureNames[field] : ""; }

GameLogRecord FinishedGameRecord(const Game& g) {
  using namespace logfield;
  GameLogRecord r{};
  const BetTotalsOfKind totals = BetTotals(g, kActual);
  r[kRolls] = Currency(g.RollCounts[0]);
  r[kBetsDecided] = totals.Wagers[1];
  r[kBetsWon] = totals.Wins[1];
  r[kBetsLost] = totals.Losses[1];
  r[kNetBetsWon] = r[kBetsWon] - r[kBetsLost];
  r[kAmountWagered] = totals.Wagers[2];
  r[kAmountWon] = totals.Wins[2];
  r[kAmountLost] = totals.Losses[2];
  r[kNetAmountWon] = r[kAmountWon] - r[kAmountLost];
  // A game with no handle has no advantage to show.
  r[kAdvantagePercent] = r[kAmountWagered] == 0 ? Currency(0) : MulDiv(r[kNetAmountWon], 100, r[kAmountWagered]);
  r[kAmountInvested] = g.AmountInvested;
  r[kEndingBankroll] = g.Bankroll();
  r[kHands] = Currency(g.HandStats[hand::kHands]);
  r[kHighBankroll] = g.HighBankroll;
  r[kLowBankroll] = g.LowBankroll;
  r[kAverageBankroll] = g.RollCounts[0] > 0 ? AverageBankroll(g) : g.Bankroll();
  r[kNetResult] = NetResult(g);
  r[kSimHours] = Currency::FromDouble(SimHours(g));
  return r;
}

void SetBreakPoint(GamesView& view, Currency first, Currency second) {
  view.BreakLow = Min(first, second);
  view.BreakHigh = Max(first, second);
}

std::array<std::string, 3> OutcomeRowNames(const GamesView& view) {
  if (view.BreakLow == 0 && view.BreakHigh == 0) return {"Won", "Broke-even", "Lost"};
  const std::string low = FormatNumberWithCommas(view.BreakLow), high = FormatNumberWithCommas(view.BreakHigh);
  return {"> " + high, view.BreakLow == view.BreakHigh ? low : low + " - " + high, "< " + low};
}

int OutcomeRow(const GamesView& view, Currency net) {
  if (net > view.BreakHigh) return 0;
  if (net < view.BreakLow) return 2;
  return 1;
}

std::string ShareText(int64_t count, int64_t total) {
  if (count == 0 || total <= 0) return "0 %";
  const double percent = 100.0 * static_cast<double>(count) / static_cast<double>(total);
  const Currency hundredths = Currency::FromDouble(std::nearbyint(percent * 100) / 100);
  const int64_t whole = hundredths.raw / Currency::kScale;
  const int64_t cents = hundredths.raw % Currency::kScale / 100;
  char decimals[8];
  if (cents % 10 == 0) std::snprintf(decimals, sizeof decimals, ".%d", static_cast<int>(cents / 10));
  else std::snprintf(decimals, sizeof decimals, ".%02d", static_cast<int>(cents));
  return FormatWithCommas(whole) + decimals + " %";
}

bool UpdateGamesPlayed(const std::vector<GameLogRecord>& games, const GamesView& view, GamesStatistics& s,
                       std::string& error) {
  s = GamesStatistics{};
  s.Total = static_cast<int64_t>(games.size());
  if (view.Measure < 0 || view.Measure >= kGameLogFields) {
    error = CalculationError(view.Measure);
    return false;
  }
  std::vector<Currency> values;
  for (const GameLogRecord& game : games) {
    const int row = OutcomeRow(view, game[logfield::kNetAmountWon]);
    ++s.OutcomeCounts[row];
    if (view.Include[row]) values.push_back(game[view.Measure]);
  }
  s.Included = static_cast<int64_t>(values.size());
  if (values.empty()) return true;

  std::sort(values.begin(), values.end());
  s.Lowest = values.front();
  s.Highest = values.back();
  s.Median = MedianOf(values);
  s.MedianIsAverage = values.size() % 2 == 0;
  FindMode(values, s);
  if (!Moments(values, view.Measure, s, error)) return false;
  if (!MakeHistogram(values, view, s)) {
    error = CalculationError(view.Measure);
    return false;
  }
  return true;
}

std::string MedianLabel(const GamesStatistics& stats) { return stats.MedianIsAverage ? "   Median *" : "Median"; }

std::string GamesCountText(int64_t games) { return FormatWithCommas(games) + (games == 1 ? " game" : " games"); }
