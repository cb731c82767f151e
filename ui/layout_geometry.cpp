#include "ui/layout_geometry.h"

#include <QPolygonF>
#include <array>
#include <cmath>
#include <limits>

#include "engine/catalogue.h"
#include "engine/table_commands.h"

namespace layout {
namespace {

// The bands of the player's side, top to bottom, and the columns left to
// right; the centre propositions stand apart on the right.
constexpr qreal kTop = 10, kNumbersBottom = 210, kComeBottom = 290, kFieldBottom = 370;
constexpr qreal kDontPassBottom = 405, kPassBottom = 450, kOddsBottom = 485;
constexpr qreal kOuter = 10, kInner = 50, kBoxesLeft = 130, kMainRight = 690;
constexpr qreal kBoxWidth = (kMainRight - kBoxesLeft) / 6;
// Inside a number box: the don'ts' strip, Place with the printed number,
// the Buy strip, then Come and its odds.
constexpr qreal kStripBottom = kTop + 45, kPlaceBottom = 150, kBuyBottom = 178;
constexpr qreal kPropsLeft = 705, kPropsRight = 990, kPropsWidth = kPropsRight - kPropsLeft;
constexpr qreal kHopTop = 318;
constexpr int kHopColumns = 6, kHopRows = 3;
constexpr qreal kTrayTop = 497, kTrayHeight = 56, kToolWidth = 54, kToolStep = 58;

struct Spots {
  std::array<QPainterPath, bet::kLastTableBet + 1> regions;
  std::array<QPointF, bet::kLastTableBet + 1> chips;
};

QPainterPath Box(const QRectF& r) {
  QPainterPath path;
  path.addRect(r);
  return path;
}

void Put(Spots& s, int id, const QRectF& r) {
  s.regions[id] = Box(r);
  s.chips[id] = r.center();
}

void PutTriangle(Spots& s, int id, QPointF a, QPointF b, QPointF c) {
  QPainterPath path;
  path.addPolygon(QPolygonF({a, b, c, a}));
  path.closeSubpath();
  s.regions[id] = path;
  s.chips[id] = (a + b + c) / 3;
}

void PutNumberBoxes(Spots& s) {
  for (int i = 0; i < 6; ++i) {
    const int n = bet::NumberAt(i);
    const qreal left = kBoxesLeft + i * kBoxWidth, third = kBoxWidth / 3, half = kBoxWidth / 2;
    Put(s, bet::DontCome(n), {left, kTop, third, kStripBottom - kTop});
    Put(s, bet::DontComeOdds(n), {left + third, kTop, third, kStripBottom - kTop});
    Put(s, bet::Lay(n), {left + 2 * third, kTop, third, kStripBottom - kTop});
    // Below the strip's small print.
    for (int id : {bet::DontCome(n), bet::DontComeOdds(n), bet::Lay(n)}) s.chips[id] += QPointF(0, 7);
    Put(s, bet::Place(n), {left, kStripBottom, kBoxWidth, kPlaceBottom - kStripBottom});
    // Place chips stand on the box's bottom line, below the printed number.
    s.chips[bet::Place(n)] = {left + half, kPlaceBottom - 13};
    Put(s, bet::Buy(n), {left, kPlaceBottom, kBoxWidth, kBuyBottom - kPlaceBottom});
    s.chips[bet::Buy(n)] = {left + kBoxWidth * 0.68, (kPlaceBottom + kBuyBottom) / 2};
    Put(s, bet::Come(n), {left, kBuyBottom, half, kNumbersBottom - kBuyBottom});
    Put(s, bet::ComeOdds(n), {left + half, kBuyBottom, half, kNumbersBottom - kBuyBottom});
  }
}

void PutLines(Spots& s) {
  const QRectF dontComeBar(kInner, kTop, kBoxesLeft - kInner, kNumbersBottom - kTop);
  Put(s, bet::kDontCome, dontComeBar);
  s.chips[bet::kDontCome] = {dontComeBar.center().x(), 118};
  Put(s, bet::kCome, {kInner, kNumbersBottom, kMainRight - kInner, kComeBottom - kNumbersBottom});
  s.chips[bet::kCome] = {kMainRight - 110, (kNumbersBottom + kComeBottom) / 2};
  Put(s, bet::kField, {kBoxesLeft, kComeBottom, kMainRight - kBoxesLeft, kFieldBottom - kComeBottom});
  s.chips[bet::kField] = {kMainRight - 60, kComeBottom + 22};
  // Big 6 and Big 8 share the corner square, cut along its diagonal.
  const QPointF topLeft(kInner, kComeBottom), topRight(kBoxesLeft, kComeBottom);
  const QPointF bottomLeft(kInner, kFieldBottom), bottomRight(kBoxesLeft, kFieldBottom);
  PutTriangle(s, bet::kBig6, topLeft, topRight, bottomLeft);
  PutTriangle(s, bet::kBig8, topRight, bottomRight, bottomLeft);
  // Off the printed numbers in the corners, toward the diagonal.
  s.chips[bet::kBig6] += QPointF(9, 2);
  s.chips[bet::kBig8] -= QPointF(9, 2);
  Put(s, bet::kDontPass, {kInner, kFieldBottom, 550, kDontPassBottom - kFieldBottom});
  s.chips[bet::kDontPass] = {530, (kFieldBottom + kDontPassBottom) / 2};
  Put(s, bet::kDontPassOdds, {kInner + 550, kFieldBottom, kMainRight - kInner - 550, kDontPassBottom - kFieldBottom});
  s.chips[bet::kDontPassOdds] = {kMainRight - 24, (kFieldBottom + kDontPassBottom) / 2};
  // The pass line runs along the player's edge and up the left end.
  QPainterPath pass = Box({kOuter, kDontPassBottom, kMainRight - kOuter, kPassBottom - kDontPassBottom});
  pass.addRect(QRectF(kOuter, kTop, kInner - kOuter, kDontPassBottom - kTop));
  s.regions[bet::kPassLine] = pass.simplified();
  s.chips[bet::kPassLine] = {610, (kDontPassBottom + kPassBottom) / 2};
  Put(s, bet::kPassOdds, {kOuter, kPassBottom, kMainRight - kOuter, kOddsBottom - kPassBottom});
  s.chips[bet::kPassOdds] = {610, (kPassBottom + kOddsBottom) / 2};
}

void PutProps(Spots& s) {
  const qreal half = kPropsWidth / 2, quarter = kPropsWidth / 4, third = kPropsWidth / 3;
  // Chips stand at the right end of a written spot, clear of its words.
  auto atRight = [&](int id, qreal inset) {
    const QRectF r = s.regions[id].boundingRect();
    s.chips[id] = {r.right() - inset, r.center().y() + 3};
  };
  Put(s, bet::kSeven, {kPropsLeft, kTop, kPropsWidth, 32});
  atRight(bet::kSeven, 30);
  // The hard ways as the stickman's layout has them: 6 and 10 over 8 and 4.
  constexpr std::array<int, 4> kHard = {bet::kHard6, bet::kHard10, bet::kHard8, bet::kHard4};
  for (int i = 0; i < 4; ++i) {
    Put(s, kHard[i], {kPropsLeft + (i % 2) * half, 42 + (i / 2) * 60.0, half, 60});
    atRight(kHard[i], 34);
  }
  constexpr std::array<int, 4> kSingles = {bet::kThree, bet::kTwo, bet::kTwelve, bet::kEleven};
  for (int i = 0; i < 4; ++i) {
    Put(s, kSingles[i], {kPropsLeft + i * quarter, 162, quarter, 60});
    s.chips[kSingles[i]] += QPointF(0, 2);
  }
  Put(s, bet::kCraps, {kPropsLeft, 222, kPropsWidth, 30});
  Put(s, bet::kHorn, {kPropsLeft, 252, half, 30});
  Put(s, bet::kWorld, {kPropsLeft + half, 252, half, 30});
  Put(s, bet::kCandE, {kPropsLeft, 282, third, 30});
  Put(s, bet::kOver7, {kPropsLeft + third, 282, third, 30});
  Put(s, bet::kUnder7, {kPropsLeft + 2 * third, 282, third, 30});
  for (int id : {bet::kCraps, bet::kHorn, bet::kWorld}) atRight(id, 30);
  for (int id : {bet::kCandE, bet::kOver7, bet::kUnder7}) atRight(id, 17);
  const qreal cellW = kPropsWidth / kHopColumns, cellH = (kOddsBottom - kHopTop) / kHopRows;
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id) {
    const int i = id - bet::kFirstHop;
    Put(s, id, {kPropsLeft + (i % kHopColumns) * cellW, kHopTop + (i / kHopColumns) * cellH, cellW, cellH});
    s.chips[id] += QPointF(0, cellH * 0.06);  // between the dice pictured and the payoff
  }
}

const Spots& AllSpots() {
  static const Spots spots = [] {
    Spots s;
    PutNumberBoxes(s);
    PutLines(s);
    PutProps(s);
    return s;
  }();
  return spots;
}

}  // namespace

