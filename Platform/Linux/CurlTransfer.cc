#include "orvanta/Linux/CurlTransfer.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/Foundation/CharacterSet.h"
#include "orvanta/Foundation/internal/ASCII.h"
#include "orvanta/Linux/CurlHandle.h"
#include "orvanta/Linux/DownloadFile.h"
#include "orvanta/Linux/HTTPHeader.h"
#include "orvanta/Simulator/URLErrors.h"

namespace orvanta {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using namespace std::chrono_literals;

constexpr CharacterSet kUrlCharacters =
    CharacterSet::alphanumerics().with("-._~:/?#[]@!$&'()*+,;=%");

constexpr std::size_t kMaxHeaderLines = 256;  // of a response and the interim ones before it
constexpr std::size_t kMaxHeaderBytes = 65'536;
// Of a redirect's body, which is read and dropped: closing with unread bytes resets a connection.
constexpr std::uint64_t kMaxRedirectBodyBytes = 65'536;
constexpr milliseconds kMaxPollTime = 1h;  // libcurl takes an int of milliseconds

milliseconds since(Clock::time_point earlier) {
  return std::chrono::floor<milliseconds>(Clock::now() - earlier);
}

/// Whether a URL is relative or has a scheme to fetch, and has a host where it must have one. For a
/// missing host libcurl would take the first name of the path.
bool isFetchable(const Url& url) {
  const std::string scheme = toLowerASCII(url.scheme());
  if (!scheme.empty() && scheme != "http" && scheme != "https") return false;
  std::string_view rest = url.absoluteString();
  if (!scheme.empty()) rest.remove_prefix(scheme.size() + 1);
  if (!rest.starts_with("//")) return scheme.empty();
  return rest.size() > 2 && rest.find_first_of("/?#", 2) != 2;
}

/// A transfer and its redirects: one request after the other on the same handle. The multi
/// interface is used for a single handle because it returns to the caller between events, which is
/// where the time limits are checked and progress is reported.
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
      if (code != 0 || location_.empty()) break;
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
  std::optional<CURLcode> outcome();
  Next takeHeaderLine(std::string_view line);
  Next takeHeaders();
  Next takeBody(std::string_view bytes);
  bool isDecodable() const;
  void report();
  /// Stops the request with an error other than libcurl's.
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
  std::vector<std::string> header(const char* name) const {
    return headerValues(easy_.get(), name);
  }

  // An exception must not cross libcurl, which is C.
  static std::size_t headerArrived(char* bytes, std::size_t, std::size_t size, void* self) noexcept;
  static std::size_t bodyArrived(char* bytes, std::size_t, std::size_t size, void* self) noexcept;

  Url url_;  // of the request under way, or of the one that failed
  DownloadFile file_;
  const TransferLimits& limits_;
  const TransferProgress& progress_;
  const Clock::time_point begin_ = Clock::now();
  CurlEasy easy_;
  CurlMulti multi_;
  CurlUrl target_;

  // State of the request under way.
  std::size_t headerLines_ = 0;
  std::size_t headerBytes_ = 0;
  bool headersEnded_ = false;
  std::string location_;  // of a redirect
  bool encoded_ = false;
  std::int64_t failure_ = 0;
  std::uint64_t received_ = 0;
  std::uint64_t reported_ = 0;
  std::uint64_t expected_ = 0;
  Ref<NSURLResponse> response_;
};

bool Transfer::prepare() {
  easy_ = makeCurlHandle();
  multi_.reset(easy_ ? curl_multi_init() : nullptr);
  if (!multi_) return false;
  const auto set = [&](CURLoption option, auto value) {
    return curl_easy_setopt(easy_.get(), option, value) == CURLE_OK;
  };
  return set(CURLOPT_HEADERFUNCTION, &headerArrived) &&
         set(CURLOPT_HEADERDATA, static_cast<void*>(this)) &&
         set(CURLOPT_WRITEFUNCTION, &bodyArrived) &&
         set(CURLOPT_WRITEDATA, static_cast<void*>(this));
}

/// Runs one request. Returns the error's code, 0 for none.
std::int64_t Transfer::fetch() {
  headerLines_ = headerBytes_ = 0;
  headersEnded_ = encoded_ = false;
  location_.clear();
  received_ = 0;

  target_.reset(curl_url());
  if (!target_ || url_.scheme().empty() || !isFetchable(url_) ||
      curl_url_set(target_.get(), CURLUPART_URL, std::string(url_.absoluteString()).c_str(), 0) !=
          CURLUE_OK) {
    return kNSURLErrorUnsupportedURL;
  }
  // A payload's URL could otherwise log in with a name and password of its own.
  curl_url_set(target_.get(), CURLUPART_USER, nullptr, 0);
  curl_url_set(target_.get(), CURLUPART_PASSWORD, nullptr, 0);
  if (curl_easy_setopt(easy_.get(), CURLOPT_CURLU, target_.get()) != CURLE_OK ||
      curl_multi_add_handle(multi_.get(), easy_.get()) != CURLM_OK) {
    return kNSURLErrorUnknown;
  }

  Clock::time_point lastActivity = Clock::now();
  while (true) {
    int running = 0;
    if (curl_multi_perform(multi_.get(), &running) != CURLM_OK) return kNSURLErrorUnknown;
    report();
    if (running == 0) break;

    const auto left = limits_.total - since(begin_);
    if (left.count() <= 0) return kNSURLErrorTimedOut;
    const auto wait =
        std::clamp(std::min(left, limits_.idle - since(lastActivity)), 0ms, kMaxPollTime);
    int ready = 0;
    if (curl_multi_poll(multi_.get(), nullptr, 0, static_cast<int>(wait.count()), &ready) !=
        CURLM_OK) {
      return kNSURLErrorUnknown;
    }
    // A socket is ready when it has connected, accepts more of the request or has bytes.
    if (ready > 0) {
      lastActivity = Clock::now();
    } else if (since(lastActivity) >= limits_.idle) {
      return kNSURLErrorTimedOut;
    }
  }

  const std::optional<CURLcode> ended = outcome();
  curl_multi_remove_handle(multi_.get(), easy_.get());
  if (failure_ != 0) return failure_;
  if (!location_.empty()) return 0;  // even if the rest of its body was not read
  if (!ended) return kNSURLErrorUnknown;
  if (*ended != CURLE_OK) return urlErrorCode(*ended, easy_.get());
  return response_ ? 0 : kNSURLErrorBadServerResponse;
}

