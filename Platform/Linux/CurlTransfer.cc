#include "orvanta/Linux/CurlTransfer.h"

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Linux/DownloadFile.h"
#include "orvanta/Linux/HTTPHeader.h"
#include "orvanta/Simulator/URLErrors.h"

namespace orvanta {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using namespace std::chrono_literals;

constexpr CharacterSet kSchemeCharacters = CharacterSet::alphanumerics().with("+-.");
constexpr CharacterSet kUrlCharacters =
    CharacterSet::alphanumerics().with("-._~:/?#[]@!$&'()*+,;=%");

constexpr std::size_t kHeaderLines = 256;  // of a response and the interim ones before it
constexpr std::size_t kHeaderBytes = 65'536;
constexpr std::uint64_t kRedirectBody = 65'536;  // read to keep the connection, then hung up on
constexpr long kReceiveBuffer = 65'536;
constexpr milliseconds kLongestWait = 1h;  // of one poll

milliseconds since(Clock::time_point earlier) {
  return std::chrono::floor<milliseconds>(Clock::now() - earlier);
}

/// The scheme in lower case; empty for a relative reference.
std::string schemeOf(std::string_view url) {
  const auto colon = url.find(':');
  if (colon == std::string_view::npos) return {};
  const std::string_view scheme = url.substr(0, colon);
  const bool valid = std::all_of(scheme.begin(), scheme.end(),
                                 [](char c) { return kSchemeCharacters.contains(c); });
  return valid ? lowered(scheme) : std::string();
}

/// Whether a URL or relative reference has a scheme to fetch, and a host where it can have one.
/// libcurl would take a path's first name for a host that is missing.
bool isFetchable(std::string_view url, bool relative) {
  const std::string scheme = schemeOf(url);
  if (scheme.empty() ? !relative : scheme != "http" && scheme != "https") return false;
  if (!scheme.empty()) url.remove_prefix(scheme.size() + 1);
  if (!url.starts_with("//")) return scheme.empty();
  return url.size() > 2 && std::string_view("/?#").find(url[2]) == std::string_view::npos;
}

struct Freed {
  void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
  void operator()(CURLU* url) const { curl_url_cleanup(url); }
  void operator()(char* text) const { curl_free(text); }
};
struct EasyFreed {
  void operator()(CURL* easy) const { curl_easy_cleanup(easy); }
};
using Multi = std::unique_ptr<CURLM, Freed>;
using Easy = std::unique_ptr<CURL, EasyFreed>;
using ParsedUrl = std::unique_ptr<CURLU, Freed>;

/// A transfer with its redirects. The requests share a handle, so connections are kept.
class Transfer {
 public:
  Transfer(Url url, const std::filesystem::path& folder, const TransferLimits& limits,
           const TransferProgress& progress)
      : url_(std::move(url)), file_(folder), limits_(limits), progress_(progress) {}
  Transfer(const Transfer&) = delete;
  Transfer& operator=(const Transfer&) = delete;
  ~Transfer() {
    if (multi_ && easy_) curl_multi_remove_handle(multi_.get(), easy_.get());
  }

  TransferResult run() {
    std::int64_t code = prepare() ? 0 : kNSURLErrorUnknown;
    for (int redirects = 0; code == 0; ++redirects) {
      code = fetch();
      if (code != 0 || !redirected_) break;
      code = redirects < limits_.redirects ? follow() : kNSURLErrorHTTPTooManyRedirects;
    }
    if (code == 0 && !file_.close()) code = kNSURLErrorCannotCloseFile;

    TransferResult result;
    result.response = std::move(response_);
    if (code == 0) {
      result.file = file_.finish();
    } else {
      result.error = urlError(code, url_);
    }
    return result;
  }

 private:
  enum class Next : std::uint8_t { proceed, stop };

