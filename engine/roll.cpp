#include "engine/roll.h"

#include "engine/game.h"

// Placeholder until the roll cycle is built.
void RollDice(Game&) {}
int NextPoint(int point, int total) {
  if (point == 0 && bet::IsPointNumber(total)) return total;
  if (total == point || total == 7) return 0;
  return point;
}
void MoveBet(Game&, int, int) {}
void CheckBankLimit(Game&) {}
void PlayComeOutSound(Game&) {}
void LineWin(Game&) {}
void LineLoss(Game&) {}
void LineBarred(Game&) {}
