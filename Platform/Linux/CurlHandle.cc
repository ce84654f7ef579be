#include "orvanta/Linux/CurlHandle.h"

#include <cerrno>

#include "orvanta/Foundation/internal/ASCII.h"
#include "orvanta/Linux/HTTPHeader.h"
#include "orvanta/Simulator/URLErrors.h"

namespace orvanta {

CurlEasy makeCurlHandle() {
  static const bool kReady = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
  CurlEasy handle(kReady ? curl_easy_init() : nullptr);
  if (!handle) return nullptr;

  bool isSet = true;
  const auto option = [&](CURLoption which, auto value) {
    isSet = curl_easy_setopt(handle.get(), which, value) == CURLE_OK && isSet;
  };
  // Signal handlers belong to the process; a transfer may run on any of its threads.
  option(CURLOPT_NOSIGNAL, 1L);
  // Cleaning up then does not wait for the thread of a name server that does not respond.
  option(CURLOPT_QUICK_EXIT, 1L);
  // A server may close after its response to a redirect without having announced it; a request on
  // the same connection would then fail now and then.
  option(CURLOPT_FORBID_REUSE, 1L);

  // A second barrier after the check of each URL: libcurl also reads files, mail and directories.
  option(CURLOPT_PROTOCOLS_STR, "http,https");
  option(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  // Redirects are followed by the caller, which checks each target and counts them.
  option(CURLOPT_FOLLOWLOCATION, 0L);
  // One file gains nothing from HTTP/2, which is a far larger protocol to trust a server with.
  option(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  // HTTP/0.9 has no headers: whatever any kind of server sends would be a successful body.
  option(CURLOPT_HTTP09_ALLOWED, 0L);

  // libcurl's defaults today; a build of it may have others. TLS 1.2 is the platform's minimum.
  option(CURLOPT_SSL_VERIFYPEER, 1L);
  option(CURLOPT_SSL_VERIFYHOST, 2L);
  option(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));

  // The environment and the user's files must neither divert a request nor add a password to it.
  option(CURLOPT_PROXY, "");
  option(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));

  option(CURLOPT_USERAGENT, "orvanta");
  // Not every coding that libcurl supports: see hasSupportedCodings.
  option(CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
  option(CURLOPT_BUFFERSIZE, 65'536L);
  // The caller keeps the time limits. libcurl's own, 5 minutes by default, must not come earlier.
  option(CURLOPT_CONNECTTIMEOUT_MS, 0x7FFF'FFFFL);
  return isSet ? std::move(handle) : nullptr;
}

std::int64_t urlErrorCode(CURLcode outcome, CURL* handle) {
  switch (outcome) {
    case CURLE_URL_MALFORMAT:
      return kNSURLErrorUnsupportedURL;
    case CURLE_COULDNT_RESOLVE_HOST:
      return kNSURLErrorCannotFindHost;
    case CURLE_COULDNT_CONNECT: {
      long error = 0;
      curl_easy_getinfo(handle, CURLINFO_OS_ERRNO, &error);
      return error == ENETUNREACH || error == ENETDOWN ? kNSURLErrorNotConnectedToInternet
                                                       : kNSURLErrorCannotConnectToHost;
    }
    case CURLE_OPERATION_TIMEDOUT:
      return kNSURLErrorTimedOut;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
      return kNSURLErrorNetworkConnectionLost;
    case CURLE_BAD_CONTENT_ENCODING:
      return kNSURLErrorCannotDecodeRawData;
    case CURLE_UNSUPPORTED_PROTOCOL:  // of the response; the URL's has been checked
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_FUNCTION_ARGUMENT:  // a header line without a colon
    case CURLE_OUT_OF_MEMORY:          // a header line over libcurl's own limit
      return kNSURLErrorBadServerResponse;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
      return kNSURLErrorServerCertificateUntrusted;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_ENGINE_INITFAILED:
      return kNSURLErrorSecureConnectionFailed;
    default:
      return kNSURLErrorUnknown;
  }
}

std::vector<std::string> headerValues(CURL* handle, const char* name) {
  std::vector<std::string> values;
  curl_header* header = nullptr;
  while (curl_easy_header(handle, name, values.size(), CURLH_HEADER, -1, &header) == CURLHE_OK) {
    values.emplace_back(trimWhitespace(header->value));
  }
  return values;
}

std::vector<std::pair<std::string, std::string>> responseHeaders(CURL* handle) {
  // Names first: a lookup may overwrite the header from which the iteration continues.
  std::vector<std::string> names;
  curl_header* header = nullptr;
  while ((header = curl_easy_nextheader(handle, CURLH_HEADER, -1, header)) != nullptr) {
    if (header->index == 0) names.emplace_back(header->name);
  }

  std::vector<std::pair<std::string, std::string>> headers;
  for (const std::string& name : names) {
    std::string joined;
    const char* separator = "";
    for (const std::string& value : headerValues(handle, name.c_str())) {
      joined.append(std::exchange(separator, ", ")).append(value);
    }
    headers.emplace_back(replaceUnprintable(name), replaceUnprintable(joined));
  }
  return headers;
}

}  // namespace orvanta
