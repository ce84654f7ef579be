#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"
#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

/// Runs `model` without log lines, so that standard error has only the program's messages.
ToolRun runModel(std::vector<std::string> arguments, std::string_view standardIn = "") {
  arguments.insert(arguments.begin(), {"--log-level", "0", "model"});
  return runTool(arguments, standardIn);
}

const std::string kPush = "OrvantaPushObject";
const std::string kStyle = "OrvantaPushStyle";
const std::string kNeedsUrl = ", but a URL is read from text only";
const std::string kNeedsDate = ", but a date is read from a number of milliseconds only";
const std::string kNeedsBoolean = ", but a boolean is read from numbers and text only";
const std::string kNeedsNumber = ", but a number is read from numbers and text only";
const std::string kNoAlert = ", which has no key \"alert\"";

TEST(ModelCommand, ReportsARejectionInOneLine) {
  const struct {
    std::string className;
    std::string_view json;
    std::string place;
    std::string reason;
  } rows[] = {
      {kPush, R"({"_ov": {"mu": 5}})", "\"_ov.mu\" (mediaAttachmentURL): an integer", kNeedsUrl},
      {kPush, R"({"_ov": {"ets": "1"}})", "\"_ov.ets\" (expirationDate): a string", kNeedsDate},
      {kPush, R"({"_ov": {"dr": null}})", "\"_ov.dr\" (shouldSendDeliveryReport): null",
       kNeedsBoolean},
      // the first in the order of the table, not of the JSON
      {kPush, R"({"_ov": {"ets": "x", "mu": true}})", "\"_ov.mu\" (mediaAttachmentURL): a boolean",
       kNeedsUrl},
      // a nested model that is rejected within an array
      {"OrvantaUserNotificationCategory", R"({"ia": [{}, {"actM": {}}]})",
       R"("ia" (actions) > OrvantaUserNotificationAction "actM" (activationMode): a dictionary)",
       kNeedsNumber},
      // an undefined key, which the initializer throws
      {kPush, R"({"aps": "x"})", "\"aps.alert\" (alert): a string", kNoAlert},
      {kPush, R"({"aps": [{"alert": "a"}, 3]})", "\"aps.alert\" (alert): an integer", kNoAlert},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel({row.className}, row.json);
    EXPECT_EQ(run.exit, ExitCode::rejected) << row.json;
    EXPECT_EQ(run.out, "") << row.json;
    EXPECT_EQ(run.err, "orvanta: " + row.className + " " + row.place + row.reason + "\n");
  }
}

TEST(ModelCommand, PrintsTheObjectAndNothingElse) {
  const std::string_view bare =
      R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})";
  const struct {
    std::vector<std::string> arguments;
    std::string_view json;
    std::string_view text;
  } rows[] = {
      {{kStyle}, R"({"iospi": null, "x": 1, "ffm": "f"})", R"({"ffm":"f","iospi":null})"},
      {{kStyle}, R"({"ffm": "a\/b/c"})", R"({"ffm":"a/b/c"})"},
      {{kPush}, R"({"aps": {"alert": 7}, "_ov": {"mu": "a b"}})", bare},  // neither alert nor URL
      {{kPush, "--init"}, "not read", bare},
      {{kPush},
       R"({"aps": {"alert": "b", "badge": 3}, "_ov": {"ets": 1500.9}})",
       R"({"body":"b","aps.badge":3,"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.ets":1500,)"
       R"("_ov.stl":0,"_ov.thc":false})"},
      {{kPush, "--class-info"},
       R"({"_ov": {"ps": {"ffm": "f"}, "crsl": [{"klazz": "OrvantaPushStyle"}, {"a": 1}]}})",
       R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.crsl":[{"klazz":"OrvantaPushStyle"},{"a":1}],)"
       R"("_ov.stl":0,"_ov.ps":{"ffm":"f","klazz":"OrvantaPushStyle"},"_ov.thc":false,)"
       R"("klazz":"OrvantaPushObject"})"},
      {{kStyle, "--pretty"},
       R"({"ffm": "a/b", "iospi": ["c"]})",
       "{\n  \"ffm\" : \"a/b\",\n  \"iospi\" : [\n    \"c\"\n  ]\n}"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel(row.arguments, row.json);
    EXPECT_EQ(run.exit, ExitCode::done) << row.json;
    EXPECT_EQ(run.out, std::string(row.text) + "\n");
    EXPECT_EQ(run.err, "") << row.json;
  }
}

TEST(ModelCommand, UpdatesInTheOrderOfTheArguments) {
  const TemporaryFolder folder;
  const std::string first = folder.file("1.json", R"({"ffm": "1", "iospi": "1"})");
  const std::string second = folder.file("2.json", R"({"ffm": "2"})");
  const struct {
    std::vector<std::string> arguments;
    std::string_view text;
  } rows[] = {
      {{kStyle, "--update", first, "--update", second}, R"({"ffm":"2","iospi":"1"})"},
      {{kStyle, "--init", "--update", second, "--update", first}, R"({"ffm":"1","iospi":"1"})"},
      {{kStyle, first, "--update", "-"}, R"({"ffm":"0","iospi":"1"})"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel(row.arguments, R"({"ffm": "0"})");
    EXPECT_EQ(run.out, std::string(row.text) + "\n");
    EXPECT_EQ(run.err, "");
  }
}

TEST(ModelCommand, ReportsARejectedUpdateAndPrintsTheObject) {
  const TemporaryFolder folder;
  const std::string refused = folder.file("no.json", R"({"txt": "new", "ttl": {}, "drc": "rtl"})");
  const std::string taken = folder.file("yes.json", R"({"tt": "later"})");
  const ToolRun run = runModel(
      {"OrvantaInAppMessageAction", "--update", refused, "--update", taken, "--update", refused},
      R"({"txt": "old", "ttl": 2, "drc": "ltr"})");
  const std::string line =
      "orvanta: OrvantaInAppMessageAction \"ttl\" (timeToLive): a dictionary" + kNeedsNumber + "\n";
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.err, line + line);
  EXPECT_TRUE(run.out.starts_with(R"({"txt":"new","tt":"later","ttl":2,"drc":"ltr",)")) << run.out;
}

TEST(ModelCommand, ReadsStandardInputOnlyOnce) {
  const std::vector<std::string> rows[] = {
      {kStyle, "--update", "-"},
      {kStyle, "-", "--update", "-"},
      {kStyle, "--init", "--update", "-", "--update", "-"},
  };
  for (const auto& arguments : rows) {
    const ToolRun run = runModel(arguments, "{}");
    EXPECT_EQ(run.exit, ExitCode::usage);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "orvanta: standard input can be read only once\n");
  }
}

TEST(ModelCommand, NamesTheEntryThatJSONCannotRepresent) {
  const ToolRun run = runModel({"OrvantaInAppMessageAction"}, R"({"txt": "a", "ttl": "1e999"})");
  EXPECT_EQ(run.exit, ExitCode::rejected);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err,
            "orvanta: OrvantaInAppMessageAction \"ttl\": a fraction without a JSON text, "
            "such as an infinite number\n");
}

}  // namespace
}  // namespace orvanta::testing
