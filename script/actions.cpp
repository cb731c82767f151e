#include "script/actions.h"

void CarryOutAction(Game&, PassState&, const ScriptLine&) {}
