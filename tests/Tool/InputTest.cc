#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"
#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

TEST(Input, ReportsUnreadableInputInOneLine) {
  const TemporaryFolder folder;
  const struct {
    std::string file;
    std::string reason;
  } rows[] = {
      {folder.path() / "none.json", ": No such file or directory"},
      {folder.path(), ": Is a directory"},
      {folder.file("empty.json", ""), ":1:1: the text ends where a value should stand"},
      {folder.file("array.json", "[{}]"), ": the text is an array, not a JSON object"},
      {folder.file("more.json", "{}\r\n\r\n{}"), ":3:1: text after the value"},
      // columns count characters; a byte-order mark does not count
      {folder.file("mark.json", "\xef\xbb\xbf{,"), ":1:2: expected a key in quotes"},
      {folder.file("latin.json", "{\"\u00e9\u20ac\":\"\xff\"}"), ":1:8: text that is not UTF-8"},
  };
  for (const auto& row : rows) {
    for (const char* command : {"model", "notify"}) {
      std::vector<std::string> arguments{command, row.file};
      if (arguments[0] == "model") arguments.insert(arguments.begin() + 1, "OrvantaPushStyle");
      const ToolRun run = runTool(arguments, R"({"ffm": "not this one"})");
      EXPECT_EQ(run.exit, ExitCode::unreadable) << row.file;
      EXPECT_EQ(run.out, "") << row.file;
      EXPECT_EQ(run.err, "orvanta: " + row.file + row.reason + "\n");
    }
  }
}

TEST(Input, NamesStandardInput) {
  EXPECT_EQ(runTool({"model", "OrvantaPushStyle"}, "{,}").err.substr(0, 28),
            "orvanta: standard input:1:2:");
  EXPECT_EQ(runTool({"model", "OrvantaPushStyle", "-"}, "1").err,
            "orvanta: standard input: the text is an integer, not a JSON object\n");
}

TEST(Input, WarnsAboutEveryDuplicateKeyAndTakesTheLast) {
  const TemporaryFolder folder;
  const std::string file = folder.file(
      "twice.json", "{\"ffm\": 1,\n \"x\": {\"ffm\": 0, \"y\": 1,\n\"y\": 2},\n  \"ffm\": 2}");
  const ToolRun run = runTool({"model", "OrvantaPushStyle", file});
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.out, "{\"ffm\":2}\n");
  EXPECT_EQ(run.err, "orvanta: " + file +
                         ":3:1: warning: the key \"y\" stands here again (first at 2:18); "
                         "its last value counts\n"
                         "orvanta: " +
                         file +
                         ":4:3: warning: the key \"ffm\" stands here again (first at 1:2); "
                         "its last value counts\n");
}

TEST(Input, EscapesControlCharactersInKeys) {
  const ToolRun run =
      runTool({"model", "OrvantaPushStyle"}, R"({"a\u001b\nb": 1, "a\u001b\nb": 2})");
  EXPECT_EQ(run.err,
            "orvanta: standard input:1:19: warning: the key \"a\\u001b\\u000ab\" stands here "
            "again (first at 1:2); its last value counts\n");
}

}  // namespace
}  // namespace orvanta::testing
