#pragma once
// Cells of the statistics tables: numbers right-aligned and coloured by
// sign (blue a gain, red a loss), so that a column reads at a glance.

#include <QBrush>
#include <QColor>
#include <QString>
#include <QTableWidgetItem>

namespace signed_cells {

inline QColor TextColor(int sign) {
  if (sign > 0) return QColor(0x10, 0x40, 0xc0);
  if (sign < 0) return QColor(0xc0, 0x18, 0x18);
  return {};
}

// A pale wash of the same hue behind a strip cell.
inline QColor Wash(int sign) {
  if (sign > 0) return QColor(0xe2, 0xea, 0xff);
  if (sign < 0) return QColor(0xff, 0xe2, 0xe2);
  return QColor(0xf2, 0xf2, 0xf2);
}

// The sign of a number as the statistics format it ("-1,250", "0", "35").
inline int SignOfText(const QString& text) {
  const QString t = text.trimmed();
  if (t.isEmpty() || t == QLatin1String("0")) return 0;
  return t.startsWith(QLatin1Char('-')) ? -1 : 1;
}

// A read-only cell; numbers stand right, names left.
inline QTableWidgetItem* Cell(const QString& text, bool number = false, int sign = 0) {
  auto* item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  item->setTextAlignment((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  if (sign != 0) item->setForeground(TextColor(sign));
  return item;
}

}  // namespace signed_cells
