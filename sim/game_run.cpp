#include "sim/game_run.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>

#include "autoplay/atm.h"
#include "engine/dice_roll_files.h"
#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/notices.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "script/interpreter.h"
#include "script/values.h"
#include "sim/fresh_table.h"
#include "sim/hyper_drive.h"
#include "stats/bet_results.h"
#include "dice/file_read.h"
#include "sim/assemble_game.h"
#include "store/game_file.h"
#include "stats/games_log.h"

namespace {

// The screen of a headless run: takes every default, and once per roll lets
// a stop request in, hands on the bankroll and reports progress.
class RunnerFrontEnd : public SilentFrontEnd {
 public:
  RunnerFrontEnd(Game& g, RunControl& control, int64_t index, bool stopAtRuin)
      : game_(g), control_(control), index_(index), stopAtRuin_(stopAtRuin) {}

  bool LetInputRun() override {
    const int64_t rolls = game_.RollCounts[0];
    if (control_.Series && rolls > lastRoll_) control_.Series->Add(index_, game_.Bankroll());
    lastRoll_ = rolls;
    if (watcher_) watcher_->LetInputRun(game_);
    if (++calls_ % kPublishEvery == 0) Publish();
    if (stopAtRuin_ && !ruined_ && game_.Bankroll() + game_.TotalOnTable < game_.TableMinimum) {
      ruined_ = true;
      ruinHeld_ = game_.Bankroll() + game_.TotalOnTable;
      game_.KeepRolling = false;
    }
    if (control_.Stop.load(std::memory_order_relaxed)) {
      game_.KeepRolling = false;
      game_.AutoBetRunning = false;  // a script pass that loops stops too
    }
    return watcher_ != nullptr;  // a watcher may play the table
  }
  void RollFinished(::StopReason reason) override { stopReason_ = reason; }

  // Hands the rolls not yet reported to the shared counter.
  void Publish() {
    const int64_t rolls = game_.RollCounts[0];
    control_.RollsDone.fetch_add(rolls - published_, std::memory_order_relaxed);
    published_ = rolls;
  }
  // A saved game comes with rolls of its own, which are not this run's.
  void StartCountingAt(int64_t rolls) { published_ = lastRoll_ = rolls; }
  ::StopReason LastStop() const { return stopReason_; }
  bool Ruined() const { return ruined_; }
  Currency RuinHeld() const { return ruinHeld_; }
  void Watch(TableWatcher* watcher) { watcher_ = watcher; }

 private:
  static constexpr int64_t kPublishEvery = 4096;
  Game& game_;
  RunControl& control_;
  int64_t index_;
  bool stopAtRuin_;
  int64_t calls_ = 0;
  int64_t published_ = 0;
  int64_t lastRoll_ = 0;
  bool ruined_ = false;
  Currency ruinHeld_;
  ::StopReason stopReason_ = ::StopReason::None;
  TableWatcher* watcher_ = nullptr;
};

// A set-up step that has anything to tell (a refusal, a linked file gone or
// changed) fails the set-up: a run must not go on from what it was not given.
void FailIfTold(const FileStatus& status, const std::string& what) {
  if (!status.Messages.empty()) throw GameSetUpError(what + ": " + status.FirstMessage());
}

// The saved game as it stood.
void OpenSavedGame(Game& g, const RunOptions& options) {
  g.DataFolder = std::filesystem::path(options.GameFile).parent_path().string();
  FillDefaults(g);
  const FileStatus opened = OpenGame(g, options.GameFile);
  FailIfTold(opened, "game file \"" + options.GameFile + "\"");
  if (!opened) throw GameSetUpError("game file \"" + options.GameFile + "\" could not be opened");
  if (options.Bankroll) {
    g.Bankroll() = g.AmountInvested = *options.Bankroll;
    g.HighBankroll = g.LowBankroll = *options.Bankroll;
    g.BankrollSum = 0;
  }
}

void SetUpTable(Game& g, const RunOptions& options, int64_t seed) {
  if (!options.GameFile.empty()) {
    OpenSavedGame(g, options);
  } else {
    SetUpFreshTable(g, FreshTable{false, options.Bankroll});
  }
  if (options.Rng != 0) g.RngChoice = options.Rng - 1;
  if (!options.ReSeed) return;
  g.SeedRequest = Currency::FromRaw(seed * Currency::kScale);
  SeedRNG(g, true);  // silent: a seed out of limits is left unset, as checked below
  if (g.LastSeed != seed)
    throw GameSetUpError("seed " + std::to_string(seed) + " is outside the limits of generator #" +
                             std::to_string(g.RngChoice + 1));
}

void OpenDice(Game& g, const std::string& path) {
  // A pipe or a device would hang the run or feed it without end.
  if (const std::string reason = NotARegularFileReason(path); !reason.empty())
    throw GameSetUpError("Dice Roll File \"" + path + "\" " + reason);
  FailIfTold(OpenRollFile(g, path), "Dice Roll File \"" + path + "\"");
  SetRecorderStatus(g, kRecorderPlayback);  // cannot refuse: the file is open
}

// The script's first cycle runs as the table's offer would run it on Yes.
void StartScript(Game& g, const Script& script) {
  g.AutoBet = script;
  g.AutoBetActivated = true;
  g.InitPending = true;
  RunAutoBet(g);
  TakeScriptSnapshots(g);
  g.InitPending = false;
}

}  // namespace

