#pragma once
// A Hot-Key pressed on the table: one pass of the bound Auto-Bet file, beside
// the script that runs after each roll, which then comes back as it was.

struct Game;

enum class HotKeyOutcome {
  Ran,
  NotBound,   // no binding for the key: nothing happens
  Busy,       // a pass is already under way
  NotOpened,  // the bound file was refused, with its message shown
};

// Opens the bound file (a relative path is taken from the data folder), sets
// HotKeyRun for one RunAutoBet, then restores the previous script from
// "active.tmp": its lines, its name, its Flags and whether it was saved.
// Should the working copy be unreadable, the copy kept in memory stands in.
HotKeyOutcome RunHotKey(Game& g, char key);
