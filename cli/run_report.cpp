#include "cli/run_report.h"

#include <cmath>
#include <cstdio>
#include <string>

#include "sim/hyper_drive.h"

namespace {

double RollsPerSecond(int64_t rolls, double seconds) { return seconds > 0 ? static_cast<double>(rolls) / seconds : 0; }

double NetPercent(Currency net, Currency wagered) { return wagered != 0 ? 100 * net.ToDouble() / wagered.ToDouble() : 0; }

// The summary's bet figures: counts, amounts (the amount decided is what was
// staked, vig included), and the net with its share of the amount decided.
Json BetsJson(int64_t won, int64_t lost, Currency wagered, Currency amountWon, Currency amountLost) {
  const Currency net = amountWon - amountLost;
  return {{"decided", won + lost}, {"won", won}, {"lost", lost},
          {"amountDecided", MoneyJson(wagered)}, {"amountWon", MoneyJson(amountWon)},
          {"amountLost", MoneyJson(amountLost)}, {"net", MoneyJson(net)},
          {"netPercent", NetPercent(net, wagered)}};
}

// The expected value to the cent.
double Cents(double v) { return std::nearbyint(v * 100) / 100; }

Json BetResultsJson(const std::vector<ActualBetLine>& lines) {
  Json bets = Json::array();
  for (const ActualBetLine& b : lines)
    bets.push_back({{"id", b.BetId}, {"name", b.Name}, {"decided", b.Decided}, {"won", b.Won}, {"lost", b.Lost},
                    {"amountDecided", MoneyJson(b.Wagered)}, {"amountWon", MoneyJson(b.AmountWon)},
                    {"amountLost", MoneyJson(b.AmountLost)}, {"net", MoneyJson(b.Net)},
                    {"netPercent", NetPercent(b.Net, b.Wagered)}, {"expectedValue", Cents(b.ExpectedValue)}});
  return bets;
}

Json GameJson(const GameResult& r, bool withTiming) {
  Json j = {{"seed", r.Seed},
            {"stopReason", r.StopReason},
            {"rolls", r.Rolls},
            {"hands", r.Hands},
            {"simHours", r.SimHours},
            {"bankroll", {{"start", MoneyJson(r.BankrollStart)},
                          {"end", MoneyJson(r.BankrollEnd)},
                          {"high", MoneyJson(r.BankrollHigh)},
                          {"low", MoneyJson(r.BankrollLow)},
                          {"average", MoneyJson(r.BankrollAverage)}}},
            {"net", MoneyJson(r.Net)},
            {"bets", BetsJson(r.BetsWon, r.BetsLost, r.AmountWagered, r.AmountWon, r.AmountLost)},
            {"betResults", BetResultsJson(r.Bets)},
            {"ruined", r.Ruined}};
  if (withTiming) j["seconds"] = r.Seconds, j["rollsPerSecond"] = RollsPerSecond(r.Rolls, r.Seconds);
  return j;
}

std::string Money(Currency c) { return (c < 0 ? "-$" : "$") + FormatNumberWithCommas(Abs(c)); }

std::string Fixed(double v, int decimals = 2) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f", decimals, v);
  return buffer;
}

// A figure of the batch, to the cent.
std::string MoneyFigure(double v) { return Money(Currency::FromDouble(std::nearbyint(v * 100) / 100)); }

std::string Percent(Currency net, Currency wagered) { return Fixed(NetPercent(net, wagered)) + "%"; }

void WriteBetFigures(std::ostream& out, int64_t won, int64_t lost, Currency wagered, Currency amountWon,
                     Currency amountLost) {
  const Currency net = amountWon - amountLost;
  out << "  bets decided " << FormatWithCommas(won + lost) << " (" << Money(wagered) << "): won "
      << FormatWithCommas(won) << " (" << Money(amountWon) << "), lost " << FormatWithCommas(lost) << " ("
      << Money(amountLost) << ")\n"
      << "  " << (net < 0 ? "net loss " : "net win ") << Money(net) << ", " << Percent(net, wagered)
      << " of the amount decided\n";
}

void WriteBetResultsText(std::ostream& out, const std::vector<ActualBetLine>& lines) {
  for (const ActualBetLine& b : lines)
    out << "    " << b.Name << " (" << b.BetId << "): decided " << FormatWithCommas(b.Decided) << " ("
        << Money(b.Wagered) << "), won " << FormatWithCommas(b.Won) << " (" << Money(b.AmountWon) << "), lost "
        << FormatWithCommas(b.Lost) << " (" << Money(b.AmountLost) << "), net " << Money(b.Net) << " ("
        << Percent(b.Net, b.Wagered) << "), expected " << MoneyFigure(b.ExpectedValue) << "\n";
}