std::string RuinStopReason(Currency held, Currency tableMinimum, int64_t roll) {
  return "Stopped at ruin on roll " + FormatWithCommas(roll) + ": the rack and the table together hold " +
         MoneyText(held) + ", less than the table minimum of " + MoneyText(tableMinimum) + ".";
}

std::string InterruptedStopReason(int64_t roll) {
  return "Interrupted after roll " + FormatWithCommas(roll) + ".";
}

GameResult RunGame(const RunOptions& options, const Script& script, int64_t index, RunControl& control) {
  const auto started = std::chrono::steady_clock::now();
  const int64_t seed = options.Seed + index;
  Game g;
  AssembleGame(g);
  RunnerFrontEnd ui(g, control, index, options.StopAtRuin);
  g.Ui = &ui;
  SetUpTable(g, options, seed);
  if (!options.DicePath.empty()) {
    if (g.DiceFile.File.IsOpen()) CloseRollFile(g);
    OpenDice(g, options.DicePath);
  }

  const int64_t rollsBefore = g.RollCounts[0], handsBefore = g.HandStats[hand::kHands];
  ui.StartCountingAt(rollsBefore);
  GameResult r;
  r.Index = index;
  r.Seed = seed;
  r.Rng = g.RngChoice + 1;
  r.BankrollStart = g.Bankroll();
  if (control.Series) control.Series->Add(index, g.Bankroll());
  ui.Watch(options.Watcher);
  g.HyperDriveOn = true;  // the run is headless from its first pass on
  if (script.NumLines() > 0) {
    StartScript(g, script);
  } else if (g.InitPending && g.AutoBetActivated && g.AutoBet.NumLines() > 0) {
    StartScript(g, Script(g.AutoBet));  // a saved game whose first cycle was still due
  }
  // A strategy bets before the first roll as before every other.
  if (options.Watcher) options.Watcher->BeforeFirstRoll(g);
  g.RollCountStop = g.RollCountLeft = static_cast<int32_t>(options.Rolls);
  g.KeepRolling = false;
  if (!control.Stop.load()) StartHyperDrive(g);
  g.KeepRolling = g.HyperDriveOn = false;
  ui.Publish();
  if (control.Series) control.Series->EndGame(index);
  std::string where;
  if (ui.LastStop() == StopReason::RollFileOutOfLimits && g.DiceFile.File.IsOpen()) {
    const int64_t roll = g.DiceFile.NextRollNum;
    where = " Roll #" + FormatWithCommas(roll) + " of " + g.DiceFile.File.Path() + " is the byte " +
            std::to_string(g.DiceFile.File.Read(roll)) + ", which is no pair of dice.";
  }
  if (g.DiceFile.File.IsOpen()) CloseRollFile(g);

  r.Rolls = g.RollCounts[0] - rollsBefore;
  r.StopReason = StopReasonText(ui.LastStop()) + where;
  if (ui.Ruined())
    r.StopReason = RuinStopReason(ui.RuinHeld(), g.TableMinimum, r.Rolls);
  else if (r.StopReason.empty() && control.Stop.load())
    r.StopReason = InterruptedStopReason(r.Rolls);
  const int64_t planned = options.Rolls > 0 ? options.Rolls : MaxRolls;
  if (r.Rolls < planned) control.RollsNotNeeded.fetch_add(planned - r.Rolls, std::memory_order_relaxed);
  r.Hands = g.HandStats[hand::kHands] - handsBefore;
  r.SimHours = SimHours(g);
  r.BankrollEnd = g.Bankroll();
  r.BankrollHigh = g.HighBankroll;
  r.BankrollLow = g.LowBankroll;
  r.BankrollAverage = AverageBankroll(g);
  r.Net = NetResult(g);
  const BetTotalsOfKind actual = BetTotals(g, results::kActual);
  r.BetsWon = Floor(actual.Wins[results::kCount]);
  r.BetsLost = Floor(actual.Losses[results::kCount]);
  r.AmountWagered = actual.Wagers[results::kTotal];
  r.AmountWon = actual.Wins[results::kTotal];
  r.AmountLost = actual.Losses[results::kTotal];
  r.Bets = ActualBetLines(g);
  r.Ruined = options.StopAtRuin ? ui.Ruined() : g.LowBankroll <= 0 || ui.LastStop() == StopReason::MaxLoss;
  r.LogRecord = FinishedGameRecord(g);
  r.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
  return r;
}
