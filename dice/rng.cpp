#include "dice/rng.h"

#include "engine/game.h"

// Placeholder until the generators are built.
const char* RngListText(int) { return "RNG #1"; }
void SeedRNG(Game& g, bool) { init_genrand(g.Rng.mt, static_cast<uint32_t>(g.SeedRequest.ToDouble())); }
float Ran1(Ran1State&, int32_t&, std::string&) { return 0; }
float Ran2(Ran2State&, int32_t&, std::string&) { return 0; }
int32_t RanMod(Game&, int32_t range) { return range; }
void DrawDice(Game& g) {
  g.Die1 = static_cast<int32_t>(genrand_real2(g.Rng.mt) * 6) + 1;
  g.Die2 = static_cast<int32_t>(genrand_real2(g.Rng.mt) * 6) + 1;
}
