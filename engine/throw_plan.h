#pragma once
// The plan of one throw: every decision and line count the dice make, in the
// order they are settled. A throw's decisions depend only on the dice, the
// point as they went out and the barred number, so the plans are worked out
// once; the settling walks one of them, and the statistics read the same plan
// for the phantom wagers of every throw they count.

#include <array>
#include <cstdint>

#include "engine/outcome.h"
#include "engine/slot_bits.h"

enum class StepKind : uint8_t { Settle, LineWin, LineLoss, LineBarred, MoveBet };

struct ThrowStep {
  StepKind kind = StepKind::Settle;
  Outcome outcome = Outcome::Win;
  uint8_t bet = 0;  // the bet settled, or the box bet that moves
  uint8_t to = 0;   // where a moving box bet goes
};

struct ThrowPlan {
  static constexpr int kMostSteps = 96;
  static constexpr uint8_t kNoStep = 0xff;
  std::array<ThrowStep, kMostSteps> steps{};
  int count = 0;
  // Where each bet settles (kNoStep: nowhere in this throw); a bet settles
  // at most once a throw. With the steps that are not settlements, they let
  // a throw take just the steps of the bets with money.
  std::array<uint8_t, 128> stepOfBet;
  SlotBits<2> settled;     // bets
  // The steps that are not settlements (line counts, box bets moving), all
  // that a throw with no money on the layout takes.
  SlotBits<2> otherSteps;
};

// The point as a plan index: 0 the come-out, 1..6 the points 4..10.
constexpr int kPointStates = 7;
constexpr int PointState(int point) { return point == 0 ? 0 : (point < 7 ? point - 3 : point - 4); }
constexpr int PointOfState(int state) { return state == 0 ? 0 : (state < 4 ? state + 3 : state + 4); }
// The dice as a plan index 0..35.
constexpr int PairIndex(int die1, int die2) { return (die1 - 1) * 6 + die2 - 1; }

// Whether both dice lie on the table (1..6): a Dice Roll File may give others.
constexpr bool DiceOnTable(int die1, int die2) { return die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6; }
// The plan of die1, die2 (1..6) thrown with pointBefore (0 or a point),
// with Don't bets barred on barNumber (2 or 12; any other value bars both).
const ThrowPlan& PlanFor(int die1, int die2, int pointBefore, int barNumber);
// Asks the memory for the lines of PlanFor's plan that a throw reads first;
// dice off the table ask for nothing.
void PrefetchPlan(int die1, int die2, int pointBefore, int barNumber);
