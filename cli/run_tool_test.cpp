// Runs the built program as a user would: `dicemill-cli run ...`.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "cli/cli_for_test.h"
#include "cli/json_lines.h"
#include "engine/dice_roll_files.h"

namespace {

// A Dice Roll File of `rolls` rolls in the work folder.
std::string ShortDice(const TempFolder& work, int rolls) {
  std::ofstream file(work.path() / "short.rol", std::ios::binary);
  for (int i = 0; i < rolls; ++i) file.put(static_cast<char>(RollByte(1 + i % 6, 2)));
  return "short.rol";
}

// The report without what depends on how the run was spread over threads.
Json WithoutThreads(const std::string& text) {
  Json report = Json::parse(text);
  report["run"].erase("threads");
  return report;
}

}  // namespace

TEST(RunTool, TheSameSeedGivesTheSameReportWhateverTheThreads) {
  TempFolder work;
  const std::string args = "run --quiet --script " + SourcePath("samples/three-point-molly.bet") +
                           " --rolls 20000 --games 4 --seed 9 --json";
  const Ran one = Cli(work, args + " --threads 1");
  const Ran again = Cli(work, args + " --threads 1");
  const Ran two = Cli(work, args + " --threads 2");
  ASSERT_EQ(one.status, 0) << one.err;
  EXPECT_TRUE(one.out == again.out);
  EXPECT_TRUE(WithoutThreads(one.out) == WithoutThreads(two.out));
  const Json report = Json::parse(one.out);
  EXPECT_EQ(report["schema"], 1);
  EXPECT_EQ(report["run"]["threads"], 1);
  EXPECT_EQ(report["games"].size(), 4u);
  EXPECT_EQ(report["games"][3]["seed"], 12);
  EXPECT_EQ(report["batch"]["rolls"], 80000);
  EXPECT_EQ(report["games"][0]["stopReason"], "Stopped by roll count on Auto-Play screen.");
}

TEST(RunTool, StopsForTheScriptAtTheEndOfADiceFileAndAtRuin) {
  TempFolder work;
  Ran r = Cli(work, "run --quiet --script " + SourcePath("samples/dont-pass-stop-loss.txt") +
                        " --rolls 1,000,000 --seed 3 --json");
  ASSERT_EQ(r.status, 0) << r.err;
  Json game = Json::parse(r.out)["games"][0];
  EXPECT_EQ(game["stopReason"], "Stopped by Auto-Bet command.");
  EXPECT_LT(game["bankroll"]["end"].get<double>(), 300);

  r = Cli(work, "run --quiet --dice " + ShortDice(work, 10) + " --rolls 50 --json");
  ASSERT_EQ(r.status, 0) << r.err;
  game = Json::parse(r.out)["games"][0];
  EXPECT_EQ(game["stopReason"], "Stopped due to end of Dice Roll File reached.");
  EXPECT_EQ(game["rolls"], 10);

  // Without --stop-at-ruin the bankroll goes on below zero, as at the table.
  const std::string press = "run --quiet --script " + SourcePath("samples/place-6-8-press.txt") +
                            " --bankroll 40 --rolls 20000 --games 2 --json";
  r = Cli(work, press + " --stop-at-ruin");
  ASSERT_EQ(r.status, 0) << r.err;
  Json report = Json::parse(r.out);
  for (const Json& g : report["games"]) {
    EXPECT_EQ(g["stopReason"].get<std::string>().rfind("Stopped at ruin on roll " + FormatWithCommas(g["rolls"].get<int64_t>()) + ": the rack and the table together hold", 0), 0u) << g["stopReason"];
    EXPECT_TRUE(g["ruined"].get<bool>());
    EXPECT_GT(g["bankroll"]["low"].get<double>(), -100);
  }
  EXPECT_EQ(report["batch"]["riskOfRuin"], 1.0);
  r = Cli(work, press);
  EXPECT_EQ(Json::parse(r.out)["games"][0]["rolls"], 20000);
}

