#include <gtest/gtest.h>

#include <sstream>

#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

TEST(CommandLine, WrongArgumentsPrintNothingOnStandardOutput) {
  const struct {
    std::vector<std::string> arguments;
    std::string_view told;
  } rows[] = {
      {{}, "a command is needed"},
      {{"--unknown"}, "--unknown"},
      {{"notify", "a", "surplus"}, "surplus"},
      {{"model"}, "CLASS is required"},
      {{"model", "OrvantaPushStyle", "file", "--init"}, "--init"},
      {{"model", "OrvantaPushStyle", "--update"}, "--update"},
      {{"--log-level", "much", "schema"}, "much"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runTool(row.arguments, "{}");
    const std::string last = row.arguments.empty() ? "nothing" : row.arguments.back();
    EXPECT_EQ(run.exit, ExitCode::usage) << last;
    EXPECT_EQ(run.out, "") << last;
    EXPECT_NE(run.err, "") << last;
    EXPECT_NE(run.err.find(row.told), std::string::npos) << run.err;
  }
}

TEST(CommandLine, HelpAndVersionGoToStandardOutput) {
  const ToolRun help = runTool({"--help"});
  EXPECT_EQ(help.exit, ExitCode::done);
  EXPECT_EQ(help.err, "");
  for (const char* part : {"notify", "model", "schema", "--log-level", "Exit codes", "\n  0  ",
                           "\n  1  ", "\n  2  ", "\n  3  ", "\n  4  "}) {
    EXPECT_NE(help.out.find(part), std::string::npos) << part;
  }
  const ToolRun version = runTool({"--version"});
  EXPECT_EQ(version.exit, ExitCode::done);
  EXPECT_EQ(version.out.rfind("orvanta ", 0), 0U) << version.out;
}

TEST(CommandLine, LogLevelControlsLogLinesOnStandardError) {
  const std::string line =
      "orvanta: OrvantaInAppMessageAction \"ttl\" (timeToLive): null, "
      "but a number is read from numbers and text only\n";
  const std::string head =
      "\n\n❗ -[OrvantaBaseModel updateWithDictionary:] (OrvantaBaseModel:81) ❗\n";
  const struct {
    std::vector<std::string> level;
    bool logs;
  } rows[] = {
      {{}, true},
      {{"--log-level", "1"}, true},
      {{"--log-level", "0"}, false},
      {{"--log-level=-9223372036854775808"}, false},
  };
  for (const auto& row : rows) {
    for (const std::ptrdiff_t place : {0, 2}) {  // before and after the command
      std::vector<std::string> arguments{"model", "OrvantaInAppMessageAction"};
      arguments.insert(arguments.begin() + place, row.level.begin(), row.level.end());
      const ToolRun run = runTool(arguments, R"({"ttl": null})");
      EXPECT_EQ(run.exit, ExitCode::rejected);
      EXPECT_EQ(run.out, "");
      EXPECT_TRUE(run.err.ends_with(line)) << run.err;
      EXPECT_EQ(run.err.starts_with(head), row.logs) << run.err;
      EXPECT_EQ(run.err.size() == line.size(), !row.logs) << run.err;
    }
  }
}

TEST(CommandLine, SuggestsNearestClassForUnknownName) {
  const struct {
    std::string name;
    std::string shown;
    std::string nearest;
  } rows[] = {
      {"orvantapushstyle", "orvantapushstyle", "OrvantaPushStyle"},
      {"UserNotificationCategory", "UserNotificationCategory", "OrvantaUserNotificationCategory"},
      {"OrvantaAction\x1b[0m", "OrvantaAction\\u001b[0m", "OrvantaAction"},
  };
  for (const auto& row : rows) {
    for (const char* command : {"model", "schema"}) {
      const ToolRun run = runTool({command, row.name}, "{}");
      EXPECT_EQ(run.exit, ExitCode::usage);
      EXPECT_EQ(run.out, "");
      EXPECT_EQ(run.err, "orvanta: there is no class \"" + row.shown + "\"; the nearest is " +
                             row.nearest + "\n");
    }
  }
}

TEST(CommandLine, OutputThatCannotBeWrittenIsAnInternalError) {
  const char* const argv[] = {"orvanta", "schema"};
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(tool::runCommandLine(2, argv, {.in = in, .out = out, .err = err}), ExitCode::internal);
  EXPECT_EQ(err.str(), "orvanta: the output cannot be written\n");
}

}  // namespace
}  // namespace orvanta::testing
