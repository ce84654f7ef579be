#include <gtest/gtest.h>

#include "orvanta/Model/Events/OrvantaLoginEvent.h"
#include "orvanta/Model/Requests/EventBatchQueue.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

Ref<OrvantaEventRequest> stored(std::uint64_t storageId, std::size_t events) {
  auto request = make<OrvantaEventRequest>();
  request->setStorageId(storageId);
  for (; events > 0; --events) request->editEvents().append(make<OrvantaLoginEvent>());
  return request;
}

/// "STORAGE ID:EVENTS[IDS CONTAINED] ".
std::string summary(const OrvantaEventRequest& batch) {
  return describe(batch.storageId().raw()) + ":" + std::to_string(eventCount(batch)) +
         toJSON(batch.idsContained().raw()) + " ";
}

TEST(EventBatchQueue, CompletesABatchAtTheLimit) {
  const struct {
    std::vector<std::size_t> requests;
    std::string_view complete;
    std::string_view rest;
  } rows[] = {
      {{}, "", ""},
      {{1, 1, 1}, "", "1:3[2,3] "},
      {{95, 10, 1}, "1:100[2] ", "2:6[3] "},  // what does not fit opens the next batch
      {{100, 1}, "1:100[] ", "2:1[] "},
      {{130, 1}, "1:130[] ", "2:1[] "},
      {{99, 1}, "1:100[2] ", ""},
      {{1, 250}, "1:100[2] 2:151[] ", ""},
      {{1, 0, 1}, "", "1:2[2,3] "},
  };
  for (const auto& row : rows) {
    EventBatchQueue queue;
    std::string complete;
    std::uint64_t storageId = 0;
    for (const std::size_t events : row.requests) {
      for (const auto& batch : queue.add(stored(++storageId, events))) complete += summary(*batch);
    }
    EXPECT_EQ(complete, row.complete);
    const auto rest = queue.finish();
    EXPECT_EQ(rest ? summary(*rest) : "", row.rest);
    EXPECT_FALSE(queue.finish());
  }
}

TEST(EventBatchQueue, KeepsTheIdentifiersOfARequestThatIsSplit) {
  EventBatchQueue queue;
  queue.add(stored(1, 99));
  const auto split = stored(2, 2);
  split->setIdentifiers(make<OrvantaIdentifiers>(Dictionary{{"iid", "i"}}));
  const auto complete = queue.add(split);
  ASSERT_EQ(complete.size(), 1U);
  complete[0]->setIdentifiers(make<OrvantaIdentifiers>(Dictionary{{"iid", "i"}}));
  complete[0]->requestSpec();  // strips the identifiers of its events
  EXPECT_EQ(toJSON(queue.finish()->identifiers().get()->dictionaryValue()), R"({"iid":"i"})");
}

}  // namespace
}  // namespace orvanta::testing
