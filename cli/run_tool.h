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
  bool seedGiven = false;
  std::string bankroll;  // read as an amount after parsing
  std::string bankrollCsv;  // the bankroll of every roll, as CSV
  std::string gamesLog;     // a ".glg" games log each game is added to
  bool json = false, quiet = false, timing = false;
};

CLI::App* AddRunTool(CLI::App& app, RunToolOptions& options);
// Runs the batch and prints its report; the exit status (0 done, 1 a run
// that could not start, 130 interrupted).
int RunRunTool(const RunToolOptions& options, std::ostream& out, std::ostream& err);
