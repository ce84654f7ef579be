#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

namespace orvanta {

/// What came back for a request.
class NSURLResponse final : public Object {
 public:
  struct Parts {
    Url url;
    /// The Content-Type without its parameters, in lower case.
    std::optional<std::string> mimeType;
    /// None when the answer did not come over HTTP.
    std::optional<int> statusCode;
    std::vector<std::pair<std::string, std::string>> headers;
  };
  static Ref<NSURLResponse> responseWithParts(Parts parts) {
    return Ref<NSURLResponse>::adopt(new NSURLResponse(std::move(parts)));
  }

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }

  const Url& URL() const { return parts_.url; }
  const std::optional<std::string>& MIMEType() const { return parts_.mimeType; }
  const std::optional<int>& statusCode() const { return parts_.statusCode; }
  const std::vector<std::pair<std::string, std::string>>& headers() const { return parts_.headers; }

  std::string description() const override;

 private:
  explicit NSURLResponse(Parts parts) : parts_(std::move(parts)) {}
  static constexpr ClassObject kClass{"NSURLResponse", nullptr};
  Parts parts_;
};

/// Downloads files.
///
/// An implementer calls back exactly once per task, never before the call that started it has
/// returned, on a queue of its own. On success there are a location and a response and no error,
/// whatever the HTTP status says; the file at the location is the callee's to move away before it
/// returns, and gone afterwards. On failure there are an error and no location, and a response if
/// one had begun. Requests that run into nothing for 60 seconds fail; redirects are followed, 20
/// at most. A missing URL fails with NSURLErrorDomain -1002.
class NSURLSession {
 public:
  using DownloadCompletion =
      std::function<void(const std::optional<Url>& location, const Ref<NSURLResponse>& response,
                         const Ref<NSError>& error)>;

  virtual ~NSURLSession() = default;
  /// Makes a task and starts it.
  virtual void downloadTaskWithURL(const std::optional<Url>& url,
                                   DownloadCompletion completionHandler) = 0;
};

inline constexpr std::string_view kNSURLErrorDomain = "NSURLErrorDomain";
inline constexpr std::int64_t kNSURLErrorTimedOut = -1001;
inline constexpr std::int64_t kNSURLErrorUnsupportedURL = -1002;
inline constexpr std::int64_t kNSURLErrorCannotFindHost = -1003;
inline constexpr std::int64_t kNSURLErrorCannotConnectToHost = -1004;
inline constexpr std::int64_t kNSURLErrorNetworkConnectionLost = -1005;
inline constexpr std::int64_t kNSURLErrorHTTPTooManyRedirects = -1007;
inline constexpr std::int64_t kNSURLErrorNotConnectedToInternet = -1009;
inline constexpr std::int64_t kNSURLErrorBadServerResponse = -1011;
inline constexpr std::int64_t kNSURLErrorDataLengthExceedsMaximum = -1103;
inline constexpr std::int64_t kNSURLErrorSecureConnectionFailed = -1200;
inline constexpr std::int64_t kNSURLErrorServerCertificateUntrusted = -1202;
inline constexpr std::int64_t kNSURLErrorCannotCreateFile = -3000;

}  // namespace orvanta
