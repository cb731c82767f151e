#pragma once
// The values a script reads: a bet, a group of bets, a counter, the bankroll
// or a Chip-Stack, now ("value of") or as the roll started ("value of the last").

#include "engine/game.h"
#include "stats/game_measures.h"

Currency GetValue(const Game& g, int code, int num);
Currency GetLastValue(const Game& g, int code, int num);

// Codes 11/17 equal, 12/18 not equal, 13/19 greater, 14/20 not greater,
// 15/21 less, 16/22 not less. Any other code is false.
bool CompareValues(Currency left, int code, Currency right);

// Chip-Stack number that "Chip-Stack ref #" num points at, or -1 when the
// value in Chip-Stack num is not a whole 0..99.
int ChipStackReference(const Game& g, int num);

// The bet of a shooter's-point subject or target (1800, 1803..1806) on the
// current point; 0 when there is no point or the code is not one of them.
int ShootersPointBet(const Game& g, int code);
