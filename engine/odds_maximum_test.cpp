#include "engine/odds_maximum.h"

#include <gtest/gtest.h>

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

// X, method, flat and the take odds win to per; chip 1 and a 2000 cap unless said.
Currency Odds(double x, int method, double flat, double win, double per, double chip = 1, double cap = 2000) {
  OddsLimitInput in;
  in.multiple = Money(x);
  in.method = method;
  in.flat = Money(flat);
  in.win = Money(win);
  in.per = Money(per);
  in.smallestChip = Money(chip);
  in.maxOddsBet = Money(cap);
  return FigureOddsMaximum(in);
}

TEST(OddsMaximum, AutoSelectResolvesByTheMultiple) {
  EXPECT_EQ(ResolveOddsMethod(0, 1), 4);
  EXPECT_EQ(ResolveOddsMethod(0, 2), 3);
  EXPECT_EQ(ResolveOddsMethod(0, 3), 5);
  EXPECT_EQ(ResolveOddsMethod(0, 4), 3);
  EXPECT_EQ(ResolveOddsMethod(0, 10), 3);
  EXPECT_EQ(ResolveOddsMethod(0, Money(2.5)), 0);
  EXPECT_EQ(ResolveOddsMethod(0, Money(4.5)), 0);
  EXPECT_EQ(ResolveOddsMethod(2, Money(2.5)), 2);  // a chosen method stands
  EXPECT_EQ(ResolveOddsMethod(9, 2), 3);           // out of range reads as auto
}

TEST(OddsMaximum, PayoffUnitIsTheLeastWholePayingAmount) {
  EXPECT_EQ(PayoffUnit(6, 5, 1), 5);
  EXPECT_EQ(PayoffUnit(3, 2, 1), 2);
  EXPECT_EQ(PayoffUnit(2, 1, 1), 1);
  EXPECT_EQ(PayoffUnit(12, 10, 1), 5);  // reduced first
  EXPECT_EQ(PayoffUnit(Money(1.5), 1, 1), 2);
  EXPECT_EQ(PayoffUnit(7, 6, Money(0.25)), Money(1.5));
  EXPECT_EQ(PayoffUnit(5, 6, 5), 30);
  EXPECT_EQ(PayoffUnit(0, 1, 1), 1);    // cannot win: any chip will do
  EXPECT_EQ(PayoffUnit(-1, 1, 5), 5);
}

TEST(OddsMaximum, MethodOneIsExactlyXFlat) {
  EXPECT_EQ(Odds(2, 1, 5, 6, 5), 10);
  EXPECT_EQ(Odds(3, 1, 5, 3, 2), 15);      // pays 22.50, and stands
  EXPECT_EQ(Odds(2.5, 1, 5, 6, 5), 12);    // 12.50 down to the chip
  EXPECT_EQ(Odds(2, 1, 1500, 2, 1), 2000);  // MaxOddsBet
}

TEST(OddsMaximum, MethodTwoPushesUpToPayWhole) {
  EXPECT_EQ(Odds(2, 2, 5, 3, 2), 10);  // already whole
  EXPECT_EQ(Odds(3, 2, 5, 3, 2), 16);
  EXPECT_EQ(Odds(2.5, 2, 5, 6, 5), 15);
  EXPECT_EQ(Odds(2, 2, 3, 6, 5), 10);
  // Pushed past the cap, it falls to the most the cap allows that pays whole.
  EXPECT_EQ(Odds(3, 2, 667, 3, 2), 2000);
  EXPECT_EQ(Odds(2, 2, 5, 6, 5, 1, 3), 3);  // a cap below one unit: plain chips
}

TEST(OddsMaximum, MethodThreePushesWithinXPlusOneFlat) {
  EXPECT_EQ(Odds(2, 3, 4, 6, 5), 10);  // 8 -> 10, within 12
  EXPECT_EQ(Odds(2, 3, 3, 6, 5), 5);   // 6 -> 10 passes 9: down to 5
  EXPECT_EQ(Odds(2, 3, 5, 6, 5), 10);
  EXPECT_EQ(Odds(2, 3, 1, 6, 5), 2);   // nothing positive pays whole: 2 in chips
}

