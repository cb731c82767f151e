#include "cli/run_tool.h"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <thread>

#include "cli/bankroll_csv.h"
#include "cli/exit_codes.h"
#include "cli/number_args.h"
#include "cli/run_outputs.h"
#include "cli/run_report.h"
#include "cli/script_tool.h"
#include "sim/terminal_text.h"
#include "engine/game.h"
#include "script/checker.h"
#include "sim/batch.h"
#include "sim/fresh_table.h"
#include "sim/table.h"
#include "sim/told_front_end.h"

namespace {

constexpr int64_t kLargestSeed = 2'147'483'647;
constexpr int64_t kLargestSeedOfRng3 = 999'999;
constexpr int kRng3 = 3;
constexpr int64_t kMostGames = 1'000'000;

// The one piece of process state: a signal handler can only set a flag. The
// watcher below turns it into the batch's stop request.
volatile std::sig_atomic_t interruptRequested = 0;
extern "C" void OnInterrupt(int) { interruptRequested = 1; }

// A run that cannot start as asked; the text says why.
struct Refusal {
  std::string text;
};

Script ReadScript(const std::string& path, bool unchecked, std::ostream& err) {
  Script script;
  if (path.empty()) return script;
  ToldFrontEnd reader;  // the script is read once for all games
  Table table(reader);
  const TableResult read = table.ReadScript(path);
  if (!read.Done()) {
    const std::string why = reader.told.empty() ? TerminalText(read.text) : reader.told;
    throw Refusal{"--script " + (why.starts_with(path + ":") ? why : path + ": " + why)};
  }
  script = table.State().AutoBet;
  if (const std::optional<ScriptFault> fault = CheckScript(script)) {
    const std::string text = ScriptFaultText(path, script, *fault);
    if (!unchecked) throw Refusal{text + "\n(--unchecked runs it anyway)"};
    err << "dicemill-cli run: warning: running a script that does not pass the check:\n" << text << "\n";
  }
  return script;
}

int64_t CountOption(const std::string& option, const std::string& text, int64_t least, int64_t most) {
  const std::optional<int64_t> n = ParseCountArg(text);
  if (!n || *n < least || *n > most)
    throw Refusal{option + " " + text + ": give a whole number from " + FormatWithCommas(least) + " to " +
                  FormatWithCommas(most)};
  return *n;
}

RunOptions ReadRunOptions(const RunToolOptions& o) {
  RunOptions run = o.run;
  if (!o.games.empty()) run.Games = static_cast<int>(CountOption("--games", o.games, 1, kMostGames));
  if (!o.rolls.empty()) run.Rolls = CountOption("--rolls", o.rolls, 0, MaxRolls);
  if (!o.firstGame.empty()) run.FirstGame = CountOption("--first-game", o.firstGame, 0, kLargestSeed - 1);
  const bool seedGiven = !o.seed.empty();
  if (seedGiven) run.Seed = CountOption("--seed", o.seed, 1, kLargestSeed);
  if (!o.gameFile.empty()) {
    // A saved game goes on with its own dice unless a seed is given.
    run.GameFile = o.gameFile;
    run.ReSeed = seedGiven;
    if (run.Games > 1 && !run.ReSeed)
      throw Refusal{"--games above 1 with --game needs --seed, or every game would roll the same dice"};
  } else if (run.Rng == 0) {
    run.Rng = DefaultGeneratorNumber();
  }
  const int64_t largest = run.Rng == kRng3 ? kLargestSeedOfRng3 : kLargestSeed;
  const int64_t lastSeed = run.Seed + run.FirstGame + run.Games - 1;
  if (run.ReSeed && lastSeed > largest)
    throw Refusal{"the last game would take seed " + FormatWithCommas(lastSeed) + ", beyond the limit of generator #" +
                  std::to_string(run.Rng) + ": seeds run from 1 to " + FormatWithCommas(largest)};
  if (!o.bankroll.empty()) {
    const std::optional<Currency> amount = ParseAmountArg(o.bankroll);
    if (!amount) throw Refusal{"--bankroll " + o.bankroll + ": not an amount; give dollars such as 500, 1,000 or $1,000.50"};
    if (*amount > Currency(BankLimit))
      throw Refusal{"--bankroll " + o.bankroll + ": beyond the bank limit of " + MoneyText(Currency(BankLimit))};
    run.Bankroll = *amount;
  }
  run.Threads = BatchThreads(run);
  return run;
}

void CheckOutputs(const RunToolOptions& o) {
  std::string error;
  if (!o.jsonFile.empty() && !CheckOutputPath("--json", o.jsonFile, error)) throw Refusal{error};
  if (!o.bankrollCsv.empty() && !CheckOutputPath("--bankroll-csv", o.bankrollCsv, error)) throw Refusal{error};
  if (!o.gamesLog.empty() && !CheckGamesLog(o.gamesLog, error)) throw Refusal{error};
}

std::string Duration(double seconds) {
  const auto s = static_cast<int64_t>(seconds + 0.5);
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%lld:%02lld:%02lld", static_cast<long long>(s / 3600),
                static_cast<long long>(s / 60 % 60), static_cast<long long>(s % 60));
  return buffer;
}

