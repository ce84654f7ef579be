#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <map>

namespace orvanta {

/// A serial queue with a virtual clock: callbacks run in the order of their times, and the clock
/// jumps from one to the next. Callbacks of one time run in the order in which they were scheduled,
/// urgent ones first. For one thread.
class EventLoop {
 public:
  /// Blocks until a time in seconds since the loop began.
  using Wait = std::function<void(double time)>;

  /// Without `wait` the loop takes no real time.
  explicit EventLoop(Wait wait = {}) : wait_(std::move(wait)) {}

  /// Seconds since the loop began.
  double now() const;
  /// Runs a callback at a time in seconds, now at the earliest. Times beyond 10^9 s count as that.
  void schedule(double at, std::function<void()> callback, bool urgent = false);
  /// Runs a callback that many seconds from now.
  void scheduleIn(double seconds, std::function<void()> callback);
  /// Runs until nothing is scheduled.
  void run();

  /// Number of the request that the running callback works for, 0 for none. Whatever a callback
  /// schedules works for the same request.
  int request() const { return request_; }
  void setRequest(int request) { request_ = request; }

 private:
  /// Nanoseconds are whole, so that sums come out even.
  struct Order {
    std::int64_t at;
    bool patient;
    std::uint64_t number;
    auto operator<=>(const Order&) const = default;
  };
  struct Callback {
    std::function<void()> run;
    int request;
  };
  void enter(std::int64_t at, std::function<void()> callback, bool urgent);

  Wait wait_;
  std::int64_t now_ = 0;
  std::uint64_t next_ = 0;
  int request_ = 0;
  std::map<Order, Callback> callbacks_;
};

}  // namespace orvanta
