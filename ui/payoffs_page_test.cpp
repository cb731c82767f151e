#include "ui/payoffs_page.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "engine/payoff_rows.h"
#include "ui/screen_desk_for_test.h"

namespace {

constexpr int kPlace6 = bet::kPlaceBase + 2;

int GridRowOf(int betId) {
  for (int row = 1; row <= kPayoffGridRows; ++row)
    if (PayoffGridBet(row) == betId) return row;
  return 0;
}

QString Joined(const std::array<QString, 3>& cells) { return cells[0] + " " + cells[1] + " " + cells[2]; }

QLineEdit* Editor(PayoffsPage& page) { return page.findChild<QLineEdit*>(QStringLiteral("txtPayoffs")); }

// Chooses a cell and types into it as a player does: the text replaces the
// cell's, and Enter commits; a key on the middle cell is pressed alone.
void Type(PayoffsPage& page, const PayoffCell& cell, const char* keys) {
  page.Choose(cell);
  if (cell.column == 1) {
    QTest::keyClick(Editor(page), keys[0]);
    return;
  }
  Editor(page)->selectAll();
  QTest::keyClicks(Editor(page), QString::fromLatin1(keys));
  QTest::keyClick(Editor(page), Qt::Key_Return);
}

// Each step edits Place 6 from where the one before left it.
TEST(PayoffsPage, CellEditsKeepThePayoffOrRefuseAndShowTheOldValue) {
  struct Step {
    int column;
    const char* typed;
    const char* shown;
    PayoffRecord record;
    const char* message;  // the title of a refusal, if any
  };
  const Step steps[] = {
      {1, "f", "13 for 6", {7, 0, 6}, nullptr},  // the same payoff shown with the stake
      {1, "f", "13 for 6", {7, 0, 6}, nullptr},  // already "for": nothing changes
      {0, "14", "14 for 6", {8, 0, 6}, nullptr},
      {2, "12", "14 for 12", {2, 0, 12}, nullptr},  // the total stays
      {2, "0", "14 for 12", {2, 0, 12}, "Payoff ratio error on Place 6"},
      {0, "x", "14 for 12", {2, 0, 12}, "Payoff ratio error on Place 6"},
      {1, "T", "2 to 12", {2, -1, 12}, nullptr},
      {2, "6", "2 to 6", {2, -1, 6}, nullptr},
      {0, "7", "7 to 6", {7, -1, 6}, nullptr},
  };
  ScreenDesk desk;
  PayoffsPage page(desk.table, desk.dialogs);
  const int row = GridRowOf(kPlace6);
  for (const Step& s : steps) {
    SCOPED_TRACE(std::to_string(s.column) + " " + s.typed);
    desk.dialogs.messages.clear();
    Type(page, {PayoffTable::Bets, row, s.column}, s.typed);
    EXPECT_EQ(Joined(page.CellTexts(PayoffTable::Bets, row)), QString::fromLatin1(s.shown));
    EXPECT_EQ(Editor(page)->text(), page.CellTexts(PayoffTable::Bets, row)[static_cast<size_t>(s.column)]);
    EXPECT_EQ(desk.table.State().Payoff[kPlace6], s.record);
    ASSERT_EQ(desk.dialogs.messages.size(), s.message ? 1u : 0u);
    if (s.message) {
      EXPECT_EQ(desk.dialogs.messages[0].title, s.message);
    }
  }
}

// An edit still in the field is committed by moving off it, or by the window
// closing; arrow keys cross from the bet grid to the Field grid.
TEST(PayoffsPage, LeavingACellCommitsItAndArrowsMove) {
  ScreenDesk desk;
  PayoffsPage page(desk.table, desk.dialogs);
  page.Choose({PayoffTable::Field, 4, 0});
  QTest::keyClicks(Editor(page), QStringLiteral("3"));
  QTest::keyClick(Editor(page), Qt::Key_Down);
  EXPECT_EQ(desk.table.State().FieldPayoff[4].Win, 3);
  EXPECT_EQ(page.Chosen(), (PayoffCell{PayoffTable::Field, 5, 0}));
  EXPECT_EQ(Editor(page)->text(), QStringLiteral("-1"));

  QTest::keyClicks(Editor(page), QStringLiteral("2"));
  page.CommitPendingEdit();
  EXPECT_EQ(desk.table.State().FieldPayoff[5].Win, 2);

  page.Choose({PayoffTable::Bets, 3, 2});
  QTest::keyClick(Editor(page), Qt::Key_Right);
  EXPECT_EQ(page.Chosen(), (PayoffCell{PayoffTable::Field, 3, 0}));
  QTest::keyClick(Editor(page), Qt::Key_Left);
  EXPECT_EQ(page.Chosen(), (PayoffCell{PayoffTable::Bets, 3, 2}));
  page.Choose({PayoffTable::Bets, kPayoffGridRows, 0});
  QTest::keyClick(Editor(page), Qt::Key_Down);
  EXPECT_EQ(page.Chosen().row, kPayoffGridRows);
}

// The closing check's fault, wherever it is, comes into view and is chosen;
// where the grid was is kept in the game.
TEST(PayoffsPage, ShowRowScrollsTheRowIntoView) {
  struct Case {
    PayoffTable table;
    int row;
    int top;
  };
  const Case cases[] = {{PayoffTable::Bets, 70, 51}, {PayoffTable::Bets, 60, 51}, {PayoffTable::Bets, 2, 2},
                        {PayoffTable::Field, 21, 2}};
  ScreenDesk desk;
  PayoffsPage page(desk.table, desk.dialogs);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.row);
    page.ShowRow(c.table, c.row);
    EXPECT_EQ(page.TopRow(), c.top);
    EXPECT_EQ(desk.table.State().PayoffScrollTop, c.top - 1);
    EXPECT_EQ(page.findChild<QScrollBar*>(QStringLiteral("vsbPayoffs"))->value(), c.top - 1);
    EXPECT_EQ(page.Chosen(), (PayoffCell{c.table, c.row, 0}));
    EXPECT_FALSE(Editor(page)->isHidden());
  }
}

