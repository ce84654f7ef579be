#include <gtest/gtest.h>

#include "orvanta/Model/Push/OrvantaPushObject.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"
#include "support/RecordingPlatform.h"

namespace orvanta::testing {
namespace {

constexpr auto kNoBadge = static_cast<std::uint64_t>(kUnsetInteger);

TEST(OrvantaPushObject, ReadsAPayload) {
  const auto push = modelFromJSON<OrvantaPushObject>(R"({
    "aps": {"alert": {"title": "t", "subtitle": "s", "body": "b"}, "badge": 18,
            "mutable-content": 1},
    "_ov": {"mu": "https://example.com/a.jpg?w=1&q=80", "prms": {"vip": true, "none": null},
            "iam": {"ttl": "30"}, "act": {"uri": "shop://sale"}, "crsl": [{"id": "1"}],
            "ia": [{"id": "buy", "text": "Buy", "act": {"uri": "shop://buy"}}],
            "ets": 1700000000000, "sts": 1699999999500, "ps": {"iospi": "icon"}, "thc": "yes"},
    "ignored": 1})");
  ASSERT_TRUE(push);
  EXPECT_EQ(push->alert().get()->title().get(), "t");
  EXPECT_EQ(push->alert().get()->subtitle().get(), "s");
  EXPECT_EQ(push->alert().get()->body().get(), "b");
  EXPECT_EQ(push->badge(), 18U);
  EXPECT_EQ(push->mediaAttachmentURL().get()->absoluteString(),
            "https://example.com/a.jpg?w=1&q=80");
  EXPECT_EQ(push->customDictionary().raw(), parseJSON(R"({"vip": true, "none": null})"));
  EXPECT_EQ(push->inAppMessage().get()->timeToLive(), 30.0);
  EXPECT_EQ(push->defaultActionDictionary().raw(), parseJSON(R"({"uri": "shop://sale"})"));
  EXPECT_EQ(push->actionDictionary().raw(), push->defaultActionDictionary().raw());
  EXPECT_EQ(push->action().get()->deeplinkURLString().get(), "shop://sale");
  EXPECT_EQ(push->action().get()->deeplinkURL().get()->absoluteString(), "shop:%2F%2Fsale");
  EXPECT_EQ(push->carousel().raw(), parseJSON(R"([{"id": "1"}])"));
  const auto* button = (*push->interactiveActions().get())[0].as<OrvantaUserNotificationAction>();
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->title().get(), "Buy");
  EXPECT_EQ(push->expirationDate().get(), Date{1700000000});
  EXPECT_EQ(push->sendDate().get(), Date{1699999999.5});
  EXPECT_EQ(push->pushStyle().get()->pushIcon().get(), "icon");
  EXPECT_TRUE(push->isThumbnail());
  EXPECT_FALSE(push->includedInInbox());
}

TEST(OrvantaPushObject, AnEmptyPayloadGivesAnEmptyAlertAndActionAndNoBadge) {
  for (const char* json : {"{}", R"({"aps": {}, "_ov": {}})", R"({"aps": {"alert": {}}})",
                           R"({"title": "top level", "act": {"uri": "x"}, "aps.badge": 5})"}) {
    const auto push = modelFromJSON<OrvantaPushObject>(json);
    ASSERT_TRUE(push) << json;
    EXPECT_EQ(push->badge(), kNoBadge) << json;
    EXPECT_EQ(toJSON(push->dictionaryValue()),
              R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})")
        << json;
  }
  const auto bare = make<OrvantaPushObject>();
  EXPECT_TRUE(bare->alert().isPresent());
  EXPECT_TRUE(bare->action().isPresent());
  EXPECT_EQ(bare->badge(), kNoBadge);
}

TEST(OrvantaPushObject, ReadsTheAlertFromAStringOrADictionary) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {R"("text")", R"({"body":"text"})"},
      {R"({"title": "t", "title-loc-key": "k"})", R"({"title":"t"})"},
      {R"({"body": 5, "subtitle": null})", R"({"subtitle":null,"body":5})"},
  };
  for (const auto& [alert, written] : rows) {
    const auto push =
        modelFromJSON<OrvantaPushObject>(R"({"aps": {"alert": )" + std::string(alert) + "}}");
    ASSERT_TRUE(push) << alert;
    ASSERT_TRUE(push->alert().get()) << alert;
    EXPECT_EQ(toJSON(push->alert().get()->dictionaryValue()), written) << alert;
  }
}

TEST(OrvantaPushObject, AnArrayOfPartsIsReadByElementAndFailsForScalars) {
  for (const char* json : {R"({"aps": [{"alert": "text"}]})", R"({"aps": []})", R"({"_ov": []})"}) {
    RecordingPlatform platform;
    const auto push = Ref<OrvantaPushObject>::adopt(new OrvantaPushObject);
    EXPECT_FALSE(updateFromJSON(*push, json)) << json;
    EXPECT_TRUE(push->alert().get()->dictionaryValue().empty()) << json;
    EXPECT_EQ(platform.log.size(), 1U) << json;
  }
}

