#pragma once
// The report of a strategy run: one JSON document, or text for a person.

#include <ostream>

#include "cli/json_lines.h"
#include "sim/batch.h"

// Everything that repeats exactly from the same command and seed; the time
// taken is added only when `withTiming`.
Json RunReportJson(const RunOptions& options, const BatchResult& batch, bool withTiming);

void WriteRunReportText(std::ostream& out, const RunOptions& options, const BatchResult& batch);
