#include "script/actions.h"

#include "script/jumps.h"

void CarryOutAction(Game&, PassState& pass, const ScriptLine& line) { CarryOutJump(pass, line); }