QAction* MenuAction(PayoffsPage& page, const char* name) {
  return page.PageMenu()->findChild<QAction*>(QString::fromLatin1(name));
}

TEST(PayoffsPage, FieldPresetWritesItsRows) {
  ScreenDesk desk;
  PayoffsPage page(desk.table, desk.dialogs);
  MenuAction(page, "mnuSFPlace6")->trigger();
  for (int row = 1; row <= PayoffsPage::kFieldRows; ++row) {
    SCOPED_TRACE(row);
    const QString expected = row >= 7 && row <= 9     ? QStringLiteral("7 to 6")
                             : row >= 10 && row <= 12 ? QStringLiteral("-1 to 1")
                                                      : QStringLiteral("0 to 1");
    EXPECT_EQ(Joined(page.CellTexts(PayoffTable::Field, row)), expected);
  }
  EXPECT_TRUE(desk.dialogs.messages.empty());
}

TEST(PayoffsPage, RestoreAsksFirst) {
  for (const Reply reply : {Reply::No, Reply::Yes}) {
    ScreenDesk desk;
    PayoffsPage page(desk.table, desk.dialogs);
    Type(page, {PayoffTable::Bets, GridRowOf(kPlace6), 0}, "9");
    desk.dialogs.replies.push_back(reply);
    MenuAction(page, "mnuRestoreDefaultPayoffs")->trigger();
    ASSERT_EQ(desk.dialogs.messages.size(), 1u);
    const MessageRequest& asked = desk.dialogs.messages[0];
    EXPECT_EQ(asked.title, "Confirm?");
    EXPECT_EQ(asked.text, "Do you want to restore all payoffs to their original Dicemill settings?");
    EXPECT_EQ(desk.table.State().Payoff[kPlace6].Win, reply == Reply::Yes ? 7 : 9);
    EXPECT_EQ(page.CellTexts(PayoffTable::Bets, GridRowOf(kPlace6))[0], reply == Reply::Yes ? "7" : "9");
  }
}

}  // namespace
