// The Auto-Bet commands of the play session: open a script, switch Auto-Bet,
// watch the steps and read the flags.

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/table_answer.h"
#include "engine/game.h"
#include "sim/table.h"

namespace {

constexpr const char* kAutoBetUsage = "autobet on|off|steps on|off|run";

bool ReadOnOff(const std::string& word, const char* usage) {
  const std::string w = ToLower(word);
  if (w == "on") return true;
  if (w == "off") return false;
  throw CommandError(std::string("expected: ") + usage);
}

Json FlagsJson(const Script& s) {
  Json flags = Json::array();
  for (const Flag& f : s.Flags)
    flags.push_back({{"name", f.FlagName}, {"value", f.FlagValue != 0}, {"previous", f.FlagPrevious != 0}});
  return flags;
}

}  // namespace

void PlaySession::ScriptFile(const Args& a) {
  Require(table_->LoadScript(a[0]));
  const Game& g = table_->State();
  WriteJsonLine(out_, {{"script", {{"file", g.AutoBet.FileName},
                                   {"lines", g.AutoBet.NumLines()},
                                   {"flags", FlagsJson(g.AutoBet)}}}});
}

void PlaySession::AutoBet(const Args& a) {
  const std::string w = ToLower(a[0]);
  if (w == "steps") {
    if (a.size() != 2) throw CommandError(std::string("expected: ") + kAutoBetUsage);
    return Require(table_->ShowSteps(ReadOnOff(a[1], kAutoBetUsage)));
  }
  if (a.size() != 1) throw CommandError(std::string("expected: ") + kAutoBetUsage);
  if (w == "run") return Require(table_->RunScriptPass());
  Require(table_->ActivateScript(ReadOnOff(a[0], kAutoBetUsage)));
}

void PlaySession::Flags(const Args&) { WriteJsonLine(out_, {{"flags", FlagsJson(table_->State().AutoBet)}}); }
