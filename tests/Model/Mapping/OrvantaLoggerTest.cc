#include <gtest/gtest.h>

#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "support/LogLevel.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

constexpr LogSite kSite{"+[Some method:with:]", "Some", 12};

TEST(OrvantaLogger, WritesErrorLinesFromOneAndDebugLinesFromTwo) {
  const std::string error = "\n\n❗ +[Some method:with:] (Some:12) ❗\nan error\n\n";
  const std::string debug = "\n\n🦋 +[Some method:with:] (Some:12) 🦋\nprogress\n\n";
  const struct {
    std::int64_t level;
    std::vector<std::string> log;
  } rows[] = {
      {-9223372036854775807, {}},   {-1, {}}, {0, {}}, {1, {error}}, {2, {error, debug}},
      {4294967296, {error, debug}},
  };
  for (const auto& row : rows) {
    const LogLevel scope(row.level);
    RecordingPlatform platform;
    logError(kSite, [] { return "an error"; });
    logDebug(kSite, [] { return std::string("progress"); });
    EXPECT_EQ(platform.log, row.log) << row.level;
    EXPECT_EQ(OrvantaLogger::logLevel(), row.level);
  }
}

TEST(OrvantaLogger, BuildsNoMessageThatIsNotWritten) {
  const LogLevel scope(0);
  RecordingPlatform platform;
  int messages = 0;
  const auto message = [&messages] { return std::to_string(++messages); };
  logError(kSite, message);
  OrvantaLogger::setLogLevel(1);
  logDebug(kSite, message);
  EXPECT_EQ(messages, 0);
  logError(kSite, message);
  EXPECT_EQ(messages, 1);
}

}  // namespace
}  // namespace orvanta::testing
