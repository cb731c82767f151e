#pragma once
// `dicemill-cli run`: the headless strategy runner.

#include <ostream>
#include <string>

#include "sim/run_options.h"

namespace CLI {
class App;
}

struct RunToolOptions {
  RunOptions run;
  std::string gameFile;
  // Numbers are read after parsing, so that "1,000,000" is taken and every
  // refusal says the range in the program's own words.
  std::string seed, firstGame, rolls, games, bankroll;
  std::string bankrollCsv;  // the bankroll of every roll, as CSV
  std::string gamesLog;     // a ".glg" games log each game is added to
  std::string jsonFile;     // with json: the file to write instead of standard output
  bool json = false, quiet = false, timing = false, summary = false, unchecked = false;
};

CLI::App* AddRunTool(CLI::App& app, RunToolOptions& options);
// Runs the batch and prints its report; the exit status (0 done, 1 failed
// while running, 2 refused before the first roll, 130 interrupted).
int RunRunTool(const RunToolOptions& options, std::ostream& out, std::ostream& err);
