#pragma once
// The bankroll graph drawn: one window of 525 rolls, 300 scale units high,
// with its grid, moving average and the two reference lines. The same
// painting serves the screen and the printed page.

#include <QColor>
#include <QStringList>
#include <QWidget>
#include <array>

#include "dice/money.h"
#include "stats/bankroll_graph.h"

enum class GraphStyle { Plain, Striped, Solid };

// What one window shows: a copy, so that a run may go on meanwhile.
struct GraphPicture {
  int64_t firstRoll = 0;  // the roll before point 1
  int count = 0;          // points 1..count are drawn
  Currency top, scale = 1;
  std::array<Currency, graph::kWindowPoints> points{};    // point p at p - 1
  std::array<Currency, graph::kWindowPoints> averages{};  // likewise
  bool withAverage = false;
};

// How it is drawn: the screen's menus.
struct GraphLook {
  bool grid = true;
  bool refLines = false;
  std::array<int, 2> refLine{1, graph::kWindowPoints};  // window points 1..525
  GraphStyle style = GraphStyle::Plain;
  QColor colour = Qt::darkGreen;
};

// The money at the grid lines, top first ("#,#" for whole amounts).
QStringList GridLabels(const GraphPicture& picture);

// Draws the window into `plot` (the area of the 525 x 300 units); the grid
// labels go to its left, outside it.
void PaintGraph(QPainter& painter, const QRectF& plot, const GraphPicture& picture, const GraphLook& look);

class BankrollGraphView : public QWidget {
  Q_OBJECT
 public:
  explicit BankrollGraphView(QWidget* parent = nullptr);

  void Show(const GraphPicture& picture, const GraphLook& look);
  const GraphPicture& Picture() const { return picture_; }
  const GraphLook& Look() const { return look_; }
  // The window point under an x of the widget, 1..525.
  int PointAt(double x) const;
  double XOf(int point) const;
  QSize sizeHint() const override;

 signals:
  // A reference line dragged to a point; sent as it moves, and `done` on release.
  void ReferenceLineMoved(int line, int point, bool done);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QRectF PlotArea() const;

  GraphPicture picture_;
  GraphLook look_;
  int dragging_ = -1;  // the reference line held, or none
};
