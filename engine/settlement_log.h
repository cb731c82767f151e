#pragma once
// What this roll decided, bet by bet, for screens that show the payouts. It
// lives inside the game and never grows, so a roll allocates nothing.

#include <array>
#include <cstdint>

#include "dice/money.h"
#include "engine/outcome.h"

struct Settlement {
  int32_t BetId = 0;
  ::Outcome Outcome = ::Outcome::Win;
  Currency Amount;      // the bet as it was settled
  Currency Net;         // what the bankroll gained or lost; 0 for a push or odds handed back
};

struct SettlementLog {
  // Every table bet is decided at most once a roll; the rest is headroom.
  static constexpr int kCapacity = 128;
  std::array<Settlement, kCapacity> Entries{};
  int32_t Count = 0;

  void Clear() { Count = 0; }
  void Add(int betId, ::Outcome outcome, Currency amount, Currency net) {
    if (Count < kCapacity) Entries[Count++] = {betId, outcome, amount, net};
  }
};
