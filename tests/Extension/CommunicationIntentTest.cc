#include "Extension/ExtensionRun.h"

namespace orvanta::testing {
namespace {

constexpr std::string_view kSelector =
    "setNotificationIntentForNotificationContent:withContentHandler:completionHandler:";
const std::string kJPEG = "\xFF\xD8\xFFstar.png";

/// An extension whose best attempt names an icon, and a content to be changed.
class CommunicationIntent : public ::testing::Test, protected ExtensionRun {
 protected:
  CommunicationIntent() {
    receive("{}");
    platform.calls.clear();
    delivered.clear();
    extension->bestAttemptContent()->userInfo = dictionaryOf(payloadWith({kIcon}));
    content_->title = "Ana";
  }
  void setIntent() {
    extension->setNotificationIntentForNotificationContent(content_, handler(), completion());
  }

  std::shared_ptr<UNMutableNotificationContent> content_ =
      std::make_shared<UNMutableNotificationContent>();
};

TEST_F(CommunicationIntent, CallsBackAsTheStepsEnd) {
  const LogLevel silent(0);
  using Arrange = void (*)(FakePlatform&);
  const struct {
    Arrange arrange;
    std::string_view journal;
  } rows[] = {
      {[](FakePlatform&) {}, "image star, encode 1, donate, update, deliver sender"},
      {[](FakePlatform& p) { p.pictures.clear(); }, "image star, deliver"},
      {[](FakePlatform& p) { p.encodes = false; }, "image star, encode 1, deliver"},
      {[](FakePlatform& p) {
         p.version = {10, 0, 0};
       },
       "image star, encode 1, deliver"},
      {[](FakePlatform& p) {
         p.version = {14, 99, 9};
       },
       "image star, encode 1, deliver"},
      {[](FakePlatform& p) {
         p.version = {15, 0, 0};
       },
       "image star, encode 1, donate, update, deliver sender"},
      {[](FakePlatform& p) { p.donationError = error("D", 1900); },
       "image star, encode 1, donate, complete 1900"},
      {[](FakePlatform& p) { p.updateError = error("D", 1501); },
       "image star, encode 1, donate, update, complete 1501, deliver nothing"},
      {[](FakePlatform& p) { p.absent = {"images"}; }, "deliver"},
      {[](FakePlatform& p) { p.absent = {"intents"}; }, "image star, encode 1, deliver"},
  };
  for (const auto& row : rows) {
    FakePlatform other;
    row.arrange(other);
    platform.calls.clear();
    setIntent();
    other.runAll();
    std::string steps;
    for (const std::string& call : other.calls) steps += call + ", ";
    EXPECT_EQ(steps + journal(), row.journal);
    EXPECT_FALSE(content_->communication);
  }
}

TEST_F(CommunicationIntent, WithoutIconTheContentIsDeliveredAtOnce) {
  extension->bestAttemptContent()->userInfo = {};
  content_->userInfo = dictionaryOf(payloadWith({kIcon}));  // which is not read
  setIntent();
  EXPECT_EQ(journal(), "deliver");
  EXPECT_EQ(delivered[0], content_);
}

TEST_F(CommunicationIntent, TheTitleIsTheSenderAndTheSubtitleTheGroup) {
  using Text = std::optional<std::string>;
  const struct {
    Text title;
    Text subtitle;
    std::string sender;
    Text group;
  } rows[] = {
      {"Ana", std::nullopt, "Ana", std::nullopt}, {"Ana", "Friends", "Ana", "Friends"},
      {"Ana", "", "Ana", std::nullopt},           {"", std::nullopt, "", std::nullopt},
      {std::nullopt, "Friends", "", "Friends"},
  };
  for (const auto& row : rows) {
    content_->title = row.title;
    content_->subtitle = row.subtitle;
    setIntent();
    platform.runAll();
    const INSendMessageIntent& intent = platform.donated.back().intent;
    EXPECT_EQ(intent.sender.personHandle.value, row.sender);
    EXPECT_EQ(intent.sender.personHandle.type, 0);
    EXPECT_EQ(intent.sender.image.value().imageData, kJPEG);
    EXPECT_EQ(intent.outgoingMessageType, 0);
    EXPECT_EQ(intent.recipients.has_value(), row.group.has_value());
    EXPECT_EQ(intent.speakableGroupName.has_value(), row.group.has_value());
    EXPECT_EQ(intent.speakableGroupNameImage.has_value(), row.group.has_value());
    EXPECT_EQ(delivered.back()->communication,
              (UNCommunication{row.sender, true, row.group, row.group.has_value()}));
    if (!row.group) continue;
    EXPECT_EQ(intent.speakableGroupName.value().spokenPhrase, *row.group);
    EXPECT_EQ(intent.speakableGroupNameImage.value().imageData, kJPEG);
    ASSERT_EQ(intent.recipients.value().size(), 1U);
    const INPerson& recipient = intent.recipients.value()[0];
    EXPECT_EQ(recipient.personHandle.value, "");
    EXPECT_EQ(recipient.personHandle.type, 0);
    EXPECT_FALSE(recipient.image);
  }
}

TEST_F(CommunicationIntent, UpdatesTheContentAsItIsAfterTheDonation) {
  setIntent();
  content_->title = "Zoe";
  content_->body = "late";
  platform.runAll();
  ASSERT_EQ(delivered.size(), 1U);
  EXPECT_NE(delivered[0], content_);
  EXPECT_EQ(delivered[0]->body, "late");
  EXPECT_EQ(delivered[0]->communication->sender, "Ana");
}

TEST_F(CommunicationIntent, LogsErrors) {
  const std::string donation =
      logEntry("❗", kSelector, 149,
               "Donate Interaction error: Error Domain=IntentsErrorDomain Code=1900 \"Not now.\" "
               "UserInfo={NSLocalizedDescription=Not now.}");
  const std::string update =
      logEntry("❗", kSelector, 157,
               "Update Notification Error: Error Domain=UNErrorDomain Code=1501 \"(null)\"");
  for (const int level : {0, 1, 2}) {
    const LogLevel scope(level);
    platform.log.clear();
    platform.donationError = error("IntentsErrorDomain", 1900);
    setIntent();
    platform.runAll();
    EXPECT_EQ(platform.log, std::vector<std::string>(level == 0 ? 0 : 1, donation)) << level;

    platform.log.clear();
    platform.donationError = nullptr;
    platform.updateError = NSError::errorWithDomain("UNErrorDomain", 1501);
    setIntent();
    platform.runAll();
    EXPECT_EQ(platform.log, std::vector<std::string>(level == 0 ? 0 : 1, update)) << level;

    platform.log.clear();
    platform.updateError = nullptr;
    setIntent();
    platform.runAll();
    EXPECT_TRUE(platform.log.empty()) << level;
  }
}

}  // namespace
}  // namespace orvanta::testing
