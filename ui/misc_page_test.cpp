// The Misc. tab: each notice box owns its bit of the mask, and the roll
// rate is taken in any unit, refused out of limits and shown back.

#include "ui/misc_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "engine/notices.h"
#include "ui/screen_desk_for_test.h"

namespace {

TEST(MiscPage, NoticeBoxesWriteTheirBits) {
  ScreenDesk desk;
  MiscPage page(desk.table, desk.dialogs);
  const struct {
    const char* caption;
    int bit;
  } boxes[] = {{" Actions not allowed", 1}, {" Betting limits reached", 2}, {" Charges and/or change", 4},
               {" Auto-Bet messages normal play", 8}, {" Auto-Bet messages Hyper-Drive", 16}};
  for (int i = 0; i < 5; ++i) {
    auto* box = page.findChild<QCheckBox*>(QStringLiteral("chkNotify%1").arg(i));
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text().toStdString(), boxes[i].caption);
    const bool was = (desk.table.State().NoticeMask & boxes[i].bit) != 0;
    EXPECT_EQ(box->isChecked(), was) << i;
    box->click();
    EXPECT_EQ(desk.table.State().NoticeMask, kNoticeDefault ^ boxes[i].bit) << i;
    box->click();
    EXPECT_EQ(desk.table.State().NoticeMask, kNoticeDefault) << i;
  }
}

TEST(MiscPage, RollRateInEveryUnitAndOutOfLimits) {
  ScreenDesk desk;
  MiscPage page(desk.table, desk.dialogs);
  auto* rate = page.findChild<QLineEdit*>(QStringLiteral("txtRollsPerHour"));
  auto* unit = page.findChild<QComboBox*>(QStringLiteral("cmbRollsPerTime"));
  ASSERT_TRUE(rate && unit);
  ASSERT_EQ(unit->count(), 6);
  EXPECT_EQ(unit->itemText(5), QStringLiteral("Secs / roll"));
  EXPECT_EQ(rate->text(), QStringLiteral("100"));
  const struct {
    int unit;
    const char* typed;
    const char* refusal;  // the message shown, or nullptr
    Currency rollsPerHour;
    const char* shown;  // in the same unit afterwards
  } cases[] = {
      {1, "120", nullptr, 7200, "120"},
      {4, "0.5", nullptr, 120, ".50"},
      {0, "0", "Rolls / hr must be greater than zero.", 120, "120"},
      {1, "700,000", "The maximum simulated Rolls / min rate is 600,000.", 120, "2"},
      {5, "abc", "Secs / roll must be greater than zero.", 120, "30"},
      {3, "10,000", nullptr, Currency::FromRaw(1), "10,000"},
      {2, "10,001", "The maximum simulated Rolls / sec rate is 10,000.", Currency::FromRaw(1), "<.0001"},
  };
  for (const auto& c : cases) {
    desk.dialogs.messages.clear();
    unit->setCurrentIndex(c.unit);
    emit unit->activated(c.unit);
    rate->setText(QLatin1String(c.typed));
    emit rate->editingFinished();
    if (c.refusal) {
      ASSERT_EQ(desk.dialogs.messages.size(), 1u) << c.typed;
      EXPECT_EQ(desk.dialogs.messages[0].title, "Sim Roll Rate Out Of Limits");
      EXPECT_EQ(desk.dialogs.messages[0].text, c.refusal);
    } else {
      EXPECT_TRUE(desk.dialogs.messages.empty()) << c.typed;
    }
    EXPECT_EQ(desk.table.State().SimRollRate, c.rollsPerHour) << c.typed;
    EXPECT_EQ(rate->text().toStdString(), c.shown) << c.typed;
  }
}

}  // namespace
