// The verbs that change amounts: the five operators in their nine forms,
// "Round" and "Get input and bet it on". Every change goes through placement,
// so the table's rules apply to a script as they do to the player.

#include <optional>

#include "engine/place_bet.h"
#include "script/values.h"
#include "script/verb_families.h"
#include "script/verb_math.h"
#include "engine/verb_codes.h"

namespace {

enum Operator { kBet = 1, kAdd = 2, kSubtract = 3, kMultiply = 4, kDivide = 5 };

using verb::kGetInput, verb::kRound;
constexpr int kRoundUp = 1100;
constexpr int kRoundNearest = 1101;
constexpr int kRoundDown = 1102;

// Form of an operator verb: 0 literal, 1/2 percent of, 3/4 highest, 5/6
// lowest, 7/8 average; the even forms read "the last" values.
bool IsOperatorVerb(int code) { return verb::IsOperator(code); }
bool IsRunForm(int form) { return form >= 3; }
bool IsAverage(int form) { return form >= 7; }

void PlaceChange(Game& g, int slot, Currency change) {
  if (change == 0) return;
  g.BetChange = change;
  PlaceBetOnTable(g, slot);
}

Currency SourceValue(const Game& g, const ScriptLine& line) {
  const int form = line.Code % 10;
  if (form == 0) return line.LineAmount;
  const bool last = form % 2 == 0;
  const Currency v = last ? GetLastValue(g, line.Subject, line.SubjectNum) : GetValue(g, line.Subject, line.SubjectNum);
  return form <= 2 ? PercentOf(line.LineAmount, v) : v;
}

// What one line contributes: whether it acts, the value it acts with, and
// whether the slot starts again from the run's base.
struct Step {
  bool acts = false;
  Currency value;
  bool fromBase = false;
};

// The run's test for this line. Zero never counts as the lowest, and only
// positive values enter an average.
Step TakeRunStep(PassState& pass, int form, Currency v) {
  if (!IsRunForm(form)) return {true, v, false};
  if (form <= 4) {
    if (!(v > pass.RunAmount)) return {};
    pass.RunAmount = v;
    return {true, v, true};
  }
  if (form <= 6) {
    if (!(v > 0) || (pass.RunAmount != 0 && !(v < pass.RunAmount))) return {};
    pass.RunAmount = v;
    return {true, v, true};
  }
  if (!(v > 0)) return {};
  pass.RunAmount = CheckedAdd(pass.RunAmount, v);
  ++pass.RunCount;
  return {true, CheckedWhole(Floor(pass.RunAmount) / pass.RunCount), true};
}

bool StartsRun(const PassState& pass, int form) {
  return IsAverage(form) ? pass.RunCount == 0 : pass.RunAmount == 0;
}

// The slot's new amount under Add, Subtract, Multiply or Divide; nullopt
// when a divisor leaves it alone.
std::optional<Currency> Operate(int op, int form, Currency base, Currency v) {
  switch (op) {
    case kAdd: return CheckedAdd(base, v);
    case kSubtract: return CheckedAdd(base, -v);
    case kMultiply: return CheckedTimes(v, base);
    case kDivide:
      if (form == 0 ? v == 0 : !(v > 0)) return std::nullopt;
      if (IsAverage(form)) {
        const int64_t divisor = Floor(v);
        if (divisor == 0) return std::nullopt;
        return CheckedWhole(Floor(base) / divisor);
      }
      return CheckedOver(base, v);
    default: return std::nullopt;
  }
}

void CarryOutOperator(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range) {
  const int op = line.Code / 10;
  const int form = line.Code % 10;
  const Currency v = SourceValue(g, line);
  if (IsRunForm(form) && StartsRun(pass, form))
    ForEachSlot(g, range, [&](int slot) { pass.RunBases()[slot] = g.BetAmount[slot]; });
  const Step step = TakeRunStep(pass, form, v);
  if (!step.acts) return;

  ForEachSlot(g, range, [&](int slot) {
    const Currency b = g.BetAmount[slot];
    if (op == kBet) {
      // The same amount again: the table's rules may let it stand as it is.
      if (b == step.value && RestateBet(g, slot)) return;
      // Emptied through placement, so a contract bet stays where it must.
      PlaceChange(g, slot, -b);
      PlaceChange(g, slot, step.value);
      return;
    }
    const Currency base = step.fromBase ? pass.RunBases()[slot] : b;
    const std::optional<Currency> amount = Operate(op, form, base, step.value);
    if (amount) PlaceChange(g, slot, CheckedAdd(*amount, -b));
  });
}

// Floor of a / unit, for a unit that is not 0.
int64_t FloorQuotient(Currency a, Currency unit) {
  int64_t q = a.raw / unit.raw;
  if (a.raw % unit.raw != 0 && ((a.raw < 0) != (unit.raw < 0))) --q;
  return q;
}

void CarryOutRound(Game& g, const ScriptLine& line, const TargetRange& range) {
  const Currency unit = line.LineAmount;
  ForEachSlot(g, range, [&](int slot) {
    if (unit == 0) throw script_error::DivisionByZero();
    const Currency b = g.BetAmount[slot];
    if (b.raw % unit.raw == 0) return;
    const int64_t whole = FloorQuotient(b, unit);
    const Currency down = CheckedMultiple(whole, unit);
    const Currency up = CheckedMultiple(whole + 1, unit);
    Currency target;
    switch (line.Subject) {
      case kRoundUp: target = up; break;
      case kRoundDown: target = down; break;
      case kRoundNearest: target = Abs(b - down) < Abs(up - b) ? down : up; break;
      default: return;
    }
    PlaceChange(g, slot, target - b);
  });
}

void CarryOutGetInput(Game& g, const TargetRange& range) {
  if (range.Empty()) return;
  const std::optional<Currency> answer =
      g.Ui->AskNumber("Auto-Bet", "Please enter a value to bet on:  ", Currency());
  if (!answer) return;
  ForEachSlot(g, range, [&](int slot) { PlaceChange(g, slot, *answer); });
}

}  // namespace

bool CarryOutAmountVerb(Game& g, PassState& pass, const ScriptLine& line, const TargetRange& range) {
  if (IsOperatorVerb(line.Code)) {
    CarryOutOperator(g, pass, line, range);
  } else if (line.Code == kRound) {
    CarryOutRound(g, line, range);
  } else if (line.Code == kGetInput) {
    CarryOutGetInput(g, range);
  } else {
    return false;
  }
  return true;
}
