#include "autoplay/bet_handling.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

namespace {

constexpr int kPlace6 = bet::Place(6);

// A $12 Place 6 winning $14 under the option or the button chosen.
Currency AfterPlace6Win(int wonBetAction, std::optional<int> button = std::nullopt) {
  TestTable t;
  t.g.WonBetAction = wonBetAction;
  t.ui.settleReplies.push_back(button);
  t.Stand(kPlace6, 12);
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(Outcome::Win, kPlace6), Currency(14));
  EXPECT_EQ(t.g.TotalOnTable, t.g.BetAmount[kPlace6]);
  EXPECT_EQ(t.ui.notices.size(), wonBetAction == 0 ? 1u : 0u);
  EXPECT_EQ(t.g.NoticeMask, kNoticeDefault);
  return t.g.BetAmount[kPlace6];
}

// A $10 Field bet losing 10/per on a 5 under the option or the button chosen.
Currency AfterFieldLoss(int handleLosingBets, int per, std::optional<int> button = std::nullopt) {
  TestTable t;
  t.g.HandleLosingBets = handleLosingBets;
  t.g.FieldPayoff.Set(5, {-1, -1, per});
  t.ui.settleReplies.push_back(button);
  t.Stand(bet::kField, 10);
  t.Dice(1, 4, 0);
  SettleBet(t.g, Outcome::Win, bet::kField);
  EXPECT_EQ(t.g.TotalOnTable, t.g.BetAmount[bet::kField]);
  EXPECT_EQ(t.g.NoticeMask, kNoticeDefault);
  return t.g.BetAmount[bet::kField];
}

}  // namespace

TEST(WonBetHandling, ByOptionAndByButton) {
  // $12 won $14, unit $6: take, same, press a unit, double, parlay, same +0, bet 0.
  const int left[] = {0, 12, 18, 24, 26, 12, 0};
  for (int option = 1; option <= 7; ++option) EXPECT_EQ(AfterPlace6Win(option), Currency(left[option - 1])) << option;
  for (int button = 0; button <= 6; ++button) EXPECT_EQ(AfterPlace6Win(0, button), Currency(left[button])) << button;
  EXPECT_EQ(AfterPlace6Win(0, std::nullopt), Currency(12));
}

