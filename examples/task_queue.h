#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <utility>

/// What threads hand to one another to be done, in its order. Any thread may call it.
class TaskQueue {
 public:
  using Task = std::function<void()>;
  using Clock = std::chrono::steady_clock;

  void Put(Task task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    filled_.notify_one();
  }
  /// The next task, for which it waits, but not beyond `limit`; an empty one when none has come.
  [[nodiscard]] Task Take(std::optional<Clock::time_point> limit = {}) {
    std::unique_lock lock(mutex_);
    const auto holds_any = [this] { return !tasks_.empty(); };
    if (limit && !filled_.wait_until(lock, *limit, holds_any)) return nullptr;
    filled_.wait(lock, holds_any);
    Task task = std::move(tasks_.front());
    tasks_.pop_front();
    return task;
  }

 private:
  std::mutex mutex_;
  std::condition_variable filled_;
  std::deque<Task> tasks_;
};
