#include "NotificationService/ExtensionRun.h"
#include "orvanta/NotificationService/NotificationHelper.h"

namespace orvanta::testing {
namespace {

/// "identifier(action action) …"
std::string summary(const UNNotificationCategorySet& categories) {
  std::string text;
  for (const UNNotificationCategory& category : categories) {
    text += (text.empty() ? "" : " ") + category.identifier + "(";
    for (const auto& action : category.actions) {
      text += (text.back() == '(' ? "" : " ") + action->identifier();
    }
    text += ")";
  }
  return text;
}

UNNotificationCategory category(std::string identifier, const char* action) {
  return {std::move(identifier), {UNNotificationAction::actionWithIdentifier(action, "", 0)}};
}

TEST(NotificationHelper, LocalizesFixedTitles) {
  const auto titles = [] {
    std::string text;
    const UNNotificationCategorySet set = NotificationHelper::setForCategories({});
    for (const auto& action : set.begin()->actions) {
      EXPECT_EQ(action->options(), 4U);
      EXPECT_FALSE(action->takesText());
      text += "[" + action->title() + "]";
    }
    return text;
  };
  FakePlatform platform;
  EXPECT_EQ(titles(), "[►►][Go To App 🚀]");
  platform.texts = {{"►►", "Weiter"}, {"Go To App 🚀", "Öffnen"}};
  EXPECT_EQ(titles(), "[Weiter][Öffnen]");
  platform.absent = {"bundle"};
  EXPECT_EQ(titles(), "[►►][Go To App 🚀]");
}

TEST(NotificationHelper, ANewCategoryReplacesOneWithItsIdentifier) {
  const struct {
    std::vector<UNNotificationCategory> registered;
    std::vector<UNNotificationCategory> added;
    std::string_view summary;
  } rows[] = {
      {{}, {}, ""},
      {{category("a", "1"), category("b", "1")}, {category("a", "2")}, "a(2) b(1)"},
      {{category("a", "1")}, {category("A", "2")}, "a(1) A(2)"},
      {{}, {category("a", "1"), category("b", "1"), category("a", "2")}, "a(2) b(1)"},
      {{category("a", "1"), category("a", "2")}, {category("b", "1")}, "a(2) b(1)"},
  };
  for (const auto& row : rows) {
    FakePlatform platform;
    for (const auto& one : row.registered) platform.center->registered.insert(one);
    UNNotificationCategorySet set;
    for (const auto& one : row.added) set.insert(one);
    NotificationHelper::setNotificationCategories(set, platform.center, {});
    EXPECT_TRUE(platform.center->written.empty());
    platform.runAll();
    ASSERT_EQ(platform.center->written.size(), 1U);
    EXPECT_EQ(summary(platform.center->written[0]), row.summary);
  }
}

TEST(NotificationHelper, CompletesWithTrueAfterTheRegistration) {
  for (const auto& operation :
       {&NotificationHelper::setNotificationCategories,
        &NotificationHelper::requestNotificationAuthorizationForCategories}) {
    FakePlatform platform;
    operation({}, platform.center,
              [&](bool flag) { platform.calls.emplace_back(flag ? "complete" : "fail"); });
    EXPECT_EQ(platform.calls, std::vector<std::string>{"read"});
    platform.runAll();
    EXPECT_EQ(platform.calls, (std::vector<std::string>{"read", "write", "complete"}));
    operation({}, nullptr, [](bool) { ADD_FAILURE(); });
    operation({}, platform.center, nullptr);
    platform.runAll();
    EXPECT_EQ(platform.center->written.size(), 2U);
  }
}

TEST(NotificationHelper, ACenterLivesUntilItsCallback) {
  FakePlatform platform;
  const std::weak_ptr<FakePlatform::Center> center = platform.center;
  NotificationHelper::setNotificationCategories({}, std::exchange(platform.center, nullptr), {});
  EXPECT_FALSE(center.expired());
  platform.runAll();
  EXPECT_TRUE(center.expired());
  EXPECT_EQ(platform.calls.back(), "write");
}

}  // namespace
}  // namespace orvanta::testing
