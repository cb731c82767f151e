#include "python/py_values.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "engine/catalogue.h"

namespace {

py::object MakeClass(const char* name, py::tuple bases, const char* doc) {
  py::dict body;
  body["__module__"] = "dicemill";
  body["__doc__"] = doc;
  return py::reinterpret_borrow<py::object>(reinterpret_cast<PyObject*>(&PyType_Type))(name, bases, body);
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

const char* CodeName(TableCode code) {
  switch (code) {
    case TableCode::Done: return "done";
    case TableCode::Busy: return "busy";
    case TableCode::Refused: return "refused";
    case TableCode::Unknown: return "unknown";
    case TableCode::WrongType: return "wrong_type";
    case TableCode::OutOfRange: return "out_of_range";
    case TableCode::NotDone: return "not_done";
    case TableCode::Cancelled: return "cancelled";
  }
  return "refused";
}

}  // namespace

void AddExceptions(py::module_& m) {
  const py::module_ builtins = py::module_::import("builtins");
  const py::object refused = MakeClass("Refused", py::make_tuple(builtins.attr("Exception")),
                                       "The table refused a command; .code, .title and .text say why in its words.");
  m.attr("Refused") = refused;
  m.attr("Busy") = MakeClass("Busy", py::make_tuple(refused), "A run owns the table.");
  m.attr("Unknown") = MakeClass("Unknown", py::make_tuple(refused, builtins.attr("KeyError")),
                                "No such setting, bet or key.");
  m.attr("BadValue") = MakeClass("BadValue", py::make_tuple(refused, builtins.attr("ValueError")),
                                 "A value of the wrong kind, or out of range.");
}

void RaiseRefusal(const TableResult& r) {
  // The classes are looked up in the module: a refusal is rare, and the
  // module holds them for as long as the interpreter runs.
  const char* name = r.code == TableCode::Busy      ? "Busy"
                     : r.code == TableCode::Unknown ? "Unknown"
                     : r.code == TableCode::WrongType || r.code == TableCode::OutOfRange ? "BadValue"
                                                                                         : "Refused";
  const py::object kind = py::module_::import("dicemill").attr(name);
  py::object error = kind(r.text);
  error.attr("code") = CodeName(r.code);
  error.attr("title") = r.title;
  error.attr("text") = r.text;
  PyErr_SetObject(kind.ptr(), error.ptr());
  throw py::error_already_set();
}

void Require(const TableResult& r) {
  if (!r.Done()) RaiseRefusal(r);
}

Currency AmountOf(py::handle value, const char* what, bool signedOk) {
  Currency amount;
  if (py::isinstance<py::bool_>(value)) {
    amount = Currency(value.cast<bool>() ? 1 : 0);
  } else if (py::isinstance<py::int_>(value)) {
    const long long whole = value.cast<long long>();
    if (std::llabs(whole) > INT64_MAX / Currency::kScale) throw py::value_error(std::string(what) + " is too large");
    amount = Currency::FromRaw(whole * Currency::kScale);
  } else if (py::isinstance<py::float_>(value)) {
    const double v = value.cast<double>();
    if (!std::isfinite(v) || std::fabs(v) > 1e14) throw py::value_error(std::string(what) + " is not a finite amount");
    amount = Currency::FromDouble(v);
  } else if (py::isinstance<py::str>(value)) {
    std::string text = value.cast<std::string>();
    std::erase(text, '$');
    if (!ParseCurrency(text, amount))
      throw py::value_error(std::string(what) + " '" + value.cast<std::string>() + "' is not an amount such as 10, 2.5 or \"$1,000\"");
  } else {
    throw py::type_error(std::string(what) + " must be a number or an amount text, not " +
                         std::string(py::str(value.get_type().attr("__name__"))));
  }
  if (!signedOk && amount < 0) throw py::value_error(std::string(what) + " must not be negative");
  return amount;
}

py::object MoneyObject(Currency amount) {
  if (amount.IsWhole()) return py::int_(amount.raw / Currency::kScale);
  return py::float_(amount.ToDouble());
}

int BetIdOf(py::handle bet) {
  if (py::isinstance<py::int_>(bet) && !py::isinstance<py::bool_>(bet)) {
    const long long id = bet.cast<long long>();
    if (bet::IsTableBet(static_cast<int>(id)) || (id > bet::kFirstStack && id <= bet::kLastStack))
      return static_cast<int>(id);
    throw py::value_error("bet " + std::to_string(id) + " is out of range (1..83 table bets, 101..199 Chip-Stacks)");
  }
  if (!py::isinstance<py::str>(bet)) throw py::type_error("a bet is its id (an int) or its name (a str)");
  const std::string name = Lower(bet.cast<std::string>());
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id)
    if (Lower(std::string(bet::CatalogueName(id))) == name) return id;
  constexpr std::string_view kStack = "chip-stack #";
  if (name.starts_with(kStack) && name.size() > kStack.size() && name.size() <= kStack.size() + 2 &&
      std::all_of(name.begin() + kStack.size(), name.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)); })) {
    const int n = std::stoi(name.substr(kStack.size()));
    if (n >= 1 && bet::kFirstStack + n <= bet::kLastStack) return bet::kFirstStack + n;
  }
  throw py::value_error("'" + bet.cast<std::string>() + "' is no bet's name (\"Place 6\", \"Pass Line\", \"Chip-Stack #1\")");
}
