#pragma once
// The sound sets found in the data folder at start-up.

#include <string>

#include "engine/sound_sets.h"

// Extensions match in any case. A folder that can't be read lists nothing.
SoundSets ListSoundSets(const std::string& folder);
