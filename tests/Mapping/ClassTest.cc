#include <gtest/gtest.h>

#include "support/ModelZoo.h"

// Tables, property lists and key-value coding.

namespace orvanta::testing {
namespace {

Value leafClass() { return Value(&LeafModel::classObject()); }

TEST(ClassTables, AreMergedWithTheAncestorsWinning) {
  EXPECT_EQ(DescendantModel::classObject().mergedKeyTable(),
            Dictionary({{"own", "own"}, {"k", "inherited"}, {"s", "stamp"}, {"code", "code"}}));
  EXPECT_EQ(NestingModel::classObject().mergedClassTable(),
            Dictionary({{"leaf", leafClass()},
                        {"leaves", leafClass()},
                        {"deeper", Value(&NestingModel::classObject())}}));
  EXPECT_TRUE(OrvantaBaseModel::classObject().mergedKeyTable().empty());
  EXPECT_EQ(make<DescendantModel>()->keyPathPropertyDictionary(),
            DescendantModel::classObject().mergedKeyTable());
}

TEST(ClassTables, AClassDeclaresItsOwnEntriesOnly) {
  std::vector<std::string_view> keys;
  for (const KeyEntry& row : DescendantModel::keyPathPropertySelectorMapping()) {
    keys.push_back(row.keyPath);
  }
  EXPECT_EQ(keys, (std::vector<std::string_view>{"own", "k"}));
  EXPECT_TRUE(OrvantaBaseModel::keyPathPropertySelectorMapping().empty());
  EXPECT_TRUE(OrvantaBaseModel::keyPathClassMapping().empty());
  EXPECT_EQ(NestingModel::keyPathClassMapping().size(), 3U);
}

TEST(ClassTables, AnObjectsOwnKeyTableServesBothDirections) {
  const auto model = make<LeafModel>();
  const auto other = make<LeafModel>();
  model->setKeyPathPropertyDictionary({{"other.name", "name"}});
  EXPECT_TRUE(update(*model, R"({"other": {"name": "a"}, "name": "b", "size": 3})"));
  EXPECT_EQ(model->name().get(), "a");
  EXPECT_EQ(model->size(), 0);
  EXPECT_EQ(written(model->dictionaryValue()), R"({"other.name":"a"})");
  EXPECT_TRUE(update(*other, R"({"name": "b"})"));  // the class keeps its table
  EXPECT_EQ(other->name().get(), "b");

  model->setKeyPathPropertyDictionary({});  // counts as not set
  EXPECT_EQ(model->keyPathPropertyDictionary(), LeafModel::classObject().mergedKeyTable());
  EXPECT_TRUE(update(*model, R"({"name": "c"})"));
  EXPECT_EQ(model->name().get(), "c");
}

TEST(ClassTables, AnObjectsOwnClassTableDecidesWhatIsMade) {
  const auto model = make<NestingModel>();
  model->setKeyPathClassDictionary({{"free", leafClass()}, {"list", "not a class"}});
  EXPECT_TRUE(update(*model, R"({"free": {"name": "a"}, "leaf": {}, "list": [{}]})"));
  EXPECT_NE(model->free().value().as<LeafModel>(), nullptr);
  EXPECT_NE(model->leaf().value().dictionary(), nullptr);
  EXPECT_EQ(model->list().value(), Value(Array({Dictionary()})));

  model->setKeyPathClassDictionary({});
  EXPECT_TRUE(update(*model, R"({"free": {}, "leaf": {}})"));
  EXPECT_NE(model->free().value().dictionary(), nullptr);
  EXPECT_NE(model->leaf().get(), nullptr);
}

TEST(ClassTables, AreSetByKeyToo) {
  const auto model = make<LeafModel>();
  model->setValueForKey(Dictionary({{"n", "name"}}), "keyPathPropertyDictionary");
  EXPECT_TRUE(update(*model, R"({"n": "a"})"));
  EXPECT_EQ(model->name().get(), "a");
  EXPECT_EQ(model->valueForKey("keyPathPropertyDictionary"), Value(Dictionary({{"n", "name"}})));
  EXPECT_EQ(model->valueForKey("keyPathClassDictionary"), Value(Dictionary()));
}

// ---- Properties ----

TEST(ClassProperties, AreListedInTheOrderOfTheirDeclaration) {
  const struct {
    std::string_view name;
    std::string_view encoding;
    Ownership ownership;
    bool readOnly;
  } rows[] = {
      {"text", "@\"NSString\"", Ownership::copy, false},
      {"number", "@\"NSNumber\"", Ownership::strong, false},
      {"url", "@\"NSURL\"", Ownership::strong, false},
      {"date", "@\"NSDate\"", Ownership::strong, true},
      {"array", "@\"NSArray\"", Ownership::copy, false},
      {"mutableArray", "@\"NSMutableArray\"", Ownership::strong, false},
      {"dictionary", "@\"NSDictionary\"", Ownership::copy, false},
      {"mutableDictionary", "@\"NSMutableDictionary\"", Ownership::strong, false},
      {"any", "@", Ownership::strong, false},
      {"model", "#", Ownership::assign, false},
      {"block", "@?", Ownership::copy, false},
      {"leaf", "@\"LeafModel\"", Ownership::strong, false},
  };
  const auto properties = ObjectModel::classObject().properties;
  ASSERT_EQ(properties.size(), std::size(rows));
  for (std::size_t i = 0; i < properties.size(); ++i) {
    EXPECT_EQ(properties[i].name, rows[i].name);
    EXPECT_EQ(properties[i].encoding, rows[i].encoding);
    EXPECT_EQ(properties[i].ownership, rows[i].ownership);
    EXPECT_EQ(properties[i].readOnly, rows[i].readOnly);
  }
}

TEST(ClassProperties, AreTheClassesOwnOnesOnly) {
  std::vector<std::string_view> names;
  for (const Property& property : DescendantModel::classObject().properties) {
    names.push_back(property.name);
  }
  EXPECT_EQ(names, (std::vector<std::string_view>{"own", "overruled", "stamp"}));
  EXPECT_EQ(DescendantModel::classObject().property("stamp")->encoding, "@\"NSDate\"");
  EXPECT_EQ(DescendantModel::classObject().property("inherited")->name, "inherited");
  EXPECT_EQ(DescendantModel::classObject().property("missing"), nullptr);
  EXPECT_FALSE(ComputedModel::classObject().property("percent")->readOnly);
  EXPECT_TRUE(ComputedModel::classObject().property("twice")->readOnly);
}

TEST(ClassProperties, TypeCodesAreCachedForTheWholeChain) {
  EXPECT_EQ(make<DescendantModel>()->propertyTypeEncodingCache(),
            Dictionary({{"own", "@\"NSString\""},
                        {"overruled", "@\"NSString\""},
                        {"inherited", "@\"NSString\""},
                        {"stamp", "@"},
                        {"code", "@\"NSString\""},
                        {"keyPathPropertyDictionary", "@\"NSDictionary\""},
                        {"keyPathClassDictionary", "@\"NSDictionary\""}}));
  EXPECT_EQ(&make<DescendantModel>()->propertyTypeEncodingCache(),
            &DescendantModel::classObject().propertyTypeEncodingCache());
  EXPECT_EQ(ScalarModel::classObject().propertyTypeEncodingCache()["natural"], Value("Q"));
}

TEST(ClassProperties, ThreadsCanUseAClassFirstAtTheSameTime) {
  std::atomic<const Dictionary*> first{nullptr};
  runTogether([&] {
    const auto model = made<UntouchedModel>(R"({"link": "a/b", "name": "n"})");
    EXPECT_EQ(written(model->dictionaryValue()), R"({"link":"a\/b","name":"n","size":0})");
    const Dictionary* cache = &model->propertyTypeEncodingCache();
    const Dictionary* expected = nullptr;
    if (!first.compare_exchange_strong(expected, cache)) {
      EXPECT_EQ(expected, cache);
    }
  });
}

// ---- Key-value coding and validation ----

TEST(KeyValueCoding, ReadsAndWritesByNameWhateverTheAccess) {
  const auto model = make<ObjectModel>();
  model->setValueForKey("not a date", "date");  // read-only in public
  EXPECT_EQ(model->date().value(), Value("not a date"));
  EXPECT_FALSE(model->date().get());
  const auto ran = std::make_shared<int>(0);
  model->setBlock([ran] { ++*ran; });
  const Value block = model->valueForKey("block");
  model->setValueForKey(Value(), "block");
  EXPECT_FALSE(model->block());
  model->setValueForKey(block, "block");
  (*model->block().get())();
  EXPECT_EQ(*ran, 1);

  const auto scalars = make<ScalarModel>();
  scalars->setValueForKey("yes", "flag");
  EXPECT_EQ(scalars->valueForKey("flag"), Value(true));
  EXPECT_EQ(scalars->valueForKey("flag").kind(), Kind::boolean);
  EXPECT_EQ(make<DescendantModel>()->valueForKey("code"), Value("overridden"));
}

TEST(KeyValueCoding, ThrowsForUnknownKeysAndScalarsWithoutReading) {
  const auto model = make<ScalarModel>();
  const std::string complaint = "this class is not key value coding-compliant for the key x.";
  EXPECT_EQ(thrown([&] { model->valueForKey("x"); }),
            "NSUnknownKeyException: [<ScalarModel> valueForUndefinedKey:]: " + complaint);
  EXPECT_EQ(thrown([&] { model->setValueForKey(1, "x"); }),
            "NSUnknownKeyException: [<ScalarModel> setValue:forUndefinedKey:]: " + complaint);
  for (const auto& value : {Value(), Value::null(), Value(Array()), Value(Date{1})}) {
    for (const Property& property : ScalarModel::classObject().properties) {
      EXPECT_TRUE(thrown([&] {
                    model->setValueForKey(value, property.name);
                  }).starts_with("NSInvalidArgumentException: "))
          << property.name << describe(value);
    }
  }
  EXPECT_EQ(thrown([] { make<ComputedModel>()->setValueForKey(1, "twice"); }),
            "NSUnknownKeyException: [<ComputedModel> setValue:forUndefinedKey:]: this class is not "
            "key value coding-compliant for the key twice.");
}

TEST(KeyValueCoding, ReadsAndWritesAlongAPath) {
  const auto model = made<NestingModel>(
      R"({"leaf": {"name": "a"}, "leaves": [{"name": "b"}, {}], "deeper": {"leaf": {}},
          "free": {"x": 1}})");
  EXPECT_EQ(valueForKeyPath(Value(model), "leaf.name"), Value("a"));
  EXPECT_EQ(valueForKeyPath(Value(model), "leaves.name"), Value(Array({"b", Value::null()})));
  EXPECT_EQ(valueForKeyPath(Value(model), "free.x"), Value(1));
  EXPECT_TRUE(valueForKeyPath(Value(model), "deeper.deeper.leaf").isNil());

