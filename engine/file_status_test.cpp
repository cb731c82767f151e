#include "engine/file_status.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "cli/temp_folder_for_test.h"
#include "engine/dice_roll_files.h"
#include "engine/table_for_test.h"
#include "store/bet_file.h"
#include "store/file_bytes_for_test.h"
#include "engine/file_errors.h"
#include "store/game_file.h"
#include "store/games_log_file.h"
#include "store/prob_file.h"
#include "script/script_file.h"
#include "test_paths.h"

namespace {

namespace fs = std::filesystem;

using Reader = FileStatus (*)(Game&, const std::string&);

FileStatus ReadLog(Game&, const std::string& path) {
  std::vector<GameLogRecord> games;
  return ReadGamesFile(path, games);
}
FileStatus LoadScript(Game& g, const std::string& path) { return LoadScriptFile(path, g.AutoBet); }

const std::string kGameRefusal =
    "\ris either from a different version, has been corrupted, or is not a true Dicemill game file.";
const std::string kLogRefusal =
    "\ris either from an older version, has been corrupted, or is not a true Dicemill Games File.";
const std::string kNameError = "File name error, file not found, or device error.\rCheck path and file name.";

// Every reader hands back why it refused a file, and shows nothing itself.
TEST(FileStatus, EveryReaderTellsWhyItRefusedAFile) {
  TempFolder folder;
  const fs::path kept = fs::path(DICEMILL_SOURCE_DIR) / "tests" / "reliability";
  const fs::path missing = folder.path() / "missing.dat", dir = folder.path();
  WriteBytes(dir / "junk.prb", std::string(1280, 'x'));
  struct Case { const char* what; Reader read; fs::path path; FileMessage told; };
  std::vector<Case> cases = {
      {"game file missing", OpenGame, missing, {"Error", FileErrorText(missing, "was not found")}},
      {"game file a folder", OpenGame, dir, {"Error", FileErrorText(dir, "is a directory")}},
      {"log missing", ReadLog, missing, {"Dicemill", "File not found, Error #53 occurred, at: Open Games File\r"}},
      {"bet file missing", OpenAutoBetFile, missing, {"Error", FileErrorText(missing, "was not found")}},
      {"script missing", LoadScript, missing, {"Error", missing.string() + " was not found."}},
      {"prob file junk", OpenProbabilityFile, dir / "junk.prb",
       {"Unable to Open Dicemill Probability File",
        (dir / "junk.prb").string() +
            "\ris either from an older version, has been corrupted, or is not a true Dicemill Probability File."}},
      {"roll file in no folder", OpenRollFile, dir / "none" / "x.rol", {"Error", kNameError}},
  };
  // What killed sessions left of a game file; and logs whose records were
  // shifted by a byte, which read gave means in the trillions: each has a
  // count that disagrees with the file or a net that is not the difference
  // beside it.
  for (const char* name :
       {"conc-kill-round11-0bytes.crp", "conc-kill-round30-0bytes.crp", "conc-kill-round57-65536bytes-opens.crp"})
    cases.push_back(
        {name, OpenGame, kept / name, {"Unable to Open Dicemill Game File", (kept / name).string() + kGameRefusal}});
  int absurd = 0;
  for (const auto& entry : fs::directory_iterator(kept)) {
    if (!entry.path().filename().string().ends_with("-absurd.glg")) continue;
    ++absurd;
    cases.push_back({"absurd log", ReadLog, entry.path(),
                     {"Unable to Open Dicemill Games File", entry.path().string() + kLogRefusal}});
  }
  EXPECT_EQ(absurd, 10);

  for (const Case& c : cases) {
    TestTable t;
    const FileStatus status = c.read(t.g, c.path.string());
    EXPECT_FALSE(status.Ok) << c.what;
    EXPECT_EQ(status.Messages, std::vector<FileMessage>{c.told}) << c.what << ": " << status.FirstMessage();
    EXPECT_TRUE(t.ui.messages.empty()) << c.what;
  }
}

TEST(FileStatus, ShowingTellsEveryMessageInOrder) {
  TestTable t;
  FileStatus s;
  s.Tell("Missing Auto-Bet File", "one");
  s.Follow(FileStatus::Failed("Error", "two"));
  EXPECT_TRUE(s.Ok);  // a failed step that was told about does not fail the whole
  EXPECT_EQ(s.FirstMessage(), "Missing Auto-Bet File: one");
  EXPECT_TRUE(ShowFileStatus(t.g, s));
  EXPECT_EQ(t.ui.messages, (std::vector<RecordedMessage>{{"Missing Auto-Bet File", "one"}, {"Error", "two"}}));
  EXPECT_FALSE(ShowFileStatus(t.g, FileStatus::Failed({})));
  EXPECT_EQ(FileStatus{}.FirstMessage(), "");
}

}  // namespace
