#include "autoplay/bet_handling.h"

#include <gtest/gtest.h>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/settle.h"
#include "engine/test_support.h"

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

struct Table {
  Game g;
  RecordingFrontEnd ui;
  Table() {
    FillDefaults(g);
    g.Ui = &ui;
    g.Bankroll() = 1000;
  }
  void Bet(int id, Currency amount) {
    g.BetAmount[id] = amount;
    g.TotalOnTable += amount;
    g.BetAtRollStart[id] = amount;
    g.BetStatus[id] = 1;
  }
  void Dice(int die1, int die2, int pointBefore) {
    g.Die1 = die1;
    g.Die2 = die2;
    g.DiceTotal = die1 + die2;
    g.PointBeforeRoll = g.Point = pointBefore;
  }
};

constexpr int kPlace6 = 33;

// A $12 Place 6 winning $14 under the given option or button.
Currency AfterPlace6Win(int wonBetAction, std::optional<int> button = std::nullopt) {
  Table t;
  t.g.WonBetAction = wonBetAction;
  t.ui.settleReplies.push_back(button);
  t.Bet(kPlace6, 12);
  t.Dice(2, 4, 5);
  SettleBet(t.g, 1, kPlace6);
  EXPECT_EQ(t.g.Bankroll(), Currency(1014));
  EXPECT_EQ(t.g.TotalOnTable, t.g.BetAmount[kPlace6]);
  EXPECT_EQ(t.ui.notices.size(), wonBetAction == 0 ? 1u : 0u);
  EXPECT_EQ(t.g.NoticeMask, 15);
  return t.g.BetAmount[kPlace6];
}

// A $10 Field bet losing on a 5 under the given option or button.
Currency AfterFieldLoss(int handleLosingBets, Currency fieldWin, Currency fieldPer,
                        std::optional<int> button = std::nullopt) {
  Table t;
  t.g.HandleLosingBets = handleLosingBets;
  t.g.FieldPayoff[5] = {fieldWin, -1, fieldPer};
  t.ui.settleReplies.push_back(button);
  t.Bet(bet::kField, 10);
  t.Dice(1, 4, 0);
  SettleBet(t.g, 1, bet::kField);
  EXPECT_EQ(t.g.TotalOnTable, t.g.BetAmount[bet::kField]);
  EXPECT_EQ(t.g.NoticeMask, 15);
  return t.g.BetAmount[bet::kField];
}

}  // namespace

TEST(WonBetHandling, ByOptionAndByButton) {
  EXPECT_EQ(AfterPlace6Win(1), Currency(0));   // Take Bet and Winnings
  EXPECT_EQ(AfterPlace6Win(2), Currency(12));  // Same Bet - Take Winnings
  for (int later = 3; later <= 7; ++later) EXPECT_EQ(AfterPlace6Win(later), Currency(12)) << later;
  EXPECT_EQ(AfterPlace6Win(0, 0), Currency(0));
  EXPECT_EQ(AfterPlace6Win(0, 1), Currency(12));
  EXPECT_EQ(AfterPlace6Win(0, std::nullopt), Currency(12));
  for (int later = 2; later <= 6; ++later) EXPECT_EQ(AfterPlace6Win(0, later), Currency(12)) << later;
}

TEST(WonBetHandling, SameBetIsTheAmountBeforeTheRoll) {
  Table t;
  t.g.WonBetAction = 2;
  t.Bet(kPlace6, 12);
  t.g.BetAmount[kPlace6] = 18;  // raised after the dice went out
  t.g.TotalOnTable = 18;
  t.Dice(2, 4, 5);
  SettleBet(t.g, 1, kPlace6);
  EXPECT_EQ(t.g.Bankroll(), Currency(1021));
  EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(12));
  EXPECT_EQ(t.g.TotalOnTable, Currency(12));
  EXPECT_FALSE(t.ui.redrawn.empty());
}

