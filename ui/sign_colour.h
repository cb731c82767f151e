#pragma once
// The colours of the 16-colour table that money and odds are drawn in by
// their sign: blue (9) for the player, red (12) against, black (0) even.

#include <QColor>

inline QColor SignColour(double value) {
  if (value > 0) return QColor(0, 0, 255);
  if (value < 0) return QColor(255, 0, 0);
  return QColor(0, 0, 0);
}
