#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "orvanta/Model/Mapping/Class.h"
#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

/// Returns the entry of one class in `schema CLASS --json`.
Dictionary entryOf(const std::string& className) {
  const Value whole = parseJSON(runTool({"schema", className, "--json"}).out);
  const Array* classes =
      whole.dictionary() != nullptr ? (*whole.dictionary())["classes"].array() : nullptr;
  if (classes == nullptr || classes->size() != 1) return {};
  const Dictionary* entry = (*classes)[0].dictionary();
  return entry != nullptr ? *entry : Dictionary();
}

TEST(SchemaCommand, DescribesOneClassAsJson) {
  const ToolRun run = runTool({"schema", "OrvantaPushStyle", "--json"});
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(toJSON(parseJSON(run.out)),
            R"({"format":1,"classes":[{"name":"OrvantaPushStyle","superclass":"OrvantaBaseModel",)"
            R"("properties":[{"name":"fontFamily","type":"@\"NSString\"","readOnly":false},)"
            R"({"name":"pushIcon","type":"@\"NSString\"","readOnly":true}],)"
            R"("keys":{"ffm":"fontFamily","iospi":"pushIcon"},"classKeys":{}}]})");
}

TEST(SchemaCommand, WithoutAClassDescribesEachOnce) {
  const Value whole = parseJSON(runTool({"schema", "--json"}).out);
  ASSERT_NE(whole.dictionary(), nullptr);
  EXPECT_EQ((*whole.dictionary())["format"], Value(1));
  const Array* classes = (*whole.dictionary())["classes"].array();
  ASSERT_NE(classes, nullptr);
  ASSERT_EQ(classes->size(), modelClasses().size());
  const std::string table = runTool({"schema"}).out;
  for (std::size_t i = 0; i < classes->size(); ++i) {
    const std::string name(modelClasses()[i]->name);
    EXPECT_EQ((*(*classes)[i].dictionary())["name"], Value(name));
    EXPECT_EQ(toJSON((*classes)[i]), toJSON(entryOf(name)));
    EXPECT_NE(table.find(runTool({"schema", name}).out), std::string::npos) << name;
  }
}

TEST(SchemaCommand, PrintsATableForAPerson) {
  const ToolRun run = runTool({"schema", "OrvantaPushStyle"});
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.out,
            "OrvantaPushStyle : OrvantaBaseModel\n"
            "  ffm    fontFamily  @\"NSString\"\n"
            "  iospi  pushIcon    @\"NSString\"  read-only\n");
  EXPECT_EQ(runTool({"schema", "OrvantaPushObjectAction"}).out,
            "OrvantaPushObjectAction : OrvantaBaseModel\n"
            "  uri  deeplinkURLString  @\"NSString\"\n"
            "  -    deeplinkURL        @\"NSURL\"\n");
  const std::string push = runTool({"schema", "OrvantaPushObject"}).out;
  EXPECT_NE(push.find("read-only -> OrvantaPushStyle\n"), std::string::npos) << push;
}

TEST(SchemaCommand, MarksEvents) {
  EXPECT_EQ(entryOf("OrvantaOpenAppEvent")["eventKey"], Value("o:oa"));
  EXPECT_EQ(entryOf("OrvantaOpenAppEvent")["priority"], Value(1));
  EXPECT_EQ(entryOf("OrvantaBaseProductEvent")["eventKey"], Value::null());
  EXPECT_TRUE(entryOf("OrvantaProduct")["eventKey"].isNil());
}

TEST(SchemaCommand, ListsTheEndpointsOfRequests) {
  const Value whole = parseJSON(runTool({"schema", "--json"}).out);
  EXPECT_EQ((*whole.dictionary())["endpoints"].array()->size(), 21U);
  EXPECT_EQ((*(*whole.dictionary())["endpoints"].array())[2],
            parseJSON(R"({"code":3,"path":"/event/fire","class":"OrvantaEventRequest"})"));
  EXPECT_EQ((*(*whole.dictionary())["methods"].array())[1],
            parseJSON(R"({"code":1,"method":"GET"})"));
  const std::pair<const char*, Value> priorities[] = {
      {"OrvantaBaseRequest", Value::null()},
      {"OrvantaAddTestDeviceRequest", Value::null()},
      {"OrvantaEventRequest", Value::null()},
      {"OrvantaFetchCouponRequest", 1}};
  for (const auto& [name, priority] : priorities) {
    EXPECT_EQ(entryOf(name)["priority"], priority) << name;
  }
  EXPECT_EQ(entryOf("OrvantaBaseRequest")["request"],
            parseJSON(R"({"code":0,"path":null,"method":"POST",)"
                      R"("responseClass":"OrvantaBaseResponseModel"})"));
  EXPECT_EQ(entryOf("OrvantaFetchCouponRequest")["request"],
            parseJSON(R"({"code":21,"path":"/coupon/fetch","method":"POST",)"
                      R"("responseClass":"OrvantaFetchCouponResponse"})"));
}

TEST(SchemaCommand, MarkdownIsTheDocumentedWireFormat) {
  std::stringstream document;
  document << std::ifstream(std::string(ORVANTA_SOURCE_DIR) + "/docs/wire-format.md").rdbuf();
  EXPECT_EQ(runTool({"schema", "--markdown"}).out, document.str())
      << "run ./run schema --markdown >docs/wire-format.md";
}

}  // namespace
}  // namespace orvanta::testing