TEST(WonBetHandling, ModifiedFormsAndResultNotices) {
  // Entries: operator, amount, units (-1 $, 0 %, 2..6 checks); $12 before the roll.
  const struct { int option, entry, op; Currency amount; int units, left; } cases[] = {
      {6, kModifyWonSame, 0, 3, -1, 15},  {6, kModifyWonSame, 1, 5, -1, 7},  {6, kModifyWonSame, 2, 2, -1, 24},
      {6, kModifyWonSame, 2, 0, -1, 0},   {6, kModifyWonSame, 3, 2, -1, 6},  {6, kModifyWonSame, 3, 0, -1, 12},
      {6, kModifyWonSame, 0, 50, 0, 18},  {6, kModifyWonSame, 0, 1, 3, 42},  {7, kModifyWonBet, 0, 30, -1, 30},
      {7, kModifyWonBet, 0, 2, 3, 60},    {7, kModifyWonBet, 0, 200, 0, 24}, {6, kModifyWonBet, 0, 9, -1, 12},
      {0, kModifyDialogSame, 0, 6, -1, 18}, {0, kModifyWonSame, 0, 6, -1, 12}};
  for (const auto& c : cases) {
    TestTable t;
    t.g.WonBetAction = c.option;
    t.ui.settleReplies.push_back(5);
    t.g.ModifyOperator[c.entry] = c.op;
    t.g.ModifyAmount[c.entry] = c.amount;
    t.g.ModifyUnits[c.entry] = c.units;
    t.Stand(kPlace6, 12);
    t.Dice(2, 4, 5);
    t.Settle(Outcome::Win, kPlace6);
    EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(c.left)) << c.option << " entry " << c.entry << " op " << c.op;
    EXPECT_EQ(t.g.TotalOnTable, Currency(c.left));
  }

  // Press, double and parlay tell the result against the bet before the roll.
  const struct { int option; int32_t mask; bool hyper; std::vector<RecordedMessage> said; } told[] = {
      {3, kNoticeDefault, false, {{"Press 1 Unit Place 6", "Bet increased by: $6"}}},
      {4, kNoticeDefault, false, {{"Press Double Place 6", "Bet increased by: $12"}}},
      {5, kNoticeDefault, false, {{"Parlay Place 6", "Bet increased by: $14"}}},
      {5, kNoticeDefault & ~kNoticeCharges, false, {}},
      {5, kNoticeDefault, true, {}},
      {2, kNoticeDefault, false, {}}};
  for (const auto& c : told) {
    TestTable t;
    t.g.WonBetAction = c.option;
    t.g.NoticeMask = c.mask;
    t.g.HyperDriveOn = c.hyper;
    t.g.PlaceBias = 1;
    t.Stand(kPlace6, 12);
    t.Dice(2, 4, 5);
    t.Settle(Outcome::Win, kPlace6);
    EXPECT_EQ(t.ui.messages, c.said) << c.option;
    EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(c.option == 2 ? 12 : c.option == 3 ? 18 : c.option == 4 ? 24 : 26));
    EXPECT_EQ(t.g.NoticeMask, c.mask);
  }

  // The table's limits hold: a double past the maximum is cut, and the cut is told.
  TestTable m;
  m.g.WonBetAction = 4;
  m.g.TableMaximum = 20;
  m.Stand(kPlace6, 12);
  m.Dice(2, 4, 5);
  m.Settle(Outcome::Win, kPlace6);
  EXPECT_EQ(m.g.BetAmount[kPlace6], Currency(20));
  EXPECT_EQ(m.ui.messages, (std::vector<RecordedMessage>{{"Press Double Place 6", "Bet increased by: $8"}}));

  // A bet that was raised after the dice went out: the press is told against the old amount.
  TestTable u;
  u.g.WonBetAction = 3;
  u.Stand(kPlace6, 6);
  u.g.BetAmount.Set(kPlace6, 12);
  u.g.TotalOnTable = 12;
  u.Dice(2, 4, 5);
  u.Settle(Outcome::Win, kPlace6);
  EXPECT_EQ(u.ui.messages, (std::vector<RecordedMessage>{{"Press 1 Unit Place 6", "Bet increased by: $12"}}));
}

TEST(WonBetHandling, SameBetIsTheAmountBeforeTheRollAndBuysPayTheirVigAnew) {
  TestTable t;
  t.g.WonBetAction = 2;
  t.Stand(kPlace6, 12);
  t.g.BetAmount.Set(kPlace6, 18);  // raised after the dice went out
  t.g.TotalOnTable = 18;
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(Outcome::Win, kPlace6), Currency(21));
  EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(12));
  EXPECT_EQ(t.g.TotalOnTable, Currency(12));
  EXPECT_FALSE(t.ui.redrawn.empty());

  TestTable u;
  u.g.WonBetAction = 2;
  u.Stand(bet::Buy(4), 20);
  u.g.BuyVigOnBet[0] = 1;
  u.g.TotalOnTable += 1;
  u.Dice(1, 3, 6);
  EXPECT_EQ(u.Settle(Outcome::Win, bet::Buy(4)), Currency(39));
  EXPECT_EQ(u.g.NetPayoff, Currency(40));  // the winnings before the vig
  EXPECT_EQ(u.g.BetAmount[bet::Buy(4)], Currency(20));
  EXPECT_EQ(u.g.BuyVigOnBet[0], Currency(1));
  EXPECT_EQ(u.g.TotalOnTable, Currency(21));
}

