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

// A player's action on one control: text typed and committed, an entry of a
// list chosen, or a click.
void Act(BetsPage& page, const char* control, const char* typed, int item) {
  const QString name = QString::fromLatin1(control);
  if (typed) {
    auto* edit = page.findChild<QLineEdit*>(name);
    edit->setText(QString::fromLatin1(typed));
    edit->setModified(true);
    emit edit->editingFinished();
  } else if (item >= 0) {
    auto* box = page.findChild<QComboBox*>(name);
    box->setCurrentIndex(item);
    emit box->activated(item);
  } else {
    page.findChild<QAbstractButton*>(name)->click();
  }
}

// The limits are taken as typed, even where the closing check will refuse
// them; a value no setting can hold is refused with a message.
TEST(BetsPage, EachControlGoesToTheTable) {
  struct Case {
    const char* control;
    const char* typed;  // nullptr: a list entry or a click
    int item;
    const char* setting;
    Currency stored;
    bool refused;
  };
  const Case cases[] = {
      {"txtMinPlacardBet", "25", -1, "TableMinimum", 25, false},
      {"txtMaxPlacardBet", "10", -1, "TableMaximum", 10, false},  // below the minimum
      {"txtOddsAllowed68", "3.5", -1, "OddsAllowed68", Currency::FromRaw(35'000), false},
      {"txtLayVigPct", "4", -1, "LayVigRate", Currency::FromRaw(400), false},
      {"txtBuyVigPct", "200", -1, "BuyVigRate", Currency::FromRaw(500), true},  // more than the bet
      {"txtMaxPropBetPayoff", "lots", -1, "MaxPropBetPayoff", 3000, true},
      {"optBarDont0", nullptr, -1, "BarNumber", 2, false},
      {"chkAllowPutBets", nullptr, -1, "AllowPutBets", 1, false},
      {"optBuyVig1", nullptr, -1, "ChargeAllBuy", 0, false},
      {"cmbRoundLayVig", nullptr, 2, "RoundLayVig", 2, false},
      {"cmbOddsCalcMethod", nullptr, 5, "OddsCalcMethod", 5, false},
  };
  ScreenDesk desk;
  BetsPage page(desk.table, desk.dialogs);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.control);
    desk.dialogs.messages.clear();
    Act(page, c.control, c.typed, c.item);
    EXPECT_EQ(Setting(desk.table, c.setting), c.stored);
    EXPECT_EQ(desk.dialogs.messages.size(), c.refused ? 1u : 0u);
  }
  EXPECT_EQ(page.findChild<QLineEdit*>(QStringLiteral("txtBuyVigPct"))->text(), QStringLiteral("5"));
  // The closing check names a control the page has.
  const ConfigCheck check = desk.table.ValidateConfiguration();
  EXPECT_EQ(check.control, "txtMaxPlacardBet");
  EXPECT_NE(page.findChild<QLineEdit*>(QString::fromStdString(check.control)), nullptr);
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
