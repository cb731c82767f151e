#pragma once
// Runs Hyper-Drive and Auto-Roll on a worker thread so that the screen stays
// live. For the length of a run the worker owns the game: the front end's
// thread reads the run's snapshots and sends controls, and touches the game
// again only once the finish callback has come. The engine's loop is the
// one every other caller runs; the controller only gives it a front end
// (RunScreen) that carries its questions across threads.
//
// Every member is called on the front end's thread; Snapshot() and Running()
// from any thread. The headless paths (batches, the command line) roll on
// their own threads without it.

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "engine/frontend.h"
#include "engine/game.h"
#include "sim/run_link.h"
#include "sim/run_screen.h"
#include "sim/run_snapshot.h"

enum class RunKind {
  HyperDrive,
  // The roll command: with the Auto-Roll switch on, rolls at its pace until
  // a stop; with it off, one visible throw.
  AutoRoll,
};

struct RunEnd {
  RunKind Kind = RunKind::HyperDrive;
  // The reason the run gave; empty when it ran out of rolls to make or was
  // stopped from the screen.
  decltype(Game::StopReason) StopReason{};
  bool Stopped = false;  // Stop() was called during the run
  std::string Error;     // what went wrong when the roll threw; the game may be mid-roll
};

class RunController {
 public:
  using FinishedFn = std::function<void(const RunEnd&)>;

  // `post` runs a task on the front end's thread, after the tasks posted
  // before it; the screen answers the run's questions there.
  RunController(Game& g, FrontEnd& screen, PostFn post);
  // Stops a run and waits for it; its finish callback never comes.
  ~RunController();
  RunController(const RunController&) = delete;
  RunController& operator=(const RunController&) = delete;

  // Posted on the front end's thread once the worker has let go of the game,
  // after the redraws the run asked for and the screen's RollFinished. The
  // controller is idle by then: the callback may start the next run.
  void OnFinished(FinishedFn finished) { finished_ = std::move(finished); }

  // False while a run is on, or while the game is inside a roll made on the
  // front end's own thread.
  bool Start(RunKind kind);
  // Ends the run after the roll in progress. A question the run is waiting
  // on, and any it asks from then on, take a silent screen's answer.
  void Stop();
  // From Start until the finish callback.
  bool Running() const { return running_.load(); }
  // Until the worker has ended. On the front end's thread only after Stop():
  // before it, the run may be waiting for an answer that thread must give.
  void Wait();

  // Carried out by the run at its next pause between rolls; at once when idle.
  void SetThrottle(int value);
  void MoveGraphWindow(bool up);
  void StepGraphScale(bool larger);

  // The latest figures the run published: every few milliseconds, and as it ended.
  RunSnapshot Snapshot() const { return link_->Latest(); }

 private:
  void Control(const BetweenRolls& control);
  void Work(RunKind kind);      // the worker
  void Finished(RunKind kind);  // the front end's thread, once the worker is done

  Game& g_;
  FrontEnd& screen_;
  PostFn post_;
  std::shared_ptr<RunLink> link_ = std::make_shared<RunLink>();
  std::unique_ptr<RunScreen> runScreen_;
  FrontEnd* idleScreen_ = nullptr;  // the game's front end before the run
  std::string error_;
  std::atomic<bool> running_{false};
  FinishedFn finished_;
  std::thread worker_;
};
