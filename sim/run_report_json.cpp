#include "sim/run_report_json.h"

#include <cmath>

#include "sim/terminal_text.h"

namespace {

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

}  // namespace

double RollsPerSecond(int64_t rolls, double seconds) { return seconds > 0 ? static_cast<double>(rolls) / seconds : 0; }

double NetPercent(Currency net, Currency wagered) {
  const double percent = wagered != 0 ? 100 * net.ToDouble() / wagered.ToDouble() : 0;
  return percent == 0 ? 0 : percent;  // never "-0"
}

Currency CentsOf(Currency c) { return ToCents(c.ToDouble()); }

Currency ToCents(double value) {
  const double cents = std::nearbyint(value * 100);
  return Currency::FromRaw(static_cast<int64_t>(cents) * (Currency::kScale / 100));
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

