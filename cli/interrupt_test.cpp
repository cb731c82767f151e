// Ctrl-C in `play` stops the command under way, and the session goes on.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

#include "cli/temp_folder_for_test.h"
#include "test_paths.h"

namespace {

TEST(Interrupt, CtrlCStopsARunAndTheSessionGoesOn) {
  TempFolder folder;
  const auto input = folder.path() / "in.txt", output = folder.path() / "out.txt";
  std::ofstream(input) << "hyper 100000000\nget RollCount\nquit\nanswer no\n";
  const pid_t pid = fork();
  if (pid == 0) {
    freopen(input.c_str(), "r", stdin);
    freopen(output.c_str(), "w", stdout);
    freopen("/dev/null", "w", stderr);
    execl(DICEMILL_CLI_PATH, DICEMILL_CLI_PATH, "play", "--folder", folder.path().c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(600));  // start-up, then well into the run
  kill(pid, SIGINT);
  int status = 0;
  waitpid(pid, &status, 0);
  ASSERT_TRUE(WIFEXITED(status)) << "ended by the signal";
  EXPECT_EQ(WEXITSTATUS(status), 0);
  std::stringstream printed;
  printed << std::ifstream(output).rdbuf();
  EXPECT_NE(printed.str().find("\"stopped\""), std::string::npos) << printed.str();
  EXPECT_NE(printed.str().find("RollCount"), std::string::npos) << printed.str();
}

}  // namespace
