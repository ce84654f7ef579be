#include "orvanta/Foundation/Date.h"

#include <chrono>
#include <cmath>
#include <cstdio>

#include "orvanta/Foundation/Number.h"

namespace orvanta {

std::int64_t Date::milliseconds() const {
  return Number(Value(secondsSince1970 * 1000.0)).longLongValue();
}

std::string Date::description() const {
  const std::int64_t seconds = Number(Value(std::floor(secondsSince1970))).longLongValue();
  std::int64_t days = seconds / 86400;
  std::int64_t rest = seconds % 86400;
  if (rest < 0) rest += 86400, --days;
  // std::chrono's calendar covers the years -32767 to 32767; other dates are printed in seconds.
  constexpr std::int64_t kLastDay = 11'000'000;
  if (days < -kLastDay || days > kLastDay) return std::to_string(seconds) + " s since 1970";
  const std::chrono::year_month_day date{
      std::chrono::sys_days{std::chrono::days{static_cast<int>(days)}}};
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02u-%02u %02d:%02d:%02d +0000",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(rest / 3600),
                static_cast<int>(rest / 60 % 60), static_cast<int>(rest % 60));
  return text;
}

}  // namespace orvanta
