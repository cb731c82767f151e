#pragma once
// The roll statistics: every roll is counted under each selection it
// satisfies, and the gap since each selection last came up is kept.

#include "engine/game.h"

// Selections by index (the dice event code less 2000).
namespace event {
constexpr int kAllNumbers = 1;
constexpr int kFirstDie1Face = 78;  // + face - 1
constexpr int kFirstDie2Face = 84;
constexpr int kCount = 91;
}  // namespace event

// True when a throw of die1, die2 satisfies selection `index` (1..90).
bool SatisfiesEvent(int index, int die1, int die2);

// Counts the roll now on the table (Die1, Die2): all rolls, and every
// selection the dice satisfy; the gaps grow and the rolled ones clear.
void UpdateRollCounters(Game& g);