TEST(RunTool, RefusalsSayWhyAndExitWithTwo) {
  TempFolder work;
  std::ofstream(work.path() / "bad.glg") << "not a games log";
  const struct {
    std::string args;
    std::string says;
  } cases[] = {
      {"--bogus", "--bogus"},
      {"--script none.txt", "--script none.txt: "},
      {"--seed 0", "--seed 0: give a whole number from 1 to 2,147,483,647"},
      {"--rolls 100000001", "--rolls 100000001: give a whole number from 0 to 100,000,000"},
      {"--rolls 1,00", "--rolls 1,00:"},
      {"--bankroll lots", "--bankroll lots: not an amount"},
      {"--bankroll 0x10", "--bankroll 0x10: not an amount"},
      {"--bankroll 10,000,000", "beyond the bank limit of $9,999,999"},
      {"--rng 3 --seed 999999 --games 2", "beyond the limit of generator #3: seeds run from 1 to 999,999"},
      {"--game x.crp", "x.crp"},
      {"--game x.crp --games 2", "--games above 1 with --game needs --seed"},
      {"--json no/r.json", "--json no/r.json: the folder no does not exist"},
      {"--bankroll-csv no/b.csv", "--bankroll-csv no/b.csv: the folder no does not exist"},
      {"--log no/g.glg", "--log no/g.glg: the folder no does not exist"},
      {"--log bad.glg", "--log bad.glg: Unable to Open Dicemill Games File"},
      {"--dice .", "Dice Roll File \".\" is a directory"},
      {"--dice none.rol", "Dice Roll File \"none.rol\" was not found"},
      {"--script " + SourcePath("tests/reliability/script-check-fault-but-run-ok-0.txt"), "-0.txt:1: Missing Start Condition\n"},
      {"--script " + SourcePath("tests/reliability/script-check-fault-but-run-ok-1.bet"), "-1.bet:13: Missing Start Condition\n"},
      {"--script " + SourcePath("tests/reliability/script-check-fault-but-run-ok-2.txt"), "-2.txt:4: Missing Action Lines\n"},
  };
  for (const auto& c : cases) {
    const Ran r = Cli(work, "run --quiet --rolls 100 " + c.args);
    EXPECT_EQ(r.status, 2) << c.args;
    EXPECT_NE(r.err.find(c.says), std::string::npos) << c.args << ": " << r.err;
    EXPECT_EQ(r.err.find('\r'), std::string::npos) << c.args;
    EXPECT_TRUE(r.out.empty()) << c.args;
  }
  EXPECT_EQ(Slurp(work.path() / "bad.glg"), "not a games log");
}

TEST(RunTool, UncheckedRunsAFaultyScriptWithAWarning) {
  TempFolder work;
  for (const char* name : {"0.txt", "1.bet", "2.txt"}) {
    const Ran r = Cli(work, "run --quiet --rolls 100 --unchecked --script " +
                                SourcePath(std::string("tests/reliability/script-check-fault-but-run-ok-") + name));
    EXPECT_EQ(r.status, 0) << name << r.err;
    EXPECT_EQ(r.err.rfind("dicemill-cli run: warning: running a script that does not pass the check:\n", 0), 0u) << r.err;
    EXPECT_NE(r.out.find("rolls 100,"), std::string::npos) << r.out;
  }
}

TEST(RunTool, ExitStatusesAndTheVersion) {
  TempFolder work;
  const struct {
    std::string args;
    int status;
    std::string out, err;  // what each begins with or holds
  } cases[] = {
      {"--version", 0, "dicemill-cli ", ""},
      {"--help", 0, "", ""},
      {"", 2, "", ""},
      {"run --rolls", 2, "", ""},
      {"run --quiet --rolls 100 --json > /dev/full", 1, "", "No space left on device"},
      {"run --quiet --rolls 100 > /dev/full", 1, "", ""},
  };
  for (const auto& c : cases) {
    const Ran r = Cli(work, c.args);
    EXPECT_EQ(r.status, c.status) << c.args;
    EXPECT_EQ(r.out.rfind(c.out, 0), 0u) << c.args;
    EXPECT_NE(r.err.find(c.err), std::string::npos) << c.args;
  }
}

TEST(RunTool, NumbersAndMoneyAsAPersonWritesThem) {
  TempFolder work;
  const Ran plain = Cli(work, "run --quiet --rolls 1000 --bankroll 1000 --json");
  const Ran grouped = Cli(work, "run --quiet --rolls 1,000 --bankroll '$1,000' --json");
  ASSERT_EQ(plain.status, 0) << plain.err;
  EXPECT_TRUE(plain.out == grouped.out);
  EXPECT_EQ(Json::parse(plain.out)["games"][0]["bankroll"]["start"], 1000);

  const std::string dice = ShortDice(work, 10);
  const struct {
    std::string args;
    std::vector<std::string> says;
  } cases[] = {
      {"--rolls 1", {"1 roll a game, 1 game, seeds from 1\n"}},
      {"--rolls 0 --dice " + dice, {"100,000,000 rolls (the ceiling) a game", "sim hrs 0.1\n"}},
      {"--rolls 2000 --games 3 --script " + SourcePath("samples/place-6-8-press.txt"),
       {" (standard error)\n", "mean net -$", " \u00b1 $"}},
  };
  for (const auto& c : cases) {
    const Ran r = Cli(work, "run --quiet " + c.args);
    EXPECT_EQ(r.status, 0) << c.args << r.err;
    for (const std::string& says : c.says) EXPECT_NE(r.out.find(says), std::string::npos) << c.args << ":\n" << r.out;
  }
}

