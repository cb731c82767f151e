#include "engine/stop_reason.h"

#include <array>

#include "engine/game.h"
#include "engine/notices.h"

namespace {

constexpr int kReasons = static_cast<int>(StopReason::StartRefusedMaxLoss) + 1;

// The texts with figures in them are built once from the limits themselves.
std::array<std::string, kReasons> BuildTexts() {
  const std::string bank = Dollars(BankLimit);
  std::array<std::string, kReasons> t;
  auto at = [&t](StopReason r) -> std::string& { return t[static_cast<int>(r)]; };
  at(StopReason::RollCount) = "Stopped by roll count on Auto-Play screen.";
  at(StopReason::MaxRolls) =
      WithResetTail("Stopped due to reaching the maximum limit of " + FormatWithCommas(MaxRolls) + " rolls.");
  at(StopReason::BankLimit) = WithResetTail("Stopped by breaking the bank limit of " + bank);
  at(StopReason::MaxLoss) = WithResetTail("Stopped by exceeding the max loss limit of " + bank);
  at(StopReason::EndOfRollFile) = "Stopped due to end of Dice Roll File reached.";
  at(StopReason::RollFileOutOfLimits) = "Stopped due to Dice Roll File value out of limits.";
  at(StopReason::ScriptCommand) = "Stopped by Auto-Bet command.";
  at(StopReason::ScriptError) = "Auto-Bet error.";
  at(StopReason::StartRefusedBankLimit) = WithResetTail("You broke the bank limit of " + bank);
  at(StopReason::StartRefusedMaxLoss) = WithResetTail("You've exceeded the max loss limit of " + bank);
  return t;
}

}  // namespace

const char* StopReasonText(StopReason reason) {
  static const std::array<std::string, kReasons> texts = BuildTexts();
  return texts[static_cast<int>(reason)].c_str();
}

std::string WithResetTail(const std::string& text) {
  return text + kTwoBreaks + "Select \"New\" from the \"Game\" menu to reset the table.";
}
