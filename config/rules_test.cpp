#include "config/rules.h"

#include <gtest/gtest.h>

#include "engine/place_test_support.h"

namespace {

using place_test::Table;

Currency Money(double v) { return Currency::FromDouble(v); }

TEST(Vig, BuyVigRoundsByModeAndNeverBelowOneCheck) {
  Table t;  // 5%, chip 1
  for (int mode : {0, 1, 2}) {
    t.g.RoundBuyVig = mode;
    EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(4), 10), 1) << mode;  // 0.50 to 0 or 1, raised to 1
  }
  struct { int amount; int mode; double vig; } cases[] = {
      {30, 0, 1}, {30, 1, 1}, {30, 2, 2},  // 1.50: a half goes down normally
      {50, 0, 2}, {72, 0, 4}, {72, 1, 3}, {72, 2, 4}, {60, 2, 3},
  };
  for (const auto& c : cases) {
    t.g.RoundBuyVig = c.mode;
    EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), c.amount), Money(c.vig)) << c.amount << " mode " << c.mode;
  }
  t.g.RoundBuyVig = 0;
  EXPECT_EQ(FigureBuyVig(t.g, bet::Place(6), 100), 0);
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 0), 0);
  t.g.BuyVigRate = 0;
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 100), 0);  // no vig, no one-check floor
  t.g.BuyVigRate = Money(0.05);
  t.g.BetAmount[bet::kFirstChip] = Money(0.25);
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 10), Money(0.5));
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 1), Money(0.25));
}

TEST(Vig, LayVigIsTakenOnWhatTheLayWins) {
  Table t;
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(4), 40), 1);  // wins 20 at 1 to 2
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(6), 60), 2);  // 2.50: the half goes down
  t.g.RoundLayVig = 2;
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(6), 60), 3);
  EXPECT_EQ(FigureLayVig(t.g, bet::Buy(4), 40), 0);
  t.g.LayVigRate = 0;
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(4), 40), 0);
  t.g.LayVigRate = Money(-0.05);
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(4), 40), 0);  // a negative vig is none
}

TEST(Vig, RefigureVigsRebuildsTheTotal) {
  Table t;
  t.g.BetAmount[bet::Buy(4)] = 20;
  t.g.BetAmount[bet::Lay(4)] = 40;
  t.g.BetAmount[bet::kField] = 5;
  RefigureVigs(t.g);
  EXPECT_EQ(t.g.BuyVigOnBet[0], 1);
  EXPECT_EQ(t.g.LayVigOnBet[0], 1);
  EXPECT_EQ(t.g.TotalOnTable, 67);
  t.g.ChargeAllLay = false;
  RefigureVigs(t.g);
  EXPECT_EQ(t.g.LayVigOnBet[0], 1);  // still figured, paid on a win
  EXPECT_EQ(t.g.TotalOnTable, 66);
}

TEST(Vig, ChangeVigRuleIsRefusedWhenUpFrontVigOutrunsTheBankroll) {
  const std::string refusal =
      "You're not allowed to change this setting at this time since the added up-front vig will cause the "
      "amount \r"
      "of your current bets to exceed your current bankroll.\r"
      "You can remedy this by doing one or more of the following:\r"
      " -- Check \"Allow negative bankroll amounts\", or\r"
      " -- Make a withdrawal from the ATM, or\r"
      " -- Win some more money, or\r"
      " -- Reduce the amount of your current bets.";
  Table t;
  t.g.AllowNegativeBankroll = false;
  t.g.ChargeAllBuy = false;
  t.g.Bankroll() = 20;
  t.g.BetAmount[bet::Buy(4)] = 20;
  RefigureVigs(t.g);
  ASSERT_EQ(t.g.TotalOnTable, 20);

  EXPECT_FALSE(ChangeVigRule(t.g, VigRule::ChargeAllBuy, kTrue));
  EXPECT_FALSE(t.g.ChargeAllBuy);
  EXPECT_EQ(t.g.TotalOnTable, 20);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last().title, "Buy Bet Vig");
  EXPECT_EQ(t.Last().text, refusal);

  t.g.Bankroll() = 21;
  EXPECT_TRUE(ChangeVigRule(t.g, VigRule::ChargeAllBuy, kTrue));
  EXPECT_TRUE(t.g.ChargeAllBuy);
  EXPECT_EQ(t.g.TotalOnTable, 21);

  // Rounding up raises the up-front vig of 30 from 1 to 2.
  t.g.BetAmount[bet::Buy(4)] = 30;
  RefigureVigs(t.g);
  t.g.Bankroll() = 31;
  EXPECT_FALSE(ChangeVigRule(t.g, VigRule::RoundBuyVig, 2));
  EXPECT_EQ(t.g.RoundBuyVig, 0);
  EXPECT_EQ(t.g.BuyVigOnBet[0], 1);

  t.g.BetAmount[bet::Lay(4)] = 40;
  t.g.ChargeAllLay = false;
  RefigureVigs(t.g);
  t.g.Bankroll() = t.g.TotalOnTable;
  EXPECT_FALSE(ChangeVigRule(t.g, VigRule::ChargeAllLay, kTrue));
  EXPECT_EQ(t.Last().title, "Lay Bet Vig");

  t.g.AllowNegativeBankroll = true;
  EXPECT_TRUE(ChangeVigRule(t.g, VigRule::RoundLayVig, 7));  // unknown mode: normally
  EXPECT_EQ(t.g.RoundLayVig, 0);
  EXPECT_EQ(t.ui.messages.size(), 3u);
}

