#include "engine/rules.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

TEST(Vig, RoundsByModeAndNeverBelowOneCheck) {
  TestTable t;  // 5%, chip 1
  // Buy 10: 0.50 goes to 0 or 1 and is raised to 1. A half goes down normally.
  const struct { int id, amount, mode; double vig; } cases[] = {
      {bet::Buy(4), 10, 0, 1}, {bet::Buy(4), 10, 1, 1}, {bet::Buy(4), 10, 2, 1}, {bet::Buy(6), 30, 0, 1},
      {bet::Buy(6), 30, 1, 1}, {bet::Buy(6), 30, 2, 2},  {bet::Buy(6), 50, 0, 2}, {bet::Buy(6), 72, 0, 4},
      {bet::Buy(6), 72, 1, 3}, {bet::Buy(6), 72, 2, 4},  {bet::Buy(6), 60, 2, 3}, {bet::Place(6), 100, 0, 0},
      {bet::Buy(6), 0, 0, 0},
      // A Lay pays on what it would win: 20 at 1 to 2, 50 at 5 to 6.
      {bet::Lay(4), 40, 0, 1}, {bet::Lay(6), 60, 0, 2}, {bet::Lay(6), 60, 2, 3}};
  for (const auto& c : cases) {
    t.g.RoundBuyVig = t.g.RoundLayVig = c.mode;
    const Currency vig = bet::IsLay(c.id) ? FigureLayVig(t.g, c.id, c.amount) : FigureBuyVig(t.g, c.id, c.amount);
    EXPECT_EQ(vig, Money(c.vig)) << c.id << " of " << c.amount << " mode " << c.mode;
  }
  EXPECT_EQ(FigureLayVig(t.g, bet::Buy(4), 40), 0);
  // No vig, no one-check floor; a negative Lay vig is none.
  t.g.RoundBuyVig = t.g.RoundLayVig = 0;
  t.g.BuyVigRate = t.g.LayVigRate = 0;
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 100), 0);
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(4), 40), 0);
  t.g.LayVigRate = Money(-0.05);
  EXPECT_EQ(FigureLayVig(t.g, bet::Lay(4), 40), 0);
  t.g.BuyVigRate = Money(0.05);
  t.g.BetAmount.Set(bet::kFirstChip, Money(0.25));
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 10), Money(0.5));
  EXPECT_EQ(FigureBuyVig(t.g, bet::Buy(6), 1), Money(0.25));
}