  bool prepare();
  std::int64_t fetch();
  std::int64_t follow();
  std::int64_t codeOf(CURLcode outcome) const;
  std::optional<CURLcode> outcome();
  Next takeHeaderLine(std::string_view line);
  Next takeHeaders();
  Next takeBody(std::string_view bytes);
  bool isDecodable() const;
  void report();
  Next fail(std::int64_t code) {
    failure_ = code;
    return Next::stop;
  }
  template <class T>
  T info(CURLINFO which) const {
    T value{};
    curl_easy_getinfo(easy_.get(), which, &value);
    return value;
  }
  const char* header(const char* name) const {
    curl_header* found = nullptr;
    return curl_easy_header(easy_.get(), name, 0, CURLH_HEADER, -1, &found) == CURLHE_OK
               ? found->value
               : nullptr;
  }

  // libcurl is C: nothing may be thrown through it.
  static std::size_t headerArrived(char* bytes, std::size_t, std::size_t size, void* self) noexcept;
  static std::size_t bodyArrived(char* bytes, std::size_t, std::size_t size, void* self) noexcept;

  Url url_;  // of the request under way
  DownloadFile file_;
  const TransferLimits& limits_;
  const TransferProgress& progress_;
  const Clock::time_point begin_ = Clock::now();
  Easy easy_;
  Multi multi_;
  ParsedUrl target_;

