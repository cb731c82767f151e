#include "sim/run_controller.h"

#include <exception>
#include <utility>
#include <vector>

#include "engine/roll.h"
#include "sim/hyper_drive.h"

RunController::RunController(Game& g, FrontEnd& screen, PostFn post)
    : g_(g), screen_(screen), post_(std::move(post)) {
  link_->Publish(g_, false);
}

RunController::~RunController() {
  Stop();
  Wait();
  link_->Close();
}

bool RunController::Start(RunKind kind) {
  if (running_.load() || g_.RollInProgress) return false;
  Wait();  // the last run's worker has posted its finish and is leaving
  running_.store(true);
  link_->Open();
  link_->Publish(g_, true);
  error_.clear();
  // A run always starts: a KeepRolling left set would make Hyper-Drive's
  // start a second press, which stops.
  g_.KeepRolling = false;
  idleScreen_ = g_.Ui;
  runScreen_ = std::make_unique<RunScreen>(g_, screen_, post_, link_);
  g_.Ui = runScreen_.get();
  worker_ = std::thread([this, kind] { Work(kind); });
  return true;
}

void RunController::Stop() {
  if (running_.load()) link_->Stop();
}

void RunController::Wait() {
  if (worker_.joinable()) worker_.join();
}

void RunController::SetThrottle(int value) { Control({BetweenRollsKind::Throttle, value}); }
void RunController::MoveGraphWindow(bool up) { Control({BetweenRollsKind::GraphWindow, up ? 1 : 0}); }
void RunController::StepGraphScale(bool larger) { Control({BetweenRollsKind::GraphScale, larger ? 1 : 0}); }

void RunController::Control(const BetweenRolls& control) {
  if (running_.load())
    link_->Queue(control);
  else
    ApplyBetweenRolls(g_, control);
}

void RunController::Work(RunKind kind) {
  try {
    if (kind == RunKind::HyperDrive) {
      StartHyperDrive(g_);
    } else {
      g_.KeepRolling = true;
      RollDice(g_);
    }
  } catch (const std::exception& e) {
    error_ = e.what();
  }
  // One throw with the Auto-Roll switch off leaves KeepRolling set.
  g_.KeepRolling = false;
  runScreen_->EndOfRun();
  g_.Ui = idleScreen_;
  post_([this, link = link_, kind] {
    if (!link->Closed()) Finished(kind);
  });
}

void RunController::Finished(RunKind kind) {
  // Controls sent after the run's last pause: the game is this thread's again.
  std::vector<BetweenRolls> late;
  link_->TakeQueued(late);
  for (const BetweenRolls& control : late) ApplyBetweenRolls(g_, control);
  if (!late.empty()) link_->Publish(g_, false);
  const RunEnd end{kind, runScreen_->LastStop(), link_->Stopped(), error_};
  runScreen_->CatchUp();
  running_.store(false);
  if (finished_) finished_(end);
}
