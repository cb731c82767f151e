#pragma once
// Booking one entry into the cells of the bet results (stats/bet_results.h
// books, clears and reads them). Inline, and the table's own: it runs for
// every working spot on every decision of every roll.

#include <array>
#include <cstdint>

#include "engine/game.h"

namespace results {
constexpr int kPhantom = 0;
constexpr int kActual = 1;

// Measures of a cell.
constexpr int kMark = 0;         // BetWagers, kind 0 only: a phantom unit stands on the number
constexpr int kCount = 1;        // number of entries
constexpr int kTotal = 2;        // total amount
constexpr int kHigh = 3;         // highest single amount
constexpr int kLow = 4;          // lowest single amount, 0 until the first entry
constexpr int kLast = 5;         // last amount
constexpr int kLastRollCount = 6;   // 1 when booked in the last roll
constexpr int kLastRollAmount = 7;  // amount booked in the last roll
constexpr int kMeasures = 8;

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
