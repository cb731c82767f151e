// The table's commands for the Auto-Bet editor: the editor's lines become
// the script as it edits them, and its file menu acts on the script.

#include "engine/script.h"
#include "script/script_file.h"
#include "script/script_files.h"
#include "sim/table_command.h"
#include "store/bet_file.h"
#include "store/save_prompts.h"
#include "store/small_files.h"

namespace {

TableResult NotDone(const std::string& text) { return TableResult::Fail(TableCode::NotDone, text); }

// The editor's marks travel with its lines but are no change of the script.
bool SameLines(const std::vector<ScriptLine>& a, const std::vector<ScriptLine>& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i) {
    ScriptLine x = a[i], y = b[i];
    x.Selected = y.Selected = false;
    x.Marked = y.Marked = false;
    if (!(x == y)) return false;
  }
  return true;
}

// New and Open replace the editor's lines: unsaved ones are offered first.
bool UnsavedLinesKept(Game& g) {
  QuerySaveAutoBetsInEditor(g);
  return g.MsgReply == Answer::Cancel;
}

}  // namespace

TableResult Table::ReplaceScript(const std::vector<ScriptLine>& lines) {
  return Command([&](Game& g) {
    if (SameLines(g.AutoBet.Lines, lines)) {
      g.AutoBet.Lines = lines;  // only the marks moved
      return TableResult{};
    }
    g.AutoBet.Lines = lines;
    RebuildFlags(g.AutoBet);
    g.ScriptDirty = true;
    return TableResult{};
  });
}

TableResult Table::CloseScriptEditor(bool changed, bool activated) {
  return Command([&](Game& g) {
    ScriptEditorClosed(g, changed);
    const bool switched = activated != g.AutoBetActivated;
    g.AutoBetActivated = activated;
    return MarkUnsavedIf(switched);
  });
}

TableResult Table::NewScriptInEditor() {
  return Command([&](Game& g) {
    if (UnsavedLinesKept(g)) return TableResult::Fail(TableCode::Cancelled, "");
    const bool had = g.AutoBet.NumLines() > 0 || !g.AutoBet.FileName.empty();
    g.AutoBet.Lines.clear();
    g.AutoBet.FileName.clear();
    RebuildFlags(g.AutoBet);
    g.ScriptDirty = false;
    return MarkUnsavedIf(had);  // the game no longer links the old file
  });
}

TableResult Table::OpenScriptInEditor(const std::string& path) {
  return Command([&](Game& g) {
    if (UnsavedLinesKept(g)) return TableResult::Fail(TableCode::Cancelled, "");
    if (!ShowFileStatus(g, OpenScriptFile(g, path))) return NotDone("\"" + path + "\" was not opened");
    ScriptOpened(g);
    return TableResult{};
  });
}

TableResult Table::SaveScriptAs(const std::string& path) {
  return Command([&](Game& g) {
    const std::string before = g.AutoBet.FileName;
    if (IsBetFilePath(path)) {
      if (!ShowFileStatus(g, SaveAutoBetFile(g, path))) return NotDone("\"" + path + "\" was not saved");
    } else {
      if (!ShowFileStatus(g, SaveScriptFile(path, g.AutoBet))) return NotDone("\"" + path + "\" was not saved");
      g.AutoBet.FileName = path;
      g.ScriptDirty = false;
    }
    return MarkUnsavedIf(g.AutoBet.FileName != before);  // the game links the file it was saved to
  });
}

TableResult Table::WriteScriptLines(const std::string& path, const std::vector<ScriptLine>& lines) {
  return Command([&](Game& g) {
    Script part;
    part.Lines = lines;
    if (!ShowFileStatus(g, SaveBetFile(path, part))) return NotDone("\"" + path + "\" was not written");
    return TableResult{};
  });
}
