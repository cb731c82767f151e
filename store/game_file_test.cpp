#include "store/game_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "cli/temp_folder_for_test.h"
#include "engine/dice_roll_files.h"
#include "engine/roll.h"
#include "engine/table_commands.h"
#include "engine/table_for_test.h"
#include "script/interpreter.h"
#include "store/game_file_links.h"
#include "store/game_record.h"
#include "store/file_bytes_for_test.h"
#include "store/games_log_file.h"
#include "test_paths.h"
#include "script/script_file.h"
#include "store/start_up.h"
#include "stats/summary.h"

namespace fs = std::filesystem;

namespace {

// Pass Line and two Come bets with full odds, a Field bet whose results set
// a flag, and a named Chip-Stack that grows while the flag is up.
constexpr const char* kStrategy = R"('Game file test strategy
When
  Initializing Auto-Bet
then
  Name Chip-Stack #1 "unit"
  Bet $5 on Chip-Stack #1
While
  Next roll is a come-out roll
then
  Set Auto-Take Full Odds on
  Bet $10 on Pass Line
While
  Next roll is NOT a come-out roll
  Total Come bets number less than 2
then
  Bet $10 on Come
When
  Field has lost
then
  Set flag "cold" to True
When
  Field has won
then
  Set flag "cold" to False
While
  Flag "cold" is True
then
  Add $1 to Chip-Stack #1
While
  Chip-Stack #1 is greater than $40
then
  Bet $5 on Chip-Stack #1
Do this
  Bet 100% of Chip-Stack #1 on Field
)";

struct SavedTable {
  Game g;
  RecordingFrontEnd ui;

  explicit SavedTable(const fs::path& folder) {
    AssembleGame(g);
    g.Ui = &ui;
    g.DataFolder = folder.string();
    g.ReSeedNewGames = false;
    FillDefaults(g);
  }
};

void StartStrategy(Game& g, const fs::path& folder) {
  const std::string text = (folder / "strategy.txt").string();
  WriteBytes(text, kStrategy);
  const FileStatus loaded = LoadScriptFile(text, g.AutoBet);
  ASSERT_TRUE(loaded) << loaded.FirstMessage();
  ASSERT_GE(g.AutoBet.Flags.size(), 1u);
  g.AutoBetActivated = true;
  g.InitPending = true;
  RunAutoBet(g);
  TakeScriptSnapshots(g);
  g.InitPending = false;
}

// Rolls one throw at a time until the table is busy: point on, a Come bet
// on its number with odds behind it.
void RollUntilBusy(Game& g) {
  auto busy = [&g] {
    for (int come = 19; come <= 24; ++come)
      if (g.Point != 0 && g.BetAmount[come] > 0 && g.BetAmount[come + 6] > 0) return true;
    return false;
  };
  for (int i = 0; i < 3000 && !busy(); ++i) {
    g.KeepRolling = false;
    RollDice(g);
  }
  ASSERT_TRUE(busy());
}

// Each throw and what it left: the dice, the bankroll, the table and the
// script's state.
std::vector<int64_t> Trail(Game& g, int rolls) {
  std::vector<int64_t> trail;
  g.HyperDriveOn = true;
  for (int i = 0; i < rolls; ++i) {
    g.KeepRolling = false;
    RollDice(g);
    trail.insert(trail.end(), {g.Die1, g.Die2, g.Point, g.Bankroll().raw, g.TotalOnTable.raw,
                               g.BetAmount[101].raw, g.RollCounts[0]});
  }
  for (const Flag& f : g.AutoBet.Flags) trail.push_back(f.FlagValue);
  trail.insert(trail.end(), g.HandStats.begin(), g.HandStats.end());
  trail.insert(trail.end(), g.RollsSinceLast.begin(), g.RollsSinceLast.end());
  return trail;
}

std::vector<std::string> TrendTexts(const Game& g) {
  std::vector<std::string> texts;
  for (const BetTrendRow& row : BetTrendRows(g)) texts.push_back(row.Name + ": " + row.Results + ", " + row.Span);
  return texts;
}

