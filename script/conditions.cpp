#include "script/conditions.h"

void EvaluateCondition(Game&, PassState&, const ScriptLine&) {}
