#include "sim/hyper_drive.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"

TEST(RollRate, UnitsLimitsAndTexts) {
  // The rate is the expected SimRollRate, or the old one when refused; a refusal of "" accepts.
  struct Case { Currency value; RateUnit unit; Currency rate; const char* refusal; };
  const Case cases[] = {
      {100, RateUnit::RollsPerHour, 100, ""},
      {2, RateUnit::RollsPerMinute, 120, ""},
      {10'000, RateUnit::RollsPerSecond, 36'000'000, ""},
      {4, RateUnit::HoursPerRoll, Currency::FromRaw(2500), ""},
      {30, RateUnit::SecondsPerRoll, 120, ""},
      {36'000'000, RateUnit::SecondsPerRoll, Currency::FromRaw(1), ""},  // 0.0001: never 0
      {0, RateUnit::RollsPerMinute, 100, "Rolls / min must be greater than zero."},
      {36'000'001, RateUnit::RollsPerHour, 100, "The maximum simulated Rolls / hr rate is 36,000,000."},
      {10'001, RateUnit::HoursPerRoll, 100, "The maximum simulated Hrs / roll rate is 10,000."},
      {600'001, RateUnit::MinutesPerRoll, 100, "The maximum simulated Mins / roll rate is 600,000."},
  };
  for (const Case& c : cases) {
    TestTable t;
    t.g.SimRollRate = 100;
    EXPECT_EQ(SetRollsPerHour(t.g, c.value, c.unit), *c.refusal == 0) << RateUnitName(c.unit);
    EXPECT_EQ(t.g.SimRollRate, c.rate) << RateUnitName(c.unit);
    if (*c.refusal) {
      ASSERT_EQ(t.ui.messages.size(), 1u);
      EXPECT_EQ(t.ui.messages[0], (RecordedMessage{"Sim Roll Rate Out Of Limits", c.refusal}));
    }
  }
  const std::pair<double, const char*> hours[] = {{0, "0"}, {1234.5, "1,234.5"}, {0.25, ".25"}, {2.00004, "2.0"},
                                                  {-3.6, "-4"}};
  for (const auto& [h, text] : hours) EXPECT_EQ(SimHoursText(h), text) << h;
  EXPECT_EQ(RollsPerHourText(Currency::FromRaw(1)), ".0001");
  EXPECT_EQ(RollsPerHourText(0), "<.0001");
}

TEST(HyperDrive, SecondPressStopsAndAStartRunsToTheCount) {
  TestTable t;
  t.g.KeepRolling = true;
  StartHyperDrive(t.g);
  EXPECT_FALSE(t.g.KeepRolling);
  EXPECT_EQ(t.g.RollCounts[0], 0);

  t.g.RollCountStop = t.g.RollCountLeft = 250;
  t.g.SimRollRate = 100;
  StartHyperDrive(t.g);
  EXPECT_EQ(t.g.RollCounts[0], 250);
  EXPECT_FALSE(t.g.HyperDriveOn);
  EXPECT_EQ(t.ui.stopReason, StopReason::RollCount);
  EXPECT_DOUBLE_EQ(SimHours(t.g), 2.5);

  StopRolling(t.g, StopReason::ScriptCommand);
  EXPECT_FALSE(t.g.KeepRolling);
  EXPECT_EQ(t.g.StopReason, StopReason::ScriptCommand);
}
