#include "ui/roll_print.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPrinter>

namespace {

constexpr double kColumnGap = 2;  // in widths of "0"
constexpr double kHeaderGap = 1;  // a blank line under the header

QFont PrintFont(const RollPrint& print, QPaintDevice* device) {
  QFont font(QStringLiteral("Monospace"), print.fontSize);
  font.setStyleHint(QFont::TypeWriter);
  return QFont(font, device);
}

// The widest line of the job is the one with the highest roll number.
double ColumnWidth(const QFontMetricsF& metrics, const RollPrint& print) {
  const std::string widest = RollTextLine(print.first + std::max<int64_t>(print.count, 1) - 1, 6, 6, print.options);
  return metrics.horizontalAdvance(QString::fromStdString(widest)) + kColumnGap * metrics.horizontalAdvance('0');
}

}  // namespace

RollPageLayout LayoutRollPages(QPrinter& printer, const RollPrint& print) {
  const QFontMetricsF metrics(PrintFont(print, &printer));
  const double line = metrics.lineSpacing();
  RollPageLayout layout;
  layout.linesPerColumn = std::max(1, static_cast<int>((printer.height() - line * (1 + kHeaderGap)) / line));
  layout.columns = std::max(1, static_cast<int>((printer.width() + kColumnGap * metrics.horizontalAdvance('0')) /
                                                ColumnWidth(metrics, print)));
  return layout;
}

int64_t PagesFor(int64_t count, const RollPageLayout& layout) {
  return count <= 0 ? 0 : (count + layout.LinesPerPage() - 1) / layout.LinesPerPage();
}

QString RollPageHeader(const RollPrint& print, int64_t page) {
  // The medium date: 24-Nov-26.
  return QStringLiteral("Dicemill Dice Roll File:  %1    %2    Page %3")
      .arg(print.name, QLocale::c().toString(print.date, QStringLiteral("dd-MMM-yy")))
      .arg(page);
}

bool PrintRolls(QPrinter& printer, const RollPrint& print) {
  QFile file(print.rollPath);
  if (!file.open(QIODevice::ReadOnly) || !file.seek(print.first - 1)) return false;
  const RollPageLayout layout = LayoutRollPages(printer, print);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  painter.setFont(PrintFont(print, &printer));
  const QFontMetricsF metrics(painter.font());
  const double line = metrics.lineSpacing(), column = ColumnWidth(metrics, print);
  const double top = line * (1 + kHeaderGap);
  bool ok = true;
  for (int64_t done = 0, page = 1; ok && done < print.count; ++page) {
    const QByteArray rolls = file.read(std::min(layout.LinesPerPage(), print.count - done));
    if (rolls.isEmpty() || (page > 1 && !printer.newPage())) {
      ok = false;
      break;
    }
    painter.drawText(QPointF(0, metrics.ascent()), RollPageHeader(print, page));
    for (qsizetype i = 0; i < rolls.size(); ++i) {
      const int value = static_cast<uint8_t>(rolls[i]);
      // A byte out of limits prints as it is read; the file is checked elsewhere.
      const std::string text = RollTextLine(print.first + done + i, Die1Of(value), Die2Of(value), print.options);
      const double x = column * static_cast<double>(i / layout.linesPerColumn);
      const double y = top + line * static_cast<double>(i % layout.linesPerColumn) + metrics.ascent();
      painter.drawText(QPointF(x, y), QString::fromStdString(text));
    }
    done += rolls.size();
  }
  return painter.end() && ok;
}
