// A screen's runs: the roll loop on a worker thread, the Table's gate shut
// until the run hands the game back.

#include "sim/table.h"
#include "sim/table_command.h"

TableResult Table::StartLive(RunKind kind, PostFn post) {
  if (busy_) return TableResult::Fail(TableCode::Busy, kBusyText);
  relay_->Forget();
  GoToTable();
  Publish();  // the last look at the game from this thread until the run ends
  live_ = std::make_unique<RunController>(*game_, *relay_, std::move(post));
  live_->OnFinished([this](const RunEnd& end) { EndRun(end.StopReason); });
  BeginRun();
  if (!live_->Start(kind)) {
    EndRun(StopReason::None);
    return TableResult::Fail(TableCode::Refused, kBusyText);
  }
  return {};
}

RunSnapshot Table::LiveSnapshot() const { return live_ ? live_->Snapshot() : RunSnapshot{}; }
