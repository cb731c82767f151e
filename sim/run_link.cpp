#include "sim/run_link.h"

void RunLink::Open() {
  std::lock_guard lock(mutex_);
  stop_.store(false);
}

void RunLink::Stop() {
  {
    std::lock_guard lock(mutex_);
    stop_.store(true);
  }
  wake_.notify_all();
}

void RunLink::Close() {
  {
    std::lock_guard lock(mutex_);
    closed_ = true;
    stop_.store(true);
  }
  wake_.notify_all();
}

bool RunLink::Closed() const {
  std::lock_guard lock(mutex_);
  return closed_;
}

void RunLink::Pause(std::chrono::microseconds length) {
  std::unique_lock lock(mutex_);
  wake_.wait_for(lock, length, [&] { return stop_.load(); });
}

void RunLink::Queue(const BetweenRolls& control) {
  std::lock_guard lock(mutex_);
  queued_.push_back(control);
  anyQueued_.store(true, std::memory_order_release);
}

void RunLink::TakeQueued(std::vector<BetweenRolls>& into) {
  into.clear();
  std::lock_guard lock(mutex_);
  // A swap keeps both vectors' storage: taking allocates nothing once warm.
  into.swap(queued_);
  anyQueued_.store(false, std::memory_order_release);
}

void RunLink::Publish(const Game& g, bool running) {
  std::lock_guard lock(shotMutex_);
  TakeRunSnapshot(g, running, latest_);
}

RunSnapshot RunLink::Latest() const {
  std::lock_guard lock(shotMutex_);
  return latest_;
}
