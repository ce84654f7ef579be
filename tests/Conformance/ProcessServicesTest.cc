#include <sstream>

#include "Conformance/Subjects.h"
#include "orvanta/Simulator/RecordingLog.h"
#include "orvanta/Simulator/StringsFile.h"
#include "orvanta/Simulator/SystemClock.h"
#include "orvanta/Simulator/UniformTypes.h"
#include "support/Threads.h"

// The services that return at once, on any thread.

namespace orvanta::testing {
namespace {

// ---- Clock -------------------------------------------------------------------

struct MachineClock : MemorySubject {
  SystemClock service;
};
struct DoubleClock : DoubleSubject {
  Clock& service = *platform.clock();
};

template <class Subject>
class ClockConformance : public ::testing::Test {};
using Clocks = ::testing::Types<MachineClock, DoubleClock>;
TYPED_TEST_SUITE(ClockConformance, Clocks, SubjectNames);

TYPED_TEST(ClockConformance, NeverGoesBackOnAnyThread) {
  TypeParam subject;
  const std::int64_t start = subject.service.monotonicNanoseconds();
  runTogether([&] {
    std::int64_t last = start;
    for (int i = 0; i < 1000; ++i) {
      const std::int64_t now = subject.service.monotonicNanoseconds();
      EXPECT_LE(last, now);
      last = now;
    }
  });
  EXPECT_GE(subject.service.monotonicNanoseconds(), start);
}

// ---- System log ----------------------------------------------------------------

struct StreamLog : MemorySubject {
  std::vector<std::string> entries() const { return service.entries(); }
  std::ostringstream out;
  RecordingLog service{out};
};
struct DoubleLog : DoubleSubject {
  std::vector<std::string> entries() const { return platform.log; }
  SystemLog& service = *platform.systemLog();
};

template <class Subject>
class SystemLogConformance : public ::testing::Test {};
using Logs = ::testing::Types<StreamLog, DoubleLog>;
TYPED_TEST_SUITE(SystemLogConformance, Logs, SubjectNames);

TYPED_TEST(SystemLogConformance, TakesWholeEntriesFromAnyThread) {
  TypeParam subject;
  const std::string entry(200, 'x');
  runTogether([&] {
    for (int i = 0; i < 100; ++i) subject.service.write(entry);
  });
  EXPECT_EQ(subject.entries(), std::vector<std::string>(400, entry));
}

// ---- Bundle ----------------------------------------------------------------------

struct FileStrings : MemorySubject {
  NSBundle& service() { return bundle; }
  SimulatedBundle bundle{
      parseStrings(R"("►►" = "Weiter"; empty = ""; "two words" = "x\ny";)", "Localizable.strings")};
};
struct DoubleTexts : DoubleSubject {
  DoubleTexts() { platform.texts = {{"►►", "Weiter"}, {"empty", ""}, {"two words", "x\ny"}}; }
  NSBundle& service() { return *platform.mainBundle(); }
};

template <class Subject>
class NSBundleConformance : public ::testing::Test {};
using Bundles = ::testing::Types<FileStrings, DoubleTexts>;
TYPED_TEST_SUITE(NSBundleConformance, Bundles, SubjectNames);

TYPED_TEST(NSBundleConformance, ReturnsTheStringOrTheKeyOnAnyThread) {
  TypeParam subject;
  NSBundle& bundle = subject.service();
  runTogether([&bundle] {
    EXPECT_EQ(bundle.localizedStringForKey("►►"), "Weiter");
    EXPECT_EQ(bundle.localizedStringForKey("two words"), "x\ny");
    EXPECT_EQ(bundle.localizedStringForKey("empty"), "");
    for (const char* const key : {"missing", "Two Words", ""}) {
      EXPECT_EQ(bundle.localizedStringForKey(key), key);
    }
  });
}

// ---- Type identifiers ----------------------------------------------------------

struct SimulatedTypes : MemorySubject {
  UniformTypes service;
};
struct DoubleTypes : DoubleSubject {
  TypeIdentifiers& service = *platform.typeIdentifiers();
};

template <class Subject>
class TypeIdentifiersConformance : public ::testing::Test {};
using Types = ::testing::Types<SimulatedTypes, DoubleTypes>;
TYPED_TEST_SUITE(TypeIdentifiersConformance, Types, SubjectNames);

TYPED_TEST(TypeIdentifiersConformance, UndeclaredTypesHaveDynamicIdentifiers) {
  TypeParam subject;
  std::set<std::string> identifiers;
  const std::vector<std::string> types{"image/x-odd", "image/x-odder", "image/jpeg; q=1",
                                       " image/jpeg", "jpeg"};
  for (const std::string& type : types) {
    const auto identifier = subject.service.preferredIdentifierForMIMEType(type);
    ASSERT_TRUE(identifier) << type;
    EXPECT_TRUE(identifier->starts_with("dyn.a")) << *identifier;
    EXPECT_EQ(identifier, subject.service.preferredIdentifierForMIMEType(type));
    identifiers.insert(*identifier);
  }
  EXPECT_EQ(identifiers.size(), types.size());
  EXPECT_EQ(subject.service.preferredIdentifierForMIMEType("Image/X-Odd"),
            subject.service.preferredIdentifierForMIMEType("image/x-odd"));
  EXPECT_EQ(subject.service.preferredIdentifierForMIMEType(std::nullopt), std::nullopt);
}

}  // namespace
}  // namespace orvanta::testing
