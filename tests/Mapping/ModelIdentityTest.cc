#include <gtest/gtest.h>

#include "Mapping/OrvantaKeyValueStoreObject.h"
#include "Push/OrvantaPushStyle.h"
#include "support/ModelZoo.h"

// Equality, hash, copies and descriptions, all of which go through a model's dictionary.

namespace orvanta::testing {
namespace {

/// No model, but with a dictionary of its own.
class Lookalike final : public Object, public OrvantaSerializableModel {
 public:
  explicit Lookalike(Dictionary dictionary) : dictionary_(std::move(dictionary)) {}
  const ClassObject& isa() const override { return Plain::kClass; }
  bool initWithDictionary(const Dictionary* /*dictionary*/) override { return false; }
  bool updateWithDictionary(const Dictionary* /*dictionary*/) override { return false; }
  Dictionary dictionaryValue() const override { return dictionary_; }
  Dictionary dictionaryValueWithClassInfo() const override { return {}; }
  Dictionary dictionaryValueWithPolicy(bool /*classInfo*/) const override { return {}; }

 private:
  Dictionary dictionary_;
};

TEST(ModelIdentity, EqualDictionariesMakeEqualModels) {
  const Value leaf = made<LeafModel>(R"({"name": "a", "size": 1})");
  const struct {
    Value other;
    bool isEqual;
  } rows[] = {
      {leaf, true},
      {made<LeafModel>(R"({"size": 1.0, "name": "a"})"), true},
      {made<LeafModel>(R"({"name": "a", "size": 2})"), false},
      {made<LeafModel>(R"({"size": 1})"), false},
      {Ref<Lookalike>::adopt(new Lookalike({{"size", 1}, {"name", "a"}})), true},
      {Ref<Lookalike>::adopt(new Lookalike({{"size", 1}})), false},
      {Dictionary({{"name", "a"}, {"size", 1}}), false},
      {Labelled::make("a"), false},
      {Value(), false},
      {Value::null(), false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(leaf == row.other, row.isEqual) << describe(row.other);
    if (row.isEqual && row.other.as<OrvantaBaseModel>() != nullptr) {
      EXPECT_EQ(leaf.hash(), row.other.hash());
    }
  }
  EXPECT_FALSE(Value(Dictionary({{"name", "a"}, {"size", 1}})) == leaf);
}

TEST(ModelIdentity, ClassesDoNotMatter) {
  const Value style = made<OrvantaPushStyle>(R"({"ffm": "Arial"})");
  const auto leaf = make<LeafModel>();
  leaf->setKeyPathPropertyDictionary({{"ffm", "name"}});
  leaf->setName("Arial");
  EXPECT_EQ(style, Value(leaf));
  EXPECT_EQ(style.hash(), leaf->hash());
  EXPECT_EQ(Value(make<OrvantaPushStyle>()), Value(make<OrvantaBaseModel>()));
}

TEST(ModelIdentity, NestedModelsCountByTheirDictionaries) {
  const char* json = R"({"leaf": {"name": "a"}, "leaves": [{"size": 2}]})";
  const auto one = made<NestingModel>(json);
  const auto other = made<NestingModel>(json);
  EXPECT_EQ(Value(one), Value(other));
  EXPECT_EQ(one->hash(), other->hash());
  other->leaf().get()->setName("b");
  EXPECT_FALSE(Value(one) == Value(other));
}

TEST(ModelIdentity, ACopyIsReadFromTheDictionary) {
  const auto original = made<NestingModel>(R"({"leaf": {"name": "a"}, "list": [1]})");
  const auto copy = original->copyWithZone();
  ASSERT_TRUE(copy);
  EXPECT_EQ(&copy->isa(), &NestingModel::classObject());
  EXPECT_EQ(Value(copy), Value(original));
  const Value leaf = copy->valueForKey("leaf");
  leaf.as<LeafModel>()->setName("b");
  EXPECT_EQ(original->leaf().get()->name().get(), "a");
}

TEST(ModelIdentity, ACopyLosesDottedKeysAndUnmappedProperties) {
  const auto original = made<DottedModel>(R"({"aps": {"sound": "s", "badge": 3}, "title": "t"})");
  const Value copy = original->copyWithZone();
  const auto* dotted = copy.as<DottedModel>();
  EXPECT_FALSE(dotted->sound());
  EXPECT_EQ(dotted->badge(), 0);
  EXPECT_EQ(dotted->title().get(), "t");

  const Value defaults = made<DefaultsModel>(R"({"unit": "box"})")->copyWithZone();
  EXPECT_EQ(defaults.as<DefaultsModel>()->count(), kUnsetInteger);
  EXPECT_EQ(defaults.as<DefaultsModel>()->unit().get(), "box");
}

TEST(ModelIdentity, ACopyThatTheClassRefusesIsNil) {
  const auto original = make<FaultyGetterModel>();
  original->setKeyPathPropertyDictionary({{"known", "first"}});
  original->setFirst("a");
  EXPECT_FALSE(original->copyWithZone());  // the class's own table names a read-only property
}

TEST(ModelIdentity, DescribesItsDictionary) {
  const auto model = made<LeafModel>(R"({"name": "a b", "size": 1})");
  EXPECT_EQ(model->description(),
            "Dictionary Representation :\n{\n    name = \"a b\";\n    size = 1;\n}");
  EXPECT_EQ(describe(model), model->description());
  EXPECT_EQ(make<OrvantaBaseModel>()->description(), "Dictionary Representation :\n{\n}");
}

TEST(ModelIdentity, DescribesItselfForDebuggingEntryByEntry) {
  const auto model = made<LeafModel>(R"({"name": "a b", "size": 1})");
  const AttributedString text = model->attributedDebugDescription();
  const std::vector<AttributedString::Run> runs = {
      {"\nLeafModel\n", TextStyle::headline, 1},
      {"name : a b\n", TextStyle::body, 0},
      {"size : 1\n", TextStyle::body, 0},
      {"\n", TextStyle::none, 0},
  };
  EXPECT_EQ(text.runs, runs);
  EXPECT_EQ(model->debugDescription(), "\nLeafModel\nname : a b\nsize : 1\n\n");
}

// ---- The holder of a stored value ----

TEST(KeyValueStoreObject, HoldsAValueAndTheTimeOfItsMaking) {
  RecordingPlatform platform;
  platform.now = 1'500'000'000'123'456'789;
  const auto holder = OrvantaKeyValueStoreObject::objectWithValue(Array({1}));
  EXPECT_EQ(holder->creationDate().get(), Date{1500000000.123456789});
  EXPECT_EQ(holder->value().value(), Value(Array({1})));
  EXPECT_EQ(written(holder->dictionaryValue()), R"({"date":1500000000123,"value":[1]})");
  EXPECT_EQ(Value(holder->copyWithZone()), Value(holder));
}

TEST(KeyValueStoreObject, WithoutADateIsOf1970) {
  RecordingPlatform platform;
  platform.now = 5'000'000'000;
  EXPECT_EQ(make<OrvantaKeyValueStoreObject>()->creationDate().get(), Date{0});
  const auto holder = made<OrvantaKeyValueStoreObject>(R"({"value": "v"})");
  EXPECT_EQ(holder->creationDate().get(), Date{0});
  EXPECT_TRUE(update(*holder, R"({"date": 2000})"));
  EXPECT_TRUE(update(*holder, "{}"));
  EXPECT_EQ(holder->creationDate().get(), Date{2});
  EXPECT_EQ(holder->value().value(), Value("v"));

  EXPECT_TRUE(
      made<OrvantaKeyValueStoreObject>(R"({"date": null})")->creationDate().value().isNull());
  const auto refused = make<OrvantaKeyValueStoreObject>();
  EXPECT_FALSE(update(*refused, R"({"date": "2017-07-14", "value": 1})"));
  EXPECT_FALSE(refused->value());
}

TEST(KeyValueStoreObject, NeedsNoClock) {
  Platform none;
  const PlatformOverride scope(none);
  EXPECT_EQ(OrvantaKeyValueStoreObject::objectWithValue(1)->creationDate().get(), Date{0});
}

}  // namespace
}  // namespace orvanta::testing