void DrawProgress(std::ostream& err, int64_t done, int64_t total, double seconds) {
  const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0;
  const double left = rate > 0 ? static_cast<double>(total - done) / rate : 0;
  constexpr int kWidth = 30;
  const int filled = total > 0 ? static_cast<int>(kWidth * done / total) : 0;
  err << "\r[" << std::string(filled, '#') << std::string(kWidth - filled, ' ') << "] "
      << FormatWithCommas(done) << "/" << FormatWithCommas(total) << " rolls, "
      << FormatWithCommas(static_cast<int64_t>(rate)) << "/s, " << Duration(left) << " left " << std::flush;
}

// Watches for Ctrl-C and, on a terminal, draws the progress bar until the
// batch ends. Games that stop early take their unplayed rolls off the total,
// so a finished batch ends at 100%.
class Watcher {
 public:
  Watcher(RunControl& control, int64_t total, std::ostream& err, bool showProgress)
      : thread_([this, &control, total, &err, showProgress] {
          const auto started = std::chrono::steady_clock::now();
          auto draw = [&] {
            const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
            DrawProgress(err, control.RollsDone.load(), total - control.RollsNotNeeded.load(), seconds);
          };
          while (!done_.load()) {
            if (interruptRequested) control.Stop = true;
            if (showProgress) draw();
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
          }
          if (showProgress) {
            draw();
            err << "\n" << std::flush;
          }
        }) {}
  ~Watcher() {
    done_ = true;
    thread_.join();
  }

 private:
  std::atomic<bool> done_{false};
  std::thread thread_;
};

bool WriteJsonFile(const std::string& path, const std::string& text, std::string& error) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << text;
  file.close();
  if (file) return true;
  error = "--json " + path + ": could not be written: " + std::strerror(errno);
  return false;
}

}  // namespace

