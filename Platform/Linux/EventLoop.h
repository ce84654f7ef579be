#pragma once

#include <algorithm>
#include <compare>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace orvanta {

/// One serial queue with a clock of its own: events run in the order of their times, and the clock
/// jumps from one to the next, so nothing waits. Those of equal times run in the order in which
/// they were scheduled, urgent ones first.
class EventLoop {
 public:
  /// Seconds since the loop began.
  double now() const { return now_; }
  /// Runs an event at a time, at the earliest now.
  void schedule(double at, std::function<void()> event, bool urgent = false) {
    events_.emplace(Order{std::max(at, now_), !urgent, next_++}, std::move(event));
  }
  /// Runs until nothing is scheduled.
  void run() {
    while (!events_.empty()) {
      auto first = events_.extract(events_.begin());
      now_ = first.key().at;
      first.mapped()();
    }
  }

 private:
  struct Order {
    double at;
    bool patient;
    std::uint64_t number;
    auto operator<=>(const Order&) const = default;
  };

  double now_ = 0.0;
  std::uint64_t next_ = 0;
  std::map<Order, std::function<void()>> events_;
};

}  // namespace orvanta
