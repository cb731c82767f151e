#pragma once
// A front end's event queue for tests and benchmarks: tasks posted from any
// thread run on the thread that pumps.

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

class TaskQueue {
 public:
  std::function<void(std::function<void()>)> Poster() {
    return [this](std::function<void()> task) { Post(std::move(task)); };
  }

  void Post(std::function<void()> task) {
    {
      std::lock_guard lock(mutex_);
      tasks_.push_back(std::move(task));
    }
    posted_.notify_one();
  }

  // Runs the posted tasks here until `done()`, which only a task can turn
  // on, holds. Sleeps between tasks, as an idle front end does.
  template <typename Done>
  void RunUntil(Done done) {
    while (!done()) {
      std::function<void()> task;
      {
        std::unique_lock lock(mutex_);
        posted_.wait(lock, [&] { return !tasks_.empty(); });
        task = std::move(tasks_.front());
        tasks_.pop_front();
      }
      task();
    }
  }

  // Runs the posted tasks here until `done()` holds; false if it still does
  // not after `limit`.
  template <typename Done>
  bool PumpUntil(Done done, std::chrono::milliseconds limit = std::chrono::seconds(60)) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!done()) {
      std::function<void()> task;
      {
        std::unique_lock lock(mutex_);
        // A short wait: `done()` may turn on without a task, from a snapshot.
        posted_.wait_for(lock, std::chrono::milliseconds(1), [&] { return !tasks_.empty(); });
        if (!tasks_.empty()) {
          task = std::move(tasks_.front());
          tasks_.pop_front();
        }
      }
      if (task) task();
      if (std::chrono::steady_clock::now() > deadline) return done();
    }
    return true;
  }

 private:
  std::mutex mutex_;
  std::condition_variable posted_;
  std::deque<std::function<void()>> tasks_;
};
