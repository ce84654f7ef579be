#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Inspection/Models.h"
#include "orvanta/Tool/CommandLine.h"
#include "orvanta/Tool/Text.h"

namespace orvanta::testing {
namespace {

TEST(Text, MeasuresEditDistance) {
  const struct {
    std::string_view a, b;
    std::size_t distance;
  } rows[] = {
      {"", "", 0}, {"", "ab", 2}, {"ab", "ab", 0}, {"kitten", "sitting", 3}, {"abc", "ca", 3}};
  for (const auto& row : rows) {
    EXPECT_EQ(inspection::editDistance(row.a, row.b), row.distance) << row.a;
    EXPECT_EQ(inspection::editDistance(row.b, row.a), row.distance) << row.b;
  }
}

TEST(Text, PrintsJSONOrThrows) {
  std::ostringstream out;
  tool::printJSON(Array{"a/b\n\u009b", 1}, out, /*pretty=*/true);
  EXPECT_EQ(out.str(), "[\n  \"a/b\\n\\u009b\",\n  1\n]\n");
  EXPECT_THROW(tool::printJSON(Array{std::numeric_limits<double>::infinity()}, out, false),
               tool::CommandError);
}

}  // namespace
}  // namespace orvanta::testing
