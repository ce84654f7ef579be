#include <gtest/gtest.h>
#include <sys/stat.h>

#include "orvanta/Linux/MediaTypes.h"
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
  const auto first = factory_.attachmentWithIdentifier("", url, std::nullopt).attachment;
  const auto second = factory_.attachmentWithIdentifier("", url, std::nullopt).attachment;
  EXPECT_EQ(first->parts().identifier.size(), 36U);
  EXPECT_NE(first->parts().identifier, second->parts().identifier);

  EXPECT_EQ(describe(factory_.attachmentWithIdentifier("a", folder_.url("no"), "x").error),
            "Error Domain=UNErrorDomain Code=100 \"Invalid attachment file URL\" "
            "UserInfo={NSLocalizedDescription=Invalid attachment file URL}");
}

}  // namespace
}  // namespace orvanta::testing
