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

  BetAmounts() { unsynced_.fill(kEverySlot); }

  Currency operator[](int slot) const { return amounts_[static_cast<size_t>(slot)]; }
  const Amounts& All() const { return amounts_; }
  const Currency* data() const { return amounts_.data(); }
  static constexpr size_t size() { return bet::kSlots; }
  auto begin() const { return amounts_.begin(); }
  auto end() const { return amounts_.end(); }

  void Set(int slot, Currency amount) {
    amounts_[static_cast<size_t>(slot)] = amount;
    for (Slots& changed : unsynced_) changed.Add(slot);
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
    Slots& changed = unsynced_[static_cast<size_t>(copy)];
    if (changed == kEverySlot) {
      CopyArray(to, amounts_);
    } else {
      to[bet::kBankroll] = amounts_[bet::kBankroll];
      changed.ForEach([&](int slot) { to[static_cast<size_t>(slot)] = amounts_[static_cast<size_t>(slot)]; });
    }
    changed = {};
  }
  // Copy `copy` was written elsewhere: the next Sync rewrites it whole.
  void CopyEdited(int copy) { unsynced_[static_cast<size_t>(copy)] = kEverySlot; }

 private:
  using Slots = SlotBits<4>;
  static constexpr Slots kEverySlot{{~uint64_t{0}, ~uint64_t{0}, ~uint64_t{0}, ~uint64_t{0}}};
  static_assert(bet::kSlots <= 256);

  Amounts amounts_{};
  BetBits money_;
  std::array<Slots, kCopies> unsynced_;
};
