// The layout's spots and the table view's answers to mouse and keys,
// offscreen.
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

#include "engine/bet_status_table.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/table_commands.h"
#include "ui/chip_painter.h"
#include "ui/layout_geometry.h"
#include "ui/layout_painter.h"
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

TEST(ChipPainter, AStackIsTheLargestChecksFirst) {
  const CheckValues checks{1, 5, 25, 100, 500};
  const CheckValues cents{Currency::FromRaw(2500), 1, 5, 25, 100};
  struct Case {
    CheckValues checks;
    Currency amount;
    int limit;
    std::vector<Currency> chips;
  };
  const Case cases[] = {
      {checks, 41, 10, {25, 5, 5, 5, 1}},
      {checks, 630, 10, {500, 100, 25, 5}},
      {checks, 12, 2, {5, 5}},  // a tall stack stops at the limit
      {checks, Currency::FromRaw(5000), 10, {1}},  // less than a check still shows one
      {cents, Currency::FromRaw(17500), 10, {1, Currency::FromRaw(2500), Currency::FromRaw(2500), Currency::FromRaw(2500)}},
  };
  for (const Case& c : cases) EXPECT_EQ(ChipsFor(c.amount, c.checks, c.limit), c.chips) << c.amount.raw;
  // Every default check wears its own colour.
  for (int i = 0; i < 5; ++i)
    for (int j = i + 1; j < 5; ++j) EXPECT_NE(ChipColour(checks[i]), ChipColour(checks[j])) << i << j;
}

TEST(TableView, EveryBetIsClickedAtItsCentreWhateverTheWindowShape) {
  for (QSize size : {QSize(1000, 560), QSize(1400, 500), QSize(600, 700)}) {
    Desk d(true);
    d.view.resize(size);
    QSignalSpy bets(&d.view, &TableView::BetClicked);
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
      QTest::mouseClick(&d.view, Qt::LeftButton, {}, d.At(id));
    ASSERT_EQ(bets.count(), bet::kLastTableBet);
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
      EXPECT_EQ(bets[id - 1][0].toInt(), id) << size.width() << "x" << size.height();
    }
  }
}

TEST(TableView, PuckMarkersAndDescriptionFollowTheLook) {
  auto g = std::make_unique<Game>();
  FillDefaults(*g);
  g->Point = 6;
  g->BetAmount.Set(bet::Place(8), 12);
  g->BetStatus.Set(bet::Place(8), status::kCalledOff);
  Desk d;
  d.view.resize(1000, 560);
  d.view.SetLook(LookOf(*g));
  QTest::mouseClick(&d.view, Qt::LeftButton, {}, d.At(bet::Place(8)));
  EXPECT_EQ(d.view.accessibleDescription().toStdString(), "Place 8: $12, pays 7 to 6, called OFF");
  // Below the puck's word, where only its face shows.
  const QPointF belowWord(0, layout::Marks().puckRadius * 0.65);
  const auto pixel = [&](QPointF at) { return d.view.grab().toImage().pixelColor((at + belowWord).toPoint()); };
  EXPECT_GT(pixel(layout::PuckOn(6)).lightness(), 200);  // the white ON puck on the point
  g->Point = 0;
  d.view.SetLook(LookOf(*g));
  EXPECT_LT(pixel(layout::Marks().puckOff).lightness(), 60);  // black OFF in the Don't Come bar
}

TEST(TableView, TheLayoutIsPrintedAgainWhenWhatItPrintsChanges) {
  using Change = void (*)(TableLook&);
  const std::pair<const char*, Change> changes[] = {
      {"field", [](TableLook& l) { l.field.notes = QStringList{QStringLiteral("12 PAYS TRIPLE")}; }},
      {"bar", [](TableLook& l) { l.barNumber = 2; }},
      {"payoff", [](TableLook& l) { l.payoffs[bet::kSeven] = QStringLiteral("5 for 1"); }},
      {"hop", [](TableLook& l) { l.showHop = true; }},
  };
  for (const auto& [what, change] : changes) {
    Desk d;
    const QImage before = d.view.grab().toImage();
    TableLook look = d.view.Look();
    change(look);
    d.view.SetLook(look);
    EXPECT_TRUE(d.view.grab().toImage() != before) << what;
  }
}

TEST(LayoutPainter, DrawsAtTheDevicePixelRatio) {
  const QPixmap sharp = PaintLayout({500, 280}, 2, LayoutPrint{});
  EXPECT_EQ(sharp.size(), QSize(1000, 560));
  EXPECT_EQ(sharp.deviceIndependentSize(), QSizeF(500, 280));
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
