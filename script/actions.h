#pragma once
// Execution of one Action line. Bets change through placement as a player's
// would; an error that must abort the pass is thrown as ScriptError.

#include "engine/game.h"
#include "script/pass_state.h"
#include "engine/script_line.h"

void CarryOutAction(Game& g, PassState& pass, const ScriptLine& line);
