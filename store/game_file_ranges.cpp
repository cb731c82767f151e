// A game file is outside input: whatever its bytes, the values that index a
// table or drive a loop are brought back into range after reading.

#include <algorithm>
#include <cmath>

#include "config/settings_table.h"
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

// Money beyond any table's (the bank limit is under ten million), ratios up
// to 1,000 and chips up to $100,000, so that sums and products of amounts
// stay well inside 64 bits. The bankroll alone may go further.
constexpr Currency kMostMoney = 10'000'000;
constexpr Currency kMostBankroll = 1'000'000'000;
constexpr Currency kMostRatio = 1'000;
constexpr Currency kMostChip = 100'000;
constexpr Currency kLeastUnit = Currency::FromRaw(100);  // a cent

void Bound(Currency& v, Currency lo, Currency hi) { v = v < lo ? lo : v > hi ? hi : v; }
void Bound(Currency& v) { Bound(v, -kMostMoney, kMostMoney); }

void KeepMoneyInRange(Game& g) {
  Game::Amounts amounts = g.BetAmount.All();
  for (auto* table : {&amounts, &g.EditAtRollStart(), &g.EditAfterRoll()}) {
    Currency bankroll = (*table)[bet::kBankroll];
    Bound(bankroll, -kMostBankroll, kMostBankroll);
    for (Currency& v : *table) Bound(v);
    (*table)[bet::kBankroll] = bankroll;
  }
  Game::CommittedTable committed = g.CommittedAmounts();
  for (Currency& v : committed) Bound(v);
  g.SetAllCommitted(committed);
  for (Currency& v : g.BuyVigOnBet) Bound(v);
  for (Currency& v : g.LayVigOnBet) Bound(v);
  for (Currency* v : {&g.HighBankroll, &g.LowBankroll}) Bound(*v, -kMostBankroll, kMostBankroll);
  // Results add up over a game of 100,000,000 rolls: sums of a billion
  // dollars a roll still stay inside 64 bits.
  for (auto* table : {&g.BetWagers, &g.BetWins, &g.BetLosses})
    for (auto& kind : *table)
      for (auto& cells : kind)
        for (Currency& v : cells) Bound(v, -kMostBankroll * 100'000, kMostBankroll * 100'000);
  Bound(g.TotalOnTable);
  Bound(g.BankrollSum, -kMostBankroll * 100'000, kMostBankroll * 100'000);
  // Chips are the rounding unit of every bet, and a chip times a payoff's
  // Per divides: neither may come to nothing.
  for (int id = bet::kFirstChip; id < bet::kFirstChip + 5; ++id)
    Bound(amounts[static_cast<size_t>(id)], kLeastUnit, kMostChip);
  g.BetAmount.Assign(amounts);
  auto payoffsInRange = [](auto& rows) {
    for (PayoffRecord& p : rows) {  // no payoff above 1,000 for 1
      Bound(p.Per, kLeastUnit, kMostRatio);
      const Currency most = Currency::FromRaw(p.Per.raw * kMostRatio.raw / Currency::kScale);
      Bound(p.Win, -most, most);
    }
  };
  payoffsInRange(g.Payoff.Edit());
  payoffsInRange(g.FieldPayoff.Edit());
}

// Counters a roll adds to: a billion, far more than any game rolls.
constexpr int32_t kMostCount = 1'000'000'000;

void KeepCountersInRange(Game& g) {
  auto counts = [](auto& table, int32_t least) {
    for (int32_t& n : table) n = std::clamp(n, least, kMostCount);
  };
  counts(g.HandStats, 0);
  counts(g.RollCounts, 0);
  counts(g.RollsSinceLast, 0);
  counts(g.PreviousRollCounts, 0);
  counts(g.PreviousRollsSinceLast, 0);
  for (auto& row : g.BetStreak) counts(row, -kMostCount);
  g.RollCountAfterPass = std::clamp(g.RollCountAfterPass, 0, kMostCount);
}

// The graph's window and the trends' cells index tables of their own.
void KeepGraphInRange(Game& g) {
  constexpr int32_t kWindow = 525;
  g.GraphCount = std::clamp(g.GraphCount, 0, kWindow);
  g.MovingAverageRolls = std::clamp(g.MovingAverageRolls, 0, kWindow);
  g.AutoAdjustType = std::clamp(g.AutoAdjustType, 0, 2);
  for (int32_t& line : g.RefLinePosition) line = std::clamp(line, 0, kWindow);
  const Currency most = kMostBankroll;
  for (Currency& v : g.GraphBankroll) Bound(v, -most, most);
  for (Currency& v : g.GraphAverage) Bound(v, -most, most);
  for (Currency* v : {&g.GraphHigh, &g.GraphLow, &g.GraphTop}) Bound(*v, -most, most);
  Bound(g.GraphScale, kLeastUnit, most);  // money per row: it divides
  Bound(g.ManualScale, kLeastUnit, most);
  for (BetTrend& t : g.BetTrends) {
    BetTrend::Nets nets = t.NetsOldestFirst();
    for (Currency& v : nets) Bound(v, -most, most);
    t.Restore(nets, t.RollsOldestFirst(), t.Count());
  }
}

}  // namespace

void KeepStateInRange(Game& g) {
  // The settings keep to the ranges every way of changing them keeps to.
  KeepSettingsInRange(g);
  if (g.BarNumber != 2) g.BarNumber = 12;
  KeepGraphInRange(g);
  g.Die1 = std::clamp(g.Die1, 1, 6);
  g.Die2 = std::clamp(g.Die2, 1, 6);
  g.DiceTotal = g.Die1 + g.Die2;
  g.Point = PointOrComeOut(g.Point);
  g.PointBeforeRoll = PointOrComeOut(g.PointBeforeRoll);
  g.PointTwoRollsAgo = PointOrComeOut(g.PointTwoRollsAgo);
  g.DiceFileMode = std::clamp(g.DiceFileMode, 0, 2);
  KeepCountersInRange(g);
  for (int id = 0; id < g.BetStatus.size(); ++id) g.BetStatus.Set(id, std::clamp(g.BetStatus[id], -1, 2));
  for (int32_t& stack : g.TrayStack) stack = std::clamp(stack, 0, bet::kSlots - 1);
  g.TrayStack[0] = 0;
  g.LastAnswer = static_cast<Answer>(std::clamp(static_cast<int32_t>(g.LastAnswer), 1, 7));

  KeepMoneyInRange(g);
  for (auto& row : g.Prob.cell)
    for (ProbCell& cell : row) cell.value = std::clamp(cell.value, 0, kProbWhole);

  DiceFileState& f = g.DiceFile;
  for (int32_t* n : {&f.NextRollNum, &f.LastRollNum, &f.SelectAnchor, &f.TopRollNum}) *n = std::clamp(*n, 0, kMostCount);
  KeepGeneratorsInRange(g.Rng);
}
