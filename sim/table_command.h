#pragma once
// The frame of every command of a Table (for its own source files only):
// the busy gate, a clean slate of messages, and the listeners told after.

#include "engine/game.h"
#include "sim/table.h"
#include "sim/table_relay.h"

template <class R, class F>
R Table::Command(F&& change) {
  if (busy_) {
    R refused;
    refused.code = TableCode::Busy;
    refused.text = kBusyText;
    return refused;
  }
  relay_->Forget();
  R r = change(*game_);
  Publish();
  return r;
}

// A failure told with the message the engine showed on the way, if any.
inline TableResult Told(const TableRelay& relay, TableCode code, const std::string& fallback) {
  return TableResult::Fail(code, relay.LastText().empty() ? fallback : relay.LastText(), relay.LastTitle());
}
