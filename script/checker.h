#pragma once
// The structure check of a script: labels, jumps, and the order of Start
// Conditions, Conditions, Start Actions and Actions. It reads only Kind, Code
// and label names; the interpreter does not depend on it.

#include <optional>
#include <string>

#include "engine/script.h"

struct Game;

struct ScriptFault {
  int Line = 0;       // the line to bring to the top of the editor
  std::string Title;
  std::string Text;   // the whole message, closing sentence included
  bool operator==(const ScriptFault&) const = default;
};

// The first fault, or nothing for a well-built (or empty) script.
std::optional<ScriptFault> CheckScript(const Script& script);

// The Check command: shows the fault, the all-clear, or that the script is
// empty. Returns the fault, if any, so the editor can scroll to it.
std::optional<ScriptFault> CheckBetsCommand(Game& g);
