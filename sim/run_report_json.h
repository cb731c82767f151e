#pragma once
// The report of a strategy run as one JSON document. Every front end that
// runs a batch reports through this, so the command line's `run --json` and
// a run from Python are the same bytes.

#include <cstdint>
#include <string>

#include "sim/batch.h"
#include "sim/money_json.h"

constexpr int kRunReportSchema = 1;  // goes up when a key changes meaning or goes

// The run as it was played: the generator actually used and the threads
// stand in the options, beside every path given.
struct RunDescription {
  RunOptions Options;
  std::string BankrollCsv, GamesLog, JsonFile;
};

// Everything that repeats exactly from the same command and seed; the time
// taken is added only when `withTiming`.
Json RunReportJson(const RunDescription& run, const BatchResult& batch, bool withTiming);
// The summary over games, as both a run and a merge of runs report it.
Json BatchSummaryJson(const BatchSummary& summary);

// "-$0.57", "$1,649.45": a figure of the batch to the cent.
Currency ToCents(double value);
Currency CentsOf(Currency amount);
// The net as a share of the amount decided, never "-0".
double NetPercent(Currency net, Currency wagered);
double RollsPerSecond(int64_t rolls, double seconds);
