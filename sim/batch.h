#pragma once
// A batch of independent games on several threads. Game i always gets seed
// Seed + FirstGame + i and its own table, so the results do not depend on
// the threads, nor on how a large batch is split into smaller ones.

#include <vector>

#include "sim/game_run.h"

struct BatchResult {
  std::vector<GameResult> Games;  // in game order; a game never started is left out
  double Seconds = 0;
  bool Interrupted = false;       // a stop request ended the batch early
};

// The threads a batch plays on: as asked (0: every core), no more than games.
int BatchThreads(const RunOptions& options);

// Runs options.Games games on options.Threads threads (0: every core).
// A set-up failure of any game stops the others and is thrown again here.
BatchResult RunBatch(const RunOptions& options, const Script& script, RunControl& control);

// What the batch says over all its games.
struct BatchSummary {
  int Games = 0;
  int64_t Rolls = 0, Hands = 0, BetsWon = 0, BetsLost = 0;
  Currency AmountWagered, AmountWon, AmountLost;
  double MeanNet = 0, NetStandardError = 0;
  double NetP10 = 0, NetP50 = 0, NetP90 = 0;
  double RiskOfRuin = 0;  // share of games ruined
};

BatchSummary Summarize(const std::vector<GameResult>& games);

// The p-th quantile (0..1) of sorted values, interpolated between the two
// nearest ranks; 0 for no values.
double Quantile(const std::vector<double>& sorted, double p);
