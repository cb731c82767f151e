#pragma once
// State of the base generators. All of it lives in the game object, so two
// games never share a stream.

#include <array>
#include <cstdint>

// MT19937 as in the reference code (init_genrand, genrand_real2).
struct Mt19937 {
  std::array<uint32_t, 624> mt{};
  int mti = 625;  // 625: not yet initialised; the first draw seeds with 5489
};

// The Cokus variant of the Mersenne Twister, with its own seeding.
struct CokusMt {
  std::array<uint32_t, 625> state{};
  int next = 0;   // index of the next word to temper
  int left = -1;  // words left before a reload; -1: not yet seeded
};

// Numerical Recipes (first edition) ran1: three congruential generators and a
// shuffle table of 97 single-precision entries.
struct Ran1State {
  std::array<float, 98> r{};
  int32_t iff = 0;
  int32_t ix1 = 0, ix2 = 0, ix3 = 0;
  int32_t j = 0;
};

// Numerical Recipes (first edition) ran2: one congruential generator and a
// shuffle table of 97 integers.
struct Ran2State {
  std::array<int32_t, 98> ir{};
  int32_t iff = 0;
  int32_t iy = 0;
  int32_t j = 0;
  int32_t idum = 0;
};

struct Generators {
  Mt19937 mt;
  CokusMt cokus;
  Ran1State ran1;
  Ran2State ran2;
};

void init_genrand(Mt19937& g, uint32_t seed);
uint32_t genrand_int32(Mt19937& g);
double genrand_real2(Mt19937& g);  // [0,1): the 32-bit output times 1/4294967296

// Cokus seeding: the seed forced odd, then a 69069 congruential fill, so
// seeds 2k and 2k+1 give the same stream. An unseeded generator seeds
// itself with 4357 on its first draw.
void srandMT(CokusMt& g, uint32_t seed);
uint32_t randomMT_int32(CokusMt& g);
double randomMT(CokusMt& g);  // [0,1): the 32-bit output times 1/4294967296
