#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/Foundation/Dictionary.h"
#include "orvanta/Foundation/Url.h"
#include "orvanta/Platform/NSError.h"

// The UserNotifications types that the extension uses, under the platform's names. A port
// implements UNNotificationAttachmentFactory and UNUserNotificationCenter, and drives a
// UNNotificationServiceExtension; the requirements are at these classes. Objects held by `Ref` are
// immutable and can be shared between threads.

namespace orvanta {

// ---- Content ---------------------------------------------------------------

/// A media file of a notification. Created by UNNotificationAttachmentFactory.
class UNNotificationAttachment final : public Object {
 public:
  struct Parts {
    std::string identifier;
    Url url;
    std::optional<std::string> typeHint;  // as passed to the factory
    std::string type;                     // uniform type identifier, from the hint or the extension
    std::string family;                   // "Image", "Audio" or "Movie"
    std::uint64_t bytes = 0;
    std::shared_ptr<const void> platformObject{};  // the port's; not read by the library
  };
  static Ref<UNNotificationAttachment> attachmentWithParts(Parts parts) {
    return Ref<UNNotificationAttachment>::adopt(new UNNotificationAttachment(std::move(parts)));
  }

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }
  const Parts& parts() const { return parts_; }
  /// The string that the "Present Attachment : " log line prints.
  std::string description() const override;

 private:
  explicit UNNotificationAttachment(Parts parts) : parts_(std::move(parts)) {}
  static constexpr ClassObject kClass{"UNNotificationAttachment", nullptr};
  Parts parts_;
};

/// Creates attachments (the class method of the platform's UNNotificationAttachment).
///
/// Called by the extension's media step in the download's callback, after the file was moved to the
/// caches folder.
///
/// Requirements for implementers:
/// - Work synchronously, from any thread. Do not throw.
/// - Return an attachment or an error of "UNErrorDomain", never both. Errors:
///   100: the URL is not a file URL, or the file is missing or unreadable;
///   101: notifications do not show the type;
///   102: the file exceeds the system's limit for attachments: 10 MB per image, 5 MB per audio
///   file, 50 MB per movie (1 MB is 10^6 bytes; a file of exactly the limit is accepted).
class UNNotificationAttachmentFactory {
 public:
  struct Result {
    Ref<UNNotificationAttachment> attachment;
    Ref<NSError> error;
  };
  virtual ~UNNotificationAttachmentFactory() = default;
  /// attachmentWithIdentifier:URL:options:error: with the type hint as the only option. The type is
  /// the hint, a uniform type identifier; without a hint it follows from the file's extension.
  virtual Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                          const std::optional<std::string>& typeHint) = 0;
};

/// The sender and group of a communication notification.
struct UNCommunication {
  std::string sender;  // displayed name
  bool senderHasImage = false;
  std::optional<std::string> group;
  bool groupHasImage = false;

  friend bool operator==(const UNCommunication&, const UNCommunication&) = default;
};

/// The content of a notification. The library shares it as `shared_ptr<const …>`, which corresponds
/// to the platform's immutable class.
struct UNNotificationContent {
  std::optional<std::string> title;
  std::optional<std::string> subtitle;
  std::optional<std::string> body;
  Value badge;                     // a number; nil leaves the application's badge unchanged
  Value sound;                     // a string, or a dictionary for a critical alert; nil for none
  std::string categoryIdentifier;  // empty for none
  std::string threadIdentifier;    // empty for none
  Dictionary userInfo;             // the whole payload
  std::vector<Ref<UNNotificationAttachment>> attachments;
  /// Set by Intents::contentByUpdating; not read by the library.
  std::optional<UNCommunication> communication;
  /// The port's, such as the system's content object; copies share it. Not read by the library.
  std::shared_ptr<const void> platformObject;
};

/// A mutable copy of a content.
struct UNMutableNotificationContent : UNNotificationContent {
  UNMutableNotificationContent() = default;
  explicit UNMutableNotificationContent(const UNNotificationContent& content)
      : UNNotificationContent(content) {}
};

struct UNNotificationRequest {
  std::string identifier;
  std::shared_ptr<const UNNotificationContent> content;  // never null
};

/// Receives the content to present. For nullptr the system presents the original content.
using UNContentHandler = std::function<void(std::shared_ptr<const UNNotificationContent>)>;

// ---- Actions and categories ------------------------------------------------

enum UNNotificationActionOptions : unsigned {
  UNNotificationActionOptionNone = 0,
  UNNotificationActionOptionAuthenticationRequired = 1,
  UNNotificationActionOptionDestructive = 2,
  UNNotificationActionOptionForeground = 4,
};

