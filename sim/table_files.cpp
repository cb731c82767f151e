// The table's file commands: the game itself, the games log, the script and
// its Hot-Keys.

#include "engine/new_game.h"
#include "engine/roll.h"
#include "script/interpreter.h"
#include "script/script_files.h"
#include "sim/table_command.h"
#include "store/bet_file.h"
#include "store/game_file.h"
#include "store/games_log_file.h"
#include "store/hot_keys_file.h"
#include "store/save_prompts.h"
#include "store/small_files.h"

namespace {

TableResult NotDone(const std::string& text) { return TableResult::Fail(TableCode::NotDone, text); }

// A ".bet" file is refused by its dialog; a text file by its one line.
TableResult OpenScript(Game& g, const std::string& path) {
  const FileStatus opened = OpenScriptFile(g, path);
  if (opened) return {};
  if (!IsBetFilePath(path)) return NotDone(opened.Messages.empty() ? "" : opened.Messages.front().Text);
  (void)ShowFileStatus(g, opened);
  return NotDone("\"" + path + "\" was not opened");
}

}  // namespace

TableResult Table::New(bool keepChipStacks) {
  return Command([&](Game& g) {
    // As the New menu: unsaved work is offered for saving first; Cancel keeps
    // the game as it is.
    QuerySaveGame(g);
    if (g.MsgReply == Answer::Cancel) return TableResult::Fail(TableCode::Cancelled, "");
    NewGame(g, keepChipStacks);
    return TableResult{};
  });
}

TableResult Table::Open(const std::string& path) {
  return Command([&](Game& g) {
    if (!ShowFileStatus(g, OpenGame(g, path))) return NotDone("\"" + path + "\" was not opened");
    return TableResult{};
  });
}

TableResult Table::SaveAs(const std::string& path) {
  return Command([&](Game& g) {
    if (!ShowFileStatus(g, SaveGame(g, path))) return NotDone("\"" + path + "\" was not saved");
    return TableResult{};
  });
}

TableResult Table::Save() {
  if (game_->GameFileName.empty())
    return TableResult::Fail(TableCode::NotDone, "the game has no file yet: save it as one");
  const std::string file = game_->GameFileName;  // the save sets the name again
  return SaveAs(file);
}

TableResult Table::OpenGamesLog(const std::string& path) {
  return Command([&](Game& g) {
    const std::string before = g.GamesLogFile;
    if (!ShowFileStatus(g, OpenGamesFile(g, path))) return NotDone("\"" + path + "\" was not opened");
    return MarkUnsavedIf(g.GamesLogFile != before);  // the game links another file
  });
}

TableResult Table::CloseGamesLog() {
  return Command([&](Game& g) {
    const bool linked = !g.GamesLogFile.empty();
    g.GamesLogFile.clear();
    return MarkUnsavedIf(linked);
  });
}

// --- The script --------------------------------------------------------------

TableResult Table::LoadScript(const std::string& path) {
  return Command([&](Game& g) {
    if (const TableResult refused = OpenScript(g, path); !refused.Done()) return refused;
    ScriptOpened(g);
    g.AutoBetActivated = true;
    return TableResult{};
  });
}

TableResult Table::ReadScript(const std::string& path) {
  return Command([&](Game& g) {
    if (const TableResult refused = OpenScript(g, path); !refused.Done()) return refused;
    return TableResult{};
  });
}

TableResult Table::ActivateScript(bool on) {
  return Command([&](Game& g) {
    const bool changed = on != g.AutoBetActivated;  // the switch is kept with the game
    g.AutoBetActivated = on;
    return MarkUnsavedIf(changed);
  });
}

TableResult Table::ShowSteps(bool on) {
  return Command([&](Game& g) {
    g.ShowingSteps = on;
    return TableResult{};
  });
}

TableResult Table::RunScriptPass() {
  return Command([&](Game& g) {
    if (g.AutoBet.NumLines() == 0) return NotDone("the script has no lines");
    RunAutoBet(g);
    TakeScriptSnapshots(g);
    return TableResult{};
  });
}

HotKeyOutcome Table::RunHotKey(char key) {
  if (busy_) return HotKeyOutcome::Busy;
  relay_->Forget();
  const HotKeyOutcome outcome = ::RunHotKey(*game_, key);
  Publish();
  return outcome;
}

TableResult Table::DefineHotKey(char key, const std::string& file, const std::string& label) {
  return Command([&](Game& g) {
    if (!::DefineHotKey(g, key, file, label)) return NotDone(HotKeyCaption(key) + " was not defined");
    if (!ShowFileStatus(g, SaveHotKeys(g))) return NotDone(std::string(kHotKeysFileName) + " was not saved");
    return TableResult{};
  });
}

TableResult Table::ClearHotKey(char key) {
  return Command([&](Game& g) {
    if (!::ClearHotKey(g, key)) return TableResult::Fail(TableCode::Unknown, HotKeyCaption(key) + " is not defined");
    if (!ShowFileStatus(g, SaveHotKeys(g))) return NotDone(std::string(kHotKeysFileName) + " was not saved");
    return TableResult{};
  });
}
