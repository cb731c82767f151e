#include "ui/chip_painter.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <algorithm>

namespace {

// House colours by the smallest value that wears them.
struct Denomination {
  Currency from;
  QColor colour;
};
const std::array<Denomination, 10> kDenominations = {{
    {Currency::FromRaw(0), QColor(0x4f, 0x8f, 0xd8)},          // cents: blue
    {1, QColor(0xf4, 0xf1, 0xe8)},                              // white
    {Currency::FromRaw(25000), QColor(0xf0, 0x8f, 0xb8)},      // $2.50 pink
    {5, QColor(0xc9, 0x22, 0x22)},                              // red
    {25, QColor(0x1f, 0x8a, 0x3e)},                             // green
    {100, QColor(0x20, 0x20, 0x22)},                            // black
    {500, QColor(0x73, 0x3b, 0xa8)},                            // purple
    {1000, QColor(0xe6, 0xb4, 0x1e)},                           // yellow
    {5000, QColor(0x8a, 0x4b, 0x22)},                           // brown
    {25000, QColor(0x2a, 0x9d, 0xb0)},                          // teal
}};

constexpr qreal kPerspective = 0.62;  // an upright chip seen a little from above
constexpr qreal kThickness = 0.26;    // of the radius
constexpr int kStackLimit = 10;

bool IsDark(const QColor& c) { return c.lightnessF() < 0.5; }

QColor StripeColour(const QColor& chip) { return IsDark(chip) || chip.saturationF() > 0.4 ? Qt::white : QColor(0x3a, 0x5d, 0xb0); }

void SetFontFor(QPainter& p, const QString& text, qreal width, qreal height) {
  QFont font = p.font();
  font.setBold(true);
  qreal size = height;
  font.setPixelSize(qMax(1, qRound(size)));
  const QFontMetricsF metrics(font);
  const qreal wide = metrics.horizontalAdvance(text);
  if (wide > width) size *= width / wide;
  font.setPixelSize(qMax(1, qRound(size)));
  p.setFont(font);
}

// The top face: the colour, a ring of edge stripes and an inlay.
void PaintFace(QPainter& p, QPointF c, qreal rx, qreal ry, const QColor& colour, ChipStyle style) {
  p.setPen(QPen(colour.darker(170), rx * 0.05));
  p.setBrush(colour);
  p.drawEllipse(c, rx, ry);
  if (style == ChipStyle::Plain) return;
  p.setPen(Qt::NoPen);
  p.setBrush(StripeColour(colour));
  constexpr int kStripes = 8;
  for (int i = 0; i < kStripes; ++i) {
    const qreal a = (i + 0.5) * 2 * M_PI / kStripes, span = 0.16;
    QPainterPath stripe;
    stripe.moveTo(c.x() + rx * std::cos(a - span), c.y() + ry * std::sin(a - span));
    stripe.lineTo(c.x() + rx * std::cos(a + span), c.y() + ry * std::sin(a + span));
    stripe.lineTo(c.x() + rx * 0.78 * std::cos(a + span), c.y() + ry * 0.78 * std::sin(a + span));
    stripe.lineTo(c.x() + rx * 0.78 * std::cos(a - span), c.y() + ry * 0.78 * std::sin(a - span));
    stripe.closeSubpath();
    p.drawPath(stripe);
  }
  p.setPen(QPen(StripeColour(colour), rx * 0.04, Qt::DotLine));
  p.setBrush(colour.lighter(112));
  p.drawEllipse(c, rx * 0.64, ry * 0.64);
}

void PaintLabel(QPainter& p, QPointF c, qreal rx, qreal ry, const QColor& colour, const QString& label) {
  SetFontFor(p, label, rx * 1.9, qMin(ry * 1.3, rx * 0.95));
  p.setPen(IsDark(colour) ? Qt::white : Qt::black);
  p.drawText(QRectF(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry), Qt::AlignCenter, label);
}

// A round button with a word, for call markers and the puck.
void PaintButton(QPainter& p, QPointF c, qreal r, bool white, const QString& word) {
  p.setPen(QPen(white ? QColor(0x30, 0x30, 0x30) : QColor(0xd0, 0xd0, 0xd0), r * 0.1));
  p.setBrush(white ? QColor(0xfb, 0xfb, 0xf6) : QColor(0x1b, 0x1b, 0x1b));
  p.drawEllipse(c, r, r);
  SetFontFor(p, word, r * 1.5, r * 0.8);
  p.setPen(white ? Qt::black : Qt::white);
  p.drawText(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), Qt::AlignCenter, word);
}

}  // namespace

QColor ChipColour(Currency value) {
  QColor colour = kDenominations.front().colour;
  for (const auto& d : kDenominations)
    if (value >= d.from) colour = d.colour;
  return colour;
}

