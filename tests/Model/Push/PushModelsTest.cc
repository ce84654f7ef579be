#include <gtest/gtest.h>

#include "orvanta/Model/Notifications/OrvantaUserNotificationCategory.h"
#include "orvanta/Model/Push/OrvantaPushCarouselObject.h"
#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "support/ModelHelpers.h"

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
  const auto action = modelFromJSON<OrvantaPushObjectAction>(R"({"uri": "a"})");
  action->setDeeplinkURLAsURL();
  EXPECT_TRUE(action->deeplinkURL());
  action->setDeeplinkURLString(nullptr);
  action->setDeeplinkURLAsURL();
  EXPECT_FALSE(action->deeplinkURL());
}

/// The vocabulary of the wire, which no other test spells out in full.
TEST(PushModels, SpellTheirWireKeys) {
  const std::pair<const Class&, std::string_view> rows[] = {
      {OrvantaPushObject::classObject(),
       "aps.category aps.sound aps.badge _ov.pt _ov.mu _ov.pid _ov.piid _ov.xid _ov.cta _ov.st "
       "_ov.dr _ov.cfgV _ov.prms _ov.iam _ov.act _ov.crsl _ov.ia _ov.ets _ov.sts _ov.stl _ov.ps "
       "_ov.thc "},
      {OrvantaPushObjectAlert::classObject(), "title subtitle body "},
      {OrvantaPushObjectAction::classObject(), "uri "},
      {OrvantaPushStyle::classObject(), "ffm iospi "},
      {OrvantaPushCarouselObject::classObject(), "id ctitle ctext act bpp "},
      {OrvantaInAppMessageAction::classObject(),
       "txt tid tt img ttl drc fsz fcl ffm brd pdt pdb pdl pdr omc bcl "},
      {OrvantaUserNotificationAction::classObject(), "act prms id text actM dest auth bhv "},
      {OrvantaUserNotificationCategory::classObject(), "ia id "},
  };
  for (const auto& [cls, keys] : rows) {
    std::string spelt;
    for (const KeyEntry& entry : cls.keyPathPropertySelectorMapping) {
      spelt.append(entry.keyPath).append(" ");
    }
    EXPECT_EQ(spelt, keys) << cls.name;
  }
}

}  // namespace
}  // namespace orvanta::testing
