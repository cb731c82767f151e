#include "engine/odds_maximum.h"

#include <gtest/gtest.h>

namespace {

Currency Money(double v) { return Currency::FromDouble(v); }

TEST(OddsMaximum, AutoSelectAndPayoffUnit) {
  // Auto select: 4 for X 1, 3 for 2, 5 for 3, 3 above; a fractional X stays 0.
  const std::pair<double, int> resolved[] = {{1, 4}, {2, 3}, {3, 5}, {4, 3}, {10, 3}, {2.5, 0}, {4.5, 0}};
  for (const auto& [x, method] : resolved) EXPECT_EQ(ResolveOddsMethod(0, Money(x)), method) << x;
  EXPECT_EQ(ResolveOddsMethod(2, Money(2.5)), 2);  // a chosen method stands
  EXPECT_EQ(ResolveOddsMethod(9, 2), 3);           // out of range reads as auto

  // The least whole-paying amount: reduced first; a payoff that cannot win
  // makes any chip pay whole.
  const struct { double win, per, chip, unit; } units[] = {
      {6, 5, 1, 5}, {3, 2, 1, 2},     {2, 1, 1, 1},    {12, 10, 1, 5}, {1.5, 1, 1, 2},
      {7, 6, 0.25, 1.5}, {5, 6, 5, 30}, {0, 1, 1, 1}, {-1, 1, 5, 5}};
  for (const auto& u : units)
    EXPECT_EQ(PayoffUnit(Money(u.win), Money(u.per), Money(u.chip)), Money(u.unit)) << u.win << " to " << u.per;
}

TEST(OddsMaximum, EveryMethod) {
  // X, method, flat, the take odds win to per, chip and cap; the maximum.
  const struct { double x; int method; double flat, win, per, chip, cap, max; } cases[] = {
      // 1: exactly X flat, down to the chip.
      {2, 1, 5, 6, 5, 1, 2000, 10}, {3, 1, 5, 3, 2, 1, 2000, 15}, {2.5, 1, 5, 6, 5, 1, 2000, 12},
      {2, 1, 1500, 2, 1, 1, 2000, 2000},
      // 2: pushed up to pay whole; past the cap, the most under it that does.
      {2, 2, 5, 3, 2, 1, 2000, 10}, {3, 2, 5, 3, 2, 1, 2000, 16}, {2.5, 2, 5, 6, 5, 1, 2000, 15},
      {2, 2, 3, 6, 5, 1, 2000, 10}, {3, 2, 667, 3, 2, 1, 2000, 2000}, {2, 2, 5, 6, 5, 1, 3, 3},
      {2, 2, 5, 3, 2, 0.25, 2000, 10},
      // 3: pushed within X + 1 flat, else down; nothing that pays whole: chips.
      {2, 3, 4, 6, 5, 1, 2000, 10}, {2, 3, 3, 6, 5, 1, 2000, 5}, {2, 3, 5, 6, 5, 1, 2000, 10},
      {2, 3, 1, 6, 5, 1, 2000, 2},
      // 4: X times single odds pushed to pay whole.
      {1, 4, 5, 3, 2, 1, 2000, 6}, {2, 4, 5, 3, 2, 1, 2000, 12}, {1, 4, 3, 6, 5, 1, 2000, 5},
      {2.5, 4, 5, 3, 2, 1, 2000, 14},
      // 5: X flat plus the push of single odds, once.
      {3, 5, 5, 3, 2, 1, 2000, 16}, {2, 5, 5, 3, 2, 1, 2000, 10}, {3, 5, 3, 6, 5, 1, 2000, 10},
      {3, 5, 10, 2, 1, 1, 2000, 30},
      // 0: the resolved method; a fractional X the most under X flat that pays whole.
      {1, 0, 5, 3, 2, 1, 2000, 6}, {2, 0, 3, 6, 5, 1, 2000, 5}, {3, 0, 5, 3, 2, 1, 2000, 16},
      {5, 0, 3, 3, 2, 1, 2000, 16}, {2.5, 0, 10, 6, 5, 1, 2000, 25}, {2.5, 0, 5, 6, 5, 1, 2000, 10},
      {2.5, 0, 1, 6, 5, 1, 2000, 2},
      // Nothing for nothing, never negative, no division by a broken chip.
      {2, 0, 0, 6, 5, 1, 2000, 0}, {2, 0, -5, 6, 5, 1, 2000, 0}, {-2, 1, 5, 6, 5, 1, 2000, 0},
      {2, 0, 5, 6, 5, 1, -1, 0}, {2, 3, 5, 0, 1, 1, 2000, 10}, {2, 3, 5, 6, 5, 0, 2000, 10},
  };
  for (const auto& c : cases) {
    const OddsLimitInput in{Money(c.x), c.method, Money(c.flat), Money(c.win),
                            Money(c.per), Money(c.chip), Money(c.cap)};
    EXPECT_EQ(FigureOddsMaximum(in), Money(c.max))
        << "X " << c.x << " method " << c.method << " flat " << c.flat << " at " << c.win << " to " << c.per;
  }
}

TEST(OddsMaximum, LayOddsWinWhatTheTakeWouldWin) {
  OddsLimitInput in{2, 0, 10, 2, 1, 1, 2000};
  EXPECT_EQ(FigureLayOddsMaximum(in, 1, 2), 40);  // 4: take 20, lay 40 to win 20
  in = {Money(2.5), 0, 10, 6, 5, 1, 2000};
  EXPECT_EQ(FigureLayOddsMaximum(in, 5, 6), 30);  // 6: take 25, lay 30 to win 25
  // The cap holds for the lay itself, at an amount that still pays whole.
  in = {2, 0, 1000, 3, 2, 1, 2000};
  EXPECT_EQ(FigureLayOddsMaximum(in, 2, 3), 1998);
  EXPECT_EQ(FigureLayOddsMaximum(in, 0, 3), 2000);  // own payoff unusable: the take amount, capped
}

}  // namespace
