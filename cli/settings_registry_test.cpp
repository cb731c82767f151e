#include "cli/settings_registry.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"
#include "config/settings_table.h"
#include "engine/game.h"
#include "sim/table.h"
#include "sim/table_for_test.h"

namespace {

// A table of the built-in defaults, or one as bare as a new Game.
struct Bare {
  SilentFrontEnd ui;
  Table table{ui};
  const Game& g = table.State();
};

struct Fresh : Bare {
  Fresh() { table.StartFresh(); }
};

}  // namespace

TEST(SettingsRegistry, SetsEachTypeAndReadsItBack) {
  Fresh f;
  Table& table = f.table;
  const Game& g = f.g;
  // Name, value given, value read back; names match without regard to case.
  const struct { const char* name; const char* value; Json read; } cases[] = {
      {"TableMinimum", "5", 5},          {"BuyVigRate", "0.0125", 0.0125},      {"OddsCalcMethod", "5", 5},
      {"AllowPutBets", "-1", true},      {"allowputbets", "FALSE", false},      {"BarNumber", "2", 2},
      {"NoticeMask", "0", 0},            {"AllowNegativeBankroll", "false", false}, {"RoundLayVig", "1", 1},
      {"ChargeAllBuy", "0", false},      {"BankrollInitAmount", "-250.5", -250.5}, {"StopOnRoll.9", "true", true},
      {"StopOnRoll.0", "1", true}};
  for (const auto& c : cases) {
    ApplySetting(table, c.name, c.value);
    EXPECT_EQ(ReadSetting(g, c.name), c.read) << c.name;
  }
  EXPECT_EQ(g.BuyVigRate.raw, 125);
  EXPECT_TRUE(g.StopOnRoll[9] && g.StopOnRoll[0] && !g.StopOnRoll[16]);
  EXPECT_EQ(g.BankrollInitAmount.raw, -2505000);

  // Place 4 is off on the come-out by default: working now, at once. A
  // called bet keeps its call.
  EXPECT_EQ(g.BetStatus[31], 0);
  ApplySetting(table, "WorkOnComeOut.31", "1");
  EXPECT_EQ(g.WorkOnComeOut[31], 1);
  EXPECT_EQ(g.BetStatus[31], 1);
  TableForTest::Staged(table).BetStatus.Set(32, -1);
  ApplySetting(table, "WorkOnComeOut.32", "true");
  EXPECT_EQ(g.WorkOnComeOut[32], 1);
  EXPECT_EQ(g.BetStatus[32], -1);
  ApplySetting(table, "WorkOnComeOut.31", "0");
  EXPECT_EQ(g.BetStatus[31], 0);
}

// The text of a value as `set` takes it.
std::string Text(const SettingRow& row, Currency v) {
  return row.type == SettingType::Money ? FormatNumberWithCommas(v) : std::to_string(v.raw / Currency::kScale);
}

TEST(SettingsRegistry, TakesEachRangeOfTheTableAndNothingBeyond) {
  Bare bare, untouched;
  Table& table = bare.table;
  const Game &g = bare.g, &fresh = untouched.g;
  for (const SettingRow& row : SettingsTable()) {
    if (row.type == SettingType::Flag) continue;
    const std::string name = row.IsArray() ? std::string(row.name) + "." + std::to_string(row.firstIndex) : row.name;
    const Currency step = row.type == SettingType::Money ? Currency::FromRaw(1) : Currency(1);
    for (Currency beyond : {row.least - step, row.most + step})
      EXPECT_THROW(ApplySetting(table, name, Text(row, beyond)), CommandError) << name << " " << Text(row, beyond);
    EXPECT_EQ(ReadSetting(g, name), ReadSetting(fresh, name)) << name;
    for (Currency end : {row.least, row.most}) {
      if (row.name == std::string("BarNumber")) continue;  // the ends are its only values: below
      EXPECT_NO_THROW(ApplySetting(table, name, Text(row, end))) << name << " " << Text(row, end);
      EXPECT_EQ(row.get(g, row.IsArray() ? row.firstIndex : 0), end) << name;
    }
  }
}

TEST(SettingsRegistry, RefusesBadNamesAndValuesWithNothingChanged) {
  Bare bare, untouched;
  Table& table = bare.table;
  const Game &g = bare.g, &fresh = untouched.g;
  const std::pair<const char*, const char*> bad[] = {
      {"NoSuchSetting", "1"},  {"BarNumber", "7"},         {"BarNumber", "12.0"},     {"RoundBuyVig", "x"},
      {"AllowPutBets", "2"},   {"AllowPutBets", "yes"},    {"TableMaximum", "abc"},   {"StopOnRoll", "true"},
      {"StopOnRoll.17", "1"},  {"StopOnRoll.x", "1"},      {"TableMinimum.1", "5"},   {"WorkOnComeOut.0", "1"},
      {"WorkOnComeOut.84", "1"}, {"ChargeAllLay", "maybe"}, {"AllowNegativeBankroll", "5"}, {"ModifyUnits.0", "1"}};
  for (const auto& [name, value] : bad)
    EXPECT_THROW(ApplySetting(table, name, value), CommandError) << name << " " << value;
  for (const char* name : {"BarNumber", "TableMinimum", "ChargeAllLay", "AllowNegativeBankroll", "AllowPutBets",
                           "ModifyUnits.0"})
    EXPECT_EQ(ReadSetting(g, name), ReadSetting(fresh, name)) << name;
  try {
    ApplySetting(table, "StopOnRoll.17", "1");
  } catch (const CommandError& e) {
    EXPECT_STREQ(e.what(), "StopOnRoll index 17 is out of range (0..16)");
  }
}

TEST(SettingsRegistry, EveryNameTakesBackWhatItReads) {
  Bare bare;
  Table& table = bare.table;
  const Game& g = bare.g;
  for (std::string name : SettingNames()) {
    if (auto dots = name.find(".."); dots != std::string::npos) name = name.substr(0, name.rfind('.', dots - 1)) + ".1";
    const Json value = ReadSetting(g, name);
    const std::string text = value.is_boolean() ? (value.get<bool>() ? "true" : "false") : value.dump();
    EXPECT_NO_THROW(ApplySetting(table, name, text)) << name << " " << text;
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
