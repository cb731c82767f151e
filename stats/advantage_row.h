#pragma once
// One bet's line of the advantage table as every front end shows it: the
// figures of FigureAdvantage as percentages of the bet, per hour at the
// simulated roll rate, and the time a decision takes.

struct Game;

struct AdvantageRow {
  double evPerRoll = 0, stdevPerRoll = 0;          // percent
  double evPerDecision = 0, stdevPerDecision = 0;  // percent
  double evPerHour = 0;                            // percent, at the simulated roll rate
  double rollsPerDecision = 0;
  double minutesPerDecision = 0;  // 0 when the roll rate is 0
};

// BetId 1..83; zeros for any other id.
AdvantageRow AdvantageRowOf(const Game& g, int betId);
