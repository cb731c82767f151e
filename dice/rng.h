#pragma once
// The eight numbered generators and the draw of two dice. The game seeds
// them by its settings (engine/seed.h).

#include <cstdint>
#include <string>

#include "dice/dice_pair.h"

struct DiceState;
struct Ran1State;
struct Ran2State;

constexpr int kRngCount = 8;

// "RNG #1" .. "RNG #8 (#1 single call)", in list order (RngChoice 0..7);
// "" for any other index.
const char* RngListText(int rngChoice);

// Numerical Recipes ran1/ran2 over explicit state. A negative idum
// re-initialises; Ran1 then sets idum to 1, Ran2 leaves it alone. A broken
// state puts the program's error text into errorText and yields 0. The
// caller keeps 54773 - idum (Ran1) and 150889 - idum (Ran2) inside 32 bits.
float Ran1(Ran1State& s, int32_t& idum, std::string& errorText);
float Ran2(Ran2State& s, int32_t& idum, std::string& errorText);
// True when re-initialising with this idum would leave 32-bit arithmetic.
bool Ran1InitOverflows(int32_t idum);
bool Ran2InitOverflows(int32_t idum);

// Generator #3: steps ModSeed and returns 1..range.
int32_t RanMod(DiceState& d, int32_t range);

// Sets Die1 and Die2 from the selected generator. #6 and #7 alternate by
// rollCount, the game's rolls before this one; a broken generator state puts
// its error text into errorText. Allocates nothing.
void DrawDice(DiceState& d, int32_t rollCount, std::string& errorText);

// The one draw x per roll that percentage dice map to a pair: 1..100,000,
// or up to 100,001 from #4, #5 and their halves of #6 and #7.
int32_t DrawPercentageX(DiceState& d, int32_t rollCount, std::string& errorText);