enum class Dice { Generator, Percentage, RollFile };

void ExpectContinuesAsIfNeverSaved(int rng, Dice dice) {
  SCOPED_TRACE("generator #" + std::to_string(rng) + " dice " + std::to_string(static_cast<int>(dice)));
  TempFolder folder;
  SavedTable a(folder.path());
  NewGame(a.g, false);
  SeedSilently(a.g, rng - 1, 4321);
  if (dice == Dice::Percentage) {
    a.g.UseSkewedProbability = true;
    a.g.ProbModified = true;  // never saved to a file of its own
  }
  if (dice == Dice::RollFile) {
    std::mt19937 source(7);
    std::string rolls;
    for (int i = 0; i < 16000; ++i)
      rolls.push_back(static_cast<char>(RollByte(1 + static_cast<int>(source() % 6), 1 + static_cast<int>(source() % 6))));
    WriteBytes(folder.path() / "rolls.rol", rolls);
    ASSERT_TRUE(OpenRollFile(a.g, (folder.path() / "rolls.rol").string()));
    ASSERT_TRUE(SetRecorderStatus(a.g, kRecorderPlayback));
  }
  StartStrategy(a.g, folder.path());
  RollUntilBusy(a.g);
  a.g.BetChange = 12;
  PlaceBet(a.g, 33);  // Place 6, called OFF
  CallBet(a.g, 33, kToolCallOff);
  ASSERT_EQ(a.g.BetStatus[33], -1);
  ASSERT_GT(a.g.RollCounts[0], 0);

  const std::string path = (folder.path() / "mid-run.crp").string();
  ASSERT_TRUE(SaveGame(a.g, path));
  EXPECT_EQ(a.g.TableCaption, "Dicemill (mid-run.crp)");

  SavedTable b(folder.path());
  const FileStatus opened = OpenGame(b.g, path);
  ASSERT_TRUE(opened.Ok);
  EXPECT_TRUE(opened.Messages.empty()) << opened.FirstMessage();
  EXPECT_EQ(b.g.BetStatus[33], -1);
  EXPECT_EQ(b.g.AutoBet.ChipStackNames[1], "unit");
  // The trends' cells have gone round by now: they come back oldest first.
  EXPECT_EQ(TrendTexts(b.g), TrendTexts(a.g));
  EXPECT_EQ(b.g.AutoBet.NumLines(), a.g.AutoBet.NumLines());
  EXPECT_EQ(Trail(b.g, 10000), Trail(a.g, 10000));
}

}  // namespace

TEST(GameFile, ASavedGameContinuesRollForRollWithEveryGenerator) {
  for (int rng = 1; rng <= kRngCount; ++rng) {
    ExpectContinuesAsIfNeverSaved(rng, Dice::Generator);
    ExpectContinuesAsIfNeverSaved(rng, Dice::Percentage);
  }
  ExpectContinuesAsIfNeverSaved(1, Dice::RollFile);
}

// The bytes of a game file as another version writes it: without the record
// count in record 1 and the closing check record.
std::string Unsealed(std::string bytes) {
  bytes.resize(bytes.size() - kGameRecordBytes);
  std::fill_n(bytes.begin() + 232, 24, '\0');
  return bytes;
}

