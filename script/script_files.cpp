#include "script/script_files.h"

#include "engine/game.h"
#include "store/bet_file.h"
#include "script/script_file.h"

bool OpenScriptFile(Game& g, const std::string& path, std::string& error) {
  // A ".bet" file is refused in the program's own words, on the screen.
  if (IsBetFilePath(path)) {
    if (OpenAutoBetFile(g, path)) return true;
    error = "\"" + path + "\" was not opened";
    return false;
  }
  Script script;
  if (!LoadScriptFile(path, script, error)) return false;
  script.ChipStackNames = g.AutoBet.ChipStackNames;  // names belong to the table, not the file
  g.AutoBet = std::move(script);
  g.InitPending = true;
  return true;
}
