#pragma once
// A bet as the ways it can end, taken over one cycle: from the bet going up
// to its end. A bet that stands on a number is taken one roll at a time, and
// every roll is a cycle of its own.

#include <vector>

#include "stats/advantage.h"
#include "stats/outcome_table.h"

struct BetEnd {
  double Prob = 0;    // chance of this end in one cycle
  double Net = 0;     // result per unit of bet; 0 is a push
  double Rolls = 0;   // expected rolls of the cycle over this end: Prob x mean rolls
  double Rolls2 = 0;  // the same for the square of the rolls
};
using BetEnds = std::vector<BetEnd>;

// An end reached in exactly `rolls` rolls.
void AddEnd(BetEnds& ends, double prob, double net, double rolls);

// A number against the 7 after `rollsBefore` rolls, entered with chance
// `weight`: each roll brings the number with pNumber, the 7 with pSeven, and
// nothing otherwise. The wait is geometric. Skipped when neither can come.
void AddRace(BetEnds& ends, double weight, double rollsBefore, double pNumber, double netNumber, double pSeven,
             double netSeven);

// Each combination of a one-roll table is an end of its own roll.
BetEnds EndsOfOneRoll(const OutcomeTable& t);

// The six figures of a cycle. With zero outcomes counted a push is a
// decision; otherwise the figures per decision leave pushes out altogether
// (their rolls still count toward the rolls per decision). The variance per
// roll sums every end's squared distance from the value per roll, weighted by
// its chance, over the expected rolls.
Advantage FiguresOf(const BetEnds& ends, bool zeroOutcomesCount);
