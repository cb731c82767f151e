// The desktop window driven as a player would, offscreen, with every dialog
// answered from a queue and every sound recorded.
#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <deque>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/dialogs_for_test.h"
#include "ui/main_window.h"
#include "ui/auto_play_screen.h"
#include "ui/roll_pad.h"
#include "ui/table_view.h"
#include "ui/sound_board.h"

namespace {

class RecordingSink : public SoundSink {
 public:
  void Play(const QString& file, double) override { played.push_back(QFileInfo(file).fileName()); }
  std::vector<QString> played;
};

// A window on a table in a fresh data folder that holds a stickman set.
struct Desk {
  QTemporaryDir folder;
  RecordingSink sink;
  SoundBoard sounds{sink};
  QueuedDialogs dialogs;
  DesktopFrontEnd frontEnd{dialogs, sounds};
  Table table{frontEnd};
  MainWindow window{table, frontEnd, dialogs, sounds, {folder.path(), {}}};

  Desk() {
    for (int slot = 1; slot <= 18; ++slot) {
      QFile call(folder.filePath(QStringLiteral("Stickman%1.stk").arg(slot, 2, 10, QLatin1Char('0'))));
      call.open(QIODevice::WriteOnly);
    }
    QFile dice(folder.filePath(QStringLiteral("Dice.dce")));
    dice.open(QIODevice::WriteOnly);
    sounds.UseFolder(folder.path());
    frontEnd.SetPauses(false);
    table.StartUp(folder.path().toStdString(), true);
  }
  const Game& g() const { return table.State(); }
  bool WaitForRunEnd(int ms = 10'000) {
    QSignalSpy finished(&window, &MainWindow::RunFinished);
    return !table.Busy() || finished.wait(ms);
  }
};

TEST(MainWindow, EveryMenuItemHasItsExactCaption) {
  Desk d;
  const std::vector<std::pair<const char*, std::vector<const char*>>> tree = {
      {"&Game", {"&New", "&Open ...", "&Save", "Sa&ve As ...", "Show &Path", "&Hot-Keys ...", "&Configure ...", "Games &Log File ...",
        "E&xit"}},
      {"&Action",
       {"&Roll the Dice  (Right mouse button)", "S&tart Auto-Roll", "&Dice Roll Files ...", "Auto-&Play ...",
        "Auto-&Bet ...", "\"B&uy\" Place Bet", "Call bet \"O&N\"", "Call &all bets \"ON\"", "Call bet \"O&FF\"",
        "Call a&ll bets \"OFF\"", "Re&move bet", "Remo&ve all bets", "&Key-in bet amounts", "D&isplay bets as numbers",
        "Roll your o&wn numbers", "Display &Hop bets"}},
      {"&Statistics",
       {"&Games Log ...", "&Summary ...", "&Bankroll / Hyper-Drive ...", "Roll &Totals ...", "Roll &Frequencies ...",
        "Bet R&esults ...", "Bet T&rends ...", "&Chip Stacks ...", "F&lags ..."}},
      {"&Help", {"&Contents ...", "&Search ...", "&About Dicemill ..."}},
  };
  const QList<QAction*> menus = d.window.menuBar()->actions();
  ASSERT_EQ(menus.size(), static_cast<qsizetype>(tree.size()));
  for (size_t m = 0; m < tree.size(); ++m) {
    EXPECT_EQ(menus[m]->text().toStdString(), tree[m].first);
    const QList<QAction*> items = menus[m]->menu()->actions();
    ASSERT_EQ(items.size(), static_cast<qsizetype>(tree[m].second.size())) << tree[m].first;
    QSet<QChar> mnemonics;
    for (qsizetype i = 0; i < items.size(); ++i) {
      const QString caption = items[i]->text();
      EXPECT_EQ(caption.toStdString(), tree[m].second[static_cast<size_t>(i)]);
      const QChar mnemonic = caption.at(caption.indexOf('&') + 1).toLower();
      EXPECT_FALSE(mnemonics.contains(mnemonic)) << caption.toStdString() << " repeats a mnemonic";
      mnemonics.insert(mnemonic);
      // Ctrl+letter and Ctrl+digit are the Hot-Keys': no item may take one.
      const QKeySequence keys = items[i]->shortcut();
      if (!keys.isEmpty()) {
        EXPECT_NE(keys[0].keyboardModifiers(), Qt::ControlModifier) << caption.toStdString();
      }
    }
  }
  EXPECT_EQ(d.window.Action(MenuCommand::RollDice)->shortcut(), QKeySequence(Qt::Key_Space));
  EXPECT_EQ(d.window.Action(MenuCommand::New)->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+N")));
}

TEST(MainWindow, StartUpCallsANewShooterThenTheComeOut) {
  Desk d;
  EXPECT_EQ(d.sink.played, (std::vector<QString>{"Stickman18.stk", "Stickman17.stk"}));
}

// A visible throw sounds the dice and the stickman; with all sound off, or in
// Hyper-Drive, nothing plays.
TEST(MainWindow, SoundsFollowTheSwitches) {
  struct Case {
    bool soundOff, hyperDrive, heard;
  };
  for (const Case& c : {Case{false, false, true}, Case{true, false, false}, Case{false, true, false}}) {
    Desk d;
    d.table.Set("DisableAllSound", c.soundOff ? 1 : 0);
    d.sink.played.clear();
    if (c.hyperDrive) {
      d.window.Action(MenuCommand::Bankroll)->trigger();
      emit d.window.Bankroll()->StartRequested(1000);
    } else {
      d.window.Action(MenuCommand::RollDice)->trigger();
    }
    ASSERT_TRUE(d.WaitForRunEnd());
    QCoreApplication::processEvents();
    EXPECT_EQ(d.g().RollCounts[0], c.hyperDrive ? 1000 : 1);
    EXPECT_EQ(!d.sink.played.empty(), c.heard) << c.soundOff << c.hyperDrive;
    if (c.heard) {
      EXPECT_EQ(d.sink.played.front(), "Dice.dce");
    }
    // Hyper-Drive draws no throw.
    if (c.hyperDrive) {
      EXPECT_FALSE(d.window.View()->Animating());
    }
  }
}

TEST(MainWindow, CaptionFollowsTheGameFile) {
  Desk d;
  EXPECT_EQ(d.window.windowTitle(), "Dicemill");
  d.dialogs.files.push_back(d.folder.filePath("friday.crp").toStdString());
  d.window.Action(MenuCommand::SaveAs)->trigger();
  EXPECT_EQ(d.window.windowTitle(), "Dicemill (friday.crp)");
  d.table.Bet(bet::kPassLine, Currency(10));
  d.dialogs.replies.push_back(Reply::No);  // "Save Game?": no
  d.window.Action(MenuCommand::New)->trigger();
  EXPECT_EQ(d.window.windowTitle(), "Dicemill");
}

TEST(MainWindow, NewWithUnsavedWorkAsksAndCancelKeepsTheBets) {
  Desk d;
  d.table.Bet(bet::kPassLine, Currency(10));
  d.dialogs.replies.push_back(Reply::Cancel);
  d.window.Action(MenuCommand::New)->trigger();
  ASSERT_FALSE(d.dialogs.messages.empty());
  EXPECT_EQ(d.dialogs.messages.back().title, "Save Game?");
  EXPECT_EQ(d.g().BetAmount[bet::kPassLine], Currency(10));
}

// A notice that a switch governs offers "Don't show this again"; ticking it
// turns the switch off, so the next such notice stays away.
TEST(MainWindow, DontShowAgainTurnsTheNoticeSwitchOff) {
  Desk d;
  d.dialogs.dontShowAgain.push_back(true);
  d.table.Bet(bet::Place(6), Currency(100'000));
  ASSERT_EQ(d.dialogs.messages.size(), 1u);
  EXPECT_TRUE(d.dialogs.messages.front().offerDontShow);
  EXPECT_EQ(d.g().NoticeMask & kNoticeLimits, 0);
  EXPECT_NE(d.g().NoticeMask & kNoticeRefusals, 0);
  d.table.Bet(bet::Place(8), Currency(100'000));
  EXPECT_EQ(d.dialogs.messages.size(), 1u);
}

TEST(MainWindow, ToolModesPromptAndEscLeavesThem) {
  Desk d;
  d.window.Action(MenuCommand::BuyTool)->trigger();
  EXPECT_EQ(d.g().ClickTool, 89);
  d.window.Action(MenuCommand::RemoveTool)->trigger();
  EXPECT_EQ(d.window.findChild<QLabel*>("lblPrompt")->text(), "Click on bet to remove");
  QTest::keyClick(&d.window, Qt::Key_Escape);
  EXPECT_EQ(d.g().ClickTool, 1);
  EXPECT_TRUE(d.window.findChild<QLabel*>("lblPrompt")->text().isEmpty());
}

// Place 6 for $12 wins with the point on 4; each button of the Winner notice
// leaves the bet as its caption says.
TEST(MainWindow, WinnerNoticeButtonsDoWhatTheySay) {
  struct Case {
    int button;
    AmountRule sameBet, bet;
    Currency after;
  };
  const AmountRule none{};
  const std::vector<Case> cases = {
      {0, none, none, Currency(0)},                        // Take Bet and Winnings
      {1, none, none, Currency(12)},                       // Same Bet - Take Winnings
      {2, none, none, Currency(18)},                       // Press 1 Unit: $6 on a Place 6
      {3, none, none, Currency(24)},                       // Press - double
      {4, none, none, Currency(24)},                       // Parlay $14 down to whole units
      {5, {0, Currency(6), -1}, none, Currency(18)},       // Same Bet: + $6
      {6, none, {0, Currency(30), -1}, Currency(30)},      // Bet: $30
  };
  for (const Case& c : cases) {
    Desk d;
    d.table.Roll(2, 2);
    d.table.Bet(bet::Place(6), Currency(12));
    d.dialogs.settles.push_back(SettleReply{c.button, c.sameBet, c.bet});
    d.table.Roll(3, 3);
    ASSERT_EQ(d.dialogs.notices.size(), 1u) << c.button;
    const SettleNotice& shown = d.dialogs.notices.front();
    EXPECT_EQ(shown.title, "* * * Winner * * *");
    EXPECT_EQ(shown.buttons.size(), 7u);
    EXPECT_FALSE(shown.rows.empty());
    EXPECT_EQ(d.g().BetAmount[bet::Place(6)], c.after) << "button " << c.button;
  }
}

TEST(MainWindow, HyperDriveRunsLiveStopsAtOnceAndExitAsksFirst) {
  Desk d;
  d.window.Action(MenuCommand::Bankroll)->trigger();
  BankrollGraphScreen* screen = d.window.Bankroll();
  ASSERT_NE(screen, nullptr);
  emit screen->StartRequested(10'000'000);
  ASSERT_TRUE(d.table.Busy());
  EXPECT_FALSE(d.window.Action(MenuCommand::New)->isEnabled());
  EXPECT_TRUE(d.window.Action(MenuCommand::Exit)->isEnabled());
  QTest::qWait(150);

  // Exit asks; No keeps the window and the run.
  d.window.show();
  d.dialogs.replies.push_back(Reply::No);
  d.window.close();
  EXPECT_TRUE(d.window.isVisible());
  EXPECT_TRUE(d.table.Busy());
  ASSERT_FALSE(d.dialogs.messages.empty());
  EXPECT_EQ(d.dialogs.messages.back().title, "Hyper-Drive Active");

  // Minimised, the caption tells how the run stands.
  d.window.setWindowState(Qt::WindowMinimized);
  EXPECT_EQ(d.window.windowTitle(), "Dicemill Hyper-Drive Active");

  QElapsedTimer clock;
  clock.start();
  emit screen->StopRequested();
  ASSERT_TRUE(d.WaitForRunEnd(1000));
  EXPECT_LT(clock.elapsed(), 1000);
  EXPECT_GT(d.g().RollCounts[0], 0);
  EXPECT_LT(d.g().RollCounts[0], 10'000'000);
  EXPECT_TRUE(d.window.Action(MenuCommand::New)->isEnabled());
  EXPECT_EQ(d.window.windowTitle(), "Dicemill Hyper-Drive Stopped");
  d.window.setWindowState(Qt::WindowNoState);
  EXPECT_EQ(d.window.windowTitle(), "Dicemill");
}

// A script's question during a visible Auto-Roll comes to this thread, is
// answered, and the run goes on until stopped.
TEST(MainWindow, QuestionsDuringAnAutoRollAreAnswered) {
  Desk d;
  const QString script = d.folder.filePath("ask.txt");
  QFile file(script);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("Do this\n  Yes/No question: \"Keep rolling?\"\n");
  file.close();
  ASSERT_TRUE(d.table.LoadScript(script.toStdString()).Done());
  for (int i = 0; i < 50; ++i) d.dialogs.replies.push_back(Reply::Yes);
  d.window.Action(MenuCommand::AutoRoll)->trigger();
  ASSERT_TRUE(d.table.Busy());
  EXPECT_EQ(d.window.Action(MenuCommand::AutoRoll)->text(), "S&top Auto-Roll");
  QTRY_VERIFY_WITH_TIMEOUT(d.table.LiveSnapshot().Rolls >= 2, 5000);
  d.window.Action(MenuCommand::AutoRoll)->trigger();
  ASSERT_TRUE(d.WaitForRunEnd());
  EXPECT_EQ(d.dialogs.messages.back().text, "Keep rolling?");
  EXPECT_GE(d.g().RollCounts[0], 2);
  EXPECT_EQ(d.window.Action(MenuCommand::AutoRoll)->text(), "S&tart Auto-Roll");
}

// A Pass Line bet costs 1.414% a decision, a decision every 3.375 rolls: $10
// at 100 rolls an hour is expected to lose $4.19 an hour.
TEST(MainWindow, QuickStatisticsPriceTheBetsOnTheTable) {
  Desk d;
  d.table.Bet(bet::kPassLine, Currency(10));
  EXPECT_EQ(d.window.findChild<QLabel*>("lblQuickStats")->text(),
            "Bets on the table: expect -$4.19 an hour   Session net: $0");
}

// A pad roll of 2-4 is the throw: the point goes on 6 and both dice show.
TEST(MainWindow, PadRollsTheChosenDice) {
  Desk d;
  d.window.Action(MenuCommand::RollYourOwn)->trigger();
  ASSERT_NE(d.window.Pad(), nullptr);
  emit d.window.Pad()->PairChosen(2, 4);
  EXPECT_EQ(d.g().Point, 6);
  EXPECT_EQ(d.window.findChild<QLabel*>("lblStatus5")->text(), "2-4 (6)");
  const TableLook& shown = d.window.View()->Look();
  EXPECT_EQ(shown.point, 6);  // the puck ON on 6
  EXPECT_EQ(std::pair(shown.die1, shown.die2), std::pair(2, 4));
  emit d.window.Pad()->TotalChosen(8);
  EXPECT_EQ(d.g().Die1 + d.g().Die2, 8);
  EXPECT_EQ(d.g().RollCounts[0], 2);
}

// The table worked by mouse: a click where the spot is drawn.
void ClickSpot(Desk& d, int betId, Qt::KeyboardModifiers modifiers = {}) {
  TableView* view = d.window.View();
  QTest::mouseClick(view, Qt::LeftButton, modifiers, view->BetCentre(betId).toPoint());
}

TEST(MainWindow, TheLayoutTakesBetsByMouse) {
  Desk d;
  d.window.resize(1100, 760);
  d.window.show();
  d.table.Set("AutoAdjustMode", 0);  // amounts exactly as clicked
  emit d.window.View()->ToolClicked(2);  // the $5 chip
  ClickSpot(d, bet::Place(6));
  EXPECT_EQ(d.g().BetAmount[bet::Place(6)], Currency(5));
  ClickSpot(d, bet::Place(6), Qt::ShiftModifier);
  EXPECT_EQ(d.g().BetAmount[bet::Place(6)], Currency(0));

  // No Come bet on the come-out: its refusal, word for word in its notice.
  ClickSpot(d, bet::kCome);
  ASSERT_FALSE(d.dialogs.messages.empty());
  EXPECT_EQ(d.dialogs.messages.back().title, "Come Bet");
  EXPECT_EQ(d.g().BetAmount[bet::kCome], Currency(0));

  // Called OFF, the bet shows its marker; a press the other way withdraws the call.
  ClickSpot(d, bet::Place(8));
  emit d.window.View()->ToolClicked(90);
  ClickSpot(d, bet::Place(8));
  EXPECT_EQ(d.window.View()->Look().statuses[bet::Place(8)], -1);
  emit d.window.View()->ToolClicked(91);
  ClickSpot(d, bet::Place(8));
  EXPECT_NE(d.window.View()->Look().statuses[bet::Place(8)], -1);

  // The remove tool takes a bet down.
  d.window.Action(MenuCommand::RemoveTool)->trigger();
  ClickSpot(d, bet::Place(8));
  EXPECT_EQ(d.g().BetAmount[bet::Place(8)], Currency(0));
}

// A keyed-in amount goes on the table before the next throw; one that is no
// amount is refused and the throw is not made.
TEST(MainWindow, KeyedInAmountGoesOnBeforeTheRoll) {
  Desk d;
  d.window.resize(1100, 760);
  d.window.show();
  d.window.Action(MenuCommand::RollYourOwn)->trigger();
  d.window.Action(MenuCommand::KeyIn)->trigger();
  auto* box = d.window.findChild<QLineEdit*>("txtEnterBet");
  ClickSpot(d, bet::kPassLine);
  ASSERT_TRUE(box->isVisible());
  box->setText("ten");
  emit d.window.Pad()->PairChosen(2, 2);
  EXPECT_EQ(d.g().RollCounts[0], 0);
  EXPECT_FALSE(box->isVisible());
  ClickSpot(d, bet::kPassLine);
  box->setText("$15");
  emit d.window.Pad()->PairChosen(2, 2);
  EXPECT_EQ(d.g().RollCounts[0], 1);
  EXPECT_EQ(d.g().Point, 4);
  EXPECT_EQ(d.g().BetAmount[bet::kPassLine], Currency(15));
  d.window.Action(MenuCommand::KeyIn)->trigger();
}

// 4-4 from the pad: the stickman calls the eight, then the hard way.
TEST(MainWindow, HardEightCallsTheTotalThenTheDouble) {
  Desk d;
  d.window.Action(MenuCommand::RollYourOwn)->trigger();
  d.sink.played.clear();
  emit d.window.Pad()->PairChosen(4, 4);
  const std::vector<QString> calls(d.sink.played.begin() + 1, d.sink.played.end());  // after the dice
  ASSERT_GE(calls.size(), 2u);
  EXPECT_EQ(calls[0], "Stickman08.stk");
  EXPECT_EQ(calls[1], "Stickman16.stk");
}

// Auto-Roll from its screen: five rolls, then "Left:" reads the count again;
// with "Any 7" ticked, a seven stops the run before its count is out.
TEST(MainWindow, AutoRollFromItsScreenCountsDownAndStops) {
  Desk d;
  d.window.Action(MenuCommand::AutoPlay)->trigger();
  AutoPlayScreen* screen = d.window.AutoPlay();
  ASSERT_NE(screen, nullptr);
  d.table.Set("RollCountStop", 5);
  d.table.Set("RollCountLeft", 5);
  emit screen->StartAutoRollRequested();
  ASSERT_TRUE(d.WaitForRunEnd());
  EXPECT_EQ(d.g().RollCounts[0], 5);
  EXPECT_EQ(screen->findChild<QLabel*>("lblAutoRollsRemaining")->text(), "Left: 5");

  d.table.Set("RollCountStop", 1000);
  d.table.Set("RollCountLeft", 1000);
  d.table.Set("StopOnRoll.9", 1);  // "Any 7": the rows count from "Any winning roll" at 0
  emit screen->StartAutoRollRequested();
  ASSERT_TRUE(d.WaitForRunEnd());
  EXPECT_EQ(d.g().Die1 + d.g().Die2, 7);
  EXPECT_LT(d.g().RollCounts[0], 5 + 1000);
}

// A Hot-Key pressed at the table runs its file once.
TEST(MainWindow, HotKeyRunsItsFile) {
  Desk d;
  ASSERT_TRUE(d.table.DefineHotKey('1', DICEMILL_SOURCE_DIR "/samples/pass-line-full-odds.bet", "line").Done());
  QTest::keyClick(&d.window, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(d.g().BetAmount[bet::kPassLine], Currency(10));
}

// Auto-Print during a live Hyper-Drive prints every window the run fills,
// however fast it goes: four windows are two pages of three graphs a page.
TEST(MainWindow, AutoPrintCatchesEveryWindowOfALiveRun) {
  Desk d;
  d.window.Action(MenuCommand::Bankroll)->trigger();
  BankrollGraphScreen* graph = d.window.Bankroll();
  const QString pdf = d.folder.filePath("auto.pdf");
  d.dialogs.printFiles.push_back(pdf.toStdString());
  graph->findChild<QAction*>("mnuAutoPrint")->trigger();
  ASSERT_TRUE(d.g().AutoPrint);
  emit graph->StartRequested(4 * 525);
  ASSERT_TRUE(d.WaitForRunEnd());
  graph->findChild<QAction*>("mnuAutoPrint")->trigger();  // the job ends, the file is written
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  EXPECT_EQ(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r"), 2);
}

TEST(MainWindow, RollTheDiceThrowsOnTheRunnerAndRedraws) {
  Desk d;
  d.window.Action(MenuCommand::RollDice)->trigger();
  ASSERT_TRUE(d.WaitForRunEnd());
  EXPECT_EQ(d.g().RollCounts[0], 1);
  EXPECT_NE(d.window.findChild<QLabel*>("lblStatus5")->text(), "none yet");
}

}  // namespace
