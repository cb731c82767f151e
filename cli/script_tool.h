#pragma once
// `dicemill-cli script`: Auto-Bet scripts without a game. Checks a script's
// structure, converts between ".bet" and the text form, shows the lines.

#include <ostream>
#include <string>

namespace CLI {
class App;
}

struct ScriptToolOptions {
  std::string from, to, prefix;
  bool texts = false;
};

// Adds `script check`, `script convert`, `script show` and `script words`.
struct Script;
struct ScriptFault;
// "FILE:LINE: Title", the line, and the checker's message, on a terminal's lines.
std::string ScriptFaultText(const std::string& path, const Script& script, const ScriptFault& fault);

CLI::App* AddScriptTool(CLI::App& app, ScriptToolOptions& options);
// Runs the chosen subcommand of `script`; the exit status. `check` gives 0
// for a well-built script, 1 for a fault, 2 for a file it cannot read.
int RunScriptTool(const CLI::App& script, const ScriptToolOptions& options, std::ostream& out, std::ostream& err);
