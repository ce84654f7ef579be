#include <gtest/gtest.h>

#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

/// "LeafModel" and the like for a model, the name of the kind for anything else.
std::string_view classOrKind(const Value& value) {
  return value.object() != nullptr ? value.className() : value.kindName();
}

TEST(NestedModel, DeclaredClassBeatsKlazzAndKlazzBeatsNothing) {
  const struct {
    std::string_view json;
    std::string_view property;
    std::string_view className;
  } rows[] = {
      {R"({"leaf": {"klazz": "OrvantaPushStyle"}})", "leaf", "LeafModel"},
      {R"({"free": {"klazz": "OrvantaPushStyle"}})", "free", "OrvantaPushStyle"},
      {R"({"free": {}})", "free", "a dictionary"},
      // Only a string that names a model class of the library counts.
      {R"({"free": {"klazz": "NSString"}})", "free", "a dictionary"},
      {R"({"free": {"klazz": "orvantapushstyle"}})", "free", "a dictionary"},
      {R"({"free": {"klazz": {"klazz": "OrvantaPushStyle"}}})", "free", "a dictionary"},
      // A declared class applies to every value of the property.
      {R"({"leaf": [{}]})", "leaf", "an array"},
      {R"({"leaves": {}})", "leaves", "LeafModel"},
  };
  for (const auto& row : rows) {
    const auto model = modelFromJSON<NestingModel>(row.json);
    ASSERT_TRUE(model) << row.json;
    EXPECT_EQ(classOrKind(model->valueForKey(row.property)), row.className) << row.json;
  }
}

TEST(NestedModel, ArraysKeepOrderAndCountAndAreConvertedAtEveryDepth) {
  const auto model = modelFromJSON<NestingModel>(
      R"({"leaves": [{"name": "a"}, 5, [{"name": "b"}, [{"name": "c"}], null], {"name": "d"}],
          "list": [{"klazz": "OrvantaPushStyle"}, {"x": 1}, [{"klazz": "OrvantaPushStyle"}]]})");
  ASSERT_TRUE(model);
  const Array& leaves = *model->leaves().get();
  ASSERT_EQ(leaves.size(), 4U);
  const auto name = [](const Value& leaf) { return leaf.as<LeafModel>()->name().get(); };
  EXPECT_EQ(name(leaves[0]), "a");
  EXPECT_EQ(leaves[1], Value(5));
  const Array& inner = *leaves[2].array();
  EXPECT_EQ(name(inner[0]), "b");
  EXPECT_EQ(name((*inner[1].array())[0]), "c");
  EXPECT_TRUE(inner[2].isNull());
  EXPECT_EQ(name(leaves[3]), "d");

  const auto nested =
      modelFromJSON<NestingModel>(R"({"leaves": [[{"name": "only arrays here"}]]})");
  EXPECT_EQ(classOrKind((*(*nested->leaves().get())[0].array())[0]), "LeafModel");

  const Array& list = *model->list().get();
  EXPECT_EQ(classOrKind(list[0]), "OrvantaPushStyle");
  EXPECT_EQ(classOrKind(list[1]), "a dictionary");
  EXPECT_EQ(classOrKind((*list[2].array())[0]), "OrvantaPushStyle");
  const Dictionary plain = dictionaryFromJSON(R"({"list": [{"x": 1}, [2]]})");  // then it is shared
  EXPECT_EQ(make<NestingModel>(plain)->list().get()->begin(), plain["list"].array()->begin());
}

TEST(NestedModel, AModelThatFailsToUpdateBecomesNil) {
  const auto model = modelFromJSON<NestingModel>(R"({"leaf": {"name": "old"}, "deeper": {}})");
  RecordingPlatform platform;
  EXPECT_TRUE(updateFromJSON(*model, R"({"leaf": {"size": null}, "list": [1]})"));
  EXPECT_FALSE(model->leaf().isPresent());
  EXPECT_EQ(platform.log.size(), 1U);  // of the leaf
  EXPECT_TRUE(model->list().isPresent());

  EXPECT_TRUE(updateFromJSON(*model, R"({"deeper": {"leaves": [{"size": null}]}})"));
  EXPECT_FALSE(model->deeper().isPresent());
}

