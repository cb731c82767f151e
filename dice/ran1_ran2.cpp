// Numerical Recipes (first edition) ran1 and ran2. The reciprocals are the
// decimal literals the program has always used, not exact quotients: changing
// them would change every recorded stream.

#include <cstdint>

#include "dice/generators.h"
#include "dice/rng.h"

namespace {

constexpr int32_t M1 = 259200, IA1 = 7141, IC1 = 54773;
constexpr int32_t M2 = 134456, IA2 = 8121, IC2 = 28411;
constexpr int32_t M3 = 243000, IA3 = 4561, IC3 = 51349;
constexpr double RM1 = 3.8580247e-06;
constexpr double RM2 = 7.4373773e-06;

constexpr int32_t M = 714025, IA = 1366, IC = 150889;
constexpr double RM = 1.4005112e-06;

constexpr int32_t kTableSize = 97;

// The literal RM1 is a little above 1/M1, so the top entries can round up to
// 1.0; they are kept just below it so that no die shows 7.
float Ran1Entry(int32_t ix1, int32_t ix2) {
  float entry = static_cast<float>((ix1 + ix2 * RM2) * RM1);
  constexpr float kBelowOne = 1.0f - 1.0f / (1 << 24);
  return entry < 1.0f ? entry : kBelowOne;
}

// Table index 1..97 of a state: Int(state x 97 / modulus) + 1. Int is the
// floor, so a negative (broken) state falls outside the table.
int32_t TableIndex(int32_t state, int32_t modulus) {
  int32_t scaled = state * kTableSize;
  int32_t quotient = scaled / modulus;
  if (scaled % modulus != 0 && scaled < 0) --quotient;
  return quotient + 1;
}

bool InTable(int32_t j) { return j >= 1 && j <= kTableSize; }

}  // namespace

float Ran1(Ran1State& s, int32_t& idum, std::string& errorText) {
  if (idum < 0 || s.iff == 0) {
    s.iff = 1;
    s.ix1 = static_cast<int32_t>((int64_t{IC1} - idum) % M1);
    s.ix1 = (s.ix1 * IA1 + IC1) % M1;
    s.ix2 = s.ix1 % M2;
    s.ix1 = (s.ix1 * IA1 + IC1) % M1;
    s.ix3 = s.ix1 % M3;
    for (int32_t j = 1; j <= kTableSize; ++j) {
      s.ix1 = (s.ix1 * IA1 + IC1) % M1;
      s.ix2 = (s.ix2 * IA2 + IC2) % M2;
      s.r[j] = Ran1Entry(s.ix1, s.ix2);
    }
    idum = 1;
  }
  s.ix1 = (s.ix1 * IA1 + IC1) % M1;
  s.ix2 = (s.ix2 * IA2 + IC2) % M2;
  s.ix3 = (s.ix3 * IA3 + IC3) % M3;
  s.j = TableIndex(s.ix3, M3);
  if (!InTable(s.j)) {
    errorText = "An error occurred in function Ran1\r";
    return 0;
  }
  float result = s.r[s.j];
  s.r[s.j] = Ran1Entry(s.ix1, s.ix2);
  return result;
}

float Ran2(Ran2State& s, int32_t& idum, std::string& errorText) {
  if (idum < 0 || s.iff == 0) {
    s.iff = 1;
    s.idum = static_cast<int32_t>((int64_t{IC} - idum) % M);
    for (int32_t j = 1; j <= kTableSize; ++j) {
      s.idum = (s.idum * IA + IC) % M;
      s.ir[j] = s.idum;
    }
    s.idum = (s.idum * IA + IC) % M;
    s.iy = s.idum;
  }
  s.j = TableIndex(s.iy, M);
  if (!InTable(s.j)) {
    errorText = "An error occurred in function Ran2\r";
    return 0;
  }
  s.iy = s.ir[s.j];
  float result = static_cast<float>(s.iy * RM);
  s.idum = (s.idum * IA + IC) % M;
  s.ir[s.j] = s.idum;
  return result;
}

bool Ran1InitOverflows(int32_t idum) { return int64_t{IC1} - idum > INT32_MAX; }
bool Ran2InitOverflows(int32_t idum) { return int64_t{IC} - idum > INT32_MAX; }
