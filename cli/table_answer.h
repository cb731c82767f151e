#pragma once
// The table's answers as the command line words them.

#include "cli/command_error.h"
#include "sim/table_result.h"

// Throws the table's refusal, whatever it was.
inline void Require(const TableResult& r) {
  if (!r.Done()) throw CommandError(r.text);
}

// Throws only when a run held the table: the engine has already told the
// player about any other refusal on the screen.
inline void NotBusy(const TableResult& r) {
  if (r.code == TableCode::Busy) throw CommandError(r.text);
}
