#include "stats/bet_ends.h"

void AddEnd(BetEnds& ends, double prob, double net, double rolls) {
  if (prob <= 0) return;
  ends.push_back({prob, net, prob * rolls, prob * rolls * rolls});
}

void AddRace(BetEnds& ends, double weight, double rollsBefore, double pNumber, double netNumber, double pSeven,
             double netSeven) {
  const double s = pNumber + pSeven;
  if (weight <= 0 || s <= 0) return;
  // Rolls = rollsBefore + G, G geometric on s: E[G] = 1/s, E[G^2] = (2-s)/s^2.
  const double mean = rollsBefore + 1 / s;
  const double meanSquare = rollsBefore * rollsBefore + 2 * rollsBefore / s + (2 - s) / (s * s);
  for (auto [p, net] : {std::pair{pNumber, netNumber}, std::pair{pSeven, netSeven}}) {
    const double prob = weight * p / s;
    if (prob > 0) ends.push_back({prob, net, prob * mean, prob * meanSquare});
  }
}

BetEnds EndsOfOneRoll(const OutcomeTable& t) {
  BetEnds ends;
  for (int total = 2; total <= 12; ++total)
    for (int column = 1; column <= Combinations(total); ++column)
      AddEnd(ends, t.at(total, column).Prob, t.at(total, column).Net, 1);
  return ends;
}

Advantage FiguresOf(const BetEnds& ends, bool zeroOutcomesCount) {
  double all = 0, decided = 0, ev = 0, rolls = 0;
  for (const BetEnd& e : ends) {
    all += e.Prob;
    if (e.Net != 0) decided += e.Prob;
    ev += e.Prob * e.Net;
    rolls += e.Rolls;
  }
  Advantage a;
  if (rolls <= 0) return a;
  a.EvPerRoll = ev / rolls;
  // Every end, pushes included, about the value per roll, spread over the
  // expected rolls of the bet: the table's own measure of the spread per roll.
  for (const BetEnd& e : ends) {
    const double d = e.Net - a.EvPerRoll;
    a.VarPerRoll += d * d * e.Prob / rolls;
  }

  const double decisions = zeroOutcomesCount ? all : decided;
  if (decisions <= 0) return a;
  a.EvPerDecision = ev / decisions;
  a.RollsPerDecision = rolls / decisions;
  for (const BetEnd& e : ends) {
    if (!zeroOutcomesCount && e.Net == 0) continue;
    const double d = e.Net - a.EvPerDecision;
    a.VarPerDecision += d * d * e.Prob / decisions;
  }
  return a;
}
