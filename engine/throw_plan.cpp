#include "engine/throw_plan.h"

#include <memory>
#include <stdexcept>
#include <string>

#include "engine/catalogue.h"

namespace {

constexpr Outcome kWin = Outcome::Win, kLoss = Outcome::Loss;
constexpr Outcome kOddsWin = Outcome::OddsWin, kOddsLoss = Outcome::OddsLoss;

// Writes the steps of one throw, with the Hop winners remembered so that the
// rest of the Hops lose at the end.
class PlanWriter {
 public:
  PlanWriter(ThrowPlan& plan, int die1, int die2, int pointBefore, int bar)
      : plan_(plan), die1_(die1), die2_(die2), total_(die1 + die2), pointBefore_(pointBefore), bar_(bar) {
    plan_.stepOfBet.fill(ThrowPlan::kNoStep);
  }

  void Write() {
    if (total_ == pointBefore_) {  // the point is made
      Add(StepKind::LineWin);
      Settle(kWin, bet::kPassLine);
      Settle(kOddsWin, bet::kPassOdds);
      Settle(kLoss, bet::kDontPass);
      Settle(kOddsLoss, bet::kDontPassOdds);
    }
    Total();
    EveryRoll();
  }

 private:
  void Add(StepKind kind, Outcome outcome = kWin, int id = 0, int to = 0) {
    const ThrowStep step{kind, outcome, static_cast<uint8_t>(id), static_cast<uint8_t>(to)};
    if (kind == StepKind::Settle) {
      if (plan_.settled.Has(id)) throw std::logic_error("a throw settles bet " + std::to_string(id) + " twice");
      plan_.settled.Add(id);
      plan_.stepOfBet[static_cast<size_t>(id)] = static_cast<uint8_t>(plan_.count);
    } else {
      plan_.otherSteps.Add(plan_.count);
    }
    plan_.steps[plan_.count++] = step;
  }
  void Settle(Outcome outcome, int id) {
    if (IsWin(outcome) && bet::IsHop(id)) hopWon_[id - bet::kFirstHop] = true;
    Add(StepKind::Settle, outcome, id);
  }
  void Range(Outcome outcome, int first, int last) {
    for (int id = first; id <= last; ++id) Settle(outcome, id);
  }
  bool Has(int face) const { return die1_ == face || die2_ == face; }
  bool Doubles() const { return die1_ == die2_; }

  // The bets of the total, in the order of settling.
  void Total() {
    const int total = total_;
    const bool comeOut = pointBefore_ == 0;
    switch (total) {
      case 2:
      case 12: {
        // Don't Pass and Don't Come win on the crap that is not barred.
        const bool dontWins = bar_ == (total == 2 ? 12 : 2);
        Settle(kLoss, bet::kCome);
        if (comeOut) {
          Settle(kLoss, bet::kPassLine);
          if (dontWins) {
            Add(StepKind::LineLoss);
            Settle(kWin, bet::kDontPass);
          } else {
            Add(StepKind::LineBarred);
          }
        }
        Settle(kWin, total == 2 ? bet::kTwo : bet::kTwelve);
        for (int id : {bet::kCraps, bet::kCandE, bet::kHorn, bet::kWorld}) Settle(kWin, id);
        if (dontWins) Settle(kWin, bet::kDontCome);
        break;
      }
      case 3:
        Settle(kLoss, bet::kCome);
        if (comeOut) {
          Add(StepKind::LineLoss);
          Settle(kLoss, bet::kPassLine);
          Settle(kWin, bet::kDontPass);
        }
        for (int id : {bet::kThree, bet::kCraps, bet::kCandE, bet::kDontCome, bet::kHorn, bet::kWorld})
          Settle(kWin, id);
        break;
      case 7:
        Add(comeOut ? StepKind::LineWin : StepKind::LineLoss);
        Settle(kLoss, bet::kDontCome);
        Settle(kLoss, bet::kBig6);
        Settle(kLoss, bet::kBig8);
        Range(kLoss, bet::kHard4, bet::kHard10);
        Range(kLoss, bet::kPlaceBase, bet::kBuyBase + 5);
        for (int id = bet::kComeNumberBase; id < bet::kComeNumberBase + 6; ++id) {
          Settle(kLoss, id);
          Settle(kOddsLoss, bet::OddsOf(id));
        }
        if (comeOut) {
          Settle(kLoss, bet::kDontPass);
          Settle(kWin, bet::kPassLine);
        } else {
          Settle(kLoss, bet::kPassLine);
          Settle(kOddsLoss, bet::kPassOdds);
          Settle(kWin, bet::kDontPass);
          Settle(kOddsWin, bet::kDontPassOdds);
        }
        Range(kWin, bet::kLayBase, bet::kLayBase + 5);
        for (int id = bet::kDontComeBase; id < bet::kDontComeBase + 6; ++id) {
          Settle(kWin, id);
          Settle(kOddsWin, bet::OddsOf(id));
        }
        Settle(kWin, bet::kCome);
        Settle(kWin, bet::kSeven);
        Settle(kWin, bet::kWorld);
        if (Has(1)) Settle(kWin, bet::HopFor(1, 6));
        if (Has(2)) Settle(kWin, bet::HopFor(2, 5));
        if (Has(3)) Settle(kWin, bet::HopFor(3, 4));
        break;
      case 11:
        Settle(kLoss, bet::kDontCome);
        if (comeOut) {
          Add(StepKind::LineWin);
          Settle(kWin, bet::kPassLine);
          Settle(kLoss, bet::kDontPass);
        }
        for (int id : {bet::kEleven, bet::kCandE, bet::kCome, bet::kHorn, bet::kWorld}) Settle(kWin, id);
        break;
      default: {  // 4, 5, 6, 8, 9, 10
        Settle(kLoss, bet::Lay(total));
        Settle(kLoss, bet::DontCome(total));
        Settle(kOddsLoss, bet::DontComeOdds(total));
        Settle(kWin, bet::Come(total));
        Settle(kOddsWin, bet::ComeOdds(total));
        Settle(kWin, bet::Place(total));
        Settle(kWin, bet::Buy(total));
        if (total == 6) Settle(kWin, bet::kBig6);
        if (total == 8) Settle(kWin, bet::kBig8);
        if (total % 2 == 0) {
          const int hard = bet::kHard4 + (total - 4) / 2;
          if (Doubles()) {
            Settle(kWin, hard);
            Settle(kWin, bet::HopFor(die1_, die2_));
          } else {
            Settle(kLoss, hard);
          }
        }
        // The easy Hops of the total, in the order of their lower face.
        if (!Doubles()) {
          for (int low = 1; low <= 6; ++low) {
            const int high = total - low;
            if (high <= low || high > 6 || !Has(low)) continue;
            Settle(kWin, bet::HopFor(low, high));
          }
        }
        Add(StepKind::MoveBet, kWin, bet::kDontCome, bet::DontCome(total));
        Add(StepKind::MoveBet, kWin, bet::kCome, bet::Come(total));
        break;
      }
    }
  }

