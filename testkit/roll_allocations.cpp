#include "testkit/roll_allocations.h"

#include "engine/game.h"
#include "testkit/heap_count.h"

void RollAllocations::LetInputRun(Game& g) {
  // The roll that ends the run writes its reason once; it is no roll of the
  // loop's steady state.
  if (!g.KeepRolling) return;
  lastAllocations_ = HeapAllocations();
  lastRolls_ = g.RollCounts[0];
  if (started_) return;
  started_ = true;
  firstAllocations_ = lastAllocations_;
  firstRolls_ = lastRolls_;
}
