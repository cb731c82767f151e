#include "sim/assemble_game.h"

#include "autoplay/bet_handling.h"
#include "engine/game.h"
#include "script/interpreter.h"
#include "script/script_files.h"
#include "stats/bankroll_graph.h"
#include "stats/bet_results.h"
#include "stats/roll_counters.h"
#include "store/games_log_file.h"

void AssembleGame(Game& g) {
  GameHooks& h = g.Hooks;
  h.RollStarting = MoveResultMarks;
  h.DiceCounted = UpdateRollCounters;
  h.BetDecided = [](Game& game, int betId, Currency stake, Currency net) {
    BookBetResult(game, results::kActual, betId, stake, net);
  };
  h.WonBet = WonBetHandling;
  h.LostBet = LostBetHandling;
  h.BankrollBooked = RecordBankrollPoint;
  h.ScriptPass = RunAutoBet;
  h.GameFinished = LogFinishedGame;
  h.CountersCleared = ClearBetResults;
  h.BankrollSet = ClearBankrollGraph;
  h.OpenScriptFile = OpenScriptFile;
}
