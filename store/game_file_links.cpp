#include "store/game_file_links.h"

#include <chrono>
#include <ctime>
#include <filesystem>

#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "engine/notices.h"
#include "store/bet_file.h"
#include "store/game_file.h"
#include "store/prob_file.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

bool IsDefaultGame(const std::string& gamePath) { return fs::path(gamePath).filename() == "default.crp"; }

// The unsaved work of the default game is kept in the data folder, wherever
// the game itself is saved; with no data folder, beside the game.
std::string WorkFileFor(const Game& g, const std::string& gamePath, const char* name) {
  if (!g.DataFolder.empty()) return DataFile(g, name).string();
  return (fs::path(gamePath).parent_path() / name).string();
}

bool FileExists(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_regular_file(path, ec);
}

// The two complaints every link can make: gone, or changed since the save.
struct LinkWords {
  const char* firstLine;
  const char* missingTitle;
  const char* alteredTitle;
};
constexpr LinkWords kAutoBetWords{"The following Auto-Bet file (that was in use when this game ",
                                  "Missing Auto-Bet File", "Altered Auto-Bet File"};
constexpr LinkWords kDiceRollWords{"The following Dice Roll file (that was in use when this game ",
                                   "Missing Dice Roll File", "Altered Dice Roll File"};
constexpr LinkWords kProbabilityWords{"The following Probability file (that was in use when this game ",
                                      "Missing Probability File", "Altered Probability File"};

enum class LinkState { None, Missing, Altered, Same };

// Checks a link against the disk; what is wrong with it goes to `told`.
LinkState CheckLink(const FileLink& link, const LinkWords& words, FileStatus& told) {
  if (link.Path.empty()) return LinkState::None;
  if (!FileExists(link.Path)) {
    told.Tell(words.missingTitle, std::string(words.firstLine) + kBreak + "was saved) was not found:" + kBreak + link.Path);
    return LinkState::Missing;
  }
  if (FileDateText(link.Path) != link.Date) {
    told.Tell(words.alteredTitle, std::string(words.firstLine) + kBreak + "was saved) has been changed:" + kBreak + link.Path);
    return LinkState::Altered;
  }
  return LinkState::Same;
}

}  // namespace

std::string FileDateText(const std::string& path) {
  std::error_code ec;
  const auto stamp = fs::last_write_time(path, ec);
  if (ec) return "";
  const auto seconds = std::chrono::time_point_cast<std::chrono::seconds>(std::chrono::file_clock::to_sys(stamp));
  const std::time_t t = std::chrono::system_clock::to_time_t(seconds);
  std::tm parts{};
  gmtime_r(&t, &parts);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &parts);
  return text;
}

FileLink LinkTo(const std::string& path) {
  if (path.empty()) return {};
  return {path, FileDateText(path)};
}

void PutLink(FileRecord& r, const FileLink& link) {
  PutText(r, 0, kSignatureWidth, kGameFileSignature);
  PutText(r, kLinkPathOffset, kLinkPathWidth, link.Path);
  PutText(r, kLinkDateOffset, kLinkDateWidth, link.Date);
}

FileLink GetLink(const FileRecord& r) {
  return {GetText(r, kLinkPathOffset, kLinkPathWidth), GetText(r, kLinkDateOffset, kLinkDateWidth)};
}

std::string GetSignature(const FileRecord& r) { return GetText(r, 0, kSignatureWidth); }

FileLink AutoBetLinkForSave(Game& g, const std::string& gamePath) {
  Script& script = g.AutoBet;
  if (g.ScriptDirty) {
    if (!IsDefaultGame(gamePath) || script.NumLines() == 0) return {};
    const std::string path = WorkFileFor(g, gamePath, "default.bet");
    if (!SaveBetFile(path, script)) return {};
    script.FileName = path;
    g.ScriptDirty = false;
    return LinkTo(path);
  }
  return FileExists(script.FileName) ? LinkTo(script.FileName) : FileLink{};
}

FileLink DiceRollLinkForSave(const Game& g) { return LinkTo(g.DiceFile.RollFileName); }

FileLink ProbabilityLinkForSave(Game& g, const std::string& gamePath) {
  if (g.ProbModified) {
    if (!IsDefaultGame(gamePath)) return {};
    const std::string path = WorkFileFor(g, gamePath, "default.prb");
    return ShowFileStatus(g, SaveProbabilityFile(g, path)) ? LinkTo(path) : FileLink{};
  }
  return FileExists(g.ProbFileName) ? LinkTo(g.ProbFileName) : FileLink{};
}

FileStatus OpenAutoBetLink(Game& g, const FileLink& link) {
  const auto names = g.AutoBet.ChipStackNames;  // the game's, not the file's
  g.AutoBet.Lines.clear();
  g.AutoBet.Flags.clear();
  g.AutoBet.FileName.clear();
  FileStatus told;
  const LinkState state = CheckLink(link, kAutoBetWords, told);
  if (state == LinkState::Same || state == LinkState::Altered) {
    // The script's reader sits above the files; the game is given it.
    const FileStatus opened = g.Hooks.OpenScriptFile ? g.Hooks.OpenScriptFile(g, link.Path) : FileStatus{};
    told.Follow(opened);
    // A refused ".bet" file is told in its own words, then as not opened.
    if (!opened && IsBetFilePath(link.Path)) told.Tell("Error", "\"" + link.Path + "\" was not opened");
  }
  g.AutoBet.ChipStackNames = names;
  g.ScriptDirty = false;
  return told;
}

FileStatus OpenDiceRollLink(Game& g, const FileLink& link) {
  // Opening a file moves its positions; the saved ones are put back.
  DiceFileState& f = g.DiceFile;
  const int32_t mode = g.DiceFileMode;
  const std::array<int32_t, 4> positions{f.NextRollNum, f.LastRollNum, f.SelectAnchor, f.TopRollNum};
  const bool insert = f.InsertRolls;
  g.DiceFileMode = kRecorderOff;
  f.RollFileName.clear();
  FileStatus told;
  const LinkState state = CheckLink(link, kDiceRollWords, told);
  if (state != LinkState::Same && state != LinkState::Altered) return told;
  const FileStatus opened = OpenRollFile(g, link.Path);
  told.Follow(opened);
  if (!opened) return told;
  f.NextRollNum = positions[0];
  f.LastRollNum = positions[1];
  f.SelectAnchor = positions[2];
  f.TopRollNum = positions[3];
  f.InsertRolls = insert;
  g.DiceFileMode = mode;
  return told;
}

FileStatus OpenProbabilityLink(Game& g, const FileLink& link) {
  // The table itself came with the game; the link only names its file.
  FileStatus told;
  const LinkState state = CheckLink(link, kProbabilityWords, told);
  if (state == LinkState::Same || state == LinkState::Altered) {
    g.ProbFileName = link.Path;
    if (state == LinkState::Altered) g.ProbModified = true;
  } else {
    g.ProbFileName = "untitled";
    if (state == LinkState::Missing) g.ProbModified = true;
  }
  return told;
}

FileStatus CheckGamesLogLink(Game& g, const FileLink& link) {
  FileStatus told;
  if (link.Path.empty() || FileExists(link.Path)) return told;
  const std::string instead = (fs::path(g.DataFolder) / "default.glg").string();
  told.Tell("Missing Games Log", std::string("The following Games Log (that was in use when this game ") + kBreak +
                                     "was saved) was not found:" + kBreak + link.Path + kBreak +
                                     "The following Games Log will be opened instead:" + kBreak + instead);
  PutLink(g.FileExtras.Kept(4), LinkTo(instead));
  return told;
}
