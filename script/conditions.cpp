#include "script/conditions.h"

#include "script/condition_parts.h"
#include "script/values.h"
#include "stats/roll_counters.h"
#include "engine/subject_codes.h"
#include "script/comparison_codes.h"

namespace {

using namespace subject;

void Set(PassState& pass, bool now, bool justNow) {
  pass.BlockTrue = now;
  pass.LineJustNow = justNow;
}

// The point choices: 31 any point, single numbers 34..40, and groups 41..48.
// 49 "any come-out roll" and the unused codes match no point.
bool InPointSet(int point, int code) {
  switch (code) {
    case 31: return point > 0;
    case 34: return point == 4;
    case 35: return point == 5;
    case 36: return point == 6;
    case 38: return point == 8;
    case 39: return point == 9;
    case 40: return point == 10;
    case 41: return point == 5 || point == 6 || point == 8 || point == 9;
    case 42: return point == 4 || point == 5 || point == 9 || point == 10;
    case 43: return point == 4 || point == 6 || point == 8 || point == 10;
    case 44: return point == 4 || point == 5 || point == 6;
    case 45: return point == 8 || point == 9 || point == 10;
    case 46: return point == 4 || point == 10;
    case 47: return point == 5 || point == 9;
    case 48: return point == 6 || point == 8;
    default: return false;
  }
}

bool CameThisRoll(const Game& g, int eventIndex) { return FiguresOf(g, eventIndex).since == 0; }

// False when the subject is not a timing subject.
bool EvaluateTiming(const Game& g, PassState& pass, const ScriptLine& line) {
  const int rolls = g.RollCounts[event::kAllRolls];
  const int before = g.PointBeforeRoll;
  const int twoAgo = g.PointTwoRollsAgo;
  switch (line.Subject) {
    case kInitializing: {
      const bool init = g.InitPending || g.HotKeyRun;
      Set(pass, init, init);
      return true;
    }
    case kEachRoll: {
      const bool rolled = rolls != g.RollCountAfterPass;
      Set(pass, rolled, rolled);
      return true;
    }
    case kNextComeOut: Set(pass, g.Point == 0, rolls == 0 || before > 0); return true;
    case kNextNotComeOut: Set(pass, g.Point != 0, before == 0); return true;
    case kLastComeOut: Set(pass, rolls > 0 && before == 0, twoAgo > 0); return true;
    case kLastNotComeOut: Set(pass, before != 0, twoAgo == 0); return true;
    case kPointOn: Set(pass, InPointSet(g.Point, line.Code), before == 0); return true;
    case kPointNotOn: Set(pass, !InPointSet(g.Point, line.Code), InPointSet(before, line.Code)); return true;
    case kDecidedFor:
    case kDecidedAgainst: {
      const bool seven = g.DiceTotal == 7;
      const bool decided = g.Point == 0 && InPointSet(before, line.Code) && (line.Subject == kDecidedFor ? !seven : seven);
      Set(pass, decided, g.Point == 0 && before > 0);
      return true;
    }
    case kDecided: Set(pass, g.Point == 0 && InPointSet(before, line.Code), before > 0); return true;
    case kAnswerYes: Set(pass, g.LastAnswer == Answer::Yes, true); return true;
    case kAnswerNo: Set(pass, g.LastAnswer == Answer::No, true); return true;
    case kEachPass: {
      const bool craps = CameThisRoll(g, 2) || CameThisRoll(g, 3) || CameThisRoll(g, 12);
      const bool sevenOut = CameThisRoll(g, 7) && before > 0;
      const bool pass_ = g.Point == 0 && !craps && !sevenOut;
      Set(pass, pass_, pass_);
      return true;
    }
    case kEachMiss: {
      const bool craps = CameThisRoll(g, 2) || CameThisRoll(g, 3) || CameThisRoll(g, 12);
      const bool sevenOut = CameThisRoll(g, 7) && before > 0;
      const bool miss = rolls > 0 && g.Point == 0 && (craps || sevenOut);
      Set(pass, miss, miss);
      return true;
    }
    default: return false;
  }
}

// The counters of rolls, passes and misses; -1 when the subject is none.
enum class CounterKind { Game, Shooter, LastShooter };
struct Counter {
  int value = -1;
  CounterKind kind = CounterKind::Game;
  bool decidedOnly = false;  // passes and misses can only come as a point is decided
};

Counter CounterOf(const Game& g, int subject) {
  const auto& h = g.HandStats;
  switch (subject) {
    case subject::kGameRolls: return {g.RollCounts[event::kAllRolls], CounterKind::Game};
    case subject::kShooterRolls: return {h[hand::kRolls], CounterKind::Shooter};
    case subject::kLastShooterRolls: return {h[hand::kLastHandRolls], CounterKind::LastShooter};
    case subject::kGamePasses: return {h[hand::kAllWins], CounterKind::Game, true};
    case subject::kShooterPasses: return {h[hand::kWins], CounterKind::Shooter, true};
    case subject::kLastShooterPasses: return {h[hand::kLastHandWins], CounterKind::LastShooter};
    case subject::kGameMisses: return {h[hand::kAllLosses], CounterKind::Game, true};
    case subject::kShooterMisses: return {h[hand::kLossesInRow], CounterKind::Shooter, true};
    case subject::kLastShooterMisses: return {h[hand::kLastHandLossesInRow], CounterKind::LastShooter};
    default: return {};
  }
}

bool EvaluateCounter(const Game& g, PassState& pass, const ScriptLine& line, Currency amount) {
  const Counter c = CounterOf(g, line.Subject);
  if (c.value < 0) return false;
  pass.BlockTrue = CompareValues(Currency(c.value), line.Code, amount);
  if (c.kind == CounterKind::LastShooter) {
    // Fresh when a new shooter has just come out after a finished hand.
    const auto& h = g.HandStats;
    pass.LineJustNow = h[hand::kRolls] == 0 && h[hand::kLastHandWins] + h[hand::kLastHandLossesInRow] > 0;
  } else {
    pass.LineJustNow = !CompareValues(Currency(c.value - 1), line.Code, amount) && (!c.decidedOnly || g.Point == 0);
  }
  return true;
}

// Rolls over the rate, worked in double as hours are fractional.
Currency Hours(int rolls, Currency rollsPerHour) {
  if (rollsPerHour == 0) throw script_error::DivisionByZero();
  return Currency::FromDouble(rolls / rollsPerHour.ToDouble());
}

bool FlagMatches(const Flag& flag, Currency amount) { return Currency(flag.FlagValue) == amount; }
bool FlagChanged(const Flag& flag) { return flag.FlagValue != flag.FlagPrevious; }

void EvaluateFlag(const Game& g, PassState& pass, const ScriptLine& line) {
  const std::string_view name = TrimmedView(line.Name);
  for (const Flag& flag : g.AutoBet.Flags) {
    if (flag.FlagName != name) continue;
    Set(pass, FlagMatches(flag, line.LineAmount), FlagChanged(flag));
    return;
  }
}

void EvaluateFlagWalk(const Game& g, PassState& pass, const ScriptLine& line) {
  for (const Flag& flag : g.AutoBet.Flags) {
    const bool match = FlagMatches(flag, line.LineAmount);
    if (match && FlagChanged(flag)) pass.LineJustNow = true;
    switch (line.Subject) {
      case kAnyFlag:
        if (match) {
          pass.BlockTrue = true;
          return;
        }
        break;
      case kAllFlags:
        pass.BlockTrue = match;
        if (!match) return;
        break;
      default:
        // The counting subjects take the last flag's match, never the count:
        // a behaviour kept as it is.
        pass.BlockTrue = match;
        break;
    }
  }
}

}  // namespace