TEST(NestedModel, AnElementThatFailsEndsTheUpdate) {
  RecordingPlatform platform;
  const auto model = make<NestingModel>();
  ASSERT_TRUE(model);
  EXPECT_FALSE(
      updateFromJSON(*model, R"({"leaves": [{}, {"size": null}], "free": 1, "leaf": {}})"));
  EXPECT_TRUE(model->leaf().isPresent());
  EXPECT_FALSE(model->leaves().isPresent());
  EXPECT_FALSE(model->free().isPresent());
  ASSERT_EQ(platform.log.size(), 2U);  // of the element, then of its owner
  EXPECT_NE(platform.log[0].find("to class 'LeafModel'"), std::string::npos);
  EXPECT_NE(platform.log[1].find("to class 'NestingModel' : "
                                 "*** -[__NSArrayM insertObject:atIndex:]: object cannot be nil"),
            std::string::npos);
}

TEST(NestedModel, NestingIsLimitedAndOmitsOnlyTheInnermostModels) {
  constexpr auto kMax = OrvantaBaseModel::kMaxNestedModels;
  for (const std::size_t models : {kMax, kMax + 1}) {
    RecordingPlatform platform;
    const auto outermost =
        modelFromJSON<NestingModel>(nested(models - 1, R"({"deeper": )", "}", R"({"free": 1})"));
    ASSERT_TRUE(outermost);
    std::size_t count = 1;
    for (const NestingModel* at = outermost.get(); at->deeper().get() != nullptr; ++count) {
      at = at->deeper().get();
    }
    EXPECT_EQ(count, kMax);
    EXPECT_EQ(platform.log.size(), models - kMax);
  }
}

TEST(NestedModel, TheNumberOfModelsInOneDictionaryIsLimited) {
  constexpr auto kMax = OrvantaBaseModel::kMaxModels;
  for (const std::size_t models : {kMax, kMax + 1}) {
    RecordingPlatform platform;
    Array leaves;
    while (leaves.size() + 1 < models) leaves.append(Dictionary());
    const RefusalRecorder recorder;
    const auto owner = make<NestingModel>(Dictionary{{"leaves", leaves}});
    EXPECT_EQ(!owner, models > kMax);
    EXPECT_EQ(recorder.refusal() ? recorder.refusal()->description() : "accepted",
              models > kMax ? R"(NestingModel "leaves" (leaves) > LeafModel: a dictionary, )"
                              "too many models in one dictionary"
                            : "accepted");
    EXPECT_EQ(platform.log.size(), models > kMax ? 2U : 0U);
    EXPECT_TRUE(modelFromJSON<NestingModel>(R"({"leaves": [{}]})"));  // each update counts anew
  }
}

// Each push object reads its action twice, so every level doubles the work: without a limit a
// payload of 4 KB takes ten seconds, one of 240 KB minutes.
TEST(NestedModel, PushesInsideActionsTakeBoundedTime) {
  for (const std::size_t elements : {std::size_t{1}, OrvantaBaseModel::kMaxArrayElements / 1000}) {
    RecordingPlatform platform;
    std::string text = R"({"klazz":"OrvantaPushObject","_ov":[[)";
    for (std::size_t i = 0; i < elements; ++i) text += "{},";
    text += "{}]]}";
    for (int level = 0; level < 20; ++level) {
      text =
          R"({"klazz":"OrvantaPushObject","_ov":{"act":{"klazz":"OrvantaPushObjectAction","uri":)" +
          text + "}}}";
    }
    modelFromJSON<OrvantaPushObject>(text);
    EXPECT_LT(platform.log.size(), 3 * OrvantaBaseModel::kMaxModelsNamedByPayload) << elements;
  }
}

TEST(NestedModel, AnUndefinedKeyInAnInitializerFailsTheOwnerSilently) {
  RecordingPlatform platform;
  const auto holder = make<PushHolderModel>();
  ASSERT_TRUE(holder);
  EXPECT_FALSE(updateFromJSON(*holder, R"({"push": {"aps": 1}, "after": "x"})"));
  EXPECT_FALSE(holder->after().isPresent());
  EXPECT_TRUE(platform.log.empty());
  EXPECT_TRUE(updateFromJSON(*holder, R"({"push": {"_ov": {"mu": 5}}, "after": "x"})"));
  EXPECT_FALSE(holder->push().isPresent());
}

}  // namespace
}  // namespace orvanta::testing
