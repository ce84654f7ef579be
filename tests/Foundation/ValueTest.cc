#include <gtest/gtest.h>

#include <unordered_set>

#include "support/Values.h"

namespace orvanta::testing {
namespace {

const std::string kLong = "a text that does not fit into the value";

TEST(Value, KnowsItsKindAndAnswersNoOther) {
  const ClassObject* cls = &Labelled::kClass;
  const struct {
    Value value;
    Kind kind;
    std::string_view className;
    std::string_view kindName;
  } rows[] = {
      {Value(), Kind::nil, "", "nil"},
      {Value::null(), Kind::null, "NSNull", "null"},
      {true, Kind::boolean, "NSNumber", "a boolean"},
      {-1, Kind::integer, "NSNumber", "an integer"},
      {std::int64_t{1}, Kind::integer, "NSNumber", "an integer"},
      {1U, Kind::unsignedInteger, "NSNumber", "an integer"},
      {1.5, Kind::real, "NSNumber", "a fraction"},
      {1.5F, Kind::real32, "NSNumber", "a fraction"},
      {Date{1.0}, Kind::date, "NSDate", "a date"},
      {"short", Kind::string, "NSString", "a string"},
      {kLong, Kind::string, "NSString", "a string"},
      {*Url::parse("a:b"), Kind::url, "NSURL", "a URL"},
      {Array(), Kind::array, "NSArray", "an array"},
      {Array({1}), Kind::array, "NSArray", "an array"},
      {Dictionary(), Kind::dictionary, "NSDictionary", "a dictionary"},
      {Dictionary({{"a", 1}}), Kind::dictionary, "NSDictionary", "a dictionary"},
      {Labelled::make("x"), Kind::object, "Labelled", "an object"},
      {Value(cls), Kind::classObject, "Labelled", "a class"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kindName);
    const Value copy = row.value;
    EXPECT_EQ(copy.kind(), row.kind);
    EXPECT_EQ(copy.className(), row.className);
    EXPECT_EQ(copy.kindName(), row.kindName);
    EXPECT_EQ(copy.isNil(), row.kind == Kind::nil);
    EXPECT_EQ(copy.isNull(), row.kind == Kind::null);
    EXPECT_EQ(copy.isNumber(), row.className == "NSNumber");
    EXPECT_EQ(copy.number().has_value(), row.className == "NSNumber");
    EXPECT_EQ(copy.string().has_value(), row.kind == Kind::string);
    EXPECT_EQ(copy.date().has_value(), row.kind == Kind::date);
    EXPECT_EQ(copy.url() != nullptr, row.kind == Kind::url);
    EXPECT_EQ(copy.array() != nullptr, row.kind == Kind::array);
    EXPECT_EQ(copy.dictionary() != nullptr, row.kind == Kind::dictionary);
    EXPECT_EQ(copy.object() != nullptr, row.kind == Kind::object);
    EXPECT_EQ(copy.classObject() != nullptr, row.kind == Kind::classObject);
  }
}

TEST(Value, OneEqualsAnotherOnlyOfItsOwnContent) {
  const Value values[] = {Value(),
                          Value::null(),
                          0,
                          true,
                          -1,
                          0.5,
                          -0.0,
                          Date{0.0},
                          Date{0.5},
                          "",
                          "0",
                          kLong,
                          kLong + "!",
                          *Url::parse(""),
                          *Url::parse("a:b"),
                          Array(),
                          Array({1, "a"}),
                          Array({"a", 1}),
                          Dictionary(),
                          Dictionary({{"a", 1}}),
                          Dictionary({{"a", 2}}),
                          Dictionary({{"b", 1}}),
                          Value(&Plain::kClass),
                          Value(&Labelled::kClass),
                          Labelled::make("a"),
                          Labelled::make("b")};
  for (const Value& a : values) {
    for (const Value& b : values) {
      EXPECT_EQ(a == b, &a == &b) << describe(a) << " and " << describe(b);
    }
    EXPECT_EQ(a.hash(), Value(a).hash());
  }
}

TEST(Value, EqualContentMadeApartIsEqualAndHashesAlike) {
  const auto expectEqual = [](const Value& a, const Value& b) {
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.hash(), b.hash());
  };
  expectEqual(kLong, parsed('"' + kLong + '"'));
  expectEqual(*Url::parse("https://x/y"), *Url::parse("https://x/y"));
  expectEqual(Array(), parsed("[]"));
  expectEqual(Array({1, Array({"x", kLong})}), parsed(R"([1.0, ["x", ")" + kLong + "\"]]"));
  expectEqual(Dictionary(), parsed("{}"));
  expectEqual(Dictionary({{"a", 1}, {kLong, 2}}), parsed("{\"" + kLong + R"(": 2, "a": 1})"));
  expectEqual(Date{0.0}, Date{-0.0});
  expectEqual(Labelled::make("x"), Labelled::make("x"));
}

TEST(Value, TextsOfEveryLengthAroundTheInlineOnesKeepTheirBytes) {
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
                      Value(Dictionary({{"a", 1}})), Value(Labelled::make("x"))}) {
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

  value = parsed(R"({"a": [{"b": "inline"}]})");
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

TEST(Value, ObjectsAreReferencesThatLiveWithTheLastOfThem) {
  ASSERT_EQ(Labelled::alive, 0);
  {
    Ref<Labelled> object = Labelled::make("x");
    Value value = object;
    const Array array({value, value});
    EXPECT_EQ(array[0].object(), object.get());
    EXPECT_EQ(value.as<Labelled>(), object.get());
    EXPECT_EQ(value.as<Plain>(), nullptr);
    object.reset();
    value = Value();
    EXPECT_EQ(Labelled::alive, 1);
    EXPECT_EQ(array[1].object()->valueForKey("label"), Value("x"));
  }
  EXPECT_EQ(Labelled::alive, 0);
  EXPECT_TRUE(Value(Ref<Labelled>()).isNil());
  EXPECT_TRUE(Value(static_cast<const ClassObject*>(nullptr)).isNil());
}

TEST(Value, AnObjectThatOverridesNothingComparesByIdentityAndHasNoKeys) {
  const auto object = Ref<Plain>::adopt(new Plain);
  const Value value = object;
  EXPECT_EQ(value, Value(object));
  EXPECT_NE(value, Value(Ref<Plain>::adopt(new Plain)));
  EXPECT_EQ(describe(value), "<Plain>");
  EXPECT_EQ(thrown([&] { object->valueForKey("a"); }),
            "NSUnknownKeyException: [<Plain> valueForUndefinedKey:]: this class is not key value "
            "coding-compliant for the key a.");
  EXPECT_EQ(thrown([&] { object->setValueForKey(1, "a"); }),
            "NSUnknownKeyException: [<Plain> setValue:forUndefinedKey:]: this class is not key "
            "value coding-compliant for the key a.");
}

TEST(ClassObject, KnowsWhatItDerivesFrom) {
  static constexpr ClassObject root("Root", nullptr);
  static constexpr ClassObject middle("Middle", &root);
  static constexpr ClassObject leaf("Leaf", &middle);
  EXPECT_TRUE(leaf.isSubclassOf(leaf));
  EXPECT_TRUE(leaf.isSubclassOf(root));
  EXPECT_FALSE(root.isSubclassOf(leaf));
  EXPECT_FALSE(leaf.isSubclassOf(Plain::kClass));
}

}  // namespace
}  // namespace orvanta::testing
