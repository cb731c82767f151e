#include "autoplay/work_on_come_out.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

TEST(WorkOnComeOut, YesNoDefaultOverASelection) {
  TestTable t;
  const int place6 = bet::Place(6), odds = bet::ComeOdds(8);
  t.g.BetStatus.Set(odds, -1);  // called OFF: the call outlives the edit
  SetWorkOnComeOut(t.g, {place6, odds, 0, 150}, true);
  EXPECT_EQ(t.g.WorkOnComeOut[place6], 1);
  EXPECT_EQ(t.g.BetStatus[place6], 1);
  EXPECT_EQ(t.g.BetStatus[odds], -1);
  EXPECT_EQ(WorkOnComeOutRow(t.g, place6), t.g.BetName[place6] + " - Yes");

  SetWorkOnComeOut(t.g, SelectAllBets(), false);
  for (int id = 1; id <= bet::kLastTableBet; ++id) EXPECT_EQ(t.g.WorkOnComeOut[id], 0) << id;
  EXPECT_EQ(WorkOnComeOutRow(t.g, bet::kPassLine), t.g.BetName[bet::kPassLine] + " - No");

  t.SetPoint(5);  // with a point on, the status waits for the come-out
  SetWorkOnComeOutDefault(t.g, SelectAllBets());
  for (int id = 1; id <= bet::kLastTableBet; ++id) EXPECT_EQ(t.g.WorkOnComeOut[id], bet::DefaultWorkOnComeOut(id));
  EXPECT_EQ(t.g.BetStatus[place6], 0);  // as the last come-out edit left it
}
