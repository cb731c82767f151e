// The game file commands of the play session: open a saved game, save this one.

#include "cli/command_error.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "engine/game.h"
#include "store/game_file.h"

namespace {

Json GameJson(const Game& g) {
  return {{"file", g.GameFileName},
          {"caption", g.TableCaption},
          {"script", g.AutoBet.FileName},
          {"diceFile", g.DiceFile.RollFileName},
          {"rolls", g.RollCounts[0]}};
}

}  // namespace

void PlaySession::OpenGameFile(const Args& a) {
  if (!ShowFileStatus(*game_, OpenGame(*game_, a[0]))) throw CommandError("\"" + a[0] + "\" was not opened");
  WriteJsonLine(out_, {{"opened", GameJson(*game_)}});
}

void PlaySession::SaveGameFile(const Args& a) {
  if (!ShowFileStatus(*game_, SaveGame(*game_, a[0]))) throw CommandError("\"" + a[0] + "\" was not saved");
  WriteJsonLine(out_, {{"saved", GameJson(*game_)}});
}