void WriteGameText(std::ostream& out, const GameResult& r) {
  out << "Game (seed " << r.Seed << "): " << (r.StopReason.empty() ? "(no stop reason)" : r.StopReason) << "\n"
      << "  rolls " << FormatWithCommas(r.Rolls) << ", hands " << FormatWithCommas(r.Hands) << ", sim hrs "
      << SimHoursText(r.SimHours) << "\n"
      << "  bankroll start " << Money(r.BankrollStart) << ", end " << Money(r.BankrollEnd) << ", high "
      << Money(r.BankrollHigh) << ", low " << Money(r.BankrollLow) << ", average " << Money(r.BankrollAverage)
      << "\n"
      << "  net " << Money(r.Net) << "\n";
  WriteBetFigures(out, r.BetsWon, r.BetsLost, r.AmountWagered, r.AmountWon, r.AmountLost);
  if (!r.Bets.empty()) out << "  bet results (actual):\n";
  WriteBetResultsText(out, r.Bets);
  out << "  time " << Fixed(r.Seconds, 3) << " s, " << FormatWithCommas(static_cast<int64_t>(RollsPerSecond(r.Rolls, r.Seconds)))
      << " rolls/s\n";
}

}  // namespace

Json RunReportJson(const RunOptions& options, const BatchResult& batch, bool withTiming) {
  const BatchSummary s = Summarize(batch.Games);
  Json games = Json::array();
  for (const GameResult& r : batch.Games) games.push_back(GameJson(r, withTiming));
  Json summary = {{"games", s.Games},
                  {"rolls", s.Rolls},
                  {"hands", s.Hands},
                  {"bets", BetsJson(s.BetsWon, s.BetsLost, s.AmountWagered, s.AmountWon, s.AmountLost)},
                  {"meanNet", s.MeanNet},
                  {"netStandardError", s.NetStandardError},
                  {"netPercentiles", {{"p10", s.NetP10}, {"p50", s.NetP50}, {"p90", s.NetP90}}},
                  {"riskOfRuin", s.RiskOfRuin}};
  if (withTiming) summary["seconds"] = batch.Seconds, summary["rollsPerSecond"] = RollsPerSecond(s.Rolls, batch.Seconds);
  Json run = {{"script", options.ScriptPath},
              {"dice", options.DicePath},
              {"rng", options.Rng},
              {"seed", options.Seed},
              {"rolls", options.Rolls},
              {"bankroll", options.Bankroll ? MoneyJson(*options.Bankroll) : Json(nullptr)},
              {"games", options.Games}};
  return {{"run", run}, {"interrupted", batch.Interrupted}, {"games", games}, {"batch", summary}};
}

void WriteRunReportText(std::ostream& out, const RunOptions& options, const BatchResult& batch) {
  out << "Dicemill run: " << (options.ScriptPath.empty() ? "no script" : options.ScriptPath) << ", "
      << FormatWithCommas(options.Rolls) << " rolls a game, " << options.Games << (options.Games == 1 ? " game" : " games")
      << ", seeds from " << options.Seed << "\n";
  if (batch.Interrupted) out << "Interrupted: the report covers the rolls made.\n";
  for (const GameResult& r : batch.Games) WriteGameText(out, r);
  if (batch.Games.size() < 2) return;
  const BatchSummary s = Summarize(batch.Games);
  out << "Batch of " << s.Games << " games: " << FormatWithCommas(s.Rolls) << " rolls, " << FormatWithCommas(s.Hands)
      << " hands\n";
  WriteBetFigures(out, s.BetsWon, s.BetsLost, s.AmountWagered, s.AmountWon, s.AmountLost);
  out << "  mean net " << MoneyFigure(s.MeanNet) << " +/- " << Fixed(s.NetStandardError) << " (standard error)\n"
      << "  net percentiles: 10th " << MoneyFigure(s.NetP10) << ", 50th " << MoneyFigure(s.NetP50) << ", 90th "
      << MoneyFigure(s.NetP90) << "\n"
      << "  risk of ruin " << Fixed(100 * s.RiskOfRuin, 1) << "%\n"
      << "  time " << Fixed(batch.Seconds, 3) << " s, "
      << FormatWithCommas(static_cast<int64_t>(RollsPerSecond(s.Rolls, batch.Seconds))) << " rolls/s\n";
}
