#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/MobileCoreServices.h"

namespace orvanta::conformance {

/// Checks what TypeIdentifiers promises:
///
///     struct TypesSubject {
///       TypeIdentifiers& service() { return types; }
///       MyTypes types;
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, TypeIdentifiersConformance, TypesSubject);
template <class Subject>
class TypeIdentifiersConformance : public ::testing::Test {
  static_assert(SubjectOf<Subject, TypeIdentifiers>);
};
TYPED_TEST_SUITE_P(TypeIdentifiersConformance);

TYPED_TEST_P(TypeIdentifiersConformance, UndeclaredTypesHaveDynamicIdentifiers) {
  TypeParam subject;
  TypeIdentifiers& identifiers = subject.service();
  std::set<std::string> seen;
  const std::vector<std::string> types{"image/x-odd", "image/x-odder", "image/jpeg; q=1",
                                       " image/jpeg", "jpeg"};
  for (const std::string& type : types) {
    const auto identifier = identifiers.preferredIdentifierForMIMEType(type);
    ASSERT_TRUE(identifier) << type;
    EXPECT_TRUE(identifier->starts_with("dyn.a")) << *identifier;
    EXPECT_EQ(identifier, identifiers.preferredIdentifierForMIMEType(type));
    seen.insert(*identifier);
  }
  EXPECT_EQ(seen.size(), types.size());
  EXPECT_EQ(identifiers.preferredIdentifierForMIMEType("Image/X-Odd"),
            identifiers.preferredIdentifierForMIMEType("image/x-odd"));
  EXPECT_EQ(identifiers.preferredIdentifierForMIMEType(std::nullopt), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(TypeIdentifiersConformance, UndeclaredTypesHaveDynamicIdentifiers);

}  // namespace orvanta::conformance
