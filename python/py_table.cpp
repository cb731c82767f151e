#include "python/py_table.h"

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/catalogue.h"
#include "engine/frontend.h"
#include "engine/game.h"
#include "engine/payoff_rows.h"
#include "python/py_values.h"
#include "sim/fresh_table.h"
#include "sim/table.h"
#include "sim/table_listener.h"
#include "sim/table_state_json.h"

namespace {

// A message as the play protocol prints it: rows of a won or lost notice are
// a label and an amount joined by a tab, lines joined by a carriage return.
struct Message {
  std::string title, text;
};

// The screen of a Python table: every message is kept for the command that
// caused it, every question takes its default, except the offer to run a
// newly loaded script's first cycle, which is taken, as a run takes it.
class PythonFrontEnd : public SilentFrontEnd {
 public:
  Reply ShowMessage(const std::string& title, const std::string& text, Buttons b) override {
    messages.push_back({title, text});
    if (b == Buttons::YesNo && title == "Auto-Bet") return Reply::Yes;
    return SilentFrontEnd::ShowMessage(title, text, b);
  }
  std::optional<Currency> AskNumber(const std::string& title, const std::string& text, Currency offered) override {
    messages.push_back({title, text});
    return offered;
  }
  std::optional<SettleReply> ShowSettleNotice(const SettleNotice& notice) override {
    std::string text;
    for (const auto& [label, amount] : notice.rows) text += (text.empty() ? "" : "\r") + label + "\t" + amount;
    messages.push_back({notice.title, text});
    return std::nullopt;
  }
  std::vector<Message> messages;
};

// One settled bet of a roll.
struct SettledBet {
  int bet = 0;
  std::string name;
  // By what the bankroll gained: "win", "lose" or "push" (odds handed back
  // too). A Field that loses on a row paying -1 to 1 is a "lose" here.
  std::string outcome;
  Currency amount, net;
};

const char* OutcomeName(Currency net) { return net > 0 ? "win" : net < 0 ? "lose" : "push"; }

// What one roll did.
struct RollReport {
  int die1 = 0, die2 = 0, point = 0;
  std::vector<SettledBet> settlements;
  std::vector<Message> messages;
  std::string stopReason;
};

// Hears the table: keeps the roll's settlements and hands each change to the
// Python callback set for it. A callback that raises ends the command's
// telling; its exception is raised when the command returns.
class PythonListener : public TableListener {
 public:
  void BetChanged(int betId, Currency before, Currency after) override {
    Call("bet", betId, MoneyObject(before), MoneyObject(after));
  }
  void BankrollChanged(Currency bankroll, Currency rail) override {
    Call("bankroll", MoneyObject(bankroll), MoneyObject(rail));
  }
  void PointChanged(int point) override { Call("point", point); }
  void DiceThrown(int die1, int die2) override { Call("dice", die1, die2); }
  void RollFinished(std::span<const Settlement> settlements) override {
    if (keep) {
      settled.clear();
      for (const Settlement& s : settlements)
        settled.push_back({s.BetId, std::string(bet::CatalogueName(s.BetId)), OutcomeName(s.Net), s.Amount, s.Net});
    }
    if (callbacks.contains("roll")) Call("roll", py::cast(settled));
  }
  void RunStopped(StopReason reason) override { Call("stopped", std::string(StopReasonText(reason))); }

  template <class... Args>
  void Call(const std::string& event, Args&&... args) {
    const auto found = callbacks.find(event);
    if (found == callbacks.end() || failure) return;
    try {
      found->second(std::forward<Args>(args)...);
    } catch (py::error_already_set& e) {
      failure = std::move(e);
    }
  }
  void RaiseAnyFailure() {
    if (!failure) return;
    py::error_already_set e = std::move(*failure);
    failure.reset();
    throw e;
  }

  std::map<std::string, py::function> callbacks;
  std::optional<py::error_already_set> failure;
  bool keep = true;  // off in a strategy's loop, which reads no settlements
  std::vector<SettledBet> settled;
};

const std::vector<std::string>& EventNames() {
  static const std::vector<std::string> names = {"bet", "bankroll", "point", "dice", "roll", "stopped"};
  return names;
}

class PyTable {
 public:
  PyTable(std::optional<int64_t> seed, std::optional<int> rng, py::object bankroll, py::dict settings,
          std::optional<std::string> folder)
      : table_(std::make_unique<Table>(ui_)) {
    table_->Subscribe(&listener_);
    if (folder) {
      table_->StartUp(*folder, true);
    } else {
      FreshTable fresh;
      if (!bankroll.is_none()) fresh.bankroll = AmountOf(bankroll, "bankroll", true);
      table_->StartFresh(fresh);
    }
    if (rng) {
      if (*rng < 1 || *rng > 8) throw py::value_error("rng " + std::to_string(*rng) + " is no generator: give 1..8");
      Require(table_->Set("RngChoice", Currency(*rng - 1)));
    }
    if (seed) Require(table_->Seed(Currency::FromRaw(*seed * Currency::kScale)));
    for (const auto& [name, value] : settings) Set(py::str(name), py::reinterpret_borrow<py::object>(value));
    ui_.messages.clear();
  }
  ~PyTable() { table_->Unsubscribe(&listener_); }

