#pragma once
// Evaluation of one Condition line: sets pass.BlockTrue when the condition
// holds now and pass.LineJustNow when it has just now occurred.

#include "engine/game.h"
#include "script/pass_state.h"
#include "engine/script_line.h"

void EvaluateCondition(Game& g, PassState& pass, const ScriptLine& line);
