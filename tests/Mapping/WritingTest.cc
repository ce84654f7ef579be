#include <gtest/gtest.h>

#include <limits>

#include "support/ModelZoo.h"

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
  const auto model = made<ScalarModel>(R"({"B": 2, "i": -3, "q": -4, "d": 0.5, "f": 0.5})");
  model->setNatural(std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(written(model->dictionaryValue()),
            R"({"B":true,"i":-3,"q":-4,"Q":18446744073709551615,"f":0.5,"d":0.5})");
  EXPECT_EQ(model->dictionaryValue()["B"].kind(), Kind::boolean);
  EXPECT_EQ(model->dictionaryValue()["f"].kind(), Kind::real32);
  EXPECT_EQ(written(make<ScalarModel>()->dictionaryValue()),
            R"({"B":false,"i":0,"q":0,"Q":0,"f":0,"d":0})");
}

TEST(Writing, ConvertsBackWhatReadingConverted) {
  const char* text = R"({"text":"t","url":"https:\/\/e.com\/a","date":1500,"any":null})";
  const auto model = made<ObjectModel>(text);
  EXPECT_EQ(model->date().get(), Date{1.5});
  EXPECT_EQ(written(model->dictionaryValue()), text);
}

TEST(Writing, TruncatesDatesToWholeMilliseconds) {
  const struct {
    double seconds;
    std::int64_t milliseconds;
  } rows[] = {{1.5, 1500}, {0.0019, 1}, {-0.0019, -1}, {1e300, kUnsetInteger}};
  for (const auto& row : rows) {
    const auto model = make<ObjectModel>();
    model->setValueForKey(Date{row.seconds}, "date");
    const Value value = model->dictionaryValue()["date"];
    EXPECT_EQ(value, Value(row.milliseconds)) << row.seconds;
    EXPECT_EQ(value.kind(), Kind::integer);
  }
}

TEST(Writing, LeavesOutNilAndWhatAConverterRefuses) {
  EXPECT_TRUE(make<ObjectModel>()->dictionaryValue().empty());
  const auto model = make<ObjectModel>();
  model->setValueForKey(5, "url");
  model->setValueForKey(Array(), "date");
  model->setText("t");
  EXPECT_EQ(keysOf(model->dictionaryValue()), Keys{"text"});
  model->setValueForKey("no URL", "url");  // of which the converter makes nil
  EXPECT_EQ(keysOf(model->dictionaryValue()), Keys{"text"});
}

TEST(Writing, KeepsOtherKindsAsTheyStand) {
  const auto model = make<ObjectModel>();
  model->setValueForKey(5, "text");
  model->setValueForKey(Value::null(), "number");
  model->setValueForKey(*Url::parse("a"), "any");  // no URL property, so no text is made of it
  model->setModel(LeafModel::classObject());
  const Dictionary result = model->dictionaryValue();
  EXPECT_EQ(result["text"], Value(5));
  EXPECT_TRUE(result["number"].isNull());
  EXPECT_EQ(result["any"].kind(), Kind::url);
  EXPECT_EQ(result["class"], Value(&LeafModel::classObject()));
}

TEST(Writing, LeavesOutTheUnsetIntegerOfAnyKindButNoOtherNumber) {
  const struct {
    Value value;
    bool isWritten;
  } rows[] = {
      {kUnsetInteger, false},
      {static_cast<std::uint64_t>(kUnsetInteger), false},
      {kUnsetInteger - 1, true},
      {static_cast<std::uint64_t>(kUnsetInteger) + 1, true},
      {9223372036854775808.0, true},
      {-kUnsetInteger - 1, true},
      {"9223372036854775807", true},
      {Array({kUnsetInteger}), true},
      {Dictionary({{"n", kUnsetInteger}}), true},
  };
  for (const auto& row : rows) {
    for (const char* property : {"text", "number", "any"}) {
      const auto model = make<ObjectModel>();
      model->setValueForKey(row.value, property);
      const Dictionary result = model->dictionaryValue();
      EXPECT_EQ(result.contains(property), row.isWritten) << property << describe(row.value);
      EXPECT_EQ(result[property], row.isWritten ? row.value : Value());
    }
  }
  const auto scalars = make<ScalarModel>();
  scalars->setWhole(kUnsetInteger);
  scalars->setNatural(static_cast<std::uint64_t>(kUnsetInteger));
  scalars->setReal(9223372036854775808.0);
  EXPECT_EQ(keysOf(scalars->dictionaryValue()), (Keys{"B", "i", "f", "d"}));
}

