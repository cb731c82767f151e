#include "sim/table_snapshot.h"

#include <algorithm>
#include <span>

#include "engine/game.h"
#include "sim/table_listener.h"

namespace {

// FNV-1a: a change of any Flag or Chip-Stack changes the digest; nothing
// is kept but the 64 bits.
constexpr uint64_t kFnvBasis = 14695981039346656037ULL;
constexpr uint64_t kFnvPrime = 1099511628211ULL;

uint64_t Mix(uint64_t digest, uint64_t value) {
  for (int i = 0; i < 8; ++i) digest = (digest ^ ((value >> (8 * i)) & 0xff)) * kFnvPrime;
  return digest;
}

uint64_t FlagsDigest(const Game& g) {
  uint64_t d = Mix(kFnvBasis, g.AutoBet.Flags.size());
  for (const Flag& f : g.AutoBet.Flags) d = Mix(d, static_cast<uint16_t>(f.FlagValue));
  return d;
}

uint64_t StacksDigest(const Game& g) {
  uint64_t d = kFnvBasis;
  for (int id = bet::kFirstStack; id <= bet::kLastStack; ++id) d = Mix(d, static_cast<uint64_t>(g.BetAmount[id].raw));
  return d;
}

}  // namespace

TableSnapshot TakeTableSnapshot(const Game& g) {
  TableSnapshot s;
  std::copy_n(g.BetAmount.begin(), s.Bets.size(), s.Bets.begin());
  s.Rail = g.Bankroll() - g.TotalOnTable;
  s.Point = g.Point;
  s.Rolls = g.RollCounts[0];
  s.Flags = FlagsDigest(g);
  s.Stacks = StacksDigest(g);
  s.Unsaved = g.GameChanged;
  return s;
}

void TellChanges(const TableSnapshot& before, const TableSnapshot& after, const Game& g,
                 const std::vector<TableListener*>& listeners) {
  const bool rolled = after.Rolls != before.Rolls;
  for (TableListener* l : listeners) {
    if (rolled && after.Rolls > before.Rolls) l->DiceThrown(g.Die1, g.Die2);
    if (after.Point != before.Point) l->PointChanged(after.Point);
    for (int id = bet::kFirstTableBet; id < static_cast<int>(after.Bets.size()); ++id)
      if (after.Bets[id] != before.Bets[id]) l->BetChanged(id, before.Bets[id], after.Bets[id]);
    if (after.Bets[bet::kBankroll] != before.Bets[bet::kBankroll] || after.Rail != before.Rail)
      l->BankrollChanged(after.Bets[bet::kBankroll], after.Rail);
    if (rolled && after.Rolls > before.Rolls)
      l->RollFinished(std::span<const Settlement>(g.Settlements.Entries.data(), g.Settlements.Count));
    if (rolled) l->StatisticsRefreshed();
    if (after.Flags != before.Flags) l->FlagsChanged();
    if (after.Stacks != before.Stacks) l->ChipStacksChanged();
    if (after.Unsaved != before.Unsaved) l->UnsavedChanged(after.Unsaved);
  }
}
