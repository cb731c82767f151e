#include "ui/bets_page.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "autoplay/atm.h"
#include "config/settings_table.h"
#include "engine/game.h"
#include "ui/screen_desk_for_test.h"

namespace {

Currency Setting(const Table& table, const char* name) { return FindSettingRow(name)->get(table.State(), 0); }

void Type(BetsPage& page, const char* control, const char* text) {
  auto* edit = page.findChild<QLineEdit*>(QString::fromLatin1(control));
  ASSERT_NE(edit, nullptr) << control;
  edit->setText(QString::fromLatin1(text));
  edit->setModified(true);  // as a player's typing leaves it
  emit edit->editingFinished();
}

// The limits are taken as typed, even where the closing check will refuse
// them, and that check names a control the page has.
TEST(BetsPage, AmountsGoToTheTableAsTyped) {
  struct Case {
    const char* control;
    const char* typed;
    const char* setting;
    Currency stored;
    const char* shown;  // the field afterwards
  };
  const Case cases[] = {
      {"txtMinPlacardBet", "25", "TableMinimum", 25, "25"},
      {"txtMaxPlacardBet", "10", "TableMaximum", 10, "10"},  // below the minimum: the close refuses it
      {"txtMaxOddsBet", "1,500", "MaxOddsBet", 1500, "1,500"},
      {"txtOddsAllowed68", "3.5", "OddsAllowed68", Currency::FromRaw(35'000), "3.50"},
      {"txtLayVigPct", "4", "LayVigRate", Currency::FromRaw(400), "4"},
      {"txtBuyVigPct", "2.5", "BuyVigRate", Currency::FromRaw(250), "2.50"},
      {"txtBuyVigPct", "200", "BuyVigRate", Currency::FromRaw(250), "2.50"},  // above all of the money: refused
      {"txtMaxPropBetPayoff", "lots", "MaxPropBetPayoff", 3000, "3,000"},
  };
  ScreenDesk desk;
  BetsPage page(desk.table, desk.dialogs);
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.control) + " " + c.typed);
    Type(page, c.control, c.typed);
    EXPECT_EQ(Setting(desk.table, c.setting), c.stored);
    EXPECT_EQ(page.findChild<QLineEdit*>(QString::fromLatin1(c.control))->text(), QString::fromLatin1(c.shown));
  }
  EXPECT_EQ(desk.dialogs.messages.size(), 2u);  // the 200 % and the word
  const ConfigCheck check = desk.table.ValidateConfiguration();
  EXPECT_EQ(check.control, "txtMaxPlacardBet");
  EXPECT_NE(page.findChild<QLineEdit*>(QString::fromStdString(check.control)), nullptr);
}

TEST(BetsPage, ChoicesGoToTheTable) {
  struct Case {
    const char* control;
    int item;  // the combo entry chosen; -1 for a button clicked
    const char* setting;
    Currency stored;
  };
  const Case cases[] = {
      {"optBarDont0", -1, "BarNumber", 2},       {"optBarDont1", -1, "BarNumber", 12},
      {"chkAllowPutBets", -1, "AllowPutBets", 1}, {"optLayVig1", -1, "ChargeAllLay", 0},
      {"optBuyVig1", -1, "ChargeAllBuy", 0},      {"optBuyVig0", -1, "ChargeAllBuy", 1},
      {"cmbRoundLayVig", 1, "RoundLayVig", 1},    {"cmbRoundBuyVig", 2, "RoundBuyVig", 2},
      {"cmbOddsCalcMethod", 5, "OddsCalcMethod", 5},
  };
  ScreenDesk desk;
  BetsPage page(desk.table, desk.dialogs);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control);
    const QString name = QString::fromLatin1(c.control);
    if (c.item < 0) {
      page.findChild<QAbstractButton*>(name)->click();
    } else {
      auto* box = page.findChild<QComboBox*>(name);
      box->setCurrentIndex(c.item);
      emit box->activated(c.item);
    }
    EXPECT_EQ(Setting(desk.table, c.setting), c.stored);
  }
  const auto* methods = page.findChild<QComboBox*>(QStringLiteral("cmbOddsCalcMethod"));
  ASSERT_EQ(methods->count(), 6);
  EXPECT_EQ(methods->itemText(3), QStringLiteral("X Flat w/ Color Push"));
  EXPECT_TRUE(desk.dialogs.messages.empty());
}

// Charging the whole Lay vig up front would take more than the bankroll
// holds: the table refuses and the page shows the rule still in force.
TEST(BetsPage, AVigRuleThatWouldOverdrawIsRefusedAndShownAsBefore) {
  ScreenDesk desk;
  BetsPage page(desk.table, desk.dialogs);
  page.findChild<QAbstractButton*>(QStringLiteral("optLayVig1"))->click();
  ASSERT_TRUE(desk.table.Set("AllowNegativeBankroll", 0).Done());
  const Currency lay = 40;
  ASSERT_TRUE(desk.table.Atm(kAtmDeposit, desk.table.State().Bankroll() - lay).Done());
  ASSERT_TRUE(desk.table.Bet(1, lay).Done());  // Lay 4: all that is left
  desk.dialogs.messages.clear();  // the notice of the vig to come

  page.findChild<QAbstractButton*>(QStringLiteral("optLayVig0"))->click();
  ASSERT_EQ(desk.dialogs.messages.size(), 1u);
  EXPECT_EQ(desk.dialogs.messages[0].title, "Lay Bet Vig");
  EXPECT_FALSE(desk.table.State().ChargeAllLay);
  EXPECT_TRUE(page.findChild<QAbstractButton*>(QStringLiteral("optLayVig1"))->isChecked());
  EXPECT_FALSE(page.findChild<QAbstractButton*>(QStringLiteral("optLayVig0"))->isChecked());
}

}  // namespace
