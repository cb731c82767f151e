#include "engine/bet_status.h"

#include "engine/game.h"

void SetBetStatusDefault(Game& g, int betId) {
  if (!bet::IsTableBet(betId)) return;
  g.BetStatus.Set(betId, g.Point == 0 ? g.WorkOnComeOut[betId] : status::kWorking);
}

void UpdateBetStatusForPoint(Game& g) {
  if (g.Point != 0 && g.Point == g.DiceTotal)
    g.BetStatus.PointEstablished(bet::kFirstTableBet, bet::kLastTableBet);
  else if (g.Point == 0)
    g.BetStatus.ComeOut(bet::kFirstTableBet, bet::kLastTableBet, g.WorkOnComeOut);
}
