#include <gtest/gtest.h>

#include "orvanta/Model/Notifications/OrvantaUserNotificationAction.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(OrvantaUserNotificationAction, ItsFieldsSetOptionsAndKind) {
  const struct {
    std::string_view json;
    unsigned options;
    bool takesText;
  } rows[] = {
      {R"({})", 4, false},
      {R"({"actM": 0, "dest": false, "auth": false})", 4, false},
      {R"({"actM": 1})", 0, false},
      {R"({"actM": 18446744073709551615})", 0, false},
      {R"({"auth": true})", 5, false},
      {R"({"dest": true})", 6, false},
      {R"({"dest": "yes", "auth": 1})", 7, false},
      {R"({"bhv": 1})", 4, true},
      {R"({"bhv": 1, "actM": 1, "dest": true, "auth": true})", 3, true},
      {R"({"bhv": 2})", 4, false},
  };
  for (const auto& row : rows) {
    const auto action = modelFromJSON<OrvantaUserNotificationAction>(row.json);
    ASSERT_TRUE(action) << row.json;
    EXPECT_EQ(action->interactiveAction()->options(), row.options) << row.json;
    EXPECT_EQ(action->interactiveAction()->takesText(), row.takesText) << row.json;
  }
}

TEST(OrvantaUserNotificationAction, IdentifierAndTitleAreEmptyUnlessStrings) {
  const struct {
    std::string_view json;
    std::string_view identifier;
    std::string_view title;
  } rows[] = {
      {R"({"bhv": 1, "id": "say", "text": "Say"})", "say", "Say"},
      {R"({})", "", ""},
      {R"({"id": ["buy"], "text": {}})", "", ""},
  };
  for (const auto& row : rows) {
    const auto action = modelFromJSON<OrvantaUserNotificationAction>(row.json)->interactiveAction();
    EXPECT_EQ(action->identifier(), row.identifier) << row.json;
    EXPECT_EQ(action->title(), row.title) << row.json;
  }
}

}  // namespace
}  // namespace orvanta::testing
