#pragma once
// Where everything stands on the craps layout: one side of a casino table in
// fixed logical units, scaled to any widget keeping its proportions. Every
// table bet has a region (what a click hits) and a chip point (where its
// chips stand); the tray below the felt holds the click tools.

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>
#include <vector>

namespace layout {

constexpr qreal kWidth = 1000;
constexpr qreal kHeight = 560;

// The window's remove mode sits in the tray like a tool, though the engine
// has no tool code for it.
constexpr int kToolRemove = 92;

// The tray tools in the order they stand on the rail.
const std::vector<int>& TrayTools();

// The bet's clickable region and its chip point (inside the region).
const QPainterPath& Region(int betId);
QPointF ChipPoint(int betId);

// The bet under a logical point, 0 for none; Hop bets only when shown.
int BetAt(QPointF logical, bool showHop);
// The tray tool under a logical point, 0 for none.
int ToolAt(QPointF logical);
QRectF ToolArea(int tool);

// The next spot from `from` in a direction (dx, dy of -1, 0, 1) for a focus
// that walks the layout by keys; `from` itself when nothing lies that way.
int Neighbour(int from, int dx, int dy, bool showHop);

// The printed parts of the layout that are no bet of their own.
struct Landmarks {
  QRectF felt;            // the playing surface
  QRectF tray;            // the rail with the tools
  QRectF dice;            // where the last throw lies
  QRectF dontComeBar;     // the Don't Come box, also the puck's OFF place
  QRectF numbers;         // the six number boxes together
  QRectF props;           // the centre propositions
  QRectF hopBand;         // the Hop bets' band
  QPointF puckOff;        // the OFF puck
  qreal puckRadius = 0;
  qreal chipRadius = 0;
};
const Landmarks& Marks();
// The number box of 4, 5, 6, 8, 9 or 10, and the puck's place on it.
QRectF NumberBox(int number);
QPointF PuckOn(int number);

// Logical units to a widget of `size`: uniform scale, centred.
QTransform ToWidget(QSizeF size);

}  // namespace layout
