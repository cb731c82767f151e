#pragma once
// A busy hand-placed table for long runs and benchmarks: Pass Line and Don't
// Pass with odds, Come bets with odds, Place 6 and 8, the Field and the hard
// ways, each put back whenever it is gone.

#include "sim/run_options.h"

struct Game;

// Puts back every bet of the layout that is not on the table.
void KeepBusyTable(Game& g);

// The player who keeps the layout full between the rolls of a run.
class BusyTable : public TableWatcher {
 public:
  void LetInputRun(Game& g) override { KeepBusyTable(g); }
};
