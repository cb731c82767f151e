#include "dice/prob_table.h"

#include <gtest/gtest.h>

#include "dice/skewed_draw.h"

namespace {

int64_t OutcomeSum(const ProbTable& t) {
  int64_t sum = 0;
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) sum += t.at(OutcomeCell(d1, d2).row, OutcomeCell(d1, d2).column).value;
  return sum;
}

int32_t Outcome(const ProbTable& t, int d1, int d2) {
  return t.at(OutcomeCell(d1, d2).row, OutcomeCell(d1, d2).column).value;
}

// Every x from 1 to 100,000, walked: which faces of each die ever show.
void FacesShown(const ProbTable& t, bool die1[7], bool die2[7]) {
  uint32_t rnd = kRndStartState;
  for (int32_t x = 1; x <= 100000; ++x) {
    const DicePair p = DrawSkewed(t, x, rnd);
    die1[p.die1] = die2[p.die2] = true;
  }
}

}  // namespace

TEST(ProbTable, CellsMapToTheirDice) {
  int outcomes = 0;
  for (int r = 0; r < kProbRows; ++r)
    for (int c = 0; c < kProbColumns; ++c)
      if (IsOutcomeCell(r, c)) {
        ++outcomes;
        EXPECT_EQ(Die1OfCell(r, c) + Die2OfCell(r, c), r + 1) << r << "," << c;
        const ProbPosition back = OutcomeCell(Die1OfCell(r, c), Die2OfCell(r, c));
        EXPECT_EQ(back.row, r);
        EXPECT_EQ(back.column, c);
      }
  EXPECT_EQ(outcomes, 36);
  EXPECT_EQ(Die1OfCell(7, 2), 2);  // the walk turns the corner at (1,6) to (2,6)
  EXPECT_EQ(Die2OfCell(7, 2), 6);
}

TEST(ProbTable, TrueTableAndConversions) {
  const ProbTable t = TrueTable();
  const int32_t totals[12] = {0, 2778, 5556, 8333, 11111, 13889, 16667, 13889, 11111, 8333, 5556, 2778};
  for (int r = 1; r <= 11; ++r) EXPECT_EQ(t.at(r, 1).value, totals[r]) << r;
  for (int c = 2; c <= 7; ++c) EXPECT_EQ(t.at(kDie1FaceRow, c).value + t.at(kDie2FaceRow, c).value, 2 * 16667);
  EXPECT_EQ(OutcomeSum(t), 100008);
  EXPECT_EQ(t.Mode(), kPercentageDice);

  const struct { double entry; int show, row, column; int32_t units; } entries[] = {
      {12.5, kShowPercent, 3, 2, 12500}, {0, kShowPlusMinusTrue, 3, 2, 2778}, {-1, kShowPlusMinusTrue, 6, 1, 15667},
      {-20, kShowPlusMinusTrue, 6, 1, 0},  // never negative
      {6, kShowRollsOutOf, 6, 1, 16667}, {1, kShowPlusMinusTrueRolls, 3, 2, 5556},
      {1, kShowPlusMinusTrueRolls, kDie2FaceRow, 4, 19444}};
  for (const auto& e : entries)
    EXPECT_EQ(EntryToTableUnits(e.entry, e.show, 36, e.row, e.column), e.units) << e.entry << " row " << e.row;
  EXPECT_NEAR(TableUnitsToEntry(5556, kShowPlusMinusTrueRolls, 36, 3, 2), 1, 1e-3);
}

