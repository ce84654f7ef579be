#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <functional>
#include <string>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/NSFileManager.h"

namespace orvanta::conformance {

/// A subject of NSFileManagerConformance, which has an empty folder.
///
/// - `add(name, content)` adds a file to the folder. The content is some 'x', so a subject can keep
///   its size alone.
/// - `url(name)` returns the file URL of that name in the folder, present or not.
/// - `content(name)` returns the content of a file; empty if it is missing.
/// - `withoutPermission(work)` runs the work while the folder cannot be written, and makes it
///   writable again. Returns false without running it where that is impossible.
template <class Subject>
concept NSFileManagerSubject = SubjectOf<Subject, NSFileManager> &&
    requires(Subject subject, std::string string, std::function<void()> work) {
  subject.add(string, string);
  { subject.url(string) } -> std::convertible_to<Url>;
  { subject.content(string) } -> std::convertible_to<std::string>;
  { subject.withoutPermission(work) } -> std::convertible_to<bool>;
};

/// Checks what NSFileManager promises:
///
///     struct FilesSubject {
///       void add(const std::string& name, const std::string& content) { folder.write(name,
///       content); } Url url(const std::string& name) { return folder.url(name); } std::string
///       content(const std::string& name) { return folder.read(name); } bool
///       withoutPermission(const std::function<void()>&) { return false; } NSFileManager& service()
///       { return files; } TestFolder folder; MyFileManager files;
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, NSFileManagerConformance, FilesSubject);
template <class Subject>
class NSFileManagerConformance : public ::testing::Test {
  static_assert(NSFileManagerSubject<Subject>);

 protected:
  /// Returns "domain code, POSIX code" of a move, or "moved".
  std::string move(const std::string& from, const std::string& to) {
    NSFileManager& files = subject.service();
    const auto error = files.moveItemAtURL(subject.url(from), subject.url(to));
    if (!error) return "moved";
    const auto* posix = error->userInfo()[NSError::kUnderlyingError].template as<NSError>();
    EXPECT_TRUE(posix != nullptr && posix->domain() == "NSPOSIXErrorDomain");
    return error->domain() + " " + std::to_string(error->code()) + ", " +
           std::to_string(posix == nullptr ? 0 : posix->code());
  }
  Subject subject;
};
TYPED_TEST_SUITE_P(NSFileManagerConformance);

TYPED_TEST_P(NSFileManagerConformance, TheCachesFoldersAreFileURLsThatEndInASlash) {
  NSFileManager& files = this->subject.service();
  const auto urls = files.URLsForCachesDirectory();
  EXPECT_FALSE(urls.empty());
  for (const Url& url : urls) {
    EXPECT_TRUE(url.isFileURL()) << url.absoluteString();
    EXPECT_TRUE(url.absoluteString().ends_with("/")) << url.absoluteString();
  }
}

TYPED_TEST_P(NSFileManagerConformance, MovesAFile) {
  this->subject.add("a b", "xxx");
  EXPECT_EQ(this->move("a b", "ä"), "moved");
  EXPECT_EQ(this->subject.content("a b"), "");
  EXPECT_EQ(this->subject.content("ä"), "xxx");
}

TYPED_TEST_P(NSFileManagerConformance, NeverOverwrites) {
  this->subject.add("a", "xxx");
  this->subject.add("b", "x");
  EXPECT_EQ(this->move("a", "b"), "NSCocoaErrorDomain 516, 17");
  EXPECT_EQ(this->subject.content("a"), "xxx");
  EXPECT_EQ(this->subject.content("b"), "x");
}

TYPED_TEST_P(NSFileManagerConformance, AFolderWithoutPermissionIsAnError) {
  this->subject.add("a", "xxx");
  std::string outcome;
  const bool wasTried = this->subject.withoutPermission([&] { outcome = this->move("a", "b"); });
  if (!wasTried) GTEST_SKIP() << "no user without permission";
  EXPECT_EQ(outcome, "NSCocoaErrorDomain 513, 13");
  EXPECT_EQ(this->subject.content("a"), "xxx");
}

REGISTER_TYPED_TEST_SUITE_P(NSFileManagerConformance, TheCachesFoldersAreFileURLsThatEndInASlash,
                            MovesAFile, NeverOverwrites, AFolderWithoutPermissionIsAnError);

}  // namespace orvanta::conformance
