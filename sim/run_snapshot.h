#pragma once
// What a screen draws while a run owns the game: a copy of the figures it
// shows, taken by the run between rolls. The screen reads only this copy
// until the run has ended, so it never touches the game on its own thread.

#include <array>
#include <cstdint>

#include "engine/catalogue.h"
#include "dice/money.h"
#include "stats/bankroll_graph.h"

struct Game;

struct RunSnapshot {
  bool Running = false;  // false in the copy taken as the run ended
  int64_t Rolls = 0;     // of the game, not of this run
  int32_t RollsLeft = 0; // of the Auto-Play roll count, as Auto-Roll counts it down
  Currency Bankroll, Rack, TotalOnTable;
  Currency HighBankroll, LowBankroll;
  int32_t Point = 0, Die1 = 0, Die2 = 0;
  std::array<Currency, bet::kSlots> Bets{};  // the amounts a redraw would show
  // The bankroll graph's window: points 1..GraphCount of it, oldest first,
  // and where it is drawn.
  int64_t GraphFirstRoll = 0;
  int32_t GraphCount = 0;
  Currency GraphTop, GraphScale;
  std::array<Currency, graph::kWindowPoints> GraphPoints{};
  std::array<Currency, graph::kWindowPoints> GraphAverages{};  // drawn when DisplayAverage
  bool DisplayAverage = false;
};

// Fills `shot` from the game without allocating: a long run takes one every
// few milliseconds.
void TakeRunSnapshot(const Game& g, bool running, RunSnapshot& shot);
