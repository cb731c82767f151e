#pragma once
// What one bet does on this roll: payoff, rounding, money, streak, notice.

#include <cstdint>

#include "dice/money.h"
#include "engine/outcome.h"

struct Game;


// Settles betId if it is working (and gives back odds that are off), then
// hands a decided bet to the won or lost handling.
void SettleBet(Game& g, Outcome outcome, int betId);
// The same without the phantom unit, when the statistics count it apart.
void SettleMoneyBet(Game& g, Outcome outcome, int betId);
// Sets g.RawPayoff, g.NetPayoff and row 0 of g.Payoff. realBet 0 figures the
// phantom one-unit wager with the rate's vig; 1 the real bet with its own vig.
void FigurePayoff(Game& g, int realBet, int betId, Outcome outcome, Currency amount);
// The press of one unit for the bet being settled: the largest check times
// Per of row 0 that divides the bet into whole units. Worked out only where
// it is offered or taken, not on every win.
Currency PressUnit(const Game& g, int betId);
// The unit of PressUnit for any amount and Per.
Currency UnitFor(const Game& g, Currency amount, Currency per);
// The vig that the last real figuring of Lay or Buy betId took off its
// payoff: its stored vig when the bet won or its vig is charged up front,
// otherwise (and for every other bet) 0. Reads row 0 of g.Payoff.
Currency VigTaken(const Game& g, int betId);
