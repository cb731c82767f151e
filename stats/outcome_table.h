#pragma once
// What one roll does to one bet: for every total 2..12 its probability and,
// for each of its dice combinations, that combination's probability and the
// bet's result per unit (0 where the roll decides nothing).

#include <array>

struct Game;

struct OutcomeEntry {
  double Prob = 0;
  double Net = 0;
};

// Row t-2 for total t. Column 0 holds the total's own probability; columns
// 1..Combinations(t) one combination each, lower Die1 first.
struct OutcomeTable {
  std::array<std::array<OutcomeEntry, 8>, 11> cell{};

  OutcomeEntry& at(int total, int column) { return cell[total - 2][column]; }
  const OutcomeEntry& at(int total, int column) const { return cell[total - 2][column]; }
};

// How many ordered dice pairs make the total: 1 for 2 and 12, 6 for 7.
int Combinations(int total);
// The dice of a combination column (1-based) of a total.
int Die1Of(int total, int column);
inline int Die2Of(int total, int column) { return total - Die1Of(total, column); }

// The probability of each of the 36 ordered pairs, [die1][die2] with faces
// 1..6. Fair dice give 1/36 each; percentage dice give each outcome's weight
// over the sum of all 36 weights. All zero if the weights sum to nothing.
using PairProbabilities = std::array<std::array<double, 7>, 7>;
PairProbabilities DiceProbabilities(const Game& g);

// A table with every probability filled in and every Net 0.
OutcomeTable EmptyOutcomeTable(const PairProbabilities& p);
// The probability of a total: the sum of its combinations.
double TotalProbability(const PairProbabilities& p, int total);
