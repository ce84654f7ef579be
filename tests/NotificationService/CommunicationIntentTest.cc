#include "NotificationService/ExtensionRun.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

const std::string kJPEG = "\xFF\xD8\xFFstar.png";

/// An extension whose best attempt names an icon, and a content to change.
class CommunicationIntent : public ::testing::Test, protected ExtensionRun {
 protected:
  CommunicationIntent() {
    receive("{}");
    platform.calls.clear();
    delivered.clear();
    extension->bestAttemptContent()->userInfo = dictionaryFromJSON(payloadWith({kIcon}));
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
  content_->userInfo = dictionaryFromJSON(payloadWith({kIcon}));  // is not read
  setIntent();
  EXPECT_EQ(journal(), "deliver");
  EXPECT_EQ(delivered[0], content_);
}

TEST_F(CommunicationIntent, TheTitleIsTheSenderAndTheSubtitleTheGroup) {
  content_->title = std::nullopt;
  for (const std::optional<std::string>& group :
       {std::optional<std::string>(), {""}, {"Friends"}}) {
    content_->subtitle = group;
    setIntent();
    platform.runAll();
    const INSendMessageIntent& intent = platform.donated.back().intent;
    const bool hasGroup = group == "Friends";
    EXPECT_EQ(intent.sender.personHandle.value, "");
    EXPECT_EQ(intent.sender.image.value().imageData, kJPEG);
    EXPECT_EQ(intent.speakableGroupName.has_value(), hasGroup);
    EXPECT_EQ(intent.speakableGroupNameImage.has_value(), hasGroup);
    EXPECT_EQ(intent.recipients.has_value(), hasGroup);
    if (!hasGroup) continue;
    EXPECT_EQ(intent.speakableGroupName.value().spokenPhrase, "Friends");
    ASSERT_EQ(intent.recipients.value().size(), 1U);
    EXPECT_FALSE(intent.recipients.value()[0].image);
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

TEST_F(CommunicationIntent, LogsErrorsFromLevelOne) {
  for (const int level : {0, 1, 2}) {
    const LogLevel scope(level);
    platform.log.clear();
    platform.donationError = error("D", 1900);
    setIntent();
    platform.runAll();
    platform.donationError = nullptr;
    platform.updateError = error("D", 1501);
    setIntent();
    platform.runAll();
    EXPECT_EQ(platform.log.size(), level == 0 ? 0U : 2U) << level;
  }
}

}  // namespace
}  // namespace orvanta::testing
