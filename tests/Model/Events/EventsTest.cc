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

TEST(Events, AreMadeFromTheirArguments) {
  const auto push = modelFromJSON<OrvantaPushObject>(
      R"({"_ov":{"pid":"p","piid":"pi","ia":[{"id":"reply","act":{}}]}})");
  push->setInteractiveActionIdentifier("reply");
  push->setInputText("hello");
  const struct {
    Ref<OrvantaEvent> event;
    std::string_view code;
    std::int64_t priority;
    std::string_view fields;
  } rows[] = {
      {OrvantaBannerClickEvent::eventWithBannerId("b"), "o:bc", 0, R"({"ea":"b"})"},
      {OrvantaBatteryLevelEvent::eventWithBatteryLevel(-7), "o:bl", 0, R"({"ec":-7})"},
      {OrvantaCategoryViewEvent::eventWithCategoryId("c", "n"), "o:cv", 0,
       R"({"ga":"c","ef":"n"})"},
      {OrvantaCrashEvent::event(), "o:cr", 0,
       R"({"ff":0,"fg":false,"fh":false,"fm":0,"ec":0,"ed":0,"eo":0,"fe":0})"},
      {OrvantaGeofenceEvent::eventWithIdentifier("g", 2), "o:gu", 1, R"({"ea":"g","fy":2})"},
      {OrvantaInAppPurchaseEvent::eventWithId("i", "n", 1.5), "o:ip", 0,
       R"({"ea":"i","eb":"n","eq":1.5,"ec":0})"},
      {OrvantaLinkClickEvent::event(), "o:lc", 0, "{}"},
      {OrvantaLocationAuthorizationEvent::eventWithAuthorizationStatus(3), "o:la", 0,
       R"({"fe":3})"},
      {OrvantaLocationUpdateEvent::eventWithLocation({65.0, Date{1.5}}), "o:lu", 0,
       R"({"fw":65.0,"fu":1500})"},
      {OrvantaLogEvent::eventWithLog("l", "t"), "o:log", 0, R"({"ea":"t","eb":"l"})"},
      {OrvantaLoginEvent::eventWithUserId("u"), "o:cl", 0, R"({"uid":"u"})"},
      {OrvantaOpenAppEvent::event(), "o:oa", 1, "{}"},
      {OrvantaPopupShownEvent::eventWithPushObject(push.get()), "o:psw", 1, R"({"fs":"p"})"},
      {OrvantaPushDismissEvent::eventWithPushObject(push.get()), "o:pdm", 1, R"({"fs":"p"})"},
      {OrvantaPushOpenedEvent::eventWithPushObject(push.get()), "o:po", 1,
       R"({"fs":"p","piid":"pi","ea":"reply","txt":"hello"})"},
      {OrvantaPushOpenedEvent::eventWithPushId("p", "pi", "a"), "o:po", 1,
       R"({"fs":"p","piid":"pi","ea":"a"})"},
      {OrvantaPushOpenedEvent::eventWithPushObject(make<OrvantaPushObject>().get()), "o:po", 1,
       "{}"},
      {OrvantaPushReceivedEvent::eventWithPushObject(push.get()), "o:prd", 0, R"({"fs":"p"})"},
      {OrvantaPushViewEvent::eventWithPushObject(nullptr), "o:pv", 0, "{}"},
      {OrvantaRegisterEvent::eventWithUserId("u"), "o:rg", 0, R"({"uid":"u"})"},
      {OrvantaScreenViewEvent::eventWithId("i", "ri", "rn", 2.5, "n"), "o:sv", 0,
       R"({"ee":"i","ef":"ri","ej":"rn","el":2.5,"ea":"n"})"},
      {OrvantaSearchEvent::eventWithQuery("q", 9), "o:sr", 0, R"({"en":"q","ec":9})"},
      {OrvantaShareEvent::eventWithChannel("c", "t"), "o:sh", 0, R"({"ej":"c","ea":"t"})"},
      {OrvantaShowViewEvent::eventWithCode("c"), "o:shv", 0, R"({"ea":"c"})"},
      {OrvantaShowViewTestEvent::eventWithPath("p"), "o:shvt", 0, R"({"eb":"p"})"},
      {OrvantaTimeInAppEvent::eventWithTimeInAppSeconds(3.5), "o:tia", 1, R"({"ft":3.5})"},
      {OrvantaViewActionEvent::eventWithCode("c", -1), "o:va", 0, R"({"ea":"c","ed":-1})"},
      {OrvantaViewActionTestEvent::eventWithPath("p", 2), "o:vat", 0, R"({"eb":"p","ed":2})"},
      {OrvantaWebViewActionEvent::eventWithEventData(Dictionary{{"ea", 1}}), "o:rpa", 0,
       R"({"ea":1})"},
  };
  for (const auto& row : rows) {
    ASSERT_TRUE(row.event) << row.code;
    Dictionary fields = row.event->dictionaryValue();
    EXPECT_EQ(fields["code"], Value(row.code));
    EXPECT_EQ(fields["revenue"], Value(9223372036854775808.0)) << row.code;
    fields.remove("code");
    fields.remove("revenue");
    EXPECT_EQ(Value(fields), parseJSON(row.fields)) << row.code;
    EXPECT_EQ(row.event->priority(), row.priority) << row.code;
  }
}

TEST(OrvantaEvent, HasACodeOfItsClassWhateverIsRead) {
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
  EXPECT_EQ(codes.erase("read"), 1U);  // the base and the two intermediate classes
  EXPECT_EQ(codes.size(), 40U);
  EXPECT_EQ(classes, 43U);
  EXPECT_EQ(modelFromJSON<OrvantaOpenAppEvent>("{}")->revenue(), 0.0);
}

TEST(OrvantaEvent, CarriesIdentifiersDateAndPlace) {
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

TEST(OrvantaErrorEvent, DoesNotKeepWhatItReports) {
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
  EXPECT_FALSE(event->errorMessage());
  EXPECT_TRUE(event->eventArray());
  events.reset();
  EXPECT_EQ(event->dictionaryValue().size(), 2U);  // "code" and "revenue"

  message = std::make_shared<const std::string>("read over");
  event->setErrorMessage(message);
  const Dictionary read{{"msg", "from a dictionary"}, {"evs", Array{1}}};
  EXPECT_TRUE(event->updateWithDictionary(&read));
  EXPECT_FALSE(event->errorMessage());
}

TEST(OrvantaWebViewActionEvent, LetsItsDataWin) {
  const auto event = modelFromJSON<OrvantaWebViewActionEvent>(
      R"({"code":"own","fv":"here","klazz":"K","x":null})");
  EXPECT_EQ(event->locationString().get(), "here");
  EXPECT_EQ(event->eventKey().get(), "o:rpa");
  EXPECT_EQ(Value(event->dictionaryValueWithClassInfo()),
            parseJSON(R"({"code":"own","fv":"here","revenue":0.0,"klazz":"K","x":null})"));
}

TEST(OrvantaCrashEvent, KeepsItsInfoToItself) {
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
