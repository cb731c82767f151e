#include "sim/assemble_game.h"

#include "autoplay/bet_handling.h"
#include "engine/game.h"
#include "script/interpreter.h"
#include "script/script_files.h"
#include "stats/bankroll_graph.h"
#include "stats/bet_results.h"
#include "stats/phantom_ledger.h"
#include "stats/roll_counters.h"
#include "stats/statistics_sync.h"
#include "store/games_log_file.h"

void AssembleGame(Game& g) {
  GameHooks& h = g.Hooks;
  h.RollStarting = [](Game& game) {
    MoveResultMarks(game);
    AgeLatestThrow(game);
    StartRollTally(game);
  };
  h.DiceCounted = [](Game& game) {
    if (game.StatisticsInFull)
      UpdateRollCounters(game);
    else
      TallyRoll(game);
    OpenThrow(game);
  };
  h.ThrowSettled = CountThrow;
  h.PhantomsDue = FoldPhantoms;
  h.BetDecided = BookActualResult;
  h.WonBet = WonBetHandling;
  h.LostBet = LostBetHandling;
  h.BankrollBooked = RecordBankrollPoint;
  h.ScriptPass = RunAutoBet;
  h.RollsFinished = SyncStatistics;
  h.GameFinished = [](Game& game) {
    SyncStatistics(game);
    LogFinishedGame(game);
  };
  h.CountersCleared = [](Game& game) {
    DropBulkCounts(game);
    ClearBetResults(game);
  };
  h.BankrollSet = ClearBankrollGraph;
  h.OpenScriptFile = OpenScriptFile;
}