TEST(GameFile, TheSignatureDecidesWhatOpens) {
  TempFolder folder;
  SavedTable saved(folder.path());
  NewGame(saved.g, false);
  saved.g.BetAmount.Set(0, 777);
  const fs::path path = folder.path() / "game.crp";
  ASSERT_TRUE(SaveGame(saved.g, path.string()));
  const std::string bytes = Unsealed(ReadBytes(path));
  EXPECT_EQ(bytes.substr(0, 36), kGameFileSignature);

  auto withSignature = [&](const std::string& signature) {
    std::string changed = bytes;
    for (size_t i = 0; i < kSignatureWidth; ++i) changed[i] = i < signature.size() ? signature[i] : ' ';
    return changed;
  };
  TempFolder other;
  SavedTable games(other.path());
  const fs::path log = other.path() / "x.glg", script = other.path() / "x.bet";
  ASSERT_TRUE(SaveGameToLog(log.string(), {}));
  WriteBytes(script, ReadBytes(DICEMILL_SOURCE_DIR "/samples/iron-cross.bet"));
  const struct {
    std::string bytes;
    bool opens;
  } cases[] = {
      {withSignature("Dicemill Game File, Data Format 5.0a"), true},
      {withSignature("Dicemill Game File, Data Format 5.0"), true},
      {withSignature("Dicemill Game File, Data Format 4.9k"), false},
      {withSignature("Dicemill Games File, Data Format 5.0"), false},
      {ReadBytes(log), false},
      {ReadBytes(script), false},
  };
  for (const auto& c : cases) {
    WriteBytes(path, c.bytes);
    SavedTable t(folder.path());
    t.g.BetAmount.Set(0, 5);
    const FileStatus opened = OpenGame(t.g, path.string());
    EXPECT_EQ(opened.Ok, c.opens) << c.bytes.substr(0, 40);
    EXPECT_EQ(t.g.Bankroll(), c.opens ? 777 : 5);  // a refused file leaves the table as it was
    EXPECT_TRUE(t.ui.messages.empty());             // the caller shows what it is told
    if (c.opens) continue;
    ASSERT_EQ(opened.Messages.size(), 1u);
    EXPECT_EQ(opened.Messages[0].Title, "Unable to Open Dicemill Game File");
    EXPECT_EQ(opened.Messages[0].Text,
              path.string() + "\ris either from a different version, has been corrupted, or is not a true Dicemill game file.");
  }
}

TEST(GameFile, ADamagedFileIsRefusedWhole) {
  TempFolder folder;
  SavedTable saved(folder.path());
  NewGame(saved.g, false);
  StartStrategy(saved.g, folder.path());
  RollUntilBusy(saved.g);
  const fs::path path = folder.path() / "game.crp";
  ASSERT_TRUE(SaveGame(saved.g, path.string()));
  const std::string bytes = ReadBytes(path), unsealed = Unsealed(bytes);
  const size_t continuation = unsealed.find("Dicemill Continuation");
  ASSERT_NE(continuation, std::string::npos);

  // Cut anywhere, one byte changed anywhere, or what two killed writers
  // left: refused, and the table is untouched.
  std::vector<std::string> damaged;
  for (size_t length = 0; length < bytes.size(); length += 997) damaged.push_back(bytes.substr(0, length));
  for (size_t records = 1; records * kGameRecordBytes < bytes.size(); records += 5)
    damaged.push_back(bytes.substr(0, records * kGameRecordBytes));
  for (size_t at = 0; at < bytes.size(); at += 1009) {
    damaged.push_back(bytes);
    damaged.back()[at] = static_cast<char>(damaged.back()[at] ^ 0x10);
  }
  damaged.push_back(bytes);
  damaged.back()[bytes.size() - 1] = 'x';  // even the spare bytes of the check record
  damaged.push_back(unsealed + std::string(kGameRecordBytes, 'x'));  // a record too many
  damaged.push_back(unsealed.substr(0, continuation + kGameRecordBytes));  // a continuation cut short
  for (const std::string& d : damaged) {
    WriteBytes(path, d);
    SavedTable t(folder.path());
    t.g.BetAmount.Set(0, 5);
    const FileStatus opened = OpenGame(t.g, path.string());
    EXPECT_FALSE(opened.Ok) << d.size();
    EXPECT_EQ(t.g.Bankroll(), 5);
    ASSERT_EQ(opened.Messages.size(), 1u);
    EXPECT_EQ(opened.Messages[0].Title, "Unable to Open Dicemill Game File");
  }

  // A file of another version with whole records but random values is read,
  // kept in range and rollable.
  std::mt19937 random(11);
  for (int round = 0; round < 20; ++round) {
    std::string noise = unsealed;
    for (size_t i = kGameRecordBytes; i < continuation; ++i) noise[i] = static_cast<char>(random());
    noise.resize(continuation);
    WriteBytes(path, noise);
    SavedTable t(folder.path());
    if (!OpenGame(t.g, path.string())) continue;  // a flag count that runs past the end
    EXPECT_TRUE(t.g.Die1 >= 1 && t.g.Die1 <= 6 && t.g.RngChoice >= 0 && t.g.RngChoice < kRngCount);
    t.g.HyperDriveOn = true;
    t.g.AutoBetActivated = false;
    for (int i = 0; i < 20; ++i) RollDice(t.g);
  }
  // Such a file that ends with the last record: the streams go on as they are.
  WriteBytes(path, unsealed.substr(0, continuation));
  SavedTable older(folder.path());
  SeedSilently(older.g, 0, 99);
  const Generators before = older.g.Rng;
  ASSERT_TRUE(OpenGame(older.g, path.string()));
  EXPECT_EQ(older.g.Rng.mt.mt, before.mt.mt);
  EXPECT_EQ(older.g.ModSeed, saved.g.ModSeed);  // record 15 is there
  WriteBytes(path, unsealed);  // and with the continuation, it goes on exactly
  SavedTable whole(folder.path());
  ASSERT_TRUE(OpenGame(whole.g, path.string()));
  EXPECT_EQ(whole.g.Rng.mt.mt, saved.g.Rng.mt.mt);
}

