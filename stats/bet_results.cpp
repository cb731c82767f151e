#include "stats/bet_results.h"

#include "engine/result_cells.h"

using namespace results;

namespace {

// A Lay or Buy stakes its vig too wherever the vig is paid: on a win, or
// on every decision when it is charged up front. A phantom Buy of 1 pays
// the rate on 1; a phantom Lay pays it on what the lay would win.
Currency VigOnStake(const Game& g, int kind, int betId, Currency net) {
  if (bet::IsLay(betId) && (net > 0 || g.ChargeAllLay)) {
    if (kind == kActual) return g.LayVigOnBet[betId - bet::kLayBase];
    const PayoffRecord& own = g.Payoff[betId];
    if (own.Per.raw == 0) return Currency{};
    return MulRatio(MulDiv(Currency(1), own.Win, own.Per), g.LayVigRate.ToDouble());
  }
  if (bet::IsBuy(betId) && (net > 0 || g.ChargeAllBuy))
    return kind == kActual ? g.BuyVigOnBet[betId - bet::kBuyBase] : g.BuyVigRate;
  return Currency{};
}

void ClearLastRoll(Cell& cell) { cell[kLastRollCount] = cell[kLastRollAmount] = Currency{}; }

// The marks live in the cells; the phantom ledger keeps a mirror of them.
void SetNumberMarks(Game& g, int number, Currency mark) {
  for (int id : {bet::DontCome(number), bet::DontComeOdds(number), bet::Come(number), bet::ComeOdds(number)}) {
    g.BetWagers[kPhantom][id][kMark] = mark;
    const uint32_t bit = uint32_t{1} << (id - kFirstNumberUnit);
    g.Phantoms.marks = mark != 0 ? g.Phantoms.marks | bit : g.Phantoms.marks & ~bit;
  }
}

}  // namespace

void BookBetResult(Game& g, int kind, int betId, Currency stake, Currency net) {
  if (kind == kPhantom && !PhantomStands(g, betId)) return;
  BookEntry(g, kind, betId, stake + VigOnStake(g, kind, betId, net), net);
}

void BookActualResult(Game& g, int betId, Currency stake, Currency net) {
  BookEntry(g, kActual, betId, stake + VigOnStake(g, kActual, betId, net), net);
}

void MoveResultMarks(Game& g) {
  for (int i = 0; i < g.BookedThisRollCount; ++i) {
    const int index = g.BookedThisRoll[i];
    const int kind = index / kListStride, betId = index % kListStride;
    const uint8_t tables = g.BookedListed[index];
    ClearLastRoll(g.BetWagers[kind][betId]);
    // Mostly one of the two, chosen without a branch.
    ClearLastRoll((tables & kInWins ? g.BetWins : g.BetLosses)[kind][betId]);
    if (tables == (kListed | kInWins | kInLosses)) ClearLastRoll(g.BetLosses[kind][betId]);
    g.BookedListed[index] = 0;
  }
  g.BookedThisRollCount = 0;

  const int total = g.DiceTotal;
  if (bet::IsPointNumber(total)) {
    // The units on the number were decided; the standing Come and Don't Come
    // units travel to it whenever a point was up, a fresh one stands behind.
    SetNumberMarks(g, total, g.PointBeforeRoll > 0 ? Currency(1) : Currency{});
  } else if (total == 7) {
    // Only the Come and Don't Come numbers and their odds ever carry a mark.
    for (int id = bet::kDontComeBase; id <= bet::kComeOddsBase + 5; ++id) g.BetWagers[kPhantom][id][kMark] = 0;
    g.Phantoms.marks = 0;
  }
}

void ClearBetResults(Game& g) {
  g.BetWagers = {};
  g.BetWins = {};
  g.BetLosses = {};
  g.BookedListed = {};
  g.BookedThisRollCount = 0;
  g.BetTrends = {};
}

void RelistLastRollCells(Game& g) {
  g.BookedListed = {};
  g.BookedThisRollCount = 0;
  for (int kind = kPhantom; kind <= kActual; ++kind)
    for (int betId = 1; betId < kCells; ++betId) {
      auto holds = [](const Cell& cell) { return cell[kLastRollCount] != 0 || cell[kLastRollAmount] != 0; };
      const uint8_t tables = (holds(g.BetWins[kind][betId]) ? kInWins : 0) |
                             (holds(g.BetLosses[kind][betId]) ? kInLosses : 0);
      if (tables != 0 || holds(g.BetWagers[kind][betId])) ListForNextRoll(g, kind, betId, tables);
    }
}

BetTotalsOfKind BetTotals(const Game& g, int kind) {
  BetTotalsOfKind t;
  for (int betId = 1; betId < kCells; ++betId)
    for (int m = kCount; m < kMeasures; ++m) {
      t.Wagers[m] += g.BetWagers[kind][betId][m];
      t.Wins[m] += g.BetWins[kind][betId][m];
      t.Losses[m] += g.BetLosses[kind][betId][m];
    }
  return t;
}

void FillTotalsCell(Game& g, int kind) {
  const BetTotalsOfKind t = BetTotals(g, kind);
  g.BetWagers[kind][0] = t.Wagers;
  g.BetWins[kind][0] = t.Wins;
  g.BetLosses[kind][0] = t.Losses;
}