TEST(LostBetHandling, ByOptionAndByButton) {
  // A Field row of -1 to 2 loses half, leaving $5.
  const struct { int option, per; std::optional<int> button; int left; } cases[] = {
      {1, 1, {}, 0},  {2, 1, {}, 0},  {2, 2, {}, 5},  {1, 2, {}, 0},  {3, 1, {}, 10}, {4, 1, {}, 15},
      {5, 1, {}, 20}, {6, 1, {}, 10}, {7, 1, {}, 0},  {0, 2, {}, 0},  {0, 2, 0, 0},   {0, 2, 1, 5},
      {0, 2, 2, 10},  {0, 2, 3, 15},  {0, 2, 4, 20}};
  for (const auto& c : cases)
    EXPECT_EQ(AfterFieldLoss(c.option, c.per, c.button), Currency(c.left))
        << c.option << " per " << c.per << " button " << c.button.value_or(-1);
}

TEST(LostBetHandling, TheNotice) {
  TestTable t;
  t.g.HandleLosingBets = 0;
  t.g.FieldPayoff.Set(5, {-1, -1, 2});
  t.Stand(bet::kField, 10);
  t.Dice(1, 4, 0);
  SettleBet(t.g, Outcome::Win, bet::kField);
  ASSERT_EQ(t.ui.notices.size(), 1u);
  const SettleNotice& n = t.ui.notices[0];
  EXPECT_EQ(n.title, "Bet Lost");
  EXPECT_FALSE(n.won);
  EXPECT_EQ(n.rows, (Rows{{"Field bet:", "$10"}, {"Loss at -1 to 2:", "$-5"}, {"Net loss: ", "$-5"},
                          {"Remainder: ", "$5"}}));
  EXPECT_EQ(n.buttons, (std::vector<std::string>{"No Bet/Take Remainder", "Bet Remainder", "Same Bet",
                                                 "Press 1 &Unit - Add $5 to Bet", "Double Bet"}));

  // Lay vig has a row of its own; Same Bet charges it again.
  TestTable u;
  u.g.HandleLosingBets = 0;
  u.ui.settleReplies.push_back(2);
  u.Stand(bet::Lay(4), 40);
  u.g.LayVigOnBet[0] = 1;
  u.g.TotalOnTable += 1;
  u.Dice(2, 2, 6);
  EXPECT_EQ(u.Settle(Outcome::Loss, bet::Lay(4)), Currency(-41));
  EXPECT_EQ(u.ui.notices.at(0).rows, (Rows{{"Lay 4 bet:", "$40"}, {"Loss at -1 to 1:", "$-40"}, {"-5& vig:", "$-1"},
                                           {"Net loss: ", "$-41"}}));
  EXPECT_EQ(u.g.NetPayoff, Currency(-40));
  EXPECT_EQ(u.g.BetAmount[bet::Lay(4)], Currency(40));
  EXPECT_EQ(u.g.TotalOnTable, Currency(41));

  // No notice for a bet placed after the dice went out, nor under Hyper-Drive.
  for (bool hyper : {false, true}) {
    TestTable w;
    w.g.HandleLosingBets = 0;
    w.g.HyperDriveOn = hyper;
    w.Stand(kPlace6, 6);
    if (!hyper) w.g.EditAtRollStart()[kPlace6] = 0;
    w.Dice(3, 4, 5);
    SettleBet(w.g, Outcome::Loss, kPlace6);
    EXPECT_TRUE(w.ui.notices.empty());
    EXPECT_EQ(w.g.BetAmount[kPlace6], Currency(0));
  }
}

