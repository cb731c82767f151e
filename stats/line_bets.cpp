#include "stats/line_bets.h"

#include "engine/catalogue.h"
#include "engine/game.h"
#include "stats/roll_nets.h"

namespace {

bool Barred(const Game& g, int total) {
  if (g.BarNumber == 2 || g.BarNumber == 12) return total == g.BarNumber;
  return total == 2 || total == 12;
}

}  // namespace

BetEnds DoEnds(const Game& g, const PairProbabilities& p) {
  BetEnds ends;
  const double seven = TotalProbability(p, 7);
  for (int total : {2, 3, 12}) AddEnd(ends, TotalProbability(p, total), -1, 1);
  for (int total : {7, 11}) AddEnd(ends, TotalProbability(p, total), RatioOf(g.Payoff[bet::kCome]), 1);
  for (int point : bet::kNumbers) {
    const double q = TotalProbability(p, point);
    AddRace(ends, q, 1, q, RatioOf(g.Payoff[bet::Come(point)]), seven, -1);
  }
  return ends;
}

BetEnds DontEnds(const Game& g, const PairProbabilities& p) {
  BetEnds ends;
  const double seven = TotalProbability(p, 7);
  for (int total : {2, 3, 12})
    AddEnd(ends, TotalProbability(p, total), Barred(g, total) ? 0 : RatioOf(g.Payoff[bet::kDontCome]), 1);
  for (int total : {7, 11}) AddEnd(ends, TotalProbability(p, total), -1, 1);
  for (int point : bet::kNumbers) {
    const double q = TotalProbability(p, point);
    AddRace(ends, q, 1, q, -1, seven, RatioOf(g.Payoff[bet::DontCome(point)]));
  }
  return ends;
}

BetEnds LineOddsEnds(const Game& g, const PairProbabilities& p, bool pass) {
  BetEnds ends;
  double points = 0;
  for (int point : bet::kNumbers) points += TotalProbability(p, point);
  if (points <= 0) return ends;
  const double seven = TotalProbability(p, 7);
  for (int point : bet::kNumbers) {
    const double q = TotalProbability(p, point);
    if (pass)
      AddRace(ends, q / points, 0, q, RatioOf(g.Payoff[bet::ComeOdds(point)]), seven, -1);
    else
      AddRace(ends, q / points, 0, q, -1, seven, RatioOf(g.Payoff[bet::DontComeOdds(point)]));
  }
  return ends;
}
