#include <unistd.h>

#include "Conformance/Subjects.h"
#include "orvanta/Conformance/NSFileManagerConformance.h"

namespace orvanta::testing {
namespace {

using namespace conformance;

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
  NSFileManager& service() { return files; }
};
struct MemoryFiles : MemorySubject {
  void add(const std::string& name, const std::string& content) {
    Url download = *files.makeDownload(name, content.size());
    files.moveItemAtURL(download, url(name));
  }
  Url url(const std::string& name) const { return files.url(name); }
  std::string content(const std::string& name) {
    std::string characters(files.size(url(name)).value_or(0), 'x');
    return characters;
  }
  bool withoutPermission(const std::function<void()>& /*work*/) { return false; }
  NSFileManager& service() { return files; }
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
  NSFileManager& service() { return *platform.defaultManager(); }
};
using NSFileManagerSubjects = ::testing::Types<LinuxFiles, MemoryFiles, DoubleFiles>;
INSTANTIATE_TYPED_TEST_SUITE_P(Conformance, NSFileManagerConformance, NSFileManagerSubjects);

}  // namespace
}  // namespace orvanta::testing
