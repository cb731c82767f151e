#include "engine/settle_order.h"

#include "engine/game.h"
#include "engine/hand_counters.h"
#include "engine/phantom_payoff.h"
#include "engine/roll.h"
#include "engine/settle.h"
#include "engine/throw_plan.h"

namespace {

// Whether a bet still to settle in this throw works otherwise than it did
// as the dice went out. Handling mostly changes the bet just settled (odds
// returned work again, a bet placed again keeps its call): that leaves the
// throw's phantom units as they were counted.
bool ChangedAhead(const Game& g, const ThrowPlan& plan, int step, const WorkingSet& atStart) {
  bool ahead = false;
  ((atStart ^ g.BetStatus.Working()) & plan.settled).ForEach([&](int id) {
    ahead = ahead || plan.stepOfBet[static_cast<size_t>(id)] > step;
  });
  return ahead;
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
  plan.otherSteps.ForEach([&](int i) { TakeOtherStep(g, plan.steps[static_cast<size_t>(i)]); });
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

// The steps that a throw whose phantom units are counted whole must take:
// the settlements of the bets with money, and the steps that are not
// settlements.
SlotBits<2> StepsDue(const ThrowPlan& plan, const BetAmounts::BetBits& withMoney) {
  SlotBits<2> due = plan.otherSteps;
  (withMoney & plan.settled).ForEach([&](int id) { due.Add(plan.stepOfBet[static_cast<size_t>(id)]); });
  return due;
}

// The bets in `moved` gained or lost their money: from `first` on, the
// steps due take in or drop their settlements.
void FollowMoney(const ThrowPlan& plan, const BetAmounts::BetBits& moved, const BetAmounts::BetBits& withMoney,
                 int first, SlotBits<2>& due) {
  (moved & plan.settled).ForEach([&](int id) {
    const int step = plan.stepOfBet[static_cast<size_t>(id)];
    if (step < first) return;
    if (withMoney.Has(id))
      due.Add(step);
    else
      due.Remove(step);
  });
}

// The steps of a throw whose phantom units are counted whole: an empty spot
// has nothing to settle. Gives the step after which the rest of the throw
// must book its own units, or the plan's end.
int WalkCountedWhole(Game& g, const ThrowPlan& plan, ThrowDecisions& decided) {
  const WorkingSet atStart = g.BetStatus.Working();
  uint32_t changesSeen = g.BetStatus.Changes();
  BetAmounts::BetBits withMoney = g.BetAmount.WithMoney();
  SlotBits<2> due = StepsDue(plan, withMoney);
  while (due.Any()) {
    const int i = due.TakeFirst();
    const ThrowStep& step = plan.steps[static_cast<size_t>(i)];
    const bool settled = step.kind == StepKind::Settle;
    if (settled)
      SettleStep(g, step, false, decided);
    else
      TakeOtherStep(g, step);
    // A step may put money on a bet or take it off: the rest of the throw
    // follows the layout as it now stands. A settled bet taken down is
    // behind the walk already.
    if (g.BetAmount.WithMoney() != withMoney) {
      const BetAmounts::BetBits moved = withMoney ^ g.BetAmount.WithMoney();
      if (!settled || !moved.IsOnly(step.bet)) FollowMoney(plan, moved, g.BetAmount.WithMoney(), i + 1, due);
      withMoney = g.BetAmount.WithMoney();
    }
    if (g.BetStatus.Changes() != changesSeen) {
      const bool onlyThisBet = settled && g.BetStatus.OnlyChangedSince(changesSeen, step.bet);
      changesSeen = g.BetStatus.Changes();
      if (!onlyThisBet && ChangedAhead(g, plan, i, atStart)) {
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
  if (!DiceOnTable(g.Die1, g.Die2)) return decided;
  const ThrowPlan& plan = PlanFor(g.Die1, g.Die2, g.PointBeforeRoll, g.BarNumber);
  // An empty layout: the walk below would take the same steps, but its
  // bookkeeping is about a twentieth of an empty table's roll.
  if (g.PhantomsDeferred && !g.BetAmount.WithMoney().Any()) {
    TakeOtherSteps(g, plan);
    return decided;
  }
  const int first = g.PhantomsDeferred ? WalkCountedWhole(g, plan, decided) : 0;
  WalkBookingPhantoms(g, plan, first, decided);
  return decided;
}