TEST(Writing, ADottedKeyIsOneFlatKey) {
  const auto model = made<DottedModel>(R"({"aps": {"sound": "s"}, "a": {"b": {"c": 1}}})");
  EXPECT_EQ(written(model->dictionaryValue()),
            R"({"aps.sound":"s","aps.badge":0,"a.b.c":1,"a.b":{"c":1}})");
}

TEST(Writing, FollowsTheTablesFromTheMostDerivedClassOn) {
  const auto model = made<DescendantModel>(R"({"k": "a", "own": "b", "s": 1})");
  model->setOverruled("not written");
  EXPECT_EQ(written(model->dictionaryValueWithClassInfo()),
            R"({"own":"b","k":"a","s":1,"code":"overridden","klazz":"DescendantModel"})");
}

TEST(Writing, NamesTheClassOfEveryModelWhenAsked) {
  const auto model = made<NestingModel>(
      R"({"leaf": {"name": "a"}, "leaves": [{}, [{}]], "free": {"klazz": "OrvantaPushStyle"},
          "list": [{"x": 1}], "deeper": {"leaf": {}}})");
  EXPECT_EQ(written(model->dictionaryValueWithClassInfo()),
            R"({"leaf":{"name":"a","size":0,"klazz":"LeafModel"},)"
            R"("leaves":[{"size":0,"klazz":"LeafModel"},[{"size":0,"klazz":"LeafModel"}]],)"
            R"("free":{"klazz":"OrvantaPushStyle"},"list":[{"x":1}],)"
            R"("deeper":{"leaf":{"size":0,"klazz":"LeafModel"},"klazz":"NestingModel"},)"
            R"("klazz":"NestingModel"})");
  EXPECT_EQ(written(model->dictionaryValue()),
            R"({"leaf":{"name":"a","size":0},"leaves":[{"size":0},[{"size":0}]],"free":{},)"
            R"("list":[{"x":1}],"deeper":{"leaf":{"size":0}}})");
}

TEST(Writing, ArraysLoseTheirModelsAndNothingElse) {
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

TEST(Writing, AGetterThatThrowsIsLeftOut) {
  RecordingPlatform platform;
  const auto model = make<FaultyGetterModel>();
  model->setFirst("a");
  model->setLast("b");
  EXPECT_EQ(written(model->dictionaryValue()), R"({"first":"a","last":"b"})");
  EXPECT_TRUE(platform.log.empty());
}

TEST(Writing, APropertyPathIsReadThroughNestedObjects) {
  const auto model = made<NestingModel>(R"({"leaf": {"name": "inner"}, "free": 5})");
  model->setKeyPathPropertyDictionary(
      {{"n", "leaf.name"}, {"x", "leaf.missing"}, {"y", "free.z"}, {"nil", "deeper.leaf"}});
  EXPECT_EQ(written(model->dictionaryValue()), R"({"n":"inner"})");
}

TEST(Writing, ComputedPropertiesAreReadThroughTheirGetters) {
  const auto model = make<ComputedModel>();
  model->setHalf(1.5);
  EXPECT_EQ(written(model->dictionaryValue()), R"({"half":1.5,"twice":3})");
}

TEST(Writing, AnObjectCanWriteItselfWhileItIsWritten) {
  const auto model = make<SelfWritingModel>();
  model->setName("n");
  EXPECT_EQ(written(model->dictionaryValue()), R"({"name":"n","entries":1})");
}

TEST(Writing, ThreadsTakeTurnsAtOneObject) {
  const auto model = make<SelfWritingModel>();
  model->setName("n");
  runTogether([&] {
    for (int i = 0; i < 100; ++i) EXPECT_EQ(model->dictionaryValue()["entries"], Value(1));
  });
  EXPECT_EQ(model->timesCounted(), 400);
}

}  // namespace
}  // namespace orvanta::testing
