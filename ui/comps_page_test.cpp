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
  const Game& g = desk.table.State();
  auto click = [&](const char* name) {
    auto* button = page.findChild<QAbstractButton*>(QLatin1String(name));
    ASSERT_NE(button, nullptr) << name;
    button->click();
  };
  const struct {
    const char* control;
    std::function<bool()> holds;
  } cases[] = {
      {"chkCompBetsMask1", [&] { return g.CompBetsMask[1] == 0; }},
      {"chkCompBetsMask3", [&] { return g.CompBetsMask[3] == 1; }},
      {"optCompBase1", [&] { return g.CompBase == 1; }},
      {"optCompBase0", [&] { return g.CompBase == 0; }},
      {"optCompsUseTrueProbs0", [&] { return !g.CompsUseTrueProbs; }},
      {"optCompsUseTrueProbs1", [&] { return g.CompsUseTrueProbs; }},
  };
  for (const auto& c : cases) {
    click(c.control);
    EXPECT_TRUE(c.holds()) << c.control;
  }
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