CLI::App* AddRunTool(CLI::App& app, RunToolOptions& o) {
  CLI::App* run = app.add_subcommand("run", "Run a strategy headless in Hyper-Drive and report the result");
  run->option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);  // the last word wins, as in most tools
  run->add_option("--script", o.run.ScriptPath, "Auto-Bet script: a .bet file or its text form");
  run->add_flag("--unchecked", o.unchecked, "Run a script even though `script check` finds a fault in it");
  run->add_option("--game", o.gameFile, "Saved game to start from");
  run->add_option("--dice", o.run.DicePath, "Dice Roll File (.rol) to play back instead of a generator");
  run->add_option("--rng", o.run.Rng, "Generator 1..8")->check(CLI::Range(1, 8));
  run->add_option("--seed", o.seed, "Seed of the first game, 1..2,147,483,647 (#3: 1..999,999); game i takes seed + i");
  run->add_option("--first-game", o.firstGame,
                  "Where this batch starts in a larger one: game i plays seed + first-game + i (default 0)");
  run->add_option("--rolls", o.rolls, "Rolls per game, at most 100,000,000; 0 rolls to the ceiling");
  run->add_option("--bankroll", o.bankroll, "Starting bankroll, at most the bank limit of $9,999,999");
  run->add_option("--games", o.games, "Independent games, each with its own seed (1..1,000,000)");
  run->add_option("--threads", o.run.Threads, "Threads (default: every core)")->check(CLI::Range(1, 1024));
  run->add_flag("--stop-at-ruin", o.run.StopAtRuin,
                "End a game once the rack and the table together cannot cover the table minimum");
  run->add_option("--bankroll-csv", o.bankrollCsv, "Write the bankroll after every roll of every game to this CSV file");
  run->add_option("--log", o.gamesLog, "Add each game to this games log (.glg), made if it is not there");
  run->add_option("--json", o.jsonFile, "Print one JSON document instead of text; to FILE if given")
      ->expected(0, 1)
      ->each([&o](const std::string&) { o.json = true; });
  run->add_flag("--timing", o.timing, "Put the time taken into the JSON document too");
  run->add_flag("--summary", o.summary, "Print only the batch summary, not every game");
  run->add_flag("--quiet", o.quiet, "No progress bar");
  run->callback([&o, run] { o.json = o.json || run->count("--json") > 0; });
  return run;
}

int RunRunTool(const RunToolOptions& options, std::ostream& out, std::ostream& err) {
  RunDescription description{{}, options.bankrollCsv, options.gamesLog, options.jsonFile};
  Script script;
  BankrollCsvWriter csv;
  try {
    description.Options = ReadRunOptions(options);
    CheckOutputs(options);
    script = ReadScript(description.Options.ScriptPath, options.unchecked, err);
  } catch (const Refusal& refusal) {
    err << "dicemill-cli run: " << refusal.text << "\n";
    return kExitUsage;
  }
  RunOptions& run = description.Options;
  RunControl control;
  std::string error;
  if (!options.bankrollCsv.empty()) {
    if (const FileStatus opened = csv.Open(options.bankrollCsv, run.Seed, run.FirstGame, run.Games); !opened) {
      err << "dicemill-cli run: --bankroll-csv " << opened.Messages.front().Text << "\n";
      return kExitUsage;
    }
    control.Series = &csv;
  }

  interruptRequested = 0;
  auto previous = std::signal(SIGINT, OnInterrupt);
  BatchResult batch;
  try {
    Watcher watcher(control, (run.Rolls > 0 ? run.Rolls : MaxRolls) * run.Games, err,
                    !options.quiet && isatty(STDERR_FILENO));
    batch = RunBatch(run, script, control);
  } catch (const std::exception& e) {
    std::signal(SIGINT, previous);
    err << "dicemill-cli run: " << TerminalText(e.what()) << "\n";
    return dynamic_cast<const GameSetUpError*>(&e) ? kExitUsage : kExitFailed;
  }
  std::signal(SIGINT, previous);
  if (run.Rng == 0 && !batch.Games.empty()) run.Rng = batch.Games.front().Rng;  // a saved game's own

  bool written = true;
  if (!options.json) {
    WriteRunReportText(out, description, batch, options.summary);
  } else {
    const std::string text = RunReportJson(description, batch, options.timing).dump(2) + "\n";
    if (options.jsonFile.empty())
      out << text;
    else if (!WriteJsonFile(options.jsonFile, text, error))
      err << "dicemill-cli run: " << error << "\n", written = false;
  }
  if (!options.bankrollCsv.empty()) {
    if (const FileStatus finished = csv.Finish(); !finished)
      err << "dicemill-cli run: --bankroll-csv " << finished.Messages.front().Text << "\n", written = false;
  }
  if (!options.gamesLog.empty() && !AppendBatchToLog(options.gamesLog, batch, error))
    err << "dicemill-cli run: " << error << "\n", written = false;
  if (batch.Interrupted) return kExitInterrupted;
  return written ? kExitDone : kExitFailed;
}
