#include "cli/play_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/json_lines.h"
#include "cli/session_for_test.h"
#include "engine/game.h"

TEST(PlaySession, StateCarriesEveryPromisedFieldInOrder) {
  Session s;
  s.Run("chip 1 0.01\nbet \"Pass Line\" 3.5\nbet \"chip-stack #1\" 0.0125");  // bets by name
  const Json st = s.State();
  std::vector<std::string> keys;
  for (const auto& item : st.items()) keys.push_back(item.key());
  EXPECT_EQ(keys, (std::vector<std::string>{
                      "bankroll", "totalOnTable", "amountInvested", "point", "pointBeforeRoll", "die1", "die2",
                      "diceTotal", "rollCount", "bets", "stacks", "committed", "status", "handStats", "buyVig",
                      "layVig", "stopReason", "rail", "highBankroll", "lowBankroll", "rollCountLeft",
                      "rollCountStop", "chips", "noticeMask", "rngChoice", "lastSeed", "modSeed"}));
  EXPECT_EQ(st["status"].size(), 84u);
  EXPECT_EQ(st["handStats"].size(), 20u);
  EXPECT_EQ(st["buyVig"].size(), 6u);
  EXPECT_EQ(st["layVig"].size(), 6u);
  // Money is exact: no 3.4999999 and no rounding of the fourth decimal.
  EXPECT_EQ(st["bets"].dump(), R"({"43":3.5})");
  EXPECT_EQ(st["stacks"].dump(), R"({"101":0.0125})");
  EXPECT_EQ(st["rollCount"], s.play.game().RollCounts[0]);
}

TEST(PlaySession, MalformedLinesPrintOneErrorAndChangeNothing) {
  Session s;
  s.Run("bet 49 5\nset TableMinimum 2\nanswer yes");
  const Json before = s.State();
  const char* bad[] = {
      "foo", "bet", "bet 49", "bet 49 5 6", "bet 0 5", "bet 100 5", "bet 200 5", "bet 49 five", "bet 49 1e2",
      "bet x 5", "bet 49 0.00001", "remove 84", "remove", "call 49", "call up 49", "call on 84", "buy 0", "roll 1",
      "roll 0 3", "roll 3 7", "roll 3 4 5", "hyper 0", "hyper -3", "hyper x", "autoroll", "autoroll 0",
      "set TableMinimum", "set TableMaximum 10000000", "set AutoRollDelay 5000", "set ProbRollsOutOf 2000000", "set Nope 1", "set BarNumber 3", "get Nope", "chip 0 1", "chip 6 1", "chip 1 0",
      "chip 2 -5", "chip 1 0.001", "chip 1 100001", "payoff 0 1 1", "payoff 84 1 1", "payoff 31 9 0",
      "payoff 31 1 0.001", "payoff 31 9 1001", "payoff 31 1001 1", "field 5 -2001 2", "payoff 31 x 5", "payoff 31 9 5 from",
      "field 0 1 1", "field 22 1 1", "field 5 -1 1 to x", "seed", "seed abc", "new now", "answer maybe",
      "answer yes maybe", "state now", "quit now", "bet \"49 5",
  };
  for (const char* line : bad) EXPECT_NE(s.Error(line), "(none)") << line;
  EXPECT_EQ(s.State(), before);
  EXPECT_EQ(s.play.frontEnd().PendingAnswers(), 1u);
  EXPECT_EQ(s.play.ExitStatus(), 0);

  const std::pair<const char*, const char*> texts[] = {
      {"frobnicate 1", "unknown command 'frobnicate'"},
      {"bet 84 5", "bet: BetId 84 is out of range (1..83 table bets, 101..199 Chip-Stacks)"},
      {"bet \"Place 7\" 5", "bet: BetId 'Place 7' is no bet's number or name (\"Place 6\", \"Chip-Stack #1\")"},
      {"bet 49", "bet: expected: bet ID AMOUNT"},
      {"atm borrow 100", "atm: expected: atm withdraw|deposit AMOUNT"},
      {"atm deposit -5", "atm: AMOUNT -5 must not be negative"},
      {"hyper", "hyper: no roll count is set (RollCountLeft is 0), so the run would not end: give N"}};
  for (const auto& [line, text] : texts) EXPECT_EQ(s.Error(line), text);
}

