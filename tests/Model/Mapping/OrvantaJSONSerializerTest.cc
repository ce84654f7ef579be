#include <gtest/gtest.h>

#include <limits>

#include "orvanta/Model/Mapping/OrvantaJSONSerializer.h"
#include "support/LogLevel.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

/// Values that cannot be written as JSON.
std::vector<Value> unwritable() {
  Value deep = Array();
  for (int i = 0; i < 512; ++i) deep = Array({deep});
  return {
      Value(),
      "text",
      Dictionary({{"date", Date{1}}}),
      Array({make<LeafModel>()}),
      Array({std::numeric_limits<double>::quiet_NaN()}),
      deep,
  };
}

TEST(OrvantaJSONSerializer, ReturnsNoDataForOtherValuesWithoutLogging) {
  RecordingPlatform platform;
  for (const Value& object : unwritable()) {
    EXPECT_FALSE(OrvantaJSONSerializer::dataFromDictionary(object)) << object.kindName();
  }
  EXPECT_TRUE(platform.log.empty());
}

TEST(OrvantaJSONSerializer, WritesAnEmptyDictionaryAndOneLogLineWhenItFails) {
  const LogLevel silent(0);  // has no effect here
  for (const bool pretty : {false, true}) {
    for (const Value& object : unwritable()) {
      RecordingPlatform platform;
      EXPECT_EQ(OrvantaJSONSerializer::jsonStringFromDict(object, pretty), "{}");
      EXPECT_EQ(platform.log, (std::vector<std::string>{
                                  "+[OrvantaJSONSerializer jsonStringFromDict:withPrettyPrint:]: "
                                  "error: The data couldn’t be written because it isn’t in the "
                                  "correct format."}));
    }
  }
}

TEST(OrvantaJSONSerializer, ReadsArraysAndDictionariesOnly) {
  EXPECT_EQ(OrvantaJSONSerializer::dictionaryFromData(R"( {"a": [1, {"b": null}], "a": 2} )"),
            Value(Dictionary({{"a", 2}})));
  EXPECT_EQ(OrvantaJSONSerializer::dictionaryFromData("[]"), Value(Array()));
  RecordingPlatform platform;
  for (const char* text : {"", "5", "\"a\"", "null", "{", "{}x", "[1,]", "[\"\xFF\"]"}) {
    EXPECT_TRUE(OrvantaJSONSerializer::dictionaryFromData(text).isNil()) << text;
  }
  EXPECT_TRUE(platform.log.empty());
}

}  // namespace
}  // namespace orvanta::testing
