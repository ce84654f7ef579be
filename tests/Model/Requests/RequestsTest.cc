#include <gtest/gtest.h>

#include "orvanta/Model/Configuration/OrvantaAppConfig.h"
#include "orvanta/Model/Events/OrvantaGeofenceEvent.h"
#include "orvanta/Model/Events/OrvantaLoginEvent.h"
#include "orvanta/Model/Requests/OrvantaCouponFilter.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "orvanta/Model/Requests/OrvantaFetchInboxRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxCategoryFilter.h"
#include "orvanta/Model/Requests/OrvantaInboxCountFilter.h"
#include "orvanta/Model/Requests/OrvantaInitSessionRequest.h"
#include "orvanta/Model/Requests/OrvantaSetInboxStatusRequest.h"
#include "orvanta/Model/Requests/OrvantaSetUserCategoryRequest.h"
#include "orvanta/Model/Requests/OrvantaUpdateUserRequest.h"
#include "orvanta/Model/Responses/OrvantaInboxCategoryResponse.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(OrvantaRequestPathType, KnowsItsCodesOnly) {
  EXPECT_EQ(OrvantaRequestPathStringForType(0), std::nullopt);
  EXPECT_EQ(OrvantaRequestPathStringForType(7), "/user/update-identify");
  EXPECT_EQ(OrvantaRequestPathStringForType(21), "/coupon/fetch");
  EXPECT_EQ(OrvantaRequestPathStringForType(22), std::nullopt);
  EXPECT_EQ(OrvantaHTTPMethodStringForType(0), "POST");
  EXPECT_EQ(OrvantaHTTPMethodStringForType(3), "DELETE");
  EXPECT_EQ(OrvantaHTTPMethodStringForType(~std::uint64_t{0}), std::nullopt);
}

TEST(OrvantaBaseRequest, SetsUpOncePerObjectAndMakesASpec) {
  const auto base = make<OrvantaBaseRequest>();
  EXPECT_FALSE(base->requestSpec()->path);
  EXPECT_EQ(base->priority(), std::nullopt);

  const auto request = modelFromJSON<OrvantaSetInboxStatusRequest>(R"({"st":4,"ids":{"iid":"i"}})");
  request->setStorageId(7);
  request->editIdsContained().append(8);
  request->setQueuePriority(-4);
  const Dictionary read{{"all", true}};
  EXPECT_TRUE(request->updateWithDictionary(&read));  // without setting up again
  EXPECT_EQ(request->description(),
            "Spec : \nBase URL : (null)\nPath : /inbox/set\nMethod : POST\nHeaders : {\n}\n"
            "Body : {\n    all = 1;\n    ids =     {\n        iid = i;\n    };\n    st = 4;\n}\n"
            "Timeout : 20.000000\nPriority : -4\nStorage Id : 7\nContained Ids : (\n    8\n)");
}

TEST(Requests, AreMadeFromTheirArguments) {
  const auto user = modelFromJSON<OrvantaUser>(R"({"pa":"Nora","pg":0})");
  user->setEmail("nora@example.com");
  user->setMSISDN("+900");
  const auto filter = make<OrvantaInboxFilter>();
  filter->setPageSize(20);
  const std::pair<Ref<OrvantaBaseRequest>, std::string_view> rows[] = {
      {make<OrvantaUpdateUserRequest>(&OrvantaUpdateUserRequest::initWithUser, user.get()),
       R"({"email":"nora@example.com","msisdn":"+900","prfl":{"pa":"Nora","pg":0}})"},
      {make<OrvantaSetInboxStatusRequest>(&OrvantaSetInboxStatusRequest::initWithPushInstanceIds,
                                          Array{"a"}, 4U),
       R"({"piids":["a"],"st":4,"all":false})"},
      {make<OrvantaSetInboxStatusRequest>(&OrvantaSetInboxStatusRequest::initWithPushCategories,
                                          Array{"c"}, 1U),
       R"({"st":1,"all":false,"cats":["c"]})"},
      {make<OrvantaSetInboxStatusRequest>(&OrvantaSetInboxStatusRequest::initWithForAllObjectStatus,
                                          2U),
       R"({"st":2,"all":true})"},
      {make<OrvantaFetchInboxRequest>(&OrvantaFetchInboxRequest::initWithFilter, filter),
       R"({"st":3,"ps":20,"ie":false})"},
      {make<OrvantaSetUserCategoryRequest>(&OrvantaSetUserCategoryRequest::initWithUserCategoryId,
                                           9, true),
       R"({"ctid":9,"cte":true})"},
      {make<OrvantaInitSessionRequest>(), R"({"an":false})"},
  };
  for (const auto& [request, body] : rows) {
    ASSERT_TRUE(request);
    EXPECT_EQ(Value(request->requestSpec()->HTTPBody), parseJSON(body)) << body;
    EXPECT_EQ(request->priority(), 1);
  }
}

