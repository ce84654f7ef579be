#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "orvanta/Linux/PosixFileManager.h"
#include "support/TemporaryFolder.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;

class PosixFileManagerTest : public ::testing::Test {
 protected:
  Ref<NSError> move(const Url& from, const Url& to) { return manager_.moveItemAtURL(from, to); }
  Ref<NSError> move(std::string_view from, std::string_view to) {
    return move(folder_.url(from), folder_.url(to));
  }
  static std::int64_t underlyingCode(const Ref<NSError>& error) {
    const auto* underlying = error->userInfo()[NSError::kUnderlyingError].as<NSError>();
    return underlying == nullptr ? -1 : underlying->code();
  }

  TemporaryFolder folder_;
  PosixFileManager manager_{folder_ / "Library/Caches"};
};

TEST_F(PosixFileManagerTest, CreatesCachesFolderOrThrows) {
  EXPECT_TRUE(fs::is_directory(folder_ / "Library/Caches"));
  folder_.write("taken", "");
  EXPECT_THROW(PosixFileManager(folder_ / "taken"), fs::filesystem_error);
}

TEST_F(PosixFileManagerTest, NeverOverwritesTheDestination) {
  folder_.write("dl.tmp", "new");
  folder_.write("Library/Caches/dl.tmp", "old");
  const auto error = move("dl.tmp", "Library/Caches/dl.tmp");
  ASSERT_TRUE(error);
  const std::string root = folder_.path().string();
  EXPECT_EQ(error->description(),
            "Error Domain=NSCocoaErrorDomain Code=516 \"“dl.tmp” couldn’t be moved to “Caches” "
            "because an item with the same name already exists.\" "
            "UserInfo={NSSourceFilePathErrorKey=" +
                root + "/dl.tmp, NSUserStringVariant=(\n    Move\n), NSDestinationFilePath=" +
                root + "/Library/Caches/dl.tmp, NSFilePath=" + root +
                "/dl.tmp, NSUnderlyingError={Error Domain=NSPOSIXErrorDomain Code=17 \"File "
                "exists\"}}");
  EXPECT_EQ(folder_.read("dl.tmp"), "new");
  EXPECT_EQ(folder_.read("Library/Caches/dl.tmp"), "old");
}

TEST_F(PosixFileManagerTest, DoesNotFollowALinkAtTheDestination) {
  folder_.write("dl.tmp", "new");
  fs::create_symlink(folder_ / "elsewhere", folder_ / "dangling");
  fs::create_directory(folder_ / "folder");
  for (const auto* const name : {"dangling", "folder", "dl.tmp"}) {
    const auto error = move("dl.tmp", name);
    ASSERT_TRUE(error) << name;
    EXPECT_EQ(error->code(), 516) << name;
  }
  EXPECT_FALSE(fs::exists(folder_ / "elsewhere"));
  EXPECT_EQ(folder_.read("dl.tmp"), "new");
}

TEST_F(PosixFileManagerTest, ReportsThePlatformsCodes) {
  folder_.write("file", "");
  const struct {
    std::string from;
    std::string to;
    int code;
    int posix;
    std::string_view reason;
  } cases[] = {
      {"missing", "x", 4, 2,
       " because either the former doesn’t exist, or the folder containing the latter doesn’t "
       "exist."},
      {"file", "missing/x", 4, 2,
       " because either the former doesn’t exist, or the folder containing the latter doesn’t "
       "exist."},
      {"file", std::string(300, 'x'), 514, 36, " because the name is too long."},
      {"file", "file/x", 512, 20, "."},
      {std::string("file\0y", 6), "x", 512, 22, "."},
  };
  for (const auto& [from, to, code, posix, reason] : cases) {
    const auto error = move(from, to);
    ASSERT_TRUE(error) << to;
    EXPECT_EQ(error->code(), code) << to;
    EXPECT_EQ(underlyingCode(error), posix) << to;
    EXPECT_TRUE(describe(error->localizedDescription()).ends_with("”" + std::string(reason)))
        << describe(*error->userInfo().begin()->value.string());
    EXPECT_TRUE(fs::exists(folder_ / "file"));
  }
}

TEST_F(PosixFileManagerTest, MovesOnlyFileURLs) {
  const Url file = folder_.write("file", "");
  const Url other = *Url::parse("https://example.org/file");
  EXPECT_EQ(describe(move(other, folder_.url("x"))),
            "Error Domain=NSCocoaErrorDomain Code=262 \"The file couldn’t be opened because the "
            "specified URL type isn’t supported.\" UserInfo={NSURL=https://example.org/file}");
  const auto error = move(file, other);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->code(), 518);
  EXPECT_TRUE(fs::exists(folder_ / "file"));
}

class PosixFileManagerAcrossFileSystems : public PosixFileManagerTest {
 protected:
  void SetUp() override {
    struct stat here {};
    struct stat there {};
    if (::stat("/dev/shm", &there) != 0 || ::access("/dev/shm", W_OK) != 0 ||
        ::stat(folder_.path().c_str(), &here) != 0 || here.st_dev == there.st_dev) {
      GTEST_SKIP() << "no other file system";
    }
    other_.emplace("/dev/shm");
  }
  std::optional<TemporaryFolder> other_;
};

TEST_F(PosixFileManagerAcrossFileSystems, CopiesAndRemoves) {
  std::string content;
  while (content.size() < 200'000) content += std::to_string(content.size());
  const Url from = other_->write("big", content);
  fs::permissions(*other_ / "big", fs::perms::owner_read);
  EXPECT_FALSE(move(from, folder_.url("moved")));
  EXPECT_FALSE(fs::exists(*other_ / "big"));
  EXPECT_EQ(folder_.read("moved"), content);
  EXPECT_EQ(fs::status(folder_ / "moved").permissions(), fs::perms::owner_read);
}

TEST_F(PosixFileManagerAcrossFileSystems, OverwritesFollowsAndLosesNothing) {
  const Url from = other_->write("file", "new");
  folder_.write("taken", "old");
  fs::create_symlink(folder_ / "elsewhere", folder_ / "dangling");
  fs::create_symlink(*other_ / "file", *other_ / "link");
  fs::create_directory(*other_ / "folder");
  EXPECT_EQ(move(from, folder_.url("taken"))->code(), 516);
  EXPECT_EQ(move(from, folder_.url("dangling"))->code(), 516);
  EXPECT_EQ(move(from, folder_.url("missing/x"))->code(), 4);
  EXPECT_EQ(move(other_->url("missing"), folder_.url("x"))->code(), 4);
  EXPECT_EQ(move(other_->url("link"), folder_.url("x"))->code(), 512);
  EXPECT_EQ(move(other_->url("folder"), folder_.url("x"))->code(), 512);
  EXPECT_EQ(folder_.read("taken"), "old");
  EXPECT_FALSE(fs::exists(folder_ / "elsewhere"));
  EXPECT_FALSE(fs::exists(folder_ / "x"));
  EXPECT_EQ(other_->read("file"), "new");
}

}  // namespace
}  // namespace orvanta::testing
