#pragma once
// What a command of the table answers: done, or why not, as a value. The
// text of a refusal is the one the engine shows (or would show, were its
// notices on), so every front end words it alike.

#include <cstdint>
#include <string>

#include "dice/money.h"
#include "engine/stop_reason.h"

enum class TableCode {
  Done,
  Busy,        // a run owns the table
  Refused,     // the table's rules cut or refused the change
  Unknown,     // no such setting, bet or key
  WrongType,   // a value of the wrong kind (a fraction for a count, 2 for a flag)
  OutOfRange,  // outside what the setting or record may hold
  NotDone,     // a file or engine step failed, having said why on the screen
  Cancelled,   // the player said Cancel to a question on the way
};

constexpr const char* kBusyText = "not while the dice are rolling";

struct TableResult {
  TableCode code = TableCode::Done;
  std::string title;  // the notice's title, where the engine has one
  std::string text;

  bool Done() const { return code == TableCode::Done; }
  static TableResult Fail(TableCode code, std::string text, std::string title = "") {
    return {code, std::move(title), std::move(text)};
  }
};

// A bet placed or changed: the change the rules let through, and a refusal
// when they cut it (the change may still be partly made).
struct BetResult : TableResult {
  int betId = 0;  // after a Buy, the Buy bet
  Currency allowed;
};

// A run of Auto-Roll or Hyper-Drive, or a single roll.
struct RunResult : TableResult {
  StopReason reason = StopReason::None;  // why it stopped; None when it simply ran out of rolls
  int64_t rolls = 0;
};

// The ATM: what it moved of what was asked.
struct AtmResult : TableResult {
  Currency allowed;
};

// A setting read by name: its value as the settings table keeps it
// (flags 0/1, integers whole).
struct SettingResult : TableResult {
  Currency value;
};
