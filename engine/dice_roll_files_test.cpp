#include "engine/dice_roll_files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "cli/temp_folder_for_test.h"
#include "dice/rng.h"
#include "engine/seed.h"
#include "engine/table_for_test.h"

namespace {

// Answers questions from a queue, then as the recording front end does.
class AnsweringFrontEnd : public RecordingFrontEnd {
 public:
  std::deque<Reply> replies;
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    const Reply silent = RecordingFrontEnd::ShowMessage(title, text, buttons);
    if (replies.empty() || buttons == Buttons::Ok) return silent;
    const Reply r = replies.front();
    replies.pop_front();
    return r;
  }
};

std::string ReadAll(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}
void WriteAll(const std::filesystem::path& p, const std::string& bytes) {
  std::ofstream(p, std::ios::binary) << bytes;
}
// A valid roll byte for roll i, varied enough to catch a shifted block.
char PatternByte(int64_t i) { return static_cast<char>(RollByte(static_cast<int>(i % 6) + 1, static_cast<int>(i / 6 % 6) + 1)); }
// Compares long byte strings without printing them.
::testing::AssertionResult SameBytes(const std::string& got, const std::string& want) {
  if (got == want) return ::testing::AssertionSuccess();
  size_t i = 0;
  while (i < got.size() && i < want.size() && got[i] == want[i]) ++i;
  return ::testing::AssertionFailure() << "sizes " << got.size() << " and " << want.size() << ", first difference at "
                                       << i;
}
std::string Pattern(int64_t from, int64_t count) {
  std::string s;
  for (int64_t i = from; i < from + count; ++i) s += PatternByte(i);
  return s;
}

struct FileTable : TestTable {
  TempFolder dir;
  AnsweringFrontEnd answers;
  FileTable() {
    g.Ui = &answers;
    g.DataFolder = dir.path().string();
  }
  const RecordedMessage& Last() const { return answers.messages.back(); }
  std::filesystem::path Path(const char* name) const { return dir.path() / name; }
  void Open(const char* name) { ASSERT_TRUE(OpenRollFile(g, Path(name).string())); }
  std::string Bytes() {
    g.DiceFile.File.Flush();
    return ReadAll(g.DiceFile.RollFileName);
  }
  void RollOnce() {
    g.KeepRolling = false;
    RollDice(g);
  }
};

}  // namespace

TEST(DiceRollFiles, ByteFormatAndValueCheck) {
  EXPECT_EQ(RollByte(1, 1), 36);
  EXPECT_EQ(RollByte(6, 6), 216);
  EXPECT_TRUE(CheckRollValue(36));
  EXPECT_TRUE(CheckRollValue(37));  // the low bits are ignored
  EXPECT_EQ(Die1Of(37), 1);
  EXPECT_EQ(Die2Of(RollByte(2, 5)), 5);
  EXPECT_FALSE(CheckRollValue(0));
  EXPECT_FALSE(CheckRollValue(7 * 32 + 4));
  EXPECT_FALSE(CheckRollValue(32 + 7 * 4));
}

