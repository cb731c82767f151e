#pragma once
// Money on the felt: a bet as a stack of casino chips by denomination, or as
// a plain number; the ON / OFF buttons of called bets and the puck. All in
// the painter's current (logical) coordinates.

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <array>
#include <vector>

#include "dice/money.h"

class QPainter;

using CheckValues = std::array<Currency, 5>;

// The colour a casino gives a chip of this value: white $1, red $5, green
// $25, black $100, purple $500 and so on.
QColor ChipColour(Currency value);
// The checks that make up `amount`, largest first, at most `limit` of them
// (the rest of a tall stack is left to the amount label).
std::vector<Currency> ChipsFor(Currency amount, const CheckValues& checks, int limit);
// The amount as the layout labels it: "$1,250", "$7.50".
QString AmountLabel(Currency amount);

// The looks a player may give the chips, in the order Configure lists them:
// a casino's edge stripes, or plain colour.
enum class ChipStyle { Striped, Plain };
inline constexpr int kChipStyles = 2;
// The style a game's stored index names; an unknown index is the first.
ChipStyle ChipStyleOf(int index);

// One chip seen from above, with its value on its face (the tray's tools).
void PaintChip(QPainter& p, QPointF centre, qreal radius, Currency value, const QString& label,
               ChipStyle style = ChipStyle::Striped);
// A bet's stack standing on `base`, its amount on the top chip.
void PaintChipStack(QPainter& p, QPointF base, qreal radius, Currency amount, const CheckValues& checks,
                    ChipStyle style = ChipStyle::Striped);
// A bet's amount as a number on a dark ticket; answers the ticket's box.
QRectF PaintAmount(QPainter& p, QPointF centre, qreal radius, Currency amount);
// The small ON (white) or OFF (black) button beside a called bet.
void PaintCallMarker(QPainter& p, QPointF centre, qreal radius, bool on);
// The puck: white ON on the point, black OFF while the table comes out.
void PaintPuck(QPainter& p, QPointF centre, qreal radius, bool on);
