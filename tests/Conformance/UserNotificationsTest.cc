#include "Conformance/Subjects.h"
#include "orvanta/Simulator/SimulatedAttachments.h"
#include "orvanta/Simulator/SimulatedNotificationCenter.h"

namespace orvanta::testing {
namespace {

// ---- The center -------------------------------------------------------------

struct LinuxCenter : LinuxSubject {
  SimulatedNotificationCenter service{loop, log, state, 0.0};
};
struct DoubleCenter : DoubleSubject {
  UNUserNotificationCenter& service = *platform.center;
};

template <class Subject>
class UNUserNotificationCenterConformance : public ::testing::Test {};
using Centers = ::testing::Types<LinuxCenter, DoubleCenter>;
TYPED_TEST_SUITE(UNUserNotificationCenterConformance, Centers, SubjectNames);

UNNotificationCategorySet setOf(const std::vector<UNNotificationCategory>& categories) {
  UNNotificationCategorySet set;
  for (const UNNotificationCategory& category : categories) set.insert(category);
  return set;
}

/// Returns a completion that appends what is read.
auto readInto(std::vector<std::vector<UNNotificationCategory>>& reads) {
  return [&reads](const UNNotificationCategorySet& set) {
    reads.emplace_back(set.begin(), set.end());
  };
}

TYPED_TEST(UNUserNotificationCenterConformance, AWriteReplacesTheWholeSet) {
  TypeParam subject;
  const UNNotificationCategory a{
      "a",
      {UNNotificationAction::actionWithIdentifier("1", "One", 7),
       UNTextInputNotificationAction::actionWithIdentifier("2", "Two", 0)}};
  const UNNotificationCategory otherA{"a", {}};
  const UNNotificationCategory b{"b", {}};
  std::vector<std::vector<UNNotificationCategory>> reads;
  for (const auto& set : {setOf({}), setOf({b, a, a, otherA}), setOf({otherA})}) {
    subject.service.setNotificationCategories(set);
    subject.service.getNotificationCategories(readInto(reads));
    subject.runAll();
  }
  ASSERT_EQ(reads.size(), 3U);
  EXPECT_TRUE(reads[0].empty());
  EXPECT_EQ(reads[1], (std::vector{b, a, otherA}));  // equal ones once, in order
  EXPECT_EQ(reads[2], std::vector{otherA});
}

TYPED_TEST(UNUserNotificationCenterConformance, CompletesReadsInTheirOrder) {
  TypeParam subject;
  std::string order;
  subject.service.getNotificationCategories([&](const auto&) {
    order += "1";
    subject.service.getNotificationCategories([&](const auto&) { order += "3"; });
  });
  subject.service.getNotificationCategories([&](const auto&) { order += "2"; });
  subject.runAll();
  EXPECT_EQ(order, "123");
}

// ---- Attachments ------------------------------------------------------------

struct LinuxAttachments : LinuxSubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    Url url = folder.write(name, "");
    std::filesystem::resize_file(folder / name, bytes);
    return url;
  }
  SimulatedAttachments service{files};
};
struct MemoryAttachments : MemorySubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    return *files.makeDownload(name, bytes);
  }
  SimulatedAttachments service{files};
};
struct DoubleAttachments : DoubleSubject {
  Url addFile(const std::string& name, std::uint64_t bytes) {
    platform.files["/" + name] = bytes;
    return Url::fileURLWithPath("/" + name);
  }
  UNNotificationAttachmentFactory& service = *platform.attachments();
};

template <class Subject>
class UNNotificationAttachmentFactoryConformance : public ::testing::Test {};
using Factories = ::testing::Types<LinuxAttachments, MemoryAttachments, DoubleAttachments>;
TYPED_TEST_SUITE(UNNotificationAttachmentFactoryConformance, Factories, SubjectNames);

TYPED_TEST(UNNotificationAttachmentFactoryConformance, ChecksTypeAndSize) {
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
    const Url url = subject.addFile(row.file, row.bytes);
    const auto result = subject.service.attachmentWithIdentifier("id", url, row.hint);
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

TYPED_TEST(UNNotificationAttachmentFactoryConformance, TakesFileURLsOfPresentFilesOnly) {
  TypeParam subject;
  const Url present = subject.addFile("a.jpg", 1);
  const std::string path = present.path();
  for (const std::string& url : {"file://" + path + ".jpg", "https://m.example" + path, path}) {
    const auto result =
        subject.service.attachmentWithIdentifier("id", *Url::parse(url), "public.jpeg");
    ASSERT_TRUE(result.error) << url;
    EXPECT_FALSE(result.attachment) << url;
    EXPECT_EQ(result.error->code(), 100) << url;
  }
}

}  // namespace
}  // namespace orvanta::testing
