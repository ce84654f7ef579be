#include <unistd.h>

#include "Conformance/Subjects.h"

namespace orvanta::testing {
namespace {

struct LinuxFiles : LinuxSubject {
  void add(const std::string& name, const std::string& content) { folder.write(name, content); }
  Url url(const std::string& name) const { return folder.url(name); }
  std::string content(const std::string& name) const { return folder.read(name); }
  /// Runs the work as a user who may not write there; false if there is no such user.
  bool withoutPermission(const std::function<void()>& work) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms{0555});
    constexpr uid_t kNobody = 65534;
    const bool isRoot = ::geteuid() == 0;
    if (isRoot && ::seteuid(kNobody) != 0) return false;
    work();
    return !isRoot || ::seteuid(0) == 0;
  }
  NSFileManager& service = files;
};
struct MemoryFiles : MemorySubject {
  void add(const std::string& name, const std::string& content) {
    Url download = *files.makeDownload(name, content.size());
    files.moveItemAtURL(download, url(name));
  }
  Url url(const std::string& name) const { return files.url(name); }
  std::string content(const std::string& name) {
    return std::string(files.size(url(name)).value_or(0), 'x');
  }
  bool withoutPermission(const std::function<void()>& /*work*/) { return false; }
  NSFileManager& service = files;
};
struct DoubleFiles : DoubleSubject {
  void add(const std::string& name, const std::string& content) {
    platform.files["/" + name] = content.size();
  }
  Url url(const std::string& name) const { return Url::fileURLWithPath("/" + name); }
  std::string content(const std::string& name) const {
    std::string text;
    const auto found = platform.files.find("/" + name);
    if (found != platform.files.end()) text.assign(found->second, 'x');
    return text;
  }
  bool withoutPermission(const std::function<void()>& work) {
    platform.lockedFolder = "/";
    work();
    return true;
  }
  NSFileManager& service = *platform.defaultManager();
};

template <class Subject>
class NSFileManagerConformance : public ::testing::Test {
 protected:
  /// Returns "domain code, POSIX code" of a move, or "moved".
  std::string move(const std::string& from, const std::string& to) {
    const auto error = subject.service.moveItemAtURL(subject.url(from), subject.url(to));
    if (!error) return "moved";
    const auto* posix = error->userInfo()[NSError::kUnderlyingError].template as<NSError>();
    EXPECT_TRUE(posix != nullptr && posix->domain() == "NSPOSIXErrorDomain");
    return error->domain() + " " + std::to_string(error->code()) + ", " +
           std::to_string(posix == nullptr ? 0 : posix->code());
  }
  Subject subject;
};
using FileManagers = ::testing::Types<LinuxFiles, MemoryFiles, DoubleFiles>;
TYPED_TEST_SUITE(NSFileManagerConformance, FileManagers, SubjectNames);

TYPED_TEST(NSFileManagerConformance, TheCachesFoldersAreFileURLsThatEndInASlash) {
  const auto urls = this->subject.service.URLsForCachesDirectory();
  EXPECT_FALSE(urls.empty());
  for (const Url& url : urls) {
    EXPECT_TRUE(url.isFileURL()) << url.absoluteString();
    EXPECT_TRUE(url.absoluteString().ends_with("/")) << url.absoluteString();
  }
}

TYPED_TEST(NSFileManagerConformance, MovesAFile) {
  this->subject.add("a b", "xxx");
  EXPECT_EQ(this->move("a b", "ä"), "moved");
  EXPECT_EQ(this->subject.content("a b"), "");
  EXPECT_EQ(this->subject.content("ä"), "xxx");
}

TYPED_TEST(NSFileManagerConformance, NeverOverwrites) {
  this->subject.add("a", "xxx");
  this->subject.add("b", "x");
  EXPECT_EQ(this->move("a", "b"), "NSCocoaErrorDomain 516, 17");
  EXPECT_EQ(this->subject.content("a"), "xxx");
  EXPECT_EQ(this->subject.content("b"), "x");
}

TYPED_TEST(NSFileManagerConformance, AFolderWithoutPermissionIsAnError) {
  this->subject.add("a", "xxx");
  std::string outcome;
  const bool wasTried = this->subject.withoutPermission([&] { outcome = this->move("a", "b"); });
  if (!wasTried) GTEST_SKIP() << "no user without permission";
  EXPECT_EQ(outcome, "NSCocoaErrorDomain 513, 13");
  EXPECT_EQ(this->subject.content("a"), "xxx");
}

}  // namespace
}  // namespace orvanta::testing
