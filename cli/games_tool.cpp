#include "cli/games_tool.h"

#include <CLI/CLI.hpp>

#include <algorithm>

#include "cli/exit_codes.h"
#include "cli/json_lines.h"
#include "sim/terminal_text.h"
#include "engine/script.h"
#include "stats/games_log.h"
#include "store/games_log_file.h"

namespace {

// A CSV field, quoted when it holds a comma, a quote or a line break.
std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

bool ReadMeasure(const std::string& word, int& field) {
  for (int f = 0; f < logfield::kMeasures; ++f)
    if (word == std::to_string(f) || word == MeasureName(f)) {
      field = f;
      return true;
    }
  return false;
}

bool ReadAmountOption(const std::string& text, const char* name, Currency& out, std::ostream& err) {
  if (text.empty()) return true;
  if (ParseCurrency(text, out)) return true;
  err << "dicemill-cli games: " << name << " " << text << " is not an amount\n";
  return false;
}

bool ReadView(const GamesToolOptions& o, GamesView& view, std::ostream& err) {
  if (!ReadMeasure(o.measure, view.Measure)) {
    err << "dicemill-cli games: --measure " << o.measure << " is neither a field number 0.." << logfield::kMeasures - 1
        << " nor a measure's name (\"Net Amount Won\")\n";
    return false;
  }
  Currency low, high, sd;
  if (!ReadAmountOption(o.breakLow, "--break-low", low, err) || !ReadAmountOption(o.breakHigh, "--break-high", high, err) ||
      !ReadAmountOption(o.sdCount, "--sd", sd, err))
    return false;
  if (sd < 0) {
    err << "dicemill-cli games: --sd " << o.sdCount << " is below 0\n";
    return false;
  }
  SetBreakPoint(view, low, high);
  view.SDCount = sd;
  view.ValueCount = o.bars;
  const char* outcomes[3] = {"won", "even", "lost"};
  for (const std::string& word : o.exclude) {
    const auto it = std::find(std::begin(outcomes), std::end(outcomes), word);
    if (it == std::end(outcomes)) {
      err << "dicemill-cli games: --exclude " << word << " is not won, even or lost\n";
      return false;
    }
    view.Include[it - std::begin(outcomes)] = false;
  }
  return true;
}

Json StatisticsJson(const std::vector<GameLogRecord>& games, const GamesView& view, const GamesStatistics& s, bool data) {
  const auto names = OutcomeRowNames(view);
  Json outcomes = Json::array();
  for (int row = 0; row < 3; ++row)
    outcomes.push_back({{"name", names[row]}, {"games", s.OutcomeCounts[row]}, {"share", ShareText(s.OutcomeCounts[row], s.Total)},
                        {"included", view.Include[row]}});
  Json doc = {{"measure", MeasureName(view.Measure)}, {"field", view.Measure}, {"games", s.Total},
              {"included", s.Included}, {"outcomes", outcomes}};
  if (s.Included > 0) {
    Json bars = Json::array();
    for (const HistogramBar& b : s.Bars)
      bars.push_back({{"low", MoneyJson(b.Low)}, {"high", MoneyJson(b.High)}, {"games", b.Games}});
    doc["statistics"] = {{"mean", MoneyJson(s.Mean)},         {"median", MoneyJson(s.Median)},
                         {"medianIsAverage", s.MedianIsAverage}, {"mode", s.HasMode ? MoneyJson(s.Mode) : Json(nullptr)},
                         {"variance", s.Variance},            {"stdDev", MoneyJson(s.StdDev)},
                         {"skew", MoneyJson(s.Skew)},         {"kurtosis", MoneyJson(s.Kurtosis)},
                         {"lowest", MoneyJson(s.Lowest)},     {"highest", MoneyJson(s.Highest)}};
    doc["histogram"] = {{"low", MoneyJson(s.RangeLow)}, {"high", MoneyJson(s.RangeHigh)}, {"mid", MoneyJson(s.RangeMid)},
                        {"below", s.BelowRange},        {"above", s.AboveRange},         {"highGames", s.HighGames},
                        {"bars", bars}};
  }
  if (data) {
    Json rows = Json::array();
    for (const GameLogRecord& game : games) {
      Json row = Json::array();
      for (int f = 0; f < logfield::kMeasures; ++f) row.push_back(MoneyJson(game[f]));
      rows.push_back(row);
    }
    doc["data"] = rows;
  }
  return doc;
}

void WriteText(std::ostream& out, const std::vector<GameLogRecord>& games, const GamesView& view,
               const GamesStatistics& s, bool data) {
  out << "Measure: " << MeasureName(view.Measure) << "\n";
  out << "Games: " << FormatWithCommas(s.Total) << " (" << FormatWithCommas(s.Included) << " included)\n";
  const auto names = OutcomeRowNames(view);
  for (int row = 0; row < 3; ++row)
    out << "  " << names[row] << ": " << FormatWithCommas(s.OutcomeCounts[row]) << "  "
        << ShareText(s.OutcomeCounts[row], s.Total) << (view.Include[row] ? "" : "  (excluded)") << "\n";
  if (s.Included > 0) {
    out << "Mean: " << FormatNumberWithCommas(s.Mean) << "\n";
    out << Trimmed(MedianLabel(s)) << ": " << FormatNumberWithCommas(s.Median) << "\n";
    out << "Mode: " << (s.HasMode ? FormatNumberWithCommas(s.Mode) : "none") << "\n";
    out << "Std Dev: " << FormatNumberWithCommas(s.StdDev) << "\n";
    out << "Variance: " << s.Variance << "\n";
    out << "Skew: " << FormatNumberWithCommas(s.Skew) << "\n";
    out << "Kurtosis: " << FormatNumberWithCommas(s.Kurtosis) << "\n";
    out << "Lowest: " << FormatNumberWithCommas(s.Lowest) << "  Highest: " << FormatNumberWithCommas(s.Highest) << "\n";
    out << "Range: " << FormatNumberWithCommas(s.RangeLow) << " to " << FormatNumberWithCommas(s.RangeHigh)
        << "  Mid: " << FormatNumberWithCommas(s.RangeMid) << "  Tallest bar: " << GamesCountText(s.HighGames) << "\n";
    for (const HistogramBar& b : s.Bars)
      out << "  " << FormatNumberWithCommas(b.Low) << " to " << FormatNumberWithCommas(b.High) << ": "
          << FormatWithCommas(b.Games) << "\n";
    if (s.BelowRange + s.AboveRange > 0)
      out << "  outside the range: " << FormatWithCommas(s.BelowRange) << " below, " << FormatWithCommas(s.AboveRange)
          << " above\n";
  }
  if (!data) return;
  // CSV for other programs: a header of the fields' names, then plain numbers
  // with no thousands separators.
  out << "Game";
  for (int f = 0; f < logfield::kMeasures; ++f) out << "," << CsvField(MeasureName(f));
  out << "\n";
  int n = 0;
  for (const GameLogRecord& game : games) {
    out << ++n;
    for (int f = 0; f < logfield::kMeasures; ++f) out << "," << MoneyJson(game[f]).dump();
    out << "\n";
  }
}

}  // namespace

