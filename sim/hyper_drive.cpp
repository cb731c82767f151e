#include "sim/hyper_drive.h"

#include <cmath>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/roll.h"

namespace {

struct UnitRow {
  const char* name;
  int64_t factor;    // to rolls per hour
  bool perRoll;      // a time per roll: the rate is factor over the value
  int64_t largest;
};

constexpr UnitRow kUnits[] = {
    {"Rolls / hr", 1, false, 36'000'000},  {"Rolls / min", 60, false, 600'000},
    {"Rolls / sec", 3600, false, 10'000},  {"Hrs / roll", 1, true, 10'000},
    {"Mins / roll", 60, true, 600'000},    {"Secs / roll", 3600, true, 36'000'000},
};

const UnitRow& Row(RateUnit unit) { return kUnits[static_cast<int>(unit)]; }

}  // namespace

void StartHyperDrive(Game& g) {
  if (g.KeepRolling) {
    g.KeepRolling = false;
    return;
  }
  // Beyond the bank limit the roll refuses the start and says why.
  g.HyperDriveOn = g.KeepRolling = true;
  RollDice(g);
}

void StopRolling(Game& g, StopReason reason) {
  g.KeepRolling = false;
  g.StopReason = reason;
}

const char* RateUnitName(RateUnit unit) { return Row(unit).name; }

bool SetRollsPerHour(Game& g, Currency value, RateUnit unit) {
  const UnitRow& row = Row(unit);
  const std::string name = row.name;
  std::string refusal;
  if (value <= 0)
    refusal = name + " must be greater than zero.";
  else if (value > Currency(static_cast<int>(row.largest)))
    refusal = "The maximum simulated " + name + " rate is " + FormatWithCommas(row.largest) + ".";
  if (!refusal.empty()) {
    ShowMessage(g, "Sim Roll Rate Out Of Limits", refusal);
    return false;
  }
  Currency rate = row.perRoll ? Currency::FromDouble(static_cast<double>(row.factor) / value.ToDouble())
                              : value * row.factor;
  if (rate <= 0) rate = Currency::FromRaw(1);  // too slow to show: the smallest rate there is
  g.SimRollRate = rate;
  return true;
}
