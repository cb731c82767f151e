#pragma once
// Working status of bets as the point comes and goes.

struct Game;

// A bet back at its default: working, or on the come-out its WorkOnComeOut.
void SetBetStatusDefault(Game& g, int betId);
// Runs after every change of Point. Calls ON and OFF outlive the point.
void UpdateBetStatusForPoint(Game& g);
