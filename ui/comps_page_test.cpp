// The Comps tab writes each of its settings, and a rate beyond 0..100% is
// refused and shown back as it was.

#include "ui/comps_page.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

#include "engine/game.h"
#include "ui/screen_desk_for_test.h"

namespace {

TEST(CompsPage, EveryControlWritesItsSetting) {
  ScreenDesk desk;
  CompsPage page(desk.table, desk.dialogs);
  for (const char* name : {"chkCompBetsMask1", "chkCompBetsMask3", "optCompBase1", "optCompsUseTrueProbs0"})
    page.findChild<QAbstractButton*>(QLatin1String(name))->click();
  const Game& g = desk.table.State();
  EXPECT_EQ(g.CompBetsMask, (std::array<int32_t, 4>{0, 0, 1, 1}));
  EXPECT_EQ(g.CompBase, 1);
  EXPECT_FALSE(g.CompsUseTrueProbs);
}

TEST(CompsPage, RateIsShownAsAPercentAndKeptInLimits) {
  ScreenDesk desk;
  CompsPage page(desk.table, desk.dialogs);
  auto* rate = page.findChild<QLineEdit*>(QStringLiteral("txtCompRate"));
  ASSERT_NE(rate, nullptr);
  EXPECT_EQ(rate->text(), QStringLiteral("40"));
  const struct {
    const char* typed;
    bool refused;
    Currency stored;
    const char* shown;
  } cases[] = {
      {"12.5", false, Currency::FromRaw(1250), "12.50"},
      {"150", true, Currency::FromRaw(1250), "12.50"},
      {"-1", true, Currency::FromRaw(1250), "12.50"},
      {"0", false, Currency{}, "0"},
  };
  for (const auto& c : cases) {
    desk.dialogs.messages.clear();
    rate->setText(QLatin1String(c.typed));
    emit rate->editingFinished();
    EXPECT_EQ(desk.dialogs.messages.size(), c.refused ? 1u : 0u) << c.typed;
    EXPECT_EQ(desk.table.State().CompRate, c.stored) << c.typed;
    EXPECT_EQ(rate->text().toStdString(), c.shown) << c.typed;
  }
}

}  // namespace
