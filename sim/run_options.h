#pragma once
// What a headless strategy run is asked to do: the same for every game of a
// batch except the seed, which goes up by one per game.

#include <cstdint>
#include <optional>
#include <string>

#include "dice/money.h"

struct Game;

// Gets the table whenever it lets queued input run (after every roll, and
// now and then inside a long script pass), and may work it there as a player
// would between rolls. One watcher serves one game at a time.
class TableWatcher {
 public:
  virtual ~TableWatcher() = default;
  virtual void LetInputRun(Game& g) = 0;
  // A player who sits at the game from its start (a strategy written in
  // Python) is handed the table here too, after the script's first cycle:
  // LetInputRun is first called after the first roll.
  virtual void BeforeFirstRoll(Game&) {}
};

struct RunOptions {
  std::string ScriptPath;     // ".bet" or text; empty: no script
  std::string DicePath;       // a Dice Roll File to play back; empty: the generator
  int Rng = 0;                // 1..8; 0 keeps the table's default generator
  int64_t Seed = 1;           // game i is seeded with Seed + FirstGame + i
  int64_t FirstGame = 0;      // where this batch starts in a larger one split over machines
  int64_t Rolls = 1'000'000;  // per game; 0 for no count: the roll ceiling stops it
  std::optional<Currency> Bankroll;  // the starting bankroll; default the table's
  int Games = 1;
  int Threads = 0;            // 0: every core
  // A saved game every game starts from; its script, dice and settings stand
  // unless the options above name others. Without ReSeed the generators go
  // on from their saved state.
  std::string GameFile;
  bool ReSeed = true;
  // End a game once the rack and the table together cannot cover the table
  // minimum; such a game counts as ruined.
  bool StopAtRuin = false;
  TableWatcher* Watcher = nullptr;  // for one game at a time: a batch would share it
};
