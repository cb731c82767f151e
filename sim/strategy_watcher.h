#pragma once
// A player who sits at a headless game from its start: the run hands it the
// table before the first roll too, where a plain TableWatcher is first
// called after it. Strategies written outside the engine (in Python) play
// through this.

#include "sim/run_options.h"

class StrategyWatcher : public TableWatcher {
 public:
  // Before the first roll, after the script's first cycle.
  virtual void BeforeFirstRoll(Game& g) = 0;
};