TEST(OddsMaximum, MethodsFourAndFiveBuildOnSingleOdds) {
  // Method 4: X times the flat pushed to pay whole.
  EXPECT_EQ(Odds(1, 4, 5, 3, 2), 6);
  EXPECT_EQ(Odds(2, 4, 5, 3, 2), 12);
  EXPECT_EQ(Odds(1, 4, 3, 6, 5), 5);
  EXPECT_EQ(Odds(2.5, 4, 5, 3, 2), 14);  // 15 does not pay whole at 3 to 2
  // Method 5: X flat plus the push of single odds, once.
  EXPECT_EQ(Odds(3, 5, 5, 3, 2), 16);
  EXPECT_EQ(Odds(2, 5, 5, 3, 2), 10);    // 11 does not pay whole
  EXPECT_EQ(Odds(3, 5, 3, 6, 5), 10);    // 11 down to 10
  EXPECT_EQ(Odds(3, 5, 10, 2, 1), 30);
}

TEST(OddsMaximum, AutoSelectFollowsTheResolvedMethod) {
  EXPECT_EQ(Odds(1, 0, 5, 3, 2), 6);      // method 4
  EXPECT_EQ(Odds(2, 0, 3, 6, 5), 5);      // method 3
  EXPECT_EQ(Odds(3, 0, 5, 3, 2), 16);     // method 5
  EXPECT_EQ(Odds(5, 0, 3, 3, 2), 16);     // method 3: 15 -> 16 within 18
  // Fractional X: the most not above X flat that pays whole.
  EXPECT_EQ(Odds(2.5, 0, 10, 6, 5), 25);
  EXPECT_EQ(Odds(2.5, 0, 5, 6, 5), 10);
  EXPECT_EQ(Odds(2.5, 0, 1, 6, 5), 2);
  EXPECT_EQ(Odds(2, 2, 5, 3, 2, 0.25), 10);
}

TEST(OddsMaximum, NothingForNothingAndNeverNegative) {
  EXPECT_EQ(Odds(2, 0, 0, 6, 5), 0);
  EXPECT_EQ(Odds(2, 0, -5, 6, 5), 0);
  EXPECT_EQ(Odds(-2, 1, 5, 6, 5), 0);
  EXPECT_EQ(Odds(2, 0, 5, 6, 5, 1, -1), 0);
  EXPECT_EQ(Odds(2, 3, 5, 0, 1), 10);  // a payoff that cannot win: chips only
  EXPECT_EQ(Odds(2, 3, 5, 6, 5, 0), 10);  // a broken chip does not divide by zero
}

TEST(OddsMaximum, LayOddsWinWhatTheTakeWouldWin) {
  OddsLimitInput in;
  in.multiple = 2;
  in.method = 0;
  in.flat = 10;
  in.win = 2;
  in.per = 1;
  in.smallestChip = 1;
  in.maxOddsBet = 2000;
  EXPECT_EQ(FigureLayOddsMaximum(in, 1, 2), 40);  // 4: take 20, lay 40 to win 20

  in.multiple = Money(2.5);
  in.win = 6;
  in.per = 5;
  EXPECT_EQ(FigureLayOddsMaximum(in, 5, 6), 30);  // 6: take 25, lay 30 to win 25

  // The cap holds for the lay itself, at an amount that still pays whole.
  in.multiple = 2;
  in.flat = 1000;
  in.win = 3;
  in.per = 2;
  EXPECT_EQ(FigureLayOddsMaximum(in, 2, 3), 1998);
  EXPECT_EQ(FigureLayOddsMaximum(in, 0, 3), 2000);  // own payoff unusable: the take amount, capped
}

}  // namespace
