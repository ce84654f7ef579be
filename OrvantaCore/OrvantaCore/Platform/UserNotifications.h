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

// The UserNotifications types that the component touches, under the platform's names.

namespace orvanta {

// ---- Content ---------------------------------------------------------------

/// A media file of a notification, made by an attachment factory.
class UNNotificationAttachment final : public Object {
 public:
  struct Parts {
    std::string identifier;
    Url url;
    std::optional<std::string> typeHint;  // as asked for
    std::string type;                     // the type identifier that was settled on
    std::string family;                   // "Image", "Audio" or "Movie"
    std::uint64_t bytes = 0;
    std::shared_ptr<const void> platformObject{};  // an adapter's own
  };
  static Ref<UNNotificationAttachment> attachmentWithParts(Parts parts) {
    return Ref<UNNotificationAttachment>::adopt(new UNNotificationAttachment(std::move(parts)));
  }

  static constexpr const ClassObject& classObject() { return kClass; }
  const ClassObject& isa() const override { return kClass; }
  const Parts& parts() const { return parts_; }
  std::string description() const override;

 private:
  explicit UNNotificationAttachment(Parts parts) : parts_(std::move(parts)) {}
  static constexpr ClassObject kClass{"UNNotificationAttachment", nullptr};
  Parts parts_;
};

/// Makes attachments.
class UNNotificationAttachmentFactory {
 public:
  struct Result {
    Ref<UNNotificationAttachment> attachment;
    Ref<NSError> error;
  };
  virtual ~UNNotificationAttachmentFactory() = default;
  /// attachmentWithIdentifier:URL:options:error:, where the one option is a type identifier as type
  /// hint. One of the two results is there. Refused, in UNErrorDomain: a URL that is no file URL of
  /// a readable file (100), a type that notifications do not show, by the hint or else the file's
  /// extension (101), a file over the type's limit of 10 MB (image), 5 MB (audio) or 50 MB (movie),
  /// MB being 10^6 bytes (102).
  virtual Result attachmentWithIdentifier(const std::string& identifier, const Url& url,
                                          const std::optional<std::string>& typeHint) = 0;
};

/// What turned a content into a communication notification.
struct UNCommunication {
  std::string sender;  // the name that is shown
  bool senderHasImage = false;
  std::optional<std::string> group;
  bool groupHasImage = false;

  friend bool operator==(const UNCommunication&, const UNCommunication&) = default;
};

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
  std::vector<Ref<UNNotificationAttachment>> attachments;
  /// Set by the platform's own update; the component does not touch it.
  std::optional<UNCommunication> communication;
  /// Whatever an adapter carries along, such as the system's own content object; copies share it.
  std::shared_ptr<const void> platformObject;
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

// ---- Actions and categories ------------------------------------------------

enum UNNotificationActionOptions : unsigned {
  UNNotificationActionOptionNone = 0,
  UNNotificationActionOptionAuthenticationRequired = 1,
  UNNotificationActionOptionDestructive = 2,
  UNNotificationActionOptionForeground = 4,
};

/// A button.
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

  /// By value over all fields.
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

/// A button that takes a line of text, with the platform's own button title and placeholder.
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

/// Buttons under an identifier. The component makes them without intent identifiers and options;
/// those of a category that was read travel in the platform's object.
struct UNNotificationCategory {
  std::string identifier;
  std::vector<Ref<UNNotificationAction>> actions;  // none is nil
  std::shared_ptr<const void> platformObject{};    // an adapter's own, for one that was read

  /// By value over all fields, as the platform compares.
  friend bool operator==(const UNNotificationCategory& a, const UNNotificationCategory& b);
};

/// A set of categories in the order of insertion; equal ones stand in it once, but it may hold
/// several of one identifier. Inserting takes time by the category's own size only.
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

/// The application's notification center.
///
/// An implementer answers a read exactly once, on a serial queue of its own and never before the
/// call has returned. A write replaces the whole set; nobody is told when it is done.
class UNUserNotificationCenter {
 public:
  using CategoriesCompletion = std::function<void(const UNNotificationCategorySet& categories)>;

  virtual ~UNUserNotificationCenter() = default;
  virtual void getNotificationCategories(CategoriesCompletion completion) = 0;
  virtual void setNotificationCategories(const UNNotificationCategorySet& categories) = 0;
};

// ---- The extension ---------------------------------------------------------

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
