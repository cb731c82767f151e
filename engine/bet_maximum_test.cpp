#include <gtest/gtest.h>

#include "engine/place_bet.h"
#include "engine/place_test_support.h"

namespace {

using place_test::Table;

TEST(BetMaximum, TableMaximumInWholeChips) {
  Table t;
  EXPECT_EQ(GetBetMaximum(t.g, bet::Place(6)), 1000);
  EXPECT_EQ(GetBetMaximum(t.g, bet::kField), 1000);
  t.g.BetAmount[bet::kFirstChip] = 5;
  t.g.TableMaximum = Currency::FromDouble(1003.5);
  EXPECT_EQ(GetBetMaximum(t.g, bet::kPassLine), 1000);
  EXPECT_EQ(GetBetMaximum(t.g, bet::kRail), 1000);
}

TEST(BetMaximum, PropositionsByTheirPayoff) {
  Table t;  // MaxPropBetPayoff 3000
  EXPECT_EQ(GetBetMaximum(t.g, bet::kHard6), 333);  // 9 to 1
  EXPECT_EQ(GetBetMaximum(t.g, bet::kHard4), 428);  // 7 to 1
  EXPECT_EQ(GetBetMaximum(t.g, bet::kTwo), 100);
  t.g.Payoff[bet::kFirstHop] = {1, -1, 1};
  EXPECT_EQ(GetBetMaximum(t.g, bet::kFirstHop), 3000);  // 1 to 1: the payoff limit, not the table maximum
  t.g.Payoff[bet::kFirstHop] = {15, -1, 1};
  EXPECT_EQ(GetBetMaximum(t.g, bet::kFirstHop), 200);
  // The split bets use the largest ratio among their numbers.
  EXPECT_EQ(GetBetMaximum(t.g, bet::kCandE), 428);  // 15 / 2 - 0.5 = 7
  EXPECT_EQ(GetBetMaximum(t.g, bet::kHorn), 444);   // 30 / 4 - 0.75 = 6.75
  EXPECT_EQ(GetBetMaximum(t.g, bet::kWorld), 576);  // 30 / 5 - 0.8 = 5.2
  t.g.Payoff[bet::kSeven] = {60, -1, 1};            // World includes the Seven
  EXPECT_EQ(GetBetMaximum(t.g, bet::kWorld), 267);  // 60 / 5 - 0.8 = 11.2
  t.g.BetAmount[bet::kFirstChip] = 5;
  EXPECT_EQ(GetBetMaximum(t.g, bet::kHard6), 330);
  t.g.Payoff[bet::kHard6] = {0, -1, 1};  // cannot win: the table maximum
  EXPECT_EQ(GetBetMaximum(t.g, bet::kHard6), 1000);
}

TEST(BetMaximum, OddsFollowTheirNumberAndParent) {
  Table t;
  EXPECT_EQ(GetBetMaximum(t.g, bet::kPassOdds), 0);  // no point
  t.SetPoint(6);
  t.g.BetAmount[bet::kPassLine] = 10;
  EXPECT_EQ(GetBetMaximum(t.g, bet::kPassOdds), 25);  // 2.5 x on 6
  t.g.BetAmount[bet::kDontPass] = 10;
  EXPECT_EQ(GetBetMaximum(t.g, bet::kDontPassOdds), 30);  // lay 30 to win 25
  t.SetPoint(4);
  EXPECT_EQ(GetBetMaximum(t.g, bet::kPassOdds), 20);
  EXPECT_EQ(GetBetMaximum(t.g, bet::kDontPassOdds), 40);

  t.g.BetAmount[bet::Come(5)] = 5;
  EXPECT_EQ(GetBetMaximum(t.g, bet::ComeOdds(5)), 10);
  t.g.BetAmount[bet::DontCome(5)] = 10;
  EXPECT_EQ(GetBetMaximum(t.g, bet::DontComeOdds(5)), 30);  // take 20 at 3 to 2, lay 30 at 2 to 3
  EXPECT_EQ(GetBetMaximum(t.g, bet::ComeOdds(9)), 0);       // no Come 9
  t.g.OddsAllowed59 = 3;
  t.g.OddsCalcMethod = 1;
  EXPECT_EQ(GetBetMaximum(t.g, bet::ComeOdds(5)), 15);
  t.g.MaxOddsBet = 12;
  EXPECT_EQ(GetBetMaximum(t.g, bet::ComeOdds(5)), 12);
}

}  // namespace
