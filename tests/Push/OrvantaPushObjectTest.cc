#include <gtest/gtest.h>

#include "Push/OrvantaPushObject.h"
#include "support/ModelZoo.h"

namespace orvanta::testing {
namespace {

constexpr auto kNoBadge = static_cast<std::uint64_t>(kUnsetInteger);

TEST(OrvantaPushObject, ReadsAPayload) {
  const auto push = made<OrvantaPushObject>(R"({
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
  EXPECT_EQ(push->customDictionary().value(), parsed(R"({"vip": true, "none": null})"));
  EXPECT_EQ(push->inAppMessage().get()->timeToLive(), 30.0);
  EXPECT_EQ(push->defaultActionDictionary().value(), parsed(R"({"uri": "shop://sale"})"));
  EXPECT_EQ(push->actionDictionary().value(), push->defaultActionDictionary().value());
  EXPECT_EQ(push->action().get()->deeplinkURLString().get(), "shop://sale");
  EXPECT_EQ(push->action().get()->deeplinkURL().get()->absoluteString(), "shop:%2F%2Fsale");
  EXPECT_EQ(push->carousel().value(), parsed(R"([{"id": "1"}])"));
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
    const auto push = made<OrvantaPushObject>(json);
    ASSERT_TRUE(push) << json;
    EXPECT_TRUE(push->alert().get()->dictionaryValue().empty()) << json;
    EXPECT_TRUE(push->action().get()->dictionaryValue().empty()) << json;
    EXPECT_FALSE(push->action().get()->deeplinkURL()) << json;
    EXPECT_EQ(push->badge(), kNoBadge) << json;
    EXPECT_FALSE(push->actionDictionary()) << json;
    EXPECT_EQ(written(push->dictionaryValue()),
              R"({"_ov.pt":0,"_ov.st":0,"_ov.dr":false,"_ov.stl":0,"_ov.thc":false})")
        << json;
  }
  const auto bare = make<OrvantaPushObject>();
  EXPECT_TRUE(bare->alert());
  EXPECT_TRUE(bare->action());
  EXPECT_EQ(bare->badge(), kNoBadge);
}

TEST(OrvantaPushObject, TheAlertIsATextADictionaryOrEmpty) {
  const struct {
    std::string_view alert;
    std::string_view written;
  } rows[] = {
      {R"("text")", R"({"body":"text"})"},
      {R"("")", R"({"body":""})"},
      {R"({"title": "t", "title-loc-key": "k"})", R"({"title":"t"})"},
      {R"({"body": 5, "subtitle": null})", R"({"subtitle":null,"body":5})"},
      {"5", "{}"},
      {"true", "{}"},
      {"null", "{}"},
      {R"(["text"])", "{}"},
  };
  for (const auto& row : rows) {
    const auto push =
        made<OrvantaPushObject>(R"({"aps": {"alert": )" + std::string(row.alert) + "}}");
    ASSERT_TRUE(push) << row.alert;
    ASSERT_TRUE(push->alert().get()) << row.alert;
    EXPECT_EQ(written(push->alert().get()->dictionaryValue()), row.written) << row.alert;
  }
}

// What a key may hold follows from the type of its property alone.
TEST(OrvantaPushObject, TypeCodeDecidesWhatBecomesOfEachKind) {
  for (const KeyEntry& row : OrvantaPushObject::keyPathPropertySelectorMapping()) {
    const std::vector<Value> path = splitKeyPath(row.keyPath);
    ASSERT_EQ(path.size(), 2U);
    const auto encoding = OrvantaPushObject::classObject().property(row.property)->encoding;
    for (const Value& value : oneOfEachKind()) {
      SCOPED_TRACE(std::string(row.keyPath) + " holds " + std::string(value.kindName()));
      RecordingPlatform platform;
      Dictionary inner;
      inner.set(path[1], value);
      Dictionary payload;
      payload.set(path[0], inner);
      const auto push = make<OrvantaPushObject>(payload);
      const Outcome outcome = outcomeOf(value.kind(), encoding);
      EXPECT_EQ(!push, outcome == Outcome::refused || outcome == Outcome::refusedWithLog);
      EXPECT_EQ(platform.log.size(), outcome == Outcome::refusedWithLog ? 1U : 0U);
      if (push && outcome == Outcome::keptAsItIs && value.kind() != Kind::dictionary) {
        EXPECT_EQ(push->valueForKey(row.property), value);
      }
    }
  }
}

TEST(OrvantaPushObject, ThrowsWhenThePayloadsPartsAreNoDictionaries) {
  for (const char* part : {"aps", "_ov"}) {
    for (const char* held : {"\"text\"", "5", "false", "null", "[1]", "[null]"}) {
      RecordingPlatform platform;
      const auto payload = dictionaryOf("{\"" + std::string(part) + "\": " + held + "}");
      EXPECT_TRUE(
          thrown([&] { make<OrvantaPushObject>(payload); }).starts_with("NSUnknownKeyException: "))
          << part << held;
      EXPECT_TRUE(platform.log.empty());
    }
  }
}

TEST(OrvantaPushObject, AnArrayOfPartsIsReadElementWiseAndHasNoScalars) {
  for (const char* json : {R"({"aps": [{"alert": "text"}]})", R"({"aps": []})", R"({"_ov": []})"}) {
    RecordingPlatform platform;
    const auto push = Ref<OrvantaPushObject>::adopt(new OrvantaPushObject);
    EXPECT_FALSE(update(*push, json)) << json;
    EXPECT_TRUE(push->alert().get()->dictionaryValue().empty()) << json;
    EXPECT_EQ(platform.log.size(), 1U) << json;
  }
}

TEST(OrvantaPushObject, AnAlertThatRefusesSkipsTheTable) {
  const LogLevel silent(0);
  const char* json = R"({"aps": {"sound": "new", "alert": {"title": [
                             {"klazz": "OrvantaUserNotificationAction", "actM": null}]}},
                         "_ov": {"act": {"uri": "a"}}})";
  EXPECT_FALSE(made<OrvantaPushObject>(json));
  const auto push = made<OrvantaPushObject>(
      R"({"aps": {"sound": "old", "badge": 1}, "_ov": {"act": {"uri": "b"}}})");
  push->setActionDictionary(nullptr);
  EXPECT_FALSE(update(*push, json));
  EXPECT_FALSE(push->alert());
  EXPECT_EQ(push->sound().get(), "old");
  EXPECT_EQ(push->badge(), kNoBadge);
  EXPECT_EQ(push->action().get()->deeplinkURLString().get(), "a");
  EXPECT_EQ(push->actionDictionary().value(), Value(Dictionary({{"uri", "b"}})));
}