TEST(Rules, UncheckingAllowNegativeBankroll) {
  Table t;
  t.g.Bankroll() = -5;
  EXPECT_FALSE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_TRUE(t.g.AllowNegativeBankroll);
  EXPECT_EQ(t.Last().title, "Bankroll");
  EXPECT_EQ(t.Last().text,
            "Before you can un-check this box you must first establish a non-negative bankroll by either:\r"
            " -- Winning some more money, or\r"
            " -- Making a withdrawal from the ATM.");

  t.g.Bankroll() = 10;
  t.g.TotalOnTable = Money(25.5);
  EXPECT_FALSE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_TRUE(t.g.AllowNegativeBankroll);
  EXPECT_EQ(t.Last().title, "Bankroll");
  EXPECT_EQ(t.Last().text,
            "The amount of your current bets exceeds your current bankroll.  "
            "Therefore, before you can un-check this box you must either:\r"
            " -- Reduce the amount of your current bets, or \r"
            " -- Make at least a $15.50 withdrawal from the ATM.");

  t.g.TotalOnTable = 10;
  EXPECT_TRUE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_FALSE(t.g.AllowNegativeBankroll);
  t.g.Bankroll() = -100;
  EXPECT_TRUE(SetAllowNegativeBankroll(t.g, true));
  EXPECT_EQ(t.ui.messages.size(), 2u);
}

TEST(Rules, ValidateConfigurationStopsAtTheFirstFault) {
  Table t;
  EXPECT_TRUE(ValidateConfiguration(t.g).ok);
  EXPECT_TRUE(t.ui.messages.empty());

  auto expectFault = [&](const ConfigCheck& c, const std::string& title, const std::string& text,
                         const std::string& tab, const std::string& control, int index) {
    EXPECT_FALSE(c);
    EXPECT_EQ(c.tab, tab);
    EXPECT_EQ(c.control, control);
    EXPECT_EQ(c.controlIndex, index);
    ASSERT_FALSE(t.ui.messages.empty());
    EXPECT_EQ(t.Last().title, title);
    EXPECT_EQ(t.Last().text, text);
  };

  t.g.BetAmount[97] = 0;
  expectFault(ValidateConfiguration(t.g), "Check Values", "Check values must be greater than zero.", "Checks/Dice",
              "txtDenomination", 2);
  t.g.BetAmount[97] = 4;
  expectFault(ValidateConfiguration(t.g), "Check Values",
              "Checks must be listed in ascending order with the \r"
              "smallest valued check in the leftmost position.",
              "Checks/Dice", "txtDenomination", 2);

  // 0.25, 1, 5 divide by the smallest; 1.1 does not.
  t.g.BetAmount[95] = Money(0.25);
  t.g.BetAmount[96] = 1;
  t.g.BetAmount[97] = 5;
  t.g.TableMinimum = Money(0.25);
  EXPECT_TRUE(ValidateConfiguration(t.g));
  t.g.BetAmount[97] = Money(1.1);
  expectFault(ValidateConfiguration(t.g), "Check Values",
              "All checks must be wholly divisible by the smallest check.", "Checks/Dice", "txtDenomination", 2);
  t.g.BetAmount[95] = 1;
  t.g.BetAmount[96] = 5;
  t.g.BetAmount[97] = 25;

  t.g.BetAmount[95] = 5;
  t.g.BetAmount[96] = 5;
  t.g.TableMinimum = 2;
  expectFault(ValidateConfiguration(t.g), "Configuration Limits",
              "The minimum bet cannot be less than\rthe smallest check denomination of 5", "Bets",
              "txtMinPlacardBet", -1);
  t.g.TableMinimum = 10;
  t.g.TableMaximum = 5;
  expectFault(ValidateConfiguration(t.g), "Configuration Limits",
              "The maximum bet must be greater than\ror equal to the minimum bet.", "Bets", "txtMaxPlacardBet", -1);
  t.g.TableMaximum = 10;  // equal is fine
  const size_t shown = t.ui.messages.size();
  EXPECT_TRUE(ValidateConfiguration(t.g));
  EXPECT_EQ(t.ui.messages.size(), shown);
}

}  // namespace
