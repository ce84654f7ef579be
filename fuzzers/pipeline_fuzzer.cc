#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "fuzzer.h"
#include "orvanta/Foundation/Exception.h"
#include "orvanta/Foundation/JSON.h"
#include "orvanta/Model/Mapping/OrvantaLogger.h"
#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "orvanta/Simulator/RemoteNotification.h"
#include "orvanta/Simulator/UniformTypes.h"
#include "support/FakePlatform.h"

// The first line of the input is a script, the rest the payload as JSON, optionally followed by a
// byte 0x1E and a second payload. Each character of the script injects a fault or runs a pending
// callback; see step() and the tables. Unknown characters are ignored.
//
// The platform is the tests' fake: it keeps its files in memory, so that every written path can be
// checked, queues callbacks, so that they can run in any order, and takes microseconds a run.

namespace orvanta::fuzzing {

namespace {

using testing::FakePlatform;

constexpr std::string_view kCaches = "/caches/";

Ref<NSError> fault() { return NSError::errorWithDomain("D", 1, "Not now."); }

struct Fault {
  char letter;
  void (*happen)(FakePlatform& platform);
};
constexpr Fault kFaults[] = {
    {'a', [](FakePlatform& p) { p.attachmentError = fault(); }},
    {'b', [](FakePlatform& p) { p.download.bytes = 20'000'000; }},
    {'c', [](FakePlatform& p) { p.absent.insert("center"); }},
    {'d', [](FakePlatform& p) { p.download.error = fault(); }},
    {'e', [](FakePlatform& p) { p.encodes = false; }},
    {'f', [](FakePlatform& p) { p.files[std::string(kCaches) + p.download.name] = 1; }},
    {'g', [](FakePlatform& p) { p.center.reset(); }},
    {'i', [](FakePlatform& p) { p.donationError = fault(); }},
    {'k', [](FakePlatform& p) { p.cachesFolders.clear(); }},
    {'l', [](FakePlatform& p) { p.lockedFolder = kCaches; }},
    {'m', [](FakePlatform& p) { p.download.response.mimeType.reset(); }},
    {'o',
     [](FakePlatform& p) {
       p.version = {14, 8, 1};
     }},
    {'p', [](FakePlatform& p) { p.pictures.clear(); }},
    {'q', [](FakePlatform& /*platform*/) { OrvantaLogger::setLogLevel(2); }},
    {'r', [](FakePlatform& p) { p.download.hasResponse = false; }},
    {'s', [](FakePlatform& p) { p.download.response.statusCode.reset(); }},
    {'u', [](FakePlatform& p) { p.updateError = fault(); }},
};
/// Services that a digit removes, before the first request only.
constexpr std::string_view kServices[] = {"log",         "clock",  "session", "files", "types",
                                          "attachments", "images", "intents", "bundle"};

/// The result of one request.
struct Outcome {
  bool isBlocked;  // it has buttons, but there is no center to register them with
  Dictionary payload;
  std::vector<std::shared_ptr<const UNNotificationContent>> delivered;
};

/// Returns whether the payload has a push object with a category and at least one button.
bool hasButtons(const Dictionary& payload) {
  try {
    if (!make<OrvantaPushObject>(payload)) return false;
  } catch (const Exception&) {
    return false;
  }
  const Dictionary* aps = payload["aps"].dictionary();
  const Dictionary* own = payload["_ov"].dictionary();
  const Array* buttons = own != nullptr ? (*own)["ia"].array() : nullptr;
  return aps != nullptr && (*aps)["category"].isString() && buttons != nullptr &&
         std::any_of(buttons->begin(), buttons->end(),
                     [](const Value& button) { return button.dictionary() != nullptr; });
}

class Run {
 public:
  Run(std::string_view script, const Dictionary& payload, const Dictionary& second)
      : script_(script), payloads_{payload, second} {}

  void play() {
    while (!script_.empty()) step(next());
    if (outcomes_.empty()) receive();
    platform_.runAll();
    if (outcomes_.back()->delivered.empty()) {
      require(outcomes_.back()->isBlocked, "only buttons without a center wait for the expiry");
      expire();
    }
    requireOutcomes();
    const std::weak_ptr<void> extension = extension_;
    extension_.reset();
    require(extension.expired(), "nothing keeps the extension");
  }

 private:
  char next() {
    const char c = script_.front();
    script_.remove_prefix(1);
    return c;
  }
  /// Consumes the script up to the next '|'.
  std::string argument() {
    std::string text(script_.substr(0, script_.find('|')));
    script_.remove_prefix(std::min(text.size() + 1, script_.size()));
    return text;
  }

