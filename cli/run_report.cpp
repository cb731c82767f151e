#include "cli/run_report.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "cli/number_args.h"
#include "cli/terminal_text.h"
#include "sim/hyper_drive.h"

namespace {

double RollsPerSecond(int64_t rolls, double seconds) { return seconds > 0 ? static_cast<double>(rolls) / seconds : 0; }

double NetPercent(Currency net, Currency wagered) {
  const double percent = wagered != 0 ? 100 * net.ToDouble() / wagered.ToDouble() : 0;
  return percent == 0 ? 0 : percent;  // never "-0"
}

// The summary's bet figures: counts, amounts (the amount decided is what was
// staked, vig included), and the net with its share of the amount decided.
Json BetsJson(int64_t won, int64_t lost, Currency wagered, Currency amountWon, Currency amountLost) {
  const Currency net = amountWon - amountLost;
  return {{"decided", won + lost}, {"won", won}, {"lost", lost},
          {"amountDecided", MoneyJson(wagered)}, {"amountWon", MoneyJson(amountWon)},
          {"amountLost", MoneyJson(amountLost)}, {"net", MoneyJson(net)},
          {"netPercent", NetPercent(net, wagered)}};
}

Json CentsJson(double v) { return MoneyJson(ToCents(v)); }

Json BetResultsJson(const std::vector<ActualBetLine>& lines) {
  Json bets = Json::array();
  for (const ActualBetLine& b : lines)
    bets.push_back({{"id", b.BetId}, {"name", b.Name}, {"decided", b.Decided}, {"won", b.Won}, {"lost", b.Lost},
                    {"amountDecided", MoneyJson(b.Wagered)}, {"amountWon", MoneyJson(b.AmountWon)},
                    {"amountLost", MoneyJson(b.AmountLost)}, {"net", MoneyJson(b.Net)},
                    {"netPercent", NetPercent(b.Net, b.Wagered)}, {"expectedValue", CentsJson(b.ExpectedValue)}});
  return bets;
}

Currency CentsOf(Currency c) { return ToCents(c.ToDouble()); }

Json GameJson(const GameResult& r, bool withTiming) {
  Json j = {{"game", r.Index + 1},
            {"seed", r.Seed},
            {"stopReason", TerminalText(r.StopReason)},
            {"rolls", r.Rolls},
            {"hands", r.Hands},
            {"simHours", r.SimHours},
            {"bankroll", {{"start", MoneyJson(r.BankrollStart)},
                          {"end", MoneyJson(r.BankrollEnd)},
                          {"high", MoneyJson(r.BankrollHigh)},
                          {"low", MoneyJson(r.BankrollLow)},
                          {"average", MoneyJson(CentsOf(r.BankrollAverage))}}},
            {"net", MoneyJson(r.Net)},
            {"bets", BetsJson(r.BetsWon, r.BetsLost, r.AmountWagered, r.AmountWon, r.AmountLost)},
            {"betResults", BetResultsJson(r.Bets)},
            {"ruined", r.Ruined}};
  if (withTiming) j["seconds"] = r.Seconds, j["rollsPerSecond"] = RollsPerSecond(r.Rolls, r.Seconds);
  return j;
}

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

Currency ToCents(double value) {
  const double cents = std::nearbyint(value * 100);
  return Currency::FromRaw(static_cast<int64_t>(cents) * (Currency::kScale / 100));
}

std::string HoursText(double hours) {
  std::string text = SimHoursText(hours);
  if (text.front() == '.') text.insert(0, "0");
  if (text.back() == '.') text.pop_back();
  return text;
}

Json BatchSummaryJson(const BatchSummary& s) {
  return {{"games", s.Games},
          {"rolls", s.Rolls},
          {"hands", s.Hands},
          {"bets", BetsJson(s.BetsWon, s.BetsLost, s.AmountWagered, s.AmountWon, s.AmountLost)},
          {"meanNet", CentsJson(s.MeanNet)},
          {"netStandardError", CentsJson(s.NetStandardError)},
          {"netPercentiles", {{"p10", CentsJson(s.NetP10)}, {"p50", CentsJson(s.NetP50)}, {"p90", CentsJson(s.NetP90)}}},
          {"riskOfRuin", s.RiskOfRuin}};
}

Json RunReportJson(const RunDescription& d, const BatchResult& batch, bool withTiming) {
  const RunOptions& o = d.Options;
  Json games = Json::array();
  for (const GameResult& r : batch.Games) games.push_back(GameJson(r, withTiming));
  const BatchSummary s = Summarize(batch.Games);
  Json summary = BatchSummaryJson(s);
  if (withTiming) summary["seconds"] = batch.Seconds, summary["rollsPerSecond"] = RollsPerSecond(s.Rolls, batch.Seconds);
  Json run = {{"script", o.ScriptPath},
              {"game", o.GameFile},
              {"dice", o.DicePath},
              {"rng", o.Rng},
              {"seed", o.Seed},
              {"firstGame", o.FirstGame},
              {"rolls", o.Rolls},
              {"bankroll", o.Bankroll ? MoneyJson(*o.Bankroll) : Json(nullptr)},
              {"games", o.Games},
              {"threads", o.Threads},
              {"stopAtRuin", o.StopAtRuin},
              {"bankrollCsv", d.BankrollCsv},
              {"log", d.GamesLog},
              {"json", d.JsonFile}};
  return {{"schema", kRunReportSchema}, {"run", run}, {"interrupted", batch.Interrupted}, {"games", games},
          {"batch", summary}};
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
