#include "python/py_run.h"

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/frontend.h"
#include "engine/game.h"
#include "python/py_interrupt.h"
#include "python/py_player.h"
#include "python/py_script.h"
#include "python/py_values.h"
#include "sim/batch.h"
#include "sim/run_report_json.h"
#include "sim/fresh_table.h"
#include "sim/table.h"

namespace {

constexpr int64_t kLargestSeed = 2'147'483'647;
constexpr int64_t kLargestSeedOfRng3 = 999'999;
constexpr int kRng3 = 3;
constexpr int64_t kMostGames = 1'000'000;

// Each game's bankroll, the start and then every roll, in arrays made for
// the run up front: a game writes only its own, from its own thread.
class BankrollPaths : public BankrollSeriesOut {
 public:
  BankrollPaths(int games, int64_t rolls) : paths_(static_cast<size_t>(games)) {
    for (std::vector<double>& path : paths_) path.reserve(static_cast<size_t>(rolls) + 1);
  }
  void Add(int64_t gameIndex, Currency bankroll) override {
    paths_[static_cast<size_t>(gameIndex)].push_back(bankroll.ToDouble());
  }
  void EndGame(int64_t) override {}

  // Hands each path to a NumPy array that owns it: nothing is copied.
  py::list Arrays() {
    py::list arrays;
    for (std::vector<double>& path : paths_) {
      auto* owned = new std::vector<double>(std::move(path));
      py::capsule free(owned, [](void* p) { delete static_cast<std::vector<double>*>(p); });
      arrays.append(py::array_t<double>(static_cast<py::ssize_t>(owned->size()), owned->data(), free));
    }
    return arrays;
  }

 private:
  std::vector<std::vector<double>> paths_;
};

struct RunArgs {
  std::optional<std::string> script, scriptText, dice;
  int64_t rolls = 1'000'000;
  int64_t games = 1;
  int64_t seed = 1;
  std::optional<int> rng;
  py::object bankroll;
  int threads = 0;
  bool stopAtRuin = false, unchecked = false, bankrollPath = false;
  py::object strategy;
};

void InRange(const char* what, int64_t value, int64_t least, int64_t most) {
  if (value < least || value > most)
    throw py::value_error(std::string(what) + " " + std::to_string(value) + ": give a whole number from " +
                          std::to_string(least) + " to " + std::to_string(most));
}

// The options as the command line would read the same arguments.
RunOptions OptionsOf(const RunArgs& a) {
  RunOptions run;
  InRange("games", a.games, 1, kMostGames);
  InRange("rolls", a.rolls, 0, MaxRolls);
  InRange("seed", a.seed, 1, kLargestSeed);
  InRange("threads", a.threads, 0, 1024);
  run.Games = static_cast<int>(a.games);
  run.Rolls = a.rolls;
  run.Seed = a.seed;
  if (a.rng) InRange("rng", *a.rng, 1, 8);
  run.Rng = a.rng ? *a.rng : DefaultGeneratorNumber();
  const int64_t largest = run.Rng == kRng3 ? kLargestSeedOfRng3 : kLargestSeed;
  if (run.Seed + run.Games - 1 > largest)
    throw py::value_error("the last game would take seed " + std::to_string(run.Seed + run.Games - 1) +
                          ", beyond the limit of generator #" + std::to_string(run.Rng) + ": seeds run from 1 to " +
                          std::to_string(largest));
  if (!a.bankroll.is_none()) {
    const Currency amount = AmountOf(a.bankroll, "bankroll");
    if (amount > Currency(BankLimit)) throw py::value_error("bankroll beyond the bank limit of $9,999,999");
    run.Bankroll = amount;
  }
  if (a.dice) run.DicePath = *a.dice;
  if (a.script) run.ScriptPath = *a.script;
  run.StopAtRuin = a.stopAtRuin;
  // A Python strategy plays one game at a time, on one thread.
  run.Threads = a.strategy.is_none() ? a.threads : 1;
  run.Threads = BatchThreads(run);
  return run;
}

struct Played {
  std::string report;  // as `run --json` prints it
  py::list paths;
};

Played Play(const RunArgs& a) {
  if (a.script && a.scriptText) throw py::value_error("give a script's path or its text, not both");
  RunDescription description{OptionsOf(a), "", "", ""};
  const Script script = a.script       ? ReadCheckedScript(*a.script, a.unchecked)
                        : a.scriptText ? ScriptFromText(*a.scriptText, a.unchecked)
                                       : Script{};
  RunControl control;
  std::optional<PythonStrategy> strategy;
  if (!a.strategy.is_none()) {
    if (!PyCallable_Check(a.strategy.ptr())) throw py::type_error("strategy must be callable: def strategy(table): ...");
    strategy.emplace(py::reinterpret_borrow<py::function>(a.strategy), control.Stop);
    description.Options.Watcher = &*strategy;
  }
  std::unique_ptr<BankrollPaths> paths;
  if (a.bankrollPath) {
    paths = std::make_unique<BankrollPaths>(description.Options.Games, description.Options.Rolls);
    control.Series = paths.get();
  }
  BatchResult batch;
  try {
    if (strategy) {
      // The games play on this thread, which takes the GIL back for every
      // call of the strategy; the strategy itself notices Ctrl-C.
      py::gil_scoped_release released;
      batch = RunBatch(description.Options, script, control);
    } else {
      batch = RunBatchInterruptibly(description.Options, script, control);
    }
  } catch (const GameSetUpError& e) {
    throw py::value_error(e.what());
  }
  if (strategy) strategy->RaiseAnyFailure();
  Played played{RunReportJson(description, batch, false).dump(2) + "\n", py::list()};
  if (paths) played.paths = paths->Arrays();
  return played;
}

}  // namespace

void AddRun(py::module_& m) {
  using namespace pybind11::literals;
  auto bind = [&m](const char* name, auto&& report, const char* doc) {
    m.def(name,
          [report](std::optional<std::string> script, std::optional<std::string> scriptText, int64_t rolls,
                   int64_t games, int64_t seed, std::optional<int> rng, py::object bankroll, int threads,
                   bool stopAtRuin, std::optional<std::string> dice, bool unchecked, bool bankrollPath,
                   py::object strategy) {
            RunArgs a{script, scriptText, dice, rolls, games, seed, rng, bankroll, threads, stopAtRuin, unchecked,
                      bankrollPath, strategy};
            return report(Play(a));
          },
          py::kw_only(), "script"_a = py::none(), "script_text"_a = py::none(), "rolls"_a = 1'000'000, "games"_a = 1,
          "seed"_a = 1, "rng"_a = py::none(), "bankroll"_a = py::none(), "threads"_a = 0, "stop_at_ruin"_a = false,
          "dice"_a = py::none(), "unchecked"_a = false, "bankroll_path"_a = false,
          "strategy"_a = py::none(), doc);
  };
  bind("run", [](Played played) {
    py::dict report = py::module_::import("json").attr("loads")(played.report);
    if (py::len(played.paths) > 0) report["bankrollPath"] = played.paths;
    return py::object(report);
  }, "Plays the games and returns the report of `dicemill-cli run --json` as a dict; with bankroll_path=True "
     "also 'bankrollPath': each game's bankroll at the start and after every roll, a NumPy array per game.");
  bind("run_json", [](Played played) { return py::object(py::str(played.report)); },
       "The same run's report as the exact text `dicemill-cli run --json` prints.");
}
