// Saves under stress: two sessions on one folder, a reader beside them, and
// runs killed in the middle of a save. Every read sees a whole file.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "cli/play_session.h"
#include "cli/temp_folder_for_test.h"
#include "engine/game.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"
#include "engine/file_errors.h"
#include "store/game_file.h"
#include "store/game_file_check.h"
#include "store/hot_keys_file.h"
#include "test_paths.h"

namespace fs = std::filesystem;

namespace {

// `dicemill-cli play --folder FOLDER` reading `input`; its process id.
pid_t StartPlay(const fs::path& folder, const fs::path& input) {
  const pid_t pid = fork();
  if (pid == 0) {
    freopen(input.c_str(), "r", stdin);
    freopen("/dev/null", "w", stdout);
    freopen("/dev/null", "w", stderr);
    execl(DICEMILL_CLI_PATH, DICEMILL_CLI_PATH, "play", "--folder", folder.c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  return pid;
}

int WaitFor(pid_t pid) {
  int status = 0;
  waitpid(pid, &status, 0);
  return status;
}

// Commands that roll and save `file` over and over.
fs::path SavingInput(const fs::path& folder, const char* name, const fs::path& file, int saves) {
  const fs::path input = folder / name;
  std::ofstream in(input);
  for (int i = 0; i < saves; ++i) in << "bet 43 " << 5 + i % 7 << "\nroll\nsave \"" << file.string() << "\"\n";
  in << "quit\n";
  return input;
}

TEST(SharedFolder, TheSecondSessionIsToldAndWritesNothingThere) {
  TempFolder folder;
  std::ostringstream firstOut, secondOut;
  PlaySession first(firstOut, PlayOptions{folder.path().string(), "", false});
  PlaySession second(secondOut, PlayOptions{folder.path().string(), "", false});
  EXPECT_EQ(firstOut.str().find("in use"), std::string::npos);
  EXPECT_NE(secondOut.str().find(PrintableName(folder.path()) + " is in use by another Dicemill."), std::string::npos)
      << secondOut.str();
  second.RunLine("hotkey set A x.bet");
  second.RunLine("bet 43 10");
  second.EndOfInput();
  for (const char* name : {kDefaultGameName, kHotKeysFileName})
    EXPECT_FALSE(fs::exists(folder.path() / name)) << name;
  EXPECT_TRUE(fs::exists(folder.path() / "active.tmp"));  // the first session's, left alone
  first.EndOfInput();
  EXPECT_TRUE(fs::exists(folder.path() / kDefaultGameName));
}

TEST(SharedFolder, TwoWritersAndAReaderNeverSeeABrokenFile) {
  TempFolder folder;
  const fs::path game = folder.path() / "shared.crp";
  const pid_t a = StartPlay(folder.path(), SavingInput(folder.path(), "a.in", game, 60));
  const pid_t b = StartPlay(folder.path(), SavingInput(folder.path(), "b.in", game, 60));
  int reads = 0, broken = 0;
  for (int done = 0; done < 2;) {
    done = 0;
    for (pid_t p : {a, b}) done += waitpid(p, nullptr, WNOHANG) != 0;
    std::string bytes, reason;
    if (!ReadRegularFile(game, kMaxGameFileBytes, bytes, reason)) continue;  // not saved yet
    ++reads;
    broken += !GameFileIsWhole(bytes);
  }
  EXPECT_GT(reads, 0);
  EXPECT_EQ(broken, 0);
  for (const auto& entry : fs::directory_iterator(folder.path()))
    EXPECT_NE(entry.path().extension(), ".dmtmp") << "a temporary file was left: " << entry.path();
}

TEST(SharedFolder, ARunKilledMidSaveLeavesAFileThatOpens) {
  TempFolder folder;
  const fs::path game = folder.path() / "killed.crp";
  const fs::path input = SavingInput(folder.path(), "saves.in", game, 400);
  {
    TestTable first;
    ASSERT_TRUE(SaveGame(first.g, game.string()));
  }
  // Start-up takes some 150 ms and a save some 10: the kills fall among saves.
  for (int round = 0; round < 8; ++round) {
    const pid_t p = StartPlay(folder.path(), input);
    std::this_thread::sleep_for(std::chrono::milliseconds(170 + 23 * round));
    kill(p, SIGKILL);
    WaitFor(p);
    TestTable t;
    EXPECT_TRUE(OpenGame(t.g, game.string())) << "round " << round;
  }
  // The next start clears what the killed runs left half written.
  std::ostringstream out;
  { PlaySession next(out, PlayOptions{folder.path().string(), "", false}); }
  for (const auto& entry : fs::directory_iterator(folder.path()))
    EXPECT_NE(entry.path().extension(), ".dmtmp") << entry.path();
}

}  // namespace
