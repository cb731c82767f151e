// The `stats`, `graph` and `gameslog` commands of the play session: the roll
// statistics screens, the bankroll graph's data and the games log in use.

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "engine/game.h"
#include "stats/bankroll_graph.h"
#include "stats/roll_views.h"
#include "store/games_log_file.h"

namespace {

constexpr const char* kStatsUsage = "stats [VIEW] [true|skewed] | stats freq N [true|skewed] | stats selections";
constexpr const char* kGraphUsage =
    "graph | graph average N | graph scale larger|smaller | graph move up|down | graph adjust 0|1|2 | "
    "graph reflines P1 P2|off";

// "true" or "skewed"; absent: true.
bool ReadSkewed(const std::vector<std::string>& a, size_t at) {
  if (a.size() <= at) return false;
  const std::string w = ToLower(a[at]);
  if (w == "skewed") return true;
  if (w == "true") return false;
  throw CommandError("'" + a[at] + "' is neither true nor skewed");
}

TotalsView ReadView(const std::string& word) {
  const std::string w = ToLower(word);
  if (w == "0" || w == "standard") return TotalsView::StandardNumbers;
  if (w == "1" || w == "distinguishable") return TotalsView::DistinguishableCombos;
  if (w == "2" || w == "unique") return TotalsView::UniqueCombos;
  if (w == "3" || w == "faces") return TotalsView::DiceFaces;
  throw CommandError("'" + word + "' is not a view: standard, distinguishable, unique or faces (0..3)");
}

Json TotalsJson(const Game& g, TotalsView view, bool skewed) {
  Json rows = Json::array();
  for (const TotalsRow& r : TotalsRows(g, view, skewed))
    rows.push_back({{"label", r.Label},
                    {"index", r.Index},
                    {"rolls", r.Rolls},
                    {"sinceLast", r.RollsSinceLast},
                    {"actualPercent", r.ActualPercent},
                    {"probPercent", r.ProbablePercent}});
  return {{"view", TotalsViewName(view)}, {"skewed", skewed}, {"totalRolls", g.RollCounts[0]}, {"rows", rows}};
}

Json FrequencyJson(const Game& g, int n, bool skewed) {
  const FrequencySelection& s = FrequencySelections()[n - 1];
  const SelectionFrequency f = FrequencyOf(g, s.Index, skewed);
  return {{"n", n},
          {"selection", s.Caption},
          {"index", s.Index},
          {"totalRolls", f.TotalRolls},
          {"selectionRolls", f.SelectionRolls},
          {"rollsSinceLast", f.RollsSinceLast},
          {"actualPercent", f.ActualPercent},
          {"probableCaption", ProbableCaption(skewed)},
          {"probablePercent", f.ProbablePercent},
          {"averageRollsToAchieve", f.AverageRollsToAchieve}};
}

Json MoneyArray(const Game& g, int first, int last) {
  Json points = Json::array();
  for (int i = first; i <= last; ++i) points.push_back(MoneyJson(g.GraphBankroll[i]));
  return points;
}

Json GraphJson(const Game& g) {
  Json average = Json::array();
  for (int p = 1; p <= g.GraphCount; ++p) average.push_back(MoneyJson(MovingAverage(g, p, g.MovingAverageRolls)));
  const bool hasPrevious = g.GraphBankroll[0] > 0;
  const RefLineDifferences d = ReferenceLineDifferences(g);
  Json refLines = nullptr;
  if (d.Valid)
    refLines = {{"first", g.RefLinePosition[0]}, {"second", g.RefLinePosition[1]}, {"rolls", d.Rolls},
                {"bankroll", MoneyJson(d.Bankroll)}};
  return {{"count", g.GraphCount},
          {"firstRoll", WindowFirstRoll(g)},
          {"lastRoll", WindowLastRoll(g)},
          {"high", MoneyJson(g.GraphHigh)},
          {"low", MoneyJson(g.GraphLow)},
          {"current", MoneyJson(g.Bankroll())},
          {"top", MoneyJson(g.GraphTop)},
          {"bottom", MoneyJson(GraphBottom(g))},
          {"scale", MoneyJson(g.GraphScale)},
          {"manualScale", MoneyJson(g.ManualScale)},
          {"autoAdjustType", g.AutoAdjustType},
          {"movingAverageRolls", g.MovingAverageRolls},
          {"averageCaption", MovingAverageCaption(g.MovingAverageRolls)},
          {"points", MoneyArray(g, 1, g.GraphCount)},
          {"average", average},
          {"previous", hasPrevious ? MoneyArray(g, 526, 1050) : Json::array()},
          {"refLines", refLines}};
}

void ExpectCount(const std::vector<std::string>& a, size_t count, const char* usage) {
  if (a.size() != count) throw CommandError(std::string("expected: ") + usage);
}

}  // namespace

