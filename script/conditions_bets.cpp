#include <string_view>

#include "script/condition_parts.h"
#include "script/values.h"
#include "stats/rounded_quotient.h"
#include "engine/subject_codes.h"
#include "script/comparison_codes.h"

namespace {

// Comparison codes of the bet rule.
constexpr int kHasWon = 1, kWonMoreThan = 2, kHasLost = 3, kLostMoreThan = 4;
constexpr int kHasNotWon = 60, kWonLessThan = 61, kHasNotLost = 62, kLostLessThan = 63;
using comparison::kIsNamed, comparison::kIsNotNamed;
using comparison::kNumber, comparison::kNumberMoreThan, comparison::kNumberLessThan;

bool IsAmountCode(int code) { return comparison::AgainstAmount(code); }
bool IsSecondRangeCode(int code) { return comparison::AgainstTarget(code); }
bool IsWhileKind(int kind) { return kind == 2 || kind == 4 || kind == 6 || kind == 8; }

enum class Walk { Single, Any, All, Total };

// The slots a subject or a compared-against value covers.
struct SlotRange {
  int first = 0;
  int last = -1;  // empty when below first
  Walk walk = Walk::Single;
  bool average = false;  // slot 0 read as the bankroll's moving average

  bool Empty() const { return last < first; }
};

SlotRange Slot(int slot) { return {slot, slot}; }

// Families of the bet groups: Any 1000+, All 1100+, Total 1200+.
SlotRange GroupRange(int code) {
  const int family = code % 100;
  const Walk walk = code < subject::kAllGroup ? Walk::Any : code < subject::kTotalGroup ? Walk::All : Walk::Total;
  switch (family) {
    case 1: return {1, 83, walk};
    case 2: return {1, 6, walk};
    case 3: return {7, 12, walk};
    case 4: return {13, 18, walk};
    case 5: return {19, 24, walk};
    case 6: return {25, 30, walk};
    case 7: return {31, 36, walk};
    case 8: return {37, 42, walk};
    case 20: return {bet::kFirstStack, bet::kLastStack, walk};
    default: return {};
  }
}

SlotRange RangeOf(const Game& g, int code, int num) {
  if (bet::IsTableBet(code)) return Slot(code);
  if (code >= subject::kAnyGroup && code <= subject::kLastGroup) return GroupRange(code);
  switch (code) {
    case subject::kBankroll: return Slot(bet::kBankroll);
    case subject::kAverageBankroll: return {bet::kBankroll, bet::kBankroll, Walk::Single, true};
    case subject::kChipStack:
      return num >= 0 && num + bet::kFirstStack < bet::kSlots ? Slot(num + bet::kFirstStack) : SlotRange{};
    case subject::kChipStackRef: {
      const int ref = ChipStackReference(g, num);
      return ref < 0 ? SlotRange{} : Slot(ref + bet::kFirstStack);
    }
    case subject::kPointLay:
    case subject::kPointCome:
    case subject::kPointComeOdds:
    case subject::kPointPlace:
    case subject::kPointBuy: {
      const int id = ShootersPointBet(g, code);
      return id == 0 ? SlotRange{} : Slot(id);
    }
    default: return {};
  }
}

// The average as it stood one roll back: this roll's bankroll taken out.
Currency AverageOneRollBack(const Game& g) {
  const int rolls = g.RollCounts[0];
  if (rolls <= 1) return g.Bankroll();
  return RoundedQuotient(g.BankrollSum - g.Bankroll(), rolls - 1);
}

Currency Now(const Game& g, const SlotRange& r, int slot) { return r.average ? AverageBankroll(g) : g.BetAmount[slot]; }
Currency Before(const Game& g, const SlotRange& r, int slot) {
  return r.average ? AverageOneRollBack(g) : g.BetAfterRoll()[slot];
}

// Streaks are kept for the bankroll and the table bets only.
int Streak(const Game& g, int slot) { return slot < 101 ? g.BetStreak[1][slot] : 0; }
int StreakBefore(const Game& g, int slot) { return slot < 101 ? g.BetStreak[0][slot] : 0; }

struct Truth {
  bool now = false;
  bool before = false;
};

// Codes 1..4 and 60..63 on one slot's streak pair; amount 0 is "each time".
Truth StreakTruth(int code, int streak, int streakBefore, Currency a) {
  const Currency s(streak), sb(streakBefore);
  const bool each = a == 0;
  switch (code) {
    case kHasWon: return each ? Truth{streak > 0 && streak > streakBefore, false} : Truth{s == a, sb == a};
    case kHasNotWon: return each ? Truth{!(streak > streakBefore), false} : Truth{s != a, sb != a};
    case kWonMoreThan: return {s > a, sb > a};
    case kWonLessThan: return {s < a, sb < a};
    case kHasLost: return each ? Truth{streak < 0 && streak < streakBefore, false} : Truth{s == -a, sb == -a};
    case kHasNotLost: return each ? Truth{!(streak < streakBefore), false} : Truth{s != -a, sb != -a};
    case kLostMoreThan: return {s < -a, sb < -a};
    case kLostLessThan: return {s > -a, sb > -a};
    default: return {};
  }
}

bool IsStreakCode(int code) { return (code >= kHasWon && code <= kLostMoreThan) || (code >= kHasNotWon && code <= kLostLessThan); }

std::string_view StackName(const Game& g, int slot) {
  if (!bet::IsStack(slot)) return {};
  return TrimmedView(g.AutoBet.ChipStackNames[slot - bet::kFirstStack]);
}

// One walk of the bet rule over the subject's slots (and, against a second
// range, over every pair of a subject slot and a compared slot).
class BetWalk {
 public:
  BetWalk(const Game& g, PassState& pass, const ScriptLine& line, Currency amount, const SlotRange& subject)
      : g_(g), pass_(pass), line_(line), a_(amount), subject_(subject) {}

