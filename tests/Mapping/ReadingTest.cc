#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

TEST(Reading, TheSamplesHaveEveryStorableKind) {
  std::set<Kind> kinds;
  for (const Value& sample : oneOfEachKind()) kinds.insert(sample.kind());
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(Kind::classObject));
}

// The whole matrix of kinds of values and types of properties.
TEST(Reading, TypeCodeDecidesWhatBecomesOfEachKind) {
  RecordingPlatform platform;
  for (const Class* cls : {&ScalarModel::classObject(), &ObjectModel::classObject()}) {
    for (const KeyEntry& row : cls->keyPathPropertySelectorMapping) {
      const std::string_view encoding = cls->property(row.property)->encoding;
      for (const Value& value : oneOfEachKind()) {
        SCOPED_TRACE(std::string(row.property) + " given " + std::string(value.kindName()));
        platform.log.clear();
        const auto model = makeModel(*cls, nullptr);
        const Value unset = model->valueForKey(row.property);
        const Dictionary payload{{row.keyPath, value}};
        const bool updated = model->updateWithDictionary(&payload);
        const Value after = model->valueForKey(row.property);

        const Outcome outcome = outcomeOf(value.kind(), encoding);
        const bool refused = outcome == Outcome::refused || outcome == Outcome::refusedWithLog;
        EXPECT_EQ(updated, !refused);
        EXPECT_EQ(platform.log.size(), outcome == Outcome::refusedWithLog ? 1U : 0U);
        if (refused) {
          EXPECT_EQ(after, unset);
        } else if (outcome == Outcome::keptAsItIs) {
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

TEST(Reading, EachScalarTakesTheReadingOfItsWidth) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  constexpr auto kMaxUnsigned = std::numeric_limits<std::uint64_t>::max();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  const struct {
    Value value;
    bool flag;
    std::int32_t narrow;
    std::int64_t whole;
    std::uint64_t natural;
    float single;
    double real;
  } rows[] = {
      {300.75, true, 300, 300, 300, 300.75F, 300.75},
      {-1, true, -1, -1, kMaxUnsigned, -1.0F, -1.0},
      {0, false, 0, 0, 0, 0.0F, 0.0},
      {true, true, 1, 1, 1, 1.0F, 1.0},
      {4294967298, true, 2, 4294967298, 4294967298, 4294967296.0F, 4294967298.0},
      {kMaxUnsigned, true, -1, -1, kMaxUnsigned, 18446744073709551616.0F, 18446744073709551616.0},
      {1e300, true, -1, kMax, kMaxUnsigned, kInfinity, 1e300},
      {" -7x", true, -7, -7, kMaxUnsigned - 6, -7.0F, -7.0},
      {"99999999999", true, 2147483647, 99999999999, 99999999999, 1e11F, 99999999999.0},
      {"1e3", true, 1, 1, 1, 1000.0F, 1000.0},
      {"yes", true, 0, 0, 0, 0.0F, 0.0},
      {"no", false, 0, 0, 0, 0.0F, 0.0},
      {"007", true, 7, 7, 7, 7.0F, 7.0},
      {"", false, 0, 0, 0, 0.0F, 0.0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(describe(row.value));
    Dictionary payload;
    for (const char* key : {"B", "i", "q", "Q", "f", "d"}) payload.set(key, row.value);
    const auto model = make<ScalarModel>(payload);
    ASSERT_TRUE(model);
    EXPECT_EQ(model->flag(), row.flag);
    EXPECT_EQ(model->narrow(), row.narrow);
    EXPECT_EQ(model->whole(), row.whole);
    EXPECT_EQ(model->natural(), row.natural);
    EXPECT_EQ(model->single(), row.single);
    EXPECT_EQ(model->real(), row.real);
  }
}

TEST(Reading, DatesAreWholeMillisecondsAndUrlsText) {
  const struct {
    std::string_view json;
    std::string_view property;
    Value stored;
  } rows[] = {
      {R"({"date": 1500000000123})", "date", Date{1500000000.123}},
      {R"({"date": 1500000000123.9})", "date", Date{1500000000.123}},
      {R"({"date": -1500})", "date", Date{-1.5}},
      {R"({"date": true})", "date", Date{0.001}},
      {R"({"date": 1e300})", "date", Date{9223372036854775808.0 / 1000.0}},
      {R"({"date": null})", "date", Value::null()},
      {R"({"url": "https://example.com/a?b=%20#c"})", "url",
       *Url::parse("https://example.com/a?b=%20#c")},
      {R"({"url": ""})", "url", *Url::parse("")},
      {R"({"url": "a b"})", "url", Value()},
      {R"({"url": "größe"})", "url", Value()},
  };
  for (const auto& row : rows) {
    const auto model = make<ObjectModel>();
    model->setUrl(*Url::parse("before"));
    EXPECT_TRUE(update(*model, row.json)) << row.json;
    EXPECT_EQ(model->valueForKey(row.property), row.stored) << row.json;
  }
}

TEST(Reading, TellsPresenceTypeAndRawValueApart) {
  const auto model = made<ObjectModel>(R"({"text": 5, "number": null, "array": ["a"]})");
  EXPECT_TRUE(model->text());
  EXPECT_FALSE(model->text().get());
  EXPECT_EQ(model->text().value(), Value(5));
  EXPECT_TRUE(model->number());
  EXPECT_FALSE(model->number().get());
  EXPECT_EQ(model->array().get()->size(), 1U);
  EXPECT_FALSE(model->url());
  EXPECT_EQ(model->url().get(), nullptr);
}

TEST(Reading, NothingToReadIsSuccessAndChangesNothing) {
  const auto model = make<LeafModel>();
  model->setName("kept");
  EXPECT_TRUE(model->updateWithDictionary(nullptr));
  EXPECT_TRUE(update(*model, "{}"));
  EXPECT_TRUE(update(*model, R"({"other": {"name": 1}, "Name": 2, "size.x": 3})"));
  EXPECT_EQ(model->name().get(), "kept");
  EXPECT_EQ(model->size(), 0);

  const auto bare = make<OrvantaBaseModel>();
  EXPECT_TRUE(update(*bare, R"({"name": null})"));  // no table at all
}

TEST(Reading, LaterUpdatesOverwriteWhatTheyHoldOnly) {
  const auto model = made<LeafModel>(R"({"name": "a", "size": 1})");
  EXPECT_TRUE(update(*model, R"({"size": 2})"));
  EXPECT_EQ(model->name().get(), "a");
  EXPECT_EQ(model->size(), 2);
}

TEST(Reading, DefaultsSetBeforeTheBaseHoldForMissingKeys) {
  EXPECT_EQ(make<DefaultsModel>()->count(), kUnsetInteger);
  const auto model = made<DefaultsModel>(R"({"count": 3})");
  EXPECT_EQ(model->count(), 3);
  EXPECT_EQ(model->unit().get(), "piece");
  EXPECT_FALSE(made<DefaultsModel>(R"({"count": []})"));
}

// ---- Key paths ----

TEST(Reading, DescendsKeyPaths) {
  const auto model = made<DottedModel>(
      R"({"aps": {"sound": "s", "badge": "4", "tags": ["t"]}, "a": {"b": {"c": 1}}, "title": "x"})");
  EXPECT_EQ(model->sound().get(), "s");
  EXPECT_EQ(model->badge(), 4);
  EXPECT_EQ(model->tags().value(), Value(Array({"t"})));
  EXPECT_EQ(model->deep().value(), Value(1));
  EXPECT_EQ(model->middle().value(), Value(Dictionary({{"c", 1}})));
  EXPECT_EQ(model->title().get(), "x");
}

TEST(Reading, TheOrderOfTheKeysDoesNotMatter) {
  std::vector<std::string> parts = {
      R"("title": "x")", R"("aps": {"tags": ["t"], "other": 0, "badge": 4, "sound": "s"})",
      R"("a": {"other": 0, "b": {"c": 1}})", R"("other": {"sound": "no"})"};
  std::sort(parts.begin(), parts.end());
  do {
    std::string json;
    for (const std::string& part : parts) json += (json.empty() ? "{" : ", ") + part;
    const auto model = made<DottedModel>(json += "}");
    ASSERT_TRUE(model) << json;
    EXPECT_EQ(written(model->dictionaryValue()),
              R"({"aps.sound":"s","aps.badge":4,"a.b.c":1,"a.b":{"c":1},"aps.tags":["t"],)"
              R"("title":"x"})")
        << json;
  } while (std::next_permutation(parts.begin(), parts.end()));
}

TEST(Reading, AMissingStepLeavesThePropertyAlone) {
  for (const char* json : {R"({"aps.sound": "flat"})", R"({"aps": {}})", R"({"a": {}})",
                           R"({"a": {"b": {}}, "title": "x"})"}) {
    const auto model = make<DottedModel>();
    model->setSound("kept");
    model->setDeep(Value("kept"));
    EXPECT_TRUE(update(*model, json)) << json;
    EXPECT_EQ(model->sound().get(), "kept") << json;
    EXPECT_EQ(model->deep().value(), Value("kept")) << json;
  }
}

TEST(Reading, AppliesTheRestOfAPathToEachElementOfAnArray) {
  const struct {
    std::string_view json;
    Value deep;
  } rows[] = {
      {R"({"a": [{"b": {"c": 1}}, {"b": {}}, {}]})", Array({1, Value::null(), Value::null()})},
      {R"({"a": {"b": [{"c": 1}, [{"c": 2}]]}})", Array({1, Array({2})})},
      {R"({"a": []})", Array()},
  };
  for (const auto& row : rows) {
    const auto model = made<DottedModel>(row.json);
    ASSERT_TRUE(model) << row.json;
    EXPECT_EQ(model->deep().value(), row.deep) << row.json;
  }
}

TEST(Reading, APathThroughAValueWithoutKeysIsRefusedSilently) {
  RecordingPlatform platform;
  for (const char* json :
       {R"({"aps": "text"})", R"({"aps": 1})", R"({"aps": true})", R"({"aps": null})",
        R"({"a": {"b": "text"}})", R"({"aps": [{"sound": "s"}, "text"]})", R"({"a": [null]})"}) {
    EXPECT_FALSE(made<DottedModel>(json)) << json;
  }
  EXPECT_TRUE(platform.log.empty());
}

// ---- Properties ----

TEST(Reading, AnAncestorsKeyWinsOverItsDescendants) {
  const auto model = made<DescendantModel>(R"({"k": "a", "own": "b"})");
  EXPECT_EQ(model->inherited().get(), "a");
  EXPECT_FALSE(model->overruled());
  EXPECT_EQ(model->own().get(), "b");
}

TEST(Reading, AnAncestorsTypeCodeDecidesAboutARedeclaredProperty) {
  const auto model = made<DescendantModel>(R"({"s": 1000})");
  EXPECT_EQ(model->stamp().value(), Value(1000));  // in the descendant's storage, not made a date
  EXPECT_FALSE(model->AncestorModel::stamp());
}

TEST(Reading, AssignsThroughSettersOfTheClass) {
  EXPECT_EQ(made<SetterModel>(R"({"limit": "500"})")->limit(), 100);
  EXPECT_EQ(made<SetterModel>(R"({"text": 5})")->text().value(), Value(5));
}

TEST(Reading, AComputedPropertyIsWrittenThroughItsSetterOrNotAtAll) {
  const auto model = make<ComputedModel>();
  model->setKeyPathPropertyDictionary({{"p", "percent"}, {"t", "twice"}});
  EXPECT_TRUE(update(*model, R"({"p": 50})"));
  EXPECT_EQ(model->half(), 0.25);
  EXPECT_FALSE(update(*model, R"({"t": 9})"));
  EXPECT_EQ(model->half(), 0.25);
}

TEST(Reading, ADottedPropertyPathAssignsInsideANestedObject) {
  const auto model = make<NestingModel>();
  model->setKeyPathPropertyDictionary({{"n", "leaf.name"}, {"l", "leaf"}});
  EXPECT_TRUE(update(*model, R"({"n": "nobody there"})"));
  EXPECT_FALSE(model->leaf());

  model->setLeaf(make<LeafModel>());
  EXPECT_TRUE(update(*model, R"({"n": "reached"})"));
  EXPECT_EQ(model->leaf().get()->name().get(), "reached");

  model->setKeyPathPropertyDictionary({{"n", "leaf.missing"}});
  EXPECT_FALSE(update(*model, R"({"n": 1})"));
  model->setKeyPathPropertyDictionary({{"n", "leaf.name.first"}});
  EXPECT_FALSE(update(*model, R"({"n": 1})"));  // a text has no keys to write to
}

TEST(Reading, ADottedPropertyPathConvertsByTheNestedObjectsType) {
  RecordingPlatform platform;
  const auto model = make<NestingModel>();
  const auto inner = make<ObjectModel>();
  model->setFree(Value(inner));
  model->setKeyPathPropertyDictionary({{"u", "free.url"}, {"d", "free.date"}});
  EXPECT_TRUE(update(*model, R"({"u": "a/b", "d": 1500})"));
  EXPECT_EQ(inner->url().value(), Value(*Url::parse("a/b")));
  EXPECT_EQ(inner->date().get(), Date{1.5});
  EXPECT_FALSE(update(*model, R"({"u": 5})"));
  EXPECT_FALSE(update(*model, R"({"d": "today"})"));
  EXPECT_TRUE(platform.log.empty());
}

TEST(Reading, AnUpdateMayComeFromTheObjectItself) {
  const auto model = make<ObjectModel>();
  update(*model, R"({"any": {"any": {"x": "the last holder of this dictionary"}, "leaf": 1}})");
  ASSERT_TRUE(model->updateWithDictionary(model->any().value().dictionary()));
  EXPECT_EQ(model->any().value(), Value(Dictionary({{"x", "the last holder of this dictionary"}})));
  EXPECT_EQ(model->leaf().value(), Value(1));
}

TEST(Reading, ATableThatIsReplacedMeanwhileHoldsFromTheNextUpdateOn) {
  const auto model = made<SetterModel>(R"({"text": "tables", "after": "first"})");
  ASSERT_TRUE(model);
  EXPECT_EQ(model->after().get(), "first");
  EXPECT_TRUE(update(*model, R"({"text": "unread", "after": "second"})"));
  EXPECT_EQ(model->before().get(), "second");
  EXPECT_EQ(model->text().get(), "tables");
}

}  // namespace
}  // namespace orvanta::testing