TEST(OrvantaPushObject, AnUpdateThatFailsStillSelectsTheDefaultAction) {
  const LogLevel silent(0);
  const auto push = make<OrvantaPushObject>();
  EXPECT_FALSE(update(*push, R"({"_ov": {"act": {"uri": "a"}, "ets": "tomorrow"}})"));
  EXPECT_EQ(push->actionDictionary().value(), Value(Dictionary({{"uri", "a"}})));
  EXPECT_FALSE(push->expirationDate());
}

TEST(OrvantaPushObject, AnUpdateMakesAlertActionAndBadgeAnew) {
  const auto push = made<OrvantaPushObject>(
      R"({"aps": {"alert": "old", "badge": 3, "sound": "s"}, "_ov": {"act": {"uri": "a"}}})");
  EXPECT_TRUE(update(*push, "{}"));
  EXPECT_FALSE(push->alert().get()->body());
  EXPECT_FALSE(push->action().get()->deeplinkURLString());
  EXPECT_EQ(push->badge(), kNoBadge);
  EXPECT_EQ(push->sound().get(), "s");  // the table leaves missing keys alone
  EXPECT_EQ(push->actionDictionary().value(), Value(Dictionary({{"uri", "a"}})));
}

TEST(OrvantaPushObject, KlazzTouchesTheClickActionsDictionaryOnly) {
  const auto push = made<OrvantaPushObject>(
      R"({"_ov": {"act": {"klazz": "OrvantaInAppMessageAction", "txt": "t", "uri": "u"},
                  "prms": {"klazz": "deep"},
                  "crsl": [{"klazz": "OrvantaPushCarouselObject", "id": "i"}, {"id": "j"}],
                  "iam": {"klazz": "OrvantaPushStyle"}}})");
  ASSERT_TRUE(push);
  const Value& click = push->defaultActionDictionary().value();
  ASSERT_NE(click.as<OrvantaInAppMessageAction>(), nullptr);
  EXPECT_EQ(push->actionDictionary().value().object(), click.object());
  EXPECT_EQ(push->defaultActionDictionary().get(), nullptr);
  EXPECT_EQ(push->action().get()->deeplinkURLString().get(), "u");
  EXPECT_NE(push->customDictionary().get(), nullptr);
  EXPECT_EQ((*push->carousel().get())[0].className(), "OrvantaPushCarouselObject");
  EXPECT_NE((*push->carousel().get())[1].dictionary(), nullptr);
  EXPECT_NE(push->inAppMessage().get(), nullptr);
}

