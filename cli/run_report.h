#pragma once
// The report of a strategy run as text for a person; the JSON document is
// sim/run_report_json.h.

#include <ostream>
#include <string>

#include "sim/run_report_json.h"

// The whole report, or with `summaryOnly` the run line and the batch summary.
void WriteRunReportText(std::ostream& out, const RunDescription& run, const BatchResult& batch, bool summaryOnly);

// "0.1", "10,000": simulated hours as the command line prints them.
std::string HoursText(double hours);
