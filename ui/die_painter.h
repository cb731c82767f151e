#pragma once
// One die's face, pips and all, drawn in a square: the table, the pad and
// the layout's printed dice all use it.

#include <QRectF>

class QPainter;

// The looks a player may give the dice, in the order Configure lists them.
enum class DiceStyle { CasinoRed, Ivory, Translucent };
inline constexpr int kDiceStyles = 3;
// The style a game's stored index names; an unknown index is the first.
DiceStyle DiceStyleOf(int index);

void PaintDie(QPainter& painter, const QRectF& box, int face, DiceStyle style = DiceStyle::CasinoRed);
