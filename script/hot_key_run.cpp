#include "script/hot_key_run.h"

#include <filesystem>
#include <optional>

#include "engine/game.h"
#include "script/interpreter.h"
#include "store/bet_file.h"
#include "store/hot_keys_file.h"
#include "store/small_files.h"

namespace {

std::string BoundPath(const Game& g, const std::string& file) {
  const std::filesystem::path p(file);
  if (p.is_absolute() || g.DataFolder.empty()) return file;
  return (std::filesystem::path(g.DataFolder) / p).string();
}

}  // namespace

HotKeyOutcome RunHotKey(Game& g, char key) {
  const HotKeyBinding* binding = FindHotKey(g, key);
  if (!binding) return HotKeyOutcome::NotBound;
  if (g.AutoBetRunning) return HotKeyOutcome::Busy;

  const Script before = g.AutoBet;
  const bool dirty = g.ScriptDirty, initPending = g.InitPending;
  const bool copied = WriteActiveScript(g);
  if (!ShowFileStatus(g, OpenAutoBetFile(g, BoundPath(g, binding->File)))) return HotKeyOutcome::NotOpened;

  g.HotKeyRun = true;
  RunAutoBet(g);
  g.HotKeyRun = false;
  g.AutoBetRunning = false;

  std::optional<std::vector<ScriptLine>> lines;
  if (copied) lines = ReadActiveScript(g);
  if (lines && lines->size() == before.Lines.size()) {
    // The editor's marks are no part of the file.
    for (size_t i = 0; i < lines->size(); ++i) {
      (*lines)[i].Selected = before.Lines[i].Selected;
      (*lines)[i].Marked = before.Lines[i].Marked;
    }
    g.AutoBet.Lines = std::move(*lines);
  } else {
    g.AutoBet.Lines = before.Lines;
  }
  g.AutoBet.FileName = before.FileName;
  g.AutoBet.Flags = before.Flags;
  g.ScriptDirty = dirty;
  g.InitPending = initPending;
  return HotKeyOutcome::Ran;
}
