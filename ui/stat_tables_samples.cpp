#include "ui/stat_tables_samples.h"

#include <vector>

#include "engine/catalogue.h"
#include "engine/game.h"
#include "script/text_form.h"
#include "sim/table.h"
#include "stats/games_log.h"
#include "store/bet_file.h"
#include "store/games_log_file.h"

namespace {

constexpr int kLoggedGames = 120;
constexpr int kRollsPerGame = 40;

constexpr const char* kStopLossScript =
    "When\n  Initializing Auto-Bet\nor while\n  Flag \"recorded\" is False\nthen\n"
    "  Name Chip-Stack #1 \"stop-loss\"\n  Bet 100% of bankroll on Chip-Stack #1\n"
    "  Subtract $200 from Chip-Stack #1\n  Set flag \"recorded\" to True\n"
    "  Set flag \"pressed\" to False\n"
    "While\n  Flag \"pressed\" is False\nthen\n  Name Chip-Stack #2 \"press unit\"\n  Bet $12 on Chip-Stack #2\n  Set flag \"pressed\" to True\n";

// A player's session: a Pass Line bet on each come-out, Place 6 and 8 once
// a point stands.
void PlaySession(Table& table, int rolls) {
  for (int i = 0; i < rolls; ++i) {
    const Game& g = table.State();
    if (g.Point == 0 && g.BetAmount[bet::kPassLine] == 0) (void)table.Bet(bet::kPassLine, 10);
    if (g.Point != 0) {
      for (int number : {6, 8})
        if (g.BetAmount[static_cast<size_t>(bet::Place(number))] == 0) (void)table.Bet(bet::Place(number), 12);
    }
    (void)table.Roll();
  }
}

}  // namespace

void FillSampleStatTables(Table& table, const std::string& folder) {
  std::vector<GameLogRecord> games;
  for (int n = 0; n < kLoggedGames; ++n) {
    table.StartFresh();
    (void)table.Seed(Currency(n + 1));  // each session its own dice
    PlaySession(table, kRollsPerGame + n % 17);
    games.push_back(FinishedGameRecord(table.State()));
  }
  table.StartFresh();
  (void)table.Seed(Currency(kLoggedGames + 1));
  const std::string log = folder + "/sample.glg";
  if (AppendGamesToLog(log, games)) (void)table.OpenGamesLog(log);

  Script script;
  std::string error;
  const std::string bet = folder + "/stop-loss.bet";
  if (ReadScriptText(kStopLossScript, script, error) && SaveBetFile(bet, script)) (void)table.LoadScript(bet);
  (void)table.RunScriptPass();
  (void)table.SetTrayStack(7, 1);
  (void)table.SetTrayStack(8, 2);
  PlaySession(table, 30);
}
