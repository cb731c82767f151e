#include "python/py_script.h"

#include <pybind11/stl.h>

#include <optional>

#include "engine/frontend.h"
#include "engine/game.h"
#include "engine/catalogue.h"
#include "python/py_values.h"
#include "script/checker.h"
#include "script/text_form.h"
#include "sim/table.h"
#include "sim/told_front_end.h"
#include "sim/terminal_text.h"
#include "stats/advantage.h"

namespace {

// "LINE: Title", and the checker's message.
TableResult FaultResult(const ScriptFault& fault) {
  return TableResult::Fail(TableCode::Refused,
                           "line " + std::to_string(fault.Line) + ": " + fault.Title + "\n" + TerminalText(fault.Text) +
                               "\n(unchecked=True runs it anyway)",
                           fault.Title);
}

Script Checked(Script script, bool unchecked) {
  if (const std::optional<ScriptFault> fault = CheckScript(script); fault && !unchecked) RaiseRefusal(FaultResult(*fault));
  return script;
}

py::dict AdvantageRow(const Game& g, int id) {
  const Advantage a = FigureAdvantage(g, id);
  py::dict row;
  row["id"] = id;
  row["bet"] = std::string(bet::CatalogueName(id));
  row["ev_per_roll"] = a.EvPerRoll;
  row["ev_per_decision"] = a.EvPerDecision;
  row["rolls_per_decision"] = a.RollsPerDecision;
  row["var_per_roll"] = a.VarPerRoll;
  row["var_per_decision"] = a.VarPerDecision;
  return row;
}

}  // namespace

Script ReadCheckedScript(const std::string& path, bool unchecked) {
  ToldFrontEnd reader;
  Table table(reader);
  const TableResult read = table.ReadScript(path);
  if (!read.Done())
    RaiseRefusal(TableResult::Fail(read.code, path + ": " + (reader.told.empty() ? TerminalText(read.text) : reader.told)));
  return Checked(table.State().AutoBet, unchecked);
}

Script ScriptFromText(const std::string& text, bool unchecked) {
  Script script;
  std::string error;
  if (!ReadScriptText(text, script, error)) RaiseRefusal(TableResult::Fail(TableCode::WrongType, error));
  return Checked(std::move(script), unchecked);
}

void AddScriptTools(py::module_& m) {
  using namespace pybind11::literals;
  m.def("check_script", [](const std::string& text) {
    py::list found;
    Script script;
    std::string error;
    auto add = [&found](int line, const std::string& title, const std::string& message) {
      py::dict d;
      d["line"] = line;
      d["title"] = title;
      d["text"] = message;
      found.append(d);
    };
    if (!ReadScriptText(text, script, error)) {
      // "line 4: unknown word ..." from the reader of the text form.
      int line = 0;
      if (error.starts_with("line ")) line = std::atoi(error.c_str() + 5);
      add(line, "Text form", error);
    } else if (const std::optional<ScriptFault> fault = CheckScript(script)) {
      add(fault->Line, fault->Title, TerminalText(fault->Text));
    }
    return found;
  }, "text"_a, "The checker's findings for a script's text form: a list of {line, title, text}; empty when clean.");

  m.def("advantage", [](py::dict settings) {
    SilentFrontEnd ui;
    Table table(ui);
    table.StartFresh();
    for (const auto& [name, value] : settings) {
      const std::string key = py::str(name);
      Require(table.Set(key, AmountOf(value, ("setting " + key).c_str(), true)));
    }
    py::list rows;
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) rows.append(AdvantageRow(table.State(), id));
    return rows;
  }, "settings"_a = py::dict(),
     "Every bet's exact expected value and variance per unit bet under the settings given (fractions, not percent).");
}
