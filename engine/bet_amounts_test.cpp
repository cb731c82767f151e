#include "engine/bet_amounts.h"

#include <gtest/gtest.h>

#include <random>

namespace {

// Random writes of every kind, with each copy brought up to date at random
// moments: a copy must always come out equal to the amounts, and the money
// set must name exactly the table bets with money.
TEST(BetAmounts, CopiesAndTheMoneySetFollowEveryWrite) {
  BetAmounts amounts;
  std::array<BetAmounts::Amounts, BetAmounts::kCopies> copies{};
  std::mt19937 random(7);
  auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  for (int step = 0; step < 20'000; ++step) {
    const int slot = pick(bet::kSlots);
    switch (pick(6)) {
      case 0: amounts.Set(slot, pick(3) == 0 ? Currency() : Currency(pick(500))); break;
      case 1: amounts.Add(slot, Currency(pick(21) - 10)); break;
      case 2: amounts.Bankroll() += Currency(pick(100)); break;
      case 3: {  // a copy written from elsewhere
        const int copy = pick(BetAmounts::kCopies);
        copies[static_cast<size_t>(copy)][static_cast<size_t>(slot)] = Currency(-1);
        amounts.CopyEdited(copy);
        break;
      }
      default: {
        const int copy = pick(BetAmounts::kCopies);
        amounts.Sync(copy, copies[static_cast<size_t>(copy)]);
        ASSERT_EQ(copies[static_cast<size_t>(copy)], amounts.All()) << "step " << step;
      }
    }
    for (int id = 0; id < 128; ++id) {
      const bool tableBetWithMoney = id >= bet::kFirstTableBet && id <= bet::kLastTableBet && amounts[id] != 0;
      ASSERT_EQ(amounts.WithMoney().Has(id), tableBetWithMoney) << "bet " << id << " at step " << step;
    }
  }
}

}  // namespace