TEST(OrvantaPushObject, AClickActionOfAnotherKindGivesAnEmptyAction) {
  for (const char* act : {R"("shop://a")", "5", "null", R"([{"uri": "a"}])"}) {
    const auto push = made<OrvantaPushObject>(R"({"_ov": {"act": )" + std::string(act) + "}}");
    ASSERT_TRUE(push) << act;
    EXPECT_FALSE(push->action().get()->deeplinkURLString()) << act;
    EXPECT_FALSE(push->action().get()->deeplinkURL()) << act;
    EXPECT_EQ(push->defaultActionDictionary().value(), parsed(act)) << act;
    EXPECT_EQ(push->actionDictionary().value(), parsed(act)) << act;
  }
}

TEST(OrvantaPushObject, AModelThatRefusesIsLeftOutUnlessItIsAnElement) {
  const LogLevel silent(0);
  const auto push = made<OrvantaPushObject>(R"({"_ov": {"iam": {"ttl": null}, "stl": 4}})");
  ASSERT_TRUE(push);
  EXPECT_FALSE(push->inAppMessage());
  EXPECT_EQ(push->style(), 4U);
  EXPECT_FALSE(made<OrvantaPushObject>(R"({"_ov": {"ia": [{"id": "a"}, {"actM": null}]}})"));
}

// ---- The action in force ----

Ref<OrvantaPushObject> pushWithButtons() {
  return made<OrvantaPushObject>(
      R"({"_ov": {"act": {"uri": "default"}, "ia": [
            "not a button", {"text": "no identifier", "act": {"uri": "zero"}},
            {"id": "a", "act": {"uri": "first"}}, {"id": "a", "act": {"uri": "second"}},
            {"id": 5, "act": {"uri": "five"}}, {"id": "bare"}]}})");
}
Value uri(const char* text) { return Dictionary({{"uri", text}}); }

TEST(OrvantaPushObject, AnIdentifierSelectsTheFirstButtonThatHasIt) {
  const struct {
    std::vector<Held<String>> identifiers;  // set one after the other
    Value selected;
  } rows[] = {
      {{}, uri("default")},
      {{"a"}, uri("first")},
      {{"a", "unknown"}, uri("first")},
      {{"unknown"}, uri("default")},
      {{"a", nullptr}, uri("default")},
      {{"A"}, uri("default")},
      {{""}, uri("default")},
      {{"bare"}, Value()},
      {{"a", Held<String>::any(Value::null())}, uri("first")},
      {{"a", Held<String>::any(5)}, uri("first")},
  };
  for (const auto& row : rows) {
    const auto push = pushWithButtons();
    for (const Held<String>& identifier : row.identifiers) {
      push->setInteractiveActionIdentifier(identifier);
      EXPECT_EQ(push->interactiveActionIdentifier().value(), identifier.value());
    }
    EXPECT_EQ(push->actionDictionary().value(), row.selected);
  }
}

