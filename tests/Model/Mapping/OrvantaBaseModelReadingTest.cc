#include <gtest/gtest.h>

#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

/// A value of every kind that can be stored.
std::vector<Value> oneOfEachKind() {
  return {
      Value::null(),
      true,
      2,
      (std::uint64_t{1} << 63U) + 5,
      2.5,
      1.5F,
      Date{1.5},
      "7",
      *Url::parse("https://example.com/a"),
      Array({1, "a"}),
      Dictionary({{"x", 1}}),
      make<LeafModel>(),
      Value(&LeafModel::classObject()),
  };
}

/// What an update does with a value, by its kind and the property's type code.
enum class Outcome { unchanged, read, converted, rejected, rejectedWithLog };
Outcome outcomeOf(Kind kind, std::string_view encoding) {
  const bool isNumber = kind >= Kind::boolean && kind <= Kind::real32;
  if (encoding.size() == 1 && encoding.find_first_of("BiqQfd") == 0) {
    return isNumber || kind == Kind::string ? Outcome::read : Outcome::rejectedWithLog;
  }
  if (encoding == "@\"NSURL\"") {
    const bool isTextOrUrl = kind == Kind::string || kind == Kind::url;
    return isTextOrUrl ? Outcome::converted : Outcome::rejected;
  }
  if (encoding == "@\"NSDate\"") {
    if (kind == Kind::null) return Outcome::unchanged;
    return isNumber || kind == Kind::date ? Outcome::converted : Outcome::rejected;
  }
  return Outcome::unchanged;
}

// The whole matrix of kinds of values and types of properties.
TEST(Reading, TypeCodeDecidesHowEachKindIsRead) {
  RecordingPlatform platform;
  for (const Class* cls : {&ScalarModel::classObject(), &ObjectModel::classObject()}) {
    for (const KeyEntry& row : cls->keyPathPropertySelectorMapping) {
      const std::string_view encoding = cls->property(row.property)->encoding;
      for (const Value& value : oneOfEachKind()) {
        SCOPED_TRACE(std::string(row.property) + " = " + std::string(value.kindName()));
        platform.log.clear();
        const auto model = makeModel(*cls, nullptr);
        const Value unset = model->valueForKey(row.property);
        const Dictionary payload{{row.keyPath, value}};
        const bool updated = model->updateWithDictionary(&payload);
        const Value after = model->valueForKey(row.property);

        const Outcome outcome = outcomeOf(value.kind(), encoding);
        const bool rejected = outcome == Outcome::rejected || outcome == Outcome::rejectedWithLog;
        EXPECT_EQ(updated, !rejected);
        EXPECT_EQ(platform.log.size(), outcome == Outcome::rejectedWithLog ? 1U : 0U);
        if (rejected) {
          EXPECT_EQ(after, unset);
        } else if (outcome == Outcome::unchanged) {
          EXPECT_EQ(after, value);
          EXPECT_EQ(after.kind(), value.kind());
        } else {
          EXPECT_NE(after, unset);
          EXPECT_EQ(after.kind() == unset.kind(), outcome == Outcome::read);
          EXPECT_TRUE(outcome == Outcome::read || after.kind() != value.kind());
        }
      }
    }
  }
}

TEST(Reading, ScalarsAreConvertedToTheirWidth) {
  Dictionary payload;
  for (const char* key : {"B", "i", "q", "Q", "f", "d"}) payload.set(key, -4294967298.75);
  const auto model = make<ScalarModel>(payload);
  EXPECT_TRUE(updateFromJSON(*model, R"({"B": 2})"));  // and leaves its neighbours alone
  EXPECT_EQ(toJSON(model->dictionaryValue()),
            R"({"B":true,"i":-2,"q":-4294967298,"Q":18446744069414584318,)"
            R"("f":-4294967296,"d":-4294967298.75})");
}

TEST(Reading, NothingToReadSucceedsAndChangesNothing) {
  const auto model = make<LeafModel>();
  model->setName("kept");
  EXPECT_TRUE(model->updateWithDictionary(nullptr));
  EXPECT_TRUE(updateFromJSON(*model, "{}"));
  EXPECT_TRUE(updateFromJSON(*model, R"({"other": {"name": 1}, "Name": 2, "size.x": 3})"));
  EXPECT_EQ(model->name().get(), "kept");
  EXPECT_EQ(model->size(), 0);

  const auto bare = make<OrvantaBaseModel>();
  EXPECT_TRUE(updateFromJSON(*bare, R"({"name": null})"));  // no table at all
}

TEST(Reading, ReadsDottedKeysThroughDictionariesAndArrays) {
  // The written model, empty where the update fails.
  const std::pair<std::string_view, std::string_view> rows[] = {
      {R"({"a": {"b": {"c": 2}}, "aps": {"sound": "s", "tags": [], "badge": 1}, "title": "t"})",
       R"({"aps.sound":"s","aps.badge":1,"a.b.c":2,"a.b":{"c":2},"aps.tags":[],"title":"t"})"},
      {R"({"a": [{"b": {"c": 2}}, {}]})",
       R"({"aps.badge":0,"a.b.c":[2,null],"a.b":[{"c":2},null]})"},
      {R"({"a": {"b.c": 2}, "aps.sound": "s", "a.b.c": 2})", R"({"aps.badge":0})"},
      {R"({"aps": null})", ""},
      {R"({"aps": "text"})", ""},
      {R"({"a": {"b": null}})", ""},
  };
  for (const auto& [json, read] : rows) {
    const auto model = modelFromJSON<DottedModel>(json);
    EXPECT_EQ(model ? toJSON(model->dictionaryValue()) : "", read) << json;
  }
}

