#pragma once
// Where a run's worker thread and the front end's thread meet: the stop
// request, the answers to the questions the run asks, the controls waiting
// for the next pause between rolls and the latest snapshot. Tasks posted to
// the front end hold the link by shared_ptr, so a task that runs after its
// controller has gone finds the link closed and does nothing.

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "sim/between_rolls.h"
#include "sim/run_snapshot.h"

class RunLink {
 public:
  // --- Stopping (any thread) -------------------------------------------------
  void Open();   // a new run: no stop asked for
  void Stop();   // also wakes a worker waiting for an answer or a pause
  void Close();  // the controller is going: posted tasks must not run
  // Read once per roll: relaxed, since the flag carries no other data.
  bool Stopped() const { return stop_.load(std::memory_order_relaxed); }
  bool Closed() const;

  // --- Questions ---------------------------------------------------------------
  // The worker waits until `answered()` holds, read under the link's lock;
  // false when a stop came first.
  template <typename Answered>
  bool AwaitAnswer(Answered answered) {
    std::unique_lock lock(mutex_);
    wake_.wait(lock, [&] { return stop_.load() || answered(); });
    return answered();
  }
  // The front end's thread hands an answer over under the lock.
  template <typename Give>
  void GiveAnswer(Give give) {
    {
      std::lock_guard lock(mutex_);
      give();
    }
    wake_.notify_all();
  }
  // A worker's pause that a stop cuts short.
  void Pause(std::chrono::microseconds length);

  // --- Controls between rolls --------------------------------------------------
  void Queue(const BetweenRolls& control);
  bool AnyQueued() const { return anyQueued_.load(std::memory_order_acquire); }
  // Moves the queued controls into `into` (emptied first), oldest first.
  void TakeQueued(std::vector<BetweenRolls>& into);

  // --- Snapshots -----------------------------------------------------------------
  void Publish(const Game& g, bool running);
  RunSnapshot Latest() const;

  // --- Notices posted without waiting ------------------------------------------------
  // How many are queued on the front end's thread; past a limit the run drops
  // the ones that can be missed rather than flood a screen that lags behind.
  void Sent() { unseen_.fetch_add(1, std::memory_order_relaxed); }
  void Seen() { unseen_.fetch_sub(1, std::memory_order_relaxed); }
  bool Behind(int most) const { return unseen_.load(std::memory_order_relaxed) >= most; }

 private:
  std::atomic<int> unseen_{0};
  mutable std::mutex mutex_;
  std::condition_variable wake_;
  std::atomic<bool> stop_{false};
  bool closed_ = false;
  std::vector<BetweenRolls> queued_;
  std::atomic<bool> anyQueued_{false};
  mutable std::mutex shotMutex_;  // apart: a screen polling snapshots never delays an answer
  RunSnapshot latest_;
};
