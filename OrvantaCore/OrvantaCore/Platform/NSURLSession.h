#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

namespace orvanta {

/// The metadata of a response: HTTP if it has a status code. Immutable, so it can be shared between
/// threads.
class NSURLResponse final : public Object {
 public:
  struct Parts {
    Url url;
    /// Content-Type without parameters, in lower case.
    std::optional<std::string> mimeType;
    /// nullopt for a response that is not HTTP.
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

  /// The string that the "Response : " log line prints.
  std::string description() const override;

 private:
  explicit NSURLResponse(Parts parts) : parts_(std::move(parts)) {}
  static constexpr ClassObject kClass{"NSURLResponse", nullptr};
  Parts parts_;
};

/// Downloads files.
///
/// Called by the extension's media step, once per notification with a media URL, on whatever thread
/// that step runs. The callback moves and attaches the file and then runs the rest of the pipeline.
///
/// Requirements for implementers:
/// - Call the completion handler exactly once per task, on a serial queue, never before
///   `downloadTaskWithURL` has returned. Several tasks may be pending.
/// - Success: pass a location, a response and no error. A complete response is a success whatever
///   its HTTP status.
/// - The callee may move the file at the location until the handler returns. Delete the file then
///   if it is still there.
/// - Failure: pass an error and no location, and the response if one had arrived. Use
///   kNSURLErrorDomain with the codes below. A missing URL fails with kNSURLErrorUnsupportedURL.
/// - Follow up to 20 redirects (then fail with kNSURLErrorHTTPTooManyRedirects). Fail with
///   kNSURLErrorTimedOut after 60 seconds without data: the defaults of the system's session.
/// - Do not throw.
class NSURLSession {
 public:
  using DownloadCompletion =
      std::function<void(const std::optional<Url>& location, const Ref<NSURLResponse>& response,
                         const Ref<NSError>& error)>;

  virtual ~NSURLSession() = default;
  /// Creates a download task and resumes it. Tasks cannot be canceled.
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
