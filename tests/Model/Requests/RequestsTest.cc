#include <gtest/gtest.h>

#include "orvanta/Model/Requests/OrvantaCouponFilter.h"
#include "orvanta/Model/Requests/OrvantaFetchInboxRequest.h"
#include "orvanta/Model/Requests/OrvantaInboxCategoryFilter.h"
#include "orvanta/Model/Requests/OrvantaInboxCountFilter.h"
#include "orvanta/Model/Requests/OrvantaInitSessionRequest.h"
#include "orvanta/Model/Requests/OrvantaSetInboxStatusRequest.h"
#include "orvanta/Model/Requests/OrvantaSetUserCategoryRequest.h"
#include "orvanta/Model/Requests/OrvantaUpdateUserRequest.h"
#include "support/LogLevel.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

TEST(OrvantaRequestPathType, ReturnsNilForUnknownCodes) {
  EXPECT_EQ(OrvantaRequestPathStringForType(0), std::nullopt);
  EXPECT_EQ(OrvantaRequestPathStringForType(7), "/user/update-identify");
  EXPECT_EQ(OrvantaRequestPathStringForType(21), "/coupon/fetch");
  EXPECT_EQ(OrvantaRequestPathStringForType(22), std::nullopt);
  EXPECT_EQ(OrvantaHTTPMethodStringForType(0), "POST");
  EXPECT_EQ(OrvantaHTTPMethodStringForType(3), "DELETE");
  EXPECT_EQ(OrvantaHTTPMethodStringForType(~std::uint64_t{0}), std::nullopt);
}

TEST(OrvantaBaseRequest, SetsUpOnceAndBuildsASpec) {
  const auto base = make<OrvantaBaseRequest>();
  EXPECT_FALSE(base->requestSpec()->path.isPresent());
  EXPECT_EQ(base->priority(), std::nullopt);

  const auto request = modelFromJSON<OrvantaSetInboxStatusRequest>(R"({"st":4,"ids":{"iid":"i"}})");
  request->setStorageId(7);
  request->editIdsContained().append(8);
  request->setQueuePriority(-4);
  const Dictionary read{{"all", true}};
  EXPECT_TRUE(request->updateWithDictionary(&read));  // does not set up again
  EXPECT_EQ(request->description(),
            "Spec : \nBase URL : (null)\nPath : /inbox/set\nMethod : POST\nHeaders : {\n}\n"
            "Body : {\n    all = 1;\n    ids =     {\n        iid = i;\n    };\n    st = 4;\n}\n"
            "Timeout : 20.000000\nPriority : -4\nStorage Id : 7\nContained Ids : (\n    8\n)");
}

TEST(Requests, InitializersSetTheirFields) {
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
  EXPECT_EQ(request->filter().get()->status(), 0U);  // only `init` sets the defaults
  EXPECT_EQ(
      Value(request->dictionaryValueWithClassInfo()),
      parseJSON(R"({"ids":{"iid":"i","klazz":"OrvantaIdentifiers"},"st":0,"ps":30,"ie":false,)"
                R"("klazz":"OrvantaFetchInboxRequest"})"));
  const LogLevel quiet(0);
  EXPECT_FALSE(modelFromJSON<OrvantaFetchInboxRequest>(R"({"ps":null})"));
}

TEST(Filters, HaveDefaults) {
  EXPECT_EQ(toJSON(make<OrvantaInboxFilter>()->dictionaryValue()),
            R"({"st":3,"ps":2147483647,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaInboxCategoryFilter>()->dictionaryValue()),
            R"({"st":3,"ps":2147483647,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaInboxCountFilter>()->dictionaryValue()), R"({"st":3,"ie":false})");
  EXPECT_EQ(toJSON(make<OrvantaCouponFilter>()->dictionaryValue()), R"({"page":0,"max":0})");
}

}  // namespace
}  // namespace orvanta::testing
