#include "engine/result_cells.h"

#include <array>
#include <cstddef>

namespace {

// Shifts the cells one to the front, through a copy of known size: a shift
// in place would be a call of memmove on every decision.
template <typename T, size_t N>
void DropOldest(std::array<T, N>& cells) {
  const std::array<T, N> old = cells;
  for (size_t i = 0; i + 1 < N; ++i) cells[i] = old[i + 1];
}

}  // namespace

void results::KeepTrend(Game& g, int betId, Currency net) {
  Game::BetTrend& trend = g.BetTrends[betId];
  if (trend.Count == Game::kTrendCells) {
    DropOldest(trend.Net);
    DropOldest(trend.Roll);
    --trend.Count;
  }
  trend.Net[trend.Count] = net;
  trend.Roll[trend.Count] = g.RollCounts[0];
  ++trend.Count;
}
