// The Summary, Roll Totals, Roll Frequencies and Bet Results screens on a
// real table fed from the pad, offscreen, with questions answered from a queue.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTableWidget>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/frontend.h"
#include "engine/game.h"
#include "engine/result_cells.h"
#include "sim/table.h"
#include "ui/bet_results_screen.h"
#include "ui/dialogs_for_test.h"
#include "ui/roll_frequencies_screen.h"
#include "ui/roll_totals_bars.h"
#include "ui/roll_totals_screen.h"
#include "ui/sign_colour.h"
#include "ui/summary_screen.h"

namespace {

using Pair = std::pair<int, int>;
// A come-out seven, the point of 4 set and then made.
const std::vector<Pair> kPassThenPoint = {{3, 4}, {2, 2}, {2, 2}};

// A table with settings of its own: the screens keep the player's choices,
// and tests run side by side in separate processes.
struct Desk {
  QTemporaryDir settings;
  SilentFrontEnd frontEnd;
  Table table{frontEnd};
  QueuedDialogs dialogs;
  Desk() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    table.StartFresh();
  }
  void Roll(const std::vector<Pair>& rolls) {
    for (auto [d1, d2] : rolls) table.PadRoll(d1, d2);
  }
};

// The screen shown, as a player opens it: shown screens follow the table.
template <class Screen>
std::unique_ptr<Screen> Open(Desk& d) {
  auto screen = std::make_unique<Screen>(d.table, d.dialogs);
  screen->show();
  return screen;
}

// The report's first column to its second, for reading figures by name.
QString Cell(const ReportTable& r, const QString& label, size_t column = 1) {
  for (const ReportRow& row : r.rows)
    if (row[0].text.trimmed() == label) return row[column].text;
  return QStringLiteral("(no row %1)").arg(label);
}

// Captions and group titles of the summary in the order a reader meets them.
void Captions(const QObject* parent, QStringList& out) {
  for (const QObject* child : parent->children()) {
    if (auto* box = qobject_cast<const QGroupBox*>(child); box && !box->title().isEmpty()) out << box->title();
    if (auto* label = qobject_cast<const QLabel*>(child); label && label->text().endsWith(QLatin1Char(':')))
      out << label->text();
    Captions(child, out);
  }
}

TEST(SummaryScreen, ShowsEveryGroupInOrderWithTheHandFigures) {
  Desk d;
  d.Roll(kPassThenPoint);
  auto screen = Open<SummaryScreen>(d);
  const ReportTable r = screen->Report();
  EXPECT_EQ(r.heading, "Dicemill Summary");
  QStringList expected, shown;
  for (const SummaryRow& row : d.table.Summary()) expected << QString::fromStdString(row.Label);
  Captions(screen.get(), shown);
  EXPECT_EQ(shown, expected);
  const std::pair<const char*, const char*> figures[] = {
      {"Total rolls:", "3"},          {"# of Come-out rolls:", "2"},         {"# that Passed (7, 11):", "1"},
      {"# of Points established:", "1"}, {"# that Passed (rolled point):", "1"}, {"Total Passes:", "2"},
      {"Total Misses:", "0"}};
  for (auto [label, value] : figures) EXPECT_EQ(Cell(r, label), value) << label;
}

TEST(SummaryScreen, NamesAndColoursTheNetBySign) {
  struct Case {
    Currency passLine;
    std::vector<Pair> rolls;
    const char* label;
    const char* share;
    QColor colour;
  };
  const Case cases[] = {{0, {{3, 4}}, "Net win:", "0%", QColor()},
                        {10, {{3, 4}}, "Net win:", "100.00%", kGainColour},
                        {10, {{1, 1}}, "Net loss:", "-100.00%", kLossColour}};
  for (const Case& c : cases) {
    Desk d;
    if (c.passLine > 0) d.table.Bet(bet::kPassLine, c.passLine);
    d.Roll(c.rolls);
    auto screen = Open<SummaryScreen>(d);
    const QLabel* net = screen->findChild<QLabel*>("lblNet");
    ASSERT_NE(net, nullptr);
    EXPECT_EQ(net->text(), c.label);
    const ReportTable r = screen->Report();
    for (const ReportRow& row : r.rows)
      if (row[0].text.trimmed() == c.label) {
        EXPECT_EQ(row[1].color, c.colour) << c.label;
        EXPECT_EQ(row[2].text, c.share);
      }
  }
}

TEST(SummaryScreen, PrintsToPdf) {
  Desk d;
  d.Roll(kPassThenPoint);
  auto screen = Open<SummaryScreen>(d);
  QTemporaryDir dir;
  const QString pdf = dir.filePath("summary.pdf");
  d.dialogs.printFiles.push_back(pdf.toStdString());
  screen->Print();
  ASSERT_EQ(d.dialogs.printersAsked, std::vector<std::string>{"Print Summary"});
  QFile file(pdf);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.read(4) == "%PDF");
  EXPECT_TRUE(d.dialogs.messages.empty());
}

