#pragma once
// The game's figures on one screen, and the recent trend of each bet made.

#include <string>
#include <vector>

#include "engine/game.h"

// One line of the summary: a group heading has an empty value; Share is the
// net's share of the amount decided, on the net line only.
struct SummaryRow {
  std::string Label, Value, Share;
};

// Fills the totals cell of the actual results, then every figure of the
// summary in screen order, formatted. The report prints the same under
// "Dicemill Summary".
std::vector<SummaryRow> ShowSummary(Game& g);

// A bet's row in the trends view: its latest results oldest first, "|"
// between them, and the rolls they span.
struct BetTrendRow {
  int BetId = 0;
  std::string Name;
  std::string Results;  // "5|-5|-10"
  std::string Span;     // "12 rolls"
};
// Every bet with a result, in BetId order.
std::vector<BetTrendRow> BetTrendRows(const Game& g);

constexpr const char* kBetTrendsHeading =
    "Recent Won / Lost trend for bets actually made (losses shown as negative numbers).";