const std::vector<int>& TrayTools() {
  static const std::vector<int> tools = {1, 2, 3, 4, 5, kToolFirstStack, 8, 9, kToolLastStack,
                                         kToolBuy, kToolCallOff, kToolCallOn, kToolRemove};
  return tools;
}

const QPainterPath& Region(int betId) {
  static const QPainterPath none;
  return bet::IsTableBet(betId) ? AllSpots().regions[betId] : none;
}

QPointF ChipPoint(int betId) { return bet::IsTableBet(betId) ? AllSpots().chips[betId] : QPointF(); }

int BetAt(QPointF logical, bool showHop) {
  const Spots& s = AllSpots();
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    if (bet::IsHop(id) && !showHop) continue;
    if (s.regions[id].contains(logical)) return id;
  }
  return 0;
}

QRectF ToolArea(int tool) {
  const auto& tools = TrayTools();
  for (size_t i = 0; i < tools.size(); ++i) {
    if (tools[i] != tool) continue;
    // A gap between the chips, the Chip-Stacks and the bet tools.
    const qreal gap = i >= 9 ? 28 : i >= 5 ? 14 : 0;
    return {20 + i * kToolStep + gap, kTrayTop + 2, kToolWidth, kTrayHeight - 4};
  }
  return {};
}

int ToolAt(QPointF logical) {
  for (int tool : TrayTools())
    if (ToolArea(tool).contains(logical)) return tool;
  return 0;
}

