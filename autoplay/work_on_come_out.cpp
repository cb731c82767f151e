#include "autoplay/work_on_come_out.h"

#include "engine/catalogue.h"
#include "engine/game.h"

namespace {

void Set(Game& g, int id, int32_t value) {
  if (!bet::IsTableBet(id)) return;
  g.WorkOnComeOut[id] = value;
  if (g.Point == 0 && g.BetStatus[id] != 2 && g.BetStatus[id] != -1) g.BetStatus.Set(id, value);
}

}  // namespace

std::string WorkOnComeOutRow(const Game& g, int betId) {
  return g.BetName[betId] + (g.WorkOnComeOut[betId] != 0 ? " - Yes" : " - No");
}

std::vector<int> SelectAllBets() {
  std::vector<int> all;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) all.push_back(id);
  return all;
}

void SetWorkOnComeOut(Game& g, const std::vector<int>& selection, bool works) {
  for (int id : selection) Set(g, id, works ? 1 : 0);
}

void SetWorkOnComeOutDefault(Game& g, const std::vector<int>& selection) {
  for (int id : selection)
    if (bet::IsTableBet(id)) Set(g, id, bet::DefaultWorkOnComeOut(id));
}