  const Game& game() const { return table_->State(); }
  Table& table() { return *table_; }

  // Runs a command, then raises what a callback raised or the refusal.
  template <class R>
  R Done(R result) {
    listener_.RaiseAnyFailure();
    Require(result);
    return result;
  }

  py::object Bet(py::handle bet, py::handle amount) {
    const int id = BetIdOf(bet);
    Done(table_->Bet(id, AmountOf(amount, "amount")));
    return MoneyObject(game().BetAmount[id]);
  }
  void Remove(py::handle bet) { Done(table_->Remove(BetIdOf(bet))); }
  void RemoveAll() { Done(table_->RemoveAll()); }
  void CallBet(py::handle bet, bool on) { Done(table_->Call(BetIdOf(bet), on)); }
  int Buy(py::handle bet) { return Done(table_->Buy(BetIdOf(bet))).betId; }

  RollReport Roll(std::optional<std::pair<int, int>> dice) {
    ui_.messages.clear();
    RunResult r;
    if (dice) {
      const auto [d1, d2] = *dice;
      if (d1 < 1 || d1 > 6 || d2 < 1 || d2 > 6) throw py::value_error("dice must be two faces 1..6");
      r = table_->Roll(d1, d2);
    } else {
      r = table_->Roll();
    }
    Done(r);
    const Game& g = game();
    return {g.Die1, g.Die2, g.Point, listener_.settled, std::move(ui_.messages), StopReasonText(r.reason)};
  }

  // Calls `strategy(table)` before each of `rolls` rolls; the bankroll after
  // each roll, written straight into the array that is returned.
  py::array_t<double> Play(const py::function& strategy, int64_t rolls, py::object self) {
    if (rolls < 0) throw py::value_error("rolls must not be negative");
    py::array_t<double> bankrolls(rolls);
    double* out = bankrolls.mutable_data();
    listener_.keep = listener_.callbacks.contains("roll");
    int64_t done = 0;
    try {
      for (; done < rolls; ++done) {
        strategy(self);
        // Ctrl-C, which a strategy written in C would not notice itself.
        if (PyErr_CheckSignals() != 0) throw py::error_already_set();
        ui_.messages.clear();
        const RunResult r = Done(table_->Roll());
        out[done] = game().Bankroll().ToDouble();
        if (r.reason != StopReason::None) {
          ++done;
          break;
        }
      }
    } catch (...) {
      listener_.keep = true;
      throw;
    }
    listener_.keep = true;
    if (done < rolls) bankrolls.resize({done});
    return bankrolls;
  }

  void Set(const std::string& name, py::handle value) {
    Done(table_->Set(name, AmountOf(value, ("setting " + name).c_str(), true)));
  }
  py::object Get(const std::string& name) const {
    const SettingResult r = table_->Get(name);
    Require(r);
    return MoneyObject(r.value);
  }
  void Chip(int n, py::handle value) { Done(table_->SetChip(n, AmountOf(value, "chip value"))); }
  void Payoff(py::handle bet, py::handle win, py::handle per, bool toForm) {
    PayoffRecord p;
    p.Win = AmountOf(win, "win", true);
    p.Per = AmountOf(per, "per");
    p.Form = toForm ? Currency(-1) : Currency(0);
    Done(table_->SetPayoff(BetIdOf(bet), p));
  }
  py::object Atm(const std::string& action, py::handle amount) {
    if (action != "withdraw" && action != "deposit") throw py::value_error("atm action is 'withdraw' or 'deposit'");
    return MoneyObject(Done(table_->Atm(action == "withdraw" ? kAtmWithdraw : kAtmDeposit, AmountOf(amount, "amount"))).allowed);
  }
  void New(bool keepChipStacks) { Done(table_->New(keepChipStacks)); }
  void Save(const std::string& path) { Done(table_->SaveAs(path)); }
  void Open(const std::string& path) { Done(table_->Open(path)); }

  void LoadScript(std::optional<std::string> path, std::optional<std::string> text) {
    if (path.has_value() == text.has_value()) throw py::value_error("give a script's path or its text, one of them");
    if (path) return void(Done(table_->LoadScript(*path)));
    // The table reads scripts from files: the text goes through a file of
    // this table's own.
    const std::filesystem::path file = std::filesystem::temp_directory_path() /
                                       ("dicemill-script-" + std::to_string(reinterpret_cast<uintptr_t>(this)) + ".txt");
    std::ofstream(file, std::ios::binary) << *text;
    TableResult r = table_->LoadScript(file.string());
    std::filesystem::remove(file);
    // A refusal names the file: the caller gave no file but a text.
    for (size_t at; (at = r.text.find(file.string())) != std::string::npos;)
      r.text.replace(at, file.string().size(), "the script text");
    Done(r);
  }

  py::dict State() const {
    return py::module_::import("json").attr("loads")(TableStateJson(game()).dump());
  }
  std::vector<Message> TakeMessages() { return std::exchange(ui_.messages, {}); }

