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

// Counts the roll now on the table (Die1, Die2) in full: every selection
// the dice satisfy; the gaps grow and the rolled ones clear.
void UpdateRollCounters(Game& g);

// In a run the rolls are tallied by pair of dice instead (Game::Tally) and
// the figures above are written when something reads them.
// The top of a roll: the values before it are what the script compares with.
void StartRollTally(Game& g);
// Tallies the roll now on the table.
void TallyRoll(Game& g);
// Writes what was tallied into RollCounts, RollsSinceLast and their
// Previous copies, and empties the tally.
void WriteRollCounters(Game& g);

// One selection's figures now and before this roll, tally included.
struct EventFigures {
  int32_t count = 0, countBefore = 0;
  int32_t since = 0, sinceBefore = 0;
};
EventFigures FiguresOf(const Game& g, int index);
