#include "orvanta/Simulator/SimulatedURLSession.h"

#include <algorithm>
#include <utility>

#include "orvanta/Simulator/URLErrors.h"

namespace orvanta {

SimulatedURLSession::SimulatedURLSession(EventLoop& loop, EventLog& log, DeviceFiles& files,
                                         Downloader* downloader,
                                         std::optional<Scenario::Media> answer)
    : loop_(loop), log_(log), files_(files), downloader_(downloader), answer_(std::move(answer)) {}

void SimulatedURLSession::downloadTaskWithURL(const std::optional<Url>& url,
                                              DownloadCompletion completionHandler) {
  if (!url) {
    loop_.scheduleIn(0.0, [this, completion = std::move(completionHandler)] {
      const Ref<NSError> error = urlError(kNSURLErrorUnsupportedURL, std::nullopt);
      log_.add({.kind = EventKind::downloadFailed, .error = error});
      completion(std::nullopt, nullptr, error);
    });
    return;
  }
  log_.add({.kind = EventKind::downloadStarted, .subject = url->description()});
  Download download = fetch(*url);
  const double seconds = download.seconds;
  loop_.scheduleIn(
      seconds, [this, url = *url, download = std::move(download),
                completion = std::move(completionHandler)] { report(url, download, completion); });
}

void SimulatedURLSession::report(const Url& url, const Download& download,
                                 const DownloadCompletion& completion) {
  if (download.error) {
    log_.add(
        {.kind = EventKind::downloadFailed, .subject = url.description(), .error = download.error});
    completion(std::nullopt, download.response, download.error);
    return;
  }
  log_.add({.kind = EventKind::downloadFinished,
            .subject = url.description(),
            .type = download.response->MIMEType(),
            .count = files_.size(*download.file),
            .status = download.response->statusCode()});
  completion(*download.file, download.response, nullptr);
  files_.remove(*download.file);  // unless it was moved away
}

Download SimulatedURLSession::fetch(const Url& url) {
  if (answer_) return simulated(*answer_, url);
  if (downloader_ == nullptr) return {.error = urlError(kNSURLErrorNotConnectedToInternet, url)};
  constexpr double kGraceAfterExpiry = 5.0;  // seconds
  return downloader_->download(url, std::max(0.0, expiry_ - loop_.now()) + kGraceAfterExpiry);
}

Download SimulatedURLSession::simulated(const Scenario::Media& media, const Url& url) {
  Download download{.seconds = media.delay};
  if (media.fails) {
    download.error = urlError(media.errorCode, url);
    return download;
  }
  download.file = files_.makeDownload(media.tempName, media.bytes);
  if (!download.file) {
    download.error = urlError(kNSURLErrorCannotCreateFile, url);
    return download;
  }
  if (media.destinationExists) files_.makeCacheFile(download.file->lastPathComponent());
  NSURLResponse::Parts parts{url, media.mime, media.status, {}};
  if (media.mime) parts.headers.emplace_back("Content-Type", *media.mime);
  parts.headers.emplace_back("Content-Length", std::to_string(media.bytes));
  download.response = NSURLResponse::responseWithParts(std::move(parts));
  return download;
}

}  // namespace orvanta
