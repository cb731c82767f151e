#include "sim/fresh_table.h"

#include "engine/game.h"
#include "engine/new_game.h"
#include "sim/table.h"

void SetUpFreshTable(Game& g, const FreshTable& how) {
  if (!how.reSeed) g.ReSeedNewGames = false;
  FillDefaults(g);
  if (how.bankroll) {
    g.BankrollInitType = 0;
    g.BankrollInitAmount = *how.bankroll;
  }
  NewGame(g, false);
}

int DefaultGeneratorNumber() {
  SilentFrontEnd ui;
  Table table(ui);
  table.StartFresh();
  return table.State().RngChoice + 1;
}
