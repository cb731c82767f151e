#include "ui/bankroll_graph_print.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>

namespace {

// The page is laid out in units of 1/96 inch, the painter scaled to the
// printer's resolution, whatever the printer dialog left it at; fonts are
// sized in those units too, so text keeps its place beside the lines.
constexpr double kLayoutDpi = 96;
constexpr double kHeaderLine = 16;
constexpr int kHeaderPixels = 12;  // 9 points at the layout's 96 dots an inch
constexpr double kLabelRoom = 72;  // the grid labels left of the plot

void PaintSlot(QPainter& painter, const QRectF& page, int slotIndex, const PrintedGraph& g) {
  const double slot = page.height() / kGraphsPerPage;
  const double top = page.top() + slot * slotIndex;
  double y = top;
  QFont font(QStringLiteral("Sans"));
  font.setPixelSize(kHeaderPixels);
  painter.setFont(font);
  painter.setPen(Qt::black);
  for (const QString& line : g.header) {
    painter.drawText(QRectF(page.left(), y, page.width(), kHeaderLine), Qt::AlignLeft | Qt::AlignVCenter, line);
    y += kHeaderLine;
  }
  const QRectF plot(page.left() + kLabelRoom, y + 6, page.width() - kLabelRoom, top + slot - y - 24);
  PaintGraph(painter, plot, g.picture, g.look);
}

}  // namespace

void PrepareGraphPrinter(QPrinter& printer, const QString& title) {
  printer.setPageSize(QPageSize(QPageSize::Letter));
  printer.setPageOrientation(QPageLayout::Portrait);
  printer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
  printer.setDocName(title);
}

bool GraphPrintJob::Add(const PrintedGraph& graph) {
  const int slotIndex = graphs_ % kGraphsPerPage;
  if (graphs_ == 0) {
    if (!painter_.begin(&printer_)) return false;
    const double scaleX = printer_.logicalDpiX() / kLayoutDpi, scaleY = printer_.logicalDpiY() / kLayoutDpi;
    painter_.scale(scaleX, scaleY);
    page_ = QRectF(0, 0, printer_.width() / scaleX, printer_.height() / scaleY);
  } else if (slotIndex == 0 && !printer_.newPage()) {
    return false;
  }
  PaintSlot(painter_, page_, slotIndex, graph);
  ++graphs_;
  return true;
}

bool GraphPrintJob::Finish() { return !painter_.isActive() || painter_.end(); }

bool PrintGraphPage(QPrinter& printer, const PrintedPage& page) {
  GraphPrintJob job(printer);
  for (const PrintedGraph& graph : page) {
    if (!job.Add(graph)) return false;
  }
  return job.Finish();
}

QString PagePrompt(int sentToPage) {
  return QStringLiteral("%1 graphs will fit on a page.\rSo far you've sent %2 to the current page.\r\r"
                        "Would you like to finish printing now?")
      .arg(kGraphsPerPage)
      .arg(sentToPage);
}
