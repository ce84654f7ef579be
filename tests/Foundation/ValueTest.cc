#include <gtest/gtest.h>

#include <unordered_set>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

const std::string kLong = "a text that does not fit into the value";

TEST(Value, EqualsOnlyTheSameContent) {
  const Value values[] = {Value(),
                          Value::null(),
                          0,
                          -0.0,
                          Date{0.0},
                          "",
                          "0",
                          kLong,
                          *Url::parse(""),
                          Array({1, "a"}),
                          Array({"a", 1}),
                          Dictionary({{"a", 1}}),
                          Dictionary({{"a", 2}}),
                          Value(&Labeled::kClass),
                          Labeled::make("a"),
                          Labeled::make("b")};
  for (const Value& a : values) {
    for (const Value& b : values) {
      EXPECT_EQ(a == b, &a == &b) << describe(a) << " and " << describe(b);
    }
    EXPECT_EQ(a.hash(), Value(a).hash());
  }
}

TEST(Value, EqualContentCreatedSeparatelyHashesAlike) {
  const auto expectEqual = [](const Value& a, const Value& b) {
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.hash(), b.hash());
  };
  expectEqual(kLong, parseJSON('"' + kLong + '"'));
  expectEqual(*Url::parse("https://x/y"), *Url::parse("https://x/y"));
  expectEqual(Array(), parseJSON("[]"));
  expectEqual(Array({1, Array({"x", kLong})}), parseJSON(R"([1.0, ["x", ")" + kLong + "\"]]"));
  expectEqual(Dictionary(), parseJSON("{}"));
  expectEqual(Dictionary({{"a", 1}, {kLong, 2}}), parseJSON("{\"" + kLong + R"(": 2, "a": 1})"));
  expectEqual(Date{0.0}, Date{-0.0});
  expectEqual(Labeled::make("x"), Labeled::make("x"));
}

TEST(Value, StringsAroundTheInlineLengthKeepTheirBytes) {
  std::unordered_set<std::string> seen;
  for (const std::size_t length : {0U, 1U, 7U, 8U, 13U, 14U, 15U, 16U, 17U, 255U, 256U, 1000U}) {
    for (const char last : {'z', '\0', '\xFF'}) {
      std::string text(length, 'x');
      if (length != 0) text.back() = last;
      seen.insert(text);
      const Value value(text);
      Value assigned = "something else that is rather long";
      assigned = value;
      EXPECT_EQ(value.string(), text);
      EXPECT_EQ(assigned.string(), text);
      EXPECT_EQ(assigned, Value(text));
      EXPECT_NE(assigned, Value(text + 'x'));
      // A trailing NUL counts, though unused inline bytes are zero as well.
      EXPECT_NE(assigned, Value(text + '\0'));
    }
  }
  EXPECT_EQ(seen.size(), 3U * 11U + 1U);
}

TEST(Value, AMovedFromValueIsNilAndUsable) {
  for (Value value : {Value(7), Value("short"), Value(kLong), Value(Array({1})),
                      Value(Dictionary({{"a", 1}})), Value(Labeled::make("x"))}) {
    const Value before = value;
    Value taken = std::move(value);
    EXPECT_EQ(taken, before);
    EXPECT_TRUE(value.isNil());  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    value = std::move(taken);
    EXPECT_EQ(value, before);
    EXPECT_TRUE(taken.isNil());  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
  }
}

TEST(Value, AssigningItselfOrAPartOfItselfKeepsTheContent) {
  Value value = Array({kLong, Array({kLong, Dictionary({{"key", kLong}})})});
  const Value before = value;
  const Value& same = value;
  value = same;
  EXPECT_EQ(value, before);
  value = Array({Value(Array({kLong, Dictionary({{"key", kLong}})}))});
  value = (*value.array())[0];
  value = (*value.array())[1];
  EXPECT_EQ(value, Value(Dictionary({{"key", kLong}})));
  value = (*value.dictionary())["key"];
  EXPECT_EQ(value, Value(kLong));

  value = parseJSON(R"({"a": [{"b": "inline"}]})");
  value = (*value.dictionary())["a"];
  value = (*value.array())[0];
  value = *value.dictionary();
  EXPECT_EQ(value, Value(Dictionary({{"b", "inline"}})));

  Array array({kLong, 2});
  const Array& sameArray = array;
  array = sameArray;
  EXPECT_EQ(array, Array({kLong, 2}));
  Dictionary dictionary({{"a", kLong}});
  const Dictionary& sameDictionary = dictionary;
  dictionary = sameDictionary;
  EXPECT_EQ(dictionary, Dictionary({{"a", kLong}}));
}

TEST(Value, ObjectsLiveAsLongAsTheLastReference) {
  ASSERT_EQ(Labeled::alive, 0);
  {
    Ref<Labeled> object = Labeled::make("x");
    Value value = object;
    const Array array({value, value});
    EXPECT_EQ(array[0].object(), object.get());
    EXPECT_EQ(value.as<Labeled>(), object.get());
    EXPECT_EQ(value.as<Plain>(), nullptr);
    object.reset();
    value = Value();
    EXPECT_EQ(Labeled::alive, 1);
    EXPECT_EQ(array[1].object()->valueForKey("label"), Value("x"));
  }
  EXPECT_EQ(Labeled::alive, 0);
  EXPECT_TRUE(Value(Ref<Labeled>()).isNil());
  EXPECT_TRUE(Value(static_cast<const ClassObject*>(nullptr)).isNil());
}

}  // namespace
}  // namespace orvanta::testing
