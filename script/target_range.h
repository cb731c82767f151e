#pragma once
// The slots an Action line acts upon, from its Target and TargetNum.

#include "engine/game.h"
#include "engine/script_line.h"

struct TargetRange {
  int first = 1;
  int last = 0;               // first > last: no slot at all
  bool outsidePlace = false;  // 31..36 without 33 and 34
  bool placeGuard = false;    // a Place target: keep off the point and the Come numbers

  bool Empty() const { return first > last; }
};

// Fills the caller's range field by field: a record this small returned by
// value is put together in memory and read back whole, which stalls.
void FindTargetRange(const Game& g, const ScriptLine& line, TargetRange& range);

// Whether the verb passes over this slot of the range: the outside-Place gap,
// and, with a Pass Line bet up and Place bets kept off the point, the Place
// bets on the point or on a number that carries a Come bet.
bool SkipsSlot(const Game& g, const TargetRange& range, int slot);

// Calls fn(slot) for every slot of the range the verb acts upon, first to last.
template <typename Fn>
void ForEachSlot(const Game& g, const TargetRange& range, Fn fn) {
  for (int slot = range.first; slot <= range.last; ++slot)
    if (!SkipsSlot(g, range, slot)) fn(slot);
}
