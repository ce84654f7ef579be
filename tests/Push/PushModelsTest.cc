#include <gtest/gtest.h>

#include "Notifications/OrvantaUserNotificationCategory.h"
#include "Push/OrvantaPushCarouselObject.h"
#include "support/ModelZoo.h"

// The small models of a payload.

namespace orvanta::testing {
namespace {

TEST(OrvantaPushObjectAction, PercentEncodesTheDeepLinkAsAHost) {
  const struct {
    Value uri;
    std::optional<std::string_view> url;
  } rows[] = {
      {"shop://host/path?x=1", "shop:%2F%2Fhost%2Fpath%3Fx=1"},
      {"!$&'()*+,-.:;=[]_~09azAZ", "!$&'()*+,-.:;=[]_~09azAZ"},
      {"", ""},
      {Value::null(), std::nullopt},
      {Value(), std::nullopt},
  };
  for (const auto& row : rows) {
    Dictionary dictionary;
    dictionary.set("uri", row.uri);
    const auto action =
        make<OrvantaPushObjectAction>(&OrvantaPushObjectAction::initWithValue, dictionary);
    ASSERT_TRUE(action);
    EXPECT_FALSE(action->deeplinkURL());  // only when asked
    action->setDeeplinkURLAsURL();
    EXPECT_EQ(action->deeplinkURLString().value(), row.uri);
    ASSERT_EQ(action->deeplinkURL().get() != nullptr, row.url.has_value()) << describe(row.uri);
    if (row.url) {
      EXPECT_EQ(action->deeplinkURL().get()->absoluteString(), *row.url);
    }
  }
}

TEST(OrvantaPushObjectAction, ForgetsTheUrlOfAnEarlierText) {
  const auto action = made<OrvantaPushObjectAction>(R"({"uri": "a"})");
  action->setDeeplinkURLAsURL();
  EXPECT_TRUE(action->deeplinkURL());
  action->setDeeplinkURLString(nullptr);
  action->setDeeplinkURLAsURL();
  EXPECT_FALSE(action->deeplinkURL());
}

}  // namespace
}  // namespace orvanta::testing
