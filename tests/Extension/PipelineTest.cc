#include "Extension/ExtensionRun.h"

namespace orvanta::testing {
namespace {

TEST(Pipeline, TakesEveryStepInOrderAndDeliversWhateverGoesWrong) {
  using Arrange = void (*)(FakePlatform&);
  const Arrange asItIs = [](FakePlatform&) {};
  const Arrange noDownload = [](FakePlatform& p) { p.download.error = error("D", -1009); };
  const Arrange noMove = [](FakePlatform& p) {
    p.files["/caches/CFNetworkDownload_abc123.tmp"] = 1;
  };
  const Arrange noAttachment = [](FakePlatform& p) { p.attachmentError = error("D", 102); };
  const Arrange noPicture = [](FakePlatform& p) { p.pictures.clear(); };
  const Arrange noJPEG = [](FakePlatform& p) { p.encodes = false; };
  const Arrange older = [](FakePlatform& p) { p.version = {14, 8, 1}; };
  const Arrange first = [](FakePlatform& p) { p.version = {15, 0, 0}; };
  const Arrange noDonation = [](FakePlatform& p) { p.donationError = error("D", 1900); };
  const Arrange noUpdate = [](FakePlatform& p) { p.updateError = error("D", 1501); };
  const Arrange noCenter = [](FakePlatform& p) { p.absent = {"center"}; };
  const Arrange noFiles = [](FakePlatform& p) {
    p.absent = {"session", "files", "types", "attachments"};
  };
  const Arrange noImages = [](FakePlatform& p) { p.absent = {"images"}; };
  const Arrange noIntents = [](FakePlatform& p) { p.absent = {"intents"}; };
  const Arrange unimportant = [](FakePlatform& p) { p.absent = {"log", "clock", "bundle"}; };

  const std::string registered = "read, write, ";
  const std::string downloaded = "download https://m.example/a, ";
  const std::string moved = downloaded + "move CFNetworkDownload_abc123.tmp, ";
  const std::string attached = moved + "attach public.jpeg, ";
  const std::string encoded = "image star, encode 1, ";
  const std::string donated = encoded + "donate, ";
  const std::string updated = donated + "update, ";
  const struct {
    std::vector<std::string_view> parts;
    Arrange arrange;
    std::string journal;
  } rows[] = {
      {{}, asItIs, "deliver"},
      {{kButtons}, asItIs, registered + "deliver"},
      {{kMedia}, asItIs, attached + "deliver media"},
      {{kIcon}, asItIs, updated + "deliver sender"},
      {{kButtons, kMedia}, asItIs, registered + attached + "deliver media"},
      {{kButtons, kIcon}, asItIs, registered + updated + "deliver sender"},
      {{kMedia, kIcon}, asItIs, attached + updated + "deliver media sender"},
      {{kButtons, kMedia, kIcon}, asItIs, registered + attached + updated + "deliver media sender"},
      {{kMedia}, noDownload, downloaded + "deliver"},
      {{kMedia}, noMove, moved + "deliver"},
      {{kMedia}, noAttachment, attached + "deliver"},
      {{kMedia, kIcon}, noDownload, downloaded + updated + "deliver sender"},
      {{kMedia, kIcon}, noMove, moved + updated + "deliver sender"},
      {{kMedia, kIcon}, noAttachment, attached + updated + "deliver sender"},
      {{kIcon}, noPicture, "image star, deliver"},
      {{kIcon}, noJPEG, encoded + "deliver"},
      {{kIcon}, older, encoded + "deliver"},
      {{kIcon}, first, updated + "deliver sender"},
      {{kIcon}, noDonation, donated + "deliver"},
      {{kIcon}, noUpdate, updated + "deliver, deliver nothing"},
      {{kMedia, kIcon}, noPicture, attached + "image star, deliver media"},
      {{kMedia, kIcon}, noJPEG, attached + encoded + "deliver media"},
      {{kMedia, kIcon}, older, attached + encoded + "deliver media"},
      {{kMedia, kIcon}, noDonation, attached + donated + "deliver media"},
      {{kMedia, kIcon}, noUpdate, attached + updated + "deliver media, deliver nothing"},
      // A registration that never ends; other payloads do without a center.
      {{kButtons, kMedia, kIcon}, noCenter, ""},
      {{kMedia}, noCenter, attached + "deliver media"},
      {{kButtons, kMedia, kIcon}, noFiles, registered + updated + "deliver sender"},
      {{kMedia}, noFiles, "deliver"},
      {{kMedia, kIcon}, noImages, attached + "deliver media"},
      {{kMedia, kIcon}, noIntents, attached + encoded + "deliver media"},
      {{kButtons, kMedia, kIcon},
       unimportant,
       registered + attached + updated + "deliver media sender"},
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

TEST(Pipeline, EachStepWaitsForTheOneBefore) {
  ExtensionRun run;
  run.receive(payloadWith({kButtons, kMedia, kIcon}));
  for (const char* const name : {"categories", "download", "donation"}) {
    EXPECT_EQ(run.platform.pending(), std::vector<std::string>{name});
    EXPECT_TRUE(run.delivered.empty());
    run.platform.runNext();
  }
  EXPECT_TRUE(run.platform.pending().empty());
  EXPECT_EQ(run.delivered.size(), 1U);
}

TEST(Pipeline, ChangesItsOwnCopyAndHandsThatOver) {
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

TEST(Pipeline, ACommunicationNotificationIsAContentOfItsOwn) {
  ExtensionRun run;
  run.receive(payloadWith({kMedia, kIcon}));
  run.platform.runAll();
  ASSERT_EQ(run.delivered.size(), 1U);
  EXPECT_NE(run.delivered[0], run.extension->bestAttemptContent());
  EXPECT_FALSE(run.extension->bestAttemptContent()->communication);
  EXPECT_EQ(run.delivered[0]->attachments, run.extension->bestAttemptContent()->attachments);
  EXPECT_EQ(run.delivered[0]->communication, (UNCommunication{"Ana", true, std::nullopt, false}));
}

TEST(Pipeline, ValuesOfAnotherKindCountAsAbsent) {
  constexpr std::string_view kUnchanged = "deliver";
  constexpr std::string_view kRegistered = "read, write, deliver";
  constexpr std::string_view kDownloaded = "download https://m.example/a, deliver";
  const struct {
    std::string_view payload;
    std::string_view journal;
  } rows[] = {
      {R"({})", kUnchanged},
      {R"({"aps": {}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": 5}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": null}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": ["offer"]}, "_ov": {"ia": [{"id": "buy"}]}})", kUnchanged},
      {R"({"aps": {"category": ""}, "_ov": {"ia": [{"id": "buy"}]}})", kRegistered},
      {R"({"aps": {"category": "offer"}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": []}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": null}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": "buy"}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": {"id": "buy"}}})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": ["buy", 5, null, [{"id": "buy"}]]}})",
       kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": {"ia": ["buy", {}]}})", kRegistered},
      // the media; a value that is no text makes the whole payload unreadable
      {R"({"_ov": {"mu": "https://m.example/a"}})", kDownloaded},
      {R"({"_ov": {"mu": "no URL", "ps": {"iospi": "moon"}}})", "image moon, deliver"},
      {R"({"_ov": {"mu": "%zz"}})", kUnchanged},
      {R"({"_ov": {"mu": null, "ps": {"iospi": "moon"}}})", kUnchanged},
      {R"({"_ov": {"mu": 5, "ps": {"iospi": "moon"}}})", kUnchanged},
      // the icon
      {R"({"_ov": {"ps": {"iospi": ""}}})", "image , deliver"},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": {"iospi": null}}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": {"iospi": 5}}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": {}}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": "star"}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": null}})", kDownloaded},
      {R"({"_ov": {"mu": "https://m.example/a", "ps": [{"iospi": "star"}]}})", kDownloaded},
      // nothing is read from what should be a dictionary and is none
      {R"({"aps": "text", "_ov": {"mu": "https://m.example/a"}})", kUnchanged},
      {R"({"aps": null, "_ov": {"mu": "https://m.example/a"}})", kUnchanged},
      {R"({"aps": 5})", kUnchanged},
      {R"({"aps": {"category": "offer"}, "_ov": "text"})", kUnchanged},
      {R"({"_ov": null})", kUnchanged},
      {R"({"_ov": 5})", kUnchanged},
  };
  const LogLevel silent(0);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.payload);
    ExtensionRun run;
    run.platform.download.error = error("D", 1);
    run.receive(row.payload);
    run.platform.runAll();
    EXPECT_EQ(run.journal(), row.journal);
    ASSERT_EQ(run.delivered.size(), 1U);
    EXPECT_EQ(run.delivered[0], run.extension->bestAttemptContent());
    EXPECT_EQ(Value(run.delivered[0]->userInfo), Value(dictionaryOf(row.payload)));
  }
}

