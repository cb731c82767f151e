#pragma once
// What the bet results screen and its report show for a selection of bets:
// the cells of each measure added over the bets, in wagers, wins, losses,
// net and net %, beside the run's scale and the expected value.

#include <string>
#include <vector>

#include "engine/game.h"

struct BetResultRow {
  std::string Label;  // "Total #", "Total $", ... "Expctd value $"
  bool Money = true;  // an amount; false for the counts
  bool NetOnly = false;  // "Expctd value $": only Net and Net % carry figures
  double Wagers = 0, Wins = 0, Losses = 0, Net = 0;
  double NetPercent = 0;  // 100 x net over wagers, 0 with no wagers
};

struct BetResultsView {
  std::vector<BetResultRow> Rows;  // in screen order
  Currency CurrentWagered;         // "Current $ wagered": the selected bets now
  Currency WageredLastRoll;        // " $ wagered on last roll": as the dice went out
  int64_t TotalRolls = 0;
  Currency RollsPerHour;
  double SimHours = 0;
};

// The combined figures of `betIds` (1..83) in `kind` (0 phantom, 1 actual).
// The expected value is each bet's total wagered times its expected value
// per unit and decision.
BetResultsView CombinedBetResults(const Game& g, const std::vector<int>& betIds, int kind);

// The cells as text: "#,#" counts, money in the one money format, the hourly
// counts with two decimals, net % as a percent; empty for a cell not shown.
std::vector<std::string> RowCells(const BetResultRow& row);

// The printed report, one line a row. With no bet selected it shows "You
// need to select one or more bets to print." under "Print Bet Results" and
// returns nothing.
std::vector<std::string> BetResultsReport(Game& g, const std::vector<int>& betIds, int kind);

// Every bet 1..83 with actual decisions, for the run report.
struct ActualBetLine {
  int BetId = 0;
  std::string Name;
  int64_t Decided = 0, Won = 0, Lost = 0;
  Currency Wagered, AmountWon, AmountLost, Net;
  double ExpectedValue = 0;  // total wagered times the expected value per unit
};
std::vector<ActualBetLine> ActualBetLines(const Game& g);
