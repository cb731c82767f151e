#include "cli/advantage_tool.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <cstdio>
#include <utility>

#include "cli/exit_codes.h"
#include "sim/terminal_text.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"
#include "stats/advantage_row.h"

namespace {

std::string Fixed(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%11.3f", std::fabs(value) < 0.0005 ? 0.0 : value);  // no "-0.000"
  return text;
}

std::string Padded(std::string_view name, size_t width) {
  std::string text(name);
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

}  // namespace

Json AdvantageRowJson(const Game& g, int betId) {
  const AdvantageRow r = AdvantageRowOf(g, betId);
  return {{"id", betId},
          {"bet", std::string(bet::CatalogueName(betId))},
          {"evPerRoll", r.evPerRoll},
          {"stdevPerRoll", r.stdevPerRoll},
          {"evPerDecision", r.evPerDecision},
          {"stdevPerDecision", r.stdevPerDecision},
          {"evPerHour", r.evPerHour},
          {"rollsPerDecision", r.rollsPerDecision},
          {"minutesPerDecision", r.minutesPerDecision}};
}

void WriteAdvantageText(const Game& g, bool misc, std::ostream& out) {
  constexpr size_t kNameWidth = 20;
  out << "All figures shown in percentage\n";
  out << "Id  " << Padded("Bet", kNameWidth);
  for (const char* head : {"EV/Roll", "StDev/Roll", "EV/Dec", "StDev/Dec", "EV/Hour"})
    out << Padded("", 11 - std::string_view(head).size()) << head;
  if (misc) out << "  Rolls/Dec    Min/Dec";
  out << "\n";
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const AdvantageRow r = AdvantageRowOf(g, id);
    char number[8];
    std::snprintf(number, sizeof number, "%2d  ", id);  // the BetId that play's commands take
    out << number << Padded(bet::CatalogueName(id), kNameWidth) << Fixed(r.evPerRoll) << Fixed(r.stdevPerRoll)
        << Fixed(r.evPerDecision) << Fixed(r.stdevPerDecision) << Fixed(r.evPerHour);
    if (misc) out << Fixed(r.rollsPerDecision) << Fixed(r.minutesPerDecision);
    out << "\n";
  }
}

CLI::App* AddAdvantageTool(CLI::App& app, AdvantageToolOptions& o) {
  CLI::App* advantage =
      app.add_subcommand("advantage", "The exact expected value and spread of every bet, by enumeration");
  advantage->add_option("--game", o.gameFile, "Game file whose payoffs, vig and dice to use");
  advantage->add_flag("--json", o.json, "One JSON line of all 83 rows");
  advantage->add_flag("--misc", o.misc, "Add the rolls and minutes per decision");
  advantage->add_flag("--zero-outcomes", o.zeroOutcomes, "Count zero outcomes (pushes) as decisions");
  return advantage;
}

namespace {

// The messages of opening a game go to standard error: a refusal ends the
// command, a missing linked file (say, a script) does not matter here.
class NotesToStderr : public SilentFrontEnd {
 public:
  NotesToStderr(std::ostream& err, std::string file) : err_(err), file_(std::move(file)) {}
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
    const std::string told = TerminalText(text);
    err_ << "dicemill-cli advantage: " << (told.find(file_) == std::string::npos ? file_ + ": " : "") << title << ": "
         << told << "\n";
    return SilentFrontEnd::ShowMessage(title, text, b);
  }

 private:
  std::ostream& err_;
  std::string file_;  // the game file being opened
};

}  // namespace

int RunAdvantageTool(const AdvantageToolOptions& o, std::ostream& out, std::ostream& err) {
  NotesToStderr notes(err, o.gameFile);
  Table table(notes);
  table.StartFresh();
  if (!o.gameFile.empty() && !table.Open(o.gameFile).Done()) return kExitUsage;
  if (o.zeroOutcomes) table.Set("IncludeZeroOutcomes", 1);
  const Game& g = table.State();
  if (!o.json) {
    WriteAdvantageText(g, o.misc, out);
    return 0;
  }
  Json rows = Json::array();
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) rows.push_back(AdvantageRowJson(g, id));
  WriteJsonLine(out, {{"advantage", rows}});
  return 0;
}
