// The `advantage` command of the play session: the advantage table of the
// game as it stands, or one bet's row.

#include "cli/advantage_tool.h"
#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/play_session.h"
#include "engine/catalogue.h"
#include "engine/game.h"
#include "sim/table.h"

void PlaySession::Advantage(const Args& a) {
  const Game& g = table_->State();
  Json rows = Json::array();
  if (a.empty()) {
    for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) rows.push_back(AdvantageRowJson(g, id));
  } else {
    const int id = ReadBetId(a[0]);
    if (!bet::IsTableBet(id)) throw CommandError("BetId " + a[0] + " is no table bet (1..83)");
    rows.push_back(AdvantageRowJson(g, id));
  }
  WriteJsonLine(out_, {{"advantage", rows}});
}
