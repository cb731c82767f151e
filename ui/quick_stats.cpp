#include "ui/quick_stats.h"

#include <QObject>
#include <cmath>

#include "engine/bet_status_table.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "stats/advantage.h"
#include "ui/status_panel.h"

QuickStats FigureQuickStats(const Game& g) {
  QuickStats stats;
  double perRoll = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    // A bet called OFF stands on the table but risks nothing until called back.
    if (g.BetAmount[id] == 0 || g.BetStatus[id] == status::kCalledOff) continue;
    perRoll += FigureAdvantage(g, id).EvPerRoll * g.BetAmount[id].ToDouble();
  }
  stats.expectedPerHour = perRoll * g.SimRollRate.ToDouble();
  stats.net = g.Bankroll() - g.AmountInvested;
  return stats;
}

QString QuickStatsLine(const QuickStats& stats) {
  // Cents, rounded half away from zero, as money is shown everywhere else.
  const Currency hourly = Currency::FromDouble(std::round(stats.expectedPerHour * 100) / 100);
  return QObject::tr("Bets on the table: expect %1 an hour   Session net: %2")
      .arg(MoneyLabel(hourly), MoneyLabel(stats.net));
}
