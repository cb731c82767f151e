#include "stats/bet_results_view.h"

#include "engine/notices.h"
#include "stats/advantage.h"
#include "stats/bet_results.h"
#include "stats/game_measures.h"
#include "stats/number_formats.h"

using namespace results;

namespace {

using Measures = std::array<double, kMeasures>;

struct Sums {
  Measures Wagers{}, Wins{}, Losses{};
};

void Add(Measures& sum, const std::array<Currency, kMeasures>& cell) {
  for (int m = kCount; m < kMeasures; ++m) sum[m] += cell[m].ToDouble();
}

double Ratio(double num, double den) { return den != 0 ? num / den : 0; }

BetResultRow Row(const std::string& label, bool money, double wagers, double wins, double losses) {
  BetResultRow row{label, money, false, wagers, wins, losses, wins - losses, 0};
  row.NetPercent = Ratio(100 * row.Net, wagers);
  return row;
}

BetResultRow MeasureRow(const std::string& label, bool money, const Sums& s, int m) {
  return Row(label, money, s.Wagers[m], s.Wins[m], s.Losses[m]);
}

double ExpectedValue(const Game& g, int betId, int kind) {
  return g.BetWagers[kind][betId][kTotal].ToDouble() * FigureAdvantage(g, betId).EvPerDecision;
}

std::string CountText(double v) { return FormatWithCommas(static_cast<int64_t>(v)); }
std::string MoneyText(double v) { return FormatNumberWithCommas(Currency::FromDouble(v)); }

}  // namespace

BetResultsView CombinedBetResults(const Game& g, const std::vector<int>& betIds, int kind) {
  Sums s;
  double expected = 0;
  BetResultsView view;
  for (int id : betIds) {
    if (!bet::IsTableBet(id)) continue;
    Add(s.Wagers, g.BetWagers[kind][id]);
    Add(s.Wins, g.BetWins[kind][id]);
    Add(s.Losses, g.BetLosses[kind][id]);
    expected += ExpectedValue(g, id, kind);
    view.CurrentWagered += g.BetAmount[id];
    view.WageredLastRoll += g.BetAtRollStart()[id];
  }
  view.TotalRolls = g.RollCounts[0];
  view.RollsPerHour = g.SimRollRate;
  view.SimHours = SimHours(g);
  const double hours = view.SimHours;

  auto& rows = view.Rows;
  rows.push_back(MeasureRow("Total #", false, s, kCount));
  rows.push_back(MeasureRow("Total $", true, s, kTotal));
  rows.push_back(MeasureRow("High $", true, s, kHigh));
  rows.push_back(MeasureRow("Low $", true, s, kLow));
  rows.push_back(Row("Average $", true, Ratio(s.Wagers[kTotal], s.Wagers[kCount]),
                     Ratio(s.Wins[kTotal], s.Wins[kCount]), Ratio(s.Losses[kTotal], s.Losses[kCount])));
  rows.push_back(MeasureRow("Last $", true, s, kLast));
  rows.push_back(MeasureRow("Last roll #", false, s, kLastRollCount));
  rows.push_back(MeasureRow("Last roll $", true, s, kLastRollAmount));
  rows.push_back(Row("Avg. # / hour", false, Ratio(s.Wagers[kCount], hours), Ratio(s.Wins[kCount], hours),
                     Ratio(s.Losses[kCount], hours)));
  rows.push_back(Row("Avg. $ / hour", true, Ratio(s.Wagers[kTotal], hours), Ratio(s.Wins[kTotal], hours),
                     Ratio(s.Losses[kTotal], hours)));
  BetResultRow ev{"Expctd value $", true, true, 0, 0, 0, expected, Ratio(100 * expected, s.Wagers[kTotal])};
  rows.push_back(ev);
  return view;
}

std::vector<std::string> RowCells(const BetResultRow& row) {
  const bool hourly = row.Label == "Avg. # / hour";
  auto text = [&](double v) { return hourly ? FormatTwoDecimals(v) : row.Money ? MoneyText(v) : CountText(v); };
  const std::string percent = FormatPercent(row.NetPercent / 100);
  if (row.NetOnly) return {"", "", "", text(row.Net), percent};
  return {text(row.Wagers), text(row.Wins), text(row.Losses), text(row.Net), percent};
}

std::vector<std::string> BetResultsReport(Game& g, const std::vector<int>& betIds, int kind) {
  if (betIds.empty()) {
    ShowMessage(g, "Print Bet Results", "You need to select one or more bets to print.");
    return {};
  }
  const std::string wagers = kind == kActual ? "actual decided wagers" : "continuous phantom $1 wagers";
  std::vector<std::string> lines;
  if (betIds.size() == 1) {
    lines.push_back("Results of " + wagers + " for this bet:");
  } else {
    lines.push_back("Combined results of " + wagers + " for these " + std::to_string(betIds.size()) + " bets:");
  }
  for (int id : betIds)
    if (bet::IsTableBet(id)) lines.push_back(g.BetName[id]);
  const BetResultsView view = CombinedBetResults(g, betIds, kind);
  lines.push_back("Current $ amount wagered:\t" + Dollars(view.CurrentWagered));
  lines.push_back("$ amount wagered on last roll:\t" + Dollars(view.WageredLastRoll));
  lines.push_back("Total rolls:\t" + FormatWithCommas(view.TotalRolls));
  lines.push_back("Rolls / hour:\t" + RollsPerHourText(view.RollsPerHour));
  lines.push_back("Sim hours:\t" + SimHoursText(view.SimHours));
  lines.push_back("\tWagers\tWins\tLosses\tNet\tNet %");
  for (const BetResultRow& row : view.Rows) {
    std::string line = row.Label;
    for (const std::string& cell : RowCells(row)) line += "\t" + cell;
    lines.push_back(line);
  }
  return lines;
}

std::vector<ActualBetLine> ActualBetLines(const Game& g) {
  std::vector<ActualBetLine> lines;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const auto& wagers = g.BetWagers[kActual][id];
    if (wagers[kCount] == 0) continue;
    const auto& wins = g.BetWins[kActual][id];
    const auto& losses = g.BetLosses[kActual][id];
    ActualBetLine line{id, g.BetName[id], Floor(wagers[kCount]), Floor(wins[kCount]), Floor(losses[kCount]),
                       wagers[kTotal], wins[kTotal], losses[kTotal], wins[kTotal] - losses[kTotal],
                       ExpectedValue(g, id, kActual)};
    lines.push_back(line);
  }
  return lines;
}
