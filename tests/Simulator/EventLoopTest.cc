#include <gtest/gtest.h>

#include <string>

#include "orvanta/Simulator/EventLoop.h"

namespace orvanta::testing {
namespace {

/// A loop whose events write their name and time.
struct WritingLoop : EventLoop {
  std::string ran;

  void at(double time, char name, bool urgent = false) {
    schedule(
        time, [this, name] { write(name); }, urgent);
  }
  void write(char name) {
    ran += name;
    ran += std::to_string(static_cast<int>(now())) + " ";
  }
};

TEST(EventLoop, RunsEventsOfOneTimeAsScheduledUrgentOnesFirst) {
  WritingLoop loop;
  loop.at(2, 'c');
  loop.at(2, 'd');
  loop.at(2, 'a', /*urgent=*/true);
  loop.at(2, 'e');
  loop.at(2, 'b', /*urgent=*/true);
  loop.at(1, '0');  // urgency counts among equals only
  loop.run();
  EXPECT_EQ(loop.ran, "01 a2 b2 c2 d2 e2 ");
}

TEST(EventLoop, RunsWhatAnEventSchedules) {
  WritingLoop loop;
  loop.schedule(1, [&] {
    loop.write('a');
    loop.at(5, 'e');
    loop.at(1, 'd');
    loop.at(1, 'b', /*urgent=*/true);
  });
  loop.at(1, 'c');
  loop.run();
  EXPECT_EQ(loop.ran, "a1 b1 c1 d1 e5 ");
}

TEST(EventLoop, NeverGoesIntoThePast) {
  WritingLoop loop;
  loop.at(-4, 'a');
  loop.schedule(7, [&] { loop.at(2, 'd'); });
  loop.at(7, 'c');
  loop.at(0, 'b');
  loop.run();
  EXPECT_EQ(loop.ran, "a0 b0 c7 d7 ");
  loop.at(1, 'e');  // run once more
  loop.run();
  EXPECT_EQ(loop.ran, "a0 b0 c7 d7 e7 ");
}

}  // namespace
}  // namespace orvanta::testing