TEST(Vig, RefigureVigsRebuildsTheTotal) {
  TestTable t;
  t.g.BetAmount.Set(bet::Buy(4), 20);
  t.g.BetAmount.Set(bet::Lay(4), 40);
  t.g.BetAmount.Set(bet::kField, 5);
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
      "You're not allowed to change this setting at this time since the added up-front vig will cause the amount \r"
      "of your current bets to exceed your current bankroll.\r"
      "You can remedy this by doing one or more of the following:\r"
      " -- Check \"Allow negative bankroll amounts\", or\r"
      " -- Make a withdrawal from the ATM, or\r"
      " -- Win some more money, or\r"
      " -- Reduce the amount of your current bets.";
  TestTable t;
  t.g.AllowNegativeBankroll = false;
  t.g.ChargeAllBuy = false;
  t.g.Bankroll() = 20;
  t.g.BetAmount.Set(bet::Buy(4), 20);
  RefigureVigs(t.g);
  EXPECT_FALSE(ChangeVigRule(t.g, VigRule::ChargeAllBuy, kTrue));
  EXPECT_FALSE(t.g.ChargeAllBuy);
  EXPECT_EQ(t.g.TotalOnTable, 20);
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last(), (RecordedMessage{"Buy Bet Vig", refusal}));
  t.g.Bankroll() = 21;
  EXPECT_TRUE(ChangeVigRule(t.g, VigRule::ChargeAllBuy, kTrue));
  EXPECT_TRUE(t.g.ChargeAllBuy);
  EXPECT_EQ(t.g.TotalOnTable, 21);

  // Rounding up raises the up-front vig of 30 from 1 to 2.
  t.g.BetAmount.Set(bet::Buy(4), 30);
  RefigureVigs(t.g);
  t.g.Bankroll() = 31;
  EXPECT_FALSE(ChangeVigRule(t.g, VigRule::RoundBuyVig, 2));
  EXPECT_EQ(t.g.RoundBuyVig, 0);
  EXPECT_EQ(t.g.BuyVigOnBet[0], 1);

  t.g.BetAmount.Set(bet::Lay(4), 40);
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
  TestTable t;
  t.g.Bankroll() = -5;
  EXPECT_FALSE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_TRUE(t.g.AllowNegativeBankroll);
  EXPECT_EQ(t.Last().title, "Bankroll");
  EXPECT_EQ(t.Last().text,
            "Before you can un-check this box you must first establish a non-negative bankroll by either:\r"
            " -- Winning some more money, or\r -- Making a withdrawal from the ATM.");
  t.g.Bankroll() = 10;
  t.g.TotalOnTable = Money(25.5);
  EXPECT_FALSE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_TRUE(t.g.AllowNegativeBankroll);
  EXPECT_EQ(t.Last().text,
            "The amount of your current bets exceeds your current bankroll.  "
            "Therefore, before you can un-check this box you must either:\r"
            " -- Reduce the amount of your current bets, or \r -- Make at least a $15.50 withdrawal from the ATM.");
  t.g.TotalOnTable = 10;
  EXPECT_TRUE(SetAllowNegativeBankroll(t.g, false));
  EXPECT_FALSE(t.g.AllowNegativeBankroll);
  t.g.Bankroll() = -100;
  EXPECT_TRUE(SetAllowNegativeBankroll(t.g, true));
  EXPECT_EQ(t.ui.messages.size(), 2u);
}

TEST(Rules, ValidateConfigurationStopsAtTheFirstFault) {
  TestTable t;
  EXPECT_TRUE(ValidateConfiguration(t.g).ok);
  const std::string checks = "Check Values", limits = "Configuration Limits";
  const struct { double chips[3], minimum, maximum; std::string title, text, tab, control; int index; } cases[] = {
      {{1, 5, 0}, 1, 1000, checks, "Check values must be greater than zero.", "Checks/Dice", "txtDenomination", 2},
      {{1, 5, 4}, 1, 1000, checks,
       "Checks must be listed in ascending order with the \rsmallest valued check in the leftmost position.",
       "Checks/Dice", "txtDenomination", 2},
      {{0.25, 1, 5}, 0.25, 1000, "", "", "", "", -1},  // divisible, and a minimum of one check is fine
      {{0.25, 1, 1.1}, 1, 1000, checks, "All checks must be wholly divisible by the smallest check.", "Checks/Dice",
       "txtDenomination", 2},
      {{5, 5, 25}, 2, 1000, limits, "The minimum bet cannot be less than\rthe smallest check denomination of 5",
       "Bets", "txtMinPlacardBet", -1},
      {{5, 5, 25}, 10, 5, limits, "The maximum bet must be greater than\ror equal to the minimum bet.", "Bets",
       "txtMaxPlacardBet", -1},
      {{5, 5, 25}, 10, 10, "", "", "", "", -1},  // equal is fine
  };
  for (const auto& c : cases) {
    for (int i = 0; i < 3; ++i) t.g.BetAmount.Set(bet::ChipSlot(i + 1), Money(c.chips[i]));
    t.g.TableMinimum = Money(c.minimum);
    t.g.TableMaximum = Money(c.maximum);
    t.ui.messages.clear();
    const ConfigCheck check = ValidateConfiguration(t.g);
    EXPECT_EQ(check.ok, c.title.empty()) << c.text;
    EXPECT_EQ(check.tab, c.tab);
    EXPECT_EQ(check.control, c.control);
    EXPECT_EQ(check.controlIndex, c.index);
    EXPECT_EQ(t.ui.messages.size(), c.title.empty() ? 0u : 1u) << c.text;
    EXPECT_EQ(t.ui.messages.empty() ? RecordedMessage{} : t.Last(), (RecordedMessage{c.title, c.text}));
  }
}

}  // namespace
