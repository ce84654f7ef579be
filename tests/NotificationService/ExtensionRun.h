#pragma once

#include <gtest/gtest.h>

#include "orvanta/NotificationService/OrvantaNotificationServiceExtension.h"
#include "support/FakePlatform.h"
#include "support/ModelHelpers.h"

namespace orvanta::testing {

// Parts of a payload's own dictionary.
constexpr std::string_view kButtons = R"("ia": [{"id": "buy", "text": "Buy"}])";
constexpr std::string_view kMedia = R"("mu": "https://m.example/a")";
constexpr std::string_view kIcon = R"("ps": {"iospi": "star"})";

/// A payload with these parts and a category identifier.
inline std::string payloadWith(const std::vector<std::string_view>& parts) {
  std::string own;
  for (const std::string_view part : parts) own.append(own.empty() ? "" : ", ").append(part);
  return R"({"aps": {"alert": "text", "category": "offer"}, "_ov": {)" + own + "}}";
}

inline Ref<NSError> error(std::string_view domain, std::int64_t code) {
  return NSError::errorWithDomain(domain, code, "Not now.");
}

/// An extension on a `FakePlatform`, with the contents that its handler received.
class ExtensionRun {
 public:
  using Content = std::shared_ptr<const UNNotificationContent>;

  FakePlatform platform;
  std::shared_ptr<OrvantaNotificationServiceExtension> extension =
      std::make_shared<OrvantaNotificationServiceExtension>();
  UNNotificationContent original;  // the content of requests, except the payload
  std::vector<Content> delivered;

  ExtensionRun() { original.title = "Ana"; }

  /// Passes a request to the extension and returns its content.
  Content receive(std::string_view payload) { return receive(payload, handler()); }
  Content receive(std::string_view payload, UNContentHandler contentHandler) {
    auto content = std::make_shared<UNNotificationContent>(original);
    content->userInfo = dictionaryFromJSON(payload);
    extension->didReceiveNotificationRequest({"request", content}, std::move(contentHandler));
    return content;
  }

  /// Stores the content and records the call as "NAME", "NAME nothing", "NAME media" and so on.
  UNContentHandler handler(const std::string& name = "deliver") {
    return [this, name](const Content& content) {
      std::string call = name;
      if (content == nullptr) call += " nothing";
      if (content != nullptr && !content->attachments.empty()) call += " media";
      if (content != nullptr && content->communication) call += " sender";
      platform.calls.push_back(call);
      delivered.push_back(content);
    };
  }
  /// Records the call as "complete" or "complete CODE".
  ErrorCompletion completion() {
    return [this](const Ref<NSError>& result) {
      platform.calls.push_back("complete" + (result ? " " + std::to_string(result->code()) : ""));
    };
  }

  /// The calls so far.
  std::string journal() const {
    std::string text;
    for (const std::string& call : platform.calls) text += (text.empty() ? "" : ", ") + call;
    return text;
  }
};

}  // namespace orvanta::testing
