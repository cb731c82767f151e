#pragma once
// The roll-your-own pad: the player picks the next roll, and the normal roll
// cycle runs with it. No generator is touched by a pad roll.

struct Game;

// How many pairs make `total` (2..12): 1, 2, .. 6, .. 1.
int CombinationCount(int total);
// Combination k (1..CombinationCount) of `total`: Die1 runs up, Die2 down.
void CombinationDice(int total, int k, int& die1, int& die2);

// A click on a combination or on two die faces.
void PadRoll(Game& g, int die1, int die2);
// A click in the "11 Standard Numbers" view: one of the total's pairs, each
// equally likely, drawn by a uniform generator of the pad's own.
void PadRollTotal(Game& g, int total);
