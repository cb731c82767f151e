#pragma once
// dicemill.run and dicemill.run_json: batches of headless games, reported
// as `dicemill-cli run --json` reports them.

#include <pybind11/pybind11.h>

namespace py = pybind11;

void AddRun(py::module_& m);
