#include "store/game_file.h"

#include <filesystem>

#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "engine/file_errors.h"
#include "store/atomic_write.h"
#include "store/game_file_check.h"
#include "store/game_file_links.h"
#include "store/game_file_sections.h"
#include "stats/statistics_sync.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

void SetCaption(Game& g, const std::string& path) {
  const std::string name = fs::path(path).filename().string();
  g.GameFileName = path;
  g.TableCaption = name == kDefaultGameName ? "Dicemill" : "Dicemill (" + name + ")";
}

void WriteLinkRecords(Game& g, const std::string& path, RecordWriter& w) {
  PutLink(w.Add(), AutoBetLinkForSave(g, path));
  PutLink(w.Add(), DiceRollLinkForSave(g));
  PutLink(w.Add(), ProbabilityLinkForSave(g, path));
  // The games log in use; the note path is held as it was read.
  FileLink log = LinkTo(g.GamesLogFile);
  log.Date.clear();  // the log grows with every game: only its path is checked
  PutLink(w.Add(), log);
  PutLink(w.Add(), GetLink(g.FileExtras.Kept(5)));
}

FileStatus Refusal(const std::string& path) {
  return FileStatus::Failed(
      "Unable to Open Dicemill Game File",
      PrintableName(path) + kBreak +
          "is either from a different version, has been corrupted, or is not a true Dicemill game file.");
}

}  // namespace

FileStatus SaveGame(Game& g, const std::string& path) {
  if (g.DiceFile.File.IsOpen()) g.DiceFile.File.Flush();  // its date must be the one on disk
  SyncStatistics(g);  // a save from a script in a run writes the figures as they stand
  // The file holds the game as saved, so its unsaved mark goes out clear;
  // only a failed write leaves the game unsaved.
  const bool changed = g.GameChanged;
  g.GameChanged = false;
  RecordWriter w;
  WriteLinkRecords(g, path, w);
  WriteSettingsRecords(g, w);
  WriteTableRecords(g, w);
  WriteStatisticsRecords(g, w);
  WriteScriptRecords(g, w);
  WriteContinuationRecords(g, w);
  std::string bytes = w.Bytes();
  SealGameFile(bytes);
  std::string reason;
  if (!WriteFileAtomically(path, bytes, reason)) {
    g.GameChanged = changed;
    return FileErrorStatus(path, reason);
  }
  SetCaption(g, path);
  return {};
}

FileStatus OpenGame(Game& g, const std::string& path) {
  std::string bytes, reason;
  if (!ReadRegularFile(path, kMaxGameFileBytes, bytes, reason)) return FileErrorStatus(path, reason);
  return OpenGameBytes(g, bytes, path);
}

FileStatus OpenGameBytes(Game& g, const std::string& bytes, const std::string& path) {
  // Nothing of the game changes until the whole file has been checked.
  if (!GameFileIsWhole(bytes)) return Refusal(path);
  RecordReader r(bytes);
  const FileRecord first = r.Next();

  if (g.DiceFile.File.IsOpen()) CloseRollFile(g);
  if (g.ScriptOutput.is_open()) g.ScriptOutput.close();
  const FileLink autoBet = GetLink(first);
  const FileLink diceRoll = GetLink(r.Next());
  const FileLink probability = GetLink(r.Next());
  g.FileExtras.Kept(4) = r.Next();
  g.FileExtras.Kept(5) = r.Next();
  ReadSettingsRecords(g, r);
  ReadTableRecords(g, r);
  ReadStatisticsRecords(g, r);
  ReadScriptRecords(g, r);
  ReadContinuationRecords(g, r);
  KeepStateInRange(g);

  const bool initPending = g.InitPending;
  FileStatus told = OpenAutoBetLink(g, autoBet);
  RestoreFlagValues(g);
  g.InitPending = initPending;
  told.Follow(OpenDiceRollLink(g, diceRoll));
  told.Follow(OpenProbabilityLink(g, probability));
  told.Follow(CheckGamesLogLink(g, GetLink(g.FileExtras.Kept(4))));
  g.GamesLogFile = GetLink(g.FileExtras.Kept(4)).Path;
  WriteActiveScript(g);  // the working copy follows the script the game links
  g.GameChanged = false;  // a game just opened is as saved, whatever the file held

  SetCaption(g, path);
  g.TableDirty = true;
  g.Ui->RefreshTable();
  return told;
}

std::string DefaultGamePath(const Game& g) { return (fs::path(g.DataFolder) / kDefaultGameName).string(); }

FileStatus SaveDefaultGame(Game& g) { return SaveGame(g, DefaultGamePath(g)); }
