#include "script/script_files.h"

#include "engine/game.h"
#include "store/bet_file.h"

bool OpenScriptFile(Game& g, const std::string& path, std::string& error) {
  if (OpenAutoBetFile(g, path)) return true;
  error = "\"" + path + "\" was not opened";
  return false;
}
