#pragma once
// The exact expected value and spread of one bet under the table's present
// payoffs, vig, bar number and dice, by enumeration.

struct Game;

struct Advantage {
  double EvPerRoll = 0;
  double EvPerDecision = 0;
  double RollsPerDecision = 0;
  double VarPerRoll = 0;
  double VarPerDecision = 0;
};

// Figures per unit of bet (per unit of bet plus vig where the vig is paid up
// front) for BetId 1..83; zeros for any other id.
Advantage FigureAdvantage(const Game& g, int betId);
