// What the settlement matrix does not see: notices, pushes, rounding with
// other chips, vig, streaks, bets that are off, the unit and coming down.

#include "engine/settle.h"

#include <gtest/gtest.h>

#include "engine/rules.h"
#include "engine/table_for_test.h"

TEST(SettleBet, WonNoticesAndRounding) {
  const char* winner = "* * * Winner * * *";
  const struct { int id; double amount; int die1, die2, point; double net; const char* title; Rows rows; } cases[] = {
      {bet::Place(6), 3, 2, 4, 5, 3, winner,
       {{"Place 6 bet:", "$3"}, {"Payoff at 7 to 6:", "$3.50"}, {"Net payoff (rounded): ", "$3"}}},
      {bet::Place(6), 0.5, 2, 4, 5, 0, "Push",  // rounds to nothing
       {{"Place 6 bet:", "$.50"}, {"Payoff at 7 to 6:", "$.5833"}, {"Net payoff (rounded): ", "$0"}}},
      {bet::Lay(4), 40, 3, 4, 6, 19, winner,  // the payoff before the vig, and the vig apart
       {{"Lay 4 bet:", "$40"}, {"Payoff at 1 to 2:", "$20"}, {"-5% vig:", "$-1"}, {"Net payoff: ", "$19"}}},
      {bet::kHorn, 4, 1, 1, 0, 27, winner,
       {{"1/4 of bet:", "$1"}, {"Payoff at 30 to 1:", "$30"}, {"Less 3/4 of bet:", "$-3"}, {"Net payoff: ", "$27"}}},
      {bet::kCandE, 4, 5, 6, 0, 28, winner,
       {{"1/2 of bet:", "$2"}, {"Payoff at 15 to 1:", "$30"}, {"Less 1/2 of bet:", "$-2"}, {"Net payoff: ", "$28"}}},
      {bet::kWorld, 5, 3, 4, 0, 0, "Push",
       {{"1/5 of bet:", "$1"}, {"Payoff at 4 to 1:", "$4"}, {"Less 4/5 of bet:", "$-4"}, {"Net payoff: ", "$0"}}},
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.BetStreak[1][c.id] = -3;
    t.Stand(c.id, Currency::FromDouble(c.amount));
    RefigureVigs(t.g);
    t.Dice(c.die1, c.die2, c.point);
    EXPECT_EQ(t.Settle(Outcome::Win, c.id), Currency::FromDouble(c.net)) << c.rows[0].first;
    EXPECT_EQ(t.g.BetStreak[1][c.id], c.net > 0 ? 1 : -3);  // a push keeps its streak
    ASSERT_EQ(t.ui.notices.size(), 1u);
    EXPECT_EQ(t.ui.notices[0].title, c.title);
    EXPECT_EQ(t.ui.notices[0].rows, c.rows);
  }
  TestTable t;
  t.Stand(bet::Place(6), 12);
  t.g.Payoff.Edit()[bet::Place(6)].Form = 0;  // the "for" form pays the same and says so
  t.Dice(2, 4, 5);
  EXPECT_EQ(t.Settle(Outcome::Win, bet::Place(6)), Currency(14));
  EXPECT_EQ(t.ui.notices.at(0).rows.at(1), (Rows::value_type{"Payoff at 13 for 6:", "$14"}));
  EXPECT_EQ(t.ui.notices[0].buttons,
            (std::vector<std::string>{"&Take Bet and Winnings", "&Same Bet - Take Winnings",
                                      "Press 1 &Unit - Add $6 to Bet", "Press - Add Winnings to &Double Bet",
                                      "Parlay - Add &All Winnings to Bet", "Sa&me Bet:", "&Bet:"}));

  // A loser's odd cents grow: half a check lost costs a whole one, unless
  // the checks are quarters.
  t.g.FieldPayoff.Set(5, {-1, -1, 2});
  t.Stand(bet::kField, 3);
  t.Dice(1, 4, 0);
  EXPECT_EQ(t.Settle(Outcome::Win, bet::kField), Currency(-2));
  EXPECT_EQ(t.g.RawPayoff, Currency::FromDouble(-1.5));
  t.g.BetAmount.Set(bet::kFirstChip, Currency::FromDouble(0.25));
  t.Stand(bet::kField, 3);
  EXPECT_EQ(t.Settle(Outcome::Win, bet::kField), Currency::FromDouble(-1.5));
}

