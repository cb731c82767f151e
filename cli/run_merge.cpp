#include "cli/run_merge.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <fstream>
#include <numeric>

#include "cli/exit_codes.h"
#include "cli/run_report.h"

namespace {

// The options that differ between the parts of one batch, or only say
// where a part's files went.
bool MayDiffer(const std::string& key) {
  return key == "firstGame" || key == "games" || key == "threads" || key == "bankrollCsv" || key == "log" ||
         key == "json";
}

Currency MoneyOf(const Json& value) { return Currency::FromDouble(value.get<double>()); }

// What the batch summary needs of a game.
GameResult SummaryFigures(const Json& game) {
  GameResult r;
  r.Rolls = game.at("rolls").get<int64_t>();
  r.Hands = game.at("hands").get<int64_t>();
  const Json& bets = game.at("bets");
  r.BetsWon = bets.at("won").get<int64_t>();
  r.BetsLost = bets.at("lost").get<int64_t>();
  r.AmountWagered = MoneyOf(bets.at("amountDecided"));
  r.AmountWon = MoneyOf(bets.at("amountWon"));
  r.AmountLost = MoneyOf(bets.at("amountLost"));
  r.Net = MoneyOf(game.at("net"));
  r.Ruined = game.at("ruined").get<bool>();
  return r;
}

bool IsReport(const Json& report) {
  return report.is_object() && report.value("schema", 0) == kRunReportSchema && report.contains("run") &&
         report["run"].is_object() && report.contains("games") && report["games"].is_array();
}

}  // namespace

bool MergeRunReports(const std::vector<std::string>& names, const std::vector<Json>& reports, Json& merged,
                     std::string& error) {
  std::vector<size_t> order(reports.size());
  std::iota(order.begin(), order.end(), 0);
  for (size_t i : order)
    if (!IsReport(reports[i])) {
      error = names[i] + ": is not the JSON report of dicemill-cli run (schema " + std::to_string(kRunReportSchema) + ")";
      return false;
    }
  try {
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
      return reports[a]["run"]["firstGame"].get<int64_t>() < reports[b]["run"]["firstGame"].get<int64_t>();
    });
    const Json& first = reports[order[0]]["run"];
    int64_t next = first["firstGame"].get<int64_t>();
    Json games = Json::array();
    std::vector<GameResult> figures;
    bool interrupted = false;
    for (size_t i : order) {
      const Json& run = reports[i]["run"];
      for (const auto& [key, value] : run.items())
        if (!MayDiffer(key) && (!first.contains(key) || first[key] != value)) {
          error = names[i] + ": not a part of the same batch as " + names[order[0]] + ": its " + key + " differs";
          return false;
        }
      if (run["firstGame"].get<int64_t>() != next) {
        error = names[i] + ": starts at game " + std::to_string(run["firstGame"].get<int64_t>() + 1) +
                (run["firstGame"].get<int64_t>() < next ? ", which an earlier part has too" : ", leaving out game " +
                                                                                               std::to_string(next + 1));
        return false;
      }
      next += run["games"].get<int64_t>();
      interrupted = interrupted || reports[i].value("interrupted", false);
      for (const Json& game : reports[i]["games"]) {
        games.push_back(game);
        figures.push_back(SummaryFigures(game));
      }
    }
    Json run = first;
    run["games"] = next - first["firstGame"].get<int64_t>();
    merged = {{"schema", kRunReportSchema}, {"run", run}, {"interrupted", interrupted}, {"games", games},
              {"batch", BatchSummaryJson(Summarize(figures))}};
    return true;
  } catch (const Json::exception& e) {
    error = "a report lacks a figure the batch needs (" + std::string(e.what()) + ")";
    return false;
  }
}

CLI::App* AddMergeTool(CLI::App& app, std::vector<std::string>& files) {
  CLI::App* merge = app.add_subcommand(
      "merge", "Combine the JSON reports of parts of one batch (run --first-game) into the report of the whole");
  merge->add_option("REPORT", files, "JSON reports written by run --json")->required()->check(CLI::ExistingFile);
  return merge;
}

int RunMergeTool(const std::vector<std::string>& files, std::ostream& out, std::ostream& err) {
  std::vector<Json> reports;
  for (const std::string& name : files) {
    std::ifstream in(name);
    Json report = Json::parse(in, nullptr, false);
    if (report.is_discarded()) {
      err << "dicemill-cli merge: " << name << ": is not a JSON document\n";
      return kExitUsage;
    }
    reports.push_back(std::move(report));
  }
  Json merged;
  if (std::string error; !MergeRunReports(files, reports, merged, error)) {
    err << "dicemill-cli merge: " << error << "\n";
    return kExitUsage;
  }
  out << merged.dump(2) << "\n";
  return kExitDone;
}
