#include "engine/place_bet.h"

#include "engine/bet_status.h"
#include "engine/game.h"

// Placeholder: applies the change with no rule at all.
void PlaceBet(Game& g, int betId) {
  Currency change = g.BetChange;
  if (g.BetAmount[betId] + change < 0) change = -g.BetAmount[betId];
  g.BetChangeAllowed = change;
  g.BetAmount[betId] += change;
  if (bet::IsTableBet(betId)) {
    g.TotalOnTable += change;
    if (g.BetAmount[betId] == 0) SetBetStatusDefault(g, betId);
  }
}
void PlaceBetOnTable(Game& g, int betId) { PlaceBet(g, betId); }
Currency GetBetMaximum(const Game& g, int) { return g.TableMaximum; }
void SetBetToMaximum(Game&, int) {}
void TakeDownBet(Game& g, int betId) {
  g.BetChange = -g.BetAmount[betId];
  PlaceBet(g, betId);
}
