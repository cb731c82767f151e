#include "cli/script_tool.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>

#include "cli/exit_codes.h"
#include "cli/script_words.h"
#include "sim/terminal_text.h"
#include "script/checker.h"
#include "script/loop_check.h"
#include "script/text_form.h"
#include "script/script_file.h"

namespace {

constexpr int kUnreadable = kExitUsage;

int Check(const std::string& path, const Script& script, std::ostream& out) {
  if (script.Lines.empty()) {
    out << "The script is empty.\n";
    return 0;
  }
  const std::optional<ScriptFault> fault = CheckScript(script);
  if (!fault) {
    out << "Your script is properly structured.\n";
    // A warning, not a fault: the run ends such a pass by itself.
    if (const std::optional<ScriptFault> loop = FindEndlessLoop(script))
      out << "warning: " << ScriptFaultText(path, script, *loop) << "\n";
    return 0;
  }
  out << ScriptFaultText(path, script, *fault) << "\n";
  return kExitFailed;
}

int Show(const Script& script, bool texts, std::ostream& out) {
  const int width = static_cast<int>(std::to_string(script.NumLines()).size());
  for (int n = 1; n <= script.NumLines(); ++n) {
    char number[16];
    std::snprintf(number, sizeof number, "%*d  ", width, n);
    out << number << (texts ? script.Line(n).Text : LineToText(script.Line(n))) << "\n";
  }
  return 0;
}

}  // namespace

std::string ScriptFaultText(const std::string& path, const Script& script, const ScriptFault& fault) {
  return path + ":" + std::to_string(fault.Line) + ": " + fault.Title + "\n  " +
         Trimmed(LineToText(script.Line(fault.Line))) + "\n" + TerminalText(fault.Text);
}

CLI::App* AddScriptTool(CLI::App& app, ScriptToolOptions& options) {
  CLI::App* script = app.add_subcommand("script", "Auto-Bet scripts without a game (.bet or text .txt)");
  script->require_subcommand(1);
  CLI::App* check = script->add_subcommand("check", "Check a script's structure; exit 0 clean, 1 fault, 2 unreadable");
  check->add_option("FILE", options.from, "Script file, .bet or text")->required();
  CLI::App* convert = script->add_subcommand("convert", "Convert a script between .bet and text (.txt), by extension");
  convert->add_option("IN", options.from, "Script file to read, .bet or text")->required();
  convert->add_option("OUT", options.to, "File to write: .bet records, or text for .txt")->required();
  CLI::App* words = script->add_subcommand("words", "Print the words of the text form, list by list");
  words->add_option("PREFIX", options.prefix, "Only the entries that begin with this (any case)");
  CLI::App* show = script->add_subcommand("show", "Print the numbered lines of a script");
  show->add_option("FILE", options.from, "Script file, .bet or text")->required();
  show->add_flag("--texts", options.texts, "Print each line's stored Text instead of its text form");
  return script;
}

int RunScriptTool(const CLI::App& command, const ScriptToolOptions& o, std::ostream& out, std::ostream& err) {
  if (command.got_subcommand("words")) {
    if (WriteScriptWords(o.prefix, out)) return kExitDone;
    err << "dicemill-cli script words: no word begins with \"" << o.prefix << "\"\n";
    return kExitFailed;
  }
  Script script;
  if (const FileStatus loaded = LoadScriptFile(o.from, script); !loaded) {
    err << TerminalText(loaded.Messages.front().Text) << "\n";
    return kUnreadable;
  }
  if (command.got_subcommand("check")) return Check(o.from, script, out);
  if (command.got_subcommand("show")) return Show(script, o.texts, out);
  const std::string ext = std::filesystem::path(o.to).extension().string();
  if (!IsBetFilePath(o.to) && ext != ".txt" && ext != ".TXT") {
    err << o.to << ": the file to write must end in .bet or .txt\n";
    return kExitUsage;
  }
  if (const FileStatus saved = SaveScriptFile(o.to, script); !saved) {
    err << TerminalText(saved.Messages.front().Text) << "\n";
    return kExitFailed;
  }
  out << "Wrote " << script.NumLines() << " lines to " << o.to << "\n";
  return 0;
}
