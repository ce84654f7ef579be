#pragma once

#include <gtest/gtest.h>

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta::conformance {

/// A subject of UNNotificationAttachmentFactoryConformance.
///
/// `addFile(name, bytes)` creates a file of that size, whose URL it returns. The name ends in the
/// given extension; the content is the subject's choice.
template <class Subject>
concept UNNotificationAttachmentFactorySubject =
    SubjectOf<Subject, UNNotificationAttachmentFactory> &&
    requires(Subject subject, std::string name, std::uint64_t bytes) {
  { subject.addFile(name, bytes) } -> std::convertible_to<Url>;
};

/// Checks what UNNotificationAttachmentFactory promises:
///
///     struct AttachmentSubject {
///       Url addFile(const std::string& name, std::uint64_t bytes) { return folder.add(name,
///       bytes); } UNNotificationAttachmentFactory& service() { return factory; } TestFolder
///       folder; MyAttachments factory;
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, UNNotificationAttachmentFactoryConformance,
///                                    AttachmentSubject);
template <class Subject>
class UNNotificationAttachmentFactoryConformance : public ::testing::Test {
  static_assert(UNNotificationAttachmentFactorySubject<Subject>);
};
TYPED_TEST_SUITE_P(UNNotificationAttachmentFactoryConformance);

TYPED_TEST_P(UNNotificationAttachmentFactoryConformance, ChecksTypeAndSize) {
  const struct {
    const char* file;
    std::uint64_t bytes;
    std::optional<std::string> hint;
    std::int64_t errorCode;  // 0: none
    const char* type;
  } rows[] = {
      {"a.tmp", 1, "public.jpeg", 0, "public.jpeg"},
      {"a.mp3", 1, "public.jpeg", 0, "public.jpeg"},  // the hint comes first
      {"a.tmp", 10'000'000, "public.jpeg", 0, "public.jpeg"},
      {"a.tmp", 10'000'001, "public.jpeg", 102, ""},
      {"a.tmp", 5'000'000, "public.mp3", 0, "public.mp3"},
      {"a.tmp", 5'000'001, "public.mp3", 102, ""},
      {"a.tmp", 50'000'000, "public.mpeg-4", 0, "public.mpeg-4"},
      {"a.tmp", 50'000'001, "public.mpeg-4", 102, ""},
      {"a.tmp", 1, std::nullopt, 101, ""},
      {"a.jpg", 1, "public.plain-text", 101, ""},
      {"a.jpg", 1, "image/jpeg", 101, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(&row - rows);
    TypeParam subject;
    UNNotificationAttachmentFactory& factory = subject.service();
    const Url url = subject.addFile(row.file, row.bytes);
    const auto result = factory.attachmentWithIdentifier("id", url, row.hint);
    ASSERT_NE(result.attachment == nullptr, result.error == nullptr);
    if (result.error) {
      EXPECT_EQ(result.error->domain(), "UNErrorDomain");
      EXPECT_EQ(result.error->code(), row.errorCode);
    } else {
      const auto& parts = result.attachment->parts();
      EXPECT_EQ(row.errorCode, 0);
      EXPECT_EQ(parts.identifier, "id");
      EXPECT_EQ(parts.url, url);
      EXPECT_EQ(parts.typeHint, row.hint);
      EXPECT_EQ(parts.type, row.type);
      EXPECT_EQ(parts.bytes, row.bytes);
    }
  }
}

TYPED_TEST_P(UNNotificationAttachmentFactoryConformance, TakesFileURLsOfPresentFilesOnly) {
  TypeParam subject;
  UNNotificationAttachmentFactory& factory = subject.service();
  const Url present = subject.addFile("a.jpg", 1);
  const std::string path = present.path();
  for (const std::string& url : {"file://" + path + ".jpg", "https://m.example" + path, path}) {
    const auto result = factory.attachmentWithIdentifier("id", *Url::parse(url), "public.jpeg");
    ASSERT_TRUE(result.error) << url;
    EXPECT_FALSE(result.attachment) << url;
    EXPECT_EQ(result.error->code(), 100) << url;
  }
}

REGISTER_TYPED_TEST_SUITE_P(UNNotificationAttachmentFactoryConformance, ChecksTypeAndSize,
                            TakesFileURLsOfPresentFilesOnly);

}  // namespace orvanta::conformance
