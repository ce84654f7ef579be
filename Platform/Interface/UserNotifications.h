#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Foundation/Dictionary.h"
#include "Foundation/Value.h"

// The UserNotifications types that the component touches, under the platform's names.

namespace orvanta {

/// What a notification shows. Shared as const, it is the platform's immutable content.
struct UNNotificationContent {
  std::optional<std::string> title;
  std::optional<std::string> subtitle;
  std::optional<std::string> body;
  Value badge;                     // a number; nil leaves the application's badge alone
  Value sound;                     // a text, or a dictionary for a critical alert; nil for silence
  std::string categoryIdentifier;  // empty when there is none
  std::string threadIdentifier;    // empty when there is none
  Dictionary userInfo;             // the whole payload

  friend bool operator==(const UNNotificationContent&, const UNNotificationContent&) = default;
};

/// A content of one's own, made as a copy, to be changed before it is handed over.
struct UNMutableNotificationContent : UNNotificationContent {
  UNMutableNotificationContent() = default;
  explicit UNMutableNotificationContent(const UNNotificationContent& content)
      : UNNotificationContent(content) {}
};

struct UNNotificationRequest {
  std::string identifier;
  std::shared_ptr<const UNNotificationContent> content;  // never null
};

/// Takes the content to show; null means that there is none and the original is shown.
using UNContentHandler = std::function<void(std::shared_ptr<const UNNotificationContent>)>;

/// The application's notification center.
class UNUserNotificationCenter {
 public:
  virtual ~UNUserNotificationCenter() = default;
};

/// What the system's extension host makes one of per request, and calls.
///
/// A host calls didReceiveNotificationRequest first; serviceExtensionTimeWillExpire, if at all,
/// when its time budget runs out before the handler was called, from any thread. It keeps the
/// original content to show when the handler is never called, and ignores a second call.
class UNNotificationServiceExtension {
 public:
  virtual ~UNNotificationServiceExtension() = default;
  virtual void didReceiveNotificationRequest(const UNNotificationRequest& request,
                                             UNContentHandler contentHandler) = 0;
  virtual void serviceExtensionTimeWillExpire() = 0;
};

}  // namespace orvanta
