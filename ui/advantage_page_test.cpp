#include "ui/advantage_page.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QScrollBar>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/payoff_rows.h"
#include "ui/config_page_for_test.h"
#include "ui/report_table.h"
#include "ui/screen_desk_for_test.h"

namespace {

constexpr int kEvDec = 3;

QTableWidgetItem* Cell(AdvantagePage& page, int betId, int column) {
  return Control<QTableWidget>(page, "picAdvantage")->item(betId - bet::kFirstTableBet, column);
}

QAction* MenuEntry(AdvantagePage& page, const char* name) {
  for (QAction* a : page.PageMenu()->actions())
    if (a->objectName() == name) return a;
  ADD_FAILURE() << name;
  return nullptr;
}

TEST(AdvantagePage, RowsShowTheHouseEdgeInTheColourOfItsSide) {
  ScreenDesk desk;
  AdvantagePage page(desk.table, desk.dialogs);
  auto* grid = Control<QTableWidget>(page, "picAdvantage");
  ASSERT_EQ(grid->rowCount(), 83);
  EXPECT_EQ(Cell(page, bet::kPassLine, 0)->text(), "Pass Line");
  EXPECT_EQ(Cell(page, bet::kPassLine, kEvDec)->text(), "-1.41");
  EXPECT_EQ(Cell(page, bet::kPassLine, kEvDec)->foreground().color(), QColor(255, 0, 0));
  EXPECT_EQ(Cell(page, bet::kPassOdds, kEvDec)->text(), "0.00");  // fair odds, never "-0.00"
  EXPECT_EQ(Cell(page, bet::kPassOdds, kEvDec)->foreground().color(), QColor(0, 0, 0));

  // Place 6 paying 8 to 6 is better than the true odds: the player's bet.
  desk.table.SetPayoff(bet::Place(6), {8, -1, 6});
  page.Refresh();
  EXPECT_EQ(Cell(page, bet::Place(6), 0)->foreground().color(), QColor(0, 0, 255));
  EXPECT_EQ(Cell(page, bet::Place(6), kEvDec)->text(), "6.06");
}

TEST(AdvantagePage, MenuSwitchesGoToTheGame) {
  ScreenDesk desk;
  AdvantagePage page(desk.table, desk.dialogs);
  auto* grid = Control<QTableWidget>(page, "picAdvantage");
  EXPECT_EQ(page.PageMenu()->title(), "&Advantage");
  EXPECT_TRUE(grid->isColumnHidden(6));
  MenuEntry(page, "mnuShowMiscData")->trigger();
  EXPECT_TRUE(desk.table.State().ShowMiscData);
  EXPECT_FALSE(grid->isColumnHidden(6));

  // Counting the barred 12 as a decision softens Don't Pass from -1.40 to -1.36.
  EXPECT_EQ(Cell(page, bet::kDontPass, kEvDec)->text(), "-1.40");
  MenuEntry(page, "mnuIncludeZeroOutcomes")->trigger();
  EXPECT_TRUE(desk.table.State().IncludeZeroOutcomes);
  EXPECT_EQ(Cell(page, bet::kDontPass, kEvDec)->text(), "-1.36");
}

TEST(AdvantagePage, ExportAndPrintTakeTheRowsAsShown) {
  ScreenDesk desk;
  desk.table.Set("ShowMiscData", 1);
  AdvantagePage page(desk.table, desk.dialogs);
  const ReportTable report = page.Report();
  EXPECT_EQ(report.columns.size(), 8);
  ASSERT_EQ(report.rows.size(), 83u);
  EXPECT_EQ(report.rows[bet::kPassLine - 1][kEvDec].text, "-1.41");

  const std::string csv = desk.PathOf("advantage.csv");
  desk.dialogs.files.push_back(csv);
  MenuEntry(page, "mnuExportAdvantage")->trigger();
  QFile file(QString::fromStdString(csv));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().count('\n'), 84);

  const std::string pdf = desk.PathOf("advantage.pdf");
  desk.dialogs.printFiles.push_back(pdf);
  MenuEntry(page, "mnuPrintAdvPay")->trigger();
  EXPECT_GT(QFile(QString::fromStdString(pdf)).size(), 0);
  EXPECT_TRUE(desk.dialogs.messages.empty());
}

TEST(AdvantagePage, ScrollPlaceIsKeptWithTheGame) {
  ScreenDesk desk;
  {
    AdvantagePage page(desk.table, desk.dialogs);
    page.resize(760, 520);
    page.show();
    Control<QScrollBar>(page, "vsbAdvantage")->setValue(20);
    page.CommitPendingEdit();
  }
  EXPECT_EQ(desk.table.State().AdvantageScrollTop, 20);
  AdvantagePage again(desk.table, desk.dialogs);
  again.resize(760, 520);
  again.show();
  QApplication::processEvents();
  EXPECT_EQ(Control<QScrollBar>(again, "vsbAdvantage")->value(), 20);
}

}  // namespace
