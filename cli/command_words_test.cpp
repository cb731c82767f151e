#include "cli/command_words.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"

using Words = std::vector<std::string>;

TEST(CommandWords, SplitsAtBlanksAndKeepsQuotedNamesWhole) {
  EXPECT_EQ(SplitCommandLine("  bet\t43   10 "), (Words{"bet", "43", "10"}));
  EXPECT_EQ(SplitCommandLine("open \"my game.crp\""), (Words{"open", "my game.crp"}));
  EXPECT_EQ(SplitCommandLine("open dir/\"a b\".crp x"), (Words{"open", "dir/a b.crp", "x"}));
  EXPECT_EQ(SplitCommandLine("set X \"\""), (Words{"set", "X", ""}));
  EXPECT_EQ(SplitCommandLine("state\r"), (Words{"state"}));  // CRLF input
  EXPECT_THROW(SplitCommandLine("open \"my game.crp"), CommandError);

  EXPECT_TRUE(IsBlankOrComment(""));
  EXPECT_TRUE(IsBlankOrComment(" \t\r"));
  EXPECT_TRUE(IsBlankOrComment("   # bet 43 10"));
  EXPECT_FALSE(IsBlankOrComment("state # trailing"));
}

TEST(CommandWords, ReadsNumbersStrictly) {
  EXPECT_EQ(ReadInteger("42", 0, 100, "N"), 42);
  EXPECT_EQ(ReadInteger("+7", 0, 100, "N"), 7);
  EXPECT_EQ(ReadInteger("-3", -5, 5, "N"), -3);
  for (const char* bad : {"", "4.0", "4x", "0x10", "1e3", " 4", "--1"})
    EXPECT_THROW(ReadInteger(bad, -100, 100, "N"), CommandError) << bad;
  EXPECT_THROW(ReadInteger("101", 0, 100, "N"), CommandError);
  EXPECT_THROW(ReadInteger("99999999999999999999", 0, 100, "N"), CommandError);
  try {
    ReadInteger("7", 1, 6, "D1");
    FAIL();
  } catch (const CommandError& e) {
    EXPECT_STREQ(e.what(), "D1 7 is out of range (1..6)");
  }

  EXPECT_EQ(ReadAmount("-7.5", "A").raw, -75000);
  EXPECT_EQ(ReadAmount("0.0125", "A").raw, 125);
  EXPECT_EQ(ReadAmount(".5", "A").raw, 5000);
  EXPECT_EQ(ReadAmount("+3", "A"), Currency(3));
  EXPECT_EQ(ReadAmount("1,000", "A"), Currency(1000));
  EXPECT_EQ(ReadAmount("2.500000", "A").raw, 25000);  // trailing zeros lose nothing
  for (const char* bad : {"", "-", ".", "abc", "0x10", "1e3", "inf", "nan", "5$", "1.00001", "1.2.3"})
    EXPECT_THROW(ReadAmount(bad, "A"), CommandError) << bad;

  EXPECT_TRUE(ReadBool("TRUE", "B"));
  EXPECT_TRUE(ReadBool("-1", "B"));
  EXPECT_TRUE(ReadBool("1", "B"));
  EXPECT_FALSE(ReadBool("false", "B"));
  EXPECT_FALSE(ReadBool("0", "B"));
  EXPECT_THROW(ReadBool("2", "B"), CommandError);
  EXPECT_THROW(ReadBool("yes", "B"), CommandError);
}

TEST(CommandWords, BetIdsAreTableBetsAndChipStacks) {
  for (int ok : {1, 43, 83, 101, 150, 199}) EXPECT_EQ(ReadBetId(std::to_string(ok)), ok);
  for (const char* bad : {"0", "-1", "84", "93", "95", "100", "200", "x", "43.0"})
    EXPECT_THROW(ReadBetId(bad), CommandError) << bad;
}
