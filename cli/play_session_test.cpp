#include "cli/play_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/json_lines.h"
#include "cli/temp_folder_for_test.h"
#include "engine/game.h"

namespace {

struct Session {
  TempFolder folder;
  std::ostringstream out;
  PlaySession play;
  explicit Session(bool strict = false, std::string gameFile = "")
      : play(out, PlayOptions{folder.path().string(), std::move(gameFile), strict}) {}

  // Runs the lines and returns the objects they printed.
  std::vector<Json> Run(const std::string& lines) {
    out.str("");
    std::istringstream in(lines);
    for (std::string line; std::getline(in, line);) play.RunLine(line);
    std::vector<Json> objects;
    std::istringstream printed(out.str());
    for (std::string line; std::getline(printed, line);) objects.push_back(Json::parse(line));
    return objects;
  }
  Json State() { return Run("state").at(0).at("state"); }
  std::string Error(const std::string& line) {
    auto objects = Run(line);
    return objects.size() == 1 && objects[0].contains("error") ? objects[0]["error"].get<std::string>() : "(none)";
  }
};

}  // namespace

TEST(PlaySession, StateCarriesEveryPromisedField) {
  Session s;
  s.Run("chip 1 0.0001\nbet 43 3.5\nbet 101 0.0125");
  const Json st = s.State();
  for (const char* key : {"bankroll", "totalOnTable", "amountInvested", "point", "pointBeforeRoll", "die1", "die2",
                          "diceTotal", "rollCount", "bets", "stacks", "committed", "status", "handStats", "buyVig",
                          "layVig", "stopReason"})
    EXPECT_TRUE(st.contains(key)) << key;
  EXPECT_EQ(st["status"].size(), 84u);
  EXPECT_EQ(st["handStats"].size(), 20u);
  EXPECT_EQ(st["buyVig"].size(), 6u);
  EXPECT_EQ(st["layVig"].size(), 6u);
  // Money is exact: no 3.4999999 and no rounding of the fourth decimal.
  EXPECT_EQ(st["bets"].dump(), R"({"43":3.5})");
  EXPECT_EQ(st["stacks"].dump(), R"({"101":0.0125})");
  EXPECT_EQ(st["bets"]["43"], s.play.game().BetAmount[43].ToDouble());
  EXPECT_EQ(st["rollCount"], s.play.game().RollCounts[0]);
  EXPECT_EQ(st["die1"], s.play.game().Die1);
}

TEST(PlaySession, MalformedLinesPrintOneErrorAndChangeNothing) {
  Session s;
  s.Run("bet 49 5\nset TableMinimum 2\nanswer yes");
  const Json before = s.State();
  const size_t pending = s.play.frontEnd().PendingAnswers();
  const char* bad[] = {
      "foo",                  "bet",                    "bet 49",              "bet 49 5 6",
      "bet 0 5",              "bet 84 5",               "bet 100 5",           "bet 200 5",
      "bet 49 five",          "bet 49 1e2",             "bet x 5",             "bet 49 0.00001",
      "remove 84",            "remove",                 "call 49",             "call up 49",
      "call on 84",           "buy 0",                  "roll 1",              "roll 0 3",
      "roll 3 7",             "roll 3 4 5",             "hyper 0",             "hyper -3",
      "hyper x",              "autoroll",               "autoroll 0",          "set TableMinimum",
      "set Nope 1",           "set BarNumber 3",        "get Nope",            "chip 0 1",
      "chip 6 1",             "chip 1 0",               "chip 2 -5",           "payoff 0 1 1",
      "payoff 84 1 1",        "payoff 31 9 0",          "payoff 31 9 5 from",  "payoff 31 x 5",
      "field 0 1 1",          "field 22 1 1",           "field 5 -1 1 to x",   "seed",
      "seed abc",             "new now",                "answer maybe",        "answer yes maybe",
      "state now",            "quit now",               "bet \"49 5",          "atm withdraw 100",
  };
  for (const char* line : bad) EXPECT_NE(s.Error(line), "(none)") << line;
  EXPECT_EQ(s.State(), before);
  EXPECT_EQ(s.play.frontEnd().PendingAnswers(), pending);
  EXPECT_EQ(s.play.ExitStatus(), 0);

  EXPECT_EQ(s.Error("frobnicate 1"), "unknown command 'frobnicate'");
  EXPECT_EQ(s.Error("bet 84 5"), "bet: BetId 84 is out of range (1..83 table bets, 101..199 Chip-Stacks)");
  EXPECT_EQ(s.Error("bet 49"), "bet: expected: bet ID AMOUNT");
  EXPECT_EQ(s.Error("atm deposit 5"), "atm: the ATM is not available yet");
  EXPECT_EQ(s.Error("hyper"), "hyper: no roll count is set (RollCountLeft is 0), so the run would not end: give N");
}

