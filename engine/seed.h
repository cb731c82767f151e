#pragma once
// The game's dice: seeding by the game's settings (the clock or the player's
// answer) and the draw of the game's roll.

#include <cstdint>

struct Game;

// Seeds the selected generator. Silent uses SeedRequest as it stands;
// otherwise UserSeedMode decides between the clock and a prompt.
void SeedRNG(Game& g, bool silent);

// Seeds the five base generators from the clock, as start-up does, and
// leaves generator #1 selected.
void SeedAtStartUp(Game& g);

// The dice of the game's next roll from the selected generator; a broken
// generator leaves its text in ErrorText.
void DrawDice(Game& g);
int32_t DrawPercentageX(Game& g);