/// Returns how the request ended, after it did.
std::optional<CURLcode> Transfer::outcome() {
  int left = 0;
  const CURLMsg* message = curl_multi_info_read(multi_.get(), &left);
  if (message == nullptr || message->msg != CURLMSG_DONE) return std::nullopt;
  return message->data.result;
}

/// Sets the URL to the target of a redirect. Returns the error's code, 0 for none.
std::int64_t Transfer::follow() {
  const auto location = Url::parse(percentEncoded(location_, kUrlCharacters));
  if (!location) return kNSURLErrorUnsupportedURL;
  if (!isFetchable(*location)) {
    if (!location->scheme().empty()) url_ = *location;
    return kNSURLErrorUnsupportedURL;
  }
  // The handle still has the URL of the request, so that libcurl resolves a relative reference.
  char* resolved = nullptr;
  if (curl_url_set(target_.get(), CURLUPART_URL, std::string(location->absoluteString()).c_str(),
                   0) != CURLUE_OK ||
      curl_url_get(target_.get(), CURLUPART_URL, &resolved, 0) != CURLUE_OK) {
    return kNSURLErrorUnsupportedURL;
  }
  const auto url = Url::parse(CurlString(resolved).get());
  if (!url) return kNSURLErrorUnsupportedURL;
  url_ = *url;
  return 0;
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
  if (++headerLines_ > kMaxHeaderLines || headerBytes_ > kMaxHeaderBytes) {
    return fail(kNSURLErrorBadServerResponse);
  }
  if (headersEnded_ || !trimWhitespace(line).empty()) return Next::proceed;  // trailers follow
  if (info<long>(CURLINFO_RESPONSE_CODE) < 200) return Next::proceed;  // the interim response's end
  headersEnded_ = true;
  return takeHeaders();
}

/// Reads the headers of the final response or of a redirect.
Transfer::Next Transfer::takeHeaders() {
  const auto status = static_cast<int>(info<long>(CURLINFO_RESPONSE_CODE));
  constexpr std::array kRedirects{301, 302, 303, 307, 308};
  if (std::find(kRedirects.begin(), kRedirects.end(), status) != kRedirects.end()) {
    if (const auto locations = header("Location"); !locations.empty())
      location_ = locations.front();
    if (!location_.empty()) return isDecodable() ? Next::proceed : Next::stop;
  }

  const auto types = header("Content-Type");
  response_ = NSURLResponse::responseWithParts(
      {.url = url_,
       .mimeType = types.empty() ? std::nullopt : mimeTypeOfHeader(types.front()),
       .statusCode = status,
       .headers = responseHeaders(easy_.get())});

  if (!isDecodable()) return fail(kNSURLErrorCannotDecodeContentData);
  encoded_ = !header("Content-Encoding").empty();
  return file_.create() ? Next::proceed : fail(kNSURLErrorCannotCreateFile);
}

/// libcurl undoes whatever coding it was built for, asked for or not; some of them take memory by
/// the megabyte.
bool Transfer::isDecodable() const {
  for (const char* const name : {"Content-Encoding", "Transfer-Encoding"}) {
    const auto values = header(name);
    if (!std::all_of(values.begin(), values.end(), hasSupportedCodings)) return false;
  }
  return true;
}

Transfer::Next Transfer::takeBody(std::string_view bytes) {
  received_ += bytes.size();
  if (!location_.empty()) return received_ <= kMaxRedirectBodyBytes ? Next::proceed : Next::stop;
  if (!response_) return fail(kNSURLErrorBadServerResponse);
  if (received_ == bytes.size() && !encoded_) {  // the first bytes
    const auto announced = info<curl_off_t>(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T);
    expected_ = announced > 0 ? static_cast<std::uint64_t>(announced) : 0;
  }
  if (std::max(received_, expected_) > limits_.bytes) {
    return fail(kNSURLErrorDataLengthExceedsMaximum);
  }
  return file_.write(bytes) ? Next::proceed : fail(kNSURLErrorCannotWriteToFile);
}

/// Called outside libcurl's callbacks, so that the caller's function may throw.
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
