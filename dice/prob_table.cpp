#include "dice/prob_table.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <optional>

namespace {

// Rounding of weights is to nearest, ties to even. A table read from a damaged
// file may hold any values, so results saturate instead of wrapping.
int32_t Saturate(double v) {
  if (!(v == v)) return 0;
  return static_cast<int32_t>(std::clamp(v, -2147483648.0, 2147483647.0));
}
int32_t RoundUnits(double v) { return Saturate(std::nearbyint(v)); }

int WaysOfRow(int row) { return 6 - std::abs(6 - row); }

template <typename F>
void ForEachOutcome(F&& f) {
  for (int c = 2; c <= 7; ++c)
    for (int r = c - 1; r <= 13 - c; ++r) f(r, c);
}

void ClearInherited(ProbTable& t) {
  ForEachOutcome([&](int r, int c) { t.at(r, c).flags &= ~(kNumberLock | kDie1Lock | kDie2Lock); });
}

// Locked totals and faces pass their lock to the outcomes they are made of.
void RebuildInherited(ProbTable& t) {
  ClearInherited(t);
  ForEachOutcome([&](int r, int c) {
    ProbCell& cell = t.at(r, c);
    if (t.at(r, 1).flags & kUserLock) cell.flags |= kNumberLock;
    if (t.at(kDie1FaceRow, Die1OfCell(r, c) + 1).flags & kUserLock) cell.flags |= kDie1Lock;
    if (t.at(kDie2FaceRow, Die2OfCell(r, c) + 1).flags & kUserLock) cell.flags |= kDie2Lock;
  });
}

bool AnyOutcomeOrTotalUserLocked(const ProbTable& t) {
  bool locked = false;
  ForEachOutcome([&](int r, int c) { locked |= (t.at(r, c).flags & kUserLock) != 0; });
  for (int r = 1; r <= 11; ++r) locked |= (t.at(r, 1).flags & kUserLock) != 0;
  return locked;
}

int32_t AvailableAfter(int64_t lockedSum) {
  int64_t available = kProbWhole - lockedSum;
  return available < 2 ? 0 : static_cast<int32_t>(available);
}

// A total, or a face while other cells are locked: the outcomes of the group
// take the entry, the free outcomes elsewhere share what is left. ownBit is
// the lock the target itself passed to its group, which does not pin a cell.
std::optional<int32_t> RebalanceGroup(ProbTable& t, const std::function<bool(int, int)>& inGroup, int32_t ownBit,
                                      int32_t entry) {
  int groupSize = 0, lockedInGroup = 0, lockedElsewhere = 0;
  int64_t groupLockedSum = 0, lockedElsewhereSum = 0;
  ForEachOutcome([&](int r, int c) {
    const ProbCell& cell = t.at(r, c);
    if (inGroup(r, c)) {
      ++groupSize;
      if (cell.flags & ~ownBit) ++lockedInGroup, groupLockedSum += cell.value;
    } else if (cell.flags != 0) {
      ++lockedElsewhere, lockedElsewhereSum += cell.value;
    }
  });
  const int freeInGroup = groupSize - lockedInGroup;
  const int freeElsewhere = 36 - groupSize - lockedElsewhere;
  if (freeInGroup == 0 || freeElsewhere == 0) return std::nullopt;
  const int32_t available = AvailableAfter(lockedElsewhereSum);
  entry = std::min(entry, available);
  entry = Saturate(double(std::max<int64_t>(entry, groupLockedSum)));
  const int32_t groupShare = RoundUnits(double(entry - groupLockedSum) / freeInGroup);
  const int32_t otherShare = RoundUnits(double(std::max(0, available - entry)) / freeElsewhere);
  ForEachOutcome([&](int r, int c) {
    ProbCell& cell = t.at(r, c);
    if (inGroup(r, c)) {
      if (!(cell.flags & ~ownBit)) cell.value = groupShare;
    } else if (cell.flags == 0) {
      cell.value = otherShare;
    }
  });
  return entry;
}

std::optional<int32_t> RebalanceOutcome(ProbTable& t, int32_t entry) {
  int locked = 0;
  int64_t lockedSum = 0;
  ForEachOutcome([&](int r, int c) {
    if (t.at(r, c).flags != 0) ++locked, lockedSum += t.at(r, c).value;
  });
  const int freeCells = 36 - locked;
  if (freeCells == 0) return std::nullopt;
  const int32_t available = AvailableAfter(lockedSum);
  entry = std::min(entry, available);
  const int32_t share = RoundUnits(double(available - entry) / freeCells);
  ForEachOutcome([&](int r, int c) {
    if (t.at(r, c).flags == 0) t.at(r, c).value = share;
  });
  return entry;
}

// Percentage Dice: the face's peers share the rest, and every outcome is the
// product of its two faces.
std::optional<int32_t> SetFaceAlone(ProbTable& t, int row, int column, int32_t entry) {
  int unlocked = 0;
  int64_t lockedPeers = 0;
  for (int c = 2; c <= 7; ++c) {
    if (c == column) continue;
    if (t.at(row, c).flags & kUserLock) lockedPeers += t.at(row, c).value;
    else ++unlocked;
  }
  if (unlocked == 0) return std::nullopt;
  entry = static_cast<int32_t>(std::clamp<int64_t>(entry, 0, std::max<int64_t>(0, kProbWhole - lockedPeers)));
  const int32_t share = RoundUnits(double(std::max<int64_t>(0, kProbWhole - entry - lockedPeers)) / unlocked);
  for (int c = 2; c <= 7; ++c)
    if (c != column && !(t.at(row, c).flags & kUserLock)) t.at(row, c).value = share;
  t.at(row, column).value = entry;
  ForEachOutcome([&](int r, int c) {
    const double p1 = t.at(kDie1FaceRow, Die1OfCell(r, c) + 1).value;
    const double p2 = t.at(kDie2FaceRow, Die2OfCell(r, c) + 1).value;
    t.at(r, c).value = RoundUnits(p1 * p2 * 1e-5);
  });
  return entry;
}

void RecomputeTotals(ProbTable& t) {
  for (int r = 1; r <= 11; ++r) {
    if (t.at(r, 1).flags & kUserLock) continue;
    int64_t sum = 0;
    for (int c = 2; c <= 7 - std::abs(6 - r); ++c) sum += t.at(r, c).value;
    t.at(r, 1).value = Saturate(double(sum));
  }
}

void RecomputeFaces(ProbTable& t) {
  std::array<int64_t, 7> die1{}, die2{};
  ForEachOutcome([&](int r, int c) {
    die1[Die1OfCell(r, c)] += t.at(r, c).value;
    die2[Die2OfCell(r, c)] += t.at(r, c).value;
  });
  for (int face = 1; face <= 6; ++face) {
    if (!(t.at(kDie1FaceRow, face + 1).flags & kUserLock)) t.at(kDie1FaceRow, face + 1).value = Saturate(double(die1[face]));
    if (!(t.at(kDie2FaceRow, face + 1).flags & kUserLock)) t.at(kDie2FaceRow, face + 1).value = Saturate(double(die2[face]));
  }
}

}  // namespace

