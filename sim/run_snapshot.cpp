#include "sim/run_snapshot.h"

#include <algorithm>

#include "engine/game.h"

void TakeRunSnapshot(const Game& g, bool running, RunSnapshot& shot) {
  shot.Running = running;
  shot.Rolls = g.RollCounts[0];
  shot.RollsLeft = g.RollCountLeft;
  shot.Bankroll = g.Bankroll();
  shot.TotalOnTable = g.TotalOnTable;
  shot.Rack = g.Bankroll() - g.TotalOnTable;
  shot.HighBankroll = g.HighBankroll;
  shot.LowBankroll = g.LowBankroll;
  shot.Point = g.Point;
  shot.Die1 = g.Die1;
  shot.Die2 = g.Die2;
  shot.Bets = g.BetAmount.All();
  shot.GraphFirstRoll = WindowFirstRoll(g);
  shot.GraphCount = g.GraphCount;
  shot.GraphTop = g.GraphTop;
  shot.GraphScale = g.GraphScale;
  // Element 0 of the game's arrays is not a point of the window.
  std::copy_n(g.GraphBankroll.begin() + 1, graph::kWindowPoints, shot.GraphPoints.begin());
  std::copy_n(g.GraphAverage.begin() + 1, graph::kWindowPoints, shot.GraphAverages.begin());
  shot.DisplayAverage = g.DisplayAverage;
}
