#include "NotificationService/ExtensionRun.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(Pipeline, SkipsMissingServicesAndDeliversTwiceAfterAFailedUpdate) {
  using Arrange = void (*)(FakePlatform&);
  const Arrange noUpdate = [](FakePlatform& p) { p.updateError = error("D", 1501); };
  const Arrange noCenter = [](FakePlatform& p) { p.absent = {"center"}; };
  const Arrange noFiles = [](FakePlatform& p) {
    p.absent = {"session", "files", "types", "attachments"};
  };
  const Arrange noImages = [](FakePlatform& p) { p.absent = {"images"}; };
  const Arrange noIntents = [](FakePlatform& p) { p.absent = {"intents"}; };
  const Arrange unimportant = [](FakePlatform& p) { p.absent = {"log", "clock", "bundle"}; };

  const std::string attached =
      "download https://m.example/a, move CFNetworkDownload_abc123.tmp, attach public.jpeg, ";
  const std::string encoded = "image star, encode 1, ";
  const std::string updated = encoded + "donate, update, ";
  const struct {
    std::vector<std::string_view> parts;
    Arrange arrange;
    std::string journal;
  } rows[] = {
      {{kMedia, kIcon}, noUpdate, attached + updated + "deliver media, deliver nothing"},
      // The registration never ends; payloads without buttons need no center.
      {{kButtons, kMedia, kIcon}, noCenter, ""},
      {{kMedia}, noCenter, attached + "deliver media"},
      {{kButtons, kMedia, kIcon}, noFiles, "read, write, " + updated + "deliver sender"},
      {{kMedia, kIcon}, noImages, attached + "deliver media"},
      {{kMedia, kIcon}, noIntents, attached + encoded + "deliver media"},
      {{kMedia, kIcon}, unimportant, attached + updated + "deliver media sender"},
  };
  const LogLevel silent(0);
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    ExtensionRun run;
    row.arrange(run.platform);
    run.receive(payloadWith(row.parts));
    run.platform.runAll();
    EXPECT_EQ(run.journal(), row.journal);
  }
}

TEST(Pipeline, ChangesAndDeliversItsOwnCopy) {
  for (const auto& parts : std::vector<std::vector<std::string_view>>{{}, {kButtons}, {kMedia}}) {
    ExtensionRun run;
    const auto original = run.receive(payloadWith(parts));
    run.platform.runAll();
    ASSERT_EQ(run.delivered.size(), 1U);
    EXPECT_EQ(run.delivered[0], run.extension->bestAttemptContent());
    EXPECT_NE(run.delivered[0], original);
    EXPECT_TRUE(original->attachments.empty());
    EXPECT_EQ(run.delivered[0]->title, "Ana");
    EXPECT_EQ(Value(run.delivered[0]->userInfo), Value(original->userInfo));
  }
}

TEST(Pipeline, ValuesOfAnotherKindCountAsAbsent) {
  constexpr std::string_view kUnchanged = "deliver";
  constexpr std::string_view kRegistered = "read, write, deliver";
  constexpr std::string_view kDownloaded = "download https://m.example/a, deliver";
  const std::pair<std::string_view, std::string_view> rows[] = {
      {R"({"aps": {}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": 5}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": ""}, "_ov": {"ia": [{"id": "buy"}]}})", kRegistered},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": []}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": {"id": "buy"}}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": ["buy", 5, null, [{"id": "buy"}]]}})",
       kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": ["buy", {}]}})", kRegistered},
      // Media: a value that is not a string makes the whole payload unreadable.
      {R"({"_ov": {"mu": "no URL", "ps": {"iospi": "moon"}}})", "image moon, deliver"},
      {R"({"_ov": {"mu": 5, "ps": {"iospi": "moon"}}})", kUnchanged},
      // Icon.
      {R"({"_ov": {"ps": {"iospi": ""}}})", "image , deliver"},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": {"iospi": 5}}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": "star"}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": [{"iospi": "star"}]}})", kDownloaded},
      // A part that is not a dictionary makes the payload unreadable.
      {R"({"aps": "text", "_ov": {"mu": "https://m.example/a"}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": "text"})", kUnchanged},
      {R"({"_ov": null})", kUnchanged},
  };
  const LogLevel silent(0);
  for (const auto& [payload, journal] : rows) {
    SCOPED_TRACE(payload);
    ExtensionRun run;
    run.platform.download.error = error("D", 1);
    run.receive(payload);
    run.platform.runAll();
    EXPECT_EQ(run.journal(), journal);
    ASSERT_EQ(run.delivered.size(), 1U);
    EXPECT_EQ(run.delivered[0], run.extension->bestAttemptContent());
    EXPECT_EQ(Value(run.delivered[0]->userInfo), Value(dictionaryFromJSON(payload)));
  }
}