std::vector<Currency> ChipsFor(Currency amount, const CheckValues& checks, int limit) {
  std::vector<Currency> chips;
  Currency left = amount;
  // The checks stand in ascending order, so the largest is taken first.
  for (auto it = checks.rbegin(); it != checks.rend(); ++it) {
    if (it->raw <= 0) continue;
    while (left >= *it && static_cast<int>(chips.size()) < limit) {
      chips.push_back(*it);
      left -= *it;
    }
  }
  // Less than the smallest check still shows as one chip of it.
  if (chips.empty() && amount.raw > 0) chips.push_back(*std::min_element(checks.begin(), checks.end()));
  return chips;
}

QString AmountLabel(Currency amount) { return QStringLiteral("$") + QString::fromStdString(FormatNumberWithCommas(amount)); }

ChipStyle ChipStyleOf(int index) { return index == 1 ? ChipStyle::Plain : ChipStyle::Striped; }

void PaintChip(QPainter& p, QPointF centre, qreal radius, Currency value, const QString& label, ChipStyle style) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const QColor colour = ChipColour(value);
  PaintFace(p, centre, radius, radius, colour, style);
  PaintLabel(p, centre, radius * 0.62, radius * 0.62, colour, label);
  p.restore();
}

void PaintChipStack(QPainter& p, QPointF base, qreal radius, Currency amount, const CheckValues& checks,
                    ChipStyle style) {
  if (amount.raw <= 0) return;
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const std::vector<Currency> chips = ChipsFor(amount, checks, kStackLimit);
  const qreal rx = radius, ry = radius * kPerspective, t = radius * kThickness;
  // Largest at the bottom, as a dealer stacks them; the stack rises from its
  // spot so that its bottom chip sits where the bet is.
  QPointF c = base + QPointF(0, ry * 0.4);
  for (size_t i = 0; i < chips.size(); ++i) {
    const QColor colour = ChipColour(chips[i]);
    QPainterPath side;
    side.moveTo(c.x() - rx, c.y() - t);
    side.lineTo(c.x() - rx, c.y());
    side.arcTo(QRectF(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry), 180, 180);
    side.lineTo(c.x() + rx, c.y() - t);
    side.closeSubpath();
    p.setPen(QPen(colour.darker(190), rx * 0.04));
    p.setBrush(colour.darker(125));
    p.drawPath(side);
    // The edge stripes seen on the side of the chip.
    p.setPen(QPen(StripeColour(colour), rx * 0.13));
    if (style == ChipStyle::Striped) {
      for (qreal at : {-0.62, 0.0, 0.62}) {
        const qreal x = c.x() + at * rx, drop = ry * std::sqrt(1 - at * at);
        p.drawLine(QPointF(x, c.y() - t * 0.85 + drop * 0.9), QPointF(x, c.y() + drop * 0.9 - t * 0.1));
      }
    }
    c.ry() -= t;
    if (i + 1 == chips.size()) {
      PaintFace(p, c, rx, ry, colour, style);
      PaintLabel(p, c, rx * 0.66, ry * 0.66, colour, AmountLabel(amount).mid(1));
    }
  }
  p.restore();
}

QRectF PaintAmount(QPainter& p, QPointF centre, qreal radius, Currency amount) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const QString text = AmountLabel(amount);
  QFont font = p.font();
  font.setBold(true);
  font.setPixelSize(qMax(1, qRound(radius * 1.1)));
  p.setFont(font);
  const qreal w = QFontMetricsF(font).horizontalAdvance(text) + radius * 0.8;
  const QRectF ticket(centre.x() - w / 2, centre.y() - radius * 0.8, w, radius * 1.6);
  p.setPen(QPen(QColor(0xf3, 0xed, 0xd6), radius * 0.08));
  p.setBrush(QColor(0x10, 0x10, 0x10, 215));
  p.drawRoundedRect(ticket, radius * 0.4, radius * 0.4);
  p.setPen(QColor(0xff, 0xe0, 0x70));
  p.drawText(ticket, Qt::AlignCenter, text);
  p.restore();
  return ticket;
}

void PaintCallMarker(QPainter& p, QPointF centre, qreal radius, bool on) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  PaintButton(p, centre, radius, on, on ? QStringLiteral("ON") : QStringLiteral("OFF"));
  p.restore();
}

void PaintPuck(QPainter& p, QPointF centre, qreal radius, bool on) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  // A shadow lifts the puck off the felt.
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0, 0, 0, 90));
  p.drawEllipse(centre + QPointF(radius * 0.12, radius * 0.16), radius, radius);
  PaintButton(p, centre, radius, on, on ? QStringLiteral("ON") : QStringLiteral("OFF"));
  p.restore();
}
