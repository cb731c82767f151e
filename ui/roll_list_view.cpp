#include "ui/roll_list_view.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

#include "engine/dice_roll_files.h"
#include "ui/die_painter.h"

namespace {

const QColor kMarkColour(0xff, 0xe0, 0x7a);    // a highlighted total or face
const QColor kCaretColour(0xc8, 0x1e, 0x1e);   // where the next roll goes: the dice's red
const QColor kQuietText(0x80, 0x80, 0x80);
constexpr int kCaretMargin = 16;

}  // namespace

RollListView::RollListView(QWidget* parent) : QAbstractScrollArea(parent) {
  setObjectName(QStringLiteral("picDiceRolls"));
  setFocusPolicy(Qt::StrongFocus);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(true);
  viewport()->setBackgroundRole(QPalette::Base);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

int RollListView::RowHeight() const { return std::max(fontMetrics().height() + 6, 20); }

int RollListView::VisibleRows() const { return std::max(1, viewport()->height() / RowHeight()); }

int64_t RollListView::TopRoll() const { return verticalScrollBar()->value() + 1; }

QRect RollListView::RowRect(int64_t roll) const {
  const int64_t offset = roll - TopRoll();
  return {0, static_cast<int>(offset * RowHeight()), viewport()->width(), RowHeight()};
}

int64_t RollListView::RollAt(int y) const {
  const int64_t roll = TopRoll() + (y < 0 ? -1 : y / RowHeight());
  return std::clamp<int64_t>(roll, 1, std::max<int64_t>(1, Rows()));
}

void RollListView::ShowFile(const QString& path, int64_t rolls) {
  // Opened afresh each time: the table may have cut, grown or replaced the file.
  file_.close();
  if (!path.isEmpty()) {
    file_.setFileName(path);
    file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  }
  rolls_ = file_.isOpen() ? rolls : 0;
  cache_.clear();
  UpdateScrollRange();
  viewport()->update();
}

void RollListView::ShowPosition(int64_t next, int64_t anchor, int64_t last) {
  next_ = next;
  anchor_ = anchor;
  last_ = last;
  viewport()->update();
}

void RollListView::ShowHighlights(uint16_t totals, uint8_t faces) {
  totals_ = totals;
  faces_ = faces;
  viewport()->update();
}

void RollListView::EnsureVisible(int64_t roll) {
  const int64_t top = TopRoll(), shown = VisibleRows();
  if (roll < top)
    verticalScrollBar()->setValue(static_cast<int>(roll - 1));
  else if (roll >= top + shown)
    verticalScrollBar()->setValue(static_cast<int>(roll - shown));
}

void RollListView::UpdateScrollRange() {
  QScrollBar* bar = verticalScrollBar();
  bar->setRange(0, static_cast<int>(std::max<int64_t>(0, Rows() - VisibleRows())));
  bar->setPageStep(VisibleRows());
  bar->setSingleStep(1);
}

void RollListView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateScrollRange();
}

const QByteArray& RollListView::Bytes(int64_t first, int64_t count) {
  const bool covered = !cache_.isNull() && first >= cacheFirst_ && first + count <= cacheFirst_ + cache_.size();
  if (!covered) {
    cacheFirst_ = first;
    cache_ = QByteArray("");  // not null: an empty read is still a read
    if (count > 0 && file_.seek(first - 1)) cache_ = file_.read(count);
    if (cache_.isNull()) cache_ = QByteArray("");
    bytesRead_ += cache_.size();
  }
  return cache_;
}

bool RollListView::Highlighted(int byte) const {
  if (!CheckRollValue(byte)) return false;
  const int die1 = Die1Of(byte), die2 = Die2Of(byte);
  return ((totals_ >> (die1 + die2)) & 1) || ((faces_ >> die1) & 1) || ((faces_ >> die2) & 1);
}

