#include "NotificationService/ExtensionRun.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

const std::string kPayload = payloadWith({kMedia});

/// An extension with a plain best attempt, and a content that has two attachments.
class MediaAttachment : public ::testing::Test, protected ExtensionRun {
 protected:
  MediaAttachment() {
    receive("{}");
    platform.calls.clear();
    extension->bestAttemptContent()->userInfo = dictionaryFromJSON(kPayload);
    for (const char* const name : {"one", "two"}) {
      content_->attachments.push_back(UNNotificationAttachment::attachmentWithParts(
          {name, Url::fileURLWithPath("/present"), std::nullopt, "public.png", "Image", 1}));
    }
  }
  void downloadAndSet() {
    extension->downloadAndSetMediaImageForNotificationContent(content_, completion());
  }

  std::shared_ptr<UNMutableNotificationContent> content_ =
      std::make_shared<UNMutableNotificationContent>();
};

TEST_F(MediaAttachment, ReplacesTheAttachmentsOfTheContent) {
  downloadAndSet();
  EXPECT_EQ(journal(), "download https://m.example/a");
  platform.runAll();
  ASSERT_EQ(content_->attachments.size(), 1U);
  EXPECT_EQ(content_->attachments[0]->parts().identifier, "attachment");
  EXPECT_TRUE(extension->bestAttemptContent()->attachments.empty());
}

TEST_F(MediaAttachment, AFailureCompletesWithItsErrorAndKeepsTheContent) {
  const LogLevel silent(0);
  platform.attachmentError = error("D", 102);
  downloadAndSet();
  platform.runAll();
  EXPECT_EQ(platform.calls.back(), "complete 102");
  for (const char* const service : {"session", "files", "types", "attachments"}) {
    platform.absent = {service};
    downloadAndSet();
    EXPECT_EQ(platform.calls.back(), "complete -1002") << service;
    platform.calls.clear();
  }
  EXPECT_EQ(content_->attachments.size(), 2U);
}

TEST_F(MediaAttachment, AnUnknownTypeGivesNoHint) {
  const LogLevel silent(0);
  platform.download.response.mimeType = std::nullopt;
  for (const bool hasResponse : {true, false}) {
    platform.download.name = hasResponse ? "a.jpg" : "b.jpg";
    platform.download.hasResponse = hasResponse;
    platform.calls.clear();
    downloadAndSet();
    platform.runAll();
    EXPECT_EQ(journal(), "download https://m.example/a, move " + platform.download.name +
                             ", attach no type, complete");
  }
}

TEST_F(MediaAttachment, KeepsTheNameOfTheTemporaryFile) {
  for (const char* const name : {"a b.tmp", "50%.tmp", "x?y#z.tmp", "ä.tmp", ".tmp"}) {
    platform.download.name = name;
    downloadAndSet();
    platform.runAll();
    EXPECT_TRUE(platform.files.contains(std::string("/caches/") + name)) << name;
  }
}

TEST_F(MediaAttachment, UsesTheLastCachesFolder) {
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL()->absoluteString(), "file:///caches/");
  platform.cachesFolders.pop_back();
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL()->absoluteString(), "file:///library/");
  platform.absent = {"files"};
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL(), std::nullopt);
}

TEST_F(MediaAttachment, LogsErrorsFromLevelOneAndProgressFromTwo) {
  platform.attachmentError = error("D", 102);
  for (const auto& [level, entries] : {std::pair{0, 0U}, {1, 1U}, {2, 6U}}) {
    const LogLevel scope(level);
    platform.log.clear();
    platform.files.clear();
    downloadAndSet();
    platform.runAll();
    EXPECT_EQ(platform.log.size(), entries) << level;
  }
}

}  // namespace
}  // namespace orvanta::testing
