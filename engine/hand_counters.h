#pragma once
// The hand counters (HandStats) kept by the line decisions of a roll.

struct Game;

// A line win: the Pass Line wins, by a come-out natural or a point made.
void LineWin(Game& g);
// A line loss: a come-out crap, or a seven-out, which ends the hand.
void LineLoss(Game& g);
// A come-out crap on the barred number.
void LineBarred(Game& g);
