#include "config/rules.h"

#include "engine/game.h"

// Placeholder until the rules are built.
Currency FigureBuyVig(const Game&, int, Currency) { return 0; }
Currency FigureLayVig(const Game&, int, Currency) { return 0; }
bool ValidateConfiguration(Game&) { return true; }
void RefigureVigs(Game&) {}
bool ChangeVigRule(Game&, VigRule, int32_t) { return true; }
bool SetAllowNegativeBankroll(Game& g, bool allow) {
  g.AllowNegativeBankroll = allow;
  return true;
}
