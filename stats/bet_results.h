#pragma once
// Bet results: every decision of a bet is booked twice, once for the real
// bet (kind 1) and once for a phantom one-unit wager that stands on every
// working spot whether or not the player bet it (kind 0), so that a run
// measures all the bets against the same dice.

#include <array>

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
}  // namespace results

// Books one decision. A net of 0 is no decision. The stake takes the vig of
// a Lay or Buy where it is paid; a phantom Come or Don't Come number (and
// its odds) is booked only while a unit stands there.
void BookBetResult(Game& g, int kind, int betId, Currency stake, Currency net);

// The top of a roll: clears the last-roll measures, then moves the phantom
// marks by the last roll's DiceTotal and PointBeforeRoll.
void MoveResultMarks(Game& g);

// A new game: every table, mark and trend back to zero.
void ClearBetResults(Game& g);

// After the tables were filled from outside (a game file), lists the cells
// whose last-roll measures the next roll must clear.
void RelistLastRollCells(Game& g);

// The sums over bets 1..100 of one kind, measures 1..7 (measure 0 is left 0;
// the high, low and last measures are summed too, as the totals cell shows
// them).
struct BetTotalsOfKind {
  std::array<Currency, results::kMeasures> Wagers{}, Wins{}, Losses{};
};
BetTotalsOfKind BetTotals(const Game& g, int kind);

// Writes BetTotals into the totals cell, BetId 0, of the three tables.
void FillTotalsCell(Game& g, int kind);
