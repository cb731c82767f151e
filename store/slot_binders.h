#pragma once
// One list of fields serves both saving and reading: a field list calls its
// binder with (slot, field) and the binder puts or gets the slot. Integers
// and booleans are kept as Currency slots holding value x 10,000; true is -1.

#include <limits>

#include "engine/game.h"
#include "store/game_record.h"

struct CurrencySlotPut {
  FileRecord& r;
  void operator()(int slot, Currency v) const { PutCurrency(r, slot, v); }
  void operator()(int slot, int32_t v) const { PutCurrency(r, slot, Currency(v)); }
  void operator()(int slot, bool v) const { PutCurrency(r, slot, Currency(v ? kTrue : 0)); }
};

struct CurrencySlotGet {
  const FileRecord& r;
  void operator()(int slot, Currency& v) const { v = GetCurrency(r, slot); }
  void operator()(int slot, int32_t& v) const {
    constexpr int64_t lo = std::numeric_limits<int32_t>::min(), hi = std::numeric_limits<int32_t>::max();
    const int64_t whole = GetCurrency(r, slot).raw / Currency::kScale;
    v = static_cast<int32_t>(whole < lo ? lo : whole > hi ? hi : whole);
  }
  void operator()(int slot, bool& v) const { v = GetCurrency(r, slot).raw != 0; }
};
