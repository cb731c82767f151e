#include "cli/json_lines.h"

#include <gtest/gtest.h>

#include <sstream>

TEST(JsonLines, MoneyPrintsItsExactValue) {
  EXPECT_EQ(MoneyJson(Currency(500)).dump(), "500");
  EXPECT_EQ(MoneyJson(Currency(-9999999)).dump(), "-9999999");
  EXPECT_EQ(MoneyJson(Currency::FromRaw(35000)).dump(), "3.5");
  EXPECT_EQ(MoneyJson(Currency::FromRaw(125)).dump(), "0.0125");
  EXPECT_EQ(MoneyJson(Currency::FromRaw(-1)).dump(), "-0.0001");
  EXPECT_EQ(MoneyJson(Currency::FromRaw(99999999999)).dump(), "9999999.9999");
  // Every four-decimal value reads back to the same raw count.
  for (int64_t raw : {1LL, 7LL, 12345LL, 99999LL, 1234567891LL, -77777LL})
    EXPECT_EQ(Currency::FromDouble(Json::parse(MoneyJson(Currency::FromRaw(raw)).dump()).get<double>()).raw, raw);
}

TEST(JsonLines, OneObjectPerLineEvenWithBadBytes) {
  std::ostringstream out;
  WriteJsonLine(out, {{"message", {{"title", "T"}, {"text", "a\rb\xff"}, {"reply", "ok"}}}});
  EXPECT_EQ(out.str(), "{\"message\":{\"title\":\"T\",\"text\":\"a\\rb\xEF\xBF\xBD\",\"reply\":\"ok\"}}\n");
}