TEST(OrvantaFetchInboxRequest, ReadsItsFilterFromItsOwnDictionary) {
  const auto request = modelFromJSON<OrvantaFetchInboxRequest>(R"({"ps":"30","ids":{"iid":"i"}})");
  ASSERT_NE(request->filter().get(), nullptr);
  EXPECT_EQ(request->filter().get()->pageSize(), 30);
  EXPECT_EQ(request->filter().get()->status(), 0U);  // the defaults are those of `init` alone
  EXPECT_EQ(
      Value(request->dictionaryValueWithClassInfo()),
      parseJSON(R"({"ids":{"iid":"i","klazz":"OrvantaIdentifiers"},"st":0,"ps":30,"ie":false,)"
                R"("klazz":"OrvantaFetchInboxRequest"})"));
  const LogLevel quiet(0);
  EXPECT_FALSE(modelFromJSON<OrvantaFetchInboxRequest>(R"({"ps":null})"));
}

TEST(Filters, HaveDefaultsOfTheirOwn) {
  EXPECT_EQ(toJSON(make<OrvantaInboxFilter>()->dictionaryValue()),
            R"({"st":3,"ps":2147483647,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaInboxCategoryFilter>()->dictionaryValue()),
            R"({"st":3,"ps":2147483647,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaInboxCountFilter>()->dictionaryValue()), R"({"st":3,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaCouponFilter>()->dictionaryValue()), R"({"page":0,"max":0})");
}

// ---- Batches -----------------------------------------------------------------

Ref<OrvantaEventRequest> batchOf(std::size_t events) {
  Array array;
  for (std::size_t i = 0; i < events; ++i) {
    array.append(OrvantaLoginEvent::eventWithUserId(std::to_string(i)));
  }
  return make<OrvantaEventRequest>(&OrvantaEventRequest::initWithEventArray, array);
}

std::size_t countOf(const Ref<OrvantaEventRequest>& request) {
  return request->events().get()->size();
}

TEST(OrvantaEventRequest, TakesAsManyEventsAsThereIsRoomFor) {
  const struct {
    std::size_t own, theirs, ownAfter, theirsAfter;
    bool limitReached;
  } rows[] = {
      {95, 10, 100, 5, true}, {100, 4, 100, 4, true}, {0, 150, 100, 50, true},
      {1, 1, 2, 0, false},    {99, 0, 99, 0, false},  {101, 3, 104, 0, false},
  };
  for (const auto& row : rows) {
    const auto own = batchOf(row.own);
    const auto other = batchOf(row.theirs);
    other->setStorageId(42);
    bool limitReached = !row.limitReached;
    own->mergeEventsFromEventRequest(*other, limitReached);
    EXPECT_EQ(countOf(own), row.ownAfter);
    EXPECT_EQ(countOf(other), row.theirsAfter);
    EXPECT_EQ(limitReached, row.limitReached) << row.own << " " << row.theirs;
    EXPECT_EQ(own->idsContained().value(), Value(Array{42}));
  }
  const auto own = batchOf(2);
  const auto other = batchOf(2);
  other->editEvents().set(0, OrvantaLoginEvent::eventWithUserId("first"));
  bool limitReached = false;
  own->mergeEventsFromEventRequest(*other, limitReached);
  EXPECT_EQ((*own->events().get())[2].as<OrvantaLoginEvent>()->userId().get(), "first");
  EXPECT_EQ(own->idsContained().value(), Value(Array{}));  // the other was never stored
  own->setEvents(nullptr);
  own->mergeEventsFromEventRequest(*batchOf(1), limitReached);
  EXPECT_EQ(countOf(own), 1U);
}

TEST(OrvantaEventRequest, StripsWhatItsIdentifiersSayAlready) {
  const auto leader = batchOf(1);
  leader->setIdentifiers(modelFromJSON<OrvantaIdentifiers>(R"({"iid":"i","sid":"1"})"));
  const auto other = batchOf(2);
  const auto own = modelFromJSON<OrvantaIdentifiers>(R"({"iid":"i","sid":"own"})");
  (*other->events().get())[0].as<OrvantaLoginEvent>()->setIdentifiers(own);
  other->setIdentifiers(modelFromJSON<OrvantaIdentifiers>(R"({"iid":"i","sid":"2"})"));
  other->editEvents().append("no event");
  bool limitReached = false;
  leader->mergeEventsFromEventRequest(*other, limitReached);
  for (int time = 0; time < 2; ++time) {
    const Dictionary body = leader->requestSpec()->HTTPBody;
    EXPECT_EQ(body["ids"], parseJSON(R"({"iid":"i","sid":"1"})"));
    const Array& events = *body["events"].array();
    EXPECT_TRUE((*events[0].dictionary())["ids"].isNil());
    EXPECT_EQ((*events[1].dictionary())["ids"], parseJSON(R"({"sid":"own"})"));
    EXPECT_EQ((*events[2].dictionary())["ids"], parseJSON(R"({"sid":"2"})"));
    EXPECT_EQ(events[3], Value("no event"));
  }
}

TEST(OrvantaEventRequest, IsRankedByItsEvents) {
  const auto geofence = OrvantaGeofenceEvent::eventWithIdentifier("g", 1);
  const std::pair<Array, std::int64_t> rows[] = {
      {{}, 0},
      {{geofence}, 1},
      {{OrvantaLoginEvent::eventWithUserId("u")}, 0},
      {{"no event"}, 0},
      {{"no event", "nor this"}, 1},
  };
  for (const auto& [events, priority] : rows) {
    EXPECT_EQ(
        make<OrvantaEventRequest>(&OrvantaEventRequest::initWithEventArray, events)->priority(),
        priority);
  }
  EXPECT_EQ(modelFromJSON<OrvantaEventRequest>("{}")->priority(), 0);
  EXPECT_EQ(modelFromJSON<OrvantaEventRequest>(R"({"events":[{"klazz":"OrvantaGeofenceEvent"}]})")
                ->priority(),
            1);
}

// ---- Replies, user and configuration -------------------------------------------

TEST(OrvantaInboxCountResponse, SumsTheCountsOfAMask) {
  const struct {
    std::string_view counts;
    std::uint64_t mask;
    std::int64_t sum;
  } rows[] = {
      {R"({"1":5,"2":7,"4":2})", 3, 12},
      {R"({"1":5,"2":7,"4":2})", 4, 2},
      {R"({"1":5,"2":7,"4":2})", 7, 14},
      {R"({"1":5,"2":7,"4":2})", 8, 0},
      {R"({"1":"6","2":null,"3":[1],"x":9})", 3, 6},
      {"[1]", 1, 0},
      {"null", 1, 0},
  };
  for (const auto& row : rows) {
    const auto response = modelFromJSON<OrvantaInboxCountResponse>(
        std::string(R"({"cnts":)").append(row.counts).append("}"));
    EXPECT_EQ(response->countForStatus(row.mask), row.sum) << row.counts << " " << row.mask;
  }
}

TEST(OrvantaAppConfig, ForgetsTenPropertiesAndKeepsTheRest) {
  const std::string_view kDefaults =
      R"({"v":0,"badge":false,"locHist":false,"sei":180.0,"cei":9223372036854775808.0,)"
      R"("sai":false,"bte":false,"btl":0,"scv":false,"ife":false,"ipe":false,"exe":false,)"
      R"("itd":false,"ept":9223372036854775808.0,"ep":2,"oep":true})";
  const auto config = make<OrvantaAppConfig>();
  EXPECT_EQ(Value(config->dictionaryValue()), parseJSON(kDefaults));
  const Value all = parseJSON(
      R"({"v":4,"badge":true,"locHist":true,"sei":60,"cei":1,"sai":true,"url":"u","geofs":[{"a":1}],)"
      R"("htmlTemps":{},"interCats":[{"id":"a"},{"id":"b"}],"bte":true,"btl":3,"scv":true,)"
      R"("ife":true,"ipe":true,"exe":true,"itd":true,"ept":2,"appKey":"k","ep":0,"oep":false})");
  EXPECT_TRUE(config->updateWithDictionary(all.dictionary()));
  EXPECT_EQ(config->interactiveCategories().get()->size(), 2U);
  EXPECT_EQ(config->geofences().value(), parseJSON(R"([{"a":1}])"));
  const Dictionary nothing;
  EXPECT_TRUE(config->updateWithDictionary(&nothing));
  Dictionary left = config->dictionaryValue();
  for (const Dictionary::Entry& row : dictionaryFromJSON(kDefaults)) {
    const bool isKept = row.key() == "bte" || row.key() == "btl" || row.key() == "ife" ||
                        row.key() == "ipe" || row.key() == "exe" || row.key() == "itd";
    EXPECT_EQ(left[row.key()], isKept ? (*all.dictionary())[row.key()] : row.value) << row.key();
  }
  EXPECT_EQ(left["url"], Value("u"));
}

TEST(OrvantaInboxCategoryResponse, IsReadDownToItsLastMessage) {
  const auto response = modelFromJSON<OrvantaInboxCategoryResponse>(
      R"({"cnt":[{"ct":"sale","st":{"1":2,"4":"7"},"msg":{"_ov":{"pid":"p"}}}]})");
  const auto* category = (*response->objects().get())[0].as<OrvantaInboxCategoryObject>();
  ASSERT_NE(category, nullptr);
  EXPECT_EQ(category->status().get()->readCount(), 2);
  EXPECT_EQ(category->status().get()->deletedCount(), 7);
  EXPECT_EQ(category->lastMessage().get()->pushId().get(), "p");
}

}  // namespace
}  // namespace orvanta::testing
