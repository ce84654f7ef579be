#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <mutex>
#include <optional>
#include <utility>

namespace orvanta::tool {

/// A queue from one thread to several consumers. `push` blocks while the queue is full, `pop` while
/// it is empty. All functions are thread-safe.
template <class T>
class BoundedQueue {
 public:
  explicit BoundedQueue(std::size_t capacity) : capacity_(capacity) {}

  /// Rethrows the failure if a consumer has failed.
  void push(T element) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return failure_ || elements_.size() < capacity_; });
    if (failure_) std::rethrow_exception(failure_);
    elements_.push_back(std::move(element));
    changed_.notify_all();
  }

  /// Returns nothing after `close`, once the queue is empty, or after `fail`.
  std::optional<T> pop() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return failure_ || isClosed_ || !elements_.empty(); });
    if (failure_ || elements_.empty()) return std::nullopt;
    std::optional<T> element(std::move(elements_.front()));
    elements_.pop_front();
    changed_.notify_all();
    return element;
  }

  /// No more elements will be pushed.
  void close() {
    const std::lock_guard lock(mutex_);
    isClosed_ = true;
    changed_.notify_all();
  }

  /// Records why a consumer stopped, and stops the others and the producer. The first failure wins.
  void fail(std::exception_ptr failure) {
    const std::lock_guard lock(mutex_);
    if (!failure_) failure_ = std::move(failure);
    changed_.notify_all();
  }
  void rethrowFailure() {
    const std::lock_guard lock(mutex_);
    if (failure_) std::rethrow_exception(failure_);
  }

 private:
  const std::size_t capacity_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<T> elements_;
  bool isClosed_ = false;
  std::exception_ptr failure_;
};

}  // namespace orvanta::tool