  model->setValueForKeyPath("c", "deeper.leaf.name");
  EXPECT_EQ(model->deeper().get()->leaf().get()->name().get(), "c");
  model->setValueForKeyPath("d", "leaf.name");
  EXPECT_EQ(model->leaf().get()->name().get(), "d");
  model->setValueForKeyPath(1, "free");
  EXPECT_EQ(model->free().value(), Value(1));
  model->setValueForKeyPath("nobody there", "deeper.deeper.leaf.name");
  EXPECT_TRUE(thrown([&] {
                model->setValueForKeyPath(1, "leaf.x");
              }).starts_with("NSUnknownKeyException: [<LeafModel> setValue:"));
  EXPECT_TRUE(thrown([&] {
                model->setValueForKeyPath(1, "leaf.name.x");
              }).starts_with("NSUnknownKeyException: [<NSString> setValue:"));
}

TEST(Validation, ConvertsByTheTypeCodeAndNeverExplains) {
  const auto model = make<ObjectModel>();
  const auto scalars = make<ScalarModel>();
  const struct {
    const OrvantaBaseModel* model;
    std::string_view property;
    Value value;
    Value converted;  // nil: refused
  } rows[] = {
      {model.get(), "url", "a", *Url::parse("a")},
      {model.get(), "url", *Url::parse("a"), "a"},
      {model.get(), "url", 1, Value()},
      {model.get(), "date", 1500, Date{1.5}},
      {model.get(), "date", Date{1.5}, 1500},
      {model.get(), "date", Value::null(), Value::null()},
      {model.get(), "date", "1500", Value()},
      {model.get(), "text", 1500, 1500},
      {model.get(), "missing", "a", "a"},
      {scalars.get(), "flag", " +2", true},
      {scalars.get(), "flag", 0.0, false},
      {scalars.get(), "whole", "7", "7"},
  };
  for (const auto& row : rows) {
    for (const bool byPath : {false, true}) {
      Value value = row.value;
      Value error;
      const bool valid = byPath ? row.model->validateValueForKeyPath(value, row.property, &error)
                                : row.model->validateValue(value, row.property, &error);
      EXPECT_EQ(valid, !row.converted.isNil()) << row.property << describe(row.value);
      EXPECT_EQ(value, valid ? row.converted : row.value) << row.property;
      EXPECT_EQ(value.kind(), valid ? row.converted.kind() : row.value.kind()) << row.property;
      EXPECT_TRUE(error.isNil());
    }
  }
  Value null = Value::null();
  EXPECT_EQ(thrown([&] { scalars->validateValue(null, "flag"); }),
            "NSInvalidArgumentException: -[NSNull boolValue]: "
            "unrecognized selector sent to instance");
}

TEST(Validation, FollowsAPathToTheOwner) {
  const auto model = make<OrvantaPushObject>();
  Value value = "a/b";
  EXPECT_TRUE(model->validateValueForKeyPath(value, "action.deeplinkURL"));
  EXPECT_EQ(value, Value(*Url::parse("a/b")));
  value = 5;
  EXPECT_FALSE(model->validateValueForKeyPath(value, "action.deeplinkURL"));
  EXPECT_TRUE(model->validateValueForKeyPath(value, "pushStyle.fontFamily"));  // nobody there
}

}  // namespace
}  // namespace orvanta::testing