TEST(SkewedDraw, TrueTableWalkAndSecondWalk) {
  const ProbTable t = TrueTable();
  uint32_t rnd = kRndStartState;
  // The last cell, from 35 * 2778 + 1 on, holds only what is left.
  const std::pair<int32_t, std::pair<int, int>> walk[] = {
      {1, {1, 1}},           {2778, {1, 1}},     {2779, {1, 2}},          {6 * 2778 + 1, {2, 6}}, {11 * 2778, {6, 6}},
      {11 * 2778 + 1, {2, 1}}, {35 * 2778, {6, 2}}, {35 * 2778 + 1, {6, 1}}, {100001, {6, 1}}};
  for (const auto& [x, dice] : walk) {
    const DicePair p = DrawSkewed(t, x, rnd);
    EXPECT_EQ(std::pair(p.die1, p.die2), dice) << x;
  }

  // A table summing to less than 100,000 still always yields a roll; the
  // second walk keeps its running sum.
  ProbTable shortTable{};
  shortTable.at(OutcomeCell(1, 1).row, OutcomeCell(1, 1).column).value = 10;
  shortTable.at(OutcomeCell(6, 6).row, OutcomeCell(6, 6).column).value = 10;
  EXPECT_EQ(DrawSkewed(shortTable, 15, rnd).die1, 6);
  for (int32_t x = 21; x <= 100001; x += 997) {
    const DicePair p = DrawSkewed(shortTable, x, rnd);
    ASSERT_EQ(p.die1, p.die2) << x;
    ASSERT_TRUE(p.die1 == 1 || p.die1 == 6) << x;
  }
  // A table with no weight at all still gives dice.
  const DicePair p = DrawSkewed(ProbTable{}, 50000, rnd);
  EXPECT_TRUE(p.die1 >= 1 && p.die1 <= 6 && p.die2 >= 1 && p.die2 <= 6);
}

TEST(SetCell, TotalsOutcomesAndRefusals) {
  ProbTable t = TrueTable();
  // 100% on the 7 with no other locks: all the weight goes to its row.
  ASSERT_TRUE(SetCell(t, 1, 6, 100000));
  EXPECT_EQ(t.Mode(), kFreeFormDice);
  EXPECT_EQ(t.at(6, 1).value, 100000);
  EXPECT_EQ(t.at(6, 1).flags, kUserLock);
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) EXPECT_EQ(Outcome(t, d1, d2), d1 + d2 == 7 ? 16667 : 0) << d1 << d2;
  for (int r = 1; r <= 11; ++r)
    if (r != 6) {
      EXPECT_EQ(t.at(r, 1).value, 0);
    }
  for (int c = 2; c <= 7; ++c) EXPECT_EQ(t.at(kDie1FaceRow, c).value, 16667);
  for (int r = 1; r <= 11; ++r)  // inherited bits do not outlive the edit
    for (int c = 2; c <= 7; ++c)
      if (IsOutcomeCell(r, c)) {
        EXPECT_EQ(t.at(r, c).flags, 0);
      }

  // An outcome: the others share what the locked cells leave.
  t = TrueTable();
  ASSERT_TRUE(SetCell(t, OutcomeCell(1, 1).column, OutcomeCell(1, 1).row, 10000));
  ASSERT_TRUE(SetCell(t, OutcomeCell(6, 6).column, OutcomeCell(6, 6).row, 5000));
  EXPECT_EQ(Outcome(t, 1, 1), 10000);
  EXPECT_EQ(Outcome(t, 6, 6), 5000);
  EXPECT_EQ(Outcome(t, 3, 4), 2500);
  EXPECT_EQ(t.at(1, 1).value, 10000);  // the total of 2 follows its one cell
  // A total whose only outcome is locked has no free cell: refused, unchanged.
  const ProbTable before = t;
  EXPECT_FALSE(SetCell(t, 1, 1, 50000));
  EXPECT_EQ(t.at(1, 1).value, before.at(1, 1).value);
  EXPECT_EQ(t.at(1, 1).flags, before.at(1, 1).flags);
  // A total clamped down to what the locked cells of other rows leave.
  ASSERT_TRUE(SetCell(t, 1, 6, 100000));
  EXPECT_EQ(t.at(6, 1).value, 85000);
  EXPECT_EQ(Outcome(t, 3, 4), 14167);
  EXPECT_EQ(Outcome(t, 2, 1), 0);
  EXPECT_FALSE(SetCell(t, 0, 0, 5));  // not a cell of the block

  // Locks: toggled on a block cell only, all cleared at once.
  EXPECT_TRUE(ToggleLock(t, 3, 2));
  EXPECT_FALSE(ToggleLock(t, 0, 0));
  UnlockAll(t);
  for (int r = 0; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c) EXPECT_EQ(t.at(r, c).flags & kUserLock, 0);
  EXPECT_EQ(t.Mode(), kFreeFormDice);
}

