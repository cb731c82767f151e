// Bet Trends, Chip-Stacks and Flags: live tables that follow the table.
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "script/text_form.h"
#include "store/bet_file.h"
#include "ui/bet_trends_screen.h"
#include "ui/chip_stacks_screen.h"
#include "ui/flags_screen.h"
#include "ui/screen_desk_for_test.h"
#include "ui/signed_cells.h"

namespace {

// The row of the grid whose column `column` reads `text`; -1 when none does.
int RowOf(const QTableWidget& grid, int column, const QString& text) {
  for (int r = 0; r < grid.rowCount(); ++r)
    if (grid.item(r, column) && grid.item(r, column)->text() == text) return r;
  return -1;
}

QStringList RowTexts(const QTableWidget& grid, int row) {
  QStringList texts;
  for (int c = 0; c < grid.columnCount(); ++c) texts << (grid.item(row, c) ? grid.item(row, c)->text() : QString());
  return texts;
}

TEST(BetTrendsScreen, StripsShowWinsBlueAndLossesRedLatestLast) {
  ScreenDesk desk;
  BetTrendsScreen screen(desk.table, desk.dialogs);
  screen.show();
  auto* grid = screen.findChild<QTableWidget*>("picTrends");
  EXPECT_EQ(grid->rowCount(), 0);
  EXPECT_TRUE(screen.findChild<QLabel*>("lblNoTrends")->isVisibleTo(&screen));

  // Point 4, a Place 6 that wins once, then the seven-out takes both bets.
  ASSERT_TRUE(desk.table.Bet(bet::kPassLine, 10).Done());
  ASSERT_TRUE(desk.table.Roll(2, 2).Done());
  ASSERT_TRUE(desk.table.Bet(bet::Place(6), 12).Done());
  ASSERT_TRUE(desk.table.Roll(3, 3).Done());
  ASSERT_TRUE(desk.table.Roll(3, 4).Done());

  const Game& g = desk.table.State();
  struct Expected {
    int betId;
    QString latest, before;
    QString span;
  };
  const Expected rows[] = {
      {bet::Place(6), "-12", "14", "2 rolls"},
      {bet::kPassLine, "-10", "", "1 rolls"},
  };
  ASSERT_EQ(grid->rowCount(), 2);
  for (const Expected& e : rows) {
    SCOPED_TRACE(g.BetName[e.betId]);
    const int r = RowOf(*grid, 0, QString::fromStdString(g.BetName[e.betId]));
    ASSERT_GE(r, 0);
    const QStringList texts = RowTexts(*grid, r);
    EXPECT_EQ(texts[Game::kTrendCells], e.latest);
    EXPECT_EQ(texts[Game::kTrendCells - 1], e.before);
    EXPECT_EQ(texts.back(), e.span);
    EXPECT_EQ(grid->item(r, Game::kTrendCells)->foreground().color(), signed_cells::TextColor(-1));
    if (!e.before.isEmpty()) {
      EXPECT_EQ(grid->item(r, Game::kTrendCells - 1)->foreground().color(), signed_cells::TextColor(1));
    }
  }
  const ReportTable report = screen.Report();
  EXPECT_EQ(report.preamble, QStringList{kBetTrendsHeading});
  EXPECT_EQ(report.rows.size(), 2u);
}

// A script that names Chip-Stack #1, fills it and sets a flag.
void LoadStopLossScript(ScreenDesk& desk) {
  const std::string text =
      "When\n  Initializing Auto-Bet\nor while\n  Flag \"recorded\" is False\nthen\n"
      "  Name Chip-Stack #1 \"stop-loss\"\n  Bet 100% of bankroll on Chip-Stack #1\n"
      "  Subtract $200 from Chip-Stack #1\n  Set flag \"recorded\" to True\n";
  Script script;
  std::string error;
  ASSERT_TRUE(ReadScriptText(text, script, error)) << error;
  const std::string path = desk.PathOf("stop-loss.bet");
  ASSERT_TRUE(SaveBetFile(path, script).Ok);
  ASSERT_TRUE(desk.table.LoadScript(path).Done());
}

TEST(FlagsAndChipStacksScreens, FollowTheScriptAsItRuns) {
  ScreenDesk desk;
  FlagsScreen flags(desk.table, desk.dialogs);
  ChipStacksScreen stacks(desk.table, desk.dialogs);
  flags.show();
  stacks.show();
  LoadStopLossScript(desk);
  auto* flagGrid = flags.findChild<QTableWidget*>("picFlags");
  ASSERT_EQ(flagGrid->rowCount(), 1);
  EXPECT_EQ(RowTexts(*flagGrid, 0), (QStringList{"1", "recorded", "False", "False"}));

  ASSERT_TRUE(desk.table.RunScriptPass().Done());
  EXPECT_EQ(RowTexts(*flagGrid, 0), (QStringList{"1", "recorded", "True", "True"}));
  EXPECT_FALSE(flags.findChild<QLabel*>("lblNoFlags")->isVisibleTo(&flags));

  auto* stackGrid = stacks.findChild<QTableWidget*>("picStacks");
  const int r = RowOf(*stackGrid, 0, "1");
  ASSERT_GE(r, 0);
  const Currency value = desk.table.State().BetAmount[bet::kFirstStack + 1];
  EXPECT_NE(value, 0);
  EXPECT_EQ(RowTexts(*stackGrid, r),
            (QStringList{"1", "stop-loss", QString::fromStdString(FormatNumberWithCommas(value)), "7"}));
  // Printed as shown: the value in the colour of its sign, the name in the page's.
  const ReportRow printed = stacks.Report().rows.at(static_cast<size_t>(r));
  EXPECT_EQ(printed[2].color, signed_cells::TextColor(value > 0 ? 1 : -1));
  EXPECT_FALSE(printed[1].color.isValid());
}

TEST(ChipStacksScreen, PutsTheChosenStackOnATrayTool) {
  ScreenDesk desk;
  ChipStacksScreen screen(desk.table, desk.dialogs);
  screen.show();
  auto* grid = screen.findChild<QTableWidget*>("picStacks");
  auto* tool8 = screen.findChild<QPushButton*>("cmdTool8");
  EXPECT_FALSE(tool8->isEnabled());  // nothing chosen
  const int before = desk.table.State().TrayStack[2];
  ASSERT_NE(before, bet::kFirstStack + 3);

  // Stack 3 stands on tool 9 already; a stack may stand on two tools.
  screen.SelectStack(3);
  ASSERT_EQ(screen.SelectedStack(), 3);
  tool8->click();
  EXPECT_EQ(desk.table.State().TrayStack[2], bet::kFirstStack + 3);
  EXPECT_EQ(RowTexts(*grid, RowOf(*grid, 0, "3")).back(), QStringLiteral("8, 9"));
  // The stack tool 8 held, now nowhere and empty, drops out of the list.
  EXPECT_EQ(RowOf(*grid, 0, QString::number(before - bet::kFirstStack)), -1);

  // A stack not in use is listed for choosing.
  screen.SelectStack(55);
  ASSERT_EQ(screen.SelectedStack(), 55);
  screen.findChild<QPushButton*>("cmdTool10")->click();
  EXPECT_EQ(RowTexts(*grid, RowOf(*grid, 0, "55")).back(), QStringLiteral("10"));
  EXPECT_TRUE(screen.findChild<QLabel*>("lblTray")->text().contains("8: #3"));
  EXPECT_EQ(screen.SelectedStack(), 55);  // the choice survives the refresh
  EXPECT_TRUE(desk.dialogs.messages.empty());
}

}  // namespace
