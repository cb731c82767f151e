#pragma once
// Brings every figure of the game up to date with what a run counted in
// bulk: the roll counters and the phantom result cells. Whatever reads those
// figures in the middle of a run (a save, a finished game's log entry) calls
// it first; a run calls it as it ends.

struct Game;

void SyncStatistics(Game& g);
// Forgets what was counted in bulk: the figures were replaced (a game read
// from a file) or cleared (a new game).
void DropBulkCounts(Game& g);
