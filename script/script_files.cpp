#include "script/script_files.h"

#include "engine/game.h"
#include "store/bet_file.h"
#include "script/script_file.h"

FileStatus OpenScriptFile(Game& g, const std::string& path) {
  if (IsBetFilePath(path)) return OpenAutoBetFile(g, path);
  Script script;
  if (FileStatus loaded = LoadScriptFile(path, script); !loaded) return loaded;
  script.ChipStackNames = g.AutoBet.ChipStackNames;  // names belong to the table, not the file
  g.AutoBet = std::move(script);
  g.InitPending = true;
  return {};
}