TEST(OrvantaPushObject, AnIdentifierSetByNameSelectsToo) {
  const auto push = pushWithButtons();
  push->setValueForKey("a", "interactiveActionIdentifier");
  EXPECT_EQ(push->actionDictionary().value(), uri("first"));
  push->setValueForKey(Value(), "interactiveActionIdentifier");
  EXPECT_EQ(push->actionDictionary().value(), uri("default"));
}

TEST(OrvantaPushObject, WithoutButtonsAnIdentifierSelectsNothing) {
  for (const char* buttons : {"null", R"("text")", R"({"id": "a", "act": {}})", "[]"}) {
    const auto push = made<OrvantaPushObject>(R"({"_ov": {"act": {"uri": "default"}, "ia": )" +
                                              std::string(buttons) + "}}");
    ASSERT_TRUE(push) << buttons;
    push->setInteractiveActionIdentifier("a");
    EXPECT_EQ(push->actionDictionary().value(), uri("default")) << buttons;
  }
}

// ---- Writing ----

TEST(OrvantaPushObject, WritesTheAlertAtTheTopLevelBeforeItsOwnEntries) {
  const auto push = made<OrvantaPushObject>(
      R"({"aps": {"alert": {"title": "t", "body": "b"}, "badge": 0, "sound": "s"},
          "_ov": {"act": {"uri": "u"}, "mu": "a/b", "ets": 1700000000000.5, "pid": null}})");
  push->setIncludedInInbox(true);
  push->setInputText("typed");
  EXPECT_EQ(written(push->dictionaryValue()),
            R"({"title":"t","body":"b","aps.sound":"s","aps.badge":0,"_ov.pt":0,"_ov.mu":"a\/b",)"
            R"("_ov.pid":null,"_ov.st":0,"_ov.dr":false,"_ov.act":{"uri":"u"},)"
            R"("_ov.ets":1700000000000,"_ov.stl":0,"_ov.thc":false})");
}

TEST(OrvantaPushObject, ItsOwnEntriesReplaceTheAlerts) {
  const auto push = made<OrvantaPushObject>(R"({"aps": {"alert": "text"}})");
  EXPECT_EQ(push->dictionaryValueWithClassInfo()["klazz"], Value("OrvantaPushObject"));
  push->setKeyPathPropertyDictionary({{"body", "inputText"}});
  push->setInputText("typed");
  EXPECT_EQ(written(push->dictionaryValue()), R"({"body":"typed"})");
  push->setAlert(nullptr);
  EXPECT_EQ(written(push->dictionaryValueWithClassInfo()),
            R"({"body":"typed","klazz":"OrvantaPushObject"})");
}

TEST(OrvantaPushObject, NestedModelsNameTheirClassesWhenAsked) {
  const auto push =
      made<OrvantaPushObject>(R"({"_ov": {"ia": [{"id": "a"}], "ps": {}, "iam": {}}})");
  const Dictionary result = push->dictionaryValueWithClassInfo();
  const auto klazz = [](const Value& value) { return (*value.dictionary())["klazz"]; };
  EXPECT_EQ(klazz((*result["_ov.ia"].array())[0]), Value("OrvantaUserNotificationAction"));
  EXPECT_EQ(klazz(result["_ov.ps"]), Value("OrvantaPushStyle"));
  EXPECT_EQ(klazz(result["_ov.iam"]), Value("OrvantaInAppMessageAction"));
}

TEST(OrvantaPushObject, CopiesLoseEverythingThatTravelsBelowAKey) {
  const auto push = made<OrvantaPushObject>(R"({"aps": {"alert": "text", "badge": 3}})");
  const Value copy = push->copyWithZone();
  EXPECT_FALSE(copy.as<OrvantaPushObject>()->alert().get()->body());
  EXPECT_EQ(copy.as<OrvantaPushObject>()->badge(), kNoBadge);
}

TEST(OrvantaPushObject, KeepsItsHandler) {
  const auto push = make<OrvantaPushObject>();
  int calls = 0;
  push->setWillPresentNotificationHandler([&calls] { ++calls; });
  (*push->willPresentNotificationHandler().get())();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(push->dictionaryValue().contains("willPresentNotificationHandler"));
}

}  // namespace
}  // namespace orvanta::testing
