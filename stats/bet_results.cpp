#include "stats/bet_results.h"

#include <algorithm>

using namespace results;

namespace {

using Cell = std::array<Currency, kMeasures>;

constexpr int kCells = 101;  // BetIds 0..100 of one kind

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

void Book(Cell& cell, Currency amount) {
  cell[kCount] += Currency(1);
  cell[kTotal] += amount;
  if (amount > cell[kHigh]) cell[kHigh] = amount;
  if (cell[kLow] == 0 || amount < cell[kLow]) cell[kLow] = amount;
  cell[kLast] = amount;
  cell[kLastRollCount] = Currency(1);
  cell[kLastRollAmount] = amount;
}

// Which tables of a cell hold last-roll measures: clearing touches no more.
constexpr uint8_t kListed = 1, kInWins = 2, kInLosses = 4;

void ListForNextRoll(Game& g, int kind, int betId, uint8_t tables) {
  const int index = kind * kCells + betId;
  uint8_t& listed = g.BookedListed[index];
  if (listed == 0) g.BookedThisRoll[g.BookedThisRollCount++] = static_cast<int16_t>(index);
  listed |= kListed | tables;
}

void KeepTrend(Game& g, int betId, Currency net) {
  Game::BetTrend& trend = g.BetTrends[betId];
  if (trend.Count == Game::kTrendCells) {
    std::copy(trend.Net.begin() + 1, trend.Net.end(), trend.Net.begin());
    std::copy(trend.Roll.begin() + 1, trend.Roll.end(), trend.Roll.begin());
    --trend.Count;
  }
  trend.Net[trend.Count] = net;
  trend.Roll[trend.Count] = g.RollCounts[0];
  ++trend.Count;
}

void ClearLastRoll(Cell& cell) { cell[kLastRollCount] = cell[kLastRollAmount] = Currency{}; }

void SetNumberMarks(Game& g, int number, Currency mark) {
  for (int id : {bet::DontCome(number), bet::DontComeOdds(number), bet::Come(number), bet::ComeOdds(number)})
    g.BetWagers[kPhantom][id][kMark] = mark;
}

}  // namespace

bool PhantomStands(const Game& g, int betId) {
  if (betId < bet::kDontComeBase || betId > bet::kComeOddsBase + 5) return true;
  if (bet::IsComeNumber(betId) || bet::IsComeOdds(betId))
    if (g.AllowPutBets) return true;
  return g.BetWagers[kPhantom][betId][kMark] != 0;
}

void BookBetResult(Game& g, int kind, int betId, Currency stake, Currency net) {
  if (kind == kPhantom && !PhantomStands(g, betId)) return;
  BookEntry(g, kind, betId, stake + VigOnStake(g, kind, betId, net), net);
}

void BookEntry(Game& g, int kind, int betId, Currency stake, Currency net) {
  if (net == 0) return;  // a push decides nothing
  Book(g.BetWagers[kind][betId], stake);
  if (net > 0)
    Book(g.BetWins[kind][betId], net);
  else
    Book(g.BetLosses[kind][betId], -net);
  ListForNextRoll(g, kind, betId, net > 0 ? kInWins : kInLosses);
  if (kind == kActual && betId < static_cast<int>(g.BetTrends.size())) KeepTrend(g, betId, net);
}

void MoveResultMarks(Game& g) {
  for (int i = 0; i < g.BookedThisRollCount; ++i) {
    const int index = g.BookedThisRoll[i];
    const int kind = index / kCells, betId = index % kCells;
    ClearLastRoll(g.BetWagers[kind][betId]);
    if (g.BookedListed[index] & kInWins) ClearLastRoll(g.BetWins[kind][betId]);
    if (g.BookedListed[index] & kInLosses) ClearLastRoll(g.BetLosses[kind][betId]);
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
