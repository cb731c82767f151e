#include "cli/settings_registry.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"
#include "engine/game.h"
#include "engine/new_game.h"

TEST(SettingsRegistry, SetsEachTypeAndReadsItBack) {
  Game g;
  ApplySetting(g, "TableMinimum", "5");
  EXPECT_EQ(g.TableMinimum, Currency(5));
  ApplySetting(g, "BuyVigRate", "0.0125");
  EXPECT_EQ(g.BuyVigRate.raw, 125);
  EXPECT_EQ(ReadSetting(g, "BuyVigRate"), Json(0.0125));
  ApplySetting(g, "OddsCalcMethod", "5");
  EXPECT_EQ(g.OddsCalcMethod, 5);
  ApplySetting(g, "AllowPutBets", "-1");
  EXPECT_TRUE(g.AllowPutBets);
  EXPECT_EQ(ReadSetting(g, "AllowPutBets"), Json(true));
  ApplySetting(g, "allowputbets", "FALSE");  // names match without regard to case
  EXPECT_FALSE(g.AllowPutBets);
  ApplySetting(g, "BarNumber", "2");
  EXPECT_EQ(g.BarNumber, 2);
  ApplySetting(g, "NoticeMask", "0");
  EXPECT_EQ(g.NoticeMask, 0);
  ApplySetting(g, "AllowNegativeBankroll", "false");
  EXPECT_FALSE(g.AllowNegativeBankroll);
  ApplySetting(g, "RoundLayVig", "1");
  ApplySetting(g, "ChargeAllBuy", "0");
  EXPECT_EQ(ReadSetting(g, "RoundLayVig"), Json(g.RoundLayVig));
  EXPECT_EQ(ReadSetting(g, "ChargeAllBuy"), Json(g.ChargeAllBuy));
  ApplySetting(g, "BankrollInitAmount", "-250.5");
  EXPECT_EQ(g.BankrollInitAmount.raw, -2505000);
}

TEST(SettingsRegistry, RefusesBadNamesValuesAndRangesWithNothingChanged) {
  Game g;
  const struct {
    const char* name;
    const char* value;
  } bad[] = {
      {"NoSuchSetting", "1"}, {"BarNumber", "7"},        {"BarNumber", "12.0"},     {"OddsCalcMethod", "6"},
      {"RngChoice", "8"},     {"RngChoice", "-1"},       {"RoundLayVig", "3"},      {"RoundBuyVig", "x"},
      {"WonBetAction", "8"},  {"HandleLosingBets", "8"}, {"AutoAdjustMode", "3"},   {"BankrollInitType", "4"},
      {"AllowPutBets", "2"},  {"AllowPutBets", "yes"},   {"TableMinimum", "-1"},    {"TableMaximum", "abc"},
      {"NoticeMask", "32"},   {"StopOnRoll", "true"},    {"StopOnRoll.17", "true"}, {"StopOnRoll.x", "1"},
      {"TableMinimum.1", "5"}, {"WorkOnComeOut.0", "1"}, {"WorkOnComeOut.84", "1"}, {"RollCountStop", "-1"},
      {"AtmAmount", "10000000"}, {"ChargeAllLay", "maybe"}, {"AllowNegativeBankroll", "5"},
  };
  for (const auto& b : bad) {
    Game fresh;
    EXPECT_THROW(ApplySetting(g, b.name, b.value), CommandError) << b.name << " " << b.value;
    for (const char* name : {"BarNumber", "OddsCalcMethod", "RngChoice", "TableMinimum", "NoticeMask"})
      EXPECT_EQ(ReadSetting(g, name), ReadSetting(fresh, name)) << b.name;
  }
  EXPECT_TRUE(g.ChargeAllLay);
  EXPECT_TRUE(g.AllowNegativeBankroll);
  try {
    ApplySetting(g, "StopOnRoll.17", "1");
  } catch (const CommandError& e) {
    EXPECT_STREQ(e.what(), "StopOnRoll index 17 is out of range (0..16)");
  }
}

TEST(SettingsRegistry, ArraysTakeAnIndexAndComeOutStatusFollows) {
  Game g;
  FillDefaults(g);
  ApplySetting(g, "StopOnRoll.9", "true");
  ApplySetting(g, "StopOnRoll.0", "1");
  EXPECT_TRUE(g.StopOnRoll[9]);
  EXPECT_TRUE(g.StopOnRoll[0]);
  EXPECT_FALSE(g.StopOnRoll[16]);
  EXPECT_EQ(ReadSetting(g, "StopOnRoll.9"), Json(true));

  // Place 4 is off on the come-out by default; working now, at once.
  ASSERT_EQ(g.Point, 0);
  EXPECT_EQ(g.BetStatus[31], 0);
  ApplySetting(g, "WorkOnComeOut.31", "1");
  EXPECT_EQ(g.WorkOnComeOut[31], 1);
  EXPECT_EQ(g.BetStatus[31], 1);
  // A called bet keeps its call.
  g.BetStatus[32] = -1;
  ApplySetting(g, "WorkOnComeOut.32", "true");
  EXPECT_EQ(g.WorkOnComeOut[32], 1);
  EXPECT_EQ(g.BetStatus[32], -1);
  ApplySetting(g, "WorkOnComeOut.31", "0");
  EXPECT_EQ(g.BetStatus[31], 0);
}

TEST(SettingsRegistry, EveryNameTakesBackWhatItReads) {
  Game g;
  const auto names = SettingNames();
  EXPECT_GE(names.size(), 40u);
  for (std::string name : names) {
    if (auto dots = name.find(".."); dots != std::string::npos) name = name.substr(0, name.rfind('.', dots - 1)) + ".1";
    const Json value = ReadSetting(g, name);
    const std::string text = value.is_boolean() ? (value.get<bool>() ? "true" : "false") : value.dump();
    EXPECT_NO_THROW(ApplySetting(g, name, text)) << name << " " << text;
    EXPECT_EQ(ReadSetting(g, name), value) << name;
  }
  for (const char* required : {"TableMinimum", "TableMaximum", "MaxOddsBet", "MaxPropBetPayoff", "OddsAllowed410",
                               "OddsAllowed59", "OddsAllowed68", "OddsCalcMethod", "BarNumber", "AllowPutBets",
                               "LayVigRate", "ChargeAllLay", "RoundLayVig", "BuyVigRate", "ChargeAllBuy", "RoundBuyVig",
                               "BankrollInitType", "BankrollInitAmount", "AllowNegativeBankroll", "AtmAmount",
                               "AutoTakeFullOdds", "AutoLayFullOdds", "AutoRemovePlaceBets", "AutoRollOn",
                               "RollCountStop", "RollCountLeft", "AutoRollDelay", "WonBetAction", "HandleLosingBets",
                               "AutoAdjustMode", "RngChoice", "UserSeedMode", "ReSeedNewGames", "UseSkewedProbability",
                               "DisableAllSound", "ThrottleValue", "NoticeMask"})
    EXPECT_NO_THROW(ReadSetting(g, required)) << required;
}
