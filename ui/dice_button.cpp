#include "ui/dice_button.h"

#include <QPainter>
#include <algorithm>

#include "engine/pad.h"
#include "ui/die_painter.h"

namespace {

const QColor kChosenRing(0xf5, 0xc5, 0x42);
constexpr qreal kLargestDie = 44;  // past this a die only fills space, it reads no better

}  // namespace

QColor TextColourOn(const QColor& background) {
  return background.lightness() > 140 ? QColor(0x1a, 0x1a, 0x1a) : QColor(0xfb, 0xfb, 0xf4);
}

DiceButton::DiceButton(DiceButtonShows shows, int first, int second, QWidget* parent)
    : QAbstractButton(parent), shows_(shows), first_(first), second_(second) {
  setAttribute(Qt::WA_Hover);  // repaint as the pointer comes and goes
  setFocusPolicy(Qt::StrongFocus);
  // A face stays about square: a tall one would only be a bigger target for a
  // small die.
  setSizePolicy(QSizePolicy::Expanding,
                shows_ == DiceButtonShows::Face ? QSizePolicy::Preferred : QSizePolicy::Expanding);
  // The text is what a screen reader says and what a tooltip shows; the
  // picture is painted.
  switch (shows_) {
    case DiceButtonShows::Total: setText(QString::number(first_)); break;
    case DiceButtonShows::PairAcross:
    case DiceButtonShows::PairDown: setText(QStringLiteral("%1-%2").arg(first_).arg(second_)); break;
    case DiceButtonShows::Face: setText(QString::number(first_)); break;
  }
  // A face only sets one die; the roll waits for the other.
  setToolTip(shows_ == DiceButtonShows::Total  ? tr("Roll a %1").arg(first_)
             : shows_ == DiceButtonShows::Face ? tr("Face %1").arg(first_)
                                               : tr("Roll %1").arg(text()));
}

QSize DiceButton::sizeHint() const {
  switch (shows_) {
    case DiceButtonShows::Total: return {64, 56};
    case DiceButtonShows::PairAcross: return {52, 36};
    case DiceButtonShows::PairDown: return {30, 52};
    case DiceButtonShows::Face: return {52, 52};
  }
  return {};
}

QSize DiceButton::minimumSizeHint() const {
  // Big enough to hit and to read the pips.
  return shows_ == DiceButtonShows::Face ? QSize(28, 28) : QSize(24, 24);
}

void DiceButton::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  if (!isEnabled()) p.setOpacity(0.4);

  QColor fill = palette().color(QPalette::Button);
  if (isDown())
    fill = fill.darker(125);
  else if (underMouse() && isEnabled())
    fill = fill.lighter(125);
  const QRectF box = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
  const qreal corner = std::min<qreal>(8, std::min(box.width(), box.height()) * 0.2);
  p.setPen(QPen(isChecked() ? kChosenRing : fill.darker(150), isChecked() ? 3 : 1));
  p.setBrush(fill);
  p.drawRoundedRect(box, corner, corner);
  if (hasFocus()) {
    p.setPen(QPen(TextColourOn(fill), 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(box.adjusted(3, 3, -3, -3), corner * 0.6, corner * 0.6);
  }

  // Narrow cells give their margin to the dice.
  const qreal margin = std::clamp<qreal>(std::min(box.width(), box.height()) * 0.1, 2, 4);
  const QRectF inside = box.adjusted(margin, margin, -margin, -margin);
  switch (shows_) {
    case DiceButtonShows::Total: PaintTotal(p, inside); break;
    case DiceButtonShows::PairAcross:
    case DiceButtonShows::PairDown: PaintPair(p, inside); break;
    case DiceButtonShows::Face: {
      const qreal side = std::min({inside.width(), inside.height(), kLargestDie});
      PaintDie(p, QRectF(inside.center().x() - side / 2, inside.center().y() - side / 2, side, side), first_);
      break;
    }
  }
}

void DiceButton::PaintTotal(QPainter& p, const QRectF& inside) const {
  const QColor ink = TextColourOn(palette().color(QPalette::Button));
  // The number, and under it how many pairs make it when there is room.
  const bool roomForWays = inside.height() >= 40;
  const QRectF numberBox = roomForWays ? inside.adjusted(0, 0, 0, -inside.height() * 0.3) : inside;
  QFont big = font();
  big.setBold(true);
  big.setPixelSize(static_cast<int>(std::clamp<qreal>(numberBox.height() * 0.75, 12, 40)));
  p.setFont(big);
  p.setPen(ink);
  p.drawText(numberBox, Qt::AlignCenter, QString::number(first_));
  if (!roomForWays) return;
  QFont small = font();
  small.setPixelSize(static_cast<int>(std::clamp<qreal>(inside.height() * 0.2, 9, 13)));
  p.setFont(small);
  QColor faint = ink;
  faint.setAlphaF(0.75);
  p.setPen(faint);
  const int ways = CombinationCount(first_);
  p.drawText(QRectF(inside.left(), numberBox.bottom(), inside.width(), inside.bottom() - numberBox.bottom()),
             Qt::AlignHCenter | Qt::AlignTop, ways == 1 ? tr("1 way") : tr("%1 ways").arg(ways));
}

void DiceButton::PaintPair(QPainter& p, const QRectF& inside) const {
  const qreal gap = 3;
  const bool across = shows_ == DiceButtonShows::PairAcross;
  const qreal fits = across ? std::min(inside.height(), (inside.width() - gap) / 2)
                            : std::min(inside.width(), (inside.height() - gap) / 2);
  const qreal side = std::min(fits, kLargestDie);
  const QPointF c = inside.center();
  if (across) {
    PaintDie(p, QRectF(c.x() - side - gap / 2, c.y() - side / 2, side, side), first_);
    PaintDie(p, QRectF(c.x() + gap / 2, c.y() - side / 2, side, side), second_);
  } else {
    PaintDie(p, QRectF(c.x() - side / 2, c.y() - side - gap / 2, side, side), first_);
    PaintDie(p, QRectF(c.x() - side / 2, c.y() + gap / 2, side, side), second_);
  }
}
