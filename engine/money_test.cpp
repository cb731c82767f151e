#include "engine/money.h"

#include <gtest/gtest.h>

TEST(Currency, RoundsRatiosHalfToEven) {
  // Exactly half of the last digit goes to the even neighbour.
  EXPECT_EQ(MulRatio(Currency::FromRaw(1), 0.5).raw, 0);
  EXPECT_EQ(MulRatio(Currency::FromRaw(3), 0.5).raw, 2);
  EXPECT_EQ(MulRatio(Currency::FromRaw(5), 0.5).raw, 2);
  EXPECT_EQ(MulRatio(Currency(3), 7.0 / 6.0).raw, 35000);
  EXPECT_EQ(Floor(Currency::FromRaw(-5)), -1);
  EXPECT_EQ(Floor(Currency::FromRaw(35000)), 3);
  EXPECT_EQ(IntegerPartOf(Currency::FromRaw(35000), Currency(1)), 3);
  EXPECT_EQ(IntegerPartOf(Currency(-7), Currency(5)), -2);
}

TEST(Currency, FormatsAsTheOneMoneyFormat) {
  EXPECT_EQ(FormatNumberWithCommas(Currency(0)), "0");
  EXPECT_EQ(FormatNumberWithCommas(Currency(9999999)), "9,999,999");
  EXPECT_EQ(FormatNumberWithCommas(Currency(-1234)), "-1,234");
  EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(35000)), "3.50");
  EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(12345678)), "1,234.5678");
  EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(125)), ".0125");
  EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(-5000)), "-.50");
  EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(10010)), "1.001");
  EXPECT_EQ(FormatWithCommas(2147483647), "2,147,483,647");
}

TEST(Currency, ParsesDecimalText) {
  Currency c;
  ASSERT_TRUE(ParseCurrency("-7.5", c));
  EXPECT_EQ(c.raw, -75000);
  ASSERT_TRUE(ParseCurrency("1,000", c));
  EXPECT_EQ(c, Currency(1000));
  EXPECT_FALSE(ParseCurrency("abc", c));
  EXPECT_FALSE(ParseCurrency("", c));
  EXPECT_FALSE(ParseCurrency("5x", c));
  EXPECT_FALSE(ParseCurrency("1e300", c));
}

TEST(Currency, ExactRatiosAndIntegerParts) {
  // Ratios apply exactly, ties to even.
  EXPECT_EQ(MulDiv(Currency(3), Currency(7), Currency(6)), Currency::FromRaw(35000));
  EXPECT_EQ(MulDiv(Currency::FromRaw(1), Currency(1), Currency(2)).raw, 0);
  EXPECT_EQ(MulDiv(Currency::FromRaw(3), Currency(1), Currency(2)).raw, 2);
  EXPECT_EQ(MulDiv(Currency::FromRaw(-3), Currency(1), Currency(2)).raw, -2);
  EXPECT_EQ(MulDiv(Currency(10), Currency(2), Currency(3)).raw, 66667);
  EXPECT_EQ(MulDiv(Currency(9000000), Currency(9000000), Currency(3)).raw, 270000000000000000);
  // The integer part floors a quotient already rounded to four decimals.
  EXPECT_EQ(IntegerPartOf(Currency::FromRaw(35000), Currency(1)), 3);
  EXPECT_EQ(IntegerPartOf(Currency::FromRaw(-35000), Currency(1)), -4);
  EXPECT_EQ(IntegerPartOf(Currency(10), Currency::FromRaw(2500)), 40);
  EXPECT_EQ(IntegerPartOf(Currency::FromRaw(99995), Currency(10)), 1);   // 0.99995 rounds to 1
  EXPECT_EQ(IntegerPartOf(Currency::FromRaw(99994), Currency(10)), 0);
  EXPECT_EQ(IntegerPartOf(Currency(7), Currency(-5)), -2);
}
