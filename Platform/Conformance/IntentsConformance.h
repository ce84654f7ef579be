#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/Conformance/Subject.h"
#include "orvanta/Platform/Intents.h"

namespace orvanta::conformance {

/// A subject of IntentsConformance.
///
/// `willFail()` makes every donation fail with an error of "IntentsErrorDomain".
template <class Subject>
concept IntentsSubject = QueueSubjectOf<Subject, Intents> && requires(Subject subject) {
  subject.willFail();
};

/// Checks what Intents promises:
///
///     struct DonationSubject {
///       void willFail() { intents.setDonationsAllowed(false); }
///       Intents& service() { return intents; }
///       void runAll() { queue.drain(); }
///       MyQueue queue;
///       MyIntents intents{queue};
///     };
///     INSTANTIATE_TYPED_TEST_SUITE_P(MyPort, IntentsConformance, DonationSubject);
template <class Subject>
class IntentsConformance : public ::testing::Test {
  static_assert(IntentsSubject<Subject>);
};
TYPED_TEST_SUITE_P(IntentsConformance);

TYPED_TEST_P(IntentsConformance, ADonationCompletesOnceAndAfterTheCall) {
  for (const bool fails : {false, true}) {
    TypeParam subject;
    if (fails) subject.willFail();
    Intents& intents = subject.service();
    std::vector<Ref<NSError>> results;
    intents.donateInteraction({}, [&](const Ref<NSError>& e) { results.push_back(e); });
    EXPECT_TRUE(results.empty());
    subject.runAll();
    subject.runAll();
    ASSERT_EQ(results.size(), 1U);
    ASSERT_EQ(results[0] != nullptr, fails);
    if (fails) {
      EXPECT_EQ(results[0]->domain(), "IntentsErrorDomain");
    }
  }
}

TYPED_TEST_P(IntentsConformance, AnUpdateMakesANewContentAndChangesNothingElse) {
  TypeParam subject;
  Intents& intents = subject.service();
  UNNotificationContent content;
  content.title = "Ana";
  content.userInfo = {{"k", 1}};
  content.categoryIdentifier = "c";
  INSendMessageIntent intent;
  intent.sender = {.personHandle = {.value = "Ana"}, .image = INImage{"jpeg"}};
  intent.speakableGroupName = INSpeakableString{"Friends"};
  const auto [updated, error] = intents.contentByUpdating(content, intent);
  EXPECT_FALSE(error);
  ASSERT_TRUE(updated);
  EXPECT_NE(updated.get(), &content);
  EXPECT_FALSE(content.communication);
  EXPECT_EQ(updated->communication, (UNCommunication{"Ana", true, "Friends", false}));
  EXPECT_EQ(updated->title, "Ana");
  EXPECT_TRUE(updated->userInfo == content.userInfo);
  EXPECT_EQ(updated->categoryIdentifier, "c");
}

REGISTER_TYPED_TEST_SUITE_P(IntentsConformance, ADonationCompletesOnceAndAfterTheCall,
                            AnUpdateMakesANewContentAndChangesNothingElse);

}  // namespace orvanta::conformance
