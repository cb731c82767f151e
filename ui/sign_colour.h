#pragma once
// Figures coloured by their sign: blue for the player, red against.

#include <QColor>

// The statistics screens' colours; an invalid colour for zero, which a
// report or a label reads as "as usual".
inline const QColor kGainColour(0, 70, 200);
inline const QColor kLossColour(190, 20, 20);
inline QColor SignColour(double value) { return value > 0 ? kGainColour : value < 0 ? kLossColour : QColor(); }

// The Configure window's money and odds keep the 16-colour table's blue (9),
// red (12) and black (0), as the game's own colour numbers name them.
inline QColor SignColour16(double value) {
  if (value > 0) return QColor(0, 0, 255);
  if (value < 0) return QColor(255, 0, 0);
  return QColor(0, 0, 0);
}
