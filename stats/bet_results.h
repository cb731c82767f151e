#pragma once
// Bet results: every decision of a bet is booked twice, once for the real
// bet (kind 1) and once for a phantom one-unit wager that stands on every
// working spot whether or not the player bet it (kind 0), so that a run
// measures all the bets against the same dice.

#include <array>

#include "engine/game.h"
#include "engine/result_cells.h"

// Books one decision. A net of 0 is no decision. The stake takes the vig of
// a Lay or Buy where it is paid; a phantom Come or Don't Come number (and
// its odds) is booked only while a unit stands there.
void BookBetResult(Game& g, int kind, int betId, Currency stake, Currency net);
// BookBetResult of a real bet: every decision of a run comes here.
void BookActualResult(Game& g, int betId, Currency stake, Currency net);

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
