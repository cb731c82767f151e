#pragma once
// The visible wording of a script line, rendered from its codes.

#include <string>

#include "engine/script_line.h"

// At most kLineTextWidth characters.
std::string LineText(const ScriptLine& line);
