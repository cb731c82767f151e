#include "dice/generators.h"

// Placeholder until the generators are built.
void init_genrand(Mt19937& g, uint32_t seed) { g.mt[0] = seed; g.mti = 0; }
uint32_t genrand_int32(Mt19937& g) { return g.mt[0] = g.mt[0] * 1664525u + 1013904223u; }
double genrand_real2(Mt19937& g) { return genrand_int32(g) * (1.0 / 4294967296.0); }
void srandMT(CokusMt& g, uint32_t seed) { g.state[0] = seed; g.left = 0; }
uint32_t randomMT_int32(CokusMt& g) { return g.state[0] = g.state[0] * 1664525u + 1013904223u; }
double randomMT(CokusMt& g) { return randomMT_int32(g) * (1.0 / 4294967296.0); }
