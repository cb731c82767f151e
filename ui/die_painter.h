#pragma once
// One die's face, pips and all, drawn in a square: the table, the pad and
// the layout's printed dice all use it.

#include <QRectF>

class QPainter;

void PaintDie(QPainter& painter, const QRectF& box, int face);
