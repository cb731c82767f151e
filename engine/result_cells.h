#pragma once
// Booking one entry into the cells of the bet results. Inline: it runs for
// every working spot on every decision of every roll.

#include <cstdint>

#include "stats/bet_results.h"

namespace results {

using Cell = std::array<Currency, kMeasures>;
constexpr int kCells = 101;  // BetIds 0..100 of one kind
// A listed cell: kind x kListStride + BetId (a power of two: no division).
constexpr int kListStride = 128;

// Which tables of a listed cell hold last-roll measures: clearing touches
// no more than those.
constexpr uint8_t kListed = 1, kInWins = 2, kInLosses = 4;

inline void Book(Cell& cell, Currency amount) {
  cell[kCount] += Currency(1);
  cell[kTotal] += amount;
  if (amount > cell[kHigh]) cell[kHigh] = amount;
  if (cell[kLow] == 0 || amount < cell[kLow]) cell[kLow] = amount;
  cell[kLast] = amount;
  cell[kLastRollCount] = Currency(1);
  cell[kLastRollAmount] = amount;
}

inline void ListForNextRoll(Game& g, int kind, int betId, uint8_t tables) {
  const int index = kind * kListStride + betId;
  uint8_t& listed = g.BookedListed[index];
  if (listed == 0) g.BookedThisRoll[g.BookedThisRollCount++] = static_cast<int16_t>(index);
  listed |= kListed | tables;
}

// A phantom Come or Don't Come unit (or its odds) stands on its number only
// once one has travelled there; with Put bets one may be put on a Come
// number at any time. Every other spot always carries one.
inline bool PhantomStands(const Game& g, int betId) {
  if (betId < bet::kDontComeBase || betId > bet::kComeOddsBase + 5) return true;
  if (g.AllowPutBets && betId >= bet::kComeNumberBase) return true;
  return g.BetWagers[kPhantom][betId][kMark] != 0;
}

// The latest actual results of a bet, for the trends.
void KeepTrend(Game& g, int betId, Currency net);

// Books a decision whose stake already carries its vig; nothing for a push.
inline void BookEntry(Game& g, int kind, int betId, Currency stake, Currency net) {
  if (net == 0) return;
  Book(g.BetWagers[kind][betId], stake);
  // Chosen without a branch: wins and losses come in no order a predictor
  // could learn.
  const bool won = net > 0;
  Book((won ? g.BetWins : g.BetLosses)[kind][betId], won ? net : -net);
  ListForNextRoll(g, kind, betId, won ? kInWins : kInLosses);
  if (kind == kActual && betId < static_cast<int>(g.BetTrends.size())) KeepTrend(g, betId, net);
}

}  // namespace results
