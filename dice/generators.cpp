#include "dice/generators.h"

namespace {

constexpr int N = 624;
constexpr int M = 397;
constexpr uint32_t kMatrixA = 0x9908B0DFu;
constexpr uint32_t kUpperMask = 0x80000000u;
constexpr uint32_t kLowerMask = 0x7FFFFFFFu;
constexpr double kTwoToMinus32 = 1.0 / 4294967296.0;

uint32_t TwistWord(uint32_t upper, uint32_t lower, uint32_t far) {
  uint32_t y = (upper & kUpperMask) | (lower & kLowerMask);
  return far ^ (y >> 1) ^ ((y & 1u) ? kMatrixA : 0u);
}

// Regenerates all N words in place. Both libraries share the recurrence;
// they differ only in seeding and in how they step through the words.
void Reload(uint32_t* s) {
  int k = 0;
  for (; k < N - M; ++k) s[k] = TwistWord(s[k], s[k + 1], s[k + M]);
  for (; k < N - 1; ++k) s[k] = TwistWord(s[k], s[k + 1], s[k + M - N]);
  s[N - 1] = TwistWord(s[N - 1], s[0], s[M - 1]);
}

uint32_t Temper(uint32_t y) {
  y ^= y >> 11;
  y ^= (y << 7) & 0x9D2C5680u;
  y ^= (y << 15) & 0xEFC60000u;
  return y ^ (y >> 18);
}

}  // namespace

void init_genrand(Mt19937& g, uint32_t seed) {
  g.mt[0] = seed;
  for (int i = 1; i < N; ++i) {
    uint32_t prev = g.mt[i - 1];
    g.mt[i] = 1812433253u * (prev ^ (prev >> 30)) + static_cast<uint32_t>(i);
  }
  g.mti = N;
}

uint32_t genrand_int32(Mt19937& g) {
  if (g.mti >= N) {
    if (g.mti == N + 1) init_genrand(g, 5489u);
    Reload(g.mt.data());
    g.mti = 0;
  }
  return Temper(g.mt[g.mti++]);
}

double genrand_real2(Mt19937& g) { return genrand_int32(g) * kTwoToMinus32; }

void srandMT(CokusMt& g, uint32_t seed) {
  uint32_t x = seed | 1u;
  g.state[0] = x;
  for (int j = 1; j < N; ++j) g.state[j] = (x *= 69069u);
  g.left = 0;
  g.next = 0;
}

uint32_t randomMT_int32(CokusMt& g) {
  if (--g.left < 0) {
    if (g.left < -1) srandMT(g, 4357u);
    Reload(g.state.data());
    g.left = N - 1;
    g.next = 1;
    return Temper(g.state[0]);
  }
  return Temper(g.state[g.next++]);
}

double randomMT(CokusMt& g) { return randomMT_int32(g) * kTwoToMinus32; }
