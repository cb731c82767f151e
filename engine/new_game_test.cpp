#include "engine/new_game.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"
#include "store/start_up.h"

TEST(NewGame, ClearsTheTableAndKeepsTheSettings) {
  TestTable t;
  Game& g = t.g;
  g.BetAmount.Set(bet::kField, 5);
  g.TotalOnTable = 5;
  g.BetAmount.Set(101, 7);
  g.BetName[101] = "Press fund";
  g.RollCounts[0] = g.HandStats[hand::kRolls] = 3;
  g.RollCountStop = 4;
  g.Point = 6;
  g.WorkOnComeOut[bet::Place(6)] = 1;
  g.Payoff.Edit()[bet::Place(6)].Win = 8;
  NewGame(g, true);
  EXPECT_EQ(g.BetAmount[bet::kField] + g.TotalOnTable + g.RollCounts[0] + g.HandStats[hand::kRolls], 0);
  EXPECT_EQ(g.Point, 0);
  EXPECT_EQ(g.BetAmount[101], Currency(7));  // kept stacks keep money and name
  EXPECT_EQ(g.BetName[101], "Press fund");
  EXPECT_EQ(g.RollCountLeft, 4);
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 1);  // from the edited come-out default
  EXPECT_EQ(g.Payoff[bet::Place(6)].Win, Currency(8));
  NewGame(g, false);
  EXPECT_EQ(g.BetAmount[101], Currency(0));
  EXPECT_EQ(g.BetName[101], "Chip-Stack # 1");
}

TEST(NewGame, SetsTheBankrollByItsType) {
  TestTable t;
  Game& g = t.g;
  // 1: asked for, offering the set amount, which takes the answer.
  g.BankrollInitType = 1;
  t.ui.numberReplies = {Currency(750)};
  NewGame(g, false);
  EXPECT_EQ(t.ui.asked.at(0), (RecordedMessage{"Set Beginning Bankroll", "Enter your beginning bankroll: "}));
  EXPECT_EQ(t.ui.offered[0], Currency(500));
  EXPECT_EQ(g.BankrollInitAmount, Currency(750));
  EXPECT_EQ(g.AmountInvested, Currency(750));

  // 3: carried, but at the bank limit it is asked for; the investment keeps
  // measuring from the first start.
  g.BankrollInitType = 3;
  g.Bankroll() = 9'999'999;
  t.ui.numberReplies = {Currency(300)};
  g.KeepRolling = true;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), Currency(300));
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(g.AmountInvested, Currency(750));

  // 2: carried and measured from; a negative carry is asked for too, and a
  // negative start allows a negative bankroll.
  g.BankrollInitType = 2;
  g.Bankroll() = 9'999'998;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), Currency(9'999'998));
  EXPECT_EQ(g.AmountInvested, Currency(9'999'998));
  EXPECT_EQ(t.ui.asked.size(), 2u);
  g.Bankroll() = -20;
  g.AllowNegativeBankroll = false;
  t.ui.numberReplies = {Currency(-40)};
  NewGame(g, false);
  EXPECT_EQ(t.ui.asked.size(), 3u);
  EXPECT_EQ(g.Bankroll(), Currency(-40));
  EXPECT_TRUE(g.AllowNegativeBankroll);

  // 0: the set amount, with nothing asked.
  g.BankrollInitType = 0;
  g.BankrollInitAmount = 250;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), Currency(250));
  EXPECT_EQ(t.ui.asked.size(), 3u);
}

TEST(StartUp, EndsWithANewGameOnGeneratorOne) {
  Game g;
  StartUp(g, "");
  EXPECT_EQ(g.RngChoice, 0);
  EXPECT_EQ(g.Bankroll(), Currency(500));
  EXPECT_EQ(g.AmountInvested, Currency(500));
  EXPECT_EQ(g.BetName[bet::kRail], "Rail");
  EXPECT_EQ(g.BetStatus[bet::Place(6)], 0);  // off on the come-out
  EXPECT_EQ(g.Payoff[bet::Place(6)].Win, Currency(7));
  EXPECT_GT(g.SpeedUnit, 0);
}
