// Rolls per second of a strategy written in Python: a Pass Line bet with
// full odds that reads the point and the Pass Line bet before every roll and
// bets when the bet is down (Auto-Play takes the full odds). Inside run()
// (Hyper-Drive, the strategy called between rolls) it must make at least
// 500,000 rolls/s: ten times the ~50,000 of the best-known open simulator in
// Python on the same strategy. Beside it, the same strategy as a script,
// which should run at the native speed of a run (dicemill_bench's
// BM_HyperDriveSample/0), and both at the table (Table.play: every roll a
// command of the table, told to its listeners).
//
// The interpreter is embedded in this program of its own, so that
// dicemill_bench links no libpython and keeps its counting operator new; it
// imports the module built beside it, as a user's script would.
#include <pybind11/embed.h>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <iostream>

namespace py = pybind11;

namespace {

// Each timed call plays this many rolls.
constexpr int64_t kRollsInARun = 200'000;
constexpr int64_t kRollsAtTheTable = 20'000;

// The strategy and the four ways of playing it, each returning the rolls played.
constexpr const char* kPlays = R"(
import dicemill
import numpy  # Table.play's arrays would import it inside the first take

# A run's table has no settings of its own: a one-line script turns Auto-Take on.
FULL_ODDS_ON = "While\n  Next roll is a come-out roll\nthen\n  Set Auto-Take Full Odds on\n"

def pass_line_full_odds(table):
    if table.point == 0 and table.amount(43) == 0:
        table.bet(43, 10)

def python_strategy_in_a_run(rolls):
    return dicemill.run(strategy=pass_line_full_odds, script_text=FULL_ODDS_ON, rolls=rolls)["batch"]["rolls"]

def script_in_a_run(rolls):
    return dicemill.run(script=SCRIPT, rolls=rolls, threads=1)["batch"]["rolls"]

def python_strategy_at_the_table(rolls):
    table = dicemill.Table(seed=1, bankroll=1_000_000, settings={"AutoTakeFullOdds": 1})
    return len(table.play(pass_line_full_odds, rolls))

def script_at_the_table(rolls):
    table = dicemill.Table(seed=1, bankroll=1_000_000)
    table.load_script(path=SCRIPT)
    return len(table.play(lambda table: None, rolls))
)";

struct Play {
  const char* benchmark;
  const char* function;  // in kPlays
  int64_t rolls;
};

constexpr Play kPlaysTimed[] = {
    {"BM_PythonStrategyInRun", "python_strategy_in_a_run", kRollsInARun},
    {"BM_ScriptInRun", "script_in_a_run", kRollsInARun},
    {"BM_PythonStrategyTablePlay", "python_strategy_at_the_table", kRollsAtTheTable},
    {"BM_ScriptTablePlay", "script_at_the_table", kRollsAtTheTable},
};

void Time(benchmark::State& state, const py::dict& scope, const Play& play) {
  const py::object function = scope[play.function];
  int64_t rolls = 0;
  for (auto _ : state) rolls += function(play.rolls).cast<int64_t>();
  state.counters["rolls/s"] = benchmark::Counter(static_cast<double>(rolls), benchmark::Counter::kIsRate);
}

}  // namespace

int main(int argc, char** argv) {
  py::scoped_interpreter python;
  // The benchmarks hold only a reference to this: no Python object may
  // outlive the interpreter.
  py::dict scope;
  try {
    py::module_::import("sys").attr("path").attr("insert")(0, DICEMILL_PYTHON_MODULE_DIR);
    scope["SCRIPT"] = DICEMILL_SOURCE_DIR "/samples/pass-line-full-odds.txt";
    py::exec(kPlays, scope);
  } catch (const py::error_already_set& e) {
    std::cerr << "dicemill_python_bench: " << e.what() << "\n";
    return 1;
  }
  for (const Play& play : kPlaysTimed)
    benchmark::RegisterBenchmark(play.benchmark, [&scope, &play](benchmark::State& state) { Time(state, scope, play); })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();  // a run without a strategy plays on a thread of its own
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
