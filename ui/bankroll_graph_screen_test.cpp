// The bankroll graph screen on a real table, offscreen, with its questions
// answered from a queue.
#include "ui/bankroll_graph_screen.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "engine/frontend.h"
#include "engine/game.h"
#include "sim/table.h"
#include "ui/dialogs_for_test.h"
#include "ui/status_panel.h"

namespace {

struct Screen {
  SilentFrontEnd frontEnd;
  Table table{frontEnd};
  QueuedDialogs dialogs;
  std::unique_ptr<BankrollGraphScreen> screen;

  explicit Screen(int rolls = 0) {
    if (rolls > 0) {
      PlayForGraphPicture(table, rolls);
    } else {
      table.StartFresh();
    }
    screen = std::make_unique<BankrollGraphScreen>(table, dialogs);
  }
  const Game& g() const { return table.State(); }
  QString Text(const char* label) const { return screen->findChild<QLabel*>(label)->text(); }
  void Trigger(const QString& action) const { screen->findChild<QAction*>(action)->trigger(); }
  void Click(const char* button) const { screen->findChild<QAbstractButton*>(button)->click(); }
};

TEST(BankrollGraphScreen, ARunOfAThousandRollsShowsItsSecondWindow) {
  Screen s;
  s.table.HyperDrive(1000);  // the screen hears the run end and redraws
  const GraphPicture& shown = s.screen->View()->Picture();
  EXPECT_EQ(shown.count, 475);
  EXPECT_EQ(shown.firstRoll, 525);
  EXPECT_EQ(s.Text("lblRollsLeft"), "525");
  EXPECT_EQ(s.Text("lblRollsRight"), "1,050");
  EXPECT_EQ(s.Text("lblTotalRolls"), "1,000");
  EXPECT_EQ(shown.points[474], s.g().Bankroll());
  EXPECT_EQ(s.Text("lblStopReason"), "Stopped by roll count on Auto-Play screen.");
  // The grid: seven lines 50 scale units apart, from the top down.
  const QStringList labels = GridLabels(shown);
  ASSERT_EQ(labels.size(), 7);
  EXPECT_EQ(labels.front().toStdString(), FormatNumberWithCommas(s.g().GraphTop));
  EXPECT_EQ(labels.back().toStdString(), FormatNumberWithCommas(GraphBottom(s.g())));
}

TEST(BankrollGraphScreen, ScaleButtonsClimbTheLadderAndMoveTheWindow) {
  Screen s;
  s.Trigger("mnuAutoAdjustType0");
  ASSERT_EQ(s.g().AutoAdjustType, 0);
  struct Step {
    const char* button;
    Currency scale;
    Currency topMove;  // from the top before, for the moves
  };
  const Step steps[] = {{"picLargerUp", 2, 0},   {"picLargerUp", 4, 0},    {"picLargerUp", 10, 0},
                        {"picSmallerUp", 4, 0},  {"picUpScaleUp", 4, 200}, {"picDownScaleUp", 4, -200}};
  Currency scale = s.g().GraphScale;
  ASSERT_EQ(scale, 1);
  for (const Step& step : steps) {
    const Currency top = s.g().GraphTop;
    s.Click(step.button);
    EXPECT_EQ(s.g().GraphScale, step.scale) << step.button;
    if (step.topMove != 0) {
      EXPECT_EQ(s.g().GraphTop - top, step.topMove) << step.button;
    }
    EXPECT_EQ(s.screen->View()->Picture().scale, step.scale) << step.button;
  }
}

TEST(BankrollGraphScreen, TheMovingAverageIsAskedForAndKeptWithinTheWindow) {
  struct Case {
    Currency entered;
    int32_t kept;
    const char* caption;
  };
  const Case cases[] = {{600, 525, "525 roll moving average"},
                        {100, 100, "100 roll moving average"},
                        {0, 0, "All rolls moving average"},
                        {-5, 0, "All rolls moving average"}};
  for (const Case& c : cases) {
    Screen s(1000);
    s.dialogs.numbers.push_back(c.entered);
    s.Trigger("mnuSetAverage");
    ASSERT_FALSE(s.dialogs.messages.empty());
    EXPECT_EQ(s.dialogs.messages.back().title, "Set Bankroll Moving Average");
    EXPECT_EQ(s.g().MovingAverageRolls, c.kept);
    EXPECT_EQ(s.Text("lblMovingAverage"), c.caption);
    const GraphPicture& shown = s.screen->View()->Picture();
    ASSERT_TRUE(shown.withAverage);
    EXPECT_EQ(shown.averages[99], MovingAverage(s.g(), 100, c.kept)) << c.caption;
  }
}

TEST(BankrollGraphScreen, ReferenceLinesGiveTheirDifferences) {
  Screen s(1000);
  s.Trigger("mnuDisplayRefLines");
  ASSERT_TRUE(s.g().DisplayRefLines);
  struct Case {
    int first, second;
    bool shown;
  };
  const Case cases[] = {{100, 300, true}, {300, 100, true}, {50, 500, false}};
  for (const Case& c : cases) {
    s.screen->findChild<QScrollBar*>("HScroll1")->setValue(c.first);
    s.screen->findChild<QScrollBar*>("HScroll2")->setValue(c.second);
    EXPECT_EQ(s.g().RefLinePosition[0], c.first);
    EXPECT_EQ(s.g().RefLinePosition[1], c.second);
    const RefLineDifferences d = ReferenceLineDifferences(s.g());
    EXPECT_EQ(d.Valid, c.shown);
    if (c.shown) {
      EXPECT_EQ(s.Text("lblRefRolls"), QStringLiteral("Rolls:  %1").arg(d.Rolls));
      EXPECT_EQ(s.Text("lblRefBankroll"), "Bankroll:  " + MoneyLabel(d.Bankroll));
    } else {
      EXPECT_EQ(s.Text("lblRefRolls"), "Rolls:  -");
    }
  }
  // A line dragged on the graph stands where the mouse lets it go.
  BankrollGraphView* view = s.screen->View();
  view->resize(view->sizeHint());
  const int y = view->height() / 2;
  QTest::mousePress(view, Qt::LeftButton, {}, QPoint(static_cast<int>(view->XOf(500)), y));
  QTest::mouseMove(view, QPoint(static_cast<int>(view->XOf(200)), y));
  QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(static_cast<int>(view->XOf(200)), y));
  EXPECT_EQ(s.g().RefLinePosition[1], 200);
  s.Trigger("mnuDisplayRefLines");
  EXPECT_FALSE(s.g().DisplayRefLines);
}

