#include "test_paths.h"
#include "script/script_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "cli/temp_folder_for_test.h"
#include "script/checker.h"
#include "script/text_form.h"
#include "store/bet_file.h"
#include "store/file_bytes_for_test.h"

namespace {

namespace fs = std::filesystem;

const char* const kSamples[] = {"pass-line-full-odds", "three-point-molly",   "iron-cross",
                                "place-6-8-press",     "dont-pass-stop-loss", "field-martingale"};

TEST(ScriptFile, SamplesAreCleanAndTheirBetFilesAreTheConvertersOwn) {
  for (const char* name : kSamples) {
    SCOPED_TRACE(name);
    const fs::path base = fs::path(DICEMILL_SOURCE_DIR) / "samples" / name;
    Script fromText, fromBet;
    ASSERT_TRUE(LoadScriptFile(base.string() + ".txt", fromText));
    ASSERT_TRUE(LoadScriptFile(base.string() + ".bet", fromBet));
    EXPECT_EQ(ScriptToText(fromText), ReadBytes(base.string() + ".txt"));  // written as the writer writes
    EXPECT_EQ(EncodeBetFile(fromText, false), ReadBytes(base.string() + ".bet"));
    EXPECT_EQ(ScriptToText(fromBet), ReadBytes(base.string() + ".txt"));
    EXPECT_EQ(CheckScript(fromText), std::nullopt);
    EXPECT_EQ(ReadBytes(base.string() + ".txt").find('{'), std::string::npos);  // no field needs braces
  }
}

TEST(ScriptFile, LoadsEitherFormAndSavesByExtension) {
  TempFolder folder;
  Script s;
  std::string error;
  ASSERT_TRUE(ReadScriptText("Do this\n  Set flag \"f\" to True\n  Bet $5 on Field {Spare2=9}\n", s, error)) << error;

  const std::string bet = (folder.path() / "a.BET").string(), text = (folder.path() / "a.txt").string();
  ASSERT_TRUE(SaveScriptFile(bet, s));
  ASSERT_TRUE(SaveScriptFile(text, s));
  EXPECT_EQ(ReadBytes(bet), EncodeBetFile(s, false));
  EXPECT_EQ(ReadBytes(text), ScriptToText(s));

  const std::string renamed = (folder.path() / "records.dat").string();  // a .bet by its magic
  fs::copy_file(bet, renamed);
  for (const std::string& path : {bet, text, renamed}) {
    Script loaded;
    ASSERT_TRUE(LoadScriptFile(path, loaded));
    EXPECT_EQ(loaded.Lines, s.Lines);
    EXPECT_EQ(loaded.FileName, path);
    ASSERT_EQ(loaded.Flags.size(), 1u);
  }
}

TEST(ScriptFile, AnUnreadableFileLeavesTheScriptAsItWas) {
  TempFolder folder;
  const fs::path dir = folder.path();
  WriteBytes(dir / "bad.txt", "When\n  On each roll\nthen\n  Bet $10 on Pass Lime\n");
  WriteBytes(dir / "junk.bet", std::string(300, 'x'));
  std::string newer(512, ' ');
  newer.replace(0, 34, "Dicemill AutoBets, Data Format 6.0");
  newer.replace(128, 34, std::string(34, ' '));
  WriteBytes(dir / "newer.bet", newer);
  // What would hang a reader or make it grow without end.
  mkfifo((dir / "fifo.txt").c_str(), 0600);
  fs::create_symlink("/dev/zero", dir / "zero.txt");
  WriteBytes(dir / "huge.txt", "");
  fs::resize_file(dir / "huge.txt", 64u << 20);
  struct Case {
    fs::path path;
    std::string message;
  };
  const std::vector<Case> cases = {
      {dir / "bad.txt", (dir / "bad.txt").string() + ": line 4, column 19: unknown word \"Lime\""},
      {dir / "junk.bet", "has either been corrupted or is not a true Dicemill Auto-Bet file."},
      {dir / "newer.bet", "6.0 or later to run."},
      {dir / "missing.txt", (dir / "missing.txt").string() + " was not found."},
      {dir, " is a directory."},
      {dir / "fifo.txt", " is not a regular file (a device, pipe or socket)."},
      {dir / "zero.txt", " is not a regular file (a device, pipe or socket)."},
      {dir / "huge.txt", " is larger than 16,777,216 bytes, too large for its kind."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.path.string());
    Script s;
    s.Lines.resize(2);
    s.FileName = "kept";
    const FileStatus loaded = LoadScriptFile(c.path.string(), s);
    EXPECT_FALSE(loaded.Ok);
    ASSERT_EQ(loaded.Messages.size(), 1u);
    EXPECT_EQ(loaded.Messages[0].Title, "Error");
    EXPECT_NE(loaded.Messages[0].Text.find(c.message), std::string::npos) << loaded.Messages[0].Text;
    EXPECT_EQ(s.NumLines(), 2);
    EXPECT_EQ(s.FileName, "kept");
  }
}

TEST(ScriptFile, ALineARecordCannotHoldIsNotSavedAsBet) {
  TempFolder folder;
  Script s;
  s.Lines.resize(2);
  s.Lines[1].Spare1 = 40000;
  const FileStatus saved = SaveScriptFile((folder.path() / "x.bet").string(), s);
  EXPECT_FALSE(saved.Ok);
  EXPECT_NE(saved.FirstMessage().find("line 2"), std::string::npos) << saved.FirstMessage();
  EXPECT_FALSE(fs::exists(folder.path() / "x.bet"));
}

}  // namespace
