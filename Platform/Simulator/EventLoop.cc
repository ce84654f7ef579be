#include "orvanta/Simulator/EventLoop.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvanta {

static constexpr double kNanosecondsPerSecond = 1e9;

static std::int64_t nanoseconds(double seconds) {
  constexpr double kMaxSeconds = 1e9;
  return std::llround(std::clamp(seconds, 0.0, kMaxSeconds) * kNanosecondsPerSecond);
}

double EventLoop::now() const { return static_cast<double>(now_) / kNanosecondsPerSecond; }

void EventLoop::schedule(double at, std::function<void()> callback, bool urgent) {
  enter(nanoseconds(at), std::move(callback), urgent);
}

void EventLoop::scheduleIn(double seconds, std::function<void()> callback) {
  enter(now_ + nanoseconds(seconds), std::move(callback), /*urgent=*/false);
}

void EventLoop::enter(std::int64_t at, std::function<void()> callback, bool urgent) {
  callbacks_.emplace(Order{std::max(at, now_), !urgent, next_++},
                     Callback{std::move(callback), request_});
}

void EventLoop::run() {
  while (!callbacks_.empty()) {
    auto first = callbacks_.extract(callbacks_.begin());
    now_ = first.key().at;
    if (wait_) wait_(now());
    request_ = first.mapped().request;
    first.mapped().run();
  }
  request_ = 0;
}

}  // namespace orvanta
