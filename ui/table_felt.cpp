#include "ui/table_felt.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <array>

namespace {

const QColor kFelt(0x1f, 0x6b, 0x3a);
const QColor kFeltEdge(0x0e, 0x3d, 0x20);
const QColor kRail(0x5a, 0x33, 0x1c);
const QColor kLine(0xf2, 0xec, 0xd8);

// Pip positions on a 3 x 3 grid, per face.
constexpr std::array<std::array<bool, 9>, 7> kPips = {{
    {},
    {{0, 0, 0, 0, 1, 0, 0, 0, 0}},
    {{1, 0, 0, 0, 0, 0, 0, 0, 1}},
    {{1, 0, 0, 0, 1, 0, 0, 0, 1}},
    {{1, 0, 1, 0, 0, 0, 1, 0, 1}},
    {{1, 0, 1, 0, 1, 0, 1, 0, 1}},
    {{1, 0, 1, 1, 0, 1, 1, 0, 1}},
}};

void PaintPuck(QPainter& p, const QFont& base, QPointF centre, qreal radius, int point) {
  const bool on = point != 0;
  p.setPen(QPen(Qt::black, radius * 0.06));
  p.setBrush(on ? QColor(0xfa, 0xfa, 0xf5) : QColor(0x22, 0x22, 0x22));
  p.drawEllipse(centre, radius, radius);
  QFont font = base;
  font.setBold(true);
  font.setPixelSize(static_cast<int>(radius * 0.7));
  p.setFont(font);
  p.setPen(on ? Qt::black : Qt::white);
  p.drawText(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), Qt::AlignCenter,
             on ? QStringLiteral("ON") : QStringLiteral("OFF"));
}

}  // namespace

void PaintDie(QPainter& p, const QRectF& box, int face) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(0x70, 0x10, 0x10), box.width() * 0.03));
  p.setBrush(QColor(0xc8, 0x1e, 0x1e));
  p.drawRoundedRect(box, box.width() * 0.18, box.width() * 0.18);
  if (face >= 1 && face <= 6) {
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xfb, 0xfb, 0xf4));
    const qreal cell = box.width() / 4;
    for (int i = 0; i < 9; ++i) {
      if (!kPips[face][i]) continue;
      const QPointF c(box.left() + cell * (1 + i % 3), box.top() + cell * (1 + i / 3));
      p.drawEllipse(c, cell * 0.36, cell * 0.36);
    }
  }
  p.restore();
}

TableFelt::TableFelt(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picLayout"));
  setMinimumSize(480, 300);
  setFocusPolicy(Qt::StrongFocus);
}

void TableFelt::SetDice(int die1, int die2) {
  die1_ = die1;
  die2_ = die2;
  update();
}

void TableFelt::SetPoint(int point) {
  point_ = point;
  update();
}

void TableFelt::SetBets(QList<QPair<QString, QString>> bets) {
  bets_ = std::move(bets);
  update();
}

void TableFelt::SetPrompt(const QString& prompt) {
  prompt_ = prompt;
  update();
}

void TableFelt::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF all = rect();
  p.fillRect(all, kRail);
  const qreal rail = qMin(all.width(), all.height()) * 0.04;
  const QRectF felt = all.adjusted(rail, rail, -rail, -rail);
  QRadialGradient glow(felt.center(), felt.width() * 0.7);
  glow.setColorAt(0, kFelt.lighter(115));
  glow.setColorAt(1, kFeltEdge);
  p.setBrush(glow);
  p.setPen(QPen(kLine, 2));
  p.drawRoundedRect(felt, rail, rail);

  const qreal unit = qMin(felt.width() / 12, felt.height() / 7);
  QFont title = font();
  title.setPixelSize(static_cast<int>(unit * 0.75));
  title.setBold(true);
  title.setLetterSpacing(QFont::PercentageSpacing, 130);
  p.setFont(title);
  p.setPen(kLine);
  p.drawText(QRectF(felt.left(), felt.top() + unit * 0.6, felt.width(), unit * 1.4), Qt::AlignCenter,
             QStringLiteral("DICEMILL"));

  const QPointF puck(felt.left() + unit * 1.4, felt.top() + unit * 1.4);
  PaintPuck(p, font(), puck, unit * 0.6, point_);
  QFont label = font();
  label.setPixelSize(static_cast<int>(qMax<qreal>(12, unit * 0.32)));
  p.setFont(label);
  p.setPen(kLine);
  p.drawText(QRectF(puck.x() - unit * 1.2, puck.y() + unit * 0.7, unit * 2.4, unit * 0.6), Qt::AlignCenter,
             point_ != 0 ? tr("Point %1").arg(point_) : tr("Come-out"));

  if (!bets_.isEmpty()) {
    // What stands on the layout, until the layout itself is drawn.
    QFont list = font();
    list.setPixelSize(static_cast<int>(qMax<qreal>(12, unit * 0.26)));
    p.setFont(list);
    const qreal line = unit * 0.4;
    QRectF row(felt.left() + unit * 0.6, puck.y() + unit * 1.5, unit * 3.2, line);
    for (const auto& [name, amount] : bets_) {
      p.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, name);
      p.drawText(row, Qt::AlignRight | Qt::AlignVCenter, amount);
      row.translate(0, line);
    }
  }

  const qreal side = unit * 1.4;
  const QPointF centre = felt.center() - QPointF(0, unit * 0.2);
  if (die1_ != 0) {
    PaintDie(p, QRectF(centre.x() - side * 1.15, centre.y() - side / 2, side, side), die1_);
    PaintDie(p, QRectF(centre.x() + side * 0.15, centre.y() - side / 2, side, side), die2_);
  }

  QFont small = font();
  small.setPixelSize(static_cast<int>(qMax<qreal>(12, unit * 0.28)));
  p.setFont(small);
  p.setPen(kLine);
  const QString hint = prompt_.isEmpty() ? tr("Right click or Space to roll") : prompt_;
  p.drawText(QRectF(felt.left(), felt.bottom() - unit * 0.9, felt.width() - unit * 0.5, unit * 0.6),
             Qt::AlignRight | Qt::AlignVCenter, hint);
}

void TableFelt::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) emit RollRequested();
  QWidget::mousePressEvent(event);
}
