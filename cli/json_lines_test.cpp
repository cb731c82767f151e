#include "cli/json_lines.h"

#include <gtest/gtest.h>

#include <sstream>

TEST(JsonLines, MoneyPrintsItsExactValueOneObjectPerLine) {
  const std::pair<int64_t, const char*> money[] = {{5000000, "500"},   {-99999990000, "-9999999"},
                                                   {35000, "3.5"},     {125, "0.0125"},
                                                   {-1, "-0.0001"},    {99999999999, "9999999.9999"}};
  for (const auto& [raw, text] : money) EXPECT_EQ(MoneyJson(Currency::FromRaw(raw)).dump(), text);
  // Every four-decimal value reads back to the same raw count.
  for (int64_t raw : {1LL, 7LL, 12345LL, 99999LL, 1234567891LL, -77777LL})
    EXPECT_EQ(Currency::FromDouble(Json::parse(MoneyJson(Currency::FromRaw(raw)).dump()).get<double>()).raw, raw);
  // A bad byte is replaced rather than thrown on.
  std::ostringstream out;
  WriteJsonLine(out, {{"message", {{"title", "T"}, {"text", "a\rb\xff"}, {"reply", "ok"}}}});
  EXPECT_EQ(out.str(), "{\"message\":{\"title\":\"T\",\"text\":\"a\\rb\xEF\xBF\xBD\",\"reply\":\"ok\"}}\n");
}
