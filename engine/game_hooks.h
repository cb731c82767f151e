#pragma once
// What the layers built on the table hang on its roll, its settlements and
// its new game: statistics, the bankroll graph, Auto-Play's handling of a
// decided bet, the Auto-Bet script and the games log. The table calls them
// at fixed points and knows nothing of what they do; a null hook means
// nothing hangs there. Plain function pointers keep a roll's calls cheap
// and leave the game free of anything it would have to own.

#include <string>

#include "dice/money.h"
#include "engine/file_status.h"

struct Game;
struct SettleNotice;

struct GameHooks {
  // --- The roll, in the order it calls them ---------------------------------
  // The top of a roll, before its dice: what the last roll booked is aged.
  void (*RollStarting)(Game& g) = nullptr;
  // The dice are read and the point has moved: the roll is counted, and
  // the statistics say whether they count the throw's phantom units whole
  // (Game::PhantomsDeferred) or the settling books each as it goes.
  void (*DiceCounted)(Game& g) = nullptr;
  // Every bet of the throw is settled: a throw counted whole is counted.
  void (*ThrowSettled)(Game& g) = nullptr;
  // A throw counted whole must be booked piece by piece after all: what was
  // counted before it goes into the results first, so they stay in order.
  void (*PhantomsDue)(Game& g) = nullptr;
  // A working bet with money on it is decided; net is what it won or lost.
  void (*BetDecided)(Game& g, int betId, Currency stake, Currency net) = nullptr;
  // What becomes of a bet that won (or odds returned) or lost; the notice
  // is the question the player was asked, or null.
  void (*WonBet)(Game& g, int betId, const SettleNotice* notice) = nullptr;
  void (*LostBet)(Game& g, int betId, const SettleNotice* notice) = nullptr;
  // The roll's bankroll is final.
  void (*BankrollBooked)(Game& g) = nullptr;
  // The Auto-Bet pass after a roll; called only when the script is on and
  // has lines.
  void (*ScriptPass)(Game& g) = nullptr;
  // The roll or run is over: what was counted in bulk is written out to the
  // figures that screens, reports and files read.
  void (*RollsFinished)(Game& g) = nullptr;

  // --- A new game --------------------------------------------------------------
  // The finished game, before anything of it is cleared.
  void (*GameFinished)(Game& g) = nullptr;
  // The counters are cleared; the new bankroll is not set yet.
  void (*CountersCleared)(Game& g) = nullptr;
  // The new game's bankroll is set.
  void (*BankrollSet)(Game& g) = nullptr;

  // --- Files ---------------------------------------------------------------------
  // Opens a script file into the game, as the script's own open does,
  // handing back what to tell; with no hook a game file's script link opens
  // nothing.
  FileStatus (*OpenScriptFile)(Game& g, const std::string& path) = nullptr;
};
