#include "testkit/busy_table.h"

#include "engine/game.h"
#include "engine/place_bet.h"

namespace {

void Keep(Game& g, int id, int amount) {
  if (g.BetAmount[id] != 0) return;
  g.BetChange = amount;
  PlaceBet(g, id);
}

}  // namespace

void KeepBusyTable(Game& g) {
  Keep(g, bet::kPassLine, 10);
  Keep(g, bet::kDontPass, 10);
  if (g.Point != 0) {
    Keep(g, bet::kCome, 10);
    Keep(g, bet::kPassOdds, 20);
    Keep(g, bet::kDontPassOdds, 20);
    for (int n : bet::kNumbers)
      if (g.BetAmount[bet::Come(n)] > 0) Keep(g, bet::ComeOdds(n), 20);
  }
  Keep(g, bet::Place(6), 12);
  Keep(g, bet::Place(8), 12);
  Keep(g, bet::kField, 5);
  for (int id = bet::kHard4; id <= bet::kHard10; ++id) Keep(g, id, 1);
}
