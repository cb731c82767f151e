#include "engine/new_game.h"

#include "config/payoffs.h"
#include "engine/game.h"

// Placeholder until start-up is built.
void FillDefaults(Game& g) {
  const int chips[5] = {1, 5, 25, 100, 500};
  for (int i = 0; i < 5; ++i) g.BetAmount[bet::kFirstChip + i] = chips[i];
  for (int id = 1; id <= bet::kLastTableBet; ++id) {
    g.BetName[id] = std::string(bet::CatalogueName(id));
    g.WorkOnComeOut[id] = bet::DefaultWorkOnComeOut(id);
    g.BetStatus[id] = g.WorkOnComeOut[id];
  }
  RestoreDefaultPayoffs(g);
}
void StartUp(Game& g, const std::string&) { FillDefaults(g); NewGame(g, false); }
void NewGame(Game& g, bool) { g.Bankroll() = g.BankrollInitAmount; }
