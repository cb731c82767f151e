#include "cli/run_tool.h"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

#include "cli/run_outputs.h"
#include "cli/run_report.h"
#include "engine/game.h"
#include "engine/roll.h"
#include "script/script_files.h"
#include "sim/batch.h"

namespace {

// The one piece of process state: a signal handler can only set a flag. The
// watcher below turns it into the batch's stop request.
volatile std::sig_atomic_t interruptRequested = 0;
extern "C" void OnInterrupt(int) { interruptRequested = 1; }

// Reads the script once for all games; a refusal is told in the program's
// own words.
class ScriptReader : public SilentFrontEnd {
 public:
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
    told += (told.empty() ? "" : "; ") + title + ": " + text;
    return SilentFrontEnd::ShowMessage(title, text, b);
  }
  std::string told;
};

bool ReadScript(const std::string& path, Script& script, std::ostream& err) {
  if (path.empty()) return true;
  Game g;
  ScriptReader reader;
  g.Ui = &reader;
  std::string error;
  if (!OpenScriptFile(g, path, error)) {
    err << "dicemill-cli run: " << (reader.told.empty() ? error : reader.told) << "\n";
    return false;
  }
  script = g.AutoBet;
  return true;
}

std::string Duration(double seconds) {
  const auto s = static_cast<int64_t>(seconds + 0.5);
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%lld:%02lld:%02lld", static_cast<long long>(s / 3600),
                static_cast<long long>(s / 60 % 60), static_cast<long long>(s % 60));
  return buffer;
}

void DrawProgress(std::ostream& err, int64_t done, int64_t total, double seconds) {
  const double rate = seconds > 0 ? done / seconds : 0;
  const double left = rate > 0 ? (total - done) / rate : 0;
  constexpr int kWidth = 30;
  const int filled = total > 0 ? static_cast<int>(kWidth * done / total) : 0;
  err << "\r[" << std::string(filled, '#') << std::string(kWidth - filled, ' ') << "] "
      << FormatWithCommas(done) << "/" << FormatWithCommas(total) << " rolls, "
      << FormatWithCommas(static_cast<int64_t>(rate)) << "/s, " << Duration(left) << " left " << std::flush;
}

// Watches for Ctrl-C and, on a terminal, draws the progress bar until the
// batch ends.
class Watcher {
 public:
  Watcher(RunControl& control, int64_t total, std::ostream& err, bool showProgress)
      : thread_([this, &control, total, &err, showProgress] {
          const auto started = std::chrono::steady_clock::now();
          while (!done_.load()) {
            if (interruptRequested) control.Stop = true;
            if (showProgress) {
              const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
              DrawProgress(err, control.RollsDone.load(), total, seconds);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
          }
          if (showProgress) err << "\r" << std::string(80, ' ') << "\r" << std::flush;
        }) {}
  ~Watcher() {
    done_ = true;
    thread_.join();
  }

 private:
  std::atomic<bool> done_{false};
  std::thread thread_;
};

}  // namespace

CLI::App* AddRunTool(CLI::App& app, RunToolOptions& o) {
  CLI::App* run = app.add_subcommand("run", "Run a strategy headless in Hyper-Drive and report the result");
  run->add_option("--script", o.run.ScriptPath, "Auto-Bet script: a .bet file or its text form");
  run->add_option("--game", o.gameFile, "Saved game to start from");
  run->add_option("--dice", o.run.DicePath, "Dice Roll File (.rol) to play back instead of a generator");
  run->add_option("--rng", o.run.Rng, "Generator 1..8")->check(CLI::Range(1, 8));
  run->add_option("--seed", o.run.Seed, "Seed of the first game; game i takes seed + i")
      ->check(CLI::PositiveNumber)
      ->each([&o](const std::string&) { o.seedGiven = true; });
  run->add_option("--rolls", o.run.Rolls, "Rolls per game, at most 100,000,000; 0 rolls to the ceiling")
      ->check(CLI::Range(int64_t{0}, MaxRolls));
  run->add_option("--bankroll", o.bankroll, "Starting bankroll");
  run->add_option("--games", o.run.Games, "Independent games, each with its own seed")->check(CLI::Range(1, 1'000'000));
  run->add_option("--threads", o.run.Threads, "Threads (default: every core)")->check(CLI::Range(1, 1024));
  run->add_option("--bankroll-csv", o.bankrollCsv, "Write the bankroll after every roll of every game to this CSV file");
  run->add_option("--log", o.gamesLog, "Add each game to this games log (.glg), made if it is not there");
  run->add_flag("--json", o.json, "Print one JSON document instead of text");
  run->add_flag("--timing", o.timing, "Put the time taken into the JSON document too");
  run->add_flag("--quiet", o.quiet, "No progress bar");
  return run;
}

int RunRunTool(const RunToolOptions& options, std::ostream& out, std::ostream& err) {
  RunOptions run = options.run;
  if (!options.gameFile.empty()) {
    // A saved game goes on with its own dice unless a seed is given.
    run.GameFile = options.gameFile;
    run.ReSeed = options.seedGiven;
    if (run.Games > 1 && !run.ReSeed) {
      err << "dicemill-cli run: --games above 1 with --game needs --seed, or every game would roll the same dice\n";
      return 1;
    }
  }
  if (!options.bankroll.empty()) {
    Currency amount;
    if (!ParseCurrency(options.bankroll, amount)) {
      err << "dicemill-cli run: --bankroll " << options.bankroll << " is not an amount\n";
      return 1;
    }
    run.Bankroll = amount;
  }
  run.KeepBankrollSeries = !options.bankrollCsv.empty();
  if (std::string error; !options.gamesLog.empty() && !CheckGamesLog(options.gamesLog, error)) {
    err << "dicemill-cli run: " << error << "\n";
    return 1;
  }
  Script script;
  if (!ReadScript(run.ScriptPath, script, err)) return 1;

  RunControl control;
  interruptRequested = 0;
  auto previous = std::signal(SIGINT, OnInterrupt);
  BatchResult batch;
  try {
    Watcher watcher(control, (run.Rolls > 0 ? run.Rolls : MaxRolls) * run.Games, err, !options.quiet && isatty(STDERR_FILENO));
    batch = RunBatch(run, script, control);
  } catch (const std::exception& e) {
    std::signal(SIGINT, previous);
    err << "dicemill-cli run: " << e.what() << "\n";
    return 1;
  }
  std::signal(SIGINT, previous);
  if (options.json)
    out << RunReportJson(run, batch, options.timing).dump(2) << "\n";
  else
    WriteRunReportText(out, run, batch);
  std::string error;
  bool written = true;
  if (!options.bankrollCsv.empty() && !WriteBankrollCsv(options.bankrollCsv, batch, error)) {
    err << "dicemill-cli run: " << error << "\n";
    written = false;
  }
  if (!options.gamesLog.empty() && !AppendBatchToLog(options.gamesLog, batch, error)) {
    err << "dicemill-cli run: " << error << "\n";
    written = false;
  }
  if (batch.Interrupted) return 130;
  return written ? 0 : 1;
}
