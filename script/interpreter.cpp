#include "script/interpreter.h"

void RunAutoBet(Game&) {}
void TakeScriptSnapshots(Game&) {}
void OfferInitialCycle(Game& g) { g.InitPending = false; }
