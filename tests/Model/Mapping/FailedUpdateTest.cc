#include <gtest/gtest.h>

#include <new>

#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "support/ModelHelpers.h"
#include "support/ModelZoo.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

TEST(FailedUpdate, IsLoggedWithDictionaryClassAndReason) {
  RecordingPlatform platform;
  EXPECT_FALSE(modelFromJSON<LeafModel>(R"({"size": null, "name": "a b"})"));
  ASSERT_EQ(platform.log.size(), 1U);
  EXPECT_EQ(platform.log.front(),
            "\n\n❗ -[OrvantaBaseModel updateWithDictionary:] (OrvantaBaseModel:81) ❗\n"
            "*** Caught exception deserializing dictionary '{\n"
            "    name = \"a b\";\n"
            "    size = \"<null>\";\n"
            "}' to class 'LeafModel' : "
            "-[NSNull longLongValue]: unrecognized selector sent to instance\n\n");
}

TEST(FailedUpdate, KeepsEarlierAssignmentsAndStopsReading) {
  for (const char* exception : {"known", "unknown key", "standard"}) {
    RecordingPlatform platform;
    const auto model = make<SetterModel>();
    const Dictionary payload{{"after", "c"}, {"text", exception}, {"before", "a"}};
    EXPECT_FALSE(model->updateWithDictionary(&payload)) << exception;
    EXPECT_EQ(model->before().get(), "a") << exception;
    EXPECT_FALSE(model->after().isPresent()) << exception;
  }
}

TEST(FailedUpdate, LogsEveryErrorExceptAnUndefinedKey) {
  // The reason in the log, empty where nothing is logged.
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"known", "known trouble"}, {"standard", "standard trouble"}, {"unknown key", ""}};
  for (const auto& [text, reason] : rows) {
    RecordingPlatform platform;
    EXPECT_FALSE(make<SetterModel>(Dictionary{{"text", text}})) << text;
    ASSERT_EQ(platform.log.size(), reason.empty() ? 0U : 1U) << text;
    if (!reason.empty()) {
      const std::string end = "' to class 'SetterModel' : " + std::string(reason) + "\n\n";
      EXPECT_TRUE(platform.log.front().ends_with(end)) << platform.log.front();
    }
  }
}

TEST(FailedUpdate, RethrowsOnlyBadAlloc) {
  RecordingPlatform platform;
  const Dictionary payload{{"text", "memory"}};
  EXPECT_THROW(make<SetterModel>(payload), std::bad_alloc);
  EXPECT_TRUE(platform.log.empty());
}

/// A model whose first initializer fails, and with it the others.
template <class M>
class Refusing : public M {
  bool init() override { return false; }
};

TEST(FailedUpdate, AFailedInitializerFailsThoseThatCallIt) {
  using Alert = OrvantaPushObjectAlert;
  EXPECT_FALSE(make<Refusing<Alert>>(&Alert::initWithString, "a"));
  using Request = OrvantaEventRequest;
  EXPECT_FALSE(make<Refusing<Request>>(&Request::initWithEventArray, Array()));
}

TEST(FailedUpdate, TruncatesAHugeDictionaryInTheLog) {
  RecordingPlatform platform;
  EXPECT_FALSE(make<LeafModel>(Dictionary{{"name", std::string(200000, 'x')}, {"size", Array()}}));
  ASSERT_EQ(platform.log.size(), 1U);
  const std::string& entry = platform.log.front();
  EXPECT_LT(entry.size(), 70000U);
  EXPECT_NE(entry.find("xxx …' to class 'LeafModel' : -[NSArray longLongValue]"),
            std::string::npos);
}

TEST(FailedUpdate, NeedsNoSystemLog) {
  Platform none;
  const PlatformOverride scope(none);
  EXPECT_FALSE(modelFromJSON<LeafModel>(R"({"size": null})"));
}

}  // namespace
}  // namespace orvanta::testing
