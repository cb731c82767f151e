#include "engine/result_cells.h"

void results::KeepTrend(Game& g, int betId, Currency net) { g.BetTrends[betId].Push(net, g.RollCounts[0]); }
