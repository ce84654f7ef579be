#include <gtest/gtest.h>

#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

TEST(DeviceCommand, PrintsTheDeviceInfo) {
  const std::string folder = std::string(ORVANTA_SOURCE_DIR) + "/examples/devices/";
  EXPECT_EQ(toJSON(parseJSON(runTool({"device"}).out)),
            R"({"osV":"17.0","appV":"2.4.1","oper":"Example Mobile","lang":"en","mnf":"Apple",)"
            R"("mdl":"iPhone15,2"})");
  EXPECT_EQ(
      toJSON(parseJSON(runTool({"device", "--all", "--device", folder + "old-phone.json"}).out)),
      R"({"osn":"iOS","arc":"armv7s","res":"640x1136","den":"@2x","lo":"tr","ct":3,)"
      R"("td":13317,"tr":1008,"bl":37,"ogv":"","osV":"9.3.5","appV":"1.9.0",)"
      R"("oper":"Example Mobile","lang":"tr","mnf":"Apple","mdl":"iPhone5,2"})");
}

TEST(DeviceCommand, ReadsWhatAProfileOmitsFromTheMachine) {
  for (const char* const device : {"host", "-"}) {
    const Value whole = parseJSON(runTool({"device", "--all", "--device", device}, "{}").out);
    ASSERT_NE(whole.dictionary(), nullptr);
    const Dictionary& info = *whole.dictionary();
    EXPECT_GT(info["tr"].number()->doubleValue(), 0.0);
    EXPECT_TRUE(info.contains("mdl") && !info.contains("res"));
  }
}

TEST(DeviceCommand, NamesTheKeyAndValueOfAnInvalidProfile) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {R"({"batery":1})", R"(unknown key "batery")"},
      {R"({"battery":-0.5})", R"("battery": expected a number from 0 to 1, or -1, found -0.5)"},
      {R"({"systemVersion":"new"})",
       R"("systemVersion": expected a version such as "17.0", found "new")"},
      {R"({"screen":{"width":1}})",
       R"("screen": expected an object with width, height and scale, found {"width":1})"},
      {R"({"interfaces":[{"name":"en0","ipv4":1}]})",
       R"("interfaces[0].ipv4": expected true or false, found 1)"},
  };
  for (const auto& [profile, told] : rows) {
    const ToolRun run = runTool({"device", "--device", "-"}, profile);
    EXPECT_EQ(run.exit, tool::ExitCode::unreadable);
    EXPECT_EQ(run.err, "orvanta: standard input: " + std::string(told) + "\n");
  }
}

}  // namespace
}  // namespace orvanta::testing
