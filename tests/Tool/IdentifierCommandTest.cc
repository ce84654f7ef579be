#include <gtest/gtest.h>

#include <algorithm>

#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

TEST(IdentifierCommand, GeneratesDecodableIdentifiers) {
  const ToolRun three = runTool({"identifier", "-n", "3"});
  EXPECT_EQ(three.exit, ExitCode::done);
  EXPECT_EQ(std::count(three.out.begin(), three.out.end(), '\n'), 3);
  const std::string first = three.out.substr(0, three.out.find('\n'));
  EXPECT_EQ(runTool({"identifier", "--decode", first}).exit, ExitCode::done);
}

TEST(IdentifierCommand, DecodesOrReportsWhyNot) {
  const struct {
    std::string text;
    ExitCode exit;
    std::string_view says;
  } rows[] = {
      {"FiNPDvMOVkwBo", ExitCode::done,
       "number  47111700000000123456789\n"
       "time    2023-11-14 22:13:20.123456789 UTC\n"
       "random  4711\n"},
      {"", ExitCode::rejected, "less than 20 digits"},
      {"FiNPDvMOVkwBoaa", ExitCode::rejected, "ends with the digit 0"},
      {"ab", ExitCode::rejected, "less than 20 digits"},
      {"a_b", ExitCode::rejected, "another character"},
      {std::string(22, 'Z'), ExitCode::rejected, "too long"},
      {std::string(14, 'Z'), ExitCode::rejected, "beyond 65534"},
  };
  for (const auto& row : rows) {
    const ToolRun run = runTool({"identifier", "--decode", row.text});
    EXPECT_EQ(run.exit, row.exit) << row.text;
    EXPECT_NE((run.out + run.err).find(row.says), std::string::npos) << run.out << run.err;
  }
}

}  // namespace
}  // namespace orvanta::testing
