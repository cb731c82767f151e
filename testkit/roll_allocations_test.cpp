// The roll loop of Hyper-Drive reaches the heap not once: a run of the empty
// table, of every sample strategy and of the busy table allocates nothing
// between its first roll and its last.

#include <gtest/gtest.h>

#include "testkit/heap_count.h"
#include "testkit/long_runs.h"
#include "testkit/roll_allocations.h"

namespace {

constexpr int64_t kRolls = 5'000;

TEST(RollAllocations, CountingNewSeesAllocations) {
  const int64_t before = HeapAllocations();
  int* volatile kept = new int(1);  // volatile: the allocation may not be left out
  const int64_t after = HeapAllocations();
  delete kept;
  EXPECT_EQ(after - before, 1);
}

TEST(RollAllocations, NoneInHyperDrive) {
  for (const LongRun& run : kLongRuns) {
    RollAllocations counted;
    PlayLongRun(run, kRolls, &counted);
    EXPECT_GT(counted.Rolls(), 0) << run.Name;
    EXPECT_EQ(counted.Allocations(), 0) << run.Name << ": " << counted.PerRoll() << " allocations per roll over "
                                        << counted.Rolls() << " rolls";
  }
}

}  // namespace
