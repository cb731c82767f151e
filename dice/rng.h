#pragma once
// The eight numbered generators, their seeding and the draw of two dice.

#include <cstdint>
#include <string>

struct Game;
struct Ran1State;
struct Ran2State;

// "RNG #1" .. "RNG #8 (#1 single call)", in list order (RngChoice 0..7).
const char* RngListText(int rngChoice);

// Seeds the selected generator. Silent uses SeedRequest as it stands;
// otherwise UserSeedMode decides between the clock and a prompt.
void SeedRNG(Game& g, bool silent);

// Numerical Recipes ran1/ran2 over explicit state. A negative idum
// re-initialises. Errors go to errorText as the program reports them.
float Ran1(Ran1State& s, int32_t& idum, std::string& errorText);
float Ran2(Ran2State& s, int32_t& idum, std::string& errorText);

// Generator #3: steps ModSeed and returns 1..range.
int32_t RanMod(Game& g, int32_t range);

// Sets Die1 and Die2 from the selected generator. Allocates nothing.
void DrawDice(Game& g);
