#include "script/condition_parts.h"

#include "stats/roll_counters.h"
#include "engine/subject_codes.h"

namespace {

// Comparison codes of the "has rolled" list.
constexpr int kHasRolled = 5;
constexpr int kRolledMoreThan = 6;
constexpr int kHasNotRolled = 7;
constexpr int kRolledLessThan = 8;
constexpr int kRolledInLast = 9;
constexpr int kNotRolledInLast = 10;

}  // namespace

bool IsDiceEvent(int subject) {
  return subject > subject::kDiceEvents && subject < subject::kDiceEvents + event::kCount;
}

void EvaluateDiceEvent(const Game& g, PassState& pass, const ScriptLine& line) {
  const int i = line.Subject - subject::kDiceEvents;
  const EventFigures figures = FiguresOf(g, i);
  const Currency count(figures.count);
  const Currency countBefore(figures.countBefore);
  const Currency since(figures.since);
  const Currency sinceBefore(figures.sinceBefore);
  const bool anyRolls = g.RollCounts[event::kAllRolls] != 0;
  const Currency n = line.LineAmount;
  bool now = false;
  bool already = false;  // so before this roll: not a new occurrence
  switch (line.Code) {
    case kHasRolled:
      if (n == 0) {
        now = count > countBefore;
        already = !now;  // true and just now together
      } else {
        now = count == n;
        already = countBefore == n && anyRolls;
      }
      break;
    case kRolledMoreThan:
      now = count > n;
      already = countBefore > n && anyRolls;
      break;
    case kHasNotRolled:
      if (n == 0) {
        now = count == countBefore;
        already = !now;
      } else {
        now = count != n;
        already = countBefore != n && anyRolls;
      }
      break;
    case kRolledLessThan:
      now = count < n;
      already = countBefore < n && anyRolls;
      break;
    case kRolledInLast:
      now = count > 0 && since < n;
      already = sinceBefore < n && countBefore != 0;
      break;
    case kNotRolledInLast:
      now = since >= n && Currency(g.RollCounts[event::kAllRolls]) >= n;
      already = since != n;
      break;
    default:
      return;
  }
  pass.BlockTrue = now;
  pass.LineJustNow = !already;
}
