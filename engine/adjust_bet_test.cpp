#include "engine/adjust_bet.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

namespace {

struct AdjustCase {
  const char* name;
  int mode, id;
  Currency standing, request;
  int bias;  // set on the bet's own family
  Currency expected;
};

void SetBias(Game& g, int id, int bias) {
  if (bet::IsLay(id)) g.LayBias = bias;
  if (bet::IsPlace(id)) g.PlaceBias = bias;
  if (id == bet::kPassOdds || bet::IsComeOdds(id)) g.DoBias = bias;
  if (id == bet::kDontPassOdds || bet::IsDontComeOdds(id)) g.DontBias = bias;
}

TEST(AdjustBet, LandsOnWholePayoffs) {
  const AdjustCase cases[] = {
      {"place 6, 7 up", 2, bet::Place(6), 0, 7, 1, 12},
      {"place 6, 7 down", 2, bet::Place(6), 0, 7, 2, 6},
      {"place 6, 7 nearest", 1, bet::Place(6), 0, 7, 0, 6},
      {"manual keeps 7", 0, bet::Place(6), 0, 7, 1, 7},
      {"whole stands", 2, bet::Place(6), 0, 18, 1, 18},
      {"lay 4, tie goes down", 1, bet::Lay(4), 0, 3, 0, 2},
      {"lay 4, up", 1, bet::Lay(4), 0, 3, 1, 4},
      {"place 8 grows by 5 to 12", 1, bet::Place(8), 6, 5, 0, 12},
      {"removal of too much stands", 2, bet::Place(6), 6, -7, 1, 0},
      {"place 5 down to 5 is whole", 2, bet::Place(5), 10, -5, 1, 5},
      {"colour: 25s on place 6 go to 150", 2, bet::Place(6), 0, 125, 1, 150},
      {"minor: 125 on place 6 goes to 126", 1, bet::Place(6), 0, 125, 1, 126},
  };
  for (const auto& c : cases) {
    TestTable t;
    t.g.AutoAdjustMode = c.mode;
    t.g.Bankroll() = 100000;
    SetBias(t.g, c.id, c.bias);
    if (c.standing > 0) t.Stand(c.id, c.standing);
    // The placement's short way asks only this first step; in these cases
    // it answers as the whole adjustment does.
    EXPECT_EQ(PaysWholeAsAsked(t.g, c.id, c.request), c.expected == Max(c.standing + c.request, 0)) << c.name;
    t.Place(c.id, c.request);
    EXPECT_EQ(t.g.BetAmount[c.id], c.expected) << c.name;
  }
}

TEST(AdjustBet, FullOddsRequestKeepsItsValue) {
  TestTable t;
  t.g.AutoAdjustMode = 2;
  t.g.DoBias = 1;
  t.SetPoint(6);
  t.Stand(bet::kPassLine, 7);
  const Currency maximum = GetBetMaximum(t.g, bet::kPassOdds);
  t.Place(bet::kPassOdds, maximum);
  EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], maximum);
}

TEST(AdjustBet, RefusesWhenNoCandidateFits) {
  TestTable t;
  t.g.AutoAdjustMode = 1;
  t.g.TableMaximum = 10;
  t.g.PlaceBias = 1;
  t.g.Bankroll() = 1000;
  // 7 to 6 needs 6 or 12; 12 is over the maximum, 6 is the nearer candidate.
  t.Place(bet::Place(6), 10);
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], 6);
  // With a minimum of 7 the 6 is gone too.
  TestTable m;
  m.g.AutoAdjustMode = 1;
  m.g.TableMaximum = 10;
  m.g.TableMinimum = 7;
  m.Place(bet::Place(6), 8);
  EXPECT_EQ(m.g.BetAmount[bet::Place(6)], 0);
  ASSERT_FALSE(m.ui.messages.empty());
  EXPECT_EQ(m.Last().text,
            "Unable to auto-adjust bet for proper odds payoff.\r\rMaximum bet for proper odds payoff here is $6");
  EXPECT_EQ(m.Last().title, "Maximum");
}

TEST(AdjustBet, TurningAModeOnAdjustsTheTable) {
  TestTable t;
  t.g.Bankroll() = 1000;
  t.Place(bet::Place(6), 7);
  t.Place(bet::Lay(10), 3);
  SetAutoAdjustMode(t.g, 1);
  EXPECT_EQ(t.g.AutoAdjustMode, 1);
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], 12);  // place bias goes up
  EXPECT_EQ(t.g.BetAmount[bet::Lay(10)], 2);
  EXPECT_EQ(t.g.NoticeMask, kNoticeDefault);
}

}  // namespace

TEST(AdjustBet, AfterABankrollCutGoesDown) {
  TestTable t;
  t.g.AutoAdjustMode = 1;
  t.g.AllowNegativeBankroll = false;
  t.g.Bankroll() = 10;
  t.Place(bet::Place(6), 12);  // cut to 10; up to 12 would not fit
  EXPECT_EQ(t.g.BetAmount[bet::Place(6)], 6);
}

TEST(AdjustBet, OddsFollowTheirOwnBias) {
  struct Case { int bias; Currency pass, dont; } cases[] = {{0, 10, 9}, {1, 12, 12}, {2, 10, 9}};
  for (const auto& c : cases) {
    TestTable t;
    t.g.AutoAdjustMode = 1;
    t.g.Bankroll() = 1000;
    t.g.DoBias = t.g.DontBias = c.bias;
    t.SetPoint(5);  // odds pay 3 to 2, lays 2 to 3
    t.Stand(bet::kPassLine, 10);
    t.Stand(bet::kDontPass, 10);
    t.Place(bet::kPassOdds, 11);
    t.Place(bet::kDontPassOdds, 10);
    EXPECT_EQ(t.g.BetAmount[bet::kPassOdds], c.pass) << c.bias;
    EXPECT_EQ(t.g.BetAmount[bet::kDontPassOdds], c.dont) << c.bias;
  }
}