TEST(RollTotalsScreen, EachViewHasItsRowsAndSevenItsShare) {
  Desk d;
  d.Roll(kPassThenPoint);
  auto screen = Open<RollTotalsScreen>(d);
  struct Case {
    TotalsView view;
    size_t rows;
    const char* first;
    const char* last;
  };
  const Case cases[] = {{TotalsView::StandardNumbers, 11, "2", "12"},
                        {TotalsView::DistinguishableCombos, 21, "1-1", "6-6"},
                        {TotalsView::UniqueCombos, 36, "1-1", "6-6"},
                        {TotalsView::DiceFaces, 12, "Die 1, face 1", "Die 2, face 6"}};
  for (const Case& c : cases) {
    screen->findChild<QAction*>(QStringLiteral("mnuDisplayTotals%1").arg(static_cast<int>(c.view)))->trigger();
    const auto& rows = screen->Bars()->Rows();
    ASSERT_EQ(rows.size(), c.rows);
    EXPECT_EQ(rows.front().Label, c.first);
    EXPECT_EQ(rows.back().Label, c.last);
  }
  screen->SetView(TotalsView::StandardNumbers);
  const ReportTable r = screen->Report();
  EXPECT_EQ(Cell(r, "7", 1), "1");
  EXPECT_EQ(Cell(r, "7", 3), "33.33%");
  EXPECT_EQ(Cell(r, "7", 4), "16.67%");
  EXPECT_EQ(Cell(r, "4", 1), "2");
  EXPECT_EQ(screen->findChild<QLabel*>("lblTotalRolls")->text(), "3");
  // The bar's mark: a seventh of three rolls would be a sixth of them.
  EXPECT_DOUBLE_EQ(screen->Bars()->ProbableCount(screen->Bars()->Rows()[5]), 0.5);
}

TEST(RollTotalsScreen, SaysSkewedOnlyWithPercentageDiceOn) {
  Desk d;
  auto screen = Open<RollTotalsScreen>(d);
  const QLabel* skewed = screen->findChild<QLabel*>("lblSkewed");
  for (int on : {0, 1, 0}) {
    ASSERT_TRUE(d.table.Set("UseSkewedProbability", on).Done());
    EXPECT_EQ(skewed->isVisible(), on == 1);
    EXPECT_EQ(screen->Report().heading.endsWith("(skewed)"), on == 1);
  }
  screen->findChild<QRadioButton*>("optShowProb1")->click();
  EXPECT_TRUE(screen->Report().preamble.contains("Percentages vs. current skewed probability"));
}

TEST(RollTotalsScreen, ColoursComeFromTheChooserAndACancelKeepsThem) {
  Desk d;
  auto screen = Open<RollTotalsScreen>(d);
  QColor answer(10, 20, 30);
  screen->SetColorChooser([&](const QColor&, QWidget*) { return answer; });
  screen->findChild<QAction*>("mnuBackgroundColor")->trigger();
  auto* bars = screen->findChild<RollTotalsBars*>();
  EXPECT_EQ(bars->grab().toImage().pixelColor(1, 1), answer);
  answer = QColor();
  screen->findChild<QAction*>("mnuBackgroundColor")->trigger();
  EXPECT_EQ(bars->grab().toImage().pixelColor(1, 1), QColor(10, 20, 30));
}

TEST(RollFrequenciesScreen, ListsTheSelectionsAndShowsTheChosenOne) {
  Desk d;
  d.Roll(kPassThenPoint);
  auto screen = Open<RollFrequenciesScreen>(d);
  const auto* list = screen->findChild<QComboBox*>("cmbFreqNum");
  const auto* all = screen->findChild<QTableWidget*>("tblAllSelections");
  ASSERT_EQ(list->count(), 88);
  ASSERT_EQ(all->rowCount(), 88);
  for (int i = 0; i < 88; ++i) {
    EXPECT_EQ(list->itemText(i), FrequencySelections()[static_cast<size_t>(i)].Caption);
    EXPECT_EQ(all->item(i, 0)->text(), list->itemText(i));
  }
  EXPECT_EQ(list->itemText(0), "Number 2 (1-1)");
  EXPECT_EQ(list->itemText(87), "Die 2, face 6");

  const int any7 = list->findText("Any 7");
  const_cast<QTableWidget*>(all)->setCurrentCell(any7, 2);  // a click on the table picks it
  EXPECT_EQ(screen->Selection(), any7);
  const std::pair<const char*, const char*> figures[] = {
      {"lblTotalRolls", "3"}, {"lblSelectionRolls", "1"}, {"lblRollsSinceLast", "2"},
      {"lblActualPct", "33.33%"}, {"lblProbablePct", "16.67%"}, {"lblAverageRolls", "6.00"}};
  for (auto [name, text] : figures) EXPECT_EQ(screen->findChild<QLabel*>(name)->text(), text) << name;
  const ReportTable r = screen->Report();
  EXPECT_EQ(r.heading, "Roll Frequencies for Any 7");
  EXPECT_EQ(r.preamble.last(), "Average # of Rolls to achieve:    6.00");

  auto* probable = screen->findChild<QPushButton*>("cmdProbable");
  const QLabel* caption = screen->findChild<QLabel*>("lblProbableCaption");
  EXPECT_EQ(caption->text(), "True probable %:");
  probable->click();
  EXPECT_EQ(caption->text(), "Skewed probable %:");
  probable->click();
  EXPECT_EQ(caption->text(), "True probable %:");
}