TEST(Reading, DefaultsSetBeforeTheUpdateHoldForMissingKeys) {
  EXPECT_EQ(make<DefaultsModel>()->count(), kUnsetInteger);
  const auto model = modelFromJSON<DefaultsModel>(R"({"count": 3})");
  EXPECT_EQ(model->count(), 3);
  EXPECT_EQ(model->unit().get(), "piece");
  EXPECT_FALSE(modelFromJSON<DefaultsModel>(R"({"count": []})"));
}

// ---- Properties ----

TEST(Reading, ASuperclassKeyWinsOverASubclassKey) {
  const auto model = modelFromJSON<DescendantModel>(R"({"k": "a", "own": "b"})");
  EXPECT_EQ(model->inherited().get(), "a");
  EXPECT_FALSE(model->overruled().isPresent());
  EXPECT_EQ(model->own().get(), "b");
}

TEST(Reading, ASuperclassTypeCodeAppliesToARedeclaredProperty) {
  const auto model = modelFromJSON<DescendantModel>(R"({"s": 1000})");
  EXPECT_EQ(model->stamp().raw(), Value(1000));  // in the descendant's storage, not made a date
  EXPECT_FALSE(model->AncestorModel::stamp().isPresent());
}

TEST(Reading, AssignsComputedPropertiesOnlyThroughTheirSetter) {
  const auto model = make<ComputedModel>();
  model->setKeyPathPropertyDictionary({{"p", "percent"}, {"t", "twice"}});
  EXPECT_TRUE(updateFromJSON(*model, R"({"p": 50})"));
  EXPECT_EQ(model->half(), 0.25);
  EXPECT_FALSE(updateFromJSON(*model, R"({"t": 9})"));
  EXPECT_EQ(model->half(), 0.25);
}

TEST(Reading, ADottedPropertyPathAssignsInsideANestedObject) {
  const auto model = make<NestingModel>();
  model->setKeyPathPropertyDictionary({{"n", "leaf.name"}, {"l", "leaf"}});
  EXPECT_TRUE(updateFromJSON(*model, R"({"n": "nobody there"})"));
  EXPECT_FALSE(model->leaf().isPresent());

  model->setLeaf(make<LeafModel>());
  EXPECT_TRUE(updateFromJSON(*model, R"({"n": "reached"})"));
  EXPECT_EQ(model->leaf().get()->name().get(), "reached");

  model->setKeyPathPropertyDictionary({{"n", "leaf.missing"}});
  EXPECT_FALSE(updateFromJSON(*model, R"({"n": 1})"));
  model->setKeyPathPropertyDictionary({{"n", "leaf.name.first"}});
  EXPECT_FALSE(updateFromJSON(*model, R"({"n": 1})"));  // a string has no keys to write
  EXPECT_EQ(exceptionFrom([&] { model->setValueForKeyPath(1, "leaf.name.first"); }),
            "NSUnknownKeyException: [<NSString> setValue:forUndefinedKey:]: this class is not key "
            "value coding-compliant for the key first.");
}

TEST(Reading, ADottedPropertyPathConvertsLikeTheNestedObject) {
  const auto model = make<NestingModel>();
  model->setFree(make<ObjectModel>());
  model->setKeyPathPropertyDictionary({{"u", "free.url"}});
  EXPECT_TRUE(updateFromJSON(*model, R"({"u": "https://shop.example.com/"})"));
  EXPECT_NE(model->free().raw().as<ObjectModel>()->url().get(), nullptr);
  EXPECT_FALSE(updateFromJSON(*model, R"({"u": 5})"));
}

TEST(Reading, PassesContainersToCustomSetters) {
  EXPECT_EQ(modelFromJSON<SetterModel>(R"({"text": {"a": 1}})")->before().get(), "another kind");
  EXPECT_EQ(modelFromJSON<SetterModel>(R"({"text": [1]})")->before().get(), "another kind");
  const auto model = modelFromJSON<SetterModel>(R"({"text": {"klazz": "OrvantaPushStyle"}})");
  EXPECT_EQ(model->before().get(), "another kind");
}

TEST(Reading, UpdatesFromADictionaryThatTheModelOwns) {
  const auto model = make<ObjectModel>();
  ASSERT_TRUE(model);
  updateFromJSON(*model,
                 R"({"any": {"any": {"x": "the last holder of this dictionary"}, "leaf": 1}})");
  ASSERT_TRUE(model->updateWithDictionary(model->any().raw().dictionary()));
  EXPECT_EQ(model->any().raw(), Value(Dictionary({{"x", "the last holder of this dictionary"}})));
  EXPECT_EQ(model->leaf().raw(), Value(1));
}

TEST(Reading, AReplacedKeyTableAppliesFromTheNextUpdate) {
  const auto model = modelFromJSON<SetterModel>(R"({"text": "tables", "after": "first"})");
  ASSERT_TRUE(model);
  EXPECT_EQ(model->after().get(), "first");
  EXPECT_TRUE(updateFromJSON(*model, R"({"text": "unread", "after": "second"})"));
  EXPECT_EQ(model->before().get(), "second");
  EXPECT_EQ(model->text().get(), "tables");
}

}  // namespace
}  // namespace orvanta::testing