void EvaluateCondition(Game& g, PassState& pass, const ScriptLine& line) {
  if (EvaluateTiming(g, pass, line)) return;
  const bool againstValue = comparison::AgainstTarget(line.Code);
  const Currency amount = againstValue ? GetValue(g, line.Target, line.TargetNum) : line.LineAmount;
  if (EvaluateCounter(g, pass, line, amount)) return;
  if (IsDiceEvent(line.Subject)) {
    EvaluateDiceEvent(g, pass, line);
    return;
  }
  if (IsBetSubject(line.Subject)) {
    EvaluateBetCondition(g, pass, line, amount);
    return;
  }
  switch (line.Subject) {
    case kAvailableBankroll: {
      // With a negative bankroll allowed the available amount is unlimited:
      // it compares as greater than any amount.
      const bool now = g.AllowNegativeBankroll ? CompareValues(Currency(1), line.Code, Currency(0))
                                               : CompareValues(g.Bankroll() - g.TotalOnTable, line.Code, amount);
      Set(pass, now, true);
      return;
    }
    case kSimulatedHours: {
      const int rolls = g.RollCounts[event::kAllRolls];
      const bool now = CompareValues(Hours(rolls, g.SimRollRate), line.Code, amount);
      Set(pass, now, !CompareValues(Hours(rolls - 1, g.SimRollRate), line.Code, amount));
      return;
    }
    case kFlag: EvaluateFlag(g, pass, line); return;
    case kAnyFlag:
    case kAllFlags:
    case kTrueFlags:
    case kFalseFlags: EvaluateFlagWalk(g, pass, line); return;
    default: return;
  }
}
