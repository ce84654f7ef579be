#include <gtest/gtest.h>

#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

/// Runs `model` without log lines, so that standard error holds the program's own alone.
ToolRun runModel(std::vector<std::string> arguments, std::string_view standardIn = "") {
  arguments.insert(arguments.begin(), {"--log-level", "0", "model"});
  return runTool(arguments, standardIn);
}

TEST(ModelCommand, TellsInOneLineWhyThereIsNoObject) {
  const struct {
    std::string className;
    std::string_view json;
    std::string_view line;
  } rows[] = {
      // a value of a kind that a converter or a scalar refuses
      {"OrvantaPushObject", R"({"_ov": {"mu": 5}})",
       "OrvantaPushObject \"_ov.mu\" (mediaAttachmentURL): an integer, "
       "but a URL is read from text only"},
      {"OrvantaPushObject", R"({"_ov": {"mu": true}})",
       "OrvantaPushObject \"_ov.mu\" (mediaAttachmentURL): a boolean, "
       "but a URL is read from text only"},
      {"OrvantaPushObject", R"({"_ov": {"mu": null}})",
       "OrvantaPushObject \"_ov.mu\" (mediaAttachmentURL): null, "
       "but a URL is read from text only"},
      {"OrvantaPushObject", R"({"_ov": {"ets": "2024-01-01"}})",
       "OrvantaPushObject \"_ov.ets\" (expirationDate): a string, "
       "but a date is read from a number of milliseconds only"},
      {"OrvantaPushObject", R"({"_ov": {"sts": {}}})",
       "OrvantaPushObject \"_ov.sts\" (sendDate): a dictionary, "
       "but a date is read from a number of milliseconds only"},
      {"OrvantaPushObject", R"({"_ov": {"dr": null}})",
       "OrvantaPushObject \"_ov.dr\" (shouldSendDeliveryReport): null, "
       "but a boolean is read from numbers and text only"},
      {"OrvantaPushObject", R"({"aps": {"badge": []}})",
       "OrvantaPushObject \"aps.badge\" (badge): an array, "
       "but a number is read from numbers and text only"},
      {"OrvantaInAppMessageAction", R"({"ttl": null})",
       "OrvantaInAppMessageAction \"ttl\" (timeToLive): null, "
       "but a number is read from numbers and text only"},
      // the first in the table's order, whatever the order of the text
      {"OrvantaPushObject", R"({"_ov": {"ets": "x", "mu": 1}})",
       "OrvantaPushObject \"_ov.mu\" (mediaAttachmentURL): an integer, "
       "but a URL is read from text only"},
      // a nested model that cannot stand in an array
      {"OrvantaUserNotificationCategory", R"({"ia": [{}, {"actM": {}}]})",
       "OrvantaUserNotificationCategory \"ia\" (actions) > "
       "OrvantaUserNotificationAction \"actM\" (activationMode): a dictionary, "
       "but a number is read from numbers and text only"},
      // an undefined key that is thrown out of the initialiser
      {"OrvantaPushObject", R"({"aps": "x"})",
       "OrvantaPushObject \"aps.alert\" (alert): a string, which has no key \"alert\""},
      {"OrvantaPushObject", R"({"aps": [{"alert": "a"}, 3]})",
       "OrvantaPushObject \"aps.alert\" (alert): an array, which has no key \"alert\""},
      {"OrvantaPushObject", R"({"_ov": 1.5})",
       "OrvantaPushObject \"_ov.act\" (action): a fraction, which has no key \"act\""},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel({row.className}, row.json);
    EXPECT_EQ(run.exit, ExitCode::notMade) << row.json;
    EXPECT_EQ(run.out, "") << row.json;
    EXPECT_EQ(run.err, "orvanta: " + std::string(row.line) + "\n");
  }
}

TEST(ModelCommand, PrintsTheObjectInOneLineAndNothingElse) {
  const struct {
    std::vector<std::string> arguments;
    std::string_view json;
    std::string_view line;
  } rows[] = {
      {{"OrvantaPushStyle"},
       R"({"iospi": "i", "other": 1, "ffm": "f"})",
       R"({"ffm":"f","iospi":"i"})"},
      {{"OrvantaPushStyle", "-"}, R"({"ffm": "f"})", R"({"ffm":"f"})"},
      {{"OrvantaPushStyle"}, "{}", "{}"},
      {{"OrvantaPushStyle"}, R"({"ffm": null})", R"({"ffm":null})"},
      {{"OrvantaPushCarouselObject"},
       R"({"bpp": "https:\/\/example.com/a"})",
       R"({"bpp":"https://example.com/a"})"},
      {{"OrvantaPushObject"},
       R"({"aps": {"alert": "b", "badge": 3}, "_ov": {"ets": 1500.9}})",
       R"({"body":"b","aps.badge":3,"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.ets":1500,)"
       R"("_ov.stl":0,"_ov.thc":false})"},
      {{"OrvantaPushObject"},
       R"({"aps": {"alert": 7}, "_ov": {"mu": "a b"}})",  // no URL, no alert
       R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})"},
      {{"OrvantaPushObject"},
       R"({"_ov": {"iam": {"ttl": null}}})",  // goes on without the message
       R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})"},
      {{"OrvantaPushObject", "--init"},
       "not read",
       R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})"},
      {{"OrvantaBaseModel"}, R"({"a": 1})", "{}"},
      {{"OrvantaPushObject", "--class-info"},
       R"({"_ov": {"ps": {"ffm": "f"}, "crsl": [{"klazz": "OrvantaPushStyle"}, {"a": 1}]}})",
       R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.crsl":[{"klazz":"OrvantaPushStyle"},{"a":1}],)"
       R"("_ov.stl":0,"_ov.ps":{"ffm":"f","klazz":"OrvantaPushStyle"},"_ov.thc":false,)"
       R"("klazz":"OrvantaPushObject"})"},
      {{"OrvantaPushStyle", "--pretty"},
       R"({"ffm": "a/b", "iospi": ["c"]})",
       "{\n  \"ffm\" : \"a/b\",\n  \"iospi\" : [\n    \"c\"\n  ]\n}"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel(row.arguments, row.json);
    EXPECT_EQ(run.exit, ExitCode::done) << row.json;
    EXPECT_EQ(run.out, std::string(row.line) + "\n");
    EXPECT_EQ(run.err, "") << row.json;
  }
}

