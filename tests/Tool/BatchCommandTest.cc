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

TEST(BatchCommand, PrintsOneLinePerBatch) {
  const ToolRun run = runTool({"batch"}, stored(99) + stored(2, R"({"iid":"i","sid":"2"})"));
  EXPECT_EQ(run.exit, ExitCode::done);
  EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 2);
  EXPECT_TRUE(run.out.starts_with(R"({"storageId":1,"idsContained":[2],"events":100,"priority":1,)"
                                  R"("spec":{"baseURL":null,"path":"/event/fire",)"))
      << run.out;
  const std::string rest = run.out.substr(run.out.find('\n') + 1);
  EXPECT_TRUE(rest.starts_with(R"({"storageId":2,"idsContained":[],"events":1,)")) << rest;
  EXPECT_NE(rest.find(R"("ids":{"iid":"i","sid":"2"})"), std::string::npos) << rest;
  EXPECT_EQ(runTool({"batch"}).out, "");
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

}  // namespace
}  // namespace orvanta::testing