  // What every roll settles, whatever the total.
  void EveryRoll() {
    const int total = total_;
    Settle(kWin, bet::kField);
    if (total != 2) Settle(kLoss, bet::kTwo);
    if (total != 3) Settle(kLoss, bet::kThree);
    if (total != 7) Settle(kLoss, bet::kSeven);
    if (total != 11) Settle(kLoss, bet::kEleven);
    if (total != 12) Settle(kLoss, bet::kTwelve);
    if (total >= 4 && total <= 11) Settle(kLoss, bet::kCraps);
    if (total >= 4 && total <= 10) {
      Settle(kLoss, bet::kCandE);
      Settle(kLoss, bet::kHorn);
      if (total != 7) Settle(kLoss, bet::kWorld);
    }
    Settle(total < 8 ? kLoss : kWin, bet::kOver7);
    Settle(total > 6 ? kLoss : kWin, bet::kUnder7);
    for (int hop = bet::kFirstHop; hop <= bet::kLastHop; ++hop)
      if (!hopWon_[hop - bet::kFirstHop]) Settle(kLoss, hop);
  }

  ThrowPlan& plan_;
  int die1_, die2_, total_, pointBefore_, bar_;
  std::array<bool, 17> hopWon_{};
};

// The barred numbers a plan is written for: 12, 2, and any other value,
// which bars both.
constexpr std::array<int, 3> kBars = {12, 2, 0};
int BarIndex(int barNumber) { return barNumber == 12 ? 0 : barNumber == 2 ? 1 : 2; }

// [bar][point state][dice pair]
using PlanTable = std::array<std::array<std::array<ThrowPlan, 36>, kPointStates>, kBars.size()>;

// Out of line: inlined, its setting up would weigh on every call of PlanFor.
[[gnu::cold, gnu::noinline]] std::unique_ptr<const PlanTable> MakePlans() {
  auto plans = std::make_unique<PlanTable>();
  for (size_t bar = 0; bar < kBars.size(); ++bar)
    for (int state = 0; state < kPointStates; ++state)
      for (int die1 = 1; die1 <= 6; ++die1)
        for (int die2 = 1; die2 <= 6; ++die2)
          PlanWriter((*plans)[bar][state][PairIndex(die1, die2)], die1, die2, PointOfState(state), kBars[bar])
              .Write();
  return plans;
}

}  // namespace

const ThrowPlan& PlanFor(int die1, int die2, int pointBefore, int barNumber) {
  // Built once, read-only afterwards: every game on every thread shares it.
  static const std::unique_ptr<const PlanTable> plans = MakePlans();
  return (*plans)[BarIndex(barNumber)][PointState(pointBefore)][PairIndex(die1, die2)];
}

void PrefetchPlan(int die1, int die2, int pointBefore, int barNumber) {
  if (!DiceOnTable(die1, die2)) return;
  const ThrowPlan& plan = PlanFor(die1, die2, pointBefore, barNumber);
  __builtin_prefetch(&plan.settled);
  __builtin_prefetch(&plan.stepOfBet[0]);
  __builtin_prefetch(&plan.stepOfBet[64]);
  __builtin_prefetch(&plan.steps[0]);
}
