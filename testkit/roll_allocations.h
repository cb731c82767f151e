#pragma once
// Heap allocations over the rolls of a run: counted from the first time the
// run lets input run to the last time before the roll that stops it, so the
// set-up, the stop and the report stay out.

#include <cstdint>

#include "sim/run_options.h"

class RollAllocations : public TableWatcher {
 public:
  void LetInputRun(Game& g) override;
  int64_t Rolls() const { return lastRolls_ - firstRolls_; }
  int64_t Allocations() const { return lastAllocations_ - firstAllocations_; }
  double PerRoll() const { return Rolls() > 0 ? static_cast<double>(Allocations()) / Rolls() : 0; }

 private:
  bool started_ = false;
  int64_t firstRolls_ = 0, lastRolls_ = 0;
  int64_t firstAllocations_ = 0, lastAllocations_ = 0;
};