TEST(SettleBet, NoDecisionsStreaksAndSilentTables) {
  // A payoff of zero, or an empty spot, is no decision at all.
  TestTable t;
  t.g.FieldPayoff.Set(9, {0, -1, 1});
  t.Stand(bet::kField, 5);
  t.g.BetStatus.Set(bet::Place(6), 1);
  t.Dice(3, 3, 0);
  EXPECT_EQ(t.Settle(Outcome::Win, bet::kField), Currency(0));
  EXPECT_EQ(t.Settle(Outcome::Win, bet::Place(6)), Currency(0));
  EXPECT_TRUE(t.ui.notices.empty());
  EXPECT_EQ(t.g.BetAmount[bet::kField], Currency(5));
  EXPECT_EQ(t.g.BetStreak[1][bet::kField] + t.g.BetStreak[1][bet::Place(6)], 0);

  // Streaks; no notice under Hyper-Drive, nor with an automatic choice.
  t.g.WonBetAction = 2;
  t.g.HandleLosingBets = 3;
  t.g.HyperDriveOn = true;
  t.Stand(bet::Place(8), 6);
  t.Dice(4, 4, 5);
  constexpr Outcome kWin = Outcome::Win, kLoss = Outcome::Loss;
  const struct { Outcome outcome; int streak; } steps[] = {{kWin, 1}, {kWin, 2}, {kLoss, -1}, {kLoss, -2}, {kWin, 1}};
  for (const auto& s : steps) {
    EXPECT_EQ(t.Settle(s.outcome, bet::Place(8)), Currency(IsWin(s.outcome) ? 7 : -6));
    EXPECT_EQ(t.g.BetStreak[1][bet::Place(8)], s.streak);
    t.g.HyperDriveOn = false;
  }
  EXPECT_EQ(t.g.BetAmount[bet::Place(8)], Currency(6));
  EXPECT_TRUE(t.ui.notices.empty());
}

TEST(SettleBet, OffBetsStandAndOffOddsComeBack) {
  TestTable t;
  t.Stand(bet::Place(6), 6);
  t.g.BetStatus.Set(bet::Place(6), 0);
  t.Dice(3, 4, 0);
  EXPECT_EQ(t.Settle(Outcome::Loss, bet::Place(6)), Currency(0));
  EXPECT_EQ(t.Settle(Outcome::Win, bet::Place(6)), Currency(0));
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], Currency(6));
  EXPECT_EQ(t.g.BetStatus[bet::Place(6)], 0);
  EXPECT_TRUE(t.ui.notices.empty());

  // Come 4 odds that are off, on a 7: returned, no money moves, spot works;
  // without Put bets they come down even with the Come bet still up.
  t.Stand(bet::Come(4), 10);
  t.Stand(bet::ComeOdds(4), 10);
  t.g.BetStatus.Set(bet::ComeOdds(4), 0);
  EXPECT_EQ(t.Settle(Outcome::OddsLoss, bet::ComeOdds(4)), Currency(0));
  ASSERT_EQ(t.ui.notices.size(), 1u);
  EXPECT_EQ(t.ui.notices[0].title, "Odds Bet Returned");
  EXPECT_EQ(t.ui.notices[0].rows, (Rows{{"Come 4 Odds bet:", "$10"}, {"wasn't working!", ""}}));
  EXPECT_EQ(t.ui.notices[0].buttons, std::vector<std::string>{"&Take Bet and Winnings"});
  EXPECT_EQ(t.g.BetAmount[bet::ComeOdds(4)], Currency(0));
  EXPECT_EQ(t.g.TotalOnTable, Currency(16));
  EXPECT_EQ(t.g.BetStatus[bet::ComeOdds(4)], 1);

  // With Put bets and the parent still up the odds may stay: the press unit
  // is figured on the odds' own Per.
  t.g.AllowPutBets = true;
  t.Stand(bet::Come(6), 10);
  t.Stand(bet::ComeOdds(6), 10);
  t.g.BetStatus.Set(bet::ComeOdds(6), -1);
  t.Settle(Outcome::OddsLoss, bet::ComeOdds(6));
  EXPECT_FALSE(t.g.BetComesDown);
  EXPECT_EQ(t.ui.notices.at(1).buttons.at(2), "Press 1 &Unit - Add $5 to Bet");
  EXPECT_EQ(t.g.BetAmount[bet::ComeOdds(6)], Currency(10));
  EXPECT_EQ(t.g.BetStatus[bet::ComeOdds(6)], 1);
}

