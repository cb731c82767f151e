#include "ui/roll_pad.h"

#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "ui/dice_button.h"

namespace {

// Each test starts from a pad the player never set up, with settings of its
// own: the tests run side by side in separate processes.
class RollPadTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(settings_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings_.path());
  }
  QTemporaryDir settings_;
};

void Trigger(RollPad& pad, const QString& action) { pad.findChild<QAction*>(action)->trigger(); }

void ChooseView(RollPad& pad, PadView view) {
  Trigger(pad, QStringLiteral("mnuDisplayRYON%1").arg(static_cast<int>(view)));
}

// Clicks a control that the pad shows (the combination views share their
// cells' names, so cells are looked for on the view on show) and answers what
// the pad sent, as words.
QStringList Click(RollPad& pad, const QString& name) {
  QStringList sent;
  QObject context;
  QObject::connect(&pad, &RollPad::PairChosen, &context,
                   [&](int a, int b) { sent << QStringLiteral("pair %1-%2").arg(a).arg(b); });
  QObject::connect(&pad, &RollPad::TotalChosen, &context, [&](int t) { sent << QStringLiteral("total %1").arg(t); });
  QObject::connect(&pad, &RollPad::RandomRollRequested, &context, [&] { sent << QStringLiteral("random"); });
  QObject::connect(&pad, &RollPad::HyperDriveRequested, &context, [&] { sent << QStringLiteral("hyper"); });
  QObject::connect(&pad, &RollPad::StopRequested, &context, [&] { sent << QStringLiteral("stop"); });
  QWidget* target = pad.findChild<QStackedWidget*>()->currentWidget()->findChild<QWidget*>(name);
  if (!target) target = pad.findChild<QPushButton*>(name);
  EXPECT_TRUE(target && target->isVisible()) << name.toStdString();
  if (target) QTest::mouseClick(target, Qt::LeftButton, {}, target->rect().center());
  return sent;
}

TEST_F(RollPadTest, EachViewSendsTheRollOfTheCellClicked) {
  struct Case {
    PadView view;
    const char* cell;
    const char* sent;
  };
  const Case cases[] = {
      {PadView::Totals, "cmdTotal2", "total 2"},    {PadView::Totals, "cmdTotal7", "total 7"},
      {PadView::Totals, "cmdTotal12", "total 12"},  {PadView::Triangle, "cmdPair16", "pair 1-6"},
      {PadView::Triangle, "cmdPair61", "pair 6-1"}, {PadView::Triangle, "cmdPair33", "pair 3-3"},
      {PadView::Box, "cmdPair24", "pair 2-4"},      {PadView::Box, "cmdPair42", "pair 4-2"},
      {PadView::Box, "cmdPair66", "pair 6-6"},
  };
  RollPad pad;
  pad.show();
  for (const Case& c : cases) {
    ChooseView(pad, c.view);
    EXPECT_EQ(pad.View(), static_cast<int>(c.view));
    EXPECT_EQ(Click(pad, QString::fromLatin1(c.cell)), QStringList{QString::fromLatin1(c.sent)}) << c.cell;
  }
}

TEST_F(RollPadTest, BothCombinationViewsOfferEveryThrowOnceAndTheTriangleStandsOnItsTotals) {
  RollPad pad;
  pad.show();
  for (PadView view : {PadView::Triangle, PadView::Box}) {
    ChooseView(pad, view);
    std::set<std::pair<int, int>> throws;
    std::map<int, std::set<int>> columnsOfTotal;
    for (DiceButton* cell : pad.findChild<QStackedWidget*>()->currentWidget()->findChildren<DiceButton*>()) {
      throws.insert({cell->First(), cell->Second()});
      columnsOfTotal[cell->First() + cell->Second()].insert(cell->geometry().center().x());
    }
    EXPECT_EQ(throws.size(), 36u);
    if (view != PadView::Triangle) continue;
    int left = -1;
    for (const auto& [total, columns] : columnsOfTotal) {
      ASSERT_EQ(columns.size(), 1u) << "total " << total << " spread over columns";
      EXPECT_GT(*columns.begin(), left) << "total " << total << " out of order";
      left = *columns.begin();
    }
  }
}

