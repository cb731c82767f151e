#pragma once
// Starting and stopping the table's runs, and the simulated roll rate.

#include <string>

#include "dice/money.h"
#include "engine/stop_reason.h"
#include "stats/game_measures.h"

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