TEST(Pipeline, RegistersTheButtonsOfThePayloadBesideTheFixedOnes) {
  ExtensionRun run;
  run.platform.center->registered.insert({"app", {}});
  run.receive(
      R"({"aps": {"category": "offer"}, "_ov": {"ia": ["x", {"id": "a"}, {"id": "b", "text": "B"}]}})");
  run.platform.runAll();
  ASSERT_EQ(run.platform.center->written.size(), 1U);
  std::string registered;
  for (const UNNotificationCategory& category : run.platform.center->written[0]) {
    registered += category.identifier + "(";
    for (const auto& action : category.actions) registered += action->identifier() + " ";
    registered += ") ";
  }
  EXPECT_EQ(registered, "app() OrvantaCarousel(forward goToApp ) OrvantaGeneral() offer(a b ) ");
}

TEST(Pipeline, StepsReadThePayloadOfTheBestAttempt) {
  ExtensionRun run;
  run.receive(payloadWith({kButtons, kMedia, kIcon}));
  auto& userInfo = run.extension->bestAttemptContent()->userInfo;
  userInfo = dictionaryOf(R"({"_ov": {"mu": "https://m.example/other", "ps": {"iospi": "moon"}}})");
  run.platform.runNext();
  userInfo = dictionaryOf(R"({"_ov": {"ps": {"iospi": "sun"}}})");
  run.platform.runAll();
  EXPECT_EQ(run.journal(),
            "read, write, download https://m.example/other, move CFNetworkDownload_abc123.tmp, "
            "attach public.jpeg, image sun, deliver media");
}

TEST(Pipeline, WhatIsDoneAtAllIsDecidedByThePayloadAsItCame) {
  ExtensionRun run;
  const LogLevel silent(0);
  run.receive(payloadWith({kButtons, kMedia, kIcon}));
  run.extension->bestAttemptContent()->userInfo = {};
  run.platform.runAll();
  EXPECT_EQ(run.journal(), "read, write, download nothing, deliver");
}

// ---- Expiry ----------------------------------------------------------------

TEST(Pipeline, ExpiryDeliversWhatThereIsAndPendingStepsDeliverOnceMore) {
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

TEST(Pipeline, MediaThatComesAfterExpiryLandsOnTheDeliveredContent) {
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

TEST(Pipeline, WithoutARequestThereIsNothingToReadOrDeliver) {
  ExtensionRun run;
  const LogLevel silent(0);
  const auto object = made<OrvantaPushObject>(payloadWith({kMedia, kIcon}));
  run.extension->updateNotificationContent(run.handler(), object);
  run.platform.runAll();
  EXPECT_EQ(run.journal(), "download nothing, deliver nothing");
}

// ---- One instance, its requests and its life --------------------------------

TEST(Pipeline, AStepOfAnEarlierRequestReadsTheBestAttemptOfALaterOne) {
  const struct {
    std::vector<std::string_view> parts;
    bool firstGetsLater;  // instead of the content of its own
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

TEST(Pipeline, RequestsAtOnceMayFinishInAnyOrder) {
  ExtensionRun run;
  run.receive(payloadWith({kIcon}), run.handler("first"));
  run.original.title = "Zoe";
  run.receive(payloadWith({kIcon}), run.handler("second"));
  run.platform.run(1);
  run.platform.run(0);
  ASSERT_EQ(run.delivered.size(), 2U);
  EXPECT_EQ(run.delivered[0]->communication->sender, "Zoe");
  EXPECT_EQ(run.delivered[1]->communication->sender, "Ana");
}

TEST(Pipeline, PendingStepsKeepTheExtensionAliveAndTheLastOneFreesIt) {
  const std::weak_ptr<OrvantaNotificationServiceExtension> weak = [] {
    ExtensionRun run;
    run.receive(payloadWith({kButtons, kMedia, kIcon}));
    std::weak_ptr<OrvantaNotificationServiceExtension> held = run.extension;
    run.extension.reset();
    for (int step = 0; step < 3; ++step) {
      EXPECT_FALSE(held.expired()) << step;
      run.platform.runNext();
    }
    EXPECT_TRUE(held.expired());
    EXPECT_EQ(run.delivered.size(), 1U);
    return held;
  }();
  EXPECT_TRUE(weak.expired());
}

TEST(Pipeline, AnExtensionThatWaitsForNothingGoesWithItsHost) {
  ExtensionRun run;
  run.receive(payloadWith({}));
  const std::weak_ptr<OrvantaNotificationServiceExtension> weak = run.extension;
  run.extension.reset();
  EXPECT_TRUE(weak.expired());
}

TEST(Pipeline, TheCenterIsNotKept) {
  ExtensionRun run;
  run.receive(payloadWith({}));
  EXPECT_EQ(run.extension->notificationCenter(), run.platform.center);
  run.platform.center.reset();
  EXPECT_EQ(run.extension->notificationCenter(), nullptr);
}

}  // namespace
}  // namespace orvanta::testing
