// `dicemill-cli run --bankroll-csv --log` and `dicemill-cli games`, run as a
// user would.

#include <gtest/gtest.h>

#include "cli/cli_for_test.h"
#include "cli/json_lines.h"

namespace {

TEST(GamesTool, ARunWritesTheBankrollSeriesAndLogsEachGame) {
  TempFolder work;
  Ran r = Cli(work, "run --quiet --rolls 300 --games 3 --seed 5 --bankroll-csv b.csv --log g.glg");
  ASSERT_EQ(r.status, 0) << r.err;
  std::istringstream csv(Slurp(work.path() / "b.csv"));
  std::string line;
  std::getline(csv, line);
  EXPECT_EQ(line, "game,seed,roll,bankroll");
  std::getline(csv, line);
  EXPECT_EQ(line, "1,5,0,500");
  int rows = 1;
  std::string last;
  while (std::getline(csv, line)) ++rows, last = line;
  EXPECT_EQ(rows, 3 * 301);
  EXPECT_EQ(last.rfind("3,7,300,", 0), 0u) << last;

  // A second run adds to the log.
  ASSERT_EQ(Cli(work, "run --quiet --rolls 100 --seed 9 --log g.glg").status, 0);
  r = Cli(work, "games g.glg --measure 0 --json");
  ASSERT_EQ(r.status, 0) << r.err;
  const Json doc = Json::parse(r.out);
  EXPECT_EQ(doc["measure"], "Total Rolls");
  EXPECT_EQ(doc["games"], 4);
  EXPECT_EQ(doc["statistics"]["mean"], 250);
  EXPECT_EQ(doc["statistics"]["median"], 300);
  EXPECT_EQ(doc["statistics"]["highest"], 300);

  r = Cli(work, "games g.glg --measure \"Total Rolls\"");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_NE(r.out.find("Mean: 250\n"), std::string::npos) << r.out;
  EXPECT_NE(r.out.find("Median *: 300\n"), std::string::npos) << r.out;  // an even count of games

  // The data rows are CSV: the game's number and its 18 fields, as plain numbers.
  r = Cli(work, "games g.glg --data");
  ASSERT_EQ(r.status, 0) << r.err;
  std::istringstream text(r.out);
  while (std::getline(text, line) && line.rfind("Game,", 0) != 0) {}
  EXPECT_EQ(line.rfind("Game,Total Rolls,Bets Decided,", 0), 0u) << line;
  int games = 0;
  while (std::getline(text, line)) {
    ++games;
    std::istringstream fields(line);
    int count = 0;
    for (std::string field; std::getline(fields, field, ',');) {
      size_t used = 0;
      std::stod(field, &used);
      EXPECT_EQ(used, field.size()) << line;
      ++count;
    }
    EXPECT_EQ(count, 19) << line;
  }
  EXPECT_EQ(games, 4);
}

TEST(GamesTool, RefusalsLoseNothing) {
  TempFolder work;
  std::ofstream(work.path() / "bad.glg") << "not a games log at all";
  const struct {
    std::string args;
    const char* says;
  } cases[] = {
      {"games bad.glg", "Unable to Open Dicemill Games File: bad.glg is either from an older version"},
      {"games none.glg", "none.glg: Dicemill: File not found, Error #53 occurred, at: Open Games File"},
      {"games bad.glg --measure 99", "--measure 99"},
      {"games bad.glg --exclude tied", "--exclude tied"},
      {"run --quiet --rolls 10 --log bad.glg", "--log bad.glg: Unable to Open Dicemill Games File"},
      {"run --quiet --rolls 10 --bankroll-csv .", "--bankroll-csv .: is a directory"},
  };
  for (const auto& c : cases) {
    const Ran r = Cli(work, c.args);
    EXPECT_EQ(r.status, 2) << c.args;
    EXPECT_NE(r.err.find(c.says), std::string::npos) << c.args << ": " << r.err;
  }
  EXPECT_EQ(Slurp(work.path() / "bad.glg"), "not a games log at all");
}

}  // namespace