TEST(SetCell, ADamagedTableIsEditedWithoutOverflow) {
  for (int32_t fill : {INT32_MAX, INT32_MIN, -5}) {
    ProbTable t;
    for (auto& row : t.cell)
      for (ProbCell& c : row) c.value = fill;
    SetCell(t, 1, 6, 50000);
    SetCell(t, OutcomeCell(2, 3).column, OutcomeCell(2, 3).row, 1000);
    SetCell(t, 3, kDie2FaceRow, 1000);
    UnlockAll(t);
    SetCell(t, 3, kDie1FaceRow, 1000);
    uint32_t rnd = kRndStartState;
    const DicePair p = DrawSkewed(t, 99999, rnd);
    EXPECT_TRUE(p.die1 >= 1 && p.die1 <= 6 && p.die2 >= 1 && p.die2 <= 6);
  }
}

TEST(SetCell, FacesAndTheAxis) {
  // A face at 0 in Percentage Dice mode: outcomes are products, and the face
  // never shows.
  ProbTable t = TrueTable();
  ASSERT_TRUE(SetCell(t, 4, kDie1FaceRow, 0));
  EXPECT_EQ(t.Mode(), kPercentageDice);
  EXPECT_EQ(t.at(kDie1FaceRow, 2).value, 20000);
  EXPECT_EQ(Outcome(t, 1, 1), 3333);  // 20000 x 16667 x 1e-5
  EXPECT_EQ(Outcome(t, 3, 5), 0);
  bool die1[7] = {}, die2[7] = {};
  FacesShown(t, die1, die2);
  for (int f = 1; f <= 6; ++f) EXPECT_EQ(die1[f], f != 3) << f;

  // With an outcome locked the face edit rebalances in Free Form mode.
  t = TrueTable();
  ASSERT_TRUE(SetCell(t, OutcomeCell(2, 2).column, OutcomeCell(2, 2).row, 2778));
  ASSERT_TRUE(SetCell(t, 2, kDie2FaceRow, 40000));
  EXPECT_EQ(t.Mode(), kFreeFormDice);
  EXPECT_EQ(t.at(kDie2FaceRow, 2).value, 40000);
  EXPECT_EQ(Outcome(t, 4, 1), 6667);
  EXPECT_EQ(Outcome(t, 2, 2), 2778);
  EXPECT_EQ(Outcome(t, 4, 4), 1973);  // (100000 - 2778 - 40000) / 29, rounded

  // The axis at 100%: the axis faces never show and end up locked.
  t = TrueTable();
  ComputeAxis(t, kAxis16, 150, kAxis34, 100);
  EXPECT_EQ(t.at(kDie1FaceRow, 2).value, 0);
  EXPECT_EQ(t.at(kDie1FaceRow, 7).value, 0);
  EXPECT_EQ(t.at(kDie1FaceRow, 3).value, 25000);
  EXPECT_NE(t.at(kDie2FaceRow, 4).flags & kUserLock, 0);
  EXPECT_NE(t.at(kDie2FaceRow, 5).flags & kUserLock, 0);
  std::fill(die1, die1 + 7, false);
  std::fill(die2, die2 + 7, false);
  FacesShown(t, die1, die2);
  for (int f = 1; f <= 6; ++f) {
    EXPECT_EQ(die1[f], f != 1 && f != 6) << f;
    EXPECT_EQ(die2[f], f != 3 && f != 4) << f;
  }
  // The table now sums to exactly 100,000, so the x of 100,001 that Ran1 and
  // Ran2 can give reaches the second walk, which lands on (1,1) whatever its
  // weight.
  uint32_t rnd = kRndStartState;
  EXPECT_EQ(DrawSkewed(t, 100001, rnd).die1, 1);
  // At 0% the table is the fair one, within rounding.
  t = TrueTable();
  ComputeAxis(t, kAxis25, 0, kAxis25, 0);
  for (int c = 2; c <= 7; ++c) EXPECT_NEAR(t.at(kDie1FaceRow, c).value, 16667, 1);
  EXPECT_NEAR(Outcome(t, 3, 3), 2778, 1);
}
