#pragma once
// Why a run of rolls ended, and the text the player is shown for it.

#include <string>

enum class StopReason {
  None,                 // the run simply ran out of rolls to make
  RollCount,            // the Auto-Play roll count ran out under Hyper-Drive
  MaxRolls,             // the game reached its ceiling of rolls
  BankLimit,            // the bankroll broke the bank limit
  MaxLoss,              // the bankroll went below minus the bank limit
  EndOfRollFile,        // the Dice Roll File being played has no more rolls
  RollFileOutOfLimits,  // its next byte is no pair of dice
  ScriptCommand,        // the script's Stop verb
  ScriptError,          // the script failed under Hyper-Drive
  StartRefusedBankLimit,  // a start with the bankroll already beyond the limit
  StartRefusedMaxLoss,    // ... or already below minus the limit
};

// The exact text of a reason; "" for None.
const char* StopReasonText(StopReason reason);

// A stop text and the line that tells how to reset the table, after two
// line breaks.
std::string WithResetTail(const std::string& text);
