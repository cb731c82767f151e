#include "stats/advantage.h"

#include "engine/catalogue.h"
#include "engine/game.h"
#include "stats/bet_ends.h"
#include "stats/line_bets.h"
#include "stats/outcome_table.h"
#include "stats/roll_nets.h"

Advantage FigureAdvantage(const Game& g, int betId) {
  if (!bet::IsTableBet(betId)) return {};
  const PairProbabilities p = DiceProbabilities(g);
  BetEnds ends;
  if (SettlesRollByRoll(g, betId))
    ends = EndsOfOneRoll(RollOutcomes(g, p, betId));
  else if (betId == bet::kPassLine || betId == bet::kCome)
    ends = DoEnds(g, p);
  else if (betId == bet::kDontPass || betId == bet::kDontCome)
    ends = DontEnds(g, p);
  else
    ends = LineOddsEnds(g, p, betId == bet::kPassOdds);
  return FiguresOf(ends, g.IncludeZeroOutcomes);
}
