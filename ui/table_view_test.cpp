// The layout's spots and the table view's answers to mouse and keys,
// offscreen.
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/table_commands.h"
#include "ui/layout_geometry.h"
#include "ui/table_view.h"

namespace {

// Grid points that never fall on a line of the layout.
template <class F>
void ForGrid(F&& visit) {
  for (qreal x = 0.1; x < layout::kWidth; x += 3)
    for (qreal y = 0.1; y < layout::kHeight; y += 3) visit(QPointF(x, y));
}

TEST(LayoutGeometry, EverySpotIsFoundAtItsChipsAndNoSpotsOverlap) {
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) EXPECT_EQ(layout::BetAt(layout::ChipPoint(id), true), id);
  ForGrid([](QPointF at) {
    int under = 0;
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) under += layout::Region(id).contains(at);
    EXPECT_LE(under, 1) << at.x() << "," << at.y();
    EXPECT_FALSE(bet::IsHop(layout::BetAt(at, false))) << at.x() << "," << at.y();
    // The tray lies off the felt: a point is a bet or a tool, never both.
    if (layout::ToolAt(at) != 0) {
      EXPECT_EQ(layout::BetAt(at, true), 0);
    }
  });
  for (int tool : layout::TrayTools()) EXPECT_EQ(layout::ToolAt(layout::ToolArea(tool).center()), tool);
}

// A view at 1.1 times the logical size, with the Hop bets shown or not.
struct Desk {
  TableView view;
  explicit Desk(bool showHop = false) {
    view.resize(1100, 616);
    TableLook look;
    look.showHop = showHop;
    view.SetLook(look);
  }
  QPoint At(int betId) const { return view.BetCentre(betId).toPoint(); }
  QPoint AtTool(int tool) const {
    return layout::ToWidget(view.size()).map(layout::ToolArea(tool).center()).toPoint();
  }
};

TEST(TableView, ClicksNameTheirSpotOrTool) {
  struct Case {
    Qt::MouseButton button;
    Qt::KeyboardModifiers keys;
    int bet, tool;
    const char* signal;  // "bet", "shift", "tool" or "roll"
  };
  const Case cases[] = {
      {Qt::LeftButton, {}, bet::Place(6), 0, "bet"},
      {Qt::LeftButton, {}, bet::Buy(10), 0, "bet"},
      {Qt::LeftButton, {}, bet::DontComeOdds(4), 0, "bet"},
      {Qt::LeftButton, Qt::ShiftModifier, bet::kDontPassOdds, 0, "shift"},
      {Qt::LeftButton, {}, bet::kBig8, 0, "bet"},
      {Qt::RightButton, {}, bet::kField, 0, "roll"},
      {Qt::LeftButton, {}, 0, 3, "tool"},
      {Qt::LeftButton, {}, 0, kToolCallOff, "tool"},
      {Qt::LeftButton, {}, 0, layout::kToolRemove, "tool"},
  };
  for (const Case& c : cases) {
    Desk d;
    QSignalSpy bets(&d.view, &TableView::BetClicked), tools(&d.view, &TableView::ToolClicked);
    QSignalSpy rolls(&d.view, &TableView::RollRequested);
    QTest::mouseClick(&d.view, c.button, c.keys, c.tool ? d.AtTool(c.tool) : d.At(c.bet));
    const std::string signal = c.signal;
    SCOPED_TRACE(signal + " " + std::to_string(c.bet) + " " + std::to_string(c.tool));
    ASSERT_EQ(bets.count(), signal == "bet" || signal == "shift" ? 1 : 0);
    ASSERT_EQ(tools.count(), signal == "tool" ? 1 : 0);
    ASSERT_EQ(rolls.count(), signal == "roll" ? 1 : 0);
    if (bets.count() == 1) {
      EXPECT_EQ(bets[0][0].toInt(), c.bet);
      EXPECT_EQ(bets[0][1].toBool(), signal == "shift");
    }
    if (tools.count() == 1) {
      EXPECT_EQ(tools[0][0].toInt(), c.tool);
    }
  }
}

