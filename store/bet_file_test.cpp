#include "store/bet_file.h"

#include <gtest/gtest.h>

#include "script/script_for_test.h"

#include <filesystem>
#include <fstream>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"

namespace {

ScriptLine Line(int kind, int code, const std::string& name, Currency amount, int subject, int target) {
  ScriptLine l = MakeLine(kind, code, amount, subject, target, name);
  l.Text = "[" + name + "]";
  return l;
}

Script Sample() {
  Script s;
  s.Lines.push_back(Line(13, 0, "", 0, 0, 0));
  ScriptLine bet = Line(30, 10, "stack", Currency::FromRaw(-12345), 1600, 2089);
  bet.SubjectNum = -7;
  bet.Spare1 = 32767;
  bet.TargetNum = 99;
  bet.Spare2 = -32768;
  bet.Selected = true;
  s.Lines.push_back(bet);
  s.Lines.push_back(Line(90, 0, " label", 0, 0, 0));
  return s;
}

TEST(BetFile, LayoutOfTheBytes) {
  const std::string bytes = EncodeBetFile(Sample(), false);
  ASSERT_EQ(bytes.size(), 4 * kBetRecordBytes);
  EXPECT_EQ(bytes.substr(0, 35), std::string(kBetFileMagic) + " ");
  EXPECT_EQ(bytes.substr(134, 80), std::string(80, ' '));  // header Name blank
  EXPECT_EQ(bytes.substr(214, 8), std::string("\x30\x75\0\0\0\0\0\0", 8));  // 3 lines, as Currency
  const std::string r = bytes.substr(2 * kBetRecordBytes, kBetRecordBytes);
  EXPECT_EQ(r.substr(128, 6), std::string("\x1e\0\x0a\0\0\0", 6));                    // Kind, Code
  EXPECT_EQ(r.substr(222, 4), std::string("\0\0\xc8\x44", 4));                        // 1600.0f
  EXPECT_EQ(r.substr(226, 4), std::string("\xf9\xff\xff\x7f", 4));                    // -7, 32767
  EXPECT_EQ(r.substr(236, 20), std::string("\0\x80", 2) + std::string(18, '\0'));     // Spare2, padding
  // Only the selected line in a copy.
  EXPECT_EQ(EncodeBetFile(Sample(), true).size(), 2 * kBetRecordBytes);
}

TEST(BetFile, RoundTripKeepsEveryCodeAndIsByteIdentical) {
  TempFolder folder;
  const std::string path = (folder.path() / "a.bet").string(), again = (folder.path() / "b.bet").string();
  TestTable t;
  t.g.AutoBet = Sample();
  ASSERT_TRUE(SaveAutoBetFile(t.g, path));
  EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));
  EXPECT_EQ(t.g.AutoBet.FileName, path);
  t.g.AutoBet = Script{};
  ASSERT_TRUE(OpenAutoBetFile(t.g, path));
  Script expected = Sample();
  expected.Lines[1].Selected = false;
  EXPECT_EQ(t.g.AutoBet.Lines, expected.Lines);
  ASSERT_TRUE(SaveAutoBetFile(t.g, again));
  EXPECT_EQ(ReadBytes(path), ReadBytes(again));
  EXPECT_TRUE(t.ui.messages.empty());
}

TEST(BetFile, RefusalsLeaveTheScriptAsItWas) {
  TempFolder folder;
  const std::string path = (folder.path() / "x.bet").string();
  const std::string title = "Unable to Open Auto-Bet File";
  auto with_magic = [](const std::string& magic) {
    std::string bytes = EncodeBetFile(Sample(), false);
    bytes.replace(0, 128, magic + std::string(128 - magic.size(), ' '));
    return bytes;
  };
  const std::vector<std::pair<std::string, std::string>> cases = {
      {with_magic("Dicemill AutoBets, Data Format 5.2"), "requires Dicemill version 5.2 or later to run."},
      {with_magic("Dicemill AutoBets, Data Format 3.9"),
       "has either been corrupted or was written with an older format which is no longer in use."},
      {with_magic("Tumbledice AutoBets, Data Format 2.0"),
       "has either been corrupted or was written with an older format which is no longer in use."},
      {with_magic("Some other file"), "has either been corrupted or is not a true Dicemill Auto-Bet file."},
      {EncodeBetFile(Sample(), false).substr(0, 600),
       "has either been corrupted or is not a true Dicemill Auto-Bet file."},
  };
  TestTable t;
  t.g.AutoBet = Sample();
  // A refusal is one message, for the caller to show; nothing is shown here.
  auto refusal = [&t](const FileStatus& s) {
    EXPECT_FALSE(s.Ok);
    EXPECT_TRUE(t.ui.messages.empty());
    return s.Messages.size() == 1 ? s.Messages[0] : FileMessage{};
  };
  for (const auto& [bytes, text] : cases) {
    std::ofstream(path, std::ios::binary) << bytes;
    EXPECT_EQ(refusal(OpenAutoBetFile(t.g, path)), (FileMessage{title, path + "\r" + text}));
    EXPECT_EQ(t.g.AutoBet.Lines, Sample().Lines);
  }
  const std::string fileError = ".\rFile name error, file not found, or device error.\rCheck path and file name.";
  EXPECT_EQ(refusal(OpenAutoBetFile(t.g, (folder.path() / "missing.bet").string())),
            (FileMessage{"Error", (folder.path() / "missing.bet").string() + " was not found" + fileError}));
  EXPECT_EQ(refusal(SaveAutoBetFile(t.g, folder.path().string())),
            (FileMessage{"Error", folder.path().string() + " is a directory" + fileError}));
  // A number past 16 bits is never narrowed into the file.
  t.g.AutoBet.Lines[0].TargetNum = 40000;
  EXPECT_EQ(refusal(SaveAutoBetFile(t.g, path)).Text, "Overflow, Error #6 occurred, at: Save Auto-Bet File\r");
}

}  // namespace
