#include <gtest/gtest.h>

#include "orvanta/Foundation/Array.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Simulator/NotificationSimulator.h"
#include "orvanta/Simulator/Report/JSONReport.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {
namespace {

constexpr std::string_view kMedia =
    R"({"aps": {"alert": "a", "mutable-content": 1}, "_ov": {"mu": "https://m.example/a.jpg"}})";

/// A simulated device in memory; state stays from run to run.
struct MemoryDevice {
  InMemoryDeviceFiles files;
  InMemoryStateStore state;

  SimulationReport run(std::string_view payload, std::string_view scenario = "{}") {
    const NotificationSimulator simulator(
        [] { return std::make_shared<OrvantaNotificationServiceExtension>(); },
        {.files = files, .state = state},
        {.scenario = Scenario::fromDictionary(dictionaryFromJSON(scenario))});
    return simulator.run(dictionaryFromJSON(payload));
  }
};

std::string mediaFailure(const SimulationReport& report, std::size_t request = 0) {
  const Event* failure = firstFailure(report, report.presented.at(request), Stage::media);
  return failure != nullptr ? std::string(nameOf(failure->kind)) : "none";
}

TEST(NotificationSimulator, RunsWithoutAnyMachine) {
  MemoryDevice device;
  const SimulationReport offline = device.run(kMedia);
  EXPECT_EQ(mediaFailure(offline), "download-failed");
  EXPECT_EQ(offline.events.at(2).error->code(), kNSURLErrorNotConnectedToInternet);

  const SimulationReport report = device.run(kMedia, R"({"media": {}})");
  ASSERT_EQ(report.presented.at(0).content.attachments.size(), 1U);
  EXPECT_EQ(report.presented[0].content.attachments[0]->parts().type, "public.jpeg");
  EXPECT_EQ(mediaFailure(report), "none");
}

TEST(NotificationSimulator, KeepsStateFromRunToRun) {
  MemoryDevice device;
  const char* const payload = R"({"aps": {"alert": "a", "category": "c"},
      "_ov": {"ia": [{"id": "1", "action": "t", "title": "T"}]}})";
  EXPECT_EQ(device.run(payload).categories->size(), 3U);
  EXPECT_EQ(device.run(R"({"aps": {"alert": "a", "category": "c"}})").presented[0].buttons.size(),
            1U);
  device.state.write("categories.json", "{}");
  EXPECT_THROW(device.run(payload), std::runtime_error);
}

TEST(NotificationSimulator, TheFirstFailureOfAStageIsItsReason) {
  const struct {
    std::string_view media;
    std::string_view failure;
  } rows[] = {
      {R"({"status": 404, "mime": null})", "download-finished"},  // and not that it has no type
      {R"({"result": "error"})", "download-failed"},
      {R"({"destinationExists": true})", "move-failed"},
      {R"({"mime": "text/html"})", "attachment-rejected"},
      {R"({"status": 500, "bytes": 20000000})", "attachment-rejected"},  // a picture, too large
      {R"({"status": 404, "delay": 40})", "none"},                       // the expiry came first
  };
  for (const auto& row : rows) {
    MemoryDevice device;
    const std::string scenario = std::string(R"({"media": )").append(row.media).append("}");
    EXPECT_EQ(mediaFailure(device.run(kMedia, scenario)), row.failure) << row.media;
  }
}

TEST(NotificationSimulator, ARequestHasOnlyItsOwnFailures) {
  MemoryDevice device;
  const SimulationReport report =
      device.run(R"({"aps": {"alert": "first"}})",
                 std::string(R"({"media": {"result": "error"}, "second": {"at": 0, "payload": )")
                     .append(kMedia)
                     .append("}}"));
  ASSERT_EQ(report.presented.size(), 2U);
  EXPECT_EQ(mediaFailure(report, 0), "none");
  EXPECT_EQ(mediaFailure(report, 1), "download-failed");
}

TEST(NotificationSimulator, AnImageWithoutANameDoesNotExist) {
  MemoryDevice device;
  const SimulationReport report =
      device.run(R"({"aps": {"alert": {"title": "a"}}, "_ov": {"pst": 1, "iospi": ""}})",
                 R"({"images": [""]})");
  EXPECT_TRUE(report.donations.empty());
}

TEST(JSONReport, EventsHaveTheFactsOfTheirKind) {
  MemoryDevice device;
  const SimulationReport report = device.run(kMedia, R"({"media": {"mime": "text/html"}})");
  const Dictionary json = reportAsJSON(
      report, {}, [](std::string_view string) { return "<" + std::string(string) + ">"; });
  EXPECT_EQ(json["format"], Value(2));
  const Array& events = *json["events"].array();
  const Value expected = parseJSON(
      R"({"time": 0, "kind": "attachment-rejected", "stage": "media", "request": 1,
          "type": "public.html",
          "error": {"domain": "UNErrorDomain", "code": 101,
                    "description": "Unrecognized attachment file type"},
          "text": "<it cannot be attached as public.html: Unrecognized attachment file type>"})");
  EXPECT_EQ(events[4], expected) << describe(events[4]);
}

}  // namespace
}  // namespace orvanta::testing
