#include "script/values.h"

#include <cmath>

#include "engine/subject_codes.h"
#include "script/comparison_codes.h"

namespace {

Currency SumSlots(const std::array<Currency, bet::kSlots>& amounts, int first, int last) {
  Currency sum;
  for (int i = first; i <= last; ++i) sum += amounts[i];
  return sum;
}

// The 1000 family of the "of" list: its groups are numbered one lower than
// the condition groups and add the inside and outside Place rows.
Currency GroupSum(const std::array<Currency, bet::kSlots>& a, int code) {
  switch (code) {
    case subject::kAllBets: return SumSlots(a, 1, 83);
    case subject::kLayBets: return SumSlots(a, 1, 6);
    case subject::kDontComeBets: return SumSlots(a, 7, 12);
    case subject::kDontComeOddsBets: return SumSlots(a, 13, 18);
    case subject::kComeBets: return SumSlots(a, 19, 24);
    case subject::kComeOddsBets: return SumSlots(a, 25, 30);
    case subject::kPlaceBets: return SumSlots(a, 31, 36);
    case subject::kInsidePlace: return SumSlots(a, 32, 35);
    case subject::kOutsidePlace: return a[31] + a[32] + a[35] + a[36];
    case subject::kBuyBets: return SumSlots(a, 37, 42);
    default: return Currency();
  }
}

int LiveBets(const Game& g) {
  int n = 0;
  for (int i = bet::kFirstTableBet; i <= bet::kLastTableBet; ++i) n += g.BetAmount[i] > Currency() ? 1 : 0;
  return n;
}

// Shared by both readers; `last` picks the amounts as the roll started and
// the last shooter's counters.
Currency ValueOf(const Game& g, int code, int num, bool last) {
  const auto& amounts = last ? g.BetAtRollStart() : g.BetAmount.All();
  const auto& h = g.HandStats;
  if (code >= 0 && code <= bet::kLastTableBet) return amounts[code];
  if (code >= subject::kAllBets && code <= subject::kBuyBets) return GroupSum(amounts, code);
  switch (code) {
    case subject::kGameRolls: return Currency(g.RollCounts[0]);
    case subject::kShooterRolls: return Currency(last ? h[hand::kLastHandRolls] : h[hand::kRolls]);
    case subject::kGamePasses: return Currency(h[hand::kAllWins]);
    case subject::kShooterPasses: return Currency(last ? h[hand::kLastHandWins] : h[hand::kWins]);
    case subject::kGameMisses: return Currency(h[hand::kAllLosses]);
    case subject::kShooterMisses: return Currency(last ? h[hand::kLastHandLossesInRow] : h[hand::kLossesInRow]);
    case subject::kBankroll: return g.Bankroll();
    case subject::kAverageBankroll: return AverageBankroll(g);
    case subject::kHighestBankroll: return last ? g.HighBankroll : Max(g.HighBankroll, g.Bankroll());
    case subject::kLowestBankroll: return last ? g.LowBankroll : Min(g.LowBankroll, g.Bankroll());
    case subject::kAvailableBankroll: return g.Bankroll() - g.TotalOnTable;
    case subject::kChipStack:
      return num >= 0 && num + bet::kFirstStack < bet::kSlots ? g.BetAmount[num + bet::kFirstStack] : Currency();
    case subject::kChipStackRef: {
      const int ref = ChipStackReference(g, num);
      return ref < 0 ? Currency() : amounts[ref + bet::kFirstStack];
    }
    case subject::kDecidedWagerCount:
    case subject::kDecidedWagerAmount: {  // actual decided wagers: their count, or their amount
      const int measure = code == subject::kDecidedWagerCount ? 1 : 2;
      Currency sum;
      for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) sum += g.BetWagers[1][id][measure];
      return sum;
    }
    case subject::kCurrentWagerCount: return Currency(LiveBets(g));
    case subject::kCurrentWagerAmount: return g.TotalOnTable;
    case subject::kPointLay:
    case subject::kPointCome:
    case subject::kPointComeOdds:
    case subject::kPointPlace:
    case subject::kPointBuy: {
      const int id = ShootersPointBet(g, code);
      return id == 0 ? Currency() : amounts[id];
    }
    default: return Currency();
  }
}

}  // namespace

int ChipStackReference(const Game& g, int num) {
  if (num < 0 || num + bet::kFirstStack >= bet::kSlots) return -1;
  const int64_t whole = Floor(g.BetAmount[num + bet::kFirstStack]);
  return whole >= 0 && whole < 100 ? static_cast<int>(whole) : -1;
}

int ShootersPointBet(const Game& g, int code) {
  int base = 0;
  switch (code) {
    case subject::kPointLay: base = 1; break;
    case subject::kPointCome: base = 19; break;
    case subject::kPointComeOdds: base = 25; break;
    case subject::kPointPlace: base = 31; break;
    case subject::kPointBuy: base = 37; break;
    default: return 0;
  }
  if (g.Point == 0) return 0;
  return base - 4 + g.Point - g.Point / 7;
}

Currency GetValue(const Game& g, int code, int num) { return ValueOf(g, code, num, false); }
Currency GetLastValue(const Game& g, int code, int num) { return ValueOf(g, code, num, true); }

bool CompareValues(Currency left, int code, Currency right) {
  // A comparison with a target's value works as the one with an amount.
  if (comparison::AgainstTarget(code)) code -= comparison::kTargetOffset;
  switch (code) {
    case comparison::kEqual: return left == right;
    case comparison::kNotEqual: return left != right;
    case comparison::kMore: return left > right;
    case comparison::kNotMore: return !(left > right);
    case comparison::kLess: return left < right;
    case comparison::kNotLess: return !(left < right);
    default: return false;
  }
}
