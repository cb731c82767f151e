#pragma once
// `dicemill-cli dice`: Dice Roll Files without a game. Converts text to ".rol"
// and back, and summarises a ".rol" file.

#include <ostream>
#include <string>

namespace CLI {
class App;
}

struct DiceToolOptions {
  std::string from, to;
  bool rollNumbers = false, noDice = false, numbersCalled = false;
};

// Adds `dice to-rol`, `dice to-text` and `dice info` to the program's commands.
CLI::App* AddDiceTool(CLI::App& app, DiceToolOptions& options);
// Runs the chosen subcommand of `dice`; the exit status.
int RunDiceTool(const CLI::App& dice, const DiceToolOptions& options, std::ostream& out, std::ostream& err);
// The summary of a ".rol" file as one JSON line: rolls, totals 2..12, and the
// first roll out of limits (0 for none), also kept in `firstOutOfLimits`.
// False when it cannot be read.
bool WriteRollFileSummary(const std::string& rolPath, std::ostream& out, int64_t* firstOutOfLimits = nullptr);
