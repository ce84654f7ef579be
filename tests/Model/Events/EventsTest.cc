#include <gtest/gtest.h>

#include <set>

#include "orvanta/Model/Events/OrvantaBannerClickEvent.h"
#include "orvanta/Model/Events/OrvantaBatteryLevelEvent.h"
#include "orvanta/Model/Events/OrvantaCategoryViewEvent.h"
#include "orvanta/Model/Events/OrvantaCrashEvent.h"
#include "orvanta/Model/Events/OrvantaErrorEvent.h"
#include "orvanta/Model/Events/OrvantaGeofenceEvent.h"
#include "orvanta/Model/Events/OrvantaInAppPurchaseEvent.h"
#include "orvanta/Model/Events/OrvantaLinkClickEvent.h"
#include "orvanta/Model/Events/OrvantaLocationAuthorizationEvent.h"
#include "orvanta/Model/Events/OrvantaLocationUpdateEvent.h"
#include "orvanta/Model/Events/OrvantaLogEvent.h"
#include "orvanta/Model/Events/OrvantaLoginEvent.h"
#include "orvanta/Model/Events/OrvantaOpenAppEvent.h"
#include "orvanta/Model/Events/OrvantaPopupShownEvent.h"
#include "orvanta/Model/Events/OrvantaPushDismissEvent.h"
#include "orvanta/Model/Events/OrvantaPushOpenedEvent.h"
#include "orvanta/Model/Events/OrvantaPushReceivedEvent.h"
#include "orvanta/Model/Events/OrvantaPushViewEvent.h"
#include "orvanta/Model/Events/OrvantaRegisterEvent.h"
#include "orvanta/Model/Events/OrvantaScreenViewEvent.h"
#include "orvanta/Model/Events/OrvantaSearchEvent.h"
#include "orvanta/Model/Events/OrvantaShareEvent.h"
#include "orvanta/Model/Events/OrvantaShowViewEvent.h"
#include "orvanta/Model/Events/OrvantaShowViewTestEvent.h"
#include "orvanta/Model/Events/OrvantaTimeInAppEvent.h"
#include "orvanta/Model/Events/OrvantaViewActionEvent.h"
#include "orvanta/Model/Events/OrvantaViewActionTestEvent.h"
#include "orvanta/Model/Events/OrvantaWebViewActionEvent.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(Events, FactoriesSetTheirFields) {
  const auto push = modelFromJSON<OrvantaPushObject>(
      R"({"_ov":{"pid":"p","piid":"pi","ia":[{"id":"reply","act":{}}]}})");
  push->setInteractiveActionIdentifier("reply");
  push->setInputText("hello");
  const std::pair<Ref<OrvantaEvent>, std::string_view> rows[] = {
      {OrvantaBannerClickEvent::eventWithBannerId("b"), R"({"ea":"b"})"},
      {OrvantaBatteryLevelEvent::eventWithBatteryLevel(-7), R"({"ec":-7})"},
      {OrvantaCategoryViewEvent::eventWithCategoryId("c", "n"), R"({"ga":"c","ef":"n"})"},
      {OrvantaCrashEvent::event(),
       R"({"ff":0,"fg":false,"fh":false,"fm":0,"ec":0,"ed":0,"eo":0,"fe":0})"},
      {OrvantaGeofenceEvent::eventWithIdentifier("g", 2), R"({"ea":"g","fy":2})"},
      {OrvantaInAppPurchaseEvent::eventWithId("i", "n", 1.5),
       R"({"ea":"i","eb":"n","eq":1.5,"ec":0})"},
      {OrvantaLinkClickEvent::event(), "{}"},
      {OrvantaLocationAuthorizationEvent::eventWithAuthorizationStatus(3), R"({"fe":3})"},
      {OrvantaLocationUpdateEvent::eventWithLocation({65.0, Date{1.5}}),
       R"({"fw":65.0,"fu":1500})"},
      {OrvantaLogEvent::eventWithLog("l", "t"), R"({"ea":"t","eb":"l"})"},
      {OrvantaLoginEvent::eventWithUserId("u"), R"({"uid":"u"})"},
      {OrvantaOpenAppEvent::event(), "{}"},
      {OrvantaPopupShownEvent::eventWithPushObject(push.get()), R"({"fs":"p"})"},
      {OrvantaPushDismissEvent::eventWithPushObject(push.get()), R"({"fs":"p"})"},
      {OrvantaPushOpenedEvent::eventWithPushObject(push.get()),
       R"({"fs":"p","piid":"pi","ea":"reply","txt":"hello"})"},
      {OrvantaPushOpenedEvent::eventWithPushId("p", "pi", "a"),
       R"({"fs":"p","piid":"pi","ea":"a"})"},
      {OrvantaPushOpenedEvent::eventWithPushObject(make<OrvantaPushObject>().get()), "{}"},
      {OrvantaPushReceivedEvent::eventWithPushObject(push.get()), R"({"fs":"p"})"},
      {OrvantaPushViewEvent::eventWithPushObject(nullptr), "{}"},
      {OrvantaRegisterEvent::eventWithUserId("u"), R"({"uid":"u"})"},
      {OrvantaScreenViewEvent::eventWithId("i", "ri", "rn", 2.5, "n"),
       R"({"ee":"i","ef":"ri","ej":"rn","el":2.5,"ea":"n"})"},
      {OrvantaSearchEvent::eventWithQuery("q", 9), R"({"en":"q","ec":9})"},
      {OrvantaShareEvent::eventWithChannel("c", "t"), R"({"ej":"c","ea":"t"})"},
      {OrvantaShowViewEvent::eventWithCode("c"), R"({"ea":"c"})"},
      {OrvantaShowViewTestEvent::eventWithPath("p"), R"({"eb":"p"})"},
      {OrvantaTimeInAppEvent::eventWithTimeInAppSeconds(3.5), R"({"ft":3.5})"},
      {OrvantaViewActionEvent::eventWithCode("c", -1), R"({"ea":"c","ed":-1})"},
      {OrvantaViewActionTestEvent::eventWithPath("p", 2), R"({"eb":"p","ed":2})"},
      {OrvantaWebViewActionEvent::eventWithEventData(Dictionary{{"ea", 1}}), R"({"ea":1})"},
  };
  for (const auto& [event, json] : rows) {
    ASSERT_TRUE(event) << json;
    Dictionary fields = event->dictionaryValue();
    EXPECT_EQ(fields["revenue"], Value(9223372036854775808.0)) << json;
    fields.remove("revenue");
    fields.remove("code");
    EXPECT_EQ(Value(fields), parseJSON(json));
  }
}

