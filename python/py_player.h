#pragma once
// A strategy written in Python, played inside a headless run: the run hands
// it the table before every roll, and it bets as a player would.

#include <pybind11/pybind11.h>

#include <atomic>
#include <optional>

#include "sim/run_options.h"

namespace py = pybind11;

struct Game;

// What a strategy sees: the game between two rolls. Valid only while the
// strategy is being called.
struct Player {
  Game* game = nullptr;
  const Game& g() const;
};

class PythonStrategy : public TableWatcher {
 public:
  // `stop` is the run's stop request: a strategy that raises ends the run.
  PythonStrategy(py::function strategy, std::atomic<bool>& stop);
  void BeforeFirstRoll(Game& g) override { Call(g); }
  void LetInputRun(Game& g) override { Call(g); }
  // Raises, with the GIL held, what the strategy raised (or Ctrl-C's
  // KeyboardInterrupt, noticed between calls); the run stopped there.
  void RaiseAnyFailure();

 private:
  void Call(Game& g);
  py::function strategy_;
  py::object player_;  // a Player, handed to every call
  Player* view_;       // the same, as C++ sees it
  std::atomic<bool>& stop_;
  std::optional<py::error_already_set> failure_;
};

void AddPlayer(py::module_& m);
