// The Auto-Play screen on a fresh table, offscreen, every question answered
// from a queue.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/auto_play_screen.h"
#include "ui/desktop_front_end.h"
#include "ui/dialogs_for_test.h"
#include "ui/sound_board.h"

namespace {

class SilentSink : public SoundSink {
 public:
  void Play(const QString&, double) override {}
};

struct Desk {
  SilentSink sink;
  SoundBoard sounds{sink};
  QueuedDialogs dialogs;
  DesktopFrontEnd frontEnd{dialogs, sounds};
  Table table{frontEnd};
  std::unique_ptr<AutoPlayScreen> screen;

  Desk() {
    frontEnd.SetPauses(false);
    table.StartFresh();
    table.Set("AutoAdjustMode", 0);  // amounts stand as placed
    screen = std::make_unique<AutoPlayScreen>(table, dialogs);
  }
  const Game& g() const { return table.State(); }
  template <class W = QWidget>
  W* Find(const char* name) const {
    W* w = screen->findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  void Click(const char* name) { Find<QAbstractButton>(name)->click(); }
  QString Row(int betId) const {
    return screen->findChild<QListWidget*>(QStringLiteral("lstWorkOnComeOut"))->item(betId - bet::kFirstTableBet)->text();
  }
  void Select(std::initializer_list<int> bets) {
    auto* list = Find<QListWidget>("lstWorkOnComeOut");
    list->clearSelection();
    for (int id : bets) list->item(id - bet::kFirstTableBet)->setSelected(true);
  }
};

TEST(AutoPlayScreen, ComeOutButtonsActOnTheSelectedRows) {
  struct Step {
    std::initializer_list<int> selected;  // empty: Select All
    const char* button;
    int bet;
    const char* row;
  };
  const int place6 = bet::Place(6), pass = bet::kPassLine;
  const Step steps[] = {
      {{place6}, "cmdYes", place6, "Place 6 - Yes"},
      {{place6, pass}, "cmdNo", pass, "Pass Line - No"},
      {{place6, pass}, "cmdNo", place6, "Place 6 - No"},
      {{}, "cmdYes", bet::kLastTableBet, nullptr},  // every row works
      {{place6}, "cmdDefault", place6, "Place 6 - No"},
      {{}, "cmdDefault", pass, "Pass Line - Yes"},
  };
  Desk d;
  d.screen->ShowWorkOnComeOut(true);
  EXPECT_EQ(d.Row(place6), "Place 6 - No");
  for (const Step& s : steps) {
    if (s.selected.size() == 0)
      d.Click("cmdSelectAll");
    else
      d.Select(s.selected);
    d.Click(s.button);
    if (s.row) {
      EXPECT_EQ(d.Row(s.bet), s.row) << s.button;
    }
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
      EXPECT_EQ(d.Row(id).endsWith(" - Yes"), d.g().WorkOnComeOut[id] != 0) << s.button << " " << id;
  }
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    EXPECT_EQ(d.g().WorkOnComeOut[id], bet::DefaultWorkOnComeOut(id)) << id;
}

// Each control writes its setting at once, and a change made elsewhere shows.
TEST(AutoPlayScreen, ControlsWriteTheirSettingsAndFollowTheTable) {
  struct Case {
    const char* control;
    std::function<void(Desk&)> act;
    const char* setting;
    Currency value;
  };
  auto click = [](const char* name) { return [name](Desk& d) { d.Click(name); }; };
  auto type = [](const char* name, const char* text) {
    return [name, text](Desk& d) {
      auto* field = d.Find<QLineEdit>(name);
      field->selectAll();
      QTest::keyClick(field, Qt::Key_Backspace);
      QTest::keyClicks(field, QString::fromLatin1(text));
    };
  };
  const Case cases[] = {
      {"won option", click("optHandleWinningBets5"), "WonBetAction", 5},
      {"lost option", click("optHandleLosingBets7"), "HandleLosingBets", 7},
      {"lost manual", click("optHandleLosingBets0"), "HandleLosingBets", 0},
      {"adjust", click("optAutoAdjustBetAmounts1"), "AutoAdjustMode", 1},
      {"remove place", click("chkAutoRemovePlaceBets"), "AutoRemovePlaceBets", 1},
      {"auto-roll", click("chkAutoRollDice"), "AutoRollOn", 1},
      {"operator", click("cmdMathOperator0"), "ModifyOperator.0", 1},
      {"operator wraps", [](Desk& d) { for (int i = 0; i < 3; ++i) d.Click("cmdMathOperator2"); }, "ModifyOperator.2", 3},
      {"units", click("cmdUnits1"), "ModifyUnits.1", 0},
      {"units to a check", [](Desk& d) { for (int i = 0; i < 2; ++i) d.Click("cmdUnits3"); }, "ModifyUnits.3", 2},
      {"amount", type("txtModifyAmount1", "12.5"), "ModifyAmount.1", Currency::FromRaw(125'000)},
      {"rolls", type("txtNumAutoRolls", "250"), "RollCountLeft", 250},
      {"delay", type("txtDelayRoll", "3"), "AutoRollDelay", 3},
      {"delay emptied", type("txtDelayRoll", ""), "AutoRollDelay", 0},
      {"stop row",
       [](Desk& d) { d.Find<QListWidget>("listAutoStop")->item(5)->setCheckState(Qt::Checked); }, "StopOnRoll.5", 1},
      {"bias", [](Desk& d) { d.Find<QComboBox>("cmbPlaceBias")->activated(2); }, "PlaceBias", 2},
  };
  Desk d;
  d.screen->show();
  for (const Case& c : cases) {
    c.act(d);
    EXPECT_EQ(d.table.Get(c.setting).value, c.value) << c.control;
  }
  EXPECT_EQ(d.Find<QLabel>("lblAutoRollsRemaining")->text(), "Left: 250");

  d.table.Set("WonBetAction", 2);
  d.table.Set("StopOnRoll.16", 1);
  d.table.Set("ModifyUnits.1", 2);
  d.table.Set("RollCountStop", 40);
  EXPECT_TRUE(d.Find<QRadioButton>("optHandleWinningBets2")->isChecked());
  EXPECT_EQ(d.Find<QListWidget>("listAutoStop")->item(16)->checkState(), Qt::Checked);
  EXPECT_EQ(d.Find<QPushButton>("cmdUnits1")->text(), "$1 Units");
  EXPECT_EQ(d.Find<QLineEdit>("txtNumAutoRolls")->text(), "40");
  EXPECT_TRUE(d.dialogs.messages.empty());
}

TEST(AutoPlayScreen, BiasListsWaitOnAnAdjustingMode) {
  Desk d;
  for (int mode : {2, 0, 1, 0}) {
    d.Click(("optAutoAdjustBetAmounts" + std::to_string(mode)).c_str());
    for (const char* combo : {"cmbLayBias", "cmbPlaceBias", "cmbDoBias", "cmbDontBias"})
      EXPECT_EQ(d.Find<QComboBox>(combo)->isEnabled(), mode != 0) << combo << " mode " << mode;
  }
  d.table.Set("AutoAdjustMode", 2);
  EXPECT_TRUE(d.Find<QComboBox>("cmbDoBias")->isEnabled());
  EXPECT_EQ(d.Find<QComboBox>("cmbDontBias")->currentText(), "Don't odds bias: nearest");
}

// Turning auto-odds on asks whether to fill the bets already out; Yes puts
// the odds at the most the placement allows.
TEST(AutoPlayScreen, AutoOddsOfferToFillTheLineOdds) {
  struct Case {
    const char* box;
    int flat, odds;
    Reply reply;
    const char* title;
  };
  const Case cases[] = {
      {"chkAutoTakeFullOdds", bet::kPassLine, bet::kPassOdds, Reply::Yes, "Auto-Take Full Odds"},
      {"chkAutoTakeFullOdds", bet::kPassLine, bet::kPassOdds, Reply::No, "Auto-Take Full Odds"},
      {"chkAutoLayFullOdds", bet::kDontPass, bet::kDontPassOdds, Reply::Yes, "Auto-Lay Full Odds"},
  };
  for (const Case& c : cases) {
    Desk d, most;
    for (Desk* desk : {&d, &most}) {
      desk->table.Bet(c.flat, 10);
      desk->table.Roll(4, 2);
    }
    most.table.Bet(c.odds, 9'999'999);
    ASSERT_GT(most.g().BetAmount[c.odds], 0);
    d.dialogs.replies.push_back(c.reply);
    d.Click(c.box);
    ASSERT_EQ(d.dialogs.messages.size(), 1u) << c.box;
    EXPECT_EQ(d.dialogs.messages[0].title, c.title);
    EXPECT_NE(d.dialogs.messages[0].text.find("already on the table?"), std::string::npos);
    EXPECT_EQ(d.g().BetAmount[c.odds], c.reply == Reply::Yes ? most.g().BetAmount[c.odds] : Currency(0)) << c.box;
    // A screen opened on the switch as it stands asks nothing.
    d.dialogs.messages.clear();
    AutoPlayScreen again(d.table, d.dialogs);
    EXPECT_TRUE(again.findChild<QAbstractButton*>(QString::fromLatin1(c.box))->isChecked());
    EXPECT_TRUE(d.dialogs.messages.empty());
  }
}

TEST(AutoPlayScreen, TheRunButtonAsksTheWindowAndShowsTheRun) {
  Desk d;
  QSignalSpy start(d.screen.get(), &AutoPlayScreen::StartAutoRollRequested);
  QSignalSpy stop(d.screen.get(), &AutoPlayScreen::StopAutoRollRequested);
  auto* button = d.Find<QPushButton>("cmdAutoRoll");
  EXPECT_EQ(button->text(), "Start Auto-Roll");
  d.Click("cmdAutoRoll");
  d.screen->SetRunning(true);
  EXPECT_EQ(button->text(), "Stop Auto-Roll");
  d.Click("cmdAutoRoll");
  d.screen->ShowRollsLeft(1234);
  EXPECT_EQ(start.count(), 1);
  EXPECT_EQ(stop.count(), 1);
  EXPECT_EQ(d.Find<QLabel>("lblAutoRollsRemaining")->text(), "Left: 1,234");
}

// While a run owns the table nothing can be changed here but the run itself.
TEST(AutoPlayScreen, ARunLeavesOnlyItsButton) {
  struct Case {
    bool autoRoll;  // the window says the run is this screen's Auto-Roll
    bool buttonLive;
  };
  for (const Case& c : {Case{true, true}, Case{false, false}}) {
    Desk d;
    d.table.Set("RollCountLeft", 100'000'000);
    auto post = [](std::function<void()> task) {
      QMetaObject::invokeMethod(qApp, [task = std::move(task)] { task(); }, Qt::QueuedConnection);
    };
    ASSERT_TRUE(d.table.StartLive(RunKind::HyperDrive, post).Done());
    d.screen->SetRunning(c.autoRoll);
    for (const char* name : {"chkAutoTakeFullOdds", "lstWorkOnComeOut", "txtNumAutoRolls", "listAutoStop",
                             "optHandleWinningBets3", "cmdUnits0", "cmbLayBias"})
      EXPECT_FALSE(d.Find(name)->isEnabled()) << name;
    EXPECT_EQ(d.Find("cmdAutoRoll")->isEnabled(), c.buttonLive);
    d.table.Stop();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !d.table.Busy(); }, 10'000));
    d.screen->SetRunning(false);
    EXPECT_TRUE(d.Find("chkAutoTakeFullOdds")->isEnabled());
    EXPECT_TRUE(d.Find("cmdUnits0")->isEnabled());
  }
}

}  // namespace
