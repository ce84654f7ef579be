#include <gtest/gtest.h>

#include <thread>

#include "orvanta/Model/Mapping/RefusalRecorder.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

/// The reason why a new model rejects a JSON string, or "accepted".
template <class M>
std::string rejectionOf(std::string_view json) {
  const RefusalRecorder recorder;
  const LogLevel silent(0);
  std::string end;
  try {
    if (modelFromJSON<M>(json)) end = "accepted";
  } catch (const Exception&) {
    end = " [thrown]";
  }
  return recorder.refusal() ? recorder.refusal()->description() + end : end;
}

TEST(RefusalRecorder, ReportsPathKindAndReason) {
  EXPECT_EQ(rejectionOf<ScalarModel>(R"({"i": null, "q": null})"),
            "ScalarModel \"i\" (narrow): null, but a number is read from numbers and text only");
  EXPECT_EQ(rejectionOf<DottedModel>(R"({"a": {"b": 1.5}})"),
            "DottedModel \"a.b.c\" (deep): a fraction, which has no key \"c\"");
  EXPECT_EQ(rejectionOf<DottedModel>(R"({"a": [{"b": {}}, {"b": "text"}, {"b": true}]})"),
            "DottedModel \"a.b.c\" (deep): a string, which has no key \"c\"");
}

TEST(RefusalRecorder, ReportsAMissingProperty) {
  const RefusalRecorder recorder;
  const auto model = make<LeafModel>();
  model->setKeyPathPropertyDictionary({{"x", "missing"}});
  EXPECT_FALSE(updateFromJSON(*model, R"({"x": {}})"));
  ASSERT_TRUE(recorder.refusal());
  EXPECT_EQ(recorder.refusal()->description(),
            "LeafModel \"x\" (missing): a dictionary, "
            "for a property that the class does not have");
}

TEST(RefusalRecorder, ReportsThePathThroughModelsAndArrays) {
  EXPECT_EQ(rejectionOf<NestingModel>(R"({"leaves": [{}, [{"size": {}}]]})"),
            "NestingModel \"leaves\" (leaves) > LeafModel \"size\" (size): a dictionary, "
            "but a number is read from numbers and text only");
}

TEST(RefusalRecorder, RecordsNothingWhenTheUpdateSucceeds) {
  EXPECT_EQ(rejectionOf<ScalarModel>(R"({"i": 5})"), "accepted");
  EXPECT_EQ(rejectionOf<NestingModel>(R"({"leaf": {"size": null}})"), "accepted");
  EXPECT_EQ(rejectionOf<NestingModel>(R"({"deeper": {"leaves": [{"size": null}]}})"), "accepted");
}

TEST(RefusalRecorder, AfterAResetReportsTheNextUpdate) {
  const LogLevel silent(0);
  RefusalRecorder recorder;
  const auto model = make<ScalarModel>();
  ASSERT_TRUE(model);
  EXPECT_FALSE(updateFromJSON(*model, R"({"i": null})"));
  recorder.reset();
  EXPECT_FALSE(updateFromJSON(*model, R"({"q": []})"));
  ASSERT_TRUE(recorder.refusal());
  EXPECT_EQ(recorder.refusal()->kind, "an array");
  recorder.reset();
  EXPECT_TRUE(updateFromJSON(*model, R"({"q": 1})"));
  EXPECT_FALSE(recorder.refusal());
}

TEST(RefusalRecorder, OnlyTheInnermostRecorderOfTheThreadRecords) {
  const LogLevel silent(0);
  RefusalRecorder outer;
  {
    const RefusalRecorder inner;
    EXPECT_FALSE(modelFromJSON<LeafModel>(R"({"size": null})"));
    EXPECT_TRUE(inner.refusal());
  }
  EXPECT_FALSE(outer.refusal());
  std::thread([] { EXPECT_FALSE(modelFromJSON<LeafModel>(R"({"size": null})")); }).join();
  EXPECT_FALSE(outer.refusal());
  EXPECT_FALSE(modelFromJSON<LeafModel>(R"({"size": null})"));
  EXPECT_TRUE(outer.refusal());
  outer.reset();
  EXPECT_FALSE(outer.refusal());
}

TEST(RefusalRecorder, ReportsWhyAnAlertHasNoModel) {
  EXPECT_EQ(rejectionOf<OrvantaPushObject>(
                R"({"aps": {"alert": {"title": [{"klazz": "OrvantaUserNotificationAction",
                                                 "actM": null}]}},
                    "_ov": {"act": {"uri": "a"}}})"),
            "OrvantaPushObject \"aps.alert\" (alert) > OrvantaPushObjectAlert \"title\" (title) > "
            "OrvantaUserNotificationAction \"actM\" (activationMode): null, "
            "but a number is read from numbers and text only");
}

}  // namespace
}  // namespace orvanta::testing
