#pragma once
// The quick statistics line under the table: what the bets standing now
// are expected to cost per hour of play at the table's roll rate, and the
// session's net so far.

#include <QString>

#include "dice/money.h"

struct Game;

struct QuickStats {
  double expectedPerHour = 0;  // negative: the expected loss
  Currency net;
};

QuickStats FigureQuickStats(const Game& g);
// "Bets on the table: expect -$4.19 an hour   Session net: $12"
QString QuickStatsLine(const QuickStats& stats);