TEST(BetHandling, EveryOptionOverAHandOfRolls) {
  // Won option i and lost option i together; 0 is the dialogs left to their defaults.
  const int place6[] = {12, 0, 12, 18, 24, 26, 12, 0};  // after the hard 6 that paid it $14
  const int hard6[] = {5, 0, 5, 10, 10, 50, 5, 0};      // $5 paid 9 to 1
  const int lay4[] = {0, 0, 0, 40, 50, 80, 40, 0};      // $40 lost to the 4
  const int field[] = {0, 0, 0, 10, 15, 20, 10, 0};     // $10 lost to the 6
  const int buy10[] = {20, 0, 20, 25, 40, 60, 20, 0};   // $20 won $40
  const int buyVig[] = {1, 0, 1, 1, 2, 3, 1, 0};      // 5% of the kept Buy
  const int line[] = {10, 0, 10, 15, 20, 20, 10, 0};    // $10 won $10
  for (int option = 0; option <= 7; ++option) {
    TestTable t;
    t.g.WonBetAction = option;
    t.g.HandleLosingBets = option;
    auto onTable = [&] {
      Currency sum;
      for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) sum += t.g.BetAmount[id];
      for (Currency vig : t.g.LayVigOnBet) sum += vig;
      for (Currency vig : t.g.BuyVigOnBet) sum += vig;
      return sum;
    };
    t.Place(bet::kPassLine, 10);
    t.Roll(1, 3);  // point 4
    t.Place(bet::kPassOdds, 10);
    t.Place(bet::kField, 10);
    t.Place(bet::kHard6, 5);
    t.Place(kPlace6, 12);
    t.Place(bet::Buy(10), 20);
    t.Place(bet::Lay(4), 40);
    t.Place(bet::kCome, 10);
    t.Roll(3, 3);
    EXPECT_EQ(t.g.BetAmount[kPlace6], Currency(place6[option])) << option;
    EXPECT_EQ(t.g.BetAmount[bet::kHard6], Currency(hard6[option])) << option;
    EXPECT_EQ(t.g.BetAmount[bet::kField], Currency(field[option])) << option;
    EXPECT_EQ(t.g.BetAmount[bet::Come(6)], Currency(10)) << option;
    EXPECT_EQ(t.g.TotalOnTable, onTable()) << option;
    t.Roll(4, 6);  // the Buy wins $40 less its vig, which is charged anew on a kept bet
    EXPECT_EQ(t.g.BetAmount[bet::Buy(10)], Currency(buy10[option])) << option;
    EXPECT_EQ(t.g.BuyVigOnBet[5], Currency(buyVig[option])) << option;
    EXPECT_EQ(t.g.TotalOnTable, onTable()) << option;
    t.Roll(2, 2);  // the point made: the line and its odds win, the Lay loses
    EXPECT_EQ(t.g.BetAmount[bet::Lay(4)], Currency(lay4[option])) << option;
    EXPECT_EQ(t.g.TotalOnTable, onTable()) << option;
    EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], Currency(0)) << option;  // odds never stand on the come-out
    EXPECT_EQ(t.g.BetAmount[bet::kPassLine], Currency(line[option])) << option;
  }
}

// A parlay adds no more than was won, whatever the bet's family: the
// adjustment may only go down. Keeping a won bet is bookkeeping: a call ON
// stays, Buy and Lay alike.
TEST(BetHandling, ParlayAndSameBetAcrossTheFamilies) {
  constexpr int kSame = 2, kParlay = 5, kOn = 2;
  const struct { int id, action; Currency amount; int die1, die2, point, status; Currency left; } cases[] = {
      {bet::Place(6), kParlay, 6, 2, 4, 5, 0, 12},  // won 7, adds 6
      {bet::Buy(6), kParlay, 15, 2, 4, 5, 0, 30},   // won 18 less the vig, adds 15 and not 20
      {bet::kHorn, kParlay, 4, 1, 1, 0, 0, 28},     // won 27, adds 24 and not 28
      {bet::Place(6), kSame, 20, 2, 4, 5, kOn, 20}, {bet::Buy(6), kSame, 20, 2, 4, 5, kOn, 20},
      {bet::Lay(4), kSame, 20, 3, 4, 5, kOn, 20}};
  for (const auto& c : cases) {
    TestTable t;
    if (c.action == kParlay) t.g.AutoAdjustMode = 2;
    t.g.WonBetAction = c.action;
    t.Stand(c.id, c.amount);
    if (c.status) t.g.BetStatus.Set(c.id, c.status);
    t.Dice(c.die1, c.die2, c.point);
    t.Settle(Outcome::Win, c.id);
    EXPECT_EQ(t.g.BetAmount[c.id], c.left) << t.g.BetName[c.id] << " action " << c.action;
    if (c.status) {
      EXPECT_EQ(t.g.BetStatus[c.id], c.status) << t.g.BetName[c.id];
    }
  }
}
