#include "ui/probability_grid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <cmath>

#include "ui/die_painter.h"

namespace {

// The grid's measures, in pixels.
constexpr int kMargin = 6, kHeading = 22, kRowHeight = 33, kFaceGap = 14;
constexpr int kLabelWidth = 30, kTotalWidth = 66, kTotalGap = 10, kOutcomeWidth = 54;
constexpr int kDie = 12;  // a small die of an outcome or face cell, above its number
constexpr int kLastTotalRow = 11;

const QColor kLockedFill(0xFF, 0xE9, 0x6B);
const QColor kTotalFill(0xEC, 0xF1, 0xF8), kFaceFill(0xEF, 0xF6, 0xEA), kOutcomeFill(Qt::white);
const QColor kBorder(0xB4, 0xBD, 0xCA), kChosenBorder(0x2D, 0x6C, 0xDF);
const QColor kInk(0x1F, 0x25, 0x2E), kFaint(0x9A, 0xA1, 0xAB);

// Where the number of a cell goes: below its dice, or the whole of a total.
QRect TextRect(const QRect& cell, int row, int column) {
  if (IsTotalCell(row, column)) return cell.adjusted(4, 4, -4, -4);
  return cell.adjusted(3, 3 + kDie, -3, -2);
}

int RowTop(int row) {
  const int top = kMargin + kHeading;
  if (row <= kLastTotalRow) return top + (row - 1) * kRowHeight;
  return top + kLastTotalRow * kRowHeight + kFaceGap + (row - kDie1FaceRow) * kRowHeight;
}

int ColumnLeft(int column) {
  const int totals = kMargin + kLabelWidth;
  if (column == 1) return totals;
  return totals + kTotalWidth + kTotalGap + (column - 2) * kOutcomeWidth;
}

}  // namespace

ProbPosition StepBlockCell(ProbPosition from, int rowStep, int columnStep) {
  ProbPosition at = from;
  // A full lap always comes back to `from` at worst, which is a block cell.
  for (int i = 0; i < kProbRows * kProbColumns; ++i) {
    at.row = 1 + ((at.row - 1 + rowStep) % (kProbRows - 1) + (kProbRows - 1)) % (kProbRows - 1);
    at.column = 1 + ((at.column - 1 + columnStep) % (kProbColumns - 1) + (kProbColumns - 1)) % (kProbColumns - 1);
    if (IsBlockCell(at.row, at.column)) return at;
  }
  return from;
}

double LeadingNumber(const QString& text) {
  static const QRegularExpression number(QStringLiteral(R"(^\s*([+-]?(\d+\.?\d*|\.\d+)))"));
  const QRegularExpressionMatch m = number.match(text);
  return m.hasMatch() ? QLocale::c().toDouble(m.captured(1)) : 0.0;
}

ProbabilityGrid::ProbabilityGrid(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picProbability"));
  setFocusPolicy(Qt::ClickFocus);
  editor_ = new QLineEdit(this);
  editor_->setObjectName(QStringLiteral("txtPercent"));
  editor_->setAlignment(Qt::AlignCenter);
  editor_->setToolTip(tr("Type a weight and press Enter. L locks or unlocks the cell; the arrow keys move."));
  editor_->installEventFilter(this);
  QFont f = font();
  f.setPointSizeF(f.pointSizeF() * 0.9);
  setFont(f);
  editor_->setFont(f);
  PlaceEditor();
}

QSize ProbabilityGrid::sizeHint() const {
  return {ColumnLeft(7) + kOutcomeWidth + kMargin, RowTop(kDie2FaceRow) + kRowHeight + kMargin};
}

QRect ProbabilityGrid::CellRect(int row, int column) const {
  const int width = column == 1 ? kTotalWidth : kOutcomeWidth;
  return {ColumnLeft(column) + 1, RowTop(row) + 1, width - 2, kRowHeight - 2};
}

void ProbabilityGrid::Show(const ProbTable& table, int32_t displayMode, double rollsOutOf) {
  table_ = table;
  displayMode_ = displayMode;
  rollsOutOf_ = rollsOutOf;
  PlaceEditor();
  update();
}

void ProbabilityGrid::Choose(ProbPosition cell) {
  if (!IsBlockCell(cell.row, cell.column)) return;
  chosen_ = cell;
  PlaceEditor();
  update();
}

QString ProbabilityGrid::Shown(int row, int column) const {
  double v = TableUnitsToEntry(table_.at(row, column).value, displayMode_, rollsOutOf_, row, column);
  if (std::abs(v) < 0.0005) v = 0;
  // Large counts of rolls keep to the cell by giving up decimals.
  const double size = std::abs(v);
  const int decimals = size < 100 ? 3 : size < 1000 ? 2 : size < 10000 ? 1 : 0;
  const bool signedMode = displayMode_ == kShowPlusMinusTrue || displayMode_ == kShowPlusMinusTrueRolls;
  const QString text = QString::number(v, 'f', decimals);
  return signedMode && v > 0 ? QStringLiteral("+") + text : text;
}

