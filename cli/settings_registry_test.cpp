#include "cli/settings_registry.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"
#include "engine/game.h"
#include "engine/new_game.h"

TEST(SettingsRegistry, SetsEachTypeAndReadsItBack) {
  Game g;
  FillDefaults(g);
  // Name, value given, value read back; names match without regard to case.
  const struct { const char* name; const char* value; Json read; } cases[] = {
      {"TableMinimum", "5", 5},          {"BuyVigRate", "0.0125", 0.0125},      {"OddsCalcMethod", "5", 5},
      {"AllowPutBets", "-1", true},      {"allowputbets", "FALSE", false},      {"BarNumber", "2", 2},
      {"NoticeMask", "0", 0},            {"AllowNegativeBankroll", "false", false}, {"RoundLayVig", "1", 1},
      {"ChargeAllBuy", "0", false},      {"BankrollInitAmount", "-250.5", -250.5}, {"StopOnRoll.9", "true", true},
      {"StopOnRoll.0", "1", true}};
  for (const auto& c : cases) {
    ApplySetting(g, c.name, c.value);
    EXPECT_EQ(ReadSetting(g, c.name), c.read) << c.name;
  }
  EXPECT_EQ(g.BuyVigRate.raw, 125);
  EXPECT_TRUE(g.StopOnRoll[9] && g.StopOnRoll[0] && !g.StopOnRoll[16]);
  EXPECT_EQ(g.BankrollInitAmount.raw, -2505000);

  // Place 4 is off on the come-out by default: working now, at once. A
  // called bet keeps its call.
  EXPECT_EQ(g.BetStatus[31], 0);
  ApplySetting(g, "WorkOnComeOut.31", "1");
  EXPECT_EQ(g.WorkOnComeOut[31], 1);
  EXPECT_EQ(g.BetStatus[31], 1);
  g.BetStatus[32] = -1;
  ApplySetting(g, "WorkOnComeOut.32", "true");
  EXPECT_EQ(g.WorkOnComeOut[32], 1);
  EXPECT_EQ(g.BetStatus[32], -1);
  ApplySetting(g, "WorkOnComeOut.31", "0");
  EXPECT_EQ(g.BetStatus[31], 0);
}

TEST(SettingsRegistry, RefusesBadNamesValuesAndRangesWithNothingChanged) {
  Game g, fresh;
  const std::pair<const char*, const char*> bad[] = {
      {"NoSuchSetting", "1"},    {"BarNumber", "7"},         {"BarNumber", "12.0"},     {"OddsCalcMethod", "6"},
      {"RngChoice", "8"},        {"RngChoice", "-1"},        {"RoundLayVig", "3"},      {"RoundBuyVig", "x"},
      {"WonBetAction", "8"},     {"HandleLosingBets", "8"},  {"AutoAdjustMode", "3"},   {"BankrollInitType", "4"},
      {"AllowPutBets", "2"},     {"AllowPutBets", "yes"},    {"TableMinimum", "-1"},    {"TableMaximum", "abc"},
      {"NoticeMask", "32"},      {"StopOnRoll", "true"},     {"StopOnRoll.17", "true"}, {"StopOnRoll.x", "1"},
      {"TableMinimum.1", "5"},   {"WorkOnComeOut.0", "1"},   {"WorkOnComeOut.84", "1"}, {"RollCountStop", "-1"},
      {"AtmAmount", "10000000"}, {"ChargeAllLay", "maybe"},  {"AllowNegativeBankroll", "5"}};
  for (const auto& [name, value] : bad)
    EXPECT_THROW(ApplySetting(g, name, value), CommandError) << name << " " << value;
  for (const char* name : {"BarNumber", "OddsCalcMethod", "RngChoice", "TableMinimum", "NoticeMask", "ChargeAllLay",
                           "AllowNegativeBankroll", "AllowPutBets", "RoundLayVig", "AtmAmount"})
    EXPECT_EQ(ReadSetting(g, name), ReadSetting(fresh, name)) << name;
  try {
    ApplySetting(g, "StopOnRoll.17", "1");
  } catch (const CommandError& e) {
    EXPECT_STREQ(e.what(), "StopOnRoll index 17 is out of range (0..16)");
  }
}

TEST(SettingsRegistry, EveryNameTakesBackWhatItReads) {
  Game g;
  for (std::string name : SettingNames()) {
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