TEST_F(RollPadTest, FacesViewRollsOnTheSecondDieOnly) {
  struct Case {
    QStringList clicks;  // die, then face
    QStringList sent;
  };
  const Case cases[] = {
      {{"13", "25"}, {"pair 3-5"}},
      {{"12", "16", "21"}, {"pair 6-1"}},                          // die 1 chosen again before die 2
      {{"24"}, {}},                                                // die 2 waits for die 1
      {{"11", "21", "22", "14", "22"}, {"pair 1-1", "pair 4-2"}},  // each roll starts over at die 1
  };
  RollPad pad;
  pad.show();
  ChooseView(pad, PadView::Faces);
  const auto* prompt = pad.findChild<QLabel*>(QStringLiteral("lblDiePrompt"));
  for (const Case& c : cases) {
    QStringList sent;
    for (const QString& click : c.clicks) {
      sent << Click(pad, QStringLiteral("cmdDie%1Face%2").arg(click[0]).arg(click[1]));
      const QString next = click[0] == '1' ? QStringLiteral("choose die 2") : QStringLiteral("Choose die 1");
      EXPECT_TRUE(prompt->text().contains(next)) << prompt->text().toStdString();
    }
    EXPECT_EQ(sent, c.sent) << c.clicks.join(' ').toStdString();
  }
}

TEST_F(RollPadTest, MenuSwitchesShowAndHideTheirControls) {
  RollPad pad;
  pad.show();
  const std::pair<const char*, const char*> switches[] = {
      {"mnuRollCounter", "lblTotalNumRolls"},
      {"mnuHyperDriveButton", "cmdHyperDrive"},
      {"mnuRandomButton", "cmdRandomRoll"},
  };
  for (const auto& [menu, control] : switches) {
    auto* action = pad.findChild<QAction*>(QString::fromLatin1(menu));
    const auto* widget = pad.findChild<QWidget*>(QString::fromLatin1(control));
    for (int flip = 0; flip < 2; ++flip) {
      action->trigger();
      EXPECT_EQ(widget->isVisible(), action->isChecked()) << menu;
    }
  }
  Trigger(pad, QStringLiteral("mnuHide"));
  EXPECT_FALSE(pad.isVisible());
}

TEST_F(RollPadTest, ButtonsAskForRunsAndARunLocksTheRollChoices) {
  RollPad pad;
  pad.findChild<QAction*>(QStringLiteral("mnuHyperDriveButton"))->setChecked(true);
  pad.findChild<QAction*>(QStringLiteral("mnuRandomButton"))->setChecked(true);
  pad.show();
  const auto* hyper = pad.findChild<QPushButton*>(QStringLiteral("cmdHyperDrive"));
  struct Step {
    bool running;
    const char* caption;
    QStringList sent;  // clicking the Hyper-Drive button, the random button and a total
  };
  const Step steps[] = {
      {false, "Start Hyper-&Drive", {"hyper", "random", "total 8"}},
      {true, "Stop Hyper-&Drive", {"stop"}},
      {false, "Start Hyper-&Drive", {"hyper", "random", "total 8"}},
  };
  for (const Step& s : steps) {
    pad.SetRunning(s.running);
    pad.SetEnabledForRun(!s.running);
    EXPECT_EQ(hyper->text(), QString::fromLatin1(s.caption));
    QStringList sent;
    for (const char* control : {"cmdHyperDrive", "cmdRandomRoll", "cmdTotal8"})
      sent << Click(pad, QString::fromLatin1(control));
    EXPECT_EQ(sent, s.sent) << s.caption;
  }
}

TEST_F(RollPadTest, ReopensAsThePlayerLeftIt) {
  const QColor red(0xb0, 0x20, 0x20);
  {
    RollPad pad;
    ChooseView(pad, PadView::Box);
    Trigger(pad, QStringLiteral("mnuRollCounter"));
    Trigger(pad, QStringLiteral("mnuHyperDriveButton"));
    pad.SetColorChooser([&](const QColor&, QWidget*) { return red; });
    Trigger(pad, QStringLiteral("mnuSetColor"));
    pad.SetColorChooser([](const QColor&, QWidget*) { return QColor(); });  // cancelled: no change
    Trigger(pad, QStringLiteral("mnuSetColor"));
  }
  RollPad pad;
  pad.show();
  EXPECT_EQ(pad.View(), static_cast<int>(PadView::Box));
  EXPECT_TRUE(pad.findChild<QWidget*>(QStringLiteral("lblTotalNumRolls"))->isHidden());
  EXPECT_TRUE(pad.findChild<QWidget*>(QStringLiteral("cmdHyperDrive"))->isVisible());
  EXPECT_EQ(pad.ButtonColor(), red);
  for (const char* tinted : {"cmdPair24", "cmdRandomRoll"}) {
    EXPECT_EQ(pad.findChild<QWidget*>(QString::fromLatin1(tinted))->palette().color(QPalette::Button), red) << tinted;
  }
}

}  // namespace
