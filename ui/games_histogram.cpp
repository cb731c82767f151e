#include "ui/games_histogram.h"

#include <QPainter>

#include "ui/signed_cells.h"

namespace {

QString Money(Currency value) { return QString::fromStdString(FormatNumberWithCommas(value)); }

}  // namespace

GamesHistogram::GamesHistogram(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picHistogram"));
  setMinimumSize(360, 220);
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
}

void GamesHistogram::Show(const GamesStatistics& stats) {
  stats_ = stats;
  update();
}

void GamesHistogram::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QFontMetrics fm(font());
  const int line = fm.height();
  const QRect area = rect().adjusted(12, line + 10, -12, -(2 * line + 12));
  if (stats_.Included == 0 || stats_.Bars.empty() || stats_.HighGames == 0) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, tr("No games to draw."));
    return;
  }

  // The tallest bar's count heads the scale, with a rule at its height.
  painter.setPen(QColor(0xc8, 0xc8, 0xc8));
  painter.drawLine(area.left(), area.top(), area.right(), area.top());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRect(area.left(), 2, area.width(), line + 6), Qt::AlignLeft | Qt::AlignVCenter,
                   QString::fromStdString(GamesCountText(stats_.HighGames)));

  const int count = static_cast<int>(stats_.Bars.size());
  const double slot = static_cast<double>(area.width()) / count;
  const int gap = slot > 8 ? 2 : 0;
  for (int i = 0; i < count; ++i) {
    const HistogramBar& bar = stats_.Bars[static_cast<size_t>(i)];
    if (bar.Games == 0) continue;
    const int height = static_cast<int>(static_cast<double>(area.height()) * bar.Games / stats_.HighGames + 0.5);
    const int left = area.left() + static_cast<int>(slot * i) + gap / 2;
    const int right = area.left() + static_cast<int>(slot * (i + 1)) - gap / 2;
    const int sign = bar.High <= 0 && bar.High != bar.Low ? -1 : 1;
    painter.fillRect(QRect(left, area.bottom() - height + 1, std::max(1, right - left), height),
                     signed_cells::TextColor(sign));
  }
  painter.setPen(palette().color(QPalette::Text));
  painter.drawLine(area.left(), area.bottom() + 1, area.right(), area.bottom() + 1);

  // Low, Mid and High under the axis, with the mean marked.
  const int midX = area.left() + area.width() / 2;
  painter.drawLine(midX, area.bottom() + 1, midX, area.bottom() + 5);
  const QRect labels(area.left(), area.bottom() + 6, area.width(), line);
  painter.drawText(labels, Qt::AlignLeft, Money(stats_.RangeLow));
  painter.drawText(labels, Qt::AlignHCenter, Money(stats_.RangeMid));
  painter.drawText(labels, Qt::AlignRight, Money(stats_.RangeHigh));
  if (stats_.BelowRange + stats_.AboveRange > 0) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(QRect(area.left(), labels.bottom() + 2, area.width(), line), Qt::AlignHCenter,
                     tr("Outside the range: %1 below, %2 above")
                         .arg(QString::fromStdString(FormatWithCommas(stats_.BelowRange)),
                              QString::fromStdString(FormatWithCommas(stats_.AboveRange))));
  }
}
