#pragma once
// Full odds behind the line and Come bets, by request or kept by the table.

struct Game;

// Makes the odds bet at oddsId full: the most the rules allow behind its flat.
void TakeFullOdds(Game& g, int oddsId);
// Full odds behind the Pass Line (with a point) and every Come bet on a number.
void TakeFullOddsOnAll(Game& g);
// The same for Don't Pass and the Don't Come bets.
void LayFullOddsOnAll(Game& g);
// Turning on offers to fill the odds already on the table; turning off only
// clears the flag. `quiet` (a screen that is loading) asks nothing.
void SetAutoTakeFullOdds(Game& g, bool on, bool quiet = false);
void SetAutoLayFullOdds(Game& g, bool on, bool quiet = false);
