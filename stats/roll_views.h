#pragma once
// What the roll statistics screens show: the frequencies of one selection
// (frmRollFreqs) and the rows of the four totals views (frmRollTotals). Both
// only read the counters.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct Game;
struct ProbTable;

// An entry of "Display frequencies for:" and the RollCounts index it reads.
struct FrequencySelection {
  const char* Caption;
  int Index;
};
constexpr int kFrequencySelections = 88;
const std::array<FrequencySelection, kFrequencySelections>& FrequencySelections();

// The chance of selection `index` (1..89) in one roll: with the fair dice,
// or with the percentage dice table, where an outcome's chance is its weight
// over the weight of all 36.
double TrueProbability(int index);
double SkewedProbability(const ProbTable& table, int index);

struct SelectionFrequency {
  int64_t TotalRolls = 0;      // "Total game rolls:"
  int64_t SelectionRolls = 0;  // "Total rolls this selection:"
  int64_t RollsSinceLast = 0;  // "# rolls since last rolled:"
  double ActualPercent = 0;    // "Actual % rolled:"
  double ProbablePercent = 0;  // "True probable %:" or "Skewed probable %:"
  double AverageRollsToAchieve = 0;  // rolls expected per occurrence; 0 if it cannot come up
};
// `index` is a RollCounts index; skewed compares with g.Prob.
SelectionFrequency FrequencyOf(const Game& g, int index, bool skewed);
const char* ProbableCaption(bool skewed);

// mnuDisplayTotals.
enum class TotalsView { StandardNumbers = 0, DistinguishableCombos = 1, UniqueCombos = 2, DiceFaces = 3 };
constexpr int kTotalsViews = 4;
const char* TotalsViewName(TotalsView view);

struct TotalsRow {
  std::string Label;  // "7", "3-4", "Die 1, face 6"
  int Index = 0;      // RollCounts index
  int64_t Rolls = 0;           // "# of rolls"
  int64_t RollsSinceLast = 0;  // "# of rolls since last appeared"
  double ActualPercent = 0;    // "Actual %"
  double ProbablePercent = 0;  // "Prob %"
};
// The rows of a view: 11, 21, 36 or 12.
std::vector<TotalsRow> TotalsRows(const Game& g, TotalsView view, bool skewed);