TEST(PlaySession, BlankLinesCommentsCaseQuitAndStrict) {
  Session s;
  EXPECT_TRUE(s.Run("\n   \n# bet 49 5\n\t# another\n").empty());
  EXPECT_TRUE(s.Run("BET 49 -7.5\nBet 50 5").empty());
  EXPECT_EQ(s.play.game().BetAmount[50], Currency(5));
  s.Run("answer no");  // the bets are unsaved: quit asks
  EXPECT_FALSE(s.play.RunLine("quit"));
  EXPECT_TRUE(s.play.Over());
  EXPECT_TRUE(s.Run("state").empty());  // nothing runs after quit
  EXPECT_EQ(s.play.ExitStatus(), 0);

  Session strict(true);
  EXPECT_TRUE(strict.play.RunLine("bet 49 5"));
  EXPECT_FALSE(strict.play.RunLine("bet 49 x"));
  EXPECT_EQ(strict.play.ExitStatus(), 2);
  EXPECT_TRUE(strict.Run("state").empty());
  std::istringstream in("state\nbogus\nstate\n");
  std::ostringstream out;
  TempFolder own;  // s still holds its folder
  EXPECT_EQ(RunPlay(in, out, PlayOptions{own.path().string(), "", true}), 2);
  const std::string printed = out.str();
  EXPECT_EQ(std::count(printed.begin(), printed.end(), '\n'), 2);  // state, error; the last state never ran

  // A game file that is not there: an error, and the session goes on.
  Session withGame(false, "my game.crp");
  EXPECT_EQ(withGame.Run("state").size(), 1u);
  EXPECT_EQ(withGame.play.ExitStatus(), 0);
  Session strictWithGame(true, "g.crp");
  EXPECT_TRUE(strictWithGame.play.Over());
}

TEST(PlaySession, TableAndConfigurationCommandsReachTheGame) {
  Session s;
  const Game& g = s.play.game();
  EXPECT_TRUE(s.Run("chip 1 0.25\nchip 5 1000").empty());
  EXPECT_EQ(g.BetAmount[bet::kFirstChip].raw, 2500);
  // WIN is the record's own net amount in either form; the word sets only Form.
  s.Run("payoff 62 15 2 for\nfield 21 -1 1 to");
  EXPECT_EQ(g.Payoff[62].Win, Currency(15));
  EXPECT_EQ(g.Payoff[62].Per, Currency(2));
  EXPECT_EQ(g.Payoff[62].Form, Currency(0));
  EXPECT_EQ(g.FieldPayoff[21].Win, Currency(-1));
  EXPECT_EQ(g.FieldPayoff[21].Form, Currency(-1));
  s.Run("set StopOnRoll.9 true");
  EXPECT_EQ(s.Run("get StopOnRoll.9").at(0).dump(), R"({"setting":{"name":"StopOnRoll.9","value":true}})");

  s.Run("bet 33 30\nbet 39 10\nbuy 33\ncall off 39");
  EXPECT_EQ(g.BetAmount[39], Currency(30));
  EXPECT_EQ(g.BetStatus[39], -1);
  s.Run("call on all");
  EXPECT_NE(g.BetStatus[39], -1);
  s.Run("remove all\nseed 12345");
  EXPECT_EQ(g.BetAmount[39], Currency(0));
  EXPECT_EQ(g.SeedRequest, Currency(12345));
  const auto rolled = s.Run("roll 2 5");
  EXPECT_EQ(rolled.at(0).dump(), R"({"rolled":{"die1":2,"die2":5,"total":7,"point":0}})");
  EXPECT_FALSE(g.KeepRolling);

  s.Run("set ModifyOperator.4 2\nset ModifyAmount.4 2.5\nset ModifyUnits.4 0");
  EXPECT_EQ(g.ModifyOperator[4], 2);
  EXPECT_EQ(g.ModifyAmount[4].raw, 25000);
  EXPECT_EQ(g.ModifyUnits[4], 0);
  EXPECT_EQ(s.Error("set ModifyUnits.1 1"), "set: ModifyUnits 1 is no unit: -1 $, 0 %, 2..6 a check");
  s.Run("set AllowNegativeBankroll false\nset NoticeMask 0");
  EXPECT_EQ(s.Run("atm withdraw 100\natm deposit 700").back().dump(),
            R"({"atm":{"action":"deposit","requested":700,"allowed":600,"bankroll":0,"amountInvested":0,"net":0}})");
}