  void On(const std::string& event, py::object callback) {
    if (std::find(EventNames().begin(), EventNames().end(), event) == EventNames().end())
      throw py::value_error("no event '" + event + "': bet, bankroll, point, dice, roll or stopped");
    if (callback.is_none())
      listener_.callbacks.erase(event);
    else
      listener_.callbacks[event] = callback;
  }

 private:
  PythonFrontEnd ui_;  // outlives the table, which talks to it as it closes
  PythonListener listener_;
  std::unique_ptr<Table> table_;
};

}  // namespace

void AddTable(py::module_& m) {
  using namespace pybind11::literals;
  py::class_<Message>(m, "Message")
      .def_readonly("title", &Message::title)
      .def_readonly("text", &Message::text)
      .def("__repr__", [](const Message& s) { return "Message(" + s.title + ": " + s.text + ")"; });
  py::class_<SettledBet>(m, "Settlement")
      .def_readonly("bet", &SettledBet::bet)
      .def_readonly("name", &SettledBet::name)
      .def_readonly("outcome", &SettledBet::outcome)
      .def_property_readonly("amount", [](const SettledBet& s) { return MoneyObject(s.amount); })
      .def_property_readonly("net", [](const SettledBet& s) { return MoneyObject(s.net); })
      .def("__repr__", [](const SettledBet& s) {
        return "Settlement(" + s.name + ", " + s.outcome + ", amount " + std::string(py::str(MoneyObject(s.amount))) +
               ", net " + std::string(py::str(MoneyObject(s.net))) + ")";
      });
  py::class_<RollReport>(m, "Roll")
      .def_property_readonly("dice", [](const RollReport& r) { return std::make_pair(r.die1, r.die2); })
      .def_readonly("point", &RollReport::point)
      .def_readonly("settlements", &RollReport::settlements)
      .def_readonly("messages", &RollReport::messages)
      .def_readonly("stop_reason", &RollReport::stopReason);

  py::class_<PyTable>(m, "Table")
      .def(py::init<std::optional<int64_t>, std::optional<int>, py::object, py::dict, std::optional<std::string>>(),
           py::kw_only(), "seed"_a = py::none(), "rng"_a = py::none(), "bankroll"_a = py::none(),
           "settings"_a = py::dict(), "folder"_a = py::none(),
           "A fresh table (or, with folder, the default game of that data folder).")
      .def("bet", &PyTable::Bet, "bet"_a, "amount"_a, "Adds `amount` to the bet, as a player's chips; returns what stands on it.")
      .def("remove", &PyTable::Remove, "bet"_a)
      .def("remove_all", &PyTable::RemoveAll)
      .def("call_on", [](PyTable& t, py::handle bet) { t.CallBet(bet, true); }, "bet"_a)
      .def("call_off", [](PyTable& t, py::handle bet) { t.CallBet(bet, false); }, "bet"_a)
      .def("buy", &PyTable::Buy, "bet"_a, "Turns a Place bet into a Buy bet; returns the Buy bet's id.")
      .def("roll", &PyTable::Roll, "dice"_a = py::none(), "A roll of the generator, or of the dice given.")
      .def("play", [](py::object self, const py::function& strategy, int64_t rolls) {
             return self.cast<PyTable&>().Play(strategy, rolls, self);
           }, "strategy"_a, "rolls"_a,
           "Calls strategy(table) before each roll; returns the bankroll after every roll (NumPy).")
      .def("set", &PyTable::Set, "name"_a, "value"_a)
      .def("get", &PyTable::Get, "name"_a)
      .def("chip", &PyTable::Chip, "n"_a, "value"_a)
      .def("payoff", &PyTable::Payoff, "bet"_a, "win"_a, "per"_a, "to"_a = true)
      .def("atm", &PyTable::Atm, "action"_a, "amount"_a, "Returns the amount the ATM moved.")
      .def("new", &PyTable::New, "keep_chip_stacks"_a = false)
      .def("save", &PyTable::Save, "path"_a)
      .def("open", &PyTable::Open, "path"_a)
      .def("load_script", &PyTable::LoadScript, py::kw_only(), "path"_a = py::none(), "text"_a = py::none())
      .def("state", &PyTable::State, "The table as the play protocol's state object.")
      .def("messages", &PyTable::TakeMessages, "The messages shown since the last roll or call.")
      .def("on", &PyTable::On, "event"_a, "callback"_a)
      .def_property_readonly("point", [](const PyTable& t) { return t.game().Point; })
      .def_property_readonly("bankroll", [](const PyTable& t) { return MoneyObject(t.game().Bankroll()); })
      .def_property_readonly("rack", [](const PyTable& t) { return MoneyObject(t.game().Bankroll() - t.game().TotalOnTable); })
      .def_property_readonly("dice", [](const PyTable& t) { return std::make_pair(t.game().Die1, t.game().Die2); })
      .def_property_readonly("roll_count", [](const PyTable& t) { return t.game().RollCounts[0]; })
      .def("amount", [](const PyTable& t, py::handle bet) { return MoneyObject(t.game().BetAmount[BetIdOf(bet)]); }, "bet"_a);
}