TEST(ModelCommand, UpdatesInTheOrderOfTheArguments) {
  const ScratchFolder folder;
  const std::string first = folder.file("1.json", R"({"ffm": "1", "iospi": "1"})");
  const std::string second = folder.file("2.json", R"({"ffm": "2"})");
  const ToolRun forwards =
      runModel({"OrvantaPushStyle", "--update", first, "--update", second}, R"({"ffm": "0"})");
  EXPECT_EQ(forwards.out, "{\"ffm\":\"2\",\"iospi\":\"1\"}\n");
  const ToolRun backwards =
      runModel({"OrvantaPushStyle", "--init", "--update", second, "--update", first});
  EXPECT_EQ(backwards.out, "{\"ffm\":\"1\",\"iospi\":\"1\"}\n");
  // an update may come from standard input, when nothing else does
  const ToolRun piped = runModel({"OrvantaPushStyle", first, "--update", "-"}, R"({"ffm": "3"})");
  EXPECT_EQ(piped.out, "{\"ffm\":\"3\",\"iospi\":\"1\"}\n");
  EXPECT_EQ(forwards.err + backwards.err + piped.err, "");
}

TEST(ModelCommand, AnUpdateThatIsRefusedIsToldAndTheObjectPrintedAsItStands) {
  const ScratchFolder folder;
  const std::string refused = folder.file("no.json", R"({"txt": "new", "ttl": {}, "drc": "rtl"})");
  const std::string taken = folder.file("yes.json", R"({"tt": "later"})");
  const ToolRun run = runModel(
      {"OrvantaInAppMessageAction", "--update", refused, "--update", taken, "--update", refused},
      R"({"txt": "old", "ttl": 2, "drc": "ltr"})");
  const std::string line =
      "orvanta: OrvantaInAppMessageAction \"ttl\" (timeToLive): a dictionary, "
      "but a number is read from numbers and text only\n";
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.err, line + line);
  const Value object = parsed(run.out);
  ASSERT_NE(object.dictionary(), nullptr);
  EXPECT_EQ((*object.dictionary())["txt"], Value("new"));  // stood before the refused one
  EXPECT_EQ((*object.dictionary())["ttl"], Value(2));
  EXPECT_EQ((*object.dictionary())["tt"], Value("later"));
  EXPECT_EQ((*object.dictionary())["drc"], Value("ltr"));
}

TEST(ModelCommand, PrintsNoObjectWhenAnUpdateThrowsOrCannotBeRead) {
  const ScratchFolder folder;
  const std::string thrown = folder.file("thrown.json", R"({"aps": 1})");
  const std::string broken = folder.file("broken.json", "{");
  const struct {
    std::string file;
    ExitCode exit;
    std::string line;
  } rows[] = {
      {thrown, ExitCode::notMade,
       "OrvantaPushObject \"aps.alert\" (alert): an integer, which has no key \"alert\""},
      {broken, ExitCode::unreadable, broken + ":1:2: the text ends inside a container"},
      {folder.path() + "/none", ExitCode::unreadable,
       folder.path() + "/none: No such file or directory"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel({"OrvantaPushObject", "--init", "--update", row.file});
    EXPECT_EQ(run.exit, row.exit) << row.file;
    EXPECT_EQ(run.out, "") << row.file;
    EXPECT_EQ(run.err, "orvanta: " + row.line + "\n");
  }
}

TEST(ModelCommand, ReadsStandardInputOnlyOnce) {
  const std::vector<std::string> rows[] = {
      {"OrvantaPushStyle", "--update", "-"},
      {"OrvantaPushStyle", "-", "--update", "-"},
      {"OrvantaPushStyle", "--init", "--update", "-", "--update", "-"},
  };
  for (const auto& arguments : rows) {
    const ToolRun run = runModel(arguments, "{}");
    EXPECT_EQ(run.exit, ExitCode::usage);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "orvanta: standard input can be read only once\n");
  }
}

TEST(ModelCommand, NamesTheNearestClassForOneThatItDoesNotKnow) {
  const struct {
    std::string name;
    std::string_view nearest;
  } rows[] = {
      {"OrvantaPushObjct", "OrvantaPushObject"},
      {"orvantapushstyle", "OrvantaPushStyle"},
      {"OrvantaPushObjectActions", "OrvantaPushObjectAction"},
      {"UserNotificationCategory", "OrvantaUserNotificationCategory"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runModel({row.name}, "{}");
    EXPECT_EQ(run.exit, ExitCode::usage);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "orvanta: there is no class \"" + row.name + "\"; the nearest is " +
                           std::string(row.nearest) + "\n");
  }
  EXPECT_NE(runModel({"\x1b[31m"}).err.find(R"("\u001b[31m")"), std::string::npos);
}

TEST(ModelCommand, AnObjectThatHasNoJsonTextIsNoSuccess) {
  const ToolRun run = runModel({"OrvantaInAppMessageAction"}, R"({"ttl": "1e999"})");
  EXPECT_NE(run.exit, ExitCode::done);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(lineCount(run.err), 1U);
}

}  // namespace
}  // namespace orvanta::testing
