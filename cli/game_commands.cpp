// The game file commands of the play session: open a saved game, save this one.

#include "cli/command_error.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/table_answer.h"
#include "engine/game.h"
#include "sim/table.h"

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
  Require(table_->Open(a[0]));
  WriteJsonLine(out_, {{"opened", GameJson(table_->State())}});
}

void PlaySession::SaveGameFile(const Args& a) {
  Require(table_->SaveAs(a[0]));
  WriteJsonLine(out_, {{"saved", GameJson(table_->State())}});
}