namespace {
// The extent a focus walk lines spots up by: the pass line counts by its
// long run along the player's edge, not by the end it turns up.
QRectF WalkBox(int id) {
  if (id == bet::kPassLine) return {kOuter, kDontPassBottom, kMainRight - kOuter, kPassBottom - kDontPassBottom};
  return Region(id).boundingRect();
}
}  // namespace

int Neighbour(int from, int dx, int dy, bool showHop) {
  const QPointF origin = ChipPoint(from);
  const QRectF own = WalkBox(from);
  int best = from;
  qreal bestScore = std::numeric_limits<qreal>::max();
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    if (id == from || (bet::IsHop(id) && !showHop)) continue;
    const QPointF d = ChipPoint(id) - origin;
    const qreal along = d.x() * dx + d.y() * dy;
    if (along <= 1) continue;
    // Spots in line with this one come first, the nearest of them, then the
    // leftmost or topmost; a spot aside counts by how far it lies aside.
    const QRectF box = WalkBox(id);
    const bool inLine = dx != 0 ? box.top() < own.bottom() && box.bottom() > own.top()
                                : box.left() < own.right() && box.right() > own.left();
    const qreal aside = std::abs(d.x() * dy - d.y() * dx);
    const qreal score = along + (inLine ? 0 : 3 * aside + 1000) + 0.001 * (dx != 0 ? d.y() : d.x());
    if (score < bestScore) {
      bestScore = score;
      best = id;
    }
  }
  return best;
}

const Landmarks& Marks() {
  static const Landmarks marks = [] {
    Landmarks m;
    m.felt = {0, 0, kWidth, kTrayTop - 4};
    m.tray = {0, kTrayTop - 4, kWidth, kHeight - kTrayTop + 4};
    m.dice = {830, kTrayTop + 2, 150, kTrayHeight - 4};
    m.dontComeBar = {kInner, kTop, kBoxesLeft - kInner, kNumbersBottom - kTop};
    m.numbers = {kBoxesLeft, kTop, kMainRight - kBoxesLeft, kNumbersBottom - kTop};
    m.props = {kPropsLeft, kTop, kPropsWidth, kOddsBottom - kTop};
    m.hopBand = {kPropsLeft, kHopTop, kPropsWidth, kOddsBottom - kHopTop};
    m.puckOff = {(kInner + kBoxesLeft) / 2, 176};
    m.puckRadius = 16;
    m.chipRadius = 14;
    return m;
  }();
  return marks;
}

QRectF NumberBox(int number) {
  const qreal left = kBoxesLeft + bet::NumberIndex(number) * kBoxWidth;
  return {left, kTop, kBoxWidth, kNumbersBottom - kTop};
}

QPointF PuckOn(int number) {
  const QRectF box = NumberBox(number);
  return {box.center().x(), kStripBottom + 18};
}

QTransform ToWidget(QSizeF size) {
  const qreal scale = std::min(size.width() / kWidth, size.height() / kHeight);
  QTransform t;
  t.translate((size.width() - kWidth * scale) / 2, (size.height() - kHeight * scale) / 2);
  t.scale(scale, scale);
  return t;
}

}  // namespace layout
