#include "testkit/long_runs.h"

#include <stdexcept>
#include <string>

#include "engine/game.h"
#include "script/script_files.h"
#include "testkit/busy_table.h"
#include "test_paths.h"

namespace {

constexpr int64_t kSeed = 20261124;
// The busy table stakes about $100 a roll; a deep bankroll keeps it at the
// table for the whole run.
constexpr int kBusyBankroll = 1'000'000;

// Hands the table to the caller's watcher first, then to the player.
class Both : public TableWatcher {
 public:
  Both(TableWatcher* first, TableWatcher* second) : first_(first), second_(second) {}
  void LetInputRun(Game& g) override {
    if (first_) first_->LetInputRun(g);
    if (second_) second_->LetInputRun(g);
  }

 private:
  TableWatcher* first_;
  TableWatcher* second_;
};

}  // namespace

PlayedRun PlayLongRun(const LongRun& run, int64_t rolls, TableWatcher* watcher) {
  PlayedRun played;
  RunOptions& o = played.Options;
  o.Seed = kSeed;
  o.Rolls = rolls;
  Script script;
  if (run.Kind == Layout::Sample) {
    o.ScriptPath = std::string(DICEMILL_SOURCE_DIR) + "/samples/" + run.Name + ".txt";
    // Read as `run` reads it: into a fresh table, which lends its names.
    Game reader;
    SilentFrontEnd ui;
    reader.Ui = &ui;
    const FileStatus opened = OpenScriptFile(reader, o.ScriptPath);
    if (!opened) throw std::runtime_error(o.ScriptPath + ": " + opened.FirstMessage());
    script = reader.AutoBet;
  }
  BusyTable busy;
  if (run.Kind == Layout::Busy) o.Bankroll = Currency(kBusyBankroll);
  Both both(watcher, run.Kind == Layout::Busy ? &busy : nullptr);
  o.Watcher = &both;
  RunControl control;
  played.Result = RunGame(o, script, 0, control);  // game 0 plays o.Seed
  o.Watcher = nullptr;
  return played;
}
