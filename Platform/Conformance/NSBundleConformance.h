#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Conformance/Threads.h"
#include "orvanta/Platform/NSBundle.h"

namespace orvanta::conformance {

/// The Localizable.strings of the bundle under test.
inline constexpr std::string_view kLocalizableStrings =
    R"("►►" = "Weiter"; empty = ""; "two words" = "x\ny";)";

/// Checks what NSBundle promises of localized strings:
///
///     struct BundleSubject {
///       BundleSubject() { folder.write("en.lproj/Localizable.strings", kLocalizableStrings); }
///       NSBundle& service() { return bundle; }
///       TestFolder folder;
///       MyBundle bundle{folder.path()};
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, NSBundleConformance, BundleSubject);
template <class Subject>
class NSBundleConformance : public ::testing::Test {
  static_assert(SubjectOf<Subject, NSBundle>);
};
TYPED_TEST_SUITE_P(NSBundleConformance);

TYPED_TEST_P(NSBundleConformance, ReturnsTheStringOrTheKeyOnAnyThread) {
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

REGISTER_TYPED_TEST_SUITE_P(NSBundleConformance, ReturnsTheStringOrTheKeyOnAnyThread);

}  // namespace orvanta::conformance