TEST(RunTool, SummaryAndJsonSayWhatTheRunWas) {
  TempFolder work;
  const std::string script = SourcePath("samples/place-6-8-press.txt");
  Ran r = Cli(work, "run --quiet --rolls 500 --games 5 --summary --script " + script);
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out.find("Game (seed"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("Batch of 5 games: 2,500 rolls"), std::string::npos) << r.out;

  // The generator is reported the same whether given or taken by default.
  r = Cli(work, "run --quiet --rolls 500 --script " + script + " --json r.json --bankroll-csv b.csv --log g.glg");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(r.out.empty());
  const Json report = Json::parse(Slurp(work.path() / "r.json"));
  const Json given = Json::parse(Cli(work, "run --quiet --rolls 500 --rng 1 --script " + script + " --json").out);
  EXPECT_EQ(report["run"]["rng"], 1);
  EXPECT_EQ(given["run"]["rng"], 1);
  EXPECT_EQ(report["run"]["json"], "r.json");
  EXPECT_EQ(report["run"]["bankrollCsv"], "b.csv");
  EXPECT_EQ(report["run"]["log"], "g.glg");
  // Money to the cent, never -0.
  const std::string text = report.dump();
  EXPECT_EQ(text.find("-0.0"), std::string::npos);
  const double average = report["games"][0]["bankroll"]["average"].get<double>();
  EXPECT_DOUBLE_EQ(average, std::nearbyint(average * 100) / 100);
}

TEST(RunTool, PartsOfABatchMergeIntoTheWhole) {
  TempFolder work;
  const std::string args = "run --quiet --threads 1 --rolls 3000 --seed 7 --script " +
                           SourcePath("samples/place-6-8-press.txt") + " --json";
  ASSERT_EQ(Cli(work, args + " --games 8 > whole.json").status, 0);
  ASSERT_EQ(Cli(work, args + " --games 4 > a.json").status, 0);
  ASSERT_EQ(Cli(work, args + " --games 4 --first-game 4 > b.json").status, 0);
  ASSERT_EQ(Cli(work, args + " --games 3 --first-game 2 > c.json").status, 0);
  const Ran merged = Cli(work, "merge b.json a.json");
  ASSERT_EQ(merged.status, 0) << merged.err;
  EXPECT_TRUE(merged.out == Slurp(work.path() / "whole.json"));

  const struct {
    std::string args;
    std::string says;
  } refused[] = {
      {"merge a.json c.json", "c.json: starts at game 3, which an earlier part has too"},
      {"merge b.json", ""},  // one part alone is its own batch
      {"merge a.json out.txt", "out.txt: is not"},
  };
  std::ofstream(work.path() / "out.txt") << "{}";
  for (const auto& c : refused) {
    const Ran r = Cli(work, c.args);
    EXPECT_EQ(r.status, c.says.empty() ? 0 : 2) << c.args;
    EXPECT_NE(r.err.find(c.says), std::string::npos) << c.args << ": " << r.err;
  }
}

TEST(RunTool, CtrlCStopsBetweenRollsAndStillReports) {
  TempFolder work;
  // SIGINT after half a second, long before 100,000,000 rolls are made.
  const Ran r = Shell(work, "timeout --preserve-status -s INT 0.5 " + kCliPath + " run --quiet --rolls 0 --games 2 --threads 1 --json");
  EXPECT_EQ(r.status, 130);
  const Json report = Json::parse(r.out);
  EXPECT_EQ(report["interrupted"], true);
  ASSERT_EQ(report["games"].size(), 1u);  // the second game never started
  const int64_t rolls = report["games"][0]["rolls"].get<int64_t>();
  EXPECT_GT(rolls, 0);
  EXPECT_LT(rolls, 100'000'000);
  EXPECT_EQ(report["games"][0]["stopReason"], "Interrupted after roll " + FormatWithCommas(rolls) + ".");
}

TEST(RunTool, TheProgressBarEndsAtTheRollsMade) {
  TempFolder work;
  // On a terminal: two games of a 10-roll file asked for 50 rolls each.
  const std::string inner = kCliPath + " run --rolls 50 --games 2 --threads 1 --dice " + ShortDice(work, 10);
  const Ran r = Shell(work, "script -qec \"" + inner + "\" /dev/null");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("[" + std::string(30, '#') + "] 20/20 rolls"), std::string::npos) << r.out;
}
