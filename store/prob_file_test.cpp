#include "store/prob_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"

namespace {

int32_t IntAt(const std::string& bytes, size_t at) {
  uint32_t u = 0;
  for (int i = 0; i < 4; ++i) u |= uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
  return static_cast<int32_t>(u);
}

const std::string kRefusal =
    "\ris either from an older version, has been corrupted, or is not a true Dicemill Probability File.";

}  // namespace

TEST(ProbFile, LayoutOfTheBytes) {
  ProbTable t = TrueTable();
  SetCell(t, 1, 6, 50000);
  t.at(1, 0).flags = 3;  // the cell under edit is kept
  t.at(2, 0).flags = 7;
  const std::string bytes = EncodeProbFile(t);
  ASSERT_EQ(bytes.size(), 1280u);
  EXPECT_EQ(bytes.substr(0, 92), std::string(kProbFileHeader) + std::string(92 - 42, ' '));
  // Integer index k x 112 + c x 14 + r, from byte 256 on.
  EXPECT_EQ(IntAt(bytes, 256 + 4 * 0), kFreeFormDice);
  EXPECT_EQ(IntAt(bytes, 256 + 4 * (1 * 14 + 6)), kUserLock);
  EXPECT_EQ(IntAt(bytes, 256 + 4 * (112 + 1 * 14 + 6)), 50000);
  EXPECT_EQ(IntAt(bytes, 256 + 4 * (112 + 7 * 14 + 13)), t.at(13, 7).value);
  // The last record repeats the buffer's previous contents past the table.
  for (int k = 32; k < 64; ++k) EXPECT_EQ(IntAt(bytes, 1024 + 4 * k), IntAt(bytes, 768 + 4 * k)) << k;

  const std::optional<ProbTable> back = DecodeProbFile(bytes);
  ASSERT_TRUE(back);
  for (int r = 0; r < kProbRows; ++r)
    for (int c = 0; c < kProbColumns; ++c) {
      EXPECT_EQ(back->at(r, c).flags, t.at(r, c).flags) << r << "," << c;
      EXPECT_EQ(back->at(r, c).value, t.at(r, c).value) << r << "," << c;
    }
}

TEST(ProbFile, SaveOpenAndRefusals) {
  TempFolder folder;
  TestTable table;
  Game& g = table.g;
  const std::string path = (folder.path() / "shooter.prb").string();
  SetCell(g.Prob, 1, 6, 30000);
  g.ProbModified = true;
  ASSERT_TRUE(SaveProbabilityFile(g, path));
  EXPECT_FALSE(g.ProbModified);
  EXPECT_EQ(g.ProbFileName, path);
  EXPECT_EQ(std::filesystem::file_size(path), 1280u);
  EXPECT_FALSE(std::filesystem::exists(path + ".tmp"));

  ResetToTrue(g.Prob);
  g.ProbModified = true;
  ASSERT_TRUE(OpenProbabilityFile(g, path));
  EXPECT_EQ(g.Prob.at(6, 1).value, 30000);
  EXPECT_FALSE(g.ProbModified);
  EXPECT_TRUE(table.ui.messages.empty());

  // A wrong header or a short file is refused and the table stays.
  std::string bytes = ReadBytes(path);
  const std::string bad = (folder.path() / "bad.prb").string();
  WriteBytes(bad, "Dicemill Probability File, Data Format 4.5" + bytes.substr(42));
  const std::string shortFile = (folder.path() / "short.prb").string();
  WriteBytes(shortFile, bytes.substr(0, 1279));
  ResetToTrue(g.Prob);
  // Each refusal hands back its message; nothing is shown here.
  std::vector<FileMessage> told;
  auto refused = [&told](const FileStatus& s) {
    told.insert(told.end(), s.Messages.begin(), s.Messages.end());
    return !s.Ok;
  };
  EXPECT_TRUE(refused(OpenProbabilityFile(g, bad)));
  EXPECT_TRUE(refused(OpenProbabilityFile(g, shortFile)));
  const std::vector<FileMessage> expected = {
      {"Unable to Open Dicemill Probability File", bad + kRefusal},
      {"Unable to Open Dicemill Probability File", shortFile + kRefusal}};
  EXPECT_EQ(told, expected);
  EXPECT_TRUE(table.ui.messages.empty());
  EXPECT_EQ(g.Prob.at(6, 1).value, 16667);
  EXPECT_EQ(g.ProbFileName, path);

  // Files that cannot be opened or written; the old file stays whole.
  told.clear();
  EXPECT_TRUE(refused(OpenProbabilityFile(g, (folder.path() / "missing.prb").string())));
  EXPECT_TRUE(refused(SaveProbabilityFile(g, (folder.path() / "no" / "such.prb").string())));
  EXPECT_TRUE(refused(SaveProbabilityFile(g, folder.path().string())));
  const std::string fileError = ".\rFile name error, file not found, or device error.\rCheck path and file name.";
  const std::vector<FileMessage> failures = {
      {"Error", (folder.path() / "missing.prb").string() + " was not found" + fileError},
      {"Error", (folder.path() / "no" / "such.prb").string() + " could not be written: no such file or directory" + fileError},
      {"Error", folder.path().string() + " is a directory" + fileError}};
  EXPECT_EQ(told, failures);
  EXPECT_EQ(ReadBytes(path), bytes);
}

TEST(ProbFile, NewAsksAboutUnsavedNumbers) {
  TestTable table;
  Game& g = table.g;
  SetCell(g.Prob, 1, 6, 30000);
  g.ProbModified = true;
  // Cancel abandons the new table.
  table.ui.messages.clear();
  EXPECT_FALSE(NewProbabilities(g));
  ASSERT_EQ(table.ui.messages.size(), 1u);
  EXPECT_EQ(table.ui.messages[0],
            (RecordedMessage{"Save Probabilities?", "These numbers have not been saved.\rDo you want to save them now?"}));
  EXPECT_EQ(g.Prob.at(6, 1).value, 30000);
  g.ProbModified = false;
  EXPECT_TRUE(NewProbabilities(g));
  EXPECT_EQ(g.Prob.at(6, 1).value, 16667);
  EXPECT_EQ(g.ProbFileName, "untitled");
}

// Yes on an untitled table asks for a name; no name is a Cancel.
TEST(ProbFile, YesOnUntitledNumbersAsksForAName) {
  struct SaysYes : RecordingFrontEnd {
    std::optional<std::string> name;
    Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
      RecordingFrontEnd::ShowMessage(title, text, buttons);
      return Reply::Yes;
    }
    std::optional<std::string> AskFileName(const std::string&, const std::string&) override { return name; }
  };
  TempFolder folder;
  for (const bool named : {false, true}) {
    TestTable table;
    SaysYes yes;
    table.g.Ui = &yes;
    if (named) yes.name = (folder.path() / "mine.prb").string();
    table.g.ProbModified = true;
    EXPECT_EQ(NewProbabilities(table.g), named);
    EXPECT_EQ(std::filesystem::exists(folder.path() / "mine.prb"), named);
  }
}