TEST(PlaySession, BlankLinesCommentsCaseAndQuit) {
  Session s;
  EXPECT_TRUE(s.Run("\n   \n# bet 49 5\n\t# another\n").empty());
  EXPECT_TRUE(s.Run("BET 49 -7.5\nBet 50 5").empty());
  EXPECT_EQ(s.play.game().BetAmount[50], Currency(5));
  EXPECT_FALSE(s.play.RunLine("quit"));
  EXPECT_TRUE(s.play.Over());
  EXPECT_TRUE(s.Run("state").empty());  // nothing runs after quit
  EXPECT_EQ(s.play.ExitStatus(), 0);
}

TEST(PlaySession, StrictStopsAtTheFirstError) {
  Session s(true);
  EXPECT_TRUE(s.play.RunLine("bet 49 5"));
  EXPECT_FALSE(s.play.RunLine("bet 49 x"));
  EXPECT_EQ(s.play.ExitStatus(), 2);
  EXPECT_TRUE(s.Run("state").empty());

  std::istringstream in("state\nbogus\nstate\n");
  std::ostringstream out;
  TempFolder folder;
  EXPECT_EQ(RunPlay(in, out, PlayOptions{folder.path().string(), "", true}), 2);
  const std::string printed = out.str();
  EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 2);  // state, error; the last state never ran

  // A game file cannot be opened yet: an error, and the session goes on.
  Session withGame(false, "my game.crp");
  EXPECT_EQ(withGame.Run("state").size(), 1u);
  EXPECT_EQ(withGame.play.ExitStatus(), 0);
  Session strictWithGame(true, "g.crp");
  EXPECT_TRUE(strictWithGame.play.Over());
  EXPECT_EQ(strictWithGame.play.ExitStatus(), 2);
}

TEST(PlaySession, TableAndConfigurationCommandsReachTheGame) {
  Session s;
  Game& g = s.play.game();
  EXPECT_TRUE(s.Run("chip 1 0.25\nchip 5 1000").empty());
  EXPECT_EQ(g.BetAmount[95].raw, 2500);

  s.Run("payoff 62 15 2 for\nfield 21 -1 1 to");
  // WIN is the record's own net amount in either form; the word sets only Form.
  EXPECT_EQ(g.Payoff[62].Win, Currency(15));
  EXPECT_EQ(g.Payoff[62].Per, Currency(2));
  EXPECT_EQ(g.Payoff[62].Form, Currency(0));
  EXPECT_EQ(g.FieldPayoff[21].Win, Currency(-1));
  EXPECT_EQ(g.FieldPayoff[21].Form, Currency(-1));

  s.Run("set StopOnRoll.9 true");
  EXPECT_EQ(s.Run("get StopOnRoll.9").at(0).dump(), R"({"setting":{"name":"StopOnRoll.9","value":true}})");

  s.Run("bet 33 30\nbet 39 10\nbuy 33");
  EXPECT_EQ(g.BetAmount[39], Currency(30));
  EXPECT_EQ(g.BetAmount[33], Currency(0));
  s.Run("call off 39");
  EXPECT_EQ(g.BetStatus[39], -1);
  s.Run("call on all");
  EXPECT_NE(g.BetStatus[39], -1);
  s.Run("remove all");
  EXPECT_EQ(g.BetAmount[39], Currency(0));

  s.Run("seed 12345");
  EXPECT_EQ(g.SeedRequest, Currency(12345));
  s.Run("roll 2 5");
  EXPECT_EQ(g.Die1, 2);
  EXPECT_EQ(g.Die2, 5);
  EXPECT_FALSE(g.KeepRolling);
}

TEST(PlaySession, RunsReportHowTheyStoppedAndPutSettingsBack) {
  Session s;
  Game& g = s.play.game();
  g.AutoRollDelay = 3;
  auto objects = s.Run("autoroll 4");
  ASSERT_FALSE(objects.empty());
  const Json& stopped = objects.back().at("stopped");
  EXPECT_TRUE(stopped.at("reason").is_string());
  EXPECT_GE(stopped.at("rolls"), 0);
  EXPECT_LE(stopped.at("rolls"), 4);
  EXPECT_FALSE(g.AutoRollOn);
  EXPECT_EQ(g.AutoRollDelay, 3);
  EXPECT_EQ(g.RollCountLeft, 0);
  EXPECT_FALSE(g.KeepRolling);

  objects = s.Run("hyper 7");
  ASSERT_FALSE(objects.empty());
  EXPECT_TRUE(objects.back().contains("stopped"));
  EXPECT_EQ(g.RollCountStop, 7);
  EXPECT_FALSE(g.HyperDriveOn);
  EXPECT_FALSE(g.KeepRolling);
  // With a roll count in force a bare `hyper` is a bounded run.
  g.RollCountLeft = 2;
  EXPECT_TRUE(s.Run("hyper").back().contains("stopped"));

  // Queued replies wait for the next question, whichever command asks it.
  s.Run("answer yes 250 take");
  EXPECT_EQ(s.play.frontEnd().PendingAnswers(), 3u);
}
