#include <gtest/gtest.h>

#include "engine/place_bet.h"
#include "engine/table_for_test.h"

TEST(BetMaximum, TableMaximumPropositionsAndOdds) {
  TestTable t;
  Game& g = t.g;
  // Propositions by what they would pay (MaxPropBetPayoff 3000); the split
  // bets by the largest ratio among their numbers, less the parts that lose.
  const std::pair<int, int> props[] = {{bet::Place(6), 1000}, {bet::kField, 1000}, {bet::kHard6, 333},
                                       {bet::kHard4, 428},    {bet::kTwo, 100},    {bet::kFirstHop, 200},
                                       {bet::kCandE, 428},    {bet::kHorn, 444},   {bet::kWorld, 576}};
  for (const auto& [id, maximum] : props) EXPECT_EQ(GetBetMaximum(g, id), maximum) << id;
  // Asked again, each maximum follows the figure that moved since.
  g.MaxPropBetPayoff = 1500;
  EXPECT_EQ(GetBetMaximum(g, bet::kHard4), 214);
  g.MaxPropBetPayoff = 3000;
  g.Payoff.Set(bet::kFirstHop, {1, -1, 1});
  EXPECT_EQ(GetBetMaximum(g, bet::kFirstHop), 3000);  // the payoff limit, not the table maximum
  g.Payoff.Set(bet::kSeven, {60, -1, 1});                // World includes the Seven
  EXPECT_EQ(GetBetMaximum(g, bet::kWorld), 267);
  g.BetAmount.Set(bet::kFirstChip, 5);
  EXPECT_EQ(GetBetMaximum(g, bet::kHard6), 330);
  g.Payoff.Set(bet::kHard6, {0, -1, 1});  // cannot win: the table maximum
  EXPECT_EQ(GetBetMaximum(g, bet::kHard6), 1000);
  g.TableMaximum = Currency::FromDouble(1003.5);
  EXPECT_EQ(GetBetMaximum(g, bet::kPassLine), 1000);
  EXPECT_EQ(GetBetMaximum(g, bet::kRail), 1000);
  g.BetAmount.Set(bet::kFirstChip, 1);

  // Odds by their number and parent; lays by what the take would win.
  EXPECT_EQ(GetBetMaximum(g, bet::kPassOdds), 0);  // no point
  t.SetPoint(6);
  g.BetAmount.Set(bet::kPassLine, 10);
  g.BetAmount.Set(bet::kDontPass, 10);
  EXPECT_EQ(GetBetMaximum(g, bet::kPassOdds), 25);
  EXPECT_EQ(GetBetMaximum(g, bet::kDontPassOdds), 30);
  t.SetPoint(4);
  EXPECT_EQ(GetBetMaximum(g, bet::kPassOdds), 20);
  EXPECT_EQ(GetBetMaximum(g, bet::kDontPassOdds), 40);
  g.BetAmount.Set(bet::kPassLine, 20);
  EXPECT_EQ(GetBetMaximum(g, bet::kPassOdds), 40);
  g.BetAmount.Set(bet::Come(5), 5);
  g.BetAmount.Set(bet::DontCome(5), 10);
  EXPECT_EQ(GetBetMaximum(g, bet::ComeOdds(5)), 10);
  EXPECT_EQ(GetBetMaximum(g, bet::DontComeOdds(5)), 30);
  EXPECT_EQ(GetBetMaximum(g, bet::ComeOdds(9)), 0);  // no Come 9
  g.OddsAllowed59 = 3;
  g.OddsCalcMethod = 1;
  EXPECT_EQ(GetBetMaximum(g, bet::ComeOdds(5)), 15);
  g.MaxOddsBet = 12;
  EXPECT_EQ(GetBetMaximum(g, bet::ComeOdds(5)), 12);
}
