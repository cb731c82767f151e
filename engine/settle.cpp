#include "engine/settle.h"

#include "engine/game.h"

// Placeholder until settlement is built.
void SettleBet(Game& g, int, int betId) { g.SettlingBetId = betId; }
void FigurePayoff(Game& g, int, int, int, Currency) { g.RawPayoff = g.NetPayoff = 0; }
void FigureUnit(Game& g, int) { g.UnitAmount = g.SmallestChip(); }
