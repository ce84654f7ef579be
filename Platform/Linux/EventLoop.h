#pragma once

#include <algorithm>
#include <chrono>
#include <cmath>
#include <compare>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace orvanta {

/// One serial queue with a clock of its own: events run in the order of their times, and the clock
/// jumps from one to the next. Those of equal times run in the order in which they were scheduled,
/// urgent ones first.
class EventLoop {
 public:
  /// In real time the loop waits until an event's time has come; otherwise nothing waits.
  explicit EventLoop(bool realTime = false) : realTime_(realTime) {}

  /// Seconds since the loop began.
  double now() const { return static_cast<double>(now_) / kPerSecond; }
  /// Runs an event at a time in seconds, at the earliest now.
  void schedule(double at, std::function<void()> event, bool urgent = false) {
    enter(nanoseconds(at), std::move(event), urgent);
  }
  /// The same that many seconds from now.
  void scheduleIn(double seconds, std::function<void()> event) {
    enter(now_ + nanoseconds(seconds), std::move(event), /*urgent=*/false);
  }
  /// Runs until nothing is scheduled.
  void run() {
    const auto start = std::chrono::steady_clock::now();
    while (!events_.empty()) {
      auto first = events_.extract(events_.begin());
      now_ = first.key().at;
      if (realTime_) std::this_thread::sleep_until(start + std::chrono::nanoseconds(now_));
      first.mapped()();
    }
  }

 private:
  static constexpr double kPerSecond = 1e9;
  struct Order {
    std::int64_t at;
    bool patient;
    std::uint64_t number;
    auto operator<=>(const Order&) const = default;
  };

  /// Whole nanoseconds, so that sums come out even; times beyond 10^9 seconds count as that.
  static std::int64_t nanoseconds(double seconds) {
    constexpr double kLongest = 1e9;
    return std::llround(std::clamp(seconds, 0.0, kLongest) * kPerSecond);
  }
  void enter(std::int64_t at, std::function<void()> event, bool urgent) {
    events_.emplace(Order{std::max(at, now_), !urgent, next_++}, std::move(event));
  }

  bool realTime_;
  std::int64_t now_ = 0;
  std::uint64_t next_ = 0;
  std::map<Order, std::function<void()>> events_;
};

/// What happened and when, for people.
class Timeline {
 public:
  struct Step {
    double time;  // seconds
    std::string text;
  };

  explicit Timeline(const EventLoop& loop) : loop_(loop) {}
  void add(std::string text) { steps_.push_back({loop_.now(), std::move(text)}); }
  const std::vector<Step>& steps() const { return steps_; }

 private:
  const EventLoop& loop_;
  std::vector<Step> steps_;
};

}  // namespace orvanta
