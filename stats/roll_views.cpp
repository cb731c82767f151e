#include "stats/roll_views.h"

#include "dice/prob_table.h"
#include "engine/game.h"
#include "stats/roll_counters.h"

namespace {

constexpr std::array<FrequencySelection, kFrequencySelections> kSelections = {{
    {"Number 2 (1-1)", 2},
    {"Number 3 (1-2)", 22},
    {"Number 3 (2-1)", 23},
    {"Number 3 (1-2) or (2-1)", 3},
    {"Number 4 (1-3)", 24},
    {"Number 4 (3-1)", 25},
    {"Hard 4 (2-2)", 13},
    {"Number 4 (1-3) or (3-1)", 26},
    {"Any 4", 4},
    {"Number 5 (1-4)", 27},
    {"Number 5 (4-1)", 28},
    {"Number 5 (2-3)", 29},
    {"Number 5 (3-2)", 30},
    {"Number 5 (1-4) or (4-1)", 31},
    {"Number 5 (2-3) or (3-2)", 32},
    {"Any 5", 5},
    {"Number 6 (1-5)", 33},
    {"Number 6 (5-1)", 34},
    {"Number 6 (2-4)", 35},
    {"Number 6 (4-2)", 36},
    {"Hard 6 (3-3)", 14},
    {"Number 6 (1-5) or (5-1)", 37},
    {"Number 6 (2-4) or (4-2)", 38},
    {"Any 6", 6},
    {"Number 7 (1-6)", 39},
    {"Number 7 (6-1)", 40},
    {"Number 7 (2-5)", 41},
    {"Number 7 (5-2)", 42},
    {"Number 7 (3-4)", 43},
    {"Number 7 (4-3)", 44},
    {"Number 7 (1-6) or (6-1)", 45},
    {"Number 7 (2-5) or (5-2)", 46},
    {"Number 7 (3-4) or (4-3)", 47},
    {"Any 7", 7},
    {"Number 8 (2-6)", 48},
    {"Number 8 (6-2)", 49},
    {"Number 8 (3-5)", 50},
    {"Number 8 (5-3)", 51},
    {"Hard 8 (4-4)", 15},
    {"Number 8 (2-6) or (6-2)", 52},
    {"Number 8 (3-5) or (5-3)", 53},
    {"Any 8", 8},
    {"Number 9 (3-6)", 54},
    {"Number 9 (6-3)", 55},
    {"Number 9 (4-5)", 56},
    {"Number 9 (5-4)", 57},
    {"Number 9 (3-6) or (6-3)", 58},
    {"Number 9 (4-5) or (5-4)", 59},
    {"Any 9", 9},
    {"Number 10 (4-6)", 60},
    {"Number 10 (6-4)", 61},
    {"Hard 10 (5-5)", 16},
    {"Number 10 (4-6) or (6-4)", 62},
    {"Any 10", 10},
    {"Number 11 (5-6)", 63},
    {"Number 11 (6-5)", 64},
    {"Number 11 (5-6) or (6-5)", 11},
    {"Number 12 (6-6)", 12},
    {"Numbers 2,3,4,9,10,11,12", 21},
    {"Numbers 4,5,6,8,9,10", 17},
    {"Numbers 2,3,7,11,12", 65},
    {"Numbers 2,3,11,12", 66},
    {"Numbers 5,6,8,9", 18},
    {"Numbers 4,5,9,10", 19},
    {"Numbers 2,3,12", 20},
    {"Numbers 4,5,6", 67},
    {"Numbers 8,9,10", 68},
    {"Numbers 2,12", 69},
    {"Numbers 3,11", 70},
    {"Numbers 4,10", 71},
    {"Numbers 5,9", 72},
    {"Numbers 6,8", 73},
    {"Numbers 2,3", 74},
    {"Numbers 3,12", 75},
    {"Numbers 7,11", 76},
    {"Numbers 11,12", 77},
    {"Die 1, face 1", 78},
    {"Die 1, face 2", 79},
    {"Die 1, face 3", 80},
    {"Die 1, face 4", 81},
    {"Die 1, face 5", 82},
    {"Die 1, face 6", 83},
    {"Die 2, face 1", 84},
    {"Die 2, face 2", 85},
    {"Die 2, face 3", 86},
    {"Die 2, face 4", 87},
    {"Die 2, face 5", 88},
    {"Die 2, face 6", 89},
}};

double Percent(int64_t part, int64_t whole) { return whole > 0 ? 100.0 * static_cast<double>(part) / whole : 0; }

double ProbabilityOf(const Game& g, int index, bool skewed) {
  return skewed ? SkewedProbability(g.Prob, index) : TrueProbability(index);
}

// A selection never rolled has waited the whole game.
int64_t SinceLast(const Game& g, int index) {
  return g.RollCounts[index] == 0 ? g.RollCounts[0] : g.RollsSinceLast[index];
}

TotalsRow MakeRow(const Game& g, std::string label, int index, bool skewed) {
  TotalsRow row;
  row.Label = std::move(label);
  row.Index = index;
  row.Rolls = g.RollCounts[index];
  row.RollsSinceLast = SinceLast(g, index);
  row.ActualPercent = Percent(row.Rolls, g.RollCounts[0]);
  row.ProbablePercent = 100.0 * ProbabilityOf(g, index, skewed);
  return row;
}

// The selection counting exactly the throws (a, b) and (b, a): an ordered
// throw when a equals b or `ordered` is set, else the pair in either order.
int IndexOfThrows(int a, int b, bool ordered) {
  for (int index = 2; index < event::kFirstDie1Face; ++index) {
    bool matches = true;
    for (int d1 = 1; d1 <= 6 && matches; ++d1)
      for (int d2 = 1; d2 <= 6 && matches; ++d2) {
        const bool wanted = (d1 == a && d2 == b) || (!ordered && d1 == b && d2 == a);
        matches = SatisfiesEvent(index, d1, d2) == wanted;
      }
    if (matches) return index;
  }
  return 0;
}

std::string PairLabel(int a, int b) { return std::to_string(a) + "-" + std::to_string(b); }

}  // namespace

