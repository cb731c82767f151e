#pragma once
// Scripts from Python: read and checked as `dicemill-cli run` reads them,
// and the checker's findings for a text.

#include <pybind11/pybind11.h>

#include <string>

#include "engine/script.h"

namespace py = pybind11;

// The script of a file (".bet" or text), refused with dicemill.Refused when
// it cannot be read or, unless `unchecked`, when the checker finds a fault.
Script ReadCheckedScript(const std::string& path, bool unchecked);
// The same for a script's text form.
Script ScriptFromText(const std::string& text, bool unchecked);

// check_script(text) and advantage(settings).
void AddScriptTools(py::module_& m);
