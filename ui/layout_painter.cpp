#include "ui/layout_painter.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "ui/layout_geometry.h"
#include "ui/die_painter.h"

namespace {

constexpr qreal kLineWidth = 2.2;

// The painter with the scheme's colours, for lettering, outlines and rules.
struct Pen {
  QPainter& p;
  const LayoutColours& c;

  void Font(qreal size, bool bold = true, qreal spacing = 100) {
    QFont font = p.font();
    font.setPixelSize(qMax(1, qRound(size)));
    font.setBold(bold);
    font.setLetterSpacing(QFont::PercentageSpacing, spacing);
    p.setFont(font);
  }
  // Lettering that shrinks to fit its box rather than spill over a line.
  void Text(const QRectF& box, const QString& text, qreal size, const QColor& colour, bool bold = true,
            int align = Qt::AlignCenter, qreal spacing = 100) {
    Font(size, bold, spacing);
    const qreal wide = QFontMetricsF(p.font()).horizontalAdvance(text);
    if (wide > box.width() * 0.94) Font(size * box.width() * 0.94 / wide, bold, spacing);
    p.setPen(colour);
    p.drawText(box, align, text);
  }
  void Outline(const QRectF& r) {
    p.setPen(QPen(c.lines, kLineWidth));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r);
  }
  void Line(QPointF a, QPointF b, qreal width = kLineWidth) {
    p.setPen(QPen(c.lines, width));
    p.drawLine(a, b);
  }
};

QRectF SpotBox(int id) { return layout::Region(id).boundingRect(); }

// A pair of dice side by side, centred on `c`.
void DicePair(QPainter& p, QPointF c, qreal side, int a, int b) {
  const qreal gap = side * 0.15;
  PaintDie(p, QRectF(c.x() - side - gap / 2, c.y() - side / 2, side, side), a);
  PaintDie(p, QRectF(c.x() + gap / 2, c.y() - side / 2, side, side), b);
}

QString Pays(const LayoutPrint& print, int id) { return print.payoffs[id].toUpper(); }

void PaintFeltAndRail(QPainter& p, const LayoutColours& c) {
  const auto& m = layout::Marks();
  QLinearGradient wood(m.tray.topLeft(), m.tray.bottomLeft());
  wood.setColorAt(0, c.rail.lighter(125));
  wood.setColorAt(0.5, c.rail);
  wood.setColorAt(1, c.rail.darker(140));
  p.fillRect(QRectF(0, 0, layout::kWidth, layout::kHeight), wood);
  QRadialGradient glow(m.felt.center(), m.felt.width() * 0.65);
  glow.setColorAt(0, c.felt.lighter(112));
  glow.setColorAt(0.7, c.felt);
  glow.setColorAt(1, c.feltShade);
  p.setPen(Qt::NoPen);
  p.setBrush(glow);
  p.drawRoundedRect(m.felt.adjusted(2, 2, -2, -1), 14, 14);
  // The tray's groove where the tools lie.
  p.setBrush(c.rail.darker(170));
  p.drawRoundedRect(m.tray.adjusted(10, 6, -10, -6), 10, 10);
}

void PaintNumberBoxes(Pen& pen) {
  const QStringList words = {QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("SIX"),
                             QStringLiteral("8"), QStringLiteral("NINE"), QStringLiteral("10")};
  const QColor faint(pen.c.lines.red(), pen.c.lines.green(), pen.c.lines.blue(), 150);
  for (int i = 0; i < 6; ++i) {
    const int n = bet::NumberAt(i);
    const QRectF box = layout::NumberBox(n);
    pen.Outline(box);
    const QRectF strip = SpotBox(bet::DontCome(n)), place = SpotBox(bet::Place(n));
    const QRectF buy = SpotBox(bet::Buy(n)), come = SpotBox(bet::Come(n));
    pen.Line({box.left(), strip.bottom()}, {box.right(), strip.bottom()});
    pen.Line({box.left(), buy.top()}, {box.right(), buy.top()}, 1.2);
    pen.Line({box.left(), come.top()}, {box.right(), come.top()});
    for (int id : {bet::DontComeOdds(n), bet::Lay(n)}) {
      const QRectF r = SpotBox(id);
      pen.Line(r.topLeft() + QPointF(0, 6), r.bottomLeft() - QPointF(0, 6), 1);
    }
    pen.Line(SpotBox(bet::ComeOdds(n)).topLeft() + QPointF(0, 5), SpotBox(bet::ComeOdds(n)).bottomLeft() - QPointF(0, 5), 1);
    pen.Text(strip.adjusted(0, 0, 0, -26), QStringLiteral("DC"), 9, faint);
    pen.Text(SpotBox(bet::DontComeOdds(n)).adjusted(0, 0, 0, -26), QStringLiteral("ODDS"), 8, faint);
    pen.Text(SpotBox(bet::Lay(n)).adjusted(0, 0, 0, -26), QStringLiteral("LAY"), 9, faint);
    pen.Text(place.adjusted(4, 32, -4, -24), words[i], words[i].size() > 2 ? 28 : 40, pen.c.lines, true);
    pen.Text(buy.adjusted(4, 0, -buy.width() * 0.5, 0), QStringLiteral("BUY"), 11, faint, true, Qt::AlignLeft | Qt::AlignVCenter);
    pen.Text(come.adjusted(0, 0, 0, -18), QStringLiteral("COME"), 8, faint);
    pen.Text(SpotBox(bet::ComeOdds(n)).adjusted(0, 0, 0, -18), QStringLiteral("ODDS"), 8, faint);
  }
}

