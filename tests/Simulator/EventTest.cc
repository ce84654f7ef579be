#include <gtest/gtest.h>

#include <set>

#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"

namespace orvanta::testing {
namespace {

using K = EventKind;

TEST(Event, HasASentenceForEachOfItsFacts) {
  const Ref<NSError> error = NSError::errorWithDomain("D", 1, "The server is gone.");
  const struct {
    Event event;
    std::string_view sentence;
  } rows[] = {
      {{.kind = K::requestReceived, .request = 1}, "the extension gets the request"},
      {{.kind = K::requestReceived, .request = 2}, "the extension gets a second request"},
      {{.kind = K::categoriesRead, .count = 1}, "the registered categories are read: 1 category"},
      {{.kind = K::categoriesWritten, .count = 0}, "0 categories registered"},
      {{.kind = K::downloadFinished, .type = "a/b", .count = 1, .status = 200},
       "the download is there: status 200, 1 byte, a/b"},
      {{.kind = K::downloadFinished}, "the download is there: no bytes, no MIME type"},
      {{.kind = K::downloadFailed, .error = error}, "the download fails: The server is gone."},
      {{.kind = K::attachmentRejected, .error = error},
       "it cannot be attached as no type: The server is gone."},
      {{.kind = K::noneDelivered, .subject = "expiry", .isIgnored = true},
       "no content is delivered by the expiry, which the system ignores"},
  };
  for (const auto& row : rows) EXPECT_EQ(describe(row.event), row.sentence);
}

TEST(Event, KindsHaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  const auto last = static_cast<int>(K::noneDelivered);
  for (int kind = 0; kind <= last; ++kind) {
    names.insert(nameOf(static_cast<K>(kind)));
    EXPECT_FALSE(nameOf(stageOf(static_cast<K>(kind))).empty());
  }
  EXPECT_EQ(names.size(), static_cast<std::size_t>(last) + 1);
}

TEST(Event, ADownloadWithAnErrorStatusIsAnErrorPage) {
  for (const auto& [status, isError] : {std::pair{200, false}, {399, false}, {400, true}}) {
    EXPECT_EQ(isErrorPage({.kind = K::downloadFinished, .status = status}), isError) << status;
  }
  EXPECT_FALSE(isErrorPage({.kind = K::downloadFinished}));  // a file has no status
  EXPECT_EQ(describeFailure({.kind = K::downloadFinished, .status = 404}),
            "the download ended with status 404");
}

TEST(EventLog, StampsTimeAndRequestThroughWhateverACallbackSchedules) {
  EventLoop loop;
  EventLog log(loop);
  const auto send = [&](int request, double at) {
    loop.setRequest(request);
    loop.schedule(at, [&] {
      loop.scheduleIn(2, [&] { log.add({.kind = K::downloadFinished}); });
      log.add({.kind = K::downloadStarted});
    });
    loop.setRequest(0);
  };
  send(1, 0);
  send(2, 1);
  loop.run();
  std::string order;
  for (const Event& event : log.events()) {
    order +=
        std::to_string(event.request) + "@" + std::to_string(static_cast<int>(event.time)) + " ";
  }
  EXPECT_EQ(order, "1@0 2@1 1@2 2@3 ");
}

}  // namespace
}  // namespace orvanta::testing
