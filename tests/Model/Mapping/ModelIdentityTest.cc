#include <gtest/gtest.h>

#include "orvanta/Model/Mapping/OrvantaKeyValueStoreObject.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

// Equality, hashes, copies and descriptions, all of which use the model's dictionary.

namespace orvanta::testing {
namespace {

TEST(ModelIdentity, EqualDictionariesMakeEqualModels) {
  const Value leaf = modelFromJSON<LeafModel>(R"({"name": "a", "size": 1})");
  const struct {
    Value other;
    bool isEqual;
  } rows[] = {
      {leaf, true},
      {modelFromJSON<LeafModel>(R"({"size": 1.0, "name": "a"})"), true},
      {modelFromJSON<LeafModel>(R"({"name": "a", "size": 2})"), false},
      {Dictionary({{"name", "a"}, {"size", 1}}), false},
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

TEST(ModelIdentity, ACopyIsReadFromTheDictionary) {
  const auto original = modelFromJSON<NestingModel>(R"({"leaf": {"name": "a"}, "list": [1]})");
  const auto copy = original->copyWithZone();
  ASSERT_TRUE(copy);
  EXPECT_EQ(&copy->isa(), &NestingModel::classObject());
  EXPECT_EQ(Value(copy), Value(original));
  const Value leaf = copy->valueForKey("leaf");
  leaf.as<LeafModel>()->setName("b");
  EXPECT_EQ(original->leaf().get()->name().get(), "a");
}

TEST(ModelIdentity, ACopyOmitsDottedKeysAndUnmappedProperties) {
  const auto original =
      modelFromJSON<DottedModel>(R"({"aps": {"sound": "s", "badge": 3}, "title": "t"})");
  const Value copy = original->copyWithZone();
  const auto* dotted = copy.as<DottedModel>();
  EXPECT_FALSE(dotted->sound().isPresent());
  EXPECT_EQ(dotted->badge(), 0);
  EXPECT_EQ(dotted->title().get(), "t");

  const Value defaults = modelFromJSON<DefaultsModel>(R"({"unit": "box"})")->copyWithZone();
  EXPECT_EQ(defaults.as<DefaultsModel>()->count(), kUnsetInteger);
  EXPECT_EQ(defaults.as<DefaultsModel>()->unit().get(), "box");
}

TEST(ModelIdentity, DescribesItselfForDebuggingEntryByEntry) {
  const auto model = modelFromJSON<LeafModel>(R"({"name": "a b", "size": 1})");
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

// ---- OrvantaKeyValueStoreObject ----

TEST(KeyValueStoreObject, StoresAValueAndItsCreationTime) {
  RecordingPlatform platform;
  platform.now = 1'500'000'000'123'456'789;
  const auto holder = OrvantaKeyValueStoreObject::objectWithValue(Array({1}));
  EXPECT_EQ(holder->creationDate().get(), Date{1500000000.123456789});
  EXPECT_EQ(holder->value().raw(), Value(Array({1})));
  EXPECT_EQ(toJSON(holder->dictionaryValue()), R"({"date":1500000000123,"value":[1]})");
  EXPECT_EQ(Value(holder->copyWithZone()), Value(holder));
}

TEST(KeyValueStoreObject, DefaultsToADateIn1970) {
  RecordingPlatform platform;
  platform.now = 5'000'000'000;
  EXPECT_EQ(make<OrvantaKeyValueStoreObject>()->creationDate().get(), Date{0});
  const auto holder = modelFromJSON<OrvantaKeyValueStoreObject>(R"({"value": "v"})");
  EXPECT_EQ(holder->creationDate().get(), Date{0});
  EXPECT_TRUE(updateFromJSON(*holder, R"({"date": 2000})"));
  EXPECT_TRUE(updateFromJSON(*holder, "{}"));
  EXPECT_EQ(holder->creationDate().get(), Date{2});
  EXPECT_EQ(holder->value().raw(), Value("v"));
}

TEST(KeyValueStoreObject, NeedsNoClock) {
  Platform none;
  const PlatformOverride scope(none);
  EXPECT_EQ(OrvantaKeyValueStoreObject::objectWithValue(1)->creationDate().get(), Date{0});
}

}  // namespace
}  // namespace orvanta::testing