TEST(OrvantaPushObject, OmitsAnAlertEntryNamedKlazz) {
  const auto push = modelFromJSON<OrvantaPushObject>(R"({"aps": {"alert": {"title": "t"}}})");
  push->alert().get()->setKeyPathPropertyDictionary({{"klazz", "title"}, {"x", "title"}});
  EXPECT_FALSE(push->dictionaryValue().contains("klazz"));
  EXPECT_EQ(push->dictionaryValue()["x"], Value("t"));
}

TEST(OrvantaPushObject, AnAlertThatFailsSkipsTheTable) {
  const LogLevel silent(0);
  const char* json = R"({"aps": {"sound": "new", "alert": {"title": [
                             {"klazz": "OrvantaUserNotificationAction", "actM": null}]}},
                         "_ov": {"act": {"uri": "a"}}})";
  EXPECT_FALSE(modelFromJSON<OrvantaPushObject>(json));
  const auto push = modelFromJSON<OrvantaPushObject>(
      R"({"aps": {"sound": "old", "badge": 1}, "_ov": {"act": {"uri": "b"}}})");
  push->setActionDictionary(nullptr);
  EXPECT_FALSE(updateFromJSON(*push, json));
  EXPECT_FALSE(push->alert().isPresent());
  EXPECT_EQ(push->sound().get(), "old");
  EXPECT_EQ(push->badge(), kNoBadge);
  EXPECT_EQ(push->action().get()->deeplinkURLString().get(), "a");
  EXPECT_EQ(push->actionDictionary().raw(), Value(Dictionary({{"uri", "b"}})));
}

TEST(OrvantaPushObject, AnUpdateResetsAlertActionAndBadge) {
  const auto push = modelFromJSON<OrvantaPushObject>(
      R"({"aps": {"alert": "old", "badge": 3, "sound": "s"}, "_ov": {"act": {"uri": "a"}}})");
  EXPECT_TRUE(updateFromJSON(*push, "{}"));
  EXPECT_FALSE(push->alert().get()->body().isPresent());
  EXPECT_FALSE(push->action().get()->deeplinkURLString().isPresent());
  EXPECT_EQ(push->badge(), kNoBadge);
  EXPECT_EQ(push->sound().get(), "s");  // the table does not change missing keys
  EXPECT_EQ(push->actionDictionary().raw(), Value(Dictionary({{"uri", "a"}})));
}

// ---- The action in force ----

Ref<OrvantaPushObject> pushWithButtons() {
  return modelFromJSON<OrvantaPushObject>(
      R"({"_ov": {"act": {"uri": "default"}, "ia": [
            "not a button", {"text": "no identifier", "act": {"uri": "zero"}},
            {"id": "a", "act": {"uri": "first"}}, {"id": "a", "act": {"uri": "second"}},
            {"id": 5, "act": {"uri": "five"}}, {"id": "bare"}]}})");
}
Value uri(const char* text) { return Dictionary({{"uri", text}}); }

TEST(OrvantaPushObject, AnIdentifierSelectsTheFirstButtonThatHasIt) {
  const struct {
    std::vector<PropertyValue<String>> identifiers;  // set in this order
    Value selected;
  } rows[] = {
      {{}, uri("default")},
      {{"a"}, uri("first")},
      {{"a", "unknown"}, uri("first")},
      {{"unknown"}, uri("default")},
      {{"a", nullptr}, uri("default")},
      {{"bare"}, Value()},
      {{"a", PropertyValue<String>::any(Value::null())}, uri("first")},
  };
  for (const auto& row : rows) {
    const auto push = pushWithButtons();
    for (const PropertyValue<String>& identifier : row.identifiers) {
      push->setInteractiveActionIdentifier(identifier);
      EXPECT_EQ(push->interactiveActionIdentifier().raw(), identifier.raw());
    }
    EXPECT_EQ(push->actionDictionary().raw(), row.selected);
  }
}

// ---- Writing ----

TEST(OrvantaPushObject, WritesTheAlertAtTheTopLevelBeforeItsOwnEntries) {
  const auto push = modelFromJSON<OrvantaPushObject>(
      R"({"aps": {"alert": {"title": "t", "body": "b"}, "badge": 0, "sound": "s"},
          "_ov": {"act": {"uri": "u"}, "mu": "a/b", "ets": 1700000000000.5, "pid": null}})");
  push->setIncludedInInbox(true);
  push->setInputText("typed");
  EXPECT_EQ(toJSON(push->dictionaryValue()),
            R"({"title":"t","body":"b","aps.sound":"s","aps.badge":0,"_ov.pt":0,"_ov.mu":"a\/b",)"
            R"("_ov.pid":null,"_ov.st":0,"_ov.dr":false,"_ov.act":{"uri":"u"},)"
            R"("_ov.ets":1700000000000,"_ov.stl":0,"_ov.thc":false})");
}

}  // namespace
}  // namespace orvanta::testing
