#include "cli/command_words.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"

using Words = std::vector<std::string>;

TEST(CommandWords, SplitsAtBlanksAndKeepsQuotedNamesWhole) {
  EXPECT_EQ(SplitCommandLine("  bet\t43   10 "), (Words{"bet", "43", "10"}));
  EXPECT_EQ(SplitCommandLine("open dir/\"a b\".crp x"), (Words{"open", "dir/a b.crp", "x"}));
  EXPECT_EQ(SplitCommandLine("set X \"\""), (Words{"set", "X", ""}));
  EXPECT_EQ(SplitCommandLine("state\r"), (Words{"state"}));  // CRLF input
  EXPECT_THROW(SplitCommandLine("open \"my game.crp"), CommandError);
  for (const char* blank : {"", " \t\r", "   # bet 43 10"}) EXPECT_TRUE(IsBlankOrComment(blank)) << blank;
  EXPECT_FALSE(IsBlankOrComment("state # trailing"));
}

TEST(CommandWords, ReadsNumbersAmountsFlagsAndBetIdsStrictly) {
  EXPECT_EQ(ReadInteger("+7", 0, 100, "N"), 7);
  EXPECT_EQ(ReadInteger("-3", -5, 5, "N"), -3);
  for (const char* bad : {"", "4.0", "4x", "0x10", "1e3", " 4", "--1", "101", "99999999999999999999"})
    EXPECT_THROW(ReadInteger(bad, -100, 100, "N"), CommandError) << bad;
  try {
    ReadInteger("7", 1, 6, "D1");
    ADD_FAILURE();
  } catch (const CommandError& e) {
    EXPECT_STREQ(e.what(), "D1 7 is out of range (1..6)");
  }

  const std::pair<const char*, int64_t> amounts[] = {{"-7.5", -75000}, {"0.0125", 125}, {".5", 5000},
                                                     {"+3", 30000},    {"1,000", 10000000}, {"2.500000", 25000}};
  for (const auto& [word, raw] : amounts) EXPECT_EQ(ReadAmount(word, "A").raw, raw) << word;
  for (const char* bad : {"", "-", ".", "abc", "0x10", "1e3", "inf", "nan", "5$", "1.00001", "1.2.3"})
    EXPECT_THROW(ReadAmount(bad, "A"), CommandError) << bad;

  for (const char* yes : {"TRUE", "-1", "1"}) EXPECT_TRUE(ReadBool(yes, "B")) << yes;
  for (const char* no : {"false", "0"}) EXPECT_FALSE(ReadBool(no, "B")) << no;
  for (const char* bad : {"2", "yes"}) EXPECT_THROW(ReadBool(bad, "B"), CommandError) << bad;

  for (int ok : {1, 43, 83, 101, 150, 199}) EXPECT_EQ(ReadBetId(std::to_string(ok)), ok);
  for (const char* bad : {"0", "-1", "84", "93", "95", "100", "200", "x", "43.0"})
    EXPECT_THROW(ReadBetId(bad), CommandError) << bad;
}
