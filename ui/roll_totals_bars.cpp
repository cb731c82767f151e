#include "ui/roll_totals_bars.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "dice/money.h"
#include "ui/percent_text.h"

namespace {

constexpr int kPad = 8;         // around each figure
constexpr int kBarWidth = 280;  // the longest bar
constexpr int kLeastBarWidth = 100;
constexpr int kRowGap = 4;

// Black or white, whichever reads on `background`.
QColor InkOn(const QColor& background) { return background.lightnessF() > 0.55 ? Qt::black : Qt::white; }

QString Count(int64_t n) { return QString::fromStdString(FormatWithCommas(n)); }

}  // namespace

RollTotalsBars::RollTotalsBars(QWidget* parent)
    : QWidget(parent), background_(Qt::white), bar_(QColor(0, 110, 60)) {
  setObjectName(QStringLiteral("picTotals"));
}

void RollTotalsBars::SetRows(std::vector<TotalsRow> rows, int64_t totalRolls) {
  const bool resized = rows.size() != rows_.size();
  rows_ = std::move(rows);
  totalRolls_ = totalRolls;
  if (resized) updateGeometry();
  update();
}

void RollTotalsBars::SetColours(const QColor& background, const QColor& bar) {
  background_ = background;
  bar_ = bar;
  update();
}

double RollTotalsBars::ProbableCount(const TotalsRow& row) const {
  return row.ProbablePercent / 100.0 * static_cast<double>(totalRolls_);
}

int RollTotalsBars::RowHeight() const { return fontMetrics().height() + kRowGap; }
int RollTotalsBars::HeaderHeight() const { return 2 * fontMetrics().height() + kRowGap * 2; }

QFont RollTotalsBars::HeaderFont() const {
  QFont bold = font();
  bold.setBold(true);
  return bold;
}

RollTotalsBars::Columns RollTotalsBars::Layout() const {
  // The bold titles are the widest entries of their columns.
  const QFontMetrics m(HeaderFont());
  auto wide = [&](std::initializer_list<QString> texts) {
    int w = 0;
    for (const QString& t : texts) w = std::max(w, m.horizontalAdvance(t));
    return w + 2 * kPad;
  };
  int label = m.horizontalAdvance(QStringLiteral("Die 2, face 6"));
  for (const TotalsRow& r : rows_) label = std::max(label, m.horizontalAdvance(QString::fromStdString(r.Label)));
  Columns c{};
  c.label = label + 2 * kPad;
  c.bar = kBarWidth + 2 * kPad;
  c.rolls = wide({QStringLiteral("# of rolls"), QStringLiteral("100,000,000")});
  c.since = wide({QStringLiteral("# of rolls since"), QStringLiteral("last appeared"), QStringLiteral("100,000,000")});
  c.actual = wide({QStringLiteral("Actual %"), QStringLiteral("100.00%")});
  c.prob = wide({QStringLiteral("Prob %"), QStringLiteral("100.00%")});
  c.width = c.label + c.bar + c.rolls + c.since + c.actual + c.prob;
  // The bars take whatever room the window gives, down to a least width.
  if (width() > 0) {
    c.bar = std::max(kLeastBarWidth + 2 * kPad, c.bar + width() - c.width);
    c.width = c.label + c.bar + c.rolls + c.since + c.actual + c.prob;
  }
  return c;
}

QSize RollTotalsBars::sizeHint() const {
  const Columns c = Layout();
  return {c.width - c.bar + kBarWidth + 2 * kPad, HeaderHeight() + static_cast<int>(rows_.size()) * RowHeight() + kPad};
}

// The bars give way first: a narrow window keeps every figure in view.
QSize RollTotalsBars::minimumSizeHint() const {
  const QSize full = sizeHint();
  return {full.width() - kBarWidth + kLeastBarWidth, full.height()};
}

void RollTotalsBars::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), background_);
  const Columns c = Layout();
  PaintHeader(p, c);
  // One scale for every bar: the longest count or expectation fills the width.
  double scale = 0;
  for (const TotalsRow& r : rows_) scale = std::max({scale, static_cast<double>(r.Rolls), ProbableCount(r)});
  for (size_t i = 0; i < rows_.size(); ++i) PaintRow(p, c, i, scale);
}

void RollTotalsBars::PaintHeader(QPainter& p, const Columns& c) const {
  const int line = fontMetrics().height();
  const QColor ink = InkOn(background_);
  p.setPen(ink);
  p.setFont(HeaderFont());
  int x = c.label;
  auto cell = [&](int width, int row, const QString& text, Qt::Alignment align = Qt::AlignRight) {
    p.drawText(QRect(x + kPad, kRowGap + row * line, width - 2 * kPad, line), align | Qt::AlignVCenter, text);
  };
  cell(c.bar, 1, QStringLiteral("Rolls (| = probable)"), Qt::AlignLeft);
  x += c.bar;
  cell(c.rolls, 1, QStringLiteral("# of rolls"));
  x += c.rolls;
  cell(c.since, 0, QStringLiteral("# of rolls since"));
  cell(c.since, 1, QStringLiteral("last appeared"));
  x += c.since;
  // PERCENT spans both of its columns.
  p.drawText(QRect(x + kPad, kRowGap, c.actual + c.prob - 2 * kPad, line), Qt::AlignCenter,
             QStringLiteral("PERCENT"));
  cell(c.actual, 1, QStringLiteral("Actual %"));
  x += c.actual;
  cell(c.prob, 1, QStringLiteral("Prob %"));
  p.setFont(font());
  const int bottom = HeaderHeight() - kRowGap / 2;
  p.drawLine(0, bottom, c.width, bottom);
}

void RollTotalsBars::PaintRow(QPainter& p, const Columns& c, size_t index, double scale) const {
  const TotalsRow& r = rows_[index];
  const int h = RowHeight();
  const int y = HeaderHeight() + static_cast<int>(index) * h;
  // Every other row a shade off, so that the eye keeps to its row.
  if (index % 2 == 1) p.fillRect(QRect(0, y, c.width, h), background_.lightnessF() > 0.5 ? background_.darker(107)
                                                                                      : background_.lighter(130));
  const QColor ink = InkOn(background_);
  p.setPen(ink);
  int x = 0;
  auto cell = [&](int width, const QString& text, Qt::Alignment align = Qt::AlignRight) {
    p.drawText(QRect(x + kPad, y, width - 2 * kPad, h), align | Qt::AlignVCenter, text);
    x += width;
  };
  cell(c.label, QString::fromStdString(r.Label), Qt::AlignLeft);
  if (scale > 0) {
    const double across = (c.bar - 2 * kPad) / scale;
    const QRectF bar(x + kPad, y + 3, across * static_cast<double>(r.Rolls), h - 6);
    p.fillRect(bar, bar_);
    const double mark = x + kPad + across * ProbableCount(r);
    p.setPen(QPen(ink, 2));
    p.drawLine(QPointF(mark, y + 1), QPointF(mark, y + h - 2));
    p.setPen(ink);
  }
  x += c.bar;
  cell(c.rolls, Count(r.Rolls));
  cell(c.since, Count(r.RollsSinceLast));
  cell(c.actual, PercentText(r.ActualPercent));
  cell(c.prob, PercentText(r.ProbablePercent));
}