TEST(Pipeline, StepsReadThePayloadOfTheBestAttempt) {
  ExtensionRun run;
  run.receive(payloadWith({kButtons, kMedia, kIcon}));
  auto& userInfo = run.extension->bestAttemptContent()->userInfo;
  userInfo =
      dictionaryFromJSON(R"({"_ov": {"mu": "https://m.example/other", "ps": {"iospi": "moon"}}})");
  run.platform.runNext();
  userInfo = dictionaryFromJSON(R"({"_ov": {"ps": {"iospi": "sun"}}})");
  run.platform.runAll();
  EXPECT_EQ(run.journal(),
            "read, write, download https://m.example/other, move CFNetworkDownload_abc123.tmp, "
            "attach public.jpeg, image sun, deliver media");
}

TEST(Pipeline, TheOriginalPayloadDecidesWhichStepsRun) {
  ExtensionRun run;
  const LogLevel silent(0);
  run.receive(payloadWith({kButtons, kMedia, kIcon}));
  run.extension->bestAttemptContent()->userInfo = {};
  run.platform.runAll();
  EXPECT_EQ(run.journal(), "read, write, download nothing, deliver");
}

// ---- Expiry ----------------------------------------------------------------

TEST(Pipeline, ExpiryDeliversTheBestAttemptAndPendingStepsDeliverAgain) {
  const std::string steps[] = {"read", "write, download https://m.example/a",
                               "move CFNetworkDownload_abc123.tmp, attach public.jpeg, image star, "
                               "encode 1, donate",
                               "update, deliver media sender"};
  for (std::size_t expiry = 0; expiry < 4; ++expiry) {
    SCOPED_TRACE(expiry);
    ExtensionRun run;
    run.receive(payloadWith({kButtons, kMedia, kIcon}));
    std::string journal = steps[0];
    for (std::size_t step = 0; step < 4; ++step) {
      if (step == expiry) {
        run.extension->serviceExtensionTimeWillExpire();
        EXPECT_EQ(run.delivered.back(), run.extension->bestAttemptContent());
        journal += step < 2 ? ", deliver" : ", deliver media";
      }
      if (step == 3) break;
      run.platform.runNext();
      journal += ", " + steps[step + 1];
    }
    EXPECT_EQ(run.journal(), journal);
  }
}

TEST(Pipeline, MediaAfterExpiryIsAttachedToTheDeliveredContent) {
  ExtensionRun run;
  run.receive(payloadWith({kMedia}));
  run.extension->serviceExtensionTimeWillExpire();
  run.platform.runAll();
  EXPECT_EQ(run.journal().substr(0, 38), "download https://m.example/a, deliver,");
  ASSERT_EQ(run.delivered.size(), 2U);
  EXPECT_EQ(run.delivered[0], run.delivered[1]);
  EXPECT_EQ(run.delivered[0]->attachments.size(), 1U);
}

TEST(Pipeline, ExpiryBeforeAnyRequestIsOnlyLogged) {
  const LogLevel all(2);
  ExtensionRun run;
  run.extension->serviceExtensionTimeWillExpire();
  EXPECT_EQ(run.journal(), "");
  EXPECT_EQ(run.platform.log,
            std::vector<std::string>{
                "\n\n🦋 -[OrvantaNotificationServiceExtension serviceExtensionTimeWillExpire] "
                "(OrvantaNotificationServiceExtension:222) 🦋\nTimeout!!\n\n"});
  OrvantaLogger::setLogLevel(1);
  run.extension->serviceExtensionTimeWillExpire();
  EXPECT_EQ(run.platform.log.size(), 1U);
}

TEST(Pipeline, WithoutARequestDeliversNothing) {
  ExtensionRun run;
  const LogLevel silent(0);
  const auto object = modelFromJSON<OrvantaPushObject>(payloadWith({kMedia, kIcon}));
  run.extension->updateNotificationContent(run.handler(), object);
  run.platform.runAll();
  EXPECT_EQ(run.journal(), "download nothing, deliver nothing");
}

// ---- One instance, its requests and its life --------------------------------

TEST(Pipeline, AStepOfAnEarlierRequestReadsTheBestAttemptOfALaterOne) {
  const struct {
    std::vector<std::string_view> parts;
    bool firstGetsLater;  // instead of its own content
  } rows[] = {
      {{kButtons}, true},
      {{kMedia}, false},
      {{kMedia, kIcon}, true},
      {{kIcon}, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(payloadWith(row.parts));
    ExtensionRun run;
    run.receive(payloadWith(row.parts), run.handler("first"));
    const auto earlier = run.extension->bestAttemptContent();
    run.original.title = "Zoe";
    run.receive("{}", run.handler("second"));
    const auto later = run.extension->bestAttemptContent();
    ASSERT_EQ(run.delivered.size(), 1U);
    EXPECT_EQ(run.delivered[0], later);
    run.platform.runAll();
    ASSERT_EQ(run.delivered.size(), 2U);
    EXPECT_EQ(run.platform.calls.back().substr(0, 5), "first");
    EXPECT_EQ(run.delivered[1]->title, row.firstGetsLater ? "Zoe" : "Ana");
    EXPECT_EQ(run.delivered[1] == later, row.firstGetsLater);
    const bool hasMedia = row.parts[0] == kMedia;
    EXPECT_EQ(earlier->attachments.size(), hasMedia ? 1U : 0U);
    EXPECT_TRUE(later->attachments.empty());
    run.extension->serviceExtensionTimeWillExpire();
    EXPECT_EQ(run.platform.calls.back(), "second");
  }
}

TEST(Pipeline, PendingStepsKeepTheExtensionAlive) {
  const std::weak_ptr<OrvantaNotificationServiceExtension> weak = [] {
    ExtensionRun run;
    run.receive(payloadWith({kButtons, kMedia, kIcon}));
    std::weak_ptr<OrvantaNotificationServiceExtension> extension = run.extension;
    run.extension.reset();
    for (int step = 0; step < 3; ++step) {
      EXPECT_FALSE(extension.expired()) << step;
      run.platform.runNext();
    }
    EXPECT_TRUE(extension.expired());
    EXPECT_EQ(run.delivered.size(), 1U);
    return extension;
  }();
  EXPECT_TRUE(weak.expired());
}

TEST(Pipeline, ReferencesTheCenterWeakly) {
  ExtensionRun run;
  run.receive(payloadWith({}));
  EXPECT_EQ(run.extension->notificationCenter(), run.platform.center);
  run.platform.center.reset();
  EXPECT_EQ(run.extension->notificationCenter(), nullptr);
}

}  // namespace
}  // namespace orvanta::testing
