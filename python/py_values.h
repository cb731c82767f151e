#pragma once
// The values that cross between Python and the table: money, bet ids, and
// the exceptions a refusal raises.

#include <pybind11/pybind11.h>

#include <string>

#include "dice/money.h"
#include "sim/table_result.h"

namespace py = pybind11;

// Makes dicemill.Refused and its kinds (Busy, Unknown, BadValue) on `m`.
void AddExceptions(py::module_& m);

// Raises the Python exception of a refused command: Unknown (also a
// KeyError) for no such setting or bet, BadValue (also a ValueError) for a
// value of the wrong kind or range, Refused for the rest. Carries the code,
// title and the table's exact text.
[[noreturn]] void RaiseRefusal(const TableResult& result);
// Raises when the command was not done.
void Require(const TableResult& result);

// An amount from Python: an int, a float (rounded to 1/10,000) or a text
// such as "$1,000.50". Negative amounts raise ValueError where `signedOk` is false.
Currency AmountOf(py::handle value, const char* what, bool signedOk = false);
// Money to Python: an int when whole, else the float nearest the exact value.
py::object MoneyObject(Currency amount);

// A bet by id (1..83, Chip-Stacks 101..199) or by its name ("Place 6", any
// case, or "Chip-Stack #3"); ValueError for anything else.
int BetIdOf(py::handle bet);