void PaintBarDice(QPainter& p, QPointF c, qreal side, int barNumber) {
  const int face = barNumber == 2 ? 1 : 6;
  DicePair(p, c, side, face, face);
}

void PaintLines(Pen& pen, const LayoutPrint& print) {
  QPainter& p = pen.p;
  const QColor& ink = pen.c.lines;
  // Don't Come bar.
  const QRectF dc = layout::Marks().dontComeBar;
  pen.Outline(dc);
  pen.Text(QRectF(dc.left(), dc.top() + 8, dc.width(), 22), QStringLiteral("DON'T"), 15, ink);
  pen.Text(QRectF(dc.left(), dc.top() + 28, dc.width(), 22), QStringLiteral("COME"), 15, ink);
  pen.Text(QRectF(dc.left(), dc.top() + 50, dc.width(), 18), QStringLiteral("BAR"), 12, ink);
  PaintBarDice(p, {dc.center().x(), dc.top() + 82}, 15, print.barNumber);

  // Come.
  const QRectF come = SpotBox(bet::kCome);
  pen.Outline(come);
  pen.Text(come.adjusted(0, 2, -140, 0), QStringLiteral("COME"), 58, pen.c.accent, true, Qt::AlignCenter, 112);

  // Field: the winning totals in a row and the notes of the better payoffs.
  const QRectF field = SpotBox(bet::kField);
  pen.Outline(field);
  pen.Text(QRectF(field.left() + 8, field.top(), 110, field.height()), QStringLiteral("FIELD"), 30, ink);
  const QRectF numbers(field.left() + 120, field.top() + 6, field.width() - 200, 40);
  pen.Text(numbers, print.field.numbers.join(QStringLiteral("  \u2022  ")), 28, pen.c.field);
  pen.Text(QRectF(numbers.left(), field.top() + 48, numbers.width(), 22), print.field.notes.join(QStringLiteral("   ")), 13, ink);

  // Big 6 and Big 8 in the corner.
  const QRectF big = SpotBox(bet::kBig6).united(SpotBox(bet::kBig8));
  pen.Outline(big);
  pen.Line(big.topRight(), big.bottomLeft());
  pen.Text(QRectF(big.left() + 1, big.top() + 1, 24, 28), QStringLiteral("6"), 26, pen.c.accent);
  pen.Text(QRectF(big.right() - 25, big.bottom() - 29, 24, 28), QStringLiteral("8"), 26, pen.c.accent);
  pen.Text(QRectF(big.left() + 30, big.top() + 3, 26, 12), QStringLiteral("BIG"), 9, ink);
  pen.Text(QRectF(big.right() - 56, big.bottom() - 15, 26, 12), QStringLiteral("BIG"), 9, ink);

  // Don't Pass bar and its odds.
  const QRectF dp = SpotBox(bet::kDontPass), dpOdds = SpotBox(bet::kDontPassOdds);
  pen.Outline(dp);
  pen.Outline(dpOdds);
  pen.Text(dp.adjusted(20, 0, -200, 0), QStringLiteral("DON'T PASS BAR"), 21, ink, true, Qt::AlignCenter, 110);
  PaintBarDice(p, {dp.right() - 170, dp.center().y()}, 20, print.barNumber);
  pen.Text(dpOdds.adjusted(4, 0, -44, 0), QStringLiteral("ODDS"), 12, ink);

  // The pass line, rounded where it turns up the end of the table.
  const QRectF passBox = layout::Region(bet::kPassLine).boundingRect();
  const QRectF odds = SpotBox(bet::kPassOdds);
  constexpr qreal kTurn = 30;
  QPainterPath outer;
  outer.moveTo(dc.left(), passBox.top());
  outer.lineTo(passBox.topLeft());
  outer.lineTo(passBox.left(), odds.bottom() - kTurn);
  outer.arcTo(QRectF(passBox.left(), odds.bottom() - 2 * kTurn, 2 * kTurn, 2 * kTurn), 180, 90);
  outer.lineTo(odds.bottomRight());
  outer.lineTo(odds.right(), dp.bottom());
  p.setPen(QPen(ink, kLineWidth));
  p.setBrush(Qt::NoBrush);
  p.drawPath(outer);
  pen.Line({passBox.left(), odds.top()}, {passBox.right(), odds.top()}, 1.4);
  const QRectF passRow(passBox.left() + 40, dp.bottom(), passBox.width() - 40, odds.top() - dp.bottom());
  pen.Text(passRow, QStringLiteral("PASS  LINE"), 30, ink, true, Qt::AlignCenter, 125);
  pen.Text(odds, QStringLiteral("PASS LINE ODDS"), 11, QColor(ink.red(), ink.green(), ink.blue(), 140), true,
           Qt::AlignCenter, 140);
  p.save();
  p.translate(passBox.left() + 20, dc.center().y() + 80);
  p.rotate(-90);
  pen.Text(QRectF(-150, -16, 300, 32), QStringLiteral("PASS  LINE"), 22, ink, true, Qt::AlignCenter, 125);
  p.restore();
}

