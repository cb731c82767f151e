#include "engine/settle_order.h"

#include "engine/game.h"
#include "engine/hand_counters.h"
#include "engine/phantom_payoff.h"
#include "engine/roll.h"
#include "engine/settle.h"
#include "engine/throw_plan.h"

namespace {

bool DiceOnTheTable(const Game& g) { return g.Die1 >= 1 && g.Die1 <= 6 && g.Die2 >= 1 && g.Die2 <= 6; }

// Whether a bet still to settle in this throw works otherwise than it did
// as the dice went out. Handling mostly changes the bet just settled (odds
// returned work again, a bet placed again keeps its call): that leaves the
// throw's phantom units as they were counted.
bool ChangedAhead(const Game& g, const ThrowPlan& plan, int step, const WorkingSet& atStart) {
  const WorkingSet& now = g.BetStatus.Working();
  for (int i = step + 1; i < plan.count; ++i) {
    const ThrowStep& s = plan.steps[i];
    if (s.kind == StepKind::Settle && atStart.Has(s.bet) != now.Has(s.bet)) return true;
  }
  return false;
}

// A bet's handling changed whether a bet still to settle works, in a throw
// whose phantom units the statistics were to count whole: the units of the
// steps settled so far are booked as they stood when the dice went out, and
// the rest of the throw books its own as it goes.
void BookPhantomsSoFar(Game& g, const ThrowPlan& plan, int lastStep, const WorkingSet& atStart) {
  if (g.Hooks.PhantomsDue) g.Hooks.PhantomsDue(g);
  for (int i = 0; i <= lastStep; ++i) {
    const ThrowStep& step = plan.steps[i];
    if (step.kind == StepKind::Settle && atStart.Has(step.bet)) BookPhantomResult(g, step.bet, step.outcome);
  }
  g.PhantomsDeferred = false;
}

// Whether any table bet has money on it, worked branch-free so that it costs
// less than walking the throw's settlements of an empty layout.
bool AnyMoneyOnLayout(const Game& g) {
  // Four chains of ORs, so that they do not wait on one another.
  static_assert(bet::kLastTableBet - bet::kFirstTableBet + 1 == 83);
  const Currency* amounts = &g.BetAmount[bet::kFirstTableBet];
  int64_t a = 0, b = 0, c = 0, d = 0;
  for (int i = 0; i < 80; i += 4) {
    a |= amounts[i].raw;
    b |= amounts[i + 1].raw;
    c |= amounts[i + 2].raw;
    d |= amounts[i + 3].raw;
  }
  return (a | b | c | d | amounts[80].raw | amounts[81].raw | amounts[82].raw) != 0;
}

void TakeOtherStep(Game& g, const ThrowStep& step) {
  switch (step.kind) {
    case StepKind::LineWin: LineWin(g); break;
    case StepKind::LineLoss: LineLoss(g); break;
    case StepKind::LineBarred: LineBarred(g); break;
    case StepKind::MoveBet: MoveBet(g, step.bet, step.to); break;
    case StepKind::Settle: break;
  }
}

void TakeOtherSteps(Game& g, const ThrowPlan& plan) {
  for (int i = 0; i < plan.otherCount; ++i) TakeOtherStep(g, plan.others[i]);
}

// One settlement; bookPhantom: its phantom unit too.
void SettleStep(Game& g, const ThrowStep& step, bool bookPhantom, ThrowDecisions& decided) {
  const int id = step.bet;
  const bool real = g.BetAmount[id] > 0 && g.BetStatus[id] >= status::kWorking;
  if (bookPhantom)
    SettleBet(g, step.outcome, id);
  else
    SettleMoneyBet(g, step.outcome, id);
  if (real && g.NetPayoff > 0) decided.anyWon = true;
  if (real && g.NetPayoff < 0) decided.anyLost = true;
}

// The steps from `first` on, each settlement booking its own phantom unit.
void WalkBookingPhantoms(Game& g, const ThrowPlan& plan, int first, ThrowDecisions& decided) {
  for (int i = first; i < plan.count; ++i) {
    const ThrowStep& step = plan.steps[i];
    if (step.kind == StepKind::Settle)
      SettleStep(g, step, true, decided);
    else
      TakeOtherStep(g, step);
  }
}

// The steps of a throw whose phantom units are counted whole: an empty spot
// has nothing to settle. Gives the step after which the rest of the throw
// must book its own units, or the plan's end.
int WalkCountedWhole(Game& g, const ThrowPlan& plan, ThrowDecisions& decided) {
  const WorkingSet atStart = g.BetStatus.Working();
  uint32_t changesSeen = g.BetStatus.Changes();
  for (int i = 0; i < plan.count; ++i) {
    const ThrowStep& step = plan.steps[i];
    if (step.kind == StepKind::Settle) {
      if (g.BetAmount[step.bet].raw == 0) continue;
      SettleStep(g, step, false, decided);
    } else {
      TakeOtherStep(g, step);
    }
    if (g.BetStatus.Changes() != changesSeen) {
      changesSeen = g.BetStatus.Changes();
      if (ChangedAhead(g, plan, i, atStart)) {
        BookPhantomsSoFar(g, plan, i, atStart);
        return i + 1;
      }
    }
  }
  return plan.count;
}

}  // namespace

ThrowDecisions SettleTheThrow(Game& g) {
  ThrowDecisions decided;
  if (!DiceOnTheTable(g)) return decided;
  const ThrowPlan& plan = PlanFor(g.Die1, g.Die2, g.PointBeforeRoll, g.BarNumber);
  if (g.PhantomsDeferred && !AnyMoneyOnLayout(g)) {
    TakeOtherSteps(g, plan);
    return decided;
  }
  const int first = g.PhantomsDeferred ? WalkCountedWhole(g, plan, decided) : 0;
  WalkBookingPhantoms(g, plan, first, decided);
  return decided;
}
