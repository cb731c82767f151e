#include "ui/bankroll_page.h"

#include <QCheckBox>
#include <QLabel>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "ui/config_page_for_test.h"
#include "ui/screen_desk_for_test.h"

namespace {

QString Shown(BankrollPage& page, const char* label) { return Control<QLabel>(page, label)->text(); }

// With negative bankrolls off and the Configure window open, a deposit that
// would leave the bets uncovered is cut, and the table says so.
TEST(BankrollPage, DepositIsCutToWhatTheBetsLeave) {
  ScreenDesk desk;
  Table& t = desk.table;
  t.SetConfigScreenOpen(true);
  t.Atm(kAtmDeposit, t.State().Bankroll() - 100);  // bankroll 100
  ASSERT_TRUE(t.Bet(bet::kPassLine, 60).Done());
  ASSERT_TRUE(t.Set("AllowNegativeBankroll", 0).Done());
  const Currency invested = t.State().AmountInvested;
  BankrollPage page(t, desk.dialogs);

  Type(page, "txtAddSub", "50");
  Click(page, "cmdAddSub1");

  EXPECT_EQ(t.State().AtmAmount, 50);
  EXPECT_EQ(t.State().Bankroll(), 60);
  EXPECT_EQ(t.State().AmountInvested, invested - 40);
  ASSERT_EQ(desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(desk.dialogs.messages[0].title, "Dicemill");
  EXPECT_NE(desk.dialogs.messages[0].text.find("Allowed amount:  $40"), std::string::npos);
  EXPECT_EQ(Shown(page, "lblCurrentBankroll"), "$60");
}

TEST(BankrollPage, AnAtmAmountRefusedMovesNothing) {
  ScreenDesk desk;
  BankrollPage page(desk.table, desk.dialogs);
  const Currency bankroll = desk.table.State().Bankroll();
  Control<QLineEdit>(page, "txtAddSub")->setText("lots");
  Control<QLineEdit>(page, "txtAddSub")->setModified(true);
  Click(page, "cmdAddSub0");
  EXPECT_EQ(desk.table.State().Bankroll(), bankroll);
  ASSERT_EQ(desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(desk.dialogs.messages[0].text, "Please enter an amount from 0 to 9,999,999.");
  EXPECT_EQ(Control<QLineEdit>(page, "txtAddSub")->text(), "500");
}

TEST(BankrollPage, UntickingAllowNegativeIsRefusedWhileTheBankrollIsNegative) {
  ScreenDesk desk;
  desk.table.Atm(kAtmDeposit, desk.table.State().Bankroll() + 100);  // bankroll -100
  BankrollPage page(desk.table, desk.dialogs);
  Click(page, "chkAllowNegBankroll");
  ASSERT_EQ(desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(desk.dialogs.messages[0].title, "Bankroll");
  EXPECT_TRUE(desk.table.State().AllowNegativeBankroll);
  EXPECT_TRUE(Control<QCheckBox>(page, "chkAllowNegBankroll")->isChecked());
  EXPECT_EQ(Shown(page, "lblCurrentBankroll"), "-$100");
}

TEST(BankrollPage, NetIsWordedAndColouredByItsSign) {
  const struct {
    Currency invested;  // against a bankroll of 500
    const char* word;
    const char* net;
    const char* colour;
  } cases[] = {
      {400, "Won:", "$100", "#0000ff"},
      {600, "Lost:", "-$100", "#ff0000"},
      {500, "Won/Lost:", "$0", "#000000"},
  };
  for (const auto& c : cases) {
    ScreenDesk desk;
    desk.table.Atm(kAtmWithdraw, 500 - desk.table.State().Bankroll());
    desk.table.Set("AmountInvested", c.invested);
    BankrollPage page(desk.table, desk.dialogs);
    EXPECT_EQ(Shown(page, "lblWonLost"), c.word);
    EXPECT_EQ(Shown(page, "lblNet"), c.net);
    EXPECT_TRUE(Control<QLabel>(page, "lblNet")->styleSheet().contains(c.colour)) << c.word;
  }
}

TEST(BankrollPage, NewGameChoicesGoToTheGame) {
  ScreenDesk desk;
  BankrollPage page(desk.table, desk.dialogs);
  Click(page, "optBankrollInitType3");
  Type(page, "txtBankrollInitAmount", "1,250");
  EXPECT_EQ(desk.table.State().BankrollInitType, 3);
  EXPECT_EQ(desk.table.State().BankrollInitAmount, 1250);
  EXPECT_TRUE(desk.dialogs.messages.empty());

  for (const char* bad : {"lots", "20,000,000"}) {
    Type(page, "txtBankrollInitAmount", bad);
    EXPECT_EQ(desk.table.State().BankrollInitAmount, 1250) << bad;
    EXPECT_EQ(Control<QLineEdit>(page, "txtBankrollInitAmount")->text(), "1,250") << bad;
  }
  ASSERT_EQ(desk.dialogs.messages.size(), 2u);
  EXPECT_EQ(desk.dialogs.messages[1].text, "Please enter an amount from -9,999,999 to 9,999,999.");
}

}  // namespace
