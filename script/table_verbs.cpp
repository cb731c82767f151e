// The verbs that act on a bet as the table's own commands do, the resets of
// a bet's history, and the stop of a run.

#include "engine/table_commands.h"
#include "stats/roll_counters.h"
#include "script/verb_families.h"
#include "engine/verb_codes.h"

namespace {

using namespace verb;

void ResetStreak(Game& g, int slot) {
  if (slot < 0 || slot >= static_cast<int>(g.BetStreak[0].size())) return;
  g.BetStreak[0][slot] = 0;
  g.BetStreak[1][slot] = 0;
}

void ResetEvent(Game& g, int event) {
  if (event < 0 || event >= static_cast<int>(g.RollCounts.size())) return;
  WriteRollCounters(g);  // what the run tallied, so the reset sticks
  g.RollCounts[event] = 0;
  g.RollsSinceLast[event] = 0;
  g.PreviousRollCounts[event] = 0;
  g.PreviousRollsSinceLast[event] = 0;
}

void StopRolling(Game& g) {
  g.AutoRollOn = false;
  g.KeepRolling = false;
  if (g.HyperDriveOn) g.StopReason = StopReason::ScriptCommand;
}

}  // namespace

bool CarryOutTableVerb(Game& g, const ScriptLine& line, const TargetRange& range) {
  switch (line.Code) {
    case kBuy:
      ForEachSlot(g, range, [&](int slot) { BuyPlaceBet(g, slot); });
      return true;
    case kCallOff:
      ForEachSlot(g, range, [&](int slot) { CallBet(g, slot, kToolCallOff); });
      return true;
    case kCallOn:
      ForEachSlot(g, range, [&](int slot) { CallBet(g, slot, kToolCallOn); });
      return true;
    case kResetWinsLosses:
      ForEachSlot(g, range, [&](int slot) { ResetStreak(g, slot); });
      return true;
    case kResetRolls:
      ForEachSlot(g, range, [&](int event) { ResetEvent(g, event); });
      return true;
    case kStop:
      StopRolling(g);
      return true;
    default:
      return false;
  }
}
