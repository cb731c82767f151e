#include "engine/bet_status_table.h"

#include <gtest/gtest.h>

namespace {

// The working set follows every kind of change, across both words.
TEST(BetStatusTable, WorkingSetFollowsEveryChange) {
  BetStatusTable t;
  struct Step { int id, status; };
  const Step steps[] = {{1, status::kWorking}, {63, status::kCalledOn}, {64, status::kWorking},
                        {100, status::kCalledOn}, {31, status::kCalledOff}, {64, status::kOff}};
  for (const Step& s : steps) t.Set(s.id, s.status);
  for (int id = 0; id < BetStatusTable::kSize; ++id)
    EXPECT_EQ(t.Working().Has(id), t[id] >= status::kWorking) << id;

  std::array<int32_t, BetStatusTable::kSize> comeOut{};
  comeOut[5] = status::kWorking;
  t.ComeOut(1, 83, comeOut);  // calls outlive it
  EXPECT_TRUE(t.Working().Has(63));
  EXPECT_TRUE(t.Working().Has(5));
  EXPECT_FALSE(t.Working().Has(1));
  EXPECT_FALSE(t.Working().Has(31));
  t.PointEstablished(1, 83);
  EXPECT_TRUE(t.Working().Has(1));
  EXPECT_FALSE(t.Working().Has(31));  // called OFF stays off
  EXPECT_TRUE(t.Working().Has(100));  // beyond the range: untouched
}

}  // namespace
