#pragma once
// One game of a strategy run: a fresh table, the script and the dice source,
// rolled in Hyper-Drive until a stop.

#include <atomic>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "dice/money.h"
#include "engine/script.h"
#include "sim/run_options.h"
#include "stats/bet_results_view.h"
#include "store/games_log_file.h"

struct GameResult {
  int64_t Index = 0;  // the game's number in the whole batch, from 0
  int64_t Seed = 0;
  int Rng = 0;        // the generator played, 1..8
  std::string StopReason;
  int64_t Rolls = 0;
  int64_t Hands = 0;  // hands completed: seven-outs
  double SimHours = 0;  // the rolls at the table's simulated roll rate
  Currency BankrollStart, BankrollEnd, BankrollHigh, BankrollLow, BankrollAverage;
  Currency Net;       // the end against the money brought to the table (ATM included)
  int64_t BetsWon = 0, BetsLost = 0;
  Currency AmountWagered, AmountWon, AmountLost;  // stakes include the vig paid
  std::vector<ActualBetLine> Bets;  // every bet that was decided, in BetId order
  // The bankroll fell to zero or below, or the max loss limit stopped it; with
  // StopAtRuin instead: the game stopped at ruin.
  bool Ruined = false;
  double Seconds = 0;
  GameLogRecord LogRecord{};  // the game as the games log keeps it
};

// Takes every game's bankroll as it is played: the start, then each roll.
// Each game calls from its own thread with its own index only.
class BankrollSeriesOut {
 public:
  virtual ~BankrollSeriesOut() = default;
  virtual void Add(int64_t gameIndex, Currency bankroll) = 0;
  virtual void EndGame(int64_t gameIndex) = 0;  // the game has no more rolls
};

// Shared by the games of a batch: a stop request (checked once per roll) and
// the rolls done so far, published now and then for a progress display.
struct RunControl {
  std::atomic<bool> Stop{false};
  std::atomic<int64_t> RollsDone{0};
  std::atomic<int64_t> RollsNotNeeded{0};  // rolls of games that stopped before their count
  BankrollSeriesOut* Series = nullptr;     // where each roll's bankroll goes, if anywhere
};

// A game that cannot start as asked (a seed out of limits, a file refused).
struct GameSetUpError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The stop reason of a game ended at ruin, and of one ended by a stop request.
std::string RuinStopReason(Currency held, Currency tableMinimum, int64_t roll);
std::string InterruptedStopReason(int64_t roll);

// Plays game `index` of the batch (seed options.Seed + index). `script` is
// the already-read script (may be empty). Failures to set up (a Dice Roll
// File that can't be opened) throw GameSetUpError with a message for the user.
GameResult RunGame(const RunOptions& options, const Script& script, int64_t index, RunControl& control);
