#pragma once
// `dicemill-cli advantage`: the advantage table of every bet under a game's
// payoffs, vig, bar number and dice, as the configuration page shows it.

#include <ostream>
#include <string>

#include "cli/json_lines.h"

namespace CLI {
class App;
}
struct Game;

struct AdvantageToolOptions {
  std::string gameFile;
  bool json = false;
  bool misc = false;          // rolls and minutes per decision too
  bool zeroOutcomes = false;  // count pushes as decisions
};

CLI::App* AddAdvantageTool(CLI::App& app, AdvantageToolOptions& options);
int RunAdvantageTool(const AdvantageToolOptions& options, std::ostream& out, std::ostream& err);

// One bet's row, every figure a percentage of the bet but the rolls and the
// minutes per decision.
Json AdvantageRowJson(const Game& g, int betId);
// The table as text: "All figures shown in percentage", the column heads and
// one line per bet 1..83; `misc` adds "Rolls/Dec" and "Min/Dec".
void WriteAdvantageText(const Game& g, bool misc, std::ostream& out);
