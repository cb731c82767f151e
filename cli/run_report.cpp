#include "cli/run_report.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "cli/number_args.h"
#include "sim/terminal_text.h"
#include "sim/hyper_drive.h"

namespace {

std::string Fixed(double v, int decimals = 2) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f", decimals, v == 0 ? 0 : v);
  return buffer;
}

std::string MoneyFigure(double v) { return MoneyText(ToCents(v)); }

std::string Percent(Currency net, Currency wagered) { return Fixed(NetPercent(net, wagered)) + "%"; }

std::string Count(int64_t n, const char* one, const char* many) {
  return FormatWithCommas(n) + " " + (n == 1 ? one : many);
}

void WriteBetFigures(std::ostream& out, int64_t won, int64_t lost, Currency wagered, Currency amountWon,
                     Currency amountLost) {
  const Currency net = amountWon - amountLost;
  out << "  bets decided " << FormatWithCommas(won + lost) << " (" << MoneyText(wagered) << "): won "
      << FormatWithCommas(won) << " (" << MoneyText(amountWon) << "), lost " << FormatWithCommas(lost) << " ("
      << MoneyText(amountLost) << ")\n"
      << "  " << (net < 0 ? "net loss " : "net win ") << MoneyText(net) << ", " << Percent(net, wagered)
      << " of the amount decided\n";
}

void WriteBetResultsText(std::ostream& out, const std::vector<ActualBetLine>& lines) {
  for (const ActualBetLine& b : lines)
    out << "    " << b.Name << " (" << b.BetId << "): decided " << FormatWithCommas(b.Decided) << " ("
        << MoneyText(b.Wagered) << "), won " << FormatWithCommas(b.Won) << " (" << MoneyText(b.AmountWon)
        << "), lost " << FormatWithCommas(b.Lost) << " (" << MoneyText(b.AmountLost) << "), net "
        << MoneyText(b.Net) << " (" << Percent(b.Net, b.Wagered) << "), expected " << MoneyFigure(b.ExpectedValue)
        << "\n";
}

// A stop reason of several lines keeps its later lines indented under it.
std::string Indented(const std::string& text) {
  std::string out;
  for (char c : text) out += c == '\n' ? std::string("\n  ") : std::string(1, c);
  return out;
}

void WriteGameText(std::ostream& out, const GameResult& r) {
  out << "Game (seed " << r.Seed << "): "
      << (r.StopReason.empty() ? "(no stop reason)" : Indented(TerminalText(r.StopReason))) << "\n"
      << "  rolls " << FormatWithCommas(r.Rolls) << ", hands " << FormatWithCommas(r.Hands) << ", sim hrs "
      << HoursText(r.SimHours) << "\n"
      << "  bankroll start " << MoneyText(r.BankrollStart) << ", end " << MoneyText(r.BankrollEnd) << ", high "
      << MoneyText(r.BankrollHigh) << ", low " << MoneyText(r.BankrollLow) << ", average "
      << MoneyText(CentsOf(r.BankrollAverage)) << "\n"
      << "  net " << MoneyText(r.Net) << "\n";
  WriteBetFigures(out, r.BetsWon, r.BetsLost, r.AmountWagered, r.AmountWon, r.AmountLost);
  if (!r.Bets.empty()) out << "  bet results (actual):\n";
  WriteBetResultsText(out, r.Bets);
  out << "  time " << Fixed(r.Seconds, 3) << " s, "
      << FormatWithCommas(static_cast<int64_t>(RollsPerSecond(r.Rolls, r.Seconds))) << " rolls/s\n";
}

std::string RollsText(int64_t rolls) {
  return rolls == 0 ? FormatWithCommas(MaxRolls) + " rolls (the ceiling)" : Count(rolls, "roll", "rolls");
}

void WriteSummaryText(std::ostream& out, const BatchResult& batch) {
  const BatchSummary s = Summarize(batch.Games);
  out << "Batch of " << Count(s.Games, "game", "games") << ": " << Count(s.Rolls, "roll", "rolls") << ", "
      << Count(s.Hands, "hand", "hands") << "\n";
  WriteBetFigures(out, s.BetsWon, s.BetsLost, s.AmountWagered, s.AmountWon, s.AmountLost);
  out << "  mean net " << MoneyFigure(s.MeanNet) << " \u00b1 " << MoneyFigure(s.NetStandardError)
      << " (standard error)\n"
      << "  net percentiles: 10th " << MoneyFigure(s.NetP10) << ", 50th " << MoneyFigure(s.NetP50) << ", 90th "
      << MoneyFigure(s.NetP90) << "\n"
      << "  risk of ruin " << Fixed(100 * s.RiskOfRuin, 1) << "%\n"
      << "  time " << Fixed(batch.Seconds, 3) << " s, "
      << FormatWithCommas(static_cast<int64_t>(RollsPerSecond(s.Rolls, batch.Seconds))) << " rolls/s\n";
}

}  // namespace

std::string HoursText(double hours) {
  std::string text = SimHoursText(hours);
  if (text.front() == '.') text.insert(0, "0");
  if (text.back() == '.') text.pop_back();
  return text;
}

void WriteRunReportText(std::ostream& out, const RunDescription& d, const BatchResult& batch, bool summaryOnly) {
  const RunOptions& o = d.Options;
  out << "Dicemill run: " << (o.ScriptPath.empty() ? "no script" : o.ScriptPath) << ", " << RollsText(o.Rolls)
      << " a game, " << Count(o.Games, "game", "games") << ", seeds from " << o.Seed + o.FirstGame
      << (o.StopAtRuin ? ", stopping at ruin" : "") << "\n";
  if (batch.Interrupted) out << "Interrupted: the report covers the rolls made.\n";
  if (!summaryOnly)
    for (const GameResult& r : batch.Games) WriteGameText(out, r);
  if (summaryOnly || batch.Games.size() > 1) WriteSummaryText(out, batch);
}