TEST(DiceRollFiles, RecordedRunPlaysBackTheSameDiceAndBankroll) {
  constexpr int kRolls = 10000;
  std::vector<std::array<int, 2>> dice;
  std::vector<Currency> bankroll;
  std::array<int32_t, 20> handStats{};
  auto betAndRoll = [](FileTable& t) {
    if (t.g.BetAmount[bet::kPassLine] == 0) t.Place(bet::kPassLine, 5);
    if (t.g.BetAmount[bet::kField] == 0) t.Place(bet::kField, 1);
    t.RollOnce();
  };
  {
    FileTable rec;
    rec.g.SeedRequest = 12345;
    SeedRNG(rec.g, true);
    rec.Open("run.rol");
    ASSERT_TRUE(SetRecorderStatus(rec.g, kRecorderRecord));
    for (int i = 0; i < kRolls; ++i) {
      betAndRoll(rec);
      dice.push_back({rec.g.Die1, rec.g.Die2});
      bankroll.push_back(rec.g.Bankroll());
    }
    handStats = rec.g.HandStats;
    EXPECT_EQ(rec.g.DiceFile.LastRollNum, kRolls);
    EXPECT_LE(rec.g.DiceFile.File.Seeks(), 2);  // one byte written per roll, no seek
    EXPECT_EQ(TotalRolls(rec.g), kRolls);
    std::filesystem::copy_file(rec.Path("run.rol"), std::filesystem::temp_directory_path() / "dicemill_run_copy.rol",
                               std::filesystem::copy_options::overwrite_existing);
  }
  FileTable play;
  play.g.SeedRequest = 999;  // another seed: the generator must not matter
  SeedRNG(play.g, true);
  std::filesystem::rename(std::filesystem::temp_directory_path() / "dicemill_run_copy.rol", play.Path("run.rol"));
  play.Open("run.rol");
  ASSERT_TRUE(SetRecorderStatus(play.g, kRecorderPlayback));
  for (int i = 0; i < kRolls; ++i) {
    betAndRoll(play);
    ASSERT_EQ((std::array<int, 2>{play.g.Die1, play.g.Die2}), dice[i]) << "roll " << i + 1;
    ASSERT_EQ(play.g.Bankroll(), bankroll[i]) << "roll " << i + 1;
  }
  EXPECT_EQ(play.g.RollCounts[0], kRolls);
  EXPECT_EQ(play.g.HandStats, handStats);  // hands, points, line wins and losses alike

  // The end of the file: no roll, the reason, and the rewind question; a Yes
  // rewinds for playback, and Hyper-Drive then plays the whole file again.
  play.answers.replies = {Reply::Yes};
  play.RollOnce();
  EXPECT_EQ(play.g.RollCounts[0], kRolls);
  EXPECT_EQ(play.answers.stopReason, StopReason::EndOfRollFile);
  EXPECT_EQ(play.answers.messages.back(), (RecordedMessage{"Dice Roll File", "Playback stopped.\rRewind for playback?"}));
  EXPECT_EQ(play.g.DiceFile.NextRollNum, 1);
  EXPECT_EQ(play.g.DiceFileMode, kRecorderPlayback);

  play.g.HyperDriveOn = play.g.KeepRolling = true;
  const int64_t seeksBefore = play.g.DiceFile.File.Seeks();
  RollDice(play.g);
  EXPECT_EQ(play.g.RollCounts[0], 2 * kRolls);
  EXPECT_LE(play.g.DiceFile.File.Seeks() - seeksBefore, 2);  // one byte read per roll, no seek
  EXPECT_FALSE(play.g.HyperDriveOn);
  const auto& m = play.answers.messages;
  EXPECT_EQ(m[m.size() - 2], (RecordedMessage{"Hyper-Drive Stopped", "Stopped due to end of Dice Roll File reached."}));
  EXPECT_EQ(m.back().title, "Dice Roll File");
  EXPECT_EQ(play.g.DiceFileMode, kRecorderPlayback);  // Cancel changes nothing
}