TEST(WonBetHandling, ReplacedBuyHasItsVigFiguredAnew) {
  Table t;
  t.g.WonBetAction = 2;
  t.Bet(bet::Buy(4), 20);
  t.g.BuyVigOnBet[0] = 1;
  t.g.TotalOnTable += 1;
  t.Dice(1, 3, 6);
  SettleBet(t.g, 1, bet::Buy(4));
  EXPECT_EQ(t.g.Bankroll(), Currency(1039));
  EXPECT_EQ(t.g.NetPayoff, Currency(40));  // the winnings before the vig
  EXPECT_EQ(t.g.BetAmount[bet::Buy(4)], Currency(20));
  EXPECT_EQ(t.g.TotalOnTable, Currency(20) + t.g.BuyVigOnBet[0]);
}

TEST(LostBetHandling, ByOption) {
  EXPECT_EQ(AfterFieldLoss(1, -1, 1), Currency(0));   // No Bet/Take Remainder
  EXPECT_EQ(AfterFieldLoss(2, -1, 1), Currency(0));   // nothing remains
  EXPECT_EQ(AfterFieldLoss(2, -1, 2), Currency(5));   // half lost: $5 remains
  EXPECT_EQ(AfterFieldLoss(1, -1, 2), Currency(0));
  EXPECT_EQ(AfterFieldLoss(3, -1, 1), Currency(10));  // Same Bet
  for (int later = 4; later <= 7; ++later) EXPECT_EQ(AfterFieldLoss(later, -1, 1), Currency(0)) << later;
}

TEST(LostBetHandling, ByNotice) {
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, std::nullopt), Currency(0));
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, 0), Currency(0));
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, 1), Currency(5));
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, 2), Currency(10));
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, 3), Currency(0));
  EXPECT_EQ(AfterFieldLoss(0, -1, 2, 4), Currency(0));

  Table t;
  t.g.HandleLosingBets = 0;
  t.g.FieldPayoff[5] = {-1, -1, 2};
  t.Bet(bet::kField, 10);
  t.Dice(1, 4, 0);
  SettleBet(t.g, 1, bet::kField);
  ASSERT_EQ(t.ui.notices.size(), 1u);
  const SettleNotice& n = t.ui.notices[0];
  EXPECT_EQ(n.title, "Bet Lost");
  EXPECT_FALSE(n.won);
  EXPECT_EQ(n.rows, (Rows{{"Field bet:", "$10"}, {"Loss at -1 to 2:", "$-5"}, {"Net loss: ", "$-5"},
                          {"Remainder: ", "$5"}}));
  EXPECT_EQ(n.buttons, (std::vector<std::string>{"No Bet/Take Remainder", "Bet Remainder", "Same Bet",
                                                 "Press 1 &Unit - Add $5 to Bet", "Double Bet"}));
}

TEST(LostBetHandling, NoticeOnlyForABetThatStoodAtTheTopOfTheRoll) {
  Table t;
  t.g.HandleLosingBets = 0;
  t.Bet(kPlace6, 6);
  t.g.BetAtRollStart[kPlace6] = 0;  // placed after the dice went out
  t.Dice(3, 4, 5);
  SettleBet(t.g, -1, kPlace6);
  EXPECT_TRUE(t.ui.notices.empty());
  EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(0));

  Table u;
  u.g.HandleLosingBets = 0;
  u.g.HyperDriveOn = true;
  u.Bet(kPlace6, 6);
  u.Dice(3, 4, 5);
  SettleBet(u.g, -1, kPlace6);
  EXPECT_TRUE(u.ui.notices.empty());
}

TEST(LostBetHandling, LayVigOnTheLostNotice) {
  Table t;
  t.g.HandleLosingBets = 0;
  t.ui.settleReplies.push_back(2);  // Same Bet
  t.Bet(bet::Lay(4), 40);
  t.g.LayVigOnBet[0] = 1;
  t.g.TotalOnTable += 1;
  t.Dice(2, 2, 6);
  SettleBet(t.g, -1, bet::Lay(4));
  EXPECT_EQ(t.g.Bankroll(), Currency(959));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].rows, (Rows{{"Lay 4 bet:", "$40"},
                                        {"Loss at -1 to 1:", "$-40"},
                                        {"-5& vig:", "$-1"},
                                        {"Net loss: ", "$-41"}}));
  EXPECT_EQ(t.g.NetPayoff, Currency(-40));
  EXPECT_EQ(t.g.BetAmount[bet::Lay(4)], Currency(40));
  EXPECT_EQ(t.g.TotalOnTable, Currency(40) + t.g.LayVigOnBet[0]);
}
