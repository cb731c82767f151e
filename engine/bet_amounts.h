#pragma once
// The money on every slot of the table (the bankroll, the bets, the checks
// and the Chip-Stacks), written only through this class so that it knows
// which bets have money and which slots changed since its two copies were
// last brought up to date: a roll then settles just the bets with money and
// refreshes just the slots that moved.

#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/catalogue.h"
#include "engine/slot_bits.h"

class BetAmounts {
 public:
  using Amounts = std::array<Currency, bet::kSlots>;
  using BetBits = SlotBits<2>;  // bets 0..127
  // The copies kept of the amounts: the roll's start and after-pass snapshots.
  static constexpr int kCopies = 2;

  Currency operator[](int slot) const { return amounts_[static_cast<size_t>(slot)]; }
  const Amounts& All() const { return amounts_; }
  auto begin() const { return amounts_.begin(); }
  auto end() const { return amounts_.end(); }

  void Set(int slot, Currency amount) {
    amounts_[static_cast<size_t>(slot)] = amount;
    for (Slots& behind : behind_) behind.Add(slot);
    if (static_cast<unsigned>(slot - bet::kFirstTableBet) <= bet::kLastTableBet - bet::kFirstTableBet) {
      if (amount.raw != 0)
        money_.Add(slot);
      else
        money_.Remove(slot);
    }
  }
  void Add(int slot, Currency change) { Set(slot, amounts_[static_cast<size_t>(slot)] + change); }
  void Assign(const Amounts& all) {
    for (int slot = 0; slot < bet::kSlots; ++slot) Set(slot, all[static_cast<size_t>(slot)]);
  }
  // The bankroll moves on most rolls: it is written in place and every
  // copy takes it afresh.
  Currency& Bankroll() { return amounts_[bet::kBankroll]; }

  // The table bets with money on them.
  const BetBits& WithMoney() const { return money_; }

  // Brings copy `copy` up to date with the amounts: only the slots written
  // since it last was, and the bankroll.
  void Sync(int copy, Amounts& to) {
    const size_t self = static_cast<size_t>(copy);
    if (whole_[self]) {
      CopyArray(to, amounts_);
    } else {
      to[bet::kBankroll] = amounts_[bet::kBankroll];
      behind_[self].ForEach([&](int slot) {
        to[static_cast<size_t>(slot)] = amounts_[static_cast<size_t>(slot)];
      });
    }
    whole_[self] = false;
    behind_[self] = {};
  }
  // Copy `copy` was written elsewhere: the next Sync rewrites it whole.
  void CopyEdited(int copy) { whole_[static_cast<size_t>(copy)] = true; }

 private:
  using Slots = SlotBits<4>;
  static_assert(bet::kSlots <= 256);

  Amounts amounts_{};
  BetBits money_;
  // The slots written since each copy's last sync.
  std::array<Slots, kCopies> behind_{};
  std::array<bool, kCopies> whole_{true, true};
};
