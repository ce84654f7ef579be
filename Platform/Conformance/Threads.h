#pragma once

#include <atomic>
#include <thread>
#include <type_traits>
#include <vector>

namespace orvanta::conformance {

/// Runs a callable in four threads that start together; it may take the thread's number.
template <class Work>
void runTogether(const Work& work) {
  std::atomic<int> waiting{4};
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&work, &waiting, number = i] {
      static_cast<void>(number);  // not every callable takes it
      --waiting;
      while (waiting != 0) std::this_thread::yield();
      if constexpr (std::is_invocable_v<Work, int>) {
        work(number);
      } else {
        work();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace orvanta::conformance