bool IsPdf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) && file.read(4) == "%PDF";
}

TEST(BankrollGraphScreen, PrintNowFillsAPageBeforeAskingForThePrinter) {
  Screen s(600);
  QTemporaryDir folder;
  const QString pdf = folder.filePath("graphs.pdf");
  s.dialogs.replies = {Reply::No, Reply::Yes};
  s.dialogs.printFiles.push_back(pdf.toStdString());
  s.Trigger("mnuPrintNow");
  EXPECT_TRUE(s.dialogs.printersAsked.empty());
  s.Trigger("mnuPrintNow");
  ASSERT_EQ(s.dialogs.messages.size(), 2u);
  EXPECT_EQ(s.dialogs.messages[1].text,
            "3 graphs will fit on a page.\rSo far you've sent 2 to the current page.\r\r"
            "Would you like to finish printing now?");
  ASSERT_EQ(s.dialogs.printersAsked.size(), 1u);
  EXPECT_TRUE(IsPdf(pdf));
}

TEST(BankrollGraphScreen, AutoPrintTakesEachFullWindowItSees) {
  struct Case {
    int rolls;
    bool fromGame;  // switched on in the game, not from the menu: the printer is asked at the first page
    bool printed;
  };
  for (const Case c : {Case{1050, false, true}, Case{1000, false, false}, Case{1050, true, true}}) {
    Screen s;
    QTemporaryDir folder;
    const QString pdf = folder.filePath("auto.pdf");
    s.dialogs.printFiles.push_back(pdf.toStdString());
    if (c.fromGame) {
      ASSERT_TRUE(s.table.Set("AutoPrint", 1).Done());
      EXPECT_TRUE(s.dialogs.printersAsked.empty());
    } else {
      s.Trigger("mnuAutoPrint");
      EXPECT_TRUE(s.g().AutoPrint);
    }
    EXPECT_EQ(s.Text("lblAutoPrint"), "Auto-Print ON");
    s.table.HyperDrive(c.rolls);
    EXPECT_EQ(s.dialogs.printersAsked.size(), c.fromGame && !c.printed ? 0u : 1u) << c.rolls;
    // The job is finished, and the file written, when the printing stops.
    s.Trigger("mnuAutoPrint");
    EXPECT_EQ(s.Text("lblAutoPrint"), "");
    EXPECT_EQ(IsPdf(pdf), c.printed) << c.rolls;
  }
}