  void Run() {
    const int code = line_.Code;
    if (IsSecondRangeCode(code)) {
      RunAgainstSecondRange();
    } else {
      for (int i = subject_.first; i <= subject_.last; ++i)
        if (!Step(i, SlotTruth(code, i))) break;
    }
    Finish();
  }

 private:
  Truth SlotTruth(int code, int i) const {
    if (IsStreakCode(code)) return StreakTruth(code, Streak(g_, i), StreakBefore(g_, i), a_);
    if (IsAmountCode(code)) {
      if (subject_.average)  // the average's "before" is negated, a behaviour kept as it is
        return {CompareValues(AverageBankroll(g_), code, a_), !CompareValues(AverageOneRollBack(g_), code, a_)};
      return {CompareValues(g_.BetAmount[i], code, a_), CompareValues(g_.BetAfterRoll()[i], code, a_)};
    }
    if (code == kIsNamed || code == kIsNotNamed) {
      // A name has no history: it is compared each time.
      const bool same = StackName(g_, i) == TrimmedView(line_.Name);
      return {code == kIsNamed ? same : !same, false};
    }
    return {};
  }

  void RunAgainstSecondRange() {
    const SlotRange target = RangeOf(g_, line_.Target, line_.TargetNum);
    for (int i = subject_.first; i <= subject_.last; ++i) {
      const Currency now = Now(g_, subject_, i);
      const Currency before = Before(g_, subject_, i);
      if (target.Empty() || target.walk == Walk::Total) {
        // A total (or a single value the slots can't name) is compared once.
        Currency tNow = a_, tBefore = a_;
        if (!target.Empty()) SumRange(target, tNow, tBefore);
        if (!Step(i, {CompareValues(now, line_.Code, tNow), CompareValues(before, line_.Code, tBefore)})) return;
        continue;
      }
      for (int j = target.first; j <= target.last; ++j) {
        const Truth t{CompareValues(now, line_.Code, Now(g_, target, j)),
                      CompareValues(before, line_.Code, Before(g_, target, j))};
        if (!Step(i, t)) return;
      }
    }
  }

  void SumRange(const SlotRange& r, Currency& now, Currency& before) const {
    now = before = Currency();
    for (int j = r.first; j <= r.last; ++j) {
      now += g_.BetAmount[j];
      before += g_.BetAfterRoll()[j];
    }
  }

  void Note(bool before) { (before ? anyBefore_ : anyNotBefore_) = true; }

  // False ends the walk.
  bool Step(int i, Truth t) {
    const bool group = subject_.walk == Walk::Any || subject_.walk == Walk::All;
    const bool counted = a_ != 0;
    if (group) {
      if (!(g_.BetAfterRoll()[i] <= 0 && counted)) Note(t.before);
      if (g_.BetAmount[i] == 0 && counted) return true;  // an absent bet neither helps nor harms
    } else {
      Note(t.before);
    }
    if (t.now) {
      pass_.BlockTrue = true;
      const bool exists = g_.BetAmount[i] != 0 || i == bet::kBankroll;
      if (line_.Subject < subject::kAllGroup && exists && IsWhileKind(pass_.LastStart)) return false;
    }
    if (subject_.walk == Walk::All && !t.now) {
      pass_.BlockTrue = false;
      return false;
    }
    return true;
  }

  void Finish() {
    if (!pass_.BlockTrue) return;
    if (!anyBefore_) pass_.LineJustNow = true;
    if (subject_.walk == Walk::All && anyNotBefore_) pass_.LineJustNow = true;
    if (g_.RollCounts[0] == 0) pass_.LineJustNow = true;
  }

