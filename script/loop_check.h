#pragma once
// The loops a script check can prove endless: a Go to or GoSub back to a
// label above it, where nothing between the label and the jump can lead
// anywhere else. Either the jump is unconditional (in a "Do this" block) and
// no other jump lies between; or no other action lies between at all, so
// that once the jump is taken the same conditions meet the same table and
// take it again. Other loops are caught while running (kMostLinesPerPass).

#include <optional>

#include "script/checker.h"
#include "engine/script.h"

// The first such loop as a warning: the line is the jump's.
std::optional<ScriptFault> FindEndlessLoop(const Script& script);
