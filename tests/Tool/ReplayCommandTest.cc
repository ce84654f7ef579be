#include <gtest/gtest.h>

#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

TEST(ReplayCommand, CountsOutcomes) {
  const std::string lines =
      R"({"aps":{"alert":"a"}})"
      "\n"
      R"({"aps":{"category":"c"},"_ov":{"ia":[{"id":"b"}],"mu":"https://m.example/a"}})"
      "\r\n"
      "\n"
      R"({"_ov":{"ps":{"iospi":"star"},"mu":"https://m.example/a"}})"
      "\n"
      R"({"_ov":{"mu":5}})"
      "\n"
      R"({"_ov":{"ia":[{"actM":[]}]}})"
      "\n"
      R"({"_ov":5})"
      "\n"
      "[1]\n"
      R"({"aps":)"
      "\n"
      R"({"aps":{"alert":"no line end"}})";
  for (const char* const jobs : {"1", "3"}) {
    const ToolRun run = runTool({"replay", "--json", "--jobs", jobs, "--log-level", "0"}, lines);
    EXPECT_EQ(run.exit, ExitCode::rejected);
    const Value counts = parseJSON(run.out);
    EXPECT_EQ(toJSON(counts, {.escapeSlashes = false}),
              R"({"format":1,"payloads":7,"deliveries":7,"plain":2,"buttons":1,"media":2,"icon":1,)"
              R"("refused":2,"refusedBy":{"_ov.ia > actM":1,"_ov.mu":1},"undefinedKey":1,)"
              R"("bytes":{"p50":28,"p90":77,"p99":77,"max":77},"badLines":2,"firstBadLines":[)"
              R"("standard input:8: is an array","standard input:9: column 8: )"
              R"(the text ends where a value should stand"]})");
    EXPECT_NE(run.err.find("2 lines are no JSON objects"), std::string::npos) << run.err;
  }
}

TEST(ReplayCommand, NamesTheFirstTenBadLines) {
  std::string lines = R"({"a":")" + std::string(300'000, 'x') + "\"}\n";
  for (int i = 0; i < 5000; ++i) lines += "bad\n";
  const ToolRun run = runTool({"replay", "--jobs", "4"}, lines);
  EXPECT_EQ(run.exit, ExitCode::rejected);
  EXPECT_TRUE(run.err.starts_with("orvanta: standard input:1: more than 262144 bytes\n"))
      << run.err;
  EXPECT_NE(run.err.find("standard input:10: column 1"), std::string::npos);
  EXPECT_EQ(run.err.find("standard input:11:"), std::string::npos);
  EXPECT_NE(run.err.find("5001 lines are no JSON objects"), std::string::npos);
  EXPECT_TRUE(run.out.starts_with("payloads                                           0\n"))
      << run.out;
}

}  // namespace
}  // namespace orvanta::testing
