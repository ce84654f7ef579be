#include "Conformance/Subjects.h"
#include "orvanta/Simulator/SimulatedIntents.h"

namespace orvanta::testing {
namespace {

struct MemoryIntentsSubject : MemorySubject {
  explicit MemoryIntentsSubject(bool fails)
      : service(loop, log, state, {.donationFails = fails, .updateFails = fails}) {}
  SimulatedIntents service;
};
struct DoubleIntentsSubject : DoubleSubject {
  explicit DoubleIntentsSubject(bool fails) : service(*platform.intents()) {
    if (!fails) return;
    platform.donationError = NSError::errorWithDomain("IntentsErrorDomain", 1900);
    platform.updateError = NSError::errorWithDomain("UNErrorDomain", 1501);
  }
  Intents& service;
};

template <class Subject>
class IntentsConformance : public ::testing::Test {};
using IntentsSubjects = ::testing::Types<MemoryIntentsSubject, DoubleIntentsSubject>;
TYPED_TEST_SUITE(IntentsConformance, IntentsSubjects, SubjectNames);

TYPED_TEST(IntentsConformance, ADonationCompletesOnceAndAfterTheCall) {
  for (const bool fails : {false, true}) {
    TypeParam subject(fails);
    std::vector<Ref<NSError>> results;
    subject.service.donateInteraction({}, [&](const Ref<NSError>& e) { results.push_back(e); });
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

TYPED_TEST(IntentsConformance, AnUpdateMakesANewContentAndChangesNothingElse) {
  TypeParam subject(false);
  UNNotificationContent content;
  content.title = "Ana";
  content.userInfo = {{"k", 1}};
  content.categoryIdentifier = "c";
  INSendMessageIntent intent;
  intent.sender = {.personHandle = {.value = "Ana"}, .image = INImage{"jpeg"}};
  intent.speakableGroupName = INSpeakableString{"Friends"};
  const auto [updated, error] = subject.service.contentByUpdating(content, intent);
  EXPECT_FALSE(error);
  ASSERT_TRUE(updated);
  EXPECT_NE(updated.get(), &content);
  EXPECT_FALSE(content.communication);
  EXPECT_EQ(updated->communication, (UNCommunication{"Ana", true, "Friends", false}));
  EXPECT_EQ(updated->title, "Ana");
  EXPECT_EQ(Value(updated->userInfo), Value(content.userInfo));
  EXPECT_EQ(updated->categoryIdentifier, "c");
}

}  // namespace
}  // namespace orvanta::testing