CLI::App* AddGamesTool(CLI::App& app, GamesToolOptions& o) {
  CLI::App* games = app.add_subcommand("games", "Statistics of a games log (.glg)");
  games->add_option("FILE", o.file, "Games log")->required();
  games->add_option("--measure", o.measure, "Field number 0..17 or name (default 8, \"Net Amount Won\")");
  games->add_option("--break-low", o.breakLow, "Break-point, low value (default 0)");
  games->add_option("--break-high", o.breakHigh, "Break-point, high value (default 0)");
  games->add_option("--exclude", o.exclude, "Leave out games of an outcome row: won, even, lost");
  games->add_option("--bars", o.bars, "Histogram bars")->check(CLI::Range(1, 1000));
  games->add_option("--sd", o.sdCount, "Histogram half-width in standard deviations (default 3)");
  games->add_flag("--data", o.data, "Also print every game's fields");
  games->add_flag("--json", o.json, "Print one JSON document instead of text");
  return games;
}

int RunGamesTool(const GamesToolOptions& o, std::ostream& out, std::ostream& err) {
  GamesView view;
  if (!ReadView(o, view, err)) return kExitUsage;
  std::vector<GameLogRecord> games;
  if (const FileStatus read = ReadGamesFile(o.file, games); !read) {
    const FileMessage& failure = read.Messages.front();
    const std::string text = TerminalText(failure.Text);
    err << "dicemill-cli games: " << (text.find(o.file) == std::string::npos ? o.file + ": " : "") << failure.Title
        << ": " << text << "\n";
    return kExitUsage;
  }
  GamesStatistics stats;
  std::string error;
  if (!UpdateGamesPlayed(games, view, stats, error)) {
    err << "dicemill-cli games: Games Log Error: " << TerminalText(error) << "\n";
    return kExitFailed;
  }
  if (o.json)
    out << StatisticsJson(games, view, stats, o.data).dump(2) << "\n";
  else
    WriteText(out, games, view, stats, o.data);
  return kExitDone;
}