void PaintProps(Pen& pen, const LayoutPrint& print) {
  QPainter& p = pen.p;
  const QColor& ink = pen.c.lines;
  const QRectF props = layout::Marks().props;
  p.setPen(QPen(pen.c.accent, 4));
  p.setBrush(QColor(0, 0, 0, 28));
  p.drawRoundedRect(props.adjusted(-3, -3, 3, 3), 8, 8);
  auto cell = [&](int id) {
    const QRectF r = SpotBox(id);
    pen.Outline(r);
    return r;
  };
  const QRectF seven = cell(bet::kSeven);
  pen.Text(seven.adjusted(0, 0, -50, 0), QStringLiteral("SEVEN   %1").arg(Pays(print, bet::kSeven)), 17, pen.c.accent);
  const std::array<std::pair<int, int>, 4> hards = {{{bet::kHard6, 3}, {bet::kHard10, 5}, {bet::kHard8, 4}, {bet::kHard4, 2}}};
  for (const auto& [id, face] : hards) {
    const QRectF r = cell(id);
    DicePair(p, {r.left() + 50, r.top() + 22}, 22, face, face);
    pen.Text(QRectF(r.left(), r.bottom() - 22, 100, 20), Pays(print, id), 13, ink);
  }
  const std::array<std::array<int, 3>, 4> singles = {{{bet::kThree, 1, 2}, {bet::kTwo, 1, 1}, {bet::kTwelve, 6, 6},
                                                      {bet::kEleven, 5, 6}}};
  for (const auto& [id, a, b] : singles) {
    const QRectF r = cell(id);
    DicePair(p, {r.center().x(), r.top() + 12}, 14, a, b);
    pen.Text(QRectF(r.left(), r.bottom() - 17, r.width(), 15), Pays(print, id), 11, ink);
  }
  pen.Text(cell(bet::kCraps).adjusted(0, 0, -50, 0), QStringLiteral("ANY CRAPS   %1").arg(Pays(print, bet::kCraps)), 15, pen.c.accent);
  pen.Text(cell(bet::kHorn).adjusted(0, 0, -50, 0), QStringLiteral("HORN"), 15, ink);
  pen.Text(cell(bet::kWorld).adjusted(0, 0, -50, 0), QStringLiteral("WORLD"), 15, ink);
  // C and E as the two circles of a real table.
  const QRectF ce = cell(bet::kCandE);
  for (int i = 0; i < 2; ++i) {
    const QPointF c(ce.left() + (i ? 40 : 16), ce.center().y());
    p.setPen(QPen(ink, 1.6));
    p.setBrush(i ? pen.c.accent : QColor(0x1a, 0x1a, 0x1a, 90));
    p.drawEllipse(c, 12, 12);
    pen.Text(QRectF(c.x() - 12, c.y() - 12, 24, 24), i ? QStringLiteral("E") : QStringLiteral("C"), 14, ink);
  }
  pen.Text(cell(bet::kOver7).adjusted(2, 0, -32, 0), QStringLiteral("OVER 7"), 13, ink);
  pen.Text(cell(bet::kUnder7).adjusted(2, 0, -32, 0), QStringLiteral("UNDER 7"), 13, ink);

  const QRectF band = layout::Marks().hopBand;
  if (!print.showHop) {
    pen.Text(band.adjusted(0, 20, 0, -20), QStringLiteral("DICEMILL"), 40, QColor(ink.red(), ink.green(), ink.blue(), 90),
             true, Qt::AlignCenter, 140);
    return;
  }
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id) {
    const QRectF r = cell(id);
    const auto [low, high] = bet::HopFaces(id);
    DicePair(p, {r.center().x(), r.top() + 13}, 15, low, high);
    pen.Text(QRectF(r.left(), r.bottom() - 16, r.width(), 14), Pays(print, id), 9, ink);
  }
  const QRectF rest(SpotBox(bet::kLastHop).topRight(), band.bottomRight());
  pen.Text(rest, QStringLiteral("HOP"), 14, ink);
}

}  // namespace

QPixmap PaintLayout(QSize size, qreal pixelRatio, const LayoutPrint& print) {
  QPixmap pixmap(size * pixelRatio);
  pixmap.setDevicePixelRatio(pixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  Pen pen{p, print.colours};
  // Beyond the table's proportions, the room around it.
  p.fillRect(QRectF(QPointF(0, 0), size), print.colours.rail.darker(230));
  p.setTransform(layout::ToWidget(size));
  PaintFeltAndRail(p, print.colours);
  PaintNumberBoxes(pen);
  PaintLines(pen, print);
  PaintProps(pen, print);
  return pixmap;
}
