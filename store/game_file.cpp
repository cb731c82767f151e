#include "store/game_file.h"

bool SaveGame(Game&, const std::string&) { return false; }
bool OpenGame(Game&, const std::string&) { return false; }