void ProbabilityGrid::CommitIfEdited() {
  if (editor_->isModified()) emit EntryCommitted(chosen_.row, chosen_.column, LeadingNumber(editor_->text()));
}

void ProbabilityGrid::PlaceEditor() {
  const QRect cell = CellRect(chosen_.row, chosen_.column);
  editor_->setGeometry(TextRect(cell, chosen_.row, chosen_.column));
  const bool locked = (table_.at(chosen_.row, chosen_.column).flags & kUserLock) != 0;
  editor_->setStyleSheet(QStringLiteral("QLineEdit { border: 1px solid %1; border-radius: 2px; background: %2; "
                                        "color: #1f252e; padding: 0; margin: 0; }")
                             .arg(kChosenBorder.name(), locked ? kLockedFill.name() : QStringLiteral("white")));
  editor_->setText(Shown(chosen_.row, chosen_.column));
  editor_->setModified(false);
  editor_->selectAll();
}

void ProbabilityGrid::Move(int rowStep, int columnStep) {
  CommitIfEdited();
  Choose(StepBlockCell(chosen_, rowStep, columnStep));
}

bool ProbabilityGrid::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_L:
      emit LockToggled(chosen_.row, chosen_.column);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit EntryCommitted(chosen_.row, chosen_.column, LeadingNumber(editor_->text()));
      return true;
    case Qt::Key_Up:
      Move(-1, 0);
      return true;
    case Qt::Key_Down:
      Move(1, 0);
      return true;
    case Qt::Key_Left:
      Move(0, -1);
      return true;
    case Qt::Key_Right:
      Move(0, 1);
      return true;
    default:
      return false;
  }
}

void ProbabilityGrid::mousePressEvent(QMouseEvent* event) {
  for (int r = 1; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (IsBlockCell(r, c) && CellRect(r, c).contains(event->position().toPoint())) {
        CommitIfEdited();
        Choose({r, c});
        editor_->setFocus();
        return;
      }
}

void ProbabilityGrid::PaintCell(QPainter& p, int row, int column) const {
  const QRect box = CellRect(row, column);
  const ProbCell& cell = table_.at(row, column);
  const QColor fill = (cell.flags & kUserLock)     ? kLockedFill
                      : IsTotalCell(row, column) ? kTotalFill
                      : IsFaceCell(row, column)  ? kFaceFill
                                                 : kOutcomeFill;
  p.setPen(QPen(kBorder, 1));
  p.setBrush(fill);
  p.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);

  const int dieTop = box.top() + 3;
  const double middle = box.left() + box.width() / 2.0;
  if (IsOutcomeCell(row, column)) {
    PaintDie(p, QRectF(middle - kDie - 1, dieTop, kDie, kDie), Die1OfCell(row, column));
    PaintDie(p, QRectF(middle + 1, dieTop, kDie, kDie), Die2OfCell(row, column));
  } else if (IsFaceCell(row, column)) {
    PaintDie(p, QRectF(middle - kDie / 2.0, dieTop, kDie, kDie), column - 1);
  }
  QFont f = font();
  f.setBold(IsTotalCell(row, column));
  p.setFont(f);
  p.setPen(cell.value == 0 ? kFaint : kInk);
  p.drawText(TextRect(box, row, column), Qt::AlignCenter, Shown(row, column));
}

void ProbabilityGrid::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(rect(), palette().color(QPalette::Base));

  QFont heading = font();
  heading.setBold(true);
  p.setFont(heading);
  p.setPen(kInk);
  const QRect headings(0, kMargin, width(), kHeading - 4);
  p.drawText(QRect(ColumnLeft(1), headings.top(), kTotalWidth, headings.height()), Qt::AlignCenter, tr("Total"));
  p.drawText(QRect(ColumnLeft(2), headings.top(), 6 * kOutcomeWidth, headings.height()), Qt::AlignCenter,
             tr("Ways to roll it (Die 1, Die 2)"));
  for (int r = 1; r <= kLastTotalRow; ++r)
    p.drawText(QRect(kMargin, RowTop(r), kLabelWidth - 6, kRowHeight), Qt::AlignRight | Qt::AlignVCenter,
               QString::number(r + 1));
  // A rule sets the faces apart from the totals.
  const int ruleY = RowTop(kDie1FaceRow) - kFaceGap / 2;
  p.setPen(QPen(kBorder, 1, Qt::DashLine));
  p.drawLine(kMargin, ruleY, width() - kMargin, ruleY);
  p.setPen(kInk);
  for (int r = kDie1FaceRow; r <= kDie2FaceRow; ++r)
    p.drawText(QRect(kMargin, RowTop(r), kLabelWidth + kTotalWidth - 4, kRowHeight), Qt::AlignRight | Qt::AlignVCenter,
               r == kDie1FaceRow ? tr("Die 1 faces") : tr("Die 2 faces"));

  for (int r = 1; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (IsBlockCell(r, c)) PaintCell(p, r, c);

  const QRect chosen = CellRect(chosen_.row, chosen_.column);
  p.setPen(QPen(kChosenBorder, 2));
  p.setBrush(Qt::NoBrush);
  p.drawRoundedRect(QRectF(chosen).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}
