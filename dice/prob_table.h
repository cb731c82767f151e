#pragma once
// The percentage dice table: a weight for each of the 36 ordered outcomes,
// the totals they make and the faces of each die, in thousandths of a
// percent (100,000 is 100%). Rows 0..13, columns 0..7, as the editing panel
// lays them out.

#include <array>
#include <cstdint>

struct ProbCell {
  int32_t flags = 0;
  int32_t value = 0;
};

constexpr int kProbRows = 14, kProbColumns = 8;
constexpr int32_t kProbWhole = 100000;  // 100%

// Bits of a block cell's flags. Only the user lock outlives an edit.
constexpr int32_t kUserLock = 128;
constexpr int32_t kNumberLock = 4;
constexpr int32_t kDie1Lock = 1;
constexpr int32_t kDie2Lock = 2;

// Table mode, kept in the flags of row 0, column 0.
constexpr int32_t kFreeFormDice = -1;
constexpr int32_t kPercentageDice = 0;

constexpr int kDie1FaceRow = 12, kDie2FaceRow = 13;

struct ProbTable {
  std::array<std::array<ProbCell, kProbColumns>, kProbRows> cell{};  // [row][column]

  ProbCell& at(int row, int column) { return cell[row][column]; }
  const ProbCell& at(int row, int column) const { return cell[row][column]; }
  int32_t& Mode() { return cell[0][0].flags; }
  int32_t Mode() const { return cell[0][0].flags; }
};

// The cell of the outcome (die1, die2), and the dice of an outcome cell.
struct ProbPosition {
  int row, column;
};
ProbPosition OutcomeCell(int die1, int die2);
int Die1OfCell(int row, int column);
int Die2OfCell(int row, int column);
bool IsOutcomeCell(int row, int column);
bool IsTotalCell(int row, int column);
bool IsFaceCell(int row, int column);
// Any cell the player may edit or lock: totals, outcomes and faces.
inline bool IsBlockCell(int row, int column) {
  return IsOutcomeCell(row, column) || IsTotalCell(row, column) || IsFaceCell(row, column);
}

// The fair table: outcomes 2778, totals by their ways, faces 16667.
void ResetToTrue(ProbTable& t);
ProbTable TrueTable();

// The weight a cell has in the true table, unrounded.
double TrueWeight(int row, int column);

// How an entry is shown and typed: ProbDisplayMode.
enum ProbDisplayMode : int32_t {
  kShowPercent = 0,
  kShowPlusMinusTrue = 1,
  kShowRollsOutOf = 2,
  kShowPlusMinusTrueRolls = 3,
};

// An entry as typed (a percentage, a difference or a count of rolls) in table
// units; a negative result becomes 0.
int32_t EntryToTableUnits(double typed, int32_t displayMode, double rollsOutOf, int row, int column);
// Table units shown in the display mode, the inverse of the above.
double TableUnitsToEntry(int32_t units, int32_t displayMode, double rollsOutOf, int row, int column);

// Enters a weight in table units into a block cell, locks it and rebalances
// the free cells. False, with the table unchanged, for a cell outside the
// block or an edit that has no free cells left.
bool SetCell(ProbTable& t, int column, int row, int32_t value);

// The user lock of one block cell; "Unlock All Cells".
bool ToggleLock(ProbTable& t, int row, int column);
void UnlockAll(ProbTable& t);

// The axes of a die: 0 about 1-6, 1 about 2-5, 2 about 3-4.
enum DieAxis : int { kAxis16 = 0, kAxis25 = 1, kAxis34 = 2 };
// Sets both dice from a shooter's effectiveness in percent about an axis: the
// two axis faces of each die get (1 - SE) / 6 each and end up locked.
void ComputeAxis(ProbTable& t, DieAxis axis1, double effectiveness1, DieAxis axis2, double effectiveness2);
