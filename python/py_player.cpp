#include "python/py_player.h"

#include <pybind11/stl.h>

#include "engine/game.h"
#include "engine/place_bet.h"
#include "python/py_values.h"

const Game& Player::g() const {
  if (!game) throw std::runtime_error("a Player is only valid while its strategy is being called");
  return *game;
}

PythonStrategy::PythonStrategy(py::function strategy, std::atomic<bool>& stop)
    : strategy_(std::move(strategy)), player_(py::cast(Player{})), view_(&player_.cast<Player&>()), stop_(stop) {}

void PythonStrategy::Call(Game& g) {
  if (failure_) return;
  py::gil_scoped_acquire held;
  view_->game = &g;
  try {
    strategy_(player_);
    // Python code notices Ctrl-C as it runs, a strategy written in C does
    // not: a look at Python's pending-signal flag, no system call.
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
  } catch (py::error_already_set& e) {
    failure_ = std::move(e);
    g.KeepRolling = false;  // the game ends at this roll
    stop_ = true;           // and no other game starts
  }
  view_->game = nullptr;
}

void PythonStrategy::RaiseAnyFailure() {
  if (!failure_) return;
  py::error_already_set e = std::move(*failure_);
  failure_.reset();
  throw e;
}

void AddPlayer(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<Player>(m, "Player", "The table as a strategy in run() sees it between two rolls.")
      .def_property_readonly("point", [](const Player& p) { return p.g().Point; })
      .def_property_readonly("bankroll", [](const Player& p) { return MoneyObject(p.g().Bankroll()); })
      .def_property_readonly("rack", [](const Player& p) { return MoneyObject(p.g().Bankroll() - p.g().TotalOnTable); })
      .def_property_readonly("dice", [](const Player& p) { return std::make_pair(p.g().Die1, p.g().Die2); })
      .def_property_readonly("roll_count", [](const Player& p) { return p.g().RollCounts[0]; })
      .def("amount", [](const Player& p, py::handle bet) { return MoneyObject(p.g().BetAmount[BetIdOf(bet)]); }, "bet"_a)
      .def("bet", [](Player& p, py::handle bet, py::handle amount) {
             const int id = BetIdOf(bet);
             const Currency change = AmountOf(amount, "amount");
             p.g();
             // Through the table's one gate, as a player's chips go: the
             // rules may cut the change, silently in a headless run.
             p.game->BetChange = change;
             PlaceBetOnTable(*p.game, id);
             return MoneyObject(p.game->BetAmount[id]);
           }, "bet"_a, "amount"_a, "Adds `amount` to the bet; returns what stands on it.")
      .def("remove", [](Player& p, py::handle bet) {
             const int id = BetIdOf(bet);
             p.g();
             TakeDownBet(*p.game, id);
           }, "bet"_a);
}
