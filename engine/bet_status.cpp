#include "engine/bet_status.h"

#include "engine/game.h"

void SetBetStatusDefault(Game& g, int betId) {
  if (!bet::IsTableBet(betId)) return;
  g.BetStatus[betId] = g.Point == 0 ? g.WorkOnComeOut[betId] : 1;
}

void UpdateBetStatusForPoint(Game& g) {
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    if (g.Point != 0 && g.Point == g.DiceTotal) {
      if (g.BetStatus[id] == 0) g.BetStatus[id] = 1;
    } else if (g.Point == 0) {
      if (g.BetStatus[id] != 2 && g.BetStatus[id] != -1) g.BetStatus[id] = g.WorkOnComeOut[id];
    }
  }
}
