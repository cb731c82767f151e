#include "sim/batch.h"

#include <gtest/gtest.h>

#include "script/script_for_test.h"

namespace {

// $10 on the Pass Line whenever the next roll is a come-out roll.
Script PassLineScript() {
  Script s;
  s.Lines = {MakeLine(line_kind::kWhile), MakeLine(line_kind::kCondition, 0, 0, 1301), MakeLine(line_kind::kThen),
             MakeLine(line_kind::kAction, 10, 10, 0, 43)};
  return s;
}

RunOptions Options(int games, int threads, int64_t rolls = 20'000) {
  RunOptions o;
  o.Seed = 41;
  o.Rolls = rolls;
  o.Games = games;
  o.Threads = threads;
  return o;
}

void ExpectSameGames(const std::vector<GameResult>& a, const std::vector<GameResult>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(a[i].Seed, b[i].Seed);
    EXPECT_EQ(a[i].Rolls, b[i].Rolls);
    EXPECT_EQ(a[i].BankrollEnd, b[i].BankrollEnd);
    EXPECT_EQ(a[i].BankrollLow, b[i].BankrollLow);
    EXPECT_EQ(a[i].BetsWon, b[i].BetsWon);
    EXPECT_EQ(a[i].StopReason, b[i].StopReason);
  }
}

}  // namespace

TEST(Batch, GamesRepeatWhateverTheThreads) {
  const Script script = PassLineScript();
  RunControl c1, c2;
  const BatchResult one = RunBatch(Options(5, 1), script, c1);
  const BatchResult two = RunBatch(Options(5, 2), script, c2);
  ExpectSameGames(one.Games, two.Games);
  ASSERT_EQ(one.Games.size(), 5u);
  EXPECT_EQ(one.Games[4].Seed, 45);
  // Different seeds give different games, and the script really bet.
  EXPECT_NE(one.Games[0].BankrollEnd, one.Games[1].BankrollEnd);
  const GameResult& g = one.Games[0];
  EXPECT_GT(g.BetsWon + g.BetsLost, 1000);
  EXPECT_EQ(g.Net, g.BankrollEnd - g.BankrollStart);
  EXPECT_EQ(g.Net, g.AmountWon - g.AmountLost);
  EXPECT_EQ(c1.RollsDone.load(), 5 * 20'000);
}

TEST(Batch, RuinAndInterruption) {
  const Script script = PassLineScript();
  RunOptions o = Options(3, 1);
  o.Bankroll = 50;  // the house edge takes $50 long before 20,000 rolls
  RunControl control;
  const BatchResult r = RunBatch(o, script, control);
  ASSERT_EQ(r.Games.size(), 3u);
  for (const GameResult& g : r.Games) {
    EXPECT_EQ(g.BankrollStart, 50);
    EXPECT_TRUE(g.Ruined);
  }
  RunControl stopped;
  stopped.Stop = true;
  const BatchResult none = RunBatch(o, script, stopped);
  EXPECT_TRUE(none.Games.empty());
  EXPECT_TRUE(none.Interrupted);
}

TEST(Batch, SetUpFailuresAreReported) {
  RunOptions o = Options(2, 2);
  o.Rng = 3;  // #3 takes seeds up to 999,999
  o.Seed = 999'999;
  RunControl control;
  EXPECT_THROW(RunBatch(o, Script(), control), std::runtime_error);
  o = Options(1, 1);
  o.DicePath = "/nonexistent/dice.rol";
  RunControl fresh;  // a failure stops the batch it happened in
  EXPECT_THROW(RunBatch(o, Script(), fresh), std::runtime_error);
}

TEST(Batch, SummaryFigures) {
  std::vector<GameResult> games(5);
  const int nets[] = {-50, 10, 0, 30, -20};
  for (int i = 0; i < 5; ++i) {
    games[i].Net = nets[i];
    games[i].Ruined = i == 0;
  }
  const BatchSummary s = Summarize(games);
  EXPECT_DOUBLE_EQ(s.MeanNet, -6);
  // sample deviation sqrt(3720 / 4), over root 5
  EXPECT_NEAR(s.NetStandardError, 13.638181696985855, 1e-12);
  EXPECT_DOUBLE_EQ(s.NetP50, 0);
  EXPECT_DOUBLE_EQ(s.NetP10, -38);  // between -50 and -20
  EXPECT_DOUBLE_EQ(s.NetP90, 22);   // between 10 and 30
  EXPECT_DOUBLE_EQ(s.RiskOfRuin, 0.2);
  EXPECT_EQ(Summarize({}).Games, 0);
  EXPECT_EQ(Summarize({games[1]}).NetStandardError, 0);
}
