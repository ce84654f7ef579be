#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <thread>

#include "support/TemporaryFolder.h"
#include "support/ToolRunner.h"
#include "support/Values.h"

namespace orvanta::testing {
namespace {

using tool::ExitCode;

std::string stored(std::size_t events, std::string_view identifiers = R"({"iid":"i"})") {
  std::string line = R"({"events":[)";
  for (std::size_t i = 0; i < events; ++i) {
    line.append(i == 0 ? "" : ",").append(R"({"klazz":"OrvantaLoginEvent"})");
  }
  return line.append(R"(],"ids":)").append(identifiers).append("}\n");
}

TEST(BatchCommand, FoldsStoredRequests) {
  const struct {
    std::vector<std::size_t> lines;
    std::string_view batches;  // leader, events, ids contained
  } rows[] = {
      {{}, ""},
      {{1, 1, 1}, "1:3[2,3] "},
      {{95, 10, 1}, "1:100[2] 2:6[3] "},  // what a merge leaves over leads the next batch
      {{100, 1}, "1:100[] 2:1[] "},
      {{130, 1}, "1:130[] 2:1[] "},
      {{1, 250}, "1:100[2] 2:151[] "},
  };
  for (const auto& row : rows) {
    std::string input;
    for (const std::size_t events : row.lines) input += stored(events);
    const ToolRun run = runTool({"batch"}, input);
    EXPECT_EQ(run.exit, ExitCode::done);
    std::string batches;
    std::istringstream out(run.out);
    for (std::string line; std::getline(out, line);) {
      const Value batch = parseJSON(line);
      ASSERT_NE(batch.dictionary(), nullptr) << line;
      batches += describe((*batch.dictionary())["storageId"]) + ":" +
                 describe((*batch.dictionary())["events"]) +
                 toJSON((*batch.dictionary())["idsContained"]) + " ";
    }
    EXPECT_EQ(batches, row.batches);
  }
}

TEST(BatchCommand, KeepsTheIdentifiersOfWhatIsLeftOver) {
  const ToolRun run = runTool({"batch"}, stored(99) + stored(2, R"({"iid":"i","sid":"2"})"));
  const std::string second = run.out.substr(run.out.find('\n') + 1);
  EXPECT_NE(second.find(R"("ids":{"iid":"i","sid":"2"})"), std::string::npos) << second;
}

TEST(BatchCommand, NamesTheLinesThatItLeavesOut) {
  const ToolRun run = runTool(
      {"batch"},
      stored(1) + "{\n\n[]\n" + R"({"events":[]})" + "\n" + R"({"klazz":"OrvantaUser"})" + "\n" +
          R"({"events":[{"klazz":"OrvantaLoginEvent","ts":"x"}]})" + "\n" +
          R"({"events":[{"klazz":"OrvantaLoginEvent","revenue":"1e999"}]})" + "\n" + stored(1));
  EXPECT_EQ(run.exit, ExitCode::rejected);
  EXPECT_NE(run.out.find(R"({"storageId":1,"idsContained":[9],"events":2,)"), std::string::npos)
      << run.out;
  for (const std::string_view line :
       {":2: column 2", ":4: the line is an array", R"(:5: "events" is empty)",
        R"(:6: "klazz" is "OrvantaUser")", ":7: OrvantaEventRequest", ":8: it holds",
        "6 lines were left out"}) {
    EXPECT_NE(run.err.find(line), std::string::npos) << line << "\n" << run.err;
  }
}

TEST(BatchCommand, LosesNothingOfAPipe) {
  const TemporaryFolder folder;
  const std::string pipe = (folder.path() / "pipe").string();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const std::string example = std::string(ORVANTA_SOURCE_DIR) + "/examples/events/stored.jsonl";
  std::thread writer([&] { std::ofstream(pipe) << std::ifstream(example).rdbuf(); });
  const ToolRun run = runTool({"batch", pipe});
  writer.join();
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(run.out, runTool({"batch", example}).out);
  EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 3);
}

TEST(BatchCommand, WarnsAboutAcceptedButSuspiciousLines) {
  const ToolRun run = runTool({"batch"}, R"({"events":[{}],"events":[{"code":"o:oa"}]})");
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_NE(run.err.find("standard input:1: warning: the key \"events\" stands twice"),
            std::string::npos);
  EXPECT_NE(run.err.find("1 of \"events\" name no event class"), std::string::npos);
}

TEST(RequestCommand, PrintsTheCallOfARequest) {
  const ToolRun run = runTool({"request", "OrvantaFetchCouponRequest"}, R"({"page":2})");
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(
      toJSON(parseJSON(run.out), {.escapeSlashes = false}),
      R"({"baseURL":null,"path":"/coupon/fetch","HTTPMethod":"POST","HTTPHeaders":{},)"
      R"("HTTPBody":{"page":2,"max":0},"timeoutInterval":20,"queuePriority":0,"priority":1})");
  EXPECT_NE(runTool({"request", "OrvantaFetchCouponRequest", "--text"}, "{}")
                .out.find("Path : /coupon/fetch\n"),
            std::string::npos);
  EXPECT_EQ(runTool({"request", "OrvantaUser"}, "{}").exit, ExitCode::usage);
  EXPECT_EQ(runTool({"request", "OrvantaFetchCouponRequest"}, R"({"ids":{"iid":1},"max":[]})").exit,
            ExitCode::rejected);
}

}  // namespace
}  // namespace orvanta::testing
