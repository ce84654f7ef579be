#include <gtest/gtest.h>

#include "orvanta/Model/Events/OrvantaGeofenceEvent.h"
#include "orvanta/Model/Events/OrvantaLoginEvent.h"
#include "orvanta/Model/Requests/OrvantaEventRequest.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

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

TEST(OrvantaEventRequest, MergesEventsUpToTheLimit) {
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
    EXPECT_EQ(own->idsContained().raw(), Value(Array{42}));
  }
  const auto own = batchOf(2);
  const auto other = batchOf(2);
  other->editEvents().set(0, OrvantaLoginEvent::eventWithUserId("first"));
  bool limitReached = false;
  own->mergeEventsFromEventRequest(*other, limitReached);
  EXPECT_EQ((*own->events().get())[2].as<OrvantaLoginEvent>()->userId().get(), "first");
  EXPECT_EQ(own->idsContained().raw(), Value(Array{}));  // the other was never stored
  own->setEvents(nullptr);
  own->mergeEventsFromEventRequest(*batchOf(1), limitReached);
  EXPECT_EQ(countOf(own), 1U);
}

TEST(OrvantaEventRequest, RemovesIdentifiersEqualToItsOwn) {
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

TEST(OrvantaEventRequest, HasThePriorityOfItsEvents) {
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

}  // namespace
}  // namespace orvanta::testing
