#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/UserNotifications.h"

namespace orvanta::conformance {

/// Checks what UNUserNotificationCenter promises, on a center without categories:
///
///     struct CenterSubject {
///       UNUserNotificationCenter& service() { return center; }
///       void runAll() { queue.drain(); }
///       MyQueue queue;
///       MyCenter center{queue};
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, UNUserNotificationCenterConformance, CenterSubject);
template <class Subject>
class UNUserNotificationCenterConformance : public ::testing::Test {
  static_assert(QueueSubjectOf<Subject, UNUserNotificationCenter>);
};
TYPED_TEST_SUITE_P(UNUserNotificationCenterConformance);

TYPED_TEST_P(UNUserNotificationCenterConformance, AWriteReplacesTheWholeSet) {
  using Categories = std::vector<UNNotificationCategory>;
  TypeParam subject;
  UNUserNotificationCenter& center = subject.service();
  const UNNotificationCategory a{
      "a",
      {UNNotificationAction::actionWithIdentifier("1", "One", 7),
       UNTextInputNotificationAction::actionWithIdentifier("2", "Two", 0)}};
  const UNNotificationCategory otherA{"a", {}};
  const UNNotificationCategory b{"b", {}};
  std::vector<Categories> reads;
  for (const Categories& written :
       {Categories{}, Categories{b, a, a, otherA}, Categories{otherA}}) {
    UNNotificationCategorySet set;
    for (const UNNotificationCategory& category : written) set.insert(category);
    center.setNotificationCategories(set);
    center.getNotificationCategories([&reads](const UNNotificationCategorySet& categories) {
      reads.emplace_back(categories.begin(), categories.end());
    });
    subject.runAll();
  }
  ASSERT_EQ(reads.size(), 3U);
  EXPECT_TRUE(reads[0].empty());
  EXPECT_EQ(reads[1], (Categories{b, a, otherA}));  // equal ones once, in order
  EXPECT_EQ(reads[2], Categories{otherA});
}

TYPED_TEST_P(UNUserNotificationCenterConformance, CompletesReadsInTheirOrder) {
  TypeParam subject;
  UNUserNotificationCenter& center = subject.service();
  std::string order;
  center.getNotificationCategories([&](const auto&) {
    order += "1";
    center.getNotificationCategories([&](const auto&) { order += "3"; });
  });
  center.getNotificationCategories([&](const auto&) { order += "2"; });
  subject.runAll();
  EXPECT_EQ(order, "123");
}

REGISTER_TYPED_TEST_SUITE_P(UNUserNotificationCenterConformance, AWriteReplacesTheWholeSet,
                            CompletesReadsInTheirOrder);

}  // namespace orvanta::conformance
