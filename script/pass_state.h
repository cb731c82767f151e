#pragma once
// The state of one pass over the script. It lives for one RunAutoBet call;
// what carries over between rolls is in the Game (Flags, Chip-Stacks and the
// "previous" snapshots).

#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>

#include "engine/catalogue.h"
#include "dice/money.h"

struct PassState {
  int32_t CurrentLine = 0;
  bool BlockTrue = false;     // every line of the block so far was true
  bool LineJustNow = false;   // the condition just evaluated has just now occurred
  bool BlockJustNow = false;  // some line of the block has just now occurred
  bool PreviousTrue = false;  // the last finished block was true
  bool OverallTrue = false;   // the statement's whole condition is decided true
  int32_t PendingXor = 0;     // 0, or 7 / 8 for a block opened by "xor when" / "xor while"
  int32_t LastStart = 0;      // kind of the last Start Condition or Start Action met
  std::string JumpLabel;      // label a Go to or GoSub looks for, lower-cased and trimmed
  std::string ReturnStack;    // line numbers, each followed by a comma, newest first
  bool ReturnPending = false;
  int32_t LineCounter = 0;    // lines since the last yield
  Currency RunAmount;         // best or sum of a run of highest/lowest/average lines
  int32_t RunCount = 0;
  // Each slot's amount at the run's first line: filled with zeros only when a
  // run first needs it, not on every pass.
  std::optional<std::array<Currency, bet::kSlots>> RunBase;
  double PassStart = 0;       // seconds; "Play sound:" moves it back to skip the pause
  std::string Status;         // the step's status text, built only when steps are shown

  std::array<Currency, bet::kSlots>& RunBases() {
    if (!RunBase) RunBase.emplace();
    return *RunBase;
  }
};

// An error that aborts the pass: shown with its number and description.
struct ScriptError : std::runtime_error {
  int Number;
  ScriptError(int number, const std::string& description) : std::runtime_error(description), Number(number) {}
};

namespace script_error {
inline ScriptError DivisionByZero() { return {11, "Division by zero"}; }
inline ScriptError Overflow() { return {6, "Overflow"}; }
inline ScriptError BadFileName() { return {52, "Bad file name or number"}; }
inline ScriptError FileNotFound() { return {53, "File not found"}; }
inline ScriptError PathAccess() { return {75, "Path/File access error"}; }
}  // namespace script_error
