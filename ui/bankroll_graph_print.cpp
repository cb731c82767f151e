#include "ui/bankroll_graph_print.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int kResolution = 96;  // so that a graph keeps the screen's proportions in points
constexpr double kHeaderLine = 16;
constexpr double kLabelRoom = 72;  // the grid labels left of the plot

void PaintPage(QPainter& painter, const QRectF& page, const PrintedPage& graphs) {
  const double slot = page.height() / kGraphsPerPage;
  painter.setFont(QFont(QStringLiteral("Sans"), 9));
  for (size_t i = 0; i < graphs.size(); ++i) {
    const PrintedGraph& g = graphs[i];
    const double top = page.top() + slot * static_cast<double>(i);
    double y = top;
    painter.setPen(Qt::black);
    for (const QString& line : g.header) {
      painter.drawText(QRectF(page.left(), y, page.width(), kHeaderLine), Qt::AlignLeft | Qt::AlignVCenter, line);
      y += kHeaderLine;
    }
    const QRectF plot(page.left() + kLabelRoom, y + 6, page.width() - kLabelRoom, top + slot - y - 24);
    PaintGraph(painter, plot, g.picture, g.look);
  }
}

}  // namespace

bool WriteGraphPages(const QString& path, const std::vector<PrintedPage>& pages) {
  QPdfWriter writer(path);
  if (!writer.setPageSize(QPageSize(QPageSize::Letter))) return false;
  writer.setResolution(kResolution);
  writer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
  writer.setTitle(QStringLiteral("Bankroll graph"));
  QPainter painter;
  if (!painter.begin(&writer)) return false;
  const QRectF page(QPointF(0, 0), QSizeF(writer.width(), writer.height()));
  for (size_t i = 0; i < pages.size(); ++i) {
    if (i > 0) writer.newPage();
    PaintPage(painter, page, pages[i]);
  }
  return painter.end();
}

QString PagePrompt(int sentToPage) {
  return QStringLiteral("%1 graphs will fit on a page.\rSo far you've sent %2 to the current page.\r\r"
                        "Would you like to finish printing now?")
      .arg(kGraphsPerPage)
      .arg(sentToPage);
}
