#include "stats/outcome_table.h"

#include <algorithm>
#include <cstdlib>

#include "dice/prob_table.h"
#include "engine/game.h"

int Combinations(int total) { return 6 - std::abs(7 - total); }

int Die1Of(int total, int column) { return std::max(1, total - 6) + column - 1; }

PairProbabilities DiceProbabilities(const Game& g) {
  PairProbabilities p{};
  if (!g.UseSkewedProbability) {
    for (int a = 1; a <= 6; ++a)
      for (int b = 1; b <= 6; ++b) p[a][b] = 1.0 / 36;
    return p;
  }
  // The weights need not sum to 100%: each outcome counts by its share.
  double sum = 0;
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) {
      const ProbPosition cell = OutcomeCell(a, b);
      p[a][b] = std::max(0, g.Prob.at(cell.row, cell.column).value);
      sum += p[a][b];
    }
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) p[a][b] = sum > 0 ? p[a][b] / sum : 0;
  return p;
}

double TotalProbability(const PairProbabilities& p, int total) {
  double sum = 0;
  for (int column = 1; column <= Combinations(total); ++column) sum += p[Die1Of(total, column)][Die2Of(total, column)];
  return sum;
}

OutcomeTable EmptyOutcomeTable(const PairProbabilities& p) {
  OutcomeTable t;
  for (int total = 2; total <= 12; ++total) {
    t.at(total, 0).Prob = TotalProbability(p, total);
    for (int column = 1; column <= Combinations(total); ++column)
      t.at(total, column).Prob = p[Die1Of(total, column)][Die2Of(total, column)];
  }
  return t;
}
