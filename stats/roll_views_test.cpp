#include "stats/roll_views.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "engine/table_for_test.h"
#include "stats/roll_counters.h"

namespace {

void Throw(Game& g, int die1, int die2) {
  g.Die1 = die1;
  g.Die2 = die2;
  ++g.RollCounts[event::kAllRolls];  // the table's own count, as a roll keeps it
  UpdateRollCounters(g);
}

// The ways of a selection out of 36, worked from the captions alone.
TEST(RollViews, EverySelectionReadsTheCounterItsCaptionNames) {
  const auto& list = FrequencySelections();
  std::set<int> indexes;
  for (const FrequencySelection& s : list) indexes.insert(s.Index);
  EXPECT_EQ(indexes.size(), 88u) << "two captions read the same counter";
  EXPECT_EQ(indexes.count(0) + indexes.count(1) + indexes.count(90), 0u);

  // The position is the 1-based place in the list.
  const struct { int position; const char* caption; int ways; } cases[] = {
      {1, "Number 2 (1-1)", 1},       {2, "Number 3 (1-2)", 1},     {4, "Number 3 (1-2) or (2-1)", 2},
      {7, "Hard 4 (2-2)", 1},         {9, "Any 4", 3},              {16, "Any 5", 4},
      {18, "Number 6 (5-1)", 1},      {34, "Any 7", 6},             {33, "Number 7 (3-4) or (4-3)", 2},
      {57, "Number 11 (5-6) or (6-5)", 2}, {58, "Number 12 (6-6)", 1}, {59, "Numbers 2,3,4,9,10,11,12", 16},
      {60, "Numbers 4,5,6,8,9,10", 24}, {61, "Numbers 2,3,7,11,12", 12}, {65, "Numbers 2,3,12", 4},
      {72, "Numbers 6,8", 10},        {76, "Numbers 11,12", 3},     {77, "Die 1, face 1", 6},
      {88, "Die 2, face 6", 6},
  };
  for (const auto& c : cases) {
    const FrequencySelection& s = list[c.position - 1];
    EXPECT_STREQ(s.Caption, c.caption);
    EXPECT_NEAR(TrueProbability(s.Index) * 36, c.ways, 1e-9) << c.caption;
  }
  // The die faces count only their own die.
  Game g;
  Throw(g, 1, 6);
  EXPECT_EQ(g.RollCounts[list[76].Index], 1);  // Die 1, face 1
  EXPECT_EQ(g.RollCounts[list[87].Index], 1);  // Die 2, face 6
  EXPECT_EQ(g.RollCounts[list[81].Index], 0);  // Die 1, face 6
}

TEST(RollViews, NoRollsShowZeroPercentAndNothingFails) {
  Game g;
  for (int n = 1; n <= kFrequencySelections; ++n) {
    const SelectionFrequency f = FrequencyOf(g, FrequencySelections()[n - 1].Index, false);
    EXPECT_EQ(f.TotalRolls, 0);
    EXPECT_EQ(f.ActualPercent, 0);
    EXPECT_EQ(f.RollsSinceLast, 0);
    EXPECT_GT(f.ProbablePercent, 0);
  }
  for (int v = 0; v < kTotalsViews; ++v)
    for (const TotalsRow& row : TotalsRows(g, TotalsView(v), true)) EXPECT_EQ(row.ActualPercent, 0) << row.Label;
}

TEST(RollViews, ASelectionNeverRolledHasWaitedTheWholeGame) {
  Game g;
  Throw(g, 3, 4);
  Throw(g, 2, 2);
  Throw(g, 6, 5);
  const SelectionFrequency twelve = FrequencyOf(g, 12, false);
  EXPECT_EQ(twelve.SelectionRolls, 0);
  EXPECT_EQ(twelve.RollsSinceLast, 3);
  // A counter that disagrees (a game read from elsewhere) does not matter.
  g.RollsSinceLast[12] = 1;
  EXPECT_EQ(FrequencyOf(g, 12, false).RollsSinceLast, 3);

  const SelectionFrequency hard4 = FrequencyOf(g, 13, false);
  EXPECT_EQ(hard4.SelectionRolls, 1);
  EXPECT_EQ(hard4.RollsSinceLast, 1);
  EXPECT_NEAR(hard4.ActualPercent, 100.0 / 3, 1e-9);
  EXPECT_NEAR(hard4.AverageRollsToAchieve, 36, 1e-9);
  EXPECT_NEAR(FrequencyOf(g, 7, false).AverageRollsToAchieve, 6, 1e-9);
}

TEST(RollViews, SkewedProbabilityIsTheWeightOverAllWeights) {
  Game g;
  // A table whose weights do not add to 100%: the share still counts.
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) {
      const ProbPosition c = OutcomeCell(d1, d2);
      g.Prob.at(c.row, c.column).value = d1 + d2 == 7 ? 6000 : 1000;  // sevens six times as likely
    }
  // 6 sevens x 6000 + 30 others x 1000 = 66,000.
  struct Case { int index; double skewed, fair; };
  const Case cases[] = {
      {7, 36000.0 / 66000, 6.0 / 36},  // Any 7
      {2, 1000.0 / 66000, 1.0 / 36},   // Number 2
      {40, 6000.0 / 66000, 1.0 / 36},  // Number 7 (6-1)
      {76, 38000.0 / 66000, 8.0 / 36}, // Numbers 7,11
      {78, 11000.0 / 66000, 1.0 / 6},  // Die 1, face 1: one seven among six throws
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(FrequencyOf(g, c.index, true).ProbablePercent, 100 * c.skewed, 1e-9) << c.index;
    EXPECT_NEAR(FrequencyOf(g, c.index, false).ProbablePercent, 100 * c.fair, 1e-9) << c.index;
    EXPECT_NEAR(FrequencyOf(g, c.index, true).AverageRollsToAchieve, 1 / c.skewed, 1e-9) << c.index;
  }
  EXPECT_STREQ(ProbableCaption(true), "Skewed probable %:");
  EXPECT_STREQ(ProbableCaption(false), "True probable %:");