void PlaySession::Stats(const Args& a) {
  const Game& g = *game_;
  const std::string first = a.empty() ? "" : ToLower(a[0]);
  if (first == "selections") {
    ExpectCount(a, 1, kStatsUsage);
    Json list = Json::array();
    int n = 0;
    for (const FrequencySelection& s : FrequencySelections())
      list.push_back({{"n", ++n}, {"selection", s.Caption}, {"index", s.Index}});
    WriteJsonLine(out_, {{"selections", list}});
    return;
  }
  if (first == "freq") {
    if (a.size() < 2 || a.size() > 3) throw CommandError(std::string("expected: ") + kStatsUsage);
    const int n = static_cast<int>(ReadInteger(a[1], 1, kFrequencySelections, "N"));
    WriteJsonLine(out_, {{"freq", FrequencyJson(g, n, ReadSkewed(a, 2))}});
    return;
  }
  if (a.size() > 2) throw CommandError(std::string("expected: ") + kStatsUsage);
  // One word may be the view or the comparison.
  TotalsView view = TotalsView::StandardNumbers;
  size_t next = 0;
  if (!a.empty() && first != "true" && first != "skewed") {
    view = ReadView(a[0]);
    next = 1;
  }
  if (a.size() > next + 1) throw CommandError(std::string("expected: ") + kStatsUsage);
  WriteJsonLine(out_, {{"stats", TotalsJson(g, view, ReadSkewed(a, next))}});
}

void PlaySession::Graph(const Args& a) {
  Game& g = *game_;
  const std::string what = a.empty() ? "" : ToLower(a[0]);
  if (what.empty()) {
  } else if (what == "average") {
    ExpectCount(a, 2, kGraphUsage);
    SetMovingAverageRolls(g, static_cast<int32_t>(ReadInteger(a[1], -1'000'000, 1'000'000, "N")));
  } else if (what == "scale") {
    ExpectCount(a, 2, kGraphUsage);
    const std::string way = ToLower(a[1]);
    if (way != "larger" && way != "smaller") throw CommandError("'" + a[1] + "' is neither larger nor smaller");
    StepGraphScale(g, way == "larger");
  } else if (what == "move") {
    ExpectCount(a, 2, kGraphUsage);
    const std::string way = ToLower(a[1]);
    if (way != "up" && way != "down") throw CommandError("'" + a[1] + "' is neither up nor down");
    MoveGraphWindow(g, way == "up");
  } else if (what == "adjust") {
    ExpectCount(a, 2, kGraphUsage);
    g.AutoAdjustType = static_cast<int32_t>(ReadInteger(a[1], 0, 2, "TYPE"));
    ResetBankrollGraph(g, false);
  } else if (what == "reflines") {
    if (a.size() == 2 && ToLower(a[1]) == "off") {
      g.DisplayRefLines = false;
      g.RefLinePosition = {};
    } else {
      ExpectCount(a, 3, kGraphUsage);
      g.DisplayRefLines = true;
      g.RefLinePosition[0] = static_cast<int32_t>(ReadInteger(a[1], 1, graph::kWindowPoints, "P1"));
      g.RefLinePosition[1] = static_cast<int32_t>(ReadInteger(a[2], 1, graph::kWindowPoints, "P2"));
    }
  } else {
    throw CommandError(std::string("expected: ") + kGraphUsage);
  }
  WriteJsonLine(out_, {{"graph", GraphJson(g)}});
}

void PlaySession::GamesLog(const Args& a) {
  Game& g = *game_;
  if (ToLower(a[0]) == "off") {
    g.GamesLogFile.clear();
  } else if (!ShowFileStatus(g, OpenGamesFile(g, a[0]))) {
    throw CommandError("\"" + a[0] + "\" was not opened");
  }
  WriteJsonLine(out_, {{"gameslog", g.GamesLogFile.empty() ? Json(nullptr) : Json(g.GamesLogFile)}});
}
