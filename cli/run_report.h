#pragma once
// The report of a strategy run: one JSON document, or text for a person.

#include <ostream>
#include <string>

#include "cli/json_lines.h"
#include "sim/batch.h"

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

// The whole report, or with `summaryOnly` the run line and the batch summary.
void WriteRunReportText(std::ostream& out, const RunDescription& run, const BatchResult& batch, bool summaryOnly);

// "-$0.57", "$1,649.45": a figure of the batch to the cent.
Currency ToCents(double value);
// "0.1", "10,000": simulated hours as the command line prints them.
std::string HoursText(double hours);
