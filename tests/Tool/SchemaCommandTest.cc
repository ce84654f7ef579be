#include <gtest/gtest.h>

#include "Mapping/Class.h"
#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

/// The entry of one class in `schema CLASS --json`.
Dictionary entryOf(const std::string& className) {
  const Value whole = parsed(runTool({"schema", className, "--json"}).out);
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
  EXPECT_EQ(written(parsed(run.out)),
            R"({"format":1,"classes":[{"name":"OrvantaPushStyle","superclass":"OrvantaBaseModel",)"
            R"("properties":[{"name":"fontFamily","type":"@\"NSString\"","readOnly":false},)"
            R"({"name":"pushIcon","type":"@\"NSString\"","readOnly":true}],)"
            R"("keys":{"ffm":"fontFamily","iospi":"pushIcon"},"classKeys":{}}]})");
}

TEST(SchemaCommand, GivesTypesKeysAndClassesOfThePushObject) {
  const Dictionary entry = entryOf("OrvantaPushObject");
  ASSERT_NE(entry["properties"].array(), nullptr);
  const std::string properties = written(entry["properties"]);
  std::size_t from = 0;
  for (const char* property :
       {R"({"name":"alert","type":"@\"OrvantaPushObjectAlert\"","readOnly":false})",
        R"({"name":"badge","type":"Q","readOnly":false})",
        R"({"name":"mediaAttachmentURL","type":"@\"NSURL\"","readOnly":false})",
        R"({"name":"sendDate","type":"@\"NSDate\"","readOnly":true})",
        R"({"name":"isThumbnail","type":"B","readOnly":true})",
        R"({"name":"willPresentNotificationHandler","type":"@?","readOnly":false})"}) {
    const std::size_t at = properties.find(property, from);
    ASSERT_NE(at, std::string::npos) << property;
    from = at;  // the next one stands behind
  }
  EXPECT_EQ(entry["properties"].array()->size(), 29U);
  ASSERT_NE(entry["keys"].dictionary(), nullptr);
  EXPECT_EQ(entry["keys"].dictionary()->size(), 22U);
  EXPECT_EQ((*entry["keys"].dictionary())["_ov.act"], Value("defaultActionDictionary"));
  EXPECT_EQ(written(entry["classKeys"]), R"({"inAppMessage":"OrvantaInAppMessageAction",)"
                                         R"("interactiveActions":"OrvantaUserNotificationAction",)"
                                         R"("pushStyle":"OrvantaPushStyle"})");
}

TEST(SchemaCommand, ListsAClassesOwnPropertiesOnly) {
  const Dictionary root = entryOf("OrvantaBaseModel");
  ASSERT_EQ(root["name"], Value("OrvantaBaseModel"));
  EXPECT_TRUE(root["superclass"].isNull());
  EXPECT_EQ(written(entryOf("OrvantaAction")),
            R"({"name":"OrvantaAction","superclass":"OrvantaBaseModel","properties":[],)"
            R"("keys":{},"classKeys":{}})");
  EXPECT_EQ(entryOf("OrvantaInAppMessageAction")["superclass"], Value("OrvantaAction"));
}

TEST(SchemaCommand, WithoutAClassDescribesEachOnce) {
  const Value whole = parsed(runTool({"schema", "--json"}).out);
  ASSERT_NE(whole.dictionary(), nullptr);
  EXPECT_EQ((*whole.dictionary())["format"], Value(1));
  const Array* classes = (*whole.dictionary())["classes"].array();
  ASSERT_NE(classes, nullptr);
  ASSERT_EQ(classes->size(), modelClasses().size());
  const std::string table = runTool({"schema"}).out;
  for (std::size_t i = 0; i < classes->size(); ++i) {
    const std::string name(modelClasses()[i]->name);
    EXPECT_EQ((*(*classes)[i].dictionary())["name"], Value(name));
    EXPECT_EQ(written((*classes)[i]), written(entryOf(name)));
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

}  // namespace
}  // namespace orvanta::testing
