// The Auto-Bet commands of the play session: open a script, switch Auto-Bet,
// watch the steps and read the flags.

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "engine/game.h"
#include "script/interpreter.h"
#include "script/script_files.h"
#include "store/script_file.h"
#include "store/small_files.h"

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
  Game& g = *game_;
  const FileStatus opened = OpenScriptFile(g, a[0]);
  if (!opened) {
    // A ".bet" file is refused by its dialog; a text file by its one line.
    if (!IsBetFilePath(a[0])) throw CommandError(opened.Messages.front().Text);
    ShowFileStatus(g, opened);
    throw CommandError("\"" + a[0] + "\" was not opened");
  }
  ScriptOpened(g);
  g.AutoBetActivated = true;
  WriteJsonLine(out_, {{"script", {{"file", g.AutoBet.FileName},
                                   {"lines", g.AutoBet.NumLines()},
                                   {"flags", FlagsJson(g.AutoBet)}}}});
}

void PlaySession::AutoBet(const Args& a) {
  Game& g = *game_;
  const std::string w = ToLower(a[0]);
  if (w == "steps") {
    if (a.size() != 2) throw CommandError(std::string("expected: ") + kAutoBetUsage);
    g.ShowingSteps = ReadOnOff(a[1], kAutoBetUsage);
    return;
  }
  if (a.size() != 1) throw CommandError(std::string("expected: ") + kAutoBetUsage);
  if (w == "run") {
    if (g.AutoBet.NumLines() == 0) throw CommandError("the script has no lines");
    RunAutoBet(g);
    TakeScriptSnapshots(g);
    return;
  }
  const bool on = ReadOnOff(a[0], kAutoBetUsage);
  if (on != g.AutoBetActivated) g.GameChanged = true;  // the switch is kept with the game
  g.AutoBetActivated = on;
}

void PlaySession::Flags(const Args&) { WriteJsonLine(out_, {{"flags", FlagsJson(game_->AutoBet)}}); }

void PlaySession::GoToTable() { OfferInitialCycle(*game_); }
