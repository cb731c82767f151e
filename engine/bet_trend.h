#pragma once
// The latest results of one bet actually made, for the trends view: signed
// net amounts and the roll count of each, oldest first.
//
// A ring: a busy table decides several bets a roll, and shifting the cells on
// every decision cost more than the rest of the bookkeeping of that decision.

#include <algorithm>
#include <array>
#include <cstdint>

#include "dice/money.h"

class BetTrend {
 public:
  static constexpr int kCells = 10;
  using Nets = std::array<Currency, kCells>;
  using Rolls = std::array<int32_t, kCells>;

  int Count() const { return count_; }
  // Result i of the kept ones, 0 the oldest.
  Currency Net(int i) const { return net_[Slot(i)]; }
  int32_t Roll(int i) const { return roll_[Slot(i)]; }

  // Keeps a new result, dropping the oldest when every cell is taken.
  void Push(Currency net, int32_t roll) {
    if (count_ < kCells) {
      net_[Slot(count_)] = net;
      roll_[Slot(count_)] = roll;
      ++count_;
      return;
    }
    net_[oldest_] = net;
    roll_[oldest_] = roll;
    oldest_ = oldest_ + 1 == kCells ? 0 : oldest_ + 1;
  }

  // The cells as a saved game holds them: oldest first, `count` of them kept.
  void Restore(const Nets& nets, const Rolls& rolls, int count) {
    net_ = nets;
    roll_ = rolls;
    count_ = std::clamp(count, 0, kCells);
    oldest_ = 0;
  }
  Nets NetsOldestFirst() const {
    Nets out{};
    for (int i = 0; i < kCells; ++i) out[static_cast<size_t>(i)] = Net(i);
    return out;
  }
  Rolls RollsOldestFirst() const {
    Rolls out{};
    for (int i = 0; i < kCells; ++i) out[static_cast<size_t>(i)] = Roll(i);
    return out;
  }

 private:
  size_t Slot(int i) const {
    const int slot = oldest_ + i;
    return static_cast<size_t>(slot >= kCells ? slot - kCells : slot);
  }

  Nets net_{};
  Rolls roll_{};
  int32_t count_ = 0;
  int32_t oldest_ = 0;  // the cell of the oldest result
};
