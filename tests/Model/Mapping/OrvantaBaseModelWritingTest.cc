#include <gtest/gtest.h>

#include <limits>

#include "orvanta/Conformance/Threads.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

/// The keys of a dictionary in their order.
std::vector<std::string> keysOf(const Dictionary& dictionary) {
  std::vector<std::string> keys;
  for (const Dictionary::Entry& entry : dictionary) keys.emplace_back(entry.key());
  return keys;
}
using Keys = std::vector<std::string>;

TEST(Writing, ScalarsKeepTheirKind) {
  const auto model =
      modelFromJSON<ScalarModel>(R"({"B": 2, "i": -3, "q": -4, "d": 0.5, "f": 0.5})");
  model->setNatural(std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(toJSON(model->dictionaryValue()),
            R"({"B":true,"i":-3,"q":-4,"Q":18446744073709551615,"f":0.5,"d":0.5})");
  EXPECT_EQ(model->dictionaryValue()["B"].kind(), Kind::boolean);
  EXPECT_EQ(model->dictionaryValue()["f"].kind(), Kind::real32);
  EXPECT_EQ(toJSON(make<ScalarModel>()->dictionaryValue()),
            R"({"B":false,"i":0,"q":0,"Q":0,"f":0,"d":0})");
}

TEST(Writing, ConvertsBackWhatReadingConverted) {
  const char* text = R"({"text":"t","url":"https:\/\/e.com\/a","date":1500,"any":null})";
  const auto model = modelFromJSON<ObjectModel>(text);
  EXPECT_EQ(model->date().get(), Date{1.5});
  EXPECT_EQ(toJSON(model->dictionaryValue()), text);
}

TEST(Writing, OmitsNilAndValuesThatFailToConvert) {
  EXPECT_TRUE(make<ObjectModel>()->dictionaryValue().empty());
  const auto model = make<ObjectModel>();
  model->setValueForKey(5, "url");
  model->setValueForKey(Array(), "date");
  model->setText("t");
  EXPECT_EQ(keysOf(model->dictionaryValue()), Keys{"text"});
  model->setValueForKey("no URL", "url");  // which converts to nil
  EXPECT_EQ(keysOf(model->dictionaryValue()), Keys{"text"});
}

TEST(Writing, OmitsTheUnsetIntegerOfAnyKindButNoOtherNumber) {
  const std::pair<Value, bool> rows[] = {
      {kUnsetInteger, false},
      {static_cast<std::uint64_t>(kUnsetInteger), false},
      {static_cast<std::uint64_t>(kUnsetInteger) + 1, true},
      {9223372036854775808.0, true},
      {Array({kUnsetInteger}), true},
      {Dictionary({{"n", kUnsetInteger}}), true},
  };
  for (const auto& [value, isWritten] : rows) {
    for (const char* property : {"text", "number", "any"}) {
      const auto model = make<ObjectModel>();
      model->setValueForKey(value, property);
      const Dictionary result = model->dictionaryValue();
      EXPECT_EQ(result.contains(property), isWritten) << property << describe(value);
      EXPECT_EQ(result[property], isWritten ? value : Value());
    }
  }
  const auto scalars = make<ScalarModel>();
  scalars->setWhole(kUnsetInteger);
  scalars->setNatural(static_cast<std::uint64_t>(kUnsetInteger));
  scalars->setReal(9223372036854775808.0);
  EXPECT_EQ(keysOf(scalars->dictionaryValue()), (Keys{"B", "i", "f", "d"}));
}

TEST(Writing, NamesTheClassOfEveryModelWhenAsked) {
  const auto model = modelFromJSON<NestingModel>(
      R"({"leaf": {"name": "a"}, "leaves": [[{}]], "free": {"klazz": "OrvantaPushStyle"},
          "list": [{"x": 1}], "deeper": {"leaf": {}}})");
  EXPECT_EQ(toJSON(model->dictionaryValueWithClassInfo()),
            R"({"leaf":{"name":"a","size":0,"klazz":"LeafModel"},)"
            R"("leaves":[[{"size":0,"klazz":"LeafModel"}]],)"
            R"("free":{"klazz":"OrvantaPushStyle"},"list":[{"x":1}],)"
            R"("deeper":{"leaf":{"size":0,"klazz":"LeafModel"},"klazz":"NestingModel"},)"
            R"("klazz":"NestingModel"})");
  EXPECT_EQ(toJSON(model->dictionaryValue()),
            R"({"leaf":{"name":"a","size":0},"leaves":[[{"size":0}]],"free":{},)"
            R"("list":[{"x":1}],"deeper":{"leaf":{"size":0}}})");
}

TEST(Writing, ConvertsOnlyTheModelsOfAnArray) {
  const Value url = *Url::parse("a");
  const Value date = Date{1};
  const Array array{make<LeafModel>(),
                    url,
                    date,
                    kUnsetInteger,
                    Value::null(),
                    Array({make<LeafModel>(), 1}),
                    Dictionary({{"m", make<LeafModel>()}})};
  const Array result = OrvantaBaseModel::JSONValidValueForArray(array, false);
  ASSERT_EQ(result.size(), array.size());
  EXPECT_EQ(result[0], Value(Dictionary({{"size", 0}})));
  EXPECT_EQ(result[5], Value(Array({Dictionary({{"size", 0}}), 1})));
  for (const std::size_t kept : {1U, 2U, 3U, 4U, 6U}) EXPECT_EQ(result[kept], array[kept]) << kept;
  EXPECT_EQ(result[6].dictionary()->begin()->value.kind(), Kind::object);
}

TEST(Writing, OmitsAPropertyWhoseGetterThrows) {
  RecordingPlatform platform;
  const auto model = make<FaultyGetterModel>();
  model->setFirst("a");
  model->setLast("b");
  EXPECT_EQ(toJSON(model->dictionaryValue()), R"({"first":"a","last":"b"})");
  EXPECT_TRUE(platform.log.empty());
}

TEST(Writing, FollowsPropertyPathsThroughNestedObjects) {
  const auto model = modelFromJSON<NestingModel>(R"({"leaf": {"name": "inner"}, "free": 5})");
  model->setKeyPathPropertyDictionary(
      {{"n", "leaf.name"}, {"x", "leaf.missing"}, {"y", "free.z"}, {"nil", "deeper.leaf"}});
  EXPECT_EQ(toJSON(model->dictionaryValue()), R"({"n":"inner"})");
}

TEST(Writing, ThreadsTakeTurnsAtOneObject) {
  const auto model = make<SelfWritingModel>();
  model->setName("n");
  conformance::runTogether([&] {
    for (int i = 0; i < 100; ++i) EXPECT_EQ(model->dictionaryValue()["entries"], Value(1));
  });
  EXPECT_EQ(model->timesCounted(), 400);
}

}  // namespace
}  // namespace orvanta::testing
