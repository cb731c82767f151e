// The statistics commands of the play session that read the bet results:
// `results` (the bet results screen), `summary` and `trends`.

#include <algorithm>
#include <cmath>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "engine/game.h"
#include "sim/table.h"
#include "sim/hyper_drive.h"
#include "stats/bet_results.h"
#include "stats/bet_results_view.h"
#include "stats/summary.h"

namespace {

// "all", or BetIds 1..83 separated by commas, each once.
std::vector<int> ReadBetSelection(const std::string& word) {
  std::vector<int> ids;
  if (ToLower(word) == "all") {
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) ids.push_back(id);
    return ids;
  }
  size_t start = 0;
  for (;;) {
    const size_t comma = word.find(',', start);
    const std::string part = word.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
    const int id = static_cast<int>(ReadInteger(part, bet::kFirstTableBet, bet::kLastTableBet, "BetId"));
    if (std::find(ids.begin(), ids.end(), id) != ids.end())
      throw CommandError("BetId " + part + " is listed twice");
    ids.push_back(id);
    if (comma == std::string::npos) return ids;
    start = comma + 1;
  }
}

int ReadKind(const std::string& word) {
  const std::string w = ToLower(word);
  if (w == "actual") return results::kActual;
  if (w == "phantom") return results::kPhantom;
  throw CommandError("'" + word + "' is neither actual nor phantom");
}

// Money exact, counts whole, hourly counts as they come.
Json Figure(const BetResultRow& row, double value) {
  if (row.Money) return MoneyJson(Currency::FromDouble(value));
  if (value == std::floor(value) && std::fabs(value) < 9e15) return static_cast<int64_t>(value);
  return value;
}

Json RowJson(const BetResultRow& row) {
  Json j = {{"label", row.Label}};
  if (!row.NetOnly) {
    j["wagers"] = Figure(row, row.Wagers);
    j["wins"] = Figure(row, row.Wins);
    j["losses"] = Figure(row, row.Losses);
  }
  j["net"] = Figure(row, row.Net);
  j["netPercent"] = row.NetPercent;
  j["cells"] = RowCells(row);
  return j;
}

}  // namespace

void PlaySession::Results(const Args& a) {
  const std::vector<int> ids = ReadBetSelection(a[0]);
  const int kind = a.size() > 1 ? ReadKind(a[1]) : results::kActual;
  const BetResultsView view = CombinedBetResults(table_->State(), ids, kind);
  Json rows = Json::array();
  for (const BetResultRow& row : view.Rows) rows.push_back(RowJson(row));
  WriteJsonLine(out_, {{"results", {{"kind", kind == results::kActual ? "actual" : "phantom"},
                                    {"bets", ids},
                                    {"currentWagered", MoneyJson(view.CurrentWagered)},
                                    {"wageredLastRoll", MoneyJson(view.WageredLastRoll)},
                                    {"totalRolls", view.TotalRolls},
                                    {"rollsPerHour", RollsPerHourText(view.RollsPerHour)},
                                    {"simHours", SimHoursText(view.SimHours)},
                                    {"rows", rows}}}});
}

void PlaySession::Summary(const Args&) {
  Json rows = Json::array();
  for (const SummaryRow& row : table_->Summary()) {
    Json j = {{"label", row.Label}, {"value", row.Value}};
    if (!row.Share.empty()) j["share"] = row.Share;
    rows.push_back(j);
  }
  WriteJsonLine(out_, {{"summary", rows}});
}

void PlaySession::Trends(const Args&) {
  Json rows = Json::array();
  for (const BetTrendRow& row : BetTrendRows(table_->State()))
    rows.push_back({{"id", row.BetId}, {"name", row.Name}, {"results", row.Results}, {"span", row.Span}});
  WriteJsonLine(out_, {{"trends", {{"heading", kBetTrendsHeading}, {"bets", rows}}}});
}
