#pragma once
// What a screen hears of a table: every change a command (or a visible roll
// of a run) made, worked out by comparing the table before and after. Every
// method is empty by default; a screen overrides the ones it draws.

#include <span>
#include <string>

#include "dice/money.h"
#include "engine/stop_reason.h"
#include "engine/settlement_log.h"

class TableListener {
 public:
  virtual ~TableListener() = default;
  virtual void BetChanged(int /*betId*/, Currency /*before*/, Currency /*after*/) {}
  // The rail is the bankroll less what stands on the layout.
  virtual void BankrollChanged(Currency /*bankroll*/, Currency /*rail*/) {}
  virtual void PointChanged(int /*point*/) {}
  virtual void DiceThrown(int /*die1*/, int /*die2*/) {}
  virtual void RollFinished(std::span<const Settlement> /*settlements*/) {}
  virtual void StatisticsRefreshed() {}
  virtual void SettingChanged(const std::string& /*name*/) {}
  virtual void FlagsChanged() {}
  virtual void ChipStacksChanged() {}
  virtual void UnsavedChanged(bool /*unsaved*/) {}
  virtual void RunStarted() {}
  virtual void RunStopped(StopReason /*reason*/) {}
};
