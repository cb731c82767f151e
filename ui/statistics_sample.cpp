#include "ui/statistics_sample.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"

void PlayForStatisticsPictures(Table& table) {
  // Short runs between bets, so that lost bets come back and the results
  // hold wins and losses of each.
  constexpr int kRolls = 360;
  constexpr int kRollsBetweenBets = 6;
  constexpr int kSeed = 1961;
  const std::array<std::pair<int, Currency>, 5> bets = {{{bet::kPassLine, 10},
                                                         {bet::Place(6), 12},
                                                         {bet::Place(8), 12},
                                                         {bet::kCome, 5},
                                                         {bet::kField, 5}}};
  table.StartFresh();
  table.Seed(kSeed);  // the same pictures each time
  table.Set("AutoTakeFullOdds", 1);
  for (int played = 0; played < kRolls; played += kRollsBetweenBets) {
    for (const auto& [id, amount] : bets)
      if (table.State().BetAmount[static_cast<size_t>(id)] == 0) table.Bet(id, amount);
    table.HyperDrive(std::min(kRollsBetweenBets, kRolls - played));
  }
}