  // Of the request under way.
  std::size_t headerLines_ = 0;
  std::size_t headerBytes_ = 0;
  bool headersEnded_ = false;
  bool redirected_ = false;
  bool encoded_ = false;
  std::int64_t failure_ = 0;
  std::uint64_t received_ = 0;
  std::uint64_t reported_ = 0;
  std::uint64_t expected_ = 0;
  Ref<NSURLResponse> response_;
};

bool Transfer::prepare() {
  static const bool kReady = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
  if (!kReady) return false;
  easy_.reset(curl_easy_init());
  multi_.reset(curl_multi_init());
  if (!easy_ || !multi_) return false;

  bool set = true;
  const auto option = [&](CURLoption which, auto value) {
    set = curl_easy_setopt(easy_.get(), which, value) == CURLE_OK && set;
  };
  option(CURLOPT_NOSIGNAL, 1L);
  option(CURLOPT_QUICK_EXIT, 1L);  // a resolver that hangs is left behind
  // A server may close behind its answer to a redirect without having said so; asking on that
  // connection again would then fail now and then.
  option(CURLOPT_FORBID_REUSE, 1L);
  option(CURLOPT_PROTOCOLS_STR, "http,https");
  option(CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
  option(CURLOPT_FOLLOWLOCATION, 0L);
  option(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
  option(CURLOPT_HTTP09_ALLOWED, 0L);
  option(CURLOPT_SSL_VERIFYPEER, 1L);
  option(CURLOPT_SSL_VERIFYHOST, 2L);
  option(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2));
  option(CURLOPT_PROXY, "");
  option(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
  option(CURLOPT_USERAGENT, "orvanta");
  option(CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
  option(CURLOPT_BUFFERSIZE, kReceiveBuffer);
  // The time limits are kept in fetch(); this one must only not come earlier.
  option(CURLOPT_CONNECTTIMEOUT_MS, 0x7FFF'FFFFL);
  option(CURLOPT_HEADERFUNCTION, &headerArrived);
  option(CURLOPT_HEADERDATA, static_cast<void*>(this));
  option(CURLOPT_WRITEFUNCTION, &bodyArrived);
  option(CURLOPT_WRITEDATA, static_cast<void*>(this));
  return set;
}

/// Runs one request; the error's code, 0 for none.
std::int64_t Transfer::fetch() {
  headerLines_ = headerBytes_ = 0;
  headersEnded_ = redirected_ = encoded_ = false;
  received_ = 0;

  // Names and passwords in URLs are not sent.
  const std::string text(url_.absoluteString());
  target_.reset(curl_url());
  if (!target_ || !isFetchable(text, false) ||
      curl_url_set(target_.get(), CURLUPART_URL, text.c_str(), 0) != CURLUE_OK) {
    return kNSURLErrorUnsupportedURL;
  }
  curl_url_set(target_.get(), CURLUPART_USER, nullptr, 0);
  curl_url_set(target_.get(), CURLUPART_PASSWORD, nullptr, 0);
  if (curl_easy_setopt(easy_.get(), CURLOPT_CURLU, target_.get()) != CURLE_OK ||
      curl_multi_add_handle(multi_.get(), easy_.get()) != CURLM_OK) {
    return kNSURLErrorUnknown;
  }

  Clock::time_point heard = Clock::now();
  while (true) {
    int running = 0;
    if (curl_multi_perform(multi_.get(), &running) != CURLM_OK) return kNSURLErrorUnknown;
    report();
    if (running == 0) break;

    const auto left = limits_.total - since(begin_);
    if (left.count() <= 0) return kNSURLErrorTimedOut;
    const auto wait = std::clamp(std::min(left, limits_.idle - since(heard)), 0ms, kLongestWait);
    int ready = 0;
    if (curl_multi_poll(multi_.get(), nullptr, 0, static_cast<int>(wait.count()), &ready) !=
        CURLM_OK) {
      return kNSURLErrorUnknown;
    }
    // A socket is waited for until it connects, takes the request or has bytes.
    if (ready > 0) {
      heard = Clock::now();
    } else if (since(heard) >= limits_.idle) {
      return kNSURLErrorTimedOut;
    }
  }

  const std::optional<CURLcode> ended = outcome();
  curl_multi_remove_handle(multi_.get(), easy_.get());
  if (failure_ != 0) return failure_;
  if (redirected_) return 0;  // whatever became of its body
  if (!ended) return kNSURLErrorUnknown;
  if (*ended != CURLE_OK) return codeOf(*ended);
  return response_ ? 0 : kNSURLErrorBadServerResponse;
}

std::optional<CURLcode> Transfer::outcome() {
  int left = 0;
  const CURLMsg* message = curl_multi_info_read(multi_.get(), &left);
  if (message == nullptr || message->msg != CURLMSG_DONE) return std::nullopt;
  return message->data.result;
}

/// Turns to where the answer points to.
std::int64_t Transfer::follow() {
  const std::string location = percentEncoded(trimmed(header("Location")), kUrlCharacters);
  if (!isFetchable(location, true)) {
    const auto url = Url::parse(location);
    if (url && !schemeOf(location).empty()) url_ = *url;  // the one that failed
    return kNSURLErrorUnsupportedURL;
  }
  char* text = nullptr;
  if (curl_url_set(target_.get(), CURLUPART_URL, location.c_str(), 0) != CURLUE_OK ||
      curl_url_get(target_.get(), CURLUPART_URL, &text, 0) != CURLUE_OK) {
    return kNSURLErrorUnsupportedURL;
  }
  const std::unique_ptr<char, Freed> owned(text);
  const auto url = Url::parse(text);
  if (!url) return kNSURLErrorUnsupportedURL;
  url_ = *url;
  return 0;
}

std::int64_t Transfer::codeOf(CURLcode outcome) const {
  switch (outcome) {
    case CURLE_URL_MALFORMAT:
      return kNSURLErrorUnsupportedURL;
    case CURLE_COULDNT_RESOLVE_HOST:
      return kNSURLErrorCannotFindHost;
    case CURLE_COULDNT_CONNECT: {
      const long error = info<long>(CURLINFO_OS_ERRNO);
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
    case CURLE_UNSUPPORTED_PROTOCOL:  // of the answer; the URL's has been checked
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_FUNCTION_ARGUMENT:  // a header line without a colon
    case CURLE_OUT_OF_MEMORY:          // a header line beyond libcurl's own limit
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

std::size_t Transfer::headerArrived(char* bytes, std::size_t, std::size_t size,
                                    void* self) noexcept {
  return static_cast<Transfer*>(self)->takeHeaderLine({bytes, size}) == Next::proceed ? size : 0;
}

std::size_t Transfer::bodyArrived(char* bytes, std::size_t, std::size_t size, void* self) noexcept {
  return static_cast<Transfer*>(self)->takeBody({bytes, size}) == Next::proceed ? size : 0;
}

Transfer::Next Transfer::takeHeaderLine(std::string_view line) {
  headerBytes_ += line.size();
  if (++headerLines_ > kHeaderLines || headerBytes_ > kHeaderBytes) {
    return fail(kNSURLErrorBadServerResponse);
  }
  if (headersEnded_ || !trimmed(line).empty()) return Next::proceed;  // what follows are trailers
  if (info<long>(CURLINFO_RESPONSE_CODE) < 200) return Next::proceed;
  headersEnded_ = true;
  return takeHeaders();
}

/// Looks at the headers of an answer that is not interim.
Transfer::Next Transfer::takeHeaders() {
  const auto status = static_cast<int>(info<long>(CURLINFO_RESPONSE_CODE));
  constexpr std::array kRedirects{301, 302, 303, 307, 308};
  if (std::find(kRedirects.begin(), kRedirects.end(), status) != kRedirects.end()) {
    const char* location = header("Location");
    redirected_ = location != nullptr && !trimmed(location).empty();
    if (redirected_) return isDecodable() ? Next::proceed : Next::stop;
  }

  NSURLResponse::Parts parts{
      .url = url_, .mimeType = std::nullopt, .statusCode = status, .headers = {}};
  std::vector<std::string> lowerNames;
  curl_header* each = nullptr;
  while ((each = curl_easy_nextheader(easy_.get(), CURLH_HEADER, -1, each)) != nullptr) {
    std::string lower = lowered(each->name);
    const auto known = std::find(lowerNames.begin(), lowerNames.end(), lower);
    if (known == lowerNames.end()) {
      parts.headers.emplace_back(printable(each->name), printable(trimmed(each->value)));
      lowerNames.push_back(std::move(lower));
    } else {
      const auto place = static_cast<std::size_t>(known - lowerNames.begin());
      parts.headers[place].second.append(", ").append(printable(trimmed(each->value)));
    }
  }
  if (const char* type = header("Content-Type")) parts.mimeType = mimeTypeOfHeader(type);
  response_ = NSURLResponse::responseWithParts(std::move(parts));

  if (!isDecodable()) return fail(kNSURLErrorCannotDecodeContentData);
  encoded_ = header("Content-Encoding") != nullptr;
  return file_.create() ? Next::proceed : fail(kNSURLErrorCannotCreateFile);
}

/// Decoding anything else takes memory by the megabyte.
bool Transfer::isDecodable() const {
  curl_header* each = nullptr;
  while ((each = curl_easy_nextheader(easy_.get(), CURLH_HEADER, -1, each)) != nullptr) {
    const std::string name = lowered(each->name);
    if (name != "content-encoding" && name != "transfer-encoding") continue;
    std::string_view rest = each->value;
    while (!rest.empty()) {
      const auto comma = std::min(rest.find(','), rest.size());
      const std::string coding = lowered(trimmed(rest.substr(0, comma)));
      rest.remove_prefix(std::min(comma + 1, rest.size()));
      constexpr std::array<std::string_view, 6> kKnown{"",       "identity", "gzip",
                                                       "x-gzip", "deflate",  "chunked"};
      if (std::find(kKnown.begin(), kKnown.end(), coding) == kKnown.end()) return false;
    }
  }
  return true;
}

Transfer::Next Transfer::takeBody(std::string_view bytes) {
  received_ += bytes.size();
  if (redirected_) return received_ <= kRedirectBody ? Next::proceed : Next::stop;
  if (!response_) return fail(kNSURLErrorBadServerResponse);
  if (received_ == bytes.size() && !encoded_) {
    const auto announced = info<curl_off_t>(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T);
    expected_ = announced > 0 ? static_cast<std::uint64_t>(announced) : 0;
  }
  if (std::max(received_, expected_) > limits_.bytes) {
    return fail(kNSURLErrorDataLengthExceedsMaximum);
  }
  return file_.write(bytes) ? Next::proceed : fail(kNSURLErrorCannotWriteToFile);
}

/// Outside libcurl's callbacks, so that the caller's may throw.
void Transfer::report() {
  if (!response_ || failure_ != 0 || received_ == reported_) return;
  reported_ = received_;
  if (progress_) progress_(received_, expected_);
}

}  // namespace

TransferResult transfer(const Url& url, const std::filesystem::path& folder,
                        const TransferLimits& limits, const TransferProgress& progress) {
  return Transfer(url, folder, limits, progress).run();
}

}  // namespace orvanta
