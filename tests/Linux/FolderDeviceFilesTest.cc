#include <gtest/gtest.h>
#include <sys/stat.h>

#include "orvanta/Linux/FolderDeviceFiles.h"
#include "orvanta/Simulator/SimulatedAttachments.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

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
  FolderDeviceFiles files_{folder_.path()};
  SimulatedAttachments factory_{files_};
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

TEST(FolderDeviceFiles, DownloadsGetNamesThatCachesDoNotHave) {
  const TemporaryFolder folder;
  FolderDeviceFiles files(folder.path());
  files.makeCacheFile("CFNetworkDownload_000001.tmp");
  EXPECT_EQ(files.makeDownload(std::nullopt, 3)->lastPathComponent(),
            "CFNetworkDownload_000002.tmp");
  EXPECT_EQ(files.size(*files.makeDownload(std::nullopt, 5)), 5U);
  EXPECT_TRUE(files.makeDownload("a.png", 1));
  EXPECT_FALSE(files.makeDownload("a.png", 1));
  fs::create_symlink(folder / "elsewhere", folder / "tmp/b.png");
  EXPECT_FALSE(files.makeDownload("b.png", 1));
  EXPECT_FALSE(fs::exists(folder / "elsewhere"));
}

}  // namespace
}  // namespace orvanta::testing
