// The `prob` command of the play session: the percentage dice table, its
// file and its editing, as the probability page of the configuration screen
// offers them.

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "config/settings_table.h"
#include "dice/prob_table.h"
#include "engine/game.h"
#include "store/prob_file.h"

namespace {

constexpr const char* kProbUsage =
    "prob show|reset|open FILE|save [FILE]|set ROW COL VALUE [MODE]|lock ROW COL|unlock ROW COL|unlock all|"
    "axis AXIS1 SE1 AXIS2 SE2";

ProbPosition ReadBlockCell(const std::string& rowWord, const std::string& columnWord) {
  const int row = static_cast<int>(ReadInteger(rowWord, 1, kProbRows - 1, "ROW"));
  const int column = static_cast<int>(ReadInteger(columnWord, 1, kProbColumns - 1, "COL"));
  if (!IsBlockCell(row, column))
    throw CommandError("row " + rowWord + " column " + columnWord +
                       " is not a cell of the table (totals: rows 1..11 column 1; outcomes: column 2..7 with "
                       "COL-1 <= ROW <= 13-COL; faces: rows 12 and 13, columns 2..7)");
  return {row, column};
}

DieAxis ReadAxis(const std::string& word) {
  if (word == "16" || word == "1-6") return kAxis16;
  if (word == "25" || word == "2-5") return kAxis25;
  if (word == "34" || word == "3-4") return kAxis34;
  throw CommandError("'" + word + "' is not an axis: 16, 25 or 34");
}

// Shooter's effectiveness in percent; above 100 counts as 100.
double ReadEffectiveness(const std::string& word) {
  const Currency se = ReadAmount(word, "SE");
  if (se < 0) throw CommandError("SE " + word + " is below 0");
  return se.ToDouble();
}

void ExpectArgs(const std::vector<std::string>& a, size_t lo, size_t hi) {
  if (a.size() < lo || a.size() > hi) throw CommandError(std::string("expected: ") + kProbUsage);
}

Json ProbTableJson(const Game& g) {
  const ProbTable& t = g.Prob;
  Json totals = Json::array(), outcomes = Json::array(), die1 = Json::array(), die2 = Json::array();
  Json locked = Json::array();
  for (int r = 1; r <= 11; ++r) totals.push_back(t.at(r, 1).value);
  for (int d1 = 1; d1 <= 6; ++d1) {
    Json row = Json::array();
    for (int d2 = 1; d2 <= 6; ++d2) row.push_back(t.at(OutcomeCell(d1, d2).row, OutcomeCell(d1, d2).column).value);
    outcomes.push_back(row);
  }
  for (int c = 2; c <= 7; ++c) {
    die1.push_back(t.at(kDie1FaceRow, c).value);
    die2.push_back(t.at(kDie2FaceRow, c).value);
  }
  for (int r = 1; r < kProbRows; ++r)
    for (int c = 1; c < kProbColumns; ++c)
      if (IsBlockCell(r, c) && (t.at(r, c).flags & kUserLock)) locked.push_back(Json::array({r, c}));
  return {{"file", g.ProbFileName},
          {"modified", g.ProbModified},
          {"use", g.UseSkewedProbability},
          {"mode", t.Mode() == kFreeFormDice ? "Free Form Dice" : "Percentage Dice"},
          {"displayMode", g.ProbDisplayMode},
          {"rollsOutOf", g.ProbRollsOutOf},
          {"totals", totals},
          {"outcomes", outcomes},
          {"die1", die1},
          {"die2", die2},
          {"locked", locked}};
}

}  // namespace

void PlaySession::Prob(const Args& a) {
  Game& g = *game_;
  if (a.empty()) throw CommandError(std::string("expected: ") + kProbUsage);
  const std::string verb = ToLower(a[0]);
  if (verb == "show") {
    ExpectArgs(a, 1, 1);
    WriteJsonLine(out_, {{"prob", ProbTableJson(g)}});
  } else if (verb == "reset") {
    ExpectArgs(a, 1, 1);
    if (NewProbabilities(g)) g.GameChanged = true;  // the game links another file
  } else if (verb == "open") {
    ExpectArgs(a, 2, 2);
    if (QuerySaveProbabilityPage(g) && ShowFileStatus(g, OpenProbabilityFile(g, a[1]))) g.GameChanged = true;
  } else if (verb == "save") {
    ExpectArgs(a, 1, 2);
    if (a.size() == 1 && g.ProbFileName == "untitled") throw CommandError("the table has no file yet: give FILE");
    (void)ShowFileStatus(g, SaveProbabilityFile(g, a.size() == 2 ? a[1] : g.ProbFileName));
  } else if (verb == "set") {
    ExpectArgs(a, 4, 5);
    const ProbPosition cell = ReadBlockCell(a[1], a[2]);
    const double typed = ReadAmount(a[3], "VALUE").ToDouble();
    const SettingRow& modes = *FindSettingRow("ProbDisplayMode");
    const auto mode = a.size() == 5 ? static_cast<int32_t>(ReadInteger(a[4], Floor(modes.least), Floor(modes.most), "MODE"))
                                    : g.ProbDisplayMode;
    const int32_t units = EntryToTableUnits(typed, mode, g.ProbRollsOutOf, cell.row, cell.column);
    // An edit with no free cells left is ignored, as on the screen.
    if (SetCell(g.Prob, cell.column, cell.row, units)) g.ProbModified = true;
  } else if (verb == "lock" || verb == "unlock") {
    ExpectArgs(a, 2, 3);
    if (verb == "unlock" && a.size() == 2 && ToLower(a[1]) == "all") {
      UnlockAll(g.Prob);
    } else {
      if (a.size() != 3) throw CommandError(std::string("expected: ") + kProbUsage);
      const ProbPosition cell = ReadBlockCell(a[1], a[2]);
      const bool isLocked = (g.Prob.at(cell.row, cell.column).flags & kUserLock) != 0;
      if (isLocked != (verb == "lock")) ToggleLock(g.Prob, cell.row, cell.column);
    }
    g.ProbModified = true;
  } else if (verb == "axis") {
    ExpectArgs(a, 5, 5);
    const DieAxis axis1 = ReadAxis(a[1]), axis2 = ReadAxis(a[3]);
    const double se1 = ReadEffectiveness(a[2]), se2 = ReadEffectiveness(a[4]);
    ComputeAxis(g.Prob, axis1, se1, axis2, se2);
    g.ProbModified = true;
  } else {
    throw CommandError("'" + a[0] + "' is not a prob command; expected: " + kProbUsage);
  }
}
