#include "engine/bet_status.h"

#include "engine/game.h"

void SetBetStatusDefault(Game& g, int betId) {
  if (!bet::IsTableBet(betId)) return;
  g.BetStatus.Set(betId, g.Point == 0 ? g.WorkOnComeOut[betId] : status::kWorking);
}

void UpdateBetStatusForPoint(Game& g) {
  const bool pointMade = g.Point != 0 && g.Point == g.DiceTotal;
  if (!pointMade && g.Point != 0) return;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) {
    const int32_t now = g.BetStatus[id];
    if (pointMade) {
      if (now == status::kOff) g.BetStatus.Set(id, status::kWorking);
    } else if (now != status::kCalledOn && now != status::kCalledOff) {
      g.BetStatus.Set(id, g.WorkOnComeOut[id]);
    }
  }
}
