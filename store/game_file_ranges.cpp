// A game file is outside input: whatever its bytes, the values that index a
// table or drive a loop are brought back into range after reading.

#include <algorithm>
#include <cmath>

#include "engine/game.h"
#include "store/game_file_sections.h"

namespace {

bool IsPoint(int32_t n) { return n == 4 || n == 5 || n == 6 || n == 8 || n == 9 || n == 10; }
int32_t PointOrComeOut(int32_t n) { return IsPoint(n) ? n : 0; }

// The moduli of the ran1 and ran2 congruential steps: a state outside them
// would overflow the next step.
void KeepGeneratorsInRange(Generators& rng) {
  constexpr int32_t kMtWords = 624;
  if (rng.mt.mti < 0 || rng.mt.mti > kMtWords + 1) rng.mt.mti = kMtWords + 1;
  constexpr int32_t kCokusWords = 624;
  CokusMt& c = rng.cokus;
  if (c.left < -1 || c.left > kCokusWords || c.next < 0 || c.next > kCokusWords || c.next + c.left > kCokusWords)
    c.left = c.next = 0;  // the next draw reloads the state

  auto into = [](int32_t& v, int32_t modulus) { v = ((v % modulus) + modulus) % modulus; };
  Ran1State& r1 = rng.ran1;
  into(r1.ix1, 259200);
  into(r1.ix2, 134456);
  into(r1.ix3, 243000);
  for (float& entry : r1.r)
    if (!(entry >= 0.0f && entry < 1.0f)) entry = 0.0f;
  Ran2State& r2 = rng.ran2;
  into(r2.idum, 714025);
  into(r2.iy, 714025);
  for (int32_t& entry : r2.ir) into(entry, 714025);
}

}  // namespace

void KeepStateInRange(Game& g) {
  g.RngChoice = std::clamp(g.RngChoice, 0, kRngCount - 1);
  g.Die1 = std::clamp(g.Die1, 1, 6);
  g.Die2 = std::clamp(g.Die2, 1, 6);
  g.DiceTotal = g.Die1 + g.Die2;
  g.Point = PointOrComeOut(g.Point);
  g.PointBeforeRoll = PointOrComeOut(g.PointBeforeRoll);
  g.PointTwoRollsAgo = PointOrComeOut(g.PointTwoRollsAgo);
  if (g.BarNumber != 2) g.BarNumber = 12;
  g.DiceFileMode = std::clamp(g.DiceFileMode, 0, 2);
  g.OddsCalcMethod = std::clamp(g.OddsCalcMethod, 0, 5);
  g.RoundLayVig = std::clamp(g.RoundLayVig, 0, 2);
  g.RoundBuyVig = std::clamp(g.RoundBuyVig, 0, 2);
  g.BankrollInitType = std::clamp(g.BankrollInitType, 0, 3);
  g.WonBetAction = std::clamp(g.WonBetAction, 0, 7);
  g.HandleLosingBets = std::clamp(g.HandleLosingBets, 0, 7);
  g.AutoAdjustMode = std::clamp(g.AutoAdjustMode, 0, 2);
  for (int32_t* bias : {&g.LayBias, &g.PlaceBias, &g.DoBias, &g.DontBias}) *bias = std::clamp(*bias, 0, 2);
  for (int32_t& op : g.ModifyOperator) op = std::clamp(op, 0, 3);
  for (int32_t& units : g.ModifyUnits) units = std::clamp(units, -1, 6);
  g.AutoRollDelay = std::max(g.AutoRollDelay, 0);
  g.ProbDisplayMode = std::clamp(g.ProbDisplayMode, 0, 3);
  if (g.ProbRollsOutOf < 1) g.ProbRollsOutOf = 36;
  for (int32_t& status : g.BetStatus) status = std::clamp(status, -1, 2);
  for (int32_t& status : g.WorkOnComeOut) status = std::clamp(status, 0, 1);
  g.ClickTool = std::clamp(g.ClickTool, 1, 91);
  for (int32_t& stack : g.TrayStack) stack = std::clamp(stack, 0, bet::kSlots - 1);
  g.TrayStack[0] = 0;
  g.LastAnswer = std::clamp(g.LastAnswer, 1, 7);

  // Chips are the rounding unit of every bet, and a payoff's Per divides.
  for (int id = bet::kFirstChip; id < bet::kFirstChip + 5; ++id)
    if (g.BetAmount[static_cast<size_t>(id)] <= 0) g.BetAmount[static_cast<size_t>(id)] = 1;
  auto perAboveZero = [](auto& rows) {
    for (PayoffRecord& p : rows)
      if (p.Per <= 0) p.Per = 1;
  };
  perAboveZero(g.Payoff);
  perAboveZero(g.FieldPayoff);
  for (auto& row : g.Prob.cell)
    for (ProbCell& cell : row) cell.value = std::clamp(cell.value, 0, kProbWhole);

  DiceFileState& f = g.DiceFile;
  for (int32_t* n : {&f.NextRollNum, &f.LastRollNum, &f.SelectAnchor, &f.TopRollNum}) *n = std::max(*n, 0);
  KeepGeneratorsInRange(g.Rng);
}