TEST(DiceRollFiles, OutOfLimitsAndEmptyFileStopWithoutRolling) {
  FileTable t;
  WriteAll(t.Path("bad.rol"), std::string{char(37), char(0), char(RollByte(2, 3))});
  t.Open("bad.rol");
  ASSERT_TRUE(SetRecorderStatus(t.g, kRecorderPlayback));
  t.RollOnce();
  EXPECT_EQ(t.g.Die1, 1);
  EXPECT_EQ(t.g.Die2, 1);
  t.RollOnce();
  EXPECT_EQ(t.g.RollCounts[0], 1);
  EXPECT_EQ(t.answers.stopReason, StopReason::RollFileOutOfLimits);
  EXPECT_EQ(t.g.DiceFileMode, kRecorderOff);
  EXPECT_EQ(t.g.DiceFile.NextRollNum, 2);  // the position stays on the bad byte
  EXPECT_EQ(t.answers.messages.back(),
            (RecordedMessage{"Dice Roll File Error",
                             "A dice roll value has been found to be out of limits. \r\rPlayback of this Dice Roll "
                             "File has ceased so that you can check the file or continue without it."}));
  ASSERT_TRUE(SetRecorderStatus(t.g, kRecorderPlayback));
  t.RollOnce();  // met again
  EXPECT_EQ(t.g.RollCounts[0], 1);

  FileTable e;
  e.Open("empty.rol");
  e.answers.replies = {Reply::No};
  ASSERT_TRUE(SetRecorderStatus(e.g, kRecorderPlayback));
  e.RollOnce();
  EXPECT_EQ(e.g.RollCounts[0], 0);
  EXPECT_EQ(e.g.DiceFileMode, kRecorderOff);  // No turns the recorder off

  FileTable none;
  EXPECT_FALSE(SetRecorderStatus(none.g, kRecorderRecord));
  EXPECT_EQ(none.Last(), (RecordedMessage{"Record Dice Rolls During Game Play", "You need to open a file first."}));
  const FileStatus missing = OpenRollFile(none.g, (none.Path("no-such-dir") / "x.rol").string());
  EXPECT_FALSE(missing.Ok);
  const std::vector<FileMessage> nameError{
      {"Error", "File name error, file not found, or device error.\rCheck path and file name."}};
  EXPECT_EQ(missing.Messages, nameError);
}

TEST(DiceRollFiles, RecordingTypesOverAndHandEntryInserts) {
  FileTable t;
  t.Open("a.rol");
  for (int i = 1; i <= 4; ++i) ASSERT_TRUE(HandEntry(t.g, i, i));
  SetPosition(t.g, 2);
  ASSERT_TRUE(SetRecorderStatus(t.g, kRecorderRecord));
  t.Roll(6, 5);
  EXPECT_EQ(t.Bytes(), std::string({char(RollByte(1, 1)), char(RollByte(6, 5)), char(RollByte(3, 3)), char(RollByte(4, 4))}));
  t.g.DiceFile.InsertRolls = true;
  SetPosition(t.g, 2);
  ASSERT_TRUE(HandEntry(t.g, 2, 1));
  EXPECT_EQ(t.Bytes(), std::string({char(RollByte(1, 1)), char(RollByte(2, 1)), char(RollByte(6, 5)),
                                    char(RollByte(3, 3)), char(RollByte(4, 4))}));
  EXPECT_EQ(t.g.DiceFile.NextRollNum, 3);
  CloseRollFile(t.g);
  EXPECT_FALSE(HandEntry(t.g, 1, 1));
  EXPECT_EQ(t.Last(), (RecordedMessage{"Record Dice Rolls", "You need to open a file first."}));
}

