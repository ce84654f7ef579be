#include <gtest/gtest.h>
#include <sys/stat.h>

#include "Platform/Linux/MediaTypes.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

TEST(MediaTypes, MIMETypesHaveTheirIdentifiers) {
  const struct {
    std::string mimeType;
    std::string_view identifier;
  } cases[] = {
      {"image/jpeg", "public.jpeg"},
      {"IMAGE/Jpg", "public.jpeg"},
      {"image/heic", "public.heic"},
      {"audio/x-aiff", "public.aiff-audio"},
      {"audio/vnd.wave", "com.microsoft.waveform-audio"},
      {"audio/mpeg", "public.mp3"},
      {"video/x-mpeg", "public.mpeg"},
      {"video/mp4", "public.mpeg-4"},
      {"video/quicktime", "com.apple.quicktime-movie"},
      {"application/octet-stream", "public.data"},
      // Dynamic ones.
      {"foo/bar", "dyn.agq80q55tf7vgc6u"},
      {"image/x-foo", "dyn.agq80w5pbq7ww88brq3108"},
      {"application/x-foo", "dyn.agq80c6durvy0g2pyrf106p52fzxg852"},
      {"", "dyn.agq8u"},
      {":", "dyn.agq8z2su"},  // "3=\:"
  };
  HostTypeIdentifiers types;
  for (const auto& [mimeType, identifier] : cases) {
    EXPECT_EQ(types.preferredIdentifierForMIMEType(mimeType), identifier) << mimeType;
  }
  EXPECT_EQ(types.preferredIdentifierForMIMEType(std::nullopt), std::nullopt);
}

TEST(MediaTypes, ExtensionsHaveTheMIMETypeOfAServer) {
  const struct {
    std::string_view extension;
    std::string_view mimeType;
  } cases[] = {
      {"jpg", "image/jpeg"},      {"JPEG", "image/jpeg"},     {"png", "image/png"},
      {"gif", "image/gif"},       {"heic", "image/heic"},     {"heif", "image/heif"},
      {"webp", "image/webp"},     {"aif", "audio/aiff"},      {"aiff", "audio/aiff"},
      {"wav", "audio/wav"},       {"mp3", "audio/mpeg"},      {"m4a", "audio/x-m4a"},
      {"mp4", "video/mp4"},       {"mpg", "video/mpeg"},      {"mpeg", "video/mpeg"},
      {"m2v", "video/mpeg2"},     {"avi", "video/x-msvideo"}, {"mov", "video/quicktime"},
      {"txt", "text/plain"},      {"html", "text/html"},      {"json", "application/json"},
      {"pdf", "application/pdf"},
  };
  for (const auto& [extension, mimeType] : cases) {
    EXPECT_EQ(mimeTypeForExtension(extension), mimeType) << extension;
  }
  for (const auto* const unknown : {"", ".jpg", "tmp", "jpg jpeg", " "}) {
    EXPECT_EQ(mimeTypeForExtension(unknown), std::nullopt) << unknown;
  }
}

class Attachments : public ::testing::Test {
 protected:
  /// "family, type" of the attachment, or the error's code.
  std::string outcome(const Url& url, const std::optional<std::string>& hint = std::nullopt) {
    const auto [attachment, error] = factory_.attachmentWithIdentifier("id", url, hint);
    EXPECT_NE(bool(attachment), bool(error));
    if (error) return std::to_string(error->code());
    EXPECT_EQ(attachment->parts().typeHint, hint);
    return attachment->parts().family + ", " + attachment->parts().type;
  }
  TemporaryFolder folder_;
  HostAttachmentFactory factory_;
};

TEST_F(Attachments, AHintDecidesOnTheTypeOrElseTheExtension) {
  const Url bare = folder_.write("x.tmp", "1");
  const Url named = folder_.write("x.PNG", "1");
  EXPECT_EQ(outcome(bare), "101");
  EXPECT_EQ(outcome(named), "Image, public.png");
  EXPECT_EQ(outcome(folder_.write("png", "1")), "101");
  EXPECT_EQ(outcome(folder_.write("x.m4a", "1")), "Audio, com.apple.m4a-audio");
  EXPECT_EQ(outcome(folder_.write("x.m2v", "1")), "Movie, public.mpeg-2-video");
  EXPECT_EQ(outcome(folder_.write("x.mov", "1")), "101");
  EXPECT_EQ(outcome(bare, "Public.JPEG"), "Image, public.jpeg");
  EXPECT_EQ(outcome(bare, "public.mpeg-4-audio"), "Audio, public.mpeg-4-audio");
  EXPECT_EQ(outcome(named, "public.avi"), "Movie, public.avi");
  for (const auto* const hint :
       {"", "image/png", "dyn.agq80q55tf7vgc6u", "org.webmproject.webp", "public.heic",
        "com.apple.quicktime-movie", "public.html", "public.data", "public.image"}) {
    EXPECT_EQ(outcome(named, hint), "101") << hint;
  }
}

TEST_F(Attachments, OnlyReadableRegularFilesAreTaken) {
  folder_.write("x.png", "1");
  fs::create_directory(folder_ / "folder.png");
  fs::create_symlink(folder_ / "missing", folder_ / "dangling.png");
  fs::create_symlink(folder_ / "x.png", folder_ / "link.png");
  ASSERT_EQ(::mkfifo((folder_ / "pipe.png").c_str(), 0600), 0);
  for (const auto* const name : {"missing.png", "folder.png", "dangling.png", "pipe.png"}) {
    EXPECT_EQ(outcome(folder_.url(name)), "100") << name;
  }
  EXPECT_EQ(outcome(folder_.url("link.png")), "Image, public.png");
  EXPECT_EQ(outcome(folder_.url(std::string("x.png\0.png", 10))), "100");
  EXPECT_EQ(outcome(*Url::parse("https://example.org/x.png")), "100");
  EXPECT_EQ(outcome(*Url::parse("")), "100");
  EXPECT_EQ(outcome(*Url::parse((folder_ / "x.png").string())), "100");
}

TEST_F(Attachments, DescribeThemselves) {
  const Url url = folder_.write("x.gif", "12345");
  auto result = factory_.attachmentWithIdentifier("attachment", url, std::nullopt);
  ASSERT_TRUE(result.attachment);
  EXPECT_EQ(result.attachment->parts().bytes, 5U);
  EXPECT_EQ(result.attachment->parts().identifier, "attachment");

  const auto first = factory_.attachmentWithIdentifier("", url, std::nullopt).attachment;
  const auto second = factory_.attachmentWithIdentifier("", url, std::nullopt).attachment;
  EXPECT_EQ(first->parts().identifier.size(), 36U);
  EXPECT_NE(first->parts().identifier, second->parts().identifier);

  EXPECT_EQ(describe(factory_.attachmentWithIdentifier("a", folder_.url("no"), "x").error),
            "Error Domain=UNErrorDomain Code=100 \"Invalid attachment file URL\" "
            "UserInfo={NSLocalizedDescription=Invalid attachment file URL}");
  EXPECT_EQ(describe(factory_.attachmentWithIdentifier("a", url, "x").error),
            "Error Domain=UNErrorDomain Code=101 \"Unrecognized attachment file type\" "
            "UserInfo={NSLocalizedDescription=Unrecognized attachment file type}");
}

}  // namespace
}  // namespace orvanta::testing
