#pragma once
// The sound sets the game can choose from.

#include <string>
#include <vector>

// Each list in name order, each name once. A stickman set is the group of
// files that end "01.stk" to "18.stk": its name is the file name less those
// six characters. The other sets are single files, named without the
// extension. An empty list means no such sounds.
struct SoundSets {
  std::vector<std::string> Stickman;  // "*.stk"
  std::vector<std::string> Dice;      // "*.dce"
  std::vector<std::string> Win;       // "*.win"
  std::vector<std::string> Chips;     // "*.chp"
};
