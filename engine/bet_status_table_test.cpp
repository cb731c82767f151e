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

// The come-out works on many bets at once: every bet of the range, in the
// wide steps and in the tail, keeps its call or takes its come-out status,
// and a status beyond a byte keeps its sign.
TEST(BetStatusTable, ComeOutTakesEveryUncalledBetsStatus) {
  BetStatusTable t;
  std::array<int32_t, BetStatusTable::kSize> comeOut{};
  for (int id = 0; id < BetStatusTable::kSize; ++id) {
    t.Set(id, id % 4 - 1);  // called OFF, off, working, called ON in turn
    comeOut[static_cast<size_t>(id)] = id % 3 == 0 ? status::kWorking : status::kOff;
  }
  comeOut[41] = 300;
  t.ComeOut(1, 83, comeOut);
  for (int id = 0; id < BetStatusTable::kSize; ++id) {
    const bool called = id % 4 == 0 || id % 4 == 3;
    const int32_t expected = id < 1 || id > 83 || called ? id % 4 - 1 : id == 41 ? 127 : comeOut[static_cast<size_t>(id)];
    EXPECT_EQ(t[id], expected) << id;
    EXPECT_EQ(t.Working().Has(id), expected >= status::kWorking) << id;
  }
}

}  // namespace
