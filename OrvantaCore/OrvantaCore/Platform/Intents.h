#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "orvanta/Platform/NSError.h"
#include "orvanta/Platform/UserNotifications.h"

// The Intents types that the extension uses, under the platform's names, as plain data. A field
// that the extension does not set is left out.

namespace orvanta {

struct INImage {
  std::string imageData;  // the bytes of a JPEG file
};

struct INPersonHandle {
  std::string value;
  int type = 0;  // 0: INPersonHandleTypeUnknown
};

/// The framework's name components, display name, contact and custom identifier stay nil.
struct INPerson {
  INPersonHandle personHandle;
  std::optional<INImage> image;
};

struct INSpeakableString {
  std::string spokenPhrase;
};

/// The framework's content, conversation identifier and service name stay nil.
struct INSendMessageIntent {
  std::optional<std::vector<INPerson>> recipients;
  int outgoingMessageType = 0;  // 0: INOutgoingMessageTypeUnknown
  std::optional<INSpeakableString> speakableGroupName;
  INPerson sender;
  /// Set with setImage:forParameterNamed: for `speakableGroupName`; no other parameter gets one.
  std::optional<INImage> speakableGroupNameImage;
};

/// An interaction without a response, in the default direction.
struct INInteraction {
  INSendMessageIntent intent;
};

/// Donates intents and builds communication notifications from them (iOS 15.0 and later).
///
/// Called by the extension's sender step after the sender's image was encoded and the system's
/// version checked: `donateInteraction` first, and after a successful donation `contentByUpdating`,
/// from the donation's completion.
///
/// Requirements for implementers:
/// - Call the completion of a donation exactly once, on a serial queue, never before
///   `donateInteraction` has returned. Pass nil for success.
/// - Copy what you need of the arguments before returning; they belong to the caller.
/// - Outlive every pending completion: it calls `contentByUpdating` on this object.
/// - Neither method throws. Return nullptr from `Platform::intents` if the framework is missing.
class Intents {
 public:
  /// One of the two is set.
  struct Update {
    std::shared_ptr<const UNNotificationContent> content;
    Ref<NSError> error;
  };

  virtual ~Intents() = default;
  /// donateInteractionWithCompletion:
  virtual void donateInteraction(const INInteraction& interaction, ErrorCompletion completion) = 0;
  /// contentByUpdatingWithProvider:error: returns a new content and leaves `content` unchanged.
  virtual Update contentByUpdating(const UNNotificationContent& content,
                                   const INSendMessageIntent& provider) = 0;
};

}  // namespace orvanta