/// A button of a notification.
class UNNotificationAction : public Object {
 public:
  static Ref<UNNotificationAction> actionWithIdentifier(std::string identifier, std::string title,
                                                        unsigned options) {
    return Ref<UNNotificationAction>::adopt(
        new UNNotificationAction(std::move(identifier), std::move(title), options));
  }

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }
  const std::string& identifier() const { return identifier_; }
  const std::string& title() const { return title_; }
  unsigned options() const { return options_; }
  virtual bool takesText() const { return false; }

  /// Compares all fields.
  bool isEqual(const Value& other) const override;
  std::size_t hash() const override { return std::hash<std::string>{}(identifier_); }

 protected:
  UNNotificationAction(std::string identifier, std::string title, unsigned options)
      : identifier_(std::move(identifier)), title_(std::move(title)), options_(options) {}

 private:
  static constexpr ClassObject kClass{"UNNotificationAction", nullptr};
  std::string identifier_;
  std::string title_;
  unsigned options_;
};

/// A button that asks for a line of text, with the system's default send button and placeholder.
class UNTextInputNotificationAction final : public UNNotificationAction {
 public:
  static Ref<UNTextInputNotificationAction> actionWithIdentifier(std::string identifier,
                                                                 std::string title,
                                                                 unsigned options) {
    return Ref<UNTextInputNotificationAction>::adopt(
        new UNTextInputNotificationAction(std::move(identifier), std::move(title), options));
  }
  static constexpr const ClassObject& classObject() { return kTextInputClass; }
  const ClassObject& isa() const override { return kTextInputClass; }
  bool takesText() const override { return true; }

 private:
  using UNNotificationAction::UNNotificationAction;
  static constexpr ClassObject kTextInputClass{"UNTextInputNotificationAction",
                                               &UNNotificationAction::classObject()};
};

/// A set of buttons that a notification selects by identifier. The library's own categories have no
/// intent identifiers and no options. Those of a category read from the center stay in
/// `platformObject`, which the port must use when it writes the category back.
struct UNNotificationCategory {
  std::string identifier;
  std::vector<Ref<UNNotificationAction>> actions;  // elements are never nil
  std::shared_ptr<const void> platformObject{};    // the port's; nullptr for the library's own

  /// Compares all fields, as the platform does.
  friend bool operator==(const UNNotificationCategory& a, const UNNotificationCategory& b);
};

/// A set of categories in insertion order. Contains equal categories once, but may contain several
/// with the same identifier. The time to insert does not depend on the size of the set.
class UNNotificationCategorySet {
 public:
  void insert(UNNotificationCategory category);
  std::size_t size() const { return categories_.size(); }
  auto begin() const { return categories_.begin(); }
  auto end() const { return categories_.end(); }

 private:
  std::vector<UNNotificationCategory> categories_;
  Dictionary present_;
};

/// The notification categories of the application.
///
/// Called by NotificationHelper: a read, then from the read's completion a write of the merged set.
/// The completion then runs the rest of the extension's pipeline.
///
/// Requirements for implementers:
/// - Call the completion of a read exactly once, on a serial queue, in the order of the reads,
///   never before the call has returned. A read cannot fail: pass an empty set.
/// - A write replaces the whole set and is visible to every later read. It is not acknowledged.
/// - Keep the object alive as long as the process: the extension holds it weakly, and buttons are
///   not registered if it is gone. Pending completions keep a strong reference.
/// - Neither method throws.
class UNUserNotificationCenter {
 public:
  using CategoriesCompletion = std::function<void(const UNNotificationCategorySet& categories)>;

  virtual ~UNUserNotificationCenter() = default;
  virtual void getNotificationCategories(CategoriesCompletion completion) = 0;
  virtual void setNotificationCategories(const UNNotificationCategorySet& categories) = 0;
};

// ---- The extension ---------------------------------------------------------

/// The object that the system creates for a notification request. Here the port is the caller and
/// the library the implementer.
///
/// Requirements for callers:
/// - Call `didReceiveNotificationRequest` first. Call `serviceExtensionTimeWillExpire` at most once
///   per request, if the time budget (about 30 seconds on the system) ends before the handler was
///   called. Any thread is allowed, but run it on the serial queue of the callbacks if you can:
///   no lock orders an expiry against a step that runs at the same time.
/// - Accept calls of the content handler on any thread, before and after the expiry. The first call
///   counts; ignore later ones, and present the original content for nullptr or without a call.
/// - Pending steps keep the object alive: hold it in a `std::shared_ptr`.
class UNNotificationServiceExtension {
 public:
  virtual ~UNNotificationServiceExtension() = default;
  virtual void didReceiveNotificationRequest(const UNNotificationRequest& request,
                                             UNContentHandler contentHandler) = 0;
  virtual void serviceExtensionTimeWillExpire() = 0;
};

}  // namespace orvanta