bool IsOutcomeCell(int row, int column) { return column >= 2 && column <= 7 && column - 1 <= row && row <= 13 - column; }
bool IsTotalCell(int row, int column) { return column == 1 && row >= 1 && row <= 11; }
bool IsFaceCell(int row, int column) {
  return (row == kDie1FaceRow || row == kDie2FaceRow) && column >= 2 && column <= 7;
}

int Die1OfCell(int row, int column) { return row < 7 ? column - 1 : column + row - 7; }
int Die2OfCell(int row, int column) { return row < 7 ? row - column + 2 : 8 - column; }

ProbPosition OutcomeCell(int die1, int die2) {
  const int row = die1 + die2 - 1;
  return {row, row < 7 ? die1 + 1 : 8 - die2};
}

double TrueWeight(int row, int column) {
  if (IsTotalCell(row, column)) return WaysOfRow(row) * double(kProbWhole) / 36;
  if (IsFaceCell(row, column)) return 6 * double(kProbWhole) / 36;
  if (IsOutcomeCell(row, column)) return double(kProbWhole) / 36;
  return 0;
}

void ResetToTrue(ProbTable& t) {
  const int32_t editColumn = t.at(1, 0).flags, editRow = t.at(2, 0).flags;
  t = ProbTable{};
  t.at(1, 0).flags = editColumn;
  t.at(2, 0).flags = editRow;
  t.Mode() = kPercentageDice;
  for (int r = 0; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (IsBlockCell(r, c)) t.at(r, c).value = RoundUnits(TrueWeight(r, c));
}

ProbTable TrueTable() {
  ProbTable t;
  ResetToTrue(t);
  return t;
}

int32_t EntryToTableUnits(double typed, int32_t displayMode, double rollsOutOf, int row, int column) {
  double units = std::nearbyint(typed * 1000);
  if (displayMode == kShowRollsOutOf || displayMode == kShowPlusMinusTrueRolls) units = units * 100 / rollsOutOf;
  if (displayMode == kShowPlusMinusTrue || displayMode == kShowPlusMinusTrueRolls) units += TrueWeight(row, column);
  units = std::nearbyint(units);
  if (!(units > 0)) return 0;  // also NaN from a zero divisor
  return units > kProbWhole ? kProbWhole : static_cast<int32_t>(units);
}

double TableUnitsToEntry(int32_t units, int32_t displayMode, double rollsOutOf, int row, int column) {
  double v = units;
  if (displayMode == kShowPlusMinusTrue || displayMode == kShowPlusMinusTrueRolls) v -= TrueWeight(row, column);
  if (displayMode == kShowRollsOutOf || displayMode == kShowPlusMinusTrueRolls) v = v * rollsOutOf / 100;
  return v / 1000;
}

bool SetCell(ProbTable& t, int column, int row, int32_t value) {
  if (!IsBlockCell(row, column)) return false;
  ProbTable work = t;  // a refused edit leaves the table as it was
  value = std::clamp(value, 0, kProbWhole);
  ProbCell& target = work.at(row, column);
  target.flags |= kUserLock;
  target.value = 0;
  std::optional<int32_t> entry;
  if (IsFaceCell(row, column) && !AnyOutcomeOrTotalUserLocked(work)) {
    RebuildInherited(work);
    work.Mode() = kPercentageDice;
    entry = SetFaceAlone(work, row, column, value);
  } else {
    RebuildInherited(work);
    work.Mode() = kFreeFormDice;
    if (IsTotalCell(row, column)) {
      entry = RebalanceGroup(work, [row](int r, int) { return r == row; }, kNumberLock, value);
    } else if (IsFaceCell(row, column)) {
      const int face = column - 1;
      if (row == kDie1FaceRow)
        entry = RebalanceGroup(work, [face](int r, int c) { return Die1OfCell(r, c) == face; }, kDie1Lock, value);
      else
        entry = RebalanceGroup(work, [face](int r, int c) { return Die2OfCell(r, c) == face; }, kDie2Lock, value);
    } else {
      entry = RebalanceOutcome(work, value);
    }
  }
  if (!entry) return false;
  target.value = *entry;
  work.at(1, 0).flags = column;  // the cell under edit, kept in the file
  work.at(2, 0).flags = row;
  RecomputeTotals(work);
  if (work.Mode() == kFreeFormDice) RecomputeFaces(work);
  ClearInherited(work);
  t = work;
  return true;
}

bool ToggleLock(ProbTable& t, int row, int column) {
  if (!IsBlockCell(row, column)) return false;
  t.at(row, column).flags ^= kUserLock;
  return true;
}

void UnlockAll(ProbTable& t) {
  for (int r = 0; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (IsBlockCell(r, c)) t.at(r, c).flags &= ~kUserLock;
}

void ComputeAxis(ProbTable& t, DieAxis axis1, double effectiveness1, DieAxis axis2, double effectiveness2) {
  const DieAxis axes[2] = {axis1, axis2};
  const double effectiveness[2] = {effectiveness1, effectiveness2};
  for (int die = 0; die < 2; ++die) {
    const int row = kDie1FaceRow + die;
    const double se = std::clamp(effectiveness[die], 0.0, 100.0) / 100;
    const int32_t w = RoundUnits((1 - se) / 6 * kProbWhole);
    const int lowFace = 1 + axes[die], highFace = 7 - lowFace;
    t.at(row, lowFace + 1).flags |= kUserLock;
    t.at(row, lowFace + 1).value = w;
    SetCell(t, highFace + 1, row, w);
  }
}
