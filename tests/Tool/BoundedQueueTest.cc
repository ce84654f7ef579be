#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>

#include "orvanta/Tool/BoundedQueue.h"

namespace orvanta::testing {
namespace {

using tool::BoundedQueue;

TEST(BoundedQueue, HandsEveryElementToOneConsumer) {
  constexpr int kElements = 1000;
  BoundedQueue<int> queue(2);
  std::atomic<int> sum = 0;
  std::thread consumers[2];
  for (std::thread& consumer : consumers) {
    consumer = std::thread([&] {
      while (const auto element = queue.pop()) sum += *element;
    });
  }
  for (int i = 1; i <= kElements; ++i) queue.push(i);
  queue.close();
  for (std::thread& consumer : consumers) consumer.join();
  EXPECT_EQ(sum, kElements * (kElements + 1) / 2);
}

TEST(BoundedQueue, AFailureReleasesAProducerThatWaits) {
  BoundedQueue<int> queue(1);
  queue.push(1);
  std::thread consumer(
      [&] { queue.fail(std::make_exception_ptr(std::runtime_error("the first"))); });
  EXPECT_THROW(queue.push(2), std::runtime_error);  // full until the consumer fails
  consumer.join();
  queue.fail(std::make_exception_ptr(std::logic_error("the second")));
  EXPECT_EQ(queue.pop(), std::nullopt);
  EXPECT_THROW(queue.rethrowFailure(), std::runtime_error);
}

}  // namespace
}  // namespace orvanta::testing