  void step(char c) {
    const bool isBefore = outcomes_.empty();
    for (const Fault& known : kFaults) {
      if (known.letter == c) return known.happen(platform_);
    }
    if (c >= '0' && c < '0' + static_cast<int>(std::size(kServices))) {
      if (isBefore) platform_.absent.emplace(kServices[c - '0']);
    } else if (c == 'n') {
      setName(argument());
    } else if (c == 't') {
      platform_.download.response.mimeType = argument();
      UniformTypes().preferredIdentifierForMIMEType(platform_.download.response.mimeType);
    } else if (c == 'h') {
      platform_.download.response.headers.emplace_back("Content-Type", argument());
    } else if (c == '+') {
      if (outcomes_.size() < 2) receive();
    } else if (c == '!') {
      if (!isBefore) expire();
    } else if (c == '>' || c == '<') {
      if (isBefore) receive();
      if (platform_.waiting() != 0) platform_.run(c == '>' ? 0 : platform_.waiting() - 1);
    }
  }
  /// Sets the name of the temporary file, reduced to one that a file system accepts.
  void setName(std::string name) {
    std::erase_if(name, [](char c) { return c == '/' || c == '\0'; });
    if (!name.empty() && name != "." && name != "..") platform_.download.name = name;
  }

  void receive() {
    const Dictionary& payload = payloads_[outcomes_.size()];
    auto content = std::make_shared<UNNotificationContent>();
    if (NSBundle* bundle = platform_.mainBundle()) *content = contentForPayload(payload, *bundle);
    content->userInfo = payload;
    auto outcome = std::make_shared<Outcome>();
    outcome->isBlocked = platform_.currentNotificationCenter() == nullptr && hasButtons(payload);
    outcome->payload = payload;
    outcomes_.push_back(outcome);
    extension_->didReceiveNotificationRequest(
        {"request", content}, [outcome](const std::shared_ptr<const UNNotificationContent>& shown) {
          outcome->delivered.push_back(shown);
        });
  }
  void expire() {
    ++expiries_;
    const std::size_t before = outcomes_.back()->delivered.size();
    extension_->serviceExtensionTimeWillExpire();
    require(outcomes_.back()->delivered.size() == before + 1, "an expiry delivers, and once");
  }

  void requireOutcomes() {
    for (const auto& outcome : outcomes_) {
      const auto& delivered = outcome->delivered;
      require(!delivered.empty() || outcome->isBlocked, "content is delivered");
      require(delivered.empty() || delivered.front() != nullptr, "the first delivery has content");
      require(delivered.size() <= 1 + expiries_ + (platform_.updateError ? 1U : 0U),
              "the steps deliver once, and once more after a failed update");
      for (const auto& content : delivered) {
        const bool isOwn =
            content == nullptr || Value(content->userInfo) == Value(outcome->payload);
        require(isOwn || outcomes_.size() == 2, "the payload is left as it is");
        require(content == nullptr || content->attachments.size() <= 1, "one attachment at most");
      }
    }
    require(platform_.donated.size() <= outcomes_.size(), "a request donates once at most");
    for (const auto& [path, bytes] : platform_.files) {
      const auto name = path.starts_with(kCaches) ? path.substr(kCaches.size()) : "";
      require(!name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos,
              "files are written in the caches only");
    }
  }

  std::string_view script_;
  const Dictionary payloads_[2];
  FakePlatform platform_;
  std::shared_ptr<OrvantaNotificationServiceExtension> extension_ =
      std::make_shared<OrvantaNotificationServiceExtension>();
  std::vector<std::shared_ptr<Outcome>> outcomes_;
  std::size_t expiries_ = 0;
};

}  // namespace

void pipeline(std::string_view input) {
  constexpr char kSeparator = '\x1E';
  const std::size_t line = input.find('\n');
  if (line == std::string_view::npos) return;
  const std::string_view texts = input.substr(line + 1);
  const std::size_t end = std::min(texts.find(kSeparator), texts.size());
  const Value first = parseJSON(texts.substr(0, end));
  const Value second = end < texts.size() ? parseJSON(texts.substr(end + 1)) : first;
  if (first.dictionary() == nullptr) return;

  const std::int64_t level = OrvantaLogger::logLevel();
  Run run(input.substr(0, line), *first.dictionary(),
          second.dictionary() != nullptr ? *second.dictionary() : Dictionary());
  run.play();
  OrvantaLogger::setLogLevel(level);
  launchDecision(*first.dictionary());
}

}  // namespace orvanta::fuzzing

ORVANTA_FUZZER(pipeline)
