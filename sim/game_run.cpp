#include "sim/game_run.h"

#include <chrono>
#include <filesystem>
#include <stdexcept>

#include "autoplay/atm.h"
#include "dice/dice_roll_files.h"
#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "script/interpreter.h"
#include "script/values.h"
#include "sim/hyper_drive.h"
#include "stats/bet_results.h"
#include "store/game_file.h"
#include "stats/games_log.h"

namespace {

constexpr const char* kMaxLossReason = "Stopped by exceeding the max loss limit";

// The screen of a headless run: takes every default, remembers the first
// message (during set-up a message means the set-up failed), and once per
// roll lets a stop request in and reports progress.
class RunnerFrontEnd : public SilentFrontEnd {
 public:
  RunnerFrontEnd(Game& g, RunControl& control) : game_(g), control_(control) {}

  Reply ShowMessage(const std::string& title, const std::string& text, Buttons buttons) override {
    if (firstMessage_.empty()) firstMessage_ = title + ": " + text;
    return SilentFrontEnd::ShowMessage(title, text, buttons);
  }
  void LetInputRun() override {
    if (series_ && game_.RollCounts[0] >= static_cast<int64_t>(series_->size())) series_->push_back(game_.Bankroll());
    if (watcher_) watcher_->LetInputRun(game_);
    if (++calls_ % kPublishEvery == 0) Publish();
    if (control_.Stop.load(std::memory_order_relaxed)) game_.KeepRolling = false;
  }
  void RollFinished(const std::string& reason) override { stopReason_ = reason; }

  // Hands the rolls not yet reported to the shared counter.
  void Publish() {
    const int64_t rolls = game_.RollCounts[0];
    control_.RollsDone.fetch_add(rolls - published_, std::memory_order_relaxed);
    published_ = rolls;
  }
  // A saved game comes with rolls of its own, which are not this run's.
  void StartCountingAt(int64_t rolls) { published_ = rolls; }
  const std::string& FirstMessage() const { return firstMessage_; }
  void ForgetMessages() { firstMessage_.clear(); }
  const std::string& StopReason() const { return stopReason_; }
  // Every roll's bankroll goes to `series` from now on.
  void KeepSeries(std::vector<Currency>* series) { series_ = series; }
  void Watch(TableWatcher* watcher) { watcher_ = watcher; }

 private:
  static constexpr int64_t kPublishEvery = 4096;
  Game& game_;
  RunControl& control_;
  int64_t calls_ = 0;
  int64_t published_ = 0;
  std::string firstMessage_;
  std::string stopReason_;
  std::vector<Currency>* series_ = nullptr;
  TableWatcher* watcher_ = nullptr;
};

void FailIfTold(const RunnerFrontEnd& ui, const std::string& what) {
  if (!ui.FirstMessage().empty()) throw std::runtime_error(what + ": " + ui.FirstMessage());
}

// The saved game as it stood; any message while opening (a refusal, a
// linked file gone or changed) fails the set-up.
void OpenSavedGame(Game& g, const RunOptions& options, RunnerFrontEnd& ui) {
  g.DataFolder = std::filesystem::path(options.GameFile).parent_path().string();
  FillDefaults(g);
  const bool opened = OpenGame(g, options.GameFile);
  FailIfTold(ui, "game file \"" + options.GameFile + "\"");
  if (!opened) throw std::runtime_error("game file \"" + options.GameFile + "\" could not be opened");
  if (options.Bankroll) {
    g.BetAmount[bet::kBankroll] = g.AmountInvested = *options.Bankroll;
    g.HighBankroll = g.LowBankroll = *options.Bankroll;
    g.BankrollSum = 0;
  }
}

void SetUpTable(Game& g, const RunOptions& options, int64_t seed, RunnerFrontEnd& ui) {
  if (!options.GameFile.empty()) {
    OpenSavedGame(g, options, ui);
  } else {
    g.ReSeedNewGames = false;
    FillDefaults(g);
    if (options.Bankroll) {
      g.BankrollInitType = 0;
      g.BankrollInitAmount = *options.Bankroll;
    }
    NewGame(g, false);
  }
  if (options.Rng != 0) g.RngChoice = options.Rng - 1;
  if (!options.ReSeed) return;
  g.SeedRequest = Currency::FromRaw(seed * Currency::kScale);
  SeedRNG(g, true);
  FailIfTold(ui, "seed " + std::to_string(seed));
  if (g.LastSeed != seed)
    throw std::runtime_error("seed " + std::to_string(seed) + " is outside the limits of generator #" +
                             std::to_string(g.RngChoice + 1));
}

void OpenDice(Game& g, const std::string& path, RunnerFrontEnd& ui) {
  if (!std::filesystem::is_regular_file(path))
    throw std::runtime_error("Dice Roll File \"" + path + "\" does not exist");
  OpenRollFile(g, path);
  SetRecorderStatus(g, kRecorderPlayback);
  FailIfTold(ui, "Dice Roll File \"" + path + "\"");
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

GameResult RunGame(const RunOptions& options, const Script& script, int64_t seed, RunControl& control) {
  const auto started = std::chrono::steady_clock::now();
  Game g;
  RunnerFrontEnd ui(g, control);
  g.Ui = &ui;
  SetUpTable(g, options, seed, ui);
  if (!options.DicePath.empty()) {
    if (g.DiceFile.File.IsOpen()) CloseRollFile(g);
    OpenDice(g, options.DicePath, ui);
  }
  ui.ForgetMessages();

  const int64_t rollsBefore = g.RollCounts[0], handsBefore = g.HandStats[2];
  ui.StartCountingAt(rollsBefore);
  GameResult r;
  r.Seed = seed;
  r.BankrollStart = g.Bankroll();
  if (options.KeepBankrollSeries) {
    if (options.Rolls > 0) r.BankrollSeries.reserve(static_cast<size_t>(options.Rolls) + 1);
    r.BankrollSeries.push_back(g.Bankroll());
    ui.KeepSeries(&r.BankrollSeries);
  }
  ui.Watch(options.Watcher);
  g.HyperDriveOn = true;  // the run is headless from its first pass on
  if (script.NumLines() > 0) {
    StartScript(g, script);
  } else if (g.InitPending && g.AutoBetActivated && g.AutoBet.NumLines() > 0) {
    StartScript(g, Script(g.AutoBet));  // a saved game whose first cycle was still due
  }
  g.RollCountStop = g.RollCountLeft = static_cast<int32_t>(options.Rolls);
  g.KeepRolling = true;
  if (!control.Stop.load()) RollDice(g);
  g.KeepRolling = g.HyperDriveOn = false;
  ui.Publish();
  if (g.DiceFile.File.IsOpen()) CloseRollFile(g);

  r.StopReason = ui.StopReason();
  r.Rolls = g.RollCounts[0] - rollsBefore;
  r.Hands = g.HandStats[2] - handsBefore;
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
  r.Ruined = g.LowBankroll <= 0 || r.StopReason.rfind(kMaxLossReason, 0) == 0;
  r.LogRecord = FinishedGameRecord(g);
  r.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
  return r;
}
