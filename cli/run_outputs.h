#pragma once
// The files a strategy run may leave beside its report: the games log each
// game is added to, and the checks that every output can be written before
// the first roll.

#include <string>

#include "sim/batch.h"

// Adds every game of the batch, in game order, to the games log at `path`
// (made if it is not there). A file that is not a games log is left alone.
bool AppendBatchToLog(const std::string& path, const BatchResult& batch, std::string& error);

// Refuses, before a run, a games log that is there but cannot be added to.
bool CheckGamesLog(const std::string& path, std::string& error);

// Refuses, before a run, an output whose folder is not there or which is a
// folder itself: "--json out/r.json: the folder out does not exist".
bool CheckOutputPath(const std::string& option, const std::string& path, std::string& error);
