#include "engine/new_game.h"

#include <gtest/gtest.h>

#include "engine/test_support.h"

TEST(NewGame, ClearsTheTableAndSetsTheBankrollByItsType) {
  Table t;
  Game& g = t.g;
  g.BetAmount[bet::kField] = g.TotalOnTable = 5;
  g.BetAmount[101] = 7;
  g.RollCounts[0] = g.HandStats[0] = 3;
  g.RollCountStop = 4;
  g.Bankroll() = 9'999'999;
  g.AmountInvested = 100;
  g.BankrollInitType = 3;  // carried, but at the bank limit it is asked for
  t.ui.numberReplies = {Currency(300)};
  g.KeepRolling = true;
  NewGame(g, true);
  EXPECT_EQ(t.ui.asked.at(0), (RecordedMessage{"Set Beginning Bankroll", "Enter your beginning bankroll: "}));
  EXPECT_EQ(t.ui.offered[0], Currency(500));
  EXPECT_EQ(g.Bankroll(), Currency(300));
  EXPECT_EQ(g.BankrollInitAmount, Currency(300));
  EXPECT_FALSE(g.KeepRolling);
  EXPECT_EQ(g.AmountInvested, Currency(100));  // type 3 keeps measuring from the first start
  EXPECT_EQ(g.BetAmount[bet::kField] + g.TotalOnTable + g.RollCounts[0] + g.HandStats[0], 0);
  EXPECT_EQ(g.BetAmount[101], Currency(7));
  EXPECT_EQ(g.RollCountLeft, 4);

  // Type 2 carries the bankroll and measures from it; type 0 starts afresh,
  // and a negative start allows a negative bankroll.
  g.BankrollInitType = 2;
  g.Bankroll() = 9'999'998;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), Currency(9'999'998));
  EXPECT_EQ(g.AmountInvested, Currency(9'999'998));
  EXPECT_EQ(g.BetAmount[101], Currency(0));
  g.BankrollInitType = 0;
  g.BankrollInitAmount = -20;
  g.AllowNegativeBankroll = false;
  NewGame(g, false);
  EXPECT_EQ(g.Bankroll(), Currency(-20));
  EXPECT_TRUE(g.AllowNegativeBankroll);
  EXPECT_EQ(t.ui.asked.size(), 1u);
}
