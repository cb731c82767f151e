#pragma once
// The files a strategy run may leave beside its report: the bankroll of
// every roll as CSV, and each game added to a games log.

#include <string>

#include "sim/batch.h"

// "game,seed,roll,bankroll", then one row per roll of each game in game
// order, roll 0 being the starting bankroll. Written whole through a
// temporary file. False, with `error` set, when it cannot be written.
std::string BankrollCsv(const BatchResult& batch);
bool WriteBankrollCsv(const std::string& path, const BatchResult& batch, std::string& error);

// Adds every game of the batch, in game order, to the games log at `path`
// (made if it is not there). A file that is not a games log is left alone.
bool AppendBatchToLog(const std::string& path, const BatchResult& batch, std::string& error);

// Refuses, before a run, a games log that is there but cannot be added to.
bool CheckGamesLog(const std::string& path, std::string& error);
