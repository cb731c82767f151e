#pragma once
// One game of a strategy run: a fresh table, the script and the dice source,
// rolled in Hyper-Drive until a stop.

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

#include "engine/money.h"
#include "script/script.h"
#include "sim/run_options.h"
#include "stats/bet_results_view.h"
#include "store/games_log_file.h"

struct GameResult {
  int64_t Seed = 0;
  std::string StopReason;
  int64_t Rolls = 0;
  int64_t Hands = 0;  // hands completed: seven-outs
  double SimHours = 0;  // the rolls at the table's simulated roll rate
  Currency BankrollStart, BankrollEnd, BankrollHigh, BankrollLow, BankrollAverage;
  Currency Net;       // the end against the money brought to the table (ATM included)
  int64_t BetsWon = 0, BetsLost = 0;
  Currency AmountWagered, AmountWon, AmountLost;  // stakes include the vig paid
  std::vector<ActualBetLine> Bets;  // every bet that was decided, in BetId order
  bool Ruined = false;  // the bankroll fell to zero or below, or the max loss limit stopped it
  double Seconds = 0;
  GameLogRecord LogRecord{};            // the game as the games log keeps it
  std::vector<Currency> BankrollSeries;  // with KeepBankrollSeries: the start, then each roll
};

// Shared by the games of a batch: a stop request (checked once per roll) and
// the rolls done so far, published now and then for a progress display.
struct RunControl {
  std::atomic<bool> Stop{false};
  std::atomic<int64_t> RollsDone{0};
};

// Plays one game. `script` is the already-read script (may be empty).
// Failures to set up (a Dice Roll File that can't be opened) throw
// std::runtime_error with a message for the user.
GameResult RunGame(const RunOptions& options, const Script& script, int64_t seed, RunControl& control);
