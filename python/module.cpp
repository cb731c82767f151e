// The `dicemill` module: Dicemill's table for Python.

#include <pybind11/pybind11.h>

#include "python/py_player.h"
#include "python/py_run.h"
#include "python/py_script.h"
#include "python/py_table.h"
#include "python/py_values.h"

PYBIND11_MODULE(dicemill, m) {
  m.doc() = "Dicemill's craps table: every bet settled exactly, strategies in Python or as scripts, fast runs.";
  AddExceptions(m);
  AddTable(m);
  AddPlayer(m);
  AddRun(m);
  AddScriptTools(m);
}
