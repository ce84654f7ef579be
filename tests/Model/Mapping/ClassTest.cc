#include <gtest/gtest.h>

#include "orvanta/Conformance/Threads.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

Value leafClass() { return Value(&LeafModel::classObject()); }

TEST(ClassTables, AModelsOwnKeyTableServesReadingAndWriting) {
  const auto model = make<LeafModel>();
  const auto other = make<LeafModel>();
  model->setValueForKey(Dictionary({{"other.name", "name"}}), "keyPathPropertyDictionary");
  EXPECT_TRUE(updateFromJSON(*model, R"({"other": {"name": "a"}, "name": "b", "size": 3})"));
  EXPECT_EQ(model->name().get(), "a");
  EXPECT_EQ(model->size(), 0);
  EXPECT_EQ(toJSON(model->dictionaryValue()), R"({"other.name":"a"})");
  EXPECT_TRUE(updateFromJSON(*other, R"({"name": "b"})"));  // the class keeps its table
  EXPECT_EQ(other->name().get(), "b");

  model->setValueForKey("no table", "keyPathPropertyDictionary");  // counts as unset
  EXPECT_EQ(model->keyPathPropertyDictionary(), LeafModel::classObject().mergedKeyTable());
  EXPECT_TRUE(updateFromJSON(*model, R"({"name": "c"})"));
  EXPECT_EQ(model->name().get(), "c");
}

TEST(ClassTables, AModelsOwnClassTableDecidesTheNestedClasses) {
  const auto model = make<NestingModel>();
  const Value noModel(&Plain::classObject());
  const Dictionary table{{"free", leafClass()}, {"list", "not a class"}, {"leaf", noModel}};
  model->setValueForKey(table, "keyPathClassDictionary");
  EXPECT_EQ(model->valueForKey("keyPathClassDictionary"), Value(table));
  EXPECT_TRUE(updateFromJSON(*model, R"({"free": {"name": "a"}, "leaf": {}, "list": [{}]})"));
  EXPECT_NE(model->free().raw().as<LeafModel>(), nullptr);
  EXPECT_NE(model->leaf().raw().dictionary(), nullptr);
  EXPECT_EQ(model->list().raw(), Value(Array({Dictionary()})));

  model->setValueForKey(Value(), "keyPathClassDictionary");
  EXPECT_TRUE(updateFromJSON(*model, R"({"free": {}, "leaf": {}})"));
  EXPECT_NE(model->free().raw().dictionary(), nullptr);
  EXPECT_NE(model->leaf().get(), nullptr);
}

TEST(ClassTables, ThreadsCanUseAClassFirstAtTheSameTime) {
  std::atomic<const Dictionary*> first{nullptr};
  conformance::runTogether([&] {
    const auto model = modelFromJSON<UntouchedModel>(R"({"link": "a/b", "name": "n"})");
    EXPECT_EQ(toJSON(model->dictionaryValue()), R"({"link":"a\/b","name":"n","size":0})");
    const Dictionary* cache = &model->propertyTypeEncodingCache();
    const Dictionary* expected = nullptr;
    if (!first.compare_exchange_strong(expected, cache)) {
      EXPECT_EQ(expected, cache);
    }
  });
}

}  // namespace
}  // namespace orvanta::testing