const std::array<FrequencySelection, kFrequencySelections>& FrequencySelections() { return kSelections; }

double TrueProbability(int index) {
  int ways = 0;
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) ways += SatisfiesEvent(index, d1, d2);
  return ways / 36.0;
}

double SkewedProbability(const ProbTable& table, int index) {
  double all = 0, selected = 0;
  for (int d1 = 1; d1 <= 6; ++d1)
    for (int d2 = 1; d2 <= 6; ++d2) {
      const ProbPosition cell = OutcomeCell(d1, d2);
      const double weight = table.at(cell.row, cell.column).value;
      all += weight;
      if (SatisfiesEvent(index, d1, d2)) selected += weight;
    }
  return all > 0 ? selected / all : 0;
}

SelectionFrequency FrequencyOf(const Game& g, int index, bool skewed) {
  SelectionFrequency f;
  if (index < 1 || index >= event::kCount) return f;
  f.TotalRolls = g.RollCounts[0];
  f.SelectionRolls = g.RollCounts[index];
  f.RollsSinceLast = SinceLast(g, index);
  f.ActualPercent = Percent(f.SelectionRolls, f.TotalRolls);
  const double p = ProbabilityOf(g, index, skewed);
  f.ProbablePercent = 100.0 * p;
  f.AverageRollsToAchieve = p > 0 ? 1.0 / p : 0;
  return f;
}

const char* ProbableCaption(bool skewed) { return skewed ? "Skewed probable %:" : "True probable %:"; }

const char* TotalsViewName(TotalsView view) {
  switch (view) {
    case TotalsView::StandardNumbers: return "11 Standard Numbers";
    case TotalsView::DistinguishableCombos: return "21 Distinguishable Combos";
    case TotalsView::UniqueCombos: return "36 Unique Combos";
    case TotalsView::DiceFaces: return "Dice Faces";
  }
  return "";
}

std::vector<TotalsRow> TotalsRows(const Game& g, TotalsView view, bool skewed) {
  std::vector<TotalsRow> rows;
  switch (view) {
    case TotalsView::StandardNumbers:
      for (int total = 2; total <= 12; ++total) rows.push_back(MakeRow(g, std::to_string(total), total, skewed));
      break;
    case TotalsView::DistinguishableCombos:
      for (int a = 1; a <= 6; ++a)
        for (int b = a; b <= 6; ++b) rows.push_back(MakeRow(g, PairLabel(a, b), IndexOfThrows(a, b, false), skewed));
      break;
    case TotalsView::UniqueCombos:
      for (int a = 1; a <= 6; ++a)
        for (int b = 1; b <= 6; ++b) rows.push_back(MakeRow(g, PairLabel(a, b), IndexOfThrows(a, b, true), skewed));
      break;
    case TotalsView::DiceFaces:
      for (int index = event::kFirstDie1Face; index < event::kFirstDie2Face + 6; ++index)
        rows.push_back(MakeRow(g, kSelections[index - event::kFirstDie1Face + 76].Caption, index, skewed));
      break;
  }
  return rows;
}
