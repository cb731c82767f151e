#include "ui/bankroll_graph_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

using graph::kGridRows;
using graph::kWindowPoints;
using graph::kWindowRows;

// Room for the money at the grid lines, left of the plot.
constexpr double kLabelWidth = 72;
constexpr double kMargin = 8;
constexpr int kLabelPixels = 11;  // 8 points at 96 dots an inch
// A reference line is caught this close to the pointer.
constexpr double kGrabPixels = 5;
// Striped draws every n-th point down to the bottom line.
constexpr int kStripeEvery = 3;

const QColor kAverageColour(200, 90, 0);
const QColor kRefLineColour(40, 70, 200);

double ToDouble(Currency c) { return static_cast<double>(c.raw) / Currency::kScale; }

// Rows from the top line: 0 at the top, 300 at the bottom, beyond for points
// off the window (the painter clips them).
double RowOf(const GraphPicture& p, Currency value) {
  const double scale = p.scale.raw > 0 ? ToDouble(p.scale) : 1.0;
  return (ToDouble(p.top) - ToDouble(value)) / scale;
}

double X(const QRectF& plot, int point) { return plot.left() + (point - 0.5) * plot.width() / kWindowPoints; }
double Y(const QRectF& plot, double row) { return plot.top() + row * plot.height() / kWindowRows; }

QPolygonF Line(const QRectF& plot, const GraphPicture& p, const std::array<Currency, kWindowPoints>& values) {
  QPolygonF line;
  line.reserve(p.count);
  for (int i = 1; i <= p.count; ++i) line << QPointF(X(plot, i), Y(plot, RowOf(p, values[i - 1])));
  return line;
}

void PaintGrid(QPainter& painter, const QRectF& plot, const GraphPicture& p, bool lines) {
  const QStringList labels = GridLabels(p);
  // In pixels of the painter's own units, so that a printer's page, scaled
  // to those units, gets labels of the same size as the screen.
  QFont font(painter.font().family());
  font.setPixelSize(kLabelPixels);
  painter.setFont(font);
  for (int i = 0; i < labels.size(); ++i) {
    const double y = Y(plot, i * kGridRows);
    if (lines) {
      painter.setPen(QPen(QColor(200, 200, 200), 0, Qt::DotLine));
      painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
    }
    painter.setPen(Qt::black);
    painter.drawText(QRectF(plot.left() - kLabelWidth, y - 8, kLabelWidth - 4, 16), Qt::AlignRight | Qt::AlignVCenter,
                     labels[i]);
  }
}

void PaintSeries(QPainter& painter, const QRectF& plot, const GraphPicture& p, const GraphLook& look) {
  if (p.count == 0) return;
  const QPolygonF line = Line(plot, p, p.points);
  if (look.style == GraphStyle::Solid) {
    QPolygonF area = line;
    area << QPointF(line.back().x(), plot.bottom()) << QPointF(line.front().x(), plot.bottom());
    QColor fill = look.colour;
    fill.setAlpha(110);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(area);
    painter.setBrush(Qt::NoBrush);
  } else if (look.style == GraphStyle::Striped) {
    QColor stripe = look.colour;
    stripe.setAlpha(90);
    painter.setPen(QPen(stripe, 1));
    for (int i = 0; i < line.size(); i += kStripeEvery)
      painter.drawLine(line[i], QPointF(line[i].x(), plot.bottom()));
  }
  painter.setPen(QPen(look.colour, 1.5));
  painter.drawPolyline(line);
  if (p.withAverage) {
    painter.setPen(QPen(kAverageColour, 1.5));
    painter.drawPolyline(Line(plot, p, p.averages));
  }
}

void PaintReferenceLines(QPainter& painter, const QRectF& plot, const GraphLook& look) {
  painter.setPen(QPen(kRefLineColour, 1, Qt::DashLine));
  for (int point : look.refLine)
    painter.drawLine(QPointF(X(plot, point), plot.top()), QPointF(X(plot, point), plot.bottom()));
}

}  // namespace

QStringList GridLabels(const GraphPicture& picture) {
  QStringList labels;
  const Currency step = (picture.scale.raw > 0 ? picture.scale : Currency(1)) * kGridRows;
  for (int row = 0; row <= kWindowRows; row += kGridRows)
    labels << QString::fromStdString(FormatNumberWithCommas(picture.top - step * (row / kGridRows)));
  return labels;
}

void PaintGraph(QPainter& painter, const QRectF& plot, const GraphPicture& picture, const GraphLook& look) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(plot, Qt::white);
  PaintGrid(painter, plot, picture, look.grid);
  painter.setClipRect(plot);
  PaintSeries(painter, plot, picture, look);
  if (look.refLines) PaintReferenceLines(painter, plot, look);
  painter.setClipping(false);
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(plot);
  painter.restore();
}

BankrollGraphView::BankrollGraphView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("picGraph"));
  setMinimumSize(kLabelWidth + kWindowPoints / 2 + kMargin, kWindowRows / 2 + 2 * kMargin);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize BankrollGraphView::sizeHint() const {
  return QSize(static_cast<int>(kLabelWidth + kWindowPoints + kMargin), static_cast<int>(kWindowRows + 2 * kMargin));
}

void BankrollGraphView::Show(const GraphPicture& picture, const GraphLook& look) {
  picture_ = picture;
  look_ = look;
  update();
}

QRectF BankrollGraphView::PlotArea() const {
  return QRectF(kLabelWidth, kMargin, width() - kLabelWidth - kMargin, height() - 2 * kMargin);
}

int BankrollGraphView::PointAt(double x) const {
  const QRectF plot = PlotArea();
  const int point = static_cast<int>(std::floor((x - plot.left()) * kWindowPoints / plot.width())) + 1;
  return std::clamp(point, 1, kWindowPoints);
}

double BankrollGraphView::XOf(int point) const { return X(PlotArea(), point); }

void BankrollGraphView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  PaintGraph(painter, PlotArea(), picture_, look_);
}

void BankrollGraphView::mousePressEvent(QMouseEvent* event) {
  if (!look_.refLines || event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  const double x = event->position().x();
  // The nearer line is taken; a click away from both brings the nearer one there.
  const double d0 = std::abs(XOf(look_.refLine[0]) - x), d1 = std::abs(XOf(look_.refLine[1]) - x);
  dragging_ = d1 < d0 ? 1 : 0;
  if (std::min(d0, d1) > kGrabPixels) mouseMoveEvent(event);
}

void BankrollGraphView::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_ < 0) return;
  const int point = PointAt(event->position().x());
  if (point == look_.refLine[dragging_]) return;
  look_.refLine[dragging_] = point;
  update();
  emit ReferenceLineMoved(dragging_, point, false);
}

void BankrollGraphView::mouseReleaseEvent(QMouseEvent* event) {
  if (dragging_ < 0) return QWidget::mouseReleaseEvent(event);
  const int line = dragging_;
  dragging_ = -1;
  emit ReferenceLineMoved(line, look_.refLine[line], true);
}
