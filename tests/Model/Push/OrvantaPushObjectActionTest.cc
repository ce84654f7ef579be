#include <gtest/gtest.h>

#include "orvanta/Model/Push/OrvantaPushObjectAction.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(OrvantaPushObjectAction, PercentEncodesTheDeepLinkAsAHost) {
  const std::pair<Value, std::optional<std::string_view>> rows[] = {
      {"shop://host/path?x=1", "shop:%2F%2Fhost%2Fpath%3Fx=1"},
      {"!$&'()*+,-.:;=[]_~09azAZ", "!$&'()*+,-.:;=[]_~09azAZ"},
      {"", ""},
      {Value::null(), std::nullopt},
      {Value(), std::nullopt},
  };
  for (const auto& [uri, url] : rows) {
    Dictionary dictionary;
    dictionary.set("uri", uri);
    const auto action =
        make<OrvantaPushObjectAction>(&OrvantaPushObjectAction::initWithValue, dictionary);
    ASSERT_TRUE(action);
    EXPECT_FALSE(action->deeplinkURL().isPresent());  // only on request
    action->setDeeplinkURLAsURL();
    EXPECT_EQ(action->deeplinkURLString().raw(), uri);
    ASSERT_EQ(action->deeplinkURL().get() != nullptr, url.has_value()) << describe(uri);
    if (url) {
      EXPECT_EQ(action->deeplinkURL().get()->absoluteString(), *url);
    }
  }
}

TEST(OrvantaPushObjectAction, ClearsTheUrlOfAnEarlierString) {
  const auto action = modelFromJSON<OrvantaPushObjectAction>(R"({"uri": "a"})");
  action->setDeeplinkURLAsURL();
  EXPECT_TRUE(action->deeplinkURL().isPresent());
  action->setDeeplinkURLString(nullptr);
  action->setDeeplinkURLAsURL();
  EXPECT_FALSE(action->deeplinkURL().isPresent());
}

}  // namespace
}  // namespace orvanta::testing
