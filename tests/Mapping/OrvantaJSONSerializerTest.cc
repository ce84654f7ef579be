#include <gtest/gtest.h>

#include <limits>

#include "Mapping/OrvantaJSONSerializer.h"
#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

/// Everything of which no text can be made.
std::vector<Value> unwritable() {
  Value deep = Array();
  for (int i = 0; i < 512; ++i) deep = Array({deep});
  return {
      Value(),
      Value::null(),
      "text",
      5,
      make<LeafModel>(),
      Dictionary({{"date", Date{1}}}),
      Array({Array({*Url::parse("a")})}),
      Array({make<LeafModel>()}),
      Array({std::numeric_limits<double>::quiet_NaN()}),
      Dictionary({{"n", -std::numeric_limits<float>::infinity()}}),
      deep,
  };
}

TEST(OrvantaJSONSerializer, WritesCompactData) {
  EXPECT_EQ(OrvantaJSONSerializer::dataFromDictionary(
                Dictionary({{"b", Array({1, true, Value::null(), "a/ß\n"})}, {"a", 65.0}})),
            R"({"b":[1,true,null,"a\/ß\n"],"a":65})");
  EXPECT_EQ(OrvantaJSONSerializer::dataFromDictionary(Array()), "[]");
}

TEST(OrvantaJSONSerializer, MakesNoDataOfAnythingElseAndSaysNothing) {
  RecordingPlatform platform;
  for (const Value& object : unwritable()) {
    EXPECT_FALSE(OrvantaJSONSerializer::dataFromDictionary(object)) << object.kindName();
  }
  EXPECT_TRUE(platform.log.empty());
}

TEST(OrvantaJSONSerializer, WritesTextPrettyOrNot) {
  const Dictionary dictionary{{"a", Array({1, 2})}, {"e", Array()}};
  EXPECT_EQ(OrvantaJSONSerializer::jsonStringFromDict(dictionary, false), R"({"a":[1,2],"e":[]})");
  EXPECT_EQ(OrvantaJSONSerializer::jsonStringFromDict(dictionary, true),
            "{\n  \"a\" : [\n    1,\n    2\n  ],\n  \"e\" : [\n\n  ]\n}");
}

TEST(OrvantaJSONSerializer, WritesAnEmptyDictionaryAndOneLogLineWhenItFails) {
  const LogLevel silent(0);  // does not matter here
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

TEST(OrvantaJSONSerializer, WhatItReadsCanBeChanged) {
  Value value = OrvantaJSONSerializer::dictionaryFromData(R"({"a": {"b": [1]}})");
  const Value before = value;
  Value inner = (*value.dictionary())["a"];
  inner.editDictionary().set("c", 2);
  value.editDictionary().set("a", inner);
  EXPECT_EQ(written(value), R"({"a":{"b":[1],"c":2}})");
  EXPECT_EQ(written(before), R"({"a":{"b":[1]}})");
}

}  // namespace
}  // namespace orvanta::testing
