#include "Extension/ExtensionRun.h"

namespace orvanta::testing {
namespace {

constexpr std::string_view kSelector =
    "downloadAndSetMediaImageForNotificationContent:withCompletionHandler:";
const std::string kPayload = payloadWith({kMedia});

std::string debugLine(int line, std::string_view message) {
  return logEntry("🦋", kSelector, line, message);
}
std::string errorLine(int line, std::string_view message) {
  return logEntry("❗", kSelector, line, message);
}

/// An extension with a plain best attempt, and a content that has two attachments.
class MediaAttachment : public ::testing::Test, protected ExtensionRun {
 protected:
  MediaAttachment() {
    receive("{}");
    platform.calls.clear();
    extension->bestAttemptContent()->userInfo = dictionaryOf(kPayload);
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

TEST_F(MediaAttachment, BecomesTheOnlyAttachment) {
  downloadAndSet();
  EXPECT_EQ(journal(), "download https://m.example/a");
  platform.runAll();
  EXPECT_EQ(journal(),
            "download https://m.example/a, move CFNetworkDownload_abc123.tmp, attach public.jpeg, "
            "complete");
  ASSERT_EQ(content_->attachments.size(), 1U);
  const auto& parts = content_->attachments[0]->parts();
  EXPECT_EQ(parts.identifier, "attachment");
  EXPECT_EQ(parts.url.absoluteString(), "file:///caches/CFNetworkDownload_abc123.tmp");
  EXPECT_EQ(parts.typeHint, "public.jpeg");
  EXPECT_EQ(platform.files,
            (std::map<std::string, std::uint64_t>{{"/caches/CFNetworkDownload_abc123.tmp", 1000}}));
  EXPECT_TRUE(extension->bestAttemptContent()->attachments.empty());
}

TEST_F(MediaAttachment, AnyFailureCompletesWithItsErrorAndLeavesTheContent) {
  const LogLevel silent(0);
  using Arrange = void (*)(FakePlatform&);
  const struct {
    Arrange arrange;
    std::string_view end;
  } rows[] = {
      {[](FakePlatform& p) { p.download.error = error("D", -1009); }, "complete -1009"},
      {[](FakePlatform& p) { p.lockedFolder = "/caches/"; }, "complete 513"},
      {[](FakePlatform& p) { p.files["/caches/CFNetworkDownload_abc123.tmp"] = 1; },
       "complete 516"},
      {[](FakePlatform& p) { p.download.bytes = 10'000'001; }, "complete 102"},
      {[](FakePlatform& p) { p.download.response.mimeType = "text/plain"; }, "complete 101"},
      {[](FakePlatform& p) {
         p.absent = {"session", "files", "types", "attachments"};
       },
       "complete -1002"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.end);
    FakePlatform other;
    row.arrange(other);
    platform.calls.clear();
    downloadAndSet();
    other.runAll();
    EXPECT_EQ(journal(), row.end);
    EXPECT_EQ(content_->attachments.size(), 2U);
  }
}

TEST_F(MediaAttachment, AnErrorStatusIsNoFailure) {
  platform.download.response.statusCode = 404;
  downloadAndSet();
  platform.runAll();
  EXPECT_EQ(platform.calls.back(), "complete");
}

TEST_F(MediaAttachment, ATypeThatCannotBeToldIsNoHint) {
  const LogLevel silent(0);
  const struct {
    std::string_view name;
    std::optional<std::string> mimeType;
    bool hasResponse;
    std::string_view calls;
  } rows[] = {
      {"a.tmp", "image/x-odd", true, "attach dyn.aimage/x-odd, complete 101"},
      {"b.tmp", std::nullopt, true, "attach no type, complete 101"},
      {"c.jpg", std::nullopt, true, "attach no type, complete"},
      {"d.jpg", std::nullopt, false, "attach no type, complete"},
  };
  for (const auto& row : rows) {
    platform.download.name = row.name;
    platform.download.response.mimeType = row.mimeType;
    platform.download.hasResponse = row.hasResponse;
    platform.calls.clear();
    downloadAndSet();
    platform.runAll();
    EXPECT_EQ(journal(), "download https://m.example/a, move " + std::string(row.name) + ", " +
                             std::string(row.calls));
  }
  ASSERT_EQ(content_->attachments.size(), 1U);
  EXPECT_EQ(content_->attachments[0]->parts().typeHint, std::nullopt);
}

TEST_F(MediaAttachment, KeepsTheNameOfTheTemporaryFile) {
  for (const char* const name : {"a b.tmp", "50%.tmp", "x?y#z.tmp", "ä.tmp", ".tmp"}) {
    platform.download.name = name;
    downloadAndSet();
    platform.runAll();
    EXPECT_TRUE(platform.files.contains(std::string("/caches/") + name)) << name;
  }
}

TEST_F(MediaAttachment, ASecondFileOfTheSameNameIsNotAttached) {
  const LogLevel silent(0);
  downloadAndSet();
  platform.runAll();
  const auto kept = content_->attachments;
  downloadAndSet();
  platform.runAll();
  EXPECT_EQ(platform.calls.back(), "complete 516");
  EXPECT_EQ(content_->attachments, kept);
}

TEST_F(MediaAttachment, TheLastCachesFolderIsMeant) {
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL()->absoluteString(), "file:///caches/");
  platform.cachesFolders.pop_back();
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL()->absoluteString(), "file:///library/");
  platform.absent = {"files"};
  EXPECT_EQ(OrvantaNotificationServiceExtension::cacheURL(), std::nullopt);
}

TEST_F(MediaAttachment, LogsItsProgressAndErrors) {
  const std::string start = debugLine(175, "Start request with URL : https://m.example/a");
  const std::string response = debugLine(190,
                                         "Response : <NSHTTPURLResponse> { URL: "
                                         "https://m.example/a } { Status Code: 200, Headers {\n"
                                         "    Server =     (\n        some\n    );\n} }");
  const std::string type = debugLine(191, "MIME Type : image/jpeg");
  const std::string identifier = debugLine(192, "UTI : public.jpeg");
  const std::string moved = debugLine(202, "URL : a.tmp -- file:///caches/");
  const std::string attached = debugLine(
      215,
      "Present Attachment : <UNNotificationAttachment; identifier: attachment, family: Image, URL: "
      "file:///caches/a.tmp, type: public.jpeg, options: <UNImageNotificationAttachmentOptions>>");
  using Arrange = void (*)(FakePlatform&);
  const struct {
    Arrange arrange;
    std::vector<std::string> debug;
    std::vector<std::string> errors;
  } rows[] = {
      {[](FakePlatform&) {}, {start, response, type, identifier, moved, attached}, {}},
      {[](FakePlatform& p) { p.download.error = error("NSURLErrorDomain", -1009); },
       {start},
       {errorLine(181,
                  "Attachment download error : Error Domain=NSURLErrorDomain Code=-1009 \"Not "
                  "now.\" UserInfo={NSLocalizedDescription=Not now.}")}},
      {[](FakePlatform& p) { p.files["/caches/a.tmp"] = 1; },
       {start, response, type, identifier},
       {errorLine(198,
                  "Attachment move error: Error Domain=NSCocoaErrorDomain Code=516 \"(null)\" "
                  "UserInfo={NSUnderlyingError={Error Domain=NSPOSIXErrorDomain Code=17 \"not that "
                  "file\" UserInfo={NSLocalizedDescription=not that file}}}")}},
      {[](FakePlatform& p) { p.attachmentError = NSError::errorWithDomain("UNErrorDomain", 101); },
       {start, response, type, identifier, moved},
       {errorLine(211, "Attachment create error: Error Domain=UNErrorDomain Code=101 \"(null)\"")}},
      {[](FakePlatform& p) {
         p.download.response = {Url::fileURLWithPath("/"), std::nullopt, std::nullopt, {}};
         p.attachmentError = NSError::errorWithDomain("UNErrorDomain", 101);
       },
       {start, debugLine(190, "Response : <NSURLResponse> { URL: https://m.example/a }"),
        debugLine(191, "MIME Type : (null)"), debugLine(192, "UTI : (null)"), moved},
       {errorLine(211, "Attachment create error: Error Domain=UNErrorDomain Code=101 \"(null)\"")}},
  };
  for (const auto& row : rows) {
    for (const int level : {0, 1, 2}) {
      const LogLevel scope(level);
      FakePlatform other;
      other.download.name = "a.tmp";
      other.download.response.headers = {{"Server", "some"}};
      row.arrange(other);
      downloadAndSet();
      other.runAll();
      std::vector<std::string> expected;
      if (level == 2) expected = row.debug;
      if (level >= 1) expected.insert(expected.end(), row.errors.begin(), row.errors.end());
      EXPECT_EQ(other.log, expected) << level;
    }
  }
}

}  // namespace
}  // namespace orvanta::testing
