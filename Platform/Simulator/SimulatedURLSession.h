#pragma once

#include <optional>

#include "orvanta/Platform/NSURLSession.h"
#include "orvanta/Simulator/DeviceFiles.h"
#include "orvanta/Simulator/Downloader.h"
#include "orvanta/Simulator/Event.h"
#include "orvanta/Simulator/EventLoop.h"
#include "orvanta/Simulator/Scenario.h"

namespace orvanta {

/// Downloads in virtual time. A download takes place when it is asked for and is reported when the
/// time that it took has passed on the loop's clock. A scenario can give the result instead.
class SimulatedURLSession final : public NSURLSession {
 public:
  /// Without a downloader the device is offline. What is passed must outlive the session.
  SimulatedURLSession(EventLoop& loop, EventLog& log, DeviceFiles& files, Downloader* downloader,
                      std::optional<Scenario::Media> answer);

  void downloadTaskWithURL(const std::optional<Url>& url,
                           DownloadCompletion completionHandler) override;

  /// When the current request expires, on the loop's clock. A real transfer may go on for 5 seconds
  /// more, so that a download that comes too late can be seen.
  void setExpiry(double seconds) { expiry_ = seconds; }

 private:
  Download fetch(const Url& url);
  Download simulated(const Scenario::Media& media, const Url& url);
  void report(const Url& url, const Download& download, const DownloadCompletion& completion);

  EventLoop& loop_;
  EventLog& log_;
  DeviceFiles& files_;
  Downloader* downloader_;
  std::optional<Scenario::Media> answer_;
  double expiry_ = 0.0;
};

}  // namespace orvanta
