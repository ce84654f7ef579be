#include <gtest/gtest.h>

#include "orvanta/Model/Responses/OrvantaInboxCategoryResponse.h"
#include "orvanta/Model/Responses/OrvantaInboxCountResponse.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

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

TEST(OrvantaInboxCategoryResponse, ReadsItsNestedModels) {
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
