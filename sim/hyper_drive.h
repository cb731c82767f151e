#pragma once
// Starting and stopping the table's runs, and the simulated clock of a run.

#include <string>

#include "engine/money.h"
#include "engine/stop_reason.h"

struct Game;

// The Hyper-Drive button: a second press while rolling stops the run after
// the roll in progress; otherwise the run starts, unless the bankroll is
// already beyond the bank limit, when the roll refuses the start.
void StartHyperDrive(Game& g);

// Any stop: the loop ends after the roll in progress, for this reason.
void StopRolling(Game& g, StopReason reason);

// The units of the simulated roll rate, in list order.
enum class RateUnit { RollsPerHour, RollsPerMinute, RollsPerSecond, HoursPerRoll, MinutesPerRoll, SecondsPerRoll };
const char* RateUnitName(RateUnit unit);

// Sets SimRollRate (rolls per hour) from a value in a unit. False, with the
// unit's message under "Sim Roll Rate Out Of Limits", when the value is not
// above zero or beyond the unit's largest value; the rate is then unchanged.
bool SetRollsPerHour(Game& g, Currency value, RateUnit unit);

// Simulated hours: the roll count over the rate.
double SimHours(const Game& g);
// "Sim hrs:" as shown: "#,#.0###" for a positive figure, "#,#" for a
// negative one, "0" for none.
std::string SimHoursText(double hours);
// The rate as shown beside it; a rate too small to show is "<.0001".
std::string RollsPerHourText(Currency rate);