TEST(PlaySession, RunsReportHowTheyStoppedAndPutSettingsBack) {
  Session s;
  const Game& g = s.play.game();
  s.Staged().AutoRollDelay = 3;
  const Json stopped = s.Run("autoroll 4").back().at("stopped");
  EXPECT_TRUE(stopped.at("reason").is_string());
  EXPECT_GE(stopped.at("rolls"), 0);
  EXPECT_LE(stopped.at("rolls"), 4);
  EXPECT_FALSE(g.AutoRollOn);
  EXPECT_EQ(g.AutoRollDelay, 3);
  EXPECT_EQ(g.RollCountLeft, 0);
  EXPECT_FALSE(g.KeepRolling);

  const auto hyper = s.Run("hyper 7");
  EXPECT_EQ(hyper.back().dump(), R"({"stopped":{"reason":"Stopped by roll count on Auto-Play screen.","rolls":7}})");
  EXPECT_EQ(hyper.at(hyper.size() - 2).at("message").at("title"), "Hyper-Drive Stopped");
  EXPECT_EQ(g.RollCountStop, 7);
  EXPECT_FALSE(g.HyperDriveOn || g.KeepRolling);
  // With a roll count in force a bare `hyper` is a bounded run.
  s.Staged().RollCountLeft = 2;
  EXPECT_TRUE(s.Run("hyper").back().contains("stopped"));

  // Queued replies wait for the next question, whichever command asks it.
  s.Run("answer yes 250 take");
  EXPECT_EQ(s.play.frontEnd().PendingAnswers(), 3u);
}

// A start refused at the bank limit says why, by roll, Auto-Roll or
// Hyper-Drive alike, and a run reports the same text as its stop reason.
TEST(PlaySession, AStartRefusedAtTheBankLimitSaysWhy) {
  const std::string tail = "\r\rSelect \"New\" from the \"Game\" menu to reset the table.";
  const struct { int sign; const char* title; std::string text; } limits[] = {
      {1, "Congratulations!", "You broke the bank limit of $9,999,999" + tail},
      {-1, "Sorry ... this wasn't your lucky day.", "You've exceeded the max loss limit of $9,999,999" + tail}};
  for (const auto& limit : limits) {
    for (const char* start : {"roll", "roll 3 4", "autoroll 3", "hyper 3"}) {
      Session s;
      Game& g = s.Staged();
      g.Bankroll() = Currency(10'000'000) * limit.sign;
      g.EditAfterRoll()[0] = g.Bankroll();  // the limit was broken by an earlier roll
      const auto printed = s.Run(start);
      ASSERT_FALSE(printed.empty()) << start;
      EXPECT_EQ(printed.at(0).at("message").at("title"), limit.title) << start;
      EXPECT_EQ(printed.at(0).at("message").at("text"), limit.text) << start;
      if (printed.back().contains("stopped"))
        EXPECT_EQ(printed.back().dump(), Json({{"stopped", {{"reason", limit.text}, {"rolls", 0}}}}).dump()) << start;
      else
        EXPECT_EQ(std::string(start).rfind("roll", 0), 0u) << start;
      EXPECT_EQ(g.RollCounts[0], 0) << start;
    }
  }
}

// The unsaved mark clears with every save and open, and is never stored as
// set: only a change made afterwards asks "Save Game?" again.
TEST(PlaySession, SavingAndOpeningClearTheUnsavedMark) {
  Session first;
  const std::string file = first.Path("x.crp");
  const struct { const char* lines; bool unsaved; } steps[] = {
      {"roll 3 4", true},
      {"save \"FILE\"", false},
      {"bet 49 5", true},
      {"answer yes\nnew", false},  // a Yes to the prompt saves to the game's file
      {"roll 3 4", true},
      {"open \"FILE\"", false},
  };
  for (const auto& step : steps) {
    std::string lines = step.lines;
    if (const size_t at = lines.find("FILE"); at != std::string::npos) lines.replace(at, 4, file);
    first.Run(lines);
    EXPECT_EQ(first.play.game().GameChanged, step.unsaved) << step.lines;
  }
  first.Run("bet 49 5\nsave \"" + file + "\"");
  Session second(false, file);
  EXPECT_FALSE(second.play.game().GameChanged);
  for (const Json& printed : second.Run("quit"))
    EXPECT_FALSE(printed.contains("message") && printed["message"]["title"] == "Save Game?");
}
