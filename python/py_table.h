#pragma once
// dicemill.Table: one game, driven through the table's command interface.

#include <pybind11/pybind11.h>

namespace py = pybind11;

void AddTable(py::module_& m);
