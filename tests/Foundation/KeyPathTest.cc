#include <gtest/gtest.h>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

TEST(KeyPath, ReadsThroughDictionariesAndArrays) {
  const struct {
    std::string_view receiver;
    std::string_view path;
    Value result;
  } rows[] = {
      {R"({"a": {"b": 1}})", "a.b", 1},
      {R"({"a": {"b": 1}})", "a.x", Value()},
      {R"({"a": {"b": 1}})", "x.y.z", Value()},
      {R"({"a.b": 1})", "a.b", Value()},  // a path is always split
      {R"({"": {"": 1}})", ".", 1},
      {R"([{"x": 1}, {"y": 2}])", "x", Array({1, Value::null()})},
      {R"([])", "x.y", Array()},
      {R"([{"x": 1}, [{"x": 9}, {}]])", "x", Array({1, Array({9, Value::null()})})},
      {R"({"a": [{"b": {"c": 1}}, {"b": {"c": null}}, {"z": 0}]})", "a.b.c",
       Array({1, Value::null(), Value::null()})},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.receiver);
    const Value receiver = parseJSON(row.receiver);
    EXPECT_EQ(valueForKeyPath(receiver, row.path), row.result);
    EXPECT_EQ(valueForKeyPath(receiver, splitKeyPath(row.path)), row.result);
    if (const Dictionary* dictionary = receiver.dictionary()) {
      EXPECT_EQ(valueForKeyPath(*dictionary, row.path), row.result);
    }
  }
  EXPECT_TRUE(valueForKeyPath(Value(), "a.b").isNil());
}

TEST(KeyPath, ReadsPropertiesOfObjects) {
  const Value object = Labeled::make(Dictionary({{"en", "Hello"}}));
  EXPECT_EQ(valueForKeyPath(object, "label.en"), Value("Hello"));
  EXPECT_EQ(valueForKeyPath(Dictionary({{"o", Array({object})}}), "o.label.en"),
            Value(Array({"Hello"})));
  EXPECT_EQ(exceptionFrom([&] { valueForKeyPath(object, "other"); }),
            "NSUnknownKeyException: [<Labeled> valueForUndefinedKey:]: this class is not key "
            "value coding-compliant for the key other.");
}

TEST(KeyPath, ThrowsAtAValueWithoutKeys) {
  const struct {
    std::string_view receiver;
    std::string_view path;
    std::string_view className;
    std::string_view key;
  } rows[] = {
      {R"({"a": "text"})", "a.alert", "NSString", "alert"},
      {R"([{"x": 1}, null])", "x", "NSNull", "x"},
      {R"({"a": [{"b": true}]})", "a.b.c", "NSNumber", "c"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(exceptionFrom([&] { valueForKeyPath(parseJSON(row.receiver), row.path); }),
              "NSUnknownKeyException: [<" + std::string(row.className) +
                  "> valueForUndefinedKey:]: this class is not key value coding-compliant for "
                  "the key " +
                  std::string(row.key) + ".");
  }
}

}  // namespace
}  // namespace orvanta::testing