  // An outcome that cannot come up has no average.
  const ProbPosition snake = OutcomeCell(1, 1);
  g.Prob.at(snake.row, snake.column).value = 0;
  EXPECT_EQ(FrequencyOf(g, 2, true).ProbablePercent, 0);
  EXPECT_EQ(FrequencyOf(g, 2, true).AverageRollsToAchieve, 0);
  // The fair table gives the fair chances.
  g.Prob = TrueTable();
  EXPECT_NEAR(FrequencyOf(g, 7, true).ProbablePercent, 100.0 / 6, 0.01);
}

TEST(RollViews, TheFourViewsHaveTheirRowsAndTheirCounters) {
  Game g;
  Throw(g, 2, 5);
  Throw(g, 5, 2);
  Throw(g, 3, 3);
  // Each view's name and size, and one row to look at: its label, counter and rolls.
  struct Case { TotalsView view; const char* name; size_t rows; std::string label; int index, rolls; };
  const Case cases[] = {
      {TotalsView::StandardNumbers, "11 Standard Numbers", 11, "7", 7, 2},
      {TotalsView::DistinguishableCombos, "21 Distinguishable Combos", 21, "2-5", 46, 2},
      {TotalsView::UniqueCombos, "36 Unique Combos", 36, "5-2", 42, 1},
      {TotalsView::DiceFaces, "Dice Faces", 12, "Die 2, face 3", 86, 1},
  };
  for (const Case& c : cases) {
    EXPECT_STREQ(TotalsViewName(c.view), c.name);
    const auto rows = TotalsRows(g, c.view, false);
    ASSERT_EQ(rows.size(), c.rows) << c.name;
    std::set<int> indexes;
    double probable = 0;
    int64_t rolls = 0;
    for (const TotalsRow& r : rows) {
      indexes.insert(r.Index);
      probable += r.ProbablePercent;
      rolls += r.Rolls;
      if (r.Label == c.label) {
        EXPECT_EQ(r.Index, c.index) << c.name;
        EXPECT_EQ(r.Rolls, c.rolls) << c.name;
      }
    }
    EXPECT_EQ(indexes.size(), c.rows) << c.name;
    EXPECT_EQ(indexes.count(0), 0u) << c.name;
    // Every roll falls in exactly one row (two, in the faces view: one per die).
    EXPECT_EQ(rolls, c.view == TotalsView::DiceFaces ? 6 : 3) << c.name;
    EXPECT_NEAR(probable, c.view == TotalsView::DiceFaces ? 200 : 100, 1e-9) << c.name;
  }
}

}  // namespace
