#pragma once
// The ATM: money between the player's pocket and the bankroll. The words are
// the ATM's own: a withdrawal brings money to the table, a deposit takes it away.

#include "dice/money.h"

struct Game;

enum AtmAction { kAtmWithdraw = 0, kAtmDeposit = 1 };

// Moves as much of `amount` as the bank limit and, unless negative bankrolls
// are allowed, the bets on the table let through; a cut is told under
// "Dicemill". Returns the amount moved; a negative amount moves nothing.
Currency Atm(Game& g, int action, Currency amount);

// What play has won (above zero) or lost so far.
Currency NetResult(const Game& g);
