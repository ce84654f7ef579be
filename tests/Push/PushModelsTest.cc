#include <gtest/gtest.h>

#include "Notifications/OrvantaUserNotificationCategory.h"
#include "Push/OrvantaPushCarouselObject.h"
#include "support/ModelZoo.h"

// The small models of a payload.

namespace orvanta::testing {
namespace {

TEST(OrvantaPushObjectAlert, ABodyAloneIsAText) {
  const auto alert = make<OrvantaPushObjectAlert>(&OrvantaPushObjectAlert::initWithString, "b");
  EXPECT_EQ(written(alert->dictionaryValue()), R"({"body":"b"})");
  const auto none = make<OrvantaPushObjectAlert>(&OrvantaPushObjectAlert::initWithValue, Value());
  ASSERT_TRUE(none);
  EXPECT_FALSE(none->body());
}

TEST(OrvantaPushObjectAction, PercentEncodesTheDeepLinkAsAHost) {
  const struct {
    Value uri;
    std::optional<std::string_view> url;
  } rows[] = {
      {"shop://host/path?x=1", "shop:%2F%2Fhost%2Fpath%3Fx=1"},
      {"a b", "a%20b"},
      {"100%", "100%25"},
      {"%2F", "%252F"},
      {"a@b#c", "a%40b%23c"},
      {"ä\"", "%C3%A4%22"},
      {"!$&'()*+,-.:;=[]_~09azAZ", "!$&'()*+,-.:;=[]_~09azAZ"},
      {"<>\\^`{|}", "%3C%3E%5C%5E%60%7B%7C%7D"},
      {"a\n\x7F", "a%0A%7F"},
      {"", ""},
      {5, std::nullopt},
      {Value::null(), std::nullopt},
      {Array({"a"}), std::nullopt},
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

/// "key:property:type" of each row of a class's own table.
std::string keyTableOf(const Class& cls) {
  std::string text;
  for (const KeyEntry& row : cls.keyPathPropertySelectorMapping) {
    std::string type(cls.property(row.property)->encoding);
    std::erase_if(type, [](char c) { return c == '@' || c == '"'; });
    text.append(row.keyPath).append(":").append(row.property).append(":") += type + " ";
  }
  return text;
}

TEST(PushModels, MapTheirKeys) {
  const struct {
    const Class* cls;
    std::string_view keys;
  } rows[] = {
      {&OrvantaPushObject::classObject(),
       "aps.category:interactiveCategoryIdentifier:NSString aps.sound:sound:NSString "
       "aps.badge:badge:Q _ov.pt:pushType:Q _ov.mu:mediaAttachmentURL:NSURL "
       "_ov.pid:pushId:NSString _ov.piid:pushInstanceId:NSString _ov.xid:externalId:NSString "
       "_ov.cta:category:NSArray _ov.st:inboxStatus:Q _ov.dr:shouldSendDeliveryReport:B "
       "_ov.cfgV:appConfigVersion:NSNumber _ov.prms:customDictionary:NSDictionary "
       "_ov.iam:inAppMessage:OrvantaInAppMessageAction "
       "_ov.act:defaultActionDictionary:NSDictionary _ov.crsl:carousel:NSArray "
       "_ov.ia:interactiveActions:NSArray _ov.ets:expirationDate:NSDate _ov.sts:sendDate:NSDate "
       "_ov.stl:style:Q _ov.ps:pushStyle:OrvantaPushStyle _ov.thc:isThumbnail:B "},
      {&OrvantaPushObjectAlert::classObject(),
       "title:title:NSString subtitle:subtitle:NSString body:body:NSString "},
      {&OrvantaPushObjectAction::classObject(), "uri:deeplinkURLString:NSString "},
      {&OrvantaPushStyle::classObject(), "ffm:fontFamily:NSString iospi:pushIcon:NSString "},
      {&OrvantaPushCarouselObject::classObject(),
       "id:itemId:NSString ctitle:title:NSString ctext:text:NSString "
       "act:actionDictionary:NSDictionary bpp:mediaUrl:NSString "},
      {&OrvantaUserNotificationAction::classObject(),
       "act:actionDictionary:NSDictionary prms:customDictionary:NSDictionary "
       "id:identifier:NSString text:title:NSString actM:activationMode:Q dest:destructive:B "
       "auth:authenticationRequired:B bhv:behaviour:Q "},
      {&OrvantaUserNotificationCategory::classObject(),
       "ia:actions:NSMutableArray id:identifier:NSString "},
      {&OrvantaAction::classObject(), ""},
      {&OrvantaInAppMessageAction::classObject(),
       "txt:text:NSString tid:templateId:NSString tt:title:NSString img:image:NSString "
       "ttl:timeToLive:d drc:direction:NSString fsz:fontSize:d fcl:fontColor:NSString "
       "ffm:fontFamily:NSString brd:borderRadius:d pdt:paddingTop:d pdb:paddingBottom:d "
       "pdl:paddingLeft:d pdr:paddingRight:d omc:overrideMobilConfig:B "
       "bcl:backgroundColor:NSString "},
  };
  for (const auto& row : rows) EXPECT_EQ(keyTableOf(*row.cls), row.keys) << row.cls->name;
}

TEST(OrvantaUserNotificationCategory, HoldsItsButtonsAsModels) {
  const auto category =
      made<OrvantaUserNotificationCategory>(R"({"id": "c", "ia": [{"id": "a"}, {"id": "b"}]})");
  EXPECT_EQ(category->identifier().get(), "c");
  const Array& buttons = *category->actions().get();
  ASSERT_EQ(buttons.size(), 2U);
  EXPECT_EQ(buttons[1].as<OrvantaUserNotificationAction>()->identifier().get(), "b");
}

TEST(OrvantaInAppMessageAction, IsAnAction) {
  EXPECT_TRUE(make<OrvantaInAppMessageAction>()->isKindOf(OrvantaAction::classObject()));
  EXPECT_FALSE(made<OrvantaInAppMessageAction>(R"({"omc": "no"})")->overrideMobilConfig());
  const LogLevel silent(0);
  EXPECT_FALSE(made<OrvantaInAppMessageAction>(R"({"fsz": {}})"));
}

}  // namespace
}  // namespace orvanta::testing
