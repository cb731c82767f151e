#include "dice/money.h"

#include <gtest/gtest.h>

TEST(Currency, RatiosRoundHalfToEvenAndIntegerPartsFloor) {
  EXPECT_EQ(MulRatio(Currency::FromRaw(1), 0.5).raw, 0);
  EXPECT_EQ(MulRatio(Currency::FromRaw(5), 0.5).raw, 2);
  EXPECT_EQ(MulRatio(Currency(3), 7.0 / 6.0).raw, 35000);
  // Beyond what money holds it stops at the ends instead of wrapping.
  EXPECT_EQ(MulRatio(Currency::FromRaw(INT64_MAX / 2), 100000.0).raw, INT64_MAX);
  EXPECT_EQ(MulRatio(Currency::FromRaw(INT64_MIN / 2), 100000.0).raw, INT64_MIN);
  // MulDiv is exact, ties to even, also where the product needs 128 bits.
  const struct { int64_t a, num, den, raw; } exact[] = {
      {30000, 70000, 60000, 35000}, {1, 10000, 20000, 0}, {3, 10000, 20000, 2}, {-3, 10000, 20000, -2},
      {100000, 20000, 30000, 66667}, {90000000000, 90000000000, 30000, 270000000000000000}};
  for (const auto& e : exact)
    EXPECT_EQ(MulDiv(Currency::FromRaw(e.a), Currency::FromRaw(e.num), Currency::FromRaw(e.den)).raw, e.raw) << e.a;
  // The integer part floors a quotient first rounded to four decimals.
  const struct { int64_t a, unit, part; } parts[] = {{35000, 10000, 3},   {-35000, 10000, -4}, {100000, 2500, 40},
                                                    {99995, 100000, 1},  {99994, 100000, 0},  {70000, -50000, -2},
                                                    {-70000, 50000, -2}};
  for (const auto& p : parts)
    EXPECT_EQ(IntegerPartOf(Currency::FromRaw(p.a), Currency::FromRaw(p.unit)), p.part) << p.a;
  EXPECT_EQ(Floor(Currency::FromRaw(-5)), -1);
}

TEST(Currency, FormatsAndParsesTheOneMoneyFormat) {
  const std::pair<int64_t, const char*> formats[] = {
      {0, "0"},          {99999990000, "9,999,999"}, {-12340000, "-1,234"}, {35000, "3.50"},
      {12345678, "1,234.5678"}, {125, ".0125"},      {-5000, "-.50"},       {10010, "1.001"}};
  for (const auto& [raw, text] : formats) EXPECT_EQ(FormatNumberWithCommas(Currency::FromRaw(raw)), text);
  EXPECT_EQ(FormatWithCommas(2147483647), "2,147,483,647");
  Currency c;
  ASSERT_TRUE(ParseCurrency("-7.5", c));
  EXPECT_EQ(c.raw, -75000);
  ASSERT_TRUE(ParseCurrency("1,000", c));
  EXPECT_EQ(c, Currency(1000));
  for (const char* bad : {"abc", "", "5x", "1e300"}) EXPECT_FALSE(ParseCurrency(bad, c)) << bad;
}
