#include "autoplay/bet_handling.h"

#include "engine/game.h"

// Placeholder until settlement is built.
void WonBetHandling(Game&, int) {}
void LostBetHandling(Game&, int) {}