// A $6 Place 6 that wins $7 once the point is up.
struct PlaceSixWon : Desk {
  PlaceSixWon() {
    Roll({{3, 4}, {2, 2}});
    table.Bet(bet::Place(6), 6);
    Roll({{3, 3}});
  }
};

QString Figure(const QTableWidget* grid, int row, int column) { return grid->item(row, column)->text(); }

TEST(BetResultsScreen, ActualAndPhantomResultsOfTheSelectedBets) {
  PlaceSixWon d;
  auto screen = Open<BetResultsScreen>(d);
  const auto* grid = screen->findChild<QTableWidget*>("grdResults");
  enum { kTotalCount = 0, kTotalAmount = 1 };
  enum { kWagers = 0, kWins = 1, kLosses = 2, kNet = 3 };
  struct Case {
    int kind;
    int betId;
    const char* wagers;  // Total #
    const char* net;     // Total $
  };
  // The Field was never bet: its phantom unit was decided on every roll.
  const Case cases[] = {{results::kActual, bet::Place(6), "1", "7"},
                        {results::kActual, bet::kField, "0", "0"},
                        {results::kPhantom, bet::kField, "3", nullptr}};
  for (const Case& c : cases) {
    screen->findChild<QRadioButton*>(QStringLiteral("optDataType%1").arg(c.kind))->click();
    screen->SelectBets({c.betId});
    EXPECT_EQ(Figure(grid, kTotalCount, kWagers), c.wagers) << c.betId;
    if (c.net) {
      EXPECT_EQ(Figure(grid, kTotalAmount, kNet), c.net) << c.betId;
    }
  }
  screen->SetKind(results::kActual);
  screen->SelectBets({bet::Place(6)});
  const auto* list = screen->findChild<QListWidget*>("lstBets");
  EXPECT_TRUE(list->item(bet::Place(6) - 1)->font().bold());  // the one bet made
  EXPECT_FALSE(list->item(bet::kField - 1)->font().bold());
  EXPECT_EQ(Figure(grid, kTotalAmount, kWagers), "6");
  EXPECT_EQ(grid->item(kTotalAmount, kNet)->foreground().color(), kGainColour);
  EXPECT_EQ(screen->findChild<QLabel*>("lblCurrentWagered")->text(), "$6");
  EXPECT_EQ(screen->findChild<QLabel*>("lblNumRolls")->text(), "3");
  EXPECT_EQ(screen->Report().preamble.first(), "Results of actual decided wagers for this bet:");

  screen->findChild<QPushButton*>("cmdSelectAll")->click();
  EXPECT_EQ(screen->SelectedBets().size(), 83u);
  EXPECT_EQ(screen->Report().preamble.first(), "Combined results of actual decided wagers for these 83 bets:");
}

TEST(BetResultsScreen, PrintingWantsABetSelected) {
  PlaceSixWon d;
  auto screen = Open<BetResultsScreen>(d);
  QTemporaryDir dir;
  d.dialogs.printFiles.push_back(dir.filePath("results.pdf").toStdString());
  screen->Print();
  ASSERT_EQ(d.dialogs.messages.size(), 1u);
  EXPECT_EQ(d.dialogs.messages[0].title, "Print Bet Results");
  EXPECT_EQ(d.dialogs.messages[0].text, "You need to select one or more bets to print.");
  EXPECT_TRUE(d.dialogs.printersAsked.empty());
  screen->SelectBets({bet::Place(6)});
  screen->Print();
  EXPECT_EQ(d.dialogs.printersAsked.size(), 1u);
  EXPECT_TRUE(QFile::exists(dir.filePath("results.pdf")));
}

}  // namespace
