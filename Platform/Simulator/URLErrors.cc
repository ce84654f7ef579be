#include "orvanta/Simulator/URLErrors.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace orvanta {

namespace {

constexpr std::pair<std::int64_t, std::string_view> kTexts[] = {
    {kNSURLErrorTimedOut, "The request timed out."},
    {kNSURLErrorUnsupportedURL, "unsupported URL"},
    {kNSURLErrorCannotFindHost, "A server with the specified hostname could not be found."},
    {kNSURLErrorCannotConnectToHost, "Could not connect to the server."},
    {kNSURLErrorNetworkConnectionLost, "The network connection was lost."},
    {kNSURLErrorHTTPTooManyRedirects, "too many HTTP redirects"},
    {kNSURLErrorNotConnectedToInternet, "The Internet connection appears to be offline."},
    {kNSURLErrorBadServerResponse, "There was a bad response from the server."},
    {kNSURLErrorCannotDecodeRawData, "cannot decode raw data"},
    {kNSURLErrorCannotDecodeContentData, "cannot decode content data"},
    {kNSURLErrorDataLengthExceedsMaximum, "resource exceeds maximum size"},
    {kNSURLErrorSecureConnectionFailed,
     "An SSL error has occurred and a secure connection to the server cannot be made."},
    {kNSURLErrorServerCertificateUntrusted, "The certificate for this server is invalid."},
};

}  // namespace

Ref<NSError> urlError(std::int64_t code, const std::optional<Url>& url) {
  const auto* known = std::find_if(std::begin(kTexts), std::end(kTexts),
                                   [&](const auto& row) { return row.first == code; });
  const std::string text = known != std::end(kTexts)
                               ? std::string(known->second)
                               : "The operation couldn’t be completed. (NSURLErrorDomain error " +
                                     std::to_string(code) + ".)";
  Dictionary userInfo{{NSError::kLocalizedDescription, text}};
  if (url) {
    userInfo.set("NSErrorFailingURLStringKey", url->stringValue());
    userInfo.set("NSErrorFailingURLKey", *url);
  }
  return NSError::errorWithDomain(kNSURLErrorDomain, code, std::move(userInfo));
}

}  // namespace orvanta
