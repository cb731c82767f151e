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
  int64_t any = 0;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) any |= g.BetAmount[id].raw;
  return any != 0;
}

void TakeOtherSteps(Game& g, const ThrowPlan& plan) {
  for (int i = 0; i < plan.otherCount; ++i) {
    const ThrowStep& step = plan.others[i];
    switch (step.kind) {
      case StepKind::LineWin: LineWin(g); break;
      case StepKind::LineLoss: LineLoss(g); break;
      case StepKind::LineBarred: LineBarred(g); break;
      case StepKind::MoveBet: MoveBet(g, step.bet, step.to); break;
      case StepKind::Settle: break;
    }
  }
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
  const WorkingSet atStart = g.BetStatus.Working();
  uint32_t changesSeen = g.BetStatus.Changes();
  for (int i = 0; i < plan.count; ++i) {
    const ThrowStep& step = plan.steps[i];
    switch (step.kind) {
      case StepKind::Settle: {
        const int id = step.bet;
        // Deferred, an empty spot has nothing to settle: its phantom unit is
        // counted with the throw.
        if (g.PhantomsDeferred && g.BetAmount[id] == 0) continue;
        const bool real = g.BetAmount[id] > 0 && g.BetStatus[id] >= status::kWorking;
        if (g.PhantomsDeferred)
          SettleMoneyBet(g, step.outcome, id);
        else
          SettleBet(g, step.outcome, id);
        if (real && g.NetPayoff > 0) decided.anyWon = true;
        if (real && g.NetPayoff < 0) decided.anyLost = true;
        break;
      }
      case StepKind::LineWin: LineWin(g); break;
      case StepKind::LineLoss: LineLoss(g); break;
      case StepKind::LineBarred: LineBarred(g); break;
      case StepKind::MoveBet: MoveBet(g, step.bet, step.to); break;
    }
    if (g.PhantomsDeferred && g.BetStatus.Changes() != changesSeen) {
      changesSeen = g.BetStatus.Changes();
      if (ChangedAhead(g, plan, i, atStart)) BookPhantomsSoFar(g, plan, i, atStart);
    }
  }
  return decided;
}
