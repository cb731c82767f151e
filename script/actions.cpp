#include "script/actions.h"

#include "script/jumps.h"
#include "script/verb_families.h"

void CarryOutAction(Game& g, PassState& pass, const ScriptLine& line) {
  if (CarryOutJump(pass, line)) return;
  TargetRange range;
  FindTargetRange(g, line, range);
  if (CarryOutAmountVerb(g, pass, line, range)) return;
  if (CarryOutTableVerb(g, line, range)) return;
  if (CarryOutMessageVerb(g, pass, line, range)) return;
  if (CarryOutSettingVerb(g, pass, line)) return;
  CarryOutFileVerb(g, line);
}