TEST(GameFile, LinksNameTheFilesInUse) {
  TempFolder folder;
  const fs::path crp = folder.path() / "default.crp";

  // A script with no name and no lines: empty path and date.
  SavedTable empty(folder.path());
  NewGame(empty.g, false);
  ASSERT_TRUE(SaveGame(empty.g, crp.string()));
  EXPECT_EQ(empty.g.TableCaption, "Dicemill");
  const std::string firstRecord = ReadBytes(crp).substr(0, kGameRecordBytes);
  EXPECT_EQ(firstRecord.substr(kLinkPathOffset, 232 - kLinkPathOffset), std::string(232 - kLinkPathOffset, ' '));

  // An unsaved script in default.crp goes to default.bet beside it.
  SavedTable dirty(folder.path());
  NewGame(dirty.g, false);
  StartStrategy(dirty.g, folder.path());
  dirty.g.AutoBet.FileName.clear();
  dirty.g.ScriptDirty = true;
  ASSERT_TRUE(SaveGame(dirty.g, crp.string()));
  const fs::path bet = folder.path() / "default.bet";
  ASSERT_TRUE(fs::exists(bet));
  const std::string linking = ReadBytes(crp);
  RecordReader reader(linking);
  const FileLink link = GetLink(reader.Next());
  EXPECT_EQ(link.Path, bet.string());
  EXPECT_EQ(link.Date, FileDateText(bet.string()));
  EXPECT_FALSE(link.Date.empty());

  // The same unsaved script in a game of another name is not linked.
  dirty.g.ScriptDirty = true;
  ASSERT_TRUE(SaveGame(dirty.g, (folder.path() / "other.crp").string()));
  const std::string notLinking = ReadBytes(folder.path() / "other.crp");
  RecordReader other(notLinking);
  EXPECT_TRUE(GetLink(other.Next()).Path.empty());

  // Gone and changed files are told about when the game opens.
  const fs::path rol = folder.path() / "r.rol";
  WriteBytes(rol, std::string(10, static_cast<char>(RollByte(3, 4))));
  SavedTable linked(folder.path());
  NewGame(linked.g, false);
  ASSERT_TRUE(OpenRollFile(linked.g, rol.string()));
  ASSERT_TRUE(LoadScriptFile(bet.string(), linked.g.AutoBet));
  const fs::path game = folder.path() / "linked.crp";
  ASSERT_TRUE(SaveGame(linked.g, game.string()));
  fs::last_write_time(rol, fs::last_write_time(rol) - std::chrono::hours(2));
  fs::remove(bet);
  SavedTable reopened(folder.path());
  const FileStatus opened = OpenGame(reopened.g, game.string());
  ASSERT_TRUE(opened.Ok);  // notices, not a refusal
  const std::vector<FileMessage> notices = {
      {"Missing Auto-Bet File",
       "The following Auto-Bet file (that was in use when this game \rwas saved) was not found:\r" + bet.string()},
      {"Altered Dice Roll File",
       "The following Dice Roll file (that was in use when this game \rwas saved) has been changed:\r" + rol.string()}};
  EXPECT_EQ(opened.Messages, notices);
  EXPECT_EQ(reopened.g.AutoBet.NumLines(), 0);
  EXPECT_EQ(reopened.g.DiceFile.RollFileName, rol.string());
}

