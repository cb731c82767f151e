#pragma once
// The amount each bet was last found to pay whole at, with the check and the
// payoff unit it was worked from. Putting a bet back at the amount it had is
// the commonest placement of a run, and knowing the answer spares the
// automatic adjustment its division.

#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/catalogue.h"

class WholePayoffMemo {
 public:
  bool Knows(int betId, Currency amount, Currency per, Currency chip) const {
    const Entry& e = entries_[static_cast<size_t>(betId)];
    // A zero amount is never asked about: a fresh entry matches nothing.
    return e.amount == amount.raw && e.per == per.raw && e.chip == chip.raw;
  }
  void Remember(int betId, Currency amount, Currency per, Currency chip) {
    entries_[static_cast<size_t>(betId)] = {amount.raw, per.raw, chip.raw};
  }

 private:
  struct Entry {
    int64_t amount = 0, per = 0, chip = 0;
  };
  std::array<Entry, bet::kLastTableBet + 1> entries_{};
};
