#include "engine/result_cells.h"

#include <algorithm>

void results::KeepTrend(Game& g, int betId, Currency net) {
  Game::BetTrend& trend = g.BetTrends[betId];
  if (trend.Count == Game::kTrendCells) {
    std::copy(trend.Net.begin() + 1, trend.Net.end(), trend.Net.begin());
    std::copy(trend.Roll.begin() + 1, trend.Roll.end(), trend.Roll.begin());
    --trend.Count;
  }
  trend.Net[trend.Count] = net;
  trend.Roll[trend.Count] = g.RollCounts[0];
  ++trend.Count;
}
