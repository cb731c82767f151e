#pragma once
// `dicemill-cli games`: the statistics of a games log (".glg") without a
// table, as frmGames works them out.

#include <ostream>
#include <string>
#include <vector>

namespace CLI {
class App;
}

struct GamesToolOptions {
  std::string file;
  std::string measure = "8";        // a field number 0..17 or its name
  std::string breakLow, breakHigh;  // the break-point; empty: 0
  std::vector<std::string> exclude; // won, even, lost
  int bars = 20;
  std::string sdCount = "3";
  bool json = false, data = false;
};

CLI::App* AddGamesTool(CLI::App& app, GamesToolOptions& options);
// Prints the statistics; 0, or 1 for a file or an option it refuses (told
// on `err`), or 1 when the calculation fails.
int RunGamesTool(const GamesToolOptions& options, std::ostream& out, std::ostream& err);
