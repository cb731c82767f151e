#pragma once
// The jump verbs: "Go to" 117, "Gosub" 76 and "Return" 86. They only change
// the pass state; the interpreter then restarts its scan from line 1.

#include "script/pass_state.h"
#include "engine/script_line.h"
#include "engine/verb_codes.h"


// Carries out a jump verb and returns true; false for any other verb.
bool CarryOutJump(PassState& pass, const ScriptLine& line);

// The label as jumps compare it: lower-cased and trimmed.
std::string LabelKey(const std::string& name);