  const Game& g_;
  PassState& pass_;
  const ScriptLine& line_;
  const Currency a_;
  const SlotRange subject_;
  bool anyBefore_ = false;
  bool anyNotBefore_ = false;
};

// The sums of a Total group, now and before.
struct Totals {
  Currency amountNow, amountBefore;
  Currency winsNow, winsBefore, lossesNow, lossesBefore;
  Currency liveNow, liveBefore;
  bool absentBetChanged = false;  // a slot without a bet whose streak pair moved
};

Totals SumTotals(const Game& g, const SlotRange& r) {
  Totals t;
  for (int i = r.first; i <= r.last; ++i) {
    t.amountNow += g.BetAmount[i];
    t.amountBefore += g.BetAfterRoll()[i];
    const int s = Streak(g, i), sb = StreakBefore(g, i);
    t.winsNow += Currency(s > 0 ? s : 0);
    t.winsBefore += Currency(sb > 0 ? sb : 0);
    t.lossesNow += Currency(s < 0 ? -s : 0);
    t.lossesBefore += Currency(sb < 0 ? -sb : 0);
    t.liveNow += Currency(g.BetAmount[i] > 0 ? 1 : 0);
    t.liveBefore += Currency(g.BetAfterRoll()[i] > 0 ? 1 : 0);
    if (g.BetAmount[i] == 0 && s != sb) t.absentBetChanged = true;
  }
  return t;
}

// The Total's amounts against every value of the second range: any of them
// will do, unless the range is an All group.
Truth TotalAgainstSecondRange(const Game& g, const ScriptLine& line, const Totals& t, Currency amount) {
  const SlotRange target = RangeOf(g, line.Target, line.TargetNum);
  const int code = line.Code;
  if (target.Empty() || target.walk == Walk::Total) {
    Currency now = amount, before = amount;
    if (!target.Empty()) {
      const Totals sums = SumTotals(g, target);
      now = sums.amountNow;
      before = sums.amountBefore;
    }
    return {CompareValues(t.amountNow, code, now), CompareValues(t.amountBefore, code, before)};
  }
  const bool all = target.walk == Walk::All;
  Truth result{all, all};
  for (int j = target.first; j <= target.last; ++j) {
    const bool now = CompareValues(t.amountNow, code, Now(g, target, j));
    const bool before = CompareValues(t.amountBefore, code, Before(g, target, j));
    result.now = all ? result.now && now : result.now || now;
    result.before = all ? result.before && before : result.before || before;
  }
  return result;
}

Truth TotalTruth(const Game& g, const ScriptLine& line, const Totals& t, Currency a) {
  const bool steady = !t.absentBetChanged;
  switch (line.Code) {
    case kHasWon: return {t.winsNow == a && steady, t.winsBefore == a};
    case kWonMoreThan: return {t.winsNow > a && steady, t.winsBefore > a};
    case kHasLost: return {t.lossesNow == Abs(a) && steady, t.lossesBefore == Abs(a)};
    case kLostMoreThan: return {t.lossesNow > Abs(a) && steady, t.lossesBefore > Abs(a)};
    case kNumber: return {t.liveNow == a, t.liveBefore == a};
    case kNumberMoreThan: return {t.liveNow > a, t.liveBefore > a};
    case kNumberLessThan: return {t.liveNow < a, t.liveBefore < a};
    default: break;
  }
  if (IsAmountCode(line.Code))
    return {CompareValues(t.amountNow, line.Code, a), CompareValues(t.amountBefore, line.Code, a)};
  if (IsSecondRangeCode(line.Code)) return TotalAgainstSecondRange(g, line, t, a);
  return {};
}

// The bets that stand, now and before: all that a count of a Total needs.
Totals CountLive(const Game& g, const SlotRange& r) {
  Totals t;
  int now = 0, before = 0;
  for (int i = r.first; i <= r.last; ++i) {
    now += g.BetAmount[i] > 0 ? 1 : 0;
    before += g.BetAfterRoll()[i] > 0 ? 1 : 0;
  }
  t.liveNow = Currency(now);
  t.liveBefore = Currency(before);
  return t;
}

void EvaluateTotal(const Game& g, PassState& pass, const ScriptLine& line, Currency amount, const SlotRange& r) {
  const Totals sums = comparison::OfCount(line.Code) ? CountLive(g, r) : SumTotals(g, r);
  const Truth t = TotalTruth(g, line, sums, amount);
  pass.BlockTrue = t.now;
  pass.LineJustNow = t.now && (!t.before || g.RollCounts[0] == 0);
}

}  // namespace

bool IsBetSubject(int subject) {
  if (bet::IsTableBet(subject)) return true;
  if (subject >= subject::kAnyGroup && subject <= subject::kLastGroup) return !GroupRange(subject).Empty();
  switch (subject) {
    case subject::kBankroll: case subject::kAverageBankroll: case subject::kChipStack: case subject::kChipStackRef:
    case subject::kPointLay: case subject::kPointCome: case subject::kPointComeOdds: case subject::kPointPlace:
    case subject::kPointBuy:
      return true;
    default: return false;
  }
}

void EvaluateBetCondition(const Game& g, PassState& pass, const ScriptLine& line, Currency amount) {
  const SlotRange subject = RangeOf(g, line.Subject, line.SubjectNum);
  if (subject.Empty()) return;  // no such Chip-Stack, or no point: the line stays false
  if (subject.walk == Walk::Total) {
    EvaluateTotal(g, pass, line, amount, subject);
    return;
  }
  BetWalk(g, pass, line, amount, subject).Run();
}

std::string_view TrimmedView(const std::string& s) {
  const size_t first = s.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return std::string_view(s).substr(first, s.find_last_not_of(' ') - first + 1);
}
