// Runs the built program as a client would: commands on stdin, JSON on stdout.

#include "test_paths.h"
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>

#include "cli/json_lines.h"
#include "cli/temp_folder_for_test.h"

namespace fs = std::filesystem;

namespace {

struct CliRun {
  int status = -1;
  std::vector<Json> objects;
};

// Runs `dicemill-cli play ARGS` with `input` on stdin, env set before it.
CliRun RunCli(const fs::path& work, const std::string& env, const std::string& args, const std::string& input) {
  std::ofstream(work / "in.txt") << input;
  const std::string command = env + " '" DICEMILL_CLI_PATH "' play " + args + " < '" + (work / "in.txt").string() +
                              "' > '" + (work / "out.txt").string() + "' 2> '" + (work / "err.txt").string() + "'";
  CliRun run;
  const int raw = std::system(command.c_str());
  run.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  std::ifstream out(work / "out.txt");
  for (std::string line; std::getline(out, line);) run.objects.push_back(Json::parse(line));
  return run;
}

}  // namespace

TEST(PlayEndToEnd, ASessionFromStartToQuit) {
  TempFolder work;
  const std::string folder = "--folder '" + (work.path() / "data").string() + "'";
  const CliRun run = RunCli(work.path(), "", folder, "# a short session\nbet 49 10\nbet 200 1\nstate\nanswer no\nquit\nstate\n");
  EXPECT_EQ(run.status, 0);
  EXPECT_TRUE(fs::is_directory(work.path() / "data"));  // created on the way in
  ASSERT_EQ(run.objects.size(), 3u);
  EXPECT_TRUE(run.objects[0].contains("error"));
  EXPECT_EQ(run.objects[1].at("state").at("bets").at("49"), 10);
  EXPECT_EQ(run.objects[2].at("message").at("title"), "Save Game?");  // the bet is unsaved
  // No quit: end of input ends the session just as well.
  EXPECT_EQ(RunCli(work.path(), "", folder, "state").status, 0);
}

TEST(PlayEndToEnd, StrictExitsTwoAndTheFolderComesFromTheEnvironment) {
  TempFolder work;
  const fs::path home = work.path() / "home", xdg = work.path() / "xdg";
  const CliRun run =
      RunCli(work.path(), "DICEMILL_HOME='" + home.string() + "'", "--strict", "state\nbet 43 ten\nstate\n");
  EXPECT_EQ(run.status, 2);
  ASSERT_EQ(run.objects.size(), 2u);
  EXPECT_EQ(run.objects[1].at("error"), "bet: AMOUNT 'ten' is not an amount");
  EXPECT_TRUE(fs::is_directory(home));
  EXPECT_EQ(RunCli(work.path(), "env -u DICEMILL_HOME XDG_DATA_HOME='" + xdg.string() + "'", "", "").status, 0);
  EXPECT_TRUE(fs::is_directory(xdg / "dicemill"));
  // A bad option is the argument parser's business, not the session's.
  EXPECT_NE(RunCli(work.path(), "", "--no-such-option", "").status, 0);
}

TEST(PlayEndToEnd, TheSameSeedGivesTheSameDiceInANewProcess) {
  TempFolder work;
  // Each process in a folder of its own: a stop leaves its game behind as
  // the folder's default game, which the next start would continue.
  auto folder = [&](int run) { return "--folder '" + (work.path() / ("data" + std::to_string(run))).string() + "'"; };
  for (int rng = 0; rng <= 7; ++rng) {
    const std::string input = "set RngChoice " + std::to_string(rng) + "\nseed 777\n" + "roll\nroll\nroll\nroll\nroll\n";
    const CliRun first = RunCli(work.path(), "", folder(2 * rng), input);
    const CliRun second = RunCli(work.path(), "", folder(2 * rng + 1), input);
    std::vector<Json> rolled;
    for (const Json& o : first.objects)
      if (o.contains("rolled")) rolled.push_back(o);
    EXPECT_EQ(rolled.size(), 5u) << "RNG #" << rng + 1;
    EXPECT_EQ(first.objects, second.objects) << "RNG #" << rng + 1;
  }
}
