#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/JSON.h"
#include "support/TemporaryFolder.h"
#include "support/ToolRunner.h"

namespace orvanta::testing {
namespace {

namespace fs = std::filesystem;
using tool::ExitCode;

constexpr const char* kMedia =
    R"({"aps":{"alert":"Sale","mutable-content":1},"_ov":{"mu":"https://m.example.com/a/pic.png"}})";

/// The attachments of the notification as shown.
Array attachmentsShown(const ToolRun& run) {
  const Value shown = parseJSON(run.out).dictionary()->valueForKey("shown");
  return *(*shown.array())[0].dictionary()->valueForKey("attachments").array();
}

TEST(NotifyCommand, NamesTheKeyOfABadScenario) {
  const struct {
    const char* scenario;
    const char* message;
  } rows[] = {
      {R"({"unknown":1})", R"(unknown key "unknown")"},
      {R"({"media":{"typo":1}})", R"(unknown key "media.typo")"},
      {R"({"os":"fifteen"})", R"("os": expected a version such as "15.0", found "fifteen")"},
      {R"({"title":5})", R"("title": expected a string, found 5)"},
      {R"({"images":["a",1]})", R"("images")"},
      {R"({"attachments":-1})",
       R"("attachments": expected a whole number from 0 to 100, found -1)"},
      {R"({"media":{"result":"maybe"}})",
       R"("media.result": expected "ok" or "error", found "maybe")"},
      {R"({"media":{"tempName":"../x"}})",
       R"("media.tempName": expected a plain file name, found "../x")"},
      {R"({"media":{"bytes":1.5}})",
       R"("media.bytes": expected a whole number from 0 to 1000000000, found 1.5)"},
      {R"({"center":"here"})", R"("center": expected "gone", found "here")"},
      {R"({"delays":{"donation":"1"}})", R"("delays.donation")"},
      {R"({"expireAt":true})",
       R"("expireAt": expected a number of seconds from 0 to 1e9, found true)"},
      {R"({"second":{"payload":[]}})", R"("second.payload": expected an object, found [])"},
  };
  const TemporaryFolder folder;
  for (const auto& row : rows) {
    const std::string file = folder.file("scenario.json", row.scenario);
    const ToolRun run = runTool({"notify", "--scenario", file}, kMedia);
    EXPECT_EQ(run.exit, ExitCode::unreadable) << row.scenario;
    EXPECT_NE(run.err.find(row.message), std::string::npos) << run.err;
    EXPECT_EQ(run.out, "") << row.scenario;
  }
}

TEST(NotifyCommand, RejectsInvalidOptions) {
  const std::vector<std::string> rows[] = {
      {"--time-budget", "nan"}, {"--time-budget", "-1"},
      {"--os-version", "x"},    {"--map-url", "https://m.example.com/"},
      {"--max-download", "5X"}, {"--max-download", "0"},
      {"--max-download", "0M"}, {"--max-download", "-1"},
      {"--max-download", "k"},  {"--max-download", "0x10"},
      {"--max-download", "+5"}, {"--max-download", "1.5M"},
      {"--max-download", "2T"}, {"--max-download", "99999999999G"},
      {"--max-download", ""},
  };
  for (const auto& row : rows) {
    const ToolRun run = runTool({"notify", row[0], row[1]}, kMedia);
    EXPECT_EQ(run.exit, ExitCode::usage) << row[0] << ' ' << row[1];
    EXPECT_NE(run.err.find(row[0]), std::string::npos) << run.err;
  }
}

TEST(NotifyCommand, ServesMappedUrlsFromTheirFolderAlone) {
  const TemporaryFolder outside;
  const TemporaryFolder folder;
  folder.file("pic.png", "picture");
  const std::string secret = outside.file("secret.png", "secret");
  fs::create_symlink(secret, folder / "link.png");
  const auto run = [&](const std::string& url, const std::string& prefix) {
    const std::string payload = R"({"aps":{"alert":"a"},"_ov":{"mu":")" + url + "\"}}";
    return runTool({"notify", "--json", "--map-url", prefix + "=" + folder.path().string()},
                   payload);
  };
  EXPECT_EQ(attachmentsShown(run("https://m/pic.png?w=1", "https://m/")).size(), 1U);
  const std::string name = fs::path(secret).parent_path().filename().string();
  const std::string refused[] = {"https://m/link.png", "https://m/missing.png",
                                 "https://m/%2e%2e/" + name + "/secret.png"};
  for (const std::string& url : refused) {
    EXPECT_EQ(attachmentsShown(run(url, "https://m/")).size(), 0U) << url;
  }
  EXPECT_EQ(attachmentsShown(run("file://" + folder.path().string() + "/pic.png", "x")).size(), 1U);
  EXPECT_EQ(attachmentsShown(run("file://" + secret, "x")).size(), 0U);
}

TEST(NotifyCommand, EndsADownloadBeyondTheLimit) {
  const struct {
    const char* limit;
    std::uintmax_t bytes;
  } rows[] = {{"2000", 2000},  {"2k", 2000},     {"2 kB", 2000},    {"2K", 2000},
              {"1Ki", 1024},   {"1kib", 1024},   {"1M", 1'000'000}, {"1mb", 1'000'000},
              {"1000b", 1000}, {"1MiB", 1 << 20}};
  const TemporaryFolder folder;
  const std::string media = folder.file("pic.png", "");
  for (const auto& row : rows) {
    for (const std::uintmax_t beyond : {0U, 1U}) {
      fs::resize_file(media, row.bytes + beyond);
      const ToolRun run = runTool({"notify", "--json", "--max-download", row.limit, "--map-url",
                                   "https://m.example.com/a/=" + folder.path().string()},
                                  kMedia);
      EXPECT_EQ(attachmentsShown(run).size(), 1 - beyond) << row.limit;
    }
  }
  EXPECT_NE(runTool({"notify", "--help"}).out.find("BYTES=256M"), std::string::npos);
}

TEST(NotifyCommand, KeepsANamedStateFolder) {
  const TemporaryFolder state;
  const std::string scenario = state.file("scenario.json", R"({"media":{"mime":"image/png"}})");
  const std::string folder = state.path().string() + "/state";
  for (int run = 1; run <= 2; ++run) {
    const ToolRun done =
        runTool({"notify", "--json", "--state", folder, "--scenario", scenario}, kMedia);
    EXPECT_EQ(done.exit, ExitCode::done) << done.err;
    const std::string url = "state/Caches/CFNetworkDownload_00000" + std::to_string(run) + ".tmp";
    EXPECT_EQ(attachmentsShown(done)[0].dictionary()->valueForKey("url"), Value(url));
  }
  fs::create_directory(folder + "/categories.json");
  const ToolRun broken = runTool({"notify", "--state", folder}, kMedia);
  EXPECT_EQ(broken.exit, ExitCode::unreadable);
  EXPECT_NE(broken.err.find("categories.json"), std::string::npos) << broken.err;
}

TEST(NotifyCommand, WritesThroughNoLinkInTheStateFolder) {
  const TemporaryFolder state;
  const std::string precious = state.file("precious", "keep");
  const std::string scenario =
      state.file("scenario.json", R"({"media":{"tempName":"dl.tmp"},"images":["star"]})");
  fs::create_directories(state.path().string() + "/state/tmp");
  fs::create_symlink(precious, state.path().string() + "/state/tmp/dl.tmp");
  const ToolRun run = runTool(
      {"notify", "--json", "--state", state.path().string() + "/state", "--scenario", scenario},
      kMedia);
  EXPECT_EQ(attachmentsShown(run).size(), 0U);
  EXPECT_EQ(fs::file_size(precious), 4U);
}

TEST(NotifyCommand, EscapesAHostilePayloadOnTheTerminal) {
  const ToolRun run =
      runTool({"notify"}, R"({"aps":{"alert":{"title":"a\u001b[31mb","body":"c\r\u009bd"}}})");
  EXPECT_EQ(run.out.find('\x1b'), std::string::npos);
  EXPECT_EQ(run.out.find('\r'), std::string::npos);
  EXPECT_NE(run.out.find("a\\u001b[31mb"), std::string::npos);
}

TEST(NotifyCommand, EscapesDeleteAndC1InItsReport) {
  const ToolRun run =
      runTool({"notify", "--json"}, R"({"aps":{"alert":{"title":"a\u007fb\u009bc\u00a0d"}}})");
  EXPECT_NE(run.out.find("\"a\\u007fb\\u009bc\u00a0d\""), std::string::npos) << run.out;
  EXPECT_EQ(run.out.find("\u009b"), std::string::npos);
}

TEST(NotifyCommand, CutsASoundThatTakesMuchMoreRoomThanItsPayload) {
  const std::string deep = std::string(400, '[') + "1" + std::string(400, ']');
  const ToolRun run = runTool({"notify"}, R"({"aps":{"alert":"a","sound":{"s":)" + deep + "}}}");
  EXPECT_NE(run.out.find(" …\n"), std::string::npos);
  EXPECT_LT(run.out.size(), 16384U);
}

}  // namespace
}  // namespace orvanta::testing
