#pragma once
// The few figures of a table a screen draws, taken before and after a
// command so that only what changed is told.

#include <array>
#include <cstdint>
#include <vector>

#include "engine/catalogue.h"
#include "dice/money.h"

struct Game;
class TableListener;

struct TableSnapshot {
  std::array<Currency, bet::kFirstStack + 1> Bets{};  // bankroll, table bets, rail, checks
  Currency Rail;
  int32_t Point = 0;
  int32_t Rolls = 0;
  uint64_t Flags = 0;   // digest of the script's Flags
  uint64_t Stacks = 0;  // digest of the Chip-Stacks
  bool Unsaved = false;
};

TableSnapshot TakeTableSnapshot(const Game& g);

// Tells every listener what differs between the two, dice and point first,
// then the bets and the bankroll, then what the roll decided.
void TellChanges(const TableSnapshot& before, const TableSnapshot& after, const Game& g,
                 const std::vector<TableListener*>& listeners);