TEST(OrvantaEvent, KeepsTheCodeOfItsClassWhenRead) {
  EXPECT_FALSE(OrvantaEvent::event());
  std::set<std::string> codes;
  std::size_t classes = 0;
  for (const Class* cls : modelClasses()) {
    const Dictionary dictionary{{"code", "read"}, {"revenue", 1}};
    const auto model = makeModel(*cls, &dictionary);
    const auto* event = Value(model).as<OrvantaEvent>();
    if (event == nullptr) continue;
    EXPECT_EQ(event->revenue(), 1.0) << cls->name;
    codes.emplace(*event->eventKey().get());
    ++classes;
  }
  EXPECT_EQ(codes.erase("read"), 1U);  // of the base and the two intermediate classes
  EXPECT_EQ(codes.size(), 40U);
  EXPECT_EQ(classes, 43U);
  EXPECT_EQ(modelFromJSON<OrvantaOpenAppEvent>("{}")->revenue(), 0.0);
}

TEST(OrvantaEvent, HasIdentifiersDateAndLocation) {
  const auto event = modelFromJSON<OrvantaLoginEvent>(
      R"({"ids":{"iid":"i","slt":4},"ts":1500,"fv":"41.0,29.0","uid":"u","revenue":"2.5"})");
  ASSERT_NE(event->identifiers().get(), nullptr);
  EXPECT_EQ(event->identifiers().get()->installationId().get(), "i");
  EXPECT_EQ(event->creationDate().get(), Date{1.5});
  event->setCreationDate(Date{2.25});
  EXPECT_EQ(toJSON(event->dictionaryValue()),
            R"({"uid":"u","ids":{"iid":"i","slt":4},"code":"o:cl","fv":"41.0,29.0","ts":2250,)"
            R"("revenue":2.5})");
}

TEST(OrvantaErrorEvent, ReferencesWeaklyWhatItReports) {
  auto message = std::make_shared<const std::string>("no network");
  auto events = std::make_shared<const Array>(Array{OrvantaOpenAppEvent::event()});
  const auto event = OrvantaErrorEvent::eventWithErrorMessage(message, events);
  const Dictionary alive = event->dictionaryValue();
  EXPECT_EQ(alive["msg"], Value("no network"));
  ASSERT_NE(alive["evs"].array(), nullptr);
  EXPECT_EQ((*(*alive["evs"].array())[0].dictionary())["code"], Value("o:oa"));
  EXPECT_EQ(message.use_count(), 1);
  EXPECT_EQ(events.use_count(), 1);

  EXPECT_TRUE(OrvantaErrorEvent::eventWithErrorMessage(nullptr, nullptr));

  message.reset();
  EXPECT_FALSE(event->errorMessage().isPresent());
  EXPECT_TRUE(event->eventArray().isPresent());
  events.reset();
  EXPECT_EQ(event->dictionaryValue().size(), 2U);  // "code" and "revenue"

  message = std::make_shared<const std::string>("read over");
  event->setErrorMessage(message);
  const Dictionary read{{"msg", "from a dictionary"}, {"evs", Array{1}}};
  EXPECT_TRUE(event->updateWithDictionary(&read));
  EXPECT_FALSE(event->errorMessage().isPresent());
}

TEST(OrvantaWebViewActionEvent, ItsDataOverridesItsFields) {
  const auto event = modelFromJSON<OrvantaWebViewActionEvent>(
      R"({"code":"own","fv":"here","klazz":"K","x":null})");
  EXPECT_EQ(event->locationString().get(), "here");
  EXPECT_EQ(event->eventKey().get(), "o:rpa");
  EXPECT_EQ(Value(event->dictionaryValueWithClassInfo()),
            parseJSON(R"({"code":"own","fv":"here","revenue":0.0,"klazz":"K","x":null})"));
}

TEST(OrvantaCrashEvent, OmitsItsInfo) {
  const auto event = OrvantaCrashEvent::event();
  event->setCrashInfo("never sent");
  event->setStackTrace("main");
  event->setType("signal");
  event->setTime(Date{2.25});
  const Dictionary written = event->dictionaryValue();
  EXPECT_EQ(written["et"], Value("main"));
  EXPECT_EQ(written["ev"], Value("signal"));
  EXPECT_EQ(written["fi"], Value(2250));
  EXPECT_EQ(written.size(), 13U);  // those, the eight scalars, "code" and "revenue"
}

}  // namespace
}  // namespace orvanta::testing