// The look's menu items set the game's switches; during a run the choice is
// drawn at once and told to the table when the run ends.
TEST(BankrollGraphScreen, DisplaySwitchesAreTheGamesAndWaitOutARun) {
  struct Case {
    const char* action;
    const char* setting;
    int32_t value;
  };
  const Case cases[] = {{"mnuDisplayGridLines", "DisplayGridLines", 0}, {"mnuDisplayAverage", "DisplayAverage", 1},
                        {"mnuGraphType2", "GraphStyle", 2},            {"mnuGraphType1", "GraphStyle", 1},
                        {"mnuSetColor5", "GraphColor", 5},             {"mnuSetColor0", "GraphColor", 0}};
  for (const bool duringRun : {false, true}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(c.action) + (duringRun ? " during a run" : ""));
      Screen s(600);
      if (c.value == 0) {
        ASSERT_TRUE(s.table.Set(c.setting, 1).Done());  // so that the choice changes it
      }
      if (duringRun) s.table.BeginRun();
      s.Trigger(c.action);
      EXPECT_TRUE(s.screen->findChild<QAction*>(c.action)->isChecked() || c.value == 0);
      if (duringRun) {
        EXPECT_NE(s.table.Get(c.setting).value, c.value);
        s.table.EndRun(StopReason::None);
      }
      EXPECT_EQ(s.table.Get(c.setting).value, c.value);
    }
  }
}

TEST(BankrollGraphScreen, TheLookIsDrawnAsTheGameKeepsIt) {
  Screen s(600);
  const GraphPicture& shown = s.screen->View()->Picture();
  EXPECT_FALSE(shown.withAverage);
  ASSERT_TRUE(s.table.Set("GraphStyle", 2).Done());
  ASSERT_TRUE(s.table.Set("DisplayGridLines", 0).Done());
  EXPECT_TRUE(s.screen->findChild<QAction*>("mnuGraphType2")->isChecked());
  EXPECT_FALSE(s.screen->findChild<QAction*>("mnuDisplayGridLines")->isChecked());
  // Averages the game did not keep while hidden are there once they are shown.
  s.Trigger("mnuDisplayAverage");
  ASSERT_TRUE(s.g().DisplayAverage);
  ASSERT_TRUE(shown.withAverage);
  for (const int point : {1, 300, 75}) {
    EXPECT_EQ(s.g().GraphAverage[static_cast<size_t>(point)], MovingAverage(s.g(), point, s.g().MovingAverageRolls));
    EXPECT_EQ(shown.averages[static_cast<size_t>(point - 1)], s.g().GraphAverage[static_cast<size_t>(point)]);
  }
}

TEST(BankrollGraphScreen, TheButtonAsksForRunsAndTheThrottleReachesTheTable) {
  Screen s;
  auto* button = s.screen->findChild<QPushButton*>("cmdHyperDrive");
  QSignalSpy start(s.screen.get(), &BankrollGraphScreen::StartRequested);
  QSignalSpy stop(s.screen.get(), &BankrollGraphScreen::StopRequested);
  s.screen->SetRolls(5000);
  button->click();
  ASSERT_EQ(start.size(), 1);
  EXPECT_EQ(start[0][0].toInt(), 5000);
  s.screen->SetRunning(true);
  EXPECT_EQ(button->text(), "Stop Hyper-&Drive");
  button->click();
  EXPECT_EQ(stop.size(), 1);
  s.screen->findChild<QSlider*>("hscrThrottle")->setValue(40);
  EXPECT_EQ(s.g().ThrottleValue, 40);
}

}  // namespace