TEST(SettleBet, BuyAndLayVig) {
  // Buy 4 of $20 at 5%: lost, up front it costs 21, on a win only 20; a win
  // pays 39 at 2 to 1 either way.
  constexpr Outcome kWin = Outcome::Win, kLoss = Outcome::Loss;
  const struct { bool upFront; Outcome outcome; int net; } cases[] = {
      {true, kLoss, -21}, {false, kLoss, -20}, {true, kWin, 39}, {false, kWin, 39}};
  for (const auto& c : cases) {
    TestTable t;
    t.g.ChargeAllBuy = c.upFront;
    t.g.WonBetAction = 1;
    t.Stand(bet::Buy(4), 20);
    RefigureVigs(t.g);
    t.Dice(IsWin(c.outcome) ? 1 : 3, IsWin(c.outcome) ? 3 : 4, 6);
    EXPECT_EQ(t.Settle(c.outcome, bet::Buy(4)), Currency(c.net)) << c.upFront << IsWin(c.outcome);
    EXPECT_EQ(t.g.TotalOnTable, Currency(0));
    EXPECT_EQ(t.g.BuyVigOnBet[0], Currency(0));
  }
  // The phantom unit pays the rate: on the unit for a Buy, on what the Lay
  // would win for a Lay.
  TestTable t;
  const struct { int id; Outcome outcome; bool upFront; double raw; } phantom[] = {
      {bet::Buy(4), kWin, true, 1.95}, {bet::Lay(4), kWin, true, 0.475}, {bet::Lay(4), kLoss, true, -1.025},
      {bet::Lay(4), kLoss, false, -1}};
  for (const auto& p : phantom) {
    t.g.ChargeAllLay = p.upFront;
    FigurePayoff(t.g, 0, p.id, p.outcome, 1);
    EXPECT_EQ(t.g.RawPayoff, Currency::FromDouble(p.raw)) << p.id << " " << IsWin(p.outcome);
  }
}

TEST(SettleBet, WhatComesDownAfterAWin) {
  // Don't Come numbers come down, and are no longer held by their contract.
  TestTable t;
  t.Stand(bet::DontCome(4), 10);
  t.Dice(3, 4, 6);
  t.Settle(Outcome::Win, bet::DontCome(4));
  EXPECT_EQ(t.g.Committed(bet::DontCome(4)), Currency(0));
  EXPECT_TRUE(t.g.BetComesDown);
  EXPECT_EQ(t.g.BetAmount[bet::DontCome(4)], Currency(0));
  EXPECT_EQ(t.ui.notices.at(0).buttons.size(), 1u);
  // The Come box stays on an 11, and comes down on a 7.
  t.Stand(bet::kCome, 10);
  t.Dice(5, 6, 6);
  t.Settle(Outcome::Win, bet::kCome);
  EXPECT_FALSE(t.g.BetComesDown);
  t.Dice(3, 4, 6);
  t.Settle(Outcome::Win, bet::kCome);
  EXPECT_TRUE(t.g.BetComesDown);

  // A flat line bet stays up; a Come number stays only with Put bets.
  t.Stand(bet::kPassLine, 10);
  t.Stand(bet::Come(5), 10);
  t.Dice(2, 3, 5);
  t.Settle(Outcome::Win, bet::kPassLine);
  EXPECT_FALSE(t.g.BetComesDown);
  EXPECT_EQ(t.g.BetAmount[bet::kPassLine], Currency(10));
  EXPECT_EQ(t.g.Committed(bet::kPassLine), Currency(0));
  t.Settle(Outcome::Win, bet::Come(5));
  EXPECT_TRUE(t.g.BetComesDown);
  t.g.AllowPutBets = true;
  t.Stand(bet::Come(5), 10);
  t.Settle(Outcome::Win, bet::Come(5));
  EXPECT_FALSE(t.g.BetComesDown);
}

TEST(PressUnit, LargestCheckThatDividesTheBet) {
  TestTable t;
  // Nothing divides 7 or 3 at 6: the smallest check's unit stands.
  const struct { int amount, per, unit; } cases[] = {
      {30, 6, 30}, {12, 6, 6}, {25, 1, 25}, {1000, 1, 500}, {7, 1, 1}, {7, 6, 6}, {3, 6, 6}};
  for (const auto& c : cases) {
    t.g.BetAmount.Set(bet::Place(6), c.amount);
    t.g.Payoff.Edit()[0].Per = c.per;
    EXPECT_EQ(PressUnit(t.g, bet::Place(6)), Currency(c.unit)) << c.amount << " per " << c.per;
  }
}
