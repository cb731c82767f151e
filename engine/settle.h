#pragma once
// What one bet does on this roll: payoff, rounding, money, streak, notice.

#include "engine/money.h"

struct Game;

// Outcome: 1 flat win, 2 odds win, -1 flat loss, -2 odds loss.
void SettleBet(Game& g, int outcome, int betId);
// Sets g.RawPayoff, g.NetPayoff and row 0 of g.Payoff. realBet 0 figures the
// phantom one-unit wager with the rate's vig; 1 the real bet with its own vig.
void FigurePayoff(Game& g, int realBet, int betId, int outcome, Currency amount);
// The press of one unit for the bet being settled, in g.UnitAmount.
void FigureUnit(Game& g, int betId);
