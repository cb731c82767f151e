#pragma once
// The statistics screens colour a figure by its sign: blue for a gain, red
// for a loss, the page's own colour for nothing either way.

#include <QColor>

inline const QColor kGainColour(0, 70, 200);
inline const QColor kLossColour(190, 20, 20);

// An invalid colour for zero, which a report or a label reads as "as usual".
inline QColor SignColour(double value) { return value > 0 ? kGainColour : value < 0 ? kLossColour : QColor(); }