TEST(TableView, HiddenHopBetsTakeNoClickAndNoFocus) {
  Desk hidden(false), shown(true);
  for (Desk* d : {&hidden, &shown}) {
    QSignalSpy bets(&d->view, &TableView::BetClicked);
    QTest::mouseClick(&d->view, Qt::LeftButton, {}, d->At(bet::kFirstHop + 7));
    EXPECT_EQ(bets.count(), d == &shown ? 1 : 0);
    // Down from the bottom row of the centre reaches the Hop band only when it shows.
    QTest::mouseClick(&d->view, Qt::LeftButton, {}, d->At(bet::kUnder7));
    QTest::keyClick(&d->view, Qt::Key_Down);
    EXPECT_EQ(bet::IsHop(d->view.FocusedBet()), d == &shown);
  }
}

TEST(TableView, ArrowsWalkTheSpotsAndEnterBetsTheFocusedOne) {
  struct Case {
    int from;
    Qt::Key key;
    int to;
  };
  const Case cases[] = {
      {bet::Place(4), Qt::Key_Right, bet::Place(5)},  {bet::Place(10), Qt::Key_Left, bet::Place(9)},
      {bet::Place(6), Qt::Key_Down, bet::Buy(6)},     {bet::Buy(8), Qt::Key_Up, bet::Place(8)},
      {bet::Come(5), Qt::Key_Right, bet::ComeOdds(5)}, {bet::kPassLine, Qt::Key_Down, bet::kPassOdds},
      {bet::kHard6, Qt::Key_Right, bet::kHard10},     {bet::kSeven, Qt::Key_Down, bet::kHard6},
  };
  for (const Case& c : cases) {
    Desk d;
    QTest::mouseClick(&d.view, Qt::LeftButton, {}, d.At(c.from));
    QSignalSpy bets(&d.view, &TableView::BetClicked);
    QTest::keyClick(&d.view, c.key);
    QTest::keyClick(&d.view, Qt::Key_Return);
    ASSERT_EQ(bets.count(), 1) << c.from;
    EXPECT_EQ(bets[0][0].toInt(), c.to) << "from " << c.from;
    EXPECT_FALSE(bets[0][1].toBool());
    EXPECT_EQ(d.view.accessibleName().toStdString(), bet::CatalogueName(c.to));
  }
}

TEST(TableView, SpaceRollsAndDigitsChooseTheChips) {
  Desk d;
  QSignalSpy tools(&d.view, &TableView::ToolClicked), rolls(&d.view, &TableView::RollRequested);
  QTest::keyClick(&d.view, Qt::Key_Space);
  QTest::keyClick(&d.view, Qt::Key_2);
  QTest::keyClick(&d.view, Qt::Key_5);
  QTest::keyClick(&d.view, Qt::Key_6);
  EXPECT_EQ(rolls.count(), 1);
  ASSERT_EQ(tools.count(), 2);
  EXPECT_EQ(tools[0][0].toInt(), 2);
  EXPECT_EQ(tools[1][0].toInt(), 5);
}

TEST(TableLook, FieldPrintsItsWinningTotalsAndBetterPayoffs) {
  auto g = std::make_unique<Game>();
  FillDefaults(*g);
  g->FieldPayoff.Set(bet::FieldRow(6, 6), PayoffRecord{3, -1, 1});
  g->FieldPayoff.Set(bet::FieldRow(1, 1), PayoffRecord{2, -1, 1});
  g->FieldPayoff.Set(bet::FieldRow(4, 6), PayoffRecord{3, -1, 2});
  g->FieldPayoff.Set(bet::FieldRow(3, 6), PayoffRecord{-1, -1, 1});
  const FieldPrint print = LookOf(*g).field;
  EXPECT_EQ(print.numbers.join(' ').toStdString(), "2 3 4 10 11 12");
  EXPECT_EQ(print.notes.join('|').toStdString(), "2 PAYS DOUBLE|10 PAYS 3 TO 2|12 PAYS TRIPLE");
}

}  // namespace
