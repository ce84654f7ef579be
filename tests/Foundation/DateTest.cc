#include <gtest/gtest.h>

#include <limits>

#include "orvanta/Foundation/Date.h"

namespace orvanta::testing {
namespace {

constexpr auto kInt64Max = std::numeric_limits<std::int64_t>::max();
constexpr auto kInt64Min = std::numeric_limits<std::int64_t>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Date, TruncatesWholeMillisecondsInTheRoundTrip) {
  const std::pair<std::int64_t, std::int64_t> rows[] = {
      {1001, 1000},  // 1.001 * 1000.0 is below 1001
      {1500000000123, 1500000000123},
      {1080000000001, 1080000000000},
      {-1001, -1000},
  };
  for (const auto& [milliseconds, roundTrip] : rows)
    EXPECT_EQ(Date::fromMilliseconds(milliseconds).milliseconds(), roundTrip);
  EXPECT_EQ(Date::fromMilliseconds(1500000000123).secondsSince1970, 1500000000.123);
}

TEST(Date, RoundsFractionsTowardZeroAndClampsExtremes) {
  const std::pair<double, std::int64_t> rows[] = {
      {0.0019, 1},         {-0.0019, -1},          {1e300, kInt64Max},
      {-1e300, kInt64Min}, {kInfinity, kInt64Max}, {std::numeric_limits<double>::quiet_NaN(), 0},
  };
  for (const auto& [seconds, milliseconds] : rows)
    EXPECT_EQ(Date{seconds}.milliseconds(), milliseconds);
}

TEST(Date, IsDescribedInUtcWithoutTheFraction) {
  const std::pair<double, std::string_view> rows[] = {
      {0.0, "1970-01-01 00:00:00 +0000"},
      {1500000000.999, "2017-07-14 02:40:00 +0000"},
      {951782400.0, "2000-02-29 00:00:00 +0000"},
      {-0.25, "1969-12-31 23:59:59 +0000"},
      {-62135596800.0, "0001-01-01 00:00:00 +0000"},
      {1e15, "1000000000000000 s since 1970"},
      {-kInfinity, "-9223372036854775808 s since 1970"},
  };
  for (const auto& [seconds, text] : rows) EXPECT_EQ(Date{seconds}.description(), text);
}

}  // namespace
}  // namespace orvanta::testing