TEST(DiceRollFiles, EditingRoundTripsAcrossTheBufferBoundary) {
  constexpr int64_t kSize = 100'003;
  FileTable t;
  WriteAll(t.Path("big.rol"), Pattern(0, kSize));
  t.Open("big.rol");
  const std::string original = t.Bytes();

  // Cut 65,000 rolls from the middle and paste them back where they were.
  SetPosition(t.g, 12'345, 12'345 + 65'000);
  ASSERT_TRUE(CutSelection(t.g));
  EXPECT_EQ(TotalRolls(t.g), kSize - 65'000);
  EXPECT_TRUE(SameBytes(ReadAll(t.Path(kClipboardName)), original.substr(12'344, 65'000)));
  ASSERT_TRUE(ClipboardHasRolls(t.g));
  ASSERT_TRUE(PasteClipboard(t.g));
  EXPECT_TRUE(SameBytes(t.Bytes(), original));

  // Paste the clipboard at the front, then delete it again.
  SetPosition(t.g, 1);
  ASSERT_TRUE(PasteClipboard(t.g));
  EXPECT_TRUE(SameBytes(t.Bytes(), original.substr(12'344, 65'000) + original));
  SetPosition(t.g, 1, 65'001);
  ASSERT_TRUE(DeleteSelection(t.g));
  EXPECT_TRUE(SameBytes(t.Bytes(), original));

  // The whole file to text and back through the text paste; only the dice,
  // since every digit 1..6 of a roll number or a total would count too.
  SetPosition(t.g, 1, kSize + 1);
  ASSERT_TRUE(CopyToTextFile(t.g, t.Path("all.txt").string(), {false, true, false}));
  SetPosition(t.g, kSize + 1);
  ASSERT_TRUE(PasteFromTextFile(t.g, t.Path("all.txt").string()));
  EXPECT_TRUE(SameBytes(t.Bytes(), original + original));
  EXPECT_FALSE(std::filesystem::exists(t.Path(kTextConvertName)));

  // A copy to another roll file, pasted from there.
  SetPosition(t.g, 40'000, 40'000 + 31'000);
  ASSERT_TRUE(CopyToRollFile(t.g, t.Path("part.rol").string()));
  EXPECT_TRUE(SameBytes(ReadAll(t.Path("part.rol")), original.substr(39'999, 31'000)));
  SetPosition(t.g, 3);
  ASSERT_TRUE(PasteFromRollFile(t.g, t.Path("part.rol").string()));
  EXPECT_TRUE(SameBytes(t.Bytes(), original.substr(0, 2) + original.substr(39'999, 31'000) + original.substr(2) + original));
}

TEST(DiceRollFiles, TextConversionAndCopyToTextOptions) {
  FileTable t;
  WriteAll(t.Path("in.txt"), "1 2x3\n4 5");
  t.Open("a.rol");
  ASSERT_TRUE(PasteFromTextFile(t.g, t.Path("in.txt").string()));
  EXPECT_EQ(t.Bytes(), std::string({char(RollByte(1, 2)), char(RollByte(3, 4))}));  // the lone 5 is dropped

  SetPosition(t.g, 2, 3);
  t.answers.replies = {Reply::No};
  ASSERT_TRUE(CopyToTextFile(t.g, t.Path("out.txt").string(), {}));
  EXPECT_EQ(t.Last().text,
            "The rolls you've selected do not begin with roll #1.  Would you like to renumber them in the output "
            "starting with #1?");
  EXPECT_EQ(ReadAll(t.Path("out.txt")), "2- (3-4)- 7\n");
  t.answers.replies = {Reply::Yes};
  ASSERT_TRUE(CopyToTextFile(t.g, t.Path("out.txt").string(), {true, false, true}));
  EXPECT_EQ(ReadAll(t.Path("out.txt")), "1- 7\n");

  const FileStatus refused = CopyToTextFile(t.g, t.Path("none.txt").string(), {true, false, false});
  EXPECT_FALSE(refused.Ok);
  EXPECT_EQ(refused.Messages.at(0).Text,
            "You must check at least one of the following boxes found under Output Options:\r        Include "
            "individual die #'s\r        Include numbers called");
  EXPECT_FALSE(std::filesystem::exists(t.Path("none.txt")));

  EXPECT_EQ(ConvertTextToRolls(t.Path("missing.txt").string(), t.Path("x.rol").string()), -1);
  EXPECT_FALSE(std::filesystem::exists(t.Path("x.rol")));
}

TEST(DiceRollFiles, NewGameAsksAboutAFileInUseAndCloseForgetsIt) {
  FileTable t;
  t.Open("a.rol");
  ASSERT_TRUE(HandEntry(t.g, 1, 1));
  ASSERT_TRUE(SetRecorderStatus(t.g, kRecorderRecord));
  t.answers.replies = {Reply::Yes};
  NewGame(t.g, false);
  EXPECT_EQ(t.Last(), (RecordedMessage{"Dice Roll File", "Recording stopped.\rRewind for playback?"}));
  EXPECT_EQ(t.g.DiceFileMode, kRecorderPlayback);
  EXPECT_EQ(t.g.DiceFile.NextRollNum, 1);

  CloseRollFile(t.g);
  EXPECT_TRUE(t.g.DiceFile.RollFileName.empty());
  EXPECT_EQ(t.g.DiceFile.NextRollNum, 0);
  EXPECT_EQ(t.g.DiceFileMode, kRecorderOff);
  const size_t asked = t.answers.messages.size();
  NewGame(t.g, false);  // nothing open: nothing asked
  EXPECT_EQ(t.answers.messages.size(), asked);
}