void RollListView::paintEvent(QPaintEvent*) {
  QPainter p(viewport());
  const QPalette& pal = palette();
  if (!file_.isOpen()) {
    p.setPen(kQuietText);
    p.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
               tr("No Dice Roll File is open.\nOpen one, or name a new one, from the File menu."));
    return;
  }
  const int rowH = RowHeight();
  const int64_t top = TopRoll();
  const int64_t shown = std::min<int64_t>(viewport()->height() / rowH + 1, Rows() - top + 1);
  const int64_t readable = std::clamp<int64_t>(rolls_ - top + 1, 0, shown);
  const QByteArray& bytes = Bytes(top, readable);
  const QFontMetrics fm = fontMetrics();
  // As wide as the file's longest roll number, so that small files keep their dice near.
  const QString widest = QLocale().toString(static_cast<qlonglong>(std::max<int64_t>(rolls_, 99'999)));
  const int numberRight = kCaretMargin + fm.horizontalAdvance(widest) + 4;
  const int die = rowH - 6;
  const int diceLeft = numberRight + 14;
  const int totalLeft = diceLeft + 2 * die + 16;
  const int64_t low = std::min(next_, anchor_), high = std::max(next_, anchor_);
  QFont bold = font();
  bold.setBold(true);

  for (int64_t i = 0; i < shown; ++i) {
    const int64_t roll = top + i;
    const QRect row(0, static_cast<int>(i * rowH), viewport()->width(), rowH);
    const bool past = roll > rolls_;
    const int byte = !past && i < bytes.size() ? static_cast<uint8_t>(bytes[static_cast<int>(i)]) : -1;
    const bool selected = roll >= low && roll < high;
    QColor background = roll % 2 ? pal.color(QPalette::Base) : pal.color(QPalette::AlternateBase);
    if (byte >= 0 && Highlighted(byte)) background = kMarkColour;
    if (selected) background = pal.color(QPalette::Highlight);
    p.fillRect(row, background);
    p.setPen(selected ? pal.color(QPalette::HighlightedText) : pal.color(QPalette::Text));
    p.setFont(roll == last_ ? bold : font());

    if (past) {
      p.setPen(kQuietText);
      p.drawText(row.adjusted(diceLeft, 0, 0, 0), Qt::AlignVCenter, tr("end of file"));
    } else {
      p.drawText(QRect(kCaretMargin, row.top(), numberRight - kCaretMargin, rowH), Qt::AlignRight | Qt::AlignVCenter,
                 QLocale().toString(static_cast<qlonglong>(roll)));
      if (CheckRollValue(byte)) {
        PaintDie(p, QRectF(diceLeft, row.top() + 3, die, die), Die1Of(byte));
        PaintDie(p, QRectF(diceLeft + die + 4, row.top() + 3, die, die), Die2Of(byte));
        p.drawText(QRect(totalLeft, row.top(), rowH * 2, rowH), Qt::AlignVCenter,
                   QString::number(Die1Of(byte) + Die2Of(byte)));
      } else {
        p.setPen(kCaretColour);
        p.drawText(row.adjusted(diceLeft, 0, 0, 0), Qt::AlignVCenter,
                   byte < 0 ? tr("unreadable") : tr("value %1 out of limits").arg(byte));
      }
      if (roll == last_) {
        p.setPen(selected ? pal.color(QPalette::HighlightedText) : kQuietText);
        p.drawText(row.adjusted(0, 0, -8, 0), Qt::AlignRight | Qt::AlignVCenter, tr("last roll"));
      }
    }
    if (roll == next_) {
      // The caret: a bar over the row the next roll lands on, and a pointer into it.
      p.fillRect(QRect(0, row.top(), row.width(), 2), kCaretColour);
      QPainterPath pointer;
      pointer.moveTo(3, row.top() + rowH / 2.0 - 5);
      pointer.lineTo(11, row.top() + rowH / 2.0);
      pointer.lineTo(3, row.top() + rowH / 2.0 + 5);
      pointer.closeSubpath();
      p.setRenderHint(QPainter::Antialiasing);
      p.fillPath(pointer, kCaretColour);
      p.setRenderHint(QPainter::Antialiasing, false);
    }
  }
}

void RollListView::ExtendTo(int64_t roll) {
  // The row the selection started on, whichever way it has grown since.
  const int64_t from = next_ < anchor_ ? anchor_ - 1 : anchor_;
  if (roll >= from)
    emit PositionChosen(roll + 1, from);
  else
    emit PositionChosen(roll, from + 1);
}

void RollListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !file_.isOpen()) return;
  const int64_t roll = RollAt(static_cast<int>(event->position().y()));
  if (event->modifiers() & Qt::ShiftModifier)
    ExtendTo(roll);
  else
    emit PositionChosen(roll, -1);
}

void RollListView::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton) || !file_.isOpen()) return;
  const int64_t roll = RollAt(static_cast<int>(event->position().y()));
  EnsureVisible(roll);
  ExtendTo(roll);
}

void RollListView::Move(int64_t next, bool extend) {
  next = std::clamp<int64_t>(next, 1, rolls_ + 1);
  EnsureVisible(next);
  emit PositionChosen(next, extend ? anchor_ : -1);
}

void RollListView::keyPressEvent(QKeyEvent* event) {
  if (!file_.isOpen()) return QAbstractScrollArea::keyPressEvent(event);
  const bool extend = event->modifiers() & Qt::ShiftModifier;
  switch (event->key()) {
    case Qt::Key_Up: return Move(next_ - 1, extend);
    case Qt::Key_Down: return Move(next_ + 1, extend);
    case Qt::Key_PageUp: return Move(next_ - VisibleRows(), extend);
    case Qt::Key_PageDown: return Move(next_ + VisibleRows(), extend);
    case Qt::Key_Home: return Move(1, extend);
    case Qt::Key_End: return Move(rolls_ + 1, extend);
    default: return QAbstractScrollArea::keyPressEvent(event);
  }
}
