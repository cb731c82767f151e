// The table's percentage dice: the table of chances, its file and its edits,
// as the probability page of the configuration screen offers them.

#include "sim/table_command.h"
#include "store/prob_file.h"

namespace {

TableResult NotACell(int row, int column) {
  return TableResult::Fail(TableCode::Unknown, "row " + std::to_string(row) + " column " + std::to_string(column) +
                                                   " is not a cell of the table");
}

}  // namespace

TableResult Table::ResetProbabilities() {
  return Command([&](Game& g) {
    return MarkUnsavedIf(NewProbabilities(g));  // the game links another file
  });
}

TableResult Table::OpenProbabilities(const std::string& path) {
  return Command([&](Game& g) {
    if (!QuerySaveProbabilityPage(g)) return TableResult::Fail(TableCode::Cancelled, "");
    if (!ShowFileStatus(g, OpenProbabilityFile(g, path))) return Told(*relay_, TableCode::NotDone, "\"" + path + "\" was not opened");
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SaveProbabilities(const std::string& path) {
  return Command([&](Game& g) {
    if (!ShowFileStatus(g, SaveProbabilityFile(g, path))) return Told(*relay_, TableCode::NotDone, "\"" + path + "\" was not saved");
    return TableResult{};
  });
}

TableResult Table::SetProbabilityCell(int row, int column, double typed, int32_t displayMode) {
  return Command([&](Game& g) {
    if (!IsBlockCell(row, column)) return NotACell(row, column);
    const int32_t units = EntryToTableUnits(typed, displayMode, g.ProbRollsOutOf, row, column);
    // An edit with no free cells left is ignored, as on the screen.
    if (!SetCell(g.Prob, column, row, units))
      return TableResult::Fail(TableCode::Refused, "no cell is left free to take up the change");
    g.ProbModified = true;
    return TableResult{};
  });
}

TableResult Table::LockProbabilityCell(int row, int column, bool locked) {
  return Command([&](Game& g) {
    if (!IsBlockCell(row, column)) return NotACell(row, column);
    const bool isLocked = (g.Prob.at(row, column).flags & kUserLock) != 0;
    if (isLocked != locked) ToggleLock(g.Prob, row, column);
    g.ProbModified = true;
    return TableResult{};
  });
}

TableResult Table::UnlockAllProbabilities() {
  return Command([&](Game& g) {
    UnlockAll(g.Prob);
    g.ProbModified = true;
    return TableResult{};
  });
}

TableResult Table::ComputeProbabilityAxis(DieAxis axis1, double se1, DieAxis axis2, double se2) {
  return Command([&](Game& g) {
    ComputeAxis(g.Prob, axis1, se1, axis2, se2);
    g.ProbModified = true;
    return TableResult{};
  });
}
