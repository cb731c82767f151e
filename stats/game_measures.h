#pragma once
// Measures of the game as a whole, shared by the summary, the bet results,
// the games log, the script and a run's report.

#include <string>

#include "dice/money.h"

struct Game;

// Simulated hours: the roll count over the rate (SimRollRate, rolls per hour).
double SimHours(const Game& g);
// "Sim hrs:" as shown: "#,#.0###" for a positive figure, "#,#" for a
// negative one, "0" for none.
std::string SimHoursText(double hours);
// The rate as shown beside it; a rate too small to show is "<.0001".
std::string RollsPerHourText(Currency rate);

// The average bankroll over the rolls of the game (the bankroll itself
// before the first roll).
Currency AverageBankroll(const Game& g);
