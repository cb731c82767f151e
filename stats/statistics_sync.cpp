#include "stats/statistics_sync.h"

#include "engine/game.h"
#include "stats/phantom_ledger.h"
#include "stats/roll_counters.h"

void SyncStatistics(Game& g) {
  WriteRollCounters(g);
  FoldPhantoms(g);
}

void DropBulkCounts(Game& g) {
  g.Tally = {};
  g.Phantoms = {};
  g.PhantomsDeferred = false;
}