TEST(GameFile, WhatThisProgramDoesNotUseGoesBackOutUnchanged) {
  TempFolder folder;
  SavedTable t(folder.path());
  NewGame(t.g, false);
  const fs::path path = folder.path() / "g.crp";
  ASSERT_TRUE(SaveGame(t.g, path.string()));
  std::string bytes = Unsealed(ReadBytes(path));
  auto slot = [](int record, int currencySlot) { return (record - 1) * kGameRecordBytes + currencySlot * 8; };
  const std::vector<size_t> foreign = {5 * kGameRecordBytes + 3,  // a geometry entry, record 6
                                       slot(8, 28),               // past the settings
                                       slot(9, 25),               // a game total
                                       slot(11, 20),              // a screen index
                                       slot(12, 30),              // a graph value
                                       12 * kGameRecordBytes + 7};  // the 6-by-6 table
  for (size_t at : foreign) bytes[at] = 0x5A;
  WriteBytes(path, bytes);
  SavedTable again(folder.path());
  ASSERT_TRUE(OpenGame(again.g, path.string()));
  ASSERT_TRUE(SaveGame(again.g, path.string()));
  const std::string rewritten = ReadBytes(path);
  for (size_t at : foreign) EXPECT_EQ(rewritten[at], 0x5A) << at;
}

TEST(GameFile, AFailedSaveLeavesTheOldFileWhole) {
  TempFolder folder;
  SavedTable t(folder.path());
  NewGame(t.g, false);
  const fs::path path = folder.path() / "keep.crp";
  ASSERT_TRUE(SaveGame(t.g, path.string()));
  const std::string before = ReadBytes(path);
  t.g.BetAmount.Set(0, 12345);
  {
    const FileSizeLimitForTest fullDisk(1000);
    const FileStatus saved = SaveGame(t.g, path.string());
    EXPECT_FALSE(saved.Ok);
    const std::vector<FileMessage> told = {
        {"Error", path.string() + " could not be written: file too large.\r" +
                      "File name error, file not found, or device error.\rCheck path and file name."}};
    EXPECT_EQ(saved.Messages, told);
  }
  EXPECT_EQ(ReadBytes(path), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);  // no temporary left
  SavedTable back(folder.path());
  ASSERT_TRUE(OpenGame(back.g, path.string()));
  EXPECT_EQ(back.g.Bankroll(), 500);
}

TEST(GameFile, TheDefaultGameIsSavedAtTheStopAndOpenedAtTheStart) {
  TempFolder folder;
  SavedTable t(folder.path());
  NewGame(t.g, false);
  t.g.BetAmount.Set(0, 4321);
  t.g.TableMaximum = 2500;
  ASSERT_TRUE(SaveDefaultGame(t.g));
  Game next;
  AssembleGame(next);
  StartUp(next, folder.path().string());
  EXPECT_EQ(next.Bankroll(), 4321);
  EXPECT_EQ(next.TableMaximum, 2500);
  EXPECT_EQ(next.TableCaption, "Dicemill");
}
