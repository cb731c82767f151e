#pragma once
// A Hot-Key of the game: a key that runs an Auto-Bet file.

#include <string>

// One binding. The label is the player's own note on what the file does; it
// is listed beside the key and plays no part in running it.
struct HotKeyBinding {
  char Key = 0;          // 'A'..'Z' or '0'..'9'
  std::string File;      // path of the Auto-Bet file, as defined
  std::string Label;
};
