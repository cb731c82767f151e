// Runs the built program as a user would: `dicemill-cli run ...`.

#include "test_paths.h"
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "cli/json_lines.h"
#include "cli/temp_folder_for_test.h"
#include "dice/dice_roll_files.h"

namespace {

struct Ran {
  int status = -1;
  std::string out, err;
};

Ran RunCli(const TempFolder& work, const std::string& args) {
  const auto out = work.path() / "out.txt", err = work.path() / "err.txt";
  const std::string command =
      "'" DICEMILL_CLI_PATH "' run --quiet " + args + " > '" + out.string() + "' 2> '" + err.string() + "'";
  const int raw = std::system(command.c_str());
  Ran r;
  r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  std::stringstream o, e;
  o << std::ifstream(out).rdbuf();
  e << std::ifstream(err).rdbuf();
  r.out = o.str();
  r.err = e.str();
  return r;
}

std::string Sample(const char* name) { return "'" + std::string(DICEMILL_SOURCE_DIR) + "/samples/" + name + "'"; }

}  // namespace

TEST(RunTool, TheSameSeedGivesTheSameReportWhateverTheThreads) {
  TempFolder work;
  const std::string args = "--script " + Sample("three-point-molly.bet") + " --rolls 20000 --games 4 --seed 9 --json";
  const Ran one = RunCli(work, args + " --threads 1");
  const Ran again = RunCli(work, args + " --threads 1");
  const Ran two = RunCli(work, args + " --threads 2");
  ASSERT_EQ(one.status, 0) << one.err;
  EXPECT_EQ(one.out, again.out);
  EXPECT_EQ(one.out, two.out);
  const Json report = Json::parse(one.out);
  EXPECT_EQ(report["games"].size(), 4u);
  EXPECT_EQ(report["games"][3]["seed"], 12);
  EXPECT_EQ(report["batch"]["rolls"], 80000);
  EXPECT_EQ(report["games"][0]["stopReason"], "Stopped by roll count on Auto-Play screen.");
}

TEST(RunTool, StopsForTheScriptAndAtTheEndOfADiceFile) {
  TempFolder work;
  Ran r = RunCli(work, "--script " + Sample("dont-pass-stop-loss.txt") + " --rolls 1000000 --seed 3 --json");
  ASSERT_EQ(r.status, 0) << r.err;
  Json game = Json::parse(r.out)["games"][0];
  EXPECT_EQ(game["stopReason"], "Stopped by Auto-Bet command.");
  EXPECT_LT(game["bankroll"]["end"].get<double>(), 300);

  const auto rol = work.path() / "ten.rol";
  {
    std::ofstream file(rol, std::ios::binary);
    for (int i = 0; i < 10; ++i) file.put(static_cast<char>(RollByte(1 + i % 6, 2)));
  }
  r = RunCli(work, "--dice '" + rol.string() + "' --rolls 50 --json");
  ASSERT_EQ(r.status, 0) << r.err;
  game = Json::parse(r.out)["games"][0];
  EXPECT_EQ(game["stopReason"], "Stopped due to end of Dice Roll File reached.");
  EXPECT_EQ(game["rolls"], 10);
}

TEST(RunTool, BadOptionsAreRefusedWithAReason) {
  TempFolder work;
  const std::string missing = "'" + (work.path() / "none.txt").string() + "'";
  const struct {
    std::string args;
    const char* says;
  } cases[] = {
      {"--script " + missing, "none.txt"},
      {"--bankroll lots", "--bankroll lots is not an amount"},
      {"--rng 3 --seed 999999 --games 2", "outside the limits of generator #3"},
      {"--rolls 100000001", "--rolls"},
      {"--game x.crp", "File name error"},
      {"--game x.crp --games 2", "--games above 1 with --game needs --seed"},
  };
  for (const auto& c : cases) {
    const Ran r = RunCli(work, c.args);
    EXPECT_NE(r.status, 0) << c.args;
    EXPECT_NE(r.err.find(c.says), std::string::npos) << c.args << ": " << r.err;
    EXPECT_TRUE(r.out.empty()) << c.args;
  }
}

TEST(RunTool, CtrlCStopsBetweenRollsAndStillReports) {
  TempFolder work;
  // SIGINT after half a second, long before 100,000,000 rolls are made.
  const auto out = work.path() / "out.json";
  const std::string command = "timeout --preserve-status -s INT 0.5 '" DICEMILL_CLI_PATH
                              "' run --quiet --rolls 0 --games 2 --threads 1 --json > '" + out.string() + "'";
  const int raw = std::system(command.c_str());
  ASSERT_TRUE(WIFEXITED(raw));
  EXPECT_EQ(WEXITSTATUS(raw), 130);
  std::stringstream text;
  text << std::ifstream(out).rdbuf();
  const Json report = Json::parse(text.str());
  EXPECT_EQ(report["interrupted"], true);
  ASSERT_EQ(report["games"].size(), 1u);  // the second game never started
  EXPECT_GT(report["games"][0]["rolls"].get<int64_t>(), 0);
  EXPECT_LT(report["games"][0]["rolls"].get<int64_t>(), 100'000'000);
  EXPECT_EQ(report["games"][0]["stopReason"], "");
}
