#include "store/small_files.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "store/bet_file.h"
#include "engine/file_errors.h"
#include "store/atomic_write.h"
#include "store/hot_keys_file.h"
#include "store/sound_sets.h"

std::filesystem::path DataFile(const Game& g, const char* name) { return std::filesystem::path(g.DataFolder) / name; }

bool WriteActiveScript(const Game& g) {
  if (g.DataFolder.empty() || g.DataFolderInUse) return false;
  const auto& lines = g.AutoBet.Lines;
  if (!std::all_of(lines.begin(), lines.end(), [](const ScriptLine& l) { return FitsFileFields(l); })) return false;
  return WriteFileAtomically(DataFile(g, kActiveScriptName), EncodeBetFile(g.AutoBet, false));
}

std::optional<std::vector<ScriptLine>> ReadActiveScript(const Game& g) {
  if (g.DataFolder.empty()) return std::nullopt;
  std::string bytes, reason;
  if (!ReadRegularFile(DataFile(g, kActiveScriptName), kMaxScriptFileBytes, bytes, reason)) return std::nullopt;
  DecodedBetFile file = DecodeBetFile(bytes);
  if (file.Status != BetFileStatus::Ok) return std::nullopt;
  return std::move(file.Lines);
}

void ListSoundSetsAndHotKeys(Game& g) {
  g.Sounds = ListSoundSets(g.DataFolder);
  (void)ShowFileStatus(g, LoadHotKeys(g));
}

void ScriptOpened(Game& g) {
  g.ScriptDirty = false;
  g.GameChanged = true;
  WriteActiveScript(g);
}

void ScriptEditorClosed(Game& g, bool changed) {
  if (!changed) return;
  g.ScriptDirty = true;
  g.InitPending = true;
  WriteActiveScript(g);
}

void RemoveWorkFiles(Game& g) {
  CloseRollFile(g);
  if (g.DataFolder.empty() || g.DataFolderInUse) return;
  std::error_code ignored;
  std::filesystem::remove(DataFile(g, kActiveScriptName), ignored);
  std::filesystem::remove(DataFile(g, kClipboardName), ignored);
}
